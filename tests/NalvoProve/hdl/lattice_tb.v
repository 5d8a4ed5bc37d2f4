// Checks the models of the primitives of a Mico8 against what their users' guides say. Prints PASSED, or what is wrong.

module lattice_tb;
    integer i;
    integer errors;
    reg [7:0] a;
    reg [3:0] n;
    reg clk, d, sp, c, we, en;
    reg [8:0] data;
    reg [4:0] wa, ra;

    task check(input [8*24-1:0] name, input [17:0] got, input [17:0] expected);
        if (got !== expected) begin
            $display("%0s: %h instead of %h at %0d", name, got, expected, i);
            errors = errors + 1;
        end
    endtask

    task tick;
        begin
            #1 clk = 1'b0;
            #1 clk = 1'b1;
            #1;
        end
    endtask

    wire z4, zorca, zpf, zl6, zmux, zinv, zand, zor, zxor, one, none;
    LUT4 #(.init (16'h6A3C)) l4 (.A (a[0]), .B (a[1]), .C (a[2]), .D (a[3]), .Z (z4));
    ORCALUT4 #(.INIT (16'h6A3C)) orca (.A (a[0]), .B (a[1]), .C (a[2]), .D (a[3]), .Z (zorca));
    PFUMX pf (.ALUT (a[0]), .BLUT (a[1]), .C0 (a[2]), .Z (zpf));
    L6MUX21 l6 (.D0 (a[0]), .D1 (a[1]), .SD (a[2]), .Z (zl6));
    MUX21 mux (.D0 (a[0]), .D1 (a[1]), .SD (a[2]), .Z (zmux));
    INV inv (.A (a[0]), .Z (zinv));
    AND2 both (.A (a[0]), .B (a[1]), .Z (zand));
    OR2 any (.A (a[0]), .B (a[1]), .Z (zor));
    XOR2 odd (.A (a[0]), .B (a[1]), .Z (zxor));
    VHI high (.Z (one));
    VLO low (.Z (none));
    wire [15:0] truth = 16'h6A3C;

    wire pax, pay, pbx, pdx, pix, pjx, sax, say, sbx, sdx, six, sjx;
    FD1P3AX f1 (.D (d), .SP (sp), .CK (clk), .Q (pax));
    FD1P3AY f2 (.D (d), .SP (sp), .CK (clk), .Q (pay));
    FD1P3BX f3 (.D (d), .SP (sp), .CK (clk), .PD (c), .Q (pbx));
    FD1P3DX f4 (.D (d), .SP (sp), .CK (clk), .CD (c), .Q (pdx));
    FD1P3IX f5 (.D (d), .SP (sp), .CK (clk), .CD (c), .Q (pix));
    FD1P3JX f6 (.D (d), .SP (sp), .CK (clk), .PD (c), .Q (pjx));
    FD1S3AX f7 (.D (d), .CK (clk), .Q (sax));
    FD1S3AY f8 (.D (d), .CK (clk), .Q (say));
    FD1S3BX f9 (.D (d), .CK (clk), .PD (c), .Q (sbx));
    FD1S3DX fa (.D (d), .CK (clk), .CD (c), .Q (sdx));
    FD1S3IX fb (.D (d), .CK (clk), .CD (c), .Q (six));
    FD1S3JX #(.GSR ("DISABLED")) fc (.D (d), .CK (clk), .PD (c), .Q (sjx));
    wire [11:0] q = {pax, pay, pbx, pdx, pix, pjx, sax, say, sbx, sdx, six, sjx};

    wire [3:0] spr, dpr, number;
    SPR16X4C #(.initval ("0xFEDCBA98765432a0")) single (
        .DI0 (n[0]), .DI1 (n[1]), .DI2 (n[2]), .DI3 (n[3]), .AD0 (a[0]), .AD1 (a[1]), .AD2 (a[2]), .AD3 (a[3]),
        .CK (clk), .WRE (we), .DO0 (spr[0]), .DO1 (spr[1]), .DO2 (spr[2]), .DO3 (spr[3]));
    DPR16X4C #(.INITVAL ("0xFEDCBA98765432a0")) dual (
        .DI0 (n[0]), .DI1 (n[1]), .DI2 (n[2]), .DI3 (n[3]), .WAD0 (a[0]), .WAD1 (a[1]), .WAD2 (a[2]), .WAD3 (a[3]),
        .WCK (clk), .WRE (we), .RAD0 (!a[0]), .RAD1 (!a[1]), .RAD2 (!a[2]), .RAD3 (!a[3]),
        .DO0 (dpr[0]), .DO1 (dpr[1]), .DO2 (dpr[2]), .DO3 (dpr[3]));
    SPR16X4C #(.INITVAL (64'hFEDCBA98765432a0)) by_number (
        .DI0 (n[0]), .DI1 (n[1]), .DI2 (n[2]), .DI3 (n[3]), .AD0 (a[0]), .AD1 (a[1]), .AD2 (a[2]), .AD3 (a[3]),
        .CK (clk), .WRE (1'b0), .DO0 (number[0]), .DO1 (number[1]), .DO2 (number[2]), .DO3 (number[3]));

    // Each memory with and without a register at its output
    wire [8:0] ds0, ds1, dd0, dd1, dq0, dq1, dqw, dqr, dp0, dp1;
    pmi_distributed_spram #(.pmi_addr_depth (32), .pmi_addr_width (5), .pmi_data_width (9), .pmi_regmode ("noreg")) m1 (
        .Address (wa), .Data (data), .Clock (clk), .ClockEn (en), .WE (we), .Reset (c), .Q (ds0));
    pmi_distributed_spram #(.pmi_addr_depth (32), .pmi_addr_width (5), .pmi_data_width (9), .pmi_regmode ("reg"), .pmi_family ("XP2")) m2 (
        .Address (wa), .Data (data), .Clock (clk), .ClockEn (en), .WE (we), .Reset (c), .Q (ds1));
    pmi_distributed_dpram #(.pmi_addr_depth (32), .pmi_addr_width (5), .pmi_data_width (9), .pmi_regmode ("noreg")) m3 (
        .WrAddress (wa), .Data (data), .WrClock (clk), .WE (we), .WrClockEn (en), .RdAddress (ra), .RdClock (clk),
        .RdClockEn (en), .Reset (c), .Q (dd0));
    pmi_distributed_dpram #(.pmi_addr_depth (32), .pmi_addr_width (5), .pmi_data_width (9)) m4 (
        .WrAddress (wa), .Data (data), .WrClock (clk), .WE (we), .WrClockEn (en), .RdAddress (ra), .RdClock (clk),
        .RdClockEn (en), .Reset (c), .Q (dd1));
    pmi_ram_dq #(.pmi_addr_depth (32), .pmi_addr_width (5), .pmi_data_width (9), .pmi_regmode ("noreg")) m5 (
        .Data (data), .Address (wa), .Clock (clk), .ClockEn (en), .WE (we), .Reset (c), .Q (dq0));
    pmi_ram_dq #(.pmi_addr_depth (32), .pmi_addr_width (5), .pmi_data_width (9), .pmi_resetmode ("async")) m6 (
        .Data (data), .Address (wa), .Clock (clk), .ClockEn (en), .WE (we), .Reset (c), .Q (dq1));
    pmi_ram_dq #(.pmi_addr_depth (32), .pmi_addr_width (5), .pmi_data_width (9), .pmi_regmode ("noreg"), .pmi_write_mode ("writethrough")) m7 (
        .Data (data), .Address (wa), .Clock (clk), .ClockEn (en), .WE (we), .Reset (c), .Q (dqw));
    pmi_ram_dq #(.pmi_addr_depth (32), .pmi_addr_width (5), .pmi_data_width (9), .pmi_regmode ("noreg"), .pmi_write_mode ("readbeforewrite")) m8 (
        .Data (data), .Address (wa), .Clock (clk), .ClockEn (en), .WE (we), .Reset (c), .Q (dqr));
    pmi_ram_dp #(.pmi_wr_addr_depth (32), .pmi_wr_addr_width (5), .pmi_wr_data_width (9), .pmi_rd_addr_depth (32), .pmi_rd_addr_width (5),
        .pmi_rd_data_width (9), .pmi_regmode ("noreg")) m9 (
        .Data (data), .WrAddress (wa), .RdAddress (ra), .WrClock (clk), .RdClock (clk), .WrClockEn (en), .RdClockEn (en),
        .WE (we), .Reset (c), .Q (dp0));
    pmi_ram_dp #(.pmi_wr_addr_depth (32), .pmi_wr_addr_width (5), .pmi_wr_data_width (9), .pmi_rd_addr_depth (32), .pmi_rd_addr_width (5),
        .pmi_rd_data_width (9)) ma (
        .Data (data), .WrAddress (wa), .RdAddress (ra), .WrClock (clk), .RdClock (clk), .WrClockEn (en), .RdClockEn (en),
        .WE (we), .Reset (c), .Q (dp1));

    task inputs(input new_d, input new_sp, input new_c);
        begin
            d = new_d;
            sp = new_sp;
            c = new_c;
            #1;
        end
    endtask

    task access(input [4:0] write_address, input [8:0] value, input write, input [4:0] read_address);
        begin
            wa = write_address;
            data = value;
            we = write;
            ra = read_address;
            tick;
        end
    endtask

    initial begin
        {clk, d, sp, c, we} = 5'b00000;
        en = 1'b1;
        {a, n, data, wa, ra} = 31'h00000000;
        errors = 0;
        i = 0;
        #1;
        check("initial", q, 12'b011001_011001);
        check("VHI", one, 1);
        check("VLO", none, 0);
        for (i = 0; i < 16; i = i + 1) begin
            a = i;
            #1;
            check("LUT4", z4, truth[i]);
            check("ORCALUT4", zorca, truth[i]);
            check("PFUMX", zpf, a[2] ? a[0] : a[1]);
            check("L6MUX21", zl6, a[2] ? a[1] : a[0]);
            check("MUX21", zmux, a[2] ? a[1] : a[0]);
            check("INV", zinv, !a[0]);
            check("AND2", zand, a[0] && a[1]);
            check("OR2", zor, a[0] || a[1]);
            check("XOR2", zxor, a[0] != a[1]);
            check("SPR16X4C initial", spr, i == 0 ? 4'h0 : i == 1 ? 4'hA : i);
            check("SPR16X4C number", number, spr);
            check("DPR16X4C initial", dpr, i == 15 ? 4'h0 : i == 14 ? 4'hA : 15 - i);
        end
        // Flip-flops
        i = 1;
        inputs(1, 1, 0);
        check("no clock", q, 12'b011001_011001);
        tick;
        check("set", q, 12'hFFF);
        inputs(0, 1, 0);
        #1 clk = 1'b0;
        #1 check("falling edge", q, 12'hFFF);
        inputs(1, 1, 0);
        tick;
        inputs(0, 0, 0);
        tick;
        check("enable", q, 12'b111111_000000);
        inputs(1, 0, 0);
        tick;
        inputs(0, 1, 0);
        tick;
        check("clear", q, 12'h000);
        inputs(0, 0, 1);
        check("asynchronous preset", q, 12'b001000_001000);
        tick;
        check("synchronous preset over enable", q, 12'b001001_001001);
        inputs(1, 1, 0);
        tick;
        check("all set", q, 12'hFFF);
        inputs(1, 0, 1);
        check("asynchronous clear", q, 12'b111011_111011);
        tick;
        check("synchronous clear over enable", q, 12'b111001_111001);
        inputs(1, 1, 1);
        tick;
        check("clear over data", q, 12'b111001_111001);
        inputs(0, 1, 1);
        tick;
        check("preset over data", q, 12'b001001_001001);
        inputs(0, 0, 0);
        // Distributed memories
        for (i = 0; i < 16; i = i + 1) begin
            a = i;
            n = ~i;
            we = 1'b1;
            tick;
            we = 1'b0;
            n = i;
            tick;
            we = 1'b1;
            #1 clk = 1'b0;
            #1 we = 1'b0;
        end
        for (i = 0; i < 16; i = i + 1) begin
            a = i;
            #1;
            check("SPR16X4C", spr, 15 - i);
            check("DPR16X4C", dpr, i);
        end
        // Memories with parameters: 1 to 31 get three times their address.
        for (i = 1; i < 32; i = i + 1)
            access(i, i * 3, 1, 0);
        access(0, 9'h1AA, 0, 5);
        check("spram", ds0, 9'h000);
        check("dpram", dd0, 15);
        access(7, 9'h1AA, 0, 9);
        check("spram", ds0, 21);
        check("spram reg", ds1, 21);
        check("dpram", dd0, 27);
        check("dpram reg", dd1, 27);
        check("dq", dq0, 21);
        check("dq reg is later", dq1, 0);
        check("dp", dp0, 27);
        check("dp reg is later", dp1, 15);
        wa = 8;
        ra = 10;
        #1;
        check("spram at once", ds0, 24);
        check("spram reg waits", ds1, 21);
        check("dpram at once", dd0, 30);
        check("dpram reg waits", dd1, 27);
        check("dq waits", dq0, 21);
        check("dp waits", dp0, 27);
        tick;
        check("dq", dq0, 24);
        check("dq reg", dq1, 21);
        check("dp", dp0, 30);
        check("dp reg", dp1, 27);
        // A write: what the output of one port shows
        access(12, 9'h155, 1, 12);
        check("normal holds", dq0, 24);
        check("writethrough", dqw, 9'h155);
        check("readbeforewrite", dqr, 36);
        check("dp before the write", dp0, 36);
        access(12, 0, 0, 12);
        check("written", dq0, 9'h155);
        check("written", dp0, 9'h155);
        check("written", ds0, 9'h155);
        check("written", dd0, 9'h155);
        // Without the enable of the clock nothing happens.
        en = 1'b0;
        access(13, 9'h0F0, 1, 13);
        check("dq disabled", dq0, 9'h155);
        check("spram disabled", ds1, 9'h155);
        check("dp disabled", dp0, 9'h155);
        check("not written", ds0, 39);
        en = 1'b1;
        // A reset clears outputs, not cells.
        c = 1'b1;
        #1;
        check("synchronous", dq0, 9'h155);
        check("asynchronous", dq1, 0);
        access(13, 0, 0, 13);
        check("dq reset", dq0, 0);
        check("dp reset", dp0, 0);
        check("dp reg reset", dp1, 0);
        check("spram reg reset", ds1, 0);
        check("dpram reg reset", dd1, 0);
        check("spram cells", ds0, 39);
        c = 1'b0;
        tick;
        check("dq cells", dq0, 39);
        // The falling edge writes and reads nothing.
        wa = 14;
        ra = 14;
        data = 9'h1FF;
        we = 1'b1;
        #1 clk = 1'b0;
        #1 we = 1'b0;
        #1;
        check("spram cells", ds0, 42);
        check("dpram cells", dd0, 42);
        check("dq waits", dq0, 39);
        check("dp waits", dp0, 39);
        tick;
        check("dq cells", dq0, 42);
        check("dp cells", dp0, 42);
        if (errors == 0)
            $display("PASSED");
        $finish;
    end
endmodule
