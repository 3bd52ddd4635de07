#!/usr/bin/env bash
# run.sh [SECONDS [TARGET...]]
# Builds the fuzz targets and runs each for a number of seconds on its seeds.
# By default 5 seconds and all targets. A target is a format, for its reader, or "query",
# for the search language.
#
# What a run learns stays in build/fuzz/corpus, so that the next one goes on from
# there. A crash ends with status 1; its input lies in build/fuzz/crashes and
# belongs into tests/data/damaged, or into the table of tst_query, once the fault is mended.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/../scripts/lib-setup.sh"

case ${1:-} in --help | -h) usage; exit ;; esac
seconds="${1:-5}"
shift || true
targets=("$@")
[ "${#targets[@]}" -gt 0 ] || targets=(pes pec dst xxx exp sew jef hus query)

cd "$root"
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target fuzz_targets

run_target() {
    local target="$1" work="$root/build/fuzz"
    local log="$work/logs/$target.log"
    mkdir -p "$work/corpus/$target" "$work/crashes" "$work/logs"
    if "$work/bin/fuzz_$target" -max_total_time="$2" -timeout=30 -rss_limit_mb=1024 \
        -max_len=65536 -print_final_stats=1 -artifact_prefix="$work/crashes/$target-" \
        "$work/corpus/$target" "$root/fuzz/seeds/$target" >"$log" 2>&1; then
        echo "fuzz $target: $(sed -n 's/^stat::number_of_executed_units: *//p' "$log") runs, no crash"
    else
        echo "fuzz $target: FAILED" >&2
        tail -n 60 "$log" >&2
        return 1
    fi
}
export -f run_target
export root

# The status of xargs is that of the worst target.
# shellcheck disable=SC2016 # the shell that xargs starts fills in its arguments
printf '%s\n' "${targets[@]}" |
    xargs -P "$(nproc)" -I TARGET bash -c 'run_target "$1" "$2"' _ TARGET "$seconds"
