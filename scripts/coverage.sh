#!/usr/bin/env bash
# Builds everything with gcc coverage, runs every test and reports line and branch coverage of
# the product folders (host/, clearcase/, simulator/), one row per folder. Branches that only
# throw or that the compiler proves unreachable are left out, so the figure tracks our decisions.
# --report-only reports the counts of the last run again without building or testing.
set -euo pipefail
cd "$(dirname "$0")/.."
BUILD_DIR="${BUILD_DIR:-build-coverage}"
status=0
if [ "${1:-}" != "--report-only" ]; then
  bash scripts/setup.sh
  if ! command -v gcovr >/dev/null; then
    SUDO=""
    if [ "$(id -u)" -ne 0 ]; then SUDO="sudo"; fi
    $SUDO apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends gcovr
  fi
  LAUNCHER=()
  if command -v ccache >/dev/null; then
    LAUNCHER=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
  fi
  cmake -S . -B "$BUILD_DIR" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DWF_BUILD_BENCH=OFF \
    -DCMAKE_CXX_FLAGS="--coverage -O0" -DCMAKE_EXE_LINKER_FLAGS=--coverage \
    -DCMAKE_SHARED_LINKER_FLAGS=--coverage -DCMAKE_MODULE_LINKER_FLAGS=--coverage "${LAUNCHER[@]}"
  cmake --build "$BUILD_DIR" -j "$(nproc)"
  find "$BUILD_DIR" -name '*.gcda' -delete
  # A failing test still leaves its counts; the exit status says so after the figures.
  ctest --test-dir "$BUILD_DIR" -j "$(nproc)" --output-on-failure >"$BUILD_DIR/coverage-ctest.log" || status=$?
  grep -E "tests passed|tests failed" "$BUILD_DIR/coverage-ctest.log" || true
fi
# The layers' public headers are staged below the build folder; they count for their folder.
gcovr --root . --object-directory "$BUILD_DIR" -j "$(nproc)" \
  --filter 'host/' --filter 'clearcase/' --filter 'simulator/' \
  --exclude-throw-branches --exclude-unreachable-branches \
  --json-summary "$BUILD_DIR/coverage.json" --html-details "$BUILD_DIR/coverage.html" 2>"$BUILD_DIR/gcovr.log" >/dev/null
python3 - "$BUILD_DIR" <<'PY'
import json, sys
build = sys.argv[1].rstrip("/") + "/"
files = json.load(open(build + "coverage.json"))["files"]
rows = {}
for f in files:
    name = f["filename"]
    if name.startswith(build):
        parts = name[len(build):].split("/")
        if "include" in parts:
            at = parts.index("include")
            del parts[at:at + 2]
        name = "/".join(parts)
    parts = name.split("/")
    if parts[0] not in ("host", "clearcase", "simulator"):
        continue
    keys = [parts[0] + "/"]
    if parts[0] != "simulator" and len(parts) > 2:
        keys.append(parts[0] + "/" + parts[1] + "/")
    for key in keys:
        r = rows.setdefault(key, [0, 0, 0, 0])
        r[0] += f["line_covered"]; r[1] += f["line_total"]
        r[2] += f["branch_covered"]; r[3] += f["branch_total"]
pct = lambda a, b: 100.0 * a / b if b else 100.0
print("| folder | lines | line % | branches | branch % |")
print("|---|---:|---:|---:|---:|")
for key in sorted(rows):
    c, t, bc, bt = rows[key]
    name = f"**{key}**" if key.count("/") == 1 else key
    print(f"| {name} | {t} | {pct(c, t):.1f} | {bt} | {pct(bc, bt):.1f} |")
PY
echo "coverage: details in $BUILD_DIR/coverage.html"
exit "$status"
