# Completion of nalvo-asm, nalvo-import, nalvo-prove and nalvo-sim in bash.

# _nalvo_files WORD [SUFFIX ...]: files with one of the suffixes, or all files, and folders.
_nalvo_files()
{
    local word=$1 suffix
    shift
    # Folders end in a slash, and names with blanks come with the right quotes.
    compopt -o filenames 2>/dev/null
    if [[ $# -eq 0 ]]; then
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
        return
    fi
    mapfile -t COMPREPLY < <(
        for suffix; do
            compgen -f -X "!*.$suffix" -- "$word"
        done
        compgen -d -- "$word"
    )
}

# _nalvo_words WORD LIST: those of the blank-separated list that begin with the word.
_nalvo_words()
{
    mapfile -t COMPREPLY < <(compgen -W "$2" -- "$1")
}

# _nalvo_value PROGRAM OPTION WORD: completes the value of an option. Fails if the option has none.
_nalvo_value()
{
    case $1:$2 in
        nalvo-asm:-e | nalvo-asm:--event) _nalvo_words "$3" "button1 button2 save none" ;;
        # The format of messages, or else a source that gets its columns.
        nalvo-asm:-f | nalvo-asm:--format)
            _nalvo_files "$3" psm
            mapfile -t -O ${#COMPREPLY[@]} COMPREPLY < <(compgen -W "text json" -- "$3")
            ;;
        *:-f | *:--format) _nalvo_words "$3" "text json" ;;
        nalvo-asm:--explain) ;;
        nalvo-asm:-l | nalvo-asm:--listing | nalvo-asm:-s | nalvo-asm:--symbols) _nalvo_files "$3" ;;
        nalvo-asm:--depfile | nalvo-asm:--depfile-target) _nalvo_files "$3" ;;
        # KIND[:OPTION...]=FILE
        nalvo-asm:-o | nalvo-asm:--output)
            if [[ $3 == *=* ]]; then
                _nalvo_files "${3#*=}"
            elif [[ $3 != *:* ]]; then
                compopt -o nospace 2>/dev/null
                _nalvo_words "$3" "hex= mem= mif= coe= binary= ihex= ram="
            fi
            ;;
        nalvo-import:-d | nalvo-import:--dialect) _nalvo_words "$3" "auto kcpsm3 kcpsm6 pblazide mico8" ;;
        nalvo-import:--processor) _nalvo_words "$3" "pb3 pb6 mico8" ;;
        nalvo-import:-o | nalvo-import:--output | nalvo-import:-I)
            compopt -o filenames 2>/dev/null
            mapfile -t COMPREPLY < <(compgen -d -- "$3")
            ;;
        nalvo-import:--reference | nalvo-import:--image) _nalvo_files "$3" ;;
        nalvo-prove:--core) _nalvo_files "$3" v vhd vhdl ;;
        nalvo-prove:--language) _nalvo_words "$3" "verilog vhdl" ;;
        *:--reads | *:--stimulus | nalvo-sim:--trace | nalvo-sim:--vcd | nalvo-sim:--dump) _nalvo_files "$3" ;;
        # ADDR=FILE
        *:--port) [[ $3 == *=* ]] && _nalvo_files "${3#*=}" ;;
        # Numbers and labels.
        *:-n | *:--instructions | *:--max-clocks | *:--hwbuild) ;;
        *:--interrupt-every | *:--interrupt-at | *:--interrupt-at-clock | nalvo-sim:--start | nalvo-sim:--until) ;;
        *) return 1 ;;
    esac
    return 0
}

_nalvo_options()
{
    local program=$1
    case $program in
        nalvo-asm)
            echo "-e --event -f --format --in-place -l --listing -s --symbols -o --output --depfile --depfile-target
                -W --werror --allow-outside --explain --external-programs -q -v -h --help --version"
            ;;
        nalvo-import)
            echo "-d --dialect -o --output -I --reference --image --processor -f --format --force -q -v -h --help --version"
            ;;
        nalvo-prove)
            echo "--core --language -n --instructions --max-clocks --reads --port --stimulus --hwbuild --interrupt-every
                --interrupt-at --interrupt-at-clock -f --format -q -h --help --version"
            ;;
        nalvo-sim)
            echo "-n --instructions --max-clocks --start --until --reads --port --stimulus --hwbuild --interrupt-every
                --interrupt-at --exact --interrupt-at-clock --trace-clocks --trace --vcd --dump -v -q -h --help --version"
            ;;
    esac
}

_nalvo_tools()
{
    local program=${1##*/} current=${COMP_WORDS[COMP_CWORD]} first=$COMP_CWORD value option i
    COMPREPLY=()
    for ((i = 1; i < COMP_CWORD; ++i)); do
        if [[ ${COMP_WORDS[i]} == -- ]]; then
            _nalvo_operands "$program" "$current"
            return
        fi
    done
    # Bash breaks "--option=value" and "ADDR=FILE" at the signs, and replaces what is behind the last one.
    value=$current
    while [[ $first -gt 1 && (${COMP_WORDS[first]} == [=:] || ${COMP_WORDS[first - 1]} == [=:]) ]]; do
        first=$((first - 1))
        value=${COMP_WORDS[first]}$value
    done
    option=${COMP_WORDS[first - 1]}
    if [[ $value == --*=* ]]; then
        option=${value%%=*}
        value=${value#*=}
    fi
    if [[ $option == -* ]] && _nalvo_value "$program" "$option" "$value"; then
        return
    fi
    if [[ $current == -* ]]; then
        _nalvo_words "$current" "$(_nalvo_options "$program")"
    else
        _nalvo_operands "$program" "$current"
    fi
}

# _nalvo_operands PROGRAM WORD: what the program works on.
_nalvo_operands()
{
    if [[ $1 == nalvo-import ]]; then
        _nalvo_files "$2" psm asm s S src
    else
        _nalvo_files "$2" nalvo
    fi
}

complete -F _nalvo_tools nalvo-asm nalvo-import nalvo-prove nalvo-sim
