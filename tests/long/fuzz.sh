#!/usr/bin/env bash
# fuzz.sh BUILD_FOLDER [SECONDS]: builds the fuzz targets and runs each for a number of executions, but for SECONDS (600)
# at most. At the end, the executions of each target stand on standard output; status 1 when any target failed, fewer
# than 200,000 executions were made in total, or something was written into the user's folders. A failing input is kept
# in BUILD_FOLDER/fuzz.
set -uo pipefail

source=$(cd "$(dirname "$0")/../.." && pwd)
mkdir -p "$1"
build=$(cd "$1" && pwd)
seconds=${2:-600}
least=200000

[[ -e $build/build.ninja ]] || (cd "$source" && cmake --preset fuzz -B "$build") || exit 1
cmake --build "$build" --target fuzz-targets || exit 1

work=$build/fuzz
mkdir -p "$work"

# corpus TARGET FILE...: seeds, each under a name of its own.
corpus() {
    local target=$1 number=0 file
    shift
    rm -rf "$work/$target/seeds"
    mkdir -p "$work/$target/seeds" "$work/$target/found"
    for file in "$@"; do
        cp "$file" "$work/$target/seeds/$((number += 1))"
    done
}

# What the dialog keeps for its user must go to the fuzzers' own folders: nothing may appear in this home.
export HOME=$work/home
unset XDG_CONFIG_HOME XDG_STATE_HOME XDG_DATA_HOME
rm -rf "$HOME"
mkdir "$HOME"

mapfile -d '' lists < <(find "$source/driver/files" "$source/resources" -name '*.plist' -print0)
corpus property-list "${lists[@]}" "$source"/tests/fuzz/seeds/*.plist
corpus log "$source"/tests/fuzz/seeds/*.log
corpus scenario "$source"/tests/scenarios/cases/*/case.scenario "$source"/tests/record/recorded/*.scenario
corpus player "$source"/tests/scenarios/cases/*/case.scenario
corpus ppd "$source"/driver/ppd/*.ppd

total=0
failed=0
report=()

# run TARGET EXECUTIONS LONGEST_INPUT
run() {
    local target=$1 executions=$2 longest=$3 log=$work/$1/log done status=0
    export ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1
    nice "$build/bin/fuzz-$target" "$work/$target/found" "$work/$target/seeds" -runs="$executions" \
        -max_total_time="$seconds" -max_len="$longest" -timeout=60 -rss_limit_mb=4096 -print_final_stats=1 \
        -artifact_prefix="$work/$target/" ${dictionary:+-dict="$dictionary"} >"$log" 2>&1 || status=$?
    done=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -1)
    total=$((total + ${done:-0}))
    report+=("$(printf '%-14s %9d executions, %d faults of libcups, status %d' "$target" "${done:-0}" \
        "$(grep -c '^FAULT OF LIBCUPS' "$log")" "$status")")
    ((status == 0)) || { failed=1; tail -40 "$log" >&2; }
}

run property-list 100000 20000
run log 100000 4000
dictionary=$source/tests/fuzz/scenario.dict
run scenario 100000 4000
run player 1500 1500
dictionary=
run ppd 1500 60000

printf '%s\n' "${report[@]}" "total          $(printf '%9d' "$total") executions"
left=$(find "$HOME" -path '*/korvane-print*' -type f)
[[ -z $left ]] || { printf 'written into the user'"'"'s folders: %s\n' $left >&2; failed=1; }
((total >= least)) || { echo "fewer than $least executions" >&2; failed=1; }
exit "$failed"
