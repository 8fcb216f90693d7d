#!/usr/bin/env bash
# written_files.sh BUILD_FOLDER: prints a job without a person and compares every file that exists afterwards
# with those that the program is meant to write: the job, the report, the pictures asked for. Nothing else.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source-path=SCRIPTDIR source=surroundings.sh
. "$here/surroundings.sh"
surround "$(cd "$1" && pwd)" "$here"

mkdir "$scratch/desk"
cp "$here/../../driver/demo/sample.pdf" "$here/../../driver/ppd/Korvane-S300.ppd" "$scratch/desk"
printf '%s\n' 'printer Korvane-S300.ppd' 'choose ibPrintQuality Best' 'click helpButton' 'picture panel' \
    'report end' 'print sample.pdf' >"$scratch/desk/case.scenario"
find "$scratch" "$root" -type f | sort >"$scratch/run/before"
(cd "$scratch/desk" && replay case.scenario --report report.json --pictures pictures 2>"$scratch/run/stderr")

# The library that finds fonts keeps a cache of its own.
find "$scratch" "$root" -type f -not -path "$scratch/run/*" -not -path "*/fontconfig/*" | sort |
    comm -13 <(grep -v "^$scratch/run/" "$scratch/run/before") - |
    sed -E "s#^$scratch/##; s#korvane-job-[0-9-]+#JOB#" >"$scratch/run/written"
diff -u --label expected --label written - "$scratch/run/written" <<'END'
data/korvane-print/jobs/JOB/document.pdf
data/korvane-print/jobs/JOB/ticket.json
desk/pictures/panel.png
desk/report.json
END
