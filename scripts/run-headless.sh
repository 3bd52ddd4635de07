#!/usr/bin/env bash
# run-headless.sh PROGRAM PICTURE [ARGUMENT...]
# Opens the program on a virtual display, waits until its window has stopped
# changing, which is when the previews are painted, and saves a picture of it.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/lib-setup.sh"

case ${1:-} in --help | -h) usage; exit ;; esac
[ $# -ge 2 ] || fail "a program and the name of a picture are wanted; --help tells more." 2
program=$1 picture=$2
command -v "$program" >/dev/null || fail "no such program: $program" 2
for tool in Xvfb openbox xprop xwininfo import; do
    command -v $tool >/dev/null || fail "$tool is not installed."
done

work=$(mktemp -d)
pids=()
cleanup() {
    [ ${#pids[@]} -eq 0 ] || kill "${pids[@]}" 2>/dev/null || true
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT

# The server picks a free display number by itself and tells it.
Xvfb -displayfd 3 -screen 0 1280x800x24 -dpi 96 -nolisten tcp 3>"$work/display" 2>/dev/null &
pids+=($!)
for _ in $(seq 100); do [ -s "$work/display" ] && break; sleep 0.1; done
[ -s "$work/display" ] || { echo "The virtual display did not start." >&2; exit 1; }
DISPLAY=:$(cat "$work/display")
export DISPLAY
export QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY

openbox >/dev/null 2>&1 &
pids+=($!)
"$program" "${@:3}" 2>"$work/log" &
pids+=($!)
app=$!

# find_window: the id of the main window, once the window manager has it on the
# screen; the splash screen is smaller and doesn't count.
find_window() {
    local id width
    for id in $(xprop -root _NET_CLIENT_LIST 2>/dev/null | grep -o '0x[0-9a-f]*' || true); do
        width=$(xwininfo -id "$id" 2>/dev/null | awk '/Width:/ { print $2 }' || true)
        [ "${width:-0}" -lt 900 ] || { echo "$id"; return; }
    done
}

shot() { import -window "$1" png:"$2" 2>/dev/null; }

window='' previous='' same=0
for _ in $(seq 240); do
    kill -0 "$app" 2>/dev/null || { cat "$work/log" >&2; echo "The program ended." >&2; exit 1; }
    [ -n "$window" ] || window=$(find_window || true)
    if [ -n "$window" ] && shot "$window" "$work/now.png"; then
        now=$(identify -quiet -format '%#' "$work/now.png")
        if [ "$now" = "$previous" ]; then same=$((same + 1)); else same=0; fi
        previous=$now
        [ "$same" -ge 6 ] && break
    fi
    sleep 0.25
done
[ -n "$window" ] || { cat "$work/log" >&2; echo "No window came up." >&2; exit 1; }

mkdir -p "$(dirname "$picture")"
mv "$work/now.png" "$picture"
echo "A picture of the window: $picture"
