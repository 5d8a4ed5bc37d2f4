// Template: data memory of 128 x 8 bits with a write port
//
// nalvo_ram_1kx9 stands for a block RAM set to 1024 words of 8 data bits and 1 parity bit.
// Put the primitive of your device in its place: such primitives take their first contents from parameters
// INIT_xx (data) and INITP_xx (parity) of 256 bits each, the lowest address in the lowest bits, as filled here.
// Only the first 128 words are used, so the parity bits and the further INIT_xx stay zero.
//
// All lines down to the next one are left out of the output file.
// {BEGIN TEMPLATE}
// {NAME}: data memory, 128 x 8 bits
// Made by the assembler, do not edit.
//
// Date:    {TIMESTAMP}
// Project: {PROJECTTITLE}
// Version: {PROJECTVERSION}
// File:    {PROJECTFILENAME}

module {NAME} (
    input  wire        clk,
    input  wire [6:0]  address,
    input  wire        we,
    input  wire [7:0]  din,
    output wire [7:0]  data
);
    wire [8:0] ram_dout;

    assign data = ram_dout[7:0];

    nalvo_ram_1kx9 #(
        .INIT_00  (256'h{[8:0]_INIT_00}),
        .INIT_01  (256'h{[8:0]_INIT_01}),
        .INIT_02  (256'h{[8:0]_INIT_02}),
        .INIT_03  (256'h{[8:0]_INIT_03})
    ) ram (
        .clk  (clk),
        .we   (we),
        .addr ({3'b000, address}),
        .din  ({1'b0, din}),
        .dout (ram_dout)
    );
endmodule
