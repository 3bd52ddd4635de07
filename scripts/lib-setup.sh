# Shared by the scripts beside it; sourced, not run.
# shellcheck shell=bash

# The folder of the checkout, whatever the caller's working folder.
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

# The last two are what cpack calls upon.
# shellcheck disable=SC2034 # for those who source this
build_packages=(
    g++ cmake ninja-build ccache pkg-config
    qtbase5-dev libqt5sql5-sqlite libqt5svg5-dev qttools5-dev qttools5-dev-tools
    qttranslations5-l10n libdeflate-dev lowdown file dpkg-dev)

# What is needed besides to build against Qt 6.
# shellcheck disable=SC2034 # for those who source this
qt6_packages=(
    qt6-base-dev libqt6sql6-sqlite libqt6svg6-dev libqt6core5compat6-dev
    qt6-tools-dev qt6-translations-l10n)

# A home that holds no compiler cache yet gets none from here: it lies in the build folder.
if [ -z "${CCACHE_DIR:-}" ] && [ ! -d "${XDG_CACHE_HOME:-${HOME:-/}/.cache}/ccache" ] &&
    [ ! -d "${HOME:-/}/.ccache" ]; then
    export CCACHE_DIR=$root/build/ccache
fi

# usage: the comment at the head of the script that was started.
usage() { sed -n '2,/^[^#]/{s/^# \{0,1\}//;t print;d;:print;p}' "$0"; }

# fail SENTENCE [STATUS]
fail() {
    echo "$(basename "$0"): $1" >&2
    exit "${2:-1}"
}

# Whether packages are installed; --no-install sets it.
no_install=

# install_missing PACKAGE...
# Installs those Debian packages that are not there, and nothing when all are.
install_missing() {
    [ -z "$no_install" ] || return 0
    local missing=() package sudo=()
    if ! command -v apt-get >/dev/null; then
        fail "there is no apt-get here to install what is needed; have your system's packages for \
$* and use --no-install."
    fi
    for package in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null)" = installed ] ||
            missing+=("$package")
    done
    [ ${#missing[@]} -gt 0 ] || return 0
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null ||
            fail "installing needs root or sudo; let somebody who may run: apt-get install \
--no-install-recommends ${missing[*]}"
        sudo=(sudo)
        # Asks for the password here, where nothing hides the question.
        sudo -v || fail "sudo does not let you install: ${missing[*]}"
    fi
    echo "Installing ${missing[*]}"
    make_build_folder
    local log=$root/build/install.log
    # Lists that could not be fetched are no failure: those from before may do.
    { "${sudo[@]}" apt-get update 2>&1 || true; } | tee "$log" | show_progress
    "${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends \
        "${missing[@]}" 2>&1 </dev/null | tee -a "$log" | show_progress ||
        fail "$(why_not_installed "$log") All that apt-get said is in $log"
}

# show_progress: tells where apt-get is: on one line of a terminal, or now and then in a log.
show_progress() {
    local line count=0
    while IFS= read -r line; do
        case $line in Get:* | Unpacking* | "Setting up"*) ;; *) continue ;; esac
        count=$((count + 1))
        if [ -t 1 ]; then
            printf '\r\033[K    %.70s' "$line"
        elif [ $((count % 50)) -eq 0 ]; then
            printf '    %s\n' "$line"
        fi
    done
    [ ! -t 1 ] || printf '\r\033[K'
}

# why_not_installed LOG: one sentence.
why_not_installed() {
    if grep -qE 'Temporary failure|Could not resolve|Could not connect|Cannot initiate|unreachable' "$1"
    then
        echo "the packages could not be fetched: the package server is out of reach; is the computer online?"
    else
        echo "the packages could not be installed: $(grep -m1 '^E: ' "$1" | cut -c4-)"
    fi
}

make_build_folder() {
    mkdir -p "$root/build" 2>/dev/null || true
    [ -w "$root/build" ] || fail "nothing can be written into $root/build"
}

# gather_designs FOLDER: one file of each sample, the formats taking turns, as a collection looks.
gather_designs() {
    local formats=(pes jef hus pes xxx pes dst) i=0 path file format
    for path in "$root"/samples/*/*.dst; do
        format=${formats[i++ % ${#formats[@]}]}
        file=${path%.dst}.$format
        [ -f "$file" ] || file=$path
        mkdir -p "$1/$(basename "$(dirname "$path")")"
        cp "$file" "$1/$(basename "$(dirname "$path")")/"
    done
}

# build PRESET [TARGET...]
build() {
    local preset=$1 tool log
    shift
    for tool in cmake ninja c++; do
        command -v $tool >/dev/null ||
            fail "$tool is not installed; without --no-install it is seen to."
    done
    make_build_folder
    log=$root/build/configure-$preset.log
    echo "Building in $root/build/$preset; the first time takes some minutes."
    (cd "$root" && cmake --preset "$preset") >"$log" 2>&1 || {
        sed -n '/^CMake Error/,/^$/p' "$log" >&2
        fail "the build could not be set up; all that cmake said is in $log"
    }
    cmake --build "$root/build/$preset" ${1:+--target "$@"} || fail "the program could not be built."
}
