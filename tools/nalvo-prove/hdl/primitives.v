// Models of the primitives of the vendor's devices that such cores are made of, as far as their users' guides describe
// them: truth tables, flip-flops, carry chains and distributed memories, without delays.

module LUT1 #(
    parameter [1:0] INIT = 2'h0
) (
    output wire O,
    input  wire I0
);
    assign O = INIT[{I0}];
endmodule

module LUT2 #(
    parameter [3:0] INIT = 4'h0
) (
    output wire O,
    input  wire I0,
    input  wire I1
);
    assign O = INIT[{I1, I0}];
endmodule

module LUT3 #(
    parameter [7:0] INIT = 8'h0
) (
    output wire O,
    input  wire I0,
    input  wire I1,
    input  wire I2
);
    assign O = INIT[{I2, I1, I0}];
endmodule

module LUT4 #(
    parameter [15:0] INIT = 16'h0
) (
    output wire O,
    input  wire I0,
    input  wire I1,
    input  wire I2,
    input  wire I3
);
    assign O = INIT[{I3, I2, I1, I0}];
endmodule

module LUT5 #(
    parameter [31:0] INIT = 32'h0
) (
    output wire O,
    input  wire I0,
    input  wire I1,
    input  wire I2,
    input  wire I3,
    input  wire I4
);
    assign O = INIT[{I4, I3, I2, I1, I0}];
endmodule

module LUT6 #(
    parameter [63:0] INIT = 64'h0
) (
    output wire O,
    input  wire I0,
    input  wire I1,
    input  wire I2,
    input  wire I3,
    input  wire I4,
    input  wire I5
);
    assign O = INIT[{I5, I4, I3, I2, I1, I0}];
endmodule

module LUT6_2 #(
    parameter [63:0] INIT = 64'h0
) (
    output wire O5,
    output wire O6,
    input  wire I0,
    input  wire I1,
    input  wire I2,
    input  wire I3,
    input  wire I4,
    input  wire I5
);
    assign O5 = INIT[{1'b0, I4, I3, I2, I1, I0}];
    assign O6 = INIT[{I5, I4, I3, I2, I1, I0}];
endmodule

module FD #(
    parameter INIT = 1'b0
) (
    output reg  Q,
    input  wire C,
    input  wire D
);
    initial Q = INIT;

    always @(posedge C)
        Q <= D;
endmodule

module FDE #(
    parameter INIT = 1'b0
) (
    output reg  Q,
    input  wire C,
    input  wire CE,
    input  wire D
);
    initial Q = INIT;

    always @(posedge C)
        if (CE)
            Q <= D;
endmodule

module FDR #(
    parameter INIT = 1'b0
) (
    output reg  Q,
    input  wire C,
    input  wire D,
    input  wire R
);
    initial Q = INIT;

    always @(posedge C)
        if (R)
            Q <= 1'b0;
        else
            Q <= D;
endmodule

module FDRE #(
    parameter INIT = 1'b0
) (
    output reg  Q,
    input  wire C,
    input  wire CE,
    input  wire D,
    input  wire R
);
    initial Q = INIT;

    always @(posedge C)
        if (R)
            Q <= 1'b0;
        else if (CE)
            Q <= D;
endmodule

module FDS #(
    parameter INIT = 1'b1
) (
    output reg  Q,
    input  wire C,
    input  wire D,
    input  wire S
);
    initial Q = INIT;

    always @(posedge C)
        if (S)
            Q <= 1'b1;
        else
            Q <= D;
endmodule

module FDSE #(
    parameter INIT = 1'b1
) (
    output reg  Q,
    input  wire C,
    input  wire CE,
    input  wire D,
    input  wire S
);
    initial Q = INIT;

    always @(posedge C)
        if (S)
            Q <= 1'b1;
        else if (CE)
            Q <= D;
endmodule

module FDRS #(
    parameter INIT = 1'b0
) (
    output reg  Q,
    input  wire C,
    input  wire D,
    input  wire R,
    input  wire S
);
    initial Q = INIT;

    always @(posedge C)
        if (R)
            Q <= 1'b0;
        else if (S)
            Q <= 1'b1;
        else
            Q <= D;
endmodule

module FDRSE #(
    parameter INIT = 1'b0
) (
    output reg  Q,
    input  wire C,
    input  wire CE,
    input  wire D,
    input  wire R,
    input  wire S
);
    initial Q = INIT;

    always @(posedge C)
        if (R)
            Q <= 1'b0;
        else if (S)
            Q <= 1'b1;
        else if (CE)
            Q <= D;
endmodule

module FDC #(
    parameter INIT = 1'b0
) (
    output reg  Q,
    input  wire C,
    input  wire D,
    input  wire CLR
);
    initial Q = INIT;

    always @(posedge C or posedge CLR)
        if (CLR)
            Q <= 1'b0;
        else
            Q <= D;
endmodule

module FDCE #(
    parameter INIT = 1'b0
) (
    output reg  Q,
    input  wire C,
    input  wire CE,
    input  wire D,
    input  wire CLR
);
    initial Q = INIT;

    always @(posedge C or posedge CLR)
        if (CLR)
            Q <= 1'b0;
        else if (CE)
            Q <= D;
endmodule

module FDP #(
    parameter INIT = 1'b1
) (
    output reg  Q,
    input  wire C,
    input  wire D,
    input  wire PRE
);
    initial Q = INIT;

    always @(posedge C or posedge PRE)
        if (PRE)
            Q <= 1'b1;
        else
            Q <= D;
endmodule

module FDPE #(
    parameter INIT = 1'b1
) (
    output reg  Q,
    input  wire C,
    input  wire CE,
    input  wire D,
    input  wire PRE
);
    initial Q = INIT;

    always @(posedge C or posedge PRE)
        if (PRE)
            Q <= 1'b1;
        else if (CE)
            Q <= D;
endmodule

module MUXCY (
    output wire O,
    input  wire CI,
    input  wire DI,
    input  wire S
);
    assign O = S ? CI : DI;
endmodule

module XORCY (
    output wire O,
    input  wire CI,
    input  wire LI
);
    assign O = CI ^ LI;
endmodule

module MUXF5 (
    output wire O,
    input  wire I0,
    input  wire I1,
    input  wire S
);
    assign O = S ? I1 : I0;
endmodule

module MUXF6 (
    output wire O,
    input  wire I0,
    input  wire I1,
    input  wire S
);
    assign O = S ? I1 : I0;
endmodule

module MUXF7 (
    output wire O,
    input  wire I0,
    input  wire I1,
    input  wire S
);
    assign O = S ? I1 : I0;
endmodule

module MUXF8 (
    output wire O,
    input  wire I0,
    input  wire I1,
    input  wire S
);
    assign O = S ? I1 : I0;
endmodule

module INV (
    output wire O,
    input  wire I
);
    assign O = ~I;
endmodule

module RAM16X1S #(
    parameter [15:0] INIT = 16'h0
) (
    output wire O,
    input  wire A0,
    input  wire A1,
    input  wire A2,
    input  wire A3,
    input  wire D,
    input  wire WCLK,
    input  wire WE
);
    reg [15:0] memory;

    initial memory = INIT;

    always @(posedge WCLK)
        if (WE)
            memory[{A3, A2, A1, A0}] <= D;

    assign O = memory[{A3, A2, A1, A0}];
endmodule

module RAM32X1S #(
    parameter [31:0] INIT = 32'h0
) (
    output wire O,
    input  wire A0,
    input  wire A1,
    input  wire A2,
    input  wire A3,
    input  wire A4,
    input  wire D,
    input  wire WCLK,
    input  wire WE
);
    reg [31:0] memory;

    initial memory = INIT;

    always @(posedge WCLK)
        if (WE)
            memory[{A4, A3, A2, A1, A0}] <= D;

    assign O = memory[{A4, A3, A2, A1, A0}];
endmodule

module RAM64X1S #(
    parameter [63:0] INIT = 64'h0
) (
    output wire O,
    input  wire A0,
    input  wire A1,
    input  wire A2,
    input  wire A3,
    input  wire A4,
    input  wire A5,
    input  wire D,
    input  wire WCLK,
    input  wire WE
);
    reg [63:0] memory;

    initial memory = INIT;

    always @(posedge WCLK)
        if (WE)
            memory[{A5, A4, A3, A2, A1, A0}] <= D;

    assign O = memory[{A5, A4, A3, A2, A1, A0}];
endmodule

module RAM128X1S #(
    parameter [127:0] INIT = 128'h0
) (
    output wire O,
    input  wire A0,
    input  wire A1,
    input  wire A2,
    input  wire A3,
    input  wire A4,
    input  wire A5,
    input  wire A6,
    input  wire D,
    input  wire WCLK,
    input  wire WE
);
    reg [127:0] memory;

    initial memory = INIT;

    always @(posedge WCLK)
        if (WE)
            memory[{A6, A5, A4, A3, A2, A1, A0}] <= D;

    assign O = memory[{A6, A5, A4, A3, A2, A1, A0}];
endmodule

module RAM256X1S #(
    parameter [255:0] INIT = 256'h0
) (
    output wire O,
    input  wire [7:0] A,
    input  wire D,
    input  wire WCLK,
    input  wire WE
);
    reg [255:0] memory;

    initial memory = INIT;

    always @(posedge WCLK)
        if (WE)
            memory[A] <= D;

    assign O = memory[A];
endmodule

module RAM16X1D #(
    parameter [15:0] INIT = 16'h0
) (
    output wire DPO,
    output wire SPO,
    input  wire A0,
    input  wire A1,
    input  wire A2,
    input  wire A3,
    input  wire D,
    input  wire DPRA0,
    input  wire DPRA1,
    input  wire DPRA2,
    input  wire DPRA3,
    input  wire WCLK,
    input  wire WE
);
    reg [15:0] memory;

    initial memory = INIT;

    always @(posedge WCLK)
        if (WE)
            memory[{A3, A2, A1, A0}] <= D;

    assign SPO = memory[{A3, A2, A1, A0}];
    assign DPO = memory[{DPRA3, DPRA2, DPRA1, DPRA0}];
endmodule

module RAM32X1D #(
    parameter [31:0] INIT = 32'h0
) (
    output wire DPO,
    output wire SPO,
    input  wire A0,
    input  wire A1,
    input  wire A2,
    input  wire A3,
    input  wire A4,
    input  wire D,
    input  wire DPRA0,
    input  wire DPRA1,
    input  wire DPRA2,
    input  wire DPRA3,
    input  wire DPRA4,
    input  wire WCLK,
    input  wire WE
);
    reg [31:0] memory;

    initial memory = INIT;

    always @(posedge WCLK)
        if (WE)
            memory[{A4, A3, A2, A1, A0}] <= D;

    assign SPO = memory[{A4, A3, A2, A1, A0}];
    assign DPO = memory[{DPRA4, DPRA3, DPRA2, DPRA1, DPRA0}];
endmodule

module RAM64X1D #(
    parameter [63:0] INIT = 64'h0
) (
    output wire DPO,
    output wire SPO,
    input  wire A0,
    input  wire A1,
    input  wire A2,
    input  wire A3,
    input  wire A4,
    input  wire A5,
    input  wire D,
    input  wire DPRA0,
    input  wire DPRA1,
    input  wire DPRA2,
    input  wire DPRA3,
    input  wire DPRA4,
    input  wire DPRA5,
    input  wire WCLK,
    input  wire WE
);
    reg [63:0] memory;

    initial memory = INIT;

    always @(posedge WCLK)
        if (WE)
            memory[{A5, A4, A3, A2, A1, A0}] <= D;

    assign SPO = memory[{A5, A4, A3, A2, A1, A0}];
    assign DPO = memory[{DPRA5, DPRA4, DPRA3, DPRA2, DPRA1, DPRA0}];
endmodule

module RAM128X1D #(
    parameter [127:0] INIT = 128'h0
) (
    output wire DPO,
    output wire SPO,
    input  wire [6:0] A,
    input  wire D,
    input  wire [6:0] DPRA,
    input  wire WCLK,
    input  wire WE
);
    reg [127:0] memory;

    initial memory = INIT;

    always @(posedge WCLK)
        if (WE)
            memory[A] <= D;

    assign SPO = memory[A];
    assign DPO = memory[DPRA];
endmodule

module RAM32M #(
    parameter [63:0] INIT_A = 64'h0,
    parameter [63:0] INIT_B = 64'h0,
    parameter [63:0] INIT_C = 64'h0,
    parameter [63:0] INIT_D = 64'h0
) (
    output wire [1:0] DOA,
    output wire [1:0] DOB,
    output wire [1:0] DOC,
    output wire [1:0] DOD,
    input  wire [4:0] ADDRA,
    input  wire [4:0] ADDRB,
    input  wire [4:0] ADDRC,
    input  wire [4:0] ADDRD,
    input  wire [1:0] DIA,
    input  wire [1:0] DIB,
    input  wire [1:0] DIC,
    input  wire [1:0] DID,
    input  wire WCLK,
    input  wire WE
);
    reg [63:0] memory_a;
    reg [63:0] memory_b;
    reg [63:0] memory_c;
    reg [63:0] memory_d;

    initial begin
        memory_a = INIT_A;
        memory_b = INIT_B;
        memory_c = INIT_C;
        memory_d = INIT_D;
    end

    // All are written at the address of D.
    always @(posedge WCLK)
        if (WE) begin
            memory_a[{ADDRD, 1'b0} +: 2] <= DIA;
            memory_b[{ADDRD, 1'b0} +: 2] <= DIB;
            memory_c[{ADDRD, 1'b0} +: 2] <= DIC;
            memory_d[{ADDRD, 1'b0} +: 2] <= DID;
        end

    assign DOA = memory_a[{ADDRA, 1'b0} +: 2];
    assign DOB = memory_b[{ADDRB, 1'b0} +: 2];
    assign DOC = memory_c[{ADDRC, 1'b0} +: 2];
    assign DOD = memory_d[{ADDRD, 1'b0} +: 2];
endmodule

module RAM64M #(
    parameter [63:0] INIT_A = 64'h0,
    parameter [63:0] INIT_B = 64'h0,
    parameter [63:0] INIT_C = 64'h0,
    parameter [63:0] INIT_D = 64'h0
) (
    output wire DOA,
    output wire DOB,
    output wire DOC,
    output wire DOD,
    input  wire [5:0] ADDRA,
    input  wire [5:0] ADDRB,
    input  wire [5:0] ADDRC,
    input  wire [5:0] ADDRD,
    input  wire DIA,
    input  wire DIB,
    input  wire DIC,
    input  wire DID,
    input  wire WCLK,
    input  wire WE
);
    reg [63:0] memory_a;
    reg [63:0] memory_b;
    reg [63:0] memory_c;
    reg [63:0] memory_d;

    initial begin
        memory_a = INIT_A;
        memory_b = INIT_B;
        memory_c = INIT_C;
        memory_d = INIT_D;
    end

    // All are written at the address of D.
    always @(posedge WCLK)
        if (WE) begin
            memory_a[ADDRD] <= DIA;
            memory_b[ADDRD] <= DIB;
            memory_c[ADDRD] <= DIC;
            memory_d[ADDRD] <= DID;
        end

    assign DOA = memory_a[ADDRA];
    assign DOB = memory_b[ADDRB];
    assign DOC = memory_c[ADDRC];
    assign DOD = memory_d[ADDRD];
endmodule

// Chains with local outputs, shift registers and block memories

module LUT1_L #(
    parameter [1:0] INIT = 2'h0
) (
    output wire LO,
    input  wire I0
);
    assign LO = INIT[{I0}];
endmodule

module LUT1_D #(
    parameter [1:0] INIT = 2'h0
) (
    output wire O,
    output wire LO,
    input  wire I0
);
    assign O = INIT[{I0}];
    assign LO = INIT[{I0}];
endmodule

module LUT2_L #(
    parameter [3:0] INIT = 4'h0
) (
    output wire LO,
    input  wire I0,
    input  wire I1
);
    assign LO = INIT[{I1, I0}];
endmodule

module LUT2_D #(
    parameter [3:0] INIT = 4'h0
) (
    output wire O,
    output wire LO,
    input  wire I0,
    input  wire I1
);
    assign O = INIT[{I1, I0}];
    assign LO = INIT[{I1, I0}];
endmodule

module LUT3_L #(
    parameter [7:0] INIT = 8'h0
) (
    output wire LO,
    input  wire I0,
    input  wire I1,
    input  wire I2
);
    assign LO = INIT[{I2, I1, I0}];
endmodule

module LUT3_D #(
    parameter [7:0] INIT = 8'h0
) (
    output wire O,
    output wire LO,
    input  wire I0,
    input  wire I1,
    input  wire I2
);
    assign O = INIT[{I2, I1, I0}];
    assign LO = INIT[{I2, I1, I0}];
endmodule

module LUT4_L #(
    parameter [15:0] INIT = 16'h0
) (
    output wire LO,
    input  wire I0,
    input  wire I1,
    input  wire I2,
    input  wire I3
);
    assign LO = INIT[{I3, I2, I1, I0}];
endmodule

module LUT4_D #(
    parameter [15:0] INIT = 16'h0
) (
    output wire O,
    output wire LO,
    input  wire I0,
    input  wire I1,
    input  wire I2,
    input  wire I3
);
    assign O = INIT[{I3, I2, I1, I0}];
    assign LO = INIT[{I3, I2, I1, I0}];
endmodule

module LUT5_L #(
    parameter [31:0] INIT = 32'h0
) (
    output wire LO,
    input  wire I0,
    input  wire I1,
    input  wire I2,
    input  wire I3,
    input  wire I4
);
    assign LO = INIT[{I4, I3, I2, I1, I0}];
endmodule

module LUT5_D #(
    parameter [31:0] INIT = 32'h0
) (
    output wire O,
    output wire LO,
    input  wire I0,
    input  wire I1,
    input  wire I2,
    input  wire I3,
    input  wire I4
);
    assign O = INIT[{I4, I3, I2, I1, I0}];
    assign LO = INIT[{I4, I3, I2, I1, I0}];
endmodule

module LUT6_L #(
    parameter [63:0] INIT = 64'h0
) (
    output wire LO,
    input  wire I0,
    input  wire I1,
    input  wire I2,
    input  wire I3,
    input  wire I4,
    input  wire I5
);
    assign LO = INIT[{I5, I4, I3, I2, I1, I0}];
endmodule

module LUT6_D #(
    parameter [63:0] INIT = 64'h0
) (
    output wire O,
    output wire LO,
    input  wire I0,
    input  wire I1,
    input  wire I2,
    input  wire I3,
    input  wire I4,
    input  wire I5
);
    assign O = INIT[{I5, I4, I3, I2, I1, I0}];
    assign LO = INIT[{I5, I4, I3, I2, I1, I0}];
endmodule

module MUXCY_L (
    output wire LO,
    input  wire CI,
    input  wire DI,
    input  wire S
);
    assign LO = S ? CI : DI;
endmodule

module MUXCY_D (
    output wire O,
    output wire LO,
    input  wire CI,
    input  wire DI,
    input  wire S
);
    assign O = S ? CI : DI;
    assign LO = S ? CI : DI;
endmodule

module XORCY_L (
    output wire LO,
    input  wire CI,
    input  wire LI
);
    assign LO = CI ^ LI;
endmodule

module XORCY_D (
    output wire O,
    output wire LO,
    input  wire CI,
    input  wire LI
);
    assign O = CI ^ LI;
    assign LO = CI ^ LI;
endmodule

module MUXF5_L (
    output wire LO,
    input  wire I0,
    input  wire I1,
    input  wire S
);
    assign LO = S ? I1 : I0;
endmodule

module MUXF5_D (
    output wire O,
    output wire LO,
    input  wire I0,
    input  wire I1,
    input  wire S
);
    assign O = S ? I1 : I0;
    assign LO = S ? I1 : I0;
endmodule

module MUXF6_L (
    output wire LO,
    input  wire I0,
    input  wire I1,
    input  wire S
);
    assign LO = S ? I1 : I0;
endmodule

module MUXF6_D (
    output wire O,
    output wire LO,
    input  wire I0,
    input  wire I1,
    input  wire S
);
    assign O = S ? I1 : I0;
    assign LO = S ? I1 : I0;
endmodule

module MUXF7_L (
    output wire LO,
    input  wire I0,
    input  wire I1,
    input  wire S
);
    assign LO = S ? I1 : I0;
endmodule

module MUXF7_D (
    output wire O,
    output wire LO,
    input  wire I0,
    input  wire I1,
    input  wire S
);
    assign O = S ? I1 : I0;
    assign LO = S ? I1 : I0;
endmodule

module MUXF8_L (
    output wire LO,
    input  wire I0,
    input  wire I1,
    input  wire S
);
    assign LO = S ? I1 : I0;
endmodule

module MUXF8_D (
    output wire O,
    output wire LO,
    input  wire I0,
    input  wire I1,
    input  wire S
);
    assign O = S ? I1 : I0;
    assign LO = S ? I1 : I0;
endmodule

module CARRY4 (
    output wire [3:0] CO,
    output wire [3:0] O,
    input  wire       CI,
    input  wire       CYINIT,
    input  wire [3:0] DI,
    input  wire [3:0] S
);
    // One of the two inputs of the chain is used; the other one is 0.
    assign CO[0] = S[0] ? CI | CYINIT : DI[0];
    assign CO[1] = S[1] ? CO[0] : DI[1];
    assign CO[2] = S[2] ? CO[1] : DI[2];
    assign CO[3] = S[3] ? CO[2] : DI[3];
    assign O = S ^ {CO[2:0], CI | CYINIT};
endmodule

module VCC (
    output wire P
);
    assign P = 1'b1;
endmodule

module GND (
    output wire G
);
    assign G = 1'b0;
endmodule

module BUF (
    output wire O,
    input  wire I
);
    assign O = I;
endmodule

module BUFG (
    output wire O,
    input  wire I
);
    assign O = I;
endmodule

module SRL16 #(
    parameter [15:0] INIT = 16'h0
) (
    output wire Q,
    input  wire A0,
    input  wire A1,
    input  wire A2,
    input  wire A3,
    input  wire CLK,
    input  wire D
);
    reg [15:0] kept;

    initial kept = INIT;

    always @(posedge CLK)
        kept <= {kept[14:0], D};

    assign Q = kept[{A3, A2, A1, A0}];
endmodule

module SRL16E #(
    parameter [15:0] INIT = 16'h0
) (
    output wire Q,
    input  wire A0,
    input  wire A1,
    input  wire A2,
    input  wire A3,
    input  wire CE,
    input  wire CLK,
    input  wire D
);
    reg [15:0] kept;

    initial kept = INIT;

    always @(posedge CLK)
        if (CE)
            kept <= {kept[14:0], D};

    assign Q = kept[{A3, A2, A1, A0}];
endmodule

module SRLC16E #(
    parameter [15:0] INIT = 16'h0
) (
    output wire Q,
    output wire Q15,
    input  wire A0,
    input  wire A1,
    input  wire A2,
    input  wire A3,
    input  wire CE,
    input  wire CLK,
    input  wire D
);
    reg [15:0] kept;

    initial kept = INIT;

    always @(posedge CLK)
        if (CE)
            kept <= {kept[14:0], D};

    assign Q = kept[{A3, A2, A1, A0}];
    assign Q15 = kept[15];
endmodule

module SRLC32E #(
    parameter [31:0] INIT = 32'h0
) (
    output wire Q,
    output wire Q31,
    input  wire [4:0] A,
    input  wire CE,
    input  wire CLK,
    input  wire D
);
    reg [31:0] kept;

    initial kept = INIT;

    always @(posedge CLK)
        if (CE)
            kept <= {kept[30:0], D};

    assign Q = kept[A];
    assign Q31 = kept[31];
endmodule

module RAMB16_S1 #(
    parameter [0:0] INIT = 1'h0,
    parameter [0:0] SRVAL = 1'h0,
    parameter WRITE_MODE = "WRITE_FIRST",
    parameter [255:0] INIT_00 = 256'h0,
    parameter [255:0] INIT_01 = 256'h0,
    parameter [255:0] INIT_02 = 256'h0,
    parameter [255:0] INIT_03 = 256'h0,
    parameter [255:0] INIT_04 = 256'h0,
    parameter [255:0] INIT_05 = 256'h0,
    parameter [255:0] INIT_06 = 256'h0,
    parameter [255:0] INIT_07 = 256'h0,
    parameter [255:0] INIT_08 = 256'h0,
    parameter [255:0] INIT_09 = 256'h0,
    parameter [255:0] INIT_0A = 256'h0,
    parameter [255:0] INIT_0B = 256'h0,
    parameter [255:0] INIT_0C = 256'h0,
    parameter [255:0] INIT_0D = 256'h0,
    parameter [255:0] INIT_0E = 256'h0,
    parameter [255:0] INIT_0F = 256'h0,
    parameter [255:0] INIT_10 = 256'h0,
    parameter [255:0] INIT_11 = 256'h0,
    parameter [255:0] INIT_12 = 256'h0,
    parameter [255:0] INIT_13 = 256'h0,
    parameter [255:0] INIT_14 = 256'h0,
    parameter [255:0] INIT_15 = 256'h0,
    parameter [255:0] INIT_16 = 256'h0,
    parameter [255:0] INIT_17 = 256'h0,
    parameter [255:0] INIT_18 = 256'h0,
    parameter [255:0] INIT_19 = 256'h0,
    parameter [255:0] INIT_1A = 256'h0,
    parameter [255:0] INIT_1B = 256'h0,
    parameter [255:0] INIT_1C = 256'h0,
    parameter [255:0] INIT_1D = 256'h0,
    parameter [255:0] INIT_1E = 256'h0,
    parameter [255:0] INIT_1F = 256'h0,
    parameter [255:0] INIT_20 = 256'h0,
    parameter [255:0] INIT_21 = 256'h0,
    parameter [255:0] INIT_22 = 256'h0,
    parameter [255:0] INIT_23 = 256'h0,
    parameter [255:0] INIT_24 = 256'h0,
    parameter [255:0] INIT_25 = 256'h0,
    parameter [255:0] INIT_26 = 256'h0,
    parameter [255:0] INIT_27 = 256'h0,
    parameter [255:0] INIT_28 = 256'h0,
    parameter [255:0] INIT_29 = 256'h0,
    parameter [255:0] INIT_2A = 256'h0,
    parameter [255:0] INIT_2B = 256'h0,
    parameter [255:0] INIT_2C = 256'h0,
    parameter [255:0] INIT_2D = 256'h0,
    parameter [255:0] INIT_2E = 256'h0,
    parameter [255:0] INIT_2F = 256'h0,
    parameter [255:0] INIT_30 = 256'h0,
    parameter [255:0] INIT_31 = 256'h0,
    parameter [255:0] INIT_32 = 256'h0,
    parameter [255:0] INIT_33 = 256'h0,
    parameter [255:0] INIT_34 = 256'h0,
    parameter [255:0] INIT_35 = 256'h0,
    parameter [255:0] INIT_36 = 256'h0,
    parameter [255:0] INIT_37 = 256'h0,
    parameter [255:0] INIT_38 = 256'h0,
    parameter [255:0] INIT_39 = 256'h0,
    parameter [255:0] INIT_3A = 256'h0,
    parameter [255:0] INIT_3B = 256'h0,
    parameter [255:0] INIT_3C = 256'h0,
    parameter [255:0] INIT_3D = 256'h0,
    parameter [255:0] INIT_3E = 256'h0,
    parameter [255:0] INIT_3F = 256'h0
) (
    output reg  [0:0] DO,
    input  wire [13:0] ADDR,
    input  wire CLK,
    input  wire [0:0] DI,
    input  wire EN,
    input  wire SSR,
    input  wire WE
);
    reg [16383:0] data;

    initial begin
        data = {
            INIT_3F, INIT_3E, INIT_3D, INIT_3C, INIT_3B, INIT_3A, INIT_39, INIT_38,
            INIT_37, INIT_36, INIT_35, INIT_34, INIT_33, INIT_32, INIT_31, INIT_30,
            INIT_2F, INIT_2E, INIT_2D, INIT_2C, INIT_2B, INIT_2A, INIT_29, INIT_28,
            INIT_27, INIT_26, INIT_25, INIT_24, INIT_23, INIT_22, INIT_21, INIT_20,
            INIT_1F, INIT_1E, INIT_1D, INIT_1C, INIT_1B, INIT_1A, INIT_19, INIT_18,
            INIT_17, INIT_16, INIT_15, INIT_14, INIT_13, INIT_12, INIT_11, INIT_10,
            INIT_0F, INIT_0E, INIT_0D, INIT_0C, INIT_0B, INIT_0A, INIT_09, INIT_08,
            INIT_07, INIT_06, INIT_05, INIT_04, INIT_03, INIT_02, INIT_01, INIT_00};
        DO = INIT;
    end

    always @(posedge CLK)
        if (EN) begin
            if (SSR)
                DO <= SRVAL;
            else if (!WE || WRITE_MODE == "READ_FIRST")
                DO <= data[ADDR * 1 +: 1];
            else if (WRITE_MODE == "WRITE_FIRST")
                DO <= DI;
            if (WE) begin
                data[ADDR * 1 +: 1] <= DI;
            end
        end
endmodule

module RAMB16_S2 #(
    parameter [1:0] INIT = 2'h0,
    parameter [1:0] SRVAL = 2'h0,
    parameter WRITE_MODE = "WRITE_FIRST",
    parameter [255:0] INIT_00 = 256'h0,
    parameter [255:0] INIT_01 = 256'h0,
    parameter [255:0] INIT_02 = 256'h0,
    parameter [255:0] INIT_03 = 256'h0,
    parameter [255:0] INIT_04 = 256'h0,
    parameter [255:0] INIT_05 = 256'h0,
    parameter [255:0] INIT_06 = 256'h0,
    parameter [255:0] INIT_07 = 256'h0,
    parameter [255:0] INIT_08 = 256'h0,
    parameter [255:0] INIT_09 = 256'h0,
    parameter [255:0] INIT_0A = 256'h0,
    parameter [255:0] INIT_0B = 256'h0,
    parameter [255:0] INIT_0C = 256'h0,
    parameter [255:0] INIT_0D = 256'h0,
    parameter [255:0] INIT_0E = 256'h0,
    parameter [255:0] INIT_0F = 256'h0,
    parameter [255:0] INIT_10 = 256'h0,
    parameter [255:0] INIT_11 = 256'h0,
    parameter [255:0] INIT_12 = 256'h0,
    parameter [255:0] INIT_13 = 256'h0,
    parameter [255:0] INIT_14 = 256'h0,
    parameter [255:0] INIT_15 = 256'h0,
    parameter [255:0] INIT_16 = 256'h0,
    parameter [255:0] INIT_17 = 256'h0,
    parameter [255:0] INIT_18 = 256'h0,
    parameter [255:0] INIT_19 = 256'h0,
    parameter [255:0] INIT_1A = 256'h0,
    parameter [255:0] INIT_1B = 256'h0,
    parameter [255:0] INIT_1C = 256'h0,
    parameter [255:0] INIT_1D = 256'h0,
    parameter [255:0] INIT_1E = 256'h0,
    parameter [255:0] INIT_1F = 256'h0,
    parameter [255:0] INIT_20 = 256'h0,
    parameter [255:0] INIT_21 = 256'h0,
    parameter [255:0] INIT_22 = 256'h0,
    parameter [255:0] INIT_23 = 256'h0,
    parameter [255:0] INIT_24 = 256'h0,
    parameter [255:0] INIT_25 = 256'h0,
    parameter [255:0] INIT_26 = 256'h0,
    parameter [255:0] INIT_27 = 256'h0,
    parameter [255:0] INIT_28 = 256'h0,
    parameter [255:0] INIT_29 = 256'h0,
    parameter [255:0] INIT_2A = 256'h0,
    parameter [255:0] INIT_2B = 256'h0,
    parameter [255:0] INIT_2C = 256'h0,
    parameter [255:0] INIT_2D = 256'h0,
    parameter [255:0] INIT_2E = 256'h0,
    parameter [255:0] INIT_2F = 256'h0,
    parameter [255:0] INIT_30 = 256'h0,
    parameter [255:0] INIT_31 = 256'h0,
    parameter [255:0] INIT_32 = 256'h0,
    parameter [255:0] INIT_33 = 256'h0,
    parameter [255:0] INIT_34 = 256'h0,
    parameter [255:0] INIT_35 = 256'h0,
    parameter [255:0] INIT_36 = 256'h0,
    parameter [255:0] INIT_37 = 256'h0,
    parameter [255:0] INIT_38 = 256'h0,
    parameter [255:0] INIT_39 = 256'h0,
    parameter [255:0] INIT_3A = 256'h0,
    parameter [255:0] INIT_3B = 256'h0,
    parameter [255:0] INIT_3C = 256'h0,
    parameter [255:0] INIT_3D = 256'h0,
    parameter [255:0] INIT_3E = 256'h0,
    parameter [255:0] INIT_3F = 256'h0
) (
    output reg  [1:0] DO,
    input  wire [12:0] ADDR,
    input  wire CLK,
    input  wire [1:0] DI,
    input  wire EN,
    input  wire SSR,
    input  wire WE
);
    reg [16383:0] data;

    initial begin
        data = {
            INIT_3F, INIT_3E, INIT_3D, INIT_3C, INIT_3B, INIT_3A, INIT_39, INIT_38,
            INIT_37, INIT_36, INIT_35, INIT_34, INIT_33, INIT_32, INIT_31, INIT_30,
            INIT_2F, INIT_2E, INIT_2D, INIT_2C, INIT_2B, INIT_2A, INIT_29, INIT_28,
            INIT_27, INIT_26, INIT_25, INIT_24, INIT_23, INIT_22, INIT_21, INIT_20,
            INIT_1F, INIT_1E, INIT_1D, INIT_1C, INIT_1B, INIT_1A, INIT_19, INIT_18,
            INIT_17, INIT_16, INIT_15, INIT_14, INIT_13, INIT_12, INIT_11, INIT_10,
            INIT_0F, INIT_0E, INIT_0D, INIT_0C, INIT_0B, INIT_0A, INIT_09, INIT_08,
            INIT_07, INIT_06, INIT_05, INIT_04, INIT_03, INIT_02, INIT_01, INIT_00};
        DO = INIT;
    end

    always @(posedge CLK)
        if (EN) begin
            if (SSR)
                DO <= SRVAL;
            else if (!WE || WRITE_MODE == "READ_FIRST")
                DO <= data[ADDR * 2 +: 2];
            else if (WRITE_MODE == "WRITE_FIRST")
                DO <= DI;
            if (WE) begin
                data[ADDR * 2 +: 2] <= DI;
            end
        end
endmodule

module RAMB16_S4 #(
    parameter [3:0] INIT = 4'h0,
    parameter [3:0] SRVAL = 4'h0,
    parameter WRITE_MODE = "WRITE_FIRST",
    parameter [255:0] INIT_00 = 256'h0,
    parameter [255:0] INIT_01 = 256'h0,
    parameter [255:0] INIT_02 = 256'h0,
    parameter [255:0] INIT_03 = 256'h0,
    parameter [255:0] INIT_04 = 256'h0,
    parameter [255:0] INIT_05 = 256'h0,
    parameter [255:0] INIT_06 = 256'h0,
    parameter [255:0] INIT_07 = 256'h0,
    parameter [255:0] INIT_08 = 256'h0,
    parameter [255:0] INIT_09 = 256'h0,
    parameter [255:0] INIT_0A = 256'h0,
    parameter [255:0] INIT_0B = 256'h0,
    parameter [255:0] INIT_0C = 256'h0,
    parameter [255:0] INIT_0D = 256'h0,
    parameter [255:0] INIT_0E = 256'h0,
    parameter [255:0] INIT_0F = 256'h0,
    parameter [255:0] INIT_10 = 256'h0,
    parameter [255:0] INIT_11 = 256'h0,
    parameter [255:0] INIT_12 = 256'h0,
    parameter [255:0] INIT_13 = 256'h0,
    parameter [255:0] INIT_14 = 256'h0,
    parameter [255:0] INIT_15 = 256'h0,
    parameter [255:0] INIT_16 = 256'h0,
    parameter [255:0] INIT_17 = 256'h0,
    parameter [255:0] INIT_18 = 256'h0,
    parameter [255:0] INIT_19 = 256'h0,
    parameter [255:0] INIT_1A = 256'h0,
    parameter [255:0] INIT_1B = 256'h0,
    parameter [255:0] INIT_1C = 256'h0,
    parameter [255:0] INIT_1D = 256'h0,
    parameter [255:0] INIT_1E = 256'h0,
    parameter [255:0] INIT_1F = 256'h0,
    parameter [255:0] INIT_20 = 256'h0,
    parameter [255:0] INIT_21 = 256'h0,
    parameter [255:0] INIT_22 = 256'h0,
    parameter [255:0] INIT_23 = 256'h0,
    parameter [255:0] INIT_24 = 256'h0,
    parameter [255:0] INIT_25 = 256'h0,
    parameter [255:0] INIT_26 = 256'h0,
    parameter [255:0] INIT_27 = 256'h0,
    parameter [255:0] INIT_28 = 256'h0,
    parameter [255:0] INIT_29 = 256'h0,
    parameter [255:0] INIT_2A = 256'h0,
    parameter [255:0] INIT_2B = 256'h0,
    parameter [255:0] INIT_2C = 256'h0,
    parameter [255:0] INIT_2D = 256'h0,
    parameter [255:0] INIT_2E = 256'h0,
    parameter [255:0] INIT_2F = 256'h0,
    parameter [255:0] INIT_30 = 256'h0,
    parameter [255:0] INIT_31 = 256'h0,
    parameter [255:0] INIT_32 = 256'h0,
    parameter [255:0] INIT_33 = 256'h0,
    parameter [255:0] INIT_34 = 256'h0,
    parameter [255:0] INIT_35 = 256'h0,
    parameter [255:0] INIT_36 = 256'h0,
    parameter [255:0] INIT_37 = 256'h0,
    parameter [255:0] INIT_38 = 256'h0,
    parameter [255:0] INIT_39 = 256'h0,
    parameter [255:0] INIT_3A = 256'h0,
    parameter [255:0] INIT_3B = 256'h0,
    parameter [255:0] INIT_3C = 256'h0,
    parameter [255:0] INIT_3D = 256'h0,
    parameter [255:0] INIT_3E = 256'h0,
    parameter [255:0] INIT_3F = 256'h0
) (
    output reg  [3:0] DO,
    input  wire [11:0] ADDR,
    input  wire CLK,
    input  wire [3:0] DI,
    input  wire EN,
    input  wire SSR,
    input  wire WE
);
    reg [16383:0] data;

    initial begin
        data = {
            INIT_3F, INIT_3E, INIT_3D, INIT_3C, INIT_3B, INIT_3A, INIT_39, INIT_38,
            INIT_37, INIT_36, INIT_35, INIT_34, INIT_33, INIT_32, INIT_31, INIT_30,
            INIT_2F, INIT_2E, INIT_2D, INIT_2C, INIT_2B, INIT_2A, INIT_29, INIT_28,
            INIT_27, INIT_26, INIT_25, INIT_24, INIT_23, INIT_22, INIT_21, INIT_20,
            INIT_1F, INIT_1E, INIT_1D, INIT_1C, INIT_1B, INIT_1A, INIT_19, INIT_18,
            INIT_17, INIT_16, INIT_15, INIT_14, INIT_13, INIT_12, INIT_11, INIT_10,
            INIT_0F, INIT_0E, INIT_0D, INIT_0C, INIT_0B, INIT_0A, INIT_09, INIT_08,
            INIT_07, INIT_06, INIT_05, INIT_04, INIT_03, INIT_02, INIT_01, INIT_00};
        DO = INIT;
    end

    always @(posedge CLK)
        if (EN) begin
            if (SSR)
                DO <= SRVAL;
            else if (!WE || WRITE_MODE == "READ_FIRST")
                DO <= data[ADDR * 4 +: 4];
            else if (WRITE_MODE == "WRITE_FIRST")
                DO <= DI;
            if (WE) begin
                data[ADDR * 4 +: 4] <= DI;
            end
        end
endmodule

module RAMB16_S9 #(
    parameter [8:0] INIT = 9'h0,
    parameter [8:0] SRVAL = 9'h0,
    parameter WRITE_MODE = "WRITE_FIRST",
    parameter [255:0] INIT_00 = 256'h0,
    parameter [255:0] INIT_01 = 256'h0,
    parameter [255:0] INIT_02 = 256'h0,
    parameter [255:0] INIT_03 = 256'h0,
    parameter [255:0] INIT_04 = 256'h0,
    parameter [255:0] INIT_05 = 256'h0,
    parameter [255:0] INIT_06 = 256'h0,
    parameter [255:0] INIT_07 = 256'h0,
    parameter [255:0] INIT_08 = 256'h0,
    parameter [255:0] INIT_09 = 256'h0,
    parameter [255:0] INIT_0A = 256'h0,
    parameter [255:0] INIT_0B = 256'h0,
    parameter [255:0] INIT_0C = 256'h0,
    parameter [255:0] INIT_0D = 256'h0,
    parameter [255:0] INIT_0E = 256'h0,
    parameter [255:0] INIT_0F = 256'h0,
    parameter [255:0] INIT_10 = 256'h0,
    parameter [255:0] INIT_11 = 256'h0,
    parameter [255:0] INIT_12 = 256'h0,
    parameter [255:0] INIT_13 = 256'h0,
    parameter [255:0] INIT_14 = 256'h0,
    parameter [255:0] INIT_15 = 256'h0,
    parameter [255:0] INIT_16 = 256'h0,
    parameter [255:0] INIT_17 = 256'h0,
    parameter [255:0] INIT_18 = 256'h0,
    parameter [255:0] INIT_19 = 256'h0,
    parameter [255:0] INIT_1A = 256'h0,
    parameter [255:0] INIT_1B = 256'h0,
    parameter [255:0] INIT_1C = 256'h0,
    parameter [255:0] INIT_1D = 256'h0,
    parameter [255:0] INIT_1E = 256'h0,
    parameter [255:0] INIT_1F = 256'h0,
    parameter [255:0] INIT_20 = 256'h0,
    parameter [255:0] INIT_21 = 256'h0,
    parameter [255:0] INIT_22 = 256'h0,
    parameter [255:0] INIT_23 = 256'h0,
    parameter [255:0] INIT_24 = 256'h0,
    parameter [255:0] INIT_25 = 256'h0,
    parameter [255:0] INIT_26 = 256'h0,
    parameter [255:0] INIT_27 = 256'h0,
    parameter [255:0] INIT_28 = 256'h0,
    parameter [255:0] INIT_29 = 256'h0,
    parameter [255:0] INIT_2A = 256'h0,
    parameter [255:0] INIT_2B = 256'h0,
    parameter [255:0] INIT_2C = 256'h0,
    parameter [255:0] INIT_2D = 256'h0,
    parameter [255:0] INIT_2E = 256'h0,
    parameter [255:0] INIT_2F = 256'h0,
    parameter [255:0] INIT_30 = 256'h0,
    parameter [255:0] INIT_31 = 256'h0,
    parameter [255:0] INIT_32 = 256'h0,
    parameter [255:0] INIT_33 = 256'h0,
    parameter [255:0] INIT_34 = 256'h0,
    parameter [255:0] INIT_35 = 256'h0,
    parameter [255:0] INIT_36 = 256'h0,
    parameter [255:0] INIT_37 = 256'h0,
    parameter [255:0] INIT_38 = 256'h0,
    parameter [255:0] INIT_39 = 256'h0,
    parameter [255:0] INIT_3A = 256'h0,
    parameter [255:0] INIT_3B = 256'h0,
    parameter [255:0] INIT_3C = 256'h0,
    parameter [255:0] INIT_3D = 256'h0,
    parameter [255:0] INIT_3E = 256'h0,
    parameter [255:0] INIT_3F = 256'h0,
    parameter [255:0] INITP_00 = 256'h0,
    parameter [255:0] INITP_01 = 256'h0,
    parameter [255:0] INITP_02 = 256'h0,
    parameter [255:0] INITP_03 = 256'h0,
    parameter [255:0] INITP_04 = 256'h0,
    parameter [255:0] INITP_05 = 256'h0,
    parameter [255:0] INITP_06 = 256'h0,
    parameter [255:0] INITP_07 = 256'h0
) (
    output reg  [7:0] DO,
    output reg  [0:0] DOP,
    input  wire [10:0] ADDR,
    input  wire CLK,
    input  wire [7:0] DI,
    input  wire [0:0] DIP,
    input  wire EN,
    input  wire SSR,
    input  wire WE
);
    reg [16383:0] data;
    reg [2047:0]  parity;

    initial begin
        data = {
            INIT_3F, INIT_3E, INIT_3D, INIT_3C, INIT_3B, INIT_3A, INIT_39, INIT_38,
            INIT_37, INIT_36, INIT_35, INIT_34, INIT_33, INIT_32, INIT_31, INIT_30,
            INIT_2F, INIT_2E, INIT_2D, INIT_2C, INIT_2B, INIT_2A, INIT_29, INIT_28,
            INIT_27, INIT_26, INIT_25, INIT_24, INIT_23, INIT_22, INIT_21, INIT_20,
            INIT_1F, INIT_1E, INIT_1D, INIT_1C, INIT_1B, INIT_1A, INIT_19, INIT_18,
            INIT_17, INIT_16, INIT_15, INIT_14, INIT_13, INIT_12, INIT_11, INIT_10,
            INIT_0F, INIT_0E, INIT_0D, INIT_0C, INIT_0B, INIT_0A, INIT_09, INIT_08,
            INIT_07, INIT_06, INIT_05, INIT_04, INIT_03, INIT_02, INIT_01, INIT_00};
        parity = {
            INITP_07, INITP_06, INITP_05, INITP_04, INITP_03, INITP_02, INITP_01, INITP_00};
        {DOP, DO} = INIT;
    end

    always @(posedge CLK)
        if (EN) begin
            if (SSR)
                {DOP, DO} <= SRVAL;
            else if (!WE || WRITE_MODE == "READ_FIRST")
                {DOP, DO} <= {parity[ADDR * 1 +: 1], data[ADDR * 8 +: 8]};
            else if (WRITE_MODE == "WRITE_FIRST")
                {DOP, DO} <= {DIP, DI};
            if (WE) begin
                data[ADDR * 8 +: 8] <= DI;
                parity[ADDR * 1 +: 1] <= DIP;
            end
        end
endmodule

module RAMB16_S18 #(
    parameter [17:0] INIT = 18'h0,
    parameter [17:0] SRVAL = 18'h0,
    parameter WRITE_MODE = "WRITE_FIRST",
    parameter [255:0] INIT_00 = 256'h0,
    parameter [255:0] INIT_01 = 256'h0,
    parameter [255:0] INIT_02 = 256'h0,
    parameter [255:0] INIT_03 = 256'h0,
    parameter [255:0] INIT_04 = 256'h0,
    parameter [255:0] INIT_05 = 256'h0,
    parameter [255:0] INIT_06 = 256'h0,
    parameter [255:0] INIT_07 = 256'h0,
    parameter [255:0] INIT_08 = 256'h0,
    parameter [255:0] INIT_09 = 256'h0,
    parameter [255:0] INIT_0A = 256'h0,
    parameter [255:0] INIT_0B = 256'h0,
    parameter [255:0] INIT_0C = 256'h0,
    parameter [255:0] INIT_0D = 256'h0,
    parameter [255:0] INIT_0E = 256'h0,
    parameter [255:0] INIT_0F = 256'h0,
    parameter [255:0] INIT_10 = 256'h0,
    parameter [255:0] INIT_11 = 256'h0,
    parameter [255:0] INIT_12 = 256'h0,
    parameter [255:0] INIT_13 = 256'h0,
    parameter [255:0] INIT_14 = 256'h0,
    parameter [255:0] INIT_15 = 256'h0,
    parameter [255:0] INIT_16 = 256'h0,
    parameter [255:0] INIT_17 = 256'h0,
    parameter [255:0] INIT_18 = 256'h0,
    parameter [255:0] INIT_19 = 256'h0,
    parameter [255:0] INIT_1A = 256'h0,
    parameter [255:0] INIT_1B = 256'h0,
    parameter [255:0] INIT_1C = 256'h0,
    parameter [255:0] INIT_1D = 256'h0,
    parameter [255:0] INIT_1E = 256'h0,
    parameter [255:0] INIT_1F = 256'h0,
    parameter [255:0] INIT_20 = 256'h0,
    parameter [255:0] INIT_21 = 256'h0,
    parameter [255:0] INIT_22 = 256'h0,
    parameter [255:0] INIT_23 = 256'h0,
    parameter [255:0] INIT_24 = 256'h0,
    parameter [255:0] INIT_25 = 256'h0,
    parameter [255:0] INIT_26 = 256'h0,
    parameter [255:0] INIT_27 = 256'h0,
    parameter [255:0] INIT_28 = 256'h0,
    parameter [255:0] INIT_29 = 256'h0,
    parameter [255:0] INIT_2A = 256'h0,
    parameter [255:0] INIT_2B = 256'h0,
    parameter [255:0] INIT_2C = 256'h0,
    parameter [255:0] INIT_2D = 256'h0,
    parameter [255:0] INIT_2E = 256'h0,
    parameter [255:0] INIT_2F = 256'h0,
    parameter [255:0] INIT_30 = 256'h0,
    parameter [255:0] INIT_31 = 256'h0,
    parameter [255:0] INIT_32 = 256'h0,
    parameter [255:0] INIT_33 = 256'h0,
    parameter [255:0] INIT_34 = 256'h0,
    parameter [255:0] INIT_35 = 256'h0,
    parameter [255:0] INIT_36 = 256'h0,
    parameter [255:0] INIT_37 = 256'h0,
    parameter [255:0] INIT_38 = 256'h0,
    parameter [255:0] INIT_39 = 256'h0,
    parameter [255:0] INIT_3A = 256'h0,
    parameter [255:0] INIT_3B = 256'h0,
    parameter [255:0] INIT_3C = 256'h0,
    parameter [255:0] INIT_3D = 256'h0,
    parameter [255:0] INIT_3E = 256'h0,
    parameter [255:0] INIT_3F = 256'h0,
    parameter [255:0] INITP_00 = 256'h0,
    parameter [255:0] INITP_01 = 256'h0,
    parameter [255:0] INITP_02 = 256'h0,
    parameter [255:0] INITP_03 = 256'h0,
    parameter [255:0] INITP_04 = 256'h0,
    parameter [255:0] INITP_05 = 256'h0,
    parameter [255:0] INITP_06 = 256'h0,
    parameter [255:0] INITP_07 = 256'h0
) (
    output reg  [15:0] DO,
    output reg  [1:0] DOP,
    input  wire [9:0] ADDR,
    input  wire CLK,
    input  wire [15:0] DI,
    input  wire [1:0] DIP,
    input  wire EN,
    input  wire SSR,
    input  wire WE
);
    reg [16383:0] data;
    reg [2047:0]  parity;

    initial begin
        data = {
            INIT_3F, INIT_3E, INIT_3D, INIT_3C, INIT_3B, INIT_3A, INIT_39, INIT_38,
            INIT_37, INIT_36, INIT_35, INIT_34, INIT_33, INIT_32, INIT_31, INIT_30,
            INIT_2F, INIT_2E, INIT_2D, INIT_2C, INIT_2B, INIT_2A, INIT_29, INIT_28,
            INIT_27, INIT_26, INIT_25, INIT_24, INIT_23, INIT_22, INIT_21, INIT_20,
            INIT_1F, INIT_1E, INIT_1D, INIT_1C, INIT_1B, INIT_1A, INIT_19, INIT_18,
            INIT_17, INIT_16, INIT_15, INIT_14, INIT_13, INIT_12, INIT_11, INIT_10,
            INIT_0F, INIT_0E, INIT_0D, INIT_0C, INIT_0B, INIT_0A, INIT_09, INIT_08,
            INIT_07, INIT_06, INIT_05, INIT_04, INIT_03, INIT_02, INIT_01, INIT_00};
        parity = {
            INITP_07, INITP_06, INITP_05, INITP_04, INITP_03, INITP_02, INITP_01, INITP_00};
        {DOP, DO} = INIT;
    end

    always @(posedge CLK)
        if (EN) begin
            if (SSR)
                {DOP, DO} <= SRVAL;
            else if (!WE || WRITE_MODE == "READ_FIRST")
                {DOP, DO} <= {parity[ADDR * 2 +: 2], data[ADDR * 16 +: 16]};
            else if (WRITE_MODE == "WRITE_FIRST")
                {DOP, DO} <= {DIP, DI};
            if (WE) begin
                data[ADDR * 16 +: 16] <= DI;
                parity[ADDR * 2 +: 2] <= DIP;
            end
        end
endmodule

module RAMB16_S36 #(
    parameter [35:0] INIT = 36'h0,
    parameter [35:0] SRVAL = 36'h0,
    parameter WRITE_MODE = "WRITE_FIRST",
    parameter [255:0] INIT_00 = 256'h0,
    parameter [255:0] INIT_01 = 256'h0,
    parameter [255:0] INIT_02 = 256'h0,
    parameter [255:0] INIT_03 = 256'h0,
    parameter [255:0] INIT_04 = 256'h0,
    parameter [255:0] INIT_05 = 256'h0,
    parameter [255:0] INIT_06 = 256'h0,
    parameter [255:0] INIT_07 = 256'h0,
    parameter [255:0] INIT_08 = 256'h0,
    parameter [255:0] INIT_09 = 256'h0,
    parameter [255:0] INIT_0A = 256'h0,
    parameter [255:0] INIT_0B = 256'h0,
    parameter [255:0] INIT_0C = 256'h0,
    parameter [255:0] INIT_0D = 256'h0,
    parameter [255:0] INIT_0E = 256'h0,
    parameter [255:0] INIT_0F = 256'h0,
    parameter [255:0] INIT_10 = 256'h0,
    parameter [255:0] INIT_11 = 256'h0,
    parameter [255:0] INIT_12 = 256'h0,
    parameter [255:0] INIT_13 = 256'h0,
    parameter [255:0] INIT_14 = 256'h0,
    parameter [255:0] INIT_15 = 256'h0,
    parameter [255:0] INIT_16 = 256'h0,
    parameter [255:0] INIT_17 = 256'h0,
    parameter [255:0] INIT_18 = 256'h0,
    parameter [255:0] INIT_19 = 256'h0,
    parameter [255:0] INIT_1A = 256'h0,
    parameter [255:0] INIT_1B = 256'h0,
    parameter [255:0] INIT_1C = 256'h0,
    parameter [255:0] INIT_1D = 256'h0,
    parameter [255:0] INIT_1E = 256'h0,
    parameter [255:0] INIT_1F = 256'h0,
    parameter [255:0] INIT_20 = 256'h0,
    parameter [255:0] INIT_21 = 256'h0,
    parameter [255:0] INIT_22 = 256'h0,
    parameter [255:0] INIT_23 = 256'h0,
    parameter [255:0] INIT_24 = 256'h0,
    parameter [255:0] INIT_25 = 256'h0,
    parameter [255:0] INIT_26 = 256'h0,
    parameter [255:0] INIT_27 = 256'h0,
    parameter [255:0] INIT_28 = 256'h0,
    parameter [255:0] INIT_29 = 256'h0,
    parameter [255:0] INIT_2A = 256'h0,
    parameter [255:0] INIT_2B = 256'h0,
    parameter [255:0] INIT_2C = 256'h0,
    parameter [255:0] INIT_2D = 256'h0,
    parameter [255:0] INIT_2E = 256'h0,
    parameter [255:0] INIT_2F = 256'h0,
    parameter [255:0] INIT_30 = 256'h0,
    parameter [255:0] INIT_31 = 256'h0,
    parameter [255:0] INIT_32 = 256'h0,
    parameter [255:0] INIT_33 = 256'h0,
    parameter [255:0] INIT_34 = 256'h0,
    parameter [255:0] INIT_35 = 256'h0,
    parameter [255:0] INIT_36 = 256'h0,
    parameter [255:0] INIT_37 = 256'h0,
    parameter [255:0] INIT_38 = 256'h0,
    parameter [255:0] INIT_39 = 256'h0,
    parameter [255:0] INIT_3A = 256'h0,
    parameter [255:0] INIT_3B = 256'h0,
    parameter [255:0] INIT_3C = 256'h0,
    parameter [255:0] INIT_3D = 256'h0,
    parameter [255:0] INIT_3E = 256'h0,
    parameter [255:0] INIT_3F = 256'h0,
    parameter [255:0] INITP_00 = 256'h0,
    parameter [255:0] INITP_01 = 256'h0,
    parameter [255:0] INITP_02 = 256'h0,
    parameter [255:0] INITP_03 = 256'h0,
    parameter [255:0] INITP_04 = 256'h0,
    parameter [255:0] INITP_05 = 256'h0,
    parameter [255:0] INITP_06 = 256'h0,
    parameter [255:0] INITP_07 = 256'h0
) (
    output reg  [31:0] DO,
    output reg  [3:0] DOP,
    input  wire [8:0] ADDR,
    input  wire CLK,
    input  wire [31:0] DI,
    input  wire [3:0] DIP,
    input  wire EN,
    input  wire SSR,
    input  wire WE
);
    reg [16383:0] data;
    reg [2047:0]  parity;

    initial begin
        data = {
            INIT_3F, INIT_3E, INIT_3D, INIT_3C, INIT_3B, INIT_3A, INIT_39, INIT_38,
            INIT_37, INIT_36, INIT_35, INIT_34, INIT_33, INIT_32, INIT_31, INIT_30,
            INIT_2F, INIT_2E, INIT_2D, INIT_2C, INIT_2B, INIT_2A, INIT_29, INIT_28,
            INIT_27, INIT_26, INIT_25, INIT_24, INIT_23, INIT_22, INIT_21, INIT_20,
            INIT_1F, INIT_1E, INIT_1D, INIT_1C, INIT_1B, INIT_1A, INIT_19, INIT_18,
            INIT_17, INIT_16, INIT_15, INIT_14, INIT_13, INIT_12, INIT_11, INIT_10,
            INIT_0F, INIT_0E, INIT_0D, INIT_0C, INIT_0B, INIT_0A, INIT_09, INIT_08,
            INIT_07, INIT_06, INIT_05, INIT_04, INIT_03, INIT_02, INIT_01, INIT_00};
        parity = {
            INITP_07, INITP_06, INITP_05, INITP_04, INITP_03, INITP_02, INITP_01, INITP_00};
        {DOP, DO} = INIT;
    end

    always @(posedge CLK)
        if (EN) begin
            if (SSR)
                {DOP, DO} <= SRVAL;
            else if (!WE || WRITE_MODE == "READ_FIRST")
                {DOP, DO} <= {parity[ADDR * 4 +: 4], data[ADDR * 32 +: 32]};
            else if (WRITE_MODE == "WRITE_FIRST")
                {DOP, DO} <= {DIP, DI};
            if (WE) begin
                data[ADDR * 32 +: 32] <= DI;
                parity[ADDR * 4 +: 4] <= DIP;
            end
        end
endmodule
