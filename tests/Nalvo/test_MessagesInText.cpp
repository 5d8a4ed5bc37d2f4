// Messages at their places in the documents, the walk over them, and tips.

#include "SymbolsWindow.h"

#include "MsgStatusBar.h"
#include "MsgViewer.h"
#include "SimValuesIf.h"

#include <QClipboard>
#include <QHelpEvent>
#include <QScrollBar>
#include <QToolTip>

namespace {

using nsModEditor::EditorWidget;

const char* const wrongMain = "#EQU limit, 26\n"
                              "#EQU unused, 1\n"
                              "start: LOAD s0, nowhere\n"
                              "ADD s0, limit\n"
                              "ADD s1, \"ab\"\n"
                              "CALL ns::work\n"
                              "JUMP start\n";
const char* const wrongOther = "#NAMESPACE ns\nwork: LOAD s2, missing\nRET\n#ENDNAMESPACE\n";

class MessagesInText : public SymbolsWindow
{
protected:
    int gradeOf(EditorWidget* widget, int line) const
    {
        return widget->leftMargin()->messageMarks()->gradeOf(widget->document()->findBlockByNumber(line));
    }
    /// Pixels of the colour of errors in the text.
    int redPixels(EditorWidget* widget) const
    {
        const QImage image = widget->viewport()->grab().toImage();
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QColor color = image.pixelColor(x, y);
                count += color.red() > 150 && color.green() < 90 && color.blue() < 90;
            }
        }
        return count;
    }
    QString tipAt(EditorWidget* widget, const QString& text, int offset = 0)
    {
        QTextCursor cursor(widget->document());
        cursor.setPosition(widget->toPlainText().indexOf(text) + offset);
        const QPoint pos = widget->cursorRect(cursor).center() + QPoint(3, 0);
        QToolTip::hideText();
        QHelpEvent event(QEvent::ToolTip, pos, widget->viewport()->mapToGlobal(pos));
        QApplication::sendEvent(widget->viewport(), &event);
        return QToolTip::text();
    }
};

TEST_F(MessagesInText, placesAreMarkedAndMoveWithTheText)
{
    open(wrongMain, wrongOther);
    EXPECT_EQ(gradeOf(document, 2), 2);
    EXPECT_EQ(gradeOf(document, 3), -1);
    EXPECT_EQ(document->messagesAt(2), QStringList("Unsupported argument: nowhere"));
    EXPECT_EQ(document->messagePlace(0).selectedText(), "nowhere");
    settleAnimations();
    EXPECT_GT(redPixels(document), 10);
    screenshot("messagesInText");
    // A document that is opened later has its marks.
    EditorWidget* other = openFile("sub/other.psm");
    EXPECT_EQ(gradeOf(other, 1), 2);
    // Lines above.
    document->setCursorPos(0);
    editor()->selectFile(document->filePath());
    QTest::keyClick(document, Qt::Key_Return);
    QTest::keyClick(document, Qt::Key_Return);
    EXPECT_EQ(gradeOf(document, 2), -1);
    EXPECT_EQ(gradeOf(document, 4), 2);
    EXPECT_EQ(document->messagesAt(4), QStringList("Unsupported argument: nowhere"));
    // The next run takes them away.
    setCursorInto(document, "nowhere");
    for (int i = 0; i < 6; ++i)
        QTest::keyClick(document, Qt::Key_Delete);
    QTest::keyClick(document, Qt::Key_Backspace);
    QTest::keyClicks(document, "1");
    action("Save all")->trigger();
    EXPECT_EQ(gradeOf(document, 4), -1);
    EXPECT_EQ(gradeOf(document, 6), 2);
    EXPECT_EQ(gradeOf(other, 1), 2);
}

TEST_F(MessagesInText, aRunOverUnsavedTextMarksWhatItHasRead)
{
    open(wrongMain, wrongOther);
    document->setCursorPos(0);
    QTest::keyClick(document, Qt::Key_Return);
    QTest::keyClicks(document, "; new");
    QTest::keyClick(document, Qt::Key_Return);
    action("Run assembler")->trigger();
    ASSERT_TRUE(document->isModified());
    EXPECT_EQ(gradeOf(document, 2), -1);
    EXPECT_EQ(gradeOf(document, 4), 2);
    EXPECT_EQ(document->messagePlace(0).selectedText(), "nowhere");
    key(Qt::Key_F8);
    EXPECT_EQ(place(), "main.psm:5 nowhere");
}

TEST_F(MessagesInText, f8WalksOverAllDocuments)
{
    open(wrongMain, wrongOther);
    document->setCursorPos(0);
    key(Qt::Key_F8);
    EXPECT_EQ(place(), "main.psm:3 nowhere");
    EXPECT_EQ(messageView()->currentItem()->text(0), "Unsupported argument: nowhere");
    key(Qt::Key_F8);
    EXPECT_EQ(place().left(11), "main.psm:5 ");
    // Into the source that is not open.
    int steps = 0;
    while (place() != "sub/other.psm:2 missing" && steps < 9) {
        key(Qt::Key_F8);
        ++steps;
    }
    EXPECT_EQ(place(), "sub/other.psm:2 missing");
    EXPECT_TRUE(current()->hasFocus());
    // Round.
    key(Qt::Key_F8);
    EXPECT_EQ(place(), "main.psm:3 nowhere");
    key(Qt::Key_F8, Qt::ShiftModifier);
    EXPECT_EQ(place(), "sub/other.psm:2 missing");
    // After an edit the place is where the text is now.
    editor()->selectFile(document->filePath());
    document->setCursorPos(0);
    QTest::keyClick(document, Qt::Key_Return);
    key(Qt::Key_F8);
    EXPECT_EQ(place(), "main.psm:4 nowhere");
    key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(place(), "main.psm:2 ");
}

TEST_F(MessagesInText, withoutMessagesTheKeysRest)
{
    open();
    EXPECT_EQ(gradeOf(document, 0), -1);
    EXPECT_FALSE(action("Next message")->isEnabled());
    key(Qt::Key_F8);
    EXPECT_EQ(place(), "main.psm:1 ");
}

TEST_F(MessagesInText, aSourceThatIsGoneIsReportedAndLosesNothing)
{
    open(wrongMain, wrongOther);
    QFile::remove(projectDir() + "/sub/other.psm");
    for (int i = 0; i < 8; ++i)
        key(Qt::Key_F8);
    EXPECT_EQ(documentOf("sub/other.psm"), nullptr);
    EXPECT_NE(documentOf("main.psm"), nullptr);
}

TEST_F(MessagesInText, theViewEndsAtTheFirstOfTheWorst)
{
    QByteArray text;
    for (int i = 0; i < 60; ++i)
        text += "#EQU unused" + QByteArray::number(i) + ", 1\n";
    open(text + "NOP\n", "NOP\n");
    QTreeWidget* view = messageView();
    // What the worst is, by the messages themselves.
    int errors = 0;
    int warnings = 0;
    const ModMsgHookIf::sMessage* worst = nullptr;
    const QVector<ModMsgHookIf::sMessage> messages = module<ModMsgHookIf>()->messagesOfRun();
    for (const ModMsgHookIf::sMessage& message : messages) {
        errors += message.grade == ModMsgHookIf::eMsgError;
        warnings += message.grade == ModMsgHookIf::eMsgWarning;
        if (worst == nullptr || message.grade > worst->grade)
            worst = &message;
    }
    ASSERT_GE(warnings, 60);
    QTreeWidgetItem* first = nullptr;
    for (QTreeWidgetItemIterator it(view); *it != nullptr && first == nullptr; ++it) {
        if ((*it)->text(0) == worst->text)
            first = *it;
    }
    ASSERT_NE(first, nullptr);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return view->viewport()->rect().intersects(view->visualItemRect(first)); }, 60000))
        << qPrintable(worst->text);
    // The sum stands in the status bar, and leads there.
    auto* counts = window->findChild<nsModMsg::MsgStatusBar*>("msgCounts");
    ASSERT_NE(counts, nullptr);
    const QString sum = QString("%1 warnings").arg(warnings);
    EXPECT_TRUE(QTest::qWaitFor([&] { return counts->text().endsWith(sum); }, 60000));
    EXPECT_EQ(counts->text().contains("error"), errors > 0);
    view->setCurrentItem(nullptr);
    QTest::mouseClick(counts, Qt::LeftButton);
    EXPECT_EQ(view->currentItem(), first);
    // With an error, that is worse.
    document->selectAll();
    document->insertText("#EQU unused, 1\nLOAD s0, nowhere\n");
    action("Save all")->trigger();
    EXPECT_TRUE(QTest::qWaitFor([&] { return counts->text().contains("error"); }, 60000));
    QTest::mouseClick(counts, Qt::LeftButton);
    EXPECT_EQ(view->currentItem()->text(0), "Unsupported argument: nowhere");
}

TEST_F(MessagesInText, messagesCanBeCopied)
{
    open(wrongMain, wrongOther);
    key(Qt::Key_F8);
    auto* view = qobject_cast<nsModMsg::MsgViewer*>(messageView());
    ASSERT_NE(view, nullptr);
    view->setFocus();
    QTest::keyClick(view, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "Unsupported argument: nowhere\tmain.psm#3\n");
    const QString all = view->allText();
    EXPECT_TRUE(all.contains("Unsupported argument: missing\tsub/other.psm#2\n"));
    EXPECT_TRUE(all.contains("    Done\n"));
}

TEST_F(MessagesInText, tipsSayWhatTheNamesAre)
{
    open();
    EXPECT_TRUE(tipAt(document, "limit * 2").contains("limit = 26 = 0x1A = b00011010"));
    EXPECT_TRUE(tipAt(document, "twice ;").contains("twice = 52 = 0x34 = b00110100"));
    EXPECT_TRUE(tipAt(document, "start:").contains("start: address 0x000, page 0"));
    EXPECT_TRUE(tipAt(document, "work").contains("ns::work: address 0x004, page 0"));
    EXPECT_TRUE(tipAt(document, "26").contains("26 = 0x1A"));
    const QString add = tipAt(document, "ADD s0");
    EXPECT_TRUE(
        add.contains("register, number or register: adds; Z: 1 if the result is 0, C: 1 if the sum is above 255"))
        << qPrintable(add);
    EXPECT_TRUE(tipAt(document, "s0, twice").contains("s0: register 0"));
    // Nothing in comments, and nothing behind the end of a line.
    tipAt(document, "comment");
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }, 60000));
    tipAt(document, "26\n", 2);
    EXPECT_FALSE(QToolTip::isVisible());
}

TEST_F(MessagesInText, tipsOfAWrongLineHaveAllItsMessages)
{
    open("LOAD s0, first, second\nADD nowhere, missing\n", "NOP\n");
    const QString tip = tipAt(document, "missing");
    EXPECT_TRUE(tip.contains("Unsupported argument: nowhere")) << qPrintable(tip);
    EXPECT_TRUE(tip.contains("Unsupported argument: missing")) << qPrintable(tip);
    // In the margin, too.
    const QPoint pos(5, document->cursorRect(QTextCursor(document->document()->findBlockByNumber(1))).center().y());
    QHelpEvent event(QEvent::ToolTip, pos, document->leftMargin()->mapToGlobal(pos));
    QApplication::sendEvent(document->leftMargin(), &event);
    EXPECT_TRUE(QToolTip::text().contains("Unsupported argument: missing"));
}

TEST_F(MessagesInText, inASimulationTipsHaveValues)
{
    open("#EQU cell, 5\n#EQU port, 0x10\nLOAD s3, 42\nWRMEM s3, cell\nWRPRT s3, port\nend: JUMP end\n", "NOP\n");
    auto* values = module<nsModProcessor::SimValuesIf>();
    ASSERT_NE(values, nullptr);
    EXPECT_FALSE(values->isSimulating());
    EXPECT_TRUE(tipAt(document, "s3, cell").contains("s3: register 3"));
    ASSERT_NE(action("Enable/disable simulator"), nullptr);
    action("Enable/disable simulator")->trigger();
    ASSERT_TRUE(values->isSimulating());
    for (int i = 0; i < 3; ++i)
        action("Next instruction")->trigger();
    EXPECT_TRUE(tipAt(document, "s3, cell").contains("s3 = 42 = 0x2A"));
    EXPECT_TRUE(tipAt(document, "cell\nWRPRT").contains("Scratchpad cell 5 = 42"));
    const QString port = tipAt(document, "port\nend");
    EXPECT_TRUE(port.contains("port = 16")) << qPrintable(port);
    EXPECT_TRUE(port.contains("Port 16")) << qPrintable(port);
}

} // namespace
