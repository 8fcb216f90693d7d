# shellcheck shell=bash disable=SC2154 # the variables of run_case.sh
# What ./run and ./check answer before they set anything up.

test_check_explains_itself() {
    run "$project/check" --help
    expect_status 0
    expect_output 'usage: ./check'
}

test_check_refuses_an_unknown_option_with_2() {
    run "$project/check" --fast
    expect_status 2
    expect_output "unknown option '--fast'"
}

test_check_takes_one_option_at_a_time() {
    run "$project/check" --long --format
    expect_status 2
}

test_run_explains_itself() {
    run "$project/run" --help
    expect_status 0
    expect_output 'usage: ./run'
}

test_run_refuses_a_missing_document_with_2() {
    run "$project/run" none.pdf
    expect_status 2
    expect_output "none.pdf: no such file"
    run "$project/run" none/none.pdf
    expect_status 2
    expect_output "none/none.pdf: no such file"
}

test_run_refuses_a_folder_with_2() {
    run "$project/run" "$PWD"
    expect_status 2
    expect_output 'no readable file'
}

test_run_refuses_what_is_no_pdf_with_2() {
    echo text >letter.pdf
    run "$project/run" letter.pdf
    expect_status 2
    expect_output "letter.pdf: not a PDF"
}

test_run_refuses_an_unknown_option_with_2() {
    run "$project/run" --fast
    expect_status 2
    expect_output "unknown option '--fast'"
}

test_run_takes_one_document() {
    run "$project/run" a.pdf b.pdf
    expect_status 2
}
