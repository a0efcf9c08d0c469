# Completion of the orvan command for bash.

_orvan_commands="demo new info check render export pattern diff convert products params"

# The options of a command.
_orvan_options() {
    case $1 in
        new) echo --product --cabinet --grid --ports --order --canvas --name --force ;;
        info) echo --json --tiles --port-pixels --fps --depth ;;
        check) echo --json --all --ignore --port-pixels --fps --depth ;;
        render)
            echo --sender --port --rear --width --sheets --paper --port-pixels --fps --depth --format
            ;;
        export) echo --chains --format ;;
        pattern) echo --sender --grid --numbers --ports --format ;;
        diff | products | params) echo --json ;;
    esac
    echo --documents --help --version
}

# Whether an option of a command takes a value.
_orvan_takes_value() {
    case $1/$2 in
        pattern/--ports | pattern/--grid) return 1 ;;
        */--documents | */--product | */--cabinet | */--grid | */--ports | */--order | */--canvas | */--name) ;;
        */--ignore | */--port-pixels | */--fps | */--depth | */--sender | */--port | */--width) ;;
        */--paper | */--format) ;;
        *) return 1 ;;
    esac
}

# What the value of an option may be; nothing for numbers and texts.
_orvan_values() {
    case $1/$2 in
        */--order) echo 0 1 2 3 4 5 6 7 ;;
        */--depth) echo 8 10 12 ;;
        */--paper) echo A4 A3 letter ;;
        render/--format) echo png svg ;;
        export/--format) echo csv jsonl ;;
        pattern/--format) echo png ;;
        */--ignore)
            echo overlap off-canvas unnumbered duplicate-index index-gap receiver-mismatch unknown-type \
                missing-parameter-file orphan-group backup-of-nothing backup-loop port-overload
            ;;
    esac
}

# The endings of the files that a command takes at a place, counted from 1: "folders" for none but these, "any".
_orvan_suffixes() {
    case $1/$2 in
        new/1) echo prj ;;
        info/1 | check/1 | render/1 | export/1 | pattern/1 | diff/[12] | convert/[12]) echo prj xml ;;
        render/2) echo png svg pdf ;;
        export/2) echo csv jsonl ;;
        pattern/2) echo png ;;
        demo/1 | products/1) echo folders ;;
        params/1) echo any ;;
    esac
}

# Files of these endings, and folders on the way to them.
_orvan_files() {
    local suffix
    for suffix in "$@"; do
        case $suffix in
            folders) ;;
            any) compgen -f -- "$cur" ;;
            *) compgen -f -X "!*.$suffix" -- "$cur" ;;
        esac
    done
    compgen -d -- "$cur"
}

_orvan() {
    local cur=${COMP_WORDS[COMP_CWORD]} command="" option="" place=1 word i
    for ((i = 1; i < COMP_CWORD; ++i)); do
        word=${COMP_WORDS[i]}
        if [ "$word" = = ]; then # "--option=value" comes as three words
            continue
        elif [ -n "$option" ]; then
            option=""
        elif [[ $word == --* ]]; then
            _orvan_takes_value "$command" "$word" && option=$word
        elif [ -z "$command" ]; then
            command=$word
        elif [[ $word != -? ]]; then
            place=$((place + 1))
        fi
    done
    [ "$cur" != = ] || cur=""

    local words="" suffixes=""
    case $option in
        "")
            if [[ $cur == -* ]]; then
                words=$(compgen -W "$(_orvan_options "$command")" -- "$cur")
            elif [ -z "$command" ]; then
                words=$(compgen -W "$_orvan_commands" -- "$cur")
            else
                suffixes=$(_orvan_suffixes "$command" "$place")
            fi
            ;;
        --documents) suffixes=folders ;;
        --product) suffixes="rcvbp rcvp" ;;
        *) words=$(compgen -W "$(_orvan_values "$command" "$option")" -- "$cur") ;;
    esac
    if [ -n "$suffixes" ]; then
        compopt -o filenames 2>/dev/null
        # shellcheck disable=SC2086  # endings are words
        words=$(_orvan_files $suffixes)
    fi
    mapfile -t COMPREPLY < <([ -z "$words" ] || sort -u <<<"$words")
}

complete -F _orvan orvan
