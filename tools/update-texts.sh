#!/usr/bin/env bash
# update-texts.sh [FOLDER]: brings the message files in FOLDER (default: dialog/i18n) up to date with
# the texts in dialog/'s code. New texts enter unfinished, those that are gone leave. English has
# plural forms only. Needs lupdate (package qt6-l10n-tools).
#
# Status: 0 done, 1 lupdate failed, 2 there is no lupdate.
set -euo pipefail

find_lupdate() {
    local candidate
    for candidate in lupdate6 lupdate-qt6 /usr/lib/qt6/bin/lupdate lupdate; do
        command -v "$candidate" && return
    done
    echo "update-texts.sh: no lupdate; tools/install-packages.sh build installs it" >&2
    return 2
}

main() {
    local lupdate project folder
    local -a options=(-silent -locations none -no-obsolete -source-language en)
    lupdate=$(find_lupdate)
    project=$(cd "$(dirname "$0")/.." && pwd)
    folder=$(cd "${1:-$project/dialog/i18n}" && pwd)
    cd "$project"
    options+=(-I . -recursive dialog)
    "$lupdate" "${options[@]}" -pluralonly -ts "$folder/korvane-print_en.ts"
    "$lupdate" "${options[@]}" -ts "$folder"/korvane-print_{de,es,fr,it,ja,pt,zh_CN}.ts
}

main "$@"
