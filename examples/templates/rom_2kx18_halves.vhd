-- Template: program memory of 2048 x 18 bits in two RAMs of 9 bits, 8 data bits and 1 parity bit a word each
--
-- nalvo_ram_2kx9 stands for an 18 kbit block RAM set to 2048 words of 8 data bits and 1 parity bit.
-- Put the primitive of your device in its place: such primitives take their first contents from generics
-- INIT_xx (data) and INITP_xx (parity) of 256 bits each, the lowest address in the lowest bits, as filled here.
--
-- All lines down to the next one are left out of the output file.
-- {BEGIN TEMPLATE}
-- {NAME}: program memory, 2048 x 18 bits in two RAMs of 9 bits
-- Made by the assembler, do not edit.
--
-- Date:    {TIMESTAMP}
-- Project: {PROJECTTITLE}
-- Version: {PROJECTVERSION}
-- File:    {PROJECTFILENAME}

library ieee;
use ieee.std_logic_1164.all;

entity {NAME} is
    -- The top address bit is the page register, the others are the program counter.
    port (
        clk     : in  std_logic;
        address : in  std_logic_vector(10 downto 0);
        data    : out std_logic_vector(17 downto 0)
    );
end entity {NAME};

architecture rtl of {NAME} is
begin
    ram_low : entity work.nalvo_ram_2kx9
        generic map (
            INIT_00  => X"{[8:0]_INIT_00}",
            INIT_01  => X"{[8:0]_INIT_01}",
            INIT_02  => X"{[8:0]_INIT_02}",
            INIT_03  => X"{[8:0]_INIT_03}",
            INIT_04  => X"{[8:0]_INIT_04}",
            INIT_05  => X"{[8:0]_INIT_05}",
            INIT_06  => X"{[8:0]_INIT_06}",
            INIT_07  => X"{[8:0]_INIT_07}",
            INIT_08  => X"{[8:0]_INIT_08}",
            INIT_09  => X"{[8:0]_INIT_09}",
            INIT_0A  => X"{[8:0]_INIT_0A}",
            INIT_0B  => X"{[8:0]_INIT_0B}",
            INIT_0C  => X"{[8:0]_INIT_0C}",
            INIT_0D  => X"{[8:0]_INIT_0D}",
            INIT_0E  => X"{[8:0]_INIT_0E}",
            INIT_0F  => X"{[8:0]_INIT_0F}",
            INIT_10  => X"{[8:0]_INIT_10}",
            INIT_11  => X"{[8:0]_INIT_11}",
            INIT_12  => X"{[8:0]_INIT_12}",
            INIT_13  => X"{[8:0]_INIT_13}",
            INIT_14  => X"{[8:0]_INIT_14}",
            INIT_15  => X"{[8:0]_INIT_15}",
            INIT_16  => X"{[8:0]_INIT_16}",
            INIT_17  => X"{[8:0]_INIT_17}",
            INIT_18  => X"{[8:0]_INIT_18}",
            INIT_19  => X"{[8:0]_INIT_19}",
            INIT_1A  => X"{[8:0]_INIT_1A}",
            INIT_1B  => X"{[8:0]_INIT_1B}",
            INIT_1C  => X"{[8:0]_INIT_1C}",
            INIT_1D  => X"{[8:0]_INIT_1D}",
            INIT_1E  => X"{[8:0]_INIT_1E}",
            INIT_1F  => X"{[8:0]_INIT_1F}",
            INIT_20  => X"{[8:0]_INIT_20}",
            INIT_21  => X"{[8:0]_INIT_21}",
            INIT_22  => X"{[8:0]_INIT_22}",
            INIT_23  => X"{[8:0]_INIT_23}",
            INIT_24  => X"{[8:0]_INIT_24}",
            INIT_25  => X"{[8:0]_INIT_25}",
            INIT_26  => X"{[8:0]_INIT_26}",
            INIT_27  => X"{[8:0]_INIT_27}",
            INIT_28  => X"{[8:0]_INIT_28}",
            INIT_29  => X"{[8:0]_INIT_29}",
            INIT_2A  => X"{[8:0]_INIT_2A}",
            INIT_2B  => X"{[8:0]_INIT_2B}",
            INIT_2C  => X"{[8:0]_INIT_2C}",
            INIT_2D  => X"{[8:0]_INIT_2D}",
            INIT_2E  => X"{[8:0]_INIT_2E}",
            INIT_2F  => X"{[8:0]_INIT_2F}",
            INIT_30  => X"{[8:0]_INIT_30}",
            INIT_31  => X"{[8:0]_INIT_31}",
            INIT_32  => X"{[8:0]_INIT_32}",
            INIT_33  => X"{[8:0]_INIT_33}",
            INIT_34  => X"{[8:0]_INIT_34}",
            INIT_35  => X"{[8:0]_INIT_35}",
            INIT_36  => X"{[8:0]_INIT_36}",
            INIT_37  => X"{[8:0]_INIT_37}",
            INIT_38  => X"{[8:0]_INIT_38}",
            INIT_39  => X"{[8:0]_INIT_39}",
            INIT_3A  => X"{[8:0]_INIT_3A}",
            INIT_3B  => X"{[8:0]_INIT_3B}",
            INIT_3C  => X"{[8:0]_INIT_3C}",
            INIT_3D  => X"{[8:0]_INIT_3D}",
            INIT_3E  => X"{[8:0]_INIT_3E}",
            INIT_3F  => X"{[8:0]_INIT_3F}",
            INITP_00 => X"{[8:0]_INITP_00}",
            INITP_01 => X"{[8:0]_INITP_01}",
            INITP_02 => X"{[8:0]_INITP_02}",
            INITP_03 => X"{[8:0]_INITP_03}",
            INITP_04 => X"{[8:0]_INITP_04}",
            INITP_05 => X"{[8:0]_INITP_05}",
            INITP_06 => X"{[8:0]_INITP_06}",
            INITP_07 => X"{[8:0]_INITP_07}"
        )
        port map (
            clk  => clk,
            we   => '0',
            addr => address,
            din  => (others => '0'),
            dout => data(8 downto 0)
        );

    ram_high : entity work.nalvo_ram_2kx9
        generic map (
            INIT_00  => X"{[17:9]_INIT_00}",
            INIT_01  => X"{[17:9]_INIT_01}",
            INIT_02  => X"{[17:9]_INIT_02}",
            INIT_03  => X"{[17:9]_INIT_03}",
            INIT_04  => X"{[17:9]_INIT_04}",
            INIT_05  => X"{[17:9]_INIT_05}",
            INIT_06  => X"{[17:9]_INIT_06}",
            INIT_07  => X"{[17:9]_INIT_07}",
            INIT_08  => X"{[17:9]_INIT_08}",
            INIT_09  => X"{[17:9]_INIT_09}",
            INIT_0A  => X"{[17:9]_INIT_0A}",
            INIT_0B  => X"{[17:9]_INIT_0B}",
            INIT_0C  => X"{[17:9]_INIT_0C}",
            INIT_0D  => X"{[17:9]_INIT_0D}",
            INIT_0E  => X"{[17:9]_INIT_0E}",
            INIT_0F  => X"{[17:9]_INIT_0F}",
            INIT_10  => X"{[17:9]_INIT_10}",
            INIT_11  => X"{[17:9]_INIT_11}",
            INIT_12  => X"{[17:9]_INIT_12}",
            INIT_13  => X"{[17:9]_INIT_13}",
            INIT_14  => X"{[17:9]_INIT_14}",
            INIT_15  => X"{[17:9]_INIT_15}",
            INIT_16  => X"{[17:9]_INIT_16}",
            INIT_17  => X"{[17:9]_INIT_17}",
            INIT_18  => X"{[17:9]_INIT_18}",
            INIT_19  => X"{[17:9]_INIT_19}",
            INIT_1A  => X"{[17:9]_INIT_1A}",
            INIT_1B  => X"{[17:9]_INIT_1B}",
            INIT_1C  => X"{[17:9]_INIT_1C}",
            INIT_1D  => X"{[17:9]_INIT_1D}",
            INIT_1E  => X"{[17:9]_INIT_1E}",
            INIT_1F  => X"{[17:9]_INIT_1F}",
            INIT_20  => X"{[17:9]_INIT_20}",
            INIT_21  => X"{[17:9]_INIT_21}",
            INIT_22  => X"{[17:9]_INIT_22}",
            INIT_23  => X"{[17:9]_INIT_23}",
            INIT_24  => X"{[17:9]_INIT_24}",
            INIT_25  => X"{[17:9]_INIT_25}",
            INIT_26  => X"{[17:9]_INIT_26}",
            INIT_27  => X"{[17:9]_INIT_27}",
            INIT_28  => X"{[17:9]_INIT_28}",
            INIT_29  => X"{[17:9]_INIT_29}",
            INIT_2A  => X"{[17:9]_INIT_2A}",
            INIT_2B  => X"{[17:9]_INIT_2B}",
            INIT_2C  => X"{[17:9]_INIT_2C}",
            INIT_2D  => X"{[17:9]_INIT_2D}",
            INIT_2E  => X"{[17:9]_INIT_2E}",
            INIT_2F  => X"{[17:9]_INIT_2F}",
            INIT_30  => X"{[17:9]_INIT_30}",
            INIT_31  => X"{[17:9]_INIT_31}",
            INIT_32  => X"{[17:9]_INIT_32}",
            INIT_33  => X"{[17:9]_INIT_33}",
            INIT_34  => X"{[17:9]_INIT_34}",
            INIT_35  => X"{[17:9]_INIT_35}",
            INIT_36  => X"{[17:9]_INIT_36}",
            INIT_37  => X"{[17:9]_INIT_37}",
            INIT_38  => X"{[17:9]_INIT_38}",
            INIT_39  => X"{[17:9]_INIT_39}",
            INIT_3A  => X"{[17:9]_INIT_3A}",
            INIT_3B  => X"{[17:9]_INIT_3B}",
            INIT_3C  => X"{[17:9]_INIT_3C}",
            INIT_3D  => X"{[17:9]_INIT_3D}",
            INIT_3E  => X"{[17:9]_INIT_3E}",
            INIT_3F  => X"{[17:9]_INIT_3F}",
            INITP_00 => X"{[17:9]_INITP_00}",
            INITP_01 => X"{[17:9]_INITP_01}",
            INITP_02 => X"{[17:9]_INITP_02}",
            INITP_03 => X"{[17:9]_INITP_03}",
            INITP_04 => X"{[17:9]_INITP_04}",
            INITP_05 => X"{[17:9]_INITP_05}",
            INITP_06 => X"{[17:9]_INITP_06}",
            INITP_07 => X"{[17:9]_INITP_07}"
        )
        port map (
            clk  => clk,
            we   => '0',
            addr => address,
            din  => (others => '0'),
            dout => data(17 downto 9)
        );
end architecture rtl;
