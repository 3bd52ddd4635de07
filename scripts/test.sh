#!/usr/bin/env bash
# test.sh [--no-install] [--qt6] [ARGUMENT...]
# Installs what is missing, builds the project for development and runs every test.
# Arguments go to ctest, for instance: scripts/test.sh -R tst_dstreader
#
#   --no-install   install no packages; what is needed is there
#   --qt6          build against Qt 6 instead of Qt 5
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/lib-setup.sh"

preset=dev
while true; do
    case ${1:-} in
    --help | -h) usage; exit ;;
    --no-install) no_install=1; shift ;;
    --qt6) preset=dev-qt6; build_packages+=("${qt6_packages[@]}"); shift ;;
    *) break ;;
    esac
done

# The last thirteen are what the tests themselves call upon: a FAT file system for the
# transfer, also where the kernel has none, certificates, the validators of the
# desktop files, and a virtual display with a window manager and real keys, and what a
# screen reader looks through.
install_missing "${build_packages[@]}" \
    dbus dosfstools fusefat openssl desktop-file-utils appstream shared-mime-info \
    xvfb openbox xdotool at-spi2-core gir1.2-atspi-2.0 python3-gi

build $preset

# The fuzz targets need clang and its runtime; where these are not at hand the
# readers' tests still run over the regression files that fuzzing found. They are built
# against Qt 5 alone.
if [ $preset != dev ]; then
    echo "The fuzz targets are left out: they are run without --qt6."
elif command -v clang++ >/dev/null &&
    echo 'extern "C" int LLVMFuzzerTestOneInput(const unsigned char *, unsigned long) { return 0; }' |
    clang++ -x c++ -fsanitize=fuzzer -o /dev/null - 2>/dev/null; then
    "$root/fuzz/run.sh" 5
else
    echo "The fuzz targets are left out: clang or its fuzzer runtime is missing."
fi

cd "$root/build/$preset"
exec ctest --output-on-failure --parallel "$(nproc)" "$@"
