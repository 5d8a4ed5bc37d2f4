// Behavioural model of the PicoBlaze 6 core, with the name and the ports of the real one, for tests and simulation.
//
// Time runs in slots of two clocks. In the first clock of a slot the instruction is valid and the address of the next
// slot is found; in the second one the strobes are active, and at its end all state changes. So the address of a slot
// stands from the second clock of the slot before to its own first clock, and the program memory, a synchronous block
// RAM outside of the core, is read in between.

module kcpsm6 #(
    parameter [7:0]   hwbuild                 = 8'h00,
    parameter [11:0]  interrupt_vector        = 12'h3FF,
    parameter integer scratch_pad_memory_size = 64
) (
    output wire [11:0] address,
    input  wire [17:0] instruction,
    output wire        bram_enable,
    input  wire [7:0]  in_port,
    output wire [7:0]  out_port,
    output wire [7:0]  port_id,
    output wire        write_strobe,
    output wire        k_write_strobe,
    output wire        read_strobe,
    input  wire        interrupt,
    output wire        interrupt_ack,
    input  wire        sleep,
    input  wire        reset,
    input  wire        clk
);
    // What a slot does.
    localparam [2:0] EXECUTE        = 3'd0;
    localparam [2:0] ENTER          = 3'd1; // its instruction is pre-empted by an interrupt
    localparam [2:0] HALF           = 3'd2; // its instruction is half executed, the core resets itself
    localparam [2:0] HALF_PREEMPTED = 3'd3; // the same, but nothing is left of the instruction
    localparam [2:0] NOTHING        = 3'd4; // after a reset

    // Opcodes: bits 17 to 12 of the word. Those of two operands have a register as source; with bit 0 set, a constant.
    localparam [5:0] LOAD  = 6'h00, AND    = 6'h02, OR    = 6'h04, XOR   = 6'h06, RDPRT = 6'h08, RDMEM = 6'h0A;
    localparam [5:0] TEST  = 6'h0C, TESTC  = 6'h0E, ADD   = 6'h10, ADDC  = 6'h12, SHIFT = 6'h14, STAR  = 6'h16;
    localparam [5:0] SUB   = 6'h18, SUBC   = 6'h1A, COMP  = 6'h1C, COMPC = 6'h1E, WRPRT = 6'h2C, WRMEM = 6'h2E;
    localparam [5:0] CALL  = 6'h20, LOADRET = 6'h21, JUMP = 6'h22, CALL_REGS = 6'h24, RET = 6'h25, JUMP_REGS = 6'h26;
    localparam [5:0] INT   = 6'h28, RETI   = 6'h29, WRPRT_CONSTANT = 6'h2B, REGBANK = 6'h37;

    localparam [4:0] DEEPEST = 5'd30; // one call more resets the core

    // State
    reg [2:0]  slot;
    reg        second;       // the second clock of the slot
    reg        paused;       // asleep before the first clock of the slot
    reg        requested;    // the interrupt input was up in the first clock of the slot
    reg [11:0] pc;           // address of the next slot
    reg [11:0] here;         // address of this slot
    reg [7:0]  registers [0:31]; // bank A, then bank B
    reg [7:0]  scratchpad [0:scratch_pad_memory_size-1];
    reg        bank;
    reg        carry;
    reg        zero;
    reg        enabled;      // interrupts are on
    reg [4:0]  depth;
    reg [11:0] stack_address [0:31]; // cell 0 belongs to no call
    reg        stack_carry [0:31];
    reg        stack_zero [0:31];
    reg        stack_bank [0:31];

    integer i;
    initial begin
        slot = NOTHING;
        second = 1'b1;
        paused = 1'b0;
        requested = 1'b0;
        pc = 12'h000;
        here = 12'h000;
        bank = 1'b0;
        carry = 1'b0;
        zero = 1'b0;
        enabled = 1'b0;
        depth = 5'd0;
        for (i = 0; i < 32; i = i + 1) begin
            registers[i] = 8'h00;
            stack_address[i] = 12'h000;
            stack_carry[i] = 1'b0;
            stack_zero[i] = 1'b0;
            stack_bank[i] = 1'b0;
        end
        for (i = 0; i < scratch_pad_memory_size; i = i + 1)
            scratchpad[i] = 8'h00;
    end

    // The parts of the instruction
    wire [5:0] op       = instruction[17:12];
    wire [5:0] pair     = {op[5:1], 1'b0}; // without the bit that tells register from constant
    wire [3:0] x        = instruction[11:8];
    wire [3:0] y        = instruction[7:4];
    wire [7:0] constant = instruction[7:0];
    wire [7:0] sx       = registers[{bank, x}];
    wire [7:0] sy       = registers[{bank, y}];
    wire [7:0] operand  = op[0] ? constant : sy;

    wire executes  = slot == EXECUTE || slot == HALF;
    wire preempted = slot == ENTER;

    // Ports and scratchpad. A half executed instruction finds the second clock in bank A: its (sY) comes from there for
    // what is addressed in that clock, a port or a scratchpad cell to write.
    wire [7:0] pointer     = slot == HALF ? registers[{1'b0, y}] : sy;
    wire [7:0] read_cell   = scratchpad[operand % scratch_pad_memory_size];
    wire [7:0] late_cell   = op[0] ? constant : pointer;

    assign address        = pc;
    assign bram_enable    = second && !reset && slot != HALF && slot != HALF_PREEMPTED;
    assign port_id        = op[0] ? constant : pointer;
    assign out_port       = op == WRPRT_CONSTANT ? instruction[11:4] : sx;
    assign write_strobe   = second && executes && pair == WRPRT;
    assign k_write_strobe = second && executes && op == WRPRT_CONSTANT;
    assign read_strobe    = second && executes && pair == RDPRT;
    assign interrupt_ack  = second && preempted;

    // Results
    reg [8:0] result;  // the upper bit is the carry
    reg [7:0] value;   // what the register takes
    reg       loads;   // the register takes it
    reg       flags;   // carry and zero change
    reg       new_carry;
    reg       new_zero;
    reg       shifted_in;

    always @* begin
        result = 9'h000;
        loads = 1'b0;
        flags = 1'b0;
        shifted_in = 1'b0;
        new_carry = 1'b0;
        case (pair)
            LOAD: begin
                result = {1'b0, operand};
                loads = 1'b1;
            end
            AND: begin
                result = {1'b0, sx & operand};
                loads = 1'b1;
                flags = 1'b1;
            end
            OR: begin
                result = {1'b0, sx | operand};
                loads = 1'b1;
                flags = 1'b1;
            end
            XOR: begin
                result = {1'b0, sx ^ operand};
                loads = 1'b1;
                flags = 1'b1;
            end
            TEST: begin
                result = {1'b0, sx & operand};
                new_carry = ^(sx & operand);
                flags = 1'b1;
            end
            TESTC: begin
                result = {1'b0, sx & operand};
                new_carry = carry ^ (^(sx & operand));
                flags = 1'b1;
            end
            ADD, ADDC: begin
                result = {1'b0, sx} + {1'b0, operand} + {8'h00, pair == ADDC && carry};
                new_carry = result[8];
                loads = 1'b1;
                flags = 1'b1;
            end
            SUB, SUBC: begin
                result = {1'b0, sx} - {1'b0, operand} - {8'h00, pair == SUBC && carry};
                new_carry = result[8];
                loads = 1'b1;
                flags = 1'b1;
            end
            COMP, COMPC: begin
                result = {1'b0, sx} - {1'b0, operand} - {8'h00, pair == COMPC && carry};
                new_carry = result[8];
                flags = 1'b1;
            end
            RDPRT: begin
                result = {1'b0, in_port};
                loads = 1'b1;
            end
            RDMEM: begin
                result = {1'b0, read_cell};
                loads = 1'b1;
            end
            STAR: begin
                result = {1'b0, operand};
                loads = 1'b1;
            end
            default: ;
        endcase
        if (op == LOADRET) begin
            result = {1'b0, constant};
            loads = 1'b1;
        end
        if (op == SHIFT) begin
            loads = 1'b1;
            flags = 1'b1;
            case (instruction[2:1])
                2'b00: shifted_in = carry;
                2'b01: shifted_in = sx[7];
                2'b10: shifted_in = sx[0];
                2'b11: shifted_in = instruction[0];
            endcase
            if (instruction[7]) begin
                result = {1'b0, hwbuild};
                new_carry = 1'b1;
            end else if (instruction[3]) begin
                result = {1'b0, shifted_in, sx[7:1]};
                new_carry = sx[0];
            end else begin
                result = {1'b0, sx[6:0], shifted_in};
                new_carry = sx[7];
            end
        end
        value = result[7:0];
        // The instructions for longer numbers set zero only if the lower part was zero, too.
        new_zero = result[7:0] == 8'h00;
        if (pair == ADDC || pair == SUBC || pair == COMPC || pair == TESTC)
            new_zero = new_zero && zero;
    end

    // Program flow
    wire conditional = op[5:4] == 2'b11 && op[1:0] != 2'b11;
    wire met         = (op[3] ? carry : zero) != op[2];
    wire calls       = op == CALL || op == CALL_REGS || conditional && met && op[1:0] == 2'b00;
    wire jumps       = op == JUMP || op == JUMP_REGS || conditional && met && op[1:0] == 2'b10;
    wire returns     = op == RET || op == LOADRET || conditional && met && op[1:0] == 2'b01;
    wire returns_int = op == RETI;
    wire [11:0] target = op == CALL_REGS || op == JUMP_REGS ? {sx[3:0], sy} : instruction[11:0];

    // Only what is executed in full can do so; at the ends of the stack the core resets itself.
    wire in_full   = slot == EXECUTE;
    wire pushes    = in_full && calls || preempted;
    wire pops      = in_full && (returns || returns_int);
    wire ends      = pushes && depth == DEEPEST || pops && depth == 5'd0;
    wire on_after  = in_full && (op == INT || op == RETI) ? instruction[0] : enabled && !preempted;

    always @(posedge clk) begin
        if (reset) begin
            // Registers and scratchpad stay, and nothing is left of the instruction under way.
            slot <= NOTHING;
            second <= 1'b1;
            paused <= 1'b0;
            requested <= 1'b0;
            pc <= 12'h000;
            here <= 12'h000;
            bank <= 1'b0;
            carry <= 1'b0;
            zero <= 1'b0;
            enabled <= 1'b0;
            depth <= 5'd0;
        end else if (paused) begin
            paused <= sleep;
        end else if (!second) begin
            second <= 1'b1;
            requested <= interrupt;
            if (slot == ENTER)
                pc <= interrupt_vector;
            else if (slot != EXECUTE)
                pc <= 12'h000;
            else if (calls || jumps)
                pc <= target;
            else if (returns)
                pc <= stack_address[depth] + 12'h001;
            else if (returns_int)
                pc <= stack_address[depth];
            else
                pc <= here + 12'h001;
        end else begin
            second <= 1'b0;
            paused <= sleep;
            here <= pc;
            if (executes) begin
                if (loads)
                    registers[{pair == STAR ? !bank : bank, x}] <= value;
                if (pair == WRMEM)
                    scratchpad[late_cell % scratch_pad_memory_size] <= sx;
            end
            if (in_full) begin
                if (flags) begin
                    carry <= new_carry;
                    zero <= new_zero;
                end
                if (op == RETI) begin
                    carry <= stack_carry[depth];
                    zero <= stack_zero[depth];
                end
            end
            enabled <= on_after;
            // A pre-empted instruction leaves its trace in the bank alone.
            if (in_full || preempted) begin
                if (op == REGBANK)
                    bank <= instruction[0];
                if (op == RETI)
                    bank <= stack_bank[depth];
            end
            if (pushes && !ends) begin
                stack_address[depth + 5'd1] <= here;
                stack_carry[depth + 5'd1] <= carry;
                stack_zero[depth + 5'd1] <= zero;
                stack_bank[depth + 5'd1] <= bank;
                depth <= depth + 5'd1;
            end
            if (pops && !ends)
                depth <= depth - 5'd1;
            if (ends)
                slot <= requested && on_after ? HALF_PREEMPTED : HALF;
            else if (slot == HALF || slot == HALF_PREEMPTED) begin
                slot <= NOTHING;
                stack_address[0] <= here;
                bank <= 1'b0;
                carry <= 1'b0;
                zero <= 1'b0;
                enabled <= 1'b0;
                depth <= 5'd0;
            end else
                slot <= requested && on_after && in_full ? ENTER : EXECUTE;
        end
    end
endmodule
