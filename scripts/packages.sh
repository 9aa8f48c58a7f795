# What the scripts need of Debian, in one place. Sourced by ./run and ./test.

packages_to_build=(
  g++ cmake ninja-build ccache
  # The windows, the adapters and the command line.
  qt6-base-dev qt6-svg-dev qt6-serialport-dev
  # Closing windows of other programs by their title.
  libxcb1-dev
  # SQRGEN.EXE
  libzint-dev
)
packages_to_run=(
  # The toolkit draws no text at all without a font.
  fontconfig fonts-dejavu-core
)
packages_for_wayland=(
  # Where the desktop offers no X server.
  qt6-wayland
)
packages_to_test=(
  libgtest-dev libgmock-dev
  # The benches are built, so that they stay whole.
  libbenchmark-dev
  # Reads the symbols of SQRGEN.EXE back.
  libzxing-dev
)

# install_missing PACKAGE...: installs those that are not there, and says so. Does nothing when all are.
install_missing() {
  local package missing=()
  if ! command -v dpkg-query >/dev/null; then
    echo "This is not Debian: nothing is installed. Needed are what Debian calls: $*" >&2
    return 0
  fi
  for package in "$@"; do
    [[ $(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null) == installed ]] || missing+=("$package")
  done
  ((${#missing[@]})) || return 0

  local as_root=()
  if ((EUID)); then
    if ! command -v sudo >/dev/null; then
      echo "These packages are missing. As root: apt-get install --no-install-recommends ${missing[*]}" >&2
      return 1
    fi
    as_root=(sudo)
  fi
  echo "Installing from Debian's packages: ${missing[*]}"
  local apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq
    -o DPkg::Lock::Timeout=300 -o Dpkg::Use-Pty=0)
  if ! "${apt[@]}" update || ! "${apt[@]}" install -y --no-install-recommends "${missing[@]}" >/dev/null; then
    echo "The packages could not be installed. See the lines above." >&2
    return 1
  fi
}
