#!/usr/bin/env bash
# make-pictures.sh [BUILD]: plays docs/scenarios/*.scenario and writes their pictures into docs/pictures/.
set -euo pipefail
cd "$(dirname "$0")/.."

build=${1:-build/dev}
jobs=$(mktemp -d)
trap 'rm -rf "$jobs"' EXIT

mkdir -p docs/pictures
for scenario in docs/scenarios/*.scenario; do
    QT_QPA_PLATFORM=offscreen "$build/bin/korvane-print" --root "$build/root" \
        --job-folder "$jobs" replay "$scenario" --pictures docs/pictures
done
ls docs/pictures/*.png
