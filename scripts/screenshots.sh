#!/usr/bin/env bash
# screenshots.sh OUTDIR [SECTION...]
# Drives the program under a virtual display over samples/ and saves a picture of
# every window and state there. The README's and the manual's pictures come from
# here. Profiles are throw-away; nothing of whoever runs this is touched.
# The sections, all when none is named: main transfer duplicates print light dark de zh-CN scales progress crash.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/lib-setup.sh"

case ${1:-} in --help | -h) usage; exit ;; esac
out=${1:?usage: screenshots.sh OUTDIR [SECTION...]}
sections=${*:2}
mkdir -p "$out"
out=$(cd "$out" && pwd)

install_missing "${build_packages[@]}" xvfb xdotool x11-utils imagemagick openbox fonts-dejavu-core \
    fonts-noto-core fonts-noto-cjk dbus dosfstools fusefat
# The machine's drive is mounted where nobody else sees it.
if [ -z "${own_mounts:-}" ]; then
    unshare=(unshare --mount)
    [ "$(id -u)" -eq 0 ] || unshare+=(--map-root-user)
    own_mounts=1 exec "${unshare[@]}" "$0" "$@"
fi
# A build of its own, whose maker's server is the one that this script runs.
feed_port=18765
cmake -S "$root" -B "$root/build/pictures" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DHOOPLINE_TESTS=OFF -DHOOPLINE_BASE_URL=http://127.0.0.1:$feed_port >/dev/null
cmake --build "$root/build/pictures" --target hoopline-organizer hoopline-cli demo-notes \
    feedback-form drive-service
bin=$root/build/pictures/bin

# Short, as sockets are named below it.
work=$(mktemp -d /tmp/hoopline-shots.XXXXXX)
app=
feed=
manager=
pids=()
scale=1
cleanup() {
    kill $app $feed $manager "${pids[@]}" 2>/dev/null || true
    wait 2>/dev/null || true
    rm -rf "$work"
}
trap cleanup EXIT

start_display() {
    Xvfb -displayfd 3 -screen 0 2600x1700x24 -dpi 96 -nolisten tcp 3>"$work/display" 2>/dev/null &
    pids+=($!)
    for _ in $(seq 100); do [ -s "$work/display" ] && break; sleep 0.1; done
    DISPLAY=:$(cat "$work/display")
    export DISPLAY QT_QPA_PLATFORM=xcb TMPDIR=$work
    unset WAYLAND_DISPLAY
}

# start_manager: a new window manager. One that saw its clients being killed may hang.
start_manager() {
    [ -z "$manager" ] || { kill "$manager"; wait "$manager" 2>/dev/null || true; }
    openbox >/dev/null 2>&1 &
    manager=$!
    sleep 0.5
}

# use_profile NAME: a fresh profile; the program knows nothing.
use_profile() {
    profile=$work/$1
    mkdir -p "$profile"/{config,data,cache}
    export XDG_CONFIG_HOME=$profile/config XDG_DATA_HOME=$profile/data XDG_CACHE_HOME=$profile/cache
}

# use_dark: the desktop of the profile has dark colours, which it tells as KDE does.
use_dark() {
    export XDG_CURRENT_DESKTOP=KDE KDE_FULL_SESSION=true KDE_SESSION_VERSION=5
    cat >"$XDG_CONFIG_HOME/kdeglobals" <<'COLOURS'
[Colors:Button]
BackgroundNormal=52,59,63
ForegroundNormal=227,232,233
[Colors:Selection]
BackgroundNormal=38,108,114
ForegroundNormal=255,255,255
[Colors:Tooltip]
BackgroundNormal=61,70,75
ForegroundNormal=241,244,244
[Colors:View]
BackgroundNormal=29,33,36
BackgroundAlternate=34,39,42
ForegroundNormal=227,232,233
ForegroundLink=127,200,205
ForegroundVisited=127,200,205
[Colors:Window]
BackgroundNormal=38,43,46
ForegroundNormal=227,232,233
COLOURS
}

# start_feed: the maker's server, which knows a newer version.
start_feed() {
    cat >"$work/feed.py" <<'FEED'
import http.server, sys

ITEM = b"""<rss xmlns:sparkle="https://www.hoopline.example/feed"><channel><item>
<title>Hoopline Organizer 1.2.0</title>
<sparkle:releaseNotesLink>https://www.hoopline.example/notes</sparkle:releaseNotesLink>
<enclosure url="https://www.hoopline.example/download" sparkle:version="1.2.0"/>
</item></channel></rss>"""

class Feed(http.server.BaseHTTPRequestHandler):
    def do_POST(self):
        self.send_response(200)
        self.end_headers()
        self.wfile.write(ITEM)

http.server.HTTPServer(("127.0.0.1", int(sys.argv[1])), Feed).serve_forever()
FEED
    python3 "$work/feed.py" "$feed_port" 2>/dev/null &
    feed=$!
    sleep 1
}
stop_feed() { kill "$feed"; wait "$feed" 2>/dev/null || true; }

use_light() { unset XDG_CURRENT_DESKTOP KDE_FULL_SESSION KDE_SESSION_VERSION; }

fill_profile() { "$bin/hoopline-cli" scan "$work/Designs" >/dev/null; }

# use_designs: what their owner has noted about them.
use_designs() { "$bin/demo-notes" "$XDG_DATA_HOME/hoopline.example/Hoopline Organizer/hoopline-organizer.xml"; }

# client_windows: the windows of the program that the window manager knows, oldest first.
client_windows() {
    local id
    for id in $(xprop -root _NET_CLIENT_LIST 2>/dev/null | grep -o '0x[0-9a-f]*' || true); do
        xprop -id "$id" _NET_WM_PID 2>/dev/null | grep -q " $app\$" && echo "$id"
    done
    true
}

# newest_window: the dialog that came up last.
newest_window() { client_windows | grep -vx "$window" | tail -1 || true; }

# main_window: the only window as large as that; the splash screen grows with the scale too.
main_window() {
    local id width least
    least=$(awk "BEGIN { print int(900 * $scale) }")
    for id in $(client_windows); do
        width=$(xwininfo -id "$id" 2>/dev/null | awk '/Width:/ { print $2 }' || true)
        [ "${width:-0}" -lt "$least" ] || { echo "$id"; return; }
    done
}

start() { start_program hoopline-organizer "$@"; }

# start_program NAME ARGUMENT...
start_program() {
    start_manager
    "$bin/$1" "${@:2}" 2>"$work/log" &
    app=$!
    window=
    for _ in $(seq 150); do
        window=$(main_window || true)
        [ -n "$window" ] && break
        kill -0 "$app" 2>/dev/null || { cat "$work/log" >&2; exit 1; }
        sleep 0.2
    done
    [ -n "$window" ] || {
        import -window root "$out/failed.png"
        cat "$work/log" >&2
        echo "No window came up; failed.png shows the screen." >&2
        exit 1
    }
    sleep 1.5
    focus
}

stop() {
    [ -n "$app" ] || return 0
    kill "$app" 2>/dev/null || true
    wait "$app" 2>/dev/null || true
    app=
}

focus() { xdotool windowactivate --sync "$window" 2>/dev/null || true; sleep 0.3; }
key() { xdotool key --clearmodifiers "$@"; sleep 0.4; }
type_text() { xdotool type --delay 40 "$1"; sleep 0.6; }

# point X Y, click X Y [BUTTON]: in the main window, in pixels before scaling.
point() {
    xdotool mousemove --window "$window" \
        "$(awk "BEGIN { print int($1 * $scale) }")" "$(awk "BEGIN { print int($2 * $scale) }")"
    sleep 0.3
}
click() { point "$1" "$2"; xdotool click "${3:-1}"; sleep 0.4; }
away() { xdotool mousemove 2590 1690; sleep 0.2; }

# settle: waits until the main window has stopped changing.
settle() {
    local now previous='' same=0
    for _ in $(seq 40); do
        now=$(import -window "$window" png:- | identify -format '%#' - 2>/dev/null)
        if [ "$now" = "$previous" ]; then same=$((same + 1)); else same=0; fi
        [ "$same" -ge 2 ] && return
        previous=$now
        sleep 0.25
    done
}

# shot NAME: the main window. shot_top NAME: the dialog or menu before it.
shot() { settle; import -window "$window" "$out/$1.png"; echo "$1"; }
shot_top() {
    sleep 0.6
    local id
    id=$(newest_window)
    import -window "${id:-$window}" "$out/$1.png"
    echo "$1"
}
# shot_over NAME: the main window with whatever stands before it.
shot_over() {
    sleep 0.6
    local x y w h
    read -r x y w h < <(xwininfo -id "$window" | awk '
        /Absolute upper-left X/ { x = $NF } /Absolute upper-left Y/ { y = $NF }
        /Width:/ { w = $NF } /Height:/ { h = $NF } END { print x, y, w, h }')
    import -window root -crop "${w}x${h}+$x+$y" +repage "$out/$1.png"
    echo "$1"
}

resize() { xdotool windowsize --sync "$window" "$1" "$2"; sleep 0.8; }

# Menus are walked with the arrow keys, which is the same in every language.
open_menu() {
    local i
    click 20 11
    for ((i = 0; i < $1; i++)); do key Right; done
}
open_preferences() { open_menu 0; key Up; key Up; key Return; sleep 0.8; }
open_backups() { open_menu 0; key Up; key Up; key Up; key Return; sleep 1.5; }
open_update() { open_menu 3; key Up; key Up; key Return; sleep 1.5; }
open_about() { open_menu 3; key Up; key Return; sleep 0.8; }

# design_window_shots SUFFIX: the window of the current card's design, all of it and half sewn.
design_window_shots() {
    local grid=$window
    key Return
    sleep 1
    window=$(newest_window)
    focus
    away
    shot "design-complete$1"
    click 560 706
    away
    shot "design-window$1"
    key Escape
    window=$grid
    focus
}

main_window_shots() {
    use_profile main
    start
    shot main-empty
    open_menu 0
    shot_over menu-file
    key Escape
    stop

    use_profile used
    fill_profile
    use_designs
    start "$work"/Designs/Animals/butterfly.*
    resize 1280 820
    away
    shot main-filled
    stop

    use_profile main
    fill_profile
    start
    resize 1280 820
    away
    for percent in 75 50 33; do click 142 41; away; shot "zoom-$percent"; done
    for _ in 1 2 3; do click 176 41; done
    shot zoom-100
    click 176 41; away; shot zoom-150
    click 176 41; away; shot zoom-200
    click 142 41; click 142 41
    stop

    start
    resize 1280 820
    click 620 250
    click 1101 332; type_text "animals"; key Return
    click 380 250
    click 1101 332; type_text "animals"; key Return; type_text "blue"; key Return
    away
    shot selection
    click 380 250
    key space
    shot_over preview-sheet
    key Escape
    design_window_shots ""

    xdotool keydown ctrl; click 620 250; click 860 250; xdotool keyup ctrl
    away
    shot multi-selection
    key ctrl+f
    type_text "ro"
    type_text "s"
    shot main-filtered
    key ctrl+f
    type_text "zzz"
    shot no-match
    key Escape
    stop

    start
    resize 1280 820
    search_shots ""
    stop
}

# search_shots SUFFIX: the search by fields, its help, and searches that are saved.
search_shots() {
    local search
    for search in "color:red fits:100x100" "is:duplicate" "stitches:<2000 -type:dst"; do
        key ctrl+f
        type_text "$search"
        key ctrl+shift+s
        key Return
    done
    key ctrl+f
    type_text "color:red width:<60"
    away
    shot "search$1"
    type_text " is:r"
    shot "search-mistake$1"
    key Escape Tab Tab space Down
    shot_over "search-help$1"
    key Escape
}

# plug_in_drive: the machine's drive, and a service that could eject it.
plug_in_drive() {
    mount -t tmpfs none /media
    mkdir -p /media/anna/MACHINE
    truncate -s 4G "$work/drive"
    PATH=$PATH:/usr/sbin mkfs.vfat "$work/drive" >/dev/null
    fusefat -f -o rw+ "$work/drive" /media/anna/MACHINE >/dev/null 2>&1 &
    pids+=($!)
    cat >"$work/bus.conf" <<'BUS'
<busconfig><type>system</type><listen>unix:tmpdir=/tmp</listen><policy context="default">
<allow send_destination="*"/><allow receive_sender="*"/><allow own="*"/></policy></busconfig>
BUS
    dbus-daemon --config-file="$work/bus.conf" --nofork --print-address >"$work/bus" 2>/dev/null &
    pids+=($!)
    sleep 1
    DBUS_SYSTEM_BUS_ADDRESS=$(cat "$work/bus")
    export DBUS_SYSTEM_BUS_ADDRESS
    "$bin/drive-service" &
    pids+=($!)
}

transfer_shots() {
    plug_in_drive
    use_profile transfer
    fill_profile
    start
    resize 1280 820
    click 380 250
    xdotool keydown ctrl; click 620 250; click 860 250; xdotool keyup ctrl
    click 230 41
    shot_over transfer
    key Return
    sleep 1
    away
    shot transfer-done
    click 1255 79
    cp "$root/samples/Flowers/rose.dst" "$work/Designs/Flowers/tea rose.dst"
    sleep 2
    shot changed-folder
    rm "$work/Designs/Flowers/tea rose.dst"
    stop
    umount -l /media/anna/MACHINE /media
}

# window_shots SUFFIX ARGUMENT...: what a user meets, in a new profile.
window_shots() {
    local suffix=$1
    use_profile "windows$suffix"
    "${colours:-use_light}"
    shift
    start "$@"
    away
    shot "main-empty$suffix"
    stop

    fill_profile
    start "$@"
    click 380 250
    click 845 332; type_text "blue"; key Return
    away
    shot "main$suffix"
    design_window_shots "$suffix"
    menu_shots
    search_shots "$suffix"
    key ctrl+f Escape
    click 200 560
    panel_shots
    dialog_shots
    stop
    start_feed
    start "$@"
    shot_top "update$suffix"
    key Escape
    stop
    stop_feed
    feedback_shots "$@"
}

menu_shots() {
    open_menu 0
    shot_over "menu-file$suffix"
    key Escape Escape
    open_menu 2
    key Return
    shot_over "menu-sort$suffix"
    key Escape Escape
    open_menu 3
    shot_over "menu-help$suffix"
    key Escape Escape
    click 380 250 3
    shot_over "menu-card$suffix"
    key Escape
    point 20 41
    sleep 1
    shot_over "tool-tip$suffix"
}

panel_shots() {
    click 340 81
    shot_over "file-types$suffix"
    key Escape
    click 395 115
    shot_over "sizes$suffix"
    key Escape
}

dialog_shots() {
    open_preferences
    shot_top "preferences-settings$suffix"
    key ctrl+Tab
    shot_top "preferences-privacy$suffix"
    key Escape
    open_backups
    shot_top "backups$suffix"
    key Escape
    open_about
    shot_top "about$suffix"
    key Escape
    open_update
    shot_top "update-failed$suffix"
    key Escape
    click 54 41
    shot_over "remove-folder$suffix"
    key Escape
    key ctrl+d
    click 230 41
    shot_over "nothing-selected$suffix"
    key Escape
}

feedback_shots() {
    start_program feedback-form "$@"
    local tab
    for tab in feedback question feature bug; do
        shot_top "feedback-$tab$suffix"
        key ctrl+Tab
    done
    stop
}

# A folder large enough to be looked at while it is read.
progress_shots() {
    local i
    mkdir -p "$work/Large"
    for ((i = 0; i < 400; i++)); do
        { cat "$root"/samples/Flowers/rose.dst; printf '%04d' "$i"; } >"$work/Large/rose $i.dst"
    done
    use_profile progress
    start
    click 20 41
    sleep 1
    shot_top add-folder
    type_text "$work/Large"
    key Return
    sleep 1.2
    shot_over progress
    xdotool key Escape
    sleep 1
    stop
}

# The crash form, after a real crash.
crash_shots() {
    use_profile crash
    start
    stop
    tnw_trigger_crash=true start
    open_about
    wait "$app" 2>/dev/null || true
    "$bin/hoopline-organizer" 2>"$work/log" &
    app=$!
    window=none
    sleep 3
    shot_top crash-report
    stop
}

dark_shots() {
    use_profile dark
    fill_profile
    use_dark
    start
    resize 1280 820
    click 380 250
    away
    shot main-dark
    stop
    colours=use_dark window_shots -dark
    use_light
}

# duplicates_shots SUFFIX ARGUMENT...: designs that are there more than once.
duplicates_shots() {
    local again=$work/Again
    use_profile "duplicates$1"
    ${colours:-true}
    mkdir -p "$again/Old stick"
    cp "$root"/samples/Flowers/{rose,tulip,fern}.dst "$root"/samples/Flowers/rose.jef \
        "$work"/Designs/Animals/* "$again/Old stick/"
    "$bin/hoopline-cli" scan "$work/Designs" "$again" >/dev/null
    start "${@:2}"
    resize 1280 820
    key ctrl+shift+d
    sleep 1.5
    shot_top "duplicates-content$1"
    key End
    shot_top "duplicates$1"
    key Tab Tab space
    shot_over "duplicates-question$1"
    key Escape Escape
    stop
}

# print_shots SUFFIX ARGUMENT...: what is printed, beforehand.
print_shots() {
    use_profile "print$1"
    ${colours:-true}
    fill_profile
    start "${@:2}"
    resize 1280 820
    key ctrl+p
    sleep 1.5
    shot_top "print$1"
    key Down
    sleep 1.5
    shot_top "print-work$1"
    key Escape
    stop
}

# wants SECTION: whether it was asked for.
wants() { [ -z "$sections" ] || [[ " $sections " == *" $1 "* ]]; }

start_display
gather_designs "$work/Designs"
use_light

! wants main || main_window_shots
! wants transfer || transfer_shots
! wants duplicates || duplicates_shots ""
! wants print || print_shots ""
! wants light || window_shots ""
! wants dark || dark_shots
for language in de zh-CN; do
    ! wants "$language" || window_shots "-$language" "--language=$language"
done
if wants scales; then
    for scale in 1.25 1.5 2; do
        QT_SCALE_FACTOR=$scale window_shots "-at-$scale"
    done
    scale=1
fi
! wants progress || progress_shots
! wants crash || crash_shots
