#!/usr/bin/env bash
# Installs what is missing, builds the program and opens it on the given folders,
# by default on samples/, in a throw-away profile: the catalogue of whoever runs
# this is never touched. Without a display the window opens on a virtual one and
# a picture of it is saved.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/lib-setup.sh"

folders=()
for folder in "$@"; do
    [ -d "$folder" ] || { echo "run.sh: no such folder: $folder" >&2; exit 2; }
    folders+=("$(cd "$folder" && pwd)")
done
[ ${#folders[@]} -gt 0 ] || folders=("$root/samples")

install_missing "${build_packages[@]}"
build release hoopline-organizer hoopline-cli

demo=$root/build/demo
rm -rf "$demo"
mkdir -p "$demo"/{config,data,cache}
export XDG_CONFIG_HOME=$demo/config XDG_DATA_HOME=$demo/data XDG_CACHE_HOME=$demo/cache

# Instances find each other through the folder of temporary files; one of its own keeps
# the demo apart from an organiser that is already open. Short, as it names a socket.
TMPDIR=$(mktemp -d /tmp/hoopline-demo.XXXXXX)
export TMPDIR
trap 'rm -rf "$TMPDIR"' EXIT

bin=$root/build/release/bin

"$bin/hoopline-cli" scan "${folders[@]}"

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    "$bin/hoopline-organizer"
    exit
fi

echo "There is no display: the window opens on a virtual one."
install_missing xvfb x11-utils imagemagick openbox fonts-dejavu-core
"$root/scripts/run-headless.sh" "$bin/hoopline-organizer" "$demo/screenshot.png"
