#!/usr/bin/env bash
# Installs what is missing, configures, builds and runs every test, then makes the Debian
# packages and checks them unpacked, away from the build tree.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/setup.sh
BUILD_DIR="${BUILD_DIR:-build}"
EXTRA=()
if [ "${CI:-}" = "true" ]; then
  EXTRA+=(-DWF_WARNINGS_AS_ERRORS=ON)
fi
cmake -S . -B "$BUILD_DIR" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo "${EXTRA[@]}"
cmake --build "$BUILD_DIR" -j "$(nproc)"
ctest --test-dir "$BUILD_DIR" --output-on-failure -j "$(nproc)"
# Every table names its rows: a test name is neither a row number nor a parameter's bytes.
if ctest --test-dir "$BUILD_DIR" -N | grep -E "GetParam\(\) =|Test +#[0-9]+: .*/[0-9]+$"; then
  echo "test.sh: the tests above are not named after their rows; give the table a name generator" >&2
  exit 1
fi
# Every table's row type has a printer: a failing row is shown by its name, not its bytes.
python3 scripts/row-printers.py
bash scripts/package.sh --build-dir "$BUILD_DIR"
bash scripts/check-package.sh --build-dir "$BUILD_DIR"
# The GitLab example job, where gitlab-ci-local is installed (it says so and passes where not).
bash scripts/check-gitlab-job.sh --build-dir "$BUILD_DIR"
python3 scripts/test-share.py
