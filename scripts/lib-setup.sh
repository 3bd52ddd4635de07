# Shared by the scripts beside it; sourced, not run.
# shellcheck shell=bash

# The folder of the checkout, whatever the caller's working folder.
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# shellcheck disable=SC2034 # for those who source this
build_packages=(
    g++ cmake ninja-build ccache pkg-config
    qtbase5-dev libqt5svg5-dev qttools5-dev qttools5-dev-tools qttranslations5-l10n
    libdeflate-dev lowdown)

# A home that holds no compiler cache yet gets none from here: it lies in the build folder.
if [ -z "${CCACHE_DIR:-}" ] && [ ! -d "${XDG_CACHE_HOME:-$HOME/.cache}/ccache" ] &&
    [ ! -d "$HOME/.ccache" ]; then
    export CCACHE_DIR=$root/build/ccache
fi

# install_missing PACKAGE...
# Installs those Debian packages that are not there, and nothing when all are.
install_missing() {
    local missing=() package sudo=()
    for package in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] ||
            missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    echo "Installing ${missing[*]}"
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || {
            echo "This needs root or sudo to install: ${missing[*]}" >&2
            return 1
        }
        sudo=(sudo)
    fi
    "${sudo[@]}" apt-get update -qq
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# build PRESET [TARGET...]
build() {
    local preset=$1
    shift
    (cd "$root" && cmake --preset "$preset" >"build-$preset.log" 2>&1) || {
        cat "$root/build-$preset.log" >&2
        rm -f "$root/build-$preset.log"
        return 1
    }
    rm -f "$root/build-$preset.log"
    cmake --build "$root/build/$preset" ${1:+--target "$@"}
}
