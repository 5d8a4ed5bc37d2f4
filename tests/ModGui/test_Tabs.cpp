// The tabbed centre: names, close requests, order of the pages, focus, status texts.

#include "GuiFixture.h"

#include <QSignalSpy>
#include <QSplitter>
#include <QTest>

TEST_F(GuiTest, TabsOfOneNameAreNumbered)
{
    for (int i = 0; i < 3; ++i)
        hook->addWidget(&a, Hook::eLocationTabs, make("page"), "main.psm");
    hook->addWidget(&a, Hook::eLocationTabs, make("page"), "other.psm");
    EXPECT_EQ(tabTexts(), (QStringList{"main.psm", "main.psm [2]", "main.psm [3]", "other.psm"}));
}

TEST_F(GuiTest, RenamingATabToItsOwnNameKeepsItFreeOfANumber)
{
    QWidget* page = make("page");
    hook->addWidget(&a, Hook::eLocationTabs, page, "main.psm");
    hook->setWidgetName(page, "main.psm");
    EXPECT_EQ(tabTexts(), QStringList{"main.psm"});
    QWidget* second = make("second");
    hook->addWidget(&a, Hook::eLocationTabs, second, "x");
    hook->setWidgetName(second, "main.psm");
    EXPECT_EQ(tabTexts(), (QStringList{"main.psm", "main.psm [2]"}));
    hook->setWidgetName(second, "main.psm");
    EXPECT_EQ(tabTexts(), (QStringList{"main.psm", "main.psm [2]"}));
}

TEST_F(GuiTest, OnlyANumberInBracketsAtTheEndCountsAsAnAppendix)
{
    hook->addWidget(&a, Hook::eLocationTabs, make("1"), "main.psm [x]");
    hook->addWidget(&a, Hook::eLocationTabs, make("2"), "main.psm");
    hook->addWidget(&a, Hook::eLocationTabs, make("3"), "main.psm []");
    hook->addWidget(&a, Hook::eLocationTabs, make("4"), "main.psm");
    EXPECT_EQ(tabTexts(), (QStringList{"main.psm [x]", "main.psm", "main.psm []", "main.psm [3]"}));
}

TEST_F(GuiTest, NameAndIconAreForTheCentreAlone)
{
    QWidget* docked = make("docked");
    QWidget* page = make("page");
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    hook->addWidget(&a, Hook::eLocationDockLeft, docked, "docked");
    hook->addWidget(&a, Hook::eLocationTabs, page, "page");
    for (QWidget* widget : {docked, page}) {
        hook->setWidgetName(widget, "new");
        hook->setWidgetIcon(widget, QIcon(pixmap));
    }
    EXPECT_EQ(dockTabs("dockLeft")->tabText(0), QString("docked"));
    EXPECT_TRUE(dockTabs("dockLeft")->tabIcon(0).isNull());
    EXPECT_EQ(tabs()->tabText(0), QString("new"));
    EXPECT_FALSE(tabs()->tabIcon(0).isNull());
}

TEST_F(GuiTest, CloseButtonIsEnabledWhileThereIsATab)
{
    ASSERT_NE(closeButton(), nullptr);
    EXPECT_TRUE(closeButton()->isFlat());
    EXPECT_FALSE(closeButton()->icon().isNull());
    EXPECT_FALSE(closeButton()->isEnabled());
    QWidget* page = make("page");
    hook->addWidget(&a, Hook::eLocationTabs, page, "page");
    EXPECT_TRUE(closeButton()->isEnabled());
    hook->removeWidget(page);
    EXPECT_FALSE(closeButton()->isEnabled());
    hook->addWidget(&a, Hook::eLocationTabs, page, "page");
    EXPECT_TRUE(closeButton()->isEnabled());
    delete page;
    EXPECT_FALSE(closeButton()->isEnabled());
}

TEST_F(GuiTest, CloseRequestGoesToTheOwnerWhoDecides)
{
    QWidget* first = make("first");
    QWidget* second = make("second");
    hook->addWidget(&a, Hook::eLocationTabs, first, "first");
    hook->addWidget(&b, Hook::eLocationTabs, second, "second");
    closeButton()->click();
    EXPECT_EQ(b.closeRequests, QList<QWidget*>{second});
    EXPECT_TRUE(hook->hasWidget(Hook::eLocationTabs, second)) << "the owner has not agreed";
    b.onCloseRequest = [this](QWidget* widget) {
        hook->removeWidget(widget);
        delete widget;
    };
    closeButton()->click();
    EXPECT_EQ(hook->centerWidgetList(), QList<QWidget*>{first});
    closeButton()->click();
    EXPECT_EQ(a.closeRequests, QList<QWidget*>{first});
}

TEST_F(GuiTest, CloseKeyInThePageIsACloseRequest)
{
    QWidget* page = make("page");
    hook->addWidget(&a, Hook::eLocationTabs, page, "page");
    QTest::keySequence(page, QKeySequence(QKeySequence::Close));
    EXPECT_EQ(a.closeRequests, QList<QWidget*>{page});
    QTest::keyClick(page, Qt::Key_A);
    EXPECT_EQ(a.closeRequests.count(), 1);
}

TEST_F(GuiTest, CloseRequestOfAWidgetWithoutAnOwnerDoesNothing)
{
    hook->addWidget(nullptr, Hook::eLocationTabs, make("page"), "page");
    closeButton()->click();
    emit tabs()->removeWidgetRequest(nullptr);
    emit tabs()->removeWidgetRequest(&window);
    EXPECT_TRUE(a.closeRequests.isEmpty());
    EXPECT_EQ(tabs()->count(), 1);
}

TEST_F(GuiTest, ListOfTheCentreHasTheMostRecentlyCurrentPageLast)
{
    QWidget* one = make("one");
    QWidget* two = make("two");
    QWidget* three = make("three");
    for (QWidget* page : {one, two, three})
        hook->addWidget(&a, Hook::eLocationTabs, page, page->objectName());
    EXPECT_EQ(hook->centerWidgetList(), (QList<QWidget*>{one, two, three}));
    hook->setCurrentWidget(one);
    EXPECT_EQ(hook->centerWidgetList(), (QList<QWidget*>{two, three, one}));
    tabs()->setCurrentIndex(2);
    EXPECT_EQ(hook->centerWidgetList(), (QList<QWidget*>{two, one, three}));
    hook->removeWidget(one);
    EXPECT_EQ(hook->centerWidgetList(), (QList<QWidget*>{two, three}));
    hook->addWidget(&a, Hook::eLocationDockLeft, make("docked"), "docked");
    EXPECT_EQ(hook->centerWidgetList(), (QList<QWidget*>{two, three}));
}

TEST_F(GuiTest, AllClientsHearOfTheCurrentWidgetAndTheOwnerIsLast)
{
    QWidget* one = make("one");
    QWidget* two = make("two");
    hook->addWidget(&a, Hook::eLocationTabs, one, "one");
    hook->addWidget(&b, Hook::eLocationTabs, two, "two");
    log.clear();
    hook->setCurrentWidget(one);
    EXPECT_EQ(log, (QStringList{"b:1:other:one", "a:1:own:one"}));
    log.clear();
    hook->setCurrentWidget(two);
    EXPECT_EQ(log, (QStringList{"a:1:other:two", "b:1:own:two"}));
    log.clear();
    hook->setCurrentWidget(two);
    EXPECT_EQ(log, QStringList());
}

TEST_F(GuiTest, AnOwnerIsNotCalledAsOwnerWhileItsWidgetIsBeingAdded)
{
    hook->addWidget(&a, Hook::eLocationTabs, make("page"), "page");
    EXPECT_EQ(log, (QStringList{"a:1:none:page", "b:1:none:page"}));
    log.clear();
    hook->addWidget(&a, Hook::eLocationDockRight, make("docked"), "docked");
    EXPECT_EQ(log, (QStringList{"a:5:none:docked", "b:5:none:docked"}));
}

TEST_F(GuiTest, DocksTellOfTheirCurrentWidgetWithTheirLocation)
{
    QWidget* one = make("one");
    QWidget* two = make("two");
    hook->addWidget(&a, Hook::eLocationDockBottom, one, "one");
    hook->addWidget(&a, Hook::eLocationDockBottom, two, "two");
    log.clear();
    dockTabs("dockBottom")->setCurrentIndex(0);
    EXPECT_EQ(log, (QStringList{"b:6:other:one", "a:6:own:one"}));
}

TEST_F(GuiTest, StackedAreasTellNothing)
{
    hook->addWidget(&a, Hook::eLocationCenterBelow, make("one"), "");
    EXPECT_EQ(log, QStringList());
}

TEST_F(GuiTest, TheLastPageThatGoesLeavesNoLocation)
{
    QWidget* page = make("page");
    hook->addWidget(&a, Hook::eLocationTabs, page, "page");
    log.clear();
    hook->removeWidget(page);
    EXPECT_EQ(log, (QStringList{"a:0:none:null", "b:0:none:null"}));
}

TEST_F(GuiTest, ClientsThatInterfereDoNoHarm)
{
    QWidget* one = make("one");
    QWidget* two = make("two");
    hook->addWidget(&a, Hook::eLocationTabs, one, "one");
    hook->addWidget(&b, Hook::eLocationTabs, two, "two");
    // The first to hear of the widget deletes it.
    b.onFocus = [](QWidget* widget) { delete widget; };
    log.clear();
    hook->setCurrentWidget(one);
    EXPECT_FALSE(log.contains("a:1:own:one"));
    EXPECT_EQ(hook->centerWidgetList(), QList<QWidget*>{two});
    // One that is deleted while it is being added leaves no trace.
    a.onFocus = [](QWidget* widget) { delete widget; };
    hook->addWidget(&a, Hook::eLocationTabs, make("three"), "three");
    EXPECT_EQ(hook->centerWidgetList(), QList<QWidget*>{two});
    // One that is taken out again meanwhile, too.
    a.onFocus = [this](QWidget* widget) { hook->removeWidget(widget); };
    hook->addWidget(&a, Hook::eLocationTabs, make("four"), "four");
    EXPECT_EQ(hook->centerWidgetList(), QList<QWidget*>{two});
    EXPECT_EQ(tabTexts(), QStringList{"two"});
}

TEST_F(GuiTest, AClientThatLeavesIsNotCalledForWhatItLeftBehind)
{
    QWidget* one = make("one");
    hook->addWidget(&a, Hook::eLocationTabs, one, "one");
    hook->addWidget(&b, Hook::eLocationTabs, make("two"), "two");
    hook->unregisterPlugin(&a);
    EXPECT_EQ(a.modGuiHook, nullptr);
    log.clear();
    hook->setCurrentWidget(one);
    EXPECT_EQ(log, QStringList{"b:1:none:one"});
    closeButton()->click();
    EXPECT_TRUE(a.closeRequests.isEmpty());
}

TEST_F(GuiTest, StatusTextFollowsTheTab)
{
    QWidget* one = make("one");
    QWidget* two = make("two");
    hook->addWidget(&a, Hook::eLocationTabs, one, "one");
    hook->setStatusBarText("text of one");
    EXPECT_EQ(window.statusBar()->currentMessage(), QString("text of one"));
    hook->addWidget(&b, Hook::eLocationTabs, two, "two");
    hook->setStatusBarText("text of two");
    hook->setCurrentWidget(one);
    EXPECT_EQ(window.statusBar()->currentMessage(), QString("text of one"));
    hook->setCurrentWidget(two);
    EXPECT_EQ(window.statusBar()->currentMessage(), QString("text of two"));
    hook->clearStatusBarText();
    EXPECT_EQ(window.statusBar()->currentMessage(), QString());
    hook->setCurrentWidget(one);
    hook->setCurrentWidget(two);
    EXPECT_EQ(window.statusBar()->currentMessage(), QString());
}

TEST_F(GuiTest, CurrentWidgetOfADockLeavesTheStatusTextAlone)
{
    hook->addWidget(&a, Hook::eLocationTabs, make("page"), "page");
    hook->setStatusBarText("text");
    QWidget* docked = make("docked");
    hook->addWidget(&a, Hook::eLocationDockLeft, docked, "docked");
    hook->addWidget(&a, Hook::eLocationDockLeft, make("other"), "other");
    hook->setCurrentWidget(docked);
    EXPECT_EQ(window.statusBar()->currentMessage(), QString("text"));
}

TEST_F(GuiTest, EmptyCentreShowsAPageOfItsOwn)
{
    auto* page = tabs()->findChild<QWidget*>("emptyPage");
    ASSERT_NE(page, nullptr);
    window.resize(800, 600);
    window.show();
    QCoreApplication::processEvents();
    EXPECT_TRUE(page->isVisible());
    EXPECT_EQ(page->size(), tabs()->size());
    const QImage picture = page->grab().toImage();
    QSet<QRgb> colors;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            colors.insert(picture.pixel(x, y));
    }
    EXPECT_GT(colors.count(), 3) << "ground, line and two texts";
    QWidget* widget = make("page");
    hook->addWidget(&a, Hook::eLocationTabs, widget, "page");
    EXPECT_FALSE(page->isVisible());
    delete widget;
    EXPECT_TRUE(page->isVisible());
}

TEST_F(GuiTest, APageWithASecondWidgetStaysThePage)
{
    QWidget* one = make("one");
    QWidget* two = make("two");
    QWidget* second = make("second");
    hook->addWidget(&a, Hook::eLocationTabs, one, "one");
    hook->addWidget(&a, Hook::eLocationTabs, two, "two");
    window.show();
    QCoreApplication::processEvents();
    log.clear();
    QSplitter* splitter = hook->splitPage(one, second, Qt::Vertical);
    ASSERT_NE(splitter, nullptr);
    EXPECT_EQ(splitter->widget(0), one);
    EXPECT_EQ(splitter->widget(1), second);
    EXPECT_TRUE(log.isEmpty()) << log.join(' ').toStdString();
    EXPECT_EQ(tabTexts(), (QStringList{"one", "two"}));
    EXPECT_EQ(hook->currentWidget(Hook::eLocationTabs), two);
    EXPECT_FALSE(one->isVisible());
    hook->setCurrentWidget(one);
    EXPECT_EQ(log, (QStringList{"b:1:other:one", "a:1:own:one"}));
    EXPECT_EQ(hook->currentWidget(Hook::eLocationTabs), one);
    EXPECT_TRUE(one->isVisible() && second->isVisible());
    EXPECT_TRUE(hook->hasWidget(Hook::eLocationTabs, one));
    EXPECT_FALSE(hook->hasWidget(Hook::eLocationTabs, second));
    hook->setWidgetName(one, "other");
    EXPECT_EQ(tabs()->tabText(0), QString("other"));
    log.clear();
    emit tabs()->tabCloseRequested(0);
    EXPECT_EQ(a.closeRequests, QList<QWidget*>{one});
    log.clear();
    EXPECT_EQ(hook->splitPage(one, nullptr, Qt::Vertical), nullptr);
    EXPECT_EQ(second->parent(), nullptr);
    EXPECT_EQ(tabs()->indexOf(one), 0);
    EXPECT_TRUE(one->isVisible());
    EXPECT_TRUE(log.isEmpty()) << log.join(' ').toStdString();
    EXPECT_TRUE(tabs()->findChildren<QSplitter*>().isEmpty());
    // What is no page is not split.
    EXPECT_EQ(hook->splitPage(second, two, Qt::Vertical), nullptr);
    EXPECT_EQ(hook->splitPage(nullptr, two, Qt::Vertical), nullptr);
}

TEST_F(GuiTest, ASplitPageCanBeRemovedAndDeleted)
{
    for (const bool isDeleted : {false, true}) {
        SCOPED_TRACE(isDeleted);
        QWidget* page = make("page");
        QWidget* second = make("second");
        hook->addWidget(&a, Hook::eLocationTabs, page, "page");
        ASSERT_NE(hook->splitPage(page, second, Qt::Horizontal), nullptr);
        if (isDeleted)
            delete page;
        else
            hook->removeWidget(page);
        EXPECT_EQ(tabs()->count(), 0);
        EXPECT_EQ(second->parent(), nullptr);
        EXPECT_EQ(hook->currentWidget(Hook::eLocationTabs), nullptr);
        EXPECT_TRUE(hook->centerWidgetList().isEmpty());
    }
}
