#!/usr/bin/env bash
# run.sh [--fresh] [--no-install] [FOLDER...]
# Installs what is missing, builds the program and opens it on the folders, by default
# on a small collection of samples. It ends when the window is closed.
#
# Your own catalogue is never touched: the program runs in a profile of its own in
# build/demo, which keeps folders, tags and notes from one run to the next. What they
# say stays there; the designs themselves are only read.
#
#   --fresh        begin with an empty profile
#   --no-install   install no packages; what is needed is there
#
# Without a display the window opens on a virtual one and a picture of it is saved.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/lib-setup.sh"

fresh='' folders=()
for argument in "$@"; do
    case $argument in
    --help | -h) usage; exit ;;
    --fresh) fresh=1 ;;
    --no-install) no_install=1 ;;
    -*) fail "unknown option $argument; --help tells those there are." 2 ;;
    *)
        [ -e "$argument" ] || fail "no such folder: $argument" 2
        [ -d "$argument" ] || fail "$argument is a file; give the folder that it lies in." 2
        folders+=("$(cd "$argument" && pwd)") || fail "$argument cannot be opened." 2
        ;;
    esac
done

install_missing "${build_packages[@]}"
build release hoopline-organizer hoopline-cli demo-notes

demo=$root/build/demo
exec {lock}>"$demo.lock"
flock --nonblock $lock || fail "the demo is open already; close its window first."
[ -z "$fresh" ] || rm -rf "$demo"
mkdir -p "$demo"/{config,data,cache}
export XDG_CONFIG_HOME=$demo/config XDG_DATA_HOME=$demo/data XDG_CACHE_HOME=$demo/cache

# Instances find each other through the folder of temporary files; one of its own keeps
# the demo apart from an organizer that is already open. Short, as it names a socket.
TMPDIR=$(mktemp -d /tmp/hoopline-demo.XXXXXX)
export TMPDIR
trap 'rm -rf "$TMPDIR"' EXIT

bin=$root/build/release/bin
catalogue="$XDG_DATA_HOME/hoopline.example/Hoopline Organizer/hoopline-organizer.xml"

# Without a folder of the user's: a collection as somebody uses it, with one design selected.
notes='' shown=()
if [ ${#folders[@]} -eq 0 ] && [ ! -e "$catalogue" ]; then
    gather_designs "$demo/Designs"
    folders=("$demo/Designs")
    shown=("$demo"/Designs/Animals/butterfly.*)
    notes=1
fi

"$bin/hoopline-cli" scan "${folders[@]}" {lock}>&- ||
    echo "The scan did not do all it should; the window shows what there is." >&2
[ -z "$notes" ] || "$bin/demo-notes" "$catalogue"
echo "The demo's profile, with its folders, tags and notes, is $demo"
echo "The next run finds it again; scripts/run.sh --fresh begins anew."

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    echo "Close the window to come back."
    "$bin/hoopline-organizer" "${shown[@]}" {lock}>&-
    exit
fi

echo "There is no display: the window opens on a virtual one."
install_missing xvfb x11-utils imagemagick openbox fonts-dejavu-core
"$root/scripts/run-headless.sh" "$bin/hoopline-organizer" "$demo/screenshot.png" \
    "${shown[@]}" {lock}>&-
