// Documents in the window: tabs by mouse and keys, quick open, the list of files, and what the status bar says.

#include "MainWindowFixture.h"
#include "ModalAnswers.h"

#include "EditorConfig.h"
#include "EditorWidget.h"
#include "FileListWidget.h"
#include "ModAsmFe.h"
#include "ModEditorHookIf.h"
#include "ModGuiHookIf.h"
#include "ModPrj.h"
#include "ModSourcesHookIf.h"
#include "QtPrinters.h"
#include "QuickOpen.h"
#include "SplashScreen.h"

#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

using nsModEditor::EditorWidget;

namespace {

class DocumentsInWindow : public MainWindowFixture
{
protected:
    DocumentsInWindow()
    {
        writeSetting("ModGui/width", "1280");
        writeSetting("ModGui/height", "900");
        makeWindow();
        window->activateWindow();
        writeFile("a.psm", "alpha:  LOAD s0, 1\n        JUMP alpha\n");
        writeFile("b.psm", "beta:   JUMP beta\n");
        writeFile("c.psm", "gamma:  JUMP gamma\n");
        const QString file = writeFile(
            "files.nalvo", "<project version=\"3\"><PrjInfo><title>T</title></PrjInfo><sources><srcFiles>"
                           "a.psm:b.psm:c.psm</srcFiles></sources><ModProcessor><processor>Xilinx PicoBlaze 3"
                           "</processor></ModProcessor><AsmFe><target><hex><en>1</en><outputFile>out.hex</outputFile>"
                           "</hex></target></AsmFe></project>");
        EXPECT_TRUE(module<nsModPrj::ModPrj>()->openPrj(file));
        settleLayout();
    }

    QString path(const QString& name) const { return projectDir() + '/' + name; }
    ModEditorHookIf* editor() const { return module<ModEditorHookIf>(); }
    void openAll()
    {
        for (const char* name : {"a.psm", "b.psm", "c.psm"})
            ASSERT_TRUE(editor()->openFile(path(name)));
        settleLayout();
    }
    QTabWidget* tabs() const { return window->findChild<QTabWidget*>("widgetAreaTabs"); }
    QString current() const { return tabs()->tabText(tabs()->currentIndex()); }
    QStringList pages() const
    {
        QStringList names;
        for (int i = 0; i < tabs()->count(); ++i)
            names.append(tabs()->tabText(i));
        return names;
    }
    QPoint tabPlace(int index) const { return tabs()->tabBar()->tabRect(index).center(); }
    EditorWidget* document() const { return qobject_cast<EditorWidget*>(tabs()->currentWidget()); }
    /// Opens the menu of a tab and triggers its entry.
    void chooseOfTab(int index, const QString& text)
    {
        emit tabs()->tabBar()->customContextMenuRequested(tabPlace(index));
        chooseOf("tabMenu", text);
    }
    void chooseOf(const char* name, const QString& text)
    {
        QMenu* menu = nullptr;
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == name && widget->isVisible())
                menu = qobject_cast<QMenu*>(widget);
        }
        ASSERT_NE(menu, nullptr) << name;
        for (QAction* action : menu->actions()) {
            if (action->text().remove('&') != text)
                continue;
            ASSERT_TRUE(action->isEnabled()) << qPrintable(text);
            QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(action).center());
            settleLayout();
            return;
        }
        ADD_FAILURE() << "no entry " << qPrintable(text);
    }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWidget* focus = QApplication::focusWidget();
        ASSERT_NE(focus, nullptr);
        QTest::keyClick(focus, key, modifiers);
        settleLayout();
    }
    nsModSrcNavi::FileListWidget* files() const { return window->findChild<nsModSrcNavi::FileListWidget*>(); }
    QTreeWidget* tree() const { return files()->findChild<QTreeWidget*>("fileListTree"); }
    void showFiles()
    {
        module<ModGuiHookIf>()->setCurrentWidget(files());
        settleLayout();
    }
    /// Lines of the panel, as "name: state".
    QStringList lines() const
    {
        settleLayout();
        QStringList result;
        for (QTreeWidgetItemIterator it(tree()); *it != nullptr; ++it) {
            const QString state = (*it)->text(1);
            result.append(state.isEmpty() ? (*it)->text(0) : (*it)->text(0) + ": " + state);
        }
        return result;
    }
    QStringList sources() const
    {
        QStringList names;
        for (const QString& file : module<ModSourcesHookIf>()->files())
            names.append(QFileInfo(file).fileName());
        return names;
    }
    QToolButton* panelButton(const char* name) const { return files()->findChild<QToolButton*>(name); }
    QAction* menuEntry(const QString& menu, const QString& text) const
    {
        for (const QAction* top : window->menuBar()->actions()) {
            if (top->text().remove('&') != menu || top->menu() == nullptr)
                continue;
            for (QAction* entry : top->menu()->actions()) {
                if (entry->text().remove('&') == text)
                    return entry;
            }
        }
        return nullptr;
    }
    QToolButton* tool(const QString& text) const
    {
        settleLayout();
        for (QToolButton* button : window->findChildren<QToolButton*>()) {
            if (button->defaultAction() != nullptr && button->defaultAction()->text() == text && button->isVisible())
                return button;
        }
        return nullptr;
    }
    /// Types into quick open. @return the names that it lists; the first is gone to
    QStringList quickOpen(const QString& typed, int down = 0)
    {
        QStringList names;
        ModalAnswers answers({[&](QDialog* box) {
            auto* edit = box->findChild<QLineEdit*>("quickOpenEdit");
            ASSERT_NE(edit, nullptr);
            QTest::keyClicks(edit, typed);
            const auto* list = box->findChild<QListWidget*>("quickOpenList");
            for (int i = 0; i < list->count(); ++i)
                names.append(list->item(i)->data(Qt::UserRole).toString());
            if (typed == "a")
                screenshot("quick-open", box);
            for (int i = 0; i < down; ++i)
                QTest::keyClick(edit, Qt::Key_Down);
            QTest::keyClick(edit, Qt::Key_Return);
        }});
        QTest::keyClick(window.get(), Qt::Key_P, Qt::ControlModifier);
        EXPECT_EQ(answers.seen(), 1);
        // A window manager would do this when a dialog closes.
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get(), 60000));
        settleLayout();
        return names;
    }
};

} // namespace

// --- tabs ---

TEST_F(DocumentsInWindow, eachTabHasAButtonThatClosesIt)
{
    openAll();
    screenshot("documents-tabs");
    auto* button = qobject_cast<QAbstractButton*>(tabs()->tabBar()->tabButton(1, QTabBar::RightSide));
    ASSERT_NE(button, nullptr);
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(pages(), QStringList({"a.psm", "c.psm"}));
    EXPECT_EQ(current(), "c.psm") << "the page in front stays";
}

TEST_F(DocumentsInWindow, theMiddleButtonClosesThePageOfItsTab)
{
    openAll();
    QTest::mouseClick(tabs()->tabBar(), Qt::MiddleButton, Qt::NoModifier, tabPlace(0));
    EXPECT_EQ(pages(), QStringList({"b.psm", "c.psm"}));
    // Pressed on one tab and let go on another: nothing.
    QTest::mousePress(tabs()->tabBar(), Qt::MiddleButton, Qt::NoModifier, tabPlace(0));
    QTest::mouseRelease(tabs()->tabBar(), Qt::MiddleButton, Qt::NoModifier, tabPlace(1));
    EXPECT_EQ(tabs()->count(), 2);
}

TEST_F(DocumentsInWindow, theMenuOfATab)
{
    openAll();
    chooseOfTab(1, "Copy path");
    EXPECT_EQ(QApplication::clipboard()->text(), path("b.psm"));
    chooseOfTab(1, "Show in file list");
    EXPECT_EQ(files()->currentFile(), path("b.psm"));
    EXPECT_TRUE(files()->isVisible());
    chooseOfTab(1, "Close others");
    EXPECT_EQ(pages(), QStringList("b.psm"));
    openAll();
    chooseOfTab(0, "Close");
    EXPECT_EQ(pages(), QStringList({"a.psm", "c.psm"}));
    chooseOfTab(0, "Close all");
    EXPECT_EQ(tabs()->count(), 0);
}

TEST_F(DocumentsInWindow, closeAllAsksForEachChangedDocument)
{
    openAll();
    QTest::keyClicks(document(), "x");
    ModalAnswers answers({[](QDialog* box) {
        EXPECT_EQ(box->windowTitle(), "File was modified");
        box->reject();
    }});
    chooseOfTab(0, "Close all");
    EXPECT_EQ(answers.seen(), 1);
    EXPECT_EQ(tabs()->count(), 0);
}

TEST_F(DocumentsInWindow, ctrlTabGoesInTheOrderOfUseWithAListWhileItIsHeld)
{
    openAll();
    editor()->openFile(path("a.psm"));
    document()->setFocus();
    settleLayout();
    // Used: a, c, b.
    key(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(current(), "c.psm");
    key(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(current(), "a.psm") << "and back";

    auto* list = window->findChild<QWidget*>("pageSwitcher");
    QTest::keyPress(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_TRUE(list->isVisible());
    QTest::keyPress(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(current(), "b.psm") << "Ctrl is held: further back";
    screenshot("documents-switcher");
    QTest::keyRelease(QApplication::focusWidget(), Qt::Key_Control);
    EXPECT_FALSE(list->isVisible());
    key(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(current(), "a.psm") << "the pages on the way were not used";

    QTest::keyPress(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(current(), "c.psm") << "the one used longest ago";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(current(), "a.psm") << "Esc takes it back";
    EXPECT_FALSE(list->isVisible());
}

TEST_F(DocumentsInWindow, aPageThatClosesUnderTheListIsNoHarm)
{
    openAll();
    document()->setFocus();
    QTest::keyPress(QApplication::focusWidget(), Qt::Key_Tab, Qt::ControlModifier);
    editor()->closeAllFiles();
    QTest::keyPress(window.get(), Qt::Key_Tab, Qt::ControlModifier);
    QTest::keyRelease(window.get(), Qt::Key_Control);
    EXPECT_EQ(tabs()->count(), 0);
    EXPECT_FALSE(window->findChild<QWidget*>("pageSwitcher")->isVisible());
}

// --- quick open ---

TEST_F(DocumentsInWindow, quickOpenFindsFilesAndSymbolsByKeyboardAlone)
{
    QTest::keyClick(window.get(), Qt::Key_B, Qt::ControlModifier);
    settleLayout();
    ASSERT_TRUE(module<nsModAsmFe::ModAsmFe>()->isAssembled()) << "Ctrl+B runs the assembler";
    EXPECT_EQ(quickOpen("bps").value(0), "b.psm");
    EXPECT_EQ(current(), "b.psm");
    EXPECT_EQ(quickOpen("gam").value(0), "gamma");
    EXPECT_EQ(current(), "c.psm");
    quickOpen("a");
    quickOpen("", 1);
    EXPECT_EQ(current(), "c.psm") << "without a letter: the files used last";
    EXPECT_EQ(quickOpen("zzz"), QStringList());
}

TEST_F(DocumentsInWindow, quickOpenLeadsToTheDefinitionOfEveryName)
{
    writeFile("b.psm",
              "#EQU bitMask, 0x1F\n#NAMESPACE uart\nsend:   LOAD s0, bitMask\n        JUMP send\n#ENDNAMESPACE\n"
              "beta:   JUMP beta\n");
    QTest::keyClick(window.get(), Qt::Key_B, Qt::ControlModifier);
    settleLayout();
    ASSERT_TRUE(module<nsModAsmFe::ModAsmFe>()->isAssembled());
    const auto place = [this] {
        const auto* document = qobject_cast<EditorWidget*>(tabs()->currentWidget());
        return document == nullptr ? QString()
                                   : QString("%1:%2 %3")
                                         .arg(current())
                                         .arg(document->cursorLine())
                                         .arg(document->textCursor().selectedText());
    };
    EXPECT_EQ(quickOpen("bitm"), QStringList("bitMask"));
    EXPECT_EQ(place(), "b.psm:0 bitMask");
    EXPECT_EQ(quickOpen("send").value(0), "uart::send");
    EXPECT_EQ(place(), "b.psm:2 send");
    // Behind @ there are names alone.
    EXPECT_TRUE(quickOpen("a").contains("a.psm"));
    const QStringList names = quickOpen("@a");
    EXPECT_TRUE(names.contains("alpha")) << qPrintable(names.join(' '));
    EXPECT_FALSE(names.contains("a.psm"));
    EXPECT_EQ(quickOpen("@alp").value(0), "alpha");
    EXPECT_EQ(place(), "a.psm:0 alpha");
    // It is a jump, which has a way back.
    QTest::keyClick(tabs()->currentWidget(), Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(current(), "b.psm");
    // The text as it stands counts, not that of the run.
    auto* document = qobject_cast<EditorWidget*>(tabs()->currentWidget());
    document->moveCursor(QTextCursor::Start);
    document->insertText("; moved\n");
    quickOpen("bitm");
    EXPECT_EQ(place(), "b.psm:1 bitMask");
    document->clearModified();
}

TEST_F(DocumentsInWindow, quickOpenNeedsAProjectAndEscLeaves)
{
    ModalAnswers answers({[](QDialog* box) { QTest::keyClick(box, Qt::Key_Escape); }});
    QTest::keyClick(window.get(), Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(answers.seen(), 1);
    EXPECT_EQ(tabs()->count(), 0);
    module<nsModPrj::ModPrj>()->closePrj();
    QTest::keyClick(window.get(), Qt::Key_P, Qt::ControlModifier);
    settleLayout();
    EXPECT_EQ(answers.seen(), 1);
}

TEST_F(DocumentsInWindow, theProjectMayCloseUnderQuickOpen)
{
    ModalAnswers answers({[this](QDialog* box) {
        module<nsModPrj::ModPrj>()->closePrj();
        QTest::keyClick(box->findChild<QLineEdit*>("quickOpenEdit"), Qt::Key_Return);
    }});
    QTest::keyClick(window.get(), Qt::Key_P, Qt::ControlModifier);
    EXPECT_FALSE(module<nsModPrj::ModPrj>()->isValid());
}

TEST_F(DocumentsInWindow, recentFilesStandInTheFileMenuAndAreKept)
{
    openAll();
    editor()->closeAllFiles();
    QAction* entry = menuEntry("File", "Recent files");
    ASSERT_NE(entry, nullptr);
    emit entry->menu()->aboutToShow();
    ASSERT_EQ(entry->menu()->actions().size(), 3);
    EXPECT_EQ(entry->menu()->actions().first()->text(), "c.psm");
    entry->menu()->actions().last()->trigger();
    settleLayout();
    EXPECT_EQ(current(), "a.psm");
    ASSERT_TRUE(closeWindow());
    EXPECT_TRUE(readSetting("ModSrcNavi/recentFiles").startsWith(path("a.psm")))
        << qPrintable(readSetting("ModSrcNavi/recentFiles"));
}

// --- list of files ---

TEST_F(DocumentsInWindow, theListShowsTheStateOfEachFile)
{
    showFiles();
    EXPECT_EQ(lines(), QStringList({"Sources", "a.psm", "b.psm", "c.psm", "Outputs", "out.hex: not written yet"}));
    openAll();
    EXPECT_EQ(lines().mid(1, 3), QStringList({"a.psm: open", "b.psm: open", "c.psm: open"}));
    QTest::keyClicks(document(), "NOSUCH ");
    EXPECT_EQ(lines().value(3), "c.psm: changed");
    QTest::keyClick(document(), Qt::Key_S, Qt::ControlModifier);
    settleLayout();
    EXPECT_TRUE(lines().value(3).startsWith("c.psm: ")) << qPrintable(lines().value(3));
    EXPECT_TRUE(lines().value(3).contains("error")) << qPrintable(lines().value(3));
    screenshot("documents-file-list");
    ASSERT_TRUE(QFile::remove(path("b.psm")));
    editor()->closeAllFiles();
    EXPECT_EQ(lines().value(2), "b.psm: missing");
}

TEST_F(DocumentsInWindow, sourcesAreOrderedRemovedAndOpenedByKeys)
{
    showFiles();
    ASSERT_TRUE(files()->select(path("b.psm")));
    tree()->setFocus();
    key(Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(sources(), QStringList({"b.psm", "a.psm", "c.psm"}));
    EXPECT_EQ(files()->currentFile(), path("b.psm")) << "the line goes along";
    EXPECT_FALSE(panelButton("fileListUp")->isEnabled());
    QTest::mouseClick(panelButton("fileListDown"), Qt::LeftButton);
    QTest::mouseClick(panelButton("fileListDown"), Qt::LeftButton);
    settleLayout();
    EXPECT_EQ(sources(), QStringList({"a.psm", "c.psm", "b.psm"}));
    tree()->setFocus();
    key(Qt::Key_Return);
    EXPECT_EQ(current(), "b.psm");
    tree()->setFocus();
    key(Qt::Key_Delete);
    EXPECT_EQ(sources(), QStringList({"a.psm", "c.psm"}));
    EXPECT_TRUE(QFile::exists(path("b.psm"))) << "the file itself stays";
    // The order is that of the project file.
    ASSERT_TRUE(module<nsModPrj::ModPrj>()->save());
    QFile project(path("files.nalvo"));
    ASSERT_TRUE(project.open(QIODevice::ReadOnly));
    EXPECT_TRUE(project.readAll().contains("<srcFiles>a.psm:c.psm</srcFiles>"));
}

TEST_F(DocumentsInWindow, aSourceIsDraggedToItsPlace)
{
    showFiles();
    ASSERT_TRUE(files()->select(path("a.psm")));
    QTreeWidgetItem* group = tree()->topLevelItem(0);
    const QRect last = tree()->visualItemRect(group->child(2));
    QMimeData data;
    const auto drop = [&](const QPoint& place) {
        QDropEvent event(place, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        // Without a drag of the system the application would not hand it on.
        struct Opened : nsModSrcNavi::FileTree
        {
            using FileTree::dropEvent;
        };
        (static_cast<nsModSrcNavi::FileTree*>(tree())->*(&Opened::dropEvent))(&event);
        settleLayout();
    };
    drop(QPoint(last.center().x(), last.bottom() - 1));
    EXPECT_EQ(sources(), QStringList({"b.psm", "c.psm", "a.psm"}));
    // Not among the outputs.
    drop(tree()->visualItemRect(tree()->topLevelItem(1)->child(0)).center());
    EXPECT_EQ(sources(), QStringList({"b.psm", "c.psm", "a.psm"}));
}

TEST_F(DocumentsInWindow, sourcesAreAddedInTheWayOfTheProject)
{
    showFiles();
    QFile outside(folder.filePath("outside.psm"));
    ASSERT_TRUE(outside.open(QIODevice::WriteOnly));
    outside.close();
    const auto take = [](const QString& file) {
        return [file](QDialog* box) {
            EXPECT_EQ(box->windowTitle(), "Select psm template file");
            auto* edit = box->findChild<QLineEdit*>("fileNameEdit");
            edit->setText(file);
            QTest::keyClick(edit, Qt::Key_Return);
        };
    };
    {
        ModalAnswers answers({take(outside.fileName()), [](QDialog* box) {
                                  EXPECT_EQ(box->windowTitle(), "Adding file");
                                  box->accept();
                              }});
        QTest::mouseClick(panelButton("fileListAdd"), Qt::LeftButton);
        EXPECT_EQ(answers.seen(), 2);
    }
    EXPECT_EQ(sources().size(), 3);
    const QString plain = writeFile(QString::fromUtf8("ä 'd'.psm"), "");
    ModalAnswers answers({take(plain)});
    QTest::mouseClick(panelButton("fileListAdd"), Qt::LeftButton);
    settleLayout();
    EXPECT_EQ(sources(), QStringList({"a.psm", "b.psm", "c.psm", QString::fromUtf8("ä 'd'.psm")}));
}

TEST_F(DocumentsInWindow, theProjectMayCloseUnderTheDialogThatAdds)
{
    showFiles();
    ModalAnswers answers({[this](QDialog*) { module<nsModPrj::ModPrj>()->closePrj(); }});
    QTest::mouseClick(panelButton("fileListAdd"), Qt::LeftButton);
    settleLayout();
    EXPECT_FALSE(module<nsModPrj::ModPrj>()->isValid());
    EXPECT_EQ(tree()->topLevelItemCount(), 0);
}

TEST_F(DocumentsInWindow, whileTheSettingsAreOpenTheListLeavesTheSourcesAlone)
{
    showFiles();
    QTest::mouseClick(tool("Configure..."), Qt::LeftButton);
    settleLayout();
    ASSERT_TRUE(files()->select(path("b.psm")));
    tree()->setFocus();
    key(Qt::Key_Delete);
    EXPECT_EQ(sources().size(), 3);
}

// --- status, keys and buttons ---

TEST_F(DocumentsInWindow, theStatusBarShowsLineAndColumn)
{
    openAll();
    auto* position = window->findChild<QLabel*>("editorStatusBarPosition");
    ASSERT_NE(position, nullptr);
    editor()->openFile(path("a.psm"));
    document()->setFocus();
    QTest::keyClick(document(), Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(position->text(), "1:1");
    QTest::keyClick(document(), Qt::Key_Down);
    QTest::keyClick(document(), Qt::Key_Right);
    EXPECT_EQ(position->text(), "2:2");
    editor()->closeAllFiles();
    settleLayout();
    EXPECT_EQ(position->text(), "");
}

TEST_F(DocumentsInWindow, saveHasAButton)
{
    openAll();
    QTest::keyClicks(document(), ";");
    QToolButton* save = tool("Save");
    ASSERT_NE(save, nullptr);
    QTest::mouseClick(save, Qt::LeftButton);
    settleLayout();
    QFile file(path("c.psm"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().startsWith(";gamma"));
}

TEST_F(DocumentsInWindow, theFilesOfAButtonAreNamedBeforeAndAfter)
{
    EXPECT_TRUE(tool("Write output files button 1")->toolTip().contains("out.hex"));
    QTest::keyClick(window.get(), Qt::Key_B, Qt::ControlModifier);
    settleLayout();
    QTest::mouseClick(tool("Write output files button 1"), Qt::LeftButton);
    settleLayout();
    EXPECT_EQ(window->findChild<QStatusBar*>()->currentMessage(), "Written: out.hex");
}

TEST_F(DocumentsInWindow, aReloadKeepsTheUndoWhereThatIsSet)
{
    for (const bool keeps : {false, true}) {
        SCOPED_TRACE(keeps);
        openAll();
        auto* config = module<nsModEditor::EditorConfig>();
        ASSERT_NE(config, nullptr);
        config->reloadKeepsUndo = keeps;
        editor()->setTabIndent(4); // configures all documents anew
        const QString before = document()->toPlainText();
        writeFile("c.psm", "; from elsewhere\n");
        QTest::keyClick(document(), Qt::Key_F5);
        settleLayout();
        EXPECT_EQ(document()->toPlainText(), "; from elsewhere\n");
        QTest::keyClick(document(), Qt::Key_Z, Qt::ControlModifier);
        EXPECT_EQ(document()->toPlainText(), keeps ? before : QString("; from elsewhere\n"));
        ModalAnswers answers({[](QDialog* box) { box->reject(); }});
        editor()->closeAllFiles();
        writeFile("c.psm", before.toUtf8());
    }
}

TEST_F(DocumentsInWindow, theActiveBaseIsChecked)
{
    QTest::keyClick(window.get(), Qt::Key_B, Qt::ControlModifier);
    settleLayout();
    QTest::mouseClick(tool("Enable/disable simulator"), Qt::LeftButton);
    settleLayout();
    QAction* hex = menuEntry("Simulator", "Hex");
    QAction* dec = menuEntry("Simulator", "Dec");
    ASSERT_TRUE(hex != nullptr && dec != nullptr);
    EXPECT_TRUE(hex->isChecked());
    dec->trigger();
    EXPECT_TRUE(dec->isChecked());
    EXPECT_FALSE(hex->isChecked());
    QTest::mouseClick(tool("Enable/disable simulator"), Qt::LeftButton);
}

TEST_F(DocumentsInWindow, theSplashScreenStandsInFrontOfTheWindow)
{
    nsModGui::SplashScreen splash;
    EXPECT_TRUE(splash.windowFlags() & Qt::WindowStaysOnTopHint);
}

// --- long work ---

TEST_F(DocumentsInWindow, aLongRunShowsItsProgressAndIsCancelled)
{
    auto* asmFe = module<nsModAsmFe::ModAsmFe>();
    QByteArray many;
    for (int i = 0; i < 20000; ++i)
        many += "        LOAD s0, 1\n";
    writeFile("c.psm", many);
    writeFile("out.hex", "of an earlier run\n");
    asmFe->setWorkDelay(0);
    for (const bool byKey : {false, true}) {
        SCOPED_TRACE(byKey);
        bool seen = false;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, window.get(), [&] {
            auto* cancel = window->findChild<QToolButton*>("longWorkCancel");
            if (seen || cancel == nullptr || !cancel->isVisible() || !asmFe->isRunning())
                return;
            seen = true;
            // Input for anything else waits.
            QTest::keyClick(window.get(), Qt::Key_P, Qt::ControlModifier);
            EXPECT_FALSE(window->close());
            if (byKey)
                QTest::keyClick(window.get(), Qt::Key_Escape);
            else
                QTest::mouseClick(cancel, Qt::LeftButton);
        });
        timer.start(0);
        asmFe->assemble(nsModAsmFe::AsmFeConfig::eEventButton1);
        timer.stop();
        EXPECT_TRUE(seen);
        EXPECT_FALSE(asmFe->isAssembled());
        QFile out(path("out.hex"));
        EXPECT_TRUE(out.open(QIODevice::ReadOnly));
        EXPECT_EQ(out.readAll(), "of an earlier run\n");
        EXPECT_TRUE(messageTexts().contains("The run was cancelled. The output files are as they were."))
            << qPrintable(messageTexts().join('\n'));
        EXPECT_EQ(window->findChild<QToolButton*>("longWorkCancel"), nullptr) << "the bar has gone";
    }
    asmFe->setWorkDelay(1000);
    writeFile("c.psm", "gamma:  JUMP gamma\n");
    asmFe->assemble(nsModAsmFe::AsmFeConfig::eEventButton1);
    EXPECT_TRUE(asmFe->isAssembled()) << "the next run is whole";
}
