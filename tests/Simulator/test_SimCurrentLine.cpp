// The line of the next instruction in the editor, and what stays where it is when it is marked.

#include "SimTwoFiles.h"

#include "EquListView.h"
#include "IODevViewerList.h"
#include "ProcSimCallStack.h"
#include "ProcSimCore.h"
#include "ProcSimIO.h"
#include "ProcSimStatusBar.h"
#include "ProcSimWaveViewer.h"

#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

namespace {

class SimCurrentLine : public SimTwoFiles
{
protected:
    /// A program of two sources, with text enough to scroll in the second one.
    static QStringList longSub()
    {
        QStringList lines = {"proc:", "    ADD s1, 1", "    RET"};
        for (int line = 3; line < 200; ++line)
            lines.append("; text " + QString::number(line));
        return lines;
    }
    /// Everything that says contentChanged() of its own accord, but for the messages and the navigator.
    QList<QWidget*> panels() const
    {
        QList<QWidget*> result = {sim()->coreWidget(), sim()->callStackWidget(), sim()->ioWidget(),
                                  sim()->waveViewer()};
        result.append(window->findChild<nsModAsmFe::EquListView*>());
        result.append(window->findChild<nsModAsmFe::IODevViewerList*>());
        return result;
    }
};

const QStringList mainLines = {
    "#EQU PORT_LEDS, 0x05", // 0
    "    LOAD s0, 1",       // 1
    "    CALL proc",        // 2
    "    LOAD s0, 2",       // 3
    "end:",                 // 4
    "    JUMP end",         // 5
};

TEST_F(SimCurrentLine, FollowsTheProgramAndGoesWithTheSimulator)
{
    ASSERT_TRUE(openTwo(mainLines, longSub()));
    document(source());
    EXPECT_EQ(flaggedLines(source()), QList<int>());
    trigger(Action::eActionEnable);
    ASSERT_NE(sim(), nullptr);
    EXPECT_EQ(flaggedLines(source()), QList<int>{1});
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(flaggedLines(source()), QList<int>{2});
    EXPECT_EQ(currentDocument()->cursorLine(), 2);
    trigger(Action::eActionNextLine);
    EXPECT_EQ(flaggedLines(source()), QList<int>{3});
    currentDocument()->setSimBreakpoint(5);
    trigger(Action::eActionRun);
    EXPECT_EQ(flaggedLines(source()), QList<int>{5});
    trigger(Action::eActionReset);
    EXPECT_EQ(flaggedLines(source()), QList<int>{1});
    currentDocument()->setCursorToLine(3);
    trigger(Action::eActionSetPc);
    EXPECT_EQ(flaggedLines(source()), QList<int>{3});
    trigger(Action::eActionEnable);
    ASSERT_EQ(sim(), nullptr);
    EXPECT_EQ(flaggedLines(source()), QList<int>());
}

TEST_F(SimCurrentLine, IsOneOverAllFiles)
{
    ASSERT_TRUE(startTwo(mainLines, longSub()));
    trigger(Action::eActionNextInstruction);
    trigger(Action::eActionNextInstruction);
    ASSERT_EQ(currentDocument()->filePath(), otherSource());
    EXPECT_EQ(flaggedLines(otherSource()), QList<int>{1});
    EXPECT_EQ(flaggedLines(source()), QList<int>());
    trigger(Action::eActionToEndOfCall);
    EXPECT_EQ(flaggedLines(source()), QList<int>{3});
    EXPECT_EQ(flaggedLines(otherSource()), QList<int>());
}

TEST_F(SimCurrentLine, IsMarkedByAReloadWithoutAMoveToIt)
{
    ASSERT_TRUE(startTwo(mainLines, longSub()));
    trigger(Action::eActionNextInstruction);
    ASSERT_EQ(flaggedLines(source()), QList<int>{2});
    nsModEditor::EditorWidget* other = document(otherSource());
    ASSERT_NE(other, nullptr);
    other->setCursorToLine(150);
    other->setFocus();
    QTest::keyClicks(other, "; typed ");
    const int cursor = other->cursorPos();
    const int scrolled = other->verticalScrollBar()->value();
    ASSERT_GT(scrolled, 0);
    QTest::keyClick(other, Qt::Key_S, Qt::ControlModifier);
    ASSERT_FALSE(other->isModified());
    ASSERT_NE(sim()->programCounter(), nullptr);
    EXPECT_EQ(currentDocument(), other);
    EXPECT_EQ(other->cursorPos(), cursor);
    EXPECT_EQ(other->verticalScrollBar()->value(), scrolled);
    EXPECT_TRUE(other->hasFocus());
    EXPECT_EQ(flaggedLines(source()), QList<int>{2});
    EXPECT_EQ(flaggedLines(otherSource()), QList<int>());
}

TEST_F(SimCurrentLine, AReloadLeavesTheCursorOfItsOwnFile)
{
    QStringList lines = {"    LOAD s0, 1", "    LOAD s0, 2", "    LOAD s0, 3", "end:", "    JUMP end"};
    for (int line = lines.size(); line < 200; ++line)
        lines.append("; text");
    ASSERT_TRUE(start("XPBlze3", lines));
    trigger(Action::eActionNextInstruction);
    trigger(Action::eActionNextInstruction);
    nsModEditor::EditorWidget* widget = document();
    widget->setCursorToLine(150);
    widget->setFocus();
    QTest::keyClicks(widget, "; more ");
    const int cursor = widget->cursorPos();
    const int scrolled = widget->verticalScrollBar()->value();
    QTest::keyClick(widget, Qt::Key_S, Qt::ControlModifier);
    ASSERT_FALSE(widget->isModified());
    EXPECT_EQ(widget->cursorPos(), cursor);
    EXPECT_EQ(widget->verticalScrollBar()->value(), scrolled);
    EXPECT_EQ(flaggedLines(source()), QList<int>{2});
    // A line was inserted above: the position is the same line, which is another instruction.
    widget->setCursorToLine(0);
    QTest::keyClick(widget, Qt::Key_Home);
    QTest::keyClicks(widget, "; first");
    QTest::keyClick(widget, Qt::Key_Return);
    QTest::keyClick(widget, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(flaggedLines(source()), QList<int>{2});
    EXPECT_EQ(widget->cursorLine(), 1);
}

TEST_F(SimCurrentLine, AReloadOpensNoDocument)
{
    ASSERT_TRUE(startTwo(mainLines, longSub()));
    nsModEditor::EditorWidget* other = document(otherSource());
    ASSERT_NE(openDocument(source()), nullptr);
    editor()->closeOtherFiles();
    ASSERT_EQ(openDocument(source()), nullptr);
    other->setCursorToLine(100);
    QTest::keyClicks(other, ";");
    QTest::keyClick(other, Qt::Key_S, Qt::ControlModifier);
    ASSERT_NE(sim()->programCounter(), nullptr);
    EXPECT_EQ(openDocument(source()), nullptr);
    // The next step goes there again.
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(flaggedLines(source()), QList<int>{2});
}

TEST_F(SimCurrentLine, PanelsKeepQuietWhereARunChangesNothingOfTheirs)
{
    ASSERT_TRUE(startTwo(mainLines, longSub()));
    sim()->showWaveViewer();
    sim()->waveViewer()->addAddrChannel(5, nsProc::ProcSimWaveData::eAccessWr, -1, QString());
    trigger(Action::eActionNextInstruction);
    trigger(Action::eActionNextInstruction);
    // The first save fills the list of constants.
    nsModEditor::EditorWidget* other = document(otherSource());
    other->setCursorToLine(100);
    QTest::keyClicks(other, ";");
    QTest::keyClick(other, Qt::Key_S, Qt::ControlModifier);
    std::vector<std::unique_ptr<QSignalSpy>> spies;
    for (QWidget* panel : panels()) {
        ASSERT_NE(panel, nullptr);
        spies.push_back(std::make_unique<QSignalSpy>(panel, SIGNAL(contentChanged(QWidget*))));
        ASSERT_TRUE(spies.back()->isValid());
    }
    auto* gui = module<ModGuiHookIf>();
    gui->setCurrentWidget(sim()->ioWidget());
    QWidget* const right = gui->currentWidget(ModGuiHookIf::eLocationDockRight);
    ASSERT_EQ(right, sim()->ioWidget());
    QTest::keyClicks(other, ";");
    QTest::keyClick(other, Qt::Key_S, Qt::ControlModifier);
    ASSERT_FALSE(other->isModified());
    ASSERT_NE(sim()->programCounter(), nullptr);
    for (size_t index = 0; index < spies.size(); ++index)
        EXPECT_EQ(spies[index]->count(), 0) << panels().at(int(index))->metaObject()->className();
    EXPECT_EQ(gui->currentWidget(ModGuiHookIf::eLocationDockRight), right);
    // The button of the clock count is no news of a port either, as long as no value has passed.
    sim()->statusBarWidget()->clear();
    EXPECT_EQ(spies[3]->count(), 0);
}

TEST_F(SimCurrentLine, PanelsKeepQuietWhereAValueIsSetToWhatItIs)
{
    ASSERT_TRUE(start("XPBlze3", {"ADD s0, 0", "WRPRT s0, 3", "ADD s0, 0", "WRPRT s0, 3", "LOAD s0, 5", "WRPRT s0, 3",
                                  "SUB s0, 6", "end: JUMP end"}));
    sim()
        ->ports()
        ->addIOPlugin(nsProc::ProcSimPorts::eDevReg, nsProc::ProcSimIOPluginIf::eDirectionWr, 0)
        ->setBaseAddr(3, "");
    trigger(Action::eActionNextInstruction);
    trigger(Action::eActionNextInstruction);
    QSignalSpy core(sim()->coreWidget(), &nsProc::ProcSimCore::contentChanged);
    QSignalSpy ports(sim()->ioWidget(), &nsProc::ProcSimIO::contentChanged);
    trigger(Action::eActionNextInstruction); // ADD: zero again
    trigger(Action::eActionNextInstruction); // WRPRT: 0 again
    EXPECT_EQ(core.count(), 0);
    EXPECT_EQ(ports.count(), 0);
    trigger(Action::eActionNextInstruction);
    trigger(Action::eActionNextInstruction); // WRPRT: 5
    EXPECT_EQ(ports.count(), 1);
    trigger(Action::eActionNextInstruction); // SUB: carry
    EXPECT_EQ(core.count(), 1);
}

} // namespace
