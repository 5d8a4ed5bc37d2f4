-- Runs a program on a Mico8 core, which it knows by its ports alone, and prints one line an event.
-- See README.md for the arguments and the lines.

library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;
use std.textio.all;
use work.bench_stimulus.all;

entity lm8_bench is
    generic (
        program         : string  := "";
        reads           : string  := "";
        pulses          : string  := "";
        resets          : string  := "";
        clocks          : integer := 1000;
        start           : integer := 1;    -- clocks from the end of a reset to the first clock of the first instruction
        waits           : integer := 0;    -- wait states of each access
        registers       : integer := 32;
        scratchpad_size : integer := 32;
        address_bits    : integer := 8;
        words           : integer := 4096;
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
end entity lm8_bench;

architecture test of lm8_bench is
    signal clk        : std_logic := '0';
    signal rst_n      : std_logic := '0';
    signal prom_addr  : std_logic_vector(11 downto 0);
    signal prom_en    : std_logic;
    signal prom_data  : std_logic_vector(17 downto 0) := (others => '0'); -- 0 at power-up
    signal ext_addr   : std_logic_vector(address_bits - 1 downto 0);
    signal ext_dout   : std_logic_vector(7 downto 0);
    signal ext_io_wr  : std_logic;
    signal ext_io_rd  : std_logic;
    signal ext_io_din : std_logic_vector(7 downto 0) := (others => '0');
    signal ext_ready  : std_logic := '1';
    signal interrupt  : std_logic := '0';
    signal intr_ack   : std_logic;

    constant full_size : integer := 4096; -- words that the core can address
    constant write_word : std_logic_vector(17 downto 0) := "10" & X"e000"; -- writes register 0 to port 0

    signal memory  : word_array(0 to full_size * pages - 1) := (others => (others => '0'));
    signal modulus : integer := words; -- words of a page
    signal page    : integer := 0;
    signal at_end  : std_logic := '0'; -- of the program, for those who look at the waves of the core
begin
    core : entity work.lm8
        generic map (
            REGISTERS       => registers,
            SCRATCHPAD_SIZE => scratchpad_size,
            ADDRESS_BITS    => address_bits
        )
        port map (
            clk        => clk,
            rst_n      => rst_n,
            prom_addr  => prom_addr,
            prom_en    => prom_en,
            prom_data  => prom_data,
            ext_addr   => ext_addr,
            ext_dout   => ext_dout,
            ext_io_wr  => ext_io_wr,
            ext_io_rd  => ext_io_rd,
            ext_io_din => ext_io_din,
            ext_ready  => ext_ready,
            intr       => interrupt,
            intr_ack   => intr_ack
        );

    -- The program memory: a synchronous block RAM
    process (clk)
    begin
        if rising_edge(clk) and prom_en = '1' then
            prom_data <= memory(page * modulus + known(prom_addr) mod modulus);
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
        variable waited     : natural := 0;
        variable is_ready   : boolean;

        -- The events. An instruction begins in the clock after the memory was read for it.
        variable fetched  : std_logic_vector(11 downto 0) := (others => '0');
        variable begins   : boolean := false;
        variable in_reset : boolean := true;

        -- At least two digits, and no more than it takes.
        impure function port_text return string is
            variable digits : natural := (address_bits + 3) / 4;
            constant text   : string := hex(ext_addr);
        begin
            while digits > 2 and text(text'length - digits + 1) = '0' loop
                digits := digits - 1;
            end loop;
            return text(text'length - digits + 1 to text'length);
        end function port_text;

        procedure observe(clock : in integer) is
        begin
            if rst_n = '0' then
                if not in_reset and clock >= 0 then
                    report_event("RESET 000", clock);
                end if;
            else
                if intr_ack = '1' then
                    report_event("INT 000", clock);
                end if;
                if begins and clock >= 0 then
                    report_event("I " & hex(fetched), clock);
                end if;
                if ext_io_rd = '1' and ext_ready = '1' then
                    report_event("R " & port_text & ' ' & hex(ext_io_din), clock);
                end if;
                if ext_io_wr = '1' and ext_ready = '1' then
                    report_event("W " & port_text & ' ' & hex(ext_dout), clock);
                end if;
            end if;
            in_reset := rst_n = '0';
            begins := rst_n = '1' and prom_en = '1';
            fetched := prom_addr;
        end procedure observe;

        -- Four clocks of reset, then the clocks from -start on.
        procedure run_to(last : in integer; aside : in boolean) is
        begin
            in_reset := true;
            begins := false;
            waited := 0;
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
                rst_n <= '1';
                if clock < -start or (not aside and resetting.first <= clock) then
                    rst_n <= '0';
                end if;
                ext_io_din <= read_value;
                is_ready := waited >= waits;
                ext_ready <= '0';
                if is_ready then
                    ext_ready <= '1';
                end if;
                if ext_io_rd = '1' or ext_io_wr = '1' then
                    waited := waited + 1;
                    if is_ready then
                        waited := 0;
                    end if;
                end if;
                wait for 5 ns;
                observe(clock);
                was_read := ext_io_rd = '1' and ext_ready = '1' and rst_n = '1';
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
            ext_ready <= '1';
            for clock in 0 to 67 loop
                rst_n <= '1';
                if clock < 4 then
                    rst_n <= '0';
                end if;
                wait for 5 ns;
                if clock >= 4 and found < 0 and ext_io_wr = '1' then
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
