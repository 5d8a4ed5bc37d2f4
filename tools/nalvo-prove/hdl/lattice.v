// Models of the primitives of the vendor's devices that a Mico8 may be made of, as far as their users' guides describe
// them: truth tables, flip-flops, distributed memories, and the memories that are modules with parameters. Without delays; the
// global set and reset is not among them.

module LUT4 #(
    parameter [15:0] init = 16'h0,
    parameter [15:0] INIT = init
) (
    input  wire A,
    input  wire B,
    input  wire C,
    input  wire D,
    output wire Z
);
    assign Z = INIT[{D, C, B, A}];
endmodule

module ORCALUT4 #(
    parameter [15:0] init = 16'h0,
    parameter [15:0] INIT = init
) (
    input  wire A,
    input  wire B,
    input  wire C,
    input  wire D,
    output wire Z
);
    assign Z = INIT[{D, C, B, A}];
endmodule

// The longer path of a slice: A where the select is up.
module PFUMX (
    input  wire ALUT,
    input  wire BLUT,
    input  wire C0,
    output wire Z
);
    assign Z = C0 ? ALUT : BLUT;
endmodule

module L6MUX21 (
    input  wire D0,
    input  wire D1,
    input  wire SD,
    output wire Z
);
    assign Z = SD ? D1 : D0;
endmodule

module MUX21 (
    input  wire D0,
    input  wire D1,
    input  wire SD,
    output wire Z
);
    assign Z = SD ? D1 : D0;
endmodule

module INV (
    input  wire A,
    output wire Z
);
    assign Z = ~A;
endmodule

module AND2 (
    input  wire A,
    input  wire B,
    output wire Z
);
    assign Z = A & B;
endmodule

module OR2 (
    input  wire A,
    input  wire B,
    output wire Z
);
    assign Z = A | B;
endmodule

module XOR2 (
    input  wire A,
    input  wire B,
    output wire Z
);
    assign Z = A ^ B;
endmodule

module VHI (
    output wire Z
);
    assign Z = 1'b1;
endmodule

module VLO (
    output wire Z
);
    assign Z = 1'b0;
endmodule

module FD1P3AX #(
    parameter GSR = "ENABLED"
) (
    input  wire D,
    input  wire SP,
    input  wire CK,
    output reg  Q
);
    initial Q = 1'b0;

    always @(posedge CK)
        if (SP)
            Q <= D;
endmodule

module FD1P3AY #(
    parameter GSR = "ENABLED"
) (
    input  wire D,
    input  wire SP,
    input  wire CK,
    output reg  Q
);
    initial Q = 1'b1;

    always @(posedge CK)
        if (SP)
            Q <= D;
endmodule

module FD1P3BX #(
    parameter GSR = "ENABLED"
) (
    input  wire D,
    input  wire SP,
    input  wire CK,
    input  wire PD,
    output reg  Q
);
    initial Q = 1'b1;

    always @(posedge CK or posedge PD)
        if (PD)
            Q <= 1'b1;
        else if (SP)
            Q <= D;
endmodule

module FD1P3DX #(
    parameter GSR = "ENABLED"
) (
    input  wire D,
    input  wire SP,
    input  wire CK,
    input  wire CD,
    output reg  Q
);
    initial Q = 1'b0;

    always @(posedge CK or posedge CD)
        if (CD)
            Q <= 1'b0;
        else if (SP)
            Q <= D;
endmodule

module FD1P3IX #(
    parameter GSR = "ENABLED"
) (
    input  wire D,
    input  wire SP,
    input  wire CK,
    input  wire CD,
    output reg  Q
);
    initial Q = 1'b0;

    always @(posedge CK)
        if (CD)
            Q <= 1'b0;
        else if (SP)
            Q <= D;
endmodule

module FD1P3JX #(
    parameter GSR = "ENABLED"
) (
    input  wire D,
    input  wire SP,
    input  wire CK,
    input  wire PD,
    output reg  Q
);
    initial Q = 1'b1;

    always @(posedge CK)
        if (PD)
            Q <= 1'b1;
        else if (SP)
            Q <= D;
endmodule

module FD1S3AX #(
    parameter GSR = "ENABLED"
) (
    input  wire D,
    input  wire CK,
    output reg  Q
);
    initial Q = 1'b0;

    always @(posedge CK)
        Q <= D;
endmodule

module FD1S3AY #(
    parameter GSR = "ENABLED"
) (
    input  wire D,
    input  wire CK,
    output reg  Q
);
    initial Q = 1'b1;

    always @(posedge CK)
        Q <= D;
endmodule

module FD1S3BX #(
    parameter GSR = "ENABLED"
) (
    input  wire D,
    input  wire CK,
    input  wire PD,
    output reg  Q
);
    initial Q = 1'b1;

    always @(posedge CK or posedge PD)
        if (PD)
            Q <= 1'b1;
        else
            Q <= D;
endmodule

module FD1S3DX #(
    parameter GSR = "ENABLED"
) (
    input  wire D,
    input  wire CK,
    input  wire CD,
    output reg  Q
);
    initial Q = 1'b0;

    always @(posedge CK or posedge CD)
        if (CD)
            Q <= 1'b0;
        else
            Q <= D;
endmodule

module FD1S3IX #(
    parameter GSR = "ENABLED"
) (
    input  wire D,
    input  wire CK,
    input  wire CD,
    output reg  Q
);
    initial Q = 1'b0;

    always @(posedge CK)
        if (CD)
            Q <= 1'b0;
        else
            Q <= D;
endmodule

module FD1S3JX #(
    parameter GSR = "ENABLED"
) (
    input  wire D,
    input  wire CK,
    input  wire PD,
    output reg  Q
);
    initial Q = 1'b1;

    always @(posedge CK)
        if (PD)
            Q <= 1'b1;
        else
            Q <= D;
endmodule

// The initial value is a number, or a text of hexadecimal digits with 0x in front.
module prove_initval #(
    parameter [18*8-1:0] INITVAL = 0
) (
    output reg [63:0] value
);
    integer   i;
    reg [7:0] digit;

    initial begin
        value = INITVAL[63:0];
        if (INITVAL[18*8-1:16*8] == "0x")
            for (i = 15; i >= 0; i = i - 1) begin
                digit = INITVAL[8*i +: 8];
                value = {value[59:0], digit[6] ? digit[3:0] + 4'd9 : digit[3:0]};
            end
    end
endmodule

module SPR16X4C #(
    parameter [18*8-1:0] initval = 0,
    parameter [18*8-1:0] INITVAL = initval,
    parameter GSR = "ENABLED"
) (
    input  wire DI0,
    input  wire DI1,
    input  wire DI2,
    input  wire DI3,
    input  wire AD0,
    input  wire AD1,
    input  wire AD2,
    input  wire AD3,
    input  wire CK,
    input  wire WRE,
    output wire DO0,
    output wire DO1,
    output wire DO2,
    output wire DO3
);
    reg  [63:0] memory;
    wire [63:0] start;

    prove_initval #(.INITVAL (INITVAL)) initial_value (.value (start));

    // Behind the initial block of that.
    initial #0 memory = start;

    always @(posedge CK)
        if (WRE)
            memory[{AD3, AD2, AD1, AD0, 2'b00} +: 4] <= {DI3, DI2, DI1, DI0};

    assign {DO3, DO2, DO1, DO0} = memory[{AD3, AD2, AD1, AD0, 2'b00} +: 4];
endmodule

module DPR16X4C #(
    parameter [18*8-1:0] initval = 0,
    parameter [18*8-1:0] INITVAL = initval,
    parameter GSR = "ENABLED"
) (
    input  wire DI0,
    input  wire DI1,
    input  wire DI2,
    input  wire DI3,
    input  wire WAD0,
    input  wire WAD1,
    input  wire WAD2,
    input  wire WAD3,
    input  wire WCK,
    input  wire WRE,
    input  wire RAD0,
    input  wire RAD1,
    input  wire RAD2,
    input  wire RAD3,
    output wire DO0,
    output wire DO1,
    output wire DO2,
    output wire DO3
);
    reg  [63:0] memory;
    wire [63:0] start;

    prove_initval #(.INITVAL (INITVAL)) initial_value (.value (start));

    // Behind the initial block of that.
    initial #0 memory = start;

    always @(posedge WCK)
        if (WRE)
            memory[{WAD3, WAD2, WAD1, WAD0, 2'b00} +: 4] <= {DI3, DI2, DI1, DI0};

    assign {DO3, DO2, DO1, DO0} = memory[{RAD3, RAD2, RAD1, RAD0, 2'b00} +: 4];
endmodule

// Contents from a file are not loaded: nobody knows where that file would be.
module prove_no_file #(
    parameter [64*8-1:0] name = "none"
);
    initial
        if (name != "none" && name != "") begin
            $display("FAILED a memory with a file of initial contents: %0s", name);
            $finish;
        end
endmodule

// What an output goes through: nothing, or a register with its reset.
module prove_output #(
    parameter         width = 8,
    parameter integer stages = 0,
    parameter         is_async = 0
) (
    input  wire [width-1:0] value,
    input  wire             clock,
    input  wire             enable,
    input  wire             reset,
    output wire [width-1:0] q
);
    reg [width-1:0] kept;

    initial kept = {width{1'b0}};

    wire clear = is_async && reset;
    always @(posedge clock or posedge clear)
        if (clear)
            kept <= {width{1'b0}};
        else if (enable)
            kept <= reset ? {width{1'b0}} : value;

    assign q = stages == 0 ? value : kept;
endmodule

module pmi_distributed_spram #(
    parameter pmi_addr_depth = 512,
    parameter pmi_addr_width = 9,
    parameter pmi_data_width = 8,
    parameter pmi_regmode = "reg",
    parameter pmi_init_file = "none",
    parameter pmi_init_file_format = "binary",
    parameter pmi_family = "",
    parameter module_type = "pmi_distributed_spram"
) (
    input  wire [pmi_addr_width-1:0] Address,
    input  wire [pmi_data_width-1:0] Data,
    input  wire Clock,
    input  wire ClockEn,
    input  wire WE,
    input  wire Reset,
    output wire [pmi_data_width-1:0] Q
);
    prove_no_file #(.name (pmi_init_file)) no_file ();

    reg [pmi_data_width-1:0] memory [0:pmi_addr_depth-1];
    integer i;

    initial
        for (i = 0; i < pmi_addr_depth; i = i + 1)
            memory[i] = {pmi_data_width{1'b0}};

    always @(posedge Clock)
        if (ClockEn && WE)
            memory[Address] <= Data;

    prove_output #(.width (pmi_data_width), .stages (pmi_regmode == "reg")) out (
        .value (memory[Address]), .clock (Clock), .enable (ClockEn), .reset (Reset), .q (Q));
endmodule

module pmi_distributed_dpram #(
    parameter pmi_addr_depth = 512,
    parameter pmi_addr_width = 9,
    parameter pmi_data_width = 8,
    parameter pmi_regmode = "reg",
    parameter pmi_init_file = "none",
    parameter pmi_init_file_format = "binary",
    parameter pmi_family = "",
    parameter module_type = "pmi_distributed_dpram"
) (
    input  wire [pmi_addr_width-1:0] WrAddress,
    input  wire [pmi_data_width-1:0] Data,
    input  wire WrClock,
    input  wire WE,
    input  wire WrClockEn,
    input  wire [pmi_addr_width-1:0] RdAddress,
    input  wire RdClock,
    input  wire RdClockEn,
    input  wire Reset,
    output wire [pmi_data_width-1:0] Q
);
    prove_no_file #(.name (pmi_init_file)) no_file ();

    reg [pmi_data_width-1:0] memory [0:pmi_addr_depth-1];
    integer i;

    initial
        for (i = 0; i < pmi_addr_depth; i = i + 1)
            memory[i] = {pmi_data_width{1'b0}};

    always @(posedge WrClock)
        if (WrClockEn && WE)
            memory[WrAddress] <= Data;

    prove_output #(.width (pmi_data_width), .stages (pmi_regmode == "reg")) out (
        .value (memory[RdAddress]), .clock (RdClock), .enable (RdClockEn), .reset (Reset), .q (Q));
endmodule

module pmi_ram_dq #(
    parameter pmi_addr_depth = 512,
    parameter pmi_addr_width = 9,
    parameter pmi_data_width = 8,
    parameter pmi_regmode = "reg",
    parameter pmi_gsr = "disable",
    parameter pmi_resetmode = "sync",
    parameter pmi_optimization = "speed",
    parameter pmi_write_mode = "normal",
    parameter pmi_init_file = "none",
    parameter pmi_init_file_format = "binary",
    parameter pmi_family = "",
    parameter module_type = "pmi_ram_dq"
) (
    input  wire [pmi_data_width-1:0] Data,
    input  wire [pmi_addr_width-1:0] Address,
    input  wire Clock,
    input  wire ClockEn,
    input  wire WE,
    input  wire Reset,
    output wire [pmi_data_width-1:0] Q
);
    prove_no_file #(.name (pmi_init_file)) no_file ();

    reg [pmi_data_width-1:0] memory [0:pmi_addr_depth-1];
    integer i;

    initial
        for (i = 0; i < pmi_addr_depth; i = i + 1)
            memory[i] = {pmi_data_width{1'b0}};

    // In normal mode a write leaves the output as it is.
    wire [pmi_data_width-1:0] held;
    wire [pmi_data_width-1:0] read = pmi_write_mode == "readbeforewrite" || !WE ? memory[Address]
                                   : pmi_write_mode == "writethrough"           ? Data
                                                                                : held;

    always @(posedge Clock)
        if (ClockEn && WE)
            memory[Address] <= Data;

    prove_output #(.width (pmi_data_width), .stages (1), .is_async (pmi_resetmode == "async")) latch (
        .value (read), .clock (Clock), .enable (ClockEn), .reset (Reset), .q (held));
    prove_output #(.width (pmi_data_width), .stages (pmi_regmode == "reg"), .is_async (pmi_resetmode == "async")) out (
        .value (held), .clock (Clock), .enable (ClockEn), .reset (Reset), .q (Q));
endmodule

module pmi_ram_dp #(
    parameter pmi_wr_addr_depth = 512,
    parameter pmi_wr_addr_width = 9,
    parameter pmi_wr_data_width = 18,
    parameter pmi_rd_addr_depth = 512,
    parameter pmi_rd_addr_width = 9,
    parameter pmi_rd_data_width = 18,
    parameter pmi_regmode = "reg",
    parameter pmi_gsr = "disable",
    parameter pmi_resetmode = "sync",
    parameter pmi_optimization = "speed",
    parameter pmi_init_file = "none",
    parameter pmi_init_file_format = "binary",
    parameter pmi_family = "",
    parameter module_type = "pmi_ram_dp"
) (
    input  wire [pmi_wr_data_width-1:0] Data,
    input  wire [pmi_wr_addr_width-1:0] WrAddress,
    input  wire [pmi_rd_addr_width-1:0] RdAddress,
    input  wire WrClock,
    input  wire RdClock,
    input  wire WrClockEn,
    input  wire RdClockEn,
    input  wire WE,
    input  wire Reset,
    output wire [pmi_rd_data_width-1:0] Q
);
    prove_no_file #(.name (pmi_init_file)) no_file ();

    reg [pmi_wr_data_width-1:0] memory [0:pmi_wr_addr_depth-1];
    integer i;

    initial
        for (i = 0; i < pmi_wr_addr_depth; i = i + 1)
            memory[i] = {pmi_wr_data_width{1'b0}};

    initial
        if (pmi_wr_data_width != pmi_rd_data_width) begin
            $display("FAILED pmi_ram_dp with two widths");
            $finish;
        end

    wire [pmi_rd_data_width-1:0] held;

    always @(posedge WrClock)
        if (WrClockEn && WE)
            memory[WrAddress] <= Data;

    prove_output #(.width (pmi_rd_data_width), .stages (1), .is_async (pmi_resetmode == "async")) latch (
        .value (memory[RdAddress]), .clock (RdClock), .enable (RdClockEn), .reset (Reset), .q (held));
    prove_output #(.width (pmi_rd_data_width), .stages (pmi_regmode == "reg"), .is_async (pmi_resetmode == "async")) out (
        .value (held), .clock (RdClock), .enable (RdClockEn), .reset (Reset), .q (Q));
endmodule
