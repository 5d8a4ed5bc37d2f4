#include "Shortcuts.h"

#include <gtest/gtest.h>

#include <QAction>

using nsModAction::Shortcuts;

namespace {

class ShortcutsTest : public ::testing::Test
{
protected:
    ShortcutsTest()
    {
        run.setShortcut(QKeySequence("F5"));
        step.setShortcut(QKeySequence("F10"));
    }

    static QList<QKeySequence> keys(const char* text) { return {QKeySequence(QLatin1String(text))}; }

    QAction run{QStringLiteral("Run")};
    QAction step{QStringLiteral("Step")};
    Shortcuts shortcuts;
};

} // namespace

TEST_F(ShortcutsTest, aCommandThatComesLaterHasTheKeysThatWereChosenForIt)
{
    shortcuts.setStored({"Simulator/Run=Ctrl+Alt+R"});
    EXPECT_EQ(run.shortcuts(), keys("F5"));
    shortcuts.setEntries("Simulator", {&run});
    EXPECT_EQ(run.shortcuts(), keys("Ctrl+Alt+R"));
    EXPECT_EQ(shortcuts.commands().first().standard, keys("F5"));
}

TEST_F(ShortcutsTest, aCommandThatComesWhileTheUserChoosesKeepsItsKeys)
{
    shortcuts.setStored({"Simulator/Run=Ctrl+Alt+R"});
    shortcuts.setEntries("Simulator", {&step});
    QHash<QString, QList<QKeySequence>> chosen;
    for (const Shortcuts::sCommand_t& command : shortcuts.commands())
        chosen.insert(command.id, keys("Ctrl+Alt+S"));
    shortcuts.setEntries("Simulator", {&run, &step});
    shortcuts.setChosen(chosen);
    EXPECT_EQ(run.shortcuts(), keys("Ctrl+Alt+R"));
    EXPECT_EQ(step.shortcuts(), keys("Ctrl+Alt+S"));
    EXPECT_EQ(shortcuts.stored(), QStringList({"Simulator/Run=Ctrl+Alt+R", "Simulator/Step=Ctrl+Alt+S"}));
}

TEST_F(ShortcutsTest, aCommandThatGoesWhileTheUserChoosesHasItsKeysWhenItComesBack)
{
    shortcuts.setEntries("Simulator", {&run, &step});
    shortcuts.setEntries("Simulator", {&step});
    shortcuts.setChosen({{"Simulator/Run", keys("Ctrl+Alt+R")}, {"Simulator/Step", keys("F10")}});
    EXPECT_EQ(shortcuts.stored(), QStringList("Simulator/Run=Ctrl+Alt+R"));
    shortcuts.setEntries("Simulator", {&run, &step});
    EXPECT_EQ(run.shortcuts(), keys("Ctrl+Alt+R"));
}

TEST_F(ShortcutsTest, keysThatCanNotBeReadLeaveTheCommandAsItComes)
{
    shortcuts.setEntries("Simulator", {&run, &step});
    shortcuts.setStored({"Simulator/Run=no such key", "=F1", "Simulator/Step", "Simulator/Step=", "File/Gone=F3"});
    EXPECT_EQ(run.shortcuts(), keys("F5"));
    EXPECT_TRUE(step.shortcuts().isEmpty()) << "without keys on purpose";
    shortcuts.setStored({"Simulator/Run=Ctrl+=; no such key; Ctrl+;"});
    EXPECT_EQ(run.shortcuts(), QList<QKeySequence>({QKeySequence("Ctrl+="), QKeySequence("Ctrl+;")}));
    EXPECT_EQ(step.shortcuts(), keys("F10"));
    EXPECT_EQ(shortcuts.stored(), QStringList("Simulator/Run=Ctrl+=; Ctrl+;"));
}

/// As the completion does, whose key means nothing while it is off.
TEST_F(ShortcutsTest, otherKeysOfItsOwnerAreTheKeysThatACommandComesWith)
{
    run.setShortcut(QKeySequence());
    shortcuts.setEntries("Simulator", {&run});
    run.setShortcut(QKeySequence("F5"));
    EXPECT_EQ(shortcuts.commands().first().standard, keys("F5"));
    shortcuts.setChosen({{"Simulator/Run", keys("F5")}});
    EXPECT_TRUE(shortcuts.stored().isEmpty()) << "nobody has chosen anything";

    shortcuts.setChosen({{"Simulator/Run", keys("Ctrl+J")}});
    run.setShortcut(QKeySequence());
    shortcuts.setEntries("Simulator", {&run});
    EXPECT_EQ(run.shortcuts(), keys("Ctrl+J"));
    run.setShortcut(QKeySequence("F6"));
    shortcuts.setEntries("Simulator", {&run});
    EXPECT_EQ(run.shortcuts(), keys("Ctrl+J"));
    shortcuts.setChosen({{"Simulator/Run", keys("F6")}});
    EXPECT_TRUE(shortcuts.stored().isEmpty());
}
