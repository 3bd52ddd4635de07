#!/usr/bin/env bash
# screenshots.sh [OPTION...] OUTDIR [NAME...]
# screenshots.sh --list [NAME...]
# Drives the program under a virtual display over samples/, sees each time that it shows
# what it should, and saves a picture of every window and state in OUTDIR. The README's
# and the manual's pictures come from here. It uses profiles of its own; nothing of
# whoever runs this is touched.
#
# A NAME such as main-filled or '*-de' stands for the pictures that are wanted; they are
# all taken when none is given. The status is 1 when a picture could not be taken, and
# failed-NAME.png shows the screen then.
#
#   --manual            those of docs/images, as small as they can be
#   --look LOOK         light, dark, de, zh-CN, at-1.25, at-1.5 or at-2 alone
#   --programs FOLDER   programs that are built, with http://127.0.0.1:18765 as base URL
#   --list              only tell the names
#   --no-install        install no packages; what is needed is there
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/lib-setup.sh"

options=() programs='' list='' arguments=()
while [ $# -gt 0 ]; do
    case $1 in
    --help | -h) usage; exit ;;
    --manual) options+=(--manual) ;;
    --look) options+=(--look "${2:?a look is wanted}"); shift ;;
    --programs) programs=$(realpath "${2:?a folder is wanted}"); shift ;;
    --list) list=1 ;;
    --no-install) no_install=1 ;;
    -*) fail "unknown option $1; --help tells those there are." 2 ;;
    *) arguments+=("$1") ;;
    esac
    shift
done
if [ -n "$list" ]; then
    exec python3 -B "$root/scripts/screenshots" --list "${options[@]}" . . . "${arguments[@]}"
fi
[ ${#arguments[@]} -gt 0 ] || fail "the folder for the pictures is wanted; --help tells more." 2

# perform STAGE: with mounts that nobody else sees and that end with it. The pictures tell
# of somebody called Anna; what lies below /home stays in reach below STAGE.
perform() {
    mount -t tmpfs none "$1"
    mkdir "$1"/{checkout,programs,out}
    mkdir -m 700 "$1/tmp"
    mount --bind "$root" "$1/checkout"
    mount --bind "$programs" "$1/programs"
    mount --bind "${arguments[0]}" "$1/out"
    mount -t tmpfs none /home
    mkdir /home/anna
    gather_designs /home/anna/Designs
    TMPDIR=$1/tmp exec python3 -B "$1/checkout/scripts/screenshots" "${options[@]}" "$1/programs" \
        /home/anna "$1/out" "${arguments[@]:1}"
}
if [ -n "${pictures_stage:-}" ]; then
    perform "$pictures_stage"
fi

install_missing "${build_packages[@]}" xvfb xdotool x11-utils imagemagick openbox \
    fonts-dejavu-core fonts-noto-core fonts-noto-cjk dbus dosfstools fusefat optipng pngquant python3
if [ -z "$programs" ]; then
    programs=$root/build/pictures/bin
    cmake -S "$root" -B "$root/build/pictures" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DHOOPLINE_TESTS=OFF -DHOOPLINE_BASE_URL=http://127.0.0.1:18765 >/dev/null
    cmake --build "$root/build/pictures" --target hoopline-organizer hoopline-cli demo-notes \
        feedback-form drive-service
fi
mkdir -p "${arguments[0]}"

# Short, as sockets are named below it. Out here it stays empty, and rmdir takes nothing else.
stage=$(mktemp -d /tmp/hoopline-shots.XXXXXX)
trap 'rmdir "$stage"' EXIT
unshare=(unshare --mount --propagation private)
[ "$(id -u)" -eq 0 ] || unshare+=(--map-root-user)
pictures_stage=$stage "${unshare[@]}" "$0" "${options[@]}" --no-install --programs "$programs" \
    "${arguments[@]}"
