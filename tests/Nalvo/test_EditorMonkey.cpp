// A user who does everything in any order, seeded: nothing may crash, hang or read what is gone.

#include "ExampleFolder.h"
#include "MainWindowFixture.h"

#include "EditorSupportMenu.h"
#include "EditorWidget.h"
#include "ModEditor.h"
#include "ModGuiHookIf.h"
#include "ModPrj.h"

#include <QAction>
#include <QDialog>
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <random>

using nsModEditor::EditorWidget;

namespace {

class EditorMonkey : public MainWindowFixture, public ::testing::WithParamInterface<unsigned int>
{
protected:
    EditorMonkey()
        : m_random(GetParam())
    {
        copyFolder(NALVO_SOURCE_DIR "/examples/uart_monitor", projectDir() + "/uart_monitor");
        copyFolder(NALVO_SOURCE_DIR "/examples/two_pages", projectDir() + "/two_pages");
        copyFolder(NALVO_SOURCE_DIR "/examples/templates", projectDir() + "/templates");
        makeWindow();
        // Whatever asks gets some answer.
        QObject::connect(&m_answers, &QTimer::timeout, [this] { answer(); });
        m_answers.start(1);
    }

    int pick(int count) { return int(m_random() % unsigned(count)); }
    nsModEditor::ModEditor* editor() const { return module<nsModEditor::ModEditor>(); }
    nsModPrj::ModPrj* prj() const { return module<nsModPrj::ModPrj>(); }
    EditorWidget* current() const
    {
        return qobject_cast<EditorWidget*>(module<ModGuiHookIf>()->currentWidget(ModGuiHookIf::eLocationTabs));
    }
    QString project()
    {
        return projectDir() + (pick(2) == 0 ? "/uart_monitor/uart_monitor.nalvo" : "/two_pages/two_pages.nalvo");
    }
    QString someFile()
    {
        const QString dir = projectDir() + (pick(3) == 0 ? "/two_pages/src" : "/uart_monitor/src");
        const QStringList files = QDir(dir).entryList(QDir::Files);
        return files.isEmpty() || pick(8) == 0 ? dir + "/none.psm" : dir + '/' + files.at(pick(files.size()));
    }

    void answer()
    {
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            const QList<QAction*> entries = menu->actions();
            QAction* entry = entries.isEmpty() ? nullptr : entries.at(pick(entries.size()));
            menu->close();
            if (entry != nullptr && entry->isEnabled() && entry->menu() == nullptr)
                entry->trigger();
            return;
        }
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            return;
        auto* box = qobject_cast<QMessageBox*>(dialog);
        if (box != nullptr && pick(2) == 0 && box->button(QMessageBox::Yes) != nullptr)
            box->button(QMessageBox::Yes)->click();
        else
            dialog->reject();
    }

    void harmDisk()
    {
        const QString path = someFile();
        switch (pick(5)) {
        case 0:
            QFile::remove(path);
            break;
        case 1:
            QFile::remove(path);
            QDir().mkpath(path);
            break;
        case 2:
            writeBytes(path, QByteArray(20, '\0') + "\xff\xfe garbage");
            break;
        case 3:
            writeBytes(path, QByteArray());
            break;
        default:
            writeBytes(path, "        JUMP nowhere\n");
            break;
        }
    }
    static void writeBytes(const QString& path, const QByteArray& bytes)
    {
        QFile file(path);
        if (file.open(QIODevice::WriteOnly))
            file.write(bytes);
    }

    /// Any enabled action but those that leave the program's hands, and simulator runs, which nobody here ends.
    void triggerSomeAction()
    {
        static const QStringList left = {"Print...", "Run...", "Next line", "Simulate to end of call",
                                         "Simulate to cursor"};
        QList<QAction*> actions;
        for (QAction* action : window->findChildren<QAction*>()) {
            if (action->isEnabled() && action->menu() == nullptr && !left.contains(action->text()))
                actions.append(action);
        }
        if (!actions.isEmpty())
            actions.at(pick(actions.size()))->trigger();
    }

    void typeSomething()
    {
        EditorWidget* widget = current();
        if (widget == nullptr)
            return;
        widget->setFocus();
        static const char* const texts[] = {"LOAD s0, 1", "; \\navConst \"x\"", "label:", "#EQU a, a", "\"", "(", "x"};
        QTest::keyClicks(widget, texts[pick(7)]);
        const Qt::Key keys[] = {Qt::Key_Return, Qt::Key_Backspace, Qt::Key_Tab,
                                Qt::Key_Up,     Qt::Key_Delete,    Qt::Key_End};
        QTest::keyClick(widget, keys[pick(6)], pick(3) == 0 ? Qt::ShiftModifier : Qt::NoModifier);
        if (pick(6) == 0)
            widget->selectAll();
    }

    void markSomething()
    {
        EditorWidget* widget = current();
        if (widget == nullptr)
            return;
        widget->setSimBreakpoint(pick(40));
        widget->setBookmark(pick(40));
        widget->setSimStartPointer(pick(40));
        editor()->setLineHighlighted(widget->filePath(), pick(60) - 10);
        editor()->simEn(pick(2) == 0);
    }

    void clickSomewhere(const QString& name)
    {
        auto* tree = window->findChild<QTreeWidget*>(name);
        if (tree == nullptr || tree->topLevelItemCount() == 0)
            return;
        const QPoint pos(20 + pick(200), pick(qMax(1, tree->viewport()->height())));
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, pos);
        if (pick(2) == 0)
            QTest::mouseDClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, pos);
    }

    void act()
    {
        switch (pick(14)) {
        case 0:
            prj()->openPrj(project());
            break;
        case 1:
            if (pick(4) == 0)
                prj()->closePrj();
            break;
        case 2:
        case 3:
            editor()->openFile(someFile());
            break;
        case 4:
        case 5:
            typeSomething();
            break;
        case 6:
        case 7:
        case 8:
            triggerSomeAction();
            break;
        case 9:
            markSomething();
            break;
        case 10:
            clickSomewhere("codeNavi");
            break;
        case 11:
            clickSomewhere("msgViewer");
            break;
        case 12:
            if (pick(3) == 0)
                harmDisk();
            break;
        default:
            editor()->newFile("NOP\n");
            break;
        }
        QCoreApplication::processEvents();
    }

    std::mt19937 m_random;
    QTimer m_answers;
};

TEST_P(EditorMonkey, survives)
{
    for (int i = 0; i < 150; ++i)
        act();
    // What stands is consistent: each page of the centre is a document, but for the configuration, the project
    // manager and the help, and each document has a page.
    auto* gui = module<ModGuiHookIf>();
    for (EditorWidget* widget : editor()->editorWidgets())
        EXPECT_TRUE(gui->hasWidget(ModGuiHookIf::eLocationTabs, widget));
    QList<QWidget*> pages = gui->centerWidgetList();
    pages.removeAll(window->findChild<QWidget*>("configDialog"));
    pages.removeAll(window->findChild<QWidget*>("prjMngr"));
    for (QWidget* page : window->findChildren<QWidget*>("hlpPage"))
        pages.removeAll(page);
    for (QWidget* page : pages) {
        EXPECT_TRUE(editor()->editorWidgets().contains(qobject_cast<EditorWidget*>(page)))
            << page->metaObject()->className() << ' ' << qPrintable(page->objectName());
    }
    EXPECT_EQ(pages.size(), editor()->editorWidgets().size());
    EXPECT_TRUE(closeWindow());
}

INSTANTIATE_TEST_SUITE_P(seeds, EditorMonkey, ::testing::Range(1u, 7u));

} // namespace
