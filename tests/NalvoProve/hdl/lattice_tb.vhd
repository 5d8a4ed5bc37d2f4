-- Checks the models of the primitives of a Mico8 against what their users' guides say. Prints PASSED, or what is wrong.

library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;
use std.textio.all;

-- Any library may have them.
library machxo2;
use machxo2.components.all;

entity lattice_tb is
end entity lattice_tb;

architecture test of lattice_tb is
    signal a     : std_logic_vector(7 downto 0) := (others => '0');
    signal not_a : std_logic_vector(7 downto 0);
    signal n     : std_logic_vector(3 downto 0) := (others => '0');
    signal z     : std_logic_vector(10 downto 0);
    signal q     : std_logic_vector(11 downto 0);
    signal clk, d, sp, c, we : std_logic := '0';
    signal en     : std_logic := '1';
    signal data   : std_logic_vector(8 downto 0) := (others => '0');
    signal wa, ra : std_logic_vector(4 downto 0) := (others => '0');
    signal spr, dpr : std_logic_vector(3 downto 0);
    signal ds0, ds1, dd0, dd1, dq0, dq1, dqw, dqr, dp0, dp1 : std_logic_vector(8 downto 0);

    constant truth : std_logic_vector(15 downto 0) := X"6A3C";

    function bit_of(value : std_logic) return natural is
    begin
        if value = '1' then
            return 1;
        end if;
        return 0;
    end function bit_of;

    function initial_of(address : natural) return natural is
    begin
        case address is
            when 0 => return 0;
            when 1 => return 10;
            when others => return address;
        end case;
    end function initial_of;
begin
    not_a <= not a;

    l4 : LUT4 generic map (INIT => X"6A3C") port map (A => a(0), B => a(1), C => a(2), D => a(3), Z => z(0));
    orca : ORCALUT4 generic map (INIT => X"6A3C") port map (A => a(0), B => a(1), C => a(2), D => a(3), Z => z(1));
    pf : PFUMX port map (ALUT => a(0), BLUT => a(1), C0 => a(2), Z => z(2));
    l6 : L6MUX21 port map (D0 => a(0), D1 => a(1), SD => a(2), Z => z(3));
    mux : MUX21 port map (D0 => a(0), D1 => a(1), SD => a(2), Z => z(4));
    inverted : INV port map (A => a(0), Z => z(5));
    both : AND2 port map (A => a(0), B => a(1), Z => z(6));
    any : OR2 port map (A => a(0), B => a(1), Z => z(7));
    odd : XOR2 port map (A => a(0), B => a(1), Z => z(8));
    high : VHI port map (Z => z(9));
    low : VLO port map (Z => z(10));
    f0 : FD1P3AX port map (D => d, SP => sp, CK => clk, Q => q(11));
    f1 : FD1P3AY port map (D => d, SP => sp, CK => clk, Q => q(10));
    f2 : FD1P3BX port map (D => d, SP => sp, CK => clk, PD => c, Q => q(9));
    f3 : FD1P3DX port map (D => d, SP => sp, CK => clk, CD => c, Q => q(8));
    f4 : FD1P3IX port map (D => d, SP => sp, CK => clk, CD => c, Q => q(7));
    f5 : FD1P3JX port map (D => d, SP => sp, CK => clk, PD => c, Q => q(6));
    f6 : FD1S3AX port map (D => d, CK => clk, Q => q(5));
    f7 : FD1S3AY port map (D => d, CK => clk, Q => q(4));
    f8 : FD1S3BX port map (D => d, CK => clk, PD => c, Q => q(3));
    f9 : FD1S3DX port map (D => d, CK => clk, CD => c, Q => q(2));
    f10 : FD1S3IX port map (D => d, CK => clk, CD => c, Q => q(1));
    f11 : FD1S3JX generic map (GSR => "DISABLED") port map (D => d, CK => clk, PD => c, Q => q(0));
    single : SPR16X4C generic map (INITVAL => "0xFEDCBA98765432a0") port map (DI0 => n(0), DI1 => n(1), DI2 => n(2), DI3 => n(3), AD0 => a(0), AD1 => a(1), AD2 => a(2), AD3 => a(3), CK => clk, WRE => we, DO0 => spr(0), DO1 => spr(1), DO2 => spr(2), DO3 => spr(3));
    dual : DPR16X4C generic map (INITVAL => "0xFEDCBA98765432a0") port map (DI0 => n(0), DI1 => n(1), DI2 => n(2), DI3 => n(3), WAD0 => a(0), WAD1 => a(1), WAD2 => a(2), WAD3 => a(3), WCK => clk, WRE => we, RAD0 => not_a(0), RAD1 => not_a(1), RAD2 => not_a(2), RAD3 => not_a(3), DO0 => dpr(0), DO1 => dpr(1), DO2 => dpr(2), DO3 => dpr(3));
    m1 : pmi_distributed_spram generic map (pmi_addr_depth => 32, pmi_addr_width => 5, pmi_data_width => 9, pmi_regmode => "noreg") port map (Address => wa, Data => data, Clock => clk, ClockEn => en, WE => we, Reset => c, Q => ds0);
    m2 : pmi_distributed_spram generic map (pmi_addr_depth => 32, pmi_addr_width => 5, pmi_data_width => 9, pmi_regmode => "reg", pmi_family => "XP2") port map (Address => wa, Data => data, Clock => clk, ClockEn => en, WE => we, Reset => c, Q => ds1);
    m3 : pmi_distributed_dpram generic map (pmi_addr_depth => 32, pmi_addr_width => 5, pmi_data_width => 9, pmi_regmode => "noreg") port map (WrAddress => wa, Data => data, WrClock => clk, WE => we, WrClockEn => en, RdAddress => ra, RdClock => clk, RdClockEn => en, Reset => c, Q => dd0);
    m4 : pmi_distributed_dpram generic map (pmi_addr_depth => 32, pmi_addr_width => 5, pmi_data_width => 9) port map (WrAddress => wa, Data => data, WrClock => clk, WE => we, WrClockEn => en, RdAddress => ra, RdClock => clk, RdClockEn => en, Reset => c, Q => dd1);
    m5 : pmi_ram_dq generic map (pmi_addr_depth => 32, pmi_addr_width => 5, pmi_data_width => 9, pmi_regmode => "noreg") port map (Address => wa, Data => data, Clock => clk, ClockEn => en, WE => we, Reset => c, Q => dq0);
    m6 : pmi_ram_dq generic map (pmi_addr_depth => 32, pmi_addr_width => 5, pmi_data_width => 9, pmi_resetmode => "async") port map (Address => wa, Data => data, Clock => clk, ClockEn => en, WE => we, Reset => c, Q => dq1);
    m7 : pmi_ram_dq generic map (pmi_addr_depth => 32, pmi_addr_width => 5, pmi_data_width => 9, pmi_regmode => "noreg", pmi_write_mode => "writethrough") port map (Address => wa, Data => data, Clock => clk, ClockEn => en, WE => we, Reset => c, Q => dqw);
    m8 : pmi_ram_dq generic map (pmi_addr_depth => 32, pmi_addr_width => 5, pmi_data_width => 9, pmi_regmode => "noreg", pmi_write_mode => "readbeforewrite") port map (Address => wa, Data => data, Clock => clk, ClockEn => en, WE => we, Reset => c, Q => dqr);
    m9 : pmi_ram_dp generic map (pmi_wr_addr_depth => 32, pmi_wr_addr_width => 5, pmi_wr_data_width => 9, pmi_rd_addr_depth => 32, pmi_rd_addr_width => 5, pmi_rd_data_width => 9, pmi_regmode => "noreg") port map (WrAddress => wa, Data => data, WrClock => clk, WE => we, WrClockEn => en, RdAddress => ra, RdClock => clk, RdClockEn => en, Reset => c, Q => dp0);
    ma : pmi_ram_dp generic map (pmi_wr_addr_depth => 32, pmi_wr_addr_width => 5, pmi_wr_data_width => 9, pmi_rd_addr_depth => 32, pmi_rd_addr_width => 5, pmi_rd_data_width => 9) port map (WrAddress => wa, Data => data, WrClock => clk, WE => we, WrClockEn => en, RdAddress => ra, RdClock => clk, RdClockEn => en, Reset => c, Q => dp1);

    process
        variable errors : natural := 0;

        procedure say(text : in string) is
            variable current : line;
        begin
            write(current, text);
            writeline(output, current);
        end procedure say;

        procedure check(name : in string; got : in std_logic_vector; expected : in natural) is
        begin
            if is_x(got) then
                say(name & ": unknown");
                errors := errors + 1;
            elsif to_integer(unsigned(got)) /= expected then
                say(name & ": " & integer'image(to_integer(unsigned(got))) & " instead of " & integer'image(expected));
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

        procedure inputs(new_d, new_sp, new_c : in std_logic) is
        begin
            d <= new_d;
            sp <= new_sp;
            c <= new_c;
            wait for 1 ns;
        end procedure inputs;

        procedure access_cell(write_address, value : in natural; writes : in std_logic; read_address : in natural) is
        begin
            wa <= std_logic_vector(to_unsigned(write_address, 5));
            data <= std_logic_vector(to_unsigned(value, 9));
            we <= writes;
            ra <= std_logic_vector(to_unsigned(read_address, 5));
            tick;
        end procedure access_cell;
    begin
        wait for 1 ns;
        check("initial", q, 1625);
        check("VHI", z(9 downto 9), 1);
        check("VLO", z(10 downto 10), 0);
        for i in 0 to 15 loop
            a <= std_logic_vector(to_unsigned(i, 8));
            wait for 1 ns;
            check("LUT4", z(0 downto 0), bit_of(truth(i)));
            check("ORCALUT4", z(1 downto 1), bit_of(truth(i)));
            check("PFUMX", z(2 downto 2), bit_of(a(2)) * bit_of(a(0)) + (1 - bit_of(a(2))) * bit_of(a(1)));
            check("L6MUX21", z(3 downto 3), bit_of(a(2)) * bit_of(a(1)) + (1 - bit_of(a(2))) * bit_of(a(0)));
            check("MUX21", z(4 downto 4), bit_of(a(2)) * bit_of(a(1)) + (1 - bit_of(a(2))) * bit_of(a(0)));
            check("INV", z(5 downto 5), 1 - bit_of(a(0)));
            check("AND2", z(6 downto 6), bit_of(a(0)) * bit_of(a(1)));
            check("OR2", z(7 downto 7), bit_of(a(0)) + bit_of(a(1)) - bit_of(a(0)) * bit_of(a(1)));
            check("XOR2", z(8 downto 8), abs (bit_of(a(0)) - bit_of(a(1))));
            check("SPR16X4C initial", spr, initial_of(i));
            check("DPR16X4C initial", dpr, initial_of(15 - i));
        end loop;
        -- Flip-flops
        inputs('1', '1', '0');
        check("no clock", q, 1625);
        tick;
        check("set", q, 4095);
        inputs('0', '1', '0');
        wait for 1 ns;
        clk <= '0';
        wait for 1 ns;
        check("falling edge", q, 4095);
        inputs('1', '1', '0');
        tick;
        inputs('0', '0', '0');
        tick;
        check("enable", q, 4032);
        inputs('1', '0', '0');
        tick;
        inputs('0', '1', '0');
        tick;
        check("clear", q, 0);
        inputs('0', '0', '1');
        check("asynchronous preset", q, 520);
        tick;
        check("synchronous preset over enable", q, 585);
        inputs('1', '1', '0');
        tick;
        check("all set", q, 4095);
        inputs('1', '0', '1');
        check("asynchronous clear", q, 3835);
        tick;
        check("synchronous clear over enable", q, 3705);
        inputs('1', '1', '1');
        tick;
        check("clear over data", q, 3705);
        inputs('0', '1', '1');
        tick;
        check("preset over data", q, 585);
        inputs('0', '0', '0');
        -- Distributed memories
        for i in 0 to 15 loop
            a <= std_logic_vector(to_unsigned(i, 8));
            n <= std_logic_vector(to_unsigned(15 - i, 4));
            we <= '1';
            tick;
            we <= '0';
            n <= std_logic_vector(to_unsigned(i, 4));
            tick;
            we <= '1';
            wait for 1 ns;
            clk <= '0';
            wait for 1 ns;
            we <= '0';
        end loop;
        for i in 0 to 15 loop
            a <= std_logic_vector(to_unsigned(i, 8));
            wait for 1 ns;
            check("SPR16X4C", spr, 15 - i);
            check("DPR16X4C", dpr, i);
        end loop;
        -- Memories with parameters: 1 to 31 get three times their address.
        for i in 1 to 31 loop
            access_cell(i, i * 3, '1', 0);
        end loop;
        access_cell(0, 426, '0', 5);
        check("spram", ds0, 0);
        check("dpram", dd0, 15);
        access_cell(7, 426, '0', 9);
        check("spram", ds0, 21);
        check("spram reg", ds1, 21);
        check("dpram", dd0, 27);
        check("dpram reg", dd1, 27);
        check("dq", dq0, 21);
        check("dq reg is later", dq1, 0);
        check("dp", dp0, 27);
        check("dp reg is later", dp1, 15);
        wa <= std_logic_vector(to_unsigned(8, 5));
        ra <= std_logic_vector(to_unsigned(10, 5));
        wait for 1 ns;
        check("spram at once", ds0, 24);
        check("spram reg waits", ds1, 21);
        check("dpram at once", dd0, 30);
        check("dpram reg waits", dd1, 27);
        check("dq waits", dq0, 21);
        check("dp waits", dp0, 27);
        tick;
        check("dq", dq0, 24);
        check("dq reg", dq1, 21);
        check("dp", dp0, 30);
        check("dp reg", dp1, 27);
        -- A write: what the output of one port shows
        access_cell(12, 341, '1', 12);
        check("normal holds", dq0, 24);
        check("writethrough", dqw, 341);
        check("readbeforewrite", dqr, 36);
        check("dp before the write", dp0, 36);
        access_cell(12, 0, '0', 12);
        check("written", dq0, 341);
        check("written", dp0, 341);
        check("written", ds0, 341);
        check("written", dd0, 341);
        -- Without the enable of the clock nothing happens.
        en <= '0';
        access_cell(13, 240, '1', 13);
        check("dq disabled", dq0, 341);
        check("spram disabled", ds1, 341);
        check("dp disabled", dp0, 341);
        check("not written", ds0, 39);
        en <= '1';
        -- A reset clears outputs, not cells.
        c <= '1';
        wait for 1 ns;
        check("synchronous", dq0, 341);
        check("asynchronous", dq1, 0);
        access_cell(13, 0, '0', 13);
        check("dq reset", dq0, 0);
        check("dp reset", dp0, 0);
        check("dp reg reset", dp1, 0);
        check("spram reg reset", ds1, 0);
        check("dpram reg reset", dd1, 0);
        check("spram cells", ds0, 39);
        c <= '0';
        tick;
        check("dq cells", dq0, 39);
        -- The falling edge writes and reads nothing.
        wa <= std_logic_vector(to_unsigned(14, 5));
        ra <= std_logic_vector(to_unsigned(14, 5));
        data <= "111111111";
        we <= '1';
        wait for 1 ns;
        clk <= '0';
        wait for 1 ns;
        we <= '0';
        wait for 1 ns;
        check("spram cells", ds0, 42);
        check("dpram cells", dd0, 42);
        check("dq waits", dq0, 39);
        check("dp waits", dp0, 39);
        tick;
        check("dq cells", dq0, 42);
        check("dp cells", dp0, 42);
        if errors = 0 then
            say("PASSED");
        end if;
        wait;
    end process;
end architecture test;
