# Sourced by ./run and ./test: installs what is missing on a Debian machine and builds the release
# preset.

packages=(
  build-essential cmake ninja-build pkg-config
  qt6-base-dev libgl-dev liberfa-dev libcfitsio-dev libsquish-dev
  libgtest-dev libgmock-dev libbenchmark-dev strace
  fonts-ipafont-gothic
)

install_missing_packages() {
  command -v dpkg-query >/dev/null || return 0
  local missing=() package as_root=()
  for package in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' ||
      missing+=("$package")
  done
  ((${#missing[@]})) || return 0
  ((EUID == 0)) || as_root=(sudo)
  echo "Installing: ${missing[*]}"
  "${as_root[@]}" apt-get update
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y --no-install-recommends "${missing[@]}"
}

build_release() {
  install_missing_packages
  cmake --preset release
  cmake --build --preset release
}
