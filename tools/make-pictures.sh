#!/usr/bin/env bash
# make-pictures.sh [BUILD]: plays docs/scenarios/*.scenario and writes their pictures into docs/pictures/.
set -euo pipefail
cd "$(dirname "$0")/.."

build=${1:-build/dev}
mkdir -p docs/pictures
for scenario in docs/scenarios/*.scenario; do
    tools/replay.sh "$build" "$scenario" driver/demo/sample.pdf --pictures docs/pictures
done
ls docs/pictures/*.png
