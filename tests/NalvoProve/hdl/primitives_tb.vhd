-- Checks the models of the primitives against what their users' guides say. Prints PASSED, or what is wrong.

library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;
use std.textio.all;
library unisim;
use unisim.vcomponents.all;

entity primitives_tb is
end entity primitives_tb;

architecture test of primitives_tb is
    constant bits_1 : bit_vector(1 downto 0) := "10";
    constant bits_2 : bit_vector(3 downto 0) := "1000";
    constant bits_3 : bit_vector(7 downto 0) := "11001010";
    constant bits_4 : bit_vector(15 downto 0) := "0110101000111100";
    constant bits_5 : bit_vector(31 downto 0) := "00011011010111101001001111000111";
    constant bits_6 : bit_vector(63 downto 0) := "1101001010100100111100011001110000111011011000001000011101011110";
    signal a, na : std_logic_vector(7 downto 0) := X"00";
    signal clk, ce, d, nd, r, s, we : std_logic := '0';
    signal di, ndi, da, db, dc, dd : std_logic_vector(1 downto 0) := "00";
    signal o_lut1, o_lut2, o_lut3, o_lut4, o_lut5, o_lut6, o5, o6, q_fd, q_fde, q_fdr, q_fdre, q_fds, q_fdse, q_fdrs, q_fdrse, q_fdc, q_fdce, q_fdp, q_fdpe, o_muxcy, o_xorcy, o_muxf5, o_muxf6, o_muxf7, o_muxf8, o_inv, o_s4, o_s5, o_s6, o_s7, o_s8, o_sp4, o_dp4, o_sp5, o_dp5, o_sp6, o_dp6, o_sp7, o_dp7, o_ea, o_eb, o_ec, o_ed : std_logic;

    function bit_of(is_set : boolean) return std_logic is
    begin
        if is_set then
            return '1';
        end if;
        return '0';
    end function bit_of;
begin
    na <= not a;
    nd <= not d;
    ndi <= not di;
    l1 : LUT1 generic map (INIT => "10") port map (O => o_lut1, I0 => a(0));
    l2 : LUT2 generic map (INIT => "1000") port map (O => o_lut2, I0 => a(0), I1 => a(1));
    l3 : LUT3 generic map (INIT => "11001010") port map (O => o_lut3, I0 => a(0), I1 => a(1), I2 => a(2));
    l4 : LUT4 generic map (INIT => "0110101000111100") port map (O => o_lut4, I0 => a(0), I1 => a(1), I2 => a(2), I3 => a(3));
    l5 : LUT5 generic map (INIT => "00011011010111101001001111000111") port map (O => o_lut5, I0 => a(0), I1 => a(1), I2 => a(2), I3 => a(3), I4 => a(4));
    l6 : LUT6 generic map (INIT => "1101001010100100111100011001110000111011011000001000011101011110") port map (O => o_lut6, I0 => a(0), I1 => a(1), I2 => a(2), I3 => a(3), I4 => a(4), I5 => a(5));
    l62 : LUT6_2 generic map (INIT => "1101001010100100111100011001110000111011011000001000011101011110") port map (O5 => o5, O6 => o6, I0 => a(0), I1 => a(1), I2 => a(2), I3 => a(3), I4 => a(4), I5 => a(5));
    ff_fd : FD port map (Q => q_fd, C => clk, D => d);
    ff_fde : FDE port map (Q => q_fde, C => clk, D => d, CE => ce);
    ff_fdr : FDR port map (Q => q_fdr, C => clk, D => d, R => r);
    ff_fdre : FDRE port map (Q => q_fdre, C => clk, D => d, CE => ce, R => r);
    ff_fds : FDS port map (Q => q_fds, C => clk, D => d, S => s);
    ff_fdse : FDSE port map (Q => q_fdse, C => clk, D => d, CE => ce, S => s);
    ff_fdrs : FDRS port map (Q => q_fdrs, C => clk, D => d, R => r, S => s);
    ff_fdrse : FDRSE port map (Q => q_fdrse, C => clk, D => d, CE => ce, R => r, S => s);
    ff_fdc : FDC port map (Q => q_fdc, C => clk, D => d, CLR => r);
    ff_fdce : FDCE port map (Q => q_fdce, C => clk, D => d, CE => ce, CLR => r);
    ff_fdp : FDP port map (Q => q_fdp, C => clk, D => d, PRE => s);
    ff_fdpe : FDPE port map (Q => q_fdpe, C => clk, D => d, CE => ce, PRE => s);
    u_muxcy : MUXCY port map (O => o_muxcy, CI => a(0), DI => a(1), S => a(2));
    u_xorcy : XORCY port map (O => o_xorcy, CI => a(0), LI => a(1));
    u_muxf5 : MUXF5 port map (O => o_muxf5, I0 => a(0), I1 => a(1), S => a(2));
    u_muxf6 : MUXF6 port map (O => o_muxf6, I0 => a(0), I1 => a(1), S => a(2));
    u_muxf7 : MUXF7 port map (O => o_muxf7, I0 => a(0), I1 => a(1), S => a(2));
    u_muxf8 : MUXF8 port map (O => o_muxf8, I0 => a(0), I1 => a(1), S => a(2));
    u_inv : INV port map (O => o_inv, I => a(0));
    s4 : RAM16X1S generic map (INIT => "0000000000001001") port map (O => o_s4, A0 => a(0), A1 => a(1), A2 => a(2), A3 => a(3), D => d, WCLK => clk, WE => we);
    s5 : RAM32X1S generic map (INIT => "00000000000000000000000000001001") port map (O => o_s5, A0 => a(0), A1 => a(1), A2 => a(2), A3 => a(3), A4 => a(4), D => d, WCLK => clk, WE => we);
    s6 : RAM64X1S generic map (INIT => "0000000000000000000000000000000000000000000000000000000000001001") port map (O => o_s6, A0 => a(0), A1 => a(1), A2 => a(2), A3 => a(3), A4 => a(4), A5 => a(5), D => d, WCLK => clk, WE => we);
    s7 : RAM128X1S generic map (INIT => "00000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000001001") port map (O => o_s7, A0 => a(0), A1 => a(1), A2 => a(2), A3 => a(3), A4 => a(4), A5 => a(5), A6 => a(6), D => d, WCLK => clk, WE => we);
    s8 : RAM256X1S generic map (INIT => "0000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000001001") port map (O => o_s8, A => a, D => d, WCLK => clk, WE => we);
    d4 : RAM16X1D generic map (INIT => "0000000000001001") port map (SPO => o_sp4, DPO => o_dp4, A0 => a(0), DPRA0 => na(0), A1 => a(1), DPRA1 => na(1), A2 => a(2), DPRA2 => na(2), A3 => a(3), DPRA3 => na(3), D => d, WCLK => clk, WE => we);
    d5 : RAM32X1D generic map (INIT => "00000000000000000000000000001001") port map (SPO => o_sp5, DPO => o_dp5, A0 => a(0), DPRA0 => na(0), A1 => a(1), DPRA1 => na(1), A2 => a(2), DPRA2 => na(2), A3 => a(3), DPRA3 => na(3), A4 => a(4), DPRA4 => na(4), D => d, WCLK => clk, WE => we);
    d6 : RAM64X1D generic map (INIT => "0000000000000000000000000000000000000000000000000000000000001001") port map (SPO => o_sp6, DPO => o_dp6, A0 => a(0), DPRA0 => na(0), A1 => a(1), DPRA1 => na(1), A2 => a(2), DPRA2 => na(2), A3 => a(3), DPRA3 => na(3), A4 => a(4), DPRA4 => na(4), A5 => a(5), DPRA5 => na(5), D => d, WCLK => clk, WE => we);
    d7 : RAM128X1D generic map (INIT => "00000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000000001001") port map (SPO => o_sp7, DPO => o_dp7, A => a(6 downto 0), DPRA => na(6 downto 0), D => d, WCLK => clk, WE => we);
    m32 : RAM32M generic map (INIT_A => X"0000000000000009", INIT_B => X"0000000000000004") port map (DOA => da, DOB => db, DOC => dc, DOD => dd,
        ADDRA => a(4 downto 0), ADDRB => "00001", ADDRC => "11111", ADDRD => a(4 downto 0), DIA => di, DIB => ndi, DIC => di, DID => di,
        WCLK => clk, WE => we);
    m64 : RAM64M generic map (INIT_A => X"0000000000000009", INIT_B => X"0000000000000002") port map (DOA => o_ea, DOB => o_eb, DOC => o_ec, DOD => o_ed,
        ADDRA => a(5 downto 0), ADDRB => "000001", ADDRC => "111111", ADDRD => a(5 downto 0), DIA => d, DIB => nd, DIC => d, DID => d,
        WCLK => clk, WE => we);

    process
        variable errors : natural := 0;
        variable pins   : std_logic_vector(3 downto 0);
        variable e_fd, e_fde, e_fdr, e_fdre, e_fds, e_fdse, e_fdrs, e_fdrse, e_fdc, e_fdce, e_fdp, e_fdpe : std_logic := '0';

        procedure say(text : in string) is
            variable current : line;
        begin
            write(current, text);
            writeline(output, current);
        end procedure say;

        procedure check(name : in string; got : in std_logic; expected : in std_logic; i : in integer) is
        begin
            if got /= expected then
                say(name & ": " & std_logic'image(got) & " at " & integer'image(i));
                errors := errors + 1;
            end if;
        end procedure check;

        procedure tick is
        begin
            wait for 1 ns;
            clk <= '0';
            wait for 1 ns;
            clk <= '1';
            wait for 1 ns;
        end procedure tick;
    begin
        -- Power-up: those that are set by a pin start as 1, if they can not be reset.
        e_fds := '1';
        e_fdse := '1';
        e_fdp := '1';
        e_fdpe := '1';
        wait for 1 ns;
        for i in 0 to 0 loop
            check("FD", q_fd, e_fd, i);
            check("FDE", q_fde, e_fde, i);
            check("FDR", q_fdr, e_fdr, i);
            check("FDRE", q_fdre, e_fdre, i);
            check("FDS", q_fds, e_fds, i);
            check("FDSE", q_fdse, e_fdse, i);
            check("FDRS", q_fdrs, e_fdrs, i);
            check("FDRSE", q_fdrse, e_fdrse, i);
            check("FDC", q_fdc, e_fdc, i);
            check("FDCE", q_fdce, e_fdce, i);
            check("FDP", q_fdp, e_fdp, i);
            check("FDPE", q_fdpe, e_fdpe, i);
        end loop;
        for i in 0 to 255 loop
            a <= std_logic_vector(to_unsigned(i, 8));
            wait for 1 ns;
            check("LUT1", o_lut1, to_stdulogic(bits_1(i mod 2)), i);
            check("LUT2", o_lut2, to_stdulogic(bits_2(i mod 4)), i);
            check("LUT3", o_lut3, to_stdulogic(bits_3(i mod 8)), i);
            check("LUT4", o_lut4, to_stdulogic(bits_4(i mod 16)), i);
            check("LUT5", o_lut5, to_stdulogic(bits_5(i mod 32)), i);
            check("LUT6", o_lut6, to_stdulogic(bits_6(i mod 64)), i);
            check("LUT6_2 O6", o6, to_stdulogic(bits_6(i mod 64)), i);
            check("LUT6_2 O5", o5, to_stdulogic(bits_6(i mod 32)), i);
            check("MUXCY", o_muxcy, bit_of((((i / 4) mod 2 = 1) and (i mod 2 = 1)) or (not ((i / 4) mod 2 = 1) and ((i / 2) mod 2 = 1))), i);
            check("XORCY", o_xorcy, bit_of((i mod 2 = 1) xor ((i / 2) mod 2 = 1)), i);
            check("INV", o_inv, bit_of(not (i mod 2 = 1)), i);
            check("MUXF5", o_muxf5, bit_of((((i / 4) mod 2 = 1) and ((i / 2) mod 2 = 1)) or (not ((i / 4) mod 2 = 1) and (i mod 2 = 1))), i);
            check("MUXF6", o_muxf6, bit_of((((i / 4) mod 2 = 1) and ((i / 2) mod 2 = 1)) or (not ((i / 4) mod 2 = 1) and (i mod 2 = 1))), i);
            check("MUXF7", o_muxf7, bit_of((((i / 4) mod 2 = 1) and ((i / 2) mod 2 = 1)) or (not ((i / 4) mod 2 = 1) and (i mod 2 = 1))), i);
            check("MUXF8", o_muxf8, bit_of((((i / 4) mod 2 = 1) and ((i / 2) mod 2 = 1)) or (not ((i / 4) mod 2 = 1) and (i mod 2 = 1))), i);
            -- The contents at the start: 1 at the addresses 0 and 3.
            check("RAM16X1S", o_s4, bit_of(i mod 16 = 0 or i mod 16 = 3), i);
            check("RAM32X1S", o_s5, bit_of(i mod 32 = 0 or i mod 32 = 3), i);
            check("RAM64X1S", o_s6, bit_of(i mod 64 = 0 or i mod 64 = 3), i);
            check("RAM128X1S", o_s7, bit_of(i mod 128 = 0 or i mod 128 = 3), i);
            check("RAM256X1S", o_s8, bit_of(i mod 256 = 0 or i mod 256 = 3), i);
            check("RAM16X1D S", o_sp4, bit_of(i mod 16 = 0 or i mod 16 = 3), i);
            check("RAM16X1D D", o_dp4, bit_of(i mod 16 = 15 or i mod 16 = 12), i);
            check("RAM32X1D S", o_sp5, bit_of(i mod 32 = 0 or i mod 32 = 3), i);
            check("RAM32X1D D", o_dp5, bit_of(i mod 32 = 31 or i mod 32 = 28), i);
            check("RAM64X1D S", o_sp6, bit_of(i mod 64 = 0 or i mod 64 = 3), i);
            check("RAM64X1D D", o_dp6, bit_of(i mod 64 = 63 or i mod 64 = 60), i);
            check("RAM128X1D S", o_sp7, bit_of(i mod 128 = 0 or i mod 128 = 3), i);
            check("RAM128X1D D", o_dp7, bit_of(i mod 128 = 127 or i mod 128 = 124), i);
            check("RAM32M A0", da(0), bit_of(i mod 32 = 0), i);
            check("RAM32M A1", da(1), bit_of(i mod 32 = 1), i);
            check("RAM32M B0", db(0), '1', i);
            check("RAM32M B1", db(1), '0', i);
            check("RAM64M A", o_ea, bit_of(i mod 64 = 0 or i mod 64 = 3), i);
            check("RAM64M B", o_eb, '1', i);
        end loop;
        -- Flip-flops: all pins, in an order in which each sees both states.
        for i in 0 to 255 loop
            pins := std_logic_vector(to_unsigned((i * 5 + i / 3 + i / 11) mod 16, 4));
            s <= pins(3);
            r <= pins(2);
            d <= pins(1);
            ce <= pins(0);
            wait for 1 ns;
            -- Those pins need no clock.
            if r = '1' then
                e_fdc := '0';
                e_fdce := '0';
            end if;
            if s = '1' then
                e_fdp := '1';
                e_fdpe := '1';
            end if;
            check("FD", q_fd, e_fd, i);
            check("FDE", q_fde, e_fde, i);
            check("FDR", q_fdr, e_fdr, i);
            check("FDRE", q_fdre, e_fdre, i);
            check("FDS", q_fds, e_fds, i);
            check("FDSE", q_fdse, e_fdse, i);
            check("FDRS", q_fdrs, e_fdrs, i);
            check("FDRSE", q_fdrse, e_fdrse, i);
            check("FDC", q_fdc, e_fdc, i);
            check("FDCE", q_fdce, e_fdce, i);
            check("FDP", q_fdp, e_fdp, i);
            check("FDPE", q_fdpe, e_fdpe, i);
            tick;
            e_fd := d;
            e_fdr := d and not r;
            e_fds := d or s;
            e_fdrs := not r and (s or d);
            if ce = '1' then
                e_fde := d;
                e_fdre := d;
                e_fdse := d;
                e_fdrse := d;
            end if;
            if s = '1' then
                e_fdse := '1';
                e_fdrse := '1';
            end if;
            if r = '1' then
                e_fdre := '0';
                e_fdrse := '0';
            else
                e_fdc := d;
                if ce = '1' then
                    e_fdce := d;
                end if;
            end if;
            if s = '0' then
                e_fdp := d;
                if ce = '1' then
                    e_fdpe := d;
                end if;
            end if;
            check("FD", q_fd, e_fd, i);
            check("FDE", q_fde, e_fde, i);
            check("FDR", q_fdr, e_fdr, i);
            check("FDRE", q_fdre, e_fdre, i);
            check("FDS", q_fds, e_fds, i);
            check("FDSE", q_fdse, e_fdse, i);
            check("FDRS", q_fdrs, e_fdrs, i);
            check("FDRSE", q_fdrse, e_fdrse, i);
            check("FDC", q_fdc, e_fdc, i);
            check("FDCE", q_fdce, e_fdce, i);
            check("FDP", q_fdp, e_fdp, i);
            check("FDPE", q_fdpe, e_fdpe, i);
            -- The falling edge is none of theirs.
            s <= '0';
            r <= '0';
            d <= not d;
            ce <= '1';
            wait for 1 ns;
            clk <= '0';
            wait for 1 ns;
        end loop;
        -- Memories: a pattern in all cells, and nothing without the enable or at the falling edge.
        for i in 0 to 255 loop
            a <= std_logic_vector(to_unsigned(i, 8));
            d <= bit_of(i mod 3 = 0);
            di <= std_logic_vector(to_unsigned(i mod 3, 2));
            we <= '1';
            tick;
            we <= '0';
            d <= bit_of(i mod 3 /= 0);
            di <= std_logic_vector(to_unsigned(3 - i mod 3, 2));
            tick;
            we <= '1';
            wait for 1 ns;
            clk <= '0';
            wait for 1 ns;
            we <= '0';
        end loop;
        for i in 0 to 255 loop
            a <= std_logic_vector(to_unsigned(i, 8));
            wait for 1 ns;
            check("RAM16X1S", o_s4, bit_of((256 - 16 + i mod 16) mod 3 = 0), i);
            check("RAM32X1S", o_s5, bit_of((256 - 32 + i mod 32) mod 3 = 0), i);
            check("RAM64X1S", o_s6, bit_of((256 - 64 + i mod 64) mod 3 = 0), i);
            check("RAM128X1S", o_s7, bit_of((256 - 128 + i mod 128) mod 3 = 0), i);
            check("RAM256X1S", o_s8, bit_of((256 - 256 + i mod 256) mod 3 = 0), i);
            check("RAM16X1D S", o_sp4, bit_of((256 - 16 + i mod 16) mod 3 = 0), i);
            check("RAM16X1D D", o_dp4, bit_of((255 - i mod 16) mod 3 = 0), i);
            check("RAM32X1D S", o_sp5, bit_of((256 - 32 + i mod 32) mod 3 = 0), i);
            check("RAM32X1D D", o_dp5, bit_of((255 - i mod 32) mod 3 = 0), i);
            check("RAM64X1D S", o_sp6, bit_of((256 - 64 + i mod 64) mod 3 = 0), i);
            check("RAM64X1D D", o_dp6, bit_of((255 - i mod 64) mod 3 = 0), i);
            check("RAM128X1D S", o_sp7, bit_of((256 - 128 + i mod 128) mod 3 = 0), i);
            check("RAM128X1D D", o_dp7, bit_of((255 - i mod 128) mod 3 = 0), i);
            check("RAM32M", da(0), bit_of((((224 + i mod 32) mod 3) / 1) mod 2 = 1), i);
            check("RAM32M", da(1), bit_of((((224 + i mod 32) mod 3) / 2) mod 2 = 1), i);
            check("RAM32M", db(0), bit_of(((3 - 225 mod 3) / 1) mod 2 = 1), i);
            check("RAM32M", db(1), bit_of(((3 - 225 mod 3) / 2) mod 2 = 1), i);
            check("RAM32M", dc(0), bit_of(((255 mod 3) / 1) mod 2 = 1), i);
            check("RAM32M", dc(1), bit_of(((255 mod 3) / 2) mod 2 = 1), i);
            check("RAM32M", dd(0), bit_of((((224 + i mod 32) mod 3) / 1) mod 2 = 1), i);
            check("RAM32M", dd(1), bit_of((((224 + i mod 32) mod 3) / 2) mod 2 = 1), i);
            check("RAM64M A", o_ea, bit_of((192 + i mod 64) mod 3 = 0), i);
            check("RAM64M B", o_eb, bit_of(193 mod 3 /= 0), i);
            check("RAM64M C", o_ec, bit_of(255 mod 3 = 0), i);
            check("RAM64M D", o_ed, bit_of((192 + i mod 64) mod 3 = 0), i);
        end loop;
        if errors = 0 then
            say("PASSED");
        end if;
        wait;
    end process;
end architecture test;
