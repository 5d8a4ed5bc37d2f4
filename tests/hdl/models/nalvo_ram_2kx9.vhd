-- Behavioural model of an 18 kbit block RAM set to 2048 words of 8 data bits and 1 parity bit.
-- INIT_xx hold the data bits, INITP_xx the parity bits; the lowest address stands in the lowest bits. A word on dout
-- and din is the parity bits followed by the data bits.

library ieee;
use ieee.std_logic_1164.all;
use work.nalvo_ram_types.all;

entity nalvo_ram_2kx9 is
    generic (
        INIT_00  : ram_line := NO_LINE;
        INIT_01  : ram_line := NO_LINE;
        INIT_02  : ram_line := NO_LINE;
        INIT_03  : ram_line := NO_LINE;
        INIT_04  : ram_line := NO_LINE;
        INIT_05  : ram_line := NO_LINE;
        INIT_06  : ram_line := NO_LINE;
        INIT_07  : ram_line := NO_LINE;
        INIT_08  : ram_line := NO_LINE;
        INIT_09  : ram_line := NO_LINE;
        INIT_0A  : ram_line := NO_LINE;
        INIT_0B  : ram_line := NO_LINE;
        INIT_0C  : ram_line := NO_LINE;
        INIT_0D  : ram_line := NO_LINE;
        INIT_0E  : ram_line := NO_LINE;
        INIT_0F  : ram_line := NO_LINE;
        INIT_10  : ram_line := NO_LINE;
        INIT_11  : ram_line := NO_LINE;
        INIT_12  : ram_line := NO_LINE;
        INIT_13  : ram_line := NO_LINE;
        INIT_14  : ram_line := NO_LINE;
        INIT_15  : ram_line := NO_LINE;
        INIT_16  : ram_line := NO_LINE;
        INIT_17  : ram_line := NO_LINE;
        INIT_18  : ram_line := NO_LINE;
        INIT_19  : ram_line := NO_LINE;
        INIT_1A  : ram_line := NO_LINE;
        INIT_1B  : ram_line := NO_LINE;
        INIT_1C  : ram_line := NO_LINE;
        INIT_1D  : ram_line := NO_LINE;
        INIT_1E  : ram_line := NO_LINE;
        INIT_1F  : ram_line := NO_LINE;
        INIT_20  : ram_line := NO_LINE;
        INIT_21  : ram_line := NO_LINE;
        INIT_22  : ram_line := NO_LINE;
        INIT_23  : ram_line := NO_LINE;
        INIT_24  : ram_line := NO_LINE;
        INIT_25  : ram_line := NO_LINE;
        INIT_26  : ram_line := NO_LINE;
        INIT_27  : ram_line := NO_LINE;
        INIT_28  : ram_line := NO_LINE;
        INIT_29  : ram_line := NO_LINE;
        INIT_2A  : ram_line := NO_LINE;
        INIT_2B  : ram_line := NO_LINE;
        INIT_2C  : ram_line := NO_LINE;
        INIT_2D  : ram_line := NO_LINE;
        INIT_2E  : ram_line := NO_LINE;
        INIT_2F  : ram_line := NO_LINE;
        INIT_30  : ram_line := NO_LINE;
        INIT_31  : ram_line := NO_LINE;
        INIT_32  : ram_line := NO_LINE;
        INIT_33  : ram_line := NO_LINE;
        INIT_34  : ram_line := NO_LINE;
        INIT_35  : ram_line := NO_LINE;
        INIT_36  : ram_line := NO_LINE;
        INIT_37  : ram_line := NO_LINE;
        INIT_38  : ram_line := NO_LINE;
        INIT_39  : ram_line := NO_LINE;
        INIT_3A  : ram_line := NO_LINE;
        INIT_3B  : ram_line := NO_LINE;
        INIT_3C  : ram_line := NO_LINE;
        INIT_3D  : ram_line := NO_LINE;
        INIT_3E  : ram_line := NO_LINE;
        INIT_3F  : ram_line := NO_LINE;
        INITP_00 : ram_line := NO_LINE;
        INITP_01 : ram_line := NO_LINE;
        INITP_02 : ram_line := NO_LINE;
        INITP_03 : ram_line := NO_LINE;
        INITP_04 : ram_line := NO_LINE;
        INITP_05 : ram_line := NO_LINE;
        INITP_06 : ram_line := NO_LINE;
        INITP_07 : ram_line := NO_LINE
    );
    port (
        clk  : in  std_logic;
        we   : in  std_logic;
        addr : in  std_logic_vector(10 downto 0);
        din  : in  std_logic_vector(8 downto 0);
        dout : out std_logic_vector(8 downto 0)
    );
end entity nalvo_ram_2kx9;

architecture model of nalvo_ram_2kx9 is
begin
    core : entity work.nalvo_ram_core
        generic map (
            ADDR_BITS   => 11,
            DATA_BITS   => 8,
            PARITY_BITS => 1,
            INIT        => (
                INIT_00, INIT_01, INIT_02, INIT_03, INIT_04, INIT_05, INIT_06, INIT_07,
                INIT_08, INIT_09, INIT_0A, INIT_0B, INIT_0C, INIT_0D, INIT_0E, INIT_0F,
                INIT_10, INIT_11, INIT_12, INIT_13, INIT_14, INIT_15, INIT_16, INIT_17,
                INIT_18, INIT_19, INIT_1A, INIT_1B, INIT_1C, INIT_1D, INIT_1E, INIT_1F,
                INIT_20, INIT_21, INIT_22, INIT_23, INIT_24, INIT_25, INIT_26, INIT_27,
                INIT_28, INIT_29, INIT_2A, INIT_2B, INIT_2C, INIT_2D, INIT_2E, INIT_2F,
                INIT_30, INIT_31, INIT_32, INIT_33, INIT_34, INIT_35, INIT_36, INIT_37,
                INIT_38, INIT_39, INIT_3A, INIT_3B, INIT_3C, INIT_3D, INIT_3E, INIT_3F
            ),
            INITP       => (
                INITP_00, INITP_01, INITP_02, INITP_03, INITP_04, INITP_05, INITP_06, INITP_07
            )
        )
        port map (
            clk  => clk,
            we   => we,
            addr => addr,
            din  => din,
            dout => dout
        );
end architecture model;
