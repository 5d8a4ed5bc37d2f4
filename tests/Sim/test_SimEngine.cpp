// The engine by itself: what a step answers, what observers see, and where the run loop stops.

#include "FakeMsgHook.h"

#include "AsmFeConfig.h"
#include "AsmFeFileHndlr.h"
#include "AsmFeMsgHndlr.h"
#include "AsmProjectInfo.h"
#include "Assembler.h"
#include "Opcode.h"
#include "ProcSimCallStackData.h"
#include "ProcSimClock.h"
#include "ProcSimCoreData.h"
#include "ProcSimEngine.h"
#include "ProcSimObserver.h"
#include "ProcSimPorts.h"
#include "ProcSimWaveRecorder.h"
#include "ProcTables.h"
#include "Processor.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

namespace {

using namespace nsProc;

/// Notes what it is notified of; answers reads with a value, or with none.
class Notes : public ProcSimObserver
{
public:
    explicit Notes(bool follows = true)
        : m_follows(follows)
    {
    }

    bool followsInstructions() const override { return m_follows; }
    void instruction(int position, qint64) override
    {
        positions.push_back(position);
        if (engine != nullptr && position == haltAt)
            engine->halt();
    }
    void refused(int position) override { refusals.push_back(position); }
    bool portSource(int addr, int* value, bool* handled) override
    {
        *handled = true;
        *value = addr + 1;
        return hasValue;
    }
    void portRead(int addr, int value) override { reads.push_back({addr, value}); }
    void portWritten(int addr, int value) override { writes.push_back({addr, value}); }
    void scrpdWritten(int addr, int value) override { scrpd.push_back({addr, value}); }

    using Pairs = std::vector<std::pair<int, int>>;

    std::vector<int> positions;
    std::vector<int> refusals;
    Pairs reads;
    Pairs writes;
    Pairs scrpd;
    bool hasValue = true;
    ProcSimEngine* engine = nullptr;
    int haltAt = -1;

private:
    bool m_follows;
};

class SimEngine : public ::testing::Test
{
protected:
    /// Assembles the lines and goes to the first instruction.
    void start(const ProcTable& table, const QStringList& lines)
    {
        QFile file(m_folder.filePath("main.psm"));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write((lines.join('\n') + '\n').toLatin1());
        file.close();
        m_config.behaviorChkIntVector = 2;
        m_processor = std::make_unique<Processor>(table);
        m_assembler.setBackend(m_processor.get());
        m_assembler.charsets().setupDefaultCodec(m_config.defaultCharset);
        m_shown.registerPlugin(&m_messages);
        m_assembler.run({file.fileName()}, nsModAsmFe::AsmProjectInfo(), nsModAsmFe::AsmFeConfig::eEventNone);
        ASSERT_TRUE(m_assembler.isAssembled()) << m_shown.texts().join('\n').toStdString();
        engine = std::make_unique<ProcSimEngine>(&table, *m_processor->runConfig());
        load();
    }
    void load()
    {
        nsModAsmFe::AsmProgram& program = m_assembler.program();
        engine->load(&program.opcodes);
        SimOutcome outcome;
        ASSERT_TRUE(engine->initIODevices(program.ioDevs, &outcome));
        ASSERT_TRUE(engine->setProgramCounter(program.opcodes.first(), &outcome));
    }
    qint64 run(qint64 count, int until = sSimInstr_t::none) { return engine->run(count, until, &last); }
    int reg(int index) const { return engine->core()->regValue(engine->core()->bank(), index); }

    std::unique_ptr<ProcSimEngine> engine;
    SimOutcome last;

private:
    QTemporaryDir m_folder;
    FakeMsgHook m_shown;
    nsModAsmFe::AsmFeFileHndlr m_files;
    nsModAsmFe::AsmFeMsgHndlr m_messages{&m_files};
    nsModAsmFe::AsmFeConfig m_config;
    nsModAsmFe::Assembler m_assembler{m_files, m_messages, m_config};
    std::unique_ptr<Processor> m_processor;
};

TEST_F(SimEngine, AStepAnswersThatItWentOn)
{
    ASSERT_NO_FATAL_FAILURE(start(xpBlze3Table(), {"LOAD s3, 7", "NOP"}));
    const SimOutcome outcome = engine->step();
    EXPECT_TRUE(outcome.wentOn());
    EXPECT_TRUE(outcome.reports.empty());
    EXPECT_EQ(reg(3), 7);
    EXPECT_EQ(engine->begun(), 0);
    EXPECT_EQ(engine->position(), 1);
    EXPECT_TRUE(engine->core()->isRegHighlighted(0, 3));
    EXPECT_EQ(engine->core()->regAlias(0, 3), "s3");
}

TEST_F(SimEngine, TheEndIsReportedInItsOrder)
{
    ASSERT_NO_FATAL_FAILURE(start(xpBlze3Table(), {"RET"}));
    const SimOutcome outcome = engine->step();
    EXPECT_TRUE(outcome.wentOn()) << "the clocks are counted";
    ASSERT_EQ(outcome.reports.size(), 2U);
    EXPECT_EQ(outcome.reports[0].text(), "Internal error: Zero program pointer!");
    EXPECT_EQ(outcome.reports[0].key(), "internal");
    EXPECT_EQ(outcome.reports[1].msg, errCallStackEmpty);
    EXPECT_EQ(engine->position(), sSimInstr_t::none);
    const SimOutcome next = engine->step();
    EXPECT_EQ(next.end, SimOutcome::eEndStopped);
    ASSERT_EQ(next.reports.size(), 1U);
    EXPECT_EQ(next.reports[0].msg, errNoOpcodeToExec);
    EXPECT_EQ(engine->begun(), sSimInstr_t::none);
}

TEST_F(SimEngine, APortWithoutAValueIsNamed)
{
    ASSERT_NO_FATAL_FAILURE(start(xpBlze3Table(), {"RDPRT s0, 0x2A", "NOP"}));
    const SimOutcome added = engine->step();
    EXPECT_EQ(added.end, SimOutcome::eEndStopped);
    EXPECT_EQ(added.last()->msg, warnIODevAddedToRd);
    EXPECT_TRUE(added.last()->isWarning());
    EXPECT_EQ(added.port, 0x2A);
    engine->ports()->removeIOPlugins();
    Notes notes;
    notes.hasValue = false;
    engine->addObserver(&notes);
    const SimOutcome none = engine->step();
    EXPECT_EQ(none.end, SimOutcome::eEndNoPortValue);
    EXPECT_EQ(none.port, 0x2A);
    EXPECT_TRUE(none.reports.empty());
    EXPECT_EQ(notes.refusals, (std::vector<int>{0}));
    EXPECT_TRUE(engine->ports()->devices().isEmpty());
    notes.hasValue = true;
    EXPECT_TRUE(engine->step().wentOn());
    EXPECT_EQ(reg(0), 0x2B);
    EXPECT_EQ(notes.reads, (Notes::Pairs{{0x2A, 0x2B}}));
}

TEST_F(SimEngine, AQuestionForThePageGoesOnWhereItWasLeft)
{
    const QStringList program = {"#SET INSTMEM::PAGECOUNT, 2",
                                 "#SET INSTMEM::SHAREDMEMLOCATION, HIMEM",
                                 "#SET IODEV::rom::EN, TRUE",
                                 "#SET IODEV::rom::SIZE, 2048",
                                 "#SET IODEV::rom::VALUE, INSTMEM",
                                 "#SET IODEV::rom::SIMEN, FALSE",
                                 "#ORG MEMRANGE, SHARED",
                                 "CALL (s1), (s2)",
                                 "#ORG MEMRANGE, PAGE0",
                                 "NOP",
                                 "#ORG ADDR, 0x10",
                                 "LOAD s0, 1",
                                 "#ORG MEMRANGE, PAGE1",
                                 "#ORG ADDR, 0x10",
                                 "LOAD s0, 2"};
    ASSERT_NO_FATAL_FAILURE(start(xpBlze6Table(), program));
    engine->setAsksPage(true);
    engine->core()->editReg(0, 2, 0x10);
    const SimOutcome asked = engine->step();
    EXPECT_EQ(asked.end, SimOutcome::eEndAsksPage);
    EXPECT_EQ(engine->position(), 0);
    EXPECT_EQ(engine->callStack()->count(), 0);
    // What the user types meanwhile is too late for this instruction.
    engine->core()->editReg(0, 2, 0x99);
    EXPECT_TRUE(engine->goOnInPage(2).wentOn());
    EXPECT_EQ(engine->programCounter()->memRange, 2);
    EXPECT_EQ(engine->callStack()->items().back().label, "s1 = 0, s2 = 16");
    EXPECT_FALSE(engine->goOnInPage(1).wentOn()) << "there is no question any more";
    EXPECT_EQ(engine->programCounter()->memRange, 2);

    SimOutcome moved;
    ASSERT_TRUE(engine->setProgramCounter(engine->program().opcode(0), &moved));
    EXPECT_EQ(engine->step().end, SimOutcome::eEndAsksPage);
    engine->dropProgramCounter();
    EXPECT_FALSE(engine->goOnInPage(1).wentOn()) << "nobody waits for the answer any more";
    EXPECT_EQ(engine->position(), sSimInstr_t::none);
}

TEST_F(SimEngine, ALoopStopsAtItsBoundAndAtAPosition)
{
    ASSERT_NO_FATAL_FAILURE(start(xpBlze3Table(), {"LOAD s0, 0", "loop: ADD s0, 1", "ADDC s1, 0", "JUMP loop"}));
    EXPECT_EQ(run(1 + 3 * 1000), 1 + 3 * 1000);
    EXPECT_TRUE(last.wentOn());
    EXPECT_EQ(reg(0) + 256 * reg(1), 1000);
    EXPECT_EQ(engine->position(), 1);
    EXPECT_EQ(engine->clock()->clocks, 2 * 3001);
    EXPECT_EQ(engine->core()->pc(), 1);
    EXPECT_EQ(run(100, 3), 2);
    EXPECT_EQ(engine->position(), 3);
    EXPECT_EQ(run(100, 3), 3) << "the position at the start does not count";
}

TEST_F(SimEngine, TheLoopLeavesPortsToTheDevices)
{
    ASSERT_NO_FATAL_FAILURE(start(xpBlze3Table(), {"loop: ADD s0, 1", "WRPRT s0, 7", "JUMP loop"}));
    auto waves = std::make_shared<ProcSimWaveData>();
    waves->addChannel(7, ProcSimWaveData::eAccessWr, "OUT");
    ProcSimWaveRecorder recorder(waves, engine->clock());
    engine->addObserver(&recorder);
    EXPECT_EQ(run(30), 30);
    ASSERT_EQ(waves->channels().front()->values.size(), 10U);
    EXPECT_EQ(waves->channels().front()->values[9].value, 10);
    EXPECT_EQ(waves->channels().front()->values[9].clock, 2 * 28);
    EXPECT_EQ(engine->ports()->devices().size(), 1);
}

TEST_F(SimEngine, AFollowerSeesEachInstructionOnce)
{
    ASSERT_NO_FATAL_FAILURE(start(xpBlze3Table(), {"loop: ADD s0, 1", "WRMEM s0, 5", "WRPRT s0, 7", "JUMP loop"}));
    Notes notes;
    engine->addObserver(&notes);
    EXPECT_EQ(run(9), 9);
    EXPECT_EQ(notes.positions, (std::vector<int>{0, 1, 2, 3, 0, 1, 2, 3, 0}));
    EXPECT_EQ(notes.scrpd, (Notes::Pairs{{5, 1}, {5, 2}}));
    EXPECT_EQ(notes.writes, (Notes::Pairs{{7, 1}, {7, 2}}));
    EXPECT_TRUE(notes.refusals.empty());
    engine->removeObserver(&notes);
    EXPECT_EQ(run(4), 4);
    EXPECT_EQ(notes.positions.size(), 9U);
}

TEST_F(SimEngine, AHaltExecutesNothingMore)
{
    for (const int haltAt : {1, 2}) {
        ASSERT_NO_FATAL_FAILURE(start(xpBlze3Table(), {"loop: ADD s0, 1", "ADD s1, 1", "WRPRT s0, 7", "JUMP loop"}));
        Notes notes;
        notes.engine = engine.get();
        notes.haltAt = haltAt;
        engine->addObserver(&notes);
        EXPECT_EQ(run(100), haltAt) << "in the loop, and in the step that writes the port";
        EXPECT_EQ(engine->position(), haltAt);
        EXPECT_EQ(notes.refusals, (std::vector<int>{haltAt}));
        EXPECT_TRUE(notes.writes.empty());
        engine->removeObserver(&notes);
        EXPECT_EQ(run(100), 0) << "for good, also without the observer";
        EXPECT_EQ(last.end, SimOutcome::eEndStopped);
        EXPECT_EQ(engine->position(), haltAt);
    }
}

TEST_F(SimEngine, TheLoopReturnsOnlyToInstructionsThatItKnows)
{
    ASSERT_NO_FATAL_FAILURE(start(xpBlze6Table(), {"loop: CALL proc", "ADD s0, 1", "JUMP loop", "proc: RET"}));
    EXPECT_EQ(run(1), 1);
    ASSERT_EQ(engine->callStack()->count(), 1);
    EXPECT_EQ(engine->callStack()->items().back().position, 0);
    // Another run of the assembler: only the line of the call is known.
    load();
    EXPECT_LT(engine->callStack()->items().back().position, 0);
    SimOutcome outcome;
    engine->setProgramCounter(engine->program().opcode(3), &outcome);
    EXPECT_EQ(run(2), 2);
    EXPECT_EQ(reg(0), 1);
    EXPECT_EQ(engine->callStack()->count(), 0);
}

TEST_F(SimEngine, ThePendingInterruptEntersBeforeTheLoop)
{
    ASSERT_NO_FATAL_FAILURE(
        start(xpBlze3Table(), {"INT ENABLE", "loop: ADD s0, 1", "JUMP loop", "#ORG ADDR, 0x3FF", "RETI ENABLE"}));
    EXPECT_EQ(run(2), 2);
    engine->toggleInterrupt();
    EXPECT_EQ(engine->core()->interrupt(), eIntPending);
    EXPECT_EQ(run(2), 2);
    EXPECT_EQ(engine->core()->interrupt(), eIntEnabled);
    EXPECT_EQ(engine->callStack()->count(), 0);
    EXPECT_EQ(engine->position(), 1);
    EXPECT_EQ(reg(0), 1);
}

TEST_F(SimEngine, DeletedInstructionsLeaveNoPosition)
{
    auto opcodes = std::make_unique<nsModAsmFe::OpcodeList>();
    ASSERT_NO_FATAL_FAILURE(start(xpBlze3Table(), {"NOP", "NOP"}));
    engine->load(opcodes.get());
    EXPECT_EQ(engine->position(), sSimInstr_t::none);
    EXPECT_EQ(engine->program().count(), 0);
    opcodes.reset();
    EXPECT_EQ(run(5), 0);
    EXPECT_EQ(last.last()->msg, errNoOpcodeToExec);
}

} // namespace
