#!/usr/bin/env bash
# with-window-manager.sh PROGRAM [ARGUMENT...]
# Runs a program on a virtual display of its own that has a window manager, for what
# shows only where windows get and lose the keyboard for real. Ends with 77 when there
# is no such display to be had.
set -euo pipefail
for tool in Xvfb openbox xdotool; do
    command -v "$tool" >/dev/null || { echo "Skipped: there is no $tool." >&2; exit 77; }
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
Xvfb -displayfd 3 -screen 0 1280x900x24 -dpi 96 -nolisten tcp 3>"$work/display" 2>/dev/null &
pids+=($!)
for _ in $(seq 100); do [ -s "$work/display" ] && break; sleep 0.1; done
[ -s "$work/display" ] || { echo "Skipped: the virtual display did not start." >&2; exit 77; }
DISPLAY=:$(cat "$work/display")
export DISPLAY
export QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY

# It is ready when it has taken the root window.
openbox --startup "touch $work/ready" >/dev/null 2>&1 &
pids+=($!)
for _ in $(seq 100); do [ -e "$work/ready" ] && break; sleep 0.1; done
"$@"
