#!/usr/bin/env bash
# mutate.sh [--only NAME]... [--test TEST]... [--list] [--check] [--jobs N] [--no-install]
# Asks the tests whether they catch: puts the faults of tools/mutate/faults into a copy of
# the sources, one at a time, builds the tests that concern it and runs them.
#
#   --only NAME    this fault; a pattern such as 'csv-*' is good too
#   --test TEST    the faults that this test has to catch
#   --list         tells the faults and does nothing
#   --check        tells which of them no longer fit the sources; takes a second
#   --jobs N       how much is done at the same time
#   --no-install   install no packages; what is needed is there
#
# The checkout isn't touched: the copy and its build lie in build/mutate, and are kept for
# the next time. What a build or a test said is in build/mutate/logs. The status is 1 when
# a fault survives, no longer applies or doesn't build, or a test fails without any fault.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/lib-setup.sh"

arguments=() packages=(python3 "${build_packages[@]}" dbus dosfstools fusefat openssl)
for argument in "$@"; do
    case $argument in
    --help | -h) usage; exit ;;
    --no-install) no_install=1 ;;
    --list | --check) packages=(python3); arguments+=("$argument") ;;
    *) arguments+=("$argument") ;;
    esac
done
install_missing "${packages[@]}"
exec python3 "$root/tools/mutate/mutate.py" "${arguments[@]}"
