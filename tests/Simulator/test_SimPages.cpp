// Two pages of program memory: where the program counter goes from the shared range, which no page can tell.

#include "SimWindow.h"

#include "ModalAnswers.h"

#include <QListWidget>

namespace {

class SimPages : public SimWindow
{
protected:
    /// Steps over a computed jump out of the shared range and chooses the row in the question about the page. @return
    /// line, or -1
    int jumpWithRow(int row)
    {
        ModalAnswers answers({[row](QDialog* dialog) {
            dialog->findChild<QListWidget*>()->setCurrentRow(row);
            dialog->accept();
        }});
        trigger(Action::eActionNextInstruction);
        EXPECT_EQ(answers.seen(), 1);
        return pcLine();
    }
};

} // namespace

TEST_F(SimPages, theRowThatIsChosenIsThePageThatTheJumpGoesTo)
{
    ASSERT_TRUE(start("XPBlze6", {"#SET INSTMEM::PAGESIZE, 1024", "#SET INSTMEM::PAGECOUNT, 2",
                                  "#SET INSTMEM::SHAREDMEMLOCATION, HIMEM", "#ORG MEMRANGE, SHARED", "JUMP (s0, s1)",
                                  "#ORG MEMRANGE, PAGE0", "LOAD s0, 1", "#ORG MEMRANGE, PAGE1", "LOAD s1, 2"}))
        << messageTexts().join('\n').toStdString();
    document()->setCursorToLine(4);
    trigger(Action::eActionSetPc);
    ASSERT_EQ(pcLine(), 4);
    // The rows stand for the ranges as they are numbered: the shared one first, which has nothing at this address.
    EXPECT_EQ(jumpWithRow(0), 4);
    EXPECT_EQ(jumpWithRow(1), 6);
}
