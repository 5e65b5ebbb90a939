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

# CMake refuses a cache made in another folder (a copied or moved build folder) with a raw
# error; say what to do instead.
if [ -f "$BUILD_DIR/CMakeCache.txt" ]; then
  made_in=$(sed -n 's/^CMAKE_CACHEFILE_DIR:INTERNAL=//p' "$BUILD_DIR/CMakeCache.txt")
  sources=$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$BUILD_DIR/CMakeCache.txt")
  here=$(cd "$BUILD_DIR" && pwd)
  if [ "$made_in" != "$here" ] && [ "$made_in" != "$(cd "$BUILD_DIR" && pwd -P)" ]; then
    echo "package: the build folder $here was configured as $made_in (it was copied or moved)," >&2
    echo "package: and CMake cannot reuse it. Build in $made_in, or remove $here (or pass" >&2
    echo "package: --build-dir with a new folder) and run this again to configure afresh." >&2
    exit 2
  fi
  if [ "$sources" != "$PWD" ] && [ "$sources" != "$(pwd -P)" ]; then
    echo "package: the build folder $here belongs to the sources in $sources, not to $PWD;" >&2
    echo "package: pass --build-dir with a new folder to build these sources." >&2
    exit 2
  fi
fi

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

# CPack gives a package with a library one folder below /usr/lib maintainer scripts that only
# run ldconfig. Ours are private, found through each program's RUNPATH: the scripts go.
for deb in "$OUTPUT"/*.deb; do
  [ -e "$deb" ] || continue
  tree="$OUTPUT/unpacked"
  rm -rf "$tree"
  dpkg-deb -R "$deb" "$tree"
  dropped=0
  for script in postinst postrm; do
    file="$tree/DEBIAN/$script"
    [ -f "$file" ] || continue
    if grep -q ldconfig "$file" \
        && ! grep -qvE '^(#!/bin/sh|set -e|if \[ "\$1" = "(configure|remove)" \]; then|[[:space:]]*ldconfig|fi|[[:space:]]*)$' "$file"; then
      rm "$file"
      dropped=1
    fi
  done
  if [ "$dropped" -eq 1 ]; then
    dpkg-deb --root-owner-group --build "$tree" "$deb" >/dev/null
  fi
  rm -rf "$tree"
done
found=0
for deb in "$OUTPUT"/*.deb; do
  [ -e "$deb" ] || continue
  echo "$deb"
  found=1
done
[ "$found" -eq 1 ] || { echo "package: cpack made no package" >&2; exit 1; }
