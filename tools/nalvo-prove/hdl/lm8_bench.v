// Runs a program on a Mico8 core, which it knows by its ports alone, and prints one line an event.
// See README.md for the arguments and the lines.

module lm8_bench;
    parameter integer registers       = 32;
    parameter integer scratchpad_size = 32;
    parameter integer address_bits    = 8;
    parameter integer words           = 4096;
    parameter integer pages           = 1;

    reg                     clk;
    wire                    rst_n;
    wire [11:0]             prom_addr;
    wire                    prom_en;
    reg  [17:0]             prom_data;
    wire [address_bits-1:0] ext_addr;
    wire [7:0]              ext_dout;
    wire                    ext_io_wr;
    wire                    ext_io_rd;
    wire [7:0]              ext_io_din;
    reg                     ext_ready;
    reg                     interrupt;
    wire                    intr_ack;
    reg                     reset;

    lm8 #(
        .REGISTERS (registers),
        .SCRATCHPAD_SIZE (scratchpad_size),
        .ADDRESS_BITS (address_bits)
    ) core (
        .clk (clk),
        .rst_n (rst_n),
        .prom_addr (prom_addr),
        .prom_en (prom_en),
        .prom_data (prom_data),
        .ext_addr (ext_addr),
        .ext_dout (ext_dout),
        .ext_io_wr (ext_io_wr),
        .ext_io_rd (ext_io_rd),
        .ext_io_din (ext_io_din),
        .ext_ready (ext_ready),
        .intr (interrupt),
        .intr_ack (intr_ack)
    );

    localparam integer full_size = 4096; // words that the core can address
    localparam [17:0] write_word = 18'h2e000; // writes register 0 to port 0

    // What the arguments and files say, and the course of the run
`include "stimulus.vh"

    // The program memory: a synchronous block RAM, whose register is 0 at power-up
    reg [17:0] memory [0:4096*pages-1];
    always @(posedge clk)
        if (prom_en)
            prom_data <= memory[page * modulus + prom_addr % modulus];

    assign rst_n = !reset;
    assign ext_io_din = read_value;

    // The events. An instruction begins in the clock after the memory was read for it.
    reg [11:0]  fetched;
    reg         begins;
    reg         in_reset;
    reg         was_read;
    integer     waits;  // wait states of each access
    integer     waited;

    wire [31:0] port = {32'h00000000, ext_addr};

    task print_access(input [7:0] kind, input [7:0] value);
        if (port > 32'h000000FF)
            $display("%c %0h %h %0d", kind, port, value, clock);
        else
            $display("%c %h %h %0d", kind, port[7:0], value, clock);
    endtask

    task observe;
        begin
            if (reset) begin
                if (!in_reset && clock >= 0)
                    $display("RESET 000 %0d", clock);
            end else begin
                if (intr_ack)
                    $display("INT 000 %0d", clock);
                if (begins && clock >= 0)
                    $display("I %h %0d", fetched, clock);
                if (ext_io_rd && ext_ready)
                    print_access("R", ext_io_din);
                if (ext_io_wr && ext_ready)
                    print_access("W", ext_dout);
            end
            in_reset = reset;
            begins = !reset && prom_en;
            fetched = prom_addr;
        end
    endtask

    wire writes = ext_io_wr;

    task clear_bench;
        begin
            prom_data = 18'h00000;
            if (!$value$plusargs("waits=%d", waits))
                waits = 0;
        end
    endtask

    task begin_observing;
        begin
            in_reset = 1'b1;
            begins = 1'b0;
            waited = 0;
        end
    endtask

    task prepare_clock;
        ext_ready = 1'b1;
    endtask

    task run_clock;
        begin
            ext_ready = waited >= waits;
            if (ext_io_rd || ext_io_wr)
                waited = ext_ready ? 0 : waited + 1;
            #5 observe;
            was_read = ext_io_rd && ext_ready && !reset && !aside;
            clk = 1'b1;
            #5 clk = 1'b0;
            if (was_read)
                next_read;
        end
    endtask
endmodule
