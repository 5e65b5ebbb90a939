#!/usr/bin/env bash
# Builds the Debian packages (cpack -G DEB) from a build folder configured as scripts/test.sh does.
set -euo pipefail

usage() {
  cat <<'EOF'
Usage: bash scripts/package.sh [--build-dir DIR] [--output DIR]

Configures the build folder if it is not yet (as scripts/test.sh does), builds it, and makes the
Debian packages with CPack: wrenfield (wfbuild, the plug-ins, the simulator, docs and examples)
and, once the designer is built, wrenfield-designer. Prints the path of each package made.

  --build-dir DIR   the build folder (default: build, or $BUILD_DIR)
  --output DIR      where the .deb files go (default: BUILD-DIR/packages); older .deb files
                    there are removed
  -h, --help        this text

Exit status: 0 packages made, 1 the build or CPack failed, 2 usage error.
EOF
}

cd "$(dirname "$0")/.."
BUILD_DIR="${BUILD_DIR:-build}"
OUTPUT=""
while [ $# -gt 0 ]; do
  case "$1" in
    --build-dir) [ $# -ge 2 ] || { echo "package: --build-dir needs a folder" >&2; exit 2; }; BUILD_DIR="$2"; shift 2 ;;
    --output) [ $# -ge 2 ] || { echo "package: --output needs a folder" >&2; exit 2; }; OUTPUT="$2"; shift 2 ;;
    -h|--help) usage; exit 0 ;;
    *) echo "package: unknown argument \"$1\" (see --help)" >&2; exit 2 ;;
  esac
done
OUTPUT="${OUTPUT:-$BUILD_DIR/packages}"

bash scripts/setup.sh
if [ ! -f "$BUILD_DIR/CMakeCache.txt" ]; then
  EXTRA=()
  if [ "${CI:-}" = "true" ]; then
    EXTRA+=(-DWF_WARNINGS_AS_ERRORS=ON)
  fi
  cmake -S . -B "$BUILD_DIR" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo ${EXTRA[@]+"${EXTRA[@]}"} >/dev/null
else
  cmake -S . -B "$BUILD_DIR" >/dev/null
fi
cmake --build "$BUILD_DIR" -j "$(nproc)" || exit 1

# CPack leaves its staging trees in the build folder; the packages alone go to OUTPUT.
mkdir -p "$OUTPUT"
rm -f "$OUTPUT"/*.deb
OUTPUT="$(cd "$OUTPUT" && pwd)"
if ! (cd "$BUILD_DIR" && cpack -G DEB -B "$OUTPUT" >"$OUTPUT/cpack.log" 2>&1); then
  cat "$OUTPUT/cpack.log" >&2
  echo "package: cpack failed" >&2
  exit 1
fi
rm -rf "$OUTPUT/_CPack_Packages" "$OUTPUT/cpack.log"
found=0
for deb in "$OUTPUT"/*.deb; do
  [ -e "$deb" ] || continue
  echo "$deb"
  found=1
done
[ "$found" -eq 1 ] || { echo "package: cpack made no package" >&2; exit 1; }
