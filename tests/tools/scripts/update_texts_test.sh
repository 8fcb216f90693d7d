# shellcheck shell=bash disable=SC2154 # the variables of run_case.sh

test_a_text_that_the_code_lost_leaves_and_a_new_one_enters_unfinished() {
    cp "$project"/dialog/i18n/*.ts .
    sed -i 's,<source>Dismiss this notice</source>,<source>Gone long ago</source>,' korvane-print_de.ts
    run "$project/tools/update-texts.sh" "$PWD"
    expect_status 0
    run cat korvane-print_de.ts
    expect_output 'Dismiss this notice'
    expect_output 'type="unfinished"'
    run grep -c 'Gone long ago' korvane-print_de.ts
    expect_status 1
}

test_every_text_of_the_code_is_translated_into_every_language() {
    cp "$project"/dialog/i18n/*.ts .
    run "$project/tools/update-texts.sh" "$PWD"
    expect_status 0
    run grep -B1 'type="unfinished"' ./*.ts
    expect_silence
}
