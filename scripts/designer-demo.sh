#!/usr/bin/env bash
# Starts the designer on the demo: builds what it needs, makes a fresh simulator store with the
# demo's VOBs, views and options (scripts/run-demo.sh --setup-only), and opens a copy of
# examples/release.wfp whose VIEW variable names the demo's view. Press F9 to run it.
set -euo pipefail

usage() {
  cat <<'EOF2'
Usage: bash scripts/designer-demo.sh [--no-build] [--build-dir DIR]

  --no-build        skip building; use the tree as it is
  --build-dir DIR   the build folder (default: build)
  -h, --help        this text

The demo lives in BUILD-DIR/designer-demo, made afresh at each start.
EOF2
}

cd "$(dirname "$0")/.."
BUILD_DIR="build"
BUILD=1
while [ $# -gt 0 ]; do
  case "$1" in
    --no-build) BUILD=0; shift ;;
    --build-dir) [ $# -ge 2 ] || { echo "designer-demo: --build-dir needs a folder" >&2; exit 2; }; BUILD_DIR="$2"; shift 2 ;;
    -h|--help) usage; exit 0 ;;
    *) echo "designer-demo: unknown argument \"$1\" (see --help)" >&2; exit 2 ;;
  esac
done

if [ "$BUILD" -eq 1 ]; then
  bash scripts/setup.sh
  cmake -S . -B "$BUILD_DIR" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
  cmake --build "$BUILD_DIR" -j "$(nproc)" --target wfdesigner wfbuild WF30ClearCase WFBasicActions ccsim_cleartool
fi
BUILD_DIR="$(cd "$BUILD_DIR" && pwd)"
WORK_DIR="$BUILD_DIR/designer-demo"
bash scripts/run-demo.sh --build-dir "$BUILD_DIR" --work-dir "$WORK_DIR" --setup-only >/dev/null

PROJECT="$WORK_DIR/release.wfp"
sed -e "s|<variable name=\"VIEW\" type=\"string\" value=\"\"/>|<variable name=\"VIEW\" type=\"string\" value=\"$WORK_DIR/views/release_dev\"/>|" \
  examples/release.wfp >"$PROJECT"
export CCSIM_HOME="$WORK_DIR/store"
echo "designer-demo: opening $PROJECT (simulator store $CCSIM_HOME)"
cd "$WORK_DIR"
exec "$BUILD_DIR/bin/wfdesigner" "$PROJECT" --config-dir "$WORK_DIR/config"
