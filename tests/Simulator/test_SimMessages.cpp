// Each message of the simulators: provoked, in its words, with its grade, its help and its place.

#include "FakeMsgHook.h"
#include "ModalHelper.h"
#include "QtPrinters.h"
#include "SimWindow.h"

#include "ProcSimEngine.h"
#include "ProcSimMsg.h"

#include <functional>

namespace {

using nsProc::eSimMsg_t;

/// What makes a message appear.
struct sScenario_t
{
    const char* processor = "XPBlze3";
    QStringList program = {"NOP", "end: JUMP end"};
    const char* text = ""; ///< the message to the letter
    int line = -1;         ///< where it leads to; -1 where there is no instruction any more
};

class SimMessages : public SimWindow, public ::testing::WithParamInterface<int>
{
protected:
    static sScenario_t scenario(eSimMsg_t msg)
    {
        const QStringList calls = {"CALL proc", "end: JUMP end", "proc: RET"};
        switch (msg) {
        case nsProc::errNoOpcodeToExec:
            return {"XPBlze3", {"NOP"}, "No command to execute!"};
        case nsProc::errNoOpcodeAtIntVect:
            return {"XPBlze3", {"INT ENABLE", "end: JUMP end"}, "No instruction at interrupt vector: 1023"};
        case nsProc::errNoOpcodeAssembled:
            return {"XPBlze3", {"NOP"}, "Need successfull assembled code for simulation."};
        case nsProc::warnCallStackInvalidDueToReload:
            return {"XPBlze3", calls, "Call stack may becomes invalid due to reloading sources to simulator!", 2};
        case nsProc::errCallStackOverflow:
            return {"XPBlze3", {"NOP", "proc: CALL proc"}, "Call stack overflow!", 1};
        case nsProc::errCallStackEmpty:
            return {"XPBlze3", {"RET"}, "Call stack is empty! Nothing to return."};
        case nsProc::errCallStackInvalidRetAddr:
            return {"XPBlze3",
                    {"JUMP main", "proc: RET", "", "main: CALL proc"},
                    "Call stack contains an invalid return address."};
        case nsProc::errScrpdRd:
            return {"XPBlze3", {"LOAD s1, 64", "RDMEM s0, (s1)"}, "Can not read scratchpad value.", 1};
        case nsProc::errScrpdWr:
            return {"XPBlze3", {"LOAD s1, 64", "WRMEM s0, (s1)"}, "Can not write scratchpad value.", 1};
        case nsProc::warnIODevAddedToRd:
            return {"XPBlze3", {"NOP", "RDPRT s0, 5"}, "An IO device was added to read. Please type in your value.", 1};
        case nsProc::errIODevRd:
            return {"XPBlze3", {"WRPRT s0, 5", "RDPRT s0, 5"}, "Can not read IO value.", 1};
        case nsProc::errRegRd:
            return {"XPBlze3", {"NOP", "LOAD s0, s1"}, "Can not get value of register: s1", 1};
        case nsProc::errHwBuildRd:
            return {"XPBlze6", {"NOP", "HWBUILD s0"}, "Can not read hwbuild value.", 1};
        case nsProc::errProcSetChanged:
            return {"XPBlze3",
                    {"NOP", "end: JUMP end"},
                    "At least one processor settings was changed. Please restart simulator or restore the setting: "
                    "clkFreq"};
        case nsProc::errPcRestore:
            return {"XPBlze3",
                    {"JUMP end", "", "", "end: JUMP end"},
                    "Can not restore program counter. Please set manually from cursor."};
        case nsProc::errPcNoPrjFile:
            return {"XPBlze3", {"NOP", "end: JUMP end"}, "The current file not part of the project.", 0};
        case nsProc::warnIODevNoPort:
            return {"XPBlze3",
                    {"#SET IODEV::far::EN, TRUE", "#SET IODEV::far::TYPE, REG", "#SET IODEV::far::SIZE, 1",
                     "#SET IODEV::far::BASEADDR, 0x10000", "#SET IODEV::far::SIMEN, TRUE",
                     "#SET IODEV::far::SIMACCESSMODE, RD", "NOP", "end: JUMP end"},
                    "The address of IO device IODEV::far does not fit into 16 bits. It answers at no port."};
        default: // those about the core: test_SimCoreWarnings
            break;
        }
        ADD_FAILURE() << "nothing provokes message " << msg;
        return {};
    }
    /// Steps, and what beyond steps provokes the message.
    void provoke(eSimMsg_t msg)
    {
        const int steps = msg == nsProc::errCallStackOverflow                                       ? 33
                          : msg == nsProc::errCallStackEmpty || msg == nsProc::errNoOpcodeAtIntVect ? 1
                          : msg == nsProc::errPcNoPrjFile                                           ? 0
                                                                                                    : 2;
        if (msg == nsProc::warnCallStackInvalidDueToReload || msg == nsProc::errPcRestore ||
            msg == nsProc::errNoOpcodeAtIntVect)
            sim()->simNextInstruction();
        switch (msg) {
        case nsProc::errNoOpcodeAssembled:
        case nsProc::errProcSetChanged:
        case nsProc::warnCallStackInvalidDueToReload:
        case nsProc::errPcRestore:
            reload(msg);
            return;
        case nsProc::errNoOpcodeAtIntVect:
            sim()->simInt();
            break;
        case nsProc::errCallStackInvalidRetAddr:
            sim()->simNextInstruction();
            sim()->simNextInstruction();
            reload(msg);
            sim()->simNextInstruction();
            return;
        case nsProc::errRegRd:
            // No source makes this: the assembler gives numbers of registers from 0 on, and the count is checked apart.
            sim()->programCounter()->next->arg1->iValue = -1;
            sim()->engine()->decode();
            break;
        case nsProc::errHwBuildRd:
            sim()->core()->setHwbld(-1);
            break;
        case nsProc::errIODevRd:
            sim()
                ->ports()
                ->addIOPlugin(nsProc::ProcSimPorts::eDevFifo, nsProc::ProcSimIOPluginIf::eDirectionRdWr, 0)
                ->setBaseAddr(5, QString());
            break;
        case nsProc::errPcNoPrjFile: {
            const QString foreign = writeFile("notes.psm", "NOP\n");
            const ModalHelper noMember([](QDialog* dialog) { dialog->reject(); });
            ASSERT_TRUE(editor()->openFile(foreign));
            EXPECT_FALSE(sim()->setPcFromCursor());
            break;
        }
        default:
            break;
        }
        for (int step = 0; step < steps; ++step)
            sim()->simNextInstruction();
    }
    static QString lastKey(const FakeMsgHook& shown)
    {
        return shown.messages().isEmpty() ? QString() : shown.messages().last().key();
    }
    /// @return the key of the last message
    QString provokeInSim(eSimMsg_t msg, FakeMsgHook* shown)
    {
        ModMsgHookIf* const real = sim()->modMsgHook;
        sim()->modMsgHook = shown;
        provoke(msg);
        sim()->modMsgHook = real;
        return lastKey(*shown);
    }
    /// The same for a message of the start: a second simulator, without widgets, starts on the program.
    QString provokeAtStart(FakeMsgHook* shown)
    {
        const std::unique_ptr<nsProc::ProcSim> second(shell()->createSim());
        second->modAsmFeHook = asmFe();
        second->modMsgHook = shown;
        EXPECT_TRUE(second->simInit(shell()->runConfig()));
        return lastKey(*shown);
    }
    void reload(eSimMsg_t msg)
    {
        QStringList lines = scenario(msg).program;
        if (msg == nsProc::errNoOpcodeAssembled)
            lines = QStringList("this is nothing");
        else if (msg == nsProc::errProcSetChanged)
            lines.prepend("#SET PROC::XPBLZE3::CLKFREQ, 1000000");
        else if (msg == nsProc::errPcRestore)
            lines = QStringList("end: JUMP end");
        else if (msg == nsProc::errCallStackInvalidRetAddr)
            lines = QStringList({"JUMP proc", "proc: RET"});
        writeSource(lines);
        assemble();
    }
};

TEST_P(SimMessages, IsProvokedWithItsGradeAndItsHelp)
{
    const auto msg = eSimMsg_t(GetParam());
    const sScenario_t wanted = scenario(msg);
    ASSERT_TRUE(start(wanted.processor, wanted.program)) << messageTexts().join('\n').toStdString();
    const QString key = QString::fromLatin1(nsProc::simMsg(msg)->key);
    FakeMsgHook shown;
    EXPECT_EQ(msg == nsProc::warnIODevNoPort ? provokeAtStart(&shown) : provokeInSim(msg, &shown), key);
    const QList<FakeMsgHook::Entry> entries = shown.messages();
    ASSERT_FALSE(entries.isEmpty());
    const FakeMsgHook::Entry& entry = entries.last();
    EXPECT_EQ(entry.text, wanted.text);
    // The prefix of the key is the grade.
    ASSERT_TRUE(key.startsWith("warn") || key.startsWith("err")) << key.toStdString();
    EXPECT_EQ(entry.type, int(key.startsWith("warn") ? ModMsgHookIf::eMsgWarning : ModMsgHookIf::eMsgError));
    EXPECT_EQ(entry.hlpDoc.scheme(), "pageid");
    EXPECT_EQ(entry.hlpDoc.host(), QString(wanted.processor).toLower() + "simmessages");
    EXPECT_EQ(entry.key(), key);
    if (wanted.line < 0)
        return;
    EXPECT_EQ(entry.line(), wanted.line);
    EXPECT_EQ(entry.srcFile.path(), source());
}

INSTANTIATE_TEST_SUITE_P(All, SimMessages, ::testing::Range(0, int(nsProc::warnCoreStart)),
                         [](const auto& row) { return std::string(nsProc::simMsg(row.param)->key); });

class SimMessagesInWindow : public SimWindow
{
};

TEST_F(SimMessagesInWindow, AMessageLeavesTheProgramCounterWhereItWas)
{
    ASSERT_TRUE(start("XPBlze3", {"LOAD s1, 64", "RDMEM s0, (s1)", "end: JUMP end"}));
    trigger(Action::eActionRun);
    EXPECT_EQ(messages("Can not read scratchpad value."), 1);
    EXPECT_EQ(pcLine(), 1);
    EXPECT_FALSE(sim()->isRunning());
    // Repeated, it is refused again, until the user has mended the value.
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(messages("Can not read scratchpad value."), 2);
    sim()->core()->editReg(0, 1, 63);
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(pcLine(), 2);
}

// --- settings that may not change during a simulation ---

struct sFixed_t
{
    const char* processor;
    QStringList settings; ///< changed all at once, in an order of their own
    QStringList names;    ///< in the order of the checks
};

class SimFixedSettings : public SimWindow, public ::testing::WithParamInterface<sFixed_t>
{
protected:
    QString reported() const
    {
        const QString start =
            "At least one processor settings was changed. Please restart simulator or restore the setting: ";
        QStringList found;
        for (const QString& text : messageTexts()) {
            if (text.startsWith(start))
                found.append(text.mid(start.size()));
        }
        return found.join(' ');
    }
};

TEST_P(SimFixedSettings, EachIsCheckedInItsOrder)
{
    const sFixed_t& fixed = GetParam();
    const QStringList program = {"loop: JUMP loop"};
    ASSERT_TRUE(start(fixed.processor, program));
    // All of them at first; with each that is restored, the next one is the first.
    for (int restored = 0; restored <= fixed.names.size(); ++restored) {
        writeSource(fixed.settings.mid(restored) + program);
        ASSERT_TRUE(assemble()) << messageTexts().join('\n').toStdString();
        EXPECT_EQ(reported(), restored < fixed.names.size() ? fixed.names.at(restored) : QString());
    }
    // And each by itself.
    for (int index = 0; index < fixed.names.size(); ++index) {
        writeSource(QStringList(fixed.settings.at(index)) + program);
        ASSERT_TRUE(assemble()) << messageTexts().join('\n').toStdString();
        EXPECT_EQ(reported(), fixed.names.at(index));
        EXPECT_EQ(enabledActions(), "0 6 7 8 9 11");
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, SimFixedSettings,
    ::testing::Values(sFixed_t{"XPBlze3",
                               {"#SET INSTMEM::PAGESIZE, 2048", "#SET PROC::XPBLZE3::CLKFREQ, 1000000"},
                               {"pageSize", "clkFreq"}},
                      sFixed_t{"XPBlze6",
                               {"#SET PROC::XPBLZE6::SCRPDSIZE, 128", "#SET INSTMEM::PAGESIZE, 2048",
                                "#SET PROC::XPBLZE6::CLKFREQ, 1000000"},
                               {"scrpdSize", "pageSize", "clkFreq"}},
                      sFixed_t{"LMico8v3x",
                               {"#SET PROC::LMICO8V3X::INTSCRPDSIZE, 64", "#SET INSTMEM::PAGESIZE, 2048",
                                "#SET PROC::LMICO8V3X::CLKFREQ, 1000000", "#SET PROC::LMICO8V3X::INSTCLKCYCLECOUNT, 3",
                                "#SET PROC::LMICO8V3X::REGCOUNT, 16"},
                               {"scrpdSize", "pageSize", "clkFreq", "instrClkCnt", "regCount"}}),
    [](const auto& row) { return std::string(row.param.processor); });

} // namespace
