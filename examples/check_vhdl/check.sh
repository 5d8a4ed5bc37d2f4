#!/bin/sh
# Runs ghdl on the VHDL memory of the last run: it must hold the words of the hex file.
#   check.sh VHDL_FILE HEX_FILE
# Ends with 0 on success, and where ghdl is not installed; with 1 on failure.

if ! command -v ghdl >/dev/null; then
    echo "SKIPPED: ghdl is not installed, so the VHDL file was not checked."
    exit 0
fi
work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT
trap 'exit 1' HUP INT TERM

here=$(dirname "$0")
if ghdl -a --std=08 --workdir="$work" "$1" "$here/check_tb.vhd" &&
    ghdl -e --std=08 --workdir="$work" -o "$work/check_tb" check_tb &&
    ghdl -r --std=08 --workdir="$work" check_tb -gHEX_FILE="$2"; then
    echo "PASS: $1 holds the words of $2."
else
    echo "FAIL: $1 does not hold the words of $2."
    exit 1
fi
