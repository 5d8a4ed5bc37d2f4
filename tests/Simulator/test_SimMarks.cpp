// Breakpoints and the start mark of the editor: in which files they count, and from when on.

#include "ModalHelper.h"
#include "SimTwoFiles.h"

namespace {

class SimMarks : public SimTwoFiles
{
protected:
    /// Opens a file that is no source of the project. @return its document
    nsModEditor::EditorWidget* openForeign(const QString& name, const QByteArray& text)
    {
        const QString path = writeFile(name, text);
        const ModalHelper noMember([](QDialog* dialog) { dialog->reject(); });
        return document(path);
    }
};

const QStringList countToThree = {
    "first:",             // 0
    "    ADD s0, 1",      // 1
    "    COMP s0, 3",     // 2
    "    JUMP NZ, first", // 3
    "done:",              // 4
    "    JUMP done",      // 5
};

// The breakpoint is on the instruction after the present one: a command that takes the marks over later passes it.
TEST_F(SimMarks, ABreakpointSetJustBeforeStopsARunToTheCursor)
{
    ASSERT_TRUE(start("XPBlze3", countToThree));
    document()->setCursorToLine(5);
    document()->setSimBreakpoint(2);
    trigger(Action::eActionToCursor);
    EXPECT_EQ(pcLine(), 2);
    EXPECT_EQ(reg(0), 1);
    // Taken away just before, it does not.
    document()->setSimBreakpoint(2);
    document()->setCursorToLine(5);
    trigger(Action::eActionToCursor);
    EXPECT_EQ(pcLine(), 5);
    EXPECT_EQ(reg(0), 3);
}

TEST_F(SimMarks, ABreakpointSetJustBeforeStopsEachCommandThatRuns)
{
    const QStringList lines = {"CALL proc", "RET", "proc: ADD s0, 1", "ADD s0, 2", "RET"};
    for (const Action::eAction_t command : {Action::eActionRun, Action::eActionNextLine, Action::eActionToEndOfCall}) {
        ASSERT_TRUE(start("XPBlze3", lines));
        document()->setSimBreakpoint(2);
        trigger(command);
        EXPECT_EQ(pcLine(), 2) << command;
        EXPECT_EQ(reg(0), 0);
        document()->clearSimBreakpoints();
        trigger(Action::eActionEnable);
    }
}

TEST_F(SimMarks, BreakpointsOfAllSourcesCount)
{
    ASSERT_TRUE(startTwo({"CALL proc", "end: JUMP end"}, {"; text", "proc: ADD s0, 1", "RET"}));
    document(otherSource())->setSimBreakpoint(2);
    document(source())->setSimBreakpoint(1);
    trigger(Action::eActionRun);
    EXPECT_EQ(pcLine(), 2);
    EXPECT_EQ(currentDocument()->filePath(), otherSource());
    trigger(Action::eActionRun);
    EXPECT_EQ(pcLine(), 1);
    EXPECT_EQ(currentDocument()->filePath(), source());
}

TEST_F(SimMarks, BreakpointsInAForeignFileDoNotCount)
{
    ASSERT_TRUE(start("XPBlze3", countToThree));
    document()->setSimBreakpoint(5);
    nsModEditor::EditorWidget* foreign = openForeign("notes.psm", "one\ntwo\nthree\nfour\n");
    ASSERT_NE(foreign, nullptr);
    for (int line = 0; line < 4; ++line)
        foreign->setSimBreakpoint(line);
    trigger(Action::eActionRun);
    EXPECT_EQ(pcLine(), 5);
    EXPECT_EQ(reg(0), 3);
    EXPECT_EQ(messages("The current file not part of the project."), 0);
}

TEST_F(SimMarks, TheStartMarkCountsInAnySource)
{
    ASSERT_TRUE(openTwo({"NOP", "end: JUMP end"}, {"; text", "proc: ADD s0, 1", "RET"}));
    document(otherSource())->setSimStartPointer(0);
    trigger(Action::eActionEnable);
    EXPECT_EQ(pcLine(), 1);
    EXPECT_EQ(currentDocument()->filePath(), otherSource());
}

// Address 0 is not at the first instruction of the sources.
const QStringList startsBelow = {
    "#SET INSTMEM::PAGESIZE, 1024",           // 0
    "#SET INSTMEM::PAGECOUNT, 2",             // 1
    "#SET INSTMEM::SHAREDMEMLOCATION, HIMEM", // 2
    "#ORG MEMRANGE, PAGE1",                   // 3
    "second: JUMP common",                    // 4
    "#ORG MEMRANGE, PAGE0",                   // 5
    "first: JUMP common",                     // 6
    "#ORG MEMRANGE, SHARED",                  // 7
    "common: NOP",                            // 8
    "end: JUMP end",                          // 9
};

TEST_F(SimMarks, TheProgramStartsAtAddressZeroWhereverThatStands)
{
    ASSERT_TRUE(start("XPBlze3", startsBelow)) << messageTexts().join('\n').toStdString();
    EXPECT_EQ(pcLine(), 6);
}

TEST_F(SimMarks, AStartMarkInAForeignFileDoesNotCount)
{
    ASSERT_TRUE(open("XPBlze3", startsBelow)) << messageTexts().join('\n').toStdString();
    nsModEditor::EditorWidget* foreign = openForeign("notes.psm", "one\ntwo\nthree\nfour\nfive\nsix\n");
    ASSERT_NE(foreign, nullptr);
    foreign->setSimStartPointer(5);
    trigger(Action::eActionEnable);
    ASSERT_NE(sim(), nullptr);
    ASSERT_NE(sim()->programCounter(), nullptr);
    EXPECT_EQ(pcLine(), 6);
    EXPECT_EQ(messages("The current file not part of the project."), 0);
    trigger(Action::eActionNextInstruction);
    EXPECT_EQ(pcLine(), 8);
    trigger(Action::eActionReset);
    EXPECT_EQ(pcLine(), 6);
}

} // namespace
