#!/usr/bin/env bash
# bench.sh [--quick] [--write FILE] [PART...]
# Measures what docs/performance.md tells of, and prints it as that file's tables.
#   import    the import and the rescan of a made-up collection, and the search for
#             duplicates, beside the plain pipeline, md5sum and find
#   file      reading and writing a catalogue file, beside plain readers and writers
#   window    what a user waits for in the window, and how it grows with the catalogue
#   growth    the import of 1,000, 10,000 and 100,000 files; only when it is named, since it
#             takes a quarter of an hour and 15 GB of the temporary folder
#
# Runs the first three parts, or those that are named, with a build for release. --quick
# takes smaller collections and ends in two minutes once that is built. --write also puts
# the tables into that file, each in place of the one with its title. What it makes goes to
# a temporary folder and is removed. A step that fails ends it. Nothing else should run
# meanwhile.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/lib-setup.sh"

case ${1:-} in
-h | --help)
    sed -n '2,/^set /{s/^# \{0,1\}//;/^set /!p}' "${BASH_SOURCE[0]}"
    exit 0
    ;;
esac

install_missing "${build_packages[@]}" python3 findutils coreutils
build bench make-collection plain-pipeline import-collection catalogue-file window-actions hoopline-cli >&2
exec python3 "$root/bench/measure.py" "$root/build/bench/bin" "$@"
