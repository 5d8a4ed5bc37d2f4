-- What the benches share: files of words, of values to read and of pulses, and the writing of an event.

library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;
use std.textio.all;

package bench_stimulus is

    type word_array is array (natural range <>) of std_logic_vector(17 downto 0);

    -- A span of clocks; past is the first one after it.
    type pulse is record
        first : integer;
        past  : integer;
    end record;

    constant never : pulse := (integer'high, integer'high);

    -- The words of a file, one a line; 0 where it ends. An empty name is an empty file.
    impure function load_words(name : string; size : natural) return word_array;

    -- Beyond the last value, 0 is read.
    procedure next_read(file source : text; is_open : in boolean; value : out std_logic_vector(7 downto 0));

    -- Where the file ends, the pulse never comes.
    procedure next_pulse(file source : text; is_open : in boolean; value : inout pulse);

    -- A number without unknown bits; those count as 0.
    function known(value : std_logic_vector) return natural;

    function hex(value : std_logic_vector) return string;

    -- One line of output.
    procedure report_event(text : in string; clock : in integer);

end package bench_stimulus;

package body bench_stimulus is

    function digit(c : character) return integer is
    begin
        case c is
            when '0' to '9' => return character'pos(c) - character'pos('0');
            when 'a' to 'f' => return character'pos(c) - character'pos('a') + 10;
            when 'A' to 'F' => return character'pos(c) - character'pos('A') + 10;
            when others => return -1;
        end case;
    end function digit;

    -- The hexadecimal number at the beginning of a line.
    procedure read_hex(from_line : inout line; value : out natural; good : out boolean) is
        variable c      : character;
        variable got    : boolean;
        variable number : natural := 0;
        variable digits : natural := 0;
    begin
        loop
            read(from_line, c, got);
            exit when not got or digit(c) < 0;
            number := number * 16 + digit(c);
            digits := digits + 1;
        end loop;
        value := number;
        good := digits > 0;
    end procedure read_hex;

    impure function load_words(name : string; size : natural) return word_array is
        file source      : text;
        variable status  : file_open_status;
        variable words   : word_array(0 to size - 1) := (others => (others => '0'));
        variable current : line;
        variable value   : natural;
        variable good    : boolean;
        variable at      : natural := 0;
    begin
        if name'length = 0 then
            return words;
        end if;
        file_open(status, source, name, read_mode);
        if status /= open_ok then
            report_event("FAILED the program can not be read", 0);
            return words;
        end if;
        while at < size and not endfile(source) loop
            readline(source, current);
            read_hex(current, value, good);
            if good then
                words(at) := std_logic_vector(to_unsigned(value, 18));
                at := at + 1;
            end if;
        end loop;
        file_close(source);
        return words;
    end function load_words;

    procedure next_read(file source : text; is_open : in boolean; value : out std_logic_vector(7 downto 0)) is
        variable current : line;
        variable number  : natural := 0;
        variable good    : boolean := false;
    begin
        if is_open then
            while not good and not endfile(source) loop
                readline(source, current);
                read_hex(current, number, good);
            end loop;
        end if;
        value := std_logic_vector(to_unsigned(number mod 256, 8));
    end procedure next_read;

    procedure next_pulse(file source : text; is_open : in boolean; value : inout pulse) is
        variable current : line;
        variable first   : integer;
        variable length  : integer;
        variable good    : boolean := false;
    begin
        value := never;
        if is_open then
            while not good and not endfile(source) loop
                readline(source, current);
                read(current, first, good);
                if good then
                    read(current, length, good);
                end if;
                if good then
                    value := (first, first + length);
                end if;
            end loop;
        end if;
    end procedure next_pulse;

    function known(value : std_logic_vector) return natural is
        variable number : natural := 0;
    begin
        for i in value'range loop
            number := number * 2;
            if value(i) = '1' or value(i) = 'H' then
                number := number + 1;
            end if;
        end loop;
        return number;
    end function known;

    function hex(value : std_logic_vector) return string is
        constant digits : string(1 to 16) := "0123456789abcdef";
        constant count  : natural := (value'length + 3) / 4;
        variable padded : std_logic_vector(4 * count - 1 downto 0) := (others => '0');
        variable text   : string(1 to count);
    begin
        padded(value'length - 1 downto 0) := value;
        for i in 1 to count loop
            text(i) := digits(known(padded(4 * (count - i) + 3 downto 4 * (count - i))) + 1);
        end loop;
        return text;
    end function hex;

    procedure report_event(text : in string; clock : in integer) is
        variable current : line;
    begin
        write(current, text);
        write(current, ' ');
        write(current, clock);
        writeline(output, current);
    end procedure report_event;

end package body bench_stimulus;
