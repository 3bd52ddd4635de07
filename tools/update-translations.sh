#!/usr/bin/env bash
# update-translations.sh [FOLDER]
# Brings the translation sources into line with the texts in the program; run
# it after adding or changing a text, then translate what is marked unfinished.
# FOLDER holds the .ts files; by default src/resources/translations.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/../scripts/lib-setup.sh"

case ${1:-} in --help | -h) usage; exit ;; esac
cd "$root"

folder=${1:-src/resources/translations}
lupdate=${LUPDATE:-$(command -v lupdate || echo /usr/lib/qt5/bin/lupdate)}
frame=(src/base src/app/addons src/app/application src/app/frame src/online src/properties
    src/widgets)
product=(src/app/*.cpp src/catalogue src/cli src/drives src/preview src/ui)

# update COLLECTION SOURCE...
update() {
    local collection=$1 source language existing=()
    shift
    for source in "$@"; do
        [ ! -e "$source" ] || existing+=("$source")
    done
    for language in de zh_CN; do
        "$lupdate" -silent -I src -no-obsolete -locations none "${existing[@]}" \
            -source-language en -target-language "$language" \
            -ts "$folder/${collection}_$language.ts"
    done
    # English needs a file of its own only for the plurals.
    "$lupdate" -silent -I src -no-obsolete -locations none -pluralonly "${existing[@]}" \
        -source-language en -target-language en -ts "$folder/${collection}_en.ts"
}

update tnw "${frame[@]}"
update hoopline "${product[@]}"
