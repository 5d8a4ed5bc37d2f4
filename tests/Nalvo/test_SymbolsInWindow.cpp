// Names of the program in the documents: definitions, usages, other names.

#include "SymbolsWindow.h"

#include <QMessageBox>

namespace {

using nsModEditor::EditorWidget;

class SymbolsInWindow : public SymbolsWindow
{
};

TEST_F(SymbolsInWindow, f2GoesToDefinitionsAndAltLeftBack)
{
    open();
    setCursorInto(document, "limit * 2");
    key(Qt::Key_F2);
    EXPECT_EQ(place(), "main.psm:1 limit");
    setCursorInto(document, "twice ;");
    key(Qt::Key_F2);
    EXPECT_EQ(place(), "main.psm:2 twice");
    // Into a source that is not open.
    setCursorInto(document, "work");
    key(Qt::Key_F2);
    EXPECT_EQ(place(), "sub/other.psm:2 work");
    ASSERT_NE(documentOf("sub/other.psm"), nullptr);
    EXPECT_TRUE(documentOf("sub/other.psm")->hasFocus());
    // From there to the first one, by the name without a namespace.
    setCursorInto(current(), "limit");
    key(Qt::Key_F2);
    EXPECT_EQ(place(), "main.psm:1 limit");
    key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(place(), "sub/other.psm:2 ");
    key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(place(), "main.psm:5 ");
    key(Qt::Key_Left, Qt::AltModifier);
    key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(place(), "main.psm:2 ");
    EXPECT_FALSE(action("Back")->isEnabled());
    key(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(place(), "main.psm:4 ");
    EXPECT_TRUE(action("Back")->isEnabled());
}

TEST_F(SymbolsInWindow, backOpensADocumentThatWasClosed)
{
    openAndJumpTwice();
    EditorWidget* other = documentOf("sub/other.psm");
    // A line above the place, and then it is closed.
    QTextCursor cursor(other->document());
    cursor.insertText("; new\n");
    other->clearModified();
    editor()->removeWidgetRequest(other);
    ASSERT_EQ(documentOf("sub/other.psm"), nullptr);
    key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(place().left(14), "sub/other.psm:");
    // A file that is gone: nothing happens.
    setCursorInto(current(), "RET");
    const int count = editor()->editorWidgets().size();
    editor()->closeAllFiles();
    QFile::remove(projectDir() + "/main.psm");
    key(Qt::Key_Left, Qt::AltModifier);
    key(Qt::Key_Right, Qt::AltModifier);
    EXPECT_LE(editor()->editorWidgets().size(), count);
}

TEST_F(SymbolsInWindow, placesMoveWithTheText)
{
    open();
    document->setCursorPos(0);
    QTest::keyClicks(document, "; a new first line");
    QTest::keyClick(document, Qt::Key_Return);
    setCursorInto(document, "limit * 2");
    key(Qt::Key_F2);
    EXPECT_EQ(place(), "main.psm:2 limit");
    // A name that no run has seen yet.
    document->moveCursor(QTextCursor::End);
    QTest::keyClicks(document, "fresh: JUMP fresh");
    document->setCursorPos(document->toPlainText().size() - 1);
    key(Qt::Key_F2);
    EXPECT_EQ(place(), "main.psm:11 fresh");
}

TEST_F(SymbolsInWindow, ctrlAndAClickGoToTheDefinition)
{
    open();
    const int pos = document->toPlainText().indexOf("limit * 2") + 2;
    QTextCursor cursor(document->document());
    cursor.setPosition(pos);
    const QPoint point = document->cursorRect(cursor).center() + QPoint(2, 0);
    QWidget* viewport = document->viewport();
    const auto move = [&](Qt::KeyboardModifiers modifiers, const QPoint& to) {
        QMouseEvent event(QEvent::MouseMove, to, viewport->mapToGlobal(to), Qt::NoButton, Qt::NoButton, modifiers);
        QApplication::sendEvent(viewport, &event);
    };
    move(Qt::NoModifier, point);
    EXPECT_EQ(viewport->cursor().shape(), Qt::IBeamCursor);
    move(Qt::ControlModifier, point);
    EXPECT_EQ(viewport->cursor().shape(), Qt::PointingHandCursor);
    ASSERT_FALSE(document->extraSelections().isEmpty());
    EXPECT_EQ(document->extraSelections().last().cursor.selectedText(), "limit");
    EXPECT_TRUE(document->extraSelections().last().format.fontUnderline());
    QTest::keyRelease(document, Qt::Key_Control);
    EXPECT_EQ(viewport->cursor().shape(), Qt::IBeamCursor);
    // On a mnemonic it is an ordinary click.
    const QPoint mnemonic(document->cursorRect(QTextCursor(document->document()->findBlockByNumber(3))).center());
    move(Qt::ControlModifier, mnemonic + QPoint(6, 0));
    EXPECT_EQ(viewport->cursor().shape(), Qt::IBeamCursor);
    QTest::mouseClick(viewport, Qt::LeftButton, Qt::ControlModifier, point);
    EXPECT_TRUE(QTest::qWaitFor([this] { return place() == "main.psm:1 limit"; }, 60000));
    EXPECT_EQ(viewport->cursor().shape(), Qt::IBeamCursor);
}

TEST_F(SymbolsInWindow, whatIsNoNameSaysSo)
{
    open();
    setCursorInto(document, "limit in a comment");
    const QString before = place();
    key(Qt::Key_F2);
    EXPECT_EQ(place(), before);
    EXPECT_TRUE(statusText().contains("There is no name of the program here."));
    // Text that a condition skips is no usage, but its names lead to their definition.
    setCursorInto(document, "LOAD s1, limit");
    document->setCursorPos(document->cursorPos() + 10);
    key(Qt::Key_F2);
    EXPECT_EQ(place(), "main.psm:1 limit");
    // A document that is no source.
    editor()->newFile("LOAD s0, limit");
    current()->setFocus();
    setCursorInto(current(), "limit");
    key(Qt::Key_F2);
    EXPECT_TRUE(statusText().contains("The document is no source of the project."));
}

TEST_F(SymbolsInWindow, theMenusHaveTheCommands)
{
    open();
    for (const char* text : {"Go to definition", "Find usages", "Rename..."}) {
        ASSERT_NE(action(text), nullptr);
        EXPECT_TRUE(action(text)->isEnabled()) << text;
    }
    QMenu menu;
    menu.addAction("Other");
    emit document->menuRequested(&menu);
    EXPECT_EQ(menu.actions().first()->text(), "Go to definition");
    editor()->closeAllFiles();
    EXPECT_FALSE(action("Go to definition")->isEnabled());
    // No project: the keys do nothing.
    module<nsModPrj::ModPrj>()->closePrj();
    for (int k : {Qt::Key_F2, Qt::Key_F8})
        key(k);
    key(Qt::Key_Left, Qt::AltModifier);
}

TEST_F(SymbolsInWindow, usagesStandInAList)
{
    open();
    setCursorInto(document, "limit * 2");
    key(Qt::Key_F2, Qt::ShiftModifier);
    EXPECT_EQ(usageRows(),
              QStringList({"main.psm:1|Definition|#EQU limit, 26", "main.psm:2|Use|#EQU twice, limit * 2",
                           "main.psm:3|Use|start: LOAD s0, limit", "sub/other.psm:2|Use|work: LOAD s2, ::limit"}));
    EXPECT_TRUE(usages()->hasFocus());
    screenshot("usages");
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_EQ(place(), "main.psm:3 limit");
    EXPECT_TRUE(document->hasFocus());
    // The text moves, and the place with it.
    document->setCursorPos(0);
    QTest::keyClick(document, Qt::Key_Return);
    const QPoint row = usages()->visualItemRect(usages()->topLevelItem(3)).center();
    QTest::mouseClick(usages()->viewport(), Qt::LeftButton, Qt::NoModifier, row);
    QTest::mouseDClick(usages()->viewport(), Qt::LeftButton, Qt::NoModifier, row);
    EXPECT_EQ(place(), "sub/other.psm:2 limit");
    usages()->setCurrentItem(usages()->topLevelItem(1));
    usages()->setFocus();
    key(Qt::Key_Return);
    EXPECT_EQ(place(), "main.psm:3 limit");
    // The same name in another namespace is another name.
    setCursorInto(document, "start");
    key(Qt::Key_F2, Qt::ShiftModifier);
    EXPECT_EQ(usageRows(), QStringList({"main.psm:4|Definition|start: LOAD s0, limit", "main.psm:7|Use|JUMP start"}));
    // Nothing is to be asked at the close.
    document->clearModified();
    module<nsModPrj::ModPrj>()->closePrj();
    EXPECT_TRUE(QTest::qWaitFor([this] { return usages() == nullptr; }, 60000));
}

TEST_F(SymbolsInWindow, aRenameChangesAllSourcesAndNoWord)
{
    open();
    const QVector<int> before = words();
    setCursorInto(document, "limit * 2");
    EXPECT_EQ(rename("top"), "");
    EXPECT_EQ(document->toPlainText().left(60),
              QString("#EQU top, 26\n#EQU twice, top * 2\nstart: LOAD s0, top\nADD s0, twice").left(60));
    // Comments and skipped text stay.
    EXPECT_TRUE(document->toPlainText().contains("; limit in a comment"));
    EXPECT_TRUE(document->toPlainText().contains("LOAD s1, limit"));
    EditorWidget* other = documentOf("sub/other.psm");
    ASSERT_NE(other, nullptr);
    EXPECT_TRUE(other->toPlainText().contains("work: LOAD s2, ::top\n"));
    EXPECT_EQ(current(), document);
    action("Save all")->trigger();
    EXPECT_EQ(words(), before);
    // One step a document.
    QTest::keyClick(document, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(document->toPlainText(), symbolsWindow::mainText);
    other->undo();
    EXPECT_EQ(other->toPlainText(), symbolsWindow::otherText);
    action("Save all")->trigger();
    EXPECT_EQ(words(), before);
}

TEST_F(SymbolsInWindow, aRenameIsRefusedWithWords)
{
    open();
    setCursorInto(document, "limit * 2");
    EXPECT_EQ(rename("twice"), "There is a constant of this name: twice");
    EXPECT_EQ(rename("start"), "There is a label of this name: start");
    EXPECT_EQ(rename("ADD"), "Using instruction as label is not allowed: ADD");
    EXPECT_EQ(rename("a b"), "Found unalowed characters in name.");
    EXPECT_EQ(document->toPlainText(), symbolsWindow::mainText);
    const auto refusal = [this] {
        QString text;
        ModalHelper answer([&text](QDialog* dialog) {
            if (auto* box = qobject_cast<QMessageBox*>(dialog))
                text = box->text();
        });
        key(Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
        return text;
    };
    // A text that is not saved.
    document->moveCursor(QTextCursor::End);
    QTest::keyClicks(document, "NOP");
    setCursorInto(document, "limit * 2");
    EXPECT_EQ(refusal(), "\"main.psm\" has changed since the last run. Save the sources first, which assembles them.");
    // A program with an error.
    document->moveCursor(QTextCursor::End);
    QTest::keyClicks(document, " unknown");
    action("Save all")->trigger();
    setCursorInto(document, "limit * 2");
    EXPECT_TRUE(refusal().startsWith("The last run has not assembled the program."));
    document->moveCursor(QTextCursor::End);
    for (int i = 0; i < 8; ++i)
        QTest::keyClick(document, Qt::Key_Backspace);
    action("Save all")->trigger();
    // No name.
    setCursorInto(document, "26");
    EXPECT_EQ(refusal(), "There is no label and no constant here.");
    // A file that others have changed since.
    writeFile("sub/other.psm", QByteArray(symbolsWindow::otherText) + "; longer\n");
    setCursorInto(document, "limit * 2");
    EXPECT_EQ(refusal(), "The file \"other.psm\" has changed since the last run. Assemble the program first.");
}

TEST_F(SymbolsInWindow, aRenameChangesNothingWhereADocumentCanNotBeChanged)
{
    open();
    openFile("sub/other.psm")->setReadOnly(true);
    document->setFocus();
    editor()->selectFile(document->filePath());
    setCursorInto(document, "limit * 2");
    rename("top");
    EXPECT_EQ(document->toPlainText(), symbolsWindow::mainText);
    EXPECT_TRUE(messageTexts().join('\n').contains("Nothing was renamed."));
}

TEST_F(SymbolsInWindow, theDocumentMayGoWhileTheNameIsAskedFor)
{
    open();
    setCursorInto(document, "limit * 2");
    ModalHelper answer([this](QDialog* dialog) {
        editor()->closeAllFiles();
        module<nsModPrj::ModPrj>()->closePrj();
        auto* edit = dialog->findChild<QLineEdit*>();
        if (edit != nullptr) {
            edit->setText("top");
            QTest::keyClick(edit, Qt::Key_Return);
        }
    });
    key(Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(answer.seen(), 1);
    QFile file(projectDir() + "/main.psm");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), symbolsWindow::mainText);
}

TEST_F(SymbolsInWindow, aDocumentThatWasOpenedAfterTheRunHasItsAddresses)
{
    writeSetting("ModEditor/memPageAddrEn", "1");
    open();
    EditorWidget* other = openFile("sub/other.psm");
    settleAnimations();
    const auto pixels = [](EditorWidget* widget) {
        const QImage image = widget->leftMargin()->grab().toImage();
        int count = 0;
        const int from = widget->symbolMarginWidth() + 2;
        for (int x = from; x < from + widget->memPageAddrMarginWidth() - 4; ++x) {
            for (int y = 0; y < image.height() / 2; ++y)
                count += qGray(image.pixel(x, y)) < 100;
        }
        return count;
    };
    EXPECT_GT(pixels(other), 20);
    // Those of an edited text stay grey when another document comes.
    editor()->removeWidgetRequest(other);
    document->setCursorPos(0);
    QTest::keyClick(document, Qt::Key_Return);
    EXPECT_EQ(pixels(document), 0);
    openFile("sub/other.psm");
    editor()->selectFile(document->filePath());
    EXPECT_EQ(pixels(document), 0);
}

TEST_F(SymbolsInWindow, theListOfConstantsIsThereAfterOpening)
{
    open();
    auto* list = window->findChild<QTreeView*>("equListView");
    ASSERT_NE(list, nullptr);
    EXPECT_EQ(list->model()->rowCount(), 2);
}

} // namespace
