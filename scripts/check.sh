#!/usr/bin/env bash
# check.sh [--quick] [--no-install] [CHECK...]
# Looks over the sources: what the compiler and the tests don't see.
#
#   format         the C++ sources stand as .clang-format would put them
#   floors         who includes and links what, against docs/architecture.md
#   faults         the faults that scripts/mutate.sh puts in still fit the sources
#   shell          shellcheck of every script
#   translations   every text is translated, and the manuals agree
#   desktop        the desktop entry, the metadata and the MIME types
#   tidy           clang-tidy of src/; some minutes. Other files: check.sh tidy FILE...
#
# Runs them all, or those that are named; --quick leaves out tidy. Installs what is
# missing, unless --no-install says that all is there. The status is 0 when all is well,
# 1 when something was found.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/lib-setup.sh"

# sources PATTERN...: the files of the project, new ones too, without those of a build.
sources() { git ls-files --cached --others --exclude-standard --deduplicate -- "$@" | existing; }

existing() {
    local file
    while read -r file; do [ ! -e "$file" ] || echo "$file"; done
}

needs_format() { echo clang-format; }
check_format() {
    sources '*.cpp' '*.h' | xargs -d '\n' clang-format --dry-run -Werror
}

needs_floors() { echo python3 qtbase5-dev; }
check_floors() { python3 scripts/checks/floors.py .; }

needs_faults() { echo python3; }
check_faults() { python3 tools/mutate/mutate.py --check; }

needs_shell() { echo shellcheck; }
check_shell() {
    { sources '*.sh'; sources | xargs -d '\n' grep -lE -m1 '^#!.*\b(ba|da)?sh$'; } | sort -u |
        xargs -d '\n' shellcheck
}

needs_translations() { echo cmake python3 qttools5-dev-tools; }
check_translations() {
    python3 scripts/checks/manuals.py .
    TMPDIR=$work cmake -DSOURCE="$root" -P tests/resources/check_translations.cmake
}

needs_desktop() { echo cmake desktop-file-utils appstream shared-mime-info; }
check_desktop() {
    local id=packaging/example.hoopline.Organizer
    desktop-file-validate $id.desktop
    # Older releases spell the option without its second hyphen.
    appstreamcli validate "$(appstreamcli validate --help | grep -oE -m1 -e '--no-?net')" \
        $id.metainfo.xml
    TMPDIR=$work cmake -DPROGRAM="$(command -v update-mime-database)" \
        -DSOURCE="$root/packaging/hoopline-organizer-mime.xml" -DENTRY="$root/$id.desktop" \
        -P tests/packaging/check_mime_types.cmake
}

needs_tidy() { echo "${build_packages[@]}" clang-tidy; }
check_tidy() {
    local files=("$@")
    [ ${#files[@]} -gt 0 ] || mapfile -t files < <(sources 'src/*.cpp')
    # What the build generates and the sources include.
    cmake --preset dev >/dev/null
    cmake --build build/dev --target help | grep -oE '\bhoopline[a-z_-]*_autogen\b' | sort -u |
        xargs cmake --build build/dev >/dev/null --target
    # The compiler's own warnings are the compiler's business; clang knows not all of them.
    printf '%s\n' "${files[@]}" | xargs -d '\n' -n 1 -P "$(nproc)" \
        clang-tidy --quiet -p build/dev --warnings-as-errors='*' \
        --extra-arg=-Wno-unknown-warning-option 2>/dev/null
}

# run CHECK [ARGUMENT...]: one line when all is well, else what was found.
run() {
    local check=$1 start=$SECONDS status=0
    shift
    # shellcheck disable=SC2046 # the names of packages are words
    install_missing $("needs_$check") >&2
    # A process of its own, as "set -e" would not hold in a condition.
    set +e
    (set -e; "check_$check" "$@") >"$work/$check.log" 2>&1
    status=$?
    set -e
    if [ $status -eq 0 ]; then
        printf '%-13s ok (%d s)\n' "$check" $((SECONDS - start))
    else
        printf '%-13s FAILED (%d s)\n' "$check" $((SECONDS - start))
        sed 's/^/    /' "$work/$check.log"
        failed+=("$check")
    fi
}

all=(format floors faults shell translations desktop tidy)
checks=() files=() failed=()
for argument in "$@"; do
    case $argument in
    --help | -h) usage; exit 0 ;;
    --no-install) no_install=1 ;;
    --quick) checks+=(format floors faults shell translations desktop) ;;
    format | floors | faults | shell | translations | desktop | tidy) checks+=("$argument") ;;
    *)
        if [ ! -e "$argument" ] || [ "${checks[*]}" != tidy ]; then
            usage >&2
            exit 2
        fi
        files+=("$(realpath --relative-to "$root" "$argument")")
        ;;
    esac
done
[ ${#checks[@]} -gt 0 ] || checks=("${all[@]}")

cd "$root"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
for check in "${checks[@]}"; do
    run "$check" "${files[@]}"
done
[ ${#failed[@]} -eq 0 ] || { echo "Something was found by: ${failed[*]}" >&2; exit 1; }
