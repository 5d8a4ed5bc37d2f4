// How the window comes up: docks and tool bars as the user has left them, and docks that grow and shrink with it.

#include "MainWindowFixture.h"

#include "ModGuiHookIf.h"
#include "MsgViewer.h"

#include <QDockWidget>
#include <QStyle>
#include <QToolBar>

namespace {

class WindowState : public MainWindowFixture
{
protected:
    void show(int width, int height)
    {
        makeWindow();
        size(width, height);
    }
    void size(int width, int height)
    {
        window->resize(width, height);
        settle();
    }
    /// Lets everything happen that is due now; the docks find their places a round of events later.
    static void settle()
    {
        for (int i = 0; i < 5; ++i)
            QCoreApplication::processEvents();
    }
    QDockWidget* dock(const char* name) const { return window->findChild<QDockWidget*>(name); }
    QToolBar* toolBar(const char* name) const { return window->findChild<QToolBar*>(name); }
    /// Drags the border at the right of the left dock.
    void dragLeftDock(int by)
    {
        const int extent = window->style()->pixelMetric(QStyle::PM_DockWidgetSeparatorExtent, nullptr, window.get());
        const QRect left = dock("dockLeft")->geometry();
        const QPoint border(left.right() + 1 + extent / 2, left.center().y());
        QTest::mousePress(window.get(), Qt::LeftButton, Qt::NoModifier, border);
        QMouseEvent move(QEvent::MouseMove, border + QPoint(by, 0), window->mapToGlobal(border + QPoint(by, 0)),
                         Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(window.get(), &move);
        // The border follows a round of events later.
        settle();
        QTest::mouseRelease(window.get(), Qt::LeftButton, Qt::NoModifier, border + QPoint(by, 0));
        settle();
    }
};

} // namespace

TEST_F(WindowState, docksGrowAndShrinkWithTheWindow)
{
    show(1200, 800);
    const int left = dock("dockLeft")->width();
    const int bottom = dock("dockBottom")->height();
    ASSERT_GT(left, 0);
    ASSERT_GT(bottom, 0);
    size(1800, 1200);
    EXPECT_NEAR(dock("dockLeft")->width(), left * 3 / 2, 2);
    EXPECT_NEAR(dock("dockBottom")->height(), bottom * 3 / 2, 2);
    screenshot("main-large");
    size(1200, 800);
    EXPECT_NEAR(dock("dockLeft")->width(), left, 2);
    EXPECT_NEAR(dock("dockBottom")->height(), bottom, 2);
}

TEST_F(WindowState, theExtentThatTheUserGivesADockIsWhatGrows)
{
    show(1200, 800);
    const int before = dock("dockLeft")->width();
    dragLeftDock(120);
    const int left = dock("dockLeft")->width();
    ASSERT_NEAR(left, before + 120, 4);
    size(1800, 800);
    EXPECT_NEAR(dock("dockLeft")->width(), left * 3 / 2, 2);
}

TEST_F(WindowState, aDockThatWasAwayComesBackAsWideAsItWas)
{
    show(1400, 800);
    auto* gui = module<ModGuiHookIf>();
    nsModMsg::MsgViewer panel;
    gui->addWidget(nullptr, ModGuiHookIf::eLocationDockRight, &panel, "Panel");
    settle();
    // At first it leaves the centre its room.
    const QWidget* page = gui->currentWidget(ModGuiHookIf::eLocationTabs);
    ASSERT_NE(page, nullptr);
    EXPECT_GE(page->width(), 1400 * 2 / 5);
    window->resizeDocks({dock("dockRight")}, {333}, Qt::Horizontal);
    settle();
    ASSERT_EQ(dock("dockRight")->width(), 333);
    QTest::mouseRelease(window.get(), Qt::LeftButton, Qt::NoModifier, QPoint(1, 1));
    gui->setWidgetVisible(ModGuiHookIf::eLocationDockRight, false);
    settle();
    gui->setWidgetVisible(ModGuiHookIf::eLocationDockRight, true);
    settle();
    EXPECT_NEAR(dock("dockRight")->width(), 333, 2);
    gui->removeWidget(&panel);
}

TEST_F(WindowState, docksAndToolBarsComeBackAtTheNextStart)
{
    show(1300, 820);
    window->resizeDocks({dock("dockLeft")}, {401}, Qt::Horizontal);
    window->resizeDocks({dock("dockBottom")}, {222}, Qt::Vertical);
    window->addToolBar(Qt::BottomToolBarArea, toolBar("toolBarFile"));
    toolBar("toolBarEdit")->hide();
    module<ModGuiHookIf>()->setWidgetVisible(ModGuiHookIf::eLocationDockRight, false);
    settle();
    ASSERT_EQ(dock("dockLeft")->width(), 401);
    EXPECT_TRUE(closeWindow());
    EXPECT_EQ(readSetting("ModGui/width"), QString("1300"));
    EXPECT_EQ(readSetting("ModGui/height"), QString("820"));

    makeWindow();
    settle();
    EXPECT_EQ(window->size(), QSize(1300, 820));
    EXPECT_NEAR(dock("dockLeft")->width(), 401, 2);
    EXPECT_NEAR(dock("dockBottom")->height(), 222, 2);
    EXPECT_EQ(window->toolBarArea(toolBar("toolBarFile")), Qt::BottomToolBarArea);
    EXPECT_TRUE(toolBar("toolBarEdit")->isHidden());
    // A dock that was away at the close is seen again as long as it holds something.
    EXPECT_TRUE(module<ModGuiHookIf>()->widgetVisible(ModGuiHookIf::eLocationDockRight));
}

TEST_F(WindowState, aStoredStateThatIsNoneDoesNoHarm)
{
    writeSetting("ModGui/state", "dockLeft=7:dockBottom:dockRight=x:=0.5:dockNone=0.3:bars=no bars:bars=::other");
    show(1200, 800);
    auto* gui = module<ModGuiHookIf>();
    EXPECT_GE(gui->currentWidget(ModGuiHookIf::eLocationTabs)->width(), 300);
    EXPECT_TRUE(dock("dockLeft")->isVisible());
    EXPECT_TRUE(dock("dockBottom")->isVisible());
}
