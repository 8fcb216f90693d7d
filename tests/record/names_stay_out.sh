#!/usr/bin/env bash
# names_stay_out.sh BUILD_FOLDER: a recording tells neither who made it nor what was printed, replays all the same, and
# overwrites nothing.
set -euo pipefail

build=$(cd "$1" && pwd)
source=$(cd "$(dirname "$0")/../.." && pwd)
source "$source/tests/scenarios/surroundings.sh"
surround "$build" "$(dirname "$0")"
home=$scratch/alice
mkdir "$home" "$scratch/out"
cp "$source/driver/ppd/Korvane-S300.ppd" "$home/printer.ppd"
cp "$source/driver/demo/sample.pdf" "$home/secret.pdf"
printf '%s\n' 'choose ibPrintQuality Best' 'print secret.pdf' cancel >"$home/case.scenario"

play() {
    replay "$@" 2>"$scratch/err"
}
fail() {
    echo "$1" >&2
    cat "$scratch/out/recording" "$scratch/err" >&2
    exit 1
}

play "$home/case.scenario" "$home/secret.pdf" --ppd "$home/printer.ppd" --record "$scratch/out/recording" \
    --report "$scratch/original.json" || fail "the scenario cannot be played"
grep -E 'alice|secret' "$scratch/out/recording" && fail "the recording has a name in it"
grep -qx 'printer recording.ppd' "$scratch/out/recording" || fail "the printer's file was not taken along"
rm -rf "$home"
mkdir "$home"
play "$scratch/out/recording" --report "$scratch/replayed.json" || fail "the recording cannot be played"
diff -u "$scratch/original.json" "$scratch/replayed.json"

before=$(cat "$scratch/out/recording")
status=0
play "$scratch/out/recording" --record "$scratch/out/recording" || status=$?
[[ $status == 2 ]] || fail "an existing file was taken for a recording"
grep -q 'is there already and is kept; name a new file' "$scratch/err" || fail "the refusal says nothing"
[[ $(cat "$scratch/out/recording") == "$before" ]] || fail "an existing file was changed"
