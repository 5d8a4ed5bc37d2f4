// The models and the exact simulation do the same, in both languages.

#include "ProveToolFixture.h"
#include "ReturnPrograms.h"

#include <QDirIterator>

#include <algorithm>

namespace {

class ProveEqual : public ProveToolTest, public testing::WithParamInterface<Language>
{
protected:
    void SetUp() override { SKIP_WITHOUT(GetParam()); }

    /// @return what is shown on standard output
    QByteArray equal(Core core, const QStringList& options) const
    {
        const AsmToolResult result = prove(core, GetParam(), options);
        EXPECT_EQ(result.status, 0) << result.out.constData() << result.err.constData();
        return result.out;
    }

    static QString example(const QString& name) { return QString(NALVO_SOURCE_DIR "/examples/%1/%1.nalvo").arg(name); }
};

/// The values that the examples read where they have no device.
QByteArray manyReads()
{
    QByteArray text;
    for (int i = 0; i < 3000; ++i)
        text += QByteArray::number((i * 37) & 0xFF, 16) + '\n';
    return text;
}

// Calls itself without end, then returns as often and more.
const char* const deepCalls = "        LOAD    s0, 0\n"
                              "again:\n"
                              "        CALL    down\n"
                              "        ADD     s0, 1\n"
                              "        WRPRT   s0, 1\n"
                              "        JUMP    again\n"
                              "down:\n"
                              "        ADD     s1, 1\n"
                              "        WRPRT   s1, 2\n"
                              "        COMP    s1, 40\n"
                              "        CALL    NZ, down\n"
                              "        RET\n";

const char* const deepCallsOfMico8 = "        NOP\n"
                                     "again:\n"
                                     "        CALL    down\n"
                                     "        ADD     r0, 1\n"
                                     "        WRPRT   r0, 1\n"
                                     "        JUMP    again\n"
                                     "down:\n"
                                     "        ADD     r1, 1\n"
                                     "        WRPRT   r1, 2\n"
                                     "        COMP    r1, 40\n"
                                     "        CALL    NZ, down\n"
                                     "        RET\n";

} // namespace

TEST_P(ProveEqual, AllExamples)
{
    write("reads.txt", manyReads());
    int count = 0;
    QDirIterator it(NALVO_SOURCE_DIR "/examples", {"*.nalvo"}, QDir::Files, QDirIterator::Subdirectories);
    for (; it.hasNext(); ++count) {
        QFile project(it.next());
        ASSERT_TRUE(project.open(QIODevice::ReadOnly));
        const QByteArray text = project.readAll();
        const auto core = std::find_if(std::begin(allCores), std::end(allCores),
                                       [&text](Core each) { return text.contains(processorOf(each).toUtf8()); });
        ASSERT_NE(core, std::end(allCores)) << qPrintable(it.filePath());
        const AsmToolResult result =
            run({"--core", HdlCore::sourceOf(*core, GetParam()), "-n", "1500", "--reads", "reads.txt",
                 "--interrupt-every", "70", "--interrupt-at-clock", "333:9", it.filePath()});
        EXPECT_EQ(result.status, 0) << qPrintable(it.filePath()) << result.out.constData() << result.err.constData();
        EXPECT_TRUE(result.out.startsWith("1500 instructions, ")) << result.out.constData();
        EXPECT_TRUE(result.out.endsWith(" events, all equal\n")) << result.out.constData();
        EXPECT_TRUE(result.err.contains(", C and Z at the end\n")) << result.err.constData();
    }
    EXPECT_GE(count, 7);
}

TEST_P(ProveEqual, StacksOverflowAndResetTheCore)
{
    for (const Core core : allCores) {
        writeProgram(core, core == Core::Mico8 ? deepCallsOfMico8 : deepCalls);
        EXPECT_TRUE(equal(core, {"-n", "400", "-q"}).contains("400 instructions")) << nameOf(core);
    }
}

TEST_P(ProveEqual, ReturnsGoWhereTheModelsGo)
{
    for (const ReturnProgram& program : returnPrograms()) {
        const Core core = allCores[program.processor];
        writeProgram(core, program.source);
        const AsmToolResult result = prove(core, GetParam(), {"-n", QString::number(program.instructions)});
        EXPECT_EQ(result.status, 0) << program.name << result.out.constData() << result.err.constData();
    }
}

TEST_P(ProveEqual, ACoreMayGoOnReadingItsMemoryInAReset)
{
    if (GetParam() != Language::Verilog)
        return; // the model in one language shows it
    const QByteArray model = changed(Core::PicoBlaze6, Language::Verilog,
                                     "second && !reset && slot != HALF && slot != HALF_PREEMPTED", "second && !reset");
    write("kcpsm6.v", model);
    writeProgram(Core::PicoBlaze6, deepCalls);
    const AsmToolResult result = run({"--core", "kcpsm6.v", "-n", "400", "p.nalvo"});
    EXPECT_EQ(result.status, 0) << result.out.constData() << result.err.constData();
    // But not beyond it.
    write("kcpsm6.v", QByteArray(model).replace("slot <= NOTHING;\n                stack_address[0]",
                                                "slot <= HALF_PREEMPTED;\n                stack_address[0]"));
    EXPECT_EQ(run({"--core", "kcpsm6.v", "-n", "400", "p.nalvo"}).status, 1);
}

TEST_P(ProveEqual, TheCoreHasTheInitialScratchpad)
{
    for (const Core core : allCores) {
        QString project = example(core == Core::PicoBlaze3   ? "split_rams"
                                  : core == Core::PicoBlaze6 ? "motor_control"
                                                             : "keypad_lock");
        const AsmToolResult result = run({"--core", HdlCore::sourceOf(core, GetParam()), "-n", "1", project});
        EXPECT_EQ(result.status, 0) << result.out.constData() << result.err.constData();
        EXPECT_TRUE(result.err.contains(" cells of the scratchpad")) << result.err.constData();
    }
}

TEST_P(ProveEqual, FlagsAreComparedAtTheEnd)
{
    // What differs at the end is nothing but a flag.
    struct
    {
        Core core;
        const char* source;
        const char* said;
    } const cases[] = {{Core::PicoBlaze3, "        ADD     s0, 0xFF\n        ADD     s0, 2\n",
                        "C is 01 in the simulation, 00 in the core"},
                       {Core::PicoBlaze6, "        ADD     s0, 0xFF\n        ADD     s0, 2\n",
                        "C is 01 in the simulation, 00 in the core"},
                       {Core::Mico8, "        NOP\n        ADD     r0, 0xFF\n        ADD     r0, 2\n",
                        "C is 01 in the simulation, 00 in the core"}};
    for (const auto& each : cases) {
        writeProgram(each.core, each.source);
        const AsmToolResult same = prove(each.core, GetParam(), {"-n", "2"});
        EXPECT_EQ(same.status, 0) << same.out.constData() << same.err.constData();
        EXPECT_TRUE(same.err.contains(", C and Z at the end\n")) << same.err.constData();
        const bool isVerilog = GetParam() == Language::Verilog;
        const QByteArray model = changed(each.core, GetParam(), "", "");
        const QByteArray taken = "carry <= new_carry;";
        ASSERT_EQ(model.count(taken), 1) << nameOf(each.core);
        const QString name = QString(nameOf(each.core)) + (isVerilog ? ".v" : ".vhd");
        write(name, QByteArray(model).replace(taken, isVerilog ? "carry <= 1'b0;" : "carry <= '0';"));
        const AsmToolResult other = run({"--core", name, "-n", "2", "p.nalvo"});
        EXPECT_EQ(other.status, 1) << other.err.constData();
        EXPECT_TRUE(other.out.contains(each.said)) << other.out.constData();
        // Names that are unknown are said to be so.
        QByteArray renamed = model;
        renamed.replace("carry", "overflow");
        write(name, renamed);
        const AsmToolResult unknown = run({"--core", name, "-n", "2", "p.nalvo"});
        EXPECT_EQ(unknown.status, 0) << unknown.err.constData();
        EXPECT_TRUE(unknown.err.contains("not compared: C and Z at the end (the core has no carry and zero"))
            << unknown.err.constData();
    }
}

TEST_P(ProveEqual, ALargeScratchpadIsComparedAsFarAsItGoes)
{
    writeProgram(
        Core::Mico8,
        "        NOP\n        LOAD    r13, 1\n        LOAD    r1, 0x34\n        LOAD    r2, 0x56\n"
        "        WRMEM   r2, (r1)\n        LOAD    r13, 9\n        WRMEM   r2, (r1)\nloop:\n        JUMP    loop\n",
        {{"scrpdSize", "4096"}, {"simAddressBits", "16"}});
    const AsmToolResult result = prove(Core::Mico8, GetParam(), {"-n", "20"});
    EXPECT_EQ(result.status, 0) << result.out.constData() << result.err.constData();
    EXPECT_TRUE(result.err.contains("512 cells of the scratchpad")) << result.err.constData();
    EXPECT_TRUE(result.err.contains("the cells of the scratchpad from 512 on")) << result.err.constData();
}

TEST_P(ProveEqual, InterruptsAtAnyClock)
{
    const QByteArray body = "        INT     ENABLE\n"
                            "loop:\n"
                            "        ADD     s0, 1\n"
                            "        WRPRT   s0, 3\n"
                            "        CALL    part\n"
                            "        JUMP    loop\n"
                            "part:\n"
                            "        WRMEM   s0, 7\n"
                            "        RDMEM   s2, 7\n"
                            "        RET\n";
    for (const Core core : {Core::PicoBlaze3, Core::PicoBlaze6}) {
        writeProgram(core, body + "#ORG    ADDR, 0x3FF\n        RETI    ENABLE\n");
        QStringList options = {"-n", "300", "-f", "json"};
        for (int i = 0; i < 20; ++i)
            options += {"--interrupt-at-clock", QString("%1:%2").arg(i * 29).arg(1 + i % 3)};
        const AsmToolResult result = prove(core, GetParam(), options);
        ASSERT_EQ(result.status, 0) << result.out.constData() << result.err.constData();
        // The events are more than the instructions and the writes: entries are among them.
        EXPECT_GT(result.objects().last().value("events").toInt(), 300 + 300 / 7 + 5);
    }
}

TEST_P(ProveEqual, ARunEndsAtItsBounds)
{
    writeProgram(Core::PicoBlaze3, "loop:\n        RDPRT   s0, 1\n        WRPRT   s0, 2\n        JUMP    loop\n");
    write("reads.txt", "12\n34\n");
    const AsmToolResult result = prove(Core::PicoBlaze3, GetParam(), {"--reads", "reads.txt"});
    EXPECT_EQ(result.status, 0) << result.err.constData();
    EXPECT_EQ(result.out, "6 instructions, 10 events, all equal\n");
    EXPECT_TRUE(result.errLines().contains("nalvo-prove: the run ended early: reads.txt is used up after 2 values"));
    EXPECT_EQ(equal(Core::PicoBlaze3, {"--port", "1=reads.txt", "--max-clocks", "4"}),
              "2 instructions, 4 events, all equal\n");
    const AsmToolResult none = prove(Core::PicoBlaze3, GetParam(), {});
    EXPECT_EQ(none.status, 2);
    EXPECT_EQ(none.out, "");
    EXPECT_TRUE(none.err.contains("port 0x01, which is read at a.psm:2, has no source of values"))
        << none.err.constData();
}

TEST_P(ProveEqual, InputsChangeByTheClock)
{
    const QByteArray body = "        INT     ENABLE\n"
                            "loop:\n"
                            "        RDPRT   s0, 0x10\n"
                            "        WRPRT   s0, 0x20\n"
                            "        RDPRT   s1, 0x11\n"
                            "        ADD     s2, s1\n"
                            "        JUMP    loop\n";
    QByteArray changes = "4 port 0x10 1\n90 interrupt 4\n31 interrupt 7\n";
    for (int clock = 0; clock < 600; clock += 7)
        changes += QByteArray::number(clock) + " port 0x11 " + QByteArray::number(clock * 5 % 256) + '\n';
    write("s.txt", changes);
    for (const Core core : allCores) {
        // The vector of the Mico8 is in front of its start.
        QByteArray source =
            core == Core::Mico8 ? "        RETI\n" + body : body + "#ORG    ADDR, 0x3FF\n        RETI    ENABLE\n";
        if (core == Core::Mico8)
            source.replace(" s", " r");
        writeProgram(core, source);
        const AsmToolResult result = prove(core, GetParam(), {"--stimulus", "s.txt", "-n", "300", "-f", "json"});
        ASSERT_EQ(result.status, 0) << nameOf(core) << result.out.constData() << result.err.constData();
        // Three accesses in five instructions, and entries.
        EXPECT_GT(result.objects().last().value("events").toInt(), 300 + 170) << nameOf(core);
    }
}

TEST_P(ProveEqual, SettingsOfTheCoreAreTheProjects)
{
    writeProgram(Core::PicoBlaze6,
                 "        INT     ENABLE\n"
                 "        HWBUILD s3\n"
                 "        LOAD    s4, 0xC5\n"
                 "        WRMEM   s3, (s4)\n"
                 "loop:   JUMP    loop\n"
                 "#ORG    ADDR, 0x0F0\n"
                 "        RETI    ENABLE\n",
                 {{"intVectorAddr", "240"}, {"scrpdSize", "128"}});
    equal(Core::PicoBlaze6, {"-n", "40", "--hwbuild", "0x5A", "--interrupt-at", "10"});
    writeProgram(Core::Mico8,
                 "        NOP\n        WRPRT   r1, 3\nloop:\n        ADD     r1, 1\n        JUMP    loop\n",
                 {{"simWaitStates", "3"}, {"regCount", "16"}});
    equal(Core::Mico8, {"-n", "30"});
}

INSTANTIATE_TEST_SUITE_P(Languages, ProveEqual, testing::ValuesIn(allLanguages), nameOfLanguage);
