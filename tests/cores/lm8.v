// Behavioural model of the Mico8 core, for tests and simulation. README.md describes the ports.
//
// An instruction takes two clocks; one that accesses a port or the scratchpad takes three and, at a port, as many more as the
// port is not ready. In the last clock of each instruction the program memory, a synchronous block RAM outside of the core, is
// read for the next one.

module lm8 #(
    parameter integer REGISTERS       = 32, // 16 or 32
    parameter integer SCRATCHPAD_SIZE = 32, // a power of two
    parameter integer ADDRESS_BITS    = 8   // of ports, 8 to 32
) (
    input  wire                    clk,
    input  wire                    rst_n,
    output wire [11:0]             prom_addr,
    output wire                    prom_en,
    input  wire [17:0]             prom_data,
    output wire [ADDRESS_BITS-1:0] ext_addr,
    output wire [7:0]              ext_dout,
    output wire                    ext_io_wr,
    output wire                    ext_io_rd,
    input  wire [7:0]              ext_io_din,
    input  wire                    ext_ready,
    input  wire                    intr,
    output reg                     intr_ack
);
    // The clocks of an instruction. After a reset, START reads the program memory for the first time.
    localparam [1:0] FIRST  = 2'd0;
    localparam [1:0] ACCESS = 2'd1; // the strobe is active
    localparam [1:0] LAST   = 2'd2;
    localparam [1:0] START  = 2'd3;

    // Bits 17 to 14 of the word: instructions of two operands; with bit 13 set, the source is a constant.
    localparam [3:0] SUB = 4'h0, SUBC = 4'h1, ADD = 4'h2, ADDC = 4'h3, LOAD = 4'h4;
    localparam [3:0] AND = 4'h5, OR   = 4'h6, XOR = 4'h7, COMP = 4'h8, TEST = 4'h9;
    localparam [3:0] ROTATE = 4'hA, FLAGS_OR_ACCESS = 4'hB; // the latter by bit 13
    // Bits 17 to 12 of the word. Conditions stand in bits 13 and 12: Z, NZ, C, NC.
    localparam [3:0] JUMP_IF = 4'hC, CALL_IF = 4'hD;
    localparam [5:0] CALL = 6'h38, RET = 6'h39, RETI = 6'h3A, JUMP = 6'h3B;

    localparam [11:0] START_ADDRESS = 12'h001;
    localparam [11:0] VECTOR        = 12'h000;

    // State
    reg [1:0]  state;
    reg [11:0] pc;         // address of the instruction under way
    reg [7:0]  registers [0:REGISTERS-1];
    reg [7:0]  scratchpad [0:SCRATCHPAD_SIZE-1];
    reg        carry;
    reg        zero;
    reg        enabled;    // interrupts are on
    reg        in_routine; // of an interrupt; RETI alone ends it
    reg        requested;  // latched; nothing in the instruction set of the assembler takes it back
    reg [3:0]  depth;
    reg [11:0] stack_address [0:15];
    reg        stack_carry [0:15];
    reg        stack_zero [0:15];
    reg [7:0]  taken;      // what an access has read

    integer i;
    initial begin
        state = START;
        pc = 12'h000;
        carry = 1'b0;
        zero = 1'b0;
        enabled = 1'b0;
        in_routine = 1'b0;
        requested = 1'b0;
        depth = 4'd0;
        taken = 8'h00;
        intr_ack = 1'b0;
        for (i = 0; i < REGISTERS; i = i + 1)
            registers[i] = 8'h00;
        for (i = 0; i < SCRATCHPAD_SIZE; i = i + 1)
            scratchpad[i] = 8'h00;
        for (i = 0; i < 16; i = i + 1) begin
            stack_address[i] = 12'h000;
            stack_carry[i] = 1'b0;
            stack_zero[i] = 1'b0;
        end
    end

    // The parts of the instruction. A core of 16 registers does not look at the upper bit of a number.
    wire [17:0] word     = prom_data;
    wire [3:0]  group    = word[17:14];
    wire [5:0]  op       = word[17:12];
    wire [4:0]  d        = word[12:8] % REGISTERS;
    wire [4:0]  s        = word[7:3] % REGISTERS;
    wire [7:0]  rd       = registers[d];
    wire [7:0]  rs       = registers[s];
    wire [7:0]  operand  = word[13] ? word[7:0] : rs;

    // Accesses: bit 0 tells reading from writing, bit 1 (rs) from a number, bit 2 the scratchpad from a port.
    wire        accesses = group == FLAGS_OR_ACCESS && word[13];
    wire        at_port  = accesses && !word[2];
    wire [31:0] by_regs  = {registers[15], registers[14], registers[13], rs};
    wire [31:0] where    = word[1] ? by_regs : {27'h0, word[7:3]};
    wire [31:0] cell_at  = where[ADDRESS_BITS-1:0] % SCRATCHPAD_SIZE;

    assign ext_addr  = where[ADDRESS_BITS-1:0];
    assign ext_dout  = rd;
    assign ext_io_rd = state == ACCESS && at_port && word[0];
    assign ext_io_wr = state == ACCESS && at_port && !word[0];

    // Results
    reg [8:0] result;    // the upper bit is the carry
    reg       loads;     // the register takes it
    reg       new_carry; // as they are without a change
    reg       new_zero;

    always @* begin
        result = 9'h000;
        loads = 1'b0;
        new_carry = carry;
        new_zero = zero;
        case (group)
            SUB, SUBC, COMP: begin
                result = {1'b0, rd} - {1'b0, operand} - {8'h00, group == SUBC && carry};
                new_carry = result[8];
                new_zero = result[7:0] == 8'h00;
                loads = group != COMP;
            end
            ADD, ADDC: begin
                result = {1'b0, rd} + {1'b0, operand} + {8'h00, group == ADDC && carry};
                new_carry = result[8];
                new_zero = result[7:0] == 8'h00;
                loads = 1'b1;
            end
            LOAD: begin
                result = {1'b0, operand};
                loads = 1'b1;
            end
            AND, TEST: begin
                result = {1'b0, rd & operand};
                new_zero = result[7:0] == 8'h00;
                loads = group == AND;
            end
            OR: begin
                result = {1'b0, rd | operand};
                new_zero = result[7:0] == 8'h00;
                loads = 1'b1;
            end
            XOR: begin
                result = {1'b0, rd ^ operand};
                new_zero = result[7:0] == 8'h00;
                loads = 1'b1;
            end
            ROTATE: begin
                // Bit 0 is the direction, bit 1 takes the carry in. The plain rotates leave the carry.
                if (word[0])
                    result = {rs, word[1] ? carry : rs[7]};
                else
                    result = {rs[0], word[1] ? carry : rs[0], rs[7:1]};
                if (word[1])
                    new_carry = result[8];
                new_zero = result[7:0] == 8'h00;
                loads = 1'b1;
            end
            FLAGS_OR_ACCESS:
                if (accesses) begin
                    result = {1'b0, taken};
                    loads = word[0];
                end else if (word[2:1] == 2'b00)
                    new_carry = word[0];
                else if (word[2:1] == 2'b01)
                    new_zero = word[0];
            default: ;
        endcase
    end

    // Program flow
    wire met     = (word[13] ? carry : zero) != word[12];
    wire calls   = op == CALL || group == CALL_IF && met;
    wire jumps   = op == JUMP || group == JUMP_IF && met;
    wire returns = op == RET || op == RETI;

    wire [11:0] behind = pc + 12'h001;
    wire [3:0]  below  = depth - 4'd1;
    wire [11:0] goes_to = calls || jumps ? pc + word[11:0] : returns ? stack_address[below] : behind;

    // INT ENABLE and INT DISABLE count at once.
    wire on_after = group == FLAGS_OR_ACCESS && !accesses && word[2:1] == 2'b10 ? word[0] : enabled;
    // What a flow instruction has just changed can not be pushed; an unconditional JUMP alone is no hindrance.
    wire puts_off = calls || returns || jumps && op != JUMP;
    wire enters   = requested && on_after && !in_routine && !puts_off;

    assign prom_en   = rst_n && (state == LAST || state == START);
    assign prom_addr = state == START ? START_ADDRESS : enters ? VECTOR : goes_to;

    always @(posedge clk) begin
        intr_ack <= 1'b0;
        if (!rst_n) begin
            // Registers and scratchpad stay; so do the cells of the stack, of which nothing is known.
            state <= START;
            pc <= 12'h000;
            carry <= 1'b0;
            zero <= 1'b0;
            enabled <= 1'b0;
            in_routine <= 1'b0;
            requested <= 1'b0;
            depth <= 4'd0;
        end else begin
            requested <= requested || intr;
            case (state)
                START: begin
                    // The word that is still in the program memory's register passes through and leaves zero behind: after
                    // power-up the word 0, SUB r0, r0.
                    zero <= new_zero;
                    pc <= START_ADDRESS;
                    state <= FIRST;
                end
                FIRST:
                    state <= accesses ? ACCESS : LAST;
                ACCESS:
                    if (!at_port) begin
                        taken <= scratchpad[cell_at];
                        if (!word[0])
                            scratchpad[cell_at] <= rd;
                        state <= LAST;
                    end else if (ext_ready) begin
                        taken <= ext_io_din;
                        state <= LAST;
                    end
                LAST: begin
                    state <= FIRST;
                    pc <= prom_addr;
                    if (loads)
                        registers[d] <= result[7:0];
                    carry <= new_carry;
                    zero <= new_zero;
                    enabled <= on_after;
                    if (calls) begin
                        stack_address[depth] <= behind;
                        stack_carry[depth] <= carry;
                        stack_zero[depth] <= zero;
                        depth <= depth + 4'd1;
                    end
                    if (returns)
                        depth <= below;
                    if (op == RETI) begin
                        carry <= stack_carry[below];
                        zero <= stack_zero[below];
                        in_routine <= 1'b0;
                    end
                    if (enters) begin
                        stack_address[depth] <= goes_to;
                        stack_carry[depth] <= new_carry;
                        stack_zero[depth] <= new_zero;
                        depth <= depth + 4'd1;
                        in_routine <= 1'b1;
                        intr_ack <= 1'b1;
                    end
                end
            endcase
        end
    end
endmodule
