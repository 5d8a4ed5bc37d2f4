-- What the RAM models share: a synchronous single-port memory whose first contents come from lines of 256 bits.

package nalvo_ram_types is
    subtype ram_line is bit_vector(255 downto 0);
    type ram_lines is array (natural range <>) of ram_line;
    constant NO_LINE : ram_line := (others => '0');
end package nalvo_ram_types;

library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;
use work.nalvo_ram_types.all;

entity nalvo_ram_core is
    generic (
        ADDR_BITS   : positive;
        DATA_BITS   : positive;
        PARITY_BITS : positive;
        INIT        : ram_lines;
        INITP       : ram_lines
    );
    port (
        clk  : in  std_logic;
        we   : in  std_logic;
        addr : in  std_logic_vector(ADDR_BITS - 1 downto 0);
        din  : in  std_logic_vector(DATA_BITS + PARITY_BITS - 1 downto 0);
        dout : out std_logic_vector(DATA_BITS + PARITY_BITS - 1 downto 0)
    );
end entity nalvo_ram_core;

architecture model of nalvo_ram_core is
    subtype word is std_logic_vector(DATA_BITS + PARITY_BITS - 1 downto 0);
    constant DEPTH : positive := 2 ** ADDR_BITS;
    type memory is array (0 to DEPTH - 1) of word;

    -- Bit number "index" of all lines put side by side, line 0 in the lowest bits.
    function bit_of(lines : ram_lines; index : natural) return std_logic is
    begin
        if lines(lines'left + index / 256)(index mod 256) = '1' then
            return '1';
        end if;
        return '0';
    end function bit_of;

    function first_contents return memory is
        variable contents : memory;
    begin
        for a in memory'range loop
            for b in 0 to DATA_BITS - 1 loop
                contents(a)(b) := bit_of(INIT, a * DATA_BITS + b);
            end loop;
            for b in 0 to PARITY_BITS - 1 loop
                contents(a)(DATA_BITS + b) := bit_of(INITP, a * PARITY_BITS + b);
            end loop;
        end loop;
        return contents;
    end function first_contents;
begin
    process (clk)
        variable contents : memory := first_contents;
    begin
        if rising_edge(clk) then
            if is_x(addr) then
                dout <= (others => 'X');
            else
                dout <= contents(to_integer(unsigned(addr)));
                if we = '1' then
                    contents(to_integer(unsigned(addr))) := din;
                end if;
            end if;
        end if;
    end process;
end architecture model;
