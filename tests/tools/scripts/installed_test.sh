# shellcheck shell=bash disable=SC2154 # the variables of run_case.sh

# in_prefix: the program and what belongs to it, in the folder "prefix".
in_prefix() {
    cmake --install "$KORVANE_BINARY_DIR" --prefix "$PWD/prefix" >/dev/null
}

# play: a short scenario with the installed program.
play() {
    printf 'choose ibPaperType "Iron-On Transfer"\n' >case.scenario
    run env QT_QPA_PLATFORM=offscreen HOME="$PWD" XDG_RUNTIME_DIR="$PWD" \
        prefix/bin/korvane-print replay case.scenario --root "$KORVANE_BINARY_DIR/root" \
        --ppd "$project/driver/ppd/Korvane-S300.ppd" --report report.json
}

test_the_program_runs_from_where_it_is_installed() {
    in_prefix
    play
    expect_status 0
    grep -q '"IronOn"' report.json
    run env LD_LIBRARY_PATH= ldd prefix/bin/korvane-print
    expect_output "$PWD/prefix/bin/../lib/korvane/libkorvane-platform.so"
}

test_the_reader_of_pdf_lies_where_the_program_looks_for_it() {
    in_prefix
    [[ -f prefix/lib/korvane/korvane-pdf.so ]]
}

test_the_program_runs_without_the_reader_of_pdf() {
    in_prefix
    rm prefix/lib/korvane/korvane-pdf.so
    play
    expect_status 0
}
