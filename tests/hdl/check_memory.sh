#!/bin/sh
# Proves one generated memory: compiles it with the RAM models, reads it back and compares it word for word.
#   check_memory.sh FILE ENTITY SHAPE HEX WORK_DIR
# FILE ends in .vhd or .v; SHAPE is depth x width, such as 1024x18, followed by "rw" for a memory with a write port;
# HEX is the hex file of the same run. WORK_DIR is emptied first. Needs ghdl for VHDL and iverilog for Verilog.
set -u
if [ $# -ne 5 ]; then
    sed -n '3,5s/^# *//p' "$0" >&2
    exit 2
fi
hdl_dir=$(cd "$(dirname "$0")" && pwd)
. "$hdl_dir/memory.sh"

if ! dump_memory "$1" "$2" "$3" "$5" 2>"$5.log"; then
    echo "$1: can not be simulated"
    sed 's/^/    /' "$5.log"
    exit 1
fi
if ! compare_words "$5/dump" "$4" "$depth"; then
    echo "$1: differs from $4"
    exit 1
fi
echo "$1: $depth words as in $4"
