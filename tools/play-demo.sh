#!/usr/bin/env bash
# play-demo.sh BUILD DOCUMENT: plays the demonstration scenarios without a display and leaves in out/
# one folder each: pictures of every panel and state shown, the report, the job (ticket and document).
set -euo pipefail
cd "$(dirname "$0")/.."

build=${1:?usage: play-demo.sh BUILD DOCUMENT}
document=${2:?usage: play-demo.sh BUILD DOCUMENT}
out=out

# play FOLDER SCENARIO PPD LANGUAGE
play() {
    local folder=$out/$1 status=0
    mkdir -p "$folder"
    tools/replay.sh "$build" "driver/demo/$2.scenario" "$document" --ppd "driver/ppd/$3.ppd" \
        --language "$4" --job-folder "$folder" --report "$folder/report.json" \
        --pictures "$folder" || status=$?
    echo "$folder:"
    find "$folder" -type f | LC_ALL=C sort | sed 's/^/  /'
    return "$status"
}

rm -rf "$out"
play english demo Korvane-S300 en
play german demo Korvane-S300-de de
play japanese demo Korvane-S300-ja ja
play toner toner Korvane-T500 en
echo "play-demo.sh: pictures, reports, tickets and documents are in $PWD/$out"
