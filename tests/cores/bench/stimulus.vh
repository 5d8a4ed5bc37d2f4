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

    reg [8*1024-1:0] file_name;
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

    task load_stimulus;
        begin
            if (!$value$plusargs("clocks=%d", clocks))
                clocks = 1000;
            if (!$value$plusargs("start=%d", start))
                start = 1;
            for (item = 0; item < words; item = item + 1)
                memory[item] = 18'h00000;
            if ($value$plusargs("program=%s", file_name)) begin
                file = $fopen(file_name, "r");
                if (file == 0)
                    $display("FAILED the program can not be read");
                else
                    for (item = 0; item < words && $fscanf(file, "%h", memory[item]) == 1; item = item + 1)
                        ;
            end
            reads_file = 0;
            if ($value$plusargs("reads=%s", file_name))
                reads_file = $fopen(file_name, "r");
            pulses_file = 0;
            if ($value$plusargs("pulses=%s", file_name))
                pulses_file = $fopen(file_name, "r");
            resets_file = 0;
            if ($value$plusargs("resets=%s", file_name))
                resets_file = $fopen(file_name, "r");
            next_read;
            next_pulse(pulses_file, pulse_begin, pulse_end);
            next_pulse(resets_file, reset_begin, reset_end);
        end
    endtask

    // The inputs of this clock
    task drive;
        begin
            while (pulse_end <= clock)
                next_pulse(pulses_file, pulse_begin, pulse_end);
            interrupt = pulse_begin <= clock;
            while (reset_end <= clock)
                next_pulse(resets_file, reset_begin, reset_end);
            reset = clock < -start || reset_begin <= clock;
        end
    endtask
