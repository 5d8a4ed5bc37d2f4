#!/bin/sh
# Assembles every example and proves every HDL file that it writes, word for word against the hex file of the same run.
#   readback.sh NALVO_ASM BUILD_DIR EXAMPLES_DIR
# Works on a copy of the examples under BUILD_DIR/hdl-readback; memories.list names what is to be proved. Each
# comparison is made a second time with one digit of the hex file changed and must then fail. The last line gives the
# counts. Needs ghdl and iverilog.
set -u
if [ $# -ne 3 ]; then
    sed -n '3,6s/^# *//p' "$0" >&2
    exit 2
fi
hdl_dir=$(cd "$(dirname "$0")" && pwd)
. "$hdl_dir/memory.sh"
list=${NALVO_HDL_LIST:-$hdl_dir/memories.list}

for tool in "$1" ghdl iverilog vvp; do
    command -v "$tool" >/dev/null || { echo "not found: $tool"; exit 2; }
done
assembler=$(command -v "$1")
case $assembler in
    /*) ;;
    *) assembler=$(pwd)/$assembler ;;
esac
[ -d "$3" ] || { echo "no such folder: $3"; exit 2; }
examples=$(cd "$3" && pwd)
mkdir -p "$2/hdl-readback" || exit 2
scratch=$(cd "$2/hdl-readback" && pwd)
rm -rf "$scratch/examples" "$scratch/run"
mkdir -p "$scratch/run"
cp -R "$examples" "$scratch/examples" || exit 2

projects=0
memories=0
words=0
mutations=0
failures=0

fail()
{
    echo "FAIL: $*"
    failures=$((failures + 1))
}

# project_of FOLDER: the one project file in it.
project_of()
{
    set -- "$scratch/examples/$1"/*.nalvo
    [ $# -eq 1 ] && [ -f "$1" ] && echo "$1"
}

# Output of an earlier run in the copied tree must not pass for output of this one.
clean_output()
{
    find "$scratch/examples" -path '*/output/*' -type f ! -name .gitignore -exec rm -f {} +
}

# make_variant NEW_FOLDER FOLDER OLD_TEXT NEW_TEXT: a copy whose project file names other templates.
make_variant()
{
    cp -R "$scratch/examples/$2" "$scratch/examples/$1" || { fail "$1: can not copy $2"; return; }
    variant=$(project_of "$1") || { fail "$1: not exactly one project file"; return; }
    sed "s/$3/$4/g" "$variant" >"$scratch/run/variant"
    cmp -s "$scratch/run/variant" "$variant" && fail "$1: \"$3\" does not stand in the project file"
    cp "$scratch/run/variant" "$variant"
}

# assemble FOLDER: runs the assembler with the event of button 1; errors and warnings are failures.
assemble()
{
    project=$(project_of "$1") || { fail "$1: not exactly one project file"; return; }
    projects=$((projects + 1))
    messages=$scratch/run/$1.messages
    if ! "$assembler" -e button1 --werror "$project" >"$messages" 2>&1; then
        fail "$1: does not assemble without error and warning"
        sed 's/^/    /' "$messages"
    fi
}

# compare FOLDER WHAT DUMP HEX DEPTH: the comparison, then the same with a changed hex file.
compare()
{
    memories=$((memories + 1))
    if compare_words "$3" "$4" "$5"; then
        echo "ok: $1: $2, $5 words"
        words=$((words + $5))
    else
        fail "$1: $2 differs from $(basename "$4")"
        return
    fi
    change_digit "$4" >"$3.changed"
    if compare_words "$3" "$3.changed" "$5" >/dev/null; then
        fail "$1: $2: a changed digit in the hex file was not seen"
    else
        mutations=$((mutations + 1))
    fi
}

# check_entity FOLDER ENTITY SHAPE: VHDL, Verilog and mem file of one memory against its hex file.
check_entity()
{
    output=$scratch/examples/$1/output
    for suffix in hex mem vhd v; do
        [ -s "$output/$2.$suffix" ] || { fail "$1: $2.$suffix was not written"; return; }
    done
    compare_mem "$output/$2.mem" "$output/$2.hex" || fail "$1: $2.mem differs from $2.hex"
    for suffix in vhd v; do
        work=$scratch/run/$1.$2.$suffix
        if dump_memory "$output/$2.$suffix" "$2" "$3" "$work" 2>"$work.log"; then
            compare "$1" "$2.$suffix" "$work/dump" "$output/$2.hex" "$depth"
        else
            fail "$1: $2.$suffix can not be simulated"
            sed 's/^/    /' "$work.log"
        fi
    done
}

# check_join FOLDER LOW HIGH LOW_BITS WHOLE: two memories that were read before, side by side, against a third hex file.
check_join()
{
    for suffix in vhd v; do
        low=$scratch/run/$1.$2.$suffix/dump
        high=$scratch/run/$1.$3.$suffix/dump
        if [ -s "$low" ] && [ -s "$high" ]; then
            join_words "$low" "$high" "$4" >"$scratch/run/$1.$5.$suffix.dump"
            compare "$1" "$2.$suffix and $3.$suffix" "$scratch/run/$1.$5.$suffix.dump" \
                "$scratch/examples/$1/output/$5.hex" "$(awk 'END { print NR }' "$low")"
        else
            fail "$1: $2.$suffix and $3.$suffix were not both read"
        fi
    done
}

# A generated HDL file that the list does not name would go unproved.
check_complete()
{
    for file in "$scratch"/examples/*/output/*.vhd "$scratch"/examples/*/output/*.v; do
        [ -f "$file" ] || continue
        folder=$(basename "$(dirname "$(dirname "$file")")")
        grep -q "^own  *$folder\$" "$list" && continue
        entity=$(basename "${file%.*}")
        grep -q "^memory  *$folder  *$entity " "$list" || fail "$folder: memories.list does not name $entity"
    done
}

clean_output
while read -r kind a b c d _; do
    [ "$kind" = variant ] && make_variant "$a" "$b" "$c" "$d"
done <"$list"
for file in "$scratch"/examples/*/*.nalvo; do
    assemble "$(basename "$(dirname "$file")")"
done
while read -r kind a b c d e _; do
    case $kind in
        '' | '#'* | variant | own) ;;
        memory) check_entity "$a" "$b" "$c" ;;
        join) check_join "$a" "$b" "$c" "$d" "$e" ;;
        *) fail "memories.list: unknown word \"$kind\"" ;;
    esac
done <"$list"
check_complete
[ "$memories" -gt 0 ] || fail "no memory was compared"

echo "readback: $projects projects, $memories memories, $words words compared," \
    "$mutations changed files noticed, $failures failures"
[ "$failures" -eq 0 ]
