// A user who simulates and does everything else in between, seeded: nothing may crash, hang or read what is gone.
//
// NALVO_MONKEY_SECONDS in the environment makes each of the seeds play that long instead of for a fixed number of
// actions.

#include "ExampleFolder.h"
#include "SimWindow.h"

#include "EditorWidget.h"
#include "ProcList.h"
#include "ProcPluginIf.h"
#include "ProcSimIO.h"
#include "ProcSimResolvePageDialog.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QDialog>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QTabBar>
#include <QTimer>

#include <random>

namespace {

class SimMonkey : public SimWindow, public ::testing::WithParamInterface<unsigned int>
{
protected:
    SimMonkey()
        : m_random(GetParam())
    {
        copyFolder(NALVO_SOURCE_DIR "/examples", projectDir());
        makeWindow();
        QObject::connect(&m_heart, &QTimer::timeout, [this] { beat(); });
        m_heart.start(2);
    }
    ~SimMonkey() override { m_heart.stop(); }

    int pick(int count) { return count > 0 ? int(m_random() % unsigned(count)) : 0; }
    nsModPrj::ModPrj* prj() const { return module<nsModPrj::ModPrj>(); }

    /// Runs beside everything: answers what asks, plays while a program runs, and ends runs after a while.
    void beat()
    {
        answer();
        if (sim() == nullptr || !sim()->isRunning()) {
            m_beats = 0;
            return;
        }
        ++m_beats;
        if (m_depth < 3 && pick(3) == 0)
            act();
        if (m_beats > 20 && sim() != nullptr)
            sim()->simStop();
    }

    void answer()
    {
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            menu->close();
            return;
        }
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            return;
        // A user can not reach the window behind a dialog; a script could.
        if (qobject_cast<nsProc::ProcSimResolvePageDialog*>(dialog) != nullptr && m_depth < 3 && pick(4) == 0)
            act();
        if (dialog == QApplication::activeModalWidget())
            dialog->reject();
    }

    void openSomeProject()
    {
        static const char* const names[] = {"uart_monitor", "two_pages", "split_rams", "motor_control", "keypad_lock"};
        const QString name = names[pick(5)];
        prj()->openPrj(projectDir() + '/' + name + '/' + name + ".nalvo");
        asmFe()->assemble(nsModAsmFe::ModAsmFe::eEventNone);
        if (action(Action::eActionEnable) != nullptr && sim() == nullptr)
            action(Action::eActionEnable)->trigger();
    }

    void simulate()
    {
        const int which = pick(12);
        QAction* entry = action(Action::eAction_t(which));
        // The monkey shall be at work with a simulator most of the time.
        if (entry == nullptr || !entry->isEnabled() ||
            (which == Action::eActionEnable && sim() != nullptr && pick(6) != 0))
            return;
        entry->trigger();
    }

    void editSomeField()
    {
        QList<QLineEdit*> fields;
        for (QDockWidget* dock : window->findChildren<QDockWidget*>())
            fields += dock->findChildren<QLineEdit*>();
        if (fields.isEmpty())
            return;
        const QPointer<QLineEdit> field = fields.at(pick(fields.size()));
        field->setFocus();
        field->selectAll();
        static const char* const texts[] = {"0", "FF", "1", "255", "99999999", "", "7", "zz", "100"};
        QTest::keyClicks(field, texts[pick(9)]);
        if (field != nullptr && pick(2) == 0)
            QTest::keyClick(field, Qt::Key_Return);
    }

    void useSomeControl()
    {
        QList<QWidget*> controls;
        for (QDockWidget* dock : window->findChildren<QDockWidget*>()) {
            for (QWidget* widget : dock->findChildren<QWidget*>()) {
                if (widget->isVisible() && widget->isEnabled())
                    controls.append(widget);
            }
        }
        if (controls.isEmpty())
            return;
        const QPointer<QWidget> control = controls.at(pick(controls.size()));
        if (auto* button = qobject_cast<QAbstractButton*>(control)) {
            // Dialogs of the platform can not be answered from here.
            if (!button->text().startsWith("Save"))
                button->click();
        } else if (auto* combo = qobject_cast<QComboBox*>(control)) {
            combo->setCurrentIndex(pick(combo->count()));
        } else if (auto* text = qobject_cast<QPlainTextEdit*>(control)) {
            text->setFocus();
            QTest::keyClicks(text, pick(2) == 0 ? "1F" : "x");
            if (pick(2) == 0)
                QTest::keyClick(text, Qt::Key_Return);
            if (pick(3) == 0) {
                text->selectAll();
                QTest::keyClick(text, Qt::Key_Delete);
            }
        } else {
            QTest::mouseClick(control, Qt::LeftButton, Qt::NoModifier,
                              QPoint(pick(control->width()), pick(control->height())));
            if (control != nullptr && pick(4) == 0)
                QTest::keyClick(control, Qt::Key_Delete);
        }
    }

    void markSomething()
    {
        const auto widgets = editor()->editorWidgets();
        if (widgets.isEmpty())
            return;
        nsModEditor::EditorWidget* widget = widgets.at(pick(widgets.size()));
        widget->setSimBreakpoint(pick(120));
        if (pick(3) == 0)
            widget->clearSimBreakpoints();
        if (pick(3) == 0)
            widget->setSimStartPointer(pick(100));
        editor()->openFile(widget->filePath());
        widget->setCursorToLine(pick(100));
    }

    void openSomeFile()
    {
        const QStringList files = asmFe()->fileHndlr()->files();
        if (!files.isEmpty())
            editor()->openFile(files.at(pick(files.size())));
    }

    void changeTheSource()
    {
        const auto widgets = editor()->editorWidgets();
        if (widgets.isEmpty())
            return;
        nsModEditor::EditorWidget* widget = widgets.at(pick(widgets.size()));
        static const char* const texts[] = {"; text\n", "        this is nothing\n", "        NOP\n", "        RET\n"};
        const QString before = widget->text();
        widget->insertText(texts[pick(4)]);
        editor()->saveAllFiles();
        // Mostly put right again, so that there is something to simulate.
        if (pick(3) != 0 && editor()->editorWidgets().contains(widget)) {
            widget->setText(before);
            editor()->saveAllFiles();
        }
    }

    void changeTheProject()
    {
        auto* registry = module<nsModProcessor::ModProcessor>();
        switch (pick(5)) {
        case 0:
            prj()->closePrj();
            break;
        case 1: {
            const auto& processors = registry->processorList()->processors();
            registry->setupProcessorIf(processors.at(pick(processors.size())));
            break;
        }
        case 2:
            registry->setupProcessorIf(nullptr);
            break;
        case 3:
            registry->configPageCloseRequest();
            break;
        default:
            openSomeProject();
            break;
        }
    }

    void act()
    {
        ++m_depth;
        switch (pick(16)) {
        case 0:
            if (sim() == nullptr || pick(8) == 0)
                openSomeProject();
            break;
        case 1:
            if (pick(6) == 0)
                changeTheProject();
            break;
        case 2:
            markSomething();
            break;
        case 3:
            openSomeFile();
            break;
        case 4:
            if (pick(3) == 0)
                changeTheSource();
            break;
        case 5:
        case 6:
            editSomeField();
            break;
        case 7:
        case 8:
        case 9:
            useSomeControl();
            break;
        case 10:
            asmFe()->assemble(nsModAsmFe::ModAsmFe::eEventNone);
            break;
        case 11:
            window->resize(700 + pick(700), 500 + pick(500));
            break;
        default:
            simulate();
            break;
        }
        --m_depth;
    }

    std::mt19937 m_random;
    QTimer m_heart;
    int m_depth = 0;
    int m_beats = 0;
};

TEST_P(SimMonkey, Survives)
{
    const qint64 seconds = qEnvironmentVariableIntValue("NALVO_MONKEY_SECONDS");
    QElapsedTimer time;
    time.start();
    openSomeProject();
    for (int i = 0; seconds > 0 ? time.elapsed() < seconds * 1000 : i < 250; ++i) {
        act();
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(m_depth, 0);
    // What stands is consistent: without a simulator no widget of one is left.
    module<nsModProcessor::ModProcessor>()->setupProcessorIf(nullptr);
    EXPECT_TRUE(window->findChildren<nsProc::ProcSimIO*>().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Seeds, SimMonkey, ::testing::Range(1u, 9u));

} // namespace
