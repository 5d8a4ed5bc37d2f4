// What the widgets of the simulator show of its state: reset, number base, highlights, names, and what comes to the
// front.

#include "QtPrinters.h"
#include "SimWindow.h"

#include "ProcSimCallStack.h"
#include "ProcSimCore.h"
#include "ProcSimEdtBit.h"
#include "ProcSimEdtFifo.h"
#include "ProcSimEdtNumeric.h"
#include "ProcSimEngine.h"
#include "ProcSimIO.h"
#include "ProcSimIODeviceView.h"
#include "ProcSimIOFifo.h"
#include "ProcSimIOPluginIf.h"
#include "ProcSimIOReg8Bit.h"
#include "ProcSimStatusBar.h"
#include "ProcSimWaveTree.h"
#include "ProcSimWaveViewer.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTabWidget>

namespace {

using nsProc::ProcSimEdtNumeric;
using nsProc::ProcSimIOPluginIf;
using nsProc::ProcSimPorts;
using Data = nsProc::ProcSimWaveData;

/// The first widget of a class whose tool tip begins so that is shown below a parent, such as in the selected bank;
/// null if there is none.
template <class Widget>
Widget* byToolTip(const QWidget* parent, const QString& toolTip)
{
    for (Widget* candidate : parent->findChildren<Widget*>()) {
        if (candidate->toolTip().startsWith(toolTip) && candidate->isVisibleTo(parent))
            return candidate;
    }
    return nullptr;
}

class SimShown : public SimWindow
{
protected:
    void step(int count = 1)
    {
        for (int done = 0; done < count; ++done)
            trigger(Action::eActionNextInstruction);
    }
    ProcSimEdtNumeric* field(const QString& toolTip) const
    {
        return byToolTip<ProcSimEdtNumeric>(sim()->coreWidget(), toolTip);
    }
    QString fieldText(const QString& toolTip) const
    {
        return field(toolTip) != nullptr ? field(toolTip)->text() : "none";
    }
    bool isHighlighted(const QString& toolTip) const
    {
        return field(toolTip) != nullptr && field(toolTip)->isHighlighted();
    }
    QString flagText(const QString& toolTip) const
    {
        auto* flag = byToolTip<nsProc::ProcSimEdtBit>(sim()->coreWidget(), toolTip);
        return flag != nullptr ? flag->text() : "none";
    }
    bool isFlagHighlighted(const QString& toolTip) const
    {
        auto* flag = byToolTip<nsProc::ProcSimEdtBit>(sim()->coreWidget(), toolTip);
        return flag != nullptr && flag->isHighlighted();
    }
    /// The cells of the scratchpad whose text is red.
    int highlightedCells() const
    {
        int count = 0;
        for (int addr = 0; addr < sim()->core()->scrpdSize(); ++addr)
            count += int(sim()->core()->scrpdHighlighted() == addr);
        return count;
    }
    QWidget* card(int device) const { return sim()->ioWidget()->viewOf(sim()->ports()->devices().at(device)); }
    QString cardText(int device, const QString& toolTip) const
    {
        auto* found = byToolTip<ProcSimEdtNumeric>(card(device), toolTip);
        return found != nullptr ? found->text() : "none";
    }
    bool isCardHighlighted(int device, const QString& toolTip) const
    {
        auto* found = byToolTip<ProcSimEdtNumeric>(card(device), toolTip);
        return found != nullptr && found->isHighlighted();
    }
    QString cardName(int device) const
    {
        auto* label = card(device)->findChild<QLabel*>("procSimIOName");
        return label != nullptr ? label->accessibleName() : "none";
    }
    ProcSimIOPluginIf* addDevice(ProcSimPorts::eDevType_t type, int addr)
    {
        ProcSimIOPluginIf* device = sim()->ports()->addIOPlugin(type, ProcSimIOPluginIf::eDirectionRdWr, 0);
        device->setBaseAddr(addr, QString());
        return device;
    }
    QStringList callStackRow(int row) const
    {
        QStringList texts;
        const QAbstractItemModel* model = sim()->callStackWidget()->model();
        for (int column = 0; column < model->columnCount(); ++column)
            texts.append(model->index(row, column).data().toString());
        return texts;
    }
    /// Texts of the labels of the core, such as the aliases.
    QStringList coreLabels() const
    {
        QStringList texts;
        for (const QLabel* label : sim()->coreWidget()->findChildren<QLabel*>())
            texts.append(label->text());
        return texts;
    }
    QLabel* statusLabel(const char* name) const { return sim()->statusBarWidget()->findChild<QLabel*>(name); }
    /// The title of the tab of a dock that holds the widget.
    QString tabTitle(QWidget* widget) const
    {
        for (const QTabWidget* tabs : window->findChildren<QTabWidget*>()) {
            if (tabs->indexOf(widget) >= 0)
                return tabs->tabText(tabs->indexOf(widget));
        }
        return "none";
    }
};

// --- reset ---

TEST_F(SimShown, ResetClearsValuesOfDevicesAndKeepsDevicesAndLists)
{
    ASSERT_TRUE(start("XPBlze3",
                      {"LOAD s0, 0x2B", "WRPRT s0, 1", "WRPRT s0, 2", "WRPRT s0, 2", "WRPRT s0, 9", "end: JUMP end"}));
    addDevice(ProcSimPorts::eDevReg, 1);
    auto* fifo = static_cast<nsProc::ProcSimIOFifo*>(addDevice(ProcSimPorts::eDevFifo, 2));
    auto* memory = addDevice(ProcSimPorts::eDevMem, 8);
    memory->setMemSize(16);
    fifo->setExpanded(true);
    step(5);
    ASSERT_EQ(cardText(0, "Value"), "2B");
    ASSERT_EQ(cardText(1, "Last value"), "2B");
    ASSERT_EQ(fifo->lines().pointer(), 2);
    auto* list = card(1)->findChild<nsProc::ProcSimEdtFifo*>();
    ASSERT_NE(list, nullptr);
    ASSERT_EQ(list->toPlainText(), "2B\n2B\n");
    trigger(Action::eActionReset);
    ASSERT_EQ(sim()->ports()->devices().size(), 3);
    EXPECT_EQ(cardText(0, "Value"), "00");
    EXPECT_FALSE(isCardHighlighted(0, "Value"));
    EXPECT_EQ(cardText(1, "Last value"), "00");
    EXPECT_FALSE(isCardHighlighted(1, "Last value"));
    EXPECT_EQ(list->toPlainText(), "2B\n2B\n");
    EXPECT_EQ(fifo->lines().pointer(), 0);
    // The list is used from its start again, the memory has kept its word.
    int value = 0;
    EXPECT_TRUE(sim()->ports()->value(2, QString(), &value));
    EXPECT_EQ(value, 0x2B);
    value = 0;
    EXPECT_TRUE(memory->value(9, QString(), &value));
    EXPECT_EQ(value, 0x2B);
}

TEST_F(SimShown, ResetEmptiesTheCallStackAndTheCoreOnTheScreen)
{
    ASSERT_TRUE(start("XPBlze3", {"LOAD s3, 7", "WRMEM s3, 5", "SUB s4, 1", "CALL proc", "proc: NOP", "RET"}));
    step(4);
    ASSERT_EQ(callStackRow(0).size(), 5);
    ASSERT_EQ(fieldText("Register s3"), "07");
    ASSERT_EQ(flagText("Carry flag, toggled with a click"), "1");
    trigger(Action::eActionReset);
    EXPECT_EQ(sim()->callStackWidget()->model()->rowCount(), 0);
    EXPECT_EQ(fieldText("Register s3"), "00");
    EXPECT_EQ(fieldText("Register s4"), "00");
    EXPECT_EQ(flagText("Carry flag, toggled with a click"), "0");
    EXPECT_EQ(statusLabel("procSimClocks")->text(), "8");
}

// --- number base ---

struct sBase_t
{
    nsProc::ProcActionsSim::eAction_t action;
    const char* name;
    const char* reg;       ///< 0x8C
    const char* pc;        ///< 0x12
    const char* cell;      ///< 0x8C
    const char* level;     ///< of the ninth call, 8
    const char* returnsTo; ///< 0x11
};

class SimBase : public SimShown, public ::testing::WithParamInterface<sBase_t>
{
};

TEST_P(SimBase, ReachesAllThatIsShown)
{
    const sBase_t& base = GetParam();
    QStringList lines = {"LOAD s0, 0x8C", "WRMEM s0, 3", "WRPRT s0, 5"};
    while (lines.size() < 0x11)
        lines.append("NOP");
    lines.append({"proc: CALL proc", "end: JUMP end"});
    ASSERT_TRUE(start("XPBlze3", lines));
    sim()->showWaveViewer();
    sim()->waveViewer()->addAddrChannel(5, Data::eAccessWr, -1, QString());
    step(0x11 + 9);
    ASSERT_EQ(sim()->callStack()->count(), 9);
    // Away from the start's base, so that each base is a change.
    trigger(base.action == Action::eActionBaseDec ? Action::eActionBaseOct : Action::eActionBaseDec);
    trigger(base.action);
    EXPECT_EQ(fieldText("Register s0"), base.reg);
    EXPECT_TRUE(fieldText("Address of the next instruction").endsWith(base.returnsTo));
    bool isCellShown = false;
    for (const ProcSimEdtNumeric* candidate : sim()->coreWidget()->findChildren<ProcSimEdtNumeric*>())
        isCellShown = isCellShown || (candidate->text() == base.cell && candidate != field("Register s0"));
    EXPECT_TRUE(isCellShown);
    EXPECT_EQ(callStackRow(8).at(0), base.level);
    EXPECT_EQ(callStackRow(8).at(1), base.returnsTo);
    EXPECT_EQ(statusLabel("procSimBase")->text(), base.name);
    auto* tree = sim()->waveViewer()->findChild<nsProc::ProcSimWaveTree*>("procSimWaveTree");
    EXPECT_EQ(tree->topLevelItem(0)->text(1), base.reg);
    EXPECT_EQ(cardText(0, "Last value"), base.reg);
    // What comes later has the base, too; counts stay decimal.
    addDevice(ProcSimPorts::eDevReg, 7);
    static_cast<nsProc::ProcSimIOReg8Bit*>(sim()->ports()->devices().last())->updateValue(0x8C);
    sim()->updateWidgets();
    EXPECT_EQ(cardText(1, "Value"), base.reg);
    EXPECT_EQ(statusLabel("procSimClocks")->text(), "52");
}

INSTANTIATE_TEST_SUITE_P(
    All, SimBase,
    ::testing::Values(sBase_t{nsProc::ProcActionsSim::eActionBaseDec, "DEC", "140", "18", "140", "8", "17"},
                      sBase_t{nsProc::ProcActionsSim::eActionBaseHex, "HEX", "8C", "12", "8C", "8", "11"},
                      sBase_t{nsProc::ProcActionsSim::eActionBaseOct, "OCT", "214", "22", "214", "10", "21"}));

TEST_F(SimShown, WavesThatAreOpenedLaterHaveTheBase)
{
    ASSERT_TRUE(start("XPBlze3", {"LOAD s0, 200", "WRPRT s0, 5", "end: JUMP end"}));
    trigger(Action::eActionBaseOct);
    sim()->showWaveViewer();
    sim()->waveViewer()->addAddrChannel(5, Data::eAccessWr, -1, QString());
    step(2);
    EXPECT_EQ(sim()->waveViewer()->findChild<nsProc::ProcSimWaveTree*>("procSimWaveTree")->topLevelItem(0)->text(1),
              "310");
}

// --- highlights ---

class SimHighlights : public SimShown, public ::testing::WithParamInterface<const char*>
{
protected:
    /// A register in the program and its field.
    QString reg(int number) const { return (isMico8() ? "r" : "s") + QString::number(number); }
    QString regField(int number) const { return "Register " + reg(number); }
    bool isMico8() const { return GetParam() == std::string("LMico8v3x"); }
    bool isB6() const { return GetParam() == std::string("XPBlze6"); }
    /// Each instruction sets something else: register, flags, scratchpad, port.
    bool startAll()
    {
        if (!start(GetParam(), {"LOAD " + reg(0) + ", 7", "SUB " + reg(1) + ", 1", "WRMEM " + reg(0) + ", 3",
                                "WRPRT " + reg(0) + ", 5", "NOP", "end: JUMP end"}))
            return false;
        addDevice(ProcSimPorts::eDevReg, 5);
        return true;
    }
    /// What is highlighted: the registers 0 and 1, the carry flag, a cell of the scratchpad, the device.
    QString highlighted() const
    {
        QStringList names;
        for (int number : {0, 1}) {
            if (isHighlighted(regField(number)))
                names.append(QString::number(number));
        }
        if (isFlagHighlighted("Carry flag, toggled with a click"))
            names.append("C");
        if (highlightedCells() > 0)
            names.append("M");
        if (isCardHighlighted(0, "Value"))
            names.append("P");
        return names.join(' ');
    }
};

TEST_P(SimHighlights, StandUntilTheNextStep)
{
    ASSERT_TRUE(startAll());
    EXPECT_EQ(highlighted(), "");
    step();
    EXPECT_EQ(highlighted(), "0");
    step();
    EXPECT_EQ(highlighted(), "1 C");
    step();
    EXPECT_EQ(highlighted(), "M");
    step();
    EXPECT_EQ(highlighted(), "P");
    step();
    EXPECT_EQ(highlighted(), "");
}

TEST_P(SimHighlights, OfARunAreThoseOfItsLastInstructionOrPileUp)
{
    ASSERT_TRUE(startAll());
    document()->setSimBreakpoint(4);
    trigger(Action::eActionRun);
    ASSERT_EQ(pcLine(), 4);
    EXPECT_EQ(highlighted(), isB6() ? "0 1 C M P" : "P");
    step();
    EXPECT_EQ(highlighted(), "");
}

TEST_P(SimHighlights, EndWithAReset)
{
    ASSERT_TRUE(startAll());
    for (int count = 1; count <= 4; ++count) {
        step(count);
        ASSERT_NE(highlighted(), "");
        trigger(Action::eActionReset);
        EXPECT_EQ(highlighted(), "") << count;
    }
}

TEST_P(SimHighlights, ARefusedStepInARun)
{
    ASSERT_TRUE(start(GetParam(), {"LOAD " + reg(0) + ", 7", "loop: NOP", "JUMP loop"}));
    // The run handles this event after its first instruction, which has set the register.
    bool isRunning = false;
    QMetaObject::invokeMethod(
        window.get(),
        [this, &isRunning] {
            isRunning = sim()->isRunning();
            EXPECT_TRUE(sim()->core()->isRegHighlighted(0, 0));
            sim()->simNextInstruction();
            // It executes nothing. Where highlights end with a step, they have ended.
            EXPECT_EQ(clocks(), 2);
            EXPECT_EQ(sim()->core()->isRegHighlighted(0, 0), !isB6());
            sim()->simStop();
        },
        Qt::QueuedConnection);
    sim()->simRun();
    EXPECT_TRUE(isRunning);
}

INSTANTIATE_TEST_SUITE_P(All, SimHighlights, ::testing::Values("XPBlze3", "XPBlze6", "LMico8v3x"));

// --- names ---

TEST_F(SimShown, RegistersHaveTheNamesThatTheProgramUsedLast)
{
    ASSERT_TRUE(start("XPBlze3", {"#EQU count, s3", "#EQU source, s4", "#EQU again, s3", "LOAD count, source",
                                  "ADD again, 1", "COMP s4, 0", "end: JUMP end"}));
    EXPECT_FALSE(coreLabels().contains("count"));
    step();
    // Written by one name, read by the other.
    EXPECT_EQ(sim()->core()->regAlias(0, 3), "count");
    EXPECT_EQ(sim()->core()->regAlias(0, 4), "source");
    EXPECT_TRUE(coreLabels().contains("count"));
    EXPECT_TRUE(coreLabels().contains("source"));
    step();
    EXPECT_EQ(sim()->core()->regAlias(0, 3), "again");
    EXPECT_FALSE(coreLabels().contains("count"));
    EXPECT_TRUE(coreLabels().contains("again"));
    step();
    EXPECT_FALSE(coreLabels().contains("source"));
}

TEST_F(SimShown, AReadAloneNamesARegister)
{
    ASSERT_TRUE(start("XPBlze3", {"#EQU limit, s7", "COMP s1, limit", "COMP limit, 5", "end: JUMP end"}));
    step();
    EXPECT_TRUE(coreLabels().contains("limit"));
    trigger(Action::eActionReset);
    EXPECT_FALSE(coreLabels().contains("limit"));
    document()->setCursorToLine(2);
    trigger(Action::eActionSetPc);
    step();
    EXPECT_TRUE(coreLabels().contains("limit"));
}

TEST_F(SimShown, PortsHaveTheNamesThatTheProgramUsedLast)
{
    ASSERT_TRUE(start("XPBlze6", {"#EQU LEDS, 5", "#EQU LAMPS, 5", "#EQU KEYS, 6", "WRPRT s0, LEDS", "WRPRT s0, LAMPS",
                                  "WRPRT 0x12, LEDS", "RDPRT s1, KEYS", "RDPRT s1, KEYS", "end: JUMP end"}));
    step();
    ASSERT_EQ(sim()->ports()->devices().size(), 1);
    EXPECT_EQ(cardName(0), "LEDS");
    step();
    EXPECT_EQ(cardName(0), "LAMPS");
    step();
    EXPECT_EQ(cardName(0), "LEDS");
    step();
    ASSERT_EQ(sim()->ports()->devices().size(), 2);
    EXPECT_EQ(cardName(1), "KEYS");
}

TEST_F(SimShown, DevicesOfTheProjectHaveTheirNames)
{
    ASSERT_TRUE(start("XPBlze3",
                      {"#SET IODEV::status::EN, TRUE", "#SET IODEV::status::TYPE, REG", "#SET IODEV::status::SIZE, 1",
                       "#SET IODEV::status::BASEADDR, 0x20", "#SET IODEV::status::INITVALUE, 0",
                       "#SET IODEV::status::SIMEN, TRUE", "#SET IODEV::status::SIMACCESSMODE, RD", "#EQU STATE, 0x20",
                       "RDPRT s0, STATE", "end: JUMP end"}))
        << messageTexts().join('\n').toStdString();
    ASSERT_EQ(sim()->ports()->devices().size(), 1);
    EXPECT_EQ(cardText(0, "Address"), "20");
    EXPECT_EQ(cardName(0), "IODEV::status");
    step();
    EXPECT_EQ(cardName(0), "STATE");
}

TEST_F(SimShown, PagesHaveTheirNames)
{
    ASSERT_TRUE(start("XPBlze3", {"#SET INSTMEM::PAGESIZE, 1024", "#SET INSTMEM::PAGECOUNT, 2",
                                  "#SET INSTMEM::SHAREDMEMLOCATION, HIMEM", "#ORG MEMRANGE, PAGE0",
                                  "start: JUMP common", "#ORG MEMRANGE, PAGE1", "second: JUMP common",
                                  "#ORG MEMRANGE, SHARED", "common: NOP", "end: JUMP end"}))
        << messageTexts().join('\n').toStdString();
    EXPECT_EQ(sim()->engine()->pageNames(), (QStringList{"SHARED", "PAGE0", "PAGE1"}));
    EXPECT_TRUE(coreLabels().contains("PAGE0"));
    step();
    EXPECT_TRUE(coreLabels().contains("SHARED"));
    EXPECT_FALSE(coreLabels().contains("PAGE0"));
    document()->setCursorToLine(6);
    trigger(Action::eActionSetPc);
    EXPECT_TRUE(coreLabels().contains("PAGE1"));
}

TEST_F(SimShown, DocksHaveTheirTitles)
{
    ASSERT_TRUE(start("XPBlze3", {"end: JUMP end"}));
    sim()->showWaveViewer();
    EXPECT_EQ(tabTitle(sim()->coreWidget()), "Processor core");
    EXPECT_EQ(tabTitle(sim()->ioWidget()), "Processor ports");
    EXPECT_EQ(tabTitle(sim()->callStackWidget()), "Processor callstack");
    EXPECT_EQ(tabTitle(sim()->waveViewer()), "Waves");
}

// --- status bar ---

TEST_F(SimShown, TheStatusBarCountsInTheClockOfTheProject)
{
    ASSERT_TRUE(start("XPBlze3", {"NOP", "NOP", "NOP", "end: JUMP end"}, {{"clkFreq", "40000000"}}));
    step(3);
    EXPECT_EQ(statusLabel("procSimClocks")->text(), "6");
    EXPECT_EQ(statusLabel("procSimTime")->text(), "150");
    QStringList texts;
    for (const QLabel* label : sim()->statusBarWidget()->findChildren<QLabel*>())
        texts.append(label->text());
    for (const char* text : {"Value format:", "HEX", "Clock count:", "clocks", "Time count:", "ns"})
        EXPECT_TRUE(texts.contains(text)) << text << " in " << texts.join('|').toStdString();
    auto* clear = sim()->statusBarWidget()->findChild<QAbstractButton*>();
    ASSERT_NE(clear, nullptr);
    EXPECT_EQ(clear->text(), "Clear");
    QTest::mouseClick(clear, Qt::LeftButton);
    EXPECT_EQ(clocks(), 0);
    EXPECT_EQ(statusLabel("procSimClocks")->text(), "0");
    EXPECT_EQ(statusLabel("procSimTime")->text(), "0");
    step();
    EXPECT_EQ(statusLabel("procSimClocks")->text(), "2");
    EXPECT_EQ(statusLabel("procSimTime")->text(), "50");
}

TEST_F(SimShown, AnotherClockCountsInAnotherUnit)
{
    ASSERT_TRUE(start("XPBlze3", {"NOP", "end: JUMP end"}, {{"clkFreq", "1000000"}}));
    step();
    EXPECT_EQ(statusLabel("procSimTime")->text(), "2");
    bool isUnitShown = false;
    for (const QLabel* label : sim()->statusBarWidget()->findChildren<QLabel*>())
        isUnitShown = isUnitShown || label->text() == "us";
    EXPECT_TRUE(isUnitShown);
}

// --- front ---

TEST_F(SimShown, TheLastOfCallStackAndWavesComesToTheFrontWithTheGroup)
{
    ASSERT_TRUE(start("XPBlze3", {"RET"}));
    auto* gui = module<ModGuiHookIf>();
    const auto bottom = [gui] { return gui->currentWidget(ModGuiHookIf::eLocationDockBottom); };
    // At first the call stack, though the messages are in front.
    gui->setCurrentWidget(messageView());
    ASSERT_EQ(bottom(), messageView());
    sim()->setFocus(ModGuiHookIf::eLocationDockLeft, sim(), sim()->coreWidget());
    EXPECT_EQ(bottom(), sim()->callStackWidget());
    sim()->showWaveViewer();
    gui->setCurrentWidget(messageView());
    sim()->setFocus(ModGuiHookIf::eLocationDockLeft, sim(), sim()->coreWidget());
    EXPECT_EQ(bottom(), sim()->waveViewer());
    // Which of the two the user has chosen is remembered.
    gui->setCurrentWidget(sim()->callStackWidget());
    gui->setCurrentWidget(messageView());
    sim()->setFocus(ModGuiHookIf::eLocationDockRight, sim(), sim()->ioWidget());
    EXPECT_EQ(bottom(), sim()->callStackWidget());
    gui->setCurrentWidget(sim()->waveViewer());
    gui->setCurrentWidget(messageView());
    sim()->setFocus(ModGuiHookIf::eLocationDockRight, sim(), sim()->ioWidget());
    EXPECT_EQ(bottom(), sim()->waveViewer());
}

TEST_F(SimShown, CallsLeaveTheWavesInFront)
{
    ASSERT_TRUE(start("XPBlze3", {"again: CALL routine", "JUMP again", "routine: RET"}));
    auto* gui = module<ModGuiHookIf>();
    const auto bottom = [gui] { return gui->currentWidget(ModGuiHookIf::eLocationDockBottom); };
    sim()->showWaveViewer();
    step();
    EXPECT_EQ(sim()->callStack()->count(), 1);
    EXPECT_EQ(bottom(), sim()->waveViewer());
    EXPECT_EQ(sim()->callStackWidget()->model()->rowCount(), 1);
    step();
    EXPECT_EQ(bottom(), sim()->waveViewer());
    // Over anything else it comes to the front.
    gui->setCurrentWidget(messageView());
    step();
    step();
    EXPECT_EQ(bottom(), sim()->callStackWidget());
}

TEST_F(SimShown, OtherPanelsLeaveTheGroupAndTheMessagesAlone)
{
    ASSERT_TRUE(start("XPBlze3", {"RET"}));
    auto* gui = module<ModGuiHookIf>();
    step();
    ASSERT_EQ(messages("Call stack is empty! Nothing to return."), 1);
    gui->setCurrentWidget(messageView());
    ModGuiPluginIf* others = dynamic_cast<ModGuiPluginIf*>(module<nsModEditor::ModEditor>());
    ASSERT_NE(others, nullptr);
    sim()->setFocus(ModGuiHookIf::eLocationTabs, others, document());
    sim()->setFocus(ModGuiHookIf::eLocationDockBottom, nullptr, sim()->callStackWidget());
    EXPECT_EQ(gui->currentWidget(ModGuiHookIf::eLocationDockBottom), messageView());
    EXPECT_EQ(messages("Call stack is empty! Nothing to return."), 1);
    sim()->setFocus(ModGuiHookIf::eLocationDockLeft, sim(), sim()->coreWidget());
    EXPECT_TRUE(messageTexts().isEmpty());
}

TEST_F(SimShown, TheStatusBarComesToTheFrontWithTheGroup)
{
    ASSERT_TRUE(start("XPBlze3", {"end: JUMP end"}));
    auto* gui = module<ModGuiHookIf>();
    auto* other = new QLabel("other");
    gui->addWidget(nullptr, ModGuiHookIf::eLocationStatusSecond, other, QString());
    ASSERT_EQ(gui->currentWidget(ModGuiHookIf::eLocationStatusSecond), other);
    sim()->setFocus(ModGuiHookIf::eLocationDockRight, sim(), sim()->ioWidget());
    EXPECT_EQ(gui->currentWidget(ModGuiHookIf::eLocationStatusSecond), sim()->statusBarWidget());
    gui->removeWidget(other);
    delete other;
}

} // namespace
