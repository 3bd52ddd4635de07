#!/usr/bin/env bash
# test_scripts.sh CHECKOUT
# What the scripts answer in a computer that lacks something: a copy of them is run with
# only the programs that every system has, and an apt-get that fails as real ones do.
set -euo pipefail
checkout=$1
work=$TMPDIR/"Tüte (1)"
failures=0

mkdir -p "$work"/{scripts,fuzz,tools,bin}
cp "$checkout"/scripts/*.sh "$work/scripts"
cp "$checkout"/fuzz/*.sh "$work/fuzz"
cp "$checkout"/tools/*.sh "$work/tools"
for program in bash env dirname basename sed grep cut tee mkdir rm id; do
    ln -s "$(command -v $program)" "$work/bin"
done

# program NAME LINE...: puts a program of these lines into the search path.
program() {
    local name=$1
    shift
    printf '%s\n' '#!/usr/bin/env bash' "$@" >"$work/bin/$name"
    chmod +x "$work/bin/$name"
}

# expect STATUS PATTERN SCRIPT [ARGUMENT...]: the last line of one or two must match.
expect() {
    local expected=$1 pattern=$2 status=0 said
    shift 2
    said=$(PATH=$work/bin "$work/$1" "${@:2}" 2>&1 </dev/null) || status=$?
    # shellcheck disable=SC2053 # a pattern is wanted
    if [ "$status" -ne "$expected" ] || [[ ${said##*$'\n'} != $pattern ]] ||
        [ "$(wc -l <<<"$said")" -gt 2 ]; then
        printf '%s: status %s, expected %s and %s:\n%s\n' "$*" "$status" "$expected" "$pattern" "$said"
        failures=$((failures + 1))
    fi
}

for script in "$work"/{scripts,fuzz,tools}/*.sh; do
    [ "${script##*/}" != lib-setup.sh ] || continue
    said=$("$script" --help </dev/null) || { echo "$script --help: $?"; failures=$((failures + 1)); }
    [[ $said == "${script##*/}"* ]] || { echo "$script --help: $said"; failures=$((failures + 1)); }
done

expect 2 '*unknown option --frech*' scripts/run.sh --frech
expect 2 '*no such folder: /nowhere' scripts/run.sh /nowhere
expect 2 '*is a file; give the folder*' scripts/run.sh "$work/scripts/run.sh"
expect 1 '*there is no apt-get here*' scripts/run.sh
expect 1 '*cmake is not installed*' scripts/run.sh --no-install
expect 1 '*cmake is not installed*' scripts/test.sh --no-install
expect 2 '*a picture are wanted*' scripts/run-headless.sh program
expect 2 '*no such program: nothing*' scripts/run-headless.sh nothing picture.png

program dpkg-query 'exit 1'
program apt-get 'exit 100'
program id 'echo 1000'
expect 1 '*needs root or sudo*apt-get install*g++*' scripts/run.sh
program sudo 'exit 1'
expect 1 '*sudo does not let you install*' scripts/run.sh
program id 'echo 0'
program apt-get 'echo "E: Could not resolve the host"; echo "E: and another line"; exit 100'
expect 1 '*is the computer online?*' scripts/run.sh
program apt-get 'echo "E: Unable to locate package lowdown"; exit 100'
expect 1 '*could not be installed: Unable to locate package lowdown*' scripts/run.sh

exit $((failures > 0))
