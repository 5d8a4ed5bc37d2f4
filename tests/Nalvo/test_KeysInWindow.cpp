// Keys in the whole window: who gets them depends on where the focus is.

#include "MainWindowFixture.h"

#include "EditorWidget.h"
#include "FindReplaceWidget.h"
#include "ModEditor.h"
#include "ModGuiHookIf.h"
#include "ModPrj.h"
#include "ModProcessor.h"
#include "ProcShell.h"
#include "ProcSimCoreReg.h"
#include "QtPrinters.h"

#include <QAction>
#include <QClipboard>
#include <QDropEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>

using nsModEditor::EditorWidget;

namespace {

const char* const project = "<project version=\"3\"><sources><srcFiles>main.psm:more.psm</srcFiles></sources>"
                            "<ModProcessor><processor>Xilinx PicoBlaze 3</processor></ModProcessor></project>";
const char* const mainText = "start: LOAD s0, 1\nloop: ADD s0, 1\nJUMP loop\n";

class KeysInWindow : public MainWindowFixture
{
protected:
    KeysInWindow()
    {
        writeSetting("ModGui/width", "1400");
        writeSetting("ModGui/height", "900");
        writeFile("main.psm", mainText);
        writeFile("more.psm", "; more\n");
        writeFile("keys.nalvo", project);
        makeWindow();
        EXPECT_TRUE(module<nsModPrj::ModPrj>()->openPrj(projectDir() + "/keys.nalvo"));
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get(), 60000));
    }
    ~KeysInWindow() override
    {
        for (EditorWidget* widget : editor()->editorWidgets())
            widget->clearModified();
    }

    nsModEditor::ModEditor* editor() const { return module<nsModEditor::ModEditor>(); }
    ModGuiHookIf* gui() const { return module<ModGuiHookIf>(); }
    QWidget* page() const { return gui()->currentWidget(ModGuiHookIf::eLocationTabs); }
    EditorWidget* open(const QString& name)
    {
        EXPECT_TRUE(editor()->openFile(projectDir() + '/' + name));
        auto* widget = qobject_cast<EditorWidget*>(page());
        EXPECT_NE(widget, nullptr);
        widget->setFocus();
        return widget;
    }
    QAction* action(const QString& text) const
    {
        for (QAction* candidate : window->findChildren<QAction*>()) {
            if (candidate->text() == text)
                return candidate;
        }
        ADD_FAILURE() << "there is no action " << text.toStdString();
        return nullptr;
    }
    QMenu* menu(const QString& title) const
    {
        for (QAction* entry : window->menuBar()->actions()) {
            if (entry->text() == title)
                return entry->menu();
        }
        return nullptr;
    }
    /// A key goes to the widget with the focus.
    static void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
    }
    /// A key of letters with Alt, which carries the letter as its text.
    static void pressAlt(char letter)
    {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), letter, Qt::AltModifier);
    }
    /// The menu that a letter with Alt opens; it is closed again.
    QString menuOf(char letter) const
    {
        QWidget* focus = QApplication::focusWidget();
        pressAlt(letter);
        auto* open = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        const QString title = open != nullptr ? open->title() : QString();
        for (int times = 0; times < 5 && QApplication::activePopupWidget() != nullptr; ++times)
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
        // The title stays marked, and a second Escape leaves the menu bar.
        if (window->menuBar()->hasFocus())
            QTest::keyClick(window->menuBar(), Qt::Key_Escape);
        // The platform of the tests gives a window no activity back when a menu closes.
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get(), 60000));
        EXPECT_EQ(window->focusWidget(), focus);
        return title;
    }
    QLineEdit* findField() const { return window->findChild<QLineEdit*>("editFind"); }
};

TEST_F(KeysInWindow, tabLeavesAFieldAndTheTextAlone)
{
    EditorWidget* document = open("main.psm");
    press(Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(findField()->hasFocus());
    press(Qt::Key_Tab);
    EXPECT_FALSE(findField()->hasFocus());
    EXPECT_EQ(document->text(), mainText);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(findField()->hasFocus());
    EXPECT_EQ(document->text(), mainText);

    messageView()->setFocus();
    ASSERT_TRUE(messageView()->hasFocus());
    press(Qt::Key_Tab);
    EXPECT_FALSE(messageView()->hasFocus());
    EXPECT_EQ(document->text(), mainText);
}

TEST_F(KeysInWindow, tabGoesFromRegisterToRegister)
{
    EditorWidget* document = open("main.psm");
    action("Save all")->trigger();
    auto* shell = dynamic_cast<nsProc::ProcShell*>(module<nsModProcessor::ModProcessor>()->currentProcessor());
    ASSERT_NE(shell, nullptr);
    shell->actionsSim()->actions().first()->trigger();
    ASSERT_NE(shell->sim(), nullptr);
    auto* core = window->findChild<nsProc::ProcSimCoreReg*>();
    ASSERT_NE(core, nullptr);
    const QList<QLineEdit*> fields = core->findChildren<QLineEdit*>();
    ASSERT_GT(fields.size(), 1);
    gui()->setCurrentWidget(core);
    fields.first()->setFocus();
    ASSERT_TRUE(fields.first()->hasFocus());
    press(Qt::Key_Tab);
    EXPECT_FALSE(fields.first()->hasFocus());
    EXPECT_EQ(document->text(), mainText);
}

TEST_F(KeysInWindow, keysOfTheEditorAreTheEditorsAlone)
{
    EditorWidget* document = open("main.psm");
    press(Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(findField()->hasFocus());
    press(Qt::Key_D, Qt::ControlModifier);
    QTest::keyClick(QApplication::focusWidget(), 'c', Qt::AltModifier | Qt::ShiftModifier);
    press(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    press(Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier);
    menuOf('c');
    EXPECT_EQ(document->text(), mainText);
    messageView()->setFocus();
    press(Qt::Key_D, Qt::ControlModifier);
    menuOf('c');
    press(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(document->text(), mainText);

    // In the editor they act, each once.
    document->setFocus();
    press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(document->text(), "start: LOAD s0, 1\nstart: LOAD s0, 1\nloop: ADD s0, 1\nJUMP loop\n");
    document->undo();
    document->setCursorPos(0);
    press(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(document->text(), "loop: ADD s0, 1\nstart: LOAD s0, 1\nJUMP loop\n");
    press(Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(document->text(), mainText);
    document->setCursorPos(0);
    pressAlt('c');
    EXPECT_EQ(document->text(), QString(";") + mainText);
    document->undo();
    document->setCursorPos(0);
    press(Qt::Key_Tab);
    EXPECT_EQ(document->text(), QString("\t") + mainText);
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(document->text(), mainText);
}

TEST_F(KeysInWindow, everyDocumentHasTheKeys)
{
    open("main.psm");
    EditorWidget* second = open("more.psm");
    press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(second->text(), "; more\n; more\n");
    EditorWidget* first = open("main.psm");
    press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_TRUE(first->text().startsWith("start: LOAD s0, 1\nstart:"));
}

TEST_F(KeysInWindow, altWithAFirstLetterOpensTheMenu)
{
    EditorWidget* document = open("main.psm");
    for (QAction* entry : window->menuBar()->actions()) {
        EXPECT_FALSE(entry->text().contains('&'));
        const char letter = entry->text().at(0).toLower().toLatin1();
        // In the editor this key comments a line out.
        if (letter == 'c')
            continue;
        SCOPED_TRACE(letter);
        EXPECT_EQ(menuOf(letter), entry->isEnabled() ? entry->text() : QString());
        EXPECT_EQ(document->text(), mainText);
    }
    for (QWidget* widget : {static_cast<QWidget*>(messageView()), static_cast<QWidget*>(document)}) {
        widget->setFocus();
        ASSERT_TRUE(widget->hasFocus());
        EXPECT_EQ(menuOf('f'), "File");
    }
    messageView()->setFocus();
    EXPECT_EQ(menuOf('c'), "Configuration");
    EXPECT_EQ(menuOf('F'), "File");
    press(Qt::Key_F, Qt::ControlModifier);
    findField()->clear();
    EXPECT_EQ(menuOf('f'), "File");
    EXPECT_EQ(findField()->text(), QString());
    EXPECT_EQ(document->text(), mainText);
}

TEST_F(KeysInWindow, anOpenedMenuGoesOnByKeys)
{
    open("main.psm");
    pressAlt('f');
    auto* file = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_EQ(file, menu("File"));
    ASSERT_NE(file->activeAction(), nullptr);
    EXPECT_EQ(file->activeAction()->text(), "New...");
    QTest::keyClick(file, Qt::Key_Return);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    auto* made = qobject_cast<EditorWidget*>(page());
    ASSERT_NE(made, nullptr);
    EXPECT_TRUE(made->filePath().isEmpty());
}

TEST_F(KeysInWindow, altTypesNothing)
{
    EditorWidget* document = open("main.psm");
    for (const char letter : {'q', 'x', '1', ' ', '-'})
        pressAlt(letter);
    QTest::keyClick(document, 'Q', Qt::AltModifier | Qt::ShiftModifier);
    EXPECT_EQ(document->text(), mainText);
    // The right Alt key of some keyboards comes as both modifiers; it types.
    QTest::sendKeyEvent(QTest::Click, document, Qt::Key_BraceLeft, QString("{"), Qt::AltModifier | Qt::ControlModifier);
    EXPECT_EQ(document->text(), QString("{") + mainText);
}

TEST_F(KeysInWindow, pagesOfTheCentreChangeByKey)
{
    EditorWidget* first = open("main.psm");
    EditorWidget* second = open("more.psm");
    const auto next = [&](int key, Qt::KeyboardModifiers modifiers, QWidget* expected) {
        press(key, modifiers);
        EXPECT_EQ(page(), expected);
        EXPECT_EQ(QApplication::focusWidget(), expected);
    };
    const Qt::KeyboardModifiers shift = Qt::ControlModifier | Qt::ShiftModifier;
    gui()->setCurrentWidget(first);
    first->setFocus();
    next(Qt::Key_Tab, Qt::ControlModifier, second);
    next(Qt::Key_Backtab, shift, first);
    next(Qt::Key_PageDown, Qt::ControlModifier, second);
    next(Qt::Key_PageUp, Qt::ControlModifier, first);
    // From anywhere in the window, and around at the ends.
    messageView()->setFocus();
    press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(page(), second);
    QWidget* last = nullptr;
    for (int step = 0; step < 8 && (last == nullptr || page() != second); ++step) {
        press(Qt::Key_Tab, Qt::ControlModifier);
        last = page();
    }
    EXPECT_EQ(page(), second);
    EXPECT_EQ(first->text(), mainText);
    EXPECT_EQ(second->text(), "; more\n");
}

TEST_F(KeysInWindow, findingGoesOnWithTheBarClosed)
{
    EditorWidget* document = open("main.psm");
    press(Qt::Key_F, Qt::ControlModifier);
    findField()->setText("loop");
    press(Qt::Key_Escape);
    ASSERT_FALSE(gui()->widgetVisible(ModGuiHookIf::eLocationCenterBelow));
    ASSERT_TRUE(document->hasFocus());
    document->setCursorPos(0);
    press(Qt::Key_F3);
    EXPECT_EQ(document->textCursor().selectionStart(), 18);
    press(Qt::Key_F3);
    EXPECT_EQ(document->textCursor().selectionStart(), 39);
    press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(document->textCursor().selectionStart(), 18);
    EXPECT_FALSE(gui()->widgetVisible(ModGuiHookIf::eLocationCenterBelow));
    EXPECT_TRUE(document->hasFocus());
}

TEST_F(KeysInWindow, replaceHasAKeyEverywhere)
{
    EditorWidget* document = open("main.psm");
    document->setCursorPos(3);
    press(Qt::Key_H, Qt::ControlModifier);
    EXPECT_EQ(document->text(), mainText);
    auto* field = window->findChild<QLineEdit*>("editReplace");
    ASSERT_NE(field, nullptr);
    EXPECT_TRUE(field->isVisible());
}

TEST_F(KeysInWindow, theSearchStartsWithASelectionOfOneLine)
{
    EditorWidget* document = open("main.psm");
    QTextCursor cursor = document->textCursor();
    cursor.setPosition(0);
    cursor.setPosition(5, QTextCursor::KeepAnchor);
    document->setTextCursor(cursor);
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(findField()->text(), "start");
    // What is typed next takes its place.
    EXPECT_EQ(findField()->selectedText(), "start");
    press(Qt::Key_Escape);
    document->selectAll();
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(findField()->text(), "start");
    EXPECT_EQ(findField()->selectedText(), "start");
}

TEST_F(KeysInWindow, actionsFollowThePage)
{
    const auto expectState = [this](bool document, const char* when) {
        SCOPED_TRACE(when);
        for (const char* text : {"Save", "Save as...", "Reload", "Print...", "Close", "Indent", "Duplicate line"})
            EXPECT_EQ(action(text)->isEnabled(), document) << text;
        EXPECT_TRUE(action("New...")->isEnabled());
    };
    open("main.psm");
    expectState(true, "open");
    action("Close")->trigger();
    expectState(false, "closed");
    EXPECT_FALSE(action("Save all")->isEnabled());
    EXPECT_FALSE(action("Undo...")->isEnabled());

    EditorWidget* document = open("main.psm");
    open("more.psm");
    QTest::keyClicks(document, "x");
    gui()->setCurrentWidget(document);
    EXPECT_TRUE(action("Undo...")->isEnabled());
    EXPECT_TRUE(action("Close all other documents")->isEnabled());
    action("Close all other documents")->trigger();
    EXPECT_FALSE(action("Close all other documents")->isEnabled());
    document->clearModified();
    action("Close all")->trigger();
    expectState(false, "all closed");
    EXPECT_FALSE(action("Undo...")->isEnabled());
}

TEST_F(KeysInWindow, actionsFollowThePageOfAProjectWithoutALastFile)
{
    writeFile("pages.nalvo", QByteArray(project).replace("</sources>", "</sources><ModEditor><openFiles>main.psm"
                                                                       "</openFiles></ModEditor>"));
    ASSERT_TRUE(module<nsModPrj::ModPrj>()->openPrj(projectDir() + "/pages.nalvo"));
    ASSERT_NE(qobject_cast<EditorWidget*>(page()), nullptr);
    for (const char* text : {"Save", "Reload", "Print...", "Close", "Indent", "Save all"})
        EXPECT_TRUE(action(text)->isEnabled()) << text;
    ASSERT_TRUE(module<nsModPrj::ModPrj>()->closePrj());
    for (const char* text :
         {"Save", "Reload", "Print...", "Close", "Indent", "Save all", "New...", "Open...", "Undo..."})
        EXPECT_FALSE(action(text)->isEnabled()) << text;
}

TEST_F(KeysInWindow, droppedFilesAreOpened)
{
    EditorWidget* document = open("main.psm");
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(projectDir() + "/more.psm")});
    QDragEnterEvent enter(QPoint(50, 20), Qt::CopyAction | Qt::MoveAction, &files, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(document->viewport(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDragMoveEvent move(QPoint(50, 20), Qt::CopyAction | Qt::MoveAction, &files, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(document->viewport(), &move);
    EXPECT_TRUE(move.isAccepted());
    QDropEvent drop(QPoint(50, 20), Qt::CopyAction | Qt::MoveAction, &files, Qt::LeftButton, Qt::NoModifier);
    drop.setDropAction(Qt::MoveAction);
    QApplication::sendEvent(document->viewport(), &drop);
    EXPECT_TRUE(drop.isAccepted());
    // Whoever gave the file away must not take it for moved.
    EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
    const auto shown = [this] {
        auto* widget = qobject_cast<EditorWidget*>(page());
        return widget != nullptr ? widget->filePath() : QString();
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return shown() == projectDir() + "/more.psm"; }, 60000));
    EXPECT_EQ(document->text(), mainText);
}

TEST_F(KeysInWindow, droppedTextIsText)
{
    EditorWidget* document = open("main.psm");
    QMimeData text;
    text.setText("; dropped ");
    const QPoint at = document->cursorRect().center();
    QDragEnterEvent enter(at, Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(document->viewport(), &enter);
    QDragMoveEvent move(at, Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(document->viewport(), &move);
    QDropEvent drop(at, Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(document->viewport(), &drop);
    EXPECT_EQ(document->text(), QString("; dropped ") + mainText);
}

} // namespace
