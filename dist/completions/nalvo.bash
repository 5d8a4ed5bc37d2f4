# Completion of nalvo in bash.

_nalvo()
{
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local suffix=nalvo
    COMPREPLY=()
    if [[ $previous == -s ]]; then
        suffix=js
    elif [[ $current == -* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "-s --help --version" -- "$current")
        return
    fi
    # Folders end in a slash, and names with blanks come with the right quotes.
    compopt -o filenames 2>/dev/null
    mapfile -t COMPREPLY < <(compgen -f -X "!*.$suffix" -- "$current"; compgen -d -- "$current")
}

complete -F _nalvo nalvo
