# Completion of korvane-print for bash. To be installed as
# /usr/share/bash-completion/completions/korvane-print.

# What may stand for the value of an option: a kind of file, a fixed list, or nothing that is known.
_korvane_print_value() {
    local option=$1 word=$2
    case $option in
    --ppd) _korvane_print_files "$word" '*.ppd' ;;
    --root | --job-folder | --pictures | --saves | --person) mapfile -t COMPREPLY < <(compgen -d -- "$word") ;;
    --report | --record | --print) mapfile -t COMPREPLY < <(compgen -f -- "$word") ;;
    --queue) mapfile -t COMPREPLY < <(compgen -W "$(lpstat -e 2>/dev/null)" -- "$word") ;;
    --system-version) mapfile -t COMPREPLY < <(compgen -W '0x1049 0x1050 0x1060' -- "$word") ;;
    --language) mapfile -t COMPREPLY < <(compgen -W 'de en es fr it ja pt zh_CN' -- "$word") ;;
    --kind) mapfile -t COMPREPLY < <(compgen -W 'I E D A N Z' -- "$word") ;;
    --level) mapfile -t COMPREPLY < <(compgen -W '1 2 3 4 5 6 7' -- "$word") ;;
    --class | --operation | --text | --action | --file | --set) COMPREPLY=() ;;
    *) return 1 ;;
    esac
}

# _korvane_print_files WORD PATTERN: files whose names match, and folders to go on into.
_korvane_print_files() {
    mapfile -t COMPREPLY < <(
        compgen -f -X "!$2" -- "$1"
        compgen -d -- "$1"
    )
}

_korvane_print() {
    local word=${COMP_WORDS[COMP_CWORD]} former=${COMP_WORDS[COMP_CWORD - 1]} command=
    local dialog='--ppd --root --system-version --language --queue --job-folder --record --console'
    local -A options=(
        [dialog]="$dialog --print --set --dry-run --json --print-anyway --list --help --version"
        [--list]='--json --language --help'
        [replay]="$dialog --report --pictures --saves --person --dark --stable --help --version"
        [log]='--class --operation --kind --text --actions --action --on --off --level --file --help'
        [check-ppd]='--root --json --help'
    )
    COMPREPLY=()
    compopt -o filenames 2>/dev/null
    [[ -n ${options[${COMP_WORDS[1]}]+set} && $COMP_CWORD -gt 1 ]] && command=${COMP_WORDS[1]}
    _korvane_print_value "$former" "$word" && return
    if [[ $word == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "${options[${command:-dialog}]}" -- "$word")
    elif [[ $command == check-ppd ]]; then
        _korvane_print_files "$word" '*.ppd'
    else
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
        ((COMP_CWORD > 1)) ||
            mapfile -t -O ${#COMPREPLY[@]} COMPREPLY < <(compgen -W 'replay log check-ppd' -- "$word")
    fi
}

complete -F _korvane_print korvane-print
