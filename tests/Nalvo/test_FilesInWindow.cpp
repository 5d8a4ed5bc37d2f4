// The panel of files, quick open and recent files under what else happens in the window, and a long run under the
// project.

#include "DeadDisk.h"
#include "LongRun.h"
#include "MainWindowFixture.h"
#include "ModalAnswers.h"

#include "EditorWidget.h"
#include "FileListWidget.h"
#include "ModActionHookIf.h"
#include "ModAsmFe.h"
#include "ModEditorHookIf.h"
#include "ModGuiHookIf.h"
#include "ModPrj.h"
#include "ModSourcesHookIf.h"
#include "QtPrinters.h"
#include "QuickOpen.h"

#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QScrollBar>
#include <QTabWidget>
#include <QTimer>
#include <QToolButton>
#include <QTreeWidget>

using nsModAsmFe::ModAsmFe;
using nsModPrj::ModPrj;

namespace {

class FilesInWindow : public MainWindowFixture
{
protected:
    FilesInWindow()
    {
        writeSetting("ModGui/width", "1280");
        writeSetting("ModGui/height", "900");
    }

    /// Opens a project with sources s0.psm, s1.psm ..., which all assemble.
    void open(int count)
    {
        makeWindow();
        window->activateWindow();
        QStringList names;
        for (int i = 0; i < count; ++i) {
            names.append(QStringLiteral("s%1.psm").arg(i));
            writeFile(names.last(), QStringLiteral("l%1:     JUMP l%1\n").arg(i).toLatin1());
        }
        m_project = writeFile("files.nalvo", "<project version=\"3\"><PrjInfo><title>T</title></PrjInfo><sources>"
                                             "<srcFiles>" +
                                                 names.join(':').toLatin1() +
                                                 "</srcFiles></sources><ModProcessor><processor>Xilinx PicoBlaze 3"
                                                 "</processor></ModProcessor><AsmFe><target><hex><en>1</en><outputFile>"
                                                 "out.hex</outputFile></hex></target></AsmFe></project>");
        ASSERT_TRUE(prj()->openPrj(m_project));
        settleLayout();
    }

    ModPrj* prj() const { return module<ModPrj>(); }
    QString path(const QString& name) const { return projectDir() + '/' + name; }
    QStringList sources() const { return module<ModSourcesHookIf>()->files(); }
    nsModSrcNavi::FileListWidget* files() const { return window->findChild<nsModSrcNavi::FileListWidget*>(); }
    QTreeWidget* tree() const { return files()->findChild<QTreeWidget*>("fileListTree"); }
    QTreeWidgetItem* group(const QString& title) const
    {
        const QList<QTreeWidgetItem*> found = tree()->findItems(title, Qt::MatchExactly);
        return found.isEmpty() ? nullptr : found.first();
    }
    void showFiles()
    {
        module<ModGuiHookIf>()->setCurrentWidget(files());
        settleLayout();
        ASSERT_TRUE(tree()->isVisible());
    }
    QMenu* menuAt(const QPoint& place) const
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, place, tree()->viewport()->mapToGlobal(place));
        QApplication::sendEvent(tree()->viewport(), &event);
        settleLayout();
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (widget->objectName() == "fileListMenu" && widget->isVisible())
                return qobject_cast<QMenu*>(widget);
        }
        return nullptr;
    }
    static QAction* entry(const QMenu* menu, const QString& text)
    {
        for (QAction* action : menu->actions()) {
            if (action->text().remove('&') == text)
                return action;
        }
        return nullptr;
    }
    QAction* recentFiles() const
    {
        for (const QAction* top : window->menuBar()->actions()) {
            if (QAction* found = top->menu() != nullptr ? entry(top->menu(), "Recent files") : nullptr)
                return found;
        }
        return nullptr;
    }
    nsModEditor::EditorWidget* document() const
    {
        return qobject_cast<nsModEditor::EditorWidget*>(
            window->findChild<QTabWidget*>("widgetAreaTabs")->currentWidget());
    }
    /// Runs a long program. @param act once, while the progress is shown
    void runLong(const std::function<void(QToolButton* cancel)>& act)
    {
        writeFile("s0.psm", longRun::program());
        EXPECT_TRUE(longRun::run(module<ModAsmFe>(), window.get(), act));
        settleLayout();
    }

    QString m_project;
};

} // namespace

// --- recent files, quick open ---

TEST_F(FilesInWindow, recentFilesAreThereAsSoonAsTheProjectIs)
{
    open(2);
    EXPECT_FALSE(recentFiles()->isEnabled()) << "nothing was shown yet";
    module<ModEditorHookIf>()->openFile(path("s1.psm"));
    module<ModEditorHookIf>()->closeAllFiles();
    settleLayout();
    EXPECT_TRUE(recentFiles()->isEnabled());
    prj()->closePrj();
    settleLayout();
    EXPECT_FALSE(recentFiles()->isEnabled()) << "without a project no file can be opened";
    ASSERT_TRUE(closeWindow());
    open(2);
    EXPECT_TRUE(recentFiles()->isEnabled()) << "no page was shown since the start";
}

TEST_F(FilesInWindow, aDiskThatDoesNotAnswerHoldsNothingUp)
{
    open(3);
    for (const char* name : {"s0.psm", "s1.psm", "s2.psm"})
        ASSERT_TRUE(module<ModEditorHookIf>()->openFile(path(name)));
    settleLayout();
    module<ModEditorHookIf>()->closeAllFiles();
    QMenu* menu = recentFiles()->menu();
    const auto entries = [menu] {
        QStringList result;
        for (const QAction* action : menu->actions())
            result.append(action->isEnabled() ? action->text() : '(' + action->text() + ')');
        return result;
    };
    ASSERT_TRUE(QFile::remove(path("s1.psm")));
    DeadDisk first("s1.psm");
    menu->popup(window->mapToGlobal(QPoint()));
    EXPECT_EQ(entries(), QStringList({"s2.psm", "s1.psm", "s0.psm"})) << "nobody has answered yet";
    ASSERT_TRUE(QTest::qWaitFor([&] { return first.isAsked(); }, 60000));
    first.answer();
    ASSERT_TRUE(QTest::qWaitFor([&] { return entries().contains("(s1.psm)"); }, 60000));
    EXPECT_EQ(entries(), QStringList({"s2.psm", "(s1.psm)", "s0.psm"})) << "no line moves below the pointer";
    menu->close();
    menu->popup(window->mapToGlobal(QPoint()));
    EXPECT_EQ(entries(), QStringList({"s2.psm", "s0.psm"}));
    menu->close();
    EXPECT_FALSE(first.isAskedByWindow());
}

TEST_F(FilesInWindow, aFileThatIsGoneLeavesTheListOfQuickOpenAndTheChosenOneStays)
{
    open(3);
    for (const char* name : {"s0.psm", "s1.psm", "s2.psm"})
        ASSERT_TRUE(module<ModEditorHookIf>()->openFile(path(name)));
    settleLayout();
    module<ModEditorHookIf>()->closeAllFiles();
    ASSERT_TRUE(QFile::remove(path("s1.psm")));
    DeadDisk disk("s1.psm");
    ModalAnswers answers({[&](QDialog* box) {
        auto* edit = box->findChild<QLineEdit*>("quickOpenEdit");
        const auto names = [box] {
            QStringList result;
            const auto* list = box->findChild<QListWidget*>("quickOpenList");
            for (int i = 0; i < list->count(); ++i)
                result.append(list->item(i)->data(Qt::UserRole).toString());
            return result;
        };
        QTest::keyClicks(edit, "psm");
        EXPECT_EQ(names(), QStringList({"s2.psm", "s1.psm", "s0.psm"}));
        QTest::keyClick(edit, Qt::Key_Down);
        QTest::keyClick(edit, Qt::Key_Down);
        disk.answer();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !names().contains("s1.psm"); }, 60000));
        QTest::keyClick(edit, Qt::Key_Return);
    }});
    QTest::keyClick(window.get(), Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(answers.seen(), 1);
    settleLayout();
    ASSERT_NE(document(), nullptr);
    EXPECT_EQ(document()->filePath(), path("s0.psm"));
}

TEST_F(FilesInWindow, quickOpenStandsOnTheWindowWhereTheNavigatorIsHidden)
{
    writeSetting("ModSrcNavi/naviWidgetLocation", "0");
    open(2);
    QWidget* parent = nullptr;
    bool isInside = false;
    ModalAnswers answers({[&](QDialog* box) {
        parent = box->parentWidget();
        isInside = window->geometry().contains(box->geometry());
        screenshot("quick-open-alone", box);
    }});
    QTest::keyClick(window.get(), Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(answers.seen(), 1);
    EXPECT_EQ(parent, window.get()) << "which gives it its look";
    EXPECT_TRUE(isInside);
}

// --- panel ---

TEST_F(FilesInWindow, aFoldedGroupStaysFolded)
{
    open(3);
    showFiles();
    ASSERT_NE(group("Outputs"), nullptr);
    group("Outputs")->setExpanded(false);
    group("Sources")->setExpanded(false);
    module<ModEditorHookIf>()->openFile(path("s1.psm"));
    settleLayout();
    EXPECT_FALSE(group("Outputs")->isExpanded());
    EXPECT_FALSE(group("Sources")->isExpanded());
    EXPECT_EQ(group("Sources")->child(1)->text(1), "open");
}

TEST_F(FilesInWindow, theListStaysWhereTheUserHasScrolledItTo)
{
    open(80);
    showFiles();
    ASSERT_TRUE(files()->select(path("s0.psm")));
    QScrollBar* bar = tree()->verticalScrollBar();
    ASSERT_GT(bar->maximum(), 10);
    bar->setValue(bar->maximum());
    const int place = bar->value();
    module<ModEditorHookIf>()->openFile(path("s79.psm"));
    settleLayout();
    EXPECT_EQ(bar->value(), place);
    EXPECT_EQ(files()->currentFile(), path("s0.psm"));
    // A line that is moved by keys stays in sight.
    ASSERT_TRUE(files()->select(path("s79.psm")));
    tree()->setFocus();
    for (int i = 0; i < 70; ++i)
        QTest::keyClick(tree(), Qt::Key_Up, Qt::ControlModifier);
    settleLayout();
    EXPECT_EQ(sources().indexOf(path("s79.psm")), 9);
    EXPECT_TRUE(tree()->viewport()->rect().contains(tree()->visualItemRect(tree()->currentItem()).center()));
}

TEST_F(FilesInWindow, aRunLeavesTheListInFrontOfTheNavigator)
{
    open(2);
    showFiles();
    module<ModEditorHookIf>()->openFile(path("s1.psm"));
    document()->setFocus();
    QTest::keyClicks(document(), "; new ");
    QTest::keyClick(document(), Qt::Key_Return);
    QTest::keyClick(document(), Qt::Key_S, Qt::ControlModifier);
    settleLayout();
    ASSERT_TRUE(module<ModAsmFe>()->isAssembled());
    EXPECT_TRUE(tree()->isVisible());
    EXPECT_TRUE(document()->hasFocus());
    // A change of the order starts a run, too.
    ASSERT_TRUE(files()->select(path("s1.psm")));
    tree()->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up, Qt::ControlModifier);
    settleLayout();
    EXPECT_EQ(sources().first(), path("s1.psm"));
    EXPECT_TRUE(tree()->isVisible());
    EXPECT_TRUE(tree()->hasFocus());
}

TEST_F(FilesInWindow, theMenuIsForTheLineBelowIt)
{
    open(2);
    showFiles();
    ASSERT_TRUE(files()->select(path("s0.psm")));
    QMenu* menu = menuAt(QPoint(20, tree()->viewport()->height() - 4));
    ASSERT_NE(menu, nullptr);
    EXPECT_FALSE(entry(menu, "Remove from the project")->isEnabled()) << "no line is there";
    EXPECT_FALSE(entry(menu, "Open")->isEnabled());
    EXPECT_TRUE(entry(menu, "Add sources...")->isEnabled());
    menu->close();
    menu = menuAt(tree()->visualItemRect(group("Outputs")->child(0)).center());
    ASSERT_NE(menu, nullptr);
    EXPECT_FALSE(entry(menu, "Remove from the project")->isEnabled()) << "an output";
    menu->close();
    menu = menuAt(tree()->visualItemRect(group("Sources")->child(1)).center());
    ASSERT_NE(menu, nullptr);
    QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                      menu->actionGeometry(entry(menu, "Remove from the project")).center());
    settleLayout();
    EXPECT_EQ(sources(), QStringList(path("s0.psm")));
}

TEST_F(FilesInWindow, theProjectMayCloseUnderTheMenu)
{
    for (const char* text : {"Open", "Add sources...", "Remove from the project"}) {
        SCOPED_TRACE(text);
        open(2);
        showFiles();
        QMenu* menu = menuAt(tree()->visualItemRect(group("Sources")->child(1)).center());
        ASSERT_NE(menu, nullptr);
        prj()->closePrj();
        ModalAnswers answers({});
        QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(entry(menu, text)).center());
        settleLayout();
        EXPECT_TRUE(sources().isEmpty());
        ASSERT_TRUE(prj()->openPrj(m_project));
        EXPECT_EQ(sources().size(), 2);
    }
}

TEST_F(FilesInWindow, aSourceThatIsListedTwiceHasTwoLinesOfItsOwn)
{
    open(3);
    ASSERT_TRUE(prj()->closePrj());
    QFile file(m_project);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QByteArray text = file.readAll();
    file.close();
    text.replace("s0.psm:s1.psm:s2.psm", "s0.psm:s1.psm:s0.psm:s2.psm");
    writeFile("files.nalvo", text);
    ASSERT_TRUE(prj()->openPrj(m_project));
    settleLayout();
    showFiles();
    const auto order = [this] {
        QStringList names;
        for (const QString& source : sources())
            names.append(QFileInfo(source).baseName());
        QStringList lines;
        for (int i = 0; i < group("Sources")->childCount(); ++i)
            lines.append(QFileInfo(group("Sources")->child(i)->text(0)).baseName());
        EXPECT_EQ(lines, names) << "what is shown";
        return names.join(' ');
    };
    const auto currentRow = [this] { return group("Sources")->indexOfChild(tree()->currentItem()); };
    EXPECT_EQ(order(), "s0 s1 s0 s2");
    // The second one of the two is dragged, and the keys take it further.
    tree()->setCurrentItem(group("Sources")->child(2));
    QMimeData data;
    const QRect last = tree()->visualItemRect(group("Sources")->child(3));
    QDropEvent event(QPoint(last.center().x(), last.bottom() - 1), Qt::MoveAction, &data, Qt::LeftButton,
                     Qt::NoModifier);
    struct Opened : nsModSrcNavi::FileTree
    {
        using FileTree::dropEvent;
    };
    (static_cast<nsModSrcNavi::FileTree*>(tree())->*(&Opened::dropEvent))(&event);
    settleLayout();
    EXPECT_EQ(order(), "s0 s1 s2 s0");
    EXPECT_EQ(currentRow(), 3);
    tree()->setFocus();
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(tree(), Qt::Key_Up, Qt::ControlModifier);
        settleLayout();
    }
    EXPECT_EQ(order(), "s0 s0 s1 s2");
    EXPECT_EQ(currentRow(), 0) << "over the other one, too";
    QTest::keyClick(tree(), Qt::Key_Down, Qt::ControlModifier);
    QTest::keyClick(tree(), Qt::Key_Down, Qt::ControlModifier);
    settleLayout();
    EXPECT_EQ(order(), "s0 s1 s0 s2");
    EXPECT_EQ(currentRow(), 2);
    // The project has it as it is shown.
    ASSERT_TRUE(prj()->save());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("<srcFiles>s0.psm:s1.psm:s0.psm:s2.psm</srcFiles>"));
    QTest::keyClick(tree(), Qt::Key_Delete);
    settleLayout();
    EXPECT_EQ(order(), "s0 s1 s2") << "only this line goes";
    EXPECT_EQ(currentRow(), 2);
    QMenu* menu = menuAt(tree()->visualItemRect(group("Sources")->child(0)).center());
    ASSERT_NE(menu, nullptr);
    QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                      menu->actionGeometry(entry(menu, "Remove from the project")).center());
    settleLayout();
    EXPECT_EQ(order(), "s1 s2");
}

TEST_F(FilesInWindow, anOutputThatIsNotWrittenYetSaysSo)
{
    open(1);
    showFiles();
    tree()->setCurrentItem(group("Outputs")->child(0));
    tree()->setFocus();
    ModalAnswers answers({});
    QTest::keyClick(tree(), Qt::Key_Return);
    settleLayout();
    EXPECT_EQ(document(), nullptr);
    EXPECT_TRUE(messageTexts().join('\n').contains(path("out.hex")) || messageTexts().join('\n').contains("out.hex"))
        << qPrintable(messageTexts().join('\n'));
    EXPECT_FALSE(QFile::exists(path("out.hex")));
}

// --- long runs ---

TEST_F(FilesInWindow, theProjectMayCloseUnderALongRun)
{
    open(2);
    runLong([this](QToolButton*) { EXPECT_TRUE(prj()->closePrj()); });
    EXPECT_FALSE(prj()->isValid());
    EXPECT_FALSE(module<ModAsmFe>()->isAssembled());
    EXPECT_FALSE(QFile::exists(path("out.hex"))) << "the files of a project that is not open any more";
    EXPECT_EQ(tree()->topLevelItemCount(), 0);
    ASSERT_TRUE(prj()->openPrj(m_project));
    EXPECT_TRUE(sources().size() == 2);
}

TEST_F(FilesInWindow, aLongRunIsCancelledByEscapeAlsoWhereThatKeyHasACommand)
{
    open(2);
    module<ModEditorHookIf>()->openFile(path("s1.psm"));
    settleLayout();
    auto* command = new QAction(window.get());
    command->setShortcut(QKeySequence(Qt::Key_Escape));
    window->addAction(command);
    int triggered = 0;
    QObject::connect(command, &QAction::triggered, window.get(), [&triggered] { ++triggered; });
    document()->setFocus();
    runLong([this](QToolButton*) { QTest::keyClick(document(), Qt::Key_Escape); });
    EXPECT_EQ(triggered, 0);
    EXPECT_TRUE(messageTexts().contains("The run was cancelled. The output files are as they were."));
    QTest::keyClick(document(), Qt::Key_Escape);
    EXPECT_EQ(triggered, 1) << "after the run";
}

TEST_F(FilesInWindow, nothingIsTypedUnderALongRun)
{
    open(2);
    module<ModEditorHookIf>()->openFile(path("s1.psm"));
    settleLayout();
    const QString text = document()->toPlainText();
    document()->setFocus();
    runLong([this](QToolButton* cancel) {
        QTest::keyClicks(document(), "x");
        QTest::keyClick(document(), Qt::Key_V, Qt::ControlModifier);
        // As an input method does.
        QInputMethodEvent event;
        event.setCommitString("y");
        QApplication::sendEvent(document(), &event);
        QTest::mouseClick(cancel, Qt::LeftButton);
    });
    EXPECT_EQ(document()->toPlainText(), text);
    EXPECT_FALSE(document()->document()->isModified());
}
