// Behavioural model of the PicoBlaze 3 core, with the name and the ports of the real one, for tests and simulation.
//
// Time runs in slots of two clocks. In the first clock of a slot the instruction is valid and the address of the next
// slot is found; in the second one the strobes are active, and at its end all state changes. So the address of a slot
// stands from the second clock of the slot before to its own first clock, and the program memory, a synchronous block
// RAM outside of the core, is read in between.

module kcpsm3 (
    output wire [9:0]  address,
    input  wire [17:0] instruction,
    output wire [7:0]  port_id,
    output wire        write_strobe,
    output wire [7:0]  out_port,
    output wire        read_strobe,
    input  wire [7:0]  in_port,
    input  wire        interrupt,
    output wire        interrupt_ack,
    input  wire        reset,
    input  wire        clk
);
    // What a slot does.
    localparam [1:0] EXECUTE = 2'd0;
    localparam [1:0] ENTER   = 2'd1; // its instruction is pre-empted by an interrupt
    localparam [1:0] NOTHING = 2'd2; // after a reset

    // Opcodes: bits 17 to 12 of the word. Those of two operands have a constant as source; with bit 0 set, a register.
    localparam [5:0] LOAD = 6'h00, RDPRT = 6'h04, RDMEM = 6'h06, AND = 6'h0A, OR   = 6'h0C, XOR   = 6'h0E;
    localparam [5:0] TEST = 6'h12, COMP  = 6'h14, ADD   = 6'h18, ADDC = 6'h1A, SUB = 6'h1C, SUBC  = 6'h1E;
    localparam [5:0] SHIFT = 6'h20, RET  = 6'h2A, WRPRT = 6'h2C, WRMEM = 6'h2E, CALL = 6'h30, JUMP = 6'h34;
    localparam [5:0] RETI = 6'h38, INT   = 6'h3C;

    localparam [9:0] VECTOR = 10'h3FF;

    // State
    reg [1:0] slot;
    reg       second;       // the second clock of the slot
    reg       requested;    // the interrupt input was up in the first clock of the slot
    reg [9:0] pc;           // address of the next slot
    reg [9:0] here;         // address of this slot
    reg [7:0] registers [0:15];
    reg [7:0] scratchpad [0:63];
    reg       carry;
    reg       zero;
    reg       kept_carry;   // as the last interrupt found them: one copy for all levels
    reg       kept_zero;
    reg       enabled;      // interrupts are on
    reg [4:0] depth;
    reg [9:0] stack [0:31];

    integer i;
    initial begin
        slot = NOTHING;
        second = 1'b1;
        requested = 1'b0;
        pc = 10'h000;
        here = 10'h000;
        carry = 1'b0;
        zero = 1'b0;
        kept_carry = 1'b0;
        kept_zero = 1'b0;
        enabled = 1'b0;
        depth = 5'd0;
        for (i = 0; i < 16; i = i + 1)
            registers[i] = 8'h00;
        for (i = 0; i < 64; i = i + 1)
            scratchpad[i] = 8'h00;
        for (i = 0; i < 32; i = i + 1)
            stack[i] = 10'h000;
    end

    // The parts of the instruction
    wire [5:0] op       = instruction[17:12];
    wire [5:0] pair     = {op[5:1], 1'b0}; // without the bit that tells constant from register, or from a condition
    wire [3:0] x        = instruction[11:8];
    wire [3:0] y        = instruction[7:4];
    wire [7:0] constant = instruction[7:0];
    wire [7:0] sx       = registers[x];
    wire [7:0] sy       = registers[y];
    wire [7:0] operand  = op[0] ? sy : constant;
    wire [7:0] read_cell = scratchpad[operand[5:0]];

    wire in_full   = slot == EXECUTE;
    wire preempted = slot == ENTER;

    assign address       = pc;
    assign port_id       = operand;
    assign out_port      = sx;
    assign write_strobe  = second && in_full && pair == WRPRT;
    assign read_strobe   = second && in_full && pair == RDPRT;
    assign interrupt_ack = second && preempted;

    // Results
    reg [8:0] result;  // the upper bit is the carry
    reg       loads;   // the register takes the result
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
            RDPRT: begin
                result = {1'b0, in_port};
                loads = 1'b1;
            end
            RDMEM: begin
                result = {1'b0, read_cell};
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
            COMP: begin
                result = {1'b0, sx} - {1'b0, operand};
                new_carry = result[8];
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
            default: ;
        endcase
        if (op == SHIFT) begin
            loads = 1'b1;
            flags = 1'b1;
            case (instruction[2:1])
                2'b00: shifted_in = carry;
                2'b01: shifted_in = sx[7];
                2'b10: shifted_in = sx[0];
                2'b11: shifted_in = instruction[0];
            endcase
            if (instruction[3]) begin
                result = {1'b0, shifted_in, sx[7:1]};
                new_carry = sx[0];
            end else begin
                result = {1'b0, sx[6:0], shifted_in};
                new_carry = sx[7];
            end
        end
        new_zero = result[7:0] == 8'h00;
    end

    // Program flow. Bits 11 and 10 of a conditional instruction: Z, NZ, C, NC.
    wire met         = !op[0] || (instruction[11] ? carry : zero) != instruction[10];
    wire calls       = pair == CALL && met;
    wire jumps       = pair == JUMP && met;
    wire returns     = pair == RET && met;
    wire returns_int = op == RETI;

    wire [4:0] below    = depth - 5'd1;
    wire       on_after = in_full && (op == INT || op == RETI) ? instruction[0] : enabled && !preempted;

    always @(posedge clk) begin
        if (reset) begin
            // Registers and scratchpad stay; so do the cells of the stack and the kept flags, of which nothing is known.
            slot <= NOTHING;
            second <= 1'b1;
            requested <= 1'b0;
            pc <= 10'h000;
            here <= 10'h000;
            carry <= 1'b0;
            zero <= 1'b0;
            enabled <= 1'b0;
            depth <= 5'd0;
        end else if (!second) begin
            second <= 1'b1;
            requested <= interrupt;
            if (slot == ENTER)
                pc <= VECTOR;
            else if (calls || jumps)
                pc <= instruction[9:0];
            else if (returns)
                pc <= stack[below] + 10'h001;
            else if (returns_int)
                pc <= stack[below];
            else
                pc <= here + 10'h001;
        end else begin
            second <= 1'b0;
            here <= pc;
            if (in_full) begin
                if (loads)
                    registers[x] <= result[7:0];
                if (pair == WRMEM)
                    scratchpad[operand[5:0]] <= sx;
                if (returns_int) begin
                    carry <= kept_carry;
                    zero <= kept_zero;
                end
            end
            if (preempted) begin
                kept_carry <= carry;
                kept_zero <= zero;
            end
            // The flags of a pre-empted instruction come through, though its register does not.
            if ((in_full || preempted) && flags) begin
                carry <= new_carry;
                zero <= new_zero;
            end
            enabled <= on_after;
            // Each instruction leaves its address in the cell that a call would push it to.
            if (in_full || preempted)
                stack[depth] <= here;
            if (in_full && calls || preempted)
                depth <= depth + 5'd1;
            else if (in_full && (returns || returns_int))
                depth <= below;
            slot <= requested && on_after && in_full ? ENTER : EXECUTE;
        end
    end
endmodule
