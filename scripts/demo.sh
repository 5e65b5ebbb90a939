#!/usr/bin/env bash
# The demo: installs what is missing, builds what it needs, then runs the release job against
# the cleartool simulator (scripts/run-demo.sh holds the job itself).
set -euo pipefail

usage() {
  cat <<'EOF'
Usage: bash scripts/demo.sh [--no-build] [--build-dir DIR] [RUN-DEMO OPTIONS...]

Installs what is missing (scripts/setup.sh), configures the build folder as scripts/test.sh
does, builds wfbuild, the two plug-ins and the cleartool simulator, then runs the demo's
release job in a fresh scratch folder (BUILD-DIR/demo).

  --no-build        skip installing and building; run the job on the tree as it is
  --build-dir DIR   the build folder (default: build)
  -h, --help        this text
Other options go to scripts/run-demo.sh (bash scripts/run-demo.sh --help).

Exit status: 0 success, 1 the build or the job failed, 2 usage error or missing build.
EOF
}

cd "$(dirname "$0")/.."
BUILD_DIR="build"
BUILD=1
PASS=()
while [ $# -gt 0 ]; do
  case "$1" in
    --no-build) BUILD=0; shift ;;
    --build-dir) [ $# -ge 2 ] || { echo "demo: --build-dir needs a folder" >&2; exit 2; }; BUILD_DIR="$2"; shift 2 ;;
    -h|--help) usage; exit 0 ;;
    *) PASS+=("$1"); shift ;;
  esac
done

if [ "$BUILD" -eq 1 ]; then
  echo "demo: checking the installed packages"
  bash scripts/setup.sh
  echo "demo: configuring $BUILD_DIR"
  # Configured exactly as scripts/test.sh does, so both share the folder without reconfiguring.
  cmake -S . -B "$BUILD_DIR" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
  echo "demo: building wfbuild, the plug-ins and the simulator"
  cmake --build "$BUILD_DIR" -j "$(nproc)" --target wfbuild WF30ClearCase WFBasicActions ccsim_cleartool || exit 1
fi

exec bash scripts/run-demo.sh --build-dir "$BUILD_DIR" ${PASS[@]+"${PASS[@]}"}
