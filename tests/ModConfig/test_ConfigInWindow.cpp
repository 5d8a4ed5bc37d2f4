// The dialog with the pages of all modules in a real main window: ways in and out, and pictures of every page.

#include "MainWindowFixture.h"

#include "ModConfig.h"
#include "ModGuiHookIf.h"
#include "ModPrj.h"
#include "ModSourcesHookIf.h"
#include "MsgViewer.h"
#include "QtPrinters.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabWidget>
#include <QWheelEvent>
#include <qtestspontaneevent.h>

namespace {

class ConfigInWindow : public MainWindowFixture
{
protected:
    ConfigInWindow()
    {
        writeSetting("ModGui/width", "1280");
        writeSetting("ModGui/height", "750");
        makeWindow();
        config = module<nsModConfig::ModConfig>();
        prj = module<nsModPrj::ModPrj>();
        gui = module<ModGuiHookIf>();
    }

    QString makePrj(const QString& name, const QStringList& files = {})
    {
        for (const QString& file : files)
            writeFile(file, "; " + file.toUtf8() + '\n');
        return writeFile(name + ".nalvo", "<project version=\"3\"><PrjInfo><title>" + name.toUtf8() +
                                              "</title><version>0.2</version><comment>Counts on port 1.</comment>"
                                              "</PrjInfo><sources><srcFiles>" +
                                              files.join(":").toUtf8() + "</srcFiles></sources></project>");
    }
    QWidget* dialog() const { return window->findChild<QWidget*>("configDialog"); }
    bool isOpen() const { return dialog() != nullptr && dialog()->isVisible(); }
    QListWidget* list() const { return dialog()->findChild<QListWidget*>("configList"); }
    QListWidgetItem* item(const QString& title) const { return list()->findItems(title, Qt::MatchExactly).value(0); }
    bool isEnabled(const QString& title) const { return (item(title)->flags() & Qt::ItemIsEnabled) != 0; }
    QString current() const { return list()->currentItem() != nullptr ? list()->currentItem()->text() : QString(); }
    QTabWidget* tabs() const { return window->findChild<QTabWidget*>("widgetAreaTabs"); }
    QLineEdit* title() const { return dialog()->findChild<QLineEdit*>("prjTitle"); }
    void retypeTitle(const QString& text) const
    {
        title()->setFocus();
        QTest::keyClick(title(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(title(), text);
    }
    static QString file(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    nsModConfig::ModConfig* config = nullptr;
    nsModPrj::ModPrj* prj = nullptr;
    ModGuiHookIf* gui = nullptr;
};

} // namespace

TEST_F(ConfigInWindow, theMenuOpensIt)
{
    QAction* action = nullptr;
    for (QAction* candidate : window->menuBar()->findChildren<QAction*>() + window->findChildren<QAction*>()) {
        if (candidate->text() == "Configure...")
            action = candidate;
    }
    ASSERT_NE(action, nullptr);
    EXPECT_FALSE(action->icon().isNull());
    action->trigger();
    ASSERT_TRUE(isOpen());
    EXPECT_EQ(tabs()->tabText(tabs()->indexOf(dialog())), "Configuration");
}

TEST_F(ConfigInWindow, withoutAProjectItsPagesAreDisabled)
{
    config->openDialog();
    ASSERT_NE(item("Info"), nullptr);
    ASSERT_NE(item("Sources"), nullptr);
    EXPECT_EQ(list()->row(item("Info")), 0);
    EXPECT_EQ(list()->row(item("Sources")), 1);
    EXPECT_FALSE(isEnabled("Info"));
    EXPECT_FALSE(isEnabled("Sources"));
    EXPECT_NE(current(), "Info");
}

TEST_F(ConfigInWindow, applyWritesTheProject)
{
    const QString path = makePrj("counter", {"main.psm"});
    ASSERT_TRUE(prj->open(path));
    config->openDialog();
    EXPECT_EQ(current(), "Info");
    retypeTitle("Counter 2");
    for (QPushButton* button : dialog()->findChildren<QPushButton*>()) {
        if (button->text() == "Apply and close") {
            QTest::mouseClick(button, Qt::LeftButton);
            break;
        }
    }
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(file(path).contains("Counter 2")) << "on the disk at once";
    EXPECT_TRUE(window->windowTitle().contains("Counter 2"));
}

TEST_F(ConfigInWindow, theCloseButtonOfTheTabAppliesAndCancelDoesNot)
{
    const QString path = makePrj("counter");
    ASSERT_TRUE(prj->open(path));
    config->openDialog();
    retypeTitle("Cancelled");
    QTest::mouseClick(dialog()->findChild<QPushButton*>("buttonCancel"), Qt::LeftButton);
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(prj->prjTitle(), "counter");
    config->openDialog();
    retypeTitle("Closed");
    QTest::mouseClick(window->findChild<QPushButton*>("buttonCloseTab"), Qt::LeftButton);
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(prj->prjTitle(), "Closed");
    EXPECT_TRUE(file(path).contains("Closed"));
}

TEST_F(ConfigInWindow, theCloseKeyAppliesFromWithinAField)
{
    ASSERT_TRUE(prj->open(makePrj("counter")));
    config->openDialog();
    retypeTitle("By key");
    QTest::keyClick(title(), Qt::Key_W, Qt::ControlModifier);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(prj->prjTitle(), "By key");
}

TEST_F(ConfigInWindow, opensAtTheFirstPageUnlessTheUserWantsTheLastOne)
{
    config->openDialog();
    const QString first = current();
    list()->setCurrentItem(item("Editor"));
    config->closeDialog(false);
    config->openDialog();
    EXPECT_EQ(current(), first);
    list()->setCurrentItem(item("Appearance"));
    auto* box = dialog()->findChild<QCheckBox*>("opensAtLastPage");
    EXPECT_FALSE(box->isChecked());
    QTest::keyClick(box, Qt::Key_Space);
    config->closeDialog(true);
    config->openDialog();
    EXPECT_EQ(current(), "Appearance");
    EXPECT_TRUE(dialog()->findChild<QCheckBox*>("opensAtLastPage")->isChecked());
    // However it is closed; also in the next window.
    list()->setCurrentItem(item("Editor"));
    config->closeDialog(false);
    ASSERT_TRUE(closeWindow());
    makeWindow();
    config = module<nsModConfig::ModConfig>();
    config->openDialog();
    EXPECT_EQ(current(), "Editor");
    config->closeDialog(false);
    // A title goes before it, and a page that needs a project without one does not come to the front.
    config->openDialog("Appearance");
    EXPECT_EQ(current(), "Appearance");
    config->closeDialog(false);
    prj = module<nsModPrj::ModPrj>();
    ASSERT_TRUE(prj->openPrj(makePrj("a")));
    config->openDialog("Sources");
    ASSERT_EQ(current(), "Sources");
    config->closeDialog(false);
    prj->closePrj();
    config->openDialog();
    EXPECT_TRUE(isEnabled(current())) << qPrintable(current());
    EXPECT_EQ(current(), first);
}

TEST_F(ConfigInWindow, theRightDockFollowsTheTabs)
{
    QLabel editor;
    QLabel docked;
    gui->addWidget(nullptr, ModGuiHookIf::eLocationTabs, &editor, "main.psm");
    gui->addWidget(nullptr, ModGuiHookIf::eLocationDockRight, &docked, "Docked");
    config->openDialog();
    EXPECT_FALSE(docked.isVisible());
    gui->setCurrentWidget(&editor);
    EXPECT_TRUE(gui->widgetVisible(ModGuiHookIf::eLocationDockRight));
    config->openDialog();
    EXPECT_EQ(gui->currentWidget(ModGuiHookIf::eLocationTabs), dialog());
    EXPECT_FALSE(gui->widgetVisible(ModGuiHookIf::eLocationDockRight));
    config->closeDialog();
    EXPECT_TRUE(gui->widgetVisible(ModGuiHookIf::eLocationDockRight));
    gui->removeWidget(&docked);
    gui->removeWidget(&editor);
}

TEST_F(ConfigInWindow, projectsMayComeAndGoMeanwhile)
{
    const QString first = makePrj("first", {"main.psm"});
    const QString second = makePrj("second", {"uart.psm"});
    config->openDialog();
    ASSERT_TRUE(prj->open(first));
    EXPECT_TRUE(isEnabled("Info"));
    EXPECT_EQ(title()->text(), "first");
    EXPECT_EQ(dialog()->findChild<QListWidget*>("sourcesList")->count(), 1);
    retypeTitle("edited");
    ASSERT_TRUE(prj->open(second));
    EXPECT_EQ(title()->text(), "second");
    EXPECT_EQ(dialog()->findChild<QListWidget*>("sourcesList")->item(0)->text(), "uart.psm");
    config->closeDialog(true);
    EXPECT_FALSE(file(first).contains("edited"));
    EXPECT_TRUE(file(second).contains("second"));
    EXPECT_EQ(module<ModSourcesHookIf>()->files(), QStringList(projectDir() + "/uart.psm"));
    config->openDialog();
    prj->close();
    EXPECT_FALSE(isEnabled("Info"));
    config->closeDialog(true);
    EXPECT_TRUE(file(second).contains("uart.psm")) << "a closed project is not written any more";
}

TEST_F(ConfigInWindow, theEndOfTheProgramCancels)
{
    const QString path = makePrj("counter");
    ASSERT_TRUE(prj->open(path));
    config->openDialog();
    retypeTitle("Unwanted");
    EXPECT_TRUE(closeWindow());
    EXPECT_FALSE(file(path).contains("Unwanted"));
}

TEST_F(ConfigInWindow, theWindowMayBeDeletedWithTheDialogOpen)
{
    ASSERT_TRUE(prj->open(makePrj("counter")));
    config->openDialog();
    window.reset();
    makeWindow();
    EXPECT_EQ(dialog(), nullptr);
}

TEST_F(ConfigInWindow, aSmallWindowDoesNotGrow)
{
    window->resize(800, 600);
    const QSize size = window->size();
    ASSERT_TRUE(prj->open(makePrj("counter", {"main.psm", "uart.psm"})));
    config->openDialog("Sources");
    screenshot("config-small-window");
    EXPECT_EQ(window->size(), size);
}

TEST_F(ConfigInWindow, picturesOfEveryPage)
{
    config->openDialog();
    screenshot("config-no-project");
    config->selectDialogPageByTitle("Sources");
    screenshot("config-no-project-sources");
    config->closeDialog();
    ASSERT_TRUE(prj->open(makePrj("empty")));
    config->openDialog("Sources");
    screenshot("config-sources-empty");
    config->closeDialog();
    ASSERT_TRUE(prj->open(makePrj("counter", {"main.psm", "uart.psm", "delay.psm"})));
    config->openDialog();
    for (int row = 0; row < list()->count(); ++row) {
        list()->setCurrentRow(row);
        const QString path = screenshot("config-" + list()->item(row)->text().toLower().replace(' ', '-'));
        const QImage picture(path);
        ASSERT_FALSE(picture.isNull());
        // A page has a title: there is ink to the right of the list.
        int inked = 0;
        const QPoint corner = dialog()->mapTo(window.get(), QPoint(150, 10)) * picture.devicePixelRatio();
        const QRgb ground = picture.pixel(corner);
        for (int x = corner.x(); x < corner.x() + 300; ++x) {
            for (int y = corner.y(); y < corner.y() + 30; ++y)
                inked += picture.pixel(x, y) != ground;
        }
        EXPECT_GT(inked, 50) << qPrintable(path);
    }
}

TEST_F(ConfigInWindow, theRightDockStaysAwayWhileItIsInFront)
{
    const auto dock = ModGuiHookIf::eLocationDockRight;
    nsModMsg::MsgViewer panel;
    nsModMsg::MsgViewer beside;
    gui->addWidget(nullptr, dock, &panel, "Panel");
    gui->addWidget(nullptr, dock, &beside, "Beside");
    ASSERT_TRUE(prj->open(makePrj("counter", {"main.psm"})));
    EXPECT_TRUE(gui->widgetVisible(dock));
    config->openDialog();
    EXPECT_FALSE(gui->widgetVisible(dock));
    // A panel with new content, and one that is brought to the front of its dock.
    panel.showInfoMessage("text", QUrl(), nsModMsg::MsgUrl());
    EXPECT_EQ(gui->currentWidget(dock), &panel);
    EXPECT_FALSE(gui->widgetVisible(dock));
    gui->setCurrentWidget(&beside);
    EXPECT_FALSE(gui->widgetVisible(dock));
    // Another page brings it back, the dialog takes it away again.
    QWidget other;
    gui->addWidget(nullptr, ModGuiHookIf::eLocationTabs, &other, "Other");
    EXPECT_TRUE(gui->widgetVisible(dock));
    gui->setCurrentWidget(dialog());
    EXPECT_FALSE(gui->widgetVisible(dock));
    panel.showInfoMessage("text", QUrl(), nsModMsg::MsgUrl());
    EXPECT_FALSE(gui->widgetVisible(dock));
    config->closeDialog(false);
    EXPECT_TRUE(gui->widgetVisible(dock));
    for (QWidget* widget : {static_cast<QWidget*>(&panel), static_cast<QWidget*>(&beside), &other})
        gui->removeWidget(widget);
}

TEST_F(ConfigInWindow, theWheelScrollsThePageAndChangesNoValue)
{
    ASSERT_TRUE(prj->open(makePrj("counter", {"main.psm"})));
    config->openDialog();
    int boxes = 0;
    for (int row = 0; row < list()->count(); ++row) {
        list()->setCurrentRow(row);
        QApplication::processEvents();
        auto* area = qobject_cast<QScrollArea*>(dialog()->findChild<QStackedWidget*>("configPages")->currentWidget());
        ASSERT_NE(area, nullptr);
        const auto turn = [](QWidget* widget) {
            const QPointF pos(widget->rect().center());
            QWheelEvent event(pos, widget->mapToGlobal(widget->rect().center()), QPoint(), QPoint(0, -120),
                              Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
            // As from the platform, so that a box could also take the focus.
            QSpontaneKeyEvent::setSpontaneous(&event);
            QApplication::instance()->notify(widget, &event);
        };
        const auto value = [](QWidget* widget) {
            auto* box = qobject_cast<QComboBox*>(widget);
            return box != nullptr ? QString::number(box->currentIndex()) : widget->property("text").toString();
        };
        // A value can take other fields of its page away.
        QList<QPointer<QWidget>> widgets;
        for (QWidget* widget : area->findChildren<QWidget*>())
            widgets.append(widget);
        for (QWidget* widget : qAsConst(widgets)) {
            auto* combo = qobject_cast<QComboBox*>(widget);
            auto* spin = qobject_cast<QAbstractSpinBox*>(widget);
            if ((combo == nullptr && spin == nullptr) || !widget->isVisible() || !widget->isEnabled())
                continue;
            if (combo != nullptr && combo->count() < 2)
                continue;
            ++boxes;
            list()->setFocus();
            if (combo != nullptr)
                combo->setCurrentIndex(0);
            if (spin != nullptr)
                spin->stepUp();
            const QString before = value(widget);
            area->verticalScrollBar()->setValue(0);
            turn(widget);
            turn(widget);
            EXPECT_EQ(value(widget), before) << qPrintable(list()->currentItem()->text());
            EXPECT_FALSE(widget->hasFocus());
            EXPECT_EQ(area->verticalScrollBar()->value() > 0, area->verticalScrollBar()->maximum() > 0);
            // With the focus it is the user's wish.
            widget->setFocus();
            turn(widget);
            EXPECT_NE(value(widget), before) << qPrintable(list()->currentItem()->text());
        }
    }
    EXPECT_GE(boxes, 5);
}
