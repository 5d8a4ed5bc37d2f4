// Runs a program on a PicoBlaze 3 core, which it knows by its ports alone, and prints one line an event.
// See README.md for the arguments and the lines.

module kcpsm3_bench;
    parameter integer words = 1024;
    parameter integer pages = 1;

    wire [9:0]  address;
    reg  [17:0] instruction;
    wire [7:0]  in_port;
    wire [7:0]  out_port;
    wire [7:0]  port_id;
    wire        write_strobe;
    wire        read_strobe;
    reg         interrupt;
    wire        interrupt_ack;
    reg         reset;
    reg         clk;

    kcpsm3 core (
        .address (address),
        .instruction (instruction),
        .in_port (in_port),
        .out_port (out_port),
        .port_id (port_id),
        .write_strobe (write_strobe),
        .read_strobe (read_strobe),
        .interrupt (interrupt),
        .interrupt_ack (interrupt_ack),
        .reset (reset),
        .clk (clk)
    );

    localparam integer full_size = 1024; // words that the core can address
    localparam [17:0] write_word = 18'h2c000; // writes register 0 to port 0

    // What the arguments and files say, and the course of the run
`include "stimulus.vh"

    // The program memory: a synchronous block RAM
    reg [17:0] memory [0:4096*pages-1];
    always @(posedge clk)
        instruction <= memory[page * modulus + address % modulus];

    assign in_port = read_value;

    // The events. The address of a slot is the one in the clock before it; whether it was executed is known at its end.
    reg [9:0]  fetched;
    reg [9:0]  here;
    reg        in_reset;
    reg        was_read;
    integer    slot_clock; // counts from the first clock of the first slot after a reset; negative before it

    task observe;
        begin
            if (reset) begin
                if (!in_reset && clock >= 0)
                    $display("RESET 000 %0d", clock);
                in_reset = 1'b1;
                slot_clock = -start;
            end else begin
                in_reset = 1'b0;
                if (slot_clock >= 0 && slot_clock % 2 == 0) begin
                    here = fetched;
                end else if (slot_clock > 0) begin
                    if (interrupt_ack)
                        $display("INT %h %0d", here, clock - 1);
                    else
                        $display("I %h %0d", here, clock - 1);
                end
                if (slot_clock >= 0) begin
                    if (read_strobe)
                        $display("R %h %h %0d", port_id, in_port, clock);
                    if (write_strobe)
                        $display("W %h %h %0d", port_id, out_port, clock);
                end
                if (slot_clock % 2 != 0)
                    fetched = address;
                slot_clock = slot_clock + 1;
            end
        end
    endtask

    wire writes = write_strobe;

    task clear_bench;
        instruction = 18'h00000;
    endtask

    task begin_observing;
        begin
            in_reset = 1'b1;
            slot_clock = -start;
        end
    endtask

    task prepare_clock;
        ;
    endtask

    task run_clock;
        begin
            #5 observe;
            was_read = read_strobe && !reset && !aside;
            clk = 1'b1;
            #5 clk = 1'b0;
            if (was_read)
                next_read;
        end
    endtask
endmodule
