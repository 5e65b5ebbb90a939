#!/usr/bin/env bash
# Builds everything with AddressSanitizer and UndefinedBehaviorSanitizer and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
BUILD_DIR="${BUILD_DIR:-build-asan}"
cmake -S . -B "$BUILD_DIR" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DWF_SANITIZE=ON -DWF_BUILD_BENCH=OFF
cmake --build "$BUILD_DIR" -j "$(nproc)"
# Qt's own allocations at exit are not ours to chase.
export ASAN_OPTIONS="detect_leaks=1:abort_on_error=1:${ASAN_OPTIONS:-}"
export LSAN_OPTIONS="suppressions=$(pwd)/scripts/lsan.supp:${LSAN_OPTIONS:-}"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1:${UBSAN_OPTIONS:-}"
ctest --test-dir "$BUILD_DIR" --output-on-failure -j "$(nproc)"
