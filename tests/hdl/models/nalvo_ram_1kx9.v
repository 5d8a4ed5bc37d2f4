// Behavioural model of a block RAM set to 1024 words of 8 data bits and 1 parity bit.
// INIT_xx hold the data bits, INITP_xx the parity bits; the lowest address stands in the lowest bits. A word on dout
// and din is the parity bits followed by the data bits.

module nalvo_ram_1kx9 #(
    parameter [255:0] INIT_00  = 256'h0,
    parameter [255:0] INIT_01  = 256'h0,
    parameter [255:0] INIT_02  = 256'h0,
    parameter [255:0] INIT_03  = 256'h0,
    parameter [255:0] INIT_04  = 256'h0,
    parameter [255:0] INIT_05  = 256'h0,
    parameter [255:0] INIT_06  = 256'h0,
    parameter [255:0] INIT_07  = 256'h0,
    parameter [255:0] INIT_08  = 256'h0,
    parameter [255:0] INIT_09  = 256'h0,
    parameter [255:0] INIT_0A  = 256'h0,
    parameter [255:0] INIT_0B  = 256'h0,
    parameter [255:0] INIT_0C  = 256'h0,
    parameter [255:0] INIT_0D  = 256'h0,
    parameter [255:0] INIT_0E  = 256'h0,
    parameter [255:0] INIT_0F  = 256'h0,
    parameter [255:0] INIT_10  = 256'h0,
    parameter [255:0] INIT_11  = 256'h0,
    parameter [255:0] INIT_12  = 256'h0,
    parameter [255:0] INIT_13  = 256'h0,
    parameter [255:0] INIT_14  = 256'h0,
    parameter [255:0] INIT_15  = 256'h0,
    parameter [255:0] INIT_16  = 256'h0,
    parameter [255:0] INIT_17  = 256'h0,
    parameter [255:0] INIT_18  = 256'h0,
    parameter [255:0] INIT_19  = 256'h0,
    parameter [255:0] INIT_1A  = 256'h0,
    parameter [255:0] INIT_1B  = 256'h0,
    parameter [255:0] INIT_1C  = 256'h0,
    parameter [255:0] INIT_1D  = 256'h0,
    parameter [255:0] INIT_1E  = 256'h0,
    parameter [255:0] INIT_1F  = 256'h0,
    parameter [255:0] INITP_00 = 256'h0,
    parameter [255:0] INITP_01 = 256'h0,
    parameter [255:0] INITP_02 = 256'h0,
    parameter [255:0] INITP_03 = 256'h0
) (
    input  wire        clk,
    input  wire        we,
    input  wire [9:0]  addr,
    input  wire [8:0]  din,
    output wire [8:0]  dout
);
    nalvo_ram_core #(
        .ADDR_BITS   (10),
        .DATA_BITS   (8),
        .PARITY_BITS (1),
        .INIT        ({
            INIT_1F, INIT_1E, INIT_1D, INIT_1C, INIT_1B, INIT_1A, INIT_19, INIT_18,
            INIT_17, INIT_16, INIT_15, INIT_14, INIT_13, INIT_12, INIT_11, INIT_10,
            INIT_0F, INIT_0E, INIT_0D, INIT_0C, INIT_0B, INIT_0A, INIT_09, INIT_08,
            INIT_07, INIT_06, INIT_05, INIT_04, INIT_03, INIT_02, INIT_01, INIT_00
        }),
        .INITP       ({
            INITP_03, INITP_02, INITP_01, INITP_00
        })
    ) core (
        .clk  (clk),
        .we   (we),
        .addr (addr),
        .din  (din),
        .dout (dout)
    );
endmodule
