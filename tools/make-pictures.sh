#!/usr/bin/env bash
# make-pictures.sh [BUILD]: plays docs/scenarios/*.scenario and writes their pictures into docs/pictures/,
# and those of the help book into resources/help/.
set -euo pipefail
cd "$(dirname "$0")/.."

build=${1:-build/dev}
mkdir -p docs/pictures
for scenario in docs/scenarios/*.scenario; do
    tools/replay.sh "$build" "$scenario" driver/demo/sample.pdf --pictures docs/pictures
done

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# play_window SCENARIO LANGUAGE SUFFIX [OPTION...]: of the whole window; pictures get the suffix.
play_window() {
    local ppd=driver/ppd/Korvane-S300-$2.ppd picture
    [[ -e $ppd ]] || ppd=driver/ppd/Korvane-S300.ppd
    tools/replay.sh "$build" "$1" driver/demo/sample.pdf --ppd "$ppd" --language "$2" \
        --pictures "$scratch/window" "${@:4}"
    for picture in "$scratch"/window/*.png; do
        mv "$picture" "docs/pictures/$(basename "$picture" .png)-$3.png"
    done
}

for scenario in docs/scenarios/window/*.scenario; do
    for language in en de ja; do
        play_window "$scenario" "$language" "$language"
        play_window "$scenario" "$language" "$language-dark" --dark
    done
done
cmake --build "$build" --target part_pictures >/dev/null
"$build/bin/part_pictures" docs/pictures 2>/dev/null
for task in tests/scenarios/cases/task-*/case.scenario; do
    tools/replay.sh "$build" "$task" driver/demo/sample.pdf --pictures docs/pictures --job-folder "$scratch/jobs"
done

# Windows that no scenario reaches, because no test of the panels finds their conflicts, or because they
# need a cartridge.
KORVANE_PICTURES=$scratch QT_QPA_PLATFORM=offscreen "$build/bin/layout_test" \
    --gtest_filter='Looks/ConflictLayout.*' >/dev/null 2>&1
declare -rA windows=(
    [mirror]=ibMsgTwoWindow-0 [pages-per-sheet]=ibMsgTwoWindow-1
    [print-in-black]=ibMsgFiveWindow-1 [cartridge]=ibMsgFiveWindow-2
)
for language in en de ja; do
    for name in "${!windows[@]}"; do
        cp "$scratch/${windows[$name]}-$language, font x 1, light.png" \
            "docs/pictures/conflict-$name-$language.png"
    done
done

# The help book's: one picture for each setting, the Other panel, a conflict.
cmake --build "$build" --target help_pictures >/dev/null
"$build/bin/help_pictures" resources/help 2>/dev/null
for language in en de ja; do
    cp "docs/pictures/conflict-draft-$language.png" "resources/help/$language/pictures/conflicts.png"
done
cp docs/pictures/other-en.png resources/help/en/pictures/improve-output.png

ls docs/pictures/*.png resources/help/*/pictures/*.png
