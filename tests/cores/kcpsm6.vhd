-- Behavioural model of the PicoBlaze 6 core, with the name and the ports of the real one, for tests and simulation.
--
-- Time runs in slots of two clocks. In the first clock of a slot the instruction is valid and the address of the next
-- slot is found; in the second one the strobes are active, and at its end all state changes. So the address of a slot
-- stands from the second clock of the slot before to its own first clock, and the program memory, a synchronous block
-- RAM outside of the core, is read in between.

library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

entity kcpsm6 is
    generic (
        hwbuild                 : std_logic_vector(7 downto 0)  := X"00";
        interrupt_vector        : std_logic_vector(11 downto 0) := X"3FF";
        scratch_pad_memory_size : integer                       := 64
    );
    port (
        address        : out std_logic_vector(11 downto 0);
        instruction    : in  std_logic_vector(17 downto 0);
        bram_enable    : out std_logic;
        in_port        : in  std_logic_vector(7 downto 0);
        out_port       : out std_logic_vector(7 downto 0);
        port_id        : out std_logic_vector(7 downto 0);
        write_strobe   : out std_logic;
        k_write_strobe : out std_logic;
        read_strobe    : out std_logic;
        interrupt      : in  std_logic;
        interrupt_ack  : out std_logic;
        sleep          : in  std_logic;
        reset          : in  std_logic;
        clk            : in  std_logic
    );
end entity kcpsm6;

architecture behaviour of kcpsm6 is
    -- What a slot does: executes; enters an interrupt, which pre-empts its instruction; half executes its instruction, while
    -- the core resets itself, or not even that, because an interrupt would pre-empt it; nothing, after a reset.
    type slot_kind is (executing, entering, half, half_preempted, nothing);

    subtype opcode is std_logic_vector(5 downto 0);
    subtype byte is unsigned(7 downto 0);
    subtype place is unsigned(11 downto 0);

    -- Bits 17 to 12 of the word. Those of two operands have a register as source; with bit 0 set, a constant.
    constant op_load           : opcode := "000000";
    constant op_and            : opcode := "000010";
    constant op_or             : opcode := "000100";
    constant op_xor            : opcode := "000110";
    constant op_rdprt          : opcode := "001000";
    constant op_rdmem          : opcode := "001010";
    constant op_test           : opcode := "001100";
    constant op_testc          : opcode := "001110";
    constant op_add            : opcode := "010000";
    constant op_addc           : opcode := "010010";
    constant op_shift          : opcode := "010100";
    constant op_star           : opcode := "010110";
    constant op_sub            : opcode := "011000";
    constant op_subc           : opcode := "011010";
    constant op_comp           : opcode := "011100";
    constant op_compc          : opcode := "011110";
    constant op_call           : opcode := "100000";
    constant op_loadret        : opcode := "100001";
    constant op_jump           : opcode := "100010";
    constant op_call_regs      : opcode := "100100";
    constant op_ret            : opcode := "100101";
    constant op_jump_regs      : opcode := "100110";
    constant op_int            : opcode := "101000";
    constant op_reti           : opcode := "101001";
    constant op_wrprt_constant : opcode := "101011";
    constant op_wrprt          : opcode := "101100";
    constant op_wrmem          : opcode := "101110";
    constant op_regbank        : opcode := "110111";

    constant deepest : natural := 30; -- one call more resets the core

    type bytes is array (natural range <>) of byte;
    type cell is record
        address : place;
        carry   : std_logic;
        zero    : std_logic;
        bank    : natural range 0 to 1;
    end record;
    type cells is array (0 to 31) of cell;

    -- State
    signal slot       : slot_kind := nothing;
    signal second     : boolean   := true;  -- the second clock of the slot
    signal paused     : boolean   := false; -- asleep before the first clock of the slot
    signal requested  : boolean   := false; -- the interrupt input was up in the first clock of the slot
    signal pc         : place     := (others => '0'); -- address of the next slot
    signal here       : place     := (others => '0'); -- address of this slot
    signal registers  : bytes(0 to 31) := (others => (others => '0')); -- bank A, then bank B
    signal scratchpad : bytes(0 to scratch_pad_memory_size - 1) := (others => (others => '0'));
    signal bank       : natural range 0 to 1 := 0;
    signal carry      : std_logic := '0';
    signal zero       : std_logic := '0';
    signal enabled    : boolean   := false; -- interrupts are on
    signal depth      : natural range 0 to deepest := 0;
    signal stack      : cells := (others => ((others => '0'), '0', '0', 0)); -- cell 0 belongs to no call

    -- The parts of the instruction
    signal op       : opcode;
    signal pair     : opcode; -- without the bit that tells register from constant
    signal x        : natural range 0 to 15;
    signal y        : natural range 0 to 15;
    signal constant_operand : byte;
    signal sx       : byte;
    signal sy       : byte;
    signal operand  : byte;
    signal late_operand : byte; -- as the second clock finds it

    signal executes  : boolean; -- at least half
    signal in_full   : boolean;
    signal preempted : boolean;

    -- Results
    signal value     : byte;    -- what the register takes
    signal loads     : boolean; -- the register takes it
    signal flags     : boolean; -- carry and zero change
    signal new_carry : std_logic;
    signal new_zero  : std_logic;

    -- Program flow
    signal met      : boolean;
    signal calls    : boolean;
    signal jumps    : boolean;
    signal returns  : boolean;
    signal target   : place;
    signal pushes   : boolean;
    signal pops     : boolean;
    signal ends     : boolean;
    signal on_after : boolean;

    function parity(number : byte) return std_logic is
        variable odd : std_logic := '0';
    begin
        for i in number'range loop
            odd := odd xor number(i);
        end loop;
        return odd;
    end function parity;

    function to_bit(condition : boolean) return std_logic is
    begin
        if condition then
            return '1';
        end if;
        return '0';
    end function to_bit;
begin
    op               <= instruction(17 downto 12);
    pair             <= op(5 downto 1) & '0';
    x                <= to_integer(unsigned(instruction(11 downto 8)));
    y                <= to_integer(unsigned(instruction(7 downto 4)));
    constant_operand <= unsigned(instruction(7 downto 0));
    sx               <= registers(16 * bank + x);
    sy               <= registers(16 * bank + y);
    operand          <= constant_operand when op(0) = '1' else sy;

    -- A half executed instruction finds the second clock in bank A: its (sY) comes from there for what is addressed in that
    -- clock, a port or a scratchpad cell to write.
    late_operand <= constant_operand when op(0) = '1' else
                    registers(y) when slot = half else
                    sy;

    executes  <= slot = executing or slot = half;
    in_full   <= slot = executing;
    preempted <= slot = entering;

    address        <= std_logic_vector(pc);
    bram_enable    <= to_bit(second and reset = '0' and slot /= half and slot /= half_preempted);
    port_id        <= std_logic_vector(late_operand);
    out_port       <= instruction(11 downto 4) when op = op_wrprt_constant else std_logic_vector(sx);
    write_strobe   <= to_bit(second and executes and pair = op_wrprt);
    k_write_strobe <= to_bit(second and executes and op = op_wrprt_constant);
    read_strobe    <= to_bit(second and executes and pair = op_rdprt);
    interrupt_ack  <= to_bit(second and preempted);

    compute : process (op, pair, instruction, sx, operand, constant_operand, carry, zero, in_port, scratchpad)
        variable result     : unsigned(8 downto 0); -- the upper bit is the carry
        variable carry_in   : unsigned(8 downto 0);
        variable shifted_in : std_logic;
        variable is_chained : boolean; -- the instructions for longer numbers
    begin
        is_chained := pair = op_addc or pair = op_subc or pair = op_compc or pair = op_testc;
        carry_in := (others => '0');
        carry_in(0) := carry and to_bit(is_chained);
        result := (others => '0');
        loads <= true;
        flags <= true;
        new_carry <= '0';
        case pair is
            when op_load | op_star =>
                result := '0' & operand;
                flags <= false;
            when op_and =>
                result := '0' & (sx and operand);
            when op_or =>
                result := '0' & (sx or operand);
            when op_xor =>
                result := '0' & (sx xor operand);
            when op_test | op_testc =>
                result := '0' & (sx and operand);
                new_carry <= parity(sx and operand) xor carry_in(0);
                loads <= false;
            when op_add | op_addc =>
                result := ('0' & sx) + ('0' & operand) + carry_in;
                new_carry <= result(8);
            when op_sub | op_subc =>
                result := ('0' & sx) - ('0' & operand) - carry_in;
                new_carry <= result(8);
            when op_comp | op_compc =>
                result := ('0' & sx) - ('0' & operand) - carry_in;
                new_carry <= result(8);
                loads <= false;
            when op_rdprt =>
                result := '0' & unsigned(in_port);
                flags <= false;
            when op_rdmem =>
                result := '0' & scratchpad(to_integer(operand) mod scratch_pad_memory_size);
                flags <= false;
            when others =>
                loads <= false;
                flags <= false;
        end case;
        if op = op_loadret then
            result := '0' & constant_operand;
            loads <= true;
        end if;
        if op = op_shift then
            loads <= true;
            flags <= true;
            case instruction(2 downto 1) is
                when "00" => shifted_in := carry;
                when "01" => shifted_in := sx(7);
                when "10" => shifted_in := sx(0);
                when others => shifted_in := instruction(0);
            end case;
            if instruction(7) = '1' then
                result := '0' & unsigned(hwbuild);
                new_carry <= '1';
            elsif instruction(3) = '1' then
                result := '0' & shifted_in & sx(7 downto 1);
                new_carry <= sx(0);
            else
                result := '0' & sx(6 downto 0) & shifted_in;
                new_carry <= sx(7);
            end if;
        end if;
        value <= result(7 downto 0);
        -- The instructions for longer numbers set zero only if the lower part was zero, too.
        new_zero <= to_bit(result(7 downto 0) = 0 and (not is_chained or zero = '1'));
    end process compute;

    -- Conditional instructions begin with 11; then Z, NZ, C, NC; then CALL, RET, JUMP.
    met <= carry /= op(2) when op(3) = '1' else zero /= op(2);

    calls   <= op = op_call or op = op_call_regs or (op(5 downto 4) = "11" and op(1 downto 0) = "00" and met);
    returns <= op = op_ret or op = op_loadret or (op(5 downto 4) = "11" and op(1 downto 0) = "01" and met);
    jumps   <= op = op_jump or op = op_jump_regs or (op(5 downto 4) = "11" and op(1 downto 0) = "10" and met);
    target  <= sx(3 downto 0) & sy when op = op_call_regs or op = op_jump_regs else unsigned(instruction(11 downto 0));

    -- At the ends of the stack the core resets itself.
    pushes   <= (in_full and calls) or preempted;
    pops     <= in_full and (returns or op = op_reti);
    ends     <= (pushes and depth = deepest) or (pops and depth = 0);
    on_after <= instruction(0) = '1' when in_full and (op = op_int or op = op_reti) else enabled and not preempted;

    process (clk)
    begin
        if rising_edge(clk) then
            if reset = '1' then
                -- Registers and scratchpad stay, and nothing is left of the instruction under way.
                slot <= nothing;
                second <= true;
                paused <= false;
                requested <= false;
                pc <= (others => '0');
                here <= (others => '0');
                bank <= 0;
                carry <= '0';
                zero <= '0';
                enabled <= false;
                depth <= 0;
            elsif paused then
                paused <= sleep = '1';
            elsif not second then
                second <= true;
                requested <= interrupt = '1';
                if slot = entering then
                    pc <= unsigned(interrupt_vector);
                elsif slot /= executing then
                    pc <= (others => '0');
                elsif calls or jumps then
                    pc <= target;
                elsif returns then
                    pc <= stack(depth).address + 1;
                elsif op = op_reti then
                    pc <= stack(depth).address;
                else
                    pc <= here + 1;
                end if;
            else
                second <= false;
                paused <= sleep = '1';
                here <= pc;
                if executes and loads then
                    if pair = op_star then
                        registers(16 * (1 - bank) + x) <= value;
                    else
                        registers(16 * bank + x) <= value;
                    end if;
                end if;
                if executes and pair = op_wrmem then
                    scratchpad(to_integer(late_operand) mod scratch_pad_memory_size) <= sx;
                end if;
                if in_full and flags then
                    carry <= new_carry;
                    zero <= new_zero;
                end if;
                if in_full and op = op_reti then
                    carry <= stack(depth).carry;
                    zero <= stack(depth).zero;
                end if;
                enabled <= on_after;
                -- A pre-empted instruction leaves its trace in the bank alone.
                if in_full or preempted then
                    if op = op_regbank then
                        bank <= to_integer(unsigned(instruction(0 downto 0)));
                    elsif op = op_reti then
                        bank <= stack(depth).bank;
                    end if;
                end if;
                if pushes and not ends then
                    stack(depth + 1) <= (here, carry, zero, bank);
                    depth <= depth + 1;
                elsif pops and not ends then
                    depth <= depth - 1;
                end if;
                if ends and requested and on_after then
                    slot <= half_preempted;
                elsif ends then
                    slot <= half;
                elsif slot = half or slot = half_preempted then
                    slot <= nothing;
                    stack(0).address <= here;
                    bank <= 0;
                    carry <= '0';
                    zero <= '0';
                    enabled <= false;
                    depth <= 0;
                elsif requested and on_after and in_full then
                    slot <= entering;
                else
                    slot <= executing;
                end if;
            end if;
        end if;
    end process;
end architecture behaviour;
