-- Reads the whole program memory and compares it with the hex file of the same run.

library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;
use std.textio.all;

entity check_tb is
    generic (HEX_FILE : string);
end entity check_tb;

architecture sim of check_tb is
    signal clk     : std_logic := '0';
    signal address : std_logic_vector(9 downto 0) := (others => '0');
    signal data    : std_logic_vector(17 downto 0);

    -- The value of a hexadecimal digit.
    function digit(c : character) return natural is
    begin
        case c is
            when '0' to '9' => return character'pos(c) - character'pos('0');
            when 'A' to 'F' => return character'pos(c) - character'pos('A') + 10;
            when others => report "no hexadecimal digit in the hex file" severity failure;
        end case;
        return 0;
    end function digit;
begin
    memory : entity work.check_rom
        port map (clk => clk, address => address, data => data);

    check : process
        file words         : text open read_mode is HEX_FILE;
        variable one       : line;
        variable expected  : natural;
        variable wrong     : natural := 0;
        variable addresses : natural := 0;
    begin
        while not endfile(words) loop
            readline(words, one);
            expected := 0;
            for i in 1 to 5 loop
                expected := expected * 16 + digit(one(i));
            end loop;
            address <= std_logic_vector(to_unsigned(addresses, 10));
            clk <= '0';
            wait for 5 ns;
            clk <= '1';
            wait for 5 ns;
            if data /= std_logic_vector(to_unsigned(expected, 18)) then
                wrong := wrong + 1;
                report "address " & integer'image(addresses) & ": the memory differs from the hex file" severity note;
            end if;
            addresses := addresses + 1;
        end loop;
        assert addresses = 1024 report "the hex file does not hold 1024 words" severity failure;
        assert wrong = 0 report integer'image(wrong) & " words differ" severity failure;
        wait;
    end process check;
end architecture sim;
