#!/usr/bin/env bash
# Builds the libFuzzer targets with clang and runs each for a bounded time.
#   scripts/fuzz.sh [SECONDS_PER_TARGET] [TARGET...]
# New crashes land in tests/fuzz/regressions/<target>/, where the ordinary test run replays them.
# Everything the targets link is instrumented (cmake/Fuzz.cmake). The fuzzers run one at a time
# at the lowest priority, so a shared machine stays usable.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
SECONDS_PER_TARGET="${1:-60}"
shift || true
TARGETS=("$@")
if [ ${#TARGETS[@]} -eq 0 ]; then
  TARGETS=(split_command_line expression project_reader storage_strings)
fi
BUILD_DIR="${BUILD_DIR:-build-fuzz}"
CC=clang CXX=clang++ cmake -S . -B "$BUILD_DIR" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
  -DWF_FUZZ=ON -DWF_BUILD_BENCH=OFF > /dev/null
cmake --build "$BUILD_DIR" --target $(printf 'fuzz_%s ' "${TARGETS[@]}")
status=0
for target in "${TARGETS[@]}"; do
  work="$BUILD_DIR/fuzz-work/$target"
  mkdir -p "$work" "tests/fuzz/regressions/$target"
  echo "fuzz: $target for ${SECONDS_PER_TARGET}s"
  if ! nice -n 19 "$BUILD_DIR/tests/bin/fuzz_$target" "$work" "tests/fuzz/corpus/$target" \
      -max_total_time="$SECONDS_PER_TARGET" -max_len=4096 -timeout=10 \
      -artifact_prefix="tests/fuzz/regressions/$target/" -print_final_stats=1 2> "$work.log"; then
    echo "fuzz: $target found a problem; input kept in tests/fuzz/regressions/$target/ (log: $work.log)"
    status=1
  else
    # Coverage reached: "cov" counts edges, "ft" features (edges with hit counts and
    # comparisons), out of the counters of every instrumented module loaded.
    counters=$(sed -n 's/^INFO: Loaded [0-9]* modules *(\([0-9]*\) inline 8-bit counters).*/\1/p' "$work.log" | head -n 1)
    grep -E '^#[0-9]+[[:space:]]+DONE' "$work.log" | tail -n 1 \
      | sed -E "s/^#([0-9]+)[[:space:]]+DONE[[:space:]]+cov: ([0-9]+) ft: ([0-9]+).*/fuzz: $target: \1 runs, cov \2 of ${counters:-?} edges, ft \3/" || true
  fi
done
exit $status
