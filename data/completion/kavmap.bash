# Completion for kavmap, kavmap-adif and kavmap-series in bash. The options, and what they take, are those of --help.

_kavmap()
{
    local command=${COMP_WORDS[0]} current=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} help
    # "--option=value" comes in three words.
    if [[ $current == = ]]; then
        current=
    elif [[ $before == = ]]; then
        before=${COMP_WORDS[COMP_CWORD - 2]}
    fi
    help=$("$command" --help 2>/dev/null)
    case $(_kavmap_argument "$before") in
    FILE | COMMAND) mapfile -t COMPREPLY < <(compgen -f -- "$current") ;;
    PICTURE) _kavmap_files '.*\.(png|jpg|bmp|pcx|pnm|tif)' ;;
    DIR) mapfile -t COMPREPLY < <(compgen -d -- "$current") ;;
    '') _kavmap_word ;;
    *) COMPREPLY=() ;;
    esac
}

# What an option takes, by its name in the help.
_kavmap_argument()
{
    [[ $1 == -* ]] && sed -nE "s/^ .* $1(, --[a-z-]+)? ([A-Z]+).*/\2/p" <<<"$help"
}

# An option, or a file that the command takes.
_kavmap_word()
{
    if [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$(grep -oE '^  (-[a-z], |    )--[a-z-]+' <<<"$help" | tr -d ,)" -- "$current")
    else
        case $command in
        *-adif) _kavmap_files '.*\.adif?' ;;
        *-series) _kavmap_files '.*\.ini' ;;
        *) COMPREPLY=() ;;
        esac
    fi
}

# Files whose names are like a pattern, in any case, and directories.
_kavmap_files()
{
    mapfile -t COMPREPLY < <(compgen -d -- "$current"; compgen -f -- "$current" | grep -ixE "$1")
}

complete -o filenames -F _kavmap kavmap kavmap-adif kavmap-series
