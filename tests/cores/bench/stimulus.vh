    // Included by the benches: the arguments, the files that they name, and what is driven from them.
    integer    clocks;
    integer    start;  // clocks from the end of a reset to the first clock of the first instruction
    integer    clock;  // 0 is the first clock of the first instruction
    integer    reads_done;
    integer    read_count;
    reg [7:0]  read_values [0:MAX_READS];
    integer    pulse_begin [0:MAX_PULSES];
    integer    pulse_end [0:MAX_PULSES];
    integer    pulse_count;
    integer    pulse_next;
    integer    reset_begin [0:MAX_PULSES];
    integer    reset_end [0:MAX_PULSES];
    integer    reset_count;
    integer    reset_next;

    reg [8*1024-1:0] file_name;
    integer          file;
    integer          at;
    integer          length;
    integer          item;

    task load_stimulus;
        begin
            if (!$value$plusargs("clocks=%d", clocks))
                clocks = 1000;
            if (!$value$plusargs("start=%d", start))
                start = 1;
            reads_done = 0;
            read_count = 0;
            pulse_count = 0;
            pulse_next = 0;
            reset_count = 0;
            reset_next = 0;
            for (item = 0; item < words; item = item + 1)
                memory[item] = 18'h00000;
            read_values[0] = 8'h00;
            if ($value$plusargs("program=%s", file_name)) begin
                file = $fopen(file_name, "r");
                for (item = 0; item < words && $fscanf(file, "%h", memory[item]) == 1; item = item + 1)
                    ;
                $fclose(file);
            end
            if ($value$plusargs("reads=%s", file_name)) begin
                file = $fopen(file_name, "r");
                while (read_count < MAX_READS && $fscanf(file, "%h", read_values[read_count]) == 1)
                    read_count = read_count + 1;
                $fclose(file);
            end
            // Behind the last value comes 0.
            read_values[read_count] = 8'h00;
            if ($value$plusargs("pulses=%s", file_name)) begin
                file = $fopen(file_name, "r");
                while (pulse_count < MAX_PULSES && $fscanf(file, "%d %d", at, length) == 2) begin
                    pulse_begin[pulse_count] = at;
                    pulse_end[pulse_count] = at + length;
                    pulse_count = pulse_count + 1;
                end
                $fclose(file);
            end
            if ($value$plusargs("resets=%s", file_name)) begin
                file = $fopen(file_name, "r");
                while (reset_count < MAX_PULSES && $fscanf(file, "%d %d", at, length) == 2) begin
                    reset_begin[reset_count] = at;
                    reset_end[reset_count] = at + length;
                    reset_count = reset_count + 1;
                end
                $fclose(file);
            end
        end
    endtask

    // The inputs of this clock. Pulses are in the order of their clocks.
    task drive;
        begin
            while (pulse_next < pulse_count && pulse_end[pulse_next] <= clock)
                pulse_next = pulse_next + 1;
            interrupt = pulse_next < pulse_count && pulse_begin[pulse_next] <= clock;
            while (reset_next < reset_count && reset_end[reset_next] <= clock)
                reset_next = reset_next + 1;
            reset = clock < -start || reset_next < reset_count && reset_begin[reset_next] <= clock;
        end
    endtask

    task count_read(input happened);
        if (happened && reads_done < read_count)
            reads_done = reads_done + 1;
    endtask
