// What the RAM models share: a synchronous single-port memory whose first contents come from two long constants.

module nalvo_ram_core #(
    parameter ADDR_BITS   = 10,
    parameter DATA_BITS   = 16,
    parameter PARITY_BITS = 2,
    parameter [(1 << ADDR_BITS) * DATA_BITS - 1:0]   INIT  = 0,
    parameter [(1 << ADDR_BITS) * PARITY_BITS - 1:0] INITP = 0
) (
    input  wire                               clk,
    input  wire                               we,
    input  wire [ADDR_BITS - 1:0]               addr,
    input  wire [DATA_BITS + PARITY_BITS - 1:0] din,
    output reg  [DATA_BITS + PARITY_BITS - 1:0] dout
);
    reg [DATA_BITS + PARITY_BITS - 1:0] contents [0:(1 << ADDR_BITS) - 1];
    integer a;

    initial begin
        for (a = 0; a < (1 << ADDR_BITS); a = a + 1) begin
            contents[a] = {INITP[a * PARITY_BITS +: PARITY_BITS], INIT[a * DATA_BITS +: DATA_BITS]};
        end
    end

    always @(posedge clk) begin
        dout <= contents[addr];
        if (we) begin
            contents[addr] <= din;
        end
    end
endmodule
