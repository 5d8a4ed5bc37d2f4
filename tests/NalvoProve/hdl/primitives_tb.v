// Checks the models of the primitives against what their users' guides say. Prints PASSED, or what is wrong.

module primitives_tb;
    integer i;
    integer errors;
    reg [7:0] a;
    reg clk, ce, d, r, s, we;
    reg [1:0] di;
    reg [63:0] truth;

    task check(input [8*24-1:0] name, input got, input expected);
        if (got !== expected) begin
            $display("%0s: %b instead of %b at %0d", name, got, expected, i);
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

    wire lut1;
    LUT1 #(.INIT (2'h2)) l1 (.O (lut1), .I0 (a[0]));
    wire lut2;
    LUT2 #(.INIT (4'h8)) l2 (.O (lut2), .I0 (a[0]), .I1 (a[1]));
    wire lut3;
    LUT3 #(.INIT (8'hCA)) l3 (.O (lut3), .I0 (a[0]), .I1 (a[1]), .I2 (a[2]));
    wire lut4;
    LUT4 #(.INIT (16'h6A3C)) l4 (.O (lut4), .I0 (a[0]), .I1 (a[1]), .I2 (a[2]), .I3 (a[3]));
    wire lut5;
    LUT5 #(.INIT (32'h1B5E93C7)) l5 (.O (lut5), .I0 (a[0]), .I1 (a[1]), .I2 (a[2]), .I3 (a[3]), .I4 (a[4]));
    wire lut6;
    LUT6 #(.INIT (64'hD2A4F19C3B60875E)) l6 (.O (lut6), .I0 (a[0]), .I1 (a[1]), .I2 (a[2]), .I3 (a[3]), .I4 (a[4]), .I5 (a[5]));
    wire o5, o6;
    LUT6_2 #(.INIT (64'hD2A4F19C3B60875E)) l62 (.O5 (o5), .O6 (o6), .I0 (a[0]), .I1 (a[1]), .I2 (a[2]), .I3 (a[3]), .I4 (a[4]), .I5 (a[5]));
    wire q_fd; reg e_fd;
    FD ff_fd (.Q (q_fd), .C (clk), .D (d));
    wire q_fde; reg e_fde;
    FDE ff_fde (.Q (q_fde), .C (clk), .D (d), .CE (ce));
    wire q_fdr; reg e_fdr;
    FDR ff_fdr (.Q (q_fdr), .C (clk), .D (d), .R (r));
    wire q_fdre; reg e_fdre;
    FDRE ff_fdre (.Q (q_fdre), .C (clk), .D (d), .CE (ce), .R (r));
    wire q_fds; reg e_fds;
    FDS ff_fds (.Q (q_fds), .C (clk), .D (d), .S (s));
    wire q_fdse; reg e_fdse;
    FDSE ff_fdse (.Q (q_fdse), .C (clk), .D (d), .CE (ce), .S (s));
    wire q_fdrs; reg e_fdrs;
    FDRS ff_fdrs (.Q (q_fdrs), .C (clk), .D (d), .R (r), .S (s));
    wire q_fdrse; reg e_fdrse;
    FDRSE ff_fdrse (.Q (q_fdrse), .C (clk), .D (d), .CE (ce), .R (r), .S (s));
    wire q_fdc; reg e_fdc;
    FDC ff_fdc (.Q (q_fdc), .C (clk), .D (d), .CLR (r));
    wire q_fdce; reg e_fdce;
    FDCE ff_fdce (.Q (q_fdce), .C (clk), .D (d), .CE (ce), .CLR (r));
    wire q_fdp; reg e_fdp;
    FDP ff_fdp (.Q (q_fdp), .C (clk), .D (d), .PRE (s));
    wire q_fdpe; reg e_fdpe;
    FDPE ff_fdpe (.Q (q_fdpe), .C (clk), .D (d), .CE (ce), .PRE (s));
    wire cy, xo, f5, f6, f7, f8, inv;
    MUXCY mux (.O (cy), .CI (a[0]), .DI (a[1]), .S (a[2]));
    XORCY xor_cy (.O (xo), .CI (a[0]), .LI (a[1]));
    MUXF5 m5 (.O (f5), .I0 (a[0]), .I1 (a[1]), .S (a[2]));
    MUXF6 m6 (.O (f6), .I0 (a[0]), .I1 (a[1]), .S (a[2]));
    MUXF7 m7 (.O (f7), .I0 (a[0]), .I1 (a[1]), .S (a[2]));
    MUXF8 m8 (.O (f8), .I0 (a[0]), .I1 (a[1]), .S (a[2]));
    INV no (.O (inv), .I (a[0]));
    wire s4;
    RAM16X1S #(.INIT (16'h9)) ram_s4 (.O (s4), .A0 (a[0]), .A1 (a[1]), .A2 (a[2]), .A3 (a[3]), .D (d), .WCLK (clk), .WE (we));
    wire s5;
    RAM32X1S #(.INIT (32'h9)) ram_s5 (.O (s5), .A0 (a[0]), .A1 (a[1]), .A2 (a[2]), .A3 (a[3]), .A4 (a[4]), .D (d), .WCLK (clk), .WE (we));
    wire s6;
    RAM64X1S #(.INIT (64'h9)) ram_s6 (.O (s6), .A0 (a[0]), .A1 (a[1]), .A2 (a[2]), .A3 (a[3]), .A4 (a[4]), .A5 (a[5]), .D (d), .WCLK (clk), .WE (we));
    wire s7;
    RAM128X1S #(.INIT (128'h9)) ram_s7 (.O (s7), .A0 (a[0]), .A1 (a[1]), .A2 (a[2]), .A3 (a[3]), .A4 (a[4]), .A5 (a[5]), .A6 (a[6]), .D (d), .WCLK (clk), .WE (we));
    wire s8;
    RAM256X1S #(.INIT (256'h9)) ram_s8 (.O (s8), .A (a), .D (d), .WCLK (clk), .WE (we));
    wire sp4, dp4;
    RAM16X1D #(.INIT (16'h9)) ram_d4 (.SPO (sp4), .DPO (dp4), .A0 (a[0]), .A1 (a[1]), .A2 (a[2]), .A3 (a[3]), .DPRA0 (~a[0]), .DPRA1 (~a[1]), .DPRA2 (~a[2]), .DPRA3 (~a[3]), .D (d), .WCLK (clk), .WE (we));
    wire sp5, dp5;
    RAM32X1D #(.INIT (32'h9)) ram_d5 (.SPO (sp5), .DPO (dp5), .A0 (a[0]), .A1 (a[1]), .A2 (a[2]), .A3 (a[3]), .A4 (a[4]), .DPRA0 (~a[0]), .DPRA1 (~a[1]), .DPRA2 (~a[2]), .DPRA3 (~a[3]), .DPRA4 (~a[4]), .D (d), .WCLK (clk), .WE (we));
    wire sp6, dp6;
    RAM64X1D #(.INIT (64'h9)) ram_d6 (.SPO (sp6), .DPO (dp6), .A0 (a[0]), .A1 (a[1]), .A2 (a[2]), .A3 (a[3]), .A4 (a[4]), .A5 (a[5]), .DPRA0 (~a[0]), .DPRA1 (~a[1]), .DPRA2 (~a[2]), .DPRA3 (~a[3]), .DPRA4 (~a[4]), .DPRA5 (~a[5]), .D (d), .WCLK (clk), .WE (we));
    wire sp7, dp7;
    RAM128X1D #(.INIT (128'h9)) ram_d7 (.SPO (sp7), .DPO (dp7), .A (a[6:0]), .DPRA (~a[6:0]), .D (d), .WCLK (clk), .WE (we));
    wire [1:0] da, db, dc, dd;
    RAM32M #(.INIT_A (64'h9), .INIT_B (64'h4)) m32 (.DOA (da), .DOB (db), .DOC (dc), .DOD (dd), .ADDRA (a[4:0]), .ADDRB (5'd1),
        .ADDRC (5'd31), .ADDRD (a[4:0]), .DIA (di), .DIB (~di), .DIC (di), .DID (di), .WCLK (clk), .WE (we));
    wire ea, eb, ec, ed;
    RAM64M #(.INIT_A (64'h9), .INIT_B (64'h2)) m64 (.DOA (ea), .DOB (eb), .DOC (ec), .DOD (ed), .ADDRA (a[5:0]), .ADDRB (6'd1),
        .ADDRC (6'd63), .ADDRD (a[5:0]), .DIA (d), .DIB (!d), .DIC (d), .DID (d), .WCLK (clk), .WE (we));

    task check_flip_flops;
        begin
            check("FD", q_fd, e_fd);
            check("FDE", q_fde, e_fde);
            check("FDR", q_fdr, e_fdr);
            check("FDRE", q_fdre, e_fdre);
            check("FDS", q_fds, e_fds);
            check("FDSE", q_fdse, e_fdse);
            check("FDRS", q_fdrs, e_fdrs);
            check("FDRSE", q_fdrse, e_fdrse);
            check("FDC", q_fdc, e_fdc);
            check("FDCE", q_fdce, e_fdce);
            check("FDP", q_fdp, e_fdp);
            check("FDPE", q_fdpe, e_fdpe);
        end
    endtask

    initial begin
        errors = 0;
        {clk, ce, d, r, s, we} = 6'd0;
        di = 2'd0;
        i = 0;
        // Power-up: those that are set by a pin start as 1, if they can not be reset.
        e_fd = 1'b0;
        e_fde = 1'b0;
        e_fdr = 1'b0;
        e_fdre = 1'b0;
        e_fds = 1'b1;
        e_fdse = 1'b1;
        e_fdrs = 1'b0;
        e_fdrse = 1'b0;
        e_fdc = 1'b0;
        e_fdce = 1'b0;
        e_fdp = 1'b1;
        e_fdpe = 1'b1;
        #1 check_flip_flops;
        for (i = 0; i < 256; i = i + 1) begin
            a = i;
            #1;
            truth = 64'h2; check("LUT1", lut1, (truth >> (i % 2)) & 1);
            truth = 64'h8; check("LUT2", lut2, (truth >> (i % 4)) & 1);
            truth = 64'hCA; check("LUT3", lut3, (truth >> (i % 8)) & 1);
            truth = 64'h6A3C; check("LUT4", lut4, (truth >> (i % 16)) & 1);
            truth = 64'h1B5E93C7; check("LUT5", lut5, (truth >> (i % 32)) & 1);
            truth = 64'hD2A4F19C3B60875E; check("LUT6", lut6, (truth >> (i % 64)) & 1);
            check("LUT6_2 O6", o6, (64'hD2A4F19C3B60875E >> (i % 64)) & 1);
            check("LUT6_2 O5", o5, (64'hD2A4F19C3B60875E >> (i % 32)) & 1);
            check("MUXCY", cy, (i & 4) != 0 ? (i & 1) != 0 : (i & 2) != 0);
            check("XORCY", xo, (i & 3) == 1 || (i & 3) == 2);
            check("MUXF5", f5, (i & 4) != 0 ? (i & 2) != 0 : (i & 1) != 0);
            check("MUXF6", f6, f5);
            check("MUXF7", f7, f5);
            check("MUXF8", f8, f5);
            check("INV", inv, (i & 1) == 0);
            // The contents at the start: 1 at the addresses 0 and 3.
            check("RAM16X1S", s4, i % 16 == 0 || i % 16 == 3);
            check("RAM32X1S", s5, i % 32 == 0 || i % 32 == 3);
            check("RAM64X1S", s6, i % 64 == 0 || i % 64 == 3);
            check("RAM128X1S", s7, i % 128 == 0 || i % 128 == 3);
            check("RAM256X1S", s8, i % 256 == 0 || i % 256 == 3);
            check("RAM16X1D S", sp4, i % 16 == 0 || i % 16 == 3);
            check("RAM16X1D D", dp4, i % 16 == 15 || i % 16 == 12);
            check("RAM32X1D S", sp5, i % 32 == 0 || i % 32 == 3);
            check("RAM32X1D D", dp5, i % 32 == 31 || i % 32 == 28);
            check("RAM64X1D S", sp6, i % 64 == 0 || i % 64 == 3);
            check("RAM64X1D D", dp6, i % 64 == 63 || i % 64 == 60);
            check("RAM128X1D S", sp7, i % 128 == 0 || i % 128 == 3);
            check("RAM128X1D D", dp7, i % 128 == 127 || i % 128 == 124);
            check("RAM32M A0", da[0], i % 32 == 0);
            check("RAM32M A1", da[1], i % 32 == 1);
            check("RAM32M B0", db[0], 1'b1);
            check("RAM32M B1", db[1], 1'b0);
            check("RAM64M A", ea, i % 64 == 0 || i % 64 == 3);
            check("RAM64M B", eb, 1'b1);
        end
        // Flip-flops: all pins, in an order in which each sees both states.
        for (i = 0; i < 256; i = i + 1) begin
            {s, r, d, ce} = (i * 5 + i / 3 + i / 11) % 16;
            #1;
            // Those pins need no clock.
            if (r) begin e_fdc = 1'b0; e_fdce = 1'b0; end
            if (s) begin e_fdp = 1'b1; e_fdpe = 1'b1; end
            check_flip_flops;
            tick;
            e_fd = d;
            if (ce) e_fde = d;
            e_fdr = d && !r;
            if (r) e_fdre = 1'b0; else if (ce) e_fdre = d;
            e_fds = d || s;
            if (s) e_fdse = 1'b1; else if (ce) e_fdse = d;
            e_fdrs = !r && (s || d);
            if (r) e_fdrse = 1'b0; else if (s) e_fdrse = 1'b1; else if (ce) e_fdrse = d;
            if (!r) e_fdc = d;
            if (!r && ce) e_fdce = d;
            if (!s) e_fdp = d;
            if (!s && ce) e_fdpe = d;
            check_flip_flops;
            // The falling edge is none of theirs.
            {s, r, d, ce} = {2'b00, !d, 1'b1};
            #1 clk = 1'b0;
            #1 check_flip_flops;
        end
        // Memories: a pattern in all cells, and nothing without the enable or at the falling edge.
        for (i = 0; i < 256; i = i + 1) begin
            a = i;
            d = i % 3 == 0;
            di = i % 3;
            we = 1'b1;
            tick;
            we = 1'b0;
            d = !d;
            di = ~di;
            tick;
            we = 1'b1;
            #1 clk = 1'b0;
            #1 we = 1'b0;
        end
        for (i = 0; i < 256; i = i + 1) begin
            a = i;
            #1;
            check("RAM16X1S", s4, (256 - 16 + i % 16) % 3 == 0);
            check("RAM32X1S", s5, (256 - 32 + i % 32) % 3 == 0);
            check("RAM64X1S", s6, (256 - 64 + i % 64) % 3 == 0);
            check("RAM128X1S", s7, (256 - 128 + i % 128) % 3 == 0);
            check("RAM256X1S", s8, (256 - 256 + i % 256) % 3 == 0);
            check("RAM16X1D", sp4, (256 - 16 + i % 16) % 3 == 0);
            check("RAM16X1D", dp4, (255 - i % 16) % 3 == 0);
            check("RAM32X1D", sp5, (256 - 32 + i % 32) % 3 == 0);
            check("RAM32X1D", dp5, (255 - i % 32) % 3 == 0);
            check("RAM64X1D", sp6, (256 - 64 + i % 64) % 3 == 0);
            check("RAM64X1D", dp6, (255 - i % 64) % 3 == 0);
            check("RAM128X1D", sp7, (256 - 128 + i % 128) % 3 == 0);
            check("RAM128X1D", dp7, (255 - i % 128) % 3 == 0);
            check("RAM32M A", da == (224 + i % 32) % 3, 1'b1);
            check("RAM32M B", db == (~(225 % 3) & 3), 1'b1);
            check("RAM32M C", dc == 255 % 3, 1'b1);
            check("RAM32M D", dd == (224 + i % 32) % 3, 1'b1);
            check("RAM64M A", ea, (192 + i % 64) % 3 == 0);
            check("RAM64M B", eb, 193 % 3 != 0);
            check("RAM64M C", ec, 255 % 3 == 0);
            check("RAM64M D", ed, (192 + i % 64) % 3 == 0);
        end
        if (errors == 0)
            $display("PASSED");
        $finish;
    end
endmodule
