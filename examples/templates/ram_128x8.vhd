-- Template: data memory of 128 x 8 bits with a write port
--
-- nalvo_ram_1kx9 stands for a block RAM set to 1024 words of 8 data bits and 1 parity bit.
-- Put the primitive of your device in its place: such primitives take their first contents from generics
-- INIT_xx (data) and INITP_xx (parity) of 256 bits each, the lowest address in the lowest bits, as filled here.
-- Only the first 128 words are used, so the parity bits and the further INIT_xx stay zero.
--
-- All lines down to the next one are left out of the output file.
-- {BEGIN TEMPLATE}
-- {NAME}: data memory, 128 x 8 bits
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
        address : in  std_logic_vector(6 downto 0);
        we      : in  std_logic;
        din     : in  std_logic_vector(7 downto 0);
        data    : out std_logic_vector(7 downto 0)
    );
end entity {NAME};

architecture rtl of {NAME} is
    signal ram_addr : std_logic_vector(9 downto 0);
    signal ram_din  : std_logic_vector(8 downto 0);
    signal ram_dout : std_logic_vector(8 downto 0);
begin
    ram_addr <= "000" & address;
    ram_din  <= '0' & din;
    data     <= ram_dout(7 downto 0);

    ram : entity work.nalvo_ram_1kx9
        generic map (
            INIT_00  => X"{[8:0]_INIT_00}",
            INIT_01  => X"{[8:0]_INIT_01}",
            INIT_02  => X"{[8:0]_INIT_02}",
            INIT_03  => X"{[8:0]_INIT_03}"
        )
        port map (
            clk  => clk,
            we   => we,
            addr => ram_addr,
            din  => ram_din,
            dout => ram_dout
        );
end architecture rtl;
