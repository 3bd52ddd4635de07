#!/usr/bin/env bash
# render-artwork.sh
# Draws the PNG pictures in src/resources anew from their SVG sources. Run it
# after changing a file in src/resources/artwork, and commit what it changed.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/../scripts/lib-setup.sh"

case ${1:-} in --help | -h) usage; exit ;; esac
cd "$root"

cmake --preset dev >/dev/null
cmake --build build/dev --target render-artwork
cp src/resources/artwork/application.svg \
    src/resources/hicolor/scalable/apps/hoopline-organizer.svg
cp src/resources/artwork/design-file.svg \
    src/resources/hicolor/scalable/mimetypes/application-x-embroidery.svg
QT_QPA_PLATFORM=offscreen build/dev/bin/render-artwork src/resources
