// The way back over jumps where a jump leads nowhere.

#include "SymbolsWindow.h"

#include "ModalAnswers.h"

namespace {

class JumpsInWindow : public SymbolsWindow
{
protected:
    /// Chooses a name in quick open. @param before what happens while its list is shown
    void quickOpen(const QString& name, const std::function<void()>& before)
    {
        ModalAnswers answers({[&](QDialog* box) {
            auto* edit = box->findChild<QLineEdit*>("quickOpenEdit");
            ASSERT_NE(edit, nullptr);
            QTest::keyClicks(edit, name);
            before();
            QTest::keyClick(edit, Qt::Key_Return);
        }});
        key(Qt::Key_P, Qt::ControlModifier);
        EXPECT_EQ(answers.seen(), 1);
    }
    void removeOther() const { EXPECT_TRUE(QFile::remove(projectDir() + "/sub/other.psm")); }
};

} // namespace

TEST_F(JumpsInWindow, aNameWhoseFileIsGoneLeavesNoPlaceToComeBackTo)
{
    open();
    setCursorInto(document, "limit * 2");
    quickOpen("@work", [this] { removeOther(); });
    EXPECT_EQ(documentOf("sub/other.psm"), nullptr);
    EXPECT_EQ(place(), "main.psm:2 ");
    EXPECT_FALSE(action("Back")->isEnabled());
    // One that leads somewhere does.
    key(Qt::Key_F2);
    EXPECT_EQ(place(), "main.psm:1 limit");
    EXPECT_TRUE(action("Back")->isEnabled());
}

TEST_F(JumpsInWindow, aMessageWhoseFileIsGoneLeavesNoPlaceToComeBackTo)
{
    open("start: JUMP start\n", "#NAMESPACE ns\nwork: LOAD s2, missing\nRET\n#ENDNAMESPACE\n");
    removeOther();
    for (int i = 0; i < 3; ++i)
        key(Qt::Key_F8);
    EXPECT_EQ(documentOf("sub/other.psm"), nullptr);
    EXPECT_FALSE(action("Back")->isEnabled());
}

TEST_F(JumpsInWindow, aPlaceWhoseFileIsGoneIsLeftOutOnTheWayBack)
{
    openAndJumpTwice();
    ASSERT_EQ(place(), "main.psm:1 limit");
    editor()->removeWidgetRequest(documentOf("sub/other.psm"));
    removeOther();
    key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(place(), "main.psm:1 limit") << "the file is gone";
    EXPECT_FALSE(action("Forward")->isEnabled()) << "nothing was left";
    EXPECT_TRUE(action("Back")->isEnabled());
    key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(place(), "main.psm:5 ");
    EXPECT_FALSE(action("Back")->isEnabled());
    key(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(place(), "main.psm:1 ");
}
