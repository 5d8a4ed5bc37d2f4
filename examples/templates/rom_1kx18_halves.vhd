-- Template: program memory of 1024 x 18 bits in two RAMs of 9 bits, 8 data bits and 1 parity bit a word each
--
-- nalvo_ram_1kx9 stands for a block RAM set to 1024 words of 8 data bits and 1 parity bit.
-- Put the primitive of your device in its place: such primitives take their first contents from generics
-- INIT_xx (data) and INITP_xx (parity) of 256 bits each, the lowest address in the lowest bits, as filled here.
--
-- All lines down to the next one are left out of the output file.
-- {BEGIN TEMPLATE}
-- {NAME}: program memory, 1024 x 18 bits in two RAMs of 9 bits
-- Made by the assembler, do not edit.
--
-- Date:    {TIMESTAMP}
-- Project: {PROJECTTITLE}
-- Version: {PROJECTVERSION}
-- File:    {PROJECTFILENAME}

library ieee;
use ieee.std_logic_1164.all;

entity {NAME} is
    port (
        clk     : in  std_logic;
        address : in  std_logic_vector(9 downto 0);
        data    : out std_logic_vector(17 downto 0)
    );
end entity {NAME};

architecture rtl of {NAME} is
begin
    ram_low : entity work.nalvo_ram_1kx9
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
            INITP_00 => X"{[8:0]_INITP_00}",
            INITP_01 => X"{[8:0]_INITP_01}",
            INITP_02 => X"{[8:0]_INITP_02}",
            INITP_03 => X"{[8:0]_INITP_03}"
        )
        port map (
            clk  => clk,
            we   => '0',
            addr => address,
            din  => (others => '0'),
            dout => data(8 downto 0)
        );

    ram_high : entity work.nalvo_ram_1kx9
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
            INITP_00 => X"{[17:9]_INITP_00}",
            INITP_01 => X"{[17:9]_INITP_01}",
            INITP_02 => X"{[17:9]_INITP_02}",
            INITP_03 => X"{[17:9]_INITP_03}"
        )
        port map (
            clk  => clk,
            we   => '0',
            addr => address,
            din  => (others => '0'),
            dout => data(17 downto 9)
        );
end architecture rtl;
