# What the read-back scripts share; read with ".", with hdl_dir set to this folder.

# Steps through "1024x18" or "128x8rw": sets depth, data_bits, addr_bits and writable.
parse_shape()
{
    case $1 in
        *rw) writable=1 ;;
        *) writable=0 ;;
    esac
    shape=${1%rw}
    depth=${shape%x*}
    data_bits=${shape#*x}
    case $depth$data_bits in
        *[!0-9]*) echo "not a shape: $1" >&2; return 1 ;;
    esac
    addr_bits=1
    while [ $((1 << addr_bits)) -lt "$depth" ]; do
        addr_bits=$((addr_bits + 1))
    done
}

# fill_bench TEMPLATE ENTITY TRUE_WORD FALSE_WORD RAM_PORTS: the test bench for one memory, on standard output.
fill_bench()
{
    flag=$4
    ports=
    if [ "$writable" = 1 ]; then
        flag=$3
        ports=$5
    fi
    sed -e "s/@ENTITY@/$2/g" -e "s/@DEPTH@/$depth/g" -e "s/@ADDR_BITS@/$addr_bits/g" \
        -e "s/@DATA_BITS@/$data_bits/g" -e "s/@WRITABLE@/$flag/g" -e "s/@RAM_PORTS@/$ports/g" "$1"
}

# dump_vhdl FILE ENTITY WORK_DIR: compiles and runs, leaves the dump in WORK_DIR/dump.
dump_vhdl()
{
    fill_bench "$hdl_dir/bench/readback.vhd.in" "$2" true false ' we => we, din => din,' >"$3/readback.vhd"
    (
        cd "$3" || exit 1
        for source in "$hdl_dir"/models/nalvo_ram_core.vhd "$hdl_dir"/models/*x*.vhd "$1" readback.vhd; do
            ghdl -a --std=93 "$source" || exit 1
        done
        ghdl -e --std=93 readback && ghdl -r --std=93 readback >raw
    ) || return 1
    cp "$3/raw" "$3/dump"
}

# dump_verilog FILE ENTITY WORK_DIR: the same for Verilog.
dump_verilog()
{
    fill_bench "$hdl_dir/bench/readback.v.in" "$2" 1 0 ' .we (we), .din (din),' >"$3/readback.v"
    iverilog -g2005 -Wall -Wno-timescale -s readback -o "$3/readback.vvp" "$hdl_dir"/models/*.v "$1" "$3/readback.v" &&
        vvp -n "$3/readback.vvp" >"$3/raw" || return 1
    tr abcdef ABCDEF <"$3/raw" >"$3/dump"
}

# dump_memory FILE ENTITY SHAPE WORK_DIR: "ADDRESS WORD" for every address of the memory in WORK_DIR/dump.
dump_memory()
{
    parse_shape "$3" || return 1
    rm -rf "$4"
    mkdir -p "$4" || return 1
    file=$(cd "$(dirname "$1")" && pwd)/$(basename "$1")
    case $1 in
        *.vhd) dump_vhdl "$file" "$2" "$4" ;;
        *.v) dump_verilog "$file" "$2" "$4" ;;
        *) echo "neither VHDL nor Verilog: $1" >&2; return 1 ;;
    esac
}

# compare_words DUMP HEX DEPTH: prints the differences, false if there is any.
compare_words()
{
    awk -v hex_name="$2" -v depth="$3" '
        function differ(text) { if (++count <= 10) print "    " text }
        FNR == 1 { ++part }
        part == 1 { want[FNR - 1] = $0; wanted = FNR; next }
        {
            address = FNR - 1
            if (NF != 2 || $1 != sprintf("%04X", address)) { differ("address " address ": read \"" $0 "\""); next }
            if (address < wanted && $2 != want[address])
                differ("address " address " (0x" $1 "): the memory holds " $2 ", the hex file says " want[address])
        }
        END {
            if (part != 2) differ("nothing was read")
            if (wanted != depth) differ(hex_name " has " wanted + 0 " lines, expected " depth)
            if (part == 2 && FNR != depth) differ("the memory gave " FNR " lines, expected " depth)
            if (count > 10) print "    and " count - 10 " more"
            exit count > 0
        }' "$2" "$1"
}

# compare_mem MEM HEX: every word of the mem file stands in the hex file at that address; false if one does not.
compare_mem()
{
    awk '
        function differ(text) { if (++count <= 10) print "    " text }
        FNR == 1 { ++part }
        { sub(/\r$/, "") }
        part == 1 { want[FNR - 1] = $0; next }
        /^@[0-9]+$/ { address = substr($0, 2) + 0; next }
        {
            if ($0 != want[address]) differ("mem file, address " address ": " $0 " instead of " want[address])
            ++address
            ++words
        }
        END { if (!words) differ("the mem file holds no word"); exit count > 0 }' "$2" "$1"
}

# join_words LOW_DUMP HIGH_DUMP LOW_BITS: a dump whose words are made of those of two memories side by side.
join_words()
{
    awk -v shift="$3" '
        function value(text,  i, v)
        {
            for (i = 1; i <= length(text); ++i)
                v = v * 16 + index("0123456789ABCDEF", substr(text, i, 1)) - 1
            return v
        }
        FNR == 1 { ++part }
        part == 1 { low[$1] = $2; next }
        { print $1, sprintf("%05X", value($2) * 2 ^ shift + value(low[$1])) }' "$1" "$2"
}

# change_digit HEX: the hex file with one digit in its middle changed, on standard output.
change_digit()
{
    awk '{ line[NR] = $0 } END {
        at = int(NR / 2) + 1
        digit = substr(line[at], length(line[at]))
        line[at] = substr(line[at], 1, length(line[at]) - 1) (digit == "0" ? "1" : "0")
        for (i = 1; i <= NR; ++i) print line[i]
    }' "$1"
}
