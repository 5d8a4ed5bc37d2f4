// The comfort of the editor at the worst moment: what is closed under a dialog or a list, files of other encodings and
// line ends, text that is hidden.

#include "ModalAnswers.h"
#include "SymbolsWindow.h"

#include "CompletionPopup.h"
#include "Folding.h"

#include <QHelpEvent>
#include <QTextDocumentFragment>
#include <QToolTip>

namespace {

using nsModEditor::EditorWidget;
using nsModSymbols::CompletionPopup;

class EditorAttack : public SymbolsWindow
{
protected:
    QByteArray bytesOf(const QString& name) const
    {
        QFile file(projectDir() + '/' + name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("can not be read");
    }
    void saveAll() { action("Save all")->trigger(); }
    CompletionPopup* listOf(EditorWidget* widget) const
    {
        auto* popup = widget->findChild<CompletionPopup*>("completion");
        return popup != nullptr && popup->isVisible() ? popup : nullptr;
    }
    void typeForList(EditorWidget* widget)
    {
        widget->setFocus();
        widget->moveCursor(QTextCursor::End);
        widget->textCursor().insertText("\n");
        QTest::keyClicks(widget, "lo");
        EXPECT_NE(listOf(widget), nullptr);
    }
    /// Searches all sources and replaces all hits. @return what the panel says
    QString replaceInSources(const QString& text, const QString& replacement, const std::function<void()>& between = {})
    {
        key(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
        auto* field = window->findChild<QLineEdit*>("editSourceFind");
        field->setText(text);
        auto* find = window->findChild<QPushButton*>("buttonSourceFind");
        find->click();
        EXPECT_TRUE(QTest::qWaitFor([find] { return find->text() == "Find"; }, 60000));
        window->findChild<QLineEdit*>("editSourceReplace")->setText(replacement);
        if (between)
            between();
        window->findChild<QPushButton*>("buttonSourceReplace")->click();
        return window->findChild<QLabel*>("labelSourceStatus")->text();
    }
    /// The line of the cursor is seen, and the next one.
    static bool isSeen(const EditorWidget* widget)
    {
        const QTextBlock block = widget->textCursor().block();
        return block.isVisible() && (!block.next().isValid() || block.next().isVisible()) &&
               widget->viewport()->rect().intersects(widget->cursorRect());
    }
};

TEST_F(EditorAttack, theWindowMayGoUnderTheQuestionForAName)
{
    open();
    setCursorInto(document, "limit * 2");
    int seen = 0;
    ModalAnswers answers({[&](QDialog* dialog) {
        EXPECT_EQ(dialog->objectName(), "renameDialog");
        ++seen;
        window.reset();
    }});
    action("Rename...")->trigger();
    EXPECT_EQ(seen, 1);
    EXPECT_EQ(bytesOf("main.psm"), QByteArray(symbolsWindow::mainText));
}

TEST_F(EditorAttack, theWindowMayGoUnderTheRefusalOfARename)
{
    open();
    setCursorInto(document, "26");
    int seen = 0;
    ModalAnswers answers({[&](QDialog*) {
        ++seen;
        window.reset();
    }});
    action("Rename...")->trigger();
    EXPECT_EQ(seen, 1);
}

TEST_F(EditorAttack, aRenameKeepsEncodingMarkAndLineEnds)
{
    const QByteArray main = "\xef\xbb\xbf" + QByteArray(symbolsWindow::mainText).replace("\n", "\r\n");
    // No UTF-8, mixed line ends, the last line without one.
    const QByteArray other = "#NAMESPACE ns ; \xe4\xa0\r\nwork: LOAD s2, ::limit ; \x85\nstart: JUMP start\r\n"
                             "RET\n#ENDNAMESPACE\r\nlast: LOAD s0, limit";
    open(main, other);
    const QVector<int> before = words();
    setCursorInto(document, "limit * 2");
    EXPECT_EQ(rename("a_much_longer_name"), "");
    saveAll();
    QByteArray mainAfter = main;
    mainAfter.replace("limit,", "a_much_longer_name,").replace("limit *", "a_much_longer_name *");
    mainAfter.replace("s0, limit", "s0, a_much_longer_name");
    EXPECT_EQ(bytesOf("main.psm"), mainAfter);
    EXPECT_EQ(bytesOf("sub/other.psm"), QByteArray(other).replace("limit", "a_much_longer_name"));
    EXPECT_EQ(words(), before);
    document->undo();
    documentOf("sub/other.psm")->undo();
    saveAll();
    EXPECT_EQ(bytesOf("main.psm"), main);
    EXPECT_EQ(bytesOf("sub/other.psm"), other);
}

TEST_F(EditorAttack, formattingKeepsEncodingAndLineEndsAndUndoAll)
{
    const QByteArray main = "#EQU limit, 26 ; \xe4\xa0\r\nstart: load s0,limit;x\n\tadd s0 ,limit[1:0];\xe9\r\n"
                            "call ns::work\njump start";
    open(main, symbolsWindow::otherText);
    const QVector<int> before = words();
    for (QAction* candidate : document->actions()) {
        if (candidate->text().startsWith("Format"))
            candidate->trigger();
    }
    EXPECT_TRUE(document->isModified());
    saveAll();
    const QByteArray after = bytesOf("main.psm");
    EXPECT_NE(after, main);
    EXPECT_TRUE(after.contains("start:  LOAD    s0, limit               ;x\n")) << after.constData();
    EXPECT_EQ(after.count("\r\n"), 2);
    EXPECT_FALSE(after.endsWith('\n'));
    EXPECT_EQ(words(), before);
    document->undo();
    EXPECT_FALSE(document->isUndoAvailable());
    saveAll();
    EXPECT_EQ(bytesOf("main.psm"), main);
}

TEST_F(EditorAttack, aReplacementInSourcesKeepsTheBytesOfEach)
{
    const QByteArray main = QByteArray(symbolsWindow::mainText).replace("\n", "\r\n") + "; \xe4 limit";
    // The document shows the text up to the NUL and can not be written.
    const QByteArray other = QByteArray(symbolsWindow::otherText) + QByteArray("; \0 limit\n", 10);
    open(main, other);
    const QString status = replaceInSources("limit", "top");
    EXPECT_EQ(status, "Replaced: 6; left, as their lines have changed: 1");
    saveAll();
    EXPECT_EQ(bytesOf("main.psm"), QByteArray(main).replace("limit", "top"));
    EXPECT_EQ(bytesOf("sub/other.psm"), other);
    document->undo();
    EXPECT_FALSE(document->isUndoAvailable());
    saveAll();
    EXPECT_EQ(bytesOf("main.psm"), main);
}

TEST_F(EditorAttack, whatWasFoundMayBeGoneWhenItIsReplaced)
{
    open();
    // The file, the document and some of its lines.
    EXPECT_EQ(replaceInSources("limit", "top",
                               [this] {
                                   QFile::remove(projectDir() + "/sub/other.psm");
                                   document->setText("#EQU limit, 26\n");
                               }),
              "Replaced: 1; left, as their lines have changed: 5");
    EXPECT_EQ(document->toPlainText(), "#EQU top, 26\n");
    EXPECT_EQ(documentOf("sub/other.psm"), nullptr);
    document->clearModified();
    const QString status = replaceInSources("top", "limit", [this] { module<nsModPrj::ModPrj>()->closePrj(); });
    EXPECT_EQ(status, "");
    EXPECT_EQ(bytesOf("main.psm"), QByteArray(symbolsWindow::mainText));
}

TEST_F(EditorAttack, whatIsClosedUnderTheListOfWordsTakesItAlong)
{
    writeSetting("ModSymbols/completionEn", "1");
    writeSetting("ModEditor/textCompleterPrefixLength", "2");
    open();
    // Its document.
    typeForList(document);
    document->clearModified();
    editor()->removeWidgetRequest(document);
    QApplication::processEvents();
    document = openFile("main.psm");
    // Its text.
    typeForList(document);
    document->setText("start: JUMP start");
    EXPECT_EQ(listOf(document), nullptr);
    QTest::keyClick(document, Qt::Key_Return);
    EXPECT_EQ(document->toPlainText(), "\nstart: JUMP start");
    // An undo, and another document in front.
    typeForList(document);
    document->undo();
    EXPECT_EQ(listOf(document), nullptr);
    typeForList(document);
    openFile("sub/other.psm");
    EXPECT_TRUE(QTest::qWaitFor([this] { return listOf(document) == nullptr; }, 60000));
    editor()->selectFile(document->filePath());
    // The run that ends under it, and the project.
    typeForList(document);
    saveAll();
    QTest::keyClick(document, Qt::Key_Down);
    QTest::keyClick(document, Qt::Key_Tab);
    typeForList(document);
    for (EditorWidget* widget : editor()->editorWidgets())
        widget->clearModified();
    EXPECT_TRUE(module<nsModPrj::ModPrj>()->closePrj());
    QApplication::processEvents();
    // The program.
    EXPECT_TRUE(module<nsModPrj::ModPrj>()->openPrj(projectDir() + "/names.nalvo"));
    document = openFile("main.psm");
    typeForList(document);
    document->clearModified();
    window.reset();
}

TEST_F(EditorAttack, jumpsShowWhatIsFolded)
{
    open();
    EditorWidget* other = openFile("sub/other.psm");
    const auto fold = [this, other] {
        editor()->selectFile(document->filePath());
        document->setFocus();
        other->moveCursor(QTextCursor::Start);
        other->folding()->foldAll();
        ASSERT_FALSE(other->document()->findBlockByNumber(1).isVisible());
    };
    // The definition, back, a usage, a hit, a bookmark.
    fold();
    setCursorInto(document, "work");
    key(Qt::Key_F2);
    EXPECT_EQ(place(), "sub/other.psm:2 work");
    EXPECT_TRUE(isSeen(other));
    key(Qt::Key_Left, Qt::AltModifier);
    fold();
    key(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(current(), other);
    EXPECT_TRUE(isSeen(other));
    fold();
    setCursorInto(document, "limit * 2");
    key(Qt::Key_F2, Qt::ShiftModifier);
    usages()->setCurrentItem(usages()->topLevelItem(3));
    key(Qt::Key_Return);
    EXPECT_EQ(place(), "sub/other.psm:2 limit");
    EXPECT_TRUE(isSeen(other));
    other->setBookmark(3);
    fold();
    action("Next bookmark")->trigger();
    EXPECT_EQ(place(), "sub/other.psm:4 ");
    EXPECT_TRUE(isSeen(other));
    // A rename in hidden text, and its undo.
    fold();
    setCursorInto(document, "limit * 2");
    EXPECT_EQ(rename("top"), "");
    EXPECT_TRUE(other->toPlainText().contains("::top"));
    other->undo();
    EXPECT_EQ(other->toPlainText(), symbolsWindow::otherText);
    EXPECT_TRUE(other->textCursor().block().isVisible());
}

TEST_F(EditorAttack, messagesOfWhatIsGone)
{
    open("start: LOAD s0, nowhere\nLOAD s1, missing\nJUMP start\n",
         "#NAMESPACE ns\nwork: LOAD s2, absent\n#ENDNAMESPACE\n");
    EditorWidget* other = openFile("sub/other.psm");
    other->folding()->foldAll();
    editor()->selectFile(document->filePath());
    QStringList places;
    for (int i = 0; i < 3; ++i) {
        action("Next message")->trigger();
        places.append(place());
        EXPECT_TRUE(isSeen(current()));
    }
    places.sort();
    EXPECT_EQ(places, QStringList({"main.psm:1 nowhere", "main.psm:2 missing", "sub/other.psm:2 absent"}));
    // All text, the documents, a file, the project.
    document->selectAll();
    document->cut();
    other->setText(QString());
    for (int i = 0; i < 4; ++i) {
        action("Previous message")->trigger();
        EXPECT_EQ(current()->cursorLine(), 0);
    }
    document->clearModified();
    other->clearModified();
    editor()->closeAllFiles();
    QFile::remove(projectDir() + "/sub/other.psm");
    for (int i = 0; i < 4; ++i)
        action("Next message")->trigger();
    EXPECT_EQ(editor()->editorWidgets().size(), 1);
    module<nsModPrj::ModPrj>()->closePrj();
    action("Next message")->trigger();
    EXPECT_TRUE(editor()->editorWidgets().isEmpty());
}

TEST_F(EditorAttack, theTipOfTheMarginIsTheTextOfTheMessages)
{
    open("start: LOAD s0, a&b\nLOAD s1, \"ab\"\nJUMP start\n", symbolsWindow::otherText);
    for (int line = 0; line < 2; ++line) {
        const QStringList messages = document->messagesAt(line);
        ASSERT_FALSE(messages.isEmpty()) << line;
        const QRect row = document->cursorRect(QTextCursor(document->document()->findBlockByNumber(line)));
        const QPoint pos(document->leftMargin()->width() - 4, row.center().y());
        QToolTip::hideText();
        QHelpEvent event(QEvent::ToolTip, pos, document->leftMargin()->mapToGlobal(pos));
        QApplication::sendEvent(document->leftMargin(), &event);
        const QString tip = QToolTip::text();
        EXPECT_EQ(Qt::mightBeRichText(tip) ? QTextDocumentFragment::fromHtml(tip).toPlainText() : tip,
                  messages.join('\n'));
    }
}

TEST_F(EditorAttack, aLinkWhoseTextGoesIsNoLink)
{
    open();
    QTextCursor cursor(document->document());
    cursor.setPosition(document->toPlainText().indexOf("limit * 2") + 2);
    const QPoint point = document->cursorRect(cursor).center() + QPoint(2, 0);
    QWidget* viewport = document->viewport();
    QMouseEvent move(QEvent::MouseMove, point, viewport->mapToGlobal(point), Qt::NoButton, Qt::NoButton,
                     Qt::ControlModifier);
    QApplication::sendEvent(viewport, &move);
    ASSERT_EQ(viewport->cursor().shape(), Qt::PointingHandCursor);
    QTest::mousePress(viewport, Qt::LeftButton, Qt::ControlModifier, point);
    document->setText("x");
    QTest::mouseRelease(viewport, Qt::LeftButton, Qt::ControlModifier, point);
    QApplication::processEvents();
    EXPECT_EQ(place(), "main.psm:1 ");
    EXPECT_EQ(viewport->cursor().shape(), Qt::IBeamCursor);
    // It is closed between the click and the jump.
    document->setText(symbolsWindow::mainText);
    QTest::mouseClick(viewport, Qt::LeftButton, Qt::ControlModifier, point);
    document->clearModified();
    editor()->removeWidgetRequest(document);
    QApplication::processEvents();
    EXPECT_EQ(documentOf("main.psm"), nullptr);
}

} // namespace
