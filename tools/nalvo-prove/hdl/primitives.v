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
