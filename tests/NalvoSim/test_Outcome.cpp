// How a run ends: bounds, labels, messages; exit status, summary, and the state that is left.

#include "SimToolFixture.h"

#include <QDir>

#include "Release.h"

namespace {

/// All examples that are projects.
QStringList exampleProjects()
{
    const QDir examples(NALVO_SOURCE_DIR "/examples");
    QStringList projects;
    for (const QString& name : examples.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const QString project = examples.filePath(name + '/' + name + ".nalvo");
        if (QFile::exists(project))
            projects << project;
    }
    return projects;
}

class SimToolOutcome : public SimToolTest
{
protected:
    /// The run stops with this message of the simulator, the last line before the summary.
    void expectMessage(const QByteArray& source, const char* key, const char* line, const QStringList& options = {},
                       const QString& processor = "Xilinx PicoBlaze 3") const
    {
        writeProgram(source, processor);
        const AsmToolResult result = run(QStringList("-q") + options + QStringList("p.nalvo"));
        EXPECT_EQ(result.status, 3) << key << result.err.constData();
        EXPECT_EQ(result.errLines().last(), line);
        const QJsonObject state = dump(options + QStringList("p.nalvo"), 3);
        EXPECT_EQ(reason(state), "message");
        EXPECT_EQ(this->key(state), key);
    }
};

TEST_F(SimToolOutcome, ARunIsAlwaysBounded)
{
    writeProgram(loopSource());
    const AsmToolResult result = run({"p.nalvo"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, QByteArray());
    EXPECT_EQ(result.errLines(),
              QStringList("nalvo-sim: bound of instructions reached, 1000000 instructions, 2000000 clocks"));
    EXPECT_EQ(run({"-q", "p.nalvo"}).err, QByteArray());
}

TEST_F(SimToolOutcome, BoundsOfInstructionsAndClocks)
{
    writeProgram(loopSource());
    const auto summary = [this](const QStringList& options) {
        return run(options + QStringList("p.nalvo")).errLines().join('|');
    };
    EXPECT_EQ(summary({"-n", "0"}), "nalvo-sim: bound of instructions reached, 0 instructions, 0 clocks");
    EXPECT_EQ(summary({"-n1"}), "nalvo-sim: bound of instructions reached, 1 instruction, 2 clocks");
    EXPECT_EQ(summary({"--instructions", "7"}), "nalvo-sim: bound of instructions reached, 7 instructions, 14 clocks");
    EXPECT_EQ(summary({"--max-clocks", "6"}), "nalvo-sim: bound of clocks reached, 3 instructions, 6 clocks");
    EXPECT_EQ(summary({"--max-clocks", "5"}), "nalvo-sim: bound of clocks reached, 3 instructions, 6 clocks");
    EXPECT_EQ(summary({"--max-clocks", "0"}), "nalvo-sim: bound of clocks reached, 0 instructions, 0 clocks");
    EXPECT_EQ(summary({"--max-clocks", "2000004"}),
              "nalvo-sim: bound of clocks reached, 1000002 instructions, 2000004 clocks");
    EXPECT_EQ(summary({"-n", "3", "--max-clocks", "100"}),
              "nalvo-sim: bound of instructions reached, 3 instructions, 6 clocks");
    EXPECT_EQ(reason(dump({"-n", "3", "p.nalvo"})), "instructions");
    EXPECT_EQ(reason(dump({"--max-clocks", "6", "p.nalvo"})), "clocks");
}

TEST_F(SimToolOutcome, LabelsStartAndEndARun)
{
    writeProgram(loopSource());
    const auto summary = [this](const QStringList& options) {
        const AsmToolResult result = run(options + QStringList("p.nalvo"));
        EXPECT_EQ(result.status, 0);
        return result.errLines().join('|');
    };
    EXPECT_EQ(summary({"--until", "inner::turn"}), "nalvo-sim: label inner::turn reached, 1 instruction, 2 clocks");
    // Where the start is the end, a whole turn is run.
    EXPECT_EQ(summary({"--start", "inner::turn", "--until", "inner::turn"}),
              "nalvo-sim: label inner::turn reached, 2 instructions, 4 clocks");
    EXPECT_EQ(summary({"--until", "start", "-n", "10"}),
              "nalvo-sim: bound of instructions reached, 10 instructions, 20 clocks");
    // The label wins over a bound that is reached with the same instruction.
    EXPECT_EQ(summary({"--until", "::inner::turn", "-n", "1"}),
              "nalvo-sim: label ::inner::turn reached, 1 instruction, 2 clocks");
    const QJsonObject state = dump({"--start", "inner::turn", "-n", "1", "p.nalvo"});
    EXPECT_EQ(reg(state, "s0"), 1);
    EXPECT_EQ(state.value("pc").toObject().value("address").toInt(), 2);
    EXPECT_EQ(reason(dump({"--until", "inner::turn", "p.nalvo"})), "label");
}

TEST_F(SimToolOutcome, ADeviceWithoutAPortIsReportedWithoutAPlace)
{
    writeProgram("#SET IODEV::rx::EN, TRUE\n#SET IODEV::rx::SIZE, 1\n#SET IODEV::rx::BASEADDR, 0x12345\n"
                 "#SET IODEV::rx::SIMEN, TRUE\n" +
                 loopSource());
    const AsmToolResult result = run({"-n", "3", "p.nalvo"});
    EXPECT_EQ(result.status, 0) << result.err.constData();
    EXPECT_EQ(result.errLines().filter("warnIODevNoPort"),
              QStringList("warning: The address of IO device IODEV::rx does not fit into 16 bits. It answers at no "
                          "port. [warnIODevNoPort]"));
}

TEST_F(SimToolOutcome, MessagesOfTheSimulatorStopARun)
{
    const QByteArray vector = "#ORG ADDR, 0x3FF\n RETI ENABLE\n";
    expectMessage(" RET\n" + vector, "errCallStackEmpty",
                  "error: Call stack is empty! Nothing to return. [errCallStackEmpty]");
    expectMessage("deep: CALL deep\n" + vector, "errCallStackOverflow",
                  "a.psm:1: error: Call stack overflow! [errCallStackOverflow]");
    expectMessage(" INT ENABLE\n LOAD s0, 1\n", "errNoOpcodeAtIntVect",
                  "error: No instruction at interrupt vector: 1023 [errNoOpcodeAtIntVect]", {"--interrupt-at", "2"});
    expectMessage(" LOAD s0, 100\n WRMEM s1, (s0)\n" + vector, "errScrpdWr",
                  "a.psm:2: error: Can not write scratchpad value. [errScrpdWr]");
    expectMessage(" LOAD s0, 64\n RDMEM s1, (s0)\n" + vector, "errScrpdRd",
                  "a.psm:2: error: Can not read scratchpad value. [errScrpdRd]");
    expectMessage(" LOAD s0, 7\n LOAD s1, 0\n JUMP (s1, s0)\n" + vector, "internal",
                  "error: Internal error: No instruction at address: 7", {}, "Xilinx PicoBlaze 6");
}

TEST_F(SimToolOutcome, TheEndOfTheProgramIsToldWithItsPlace)
{
    writeProgram(" JUMP last\n#ORG ADDR, 0x3FE\nlast:\n LOAD s0, 1\n LOAD s0, 2\n");
    const AsmToolResult result = run({"--start", "last", "p.nalvo"});
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(
        result.errLines().mid(result.errLines().size() - 2),
        QStringList({"error: No command to execute! [errNoOpcodeToExec]",
                     "nalvo-sim: stopped by errNoOpcodeToExec at address 3FF, a.psm:5, 2 instructions, 4 clocks"}));
    // It is an error even where the bound falls on it.
    EXPECT_EQ(run({"--start", "last", "-n", "2", "p.nalvo"}).status, 3);
    EXPECT_EQ(run({"--start", "last", "-n", "1", "p.nalvo"}).status, 0);
    const QJsonObject state = dump({"--start", "last", "p.nalvo"}, 3);
    EXPECT_EQ(state.value("pc").toObject(),
              QJsonObject(
                  {{"address", QJsonValue()}, {"page", QJsonValue()}, {"file", QJsonValue()}, {"line", QJsonValue()}}));
}

TEST_F(SimToolOutcome, NotAssembled)
{
    writeProgram(" NOSUCH\n");
    const AsmToolResult result = run({"--trace", "t", "--dump", "d", "--vcd", "v", "p.nalvo"});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.errLines().first().startsWith("a.psm:1: error: "));
    EXPECT_EQ(result.errLines().last(), "nalvo-sim: not assembled");
    EXPECT_EQ(run({"-q", "p.nalvo"}).errLines().size(), result.errLines().size() - 1);
    for (const char* file : {"t", "d", "v"})
        EXPECT_FALSE(exists(file));
    writeProgram(loopSource(), "");
    EXPECT_EQ(run({"p.nalvo"}).status, 1);
}

TEST_F(SimToolOutcome, WhatIsAssembledRunsInSpiteOfAnError)
{
    // A jump that is too far is reported as an internal error and cut to 12 bits. The window runs such a program, too.
    AsmProject project;
    project.processor = "Lattice Mico8 v3.x";
    project.settings["LMico8v3x/memMap/pageSize"] = "8192";
    writeProject(project);
    write("a.psm", " ADD r1, 5\n JUMP far\n#ORG ADDR, 4000\nfar: ADD r1, 2\nend: JUMP end\n");
    const AsmToolResult result = run({"--until", "end", "p.nalvo"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errLines().first(), "error: Internal error: Offset exceeds maximum of 2047 [errInternal]");
    EXPECT_TRUE(result.errLines().last().startsWith("nalvo-sim: label end reached, 3 instructions"))
        << result.err.constData();
    EXPECT_EQ(reg(dump({"--until", "end", "p.nalvo"}), "r1"), 7);
}

TEST_F(SimToolOutcome, NoProject)
{
    for (const char* name : {"nosuch.nalvo", "", "."}) {
        const AsmToolResult result = run({"--", name});
        EXPECT_EQ(result.status, 2) << name;
        EXPECT_FALSE(result.err.isEmpty());
    }
}

TEST_F(SimToolOutcome, NothingOfTheProjectChanges)
{
    writeProject(AsmProject().output("hex", "out.hex").output("mem", "out.mem", "But2"));
    write("a.psm", loopSource());
    const QStringList before = snapshot(path("."));
    EXPECT_EQ(run({"p.nalvo"}).status, 0);
    EXPECT_EQ(snapshot(path(".")), before);
}

TEST_F(SimToolOutcome, FilesOfTheProjectAreNotOverwritten)
{
    writeProject(AsmProject().output("hex", "out.hex"));
    write("a.psm", loopSource());
    write("out.hex", "hex");
    ASSERT_TRUE(QFile::link("a.psm", path("link")));
    const QStringList before = snapshot(path("."));
    for (const char* file : {"p.nalvo", "a.psm", "./a.psm", "link", "out.hex"}) {
        for (const char* option : {"--trace", "--vcd", "--dump"}) {
            const AsmToolResult result = run({"-q", option, file, "p.nalvo"});
            EXPECT_EQ(result.status, 2);
            EXPECT_EQ(result.err, QByteArray("nalvo-sim: File of the project would be overwritten: ") + file + '\n');
        }
    }
    EXPECT_EQ(snapshot(path(".")), before);
}

TEST_F(SimToolOutcome, OutputsThatCanNotBeWritten)
{
    writeProgram(loopSource());
    mkdir("folder");
    for (const char* option : {"--trace", "--vcd", "--dump"}) {
        const AsmToolResult folder = run({"-q", option, "folder", "p.nalvo"});
        EXPECT_EQ(folder.status, 2);
        EXPECT_TRUE(folder.err.startsWith("nalvo-sim: Can not write folder: ")) << folder.err.constData();
        EXPECT_TRUE(run({"-q", option, "no/such", "p.nalvo"}).err.startsWith("nalvo-sim: Can not write no/such: "));
        const AsmToolResult full = run({"-q", option, "/dev/full", "p.nalvo"});
        EXPECT_EQ(full.status, 2) << option;
        EXPECT_EQ(full.err, QByteArray("nalvo-sim: Can not write /dev/full: No space left on device\n"));
        AsmToolSetup with = setup();
        with.stdoutFile = "/dev/full";
        EXPECT_EQ(run({"-q", option, "-", "p.nalvo"}, with).err,
                  QByteArray("nalvo-sim: Can not write standard output: No space left on device\n"));
    }
}

TEST_F(SimToolOutcome, FilesThatWereThereAreReplacedOnlyWhenTheRunIsThrough)
{
    writeProgram(echoSource());
    write("t", "old");
    write("reads", "zz\n");
    EXPECT_EQ(run({"-q", "--trace", "t", "--reads", "reads", "p.nalvo"}).status, 2);
    EXPECT_EQ(read("t"), QByteArray("old"));
    write("reads", "01\n");
    EXPECT_EQ(run({"-q", "--trace", "t", "--reads", "reads", "p.nalvo"}).status, 3);
    EXPECT_TRUE(read("t").startsWith("I 000 3C001\n"));
}

TEST_F(SimToolOutcome, DumpOfPicoBlaze6)
{
    writeProgram("start:  HWBUILD s0\n"       // 000
                 "        STAR    s1, s0\n"   // 001
                 "        REGBANK B\n"        // 002
                 "        WRMEM   s1, 0x07\n" // 003
                 "        INT     ENABLE\n"   // 004
                 "        CALL    func\n"     // 005
                 "func:   JUMP    func\n"     // 006
                 "#ORG ADDR, 0x3FF\n"
                 "        JUMP    func\n",
                 "Xilinx PicoBlaze 6");
    const QJsonObject state = dump({"--hwbuild", "200", "-n", "7", "--interrupt-at", "7", "p.nalvo"});
    EXPECT_EQ(state.value("processor").toString(), "Xilinx PicoBlaze 6");
    EXPECT_EQ(state.value("pc").toObject(),
              QJsonObject({{"address", 6}, {"page", "PAGE0"}, {"file", "a.psm"}, {"line", 7}}));
    EXPECT_EQ(state.value("registers").toObject().keys(), QStringList({"A", "B"}));
    EXPECT_EQ(state.value("registers").toObject().value("A").toObject().size(), 16);
    EXPECT_EQ(reg(state, "s0", "A"), 200);
    EXPECT_EQ(reg(state, "s1", "A"), 0);
    EXPECT_EQ(reg(state, "s1", "B"), 200);
    EXPECT_EQ(reg(state, "sF", "B"), 0);
    EXPECT_EQ(state.value("bank").toString(), "B");
    EXPECT_EQ(state.value("flags").toObject(), QJsonObject({{"carry", 1}, {"zero", 0}}));
    EXPECT_EQ(state.value("interrupt").toString(), "service");
    EXPECT_EQ(state.value("scratchpad").toArray().size(), 64);
    EXPECT_EQ(state.value("scratchpad").toArray().at(7).toInt(), 200);
    // The call comes first, on top of it the interrupt of what would have been next.
    EXPECT_EQ(
        state.value("callStack").toArray(),
        QJsonArray(
            {QJsonObject(
                 {{"label", "func"}, {"address", 5}, {"file", "a.psm"}, {"line", 6}, {"carry", 1}, {"zero", 0}}),
             QJsonObject(
                 {{"label", "ISR"}, {"address", 6}, {"file", "a.psm"}, {"line", 7}, {"carry", 1}, {"zero", 0}})}));
    EXPECT_EQ(state.value("clocks").toInt(), 14);
    EXPECT_EQ(state.value("instructions").toInt(), 7);
    EXPECT_EQ(
        state.value("end").toObject(),
        QJsonObject({{"reason", "instructions"}, {"key", QJsonValue()}, {"text", "bound of instructions reached"}}));
}

TEST_F(SimToolOutcome, DumpOfMico8)
{
    writeProgram("start: LOAD r31, 0xAB\n INT ENABLE\n JUMP start\n", "Lattice Mico8 v3.x");
    const QJsonObject state = dump({"-n", "2", "p.nalvo"});
    EXPECT_EQ(state.value("registers").toObject().keys(), QStringList("A"));
    EXPECT_EQ(state.value("registers").toObject().value("A").toObject().size(), 32);
    EXPECT_EQ(reg(state, "r31"), 0xAB);
    EXPECT_EQ(state.value("interrupt").toString(), "enabled");
    EXPECT_EQ(state.value("scratchpad").toArray().size(), 32);
}

TEST_F(SimToolOutcome, Waves)
{
    writeProgram(echoSource());
    write("reads", "A5\n03\n");
    AsmToolSetup with = setup();
    with.env.insert("SOURCE_DATE_EPOCH", "0");
    const AsmToolResult result = run({"-q", "--reads", "reads", "--vcd", "-", "p.nalvo"}, with);
    EXPECT_EQ(result.status, 3);
    // 80 MHz: a clock takes 12500 ps. The reads come at the clocks 2 and 10, the writes at 6 and 14.
    EXPECT_EQ(result.out, QByteArray("$date\n    1970-01-01T00:00:00Z\n$end\n"
                                     "$version\n    Nalvo " +
                                     Release::own().text().toLatin1() +
                                     "\n$end\n"
                                     "$timescale\n    1 ps\n$end\n"
                                     "$scope module ports $end\n"
                                     "$var wire 8 ! port_10_rd [7:0] $end\n"
                                     "$var wire 8 \" port_20_wr [7:0] $end\n"
                                     "$upscope $end\n$enddefinitions $end\n"
                                     "#0\n$dumpvars\nbxxxxxxxx !\nbxxxxxxxx \"\n$end\n"
                                     "#25000\nb10100101 !\n"
                                     "#75000\nb10100101 \"\n"
                                     "#125000\nb00000011 !\n"
                                     "#175000\nb00000011 \"\n"
                                     "#225000\n"));
    AsmToolSetup wrong = setup();
    wrong.env.insert("SOURCE_DATE_EPOCH", "now");
    EXPECT_EQ(run({"-q", "p.nalvo"}, wrong).status, 2);
}

TEST_F(SimToolOutcome, TheExamplesRun)
{
    const QString examples = QStringLiteral(NALVO_SOURCE_DIR "/examples/");
    for (const char* name : {"keypad_lock", "motor_control", "split_rams"}) {
        const AsmToolResult result = run({"-n", "100000", examples + name + '/' + name + ".nalvo"});
        EXPECT_EQ(result.status, 0) << name << result.err.constData();
        EXPECT_EQ(result.errLines(),
                  QStringList("nalvo-sim: bound of instructions reached, 100000 instructions, 200000 clocks"));
    }
}

// What the examples do, the core does, too: an exact simulation has nothing to warn of.
TEST_F(SimToolOutcome, TheExamplesRunExactlyWithoutAWarning)
{
    QByteArray values;
    for (int i = 0; i < 20000; ++i)
        values += QByteArray::number(i * 37 % 256, 16) + '\n';
    write("reads", values);
    for (const QString& project : exampleProjects()) {
        const AsmToolResult result =
            run({"--exact", "-n", "15000", "--reads", "reads", "--interrupt-every", "700", project});
        EXPECT_EQ(result.status, 0) << qPrintable(project) << result.err.constData();
        EXPECT_EQ(result.errLines().size(), 1) << qPrintable(project) << result.err.constData();
    }
}

} // namespace
