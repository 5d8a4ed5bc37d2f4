// The nine areas: where widgets go, which one is current, and what is seen.

#include "GuiFixture.h"

#include "PageProperties.h"
#include "WidgetAreaStacked.h"

#include <QFrame>
#include <QSplitter>
#include <QTest>
#include <QVBoxLayout>

void GuiTest::initResources()
{
    Q_INIT_RESOURCE(nalvo);
}

namespace {

const ModGuiHookIf::eLocation_t stackedLocations[] = {
    ModGuiHookIf::eLocationCenterRight, ModGuiHookIf::eLocationCenterBelow, ModGuiHookIf::eLocationStatusFirst,
    ModGuiHookIf::eLocationStatusSecond, ModGuiHookIf::eLocationStatusThird};

} // namespace

TEST_F(GuiTest, AreasStandWhereTheyBelong)
{
    auto* splitter = window.centralWidget()->findChild<QSplitter*>();
    ASSERT_NE(splitter, nullptr);
    EXPECT_FALSE(splitter->childrenCollapsible());
    ASSERT_EQ(splitter->count(), 2);
    EXPECT_EQ(splitter->widget(0), tabs());
    EXPECT_NE(qobject_cast<nsModGui::WidgetAreaStacked*>(splitter->widget(1)), nullptr);
    EXPECT_EQ(window.centralWidget()->layout()->spacing(), 0);

    EXPECT_EQ(window.dockWidgetArea(dock("dockLeft")), Qt::LeftDockWidgetArea);
    EXPECT_EQ(window.dockWidgetArea(dock("dockRight")), Qt::RightDockWidgetArea);
    EXPECT_EQ(window.dockWidgetArea(dock("dockBottom")), Qt::BottomDockWidgetArea);
    EXPECT_EQ(dock("dockLeft")->windowTitle(), QString("Dock widget left"));
    EXPECT_EQ(dock("dockRight")->windowTitle(), QString("Dock widget right"));
    EXPECT_EQ(dock("dockBottom")->windowTitle(), QString("Dock widget bottom"));
    EXPECT_EQ(dock("dockLeft")->features(), QDockWidget::DockWidgetVerticalTitleBar);
    EXPECT_TRUE(dockTabs("dockLeft")->isMovable());

    const QList<QFrame*> frames = window.statusBar()->findChildren<QFrame*>(QString(), Qt::FindDirectChildrenOnly);
    ASSERT_EQ(frames.count(), 3);
    for (const QFrame* frame : frames) {
        EXPECT_EQ(frame->frameShape(), QFrame::Panel);
        EXPECT_EQ(frame->frameShadow(), QFrame::Sunken);
        EXPECT_EQ(frame->layout()->contentsMargins(), QMargins());
    }
}

TEST_F(GuiTest, SplitterStartsAt500To300)
{
    hook->addWidget(&a, Hook::eLocationTabs, make("page"), "page");
    hook->addWidget(&a, Hook::eLocationCenterRight, make("right"), "");
    window.resize(820, 600);
    window.show();
    QCoreApplication::processEvents();
    const QList<int> sizes = window.centralWidget()->findChild<QSplitter*>()->sizes();
    EXPECT_NEAR(double(sizes[0]) / sizes[1], 500.0 / 300.0, 0.1);
}

TEST_F(GuiTest, EveryLocationTakesAWidgetAndMakesItCurrent)
{
    for (int i = Hook::eLocationTabs; i <= Hook::eLocationStatusThird; ++i) {
        const auto location = static_cast<Hook::eLocation_t>(i);
        QWidget* first = make("first");
        QWidget* second = make("second");
        EXPECT_EQ(hook->currentWidget(location), nullptr) << i;
        hook->addWidget(&a, location, first, "first");
        EXPECT_EQ(hook->currentWidget(location), first) << i;
        hook->addWidget(&a, location, second, "second");
        EXPECT_EQ(hook->currentWidget(location), second) << i;
        EXPECT_TRUE(hook->hasWidget(location, first)) << i;
        EXPECT_FALSE(hook->hasWidget(static_cast<Hook::eLocation_t>(i % 9 + 1), first)) << i;
        EXPECT_TRUE(hook->widgetVisible(location)) << i;
        hook->setWidgetVisible(location, false);
        EXPECT_FALSE(hook->widgetVisible(location)) << i;
        hook->setCurrentWidget(first);
        EXPECT_EQ(hook->currentWidget(location), first) << i;
        EXPECT_TRUE(hook->widgetVisible(location)) << i;
        hook->removeWidget(first);
        EXPECT_FALSE(hook->hasWidget(location, first)) << i;
        EXPECT_EQ(first->parentWidget(), nullptr) << i;
        EXPECT_EQ(hook->currentWidget(location), second) << i;
        hook->removeWidget(second);
        EXPECT_EQ(hook->currentWidget(location), nullptr) << i;
    }
}

TEST_F(GuiTest, BadLocationsAndNullWidgetsDoNothing)
{
    QWidget* widget = make("widget");
    for (int i : {-1, 0, 10, 1000}) {
        const auto location = static_cast<Hook::eLocation_t>(i);
        hook->addWidget(&a, location, widget, "name");
        EXPECT_EQ(widget->parentWidget(), nullptr);
        EXPECT_EQ(hook->currentWidget(location), nullptr);
        EXPECT_FALSE(hook->hasWidget(location, widget));
        EXPECT_FALSE(hook->widgetVisible(location));
        hook->setWidgetVisible(location, true);
    }
    for (int i = Hook::eLocationTabs; i <= Hook::eLocationStatusThird; ++i) {
        hook->addWidget(&a, static_cast<Hook::eLocation_t>(i), nullptr, "null");
        EXPECT_FALSE(hook->hasWidget(static_cast<Hook::eLocation_t>(i), nullptr));
        EXPECT_EQ(hook->currentWidget(static_cast<Hook::eLocation_t>(i)), nullptr);
    }
    for (QWidget* stranger : {static_cast<QWidget*>(nullptr), widget}) {
        hook->removeWidget(stranger);
        hook->setCurrentWidget(stranger);
        hook->setWidgetName(stranger, "x");
        hook->setWidgetIcon(stranger, QIcon());
        hook->setEnabled(stranger, false);
    }
    EXPECT_TRUE(widget->isEnabled());
    EXPECT_TRUE(hook->centerWidgetList().isEmpty());
}

TEST_F(GuiTest, StackedAreaIsHiddenWhenItBecomesEmptyAndShownByTheNextWidget)
{
    for (Hook::eLocation_t location : stackedLocations) {
        EXPECT_FALSE(hook->widgetVisible(location));
        QWidget* widget = make("widget");
        hook->addWidget(&a, location, widget, "");
        EXPECT_TRUE(hook->widgetVisible(location));
        hook->removeWidget(widget);
        EXPECT_FALSE(hook->widgetVisible(location));
        hook->addWidget(&a, location, widget, "");
        EXPECT_TRUE(hook->widgetVisible(location));
        delete widget;
        EXPECT_FALSE(hook->widgetVisible(location)) << "deleted by its owner";
    }
}

TEST_F(GuiTest, FramesInTheStatusBarStayWhenTheyAreEmpty)
{
    const QList<QFrame*> frames = window.statusBar()->findChildren<QFrame*>(QString(), Qt::FindDirectChildrenOnly);
    window.show();
    QCoreApplication::processEvents();
    QWidget* widget = make("status");
    hook->addWidget(&a, Hook::eLocationStatusFirst, widget, "");
    hook->removeWidget(widget);
    QCoreApplication::processEvents();
    for (const QFrame* frame : frames)
        EXPECT_TRUE(frame->isVisible());
}

TEST_F(GuiTest, DockIsSeenOnlyWithTabsAndKeepsTheWish)
{
    window.show();
    EXPECT_FALSE(hook->widgetVisible(Hook::eLocationDockRight));
    hook->setWidgetVisible(Hook::eLocationDockRight, true);
    EXPECT_FALSE(hook->widgetVisible(Hook::eLocationDockRight));
    QWidget* widget = make("widget");
    hook->addWidget(&a, Hook::eLocationDockRight, widget, "one");
    EXPECT_TRUE(hook->widgetVisible(Hook::eLocationDockRight));
    EXPECT_TRUE(dock("dockRight")->isVisible());
    hook->removeWidget(widget);
    EXPECT_FALSE(dock("dockRight")->isVisible());

    hook->setWidgetVisible(Hook::eLocationDockRight, false);
    hook->addWidget(&a, Hook::eLocationDockRight, widget, "one");
    EXPECT_FALSE(dock("dockRight")->isVisible());
    hook->setWidgetVisible(Hook::eLocationDockRight, true);
    EXPECT_TRUE(dock("dockRight")->isVisible());
    delete widget;
    EXPECT_FALSE(dock("dockRight")->isVisible()) << "deleted by its owner";
}

TEST_F(GuiTest, AnEmptyDockThatIsToBeSeenAgainComesWithItsFirstTab)
{
    window.show();
    // The last wish counts, also where there is nothing to be seen yet.
    hook->setWidgetVisible(Hook::eLocationDockRight, false);
    hook->setWidgetVisible(Hook::eLocationDockRight, true);
    hook->addWidget(&a, Hook::eLocationDockRight, make("one"), "one");
    EXPECT_TRUE(dock("dockRight")->isVisible());
    hook->setWidgetVisible(Hook::eLocationDockLeft, true);
    hook->setWidgetVisible(Hook::eLocationDockLeft, false);
    hook->addWidget(&a, Hook::eLocationDockLeft, make("two"), "two");
    EXPECT_FALSE(dock("dockLeft")->isVisible());
}

TEST_F(GuiTest, ADockThatAPageKeepsAwayStaysAwayUntilThePageGivesWay)
{
    window.show();
    auto* reporter = make<Reporter>("reporter");
    QWidget* page = make("page");
    QWidget* other = make("other");
    hook->addWidget(&a, Hook::eLocationDockRight, reporter, "reporter");
    hook->addWidget(&a, Hook::eLocationDockRight, make("beside"), "beside");
    hook->addWidget(&a, Hook::eLocationTabs, other, "other");
    hook->addWidget(&a, Hook::eLocationTabs, page, "page");
    hook->setWidgetVisible(Hook::eLocationDockRight, false);
    emit reporter->contentChanged(reporter);
    EXPECT_EQ(hook->currentWidget(Hook::eLocationDockRight), reporter);
    EXPECT_FALSE(hook->widgetVisible(Hook::eLocationDockRight));
    hook->setCurrentWidget(reporter);
    hook->addWidget(&a, Hook::eLocationDockRight, make("new"), "new");
    EXPECT_FALSE(hook->widgetVisible(Hook::eLocationDockRight));
    // Something has come up for it meanwhile.
    hook->setCurrentWidget(other);
    EXPECT_TRUE(hook->widgetVisible(Hook::eLocationDockRight));
    hook->setCurrentWidget(page);
    hook->setWidgetVisible(Hook::eLocationDockRight, false);
    hook->setWidgetVisible(Hook::eLocationDockRight, true);
    EXPECT_TRUE(hook->widgetVisible(Hook::eLocationDockRight));
}

TEST_F(GuiTest, NewContentBringsTheTabOfADockToTheFront)
{
    auto* reporter = make<Reporter>("reporter");
    QWidget* other = make("other");
    hook->addWidget(&a, Hook::eLocationDockBottom, reporter, "reporter");
    hook->addWidget(&a, Hook::eLocationDockBottom, other, "other");
    hook->setWidgetVisible(Hook::eLocationDockBottom, false);
    emit reporter->contentChanged(reporter);
    EXPECT_EQ(hook->currentWidget(Hook::eLocationDockBottom), reporter);
    EXPECT_TRUE(hook->widgetVisible(Hook::eLocationDockBottom));

    hook->removeWidget(reporter);
    hook->setWidgetVisible(Hook::eLocationDockBottom, false);
    emit reporter->contentChanged(other);
    EXPECT_FALSE(hook->widgetVisible(Hook::eLocationDockBottom));
}

TEST_F(GuiTest, DocksShowTheNamesAsTheyAre)
{
    hook->addWidget(&a, Hook::eLocationDockLeft, make("one"), "same");
    hook->addWidget(&a, Hook::eLocationDockLeft, make("two"), "same");
    EXPECT_EQ(dockTabs("dockLeft")->tabText(0), QString("same"));
    EXPECT_EQ(dockTabs("dockLeft")->tabText(1), QString("same"));
}

TEST_F(GuiTest, TabsOfCentreAndDocksCanBeDisabled)
{
    QWidget* page = make("page");
    QWidget* docked = make("docked");
    QWidget* stacked = make("stacked");
    hook->addWidget(&a, Hook::eLocationTabs, page, "page");
    hook->addWidget(&a, Hook::eLocationDockLeft, docked, "docked");
    hook->addWidget(&a, Hook::eLocationCenterBelow, stacked, "");
    for (bool enabled : {false, true}) {
        hook->setEnabled(page, enabled);
        hook->setEnabled(docked, enabled);
        EXPECT_EQ(tabs()->isTabEnabled(0), enabled);
        EXPECT_EQ(dockTabs("dockLeft")->isTabEnabled(0), enabled);
    }
    hook->setEnabled(stacked, false);
    EXPECT_TRUE(stacked->isEnabled());
}

TEST_F(GuiTest, AWidgetMovesWhenItIsAddedElsewhere)
{
    QWidget* widget = make("widget");
    hook->addWidget(&a, Hook::eLocationTabs, widget, "page");
    hook->addWidget(&b, Hook::eLocationDockLeft, widget, "docked");
    EXPECT_FALSE(hook->hasWidget(Hook::eLocationTabs, widget));
    EXPECT_TRUE(hook->hasWidget(Hook::eLocationDockLeft, widget));
    EXPECT_TRUE(hook->centerWidgetList().isEmpty());
    hook->addWidget(&b, Hook::eLocationTabs, widget, "page");
    hook->addWidget(&b, Hook::eLocationTabs, widget, "again");
    EXPECT_EQ(tabTexts(), QStringList{"again"});
    EXPECT_EQ(hook->centerWidgetList(), QList<QWidget*>{widget});
    closeButton()->click();
    EXPECT_TRUE(a.closeRequests.isEmpty());
    EXPECT_EQ(b.closeRequests, QList<QWidget*>{widget});
}

TEST_F(GuiTest, AWidgetThatItsOwnerDeletesIsForgottenEverywhere)
{
    for (int i = Hook::eLocationTabs; i <= Hook::eLocationStatusThird; ++i) {
        const auto location = static_cast<Hook::eLocation_t>(i);
        QWidget* first = make("first");
        QWidget* second = make("second");
        hook->addWidget(&a, location, first, "first");
        hook->addWidget(&a, location, second, "second");
        delete second;
        EXPECT_EQ(hook->currentWidget(location), first) << i;
        EXPECT_EQ(hook->centerWidgetList().count(), location == Hook::eLocationTabs ? 1 : 0);
        delete first;
        EXPECT_EQ(hook->currentWidget(location), nullptr) << i;
        EXPECT_FALSE(hook->widgetVisible(location) && location != Hook::eLocationTabs) << i;
    }
    EXPECT_TRUE(hook->centerWidgetList().isEmpty());
    EXPECT_FALSE(closeButton()->isEnabled());
    hook->setStatusBarText("text");
    hook->clearStatusBarText();
}

TEST_F(GuiTest, ACompanionStandsBesideWhatTheStatusBarShows)
{
    const Hook::eLocation_t third = Hook::eLocationStatusThird;
    QWidget* companion = make("companion");
    companion->setProperty(PageProperties::isCompanion, true);
    hook->addWidget(&a, third, companion, "");
    EXPECT_TRUE(hook->hasWidget(third, companion));
    EXPECT_TRUE(hook->widgetVisible(third));
    EXPECT_EQ(hook->currentWidget(third), nullptr);
    QWidget* first = make("first");
    QWidget* second = make("second");
    hook->addWidget(&a, third, first, "");
    hook->addWidget(&b, third, second, "");
    window.show();
    EXPECT_EQ(hook->currentWidget(third), second);
    EXPECT_TRUE(companion->isVisible());
    EXPECT_TRUE(second->isVisible());
    EXPECT_FALSE(first->isVisible());
    hook->removeWidget(first);
    hook->removeWidget(second);
    EXPECT_TRUE(companion->isVisible());
    EXPECT_TRUE(hook->widgetVisible(third));
    hook->removeWidget(companion);
    EXPECT_EQ(companion->parent(), nullptr);
    EXPECT_FALSE(hook->widgetVisible(third));
    hook->addWidget(&a, third, companion, "");
    EXPECT_TRUE(hook->widgetVisible(third));
    delete companion;
    EXPECT_FALSE(hook->widgetVisible(third));
    delete first;
    delete second;
}

TEST(GuiLifetime, TheModuleMayGoBeforeOrAfterItsWindow)
{
    QStringList log;
    GuiClient client("client", &log);
    auto window = std::make_unique<QMainWindow>();
    auto* gui = new nsModGui::ModGui(window.get());
    auto* page = new QWidget;
    gui->addWidget(&client, ModGuiHookIf::eLocationTabs, page, "page");
    gui->setParent(nullptr);
    window.reset();
    EXPECT_EQ(gui->currentWidget(ModGuiHookIf::eLocationTabs), nullptr);
    EXPECT_TRUE(gui->centerWidgetList().isEmpty()) << "the page has gone with the window";
    gui->setWindowTitle("x");
    gui->setStatusBarText("x");
    gui->clearStatusBarText();
    gui->setWidgetName(page, "x");
    gui->removeWidget(page);
    delete gui;

    window = std::make_unique<QMainWindow>();
    gui = new nsModGui::ModGui(window.get());
    gui->addWidget(&client, ModGuiHookIf::eLocationTabs, new QWidget, "page");
    delete gui;
    window->findChild<QPushButton*>("buttonCloseTab")->click();
    EXPECT_TRUE(client.closeRequests.isEmpty());
}
