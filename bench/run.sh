#!/usr/bin/env bash
# Builds in release mode and runs every benchmark; the results go to docs/performance.md.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
BUILD_DIR="${BUILD_DIR:-build-release}"
cmake -S . -B "$BUILD_DIR" -G Ninja -DCMAKE_BUILD_TYPE=Release -DWF_BUILD_TESTS=OFF > /dev/null
cmake --build "$BUILD_DIR" -j "$(nproc)"
python3 bench/run_benchmarks.py --build "$BUILD_DIR" "$@"
