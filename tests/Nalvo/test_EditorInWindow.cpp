// Writing a program in the whole window: from the key press to the bytes of the output files, and the ways between the
// panels.

#include "ExampleFolder.h"
#include "MainWindowFixture.h"
#include "ModalHelper.h"

#include "EditorMemPageAddrMap.h"
#include "EditorSupportMenu.h"
#include "EditorWidget.h"
#include "EditorWidgetLeftMargin.h"
#include "ModEditor.h"
#include "ModGuiHookIf.h"
#include "ModPrj.h"
#include "ModSources.h"

#include <QAction>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTextBlock>
#include <QToolButton>

using nsModEditor::EditorWidget;

namespace {

class EditorInWindow : public MainWindowFixture
{
protected:
    EditorInWindow()
    {
        copyFolder(NALVO_SOURCE_DIR "/examples", projectDir());
        QString project = QString::fromUtf8(content(projectFile()));
        // The project writes its hex file when a source is saved.
        project.replace("<hex>", "<hex><writeFileEventSave>1</writeFileEventSave>");
        writeFile("uart_monitor/uart_monitor.nalvo", project.toUtf8());
        writeSetting("ModGui/width", "1400");
        writeSetting("ModGui/height", "860");
        makeWindow();
        EXPECT_TRUE(module<nsModPrj::ModPrj>()->openPrj(projectFile()));
        window->activateWindow();
    }
    ~EditorInWindow() override
    {
        for (EditorWidget* widget : editor()->editorWidgets())
            widget->clearModified();
    }

    QString projectFile() const { return projectDir() + "/uart_monitor/uart_monitor.nalvo"; }
    QString source(const QString& name) const { return projectDir() + "/uart_monitor/src/" + name; }
    QString hexFile() const { return projectDir() + "/uart_monitor/output/uart_monitor_rom.hex"; }
    static QByteArray content(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    nsModEditor::ModEditor* editor() const { return module<nsModEditor::ModEditor>(); }
    EditorWidget* open(const QString& name)
    {
        EXPECT_TRUE(editor()->openFile(source(name)));
        return current();
    }
    EditorWidget* current() const
    {
        return qobject_cast<EditorWidget*>(module<ModGuiHookIf>()->currentWidget(ModGuiHookIf::eLocationTabs));
    }
    QAction* action(const QString& text) const
    {
        for (QAction* candidate : window->findChildren<QAction*>()) {
            if (candidate->text() == text)
                return candidate;
        }
        return nullptr;
    }
    QTreeWidgetItem* messageItem(const QString& start) const
    {
        for (QTreeWidgetItemIterator it(messageView()); *it != nullptr; ++it) {
            if ((*it)->text(0).startsWith(start))
                return *it;
        }
        return nullptr;
    }
    QTreeWidgetItem* naviItem(const QString& title) const
    {
        auto* tree = window->findChild<QTreeWidget*>("codeNavi");
        const QList<QTreeWidgetItem*> items =
            tree != nullptr ? tree->findItems(title, Qt::MatchExactly | Qt::MatchRecursive) : QList<QTreeWidgetItem*>();
        return items.isEmpty() ? nullptr : items.first();
    }
    static void clickItem(QTreeWidget* tree, QTreeWidgetItem* item, int column, bool twice = false)
    {
        tree->scrollToItem(item);
        const QPoint pos = tree->visualItemRect(item).center();
        const QPoint at(tree->columnViewportPosition(column) + 10, pos.y());
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, column == 0 ? pos : at);
        if (twice)
            QTest::mouseDClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, pos);
    }
};

TEST_F(EditorInWindow, theRoadOfOneSave)
{
    EditorWidget* widget = open("main.psm");
    ASSERT_NE(widget, nullptr);
    EXPECT_FALSE(QFile::exists(hexFile()));
    widget->setFocus();
    widget->moveCursor(QTextCursor::End);
    QTest::keyClick(widget, Qt::Key_Return);
    QTest::keyClicks(widget, "        LOAD s0, 0x5A");
    QTest::keyClick(widget, Qt::Key_Return);
    EXPECT_TRUE(widget->isModified());
    action("Save all")->trigger();

    EXPECT_FALSE(widget->isModified());
    EXPECT_TRUE(content(source("main.psm")).contains("LOAD s0, 0x5A"));
    EXPECT_NE(messageItem("Writing IO device"), nullptr);
    EXPECT_EQ(messageItem("Failure"), nullptr);
    EXPECT_EQ(content(hexFile()).count('\n'), 1024);
    EXPECT_TRUE(content(hexFile()).contains("0005A\n"));
}

TEST_F(EditorInWindow, saveKeyOfTheKeyboardSavesEverything)
{
    EditorWidget* widget = open("main.psm");
    widget->setFocus();
    QTest::keyClicks(widget, "; typed ");
    EXPECT_EQ(action("Save all")->shortcut(), QKeySequence(QKeySequence::Save));
    QTest::keySequence(window.get(), QKeySequence(QKeySequence::Save));
    EXPECT_TRUE(content(source("main.psm")).startsWith("; typed "));
}

TEST_F(EditorInWindow, aClickOnAMessageLeadsToItsLine)
{
    EditorWidget* widget = open("main.psm");
    widget->moveCursor(QTextCursor::End);
    const int line = widget->blockCount() - 1;
    widget->insertText("        LOAD s0, not_there\n");
    widget->setCursorPos(0);
    action("Save all")->trigger();
    QTreeWidgetItem* message = messageItem("Unsupported argument: not_there");
    ASSERT_NE(message, nullptr);
    EXPECT_NE(widget->cursorLine(), line);
    clickItem(messageView(), message, 0);
    EXPECT_EQ(current(), widget);
    EXPECT_EQ(widget->cursorLine(), line);
    screenshot("editor-error");
}

TEST_F(EditorInWindow, theNavigatorLeadsToItsLine)
{
    open("main.psm");
    QTreeWidgetItem* item = naviItem("Scratchpad");
    ASSERT_NE(item, nullptr);
    clickItem(window->findChild<QTreeWidget*>("codeNavi"), item, 0, true);
    ASSERT_NE(current(), nullptr);
    EXPECT_TRUE(current()->textCursor().block().text().contains("Scratchpad"));
    EXPECT_NE(current()->filePath(), source("main.psm"));
}

TEST_F(EditorInWindow, aTagWhoseFileHasGoneIsReported)
{
    QTreeWidgetItem* item = naviItem("Scratchpad");
    ASSERT_NE(item, nullptr);
    QDir(projectDir() + "/uart_monitor/src").removeRecursively();
    clickItem(window->findChild<QTreeWidget*>("codeNavi"), item, 0, true);
    EXPECT_NE(messageItem("Can not select line!"), nullptr);
}

TEST_F(EditorInWindow, insertionMenuOffersLabelsConstantsAndTemplates)
{
    open("main.psm");
    action("Save all")->trigger();
    auto* menu = editor()->supportMenu();
    QStringList top;
    for (const QAction* entry : menu->menu->actions())
        top.append(entry->text());
    for (const char* name :
         {"Attributes", "Defines", "Directives", "Hardware", "Instructions", "Label", "Navigator commands"})
        EXPECT_TRUE(top.contains(name)) << name;
    menu->node({"Instructions", "Arithmetic", "ADD"})->action->trigger();
    EXPECT_TRUE(current()->toPlainText().startsWith("ADD"));
    current()->undo();
    menu->menu->popup(window->mapToGlobal(QPoint(500, 120)));
    QStringList sets;
    for (const QAction* entry : menu->node({"Attributes", "Characer set"})->menu->actions())
        sets.append(entry->text());
    EXPECT_TRUE(sets.contains("UTF-8") && sets.contains("ISO-8859-1")) << qPrintable(sets.join(' '));
    settleLayout();
    screenshot("editor-insertion-menu", menu->menu);
    menu->menu->hide();
}

TEST_F(EditorInWindow, findBarFindsInTheDocument)
{
    EditorWidget* widget = open("uart.psm");
    ASSERT_NE(widget, nullptr);
    action("Replace")->trigger();
    QLineEdit* find = nullptr;
    for (QLineEdit* candidate : window->findChildren<QLineEdit*>()) {
        if (candidate->isVisible() && candidate->hasFocus())
            find = candidate;
    }
    ASSERT_NE(find, nullptr);
    find->selectAll();
    QTest::keyClicks(find, "RDPRT");
    action("Find next")->trigger();
    EXPECT_EQ(widget->textCursor().selectedText(), "RDPRT");
    screenshot("editor-find-replace");
    QTest::keyClick(find, Qt::Key_Escape);
    EXPECT_FALSE(find->isVisible());
}

TEST_F(EditorInWindow, cutCopyAndPasteFollowTheSelection)
{
    EditorWidget* widget = open("main.psm");
    EXPECT_FALSE(action("Cut")->isEnabled());
    EXPECT_TRUE(action("Paste")->isEnabled());
    widget->moveCursor(QTextCursor::NextWord, QTextCursor::KeepAnchor);
    EXPECT_TRUE(action("Cut")->isEnabled());
    action("Copy")->trigger();
    const QString before = widget->toPlainText();
    action("Paste")->trigger();
    EXPECT_EQ(widget->toPlainText(), before);
}

TEST_F(EditorInWindow, closingTheWindowAsksForTheModifiedDocument)
{
    EditorWidget* widget = open("main.psm");
    widget->setFocus();
    QTest::keyClicks(widget, "; kept ");
    ModalHelper helper([](QDialog* dialog) {
        auto* box = qobject_cast<QMessageBox*>(dialog);
        ASSERT_NE(box, nullptr);
        box->button(QMessageBox::Yes)->click();
    });
    EXPECT_TRUE(closeWindow());
    EXPECT_EQ(helper.seen(), 1);
    EXPECT_TRUE(content(source("main.psm")).startsWith("; kept "));
    makeWindow();
}

TEST_F(EditorInWindow, closingTheLastDocumentTurnsTheActionsOfDocumentsOff)
{
    open("main.psm");
    const QStringList names = {"Save all",   "Reload all", "Close all", "Save",
                               "Save as...", "Reload",     "Print...",  "Close"};
    for (const QString& name : names)
        EXPECT_TRUE(action(name)->isEnabled()) << name.toStdString();
    while (!editor()->editorWidgets().isEmpty())
        action("Close")->trigger();
    for (const QString& name : names)
        EXPECT_FALSE(action(name)->isEnabled()) << name.toStdString();
    EXPECT_TRUE(action("New...")->isEnabled());
    EXPECT_EQ(window->findChild<QToolButton*>("editorStatusBarFormat")->text(), "");
}

TEST_F(EditorInWindow, aFileThatChangesOutsideIsFollowedOrReported)
{
    EditorWidget* widget = open("main.psm");
    const QByteArray before = content(source("main.psm"));
    widget->setFocus();
    writeFile("uart_monitor/src/main.psm", "; outside\n" + before);
    ASSERT_TRUE(QTest::qWaitFor([&] { return widget->text().startsWith("; outside\n"); }, 60000));
    EXPECT_TRUE(widget->hasFocus());
    QTest::keyClicks(widget, "; mine ");
    writeFile("uart_monitor/src/main.psm", "; again\n" + before);
    ASSERT_TRUE(QTest::qWaitFor([&] { return widget->findChild<QWidget*>("noticeBar") != nullptr; }, 60000));
    auto* bar = widget->findChild<QWidget*>("noticeBar");
    EXPECT_TRUE(widget->hasFocus());
    EXPECT_TRUE(widget->text().contains("; mine "));
    // The bar stands above the text, and the margin beside the text.
    ASSERT_TRUE(QTest::qWaitFor([&] { return widget->viewport()->geometry().top() >= bar->height(); }, 60000));
    EXPECT_EQ(widget->leftMargin()->geometry().top(), widget->viewport()->geometry().top());
    screenshot("document_changed_outside");
    QTest::keyClick(widget, Qt::Key_F6);
    QWidget* first = QApplication::focusWidget();
    EXPECT_TRUE(bar->isAncestorOf(first));
    const QString text = widget->text();
    QTest::keyClick(first, Qt::Key_Tab);
    EXPECT_TRUE(bar->isAncestorOf(QApplication::focusWidget()));
    EXPECT_NE(QApplication::focusWidget(), first);
    EXPECT_EQ(widget->text(), text);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(widget->hasFocus());
    EXPECT_EQ(content(source("main.psm")), "; again\n" + before);
    ModalHelper helper([](QDialog* dialog) { dialog->reject(); });
    action("Save all")->trigger();
    EXPECT_EQ(helper.seen(), 1);
    EXPECT_EQ(content(source("main.psm")), "; again\n" + before);
}

TEST_F(EditorInWindow, openingAnotherProjectClosesTheDocumentsOfTheFirst)
{
    open("main.psm");
    EXPECT_TRUE(module<nsModPrj::ModPrj>()->openPrj(projectDir() + "/two_pages/two_pages.nalvo"));
    EXPECT_TRUE(editor()->editorWidgets().isEmpty());
    EXPECT_TRUE(module<nsModPrj::ModPrj>()->openPrj(projectFile()));
    // The project remembers what was open in it.
    ASSERT_EQ(editor()->editorWidgets().size(), 1);
    EXPECT_EQ(editor()->editorWidgets().first()->filePath(), source("main.psm"));
}

TEST_F(EditorInWindow, aFileOutsideOfTheProjectAsksForMembership)
{
    const QString path = writeFile("uart_monitor/src/more.psm", "        NOP\n");
    ModalHelper helper([](QDialog* dialog) {
        auto* box = qobject_cast<QMessageBox*>(dialog);
        ASSERT_NE(box, nullptr);
        EXPECT_EQ(box->windowTitle(), "Add file to project");
        box->button(QMessageBox::Yes)->click();
    });
    EXPECT_TRUE(editor()->openFile(path));
    EXPECT_EQ(helper.seen(), 1);
    EXPECT_TRUE(module<ModSourcesHookIf>()->files().contains(path));
}

TEST_F(EditorInWindow, marksAddressesAndAFlaggedLine)
{
    EditorWidget* widget = open("uart.psm");
    action("Save all")->trigger();
    editor()->simEn(true);
    widget->setSimBreakpoint(12);
    widget->setSimBreakpoint(18);
    widget->setSimStartPointer(12);
    widget->setBookmark(15);
    widget->setBookmark(12);
    editor()->setLineHighlighted(widget->filePath(), 20);
    widget->setCursorToLine(14);
    screenshot("editor-marks");
    EXPECT_EQ(widget->simBreakpoints(), QList<int>({12, 18}));
    // A line that comes makes the addresses stale, which shows.
    widget->setCursorPos(0);
    widget->setFocus();
    QTest::keyClick(widget, Qt::Key_Return);
    screenshot("editor-marks-stale");
    EXPECT_EQ(widget->simBreakpoints(), QList<int>({12, 18}));
}

} // namespace
