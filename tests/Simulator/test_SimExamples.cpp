// The examples from the opened project to a breakpoint, with all that a run leaves worked out by hand.

#include "ExampleFolder.h"
#include "SimWindow.h"

#include "ProcSimIOFifo.h"
#include "ProcSimIOReg8Bit.h"

namespace {

class SimExamples : public SimWindow
{
protected:
    /// Opens an example, assembles it and enables the simulator.
    bool startExample(const QString& name)
    {
        m_name = name;
        copyFolder(NALVO_SOURCE_DIR "/examples/" + name, projectDir() + '/' + name);
        copyFolder(NALVO_SOURCE_DIR "/examples/templates", projectDir() + "/templates");
        makeWindow();
        if (!module<nsModPrj::ModPrj>()->openPrj(projectDir() + '/' + name + '/' + name + ".nalvo"))
            return false;
        asmFe()->assemble(nsModAsmFe::ModAsmFe::eEventNone);
        if (!asmFe()->isAssembled())
            return false;
        trigger(Action::eActionEnable);
        return sim() != nullptr;
    }
    /// Sets or takes back a breakpoint at the first line of the source that has the text.
    void toggleBreakpoint(const QString& source, const QString& text)
    {
        const QString path = projectDir() + '/' + m_name + "/src/" + source;
        ASSERT_TRUE(editor()->openFile(path));
        auto* widget = qobject_cast<nsModEditor::EditorWidget*>(
            module<ModGuiHookIf>()->currentWidget(ModGuiHookIf::eLocationTabs));
        ASSERT_NE(widget, nullptr);
        const QTextBlock block = widget->document()->find(text).block();
        ASSERT_TRUE(block.isValid()) << text.toStdString();
        widget->setSimBreakpoint(block.blockNumber());
    }
    nsProc::ProcSimIOPluginIf* device(int addr, nsProc::ProcSimIOPluginIf::eDirection_t direction) const
    {
        for (nsProc::ProcSimIOPluginIf* candidate : sim()->ports()->devices()) {
            if (candidate->chkAddr(addr) && candidate->chkDirection(direction))
                return candidate;
        }
        return nullptr;
    }
    /// The first values of the FIFO that collects what is written to a port.
    QList<int> written(int addr, int count) const
    {
        QList<int> values;
        auto* fifo = dynamic_cast<nsProc::ProcSimIOFifo*>(device(addr, nsProc::ProcSimIOPluginIf::eDirectionWr));
        for (int line = 0; fifo != nullptr && line < count; ++line)
            values.append(fifo->lines().text(line).toInt(nullptr, 16));
        return values;
    }
    int cell(int addr) const
    {
        int value = -1;
        return sim()->core()->scrpd(addr, &value) ? value : -1;
    }
    /// The source line of the next instruction, without blanks around it.
    QString pcText() const
    {
        QFile file(asmFe()->fileHndlr()->absSrcFilePath(sim()->programCounter()->srcRef.fileNo));
        return file.open(QIODevice::ReadOnly)
                   ? QString::fromLatin1(file.readAll().split('\n').value(sim()->programCounter()->srcRef.lineNo))
                         .simplified()
                   : QString();
    }

    QString m_name;
};

// Up to "INT ENABLE" of main.psm:
//   2 LOAD, 64 rounds of WRMEM, SUB, JUMP: s1 counts 63 .. 0 and ends at FF with carry 1, zero 0       194 instructions
//   WRPRT of the LEDs                                                                                     1
//   CALL uart::init, LOAD 50,000,000 / (16 * 115,200) - 1 = 27 - 1 = 1A, WRPRT, RET                       4
//   CALL timer::init, three LOAD and WRPRT, RET: 50,000,000 / 1000 - 1 = 49,999 = C34F, then 03           8
//   207 instructions of 2 clocks: 414. No later instruction touches the flags.
TEST_F(SimExamples, UartMonitorOnPicoBlaze3)
{
    ASSERT_TRUE(startExample("uart_monitor"));
    toggleBreakpoint("main.psm", "INT     ENABLE");
    trigger(Action::eActionRun);
    EXPECT_EQ(pcText(), "INT ENABLE");
    EXPECT_EQ(clocks(), 414);
    EXPECT_EQ(reg(0), 0x03);
    EXPECT_EQ(reg(1), 0xFF);
    EXPECT_EQ(sim()->core()->carryBit(), 1);
    EXPECT_EQ(sim()->core()->zeroBit(), 0);
    EXPECT_EQ(sim()->callStack()->count(), 0);
    EXPECT_EQ(written(2, 1), QList<int>({0x1A}));
    EXPECT_EQ(written(3, 1), QList<int>({0x00}));
    EXPECT_EQ(written(4, 1), QList<int>({0x4F}));
    EXPECT_EQ(written(5, 1), QList<int>({0xC3}));
    EXPECT_EQ(written(6, 1), QList<int>({0x03}));
    EXPECT_EQ(sim()->ports()->devices().size(), 5);

    // INT ENABLE, CALL text::banner, CALL newline, LOAD CR, CALL uart::send: the read of the status finds no device. 5
    // more.
    trigger(Action::eActionRun);
    EXPECT_EQ(messages("An IO device was added to read. Please type in your value."), 1);
    EXPECT_EQ(clocks(), 414 + 10);
    EXPECT_EQ(sim()->callStack()->count(), 3);
    EXPECT_EQ(sim()->core()->interrupt(), nsProc::eIntEnabled);
    auto* status = device(0, nsProc::ProcSimIOPluginIf::eDirectionRd);
    ASSERT_NE(status, nullptr);
    // The transmitter has room: RDPRT, TEST, JUMP, WRPRT, RET. The user steps out of the call: 5 instructions.
    trigger(Action::eActionToEndOfCall);
    EXPECT_EQ(clocks(), 414 + 20);
    EXPECT_EQ(written(1, 1), QList<int>({0x0D}));
    EXPECT_EQ(pcText(), "LOAD s0, ::LF");
}

// clang-format off
// Up to "CALL settings::check" of main.psm:
//   INT, REGBANK, LOAD, 3 WRMEM, WRPRT 1A, CALL text::banner                                              8 instructions
//   uart::send: RDPRT, TEST, JUMP, WRPRT, RET                                                             5
//   newline: LOAD, CALL, send, LOAD, JUMP, send                                                          14
//   banner: CALL newline, newline, 2 LOAD, CALL print                                                    18
//   print: 10 characters of CALL, LOADRET, COMP, RET, CALL, send, ADD, ADDC, JUMP (13); CALL, LOADRET, COMP, RET   134
//   newline at the end                                                                                   14
//   174 instructions of 2 clocks: 348. The last flags are those of TEST 0, 1: zero 1, parity 0.
// clang-format on
TEST_F(SimExamples, MotorControlOnPicoBlaze6)
{
    ASSERT_TRUE(startExample("motor_control"));
    EXPECT_EQ(cell(0x40), 200);
    EXPECT_EQ(cell(0x66), 0x74);
    toggleBreakpoint("main.psm", "CALL    settings::check");
    trigger(Action::eActionRun);
    EXPECT_EQ(pcText(), "CALL settings::check");
    EXPECT_EQ(clocks(), 348);
    EXPECT_EQ(reg(0), 0x0A);
    EXPECT_EQ(reg(1), 0x00);
    EXPECT_EQ(sim()->core()->bank(), 0);
    EXPECT_EQ(sim()->core()->zeroBit(), 1);
    EXPECT_EQ(sim()->core()->carryBit(), 0);
    EXPECT_EQ(sim()->core()->interrupt(), nsProc::eIntDisabled);
    EXPECT_EQ(written(1, 14), QList<int>({0x0D, 0x0A, 'M', 'o', 't', 'o', 'r', 's', ' ', '1', '.', '0', 0x0D, 0x0A}));
    EXPECT_EQ(written(2, 1), QList<int>({0x1A}));

    // Over the check: CALL, CALL add_up, 2 LOAD, 39 cells 40 .. 66 (hexadecimal, the last one not included: 38) of
    // RDMEM, ADD, ADD, COMP, JUMP (5), RET, RDMEM, COMP, RET: 2 + 2 + 190 + 1 + 3 = 198 instructions, and the sum is
    // right.
    trigger(Action::eActionNextLine);
    EXPECT_EQ(pcText(), "CALL NZ, settings::lost");
    EXPECT_EQ(clocks(), 348 + 396);
    EXPECT_EQ(reg(0), 0x74);
    EXPECT_EQ(sim()->core()->zeroBit(), 1);
}

// clang-format off
// Up to "CALL lock::clear" of main.psm:
//   JUMP, RDPRT of a request register that holds 0, TEST (zero 1), JUMP, COMP with 0, JUMP                6 instructions
//   INT, 2 LOAD, 2 WRPRT, 4 WRMEM                                                                         9
//   CALL keypad::init, 5 LOAD, RET                                                                        7
//   CALL uart::init, 4 LOAD, WRPRT FF, 3 times LOAD and WRPRT: 50,000,000 / 9600 - 1 = 5207 = 1457, 01, RET   13
//   35 instructions of 2 clocks: 70.
// clang-format on
TEST_F(SimExamples, KeypadLockOnMico8)
{
    ASSERT_TRUE(startExample("keypad_lock"));
    EXPECT_EQ(cell(17), 4);
    EXPECT_EQ(cell(26), 0xAC);
    toggleBreakpoint("main.psm", "CALL    lock::clear");
    trigger(Action::eActionRun);
    EXPECT_EQ(pcText(), "CALL lock::clear");
    EXPECT_EQ(clocks(), 70);
    EXPECT_EQ(reg(0), 1);
    EXPECT_EQ(sim()->core()->zeroBit(), 0); // of the COMP, the last that sets flags: 0 - A5
    EXPECT_EQ(sim()->core()->carryBit(), 1);
    EXPECT_EQ(written(3, 1), QList<int>({0xFF}));
    EXPECT_EQ(written(4, 1), QList<int>({0x57}));
    EXPECT_EQ(written(5, 1), QList<int>({0x14}));
    EXPECT_EQ(written(6, 2), QList<int>({0x00, 0x01}));

    // The title comes from the memory at the ports 20 to 29, followed by a zero. From "LOAD r1" to the instruction
    // after the call:
    //   LOAD, CALL print; 10 characters of RDPRT, COMP, JUMP, CALL, send (13), ADD, JUMP: 19; RDPRT, COMP, JUMP, RET
    //   2 + 190 + 4 = 196 instructions
    toggleBreakpoint("main.psm", "LOAD    r1, TEXT_TITLE");
    trigger(Action::eActionRun);
    ASSERT_EQ(pcText(), "LOAD r1, TEXT_TITLE");
    const qint64 before = clocks();
    toggleBreakpoint("main.psm", "CALL    code::check");
    trigger(Action::eActionRun);
    EXPECT_EQ(clocks(), before + 392);
    EXPECT_EQ(reg(0), 0);
    EXPECT_EQ(reg(1), 0x2A);
    QByteArray sent;
    for (int addr = 0x20; addr < 0x2A; ++addr)
        sent += char(cell(addr));
    EXPECT_EQ(sent, "Lock 1.0\r\n");
    EXPECT_EQ(cell(0), 10);
    EXPECT_EQ(sim()->core()->interrupt(), nsProc::eIntEnabled);
}

} // namespace
