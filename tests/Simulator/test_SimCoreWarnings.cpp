// The warnings where the core would do otherwise: provoked in the window, each with its words, its help and its place.

#include "FakeMsgHook.h"
#include "QtPrinters.h"
#include "SimWindow.h"

#include "ProcSimMsg.h"

namespace {

/// What makes a warning appear.
struct sCoreWarning_t
{
    nsProc::eSimMsg_t msg;
    const char* processor;
    QStringList program;
    int steps;
    QVector<int> interrupts; ///< requested before the steps with these numbers, counted from 1
    const char* text;        ///< the message to the letter
    int line;                ///< where it leads to, counted from 0
};

const char* const p3 = "XPBlze3";
const char* const p6 = "XPBlze6";
const char* const m8 = "LMico8v3x";
const QStringList vector = {"#ORG ADDR, 0x3FF", "RETI ENABLE"};

const sCoreWarning_t coreWarnings[] = {
    {nsProc::warnCoreStart, m8, {"NOP", "end: JUMP end"}, 3, {}, "The core starts elsewhere.", 0},
    {nsProc::warnCoreRequestKept,
     p3,
     {"NOP", "NOP", "end: JUMP end"},
     4,
     {2},
     "An interrupt request was lost here that the core can keep.",
     1},
    {nsProc::warnCoreNoSecondLevel,
     m8,
     {"JUMP on", "on: INT ENABLE", "JUMP on"},
     6,
     {3},
     "The core takes no second interrupt before the return from this one.",
     1},
    {nsProc::warnCoreConstantWrite,
     p6,
     {"NOP", "loop: WRPRT 0x5A, 0x3", "JUMP loop"},
     6,
     {},
     "The core writes constants by a strobe of their own here.",
     1},
    {nsProc::warnCoreAccessClocks,
     m8,
     {"NOP", "loop: WRPRT r0, 1", "WRPRT r0, 2", "JUMP loop"},
     9,
     {},
     "The core takes another number of clock cycles here.",
     1},
    {nsProc::warnCoreChainedZero,
     p6,
     {"loop: LOAD s0, 0", "LOAD s1, 0xFF", "ADD s1, 1", "SUBC s0, 0xFF", "JUMP loop"},
     12,
     {},
     "The core keeps the zero flag set here.",
     3},
    {nsProc::warnCoreRotateSource,
     m8,
     {"loop: LOAD r1, 1", "ROLC r0, r1", "JUMP loop"},
     8,
     {},
     "The core rotates the second register into the first here.",
     1},
    {nsProc::warnCoreRotateCarry,
     m8,
     {"loop: LOAD r1, 1", "ROR r1", "CLR C", "JUMP loop"},
     9,
     {},
     "The core leaves carry alone here.",
     1},
    {nsProc::warnCoreStackWraps,
     m8,
     {"LOAD r0, 20", "deep: SUB r0, 1", "CALL NZ, deep", "end: JUMP end"},
     42,
     {},
     "The core overwrites its oldest return address here.",
     2},
    {nsProc::warnCoreReset,
     p6,
     {"LOAD s0, 32", "deep: SUB s0, 1", "CALL NZ, deep", "end: JUMP end"},
     66,
     {},
     "The core resets itself here.",
     2},
    {nsProc::warnCoreReturnedFlags,
     p3,
     {"loop: COMP s0, 0", "CALL work", "work: RETI ENABLE"},
     8,
     {},
     "The core returns with other flags here.",
     2},
    {nsProc::warnCoreReturnedBank,
     p6,
     {"loop: REGBANK A", "CALL work", "work: REGBANK B", "RETI ENABLE"},
     9,
     {},
     "The core returns to the other register bank here.",
     3},
    {nsProc::warnCoreStaysEnabled,
     m8,
     {"JUMP on", "RETI", "on: INT ENABLE", "CALL back", "back: RETI"},
     9,
     {},
     "The core leaves interrupts enabled here.",
     4},
    {nsProc::warnCoreEntryFlags,
     p3,
     QStringList{"INT ENABLE", "loop: COMP s0, 1", "JUMP loop"} + vector,
     8,
     {2},
     "The core enters the interrupt with other flags here.",
     1},
    {nsProc::warnCoreEntryClocks,
     p6,
     QStringList{"INT ENABLE", "loop: NOP", "JUMP loop"} + vector,
     9,
     {2, 5, 6},
     "The core takes two clock cycles to enter the interrupt here.",
     1},
    {nsProc::warnCoreEntryBank,
     p6,
     QStringList{"INT ENABLE", "loop: REGBANK B", "REGBANK A", "JUMP loop"} + vector,
     9,
     {2},
     "The core enters the interrupt in the other register bank here.",
     1},
    {nsProc::warnCoreAddress,
     m8,
     {"loop: WRPRT r0, 0x25", "JUMP loop"},
     6,
     {},
     "The core takes another address here.",
     0},
    {nsProc::warnCoreStartZero,
     m8,
     {"NOP", "JUMP NZ, end", "end: COMP r0, 1", "JUMP end"},
     9,
     {},
     "The core still has the zero flag set from its start here.",
     1},
};

class SimCoreWarnings : public SimWindow, public ::testing::WithParamInterface<sCoreWarning_t>
{
protected:
    /// Steps through the program. @return what was shown with the key
    QList<FakeMsgHook::Entry> shown(const QHash<QString, QString>& settings)
    {
        const sCoreWarning_t& row = GetParam();
        EXPECT_TRUE(start(row.processor, row.program, settings)) << messageTexts().join('\n').toStdString();
        FakeMsgHook messages;
        ModMsgHookIf* const real = sim()->modMsgHook;
        sim()->modMsgHook = &messages;
        for (int step = 1; step <= row.steps; ++step) {
            if (row.interrupts.contains(step))
                sim()->simInt();
            sim()->simNextInstruction();
        }
        sim()->modMsgHook = real;
        QList<FakeMsgHook::Entry> found;
        for (const FakeMsgHook::Entry& entry : messages.messages()) {
            EXPECT_NE(entry.type, int(ModMsgHookIf::eMsgError)) << entry.text.toStdString();
            if (entry.key() == nsProc::simMsg(row.msg)->key)
                found.append(entry);
        }
        return found;
    }
};

TEST_P(SimCoreWarnings, ComesOnceWithItsHelpAndItsPlace)
{
    const sCoreWarning_t& row = GetParam();
    const QList<FakeMsgHook::Entry> found = shown({{"simCoreWarnings", "1"}});
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found.first().text, row.text);
    EXPECT_EQ(found.first().type, int(ModMsgHookIf::eMsgWarning));
    EXPECT_EQ(found.first().hlpDoc.host(), QString(row.processor).toLower() + "simmessages");
    EXPECT_EQ(found.first().line(), row.line);
    EXPECT_EQ(found.first().srcFile.path(), source());
}

TEST_P(SimCoreWarnings, IsOffByDefault)
{
    EXPECT_TRUE(shown({}).isEmpty());
}

INSTANTIATE_TEST_SUITE_P(All, SimCoreWarnings, ::testing::ValuesIn(coreWarnings),
                         [](const auto& row) { return std::string(nsProc::simMsg(row.param.msg)->key); });

TEST(SimCoreWarningsTable, HasEach)
{
    int msg = nsProc::warnCoreStart;
    for (const sCoreWarning_t& row : coreWarnings)
        EXPECT_EQ(row.msg, msg++);
    EXPECT_EQ(msg, int(nsProc::eSimMsgCount));
}

class SimCoreMessages : public SimWindow
{
};

TEST_F(SimCoreMessages, ARunGoesOnBehindAWarning)
{
    ASSERT_TRUE(start("LMico8v3x", {"NOP", "loop: LOAD r1, 1", "ROR r1", "CLR C", "WRPRT r1, 1", "end: JUMP end"},
                      {{"simCoreWarnings", "1"}}));
    document()->setSimBreakpoint(5);
    trigger(Action::eActionRun);
    EXPECT_EQ(pcLine(), 5);
    EXPECT_EQ(messages("The core starts elsewhere."), 1);
    EXPECT_EQ(messages("The core leaves carry alone here."), 1);
    EXPECT_EQ(messages("The core takes another number of clock cycles here."), 1);
    EXPECT_EQ(clocks(), 10);
}

TEST_F(SimCoreMessages, ErrorsOfTheStatedSimulationAreWarningsInTheExactOne)
{
    ASSERT_TRUE(
        start("XPBlze3", {"RET", "LOAD s1, 64", "RDMEM s0, (s1)", "WRMEM s0, (s1)", "NOP"}, {{"simExact", "1"}}));
    FakeMsgHook shown;
    ModMsgHookIf* const real = sim()->modMsgHook;
    sim()->modMsgHook = &shown;
    for (int step = 0; step < 8; ++step)
        sim()->simNextInstruction();
    sim()->modMsgHook = real;
    QStringList found;
    for (const FakeMsgHook::Entry& entry : shown.messages()) {
        EXPECT_EQ(entry.type, int(ModMsgHookIf::eMsgWarning));
        found << entry.key() + ' ' + (entry.srcFile.isEmpty() ? QString("-") : QString::number(entry.line()));
    }
    EXPECT_EQ(found, QStringList({"errCallStackEmpty 0", "errScrpdRd 2", "errScrpdWr 3", "errNoOpcodeToExec -"}));
    EXPECT_EQ(clocks(), 16);
}

} // namespace
