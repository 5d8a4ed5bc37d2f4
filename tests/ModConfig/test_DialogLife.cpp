// Modules, pages and the window itself may go while the dialog is open.

#include "ConfigFixture.h"

namespace {

class DialogLife : public ConfigFixture
{
protected:
    DialogLife()
    {
        prj.path = "/p/a.nalvo";
        openDialog();
    }
};

} // namespace

TEST_F(DialogLife, aModuleThatLeavesTakesItsPagesAlong)
{
    ASSERT_EQ(current(), "Prj");
    log.clear();
    config->unregisterPlugin(&prjClient);
    EXPECT_EQ(logOf({"close", "deleted"}), QStringList({"Prj close", "Prj deleted"}));
    EXPECT_EQ(prjClient.modConfigHook, nullptr);
    ASSERT_EQ(list()->count(), 1);
    EXPECT_EQ(stack()->count(), 1);
    EXPECT_EQ(current(), "App");
    EXPECT_EQ(shownPage(), appClient.page());
    click("Set page default values");
    EXPECT_EQ(appClient.page()->field->text(), "default");
    log.clear();
    config->closeDialog(true);
    EXPECT_EQ(logOf({"apply"}), QStringList("App apply"));
}

TEST_F(DialogLife, aPageThatVanishesIsForgotten)
{
    delete prjClient.page();
    ASSERT_EQ(list()->count(), 1);
    EXPECT_EQ(stack()->count(), 1);
    EXPECT_EQ(current(), "App");
    click("Restore values");
    prj.close();
    prj.open("/p/b.nalvo");
    log.clear();
    config->closeDialog(true);
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_EQ(logOf({"check"}), QStringList("App check"));
}

TEST_F(DialogLife, allPagesMayVanish)
{
    delete prjClient.page();
    delete appClient.page();
    EXPECT_EQ(list()->count(), 0);
    click("Set page default values");
    click("Restore values");
    click("Apply and close");
    EXPECT_EQ(dialog(), nullptr);
}

TEST_F(DialogLife, aModuleMayLeaveWhileAnotherIsAsked)
{
    prjClient.onRequest = [this] { config->unregisterPlugin(&appClient); };
    log.clear();
    config->closeDialog(true);
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_EQ(logOf({"request", "apply", "applied"}), QStringList({"Prj request", "Prj apply", "Prj applied"}));
}

TEST_F(DialogLife, theProjectMayCloseWhilePagesAreApplied)
{
    prjClient.onClose = [this] {
        prj.close();
        prj.open("/p/b.nalvo");
    };
    config->closeDialog(true);
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_EQ(logOf({"applied"}), QStringList({"Prj applied", "App applied"}));
}

TEST_F(DialogLife, closeAndOpenWhileItIsClosingChangeNothing)
{
    prjClient.onClose = [this] {
        config->closeDialog(false);
        config->openDialog();
        config->openDialog("App");
    };
    log.clear();
    config->closeDialog(true);
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_EQ(logOf({"apply", "close", "count"}), QStringList({"Prj apply", "App apply"}));
}

TEST_F(DialogLife, aModuleThatKeepsItsPageKeepsItAlive)
{
    RecordingClient keeper("Keeper", &log);
    config->closeDialog();
    config->registerPlugin(&keeper);
    config->openDialog();
    const QPointer<RecordingPage> page = keeper.page();
    keeper.onClose = [&keeper] { keeper.pages.clear(); };
    config->closeDialog();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_FALSE(page.isNull());
    EXPECT_EQ(page->parent(), nullptr);
    EXPECT_FALSE(page->isVisible());
    EXPECT_EQ(page->modConfigPageHook, nullptr);
    delete page;
    config->unregisterPlugin(&keeper);
}

TEST_F(DialogLife, aPageHasTheHookWhileItStandsInTheDialog)
{
    EXPECT_EQ(prjClient.page()->modConfigPageHook, config.get());
    nsModConfig::ModConfigPageHookIf* atClose = config.get();
    prjClient.onClose = [&] { atClose = prjClient.page()->modConfigPageHook; };
    config->closeDialog();
    EXPECT_EQ(atClose, nullptr);
}

TEST_F(DialogLife, theWindowMayTakeTheDialogAlong)
{
    delete dialog();
    gui.widgets.clear();
    prj.close();
    config->closeDialog(true);
    EXPECT_FALSE(log.contains("save settings"));
    openDialog();
    EXPECT_EQ(list()->count(), 2);
}

TEST_F(DialogLife, theModuleMayGoBeforeItsDialog)
{
    QWidget* left = dialog();
    gui.widgets.clear();
    config.reset();
    delete left;
    config = std::make_unique<nsModConfig::ModConfig>();
    EXPECT_TRUE(prjClient.page() == nullptr);
}

TEST_F(DialogLife, manyRoundsLeaveNothingBehind)
{
    for (int round = 0; round < 50; ++round) {
        config->closeDialog(round % 2 == 0);
        if (round % 3 == 0)
            prj.close();
        config->openDialog();
        if (round % 3 == 0)
            prj.open("/p/b.nalvo");
    }
    config->closeDialog();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(logOf({"page 0"}).size(), 2 * 51);
    EXPECT_EQ(logOf({"deleted"}).size(), 2 * 51);
    EXPECT_TRUE(gui.widgets.isEmpty());
}

TEST_F(DialogLife, nullAndStrangersThatLeaveChangeNothing)
{
    RecordingClient stranger("Stranger", &log);
    stranger.modConfigHook = config.get();
    log.clear();
    config->registerPlugin(nullptr);
    config->unregisterPlugin(nullptr);
    config->unregisterPlugin(&stranger);
    EXPECT_EQ(stranger.modConfigHook, config.get());
    EXPECT_EQ(log, QStringList());
    EXPECT_EQ(list()->count(), 2);
    EXPECT_EQ(prjClient.modConfigHook, config.get());
    EXPECT_EQ(appClient.modConfigHook, config.get());
    // Who has left is a stranger, too.
    config->unregisterPlugin(&prjClient);
    prjClient.modConfigHook = config.get();
    config->unregisterPlugin(&prjClient);
    EXPECT_EQ(prjClient.modConfigHook, config.get());
    EXPECT_EQ(list()->count(), 1);
}

TEST_F(DialogLife, theStackFollowsTheRowOfTheList)
{
    RecordingClient many("Many", &log, false, 3);
    config->closeDialog(false);
    config->registerPlugin(&many);
    openDialog();
    ASSERT_EQ(list()->count(), 5);
    for (int row : {4, 0, 2, 3, 1}) {
        list()->setCurrentRow(row);
        EXPECT_EQ(stack()->currentIndex(), row);
    }
    EXPECT_EQ(shownPage(), appClient.page());
    clickItem("Many1");
    EXPECT_EQ(shownPage(), many.page(1));
    config->unregisterPlugin(&many);
}
