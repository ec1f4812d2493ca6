# Shared by the scripts: where things are, and what has to be installed first. Sourced, not run.
# shellcheck shell=bash disable=SC2034

set -euo pipefail
ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

say() { printf '== %s\n' "$*"; }
fail() {
    printf '%s\n' "$*" >&2
    exit 1
}

# as_root COMMAND...: runs it as root, directly or through sudo.
as_root() {
    if [ "$(id -u)" = 0 ]; then
        "$@"
    elif command -v sudo >/dev/null; then
        sudo "$@"
    else
        fail "This needs root or sudo: $*"
    fi
}

# need_packages PKG...: installs the Debian packages that are missing, saying so.
need_packages() {
    local missing=() package
    for package in "$@"; do
        [[ $(dpkg-query -W -f '${Status}' "$package" 2>/dev/null) = *"ok installed" ]] || missing+=("$package")
    done
    [ ${#missing[@]} = 0 ] && return
    say "installing: ${missing[*]}"
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300 update
    as_root env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300 \
        install -y --no-install-recommends "${missing[@]}" >/dev/null
}

# Debian's CMake package of libzip wants the library's three tools beside it.
BUILD_PACKAGES=(g++ cmake ninja-build ccache pkg-config qtbase5-dev libqt5svg5-dev qttools5-dev-tools
    libjsoncpp-dev libgoogle-glog-dev libzip-dev zipcmp zipmerge ziptool libcpp-httplib-dev
    libglib2.0-dev libxcb1-dev libxcb-composite0-dev libxcb-screensaver0-dev libxcb-shape0-dev libxcb-randr0-dev libxcb-res0-dev)
TEST_PACKAGES=(git python3 libgtest-dev libgmock-dev libbenchmark-dev libx11-dev libxext-dev libxtst-dev libice-dev libsm-dev)
DESKTOP_PACKAGES=(xvfb openbox gsettings-desktop-schemas fonts-noto-core fonts-noto-cjk)
# What packaging/windows-libraries.cmake takes licences and translations from, and what makes the packages.
LICENCE_PACKAGES=(libqt5core5a libqt5svg5 qttranslations5-l10n libjsoncpp25 libgoogle-glog0v6 libzip4 zlib1g
    gcc-mingw-w64-x86-64-posix-runtime mingw-w64-x86-64-dev)
WINDOWS_PACKAGE_PACKAGES=(cmake ninja-build ccache python3 nsis wixl msitools "${LICENCE_PACKAGES[@]}")
WINDOWS_PACKAGE_TEST_PACKAGES=(icoutils openssl osslsigncode unzip)
LINUX_PACKAGE_PACKAGES=(dpkg-dev procps python3)

# build PRESET [TARGET...]: configures and builds a preset, both cores busy.
build() {
    local preset=$1 log="$ROOT/build/$1.configure.log"
    shift
    mkdir -p "$ROOT/build"
    if ! (cd "$ROOT" && cmake --preset "$preset" >"$log" 2>&1); then
        cat "$log" >&2
        fail "configuring $preset failed"
    fi
    cmake --build "$ROOT/build/$preset" ${1:+--target "$@"}
}
