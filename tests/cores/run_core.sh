#!/bin/sh
# Runs a program on a core and prints its events, one a line (README.md).
#   run_core.sh CORE WORK_DIR [NAME=VALUE ...]
# CORE is the source: kcpsm3, kcpsm6 or lm8, .v or .vhd. WORK_DIR is made if it is not there. The names: program, reads, pulses and
# resets with an absolute path, clocks and waits with a number. Needs iverilog for Verilog and ghdl for VHDL.
set -u
if [ $# -lt 2 ]; then
    sed -n '3,5s/^# *//p' "$0" >&2
    exit 2
fi
bench=$(cd "$(dirname "$0")/../../tools/nalvo-prove/hdl" && pwd)
core=$(cd "$(dirname "$1")" && pwd)/$(basename "$1")
mkdir -p "$2" && cd "$2" || exit 2
shift 2
name=$(basename "$core" | sed 's/\.[a-z]*$//')
language=${core##*.}

case $name in
    kcpsm3) write=2C000 ;;
    kcpsm6) write=2D000 ;;
    lm8) write=2E000 ;;
    *) echo "$core: not a core that is known here; its name is kcpsm3, kcpsm6 or lm8" >&2; exit 2 ;;
esac
case $language in
    v) tool=iverilog; sign=+ ;;
    vhd) tool=ghdl; sign=-g ;;
    *) echo "$core: neither .v nor .vhd" >&2; exit 2 ;;
esac
if ! command -v $tool >/dev/null; then
    echo "$tool is not installed" >&2
    exit 2
fi

compile()
{
    if [ "$language" = v ]; then
        iverilog -g2001 -I "$bench" -s "${name}_bench" -o bench.vvp "$core" "$bench/${name}_bench.v"
    else
        ghdl -a --std=93 "$bench/bench_stimulus.vhd" && ghdl -a --std=93 "$core" && ghdl -a --std=93 "$bench/${name}_bench.vhd"
    fi
}

# simulate NAME=VALUE ...
simulate()
{
    for argument in "$@"; do
        shift
        set -- "$@" "$sign$argument"
    done
    if [ "$language" = v ]; then
        vvp -n bench.vvp "$@"
    else
        ghdl -r --std=93 "${name}_bench" "$@"
    fi
}

if ! compile >compile.log 2>&1; then
    echo "$core: can not be compiled with $tool" >&2
    sed 's/^/    /' compile.log >&2
    exit 2
fi

# How many clocks a core takes to come out of a reset is its own matter. The strobe of a write by the first instruction, which
# comes in the second clock, tells: with start=0 its clock is one more than that number.
printf '%s\n%s\n' "$write" "$write" >start.hex
first=$(simulate "program=$PWD/start.hex" clocks=40 start=0 | sed -n 's/^W [0-9a-f]* [0-9a-f]* //p' | sed -n 1p)
if [ -z "$first" ]; then
    echo "$core: does not execute its first instruction" >&2
    exit 1
fi
simulate "$@" "start=$((first - 1))"
