// The trace, byte for byte, with words and effects worked out by hand.

#include "SimToolFixture.h"

namespace {

class SimToolTrace : public SimToolTest
{
protected:
    QByteArray trace(const QStringList& arguments, int status = 0) const
    {
        const AsmToolResult result = run(QStringList{"-q", "--trace", "-"} + arguments + QStringList("p.nalvo"));
        EXPECT_EQ(result.status, status) << result.err.constData();
        return result.out;
    }
};

TEST_F(SimToolTrace, PicoBlaze3)
{
    writeProgram("start:  INT     ENABLE\n"   // 000
                 "        RDPRT   s0, 0x10\n" // 001
                 "        ADD     s0, 0x0F\n" // 002
                 "        WRPRT   s0, 0x20\n" // 003
                 "        WRMEM   s0, 5\n"    // 004
                 "        CALL    copy\n"     // 005
                 "        JUMP    start\n"    // 006
                 "copy:   LOAD    s1, s0\n"   // 007
                 "        RET\n"              // 008
                 "isr:    ADD     s2, 1\n"    // 009
                 "        RETI    ENABLE\n"   // 00A
                 "#ORG ADDR, 0x3FF\n"
                 "        JUMP    isr\n");
    write("reads", "A1\n");
    EXPECT_EQ(trace({"--reads", "reads", "-n", "13", "--interrupt-at", "4"}),
              QByteArray("I 000 3C001\n"    // 3C001: enable
                         "I 001 04010\n"    // 04000, s0, port 10
                         "R 10 A1\n"        //
                         "I 002 1800F\n"    // 18000, s0, 0F: A1 + 0F = B0
                         "INT\n"            // before the fourth instruction
                         "I 3FF 34009\n"    // 34000, target 009; the fourth one
                         "I 009 18201\n"    // 18000, s2 at bit 8, 1
                         "I 00A 38001\n"    // back to where it came from
                         "I 003 2C020\n"    // 2C000, s0, port 20
                         "W 20 B0\n"        //
                         "I 004 2E005\n"    // 2E000, s0, address 5
                         "S 05 B0\n"        //
                         "I 005 30007\n"    // 30000, target 007
                         "I 007 01100\n"    // 01000, s1 at bit 8, s0 at bit 4
                         "I 008 2A000\n"    // back after the call
                         "I 006 34000\n"    // target 000
                         "I 000 3C001\n")); // the 13th
}

TEST_F(SimToolTrace, PicoBlaze6)
{
    writeProgram("start:  HWBUILD s0\n"        // 000
                 "        STAR    s1, s0\n"    // 001
                 "        WRPRT   0x41, 0x3\n" // 002
                 "        REGBANK B\n"         // 003
                 "        WRMEM   s1, 0x07\n"  // 004
                 "        CALL    fetch\n"     // 005
                 "        JUMP    start\n"     // 006
                 "fetch:  LOADRET s2, 0x99\n"  // 007
                 "#ORG ADDR, 0x3FF\n"
                 "        RETI    ENABLE\n",
                 "Xilinx PicoBlaze 6");
    EXPECT_EQ(trace({"--hwbuild", "0x5A", "-n", "7"}),
              QByteArray("I 000 14080\n"    // 14080, s0
                         "I 001 16100\n"    // 16000, s1 at bit 8, s0 at bit 4: the other bank's s1 becomes 5A
                         "I 002 2B413\n"    // 2B000, constant 41 at bit 4, port 3
                         "W 03 41\n"        //
                         "I 003 37001\n"    // bank B
                         "I 004 2F107\n"    // 2F000, s1 at bit 8, address 7
                         "S 07 5A\n"        //
                         "I 005 20007\n"    // 20000, target 007
                         "I 007 21299\n")); // 21000, s2 at bit 8, value 99
}

TEST_F(SimToolTrace, Mico8)
{
    writeProgram("start:  LOAD    r1, 0x21\n" // 000
                 "        WRPRT   r1, 0x05\n" // 001
                 "        WRMEM   r1, 4\n"    // 002
                 "        CALL    fetch\n"    // 003
                 "        SET     C\n"        // 004
                 "        JUMP    start\n"    // 005
                 "fetch:  RDPRT   r2, 0x06\n" // 006
                 "        RET\n",             // 007
                 "Lattice Mico8 v3.x");
    write("six", "0F\n");
    EXPECT_EQ(trace({"--port", "6=six", "-n", "8"}),
              QByteArray("I 000 12121\n"    // 12000, r1 at bit 8, 21
                         "I 001 2E128\n"    // 2E000, r1 at bit 8, port 5 at bit 3
                         "W 05 21\n"        //
                         "I 002 2E124\n"    // 2E004, r1 at bit 8, address 4 at bit 3
                         "S 04 21\n"        //
                         "I 003 38003\n"    // 38000, three addresses on
                         "I 006 2E231\n"    // 2E001, r2 at bit 8, port 6 at bit 3
                         "R 06 0F\n"        //
                         "I 007 39000\n"    //
                         "I 004 2C001\n"    // 2C001: carry
                         "I 005 3BFFB\n")); // 3B000, five addresses back in 12 bits
}

TEST_F(SimToolTrace, AnInstructionThatFailsIsNotInIt)
{
    writeProgram(echoSource());
    write("reads", "01\n");
    EXPECT_EQ(trace({"--reads", "reads"}, 3), QByteArray("I 000 3C001\n"
                                                         "I 001 04010\n"
                                                         "R 10 01\n"
                                                         "I 002 18101\n"
                                                         "I 003 2C020\n"
                                                         "W 20 01\n"
                                                         "I 004 34001\n"));
    // The interrupt was entered nevertheless, so the trace has it.
    writeProgram("INT ENABLE\n LOAD s0, 1\n#ORG ADDR, 0x3FF\n RDPRT s0, 1\n");
    EXPECT_EQ(trace({"--interrupt-at", "2"}, 3), QByteArray("I 000 3C001\nINT\n"));
}

TEST_F(SimToolTrace, AnInterruptWithoutRoomToComeBackIsNotInIt)
{
    writeProgram("        INT     ENABLE\n"
                 "deep:   CALL    deep\n"
                 "#ORG ADDR, 0x3FF\n"
                 "        RETI    ENABLE\n");
    // 31 calls fill the stack.
    const QByteArray calls = "I 000 3C001\n" + QByteArray("I 001 30001\n").repeated(31);
    EXPECT_EQ(trace({}, 3), calls);
    EXPECT_EQ(trace({"--interrupt-at", "33"}, 3), calls);
}

TEST_F(SimToolTrace, InterruptsComeAtTheirInstructionIfEnabled)
{
    writeProgram(echoSource());
    const auto interrupts = [this](const QStringList& arguments) {
        // The numbers of the instructions in front of which interrupts were entered.
        QStringList numbers;
        int count = 0;
        for (const QByteArray& line :
             trace(QStringList{"--reads", "/dev/null", "--port", "16=values"} + arguments).split('\n')) {
            count += int(line.startsWith("I "));
            if (line == "INT")
                numbers.append(QString::number(count + 1));
        }
        return numbers.join(' ');
    };
    write("values", QByteArray("01\n").repeated(100));
    EXPECT_EQ(interrupts({"-n", "50", "--interrupt-every", "10"}), "10 20 30 40 50");
    EXPECT_EQ(interrupts({"-n", "49", "--interrupt-every", "10"}), "10 20 30 40");
    EXPECT_EQ(interrupts({"-n", "50", "--interrupt-at", "30,7,0x10,7"}), "7 16 30");
    EXPECT_EQ(interrupts({"-n", "50", "--interrupt-at", "30", "--interrupt-at", "7"}), "7 30");
    EXPECT_EQ(interrupts({"-n", "50", "--interrupt-every", "20", "--interrupt-at", "5,20,41"}), "5 20 40");
    // Before the first instruction they are disabled, and within the routine they are not enabled.
    EXPECT_EQ(interrupts({"-n", "50", "--interrupt-at", "1"}), "");
    EXPECT_EQ(interrupts({"-n", "50", "--interrupt-at", "10,11,12"}), "10");
    EXPECT_EQ(interrupts({"-n", "50", "--interrupt-every", "9223372036854775807"}), "");
    // Each one takes three instructions: with one before every instruction, the program still gets on.
    EXPECT_EQ(interrupts({"-n", "10", "--interrupt-every", "1"}), "2 5 8");
}

TEST_F(SimToolTrace, AnyLengthArrivesWhole)
{
    writeProgram(loopSource());
    const QByteArray text = trace({"-n", "100001"});
    const QByteArray turn = "I 001 18001\nI 002 34001\n";
    EXPECT_EQ(text, "I 000 00001\n" + turn.repeated(50000));
    EXPECT_EQ(run({"-q", "-n", "100001", "--trace", "t", "p.nalvo"}).out, QByteArray());
    EXPECT_EQ(read("t"), text);
}

} // namespace
