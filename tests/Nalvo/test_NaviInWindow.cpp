// The ways from navigator and messages to the source, after the source has been edited.

#include "MainWindowFixture.h"

#include "EditorWidget.h"
#include "ModEditor.h"
#include "ModGuiHookIf.h"
#include "ModPrj.h"
#include "NaviTreeWidget.h"
#include "NaviWidget.h"
#include "QtPrinters.h"

#include <QAction>
#include <QTextBlock>
#include <QTreeWidgetItemIterator>

using nsModEditor::EditorWidget;

namespace {

const char* const project = "<project version=\"3\"><sources><srcFiles>main.psm</srcFiles></sources>"
                            "<ModProcessor><processor>Xilinx PicoBlaze 3</processor></ModProcessor></project>";
const char* const mainText =
    "JUMP start\nrestart: LOAD s0, 1\n; \\navSep\"Ports\"\nstart: ADD s0, 1\nJUMP start\nJUMP restart\n"
    "#NAMESPACE ns\nstart2: JUMP start2\n#ENDNAMESPACE\n";

class NaviInWindow : public MainWindowFixture
{
protected:
    NaviInWindow()
    {
        writeSetting("ModGui/width", "1400");
        writeSetting("ModGui/height", "900");
        writeFile("main.psm", mainText);
        makeWindow();
        EXPECT_TRUE(module<nsModPrj::ModPrj>()->openPrj(writeFile("navi.nalvo", project)));
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get(), 60000));
        EXPECT_TRUE(editor()->openFile(projectDir() + "/main.psm"));
        document = editor()->editorWidgets().first();
        action("Save all")->trigger();
    }
    ~NaviInWindow() override
    {
        for (EditorWidget* widget : editor()->editorWidgets())
            widget->clearModified();
    }

    nsModEditor::ModEditor* editor() const { return module<nsModEditor::ModEditor>(); }
    QAction* action(const QString& text) const
    {
        for (QAction* candidate : window->findChildren<QAction*>()) {
            if (candidate->text() == text)
                return candidate;
        }
        return nullptr;
    }
    QTreeWidget* tree() const { return window->findChild<nsModSrcNavi::NaviTreeWidget*>("codeNavi"); }
    void jump(const QString& title)
    {
        const QList<QTreeWidgetItem*> items = tree()->findItems(title, Qt::MatchExactly | Qt::MatchRecursive);
        ASSERT_EQ(items.size(), 1) << qPrintable(title);
        tree()->scrollToItem(items.first());
        const QPoint pos = tree()->visualItemRect(items.first()).center();
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, Qt::NoModifier, pos);
        QTest::mouseDClick(tree()->viewport(), Qt::LeftButton, Qt::NoModifier, pos);
    }
    QString cursorLine() const { return document->textCursor().block().text(); }
    /// The flagged line, -1 for none.
    int flaggedLine() const
    {
        const QList<QTextEdit::ExtraSelection> shown = document->extraSelections();
        return shown.size() == 2 ? shown.at(1).cursor.blockNumber() : -1;
    }
    QTreeWidgetItem* message(const QString& start) const
    {
        for (QTreeWidgetItemIterator it(messageView()); *it != nullptr; ++it) {
            if ((*it)->text(0).startsWith(start))
                return *it;
        }
        return nullptr;
    }
    void clickMessage(QTreeWidgetItem* item)
    {
        ASSERT_NE(item, nullptr);
        QTreeWidget* view = messageView();
        view->scrollToItem(item);
        for (int column = 0; column < view->columnCount(); ++column) {
            const QPoint pos(view->columnViewportPosition(column) + 10, view->visualItemRect(item).center().y());
            QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, pos);
        }
    }

    EditorWidget* document = nullptr;
};

TEST_F(NaviInWindow, tagsAreFoundAgainAfterAnEdit)
{
    document->setCursorPos(0);
    QTest::keyClicks(document, "; one");
    for (int line = 0; line < 5; ++line)
        QTest::keyClick(document, Qt::Key_Return);
    for (const char* title : {"start:", "restart:", "Ports", "ns::start2:"}) {
        SCOPED_TRACE(title);
        document->setCursorPos(0);
        jump(title);
        const QString text = QString(title).remove("ns::");
        EXPECT_TRUE(cursorLine().startsWith(text == "Ports" ? "; \\navSep\"Ports\"" : text))
            << qPrintable(cursorLine());
    }
}

TEST_F(NaviInWindow, ofSeveralLabelsTheNearestIsMeant)
{
    document->setText("same: A\nB\nsame: C\nD\nE\nsame: F\n Same: G\n");
    editor()->setCursorToLine(document->filePath(), "same:", 3);
    EXPECT_EQ(document->cursorLine(), 2);
    editor()->setCursorToLine(document->filePath(), "same:", 5);
    EXPECT_EQ(document->cursorLine(), 5);
    editor()->setCursorToLine(document->filePath(), "same:", 500);
    EXPECT_EQ(document->cursorLine(), 5);
    editor()->setCursorToLine(document->filePath(), "same:", -500);
    EXPECT_EQ(document->cursorLine(), 0);
    // A label that has gone: as any text.
    editor()->setCursorToLine(document->filePath(), "gone:", 1);
    EXPECT_EQ(document->cursorLine(), 1);
}

TEST_F(NaviInWindow, aSaveLeavesThePanelsAsTheyAre)
{
    auto* gui = module<ModGuiHookIf>();
    QWidget other;
    gui->addWidget(nullptr, ModGuiHookIf::eLocationDockLeft, &other, "Other");
    gui->setCurrentWidget(&other);
    document->setCursorPos(0);
    QTest::keyClick(document, Qt::Key_Return);
    action("Save all")->trigger();
    EXPECT_EQ(gui->currentWidget(ModGuiHookIf::eLocationDockLeft), &other);
    QTest::keyClicks(document, "new: LOAD s0, 1");
    action("Save all")->trigger();
    EXPECT_EQ(gui->currentWidget(ModGuiHookIf::eLocationDockLeft), window->findChild<nsModSrcNavi::NaviWidget*>());
    gui->removeWidget(&other);
}

TEST_F(NaviInWindow, aClickedMessageFlagsItsLineUntilTheNextRun)
{
    document->moveCursor(QTextCursor::End);
    document->insertText("LOAD s0, not_there\nLOAD s0, nor_this\n");
    action("Save all")->trigger();
    EXPECT_EQ(flaggedLine(), -1);
    clickMessage(message("Unsupported argument: not_there"));
    EXPECT_EQ(flaggedLine(), 9);
    EXPECT_EQ(document->cursorLine(), 9);
    clickMessage(message("Unsupported argument: nor_this"));
    EXPECT_EQ(flaggedLine(), 10);
    action("Save all")->trigger();
    EXPECT_EQ(flaggedLine(), -1);
    // The flag of the program counter is not that of a message.
    editor()->setLineHighlighted(document->filePath(), 3);
    action("Save all")->trigger();
    EXPECT_EQ(flaggedLine(), 3);
    editor()->simEn(true);
    clickMessage(message("Unsupported argument: nor_this"));
    EXPECT_EQ(flaggedLine(), 3);
    EXPECT_EQ(document->cursorLine(), 10);
    editor()->simEn(false);
}

} // namespace
