# shellcheck shell=bash
# Sourced by the scripts that play scenarios: the same surroundings on every machine and for every user.

# surround BUILD CASE: sets scratch, a folder that goes with the script, and root, the driver's files; those of the
# case's own printer, where it has other cartridges in; and person, what the person of the case has kept, if anything.
surround() {
    build=$1
    files=$(cd "$2" && pwd)
    scratch=$(mktemp -d)
    trap 'rm -rf "$scratch"' EXIT
    mkdir "$scratch/run" "$scratch/tmp"
    chmod 700 "$scratch/run"
    root=$build/root
    if [[ -e $2/preferences.plist ]]; then
        cp -a "$root" "$scratch/root"
        root=$scratch/root
        cp "$2/preferences.plist" "$root/Library/Printers/Korvane/Preferences/com.korvane.prefs.2009.plist"
    fi
    person=
    if [[ -e $files/person ]]; then person=$files/person; fi
}

# of_any_run: copies a text without what is another at each run, its folders and the time of a file set aside.
of_any_run() {
    sed -E "s#$scratch/tmp/korvane-print-[A-Za-z0-9]{6}#PERSON#g; s#$scratch#SCRATCH#g; s#$files/##g; s#$build#BUILD#g; s#damaged-[0-9]{8}-[0-9]{6}#damaged-TIME#g"
}

# replay SCENARIO OPTION...
replay() {
    env -i PATH="$PATH" HOME="${home:-$scratch}" LC_ALL=C.UTF-8 TMPDIR="$scratch/tmp" \
        XDG_RUNTIME_DIR="$scratch/run" XDG_DATA_HOME="$scratch/data" QT_QPA_PLATFORM=offscreen \
        CUPS_SERVER=127.0.0.1:1 \
        ${ASAN_OPTIONS:+ASAN_OPTIONS="$ASAN_OPTIONS"} \
        "$build/bin/korvane-print" replay "$@" --root "$root" --stable --saves "$scratch/saves" ${person:+--person "$person"}
}
