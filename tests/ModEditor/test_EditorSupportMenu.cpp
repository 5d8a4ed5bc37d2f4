#include "EditorSupportMenu.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QFile>
#include <QMenu>
#include <QSignalSpy>
#include <QTemporaryDir>

using nsModEditor::EditorSupportMenu;
using nsModEditor::EditorSupportMenuNode;

namespace {

QStringList entries(const QMenu* menu)
{
    QStringList texts;
    for (const QAction* action : menu->actions())
        texts.append(action->isSeparator() ? "-" : action->text());
    return texts;
}

/// What a leaf inserts when it is chosen.
QStringList chosen(EditorSupportMenu* menu, const QStringList& path)
{
    QStringList texts;
    const auto connection =
        QObject::connect(menu, &EditorSupportMenu::insertText, [&](const QString& text) { texts.append(text); });
    menu->node(path)->action->trigger();
    QObject::disconnect(connection);
    return texts;
}

TEST(EditorSupportMenu, isNotAddedWhileItIsEmpty)
{
    EditorSupportMenu menu;
    QMenu shown;
    menu.addSupportMenu(&shown);
    EXPECT_TRUE(shown.actions().isEmpty());
    menu.setEntry("A", "a", EditorSupportMenu::typeText);
    menu.addSupportMenu(&shown);
    EXPECT_EQ(entries(&shown), QStringList({"Insert..."}));
}

TEST(EditorSupportMenu, whatIsMadeLaterIsThereWhenTheMenuIsSeen)
{
    for (const bool asPartOfAnother : {false, true}) {
        EditorSupportMenu menu;
        int calls = 0;
        menu.fillLater([&calls](EditorSupportMenu* filled) {
            ++calls;
            filled->setEntry("Group/Late", "late", EditorSupportMenu::typeText);
        });
        menu.setEntry("Group/Early", "early", EditorSupportMenu::typeText);
        EXPECT_EQ(calls, 0);
        QMenu shown;
        if (asPartOfAnother)
            menu.addSupportMenu(&shown);
        else
            menu.menu->popup(QPoint(0, 0));
        EXPECT_EQ(calls, 1);
        EXPECT_EQ(entries(menu.node({"Group"})->menu), QStringList({"Early", "Late"}));
        menu.menu->hide();
        menu.menu->popup(QPoint(0, 0));
        menu.menu->hide();
        EXPECT_EQ(calls, 1);
    }
}

TEST(EditorSupportMenu, whatIsMadeLaterAloneIsSeen)
{
    EditorSupportMenu menu;
    menu.fillLater([](EditorSupportMenu* filled) { filled->setEntry("Late", "late", EditorSupportMenu::typeText); });
    QMenu shown;
    menu.addSupportMenu(&shown);
    EXPECT_EQ(entries(&shown), QStringList({"Insert..."}));
}

TEST(EditorSupportMenu, entriesStandSortedInSubMenus)
{
    EditorSupportMenu menu;
    for (const char* path : {"Zoo/b", "Zoo//a", "/Alpha", "Zoo/c/", "Mid/x"})
        menu.setEntry(path, path, EditorSupportMenu::typeText);
    EXPECT_EQ(entries(menu.menu), QStringList({"Alpha", "Mid", "Zoo"}));
    EXPECT_EQ(entries(menu.node({"Zoo"})->menu), QStringList({"a", "b", "c"}));
}

TEST(EditorSupportMenu, unsortedPartKeepsTheOrderOfEntry)
{
    EditorSupportMenu menu;
    menu.setEntrySortEn("D", false);
    for (const char* path : {"D/z", "D/a", "D/m"})
        menu.setEntry(path, path, EditorSupportMenu::typeText);
    EXPECT_EQ(entries(menu.node({"D"})->menu), QStringList({"z", "a", "m"}));
    menu.setEntrySortEn("D", true);
    menu.setEntry("D/b", "b", EditorSupportMenu::typeText);
    EXPECT_EQ(entries(menu.node({"D"})->menu), QStringList({"a", "b", "m", "z"}));
}

TEST(EditorSupportMenu, choosingATextInsertsIt)
{
    EditorSupportMenu menu;
    menu.setEntry("Instructions/ADD", "ADD", EditorSupportMenu::typeText);
    EXPECT_EQ(chosen(&menu, {"Instructions", "ADD"}), QStringList({"ADD"}));
    menu.setEntry("Instructions/ADD", "ADDC", EditorSupportMenu::typeText);
    EXPECT_EQ(chosen(&menu, {"Instructions", "ADD"}), QStringList({"ADDC"}));
    EXPECT_EQ(entries(menu.node({"Instructions"})->menu), QStringList({"ADD"}));
}

TEST(EditorSupportMenu, choosingInAMenuThatShowsItInsertsOnce)
{
    EditorSupportMenu menu;
    menu.setEntry("Group/Entry", "text", EditorSupportMenu::typeText);
    QMenu shown;
    menu.addSupportMenu(&shown);
    QSignalSpy spy(&menu, &EditorSupportMenu::insertText);
    menu.node({"Group", "Entry"})->action->trigger();
    ASSERT_EQ(spy.count(), 1);
    EXPECT_EQ(spy.at(0).at(0).toString(), "text");
}

TEST(EditorSupportMenu, templateFileInsertsWhatStandsBehindItsMark)
{
    QTemporaryDir folder;
    const QString path = folder.filePath("t.txt");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("About\nmenuItem = X/Y\ntemplate = anything\nline 1\nline 2\n");
    file.close();
    EditorSupportMenu menu;
    menu.setEntry("X/Y", path, EditorSupportMenu::typeFile);
    EXPECT_EQ(chosen(&menu, {"X", "Y"}), QStringList({"line 1\nline 2\n"}));
    menu.setEntry("X/Y", folder.filePath("missing"), EditorSupportMenu::typeFile);
    EXPECT_TRUE(chosen(&menu, {"X", "Y"}).isEmpty());
}

TEST(EditorSupportMenu, laterTemplateOfAPathWins)
{
    EditorSupportMenu menu;
    menu.setEntry("X/Y", "/first", EditorSupportMenu::typeFile);
    menu.setEntry("X/Y", "/second", EditorSupportMenu::typeFile);
    EXPECT_EQ(menu.node({"X", "Y"})->data, "/second");
    EXPECT_EQ(entries(menu.node({"X"})->menu), QStringList({"Y"}));
}

TEST(EditorSupportMenu, pathBelowALeafKeepsTheLeaf)
{
    EditorSupportMenu menu;
    menu.setEntry("Leaf", "leaf", EditorSupportMenu::typeText);
    menu.setEntry("Leaf/Below", "below", EditorSupportMenu::typeText);
    EXPECT_EQ(entries(menu.menu), QStringList({"Leaf"}));
    EXPECT_EQ(menu.node({"Leaf"})->menu, nullptr);
    EXPECT_EQ(chosen(&menu, {"Leaf"}), QStringList({"leaf"}));
}

TEST(EditorSupportMenu, removingTakesAllBelow)
{
    EditorSupportMenu menu;
    menu.setEntry("Label/a", "a", EditorSupportMenu::typeText);
    menu.setEntry("Label/b", "b", EditorSupportMenu::typeText);
    menu.setEntry("Other", "o", EditorSupportMenu::typeText);
    menu.removeEntry("Label");
    menu.removeEntry("Label");
    menu.removeEntry("Nowhere/x");
    menu.removeEntry("");
    EXPECT_EQ(entries(menu.menu), QStringList({"Other"}));
    menu.setEntry("Label/c", "c", EditorSupportMenu::typeText);
    EXPECT_EQ(entries(menu.node({"Label"})->menu), QStringList({"c"}));
}

TEST(EditorSupportMenu, tenThousandEntriesAreInOrder)
{
    EditorSupportMenu menu;
    for (int i = 0; i < 10000; ++i)
        menu.setEntry(QString("Label/l%1").arg((i * 7919) % 10000, 5, 10, QChar('0')), "x",
                      EditorSupportMenu::typeText);
    const QStringList texts = entries(menu.node({"Label"})->menu);
    ASSERT_EQ(texts.size(), 10000);
    EXPECT_TRUE(std::is_sorted(texts.begin(), texts.end()));
}

} // namespace
