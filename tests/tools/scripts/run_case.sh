#!/usr/bin/env bash
# run_case.sh FILE CASE: runs one test function of a file in an empty folder, with the helpers below.
# A test fails when any of its commands fails.
set -euo pipefail

project=$(cd "$(dirname "$0")/../../.." && pwd)
export project

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

# run COMMAND...: keeps its $status and its $output, both channels together.
run() {
    status=0
    output=$("$@" 2>&1 </dev/null) || status=$?
}

expect_status() {
    ((status == $1)) || fail "status $status instead of $1, with this output: $output"
}

# expect_output TEXT: the output contains it.
expect_output() {
    [[ $output == *"$1"* ]] || fail "'$1' is not in this output: $output"
}

expect_silence() {
    [[ -z $output ]] || fail "unexpected output: $output"
}

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"

# shellcheck source=/dev/null
source "$1"
"$2"
