# shellcheck shell=bash disable=SC2154 # the variables of run_case.sh

# source FILE LINE...: a source file of a small house with these lines.
source_file() {
    mkdir -p "${1%/*}"
    printf '%s\n' "${@:2}" >"$1"
}

check_rooms() {
    run "$project/tools/check-rooms.sh" "$PWD"
}

# expect_refused FILE INCLUDE: the file may not have this line.
expect_refused() {
    source_file "$1" '#pragma once' "$2"
    check_rooms
    expect_status 1
    expect_output "$1:2: "
    rm "$1"
}

expect_allowed() {
    source_file "$1" "$2"
    check_rooms
    expect_status 0
    expect_silence
}

test_this_project_keeps_the_direction() {
    run "$project/tools/check-rooms.sh"
    expect_status 0
    expect_silence
}

test_rooms_may_use_those_below() {
    expect_allowed platform/a.cpp '#include <QString>'
    expect_allowed diag/a.cpp '#include "platform/console.h"'
    expect_allowed model/a.cpp '#include <cups/ppd.h>'
    expect_allowed conflict/a.cpp '#include "model/pde_model.h"'
    expect_allowed quality/a.cpp '#include "conflict/kor_conflict_controller.h"'
    expect_allowed other/a.cpp '#include "diag/trace.h"'
    expect_allowed plugin/a.cpp '#include "other/kor_pde_controller3.h"'
    expect_allowed dialog/a.cpp '#include "platform/panel_protocol.h"'
    expect_allowed dialog/printers/a.cpp '#include <cups/cups.h>'
    expect_allowed dialog/printers/b.cpp '#include "dialog/window.h"'
}

test_no_room_may_use_one_above() {
    expect_refused platform/a.h '#include "diag/trace.h"'
    expect_refused diag/a.h '#include "model/pde_model.h"'
    expect_refused model/a.h '#include "conflict/kor_conflict_controller.h"'
    expect_refused conflict/a.h '#include "quality/settings_table.h"'
    expect_refused other/a.h '#include "quality/settings_table.h"'
    expect_refused quality/a.h '#include "other/kor_pde_controller3.h"'
    expect_refused quality/a.h '#include "plugin/main_pde2.h"'
}

test_the_dialog_never_sees_the_panels() {
    local room
    for room in model conflict quality other plugin; do
        expect_refused dialog/a.h "#include \"$room/a.h\""
        expect_refused dialog/printers/a.h "#include \"$room/a.h\""
    done
    expect_refused plugin/a.h '#include "dialog/window.h"'
}

test_only_two_rooms_include_the_headers_of_cups() {
    local folder
    for folder in platform diag conflict quality other plugin dialog dialog/replay; do
        expect_refused "$folder/a.h" '#include <cups/ppd.h>'
        expect_refused "$folder/a.h" '#include "cups/ppd.h"'
    done
}

test_spelling_hides_nothing() {
    expect_refused platform/a.h '  #  include   "model/pde_model.h"'
    expect_refused platform/a.h '#include <model/pde_model.h>'
    expect_refused platform/controls/a.h '#include "quality/a.h"'
    expect_refused platform/a.h '#include "../model/pde_model.h"'
    expect_refused platform/a.h '#include "platform/../model/pde_model.h"'
    expect_refused platform/a.h '#include "tests/support/fake_host.h"'
}

test_files_of_the_own_folder_need_no_path() {
    source_file dialog/window.h '#pragma once'
    source_file dialog/parts/part.h '#pragma once'
    expect_allowed dialog/window.cpp '#include "window.h"'
    expect_allowed dialog/other_window.cpp '#include "parts/part.h"'
    expect_allowed dialog/window.h '// #include "quality/a.h"'
}

test_a_folder_without_rooms_is_an_error() {
    check_rooms
    expect_status 2
    expect_output 'no include found'
}
