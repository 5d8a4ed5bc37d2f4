// What the dialog asks of its clients, in which order, and what its buttons do.

#include "ConfigFixture.h"

#include "ActionsConfig.h"
#include "ConfigListDelegate.h"

using nsModConfig::ModConfig;

namespace {

using Dialog = ConfigFixture;

/// Shows how an entry is going to be painted.
class ShownEntry : public nsModConfig::ConfigListDelegate
{
public:
    using ConfigListDelegate::ConfigListDelegate;
    QStyleOptionViewItem option(QListWidget* list, int row, int width) const
    {
        QStyleOptionViewItem result;
        result.widget = list;
        result.font = list->font();
        result.fontMetrics = list->fontMetrics();
        result.rect = QRect(0, 0, width, 90);
        initStyleOption(&result, list->model()->index(row, 0));
        return result;
    }
};

} // namespace

TEST_F(Dialog, asksForThePagesInTheOrderOfTheContract)
{
    prj.path = "/p/a.nalvo";
    config->openDialog();
    EXPECT_EQ(log, QStringList({"Prj count", "Prj page 0", "Prj back", "Prj set", "App count", "App page 0", "App back",
                                "App set", "Prj project", "App project", "Prj front"}));
}

TEST_F(Dialog, appliesInTheOrderOfTheContract)
{
    prj.path = "/p/a.nalvo";
    config->openDialog();
    log.clear();
    config->closeDialog(true);
    EXPECT_EQ(log,
              QStringList({"Prj request", "App request", "Prj check", "App check", "Prj apply", "Prj deleted",
                           "App apply", "App deleted", "Prj applied", "App applied", "save settings", "save project"}));
    EXPECT_EQ(dialog(), nullptr);
}

TEST_F(Dialog, cancelAsksNothingAndSavesNothing)
{
    prj.path = "/p/a.nalvo";
    config->openDialog();
    log.clear();
    config->closeDialog();
    EXPECT_EQ(log, QStringList({"Prj close", "Prj deleted", "App close", "App deleted", "Prj closed", "App closed"}));
    EXPECT_EQ(dialog(), nullptr);
}

TEST_F(Dialog, withoutAProjectOnlyTheSettingsAreSaved)
{
    config->openDialog();
    log.clear();
    config->closeDialog(true);
    EXPECT_TRUE(log.contains("save settings"));
    EXPECT_FALSE(log.contains("save project"));
}

TEST_F(Dialog, aClosedDialogCanNotBeClosed)
{
    config->closeDialog(true);
    EXPECT_EQ(log, QStringList());
    EXPECT_FALSE(gui.visible.contains(ModGuiHookIf::eLocationDockRight));
}

TEST_F(Dialog, hasTheLayoutOfItsParts)
{
    openDialog();
    EXPECT_EQ(gui.widgets.value(dialog()).location, ModGuiHookIf::eLocationTabs);
    EXPECT_EQ(list()->viewMode(), QListView::IconMode);
    EXPECT_EQ(list()->flow(), QListView::TopToBottom);
    EXPECT_FALSE(list()->isWrapping());
    EXPECT_TRUE(list()->uniformItemSizes());
    EXPECT_EQ(list()->iconSize(), QSize(96, 96));
    EXPECT_EQ(list()->movement(), QListView::Static);
    EXPECT_EQ(list()->minimumWidth(), 130);
    EXPECT_EQ(list()->maximumWidth(), 130);
    EXPECT_EQ(list()->spacing(), 12);
    EXPECT_EQ(stack()->minimumWidth(), 40);
    EXPECT_EQ(item("App")->sizeHint(), QSize(80, 66));
    EXPECT_EQ(item("App")->textAlignment(), int(Qt::AlignCenter | Qt::AlignAbsolute));
    auto* area = qobject_cast<QScrollArea*>(stack()->widget(1));
    ASSERT_NE(area, nullptr);
    EXPECT_EQ(area->widget(), appClient.page());
    EXPECT_EQ(area->frameStyle(), int(QFrame::Box) | int(QFrame::Plain));
    EXPECT_EQ(area->lineWidth(), 0);
    EXPECT_TRUE(area->widgetResizable());
    EXPECT_LT(list()->mapTo(dialog(), QPoint()).x(), stack()->mapTo(dialog(), QPoint()).x());

    QMap<int, QString> buttons;
    for (QPushButton* button : dialog()->findChildren<QPushButton*>()) {
        buttons.insert(button->mapTo(dialog(), QPoint()).x(), button->text());
        EXPECT_GT(button->mapTo(dialog(), QPoint()).y(), list()->mapTo(dialog(), QPoint(0, list()->height() - 1)).y());
        EXPECT_FALSE(button->toolTip().isEmpty());
    }
    EXPECT_EQ(QStringList(buttons.values()),
              QStringList({"Set page default values", "Restore values", "Help", "Apply and close", "&Cancel"}));
}

TEST_F(Dialog, noTitleInTheListIsCutOff)
{
    openDialog();
    const ShownEntry delegate(list());
    item("App")->setText("A title wider than the list");
    const int row = list()->row(item("A title wider than the list"));
    const QStyleOptionViewItem wide = delegate.option(list(), row, 90);
    EXPECT_LE(wide.fontMetrics.horizontalAdvance(wide.text), 86);
    EXPECT_GT(wide.fontMetrics.horizontalAdvance(wide.text), 60);
    EXPECT_EQ(wide.text, QString("A title wider than the list"));
    item("A title wider than the list")->setText("App");
    EXPECT_EQ(delegate.option(list(), row, 90).font, list()->font());
}

TEST_F(Dialog, withoutAProjectTheFirstPageThatNeedsNoneIsSelected)
{
    openDialog();
    EXPECT_FALSE(isEnabled("Prj"));
    EXPECT_TRUE(isEnabled("App"));
    EXPECT_EQ(current(), "App");
    EXPECT_EQ(shownPage(), appClient.page());
    EXPECT_FALSE(item("Prj")->toolTip().isEmpty());
    clickItem("Prj");
    EXPECT_EQ(current(), "App") << "a disabled page can not be selected";
}

TEST_F(Dialog, aProjectThatOpensMeanwhileEnablesItsPages)
{
    openDialog();
    prjClient.value = "of the project";
    prj.open("/p/a.nalvo");
    EXPECT_TRUE(isEnabled("Prj"));
    EXPECT_EQ(current(), "Prj");
    EXPECT_EQ(shownPage(), prjClient.page());
    EXPECT_EQ(prjClient.page()->field->text(), "of the project");
    prj.close();
    EXPECT_FALSE(isEnabled("Prj"));
    EXPECT_EQ(current(), "App");
}

TEST_F(Dialog, anotherProjectIsNotGivenTheValuesOfTheLast)
{
    prj.path = "/p/a.nalvo";
    openDialog();
    QTest::keyClicks(prjClient.page()->field, " edited");
    prj.close();
    appClient.page()->field->setText("edited");
    prjClient.value = "second";
    prj.open("/p/b.nalvo");
    EXPECT_EQ(prjClient.page()->field->text(), "second");
    EXPECT_EQ(appClient.page()->field->text(), "edited") << "what belongs to no project stays as the user left it";
}

TEST_F(Dialog, whereNoPageIsEnabledNoneIsCurrentAndTheButtonsOfAPageAreOff)
{
    config->unregisterPlugin(&appClient);
    openDialog();
    EXPECT_EQ(current(), QString());
    EXPECT_EQ(shownPage(), prjClient.page()) << "the page itself tells why";
    for (QPushButton* button : dialog()->findChildren<QPushButton*>("button"))
        EXPECT_EQ(button->isEnabled(), button->text() == "Apply and close") << qPrintable(button->text());
    prj.open("/p/a.nalvo");
    for (QPushButton* button : dialog()->findChildren<QPushButton*>("button"))
        EXPECT_TRUE(button->isEnabled()) << qPrintable(button->text());
}

TEST_F(Dialog, aPageThatFailsTheCheckComesToTheFront)
{
    prj.path = "/p/a.nalvo";
    openDialog();
    ASSERT_EQ(current(), "Prj");
    ASSERT_FALSE(gui.widgetVisible(ModGuiHookIf::eLocationDockRight));
    appClient.page()->valid = false;
    log.clear();
    click("Apply and close");
    ASSERT_NE(dialog(), nullptr);
    EXPECT_EQ(current(), "App");
    EXPECT_EQ(shownPage(), appClient.page());
    EXPECT_EQ(msg.errors(), QStringList("Invalid configuration."));
    EXPECT_TRUE(gui.widgetVisible(ModGuiHookIf::eLocationDockRight));
    EXPECT_EQ(logOf({"apply", "applied", "closed", "settings", "project"}), QStringList());
    // Once it is right, the same button closes.
    appClient.page()->valid = true;
    click("Apply and close");
    EXPECT_EQ(dialog(), nullptr);
}

TEST_F(Dialog, theFirstPageThatFailsIsTheLastThatIsChecked)
{
    prj.path = "/p/a.nalvo";
    openDialog();
    prjClient.page()->valid = false;
    appClient.page()->valid = false;
    log.clear();
    config->closeDialog(true);
    EXPECT_EQ(logOf({"check"}), QStringList("Prj check"));
    EXPECT_EQ(msg.errors().size(), 1);
}

TEST_F(Dialog, aModuleCanRefuse)
{
    prj.path = "/p/a.nalvo";
    openDialog();
    prjClient.agrees = false;
    log.clear();
    config->closeDialog(true);
    ASSERT_NE(dialog(), nullptr);
    EXPECT_EQ(log, QStringList("Prj request"));
    EXPECT_EQ(msg.errors(), QStringList());
    EXPECT_TRUE(gui.widgetVisible(ModGuiHookIf::eLocationDockRight));
    // A refusal does not hold against a cancel.
    click("&Cancel");
    EXPECT_EQ(dialog(), nullptr);
}

TEST_F(Dialog, restoreUndoesTheEditsOfThePresentPageOnly)
{
    prj.path = "/p/a.nalvo";
    openDialog();
    QTest::keyClicks(prjClient.page()->field, "x");
    clickItem("App");
    QTest::keyClicks(appClient.page()->field, "x");
    ASSERT_EQ(appClient.page()->field->text(), "valuex");
    click("Restore values");
    EXPECT_EQ(appClient.page()->field->text(), "value");
    EXPECT_EQ(prjClient.page()->field->text(), "valuex");
}

TEST_F(Dialog, defaultsConcernThePresentPageOnly)
{
    prj.path = "/p/a.nalvo";
    openDialog();
    click("Set page default values");
    EXPECT_EQ(prjClient.page()->field->text(), "default");
    EXPECT_EQ(appClient.page()->field->text(), "value");
}

TEST_F(Dialog, applySavesAndCancelDoesNot)
{
    openDialog();
    QTest::keyClicks(appClient.page()->field, " new");
    click("&Cancel");
    EXPECT_EQ(appClient.value, "value");
    EXPECT_FALSE(log.contains("save settings"));
    openDialog();
    EXPECT_EQ(appClient.page()->field->text(), "value");
    QTest::keyClicks(appClient.page()->field, " new");
    click("Apply and close");
    EXPECT_EQ(appClient.value, "value new");
    EXPECT_TRUE(log.contains("save settings"));
}

TEST_F(Dialog, closingTheTabSaves)
{
    openDialog();
    QTest::keyClicks(appClient.page()->field, " new");
    QWidget other;
    config->removeWidgetRequest(&other);
    ASSERT_NE(dialog(), nullptr);
    config->removeWidgetRequest(dialog());
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_EQ(appClient.value, "value new");
    EXPECT_TRUE(log.contains("save settings"));
    config->removeWidgetRequest(nullptr);
}

TEST_F(Dialog, theEndOfTheProgramCancels)
{
    openDialog();
    QTest::keyClicks(appClient.page()->field, " new");
    config->modExitIntermod();
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_EQ(appClient.value, "value");
    EXPECT_FALSE(log.contains("save settings"));
}

TEST_F(Dialog, aSecondOpenBringsItToTheFront)
{
    openDialog();
    QWidget* first = dialog();
    QWidget other;
    gui.addWidget(nullptr, ModGuiHookIf::eLocationTabs, &other, "main.psm");
    log.clear();
    config->openDialog();
    EXPECT_EQ(dialog(), first);
    EXPECT_EQ(gui.currentWidget(ModGuiHookIf::eLocationTabs), first);
    EXPECT_EQ(log, QStringList());
    EXPECT_EQ(gui.widgets.size(), 2);
}

TEST_F(Dialog, opensAtTheNamedPage)
{
    prj.path = "/p/a.nalvo";
    config->openDialog("App");
    EXPECT_EQ(current(), "App");
    EXPECT_EQ(shownPage(), appClient.page());
    EXPECT_TRUE(config->selectDialogPageByTitle("Prj"));
    EXPECT_EQ(current(), "Prj");
    EXPECT_FALSE(config->selectDialogPageByTitle("None"));
    EXPECT_FALSE(config->selectDialogPageByTitle("prj"));
    EXPECT_EQ(current(), "Prj");
    config->closeDialog();
    EXPECT_FALSE(config->selectDialogPageByTitle("Prj"));
}

TEST_F(Dialog, aChangeOfThePageTellsBothAndShowsTheHelp)
{
    prj.path = "/p/a.nalvo";
    openDialog();
    EXPECT_EQ(hlp.refs, QStringList("pageId://Prj"));
    log.clear();
    clickItem("App");
    EXPECT_EQ(log, QStringList({"Prj back", "App front"}));
    EXPECT_EQ(hlp.refs, QStringList({"pageId://Prj", "pageId://App"}));
    QWidget* closed = dialog();
    config->closeDialog();
    EXPECT_EQ(hlp.closed, QList<QWidget*>{closed});
    EXPECT_EQ(hlp.refs.size(), 2);
}

TEST_F(Dialog, aPageCanAskForOtherHelpWhileItIsInFront)
{
    prj.path = "/p/a.nalvo";
    openDialog();
    prjClient.page()->helpSuffix = "#second";
    prjClient.page()->modConfigPageHook->showDialogPageHelp(prjClient.page());
    EXPECT_EQ(hlp.refs.last(), "pageId://Prj#second");
    hlp.refs.clear();
    appClient.page()->modConfigPageHook->showDialogPageHelp(appClient.page());
    EXPECT_EQ(hlp.refs, QStringList());
}

TEST_F(Dialog, worksWithoutHelpAndSettings)
{
    config->modHlpHook = nullptr;
    config->modCfgAppHook = nullptr;
    config->modMsgHook = nullptr;
    openDialog();
    config->showDialogPageHelp(appClient.page());
    appClient.page()->valid = false;
    config->closeDialog(true);
    ASSERT_NE(dialog(), nullptr);
    appClient.page()->valid = true;
    config->closeDialog(true);
    EXPECT_EQ(dialog(), nullptr);
}

TEST_F(Dialog, withoutAWindowThereIsNoDialog)
{
    config->modGuiHook = nullptr;
    config->openDialog();
    config->openDialog("App");
    EXPECT_EQ(log, QStringList());
    config->closeDialog(true);
}

TEST_F(Dialog, theRightDockGivesWayToIt)
{
    openDialog();
    EXPECT_FALSE(gui.widgetVisible(ModGuiHookIf::eLocationDockRight));
    QWidget editor;
    config->setFocus(ModGuiHookIf::eLocationTabs, nullptr, &editor);
    EXPECT_TRUE(gui.widgetVisible(ModGuiHookIf::eLocationDockRight));
    config->setFocus(ModGuiHookIf::eLocationTabs, config.get(), dialog());
    EXPECT_FALSE(gui.widgetVisible(ModGuiHookIf::eLocationDockRight));
    config->setFocus(ModGuiHookIf::eLocationDockBottom, nullptr, &editor);
    EXPECT_FALSE(gui.widgetVisible(ModGuiHookIf::eLocationDockRight)) << "only the central area decides";
    config->closeDialog();
    EXPECT_TRUE(gui.widgetVisible(ModGuiHookIf::eLocationDockRight));
}

TEST_F(Dialog, severalPagesOfOneModule)
{
    RecordingClient two("Two", &log, false, 2);
    RecordingClient none("None", &log, false, 0);
    RecordingClient null("Null", &log);
    null.givesNull = true;
    ModConfigPluginIfDflt plain;
    for (ModConfigPluginIf* client : QList<ModConfigPluginIf*>{&two, &none, &null, &plain})
        config->registerPlugin(client);
    openDialog();
    ASSERT_EQ(list()->count(), 4);
    EXPECT_EQ(list()->item(2)->text(), "Two0");
    EXPECT_EQ(list()->item(3)->text(), "Two1");
    clickItem("Two1");
    EXPECT_EQ(shownPage(), two.page(1));
    config->closeDialog(true);
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_EQ(two.pages.size(), 0);
    EXPECT_FALSE(log.contains("None applied"));
    for (ModConfigPluginIf* client : QList<ModConfigPluginIf*>{&two, &none, &null, &plain})
        config->unregisterPlugin(client);
}

TEST_F(Dialog, theKeyboardReachesEverythingInReadingOrder)
{
    prj.path = "/p/a.nalvo";
    openDialog();
    dialog()->activateWindow();
    list()->setFocus();
    QTest::keyClick(list(), Qt::Key_Down);
    EXPECT_EQ(current(), "App");
    QStringList order;
    for (int i = 0; i < 7; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QWidget* focus = QApplication::focusWidget();
        ASSERT_NE(focus, nullptr);
        auto* button = qobject_cast<QPushButton*>(focus);
        order.append(button != nullptr ? button->text() : focus == appClient.page()->field ? "field" : "list");
    }
    EXPECT_EQ(order, QStringList({"field", "Set page default values", "Restore values", "Help", "Apply and close",
                                  "&Cancel", "list"}));
    QTest::keyClick(list(), Qt::Key_Up);
    EXPECT_EQ(current(), "Prj");
    QTest::keyClick(list(), Qt::Key_Tab);
    EXPECT_TRUE(prjClient.page()->field->hasFocus());
    QTest::keyClick(prjClient.page()->field, Qt::Key_Tab);
    EXPECT_EQ(qobject_cast<QPushButton*>(QApplication::focusWidget())->text(), "Set page default values");
}

TEST_F(Dialog, theActionOpensIt)
{
    const QList<QAction*> menu = config->menuActions(ModActionHookIf::eActionClassConfiguration);
    ASSERT_EQ(menu.size(), 1);
    EXPECT_EQ(menu.first()->text(), "Configure...");
    EXPECT_EQ(menu.first()->toolTip(), "Starts configuration dialog");
    EXPECT_EQ(config->toolBarActions(ModActionHookIf::eActionClassConfiguration), menu);
    EXPECT_TRUE(config->menuActions(ModActionHookIf::eActionClassHelp).isEmpty());
    EXPECT_TRUE(config->toolBarActions(ModActionHookIf::eActionClassFile).isEmpty());
    menu.first()->trigger();
    EXPECT_NE(dialog(), nullptr);
}

TEST_F(Dialog, scriptsCanDriveIt)
{
    QObject* object = script.objects.value("config");
    ASSERT_EQ(object, config.get());
    ASSERT_TRUE(QMetaObject::invokeMethod(object, "openDialog", Q_ARG(QString, "App")));
    EXPECT_EQ(current(), "App");
    bool found = false;
    ASSERT_TRUE(
        QMetaObject::invokeMethod(object, "selectDialogPageByTitle", Q_RETURN_ARG(bool, found), Q_ARG(QString, "App")));
    EXPECT_TRUE(found);
    ASSERT_TRUE(QMetaObject::invokeMethod(object, "closeDialog"));
    EXPECT_FALSE(log.contains("App apply"));
    ASSERT_TRUE(QMetaObject::invokeMethod(object, "openDialog"));
    ASSERT_TRUE(QMetaObject::invokeMethod(object, "closeDialog", Q_ARG(bool, true)));
    EXPECT_TRUE(log.contains("App apply"));
}
