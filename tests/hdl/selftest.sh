#!/bin/sh
# Proves the RAM models and the comparison themselves, without the assembler, on memories filled by hand.
#   selftest.sh WORK_DIR
# For every model, in both languages: the first and the last words stand where the convention of INIT_xx and INITP_xx
# puts them, and a wrong word, a missing word and a file that does not compile are all noticed.
set -u
[ $# -eq 1 ] || { sed -n '3s/^# *//p' "$0" >&2; exit 2; }
hdl_dir=$(cd "$(dirname "$0")" && pwd)
mkdir -p "$1" || exit 2
work=$(cd "$1" && pwd)
checks=0
failures=0

zeros() { printf '%0*d' "$1" 0; }

# The first line ends in 56781234, the last one begins with ABCD; the parity ends in 1001 and begins with 1000, binary.
first_line=$(zeros 56)56781234
last_line=ABCD$(zeros 60)
first_parity=$(zeros 63)9
last_parity=8$(zeros 63)

# write_vhdl MODEL ADDR_BITS WIDTH LAST_INIT LAST_INITP
write_vhdl()
{
    cat <<END
library ieee;
use ieee.std_logic_1164.all;
entity by_hand is
    port (
        clk     : in  std_logic;
        address : in  std_logic_vector($2 - 1 downto 0);
        data    : out std_logic_vector($3 - 1 downto 0)
    );
end entity by_hand;
architecture rtl of by_hand is
begin
    ram : entity work.$1
        generic map (
            INIT_00  => X"$first_line",
            INIT_$4  => X"$last_line",
            INITP_00 => X"$first_parity",
            INITP_$5 => X"$last_parity"
        )
        port map (clk => clk, we => '0', addr => address, din => (others => '0'), dout => data);
end architecture rtl;
END
}

# write_verilog MODEL ADDR_BITS WIDTH LAST_INIT LAST_INITP
write_verilog()
{
    cat <<END
module by_hand (
    input  wire          clk,
    input  wire [$2-1:0] address,
    output wire [$3-1:0] data
);
    $1 #(
        .INIT_00  (256'h$first_line),
        .INIT_$4  (256'h$last_line),
        .INITP_00 (256'h$first_parity),
        .INITP_$5 (256'h$last_parity)
    ) ram (.clk (clk), .we (1'b0), .addr (address), .din ({$3{1'b0}}), .dout (data));
endmodule
END
}

# write_hex DEPTH WIDTH: what must be read.
write_hex()
{
    awk -v depth="$1" -v width="$2" 'BEGIN {
        if (width == 18) { word[0] = "11234"; word[1] = "25678"; word[depth - 1] = "2ABCD" }
        else {
            word[0] = "00134"; word[1] = "00012"; word[2] = "00078"; word[3] = "00156"
            word[depth - 2] = "000CD"; word[depth - 1] = "001AB"
        }
        for (a = 0; a < depth; ++a) print (a in word) ? word[a] : "00000"
    }'
}

# expect RESULT WHAT FILE SHAPE HEX: runs check_memory.sh and compares whether it passes (0) or fails (1).
expect()
{
    checks=$((checks + 1))
    "$hdl_dir/check_memory.sh" "$3" by_hand "$4" "$5" "$work/run" >"$work/report" 2>&1
    if [ $? -ne "$1" ]; then
        failures=$((failures + 1))
        echo "FAIL: $2"
        sed 's/^/    /' "$work/report"
    fi
}

# check_model MODEL DEPTH WIDTH LAST_INIT LAST_INITP
check_model()
{
    addr_bits=10
    [ "$2" = 2048 ] && addr_bits=11
    write_vhdl "$1" $addr_bits "$3" "$4" "$5" >"$work/by_hand.vhd"
    write_verilog "$1" $addr_bits "$3" "$4" "$5" >"$work/by_hand.v"
    write_hex "$2" "$3" >"$work/right.hex"
    sed '1s/4$/5/' "$work/right.hex" >"$work/wrong.hex"
    sed '$d' "$work/right.hex" >"$work/short.hex"
    for suffix in vhd v; do
        sed "s/$1/no_such_model/" "$work/by_hand.$suffix" >"$work/broken.$suffix"
        expect 0 "$1.$suffix" "$work/by_hand.$suffix" "$2x$3" "$work/right.hex"
        expect 1 "$1.$suffix, one wrong digit" "$work/by_hand.$suffix" "$2x$3" "$work/wrong.hex"
        expect 1 "$1.$suffix, a line missing" "$work/by_hand.$suffix" "$2x$3" "$work/short.hex"
        expect 1 "$1.$suffix, does not compile" "$work/broken.$suffix" "$2x$3" "$work/right.hex"
    done
}

check_model nalvo_ram_1kx9 1024 9 1F 03
check_model nalvo_ram_2kx9 2048 9 3F 07
check_model nalvo_ram_1kx18 1024 18 3F 07
check_model nalvo_ram_2kx18 2048 18 7F 0F
echo "selftest: $checks checks, $failures failures"
[ "$failures" -eq 0 ]
