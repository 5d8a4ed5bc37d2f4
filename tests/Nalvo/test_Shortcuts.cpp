// The keys of the commands: found, changed, kept, reset, by real keys in the real window.

#include "MainWindowFixture.h"
#include "ModalAnswers.h"

#include "EditorWidget.h"
#include "ModConfigHookIf.h"
#include "ModEditorHookIf.h"
#include "ModGuiHookIf.h"
#include "ModPrj.h"

#include <QAction>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QToolTip>
#include <QTreeWidget>

namespace {

class ShortcutsInWindow : public MainWindowFixture
{
protected:
    ShortcutsInWindow() { makeWindow(); }

    QAction* command(const QString& menu, const QString& text) const
    {
        for (QAction* entry : window->menuBar()->actions()) {
            if (entry->text() != menu)
                continue;
            for (QAction* action : entry->menu()->actions()) {
                if (action->text() == text)
                    return action;
            }
        }
        ADD_FAILURE() << "no command " << qPrintable(text);
        return nullptr;
    }
    void openPage() { module<ModConfigHookIf>()->openDialog(QStringLiteral("All shortcuts")); }
    template <class Widget>
    Widget* onPage(const char* name) const
    {
        return window->findChild<QWidget*>("configDialog")->findChild<Widget*>(name);
    }
    /// Types the name into the search, and the keys into the field.
    void assign(const QString& name, Qt::Key key, Qt::KeyboardModifiers modifiers)
    {
        auto* search = onPage<QLineEdit>("shortcutSearch");
        search->setFocus();
        search->clear();
        QTest::keyClicks(search, name);
        auto* list = onPage<QTreeWidget>("shortcutList");
        for (int row = 0; row < list->topLevelItemCount(); ++row) {
            if (!list->topLevelItem(row)->isHidden()) {
                QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier,
                                  list->visualItemRect(list->topLevelItem(row)).center());
                break;
            }
        }
        auto* keys = onPage<QLineEdit>("shortcutKeys");
        keys->setFocus();
        QTest::keyClick(keys, key, modifiers);
    }
    void press(const QString& text) const
    {
        for (QPushButton* button : window->findChild<QWidget*>("configDialog")->findChildren<QPushButton*>()) {
            if (button->text() == text && button->isVisible())
                return QTest::mouseClick(button, Qt::LeftButton);
        }
        ADD_FAILURE() << "no button " << qPrintable(text);
    }
    bool isOpen() const { return window->findChild<QWidget*>("configDialog") != nullptr; }
    bool waitForClose() const
    {
        return QTest::qWaitFor([this] { return !isOpen(); }, 60000);
    }
};

} // namespace

TEST_F(ShortcutsInWindow, ChangedKeysWorkAndStay)
{
    QAction* open = command("File", "Open...");
    ASSERT_NE(open, nullptr);
    const QList<QKeySequence> standard = open->shortcuts();
    ASSERT_FALSE(standard.isEmpty());
    openPage();
    assign("File > Open", Qt::Key_O, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(onPage<QLabel>("shortcutConflict")->text(), "");
    screenshot("config-shortcuts");
    press("Apply and close");
    EXPECT_EQ(open->shortcuts(), QList<QKeySequence>{QKeySequence("Ctrl+Alt+O")});
    EXPECT_TRUE(readSetting("ModAction/shortcuts").contains("File/Open=Ctrl+Alt+O"));
    ASSERT_TRUE(closeWindow());

    makeWindow();
    open = command("File", "Open...");
    EXPECT_EQ(open->shortcuts(), QList<QKeySequence>{QKeySequence("Ctrl+Alt+O")});
    openPage();
    assign("File > Open", Qt::Key_Backspace, Qt::NoModifier);
    press("Reset");
    press("Apply and close");
    EXPECT_EQ(open->shortcuts(), standard);
    EXPECT_EQ(readSetting("ModAction/shortcuts"), "");
}

TEST_F(ShortcutsInWindow, ResetAllAndThePagesDefaultGiveAllBack)
{
    QAction* open = command("File", "Open...");
    const QList<QKeySequence> standard = open->shortcuts();
    for (const char* button : {"Reset all", "Set page default values"}) {
        openPage();
        assign("File > Open", Qt::Key_F12, Qt::NoModifier);
        press("Apply and close");
        EXPECT_EQ(open->shortcuts(), QList<QKeySequence>{QKeySequence("F12")});
        ASSERT_TRUE(waitForClose());
        openPage();
        press(button);
        press("Apply and close");
        EXPECT_EQ(open->shortcuts(), standard) << button;
        ASSERT_TRUE(waitForClose());
    }
}

TEST_F(ShortcutsInWindow, KeysOfAnotherCommandAreToldAndNotAccepted)
{
    QAction* newFile = command("File", "New...");
    QAction* open = command("File", "Open...");
    ASSERT_TRUE(newFile->shortcuts().contains(QKeySequence("Ctrl+N")));
    openPage();
    assign("File > Open", Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(onPage<QLabel>("shortcutConflict")->text(), "These keys belong to \"File > New\", too.");
    screenshot("config-shortcuts-conflict");
    press("Apply and close");
    ASSERT_TRUE(isOpen());
    EXPECT_TRUE(messageTexts().contains("Invalid configuration."));
    EXPECT_FALSE(open->shortcuts().contains(QKeySequence("Ctrl+N")));
    press("Take it from there");
    EXPECT_EQ(onPage<QLabel>("shortcutConflict")->text(), "");
    press("Apply and close");
    EXPECT_EQ(open->shortcuts(), QList<QKeySequence>{QKeySequence("Ctrl+N")});
    EXPECT_FALSE(newFile->shortcuts().contains(QKeySequence("Ctrl+N")));
}

TEST_F(ShortcutsInWindow, TheKeysOfAMenuAreToldAndNotAccepted)
{
    openPage();
    assign("File > Open", Qt::Key_F, Qt::AltModifier);
    EXPECT_EQ(onPage<QLabel>("shortcutConflict")->text(), "These keys open the menu \"File\".");
    EXPECT_FALSE(onPage<QPushButton>("shortcutTake")->isEnabled());
    press("Apply and close");
    EXPECT_TRUE(isOpen());
}

TEST_F(ShortcutsInWindow, KeysThatATextNeedsAreNotTaken)
{
    openPage();
    assign("File > Open", Qt::Key_A, Qt::NoModifier);
    const QString before = onPage<QLineEdit>("shortcutKeys")->text();
    QTest::keyClick(onPage<QLineEdit>("shortcutKeys"), Qt::Key_B, Qt::ShiftModifier);
    QTest::keyClick(onPage<QLineEdit>("shortcutKeys"), Qt::Key_Control);
    EXPECT_EQ(onPage<QLineEdit>("shortcutKeys")->text(), before);
    EXPECT_FALSE(before.isEmpty());
}

TEST_F(ShortcutsInWindow, TheSearchFindsWordsAndKeys)
{
    openPage();
    auto* list = onPage<QTreeWidget>("shortcutList");
    const auto shown = [list] {
        QStringList result;
        for (int row = 0; row < list->topLevelItemCount(); ++row) {
            if (!list->topLevelItem(row)->isHidden())
                result.append(list->topLevelItem(row)->text(1));
        }
        return result;
    };
    EXPECT_GT(shown().size(), 20);
    auto* search = onPage<QLineEdit>("shortcutSearch");
    search->setFocus();
    QTest::keyClicks(search, "ctrl+n");
    EXPECT_TRUE(shown().contains("New"));
    EXPECT_FALSE(shown().contains("Open"));
    search->clear();
    QTest::keyClicks(search, "no such command");
    EXPECT_TRUE(shown().isEmpty());
}

TEST_F(ShortcutsInWindow, BrokenEntriesOfTheSettingsHarmNothing)
{
    ASSERT_TRUE(closeWindow());
    writeSetting("ModAction/shortcuts", "=Ctrl+A:File/Open...=:Nothing:File/New=NoKey:File/Gone=Ctrl+K");
    makeWindow();
    EXPECT_NE(command("File", "Open..."), nullptr);
    openPage();
    module<ModConfigHookIf>()->closeDialog(true);
    EXPECT_TRUE(closeWindow());
}

TEST_F(ShortcutsInWindow, TheToolTipOfAButtonNamesTheKeys)
{
    ASSERT_TRUE(module<ModEditorHookIf>()->openFile(writeFile("a.psm", "loop: JUMP loop\n")));
    int seen = 0;
    for (QToolBar* bar : window->findChildren<QToolBar*>()) {
        for (QToolButton* button : bar->findChildren<QToolButton*>()) {
            const QAction* action = button->defaultAction();
            if (action == nullptr || action->shortcut().isEmpty())
                continue;
            QHelpEvent event(QEvent::ToolTip, QPoint(2, 2), button->mapToGlobal(QPoint(2, 2)));
            QApplication::sendEvent(button, &event);
            const QString keys = action->shortcut().toString(QKeySequence::NativeText);
            EXPECT_TRUE(QToolTip::text().contains(keys)) << qPrintable(action->text() + ": " + QToolTip::text());
            EXPECT_TRUE(QToolTip::text().startsWith(action->toolTip())) << qPrintable(action->text());
            ++seen;
        }
    }
    QToolTip::hideText();
    EXPECT_GT(seen, 8);
}

TEST_F(ShortcutsInWindow, EscClosesTheSettingsAtOnceWhereNothingWasChanged)
{
    ModalAnswers answers({});
    openPage();
    QTest::keyClick(window->findChild<QWidget*>("configList"), Qt::Key_Escape);
    EXPECT_TRUE(waitForClose());
    EXPECT_EQ(answers.seen(), 0);
    // What was looked for, and where, is no change.
    openPage();
    auto* search = onPage<QLineEdit>("shortcutSearch");
    search->setFocus();
    QTest::keyClicks(search, "file");
    QTest::keyClick(onPage<QTreeWidget>("shortcutList"), Qt::Key_Down);
    QTest::keyClick(search, Qt::Key_Escape);
    EXPECT_TRUE(waitForClose());
    EXPECT_EQ(answers.seen(), 0);
}

TEST_F(ShortcutsInWindow, EscAsksBeforeItDropsAChange)
{
    module<ModConfigHookIf>()->openDialog("Editor");
    auto* indent = onPage<QSpinBox>("tabIndent");
    const int before = indent->value();
    indent->setFocus();
    QTest::keyClick(indent, Qt::Key_Up);
    {
        ModalAnswers answers({[](QDialog* box) { QTest::keyClick(box, Qt::Key_Escape); }});
        QTest::keyClick(indent, Qt::Key_Escape);
        EXPECT_EQ(answers.seen(), 1);
    }
    ASSERT_TRUE(isOpen());
    EXPECT_EQ(indent->value(), before + 1) << "nothing is lost";
    {
        ModalAnswers answers({[](QDialog* box) {
            for (QPushButton* button : box->findChildren<QPushButton*>()) {
                if (button->text().contains("Discard"))
                    return QTest::mouseClick(button, Qt::LeftButton);
            }
        }});
        QTest::keyClick(indent, Qt::Key_Escape);
        EXPECT_EQ(answers.seen(), 1);
    }
    EXPECT_TRUE(waitForClose());
    module<ModConfigHookIf>()->openDialog("Editor");
    EXPECT_EQ(onPage<QSpinBox>("tabIndent")->value(), before);
}

TEST_F(ShortcutsInWindow, TheSettingsMayCloseWhileEscAsks)
{
    module<ModConfigHookIf>()->openDialog("Editor");
    auto* indent = onPage<QSpinBox>("tabIndent");
    indent->setFocus();
    QTest::keyClick(indent, Qt::Key_Up);
    ModalAnswers answers({[this](QDialog*) { module<ModConfigHookIf>()->closeDialog(false); }});
    QTest::keyClick(indent, Qt::Key_Escape);
    EXPECT_TRUE(waitForClose());
}

TEST_F(ShortcutsInWindow, TheCommandsOfASubmenuCanHaveKeysToo)
{
    openPage();
    auto* list = onPage<QTreeWidget>("shortcutList");
    EXPECT_EQ(list->findItems("Sort lines", Qt::MatchExactly, 1).size(), 1);
    EXPECT_TRUE(list->findItems("Lines", Qt::MatchExactly, 1).isEmpty());
    assign("Sort lines", Qt::Key_S, Qt::ControlModifier | Qt::AltModifier);
    press("Apply and close");
    EXPECT_TRUE(waitForClose());
    EXPECT_EQ(readSetting("ModAction/shortcuts"), "Edit/Sort lines=Ctrl+Alt+S");
}

TEST_F(ShortcutsInWindow, EveryKeyOfTheWindowIsListed)
{
    ASSERT_TRUE(module<ModEditorHookIf>()->openFile(writeFile("a.psm", "loop: JUMP loop\n")));
    settleLayout();
    openPage();
    QStringList listed;
    auto* list = onPage<QTreeWidget>("shortcutList");
    for (int row = 0; row < list->topLevelItemCount(); ++row)
        listed += list->topLevelItem(row)->text(2).split("; ");
    int seen = 0;
    for (const QAction* action : window->findChildren<QAction*>()) {
        for (const QKeySequence& key : action->shortcuts()) {
            EXPECT_TRUE(listed.contains(key.toString(QKeySequence::NativeText)))
                << qPrintable(action->text() + ": " + key.toString());
            ++seen;
        }
    }
    EXPECT_GT(seen, 40);
    for (const char* key : {"F6", "Ctrl+F10", "Ctrl+Tab", "Ctrl+PgDown", "F1", "F2", "F8", "Ctrl+P"})
        EXPECT_TRUE(listed.contains(key)) << key;
}

TEST_F(ShortcutsInWindow, TheMenuOfTheMarginOpensByItsKeyAlsoByAnotherOne)
{
    const QString source = writeFile("a.psm", "loop: JUMP loop\n      JUMP loop\n");
    ASSERT_TRUE(module<nsModPrj::ModPrj>()->openPrj(
        writeFile("margin.nalvo", "<project version=\"3\"><PrjInfo><title>T</title></PrjInfo>"
                                  "<sources><srcFiles>a.psm</srcFiles></sources></project>")));
    ASSERT_TRUE(module<ModEditorHookIf>()->openFile(source));
    auto* document =
        qobject_cast<nsModEditor::EditorWidget*>(module<ModGuiHookIf>()->currentWidget(ModGuiHookIf::eLocationTabs));
    ASSERT_NE(document, nullptr);
    const auto openMenu = [&](Qt::Key key, Qt::KeyboardModifiers modifiers) {
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get(), 60000));
        document->setCursorToLine(1);
        document->setFocus();
        QStringList texts;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            if (menu == nullptr)
                return;
            for (const QAction* action : menu->actions())
                texts.append(action->text());
            menu->close();
        });
        timer.start(0);
        QTest::keyClick(document, key, modifiers);
        return texts;
    };
    EXPECT_FALSE(openMenu(Qt::Key_F10, Qt::ControlModifier).isEmpty());
    openPage();
    assign("Marks of the line", Qt::Key_F12, Qt::NoModifier);
    press("Apply and close");
    EXPECT_TRUE(waitForClose());
    EXPECT_TRUE(openMenu(Qt::Key_F10, Qt::ControlModifier).isEmpty());
    EXPECT_FALSE(openMenu(Qt::Key_F12, Qt::NoModifier).isEmpty());
}

TEST_F(ShortcutsInWindow, APageThatIsChosenWithoutCtrlLeavesNoListBehind)
{
    for (const char* name : {"a.psm", "b.psm"})
        ASSERT_TRUE(module<ModEditorHookIf>()->openFile(writeFile(name, "loop: JUMP loop\n")));
    const auto page = [this] { return module<ModGuiHookIf>()->currentWidget(ModGuiHookIf::eLocationTabs); };
    QWidget* second = page();
    command("Navigation", "Page used before")->trigger();
    EXPECT_NE(page(), second);
    EXPECT_FALSE(window->findChild<QWidget*>("pageSwitcher")->isVisible());
    command("Navigation", "Page used before")->trigger();
    EXPECT_EQ(page(), second);
    openPage();
    assign("Page used before", Qt::Key_F12, Qt::NoModifier);
    press("Apply and close");
    EXPECT_TRUE(waitForClose());
    EXPECT_EQ(page(), second);
    QTest::keyClick(second, Qt::Key_F12);
    EXPECT_NE(page(), second);
    EXPECT_FALSE(window->findChild<QWidget*>("pageSwitcher")->isVisible());
}
