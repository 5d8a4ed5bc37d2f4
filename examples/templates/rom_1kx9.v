// Template: memory of 1024 x 9 bits in one RAM, 8 data bits and 1 parity bit a word
//
// nalvo_ram_1kx9 stands for a block RAM set to 1024 words of 8 data bits and 1 parity bit.
// Put the primitive of your device in its place: such primitives take their first contents from parameters
// INIT_xx (data) and INITP_xx (parity) of 256 bits each, the lowest address in the lowest bits, as filled here.
// For an IO device that takes nine bits of the instructions, or for any device of 1024 words of up to 9 bits.
//
// All lines down to the next one are left out of the output file.
// {BEGIN TEMPLATE}
// {NAME}: memory, 1024 x 9 bits
// Made by the assembler, do not edit.
//
// Date:    {TIMESTAMP}
// Project: {PROJECTTITLE}
// Version: {PROJECTVERSION}
// File:    {PROJECTFILENAME}

module {NAME} (
    input  wire        clk,
    input  wire [9:0]  address,
    output wire [8:0]  data
);
    nalvo_ram_1kx9 #(
        .INIT_00  (256'h{[8:0]_INIT_00}),
        .INIT_01  (256'h{[8:0]_INIT_01}),
        .INIT_02  (256'h{[8:0]_INIT_02}),
        .INIT_03  (256'h{[8:0]_INIT_03}),
        .INIT_04  (256'h{[8:0]_INIT_04}),
        .INIT_05  (256'h{[8:0]_INIT_05}),
        .INIT_06  (256'h{[8:0]_INIT_06}),
        .INIT_07  (256'h{[8:0]_INIT_07}),
        .INIT_08  (256'h{[8:0]_INIT_08}),
        .INIT_09  (256'h{[8:0]_INIT_09}),
        .INIT_0A  (256'h{[8:0]_INIT_0A}),
        .INIT_0B  (256'h{[8:0]_INIT_0B}),
        .INIT_0C  (256'h{[8:0]_INIT_0C}),
        .INIT_0D  (256'h{[8:0]_INIT_0D}),
        .INIT_0E  (256'h{[8:0]_INIT_0E}),
        .INIT_0F  (256'h{[8:0]_INIT_0F}),
        .INIT_10  (256'h{[8:0]_INIT_10}),
        .INIT_11  (256'h{[8:0]_INIT_11}),
        .INIT_12  (256'h{[8:0]_INIT_12}),
        .INIT_13  (256'h{[8:0]_INIT_13}),
        .INIT_14  (256'h{[8:0]_INIT_14}),
        .INIT_15  (256'h{[8:0]_INIT_15}),
        .INIT_16  (256'h{[8:0]_INIT_16}),
        .INIT_17  (256'h{[8:0]_INIT_17}),
        .INIT_18  (256'h{[8:0]_INIT_18}),
        .INIT_19  (256'h{[8:0]_INIT_19}),
        .INIT_1A  (256'h{[8:0]_INIT_1A}),
        .INIT_1B  (256'h{[8:0]_INIT_1B}),
        .INIT_1C  (256'h{[8:0]_INIT_1C}),
        .INIT_1D  (256'h{[8:0]_INIT_1D}),
        .INIT_1E  (256'h{[8:0]_INIT_1E}),
        .INIT_1F  (256'h{[8:0]_INIT_1F}),
        .INITP_00 (256'h{[8:0]_INITP_00}),
        .INITP_01 (256'h{[8:0]_INITP_01}),
        .INITP_02 (256'h{[8:0]_INITP_02}),
        .INITP_03 (256'h{[8:0]_INITP_03})
    ) ram (
        .clk  (clk),
        .we   (1'b0),
        .addr (address),
        .din  (9'd0),
        .dout (data)
    );
endmodule
