#!/usr/bin/env bash
# Checks the Debian packages as a build agent gets them: unpacked with dpkg-deb -x into an empty
# folder and run from there while the build folder is moved away, so that nothing can reach into
# the build tree unnoticed. Then lintian, which must report no error.
set -euo pipefail

usage() {
  cat <<'EOF'
Usage: bash scripts/check-package.sh [--build-dir DIR] [--packages DIR]

  --build-dir DIR   the build folder the packages came from (default: build, or $BUILD_DIR);
                    it is renamed while the unpacked programs run, and renamed back after
  --packages DIR    where the .deb files are (default: BUILD-DIR/packages)
  -h, --help        this text

Exit status: 0 every check passed, 1 a check failed, 2 usage error or no package.
EOF
}

ROOT="$(cd "$(dirname "$0")/.." && pwd)"
export LC_ALL=C
BUILD_DIR="${BUILD_DIR:-build}"
PACKAGES=""
while [ $# -gt 0 ]; do
  case "$1" in
    --build-dir) [ $# -ge 2 ] || { echo "check-package: --build-dir needs a folder" >&2; exit 2; }; BUILD_DIR="$2"; shift 2 ;;
    --packages) [ $# -ge 2 ] || { echo "check-package: --packages needs a folder" >&2; exit 2; }; PACKAGES="$2"; shift 2 ;;
    -h|--help) usage; exit 0 ;;
    *) echo "check-package: unknown argument \"$1\" (see --help)" >&2; exit 2 ;;
  esac
done
cd "$ROOT"
for tool in dpkg-deb lintian desktop-file-validate readelf ldd; do
  command -v "$tool" >/dev/null || { echo "check-package: $tool is missing; run bash scripts/setup.sh" >&2; exit 2; }
done
[ -d "$BUILD_DIR" ] || { echo "check-package: no build folder \"$BUILD_DIR\"" >&2; exit 2; }
BUILD_DIR="$(cd "$BUILD_DIR" && pwd)"
PACKAGES="${PACKAGES:-$BUILD_DIR/packages}"
RUNTIME_DEB=$(ls "$PACKAGES"/wrenfield_*.deb 2>/dev/null | head -n 1 || true)
[ -n "$RUNTIME_DEB" ] || { echo "check-package: no wrenfield_*.deb in $PACKAGES; run bash scripts/package.sh" >&2; exit 2; }
DEBS=("$PACKAGES"/*.deb)

failures=0
fail() { echo "check-package: FAIL: $*" >&2; failures=$((failures + 1)); }
pass() { echo "check-package: ok: $*"; }

WORK="$(mktemp -d /tmp/wf-package-check.XXXXXX)"
MOVED="$BUILD_DIR.moved-away.$$"
restore() {
  if [ -e "$MOVED" ]; then
    mv "$MOVED" "$BUILD_DIR"
  fi
  rm -rf "$WORK"
}
trap restore EXIT
trap 'exit 130' INT TERM

VERSION=$(dpkg-deb -f "$RUNTIME_DEB" Version)
for deb in "${DEBS[@]}"; do
  dpkg-deb -x "$deb" "$WORK/root"
done
PREFIX="$WORK/root/usr"

# --- what each package holds: private libraries need no ldconfig, screenshots are the designer's
for deb in "${DEBS[@]}"; do
  mkdir -p "$WORK/control/${deb##*/}"
  dpkg-deb -e "$deb" "$WORK/control/${deb##*/}"
  if grep -qs ldconfig "$WORK/control/${deb##*/}"/post* "$WORK/control/${deb##*/}"/pre*; then
    fail "${deb##*/} has maintainer scripts that call ldconfig"
  fi
done
pngs=$(dpkg-deb -c "$RUNTIME_DEB" | grep -c '\.png$' || true)
if [ "$pngs" -eq 0 ]; then pass "no screenshots in ${RUNTIME_DEB##*/}"; else fail "${RUNTIME_DEB##*/} holds $pngs PNG files"; fi
if dpkg-deb -f "$RUNTIME_DEB" Recommends | grep -qw bash-completion; then
  pass "${RUNTIME_DEB##*/} recommends bash-completion"
else
  fail "${RUNTIME_DEB##*/} does not recommend bash-completion"
fi
echo "check-package: unpacked ${DEBS[*]##*/} into $WORK/root; $BUILD_DIR is moved away until the end"
mv "$BUILD_DIR" "$MOVED"
unset LD_LIBRARY_PATH
export PATH="$PREFIX/bin:/usr/bin:/bin"
export WF_CONFIG_DIR="$WORK/config"

# --- every program and library resolves its libraries inside the package or the system
while IFS= read -r -d '' file; do
  readelf -h "$file" >/dev/null 2>&1 || continue
  name="${file#"$WORK/root"}"
  out=$(ldd "$file" 2>&1 || true)
  if grep -q "not found" <<<"$out"; then
    fail "$name: $(grep 'not found' <<<"$out" | tr -s ' \t' ' ')"
  fi
  if grep -qF -e "$ROOT" -e "$BUILD_DIR" <<<"$out"; then
    fail "$name resolves a library from the checkout or the build folder"
  fi
  for path in $(readelf -d "$file" | sed -n 's/.*(\(RPATH\|RUNPATH\)).*\[\(.*\)\]/\2/p' | tr ':' ' '); do
    case "$path" in
      '$ORIGIN'*) ;;
      *) fail "$name has the run path $path, which is not relative to \$ORIGIN" ;;
    esac
  done
done < <(find "$WORK/root" -type f -print0)
pass "ldd and run paths of every ELF file"

# --- the programs, from the unpacked tree
if [ "$(wfbuild --version)" = "wfbuild $VERSION" ]; then pass "wfbuild --version"; else fail "wfbuild --version says \"$(wfbuild --version)\", the package is $VERSION"; fi
actions=$(wfbuild actions) || fail "wfbuild actions failed"
count=$(awk -F'\t' '$3 == "ClearCase"' <<<"$actions" | wc -l)
if [ "$count" -eq 24 ]; then pass "wfbuild actions lists the 24 ClearCase actions"; else fail "wfbuild actions lists $count ClearCase actions, not 24"; fi

# The designer answers --help and --version before it needs a display, as a build agent's man-db does.
if [ -x "$PREFIX/bin/wfdesigner" ]; then
  designer_version=$(env -u DISPLAY -u WAYLAND_DISPLAY QT_QPA_PLATFORM=none "$PREFIX/bin/wfdesigner" --version 2>&1) || true
  if [ "$designer_version" = "wfdesigner $VERSION" ]; then pass "wfdesigner --version without a display"; else fail "wfdesigner --version says \"$designer_version\""; fi
  page="$PREFIX/share/man/man1/wfdesigner.1.gz"
  if zcat "$page" 2>/dev/null | grep -q -- "--config-dir"; then pass "man page wfdesigner(1)"; else fail "man page $page is missing or lacks --config-dir"; fi
else
  fail "the designer package holds no wfdesigner"
fi

demo_out="$WORK/demo.out"
if bash "$ROOT/scripts/run-demo.sh" --prefix "$PREFIX" --work-dir "$WORK/demo" >"$demo_out" 2>&1; then
  for expected in "label type   REL_42 (locked)" "version.h    BuildNumber = 42" "baselines    REL_42_BL"; do
    grep -qF "$expected" "$demo_out" || fail "the release job's summary lacks \"$expected\""
  done
  cases=$(grep -c '<testcase ' "$WORK/demo/release.xml" || true)
  if [ "$cases" -gt 0 ] && ! grep -q '<failure\|<error' "$WORK/demo/release.xml"; then
    pass "the demo's release job ($cases actions, JUnit report clean)"
  else
    fail "the release job's JUnit report has $cases test cases or a failure"
  fi
else
  tail -n 20 "$demo_out" >&2
  fail "the demo's release job failed against the unpacked tree"
fi

# --- the man page documents every command
page="$PREFIX/share/man/man1/wfbuild.1.gz"
missing=$(for command in run validate resave actions options; do
  zcat "$page" 2>/dev/null | grep -qx ".SS $command" || printf '%s ' "$command"
done)
if [ -s "$page" ] && [ -z "$missing" ]; then pass "man page wfbuild(1)"; else fail "man page $page is missing or lacks: $missing"; fi

# --- bash completion, sourced from the package; rows: command line (cursor at the end) | expected
COMPLETION="$WORK/root/usr/share/bash-completion/completions/wfbuild"
mkdir -p "$WORK/files/sub"
touch "$WORK/files/a.wfp" "$WORK/files/b.txt"
while IFS='|' read -r line expected; do
  got=$(cd "$WORK/files" && bash -c '
    source "$1"
    # As bash splits the line: at blanks, and "=" as a word of its own.
    words=${2//=/ = }
    [[ $2 == *= ]] && words=${words% }
    read -r -a COMP_WORDS <<<"$words"
    [[ $words == *" " ]] && COMP_WORDS+=("")
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    _wfbuild
    printf "%s\n" "${COMPREPLY[@]}" | sort | paste -sd " " -' _ "$COMPLETION" "$line" 2>&1)
  if [ "$got" = "$expected" ]; then pass "completion of \"$line\""; else fail "completion of \"$line\": got \"$got\", expected \"$expected\""; fi
done <<'EOF'
wfbuild |--help --version actions help options plugins resave run validate
wfbuild run --j|--junit
wfbuild run --d|--dry-run
wfbuild resave --|--drop-unknown --help --no-default-plugins --output --plugin
wfbuild run |a.wfp sub
wfbuild run a.wfp |
wfbuild validate --set X=1 |a.wfp sub
wfbuild run --log |a.wfp b.txt sub
wfbuild run --log=|a.wfp b.txt sub
wfbuild run --log=x.log |a.wfp sub
wfbuild run --plugin |sub
wfbuild run --config-dir |sub
wfbuild run --timeout |
wfbuild help r|resave run
wfbuild options |set show
wfbuild options set ClearCase.Cleartool|ClearCase.CleartoolPath
wfbuild options set ClearCase.CleartoolPath |
EOF

# --- the designer's desktop entry, checked even before the designer package exists
if desktop-file-validate "$ROOT/packaging/wfdesigner.desktop"; then pass "desktop entry"; else fail "desktop entry"; fi

mv "$MOVED" "$BUILD_DIR"
echo "check-package: $BUILD_DIR is back"

# --- lintian: errors fail, everything else is shown
lintian_out="$WORK/lintian.out"
if lintian --fail-on error --display-info "${DEBS[@]}" >"$lintian_out" 2>&1; then
  pass "lintian: no error"
else
  fail "lintian reports errors"
fi
sed 's/^/  lintian: /' "$lintian_out"

if [ "$failures" -ne 0 ]; then
  echo "check-package: $failures check(s) failed" >&2
  exit 1
fi
echo "check-package: all checks passed"
