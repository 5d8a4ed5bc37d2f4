// The module: which actions are on, when the bar is shown, and which client is called.

#include "FindReplaceFixture.h"

#include <QMenu>
#include <QTabBar>

namespace {

class FindReplace : public FindReplaceTest
{
};

TEST_F(FindReplace, actionsStandInTheMenuInTheirOrder)
{
    const QList<QAction*> entries = module->menuActions(ModActionHookIf::eActionClassEdit);
    ASSERT_EQ(entries.size(), 4);
    const struct
    {
        const char* text;
        int id;
        QKeySequence::StandardKey key;
    } expected[] = {{"Find", 0, QKeySequence::Find},
                    {"Find previous", 2, QKeySequence::FindPrevious},
                    {"Find next", 1, QKeySequence::FindNext},
                    {"Replace", 3, QKeySequence::Replace}};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(entries.at(i)->text(), expected[i].text);
        EXPECT_EQ(entries.at(i)->toolTip(), expected[i].text);
        EXPECT_EQ(entries.at(i)->data().toInt(), expected[i].id);
        for (const QKeySequence& key : QKeySequence::keyBindings(expected[i].key))
            EXPECT_TRUE(entries.at(i)->shortcuts().contains(key));
        EXPECT_FALSE(entries.at(i)->shortcuts().isEmpty()) << "whatever the desktop knows as a key for it";
        EXPECT_FALSE(entries.at(i)->icon().pixmap(22).isNull());
    }
    for (int actionClass = 0; actionClass < 8; ++actionClass) {
        const auto id = static_cast<ModActionHookIf::eActionClass_t>(actionClass);
        EXPECT_EQ(module->menuActions(id).isEmpty(), id != ModActionHookIf::eActionClassEdit);
        EXPECT_TRUE(module->toolBarActions(id).isEmpty());
    }
}

TEST_F(FindReplace, barStandsBelowTheTabsAndIsHidden)
{
    EXPECT_TRUE(gui->hasWidget(ModGuiHookIf::eLocationCenterBelow, bar()));
    EXPECT_FALSE(bar()->isVisible());
    EXPECT_EQ(enabled(), "----");
}

TEST_F(FindReplace, actionsFollowThePage)
{
    QWidget* all = addPage("all", &editor, 3);
    EXPECT_EQ(enabled(), "f--r");
    QWidget* onlyFind = addPage("find", &help, 0);
    EXPECT_EQ(enabled(), "f---");
    addPage("settings");
    EXPECT_EQ(enabled(), "----");
    gui->setCurrentWidget(all);
    EXPECT_EQ(enabled(), "f--r");
    gui->setCurrentWidget(onlyFind);
    EXPECT_EQ(enabled(), "f---");
    EXPECT_FALSE(bar()->isVisible());
    EXPECT_EQ(editor.take(), QStringList());
    EXPECT_EQ(help.take(), QStringList());
}

TEST_F(FindReplace, findOpensTheBarWithTheTextOfTheClient)
{
    addPage("document", &editor);
    editor.initText = "selected";
    choose(Actions::eActionFind);
    EXPECT_TRUE(bar()->isVisible());
    EXPECT_TRUE(find()->hasFocus());
    EXPECT_EQ(module->findString(), "selected");
    EXPECT_EQ(bar()->mode(), Widget::eModeFind);
    EXPECT_EQ(editor.take(), QStringList({"init"}));
    EXPECT_EQ(enabled(), "fnpr");
}

TEST_F(FindReplace, replaceOpensTheBarWithBothRows)
{
    addPage("document", &editor);
    choose(Actions::eActionReplace);
    EXPECT_EQ(bar()->mode(), Widget::eModeReplace);
    EXPECT_TRUE(replace()->isVisible());
    EXPECT_EQ(enabled(), "f--r");
    QTest::keyClicks(find(), "a");
    EXPECT_EQ(enabled(), "fnpr");
    QTest::keyClick(find(), Qt::Key_Backspace);
    EXPECT_EQ(enabled(), "f--r");
}

TEST_F(FindReplace, openingAgainLeavesTheClientFirst)
{
    addPage("document", &editor);
    choose(Actions::eActionFind);
    QTest::keyClicks(find(), "old");
    choose(Actions::eActionReplace);
    EXPECT_EQ(editor.take(), QStringList({"init", "exit", "init"}));
    EXPECT_EQ(find()->selectedText(), "old");
    addPage("help", &help, 0);
    choose(Actions::eActionFind);
    EXPECT_EQ(editor.take(), QStringList({"exit"}));
    EXPECT_EQ(help.take(), QStringList({"init"}));
}

TEST_F(FindReplace, keysOpenTheBarAndFind)
{
    QWidget* page = addPage("document", &editor);
    page->setFocus();
    QTest::keySequence(page, QKeySequence::Find);
    ASSERT_TRUE(bar()->isVisible());
    QTest::keyClicks(find(), "a");
    QTest::keyClick(find(), Qt::Key_F3);
    QTest::keyClick(find(), Qt::Key_F3, Qt::ShiftModifier);
    page->setFocus();
    QTest::keyClick(page, Qt::Key_F3);
    EXPECT_EQ(editor.take(), QStringList({"init", "next*", "prev", "next"}));
}

TEST_F(FindReplace, buttonsReachTheClientOfThePage)
{
    addPage("document", &editor);
    choose(Actions::eActionReplace);
    QTest::keyClicks(find(), "a");
    editor.take();
    for (const char* name : {"buttonNext", "buttonPrevious", "buttonReplace", "buttonReplaceAll"})
        click(name);
    EXPECT_EQ(editor.take(), QStringList({"next*", "prev", "replace", "replaceAll"}));
    EXPECT_EQ(help.take(), QStringList());
}

TEST_F(FindReplace, changesAreToldOnce)
{
    addPage("document", &editor);
    choose(Actions::eActionReplace);
    QTest::keyClicks(find(), "a");
    editor.take();
    click("buttonNext");
    click("buttonNext");
    QTest::keyClicks(find(), "b");
    click("buttonNext");
    click("checkCaseSensitive");
    click("buttonPrevious");
    QTest::keyClicks(replace(), "c");
    click("buttonReplaceAll");
    click("buttonReplace");
    EXPECT_EQ(editor.take(), QStringList({"next*", "next", "next*", "prev*", "replaceAll*", "replace"}));
    choose(Actions::eActionFind);
    click("buttonNext");
    EXPECT_EQ(editor.take(), QStringList({"exit", "init", "next*"}));
}

TEST_F(FindReplace, typingTheReplacementKeepsTheFocusThere)
{
    addPage("document", &editor);
    choose(Actions::eActionReplace);
    QTest::keyClicks(find(), "a");
    replace()->setFocus();
    for (const char key : QByteArray("new text"))
        QTest::keyClick(QApplication::focusWidget(), key);
    EXPECT_EQ(module->replaceString(), "new text");
    EXPECT_EQ(module->findString(), "a");
}

TEST_F(FindReplace, hookAnswersWithTheParameters)
{
    addPage("document", &editor);
    choose(Actions::eActionReplace);
    EXPECT_FALSE(module->isCaseSensitive());
    EXPECT_FALSE(module->isWholeWords());
    QTest::keyClicks(find(), "a b");
    QTest::keyClicks(replace(), "c");
    click("checkCaseSensitive");
    click("checkWholeWords");
    ModFindReplaceHookIf* hook = editor.modFindReplaceHook;
    EXPECT_EQ(hook->findString(), "a b");
    EXPECT_EQ(hook->replaceString(), "c");
    EXPECT_TRUE(hook->isCaseSensitive());
    EXPECT_TRUE(hook->isWholeWords());
}

TEST_F(FindReplace, featuresOfThePageDecideWhatTheBarOffers)
{
    addPage("only replace", &editor, 1);
    choose(Actions::eActionReplace);
    EXPECT_FALSE(part<QCheckBox>("checkWholeWords")->isEnabled());
    EXPECT_TRUE(part<QToolButton>("buttonToggleMode")->isEnabled());
    EXPECT_TRUE(replace()->isVisible());
    addPage("only words", &help, 2);
    EXPECT_EQ(enabled(), "f---");
    choose(Actions::eActionFind);
    EXPECT_TRUE(part<QCheckBox>("checkWholeWords")->isEnabled());
    EXPECT_FALSE(part<QToolButton>("buttonToggleMode")->isEnabled());
    EXPECT_FALSE(replace()->isVisible());
}

TEST_F(FindReplace, pageThatIsNoTargetHidesTheBarAndComingBackShowsItAsItWas)
{
    QWidget* document = addPage("document", &editor);
    choose(Actions::eActionReplace);
    QTest::keyClicks(find(), "text");
    QTest::keyClicks(replace(), "other");
    QWidget* settings = addPage("settings");
    EXPECT_FALSE(bar()->isVisible());
    EXPECT_EQ(enabled(), "----");
    gui->setCurrentWidget(document);
    EXPECT_TRUE(bar()->isVisible());
    EXPECT_EQ(enabled(), "fnpr");
    EXPECT_EQ(find()->text(), "text");
    EXPECT_EQ(replace()->text(), "other");
    EXPECT_TRUE(replace()->isVisible());
    EXPECT_TRUE(bar()->isAncestorOf(QApplication::focusWidget()));
    EXPECT_EQ(editor.take(), QStringList({"init"}));
    gui->setCurrentWidget(settings);
    EXPECT_FALSE(bar()->isVisible());
}

TEST_F(FindReplace, barStaysWithOtherPagesOfItsClient)
{
    addPage("one", &editor);
    choose(Actions::eActionFind);
    QTest::keyClicks(find(), "a");
    addPage("two", &editor);
    EXPECT_TRUE(bar()->isVisible());
    editor.take();
    click("buttonNext");
    EXPECT_EQ(editor.take(), QStringList({"next*"}));
}

TEST_F(FindReplace, pageOfAnotherClientHidesTheBarUntilTheBackWay)
{
    QWidget* document = addPage("document", &editor);
    choose(Actions::eActionFind);
    QTest::keyClicks(find(), "a");
    addPage("help", &help, 0);
    EXPECT_FALSE(bar()->isVisible());
    EXPECT_EQ(enabled(), "fnp-");
    gui->setCurrentWidget(document);
    EXPECT_TRUE(bar()->isVisible());
    // Once the bar has served the other one, it stays with that.
    gui->setCurrentWidget(pages.last());
    choose(Actions::eActionFind);
    gui->setCurrentWidget(document);
    EXPECT_FALSE(bar()->isVisible());
    EXPECT_EQ(enabled(), "fnpr");
}

TEST_F(FindReplace, escapeClosesAndGivesTheFocusBack)
{
    QWidget* document = addPage("document", &editor);
    choose(Actions::eActionFind);
    QTest::keyClicks(find(), "a");
    QTest::keyClick(find(), Qt::Key_Escape);
    EXPECT_FALSE(bar()->isVisible());
    EXPECT_TRUE(document->hasFocus());
    EXPECT_EQ(editor.take(), QStringList({"init", "exit"}));
    EXPECT_EQ(enabled(), "fnpr");
    // It does not come back by itself.
    addPage("settings");
    gui->setCurrentWidget(document);
    EXPECT_FALSE(bar()->isVisible());
    choose(Actions::eActionFind);
    EXPECT_EQ(find()->selectedText(), "a");
}

TEST_F(FindReplace, findingGoesOnWithTheBarClosed)
{
    QWidget* document = addPage("document", &editor);
    choose(Actions::eActionFind);
    QTest::keyClicks(find(), "a");
    QTest::keyClick(find(), Qt::Key_Escape);
    editor.take();
    choose(Actions::eActionFindNext);
    choose(Actions::eActionFindPrev);
    EXPECT_EQ(editor.take(), QStringList({"next*", "prev"}));
    EXPECT_FALSE(bar()->isVisible());
    EXPECT_TRUE(document->hasFocus());
    // A client that the bar has not served yet hears of the parameters first.
    addPage("help", &help, 0);
    choose(Actions::eActionFindNext);
    choose(Actions::eActionFindNext);
    EXPECT_EQ(help.take(), QStringList({"next*", "next"}));
    gui->setCurrentWidget(document);
    choose(Actions::eActionFindNext);
    EXPECT_EQ(editor.take(), QStringList({"next*"}));
}

TEST_F(FindReplace, otherAreasChangeNothing)
{
    addPage("document", &editor);
    choose(Actions::eActionFind);
    QWidget dock;
    gui->addWidget(nullptr, ModGuiHookIf::eLocationDockLeft, &dock, "dock");
    EXPECT_TRUE(bar()->isVisible());
    gui->removeWidget(&dock);
    EXPECT_TRUE(bar()->isVisible());
    EXPECT_EQ(enabled(), "f--r");
}

TEST_F(FindReplace, currentPageMayRegisterLater)
{
    QWidget* page = addPage("page");
    EXPECT_EQ(enabled(), "----");
    module->registerPluginWidget(&editor, page, 3);
    EXPECT_EQ(enabled(), "f--r");
    module->registerPluginWidget(&editor, page, 0);
    EXPECT_EQ(enabled(), "f---");
    module->unregisterPluginWidget(page);
    module->unregisterPluginWidget(page);
    EXPECT_EQ(enabled(), "----");
}

TEST_F(FindReplace, clientWithoutPagesIsNotCalledAnyMore)
{
    auto client = std::make_unique<FindClient>();
    QWidget* page = addPage("page", client.get());
    choose(Actions::eActionFind);
    gui->removeWidget(page);
    module->unregisterPluginWidget(page);
    EXPECT_FALSE(bar()->isVisible());
    client.reset();
    addPage("document", &editor);
    choose(Actions::eActionFind);
    EXPECT_EQ(editor.take(), QStringList({"init"}));
}

TEST_F(FindReplace, pageThatWasDeletedIsForgotten)
{
    addPage("document", &editor);
    choose(Actions::eActionFind);
    delete pages.takeLast();
    EXPECT_FALSE(bar()->isVisible());
    EXPECT_EQ(enabled(), "----");
    // Any new page may have the address of the old one.
    for (int i = 0; i < 50; ++i)
        addPage("page");
    for (QWidget* page : qAsConst(pages)) {
        gui->setCurrentWidget(page);
        EXPECT_EQ(enabled(), "----");
    }
}

TEST_F(FindReplace, parametersChangedOnAPageThatIsNoTargetAreNotNoted)
{
    QWidget* document = addPage("document", &editor);
    choose(Actions::eActionFind);
    QTest::keyClicks(find(), "a");
    click("buttonNext");
    editor.take();
    addPage("settings");
    find()->setText("b");
    EXPECT_EQ(enabled(), "----");
    gui->setCurrentWidget(document);
    click("buttonNext");
    EXPECT_EQ(editor.take(), QStringList({"next"}));
}

TEST_F(FindReplace, doesWithoutHooksAndAfterItsEnd)
{
    QWidget* document = addPage("document", &editor);
    module->registerPluginWidget(nullptr, document, 3);
    module->registerPluginWidget(&editor, nullptr, 3);
    module->registerPlugin(nullptr);
    module->unregisterPluginWidget(nullptr);
    EXPECT_EQ(editor.modFindReplaceHook, module);
    choose(Actions::eActionFind);
    EXPECT_TRUE(module->modExitRequest());
    module->modExitIntermod();
    EXPECT_EQ(bar(), nullptr);
    module->modExit();
    module->modExit();
    EXPECT_TRUE(module->menuActions(ModActionHookIf::eActionClassEdit).isEmpty());
    EXPECT_EQ(module->findString(), "");
    EXPECT_EQ(module->replaceString(), "");
    EXPECT_FALSE(module->isCaseSensitive());
    EXPECT_FALSE(module->isWholeWords());
    addPage("late", &editor);
    module->unregisterPluginWidget(document);

    nsModFindReplace::ModFindReplace alone;
    alone.modInitIntermod();
    alone.modInit();
    alone.modInit();
    alone.modInitIntermod();
    alone.registerPluginWidget(&help, document, 3);
    for (QAction* one : alone.menuActions(ModActionHookIf::eActionClassEdit)) {
        one->setEnabled(true);
        one->trigger();
    }
    alone.modExitIntermod();
    EXPECT_EQ(help.take(), QStringList());
}

} // namespace
