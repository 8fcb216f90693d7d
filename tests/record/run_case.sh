#!/usr/bin/env bash
# run_case.sh BUILD_FOLDER SCENARIO: plays a scenario, records what a person does in it, plays the recording, and
# compares the two reports whole. Recording the recording must give the same lines once more.
# With a third word, the recording must be that file too; UPDATE_EXPECTED=1 writes it instead.
set -euo pipefail

build=$(cd "$1" && pwd)
scenario=$2
recorded=${3:-}

source "$(dirname "$0")/../scenarios/surroundings.sh"
surround "$build" "$(dirname "$scenario")"

# A recording leaves out the name of what was printed.
document=$(sed -n 's/^document //p' "$scenario")
document=${document:+$(dirname "$scenario")/$document}

# play SCENARIO NAME [OPTION...]
play() {
    local scenario=$1 name=$2
    shift 2
    replay "$scenario" --report "$scratch/$name.json" "$@" 2>"$scratch/$name.err" || {
        cat "$scratch/$name.err"
        [[ $name == original ]] || cat "$scenario"
        return 1
    }
    of_any_run <"$scratch/$name.json" >"$scratch/$name"
}

# Where printer and driver lie is no part of a recording that stands in the project.
portable() {
    sed -E 's#^printer .*/(driver/ppd/)#printer ../../../\1#; /^root /d' "$1"
}

play "$scenario" original --record "$scratch/first.scenario"
play "$scratch/first.scenario" replayed ${document:+"$document"} --record "$scratch/second.scenario"
outcome=0
diff -u --label "original report" --label "report of the recording" \
    "$scratch/original" "$scratch/replayed" || outcome=1
diff -u --label "recording" --label "recording of the recording" \
    "$scratch/first.scenario" "$scratch/second.scenario" || outcome=1
if [[ -n $recorded && -n ${UPDATE_EXPECTED:-} ]]; then
    portable "$scratch/first.scenario" >"$recorded"
elif [[ -n $recorded ]]; then
    portable "$scratch/first.scenario" | diff -u --label "expected recording" "$recorded" - || outcome=1
    play "$recorded" kept ${document:+"$document"}
    diff -u --label "original report" --label "report of the kept recording" \
        "$scratch/original" "$scratch/kept" || outcome=1
fi
((outcome == 0)) || cat "$scratch/first.scenario"
exit "$outcome"
