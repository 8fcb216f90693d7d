#!/usr/bin/env bash
# check-rooms.sh [FOLDER]: proves that the rooms use each other in one direction only. Reads every
# #include of the rooms below FOLDER (default: this project) and compares it with the table below.
#
# Status: 0 the table holds, 1 some includes are forbidden (one line each), 2 there is nothing to read.
set -euo pipefail

# What a room may include beside itself, Qt and the standard library. A folder inside a room may have
# a line of its own. "cups" stands for the headers of libcups; where it is missing, the PPD's records
# arrive as handles or through the headers of model/.
declare -rA may_use=(
    [platform]=''
    [diag]='platform'
    [model]='platform diag cups'
    [conflict]='platform diag model'
    [quality]='platform diag model conflict'
    [other]='platform diag model'
    [plugin]='platform diag model conflict quality other'
    [dialog]='platform'
    [dialog/printers]='platform cups'
)

# The longest line of the table that the file lies in.
room_of() {
    local folder=${1%/*}
    while [[ -z ${may_use[$folder]+set} ]]; do
        folder=${folder%/*}
    done
    echo "$folder"
}

# target_of FILE INCLUDED: the room (or "cups") that an include reaches, "own" for the file's own
# folder, "outside" for a path that no room has, nothing for system headers.
target_of() {
    local file=$1 form=${2:0:1} path=${2:1}
    local first=${path%%/*}
    if [[ /$path/ == */../* ]]; then
        echo outside
    elif [[ $path == cups/* ]]; then
        echo cups
    elif [[ $form == '"' && ($path != */* || -e ${file%/*}/$path) ]]; then
        echo own
    elif [[ $path == */* && -n ${may_use[$first]+set} ]]; then
        echo "$first"
    elif [[ $form == '"' ]]; then
        echo outside
    fi
}

# Lines FILE:LINE:<PATH or FILE:LINE:"PATH, one for each include.
includes() {
    local room
    for room in "${!may_use[@]}"; do
        [[ $room == */* || ! -d $room ]] || echo "$room"
    done | sort | xargs -r -I{} find {} -type f \( -name '*.h' -o -name '*.cpp' \) -print0 | sort -z |
        xargs -0 -r grep -HnoE '^[[:space:]]*#[[:space:]]*include[[:space:]]*[<"][^>"]+' |
        sed -E 's/:[[:space:]]*#[[:space:]]*include[[:space:]]*/:/'
}

main() {
    local file line included room target count=0 status=0
    cd "${1:-$(dirname "$0")/..}"
    while IFS=: read -r file line included; do
        count=$((count + 1))
        room=$(room_of "$file")
        target=$(target_of "$file" "$included")
        case " own ${room%%/*} ${may_use[$room]} " in
        *" ${target:-own} "*) ;;
        *)
            echo "$file:$line: $room/ may not include ${included:1}"
            status=1
            ;;
        esac
    done < <(includes)
    if ((count == 0)); then
        echo "check-rooms.sh: no include found below $PWD" >&2
        return 2
    fi
    return "$status"
}

main "$@"
