#!/usr/bin/env bash
# run_case.sh BUILD_FOLDER CASE_FOLDER: plays a case on the offscreen platform and compares report, exit
# status, messages and saved files with those expected. UPDATE_EXPECTED=1 rewrites them instead.
set -euo pipefail

build=$(cd "$1" && pwd)
case=$(cd "$2" && pwd)

source "$(dirname "$0")/surroundings.sh"
surround "$build" "$case"

# The program's own messages, without paths of this run. What Qt, the debug log and the panels' console
# write beside them is no part of the case.
messages() {
    sed -n '/^korvane-print: /p' "$1" | of_any_run
}

# What was saved: of a PDF file how many pages of which size it has, of a ticket everything but its number and time.
saves() {
    local file
    for file in "$scratch"/saves/*; do
        [[ -e $file ]] || continue
        echo "${file##*/}:"
        if [[ $file == *.pdf ]]; then
            grep -a '^/MediaBox' "$file" | tr -d '[]' | awk '{ printf "%g x %g points\n", $4, $5 }' | uniq -c
        else
            sed -E 's/"(id|time)": .*/"\1": "…",/' "$file"
        fi
    done
}

# compare ACTUAL EXPECTED: shows the difference, or makes the expected file the actual one.
compare() {
    local actual=$1 expected=$2
    if [[ -n ${UPDATE_EXPECTED:-} ]]; then
        if [[ -s $actual ]]; then cp "$actual" "$expected"; else rm -f "$expected"; fi
        return 0
    fi
    [[ -e $expected ]] || expected=/dev/null
    diff -u --label "expected ${2##*/}" --label "actual ${2##*/}" "$expected" "$actual"
}

status=0
replay "$case/case.scenario" --report "$scratch/report.json" 2>"$scratch/stderr" || status=$?
messages "$scratch/stderr" >"$scratch/message"
[[ -e $scratch/report.json ]] || : >"$scratch/report.json"
of_any_run <"$scratch/report.json" >"$scratch/report"
saves >"$scratch/saved"
((status == 0)) && : >"$scratch/status" || echo "$status" >"$scratch/status"

outcome=0
compare "$scratch/status" "$case/status" || outcome=1
compare "$scratch/message" "$case/message" || outcome=1
compare "$scratch/report" "$case/expected.json" || outcome=1
compare "$scratch/saved" "$case/saved" || outcome=1
((outcome == 0)) || sed 's/^/standard error: /' "$scratch/stderr"
exit "$outcome"
