#!/usr/bin/env bash
# The demo's main job, against an already built tree: a fresh cleartool simulator store with a
# VOB, a UCM project and a snapshot view, then examples/release.wfp run through wfbuild.
set -euo pipefail

usage() {
  cat <<'EOF'
Usage: bash scripts/run-demo.sh [--build-dir DIR | --prefix DIR] [--work-dir DIR] [--build-number N] [--setup-only]

Runs the release job of examples/release.wfp with wfbuild against the cleartool simulator.
Everything lives in the work folder, which is removed and made afresh at each start; your own
wfbuild configuration and ~/.ccsim are never touched.

  --build-dir DIR     the built tree (default: build)
  --prefix DIR        run an installed or unpacked tree instead (DIR/bin/wfbuild,
                      DIR/lib/wrenfield/sim/cleartool, the examples in DIR/share/doc/wrenfield);
                      needs --work-dir
  --work-dir DIR      the scratch folder (default: BUILD-DIR/demo)
  --build-number N    the build number the release job stamps (default: 42)
  --setup-only        make the store, the views and options.ini, run no project
                      (what examples/README.md starts from)
  -h, --help          this text

Exit status: 0 the job succeeded, 1 the job or the fixture failed, 2 usage or missing build.
EOF
}

ROOT="$(cd "$(dirname "$0")/.." && pwd)"
BUILD_DIR="build"
WORK_DIR=""
BUILD_NUMBER=42
SETUP_ONLY=0
PREFIX=""

while [ $# -gt 0 ]; do
  case "$1" in
    --build-dir) [ $# -ge 2 ] || { echo "run-demo: --build-dir needs a folder" >&2; exit 2; }; BUILD_DIR="$2"; shift 2 ;;
    --prefix) [ $# -ge 2 ] || { echo "run-demo: --prefix needs a folder" >&2; exit 2; }; PREFIX="$2"; shift 2 ;;
    --work-dir) [ $# -ge 2 ] || { echo "run-demo: --work-dir needs a folder" >&2; exit 2; }; WORK_DIR="$2"; shift 2 ;;
    --build-number) [ $# -ge 2 ] || { echo "run-demo: --build-number needs a number" >&2; exit 2; }; BUILD_NUMBER="$2"; shift 2 ;;
    --setup-only) SETUP_ONLY=1; shift ;;
    -h|--help) usage; exit 0 ;;
    *) echo "run-demo: unknown argument \"$1\" (see --help)" >&2; exit 2 ;;
  esac
done

case "$BUILD_NUMBER" in
  ''|*[!0-9]*) echo "run-demo: the build number must be a whole number, not \"$BUILD_NUMBER\"" >&2; exit 2 ;;
esac

cd "$ROOT"
if [ -n "$PREFIX" ]; then
  if [ ! -d "$PREFIX" ] || [ -z "$WORK_DIR" ]; then
    echo "run-demo: --prefix needs an existing folder and a --work-dir" >&2
    exit 2
  fi
  PREFIX="$(cd "$PREFIX" && pwd)"
  WFBUILD="$PREFIX/bin/wfbuild"
  CLEARTOOL="$PREFIX/lib/wrenfield/sim/cleartool"
  PLUGIN_DIR="$PREFIX/lib/wrenfield/plugins"
  EXAMPLES="$PREFIX/share/doc/wrenfield/examples"
else
  if [ ! -d "$BUILD_DIR" ]; then
    echo "run-demo: no build folder \"$BUILD_DIR\"; run bash scripts/demo.sh first" >&2
    exit 2
  fi
  BUILD_DIR="$(cd "$BUILD_DIR" && pwd)"
  WORK_DIR="${WORK_DIR:-$BUILD_DIR/demo}"
  WFBUILD="$BUILD_DIR/bin/wfbuild"
  CLEARTOOL="$BUILD_DIR/bin/sim/cleartool"
  PLUGIN_DIR="$BUILD_DIR/bin/plugins"
  EXAMPLES="$ROOT/examples"
fi
for needed in "$WFBUILD" "$CLEARTOOL" "$PLUGIN_DIR/WF30ClearCase.so" "$PLUGIN_DIR/WFBasicActions.so" "$EXAMPLES/release.wfp"; do
  if [ ! -e "$needed" ]; then
    echo "run-demo: $needed is missing; run bash scripts/demo.sh to build it" >&2
    exit 2
  fi
done

# The scratch folder is ours only if we made it: anything else there is the user's and stays.
MARKER=".wfbuild-demo"
if [ -e "$WORK_DIR" ] && [ ! -e "$WORK_DIR/$MARKER" ]; then
  echo "run-demo: $WORK_DIR exists and was not made by this script; choose another --work-dir" >&2
  exit 2
fi
rm -rf "$WORK_DIR"
mkdir -p "$WORK_DIR"
WORK_DIR="$(cd "$WORK_DIR" && pwd)"
touch "$WORK_DIR/$MARKER"

STORE="$WORK_DIR/store"
CONFIG="$WORK_DIR/config"
SETUP_VIEW="$WORK_DIR/views/setup"
VIEW="$WORK_DIR/views/release_dev"
SETUP_LOG="$WORK_DIR/setup.log"
VOB=/vobs/main
PVOB=/vobs/pvob
export CCSIM_HOME="$STORE"
mkdir -p "$STORE" "$CONFIG" "$WORK_DIR/views"
started=$SECONDS

# Runs the simulator quietly; on failure shows what it said and stops.
ct() {
  if ! "$CLEARTOOL" "$@" >>"$SETUP_LOG" 2>&1; then
    echo "run-demo: cleartool $* failed in $PWD:" >&2
    tail -n 5 "$SETUP_LOG" >&2
    exit 1
  fi
}

# The same world the end-to-end tests start from: tests/fixtures/world/world.steps.
echo "demo: making the VOBs $VOB and $PVOB, the views $SETUP_VIEW and $VIEW, and the UCM project"
if ! CLEARTOOL="$CLEARTOOL" bash "$ROOT/tests/fixtures/world/replay.sh" "$ROOT/tests/fixtures/world/world.steps" \
    WORK="$WORK_DIR" VOB_STORAGE="$STORE" CONFIG_SPEC="$WORK_DIR/setup.cs" TREE="$ROOT/tests/fixtures/world/hello" \
    SETUP_TAG=setup_v SETUP_VIEW="$SETUP_VIEW" COMP=main_comp PROJECT=release_proj STREAM=release_dev \
    VIEW_TAG=release_dev VIEW="$VIEW" ACTIVITY=prepare_release >>"$SETUP_LOG" 2>&1; then
  echo "run-demo: making the fixture failed:" >&2
  tail -n 5 "$SETUP_LOG" >&2
  exit 1
fi

# A developer carries on after the view was made: the release job's update loads the new
# version, and its check-out search finds the README still checked out.
echo "demo: a developer (alice) changes greet.c and leaves README checked out"
(
  export USER=alice
  cd "$SETUP_VIEW/vobs/main/src"
  ct checkout -nc greet.c
  printf '#include <stdio.h>\n\nvoid greet(void) { printf("hello, world\\n"); }\n' >greet.c
  ct checkin -c "Friendlier greeting" greet.c
  cd ..
  ct checkout -c "Rewording, not finished" README
)

printf '[ClearCase]\nCleartoolPath=%s\nInstallationType=Auto\n' "$CLEARTOOL" >"$CONFIG/options.ini"

RUN=("$WFBUILD" run "$EXAMPLES/release.wfp" --config-dir "$CONFIG"
     --set "VIEW=$VIEW" --set "BUILD=$BUILD_NUMBER")

if [ "$SETUP_ONLY" -eq 1 ]; then
  cat <<EOF
demo: the fixture is ready ($((SECONDS - started)) s). To run a project against it:
  export CCSIM_HOME=$STORE
  $WFBUILD run PROJECT.wfp --config-dir $CONFIG --set VIEW=$VIEW
EOF
  exit 0
fi

echo "demo: running examples/release.wfp (build $BUILD_NUMBER)"
echo "      ${RUN[*]}"
status=0
(cd "$WORK_DIR" && "${RUN[@]}" --log "$WORK_DIR/release.log" --junit "$WORK_DIR/release.xml" --print-variables) >"$WORK_DIR/release.out" || status=$?
# The console shows every action's header and output; the variables line is for the summary.
sed '$d' "$WORK_DIR/release.out"
if [ "$status" -ne 0 ]; then
  echo "demo: the release job failed (wfbuild exit status $status); its log is $WORK_DIR/release.log" >&2
  exit 1
fi

# The summary reads the simulator's state, so it shows what the job really left behind.
label_state=$("$CLEARTOOL" lstype -kind lbtype -short -invob "$VOB" | grep -E "^REL_${BUILD_NUMBER}( |$)" || echo "REL_$BUILD_NUMBER is missing")
attribute=$(cd "$VIEW/vobs/main" && "$CLEARTOOL" describe src/version.h | grep -o 'BuildNumber = .*' || echo "no BuildNumber")
baselines=$(cd "$VIEW" && "$CLEARTOOL" lsbl -short -stream "release_dev@$PVOB" | paste -sd ' ' -)
cat <<EOF

Demo finished in $((SECONDS - started)) s, fixture included.
  view         $VIEW (stream release_dev@$PVOB)
  label type   $label_state
  version.h    $attribute
  baselines    $baselines
  config spec  $WORK_DIR/release-configspec.txt
  build log    $WORK_DIR/release.log
  JUnit report $WORK_DIR/release.xml
Look around yourself:
  export CCSIM_HOME=$STORE
  cd $VIEW/vobs/main && $CLEARTOOL lshistory src/version.h
EOF
