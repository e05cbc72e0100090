# Shared by run, test and .ci/run: packages, configuring, building. Sourced from the project's root.
set -euo pipefail

BUILD_PACKAGES="g++ cmake ninja-build pkg-config qt6-base-dev qt6-tools-dev qt6-tools-dev-tools
  qt6-l10n-tools libplist-dev libusb-1.0-0-dev libavahi-client-dev libbsd-dev libcsv-dev
  nlohmann-json3-dev libqt6svg6
  qt6-translations-l10n fonts-dejavu-core"
TEST_PACKAGES="libgtest-dev libumockdev-dev umockdev avahi-daemon dbus-daemon iproute2 fonts-wqy-microhei"

# The root of the project is the current folder from here on.
cd "$(dirname "${BASH_SOURCE[0]}")/.."

say() { printf '%s\n' "== $*"; }

# Installs the Debian packages of the list that are missing.
need_packages() {
  local missing=() package
  for package in "$@"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'install ok installed' ||
      missing+=("$package")
  done
  [ ${#missing[@]} -eq 0 ] && return
  local root=()
  [ "$(id -u)" -eq 0 ] || root=(sudo)
  say "installing: ${missing[*]}"
  "${root[@]}" apt-get update -qq
  "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
    "${missing[@]}" >/dev/null
}

# Runs a command quietly; shows what it printed only when it fails.
quietly() {
  local log
  log=$(mktemp)
  if ! "$@" >"$log" 2>&1; then
    cat "$log"
    rm -f "$log"
    return 1
  fi
  rm -f "$log"
}

# build PRESET [TARGET ...]: configures the preset when needed and builds it (everything, or the targets).
build() {
  local preset=$1
  shift
  [ -f "build/$preset/build.ninja" ] || quietly cmake --preset "$preset"
  say "building ($preset)"
  if [ $# -eq 0 ]; then
    quietly cmake --build --preset "$preset"
  else
    quietly cmake --build --preset "$preset" --target "$@"
  fi
}
