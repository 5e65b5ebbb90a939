#!/usr/bin/env bash
# Installs the Debian packages the build, the tests and the demo need. Idempotent: it runs
# apt-get (and its update) only when a package is missing.
set -euo pipefail

PACKAGES=(
  build-essential cmake ninja-build pkg-config
  qt6-base-dev qt6-base-dev-tools libgl-dev
  libsqlite3-dev sqlite3
  libgtest-dev libgmock-dev googletest libbenchmark-dev
  clang libclang-rt-14-dev
  python3 procps
  dpkg-dev file help2man lintian desktop-file-utils libxml2-utils
  xvfb xauth fonts-dejavu-core
)

missing=()
for package in "${PACKAGES[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$package")
  fi
done

if [ ${#missing[@]} -eq 0 ]; then
  exit 0
fi

echo "setup: installing ${missing[*]}"
SUDO=""
if [ "$(id -u)" -ne 0 ]; then
  SUDO="sudo"
fi
$SUDO apt-get update -qq
DEBIAN_FRONTEND=noninteractive $SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}"
