# shellcheck shell=bash
# Sourced by the scripts: gets the packages and the build directory ready.
# Does nothing, and needs no network, when they are.

root=$(cd -- "$(dirname -- "${BASH_SOURCE[0]}")/.." && pwd -P)

declare -A packages_for=(
    # A build without libcups2-dev knows no print servers, one without libedit-dev
    # no line editing.
    [build]="g++ cmake ninja-build libcups2-dev libedit-dev"
    # libgl-dev because Qt's own CMake package asks for it; the fonts because
    # an offscreen window would show no text without any.
    [window]="qt6-base-dev libgl-dev fonts-dejavu-core fonts-liberation"
    # From xvfb on, what the window is read with from outside; that test is skipped without.
    [tests]="libgtest-dev xvfb dbus-daemon at-spi2-core"
    # What is measured beside the project; those rows are left out without.
    [benchmarks]="libqcustomplot-dev libboost-dev"
    # For CI only, as this starts a print server on the machine; the tests that
    # need one are skipped without.
    [server]="cups-daemon"
    # Another version formats differently and finds other things.
    [lint]="clang-format-14 clang-tidy-14"
    # Of the version that the preset names.
    [fuzz]="clang-14 libclang-rt-14-dev"
)

is_installed() {
    [[ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" == installed ]]
}

# require_packages purpose...: installs what is missing, for those purposes.
require_packages() {
    local purpose package missing=() as_root=()
    for purpose in "$@"; do
        for package in ${packages_for[$purpose]}; do
            is_installed "$package" || missing+=("$package")
        done
    done
    if [[ ${#missing[@]} == 0 ]]; then
        return
    fi

    if ! command -v apt-get >/dev/null; then
        echo "No apt-get here. Please install what Debian calls: ${missing[*]}" >&2
        exit 1
    fi
    if [[ $EUID != 0 ]]; then
        if ! command -v sudo >/dev/null; then
            echo "Neither root nor sudo. Please have installed: ${missing[*]}" >&2
            exit 1
        fi
        as_root=(sudo)
    fi
    echo "Installing: ${missing[*]}" >&2
    # The lock may be held for a while by a fresh machine's own first upgrade.
    local apt=(apt-get -q -y -o DPkg::Lock::Timeout=300 -o Acquire::Retries=3)
    "${as_root[@]}" "${apt[@]}" update >&2
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        "${apt[@]}" install --no-install-recommends "${missing[@]}" >&2
}

# is_configured programs|tests
is_configured() {
    local directory=$root/build/release
    # Changes of a CMakeLists.txt are ninja's to notice, those of the presets
    # are not. And a copy of the project cannot use the original's directory.
    [[ "$directory/build.ninja" -nt "$root/CMakePresets.json" ]] &&
        grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$directory/CMakeCache.txt" || return
    [[ $1 == programs ]] || grep -qx 'ORVO_TESTS:BOOL=ON' "$directory/CMakeCache.txt"
}

# configure_release programs|tests: for the programs alone, a machine without
# the test packages will do.
configure_release() {
    local options=()
    if is_configured "$1"; then
        return
    fi
    if [[ $1 == programs ]]; then
        options=(-D ORVO_TESTS=OFF -D ORVO_BENCHMARKS=OFF)
    fi
    cmake -S "$root" --fresh --preset release "${options[@]}" >&2
}
