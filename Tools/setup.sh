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
    [window]="qt6-base-dev qt6-serialport-dev libgl-dev fonts-dejavu-core fonts-liberation"
    # From xvfb on, what the window is read with from outside; that test is skipped without.
    [tests]="libgtest-dev pkg-config xvfb dbus-daemon at-spi2-core"
    # Where the display is Wayland's.
    [wayland]="qt6-wayland"
    # What is measured beside the project; those rows are left out without.
    [benchmarks]="libqcustomplot-dev libboost-dev"
    # For CI only, as this starts a print server on the machine; the tests that
    # need one are skipped without.
    [server]="cups-daemon"
    # For the plugin, and the test of a form; both are left out without.
    [designer]="qt6-tools-dev"
    # For CI only: what checks the programs' desktop entries, icons, manual pages and completions,
    # and the packages; those tests are skipped without.
    [packages]="desktop-file-utils appstream libqt6svg6-dev man-db bash-completion dpkg-dev fakeroot lintian"
    # For CI only: the API pages.
    [docs]="doxygen qt6-documentation-tools"
    # Another version formats differently and finds other things.
    [lint]="clang-format-14 clang-tidy-14"
    # Of the version that the preset names.
    [fuzz]="clang-14 libclang-rt-14-dev"
)

is_installed() {
    [[ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" == installed ]]
}

# What to install, where it can't be done here.
hint=""

# quietly WHAT COMMAND...: says in a line what is done. What the command prints goes to a log file,
# of which a failure shows the end.
quietly() {
    local log=$root/build/setup.log what=$1
    shift
    mkdir -p "$root/build"
    echo "$what" >&2
    local before
    touch "$log"
    before=$(wc -l <"$log")
    printf '\n=== %s: %s\n' "$what" "$*" >>"$log"
    if ! "$@" >>"$log" 2>&1; then
        tail -n "+$((before + 1))" "$log" | tail -n 60 >&2
        echo "That failed. All of it: $log" >&2
        [[ -z "$hint" ]] || printf '%s\n' "$hint" >&2
        return 1
    fi
}

# How this user becomes root, if at all.
as_root=()
can_be_root() {
    [[ $EUID != 0 ]] || return 0
    as_root=(sudo)
    command -v sudo >/dev/null && { sudo -n true 2>/dev/null || [[ -t 0 ]]; }
}

# require_packages purpose...: installs what is missing, for those purposes. Where that can't be,
# what there is may do; if it doesn't, what failed is followed by the hint.
require_packages() {
    local purpose package missing=()
    for purpose in "$@"; do
        for package in ${packages_for[$purpose]}; do
            is_installed "$package" || missing+=("$package")
        done
    done
    if [[ ${#missing[@]} == 0 ]]; then
        return
    fi

    # The lock may be held for a while by a fresh machine's own first upgrade.
    local apt=(apt-get -q -y -o DPkg::Lock::Timeout=300 -o Acquire::Retries=3)
    local install=(install --no-install-recommends --no-upgrade "${missing[@]}")
    if ! command -v apt-get >/dev/null; then
        hint="Perhaps something isn't installed, of what Debian calls: ${missing[*]}"
    elif ! can_be_root; then
        hint="As root: apt-get update && apt-get ${install[*]}"
    else
        quietly "Looking for packages" "${as_root[@]}" "${apt[@]}" update
        quietly "Installing: ${missing[*]}" \
            "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive "${apt[@]}" "${install[@]}"
    fi
}

# is_configured console|manager|tests
is_configured() {
    local directory=$root/build/release
    # Changes of a CMakeLists.txt are ninja's to notice, those of the presets
    # are not. And a copy of the project cannot use the original's directory.
    [[ "$directory/build.ninja" -nt "$root/CMakePresets.json" ]] &&
        grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$root" "$directory/CMakeCache.txt" || return
    [[ $1 == console ]] || grep -qx 'ORVO_WINDOW:BOOL=ON' "$directory/CMakeCache.txt" || return
    [[ $1 != tests ]] || grep -qx 'ORVO_TESTS:BOOL=ON' "$directory/CMakeCache.txt"
}

# configure_release console|manager|tests: for less, a machine with fewer packages will do.
configure_release() {
    local options=()
    if is_configured "$1"; then
        return
    fi
    [[ $1 == tests ]] || options+=(-D ORVO_TESTS=OFF -D ORVO_BENCHMARKS=OFF)
    [[ $1 != console ]] || options+=(-D ORVO_WINDOW=OFF)
    quietly "Configuring" cmake -S "$root" --fresh --preset release "${options[@]}"
}
