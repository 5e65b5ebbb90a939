#!/usr/bin/env bash
# Runs examples/ci/gitlab-ci.yml, unchanged, with gitlab-ci-local's shell executor against the
# cleartool simulator: a passing project, then in the same checkout a failing one and one that
# cannot be read. Each job's exported report must be its own run's, never the one before.
set -euo pipefail

usage() {
  cat <<'EOF'
Usage: bash scripts/check-gitlab-job.sh [--build-dir DIR | --prefix DIR]

Needs gitlab-ci-local (npm install -g gitlab-ci-local@4.70.1), node, git and rsync. Without
them it says so and exits 0 with nothing checked, so scripts/test.sh can always call it.

  --build-dir DIR   the built tree whose wfbuild and simulator run (default: build)
  --prefix DIR      an installed or unpacked tree instead (DIR/bin/wfbuild)
  -h, --help        this text

KEEP_WORK=1 in the environment keeps the scratch folder (/tmp/wf-gitlab-job.*) with each
job's output. Exit status: 0 passed or skipped, 1 a check failed, 2 usage error or missing build.
EOF
}

ROOT="$(cd "$(dirname "$0")/.." && pwd)"
BUILD_DIR="build"
PREFIX=""
while [ $# -gt 0 ]; do
  case "$1" in
    --build-dir) [ $# -ge 2 ] || { echo "check-gitlab-job: --build-dir needs a folder" >&2; exit 2; }; BUILD_DIR="$2"; shift 2 ;;
    --prefix) [ $# -ge 2 ] || { echo "check-gitlab-job: --prefix needs a folder" >&2; exit 2; }; PREFIX="$2"; shift 2 ;;
    -h|--help) usage; exit 0 ;;
    *) echo "check-gitlab-job: unknown argument \"$1\" (see --help)" >&2; exit 2 ;;
  esac
done
for tool in gitlab-ci-local git rsync; do
  if ! command -v "$tool" >/dev/null; then
    echo "check-gitlab-job: skipped: $tool is not installed (see --help)"
    exit 0
  fi
done
cd "$ROOT"
if [ -n "$PREFIX" ]; then
  PREFIX="$(cd "$PREFIX" && pwd)"
  BIN="$PREFIX/bin"
  CLEARTOOL="$PREFIX/lib/wrenfield/sim/cleartool"
  TREE=(--prefix "$PREFIX")
else
  [ -d "$BUILD_DIR" ] || { echo "check-gitlab-job: no build folder \"$BUILD_DIR\"" >&2; exit 2; }
  BUILD_DIR="$(cd "$BUILD_DIR" && pwd)"
  BIN="$BUILD_DIR/bin"
  CLEARTOOL="$BUILD_DIR/bin/sim/cleartool"
  TREE=(--build-dir "$BUILD_DIR")
fi

WORK="$(mktemp -d /tmp/wf-gitlab-job.XXXXXX)"
trap '[ -n "${KEEP_WORK:-}" ] || rm -rf "$WORK"' EXIT
trap 'exit 130' INT TERM
failures=0
fail() { echo "check-gitlab-job: FAIL: $*" >&2; failures=$((failures + 1)); }
pass() { echo "check-gitlab-job: ok: $*"; }

bash scripts/run-demo.sh "${TREE[@]}" --work-dir "$WORK/demo" --setup-only >"$WORK/setup.out"
export CCSIM_HOME="$WORK/demo/store"
export PATH="$BIN:$PATH"

# The repository a GitLab project would hold: the job file as shipped and the projects.
REPO="$WORK/repo"
mkdir -p "$REPO/build"
cp examples/ci/gitlab-ci.yml "$REPO/.gitlab-ci.yml"
cp examples/release.wfp "$REPO/build/release.wfp"
# A VOB that does not exist: valid, but the run fails in the middle.
sed 's|value="/vobs/main"|value="/vobs/broken"|' examples/release.wfp >"$REPO/build/broken.wfp"
git -C "$REPO" init -q
git -C "$REPO" add -A
git -C "$REPO" -c user.name=check -c user.email=check@localhost commit -qm "build projects"

REPORT="$REPO/.gitlab-ci-local/artifacts/wfbuild/wfbuild-job/wfbuild.xml"

# Runs the job on one project as pipeline number iid (the release labels carry it); its exit
# status, its output in $WORK/<name>.out.
job() {
  local name="$1" project="$2" iid="$3"
  (cd "$REPO" && gitlab-ci-local --variable "WF_PROJECT=$project" --variable "CC_VIEW=$WORK/demo/views/release_dev" \
    --variable "CLEARTOOL=$CLEARTOOL" --variable "CI_PIPELINE_IID=$iid" wfbuild) >"$WORK/$name.out" 2>&1
}

if job passing build/release.wfp 42 && [ -f "$REPORT" ] && ! grep -q '<failure\|<error' "$REPORT"; then
  pass "the release project passes and its report is clean"
else
  tail -n 30 "$WORK/passing.out" >&2
  fail "the release project's job"
fi
passed_report=$(cat "$REPORT" 2>/dev/null || true)

if job failing build/broken.wfp 43; then
  fail "the job on a broken VOB passed"
  tail -n 30 "$WORK/failing.out" >&2
elif [ ! -f "$REPORT" ] || [ "$(cat "$REPORT")" = "$passed_report" ]; then
  fail "the failing job exported no report of its own"
elif ! grep -q '<failure' "$REPORT" || ! grep -q 'classname="broken\.' "$REPORT"; then
  fail "the failing job's report names no failed action of broken.wfp"
else
  pass "the job on a broken VOB fails and exports its own report ($(grep -o 'failures="[0-9]*"' "$REPORT" | head -n 1))"
fi

if job unreadable build/missing.wfp 44; then
  fail "the job on a missing project passed"
elif [ -f "$REPORT" ]; then
  fail "the job on a missing project exported a report of an earlier run"
else
  pass "the job on a missing project fails and exports no earlier report"
fi

if [ "$failures" -ne 0 ]; then
  echo "check-gitlab-job: $failures check(s) failed" >&2
  exit 1
fi
echo "check-gitlab-job: all checks passed"
