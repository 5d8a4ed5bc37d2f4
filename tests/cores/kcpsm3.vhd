-- Behavioural model of the PicoBlaze 3 core, with the name and the ports of the real one, for tests and simulation.
--
-- Time runs in slots of two clocks. In the first clock of a slot the instruction is valid and the address of the next
-- slot is found; in the second one the strobes are active, and at its end all state changes. So the address of a slot
-- stands from the second clock of the slot before to its own first clock, and the program memory, a synchronous block
-- RAM outside of the core, is read in between.

library ieee;
use ieee.std_logic_1164.all;
use ieee.numeric_std.all;

entity kcpsm3 is
    port (
        address       : out std_logic_vector(9 downto 0);
        instruction   : in  std_logic_vector(17 downto 0);
        port_id       : out std_logic_vector(7 downto 0);
        write_strobe  : out std_logic;
        out_port      : out std_logic_vector(7 downto 0);
        read_strobe   : out std_logic;
        in_port       : in  std_logic_vector(7 downto 0);
        interrupt     : in  std_logic;
        interrupt_ack : out std_logic;
        reset         : in  std_logic;
        clk           : in  std_logic
    );
end entity kcpsm3;

architecture behaviour of kcpsm3 is
    -- What a slot does: executes; enters an interrupt, which pre-empts its instruction; nothing, after a reset.
    type slot_kind is (executing, entering, nothing);

    subtype opcode is std_logic_vector(5 downto 0);
    subtype byte is unsigned(7 downto 0);
    subtype place is unsigned(9 downto 0);

    -- Bits 17 to 12 of the word. Those of two operands have a constant as source; with bit 0 set, a register. Those of the
    -- program flow have a condition with bit 0 set.
    constant op_load  : opcode := "000000";
    constant op_rdprt : opcode := "000100";
    constant op_rdmem : opcode := "000110";
    constant op_and   : opcode := "001010";
    constant op_or    : opcode := "001100";
    constant op_xor   : opcode := "001110";
    constant op_test  : opcode := "010010";
    constant op_comp  : opcode := "010100";
    constant op_add   : opcode := "011000";
    constant op_addc  : opcode := "011010";
    constant op_sub   : opcode := "011100";
    constant op_subc  : opcode := "011110";
    constant op_shift : opcode := "100000";
    constant op_ret   : opcode := "101010";
    constant op_wrprt : opcode := "101100";
    constant op_wrmem : opcode := "101110";
    constant op_call  : opcode := "110000";
    constant op_jump  : opcode := "110100";
    constant op_reti  : opcode := "111000";
    constant op_int   : opcode := "111100";

    constant vector : place := "1111111111";

    type bytes is array (natural range <>) of byte;
    type places is array (0 to 31) of place;

    -- State
    signal slot       : slot_kind := nothing;
    signal second     : boolean   := true;  -- the second clock of the slot
    signal requested  : boolean   := false; -- the interrupt input was up in the first clock of the slot
    signal pc         : place     := (others => '0'); -- address of the next slot
    signal here       : place     := (others => '0'); -- address of this slot
    signal registers  : bytes(0 to 15) := (others => (others => '0'));
    signal scratchpad : bytes(0 to 63) := (others => (others => '0'));
    signal carry      : std_logic := '0';
    signal zero       : std_logic := '0';
    signal kept_carry : std_logic := '0'; -- as the last interrupt found them: one copy for all levels
    signal kept_zero  : std_logic := '0';
    signal enabled    : boolean   := false; -- interrupts are on
    signal depth      : unsigned(4 downto 0) := (others => '0');
    signal stack      : places := (others => (others => '0'));

    -- The parts of the instruction
    signal op      : opcode;
    signal pair    : opcode; -- without bit 0
    signal x       : natural range 0 to 15;
    signal sx      : byte;
    signal operand : byte := (others => '0');
    signal cell    : natural range 0 to 63; -- of the scratchpad

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
    signal below    : unsigned(4 downto 0);
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
    op      <= instruction(17 downto 12);
    pair    <= op(5 downto 1) & '0';
    x       <= to_integer(unsigned(instruction(11 downto 8)));
    sx      <= registers(x);
    operand <= registers(to_integer(unsigned(instruction(7 downto 4)))) when op(0) = '1' else
               unsigned(instruction(7 downto 0));
    cell    <= to_integer(operand(5 downto 0));

    in_full   <= slot = executing;
    preempted <= slot = entering;

    address       <= std_logic_vector(pc);
    port_id       <= std_logic_vector(operand);
    out_port      <= std_logic_vector(sx);
    write_strobe  <= to_bit(second and in_full and pair = op_wrprt);
    read_strobe   <= to_bit(second and in_full and pair = op_rdprt);
    interrupt_ack <= to_bit(second and preempted);

    compute : process (op, pair, instruction, sx, operand, carry, in_port, scratchpad, cell)
        variable result     : unsigned(8 downto 0); -- the upper bit is the carry
        variable carry_in   : unsigned(8 downto 0);
        variable shifted_in : std_logic;
    begin
        carry_in := (others => '0');
        carry_in(0) := carry and to_bit(pair = op_addc or pair = op_subc);
        result := (others => '0');
        loads <= true;
        flags <= true;
        new_carry <= '0';
        case pair is
            when op_load =>
                result := '0' & operand;
                flags <= false;
            when op_rdprt =>
                result := '0' & unsigned(in_port);
                flags <= false;
            when op_rdmem =>
                result := '0' & scratchpad(cell);
                flags <= false;
            when op_and =>
                result := '0' & (sx and operand);
            when op_or =>
                result := '0' & (sx or operand);
            when op_xor =>
                result := '0' & (sx xor operand);
            when op_test =>
                result := '0' & (sx and operand);
                new_carry <= parity(sx and operand);
                loads <= false;
            when op_comp =>
                result := ('0' & sx) - ('0' & operand);
                new_carry <= result(8);
                loads <= false;
            when op_add | op_addc =>
                result := ('0' & sx) + ('0' & operand) + carry_in;
                new_carry <= result(8);
            when op_sub | op_subc =>
                result := ('0' & sx) - ('0' & operand) - carry_in;
                new_carry <= result(8);
            when others =>
                loads <= false;
                flags <= false;
        end case;
        if op = op_shift then
            loads <= true;
            flags <= true;
            case instruction(2 downto 1) is
                when "00" => shifted_in := carry;
                when "01" => shifted_in := sx(7);
                when "10" => shifted_in := sx(0);
                when others => shifted_in := instruction(0);
            end case;
            if instruction(3) = '1' then
                result := '0' & shifted_in & sx(7 downto 1);
                new_carry <= sx(0);
            else
                result := '0' & sx(6 downto 0) & shifted_in;
                new_carry <= sx(7);
            end if;
        end if;
        value <= result(7 downto 0);
        new_zero <= to_bit(result(7 downto 0) = 0);
    end process compute;

    -- Bits 11 and 10 of a conditional instruction: Z, NZ, C, NC.
    met <= true when op(0) = '0' else
           carry /= instruction(10) when instruction(11) = '1' else
           zero /= instruction(10);

    calls    <= pair = op_call and met;
    jumps    <= pair = op_jump and met;
    returns  <= pair = op_ret and met;
    below    <= depth - 1;
    on_after <= instruction(0) = '1' when in_full and (op = op_int or op = op_reti) else enabled and not preempted;

    process (clk)
    begin
        if rising_edge(clk) then
            if reset = '1' then
                -- Registers and scratchpad stay; so do the cells of the stack and the kept flags, of which nothing is known.
                slot <= nothing;
                second <= true;
                requested <= false;
                pc <= (others => '0');
                here <= (others => '0');
                carry <= '0';
                zero <= '0';
                enabled <= false;
                depth <= (others => '0');
            elsif not second then
                second <= true;
                requested <= interrupt = '1';
                if slot = entering then
                    pc <= vector;
                elsif calls or jumps then
                    pc <= unsigned(instruction(9 downto 0));
                elsif returns then
                    pc <= stack(to_integer(below)) + 1;
                elsif op = op_reti then
                    pc <= stack(to_integer(below));
                else
                    pc <= here + 1;
                end if;
            else
                second <= false;
                here <= pc;
                if in_full and loads then
                    registers(x) <= value;
                end if;
                if in_full and pair = op_wrmem then
                    scratchpad(cell) <= sx;
                end if;
                if in_full and op = op_reti then
                    carry <= kept_carry;
                    zero <= kept_zero;
                end if;
                if preempted then
                    kept_carry <= carry;
                    kept_zero <= zero;
                end if;
                -- The flags of a pre-empted instruction come through, though its register does not.
                if (in_full or preempted) and flags then
                    carry <= new_carry;
                    zero <= new_zero;
                end if;
                enabled <= on_after;
                -- Each instruction leaves its address in the cell that a call would push it to.
                if in_full or preempted then
                    stack(to_integer(depth)) <= here;
                end if;
                if (in_full and calls) or preempted then
                    depth <= depth + 1;
                elsif in_full and (returns or op = op_reti) then
                    depth <= below;
                end if;
                if requested and on_after and in_full then
                    slot <= entering;
                else
                    slot <= executing;
                end if;
            end if;
        end if;
    end process;
end architecture behaviour;
