// What is folded away must not hide where the simulation stands.

#include "SymbolsWindow.h"

#include "Colors.h"
#include "DocumentViews.h"
#include "Folding.h"
#include "SecondView.h"

namespace {

const char* const foldedMain = "start: LOAD s0, 1\n"
                               "#NAMESPACE ns\n"
                               "work: LOAD s1, 2\n"
                               "LOAD s2, 3\n"
                               "LOAD s3, 4\n"
                               "#ENDNAMESPACE\n"
                               "JUMP start\n";

class FoldsInWindow : public SymbolsWindow
{
protected:
    void simulate(int steps)
    {
        open(foldedMain, "");
        ASSERT_NE(action("Enable/disable simulator"), nullptr);
        action("Enable/disable simulator")->trigger();
        for (int i = 0; i < steps; ++i) {
            ASSERT_NE(action("Next instruction"), nullptr);
            action("Next instruction")->trigger();
        }
        settleLayout();
    }
    bool isVisible(int line) const { return document->document()->findBlockByNumber(line).isVisible(); }
    /// Lines that have the colour of the flag, in the picture of a view.
    static QList<int> flaggedLines(nsModEditor::SourceEdit* view, const QColor& color)
    {
        const QImage image = view->viewport()->grab().toImage();
        QList<int> lines;
        for (int line = 0; line < view->blockCount(); ++line) {
            const QTextBlock block = view->document()->findBlockByNumber(line);
            if (!block.isVisible())
                continue;
            const QRectF rect = view->blockBoundingGeometry(block).translated(view->contentOffset());
            if (image.pixelColor(image.width() - 5, int(rect.center().y())) == color)
                lines.append(line);
        }
        return lines;
    }
    QList<int> flagged(nsModEditor::SourceEdit* view) const
    {
        return flaggedLines(view, Colors::of(Colors::eEditorFlaggedLine));
    }
};

} // namespace

TEST_F(FoldsInWindow, AStopShowsItsLine)
{
    simulate(0);
    document->moveCursor(QTextCursor::Start);
    document->folding()->foldAll();
    ASSERT_FALSE(isVisible(2));
    action("Next instruction")->trigger();
    settleLayout();
    EXPECT_TRUE(isVisible(2));
    EXPECT_EQ(flagged(document), QList<int>{2});
}

TEST_F(FoldsInWindow, TheLineOfAFoldIsMarkedForTheHiddenOne)
{
    simulate(2);
    ASSERT_EQ(flagged(document), QList<int>{3});
    // The user hides it.
    document->folding()->foldAll();
    settleLayout();
    ASSERT_FALSE(isVisible(3));
    EXPECT_EQ(flagged(document), QList<int>{1});
    screenshot("editor-fold-holds-line");
    // A run leaves what is hidden hidden: the user is editing.
    document->moveCursor(QTextCursor::End);
    document->setFocus();
    QTest::keyClicks(document, "; more");
    key(Qt::Key_S, Qt::ControlModifier);
    settleLayout();
    EXPECT_FALSE(isVisible(3));
    EXPECT_EQ(flagged(document), QList<int>{1});
    // Seen again, it is marked itself.
    document->folding()->unfoldAll();
    EXPECT_EQ(flagged(document), QList<int>{3});
    document->folding()->foldAll();
    action("Next instruction")->trigger();
    settleLayout();
    EXPECT_TRUE(isVisible(4));
    EXPECT_EQ(flagged(document), QList<int>{4});
}

TEST_F(FoldsInWindow, BothViewsOfAPageMarkIt)
{
    simulate(2);
    ASSERT_NE(action("Side by side"), nullptr);
    action("Side by side")->trigger();
    settleLayout();
    auto* second = document->views()->second();
    ASSERT_NE(second, nullptr);
    document->folding()->foldAll();
    settleLayout();
    EXPECT_EQ(flagged(document), QList<int>{1});
    EXPECT_EQ(flagged(second), QList<int>{1});
    second->folding()->unfoldAll();
    settleLayout();
    EXPECT_EQ(flagged(document), QList<int>{3});
    EXPECT_EQ(flagged(second), QList<int>{3});
}
