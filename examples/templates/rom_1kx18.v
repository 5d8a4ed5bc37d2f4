// Template: program memory of 1024 x 18 bits in one RAM, 16 data bits and 2 parity bits a word
//
// nalvo_ram_1kx18 stands for an 18 kbit block RAM set to 1024 words of 16 data bits and 2 parity bits.
// Put the primitive of your device in its place: such primitives take their first contents from parameters
// INIT_xx (data) and INITP_xx (parity) of 256 bits each, the lowest address in the lowest bits, as filled here.
//
// All lines down to the next one are left out of the output file.
// {BEGIN TEMPLATE}
// {NAME}: program memory, 1024 x 18 bits in one RAM
// Made by the assembler, do not edit.
//
// Date:    {TIMESTAMP}
// Project: {PROJECTTITLE}
// Version: {PROJECTVERSION}
// File:    {PROJECTFILENAME}

module {NAME} (
    input  wire        clk,
    input  wire [9:0]  address,
    output wire [17:0] data
);
    nalvo_ram_1kx18 #(
        .INIT_00  (256'h{INIT_00}),
        .INIT_01  (256'h{INIT_01}),
        .INIT_02  (256'h{INIT_02}),
        .INIT_03  (256'h{INIT_03}),
        .INIT_04  (256'h{INIT_04}),
        .INIT_05  (256'h{INIT_05}),
        .INIT_06  (256'h{INIT_06}),
        .INIT_07  (256'h{INIT_07}),
        .INIT_08  (256'h{INIT_08}),
        .INIT_09  (256'h{INIT_09}),
        .INIT_0A  (256'h{INIT_0A}),
        .INIT_0B  (256'h{INIT_0B}),
        .INIT_0C  (256'h{INIT_0C}),
        .INIT_0D  (256'h{INIT_0D}),
        .INIT_0E  (256'h{INIT_0E}),
        .INIT_0F  (256'h{INIT_0F}),
        .INIT_10  (256'h{INIT_10}),
        .INIT_11  (256'h{INIT_11}),
        .INIT_12  (256'h{INIT_12}),
        .INIT_13  (256'h{INIT_13}),
        .INIT_14  (256'h{INIT_14}),
        .INIT_15  (256'h{INIT_15}),
        .INIT_16  (256'h{INIT_16}),
        .INIT_17  (256'h{INIT_17}),
        .INIT_18  (256'h{INIT_18}),
        .INIT_19  (256'h{INIT_19}),
        .INIT_1A  (256'h{INIT_1A}),
        .INIT_1B  (256'h{INIT_1B}),
        .INIT_1C  (256'h{INIT_1C}),
        .INIT_1D  (256'h{INIT_1D}),
        .INIT_1E  (256'h{INIT_1E}),
        .INIT_1F  (256'h{INIT_1F}),
        .INIT_20  (256'h{INIT_20}),
        .INIT_21  (256'h{INIT_21}),
        .INIT_22  (256'h{INIT_22}),
        .INIT_23  (256'h{INIT_23}),
        .INIT_24  (256'h{INIT_24}),
        .INIT_25  (256'h{INIT_25}),
        .INIT_26  (256'h{INIT_26}),
        .INIT_27  (256'h{INIT_27}),
        .INIT_28  (256'h{INIT_28}),
        .INIT_29  (256'h{INIT_29}),
        .INIT_2A  (256'h{INIT_2A}),
        .INIT_2B  (256'h{INIT_2B}),
        .INIT_2C  (256'h{INIT_2C}),
        .INIT_2D  (256'h{INIT_2D}),
        .INIT_2E  (256'h{INIT_2E}),
        .INIT_2F  (256'h{INIT_2F}),
        .INIT_30  (256'h{INIT_30}),
        .INIT_31  (256'h{INIT_31}),
        .INIT_32  (256'h{INIT_32}),
        .INIT_33  (256'h{INIT_33}),
        .INIT_34  (256'h{INIT_34}),
        .INIT_35  (256'h{INIT_35}),
        .INIT_36  (256'h{INIT_36}),
        .INIT_37  (256'h{INIT_37}),
        .INIT_38  (256'h{INIT_38}),
        .INIT_39  (256'h{INIT_39}),
        .INIT_3A  (256'h{INIT_3A}),
        .INIT_3B  (256'h{INIT_3B}),
        .INIT_3C  (256'h{INIT_3C}),
        .INIT_3D  (256'h{INIT_3D}),
        .INIT_3E  (256'h{INIT_3E}),
        .INIT_3F  (256'h{INIT_3F}),
        .INITP_00 (256'h{INITP_00}),
        .INITP_01 (256'h{INITP_01}),
        .INITP_02 (256'h{INITP_02}),
        .INITP_03 (256'h{INITP_03}),
        .INITP_04 (256'h{INITP_04}),
        .INITP_05 (256'h{INITP_05}),
        .INITP_06 (256'h{INITP_06}),
        .INITP_07 (256'h{INITP_07})
    ) ram (
        .clk  (clk),
        .we   (1'b0),
        .addr (address),
        .din  (18'd0),
        .dout (data)
    );
endmodule
