#!/usr/bin/env bash
# Draws the PNG pictures in src/resources anew from their SVG sources. Run it
# after changing a file in src/resources/artwork, and commit what it changed.
set -euo pipefail
cd "$(dirname "$0")/.."

cmake --preset dev >/dev/null
cmake --build build/dev --target render-artwork
cp src/resources/artwork/application.svg \
    src/resources/hicolor/scalable/apps/hoopline-organizer.svg
QT_QPA_PLATFORM=offscreen build/dev/bin/render-artwork src/resources
