// From the start of the window to its first sight: what is there then, and what comes after.

#include "MainWindowFixture.h"

#include "EditorSupportMenu.h"
#include "HlpWidget.h"
#include "ModEditorHookIf.h"
#include "ModGuiHookIf.h"
#include "ModPrj.h"
#include "ModScript.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFontDatabase>
#include <QMenu>
#include <QTabBar>
#include <QTabWidget>

namespace {

/// Notes at the first paint of a main window which of its parts are there.
class FirstSight : public QObject
{
public:
    explicit FirstSight(QStringList names)
        : m_names(std::move(names))
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const auto* window = qobject_cast<QMainWindow*>(watched);
        if (event->type() == QEvent::Paint && window != nullptr && !isSeen) {
            isSeen = true;
            for (const QString& name : m_names) {
                if (window->findChild<QWidget*>(name) != nullptr)
                    there.append(name);
            }
            helpPages = window->findChildren<nsModHlp::HlpWidget*>("hlpPage").size();
        }
        return QObject::eventFilter(watched, event);
    }

    bool isSeen = false;
    QStringList there;
    int helpPages = 0;

private:
    QStringList m_names;
};

class StartOfTheWindow : public MainWindowFixture
{
protected:
    QList<nsModHlp::HlpWidget*> helpPages() const
    {
        QList<nsModHlp::HlpWidget*> pages;
        for (QWidget* widget : module<ModGuiHookIf>()->centerWidgetList()) {
            if (auto* page = qobject_cast<nsModHlp::HlpWidget*>(widget))
                pages.append(page);
        }
        return pages;
    }
};

const QStringList seenParts{"naviSortOrder", "codeNavi", "prjMngrOpenFile", "msgViewer", "startLinks"};
const QStringList hiddenParts{"editFind", "fileListTree", "equListView", "prjMngrNewTitle", "emptyPageArea"};

} // namespace

TEST_F(StartOfTheWindow, nothingIsMadeBeforeTheFirstSightThatIsNotSeen)
{
    writeSetting("ModHlp/showGettingStarted", "0");
    FirstSight sight(seenParts + hiddenParts);
    makeWindow();
    ASSERT_TRUE(sight.isSeen);
    EXPECT_EQ(sight.there.join(',').toStdString(), seenParts.join(',').toStdString());
    for (const QString& name : seenParts + hiddenParts)
        EXPECT_NE(window->findChild<QWidget*>(name), nullptr) << name.toStdString() << " is missing after the start";
    // What comes after the first sight is there before anything else happens.
    EXPECT_TRUE(QFontDatabase().families().contains("DejaVu Sans Mono"));
    auto* menu = module<ModEditorHookIf>()->supportMenu();
    ASSERT_NE(menu, nullptr);
    QStringList titles;
    for (const QAction* action : menu->menu->actions())
        titles.append(action->text());
    EXPECT_TRUE(titles.contains("Instructions")) << titles.join(',').toStdString();
    EXPECT_TRUE(titles.contains("Directives"));
    EXPECT_TRUE(module<nsModScript::ModScript>()->executeScript("if (typeof project != 'object') throw 'missing';"));
}

TEST_F(StartOfTheWindow, theTabKeyReachesPanelsThatWereMadeLateAtTheirPlace)
{
    writeSetting("ModHlp/showGettingStarted", "0");
    makeWindow();
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get(), 60000));
    auto* tabs = window->findChild<QTabWidget*>("prjMngrTabs");
    ASSERT_NE(tabs, nullptr);
    const auto next = [] {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        return QApplication::focusWidget();
    };
    tabs->tabBar()->setFocus();
    const auto* links = window->findChild<QWidget*>("startLinks");
    const QList<QAbstractButton*> buttons = links->findChildren<QAbstractButton*>();
    ASSERT_GE(buttons.size(), 3);
    for (const QAbstractButton* button : buttons)
        EXPECT_EQ(next(), button) << button->text().toStdString();
    EXPECT_TRUE(window->findChild<QWidget*>("prjMngrOpen")->isAncestorOf(next())) << "behind the links";
    // The page behind, which was made after the first sight.
    tabs->setCurrentIndex(0);
    tabs->tabBar()->setFocus();
    EXPECT_TRUE(window->findChild<QWidget*>("prjMngrNew")->isAncestorOf(next()));
    writeFile("main.psm", "start: JUMP start\n");
    ASSERT_TRUE(module<nsModPrj::ModPrj>()->openPrj(
        writeFile("p.nalvo", "<project version=\"3\"><sources><srcFiles>main.psm</srcFiles></sources></project>")));
    auto* navigator = window->findChild<QWidget*>("naviWidget");
    module<ModGuiHookIf>()->setCurrentWidget(navigator);
    auto* order = window->findChild<QWidget*>("naviSortOrder");
    order->setFocus();
    ASSERT_TRUE(order->hasFocus());
    QStringList reached;
    for (int i = 0; i < 4; ++i)
        reached.append(next()->objectName());
    EXPECT_EQ(reached.join(' ').toStdString(), "naviBookmarkSet naviBookmarkClear naviBookmarkClearAll codeNavi");
}

TEST_F(StartOfTheWindow, aWindowThatIsClosedAtFirstSightStaysClosed)
{
    writeSetting("ModHlp/showGettingStarted", "0");
    class Closer : public QObject
    {
    public:
        Closer() { qApp->installEventFilter(this); }
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            auto* window = qobject_cast<QMainWindow*>(watched);
            if (event->type() == QEvent::Show && window != nullptr)
                QMetaObject::invokeMethod(window, "close", Qt::QueuedConnection);
            return false;
        }
    };
    Closer closer;
    makeWindow();
    QApplication::processEvents();
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(module<nsModScript::ModScript>()->executeScript("1"));
}

TEST_F(StartOfTheWindow, whatIsNotSeenIsNotPolishedAtTheFirstSight)
{
    writeSetting("ModHlp/showGettingStarted", "0");
    makeWindow();
    EXPECT_FALSE(window->findChild<QWidget*>("editFind")->testAttribute(Qt::WA_WState_Polished));
    module<ModGuiHookIf>()->setWidgetVisible(ModGuiHookIf::eLocationCenterBelow, true);
    EXPECT_TRUE(window->findChild<QWidget*>("editFind")->testAttribute(Qt::WA_WState_Polished));
}

TEST_F(StartOfTheWindow, theFirstPageOfTheHelpOpensAfterTheFirstSight)
{
    writeSetting("ModHlp/showGettingStarted", "1");
    FirstSight sight({});
    keepsFirstHelpPage = true;
    makeWindow();
    ASSERT_TRUE(sight.isSeen);
    EXPECT_EQ(sight.helpPages, 0);
    ASSERT_TRUE(QTest::qWaitFor([this] { return helpPages().size() == 1; }, 60000));
    EXPECT_EQ(module<ModGuiHookIf>()->currentWidget(ModGuiHookIf::eLocationTabs), helpPages().first());
}

TEST_F(StartOfTheWindow, theFirstPageOfTheHelpStandsBehindAProjectThatIsOpenedAtOnce)
{
    writeSetting("ModHlp/showGettingStarted", "1");
    writeFile("main.psm", "start: JUMP start\n");
    writeFile("p.nalvo", "<project version=\"3\"><sources><srcFiles>main.psm</srcFiles></sources>"
                         "<ModEditor><openFiles>main.psm</openFiles></ModEditor></project>");
    keepsFirstHelpPage = true;
    makeWindow();
    ASSERT_TRUE(module<nsModPrj::ModPrj>()->openPrj(projectDir() + "/p.nalvo"));
    EXPECT_EQ(helpPages().size(), 1);
    QApplication::processEvents();
    QTest::qWait(0);
    EXPECT_EQ(helpPages().size(), 1) << "it opens once";
}
