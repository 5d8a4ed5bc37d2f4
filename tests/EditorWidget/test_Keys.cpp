// Keys, wheel, text and font.

#include "EditorFixture.h"

#include "EditorTipManager.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QStringListModel>

/// Outside all namespaces, as the macro demands.
static void initResources()
{
    Q_INIT_RESOURCE(nalvo);
}

namespace {

using nsModEditor::EditorWidget;

using Keys = EditorTest;

TEST_F(Keys, ReturnCopiesTheBlanksInFrontOfTheCursor)
{
    editor->setText("\t  code more");
    editor->setAutoReturnIndentEn(true);
    moveTo(0, 7);
    QTest::keyClick(editor.get(), Qt::Key_Return);
    EXPECT_EQ(text(), QString("\t  code\n\t   more"));
    EXPECT_EQ(column(), 3);
    // Only what stands in front of the cursor counts.
    moveTo(0, 1);
    QTest::keyClick(editor.get(), Qt::Key_Return);
    EXPECT_EQ(text(), QString("\t\n\t  code\n\t   more"));
    editor->undo();
    editor->undo();
    EXPECT_EQ(text(), QString("\t  code more"));
    EXPECT_FALSE(editor->isUndoAvailable());
}

TEST_F(Keys, ReturnWithoutAutoIndent)
{
    editor->setText("\tcode");
    moveTo(0, 5);
    QTest::keyClick(editor.get(), Qt::Key_Return);
    EXPECT_EQ(text(), QString("\tcode\n"));
}

TEST_F(Keys, EnterOfTheKeypadDoesNotIndent)
{
    editor->setText("\tcode");
    editor->setAutoReturnIndentEn(true);
    moveTo(0, 5);
    QTest::keyClick(editor.get(), Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(text(), QString("\tcode\n"));
}

TEST_F(Keys, ReturnWithShiftBreaksTheLineForTheDocumentToo)
{
    editor->setText("\tcode");
    editor->setAutoReturnIndentEn(true);
    moveTo(0, 3);
    QTest::keyClick(editor.get(), Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_EQ(editor->blockCount(), 2);
    QTest::keyClick(editor.get(), Qt::Key_Enter, Qt::ShiftModifier);
    EXPECT_EQ(editor->blockCount(), 3);
    EXPECT_EQ(text(), QString("\tco\n\t\nde"));
}

TEST_F(Keys, ReturnWithControlInsertsNothing)
{
    editor->setText("\tcode");
    editor->setAutoReturnIndentEn(true);
    moveTo(0, 5);
    QTest::keyClick(editor.get(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(text(), QString("\tcode"));
}

TEST_F(Keys, InsertTogglesTheMode)
{
    editor->setText("abc");
    QSignalSpy action(editor.get(), &EditorWidget::actionChanged);
    QTest::keyClick(editor.get(), Qt::Key_Insert);
    EXPECT_TRUE(editor->overwriteMode());
    EXPECT_EQ(action.count(), 1);
    QTest::keyClicks(editor.get(), "x");
    EXPECT_EQ(text(), QString("xbc"));
    QTest::keyClick(editor.get(), Qt::Key_Insert);
    EXPECT_FALSE(editor->overwriteMode());
    // With Control it copies, as everywhere.
    QTest::keyClick(editor.get(), Qt::Key_Insert, Qt::ControlModifier);
    EXPECT_FALSE(editor->overwriteMode());
}

TEST_F(Keys, TypingAndControlSpaceOpenNoList)
{
    QStringListModel words({"counter", "counterHigh"});
    editor->setTextCompletionList(&words);
    editor->setTextCompletionEn(true);
    editor->setTextCompleterPrefixLength(1);
    auto* completer = editor->findChild<QCompleter*>();
    ASSERT_NE(completer, nullptr);
    QTest::keyClicks(editor.get(), "count");
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_FALSE(completer->popup()->isVisible());
    // To the text edit this is no key of its own: what it leaves alone goes on to the window.
    QPlainTextEdit plain;
    QKeyEvent toBase(QEvent::KeyPress, Qt::Key_Space, Qt::ControlModifier, " ");
    QApplication::sendEvent(&plain, &toBase);
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Space, Qt::ControlModifier, " ");
    QApplication::sendEvent(editor.get(), &event);
    EXPECT_EQ(event.isAccepted(), toBase.isAccepted());
    EXPECT_EQ(text(), "count" + plain.toPlainText());
    EXPECT_EQ(text(), QString("count"));
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_FALSE(completer->popup()->isVisible());
    EXPECT_EQ(completer->completionPrefix(), QString());
}

TEST_F(Keys, TheCompleterIsSetUp)
{
    QStringListModel words({"counter", "counterHigh"});
    editor->setTextCompletionList(&words);
    auto* completer = editor->findChild<QCompleter*>();
    ASSERT_NE(completer, nullptr);
    EXPECT_EQ(completer->model(), &words);
    EXPECT_EQ(completer->caseSensitivity(), Qt::CaseSensitive);
    EXPECT_EQ(completer->completionMode(), QCompleter::PopupCompletion);
    EXPECT_FALSE(completer->wrapAround());
    EXPECT_EQ(completer->widget(), editor.get());
    editor->setTextCompleterItemCount(4);
    EXPECT_EQ(completer->maxVisibleItems(), 4);
}

TEST_F(Keys, AltTypesNothing)
{
    QKeyEvent event(QEvent::KeyPress, Qt::Key_F, Qt::AltModifier, "f");
    QApplication::sendEvent(editor.get(), &event);
    // Left to the window, which may have a menu for it.
    EXPECT_FALSE(event.isAccepted());
    QTest::keyClick(editor.get(), 'F', Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_EQ(text(), QString());
    QTest::sendKeyEvent(QTest::Click, editor.get(), Qt::Key_At, QString("@"), Qt::AltModifier | Qt::ControlModifier);
    EXPECT_EQ(text(), QString("@"));
}

TEST_F(Keys, AChosenCompletionIsFinished)
{
    QStringListModel words({"counter", "counterHigh"});
    editor->setTextCompletionList(&words);
    editor->setText("count rest");
    moveTo(0, 5);
    auto* completer = editor->findChild<QCompleter*>();
    completer->setCompletionPrefix("count");
    emit completer->activated(QString("counterHigh"));
    EXPECT_EQ(text(), QString("counterHigh rest"));
    EXPECT_EQ(column(), 11);
}

TEST_F(Keys, WheelWithControlZoomsWithinBounds)
{
    editor->setTabIndent(4);
    QSignalSpy action(editor.get(), &EditorWidget::actionChanged);
    const qreal tab = editor->tabStopDistance();
    const int width = editor->leftMarginWidth();
    wheel(editor->viewport(), QPoint(0, 480), Qt::ControlModifier);
    EXPECT_EQ(editor->fontSize(), 10);
    EXPECT_EQ(editor->font().pointSize(), 10);
    EXPECT_EQ(action.count(), 1);
    for (int step = 0; step < 5; ++step)
        wheel(editor->leftMargin(), QPoint(0, 120), Qt::ControlModifier);
    EXPECT_EQ(editor->fontSize(), 15);
    EXPECT_GT(editor->tabStopDistance(), tab);
    EXPECT_GT(editor->leftMarginWidth(), width);
    for (int step = 0; step < 20; ++step)
        wheel(editor->viewport(), QPoint(0, -120), Qt::ControlModifier);
    EXPECT_EQ(editor->fontSize(), 4);
    EXPECT_EQ(editor->font().pointSize(), 4);
    editor->grab();
    // The steps against the bound do not count.
    wheel(editor->viewport(), QPoint(0, 1), Qt::ControlModifier);
    EXPECT_EQ(editor->fontSize(), 5);
    for (int step = 0; step < 100; ++step)
        wheel(editor->viewport(), QPoint(0, 120), Qt::ControlModifier);
    EXPECT_EQ(editor->fontSize(), 72);
    EXPECT_EQ(editor->font().pointSize(), 72);
    wheel(editor->viewport(), QPoint(0, -120), Qt::ControlModifier);
    EXPECT_EQ(editor->fontSize(), 71);
}

TEST_F(Keys, TheZoomIsKeptUntilItIsReset)
{
    for (int step = 0; step < 3; ++step)
        wheel(editor->viewport(), QPoint(0, 120), Qt::ControlModifier);
    EXPECT_EQ(editor->fontSize(), 12);
    // The settings are applied anew at many occasions.
    editor->setFont(QFont("DejaVu Sans Mono", 9));
    EXPECT_EQ(editor->fontSize(), 12);
    EXPECT_EQ(editor->font().pointSize(), 12);
    editor->setFont(QFont("DejaVu Sans Mono", 11));
    EXPECT_EQ(editor->fontSize(), 14);
    QSignalSpy action(editor.get(), &EditorWidget::actionChanged);
    editor->resetZoom();
    EXPECT_EQ(editor->fontSize(), 11);
    EXPECT_EQ(editor->font().pointSize(), 11);
    EXPECT_GE(action.count(), 1);
    editor->setFont(QFont("DejaVu Sans Mono", 500));
    EXPECT_EQ(editor->fontSize(), 72);
    editor->setFont(QFont("DejaVu Sans Mono", 1));
    EXPECT_EQ(editor->fontSize(), 4);
}

TEST_F(Keys, OtherWheelsScroll)
{
    editor->setText(numberedLines(200));
    const int size = editor->fontSize();
    wheel(editor->viewport(), QPoint(0, -120), Qt::NoModifier);
    const int first = editor->verticalScrollBar()->value();
    EXPECT_GT(first, 0);
    wheel(editor->leftMargin(), QPoint(0, -120), Qt::NoModifier);
    EXPECT_GT(editor->verticalScrollBar()->value(), first);
    wheel(editor->viewport(), QPoint(120, 0), Qt::ControlModifier);
    EXPECT_EQ(editor->fontSize(), size);
}

TEST_F(Keys, SetFontTellsTheSize)
{
    QSignalSpy action(editor.get(), &EditorWidget::actionChanged);
    QFont font("DejaVu Sans Mono", 13);
    editor->setFont(font);
    EXPECT_EQ(editor->fontSize(), 13);
    EXPECT_EQ(editor->font().styleStrategy(), QFont::PreferAntialias);
    EXPECT_EQ(action.count(), 1);
    editor->setTabIndent(6);
    EXPECT_NEAR(editor->tabStopDistance(), QFontMetricsF(editor->font()).horizontalAdvance("xxxxxx"), 0.01);
    editor->setTabIndent(0);
    EXPECT_GT(editor->tabStopDistance(), 0);
}

TEST_F(Keys, LineWrapIsSwitched)
{
    EXPECT_EQ(editor->lineWrapMode(), QPlainTextEdit::NoWrap);
    editor->setDynamicLineWrapEn(true);
    EXPECT_EQ(editor->lineWrapMode(), QPlainTextEdit::WidgetWidth);
    editor->setDynamicLineWrapEn(false);
    EXPECT_EQ(editor->lineWrapMode(), QPlainTextEdit::NoWrap);
}

TEST_F(Keys, SetTextBeginsAnew)
{
    editor->setText("one\ntwo");
    QTest::keyClicks(editor.get(), "abc");
    editor->setSimBreakpoint(1);
    moveTo(1, 2);
    QSignalSpy modified(editor.get(), &EditorWidget::modifiedChanged);
    editor->setText("three\nfour");
    EXPECT_EQ(modified.count(), 1);
    EXPECT_FALSE(editor->isModified());
    EXPECT_FALSE(editor->isUndoAvailable());
    EXPECT_FALSE(editor->isRedoAvailable());
    EXPECT_EQ(editor->cursorPos(), 0);
    EXPECT_EQ(editor->simBreakpoints(), QList<int>{1});
    EXPECT_TRUE(editor->updatesEnabled());
}

TEST_F(Keys, ModificationIsToldWhenItChanges)
{
    editor->setText("one");
    QSignalSpy modified(editor.get(), &EditorWidget::modifiedChanged);
    QTest::keyClicks(editor.get(), "ab");
    EXPECT_EQ(modified.count(), 1);
    EXPECT_TRUE(editor->isModified());
    editor->clearModified();
    EXPECT_EQ(modified.count(), 2);
    EXPECT_FALSE(editor->isModified());
    QTest::keyClicks(editor.get(), "c");
    EXPECT_EQ(modified.count(), 3);
    // The key of the text edit, which does not go through undo() of the document.
    QTest::keyClick(editor.get(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_FALSE(editor->isModified());
    EXPECT_EQ(modified.count(), 4);
    editor->rehighlight();
    EXPECT_EQ(modified.count(), 4);
    // A document is not modified by what is selected in it.
    editor->setSelectionHighlightEn(true);
    editor->selectAll();
    EXPECT_FALSE(editor->isModified());
    editor->redo();
    EXPECT_TRUE(editor->isModified());
    EXPECT_GE(modified.count(), 5);
}

TEST_F(Keys, ActionsAreTold)
{
    editor->setText("one");
    QSignalSpy action(editor.get(), &EditorWidget::actionChanged);
    QTest::keyClick(editor.get(), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_TRUE(editor->hasSelection());
    EXPECT_EQ(action.count(), 1);
    QTest::keyClicks(editor.get(), "x");
    EXPECT_GE(action.count(), 2);
    EXPECT_TRUE(editor->isUndoAvailable());
    action.clear();
    editor->undo();
    EXPECT_GE(action.count(), 1);
    EXPECT_TRUE(editor->isRedoAvailable());
    EXPECT_EQ(action.first().first().value<nsModEditor::EditorWidget*>(), editor.get());
}

TEST_F(Keys, InsertedTextReplacesTheSelection)
{
    editor->setText("one two");
    select(0, 3);
    editor->insertText("a\nb");
    EXPECT_EQ(text(), QString("a\nb two"));
    EXPECT_EQ(editor->cursorPos(), 3);
}

TEST_F(Keys, TextForTheFileKeepsItsCharacters)
{
    const QString special = QString("a") + QChar(0xa0) + "b\n" + QChar(0x20ac);
    editor->setText(special);
    EXPECT_EQ(editor->text(), special);
}

TEST_F(Keys, BinaryContentAndHugeLinesAreBorne)
{
    QString binary;
    for (int value = 0; value < 3000; ++value)
        binary += QChar(value * 37 % 0xffff);
    editor->setText(binary);
    editor->grab();
    editor->selectAll();
    editor->indent();
    editor->commentOut();
    editor->grab();
    editor->setText(QString(300000, 'x') + "\n" + QString(3000, QChar(0)));
    editor->setSelectionHighlightEn(true);
    editor->grab();
    editor->selectAll();
    editor->duplicateLine();
    editor->moveLineUp();
    editor->grab();
    EXPECT_EQ(editor->blockCount(), 3);
}

TEST_F(Keys, TheSharedTipSurvivesTheDocument)
{
    initResources();
    nsModEditor::EditorTipManager tip;
    editor->setTipManager(&tip);
    QString word = "REG";
    tip.showTip(editor.get(), QPoint(3, 4), word);
    EXPECT_EQ(tip.parentWidget(), editor.get());
    EXPECT_TRUE(tip.isVisible());
    EXPECT_TRUE(tip.isWindow());
    editor.reset();
    EXPECT_EQ(tip.parentWidget(), nullptr);
}

} // namespace
