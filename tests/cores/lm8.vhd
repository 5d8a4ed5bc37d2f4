-- Behavioural model of the Mico8 core, for tests and simulation. README.md describes the ports.
--
-- An instruction takes two clocks; one that accesses a port or the scratchpad takes three and, at a port, as many more as
-- the port is not ready. In the last clock of each instruction the program memory, a synchronous block RAM outside of the
-- core, is read for the next one.

library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

entity lm8 is
    generic (
        REGISTERS       : integer := 32; -- 16 or 32
        SCRATCHPAD_SIZE : integer := 32; -- a power of two
        ADDRESS_BITS    : integer := 8   -- of ports, 8 to 32
    );
    port (
        clk        : in  std_logic;
        rst_n      : in  std_logic;
        prom_addr  : out std_logic_vector(11 downto 0);
        prom_en    : out std_logic;
        prom_data  : in  std_logic_vector(17 downto 0);
        ext_addr   : out std_logic_vector(ADDRESS_BITS - 1 downto 0);
        ext_dout   : out std_logic_vector(7 downto 0);
        ext_io_wr  : out std_logic;
        ext_io_rd  : out std_logic;
        ext_io_din : in  std_logic_vector(7 downto 0);
        ext_ready  : in  std_logic;
        intr       : in  std_logic;
        intr_ack   : out std_logic
    );
end entity lm8;

architecture behaviour of lm8 is
    -- The clocks of an instruction; in that of the access the strobe is active. After a reset, the first one reads the program
    -- memory for the first time.
    type clock_kind is (starting, first, accessing, last);

    subtype group_code is std_logic_vector(3 downto 0);
    subtype opcode is std_logic_vector(5 downto 0);
    subtype byte is unsigned(7 downto 0);
    subtype place is unsigned(11 downto 0);

    -- Bits 17 to 14 of the word: instructions of two operands; with bit 13 set, the source is a constant.
    constant op_sub    : group_code := "0000";
    constant op_subc   : group_code := "0001";
    constant op_add    : group_code := "0010";
    constant op_addc   : group_code := "0011";
    constant op_load   : group_code := "0100";
    constant op_and    : group_code := "0101";
    constant op_or     : group_code := "0110";
    constant op_xor    : group_code := "0111";
    constant op_comp   : group_code := "1000";
    constant op_test   : group_code := "1001";
    constant op_rotate : group_code := "1010";
    constant op_flags_or_access : group_code := "1011"; -- the latter by bit 13
    -- Bits 17 to 12 of the word. Conditions stand in bits 13 and 12: Z, NZ, C, NC.
    constant op_jump_if : group_code := "1100";
    constant op_call_if : group_code := "1101";
    constant op_call    : opcode := "111000";
    constant op_ret     : opcode := "111001";
    constant op_reti    : opcode := "111010";
    constant op_jump    : opcode := "111011";

    constant start_address : place := X"001";
    constant vector        : place := X"000";

    type bytes is array (natural range <>) of byte;
    type cell is record
        address : place;
        carry   : std_logic;
        zero    : std_logic;
    end record;
    type cells is array (0 to 15) of cell;

    -- State
    signal state      : clock_kind := starting;
    signal pc         : place      := (others => '0'); -- address of the instruction under way
    signal register_file : bytes(0 to REGISTERS - 1) := (others => (others => '0'));
    signal scratchpad : bytes(0 to SCRATCHPAD_SIZE - 1) := (others => (others => '0'));
    signal carry      : std_logic := '0';
    signal zero       : std_logic := '0';
    signal enabled    : boolean   := false; -- interrupts are on
    signal in_routine : boolean   := false; -- of an interrupt; RETI alone ends it
    signal requested  : boolean   := false; -- latched; nothing in the assembler's instruction set takes it back
    signal depth      : unsigned(3 downto 0) := (others => '0');
    signal stack      : cells := (others => ((others => '0'), '0', '0'));
    signal taken      : byte  := (others => '0'); -- what an access has read

    -- The parts of the instruction
    signal word    : std_logic_vector(17 downto 0) := (others => '0');
    signal group_bits : group_code;
    signal op      : opcode;
    signal d       : natural range 0 to REGISTERS - 1;
    signal s       : natural range 0 to REGISTERS - 1;
    signal rd      : byte;
    signal rs      : byte := (others => '0');
    signal operand : byte;

    -- Accesses: bit 0 tells reading from writing, bit 1 (rs) from a number, bit 2 the scratchpad from a port.
    signal accesses : boolean;
    signal at_port  : boolean;
    signal place_of_access : unsigned(31 downto 0) := (others => '0');
    signal cell_at  : natural range 0 to SCRATCHPAD_SIZE - 1;

    -- Results
    signal value     : byte;      -- what the register takes
    signal loads     : boolean;   -- the register takes it
    signal new_carry : std_logic; -- as they are without a change
    signal new_zero  : std_logic;

    -- Program flow
    signal met      : boolean;
    signal calls    : boolean;
    signal jumps    : boolean;
    signal returns  : boolean;
    signal behind   : place;
    signal below    : unsigned(3 downto 0) := (others => '0');
    signal goes_to  : place;
    signal next_pc  : place;
    signal on_after : boolean;
    signal puts_off : boolean;
    signal enters   : boolean;

    function to_bit(condition : boolean) return std_logic is
    begin
        if condition then
            return '1';
        end if;
        return '0';
    end function to_bit;
begin
    -- A core of 16 registers does not look at the upper bit of a number.
    word       <= prom_data;
    group_bits <= word(17 downto 14);
    op         <= word(17 downto 12);
    d          <= to_integer(unsigned(word(12 downto 8))) mod REGISTERS;
    s          <= to_integer(unsigned(word(7 downto 3))) mod REGISTERS;
    rd         <= register_file(d);
    rs         <= register_file(s);
    operand    <= unsigned(word(7 downto 0)) when word(13) = '1' else rs;

    accesses        <= group_bits = op_flags_or_access and word(13) = '1';
    at_port         <= accesses and word(2) = '0';
    place_of_access <= register_file(15) & register_file(14) & register_file(13) & rs when word(1) = '1' else
                       resize(unsigned(word(7 downto 3)), 32);
    cell_at         <= to_integer(resize(place_of_access(ADDRESS_BITS - 1 downto 0), 31)) mod SCRATCHPAD_SIZE;

    ext_addr  <= std_logic_vector(place_of_access(ADDRESS_BITS - 1 downto 0));
    ext_dout  <= std_logic_vector(rd);
    ext_io_rd <= to_bit(state = accessing and at_port and word(0) = '1');
    ext_io_wr <= to_bit(state = accessing and at_port and word(0) = '0');

    compute : process (word, group_bits, rd, rs, operand, carry, zero, accesses, taken)
        variable result   : unsigned(8 downto 0); -- the upper bit is the carry
        variable carry_in : unsigned(8 downto 0);
        variable shifted_in : std_logic;
    begin
        carry_in := (others => '0');
        carry_in(0) := carry and to_bit(group_bits = op_subc or group_bits = op_addc);
        result := (others => '0');
        loads <= true;
        new_carry <= carry;
        new_zero <= zero;
        case group_bits is
            when op_sub | op_subc | op_comp =>
                result := ('0' & rd) - ('0' & operand) - carry_in;
                new_carry <= result(8);
                new_zero <= to_bit(result(7 downto 0) = 0);
                loads <= group_bits /= op_comp;
            when op_add | op_addc =>
                result := ('0' & rd) + ('0' & operand) + carry_in;
                new_carry <= result(8);
                new_zero <= to_bit(result(7 downto 0) = 0);
            when op_load =>
                result := '0' & operand;
            when op_and | op_test =>
                result := '0' & (rd and operand);
                new_zero <= to_bit(result(7 downto 0) = 0);
                loads <= group_bits = op_and;
            when op_or =>
                result := '0' & (rd or operand);
                new_zero <= to_bit(result(7 downto 0) = 0);
            when op_xor =>
                result := '0' & (rd xor operand);
                new_zero <= to_bit(result(7 downto 0) = 0);
            when op_rotate =>
                -- Bit 0 is the direction, bit 1 takes the carry in. The plain rotates leave the carry.
                if word(0) = '1' then
                    shifted_in := rs(7);
                    if word(1) = '1' then
                        shifted_in := carry;
                        new_carry <= rs(7);
                    end if;
                    result := '0' & rs(6 downto 0) & shifted_in;
                else
                    shifted_in := rs(0);
                    if word(1) = '1' then
                        shifted_in := carry;
                        new_carry <= rs(0);
                    end if;
                    result := '0' & shifted_in & rs(7 downto 1);
                end if;
                new_zero <= to_bit(result(7 downto 0) = 0);
            when op_flags_or_access =>
                result := '0' & taken;
                loads <= accesses and word(0) = '1';
                if not accesses and word(2 downto 1) = "00" then
                    new_carry <= word(0);
                elsif not accesses and word(2 downto 1) = "01" then
                    new_zero <= word(0);
                end if;
            when others =>
                loads <= false;
        end case;
        value <= result(7 downto 0);
    end process compute;

    met     <= carry /= word(12) when word(13) = '1' else zero /= word(12);
    calls   <= op = op_call or (group_bits = op_call_if and met);
    jumps   <= op = op_jump or (group_bits = op_jump_if and met);
    returns <= op = op_ret or op = op_reti;

    behind  <= pc + 1;
    below   <= depth - 1;
    goes_to <= pc + unsigned(word(11 downto 0)) when calls or jumps else
               stack(to_integer(below)).address when returns else
               behind;

    -- INT ENABLE and INT DISABLE count at once.
    on_after <= word(0) = '1' when group_bits = op_flags_or_access and not accesses and word(2 downto 1) = "10" else enabled;
    -- What a flow instruction has just changed can not be pushed; an unconditional JUMP alone is no hindrance.
    puts_off <= calls or returns or (jumps and op /= op_jump);
    enters   <= requested and on_after and not in_routine and not puts_off;

    next_pc   <= start_address when state = starting else vector when enters else goes_to;
    prom_en   <= rst_n and to_bit(state = last or state = starting);
    prom_addr <= std_logic_vector(next_pc);

    process (clk)
    begin
        if rising_edge(clk) then
            intr_ack <= '0';
            if rst_n = '0' then
                -- Registers and scratchpad stay; so do the cells of the stack, of which nothing is known.
                state <= starting;
                pc <= (others => '0');
                carry <= '0';
                zero <= '0';
                enabled <= false;
                in_routine <= false;
                requested <= false;
                depth <= (others => '0');
            else
                requested <= requested or intr = '1';
                case state is
                    when starting =>
                        -- The word that is still in the program memory's register passes through and leaves zero behind:
                        -- after power-up the word 0, SUB r0, r0.
                        zero <= new_zero;
                        pc <= start_address;
                        state <= first;
                    when first =>
                        if accesses then
                            state <= accessing;
                        else
                            state <= last;
                        end if;
                    when accessing =>
                        if not at_port then
                            taken <= scratchpad(cell_at);
                            if word(0) = '0' then
                                scratchpad(cell_at) <= rd;
                            end if;
                            state <= last;
                        elsif ext_ready = '1' then
                            taken <= unsigned(ext_io_din);
                            state <= last;
                        end if;
                    when last =>
                        state <= first;
                        pc <= next_pc;
                        if loads then
                            register_file(d) <= value;
                        end if;
                        carry <= new_carry;
                        zero <= new_zero;
                        enabled <= on_after;
                        if calls then
                            stack(to_integer(depth)) <= (behind, carry, zero);
                            depth <= depth + 1;
                        end if;
                        if returns then
                            depth <= below;
                        end if;
                        if op = op_reti then
                            carry <= stack(to_integer(below)).carry;
                            zero <= stack(to_integer(below)).zero;
                            in_routine <= false;
                        end if;
                        if enters then
                            stack(to_integer(depth)) <= (goes_to, new_carry, new_zero);
                            depth <= depth + 1;
                            in_routine <= true;
                            intr_ack <= '1';
                        end if;
                end case;
            end if;
        end if;
    end process;
end architecture behaviour;
