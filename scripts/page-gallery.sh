#!/usr/bin/env bash
# Renders every property page and editor into docs/pages/ under a virtual X server, and a few
# pages also at 1.25x the font (-font125.png) and in an enlarged dialog (-enlarged.png).
# Usage: scripts/page-gallery.sh [BUILD_DIR]   (default: build)
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build}
gallery="$build/tests/bin/wf_page_gallery"
if [ ! -x "$gallery" ]; then
  echo "page-gallery: $gallery not built (cmake --build $build --target wf_page_gallery)" >&2
  exit 2
fi
if ! command -v xvfb-run >/dev/null; then
  echo "page-gallery: xvfb-run missing (bash scripts/setup.sh installs it)" >&2
  exit 2
fi
rm -f docs/pages/*.png
xvfb-run -a -s "-screen 0 1280x1024x24" "$gallery" docs/pages
