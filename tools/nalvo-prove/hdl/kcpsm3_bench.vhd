-- Runs a program on a PicoBlaze 3 core, which it knows by its ports alone, and prints one line an event.
-- See README.md for the arguments and the lines.

library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;
use std.textio.all;
use work.bench_stimulus.all;

entity kcpsm3_bench is
    generic (
        program         : string  := "";
        reads           : string  := "";
        pulses          : string  := "";
        resets          : string  := "";
        clocks          : integer := 1000;
        start           : integer := 1;     -- clocks from the end of a reset to the first clock of the first instruction
        words           : integer := 1024;
        -- Several pages, which something outside of the core switches: a file says which one is read in which clock.
        pages           : integer := 1;
        page_changes    : string  := "";
        -- Beside the program, two others may run: one before it that prepares the core, and one after it that shows what is
        -- in the core. Both run from a reset, which keeps registers and scratchpad, without any stimulus.
        before          : string  := "";
        before_clocks   : integer := 0;
        after_that      : string  := "";
        after_clocks    : integer := 0;
        -- Only find out how many clocks after a reset the first instruction begins, by a memory full of writes.
        probe           : boolean := false
    );
end entity kcpsm3_bench;

architecture test of kcpsm3_bench is
    signal address        : std_logic_vector(9 downto 0);
    signal instruction    : std_logic_vector(17 downto 0) := (others => '0');
    signal in_port        : std_logic_vector(7 downto 0)  := (others => '0');
    signal out_port       : std_logic_vector(7 downto 0);
    signal port_id        : std_logic_vector(7 downto 0);
    signal write_strobe   : std_logic;
    signal read_strobe    : std_logic;
    signal interrupt      : std_logic := '0';
    signal interrupt_ack  : std_logic;
    signal reset          : std_logic := '1';
    signal clk            : std_logic := '0';

    constant full_size : integer := 1024; -- words that the core can address
    constant write_word : std_logic_vector(17 downto 0) := "10" & X"c000"; -- writes register 0 to port 0

    signal memory  : word_array(0 to full_size * pages - 1) := (others => (others => '0'));
    signal modulus : integer := words; -- words of a page
    signal page    : integer := 0;
    signal at_end  : std_logic := '0'; -- of the program, for those who look at the waves of the core
begin
    core : entity work.kcpsm3
        port map (
            address        => address,
            instruction    => instruction,
            in_port        => in_port,
            out_port       => out_port,
            port_id        => port_id,
            write_strobe   => write_strobe,
            read_strobe    => read_strobe,
            interrupt      => interrupt,
            interrupt_ack  => interrupt_ack,
            reset          => reset,
            clk            => clk
        );

    -- The program memory: a synchronous block RAM
    process (clk)
    begin
        if rising_edge(clk) then
            instruction <= memory(page * modulus + known(address) mod modulus);
        end if;
    end process;

    process
        file reads_file     : text;
        file pulses_file    : text;
        file resets_file    : text;
        file pages_file     : text;
        variable status     : file_open_status;
        variable has_reads  : boolean := false;
        variable has_pulses : boolean := false;
        variable has_resets : boolean := false;
        variable has_pages  : boolean := false;
        variable paging     : pulse; -- the number of the next page is its length
        variable read_value : std_logic_vector(7 downto 0);
        variable request    : pulse;
        variable resetting  : pulse;
        variable was_read   : boolean;

        -- The events. The address of a slot is the one in the clock before it; whether it was executed is known at its end.
        variable fetched    : std_logic_vector(9 downto 0) := (others => '0');
        variable here       : std_logic_vector(9 downto 0) := (others => '0');
        variable in_reset   : boolean := true;
        -- Counts from the first clock of the first slot after a reset; negative before it.
        variable slot_clock : integer := -start;

        procedure observe(clock : in integer) is
        begin
            if reset = '1' then
                if not in_reset and clock >= 0 then
                    report_event("RESET 000", clock);
                end if;
                in_reset := true;
                slot_clock := -start;
                return;
            end if;
            in_reset := false;
            if slot_clock >= 0 and slot_clock mod 2 = 0 then
                here := fetched;
            elsif slot_clock > 0 then
                if interrupt_ack = '1' then
                    report_event("INT " & hex(here), clock - 1);
                else
                    report_event("I " & hex(here), clock - 1);
                end if;
            end if;
            if slot_clock >= 0 then
                if read_strobe = '1' then
                    report_event("R " & hex(port_id) & ' ' & hex(in_port), clock);
                end if;
                if write_strobe = '1' then
                    report_event("W " & hex(port_id) & ' ' & hex(out_port), clock);
                end if;
            end if;
            if slot_clock mod 2 /= 0 then
                fetched := address;
            end if;
            slot_clock := slot_clock + 1;
        end procedure observe;

        -- Four clocks of reset, then the clocks from -start on.
        procedure run_to(last : in integer; aside : in boolean) is
        begin
            in_reset := true;
            slot_clock := -start;
            for clock in -start - 4 to last - 1 loop
                if aside then
                    page <= 0;
                end if;
                while not aside and paging.first <= clock loop
                    page <= paging.past - paging.first;
                    next_pulse(pages_file, has_pages, paging);
                end loop;
                while not aside and request.past <= clock loop
                    next_pulse(pulses_file, has_pulses, request);
                end loop;
                while not aside and resetting.past <= clock loop
                    next_pulse(resets_file, has_resets, resetting);
                end loop;
                interrupt <= '0';
                if not aside and request.first <= clock then
                    interrupt <= '1';
                end if;
                reset <= '0';
                if clock < -start or (not aside and resetting.first <= clock) then
                    reset <= '1';
                end if;
                in_port <= read_value;
                wait for 5 ns;
                observe(clock);
                was_read := read_strobe = '1' and reset = '0';
                clk <= '1';
                wait for 5 ns;
                clk <= '0';
                if was_read and not aside then
                    next_read(reads_file, has_reads, read_value);
                end if;
            end loop;
        end procedure run_to;

        procedure find_start is
            variable found : integer := -1;
        begin
            memory <= (others => write_word);
            for clock in 0 to 67 loop
                reset <= '0';
                if clock < 4 then
                    reset <= '1';
                end if;
                wait for 5 ns;
                if clock >= 4 and found < 0 and write_strobe = '1' then
                    found := clock - 5;
                end if;
                clk <= '1';
                wait for 5 ns;
                clk <= '0';
            end loop;
            report_event("START", found);
        end procedure find_start;
    begin
        if reads'length > 0 then
            file_open(status, reads_file, reads, read_mode);
            has_reads := status = open_ok;
        end if;
        if pulses'length > 0 then
            file_open(status, pulses_file, pulses, read_mode);
            has_pulses := status = open_ok;
        end if;
        if resets'length > 0 then
            file_open(status, resets_file, resets, read_mode);
            has_resets := status = open_ok;
        end if;
        if page_changes'length > 0 then
            file_open(status, pages_file, page_changes, read_mode);
            has_pages := status = open_ok;
        end if;
        next_pulse(pages_file, has_pages, paging);
        next_read(reads_file, has_reads, read_value);
        next_pulse(pulses_file, has_pulses, request);
        next_pulse(resets_file, has_resets, resetting);

        if probe then
            find_start;
            wait;
        end if;
        if before'length > 0 then
            memory <= load_words(before, full_size * pages);
            modulus <= full_size;
            run_to(before_clocks, true);
            report_event("BEGIN", 0);
        end if;
        memory <= (others => (others => '0'));
        memory(0 to words * pages - 1) <= load_words(program, words * pages);
        modulus <= words;
        run_to(clocks, false);
        at_end <= '1';
        if after_that'length > 0 then
            report_event("STATE", 0);
            memory <= load_words(after_that, full_size * pages);
            modulus <= full_size;
            run_to(after_clocks, true);
            report_event("END", 0);
        end if;
        wait;
    end process;
end architecture test;
