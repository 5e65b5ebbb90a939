#!/usr/bin/env bash
# The designer's smoke run under a virtual X server: opens examples/release.wfp, runs it against
# a fresh cleartool simulator store (every action must succeed) and writes the screenshots the
# docs show into docs/designer/.
set -euo pipefail
cd "$(dirname "$0")/.."
BUILD_DIR="${1:-build}"
if [ ! -d "$BUILD_DIR" ]; then
  echo "designer-screenshots: no build folder \"$BUILD_DIR\" (bash scripts/test.sh makes one)" >&2
  exit 2
fi
cmake --build "$BUILD_DIR" --target wf_designer_screenshots
exec xvfb-run -a -s "-screen 0 1280x900x24" "$BUILD_DIR/tests/bin/wf_designer_screenshots" docs/designer
