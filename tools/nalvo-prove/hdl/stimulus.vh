    // Included by the benches: the arguments, the files that they name, and what is driven from them.
    integer    clocks;
    integer    start;       // clocks from the end of a reset to the first clock of the first instruction
    integer    clock;       // 0 is the first clock of the first instruction
    reg [7:0]  read_value;  // what the next read takes
    integer    reads_file;
    integer    pulses_file;
    integer    pulse_begin; // the pulse under way or the next one; its end is the first clock after it
    integer    pulse_end;
    integer    resets_file;
    integer    reset_begin;
    integer    reset_end;

    // Beside the program, two others may run: one before it that prepares the core, and one after it that shows what is in
    // the core. Both run from a reset, which keeps registers and scratchpad, without any stimulus.
    reg        aside;
    integer    before_clocks;
    integer    after_clocks;
    integer    modulus;     // words of the memory
    integer    found;

    // A memory of several pages, which something outside of the core switches: a file says which one is read in which clock.
    integer    page;
    integer    pages_file;
    integer    page_begin; // of the next page; its number is what the end is later
    integer    page_end;

    reg [8*4096-1:0] file_name;
    integer          file;
    integer          length;
    integer          item;

    localparam integer NEVER = 2147483647;

    // Where the file ends, the pulse never comes.
    task next_pulse(input integer from_file, output integer first, output integer past);
        begin
            first = NEVER;
            past = NEVER;
            if (from_file != 0)
                if ($fscanf(from_file, "%d %d", first, length) == 2)
                    past = first + length;
                else
                    first = NEVER;
        end
    endtask

    // Beyond the last value, 0 is read.
    task next_read;
        begin
            if (reads_file == 0)
                read_value = 8'h00;
            else if ($fscanf(reads_file, "%h", read_value) != 1)
                read_value = 8'h00;
        end
    endtask

    // The memory from the file of the name; empty from its end on.
    task load_words(input integer count);
        begin
            modulus = count;
            for (item = 0; item < 4096 * pages; item = item + 1)
                memory[item] = 18'h00000;
            file = $fopen(file_name, "r");
            if (file == 0)
                $display("FAILED the program can not be read");
            else begin
                for (item = 0; item < count && $fscanf(file, "%h", memory[item]) == 1; item = item + 1)
                    ;
                $fclose(file);
            end
        end
    endtask

    task load_program;
        begin
            modulus = words;
            for (item = 0; item < 4096 * pages; item = item + 1)
                memory[item] = 18'h00000;
            if ($value$plusargs("program=%s", file_name))
                load_words(words * pages);
            modulus = words;
        end
    endtask

    task load_stimulus;
        begin
            if (!$value$plusargs("clocks=%d", clocks))
                clocks = 1000;
            if (!$value$plusargs("start=%d", start))
                start = 1;
            if (!$value$plusargs("before_clocks=%d", before_clocks))
                before_clocks = 0;
            if (!$value$plusargs("after_clocks=%d", after_clocks))
                after_clocks = 0;
            reads_file = 0;
            if ($value$plusargs("reads=%s", file_name))
                reads_file = $fopen(file_name, "r");
            pulses_file = 0;
            if ($value$plusargs("pulses=%s", file_name))
                pulses_file = $fopen(file_name, "r");
            resets_file = 0;
            if ($value$plusargs("resets=%s", file_name))
                resets_file = $fopen(file_name, "r");
            pages_file = 0;
            if ($value$plusargs("page_changes=%s", file_name))
                pages_file = $fopen(file_name, "r");
            next_read;
            next_pulse(pages_file, page_begin, page_end);
            next_pulse(pulses_file, pulse_begin, pulse_end);
            next_pulse(resets_file, reset_begin, reset_end);
        end
    endtask

    // The inputs of this clock
    task drive;
        begin
            interrupt = 1'b0;
            reset = clock < -start;
            if (aside)
                page = 0;
            else begin
                while (page_begin <= clock) begin
                    page = page_end - page_begin;
                    next_pulse(pages_file, page_begin, page_end);
                end
                while (pulse_end <= clock)
                    next_pulse(pulses_file, pulse_begin, pulse_end);
                interrupt = pulse_begin <= clock;
                while (reset_end <= clock)
                    next_pulse(resets_file, reset_begin, reset_end);
                reset = clock < -start || reset_begin <= clock;
            end
        end
    endtask

    // Four clocks of reset, then the clocks from -start on.
    task run_to(input integer last);
        begin
            begin_observing;
            for (clock = -start - 4; clock < last; clock = clock + 1) begin
                drive;
                run_clock;
            end
        end
    endtask

    // How many clocks after a reset the first instruction begins: each one of the memory writes to a port, which can be seen in
    // the second clock.
    task probe;
        begin
            aside = 1'b1;
            page = 0;
            interrupt = 1'b0;
            found = -1;
            for (item = 0; item < 4096 * pages; item = item + 1)
                memory[item] = write_word;
            for (clock = -4; clock < 64; clock = clock + 1) begin
                reset = clock < 0;
                prepare_clock;
                #5 if (clock >= 0 && found < 0 && writes)
                    found = clock - 1;
                clk = 1'b1;
                #5 clk = 1'b0;
            end
            $display("START %0d", found);
        end
    endtask

    initial begin
        clk = 1'b0;
        aside = 1'b0;
        page = 0;
        load_stimulus;
        load_program;
        clear_bench;
        if ($test$plusargs("probe"))
            probe;
        else begin
            if ($value$plusargs("before=%s", file_name)) begin
                aside = 1'b1;
                load_words(full_size);
                run_to(before_clocks);
                load_program;
                aside = 1'b0;
                $display("BEGIN");
            end
            run_to(clocks);
`ifdef NALVO_FLAGS
            $display("FLAGS %b %b", core.`NALVO_CARRY, core.`NALVO_ZERO);
`endif
            if ($value$plusargs("after=%s", file_name)) begin
                $display("STATE");
                aside = 1'b1;
                load_words(full_size);
                run_to(after_clocks);
                $display("END");
            end
        end
        $finish;
    end
