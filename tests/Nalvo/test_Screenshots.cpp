// Pictures of the main window in its main states, for a person to look at.

#include "MainWindowFixture.h"

#include "ModGuiHookIf.h"
#include "ModMsgHookIf.h"

#include <QLabel>
#include <QPlainTextEdit>

namespace {

class Screenshots : public MainWindowFixture
{
protected:
    Screenshots()
    {
        writeSetting("ModGui/width", "1280");
        writeSetting("ModGui/height", "750");
        makeWindow();
        msg = module<ModMsgHookIf>();
        gui = module<ModGuiHookIf>();
    }

    static nsModMsg::MsgUrl link(int line)
    {
        nsModMsg::MsgUrl url;
        url.setUrl("file:///home/user/project/src/main.psm");
        url.setFragment(line);
        url.setDisplayName(QString("main.psm: line %1").arg(line + 1));
        return url;
    }
    void stage(const QString& name, const QStringList& infos)
    {
        msg->openMessageGroup(name, QUrl("pageid://asmFeMessages#grpX"));
        for (const QString& text : infos)
            msg->showInfoMessage(text);
        msg->closeMessageGroup(true);
    }
    void run(bool withWarning, bool withError)
    {
        msg->clearMessages();
        msg->openMessageGroup("Assembling...");
        stage("Parsing files", {"Parsing main.psm", "Parsing lib/uart.psm"});
        stage("Checking #SET directives", {});
        msg->openMessageGroup("Checking labels", QUrl("pageid://asmFeMessages#chkLabelDirectives"));
        if (withWarning)
            msg->showWarningMessage("Label \"uart_wait\" is never used.", QUrl("pageid://asmFeMessages#warnX"),
                                    link(41));
        if (withError)
            msg->showErrorMessage("Label \"loop\" is defined twice.", QUrl("pageid://asmFeMessages#errX"), link(72));
        msg->closeMessageGroup(!withError);
        if (!withError)
            stage("Mapping instructions to memory", {"Using 312 of 1024 instructions"});
        msg->closeMessageGroup(!withError);
    }

    /// A picture with something in it: neither missing nor of one colour.
    static void check(const QString& path)
    {
        const QImage picture(path);
        ASSERT_FALSE(picture.isNull());
        bool differs = false;
        for (int x = 0; x < picture.width() && !differs; ++x)
            differs = picture.pixel(x, picture.height() / 2) != picture.pixel(0, 0);
        EXPECT_TRUE(differs);
    }

    ModMsgHookIf* msg = nullptr;
    ModGuiHookIf* gui = nullptr;
};

} // namespace

TEST_F(Screenshots, SplashScreen)
{
    QWidget* splash = nullptr;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->objectName() == "splashScreen")
            splash = widget;
    }
    ASSERT_NE(splash, nullptr);
    check(screenshot("splash", splash));
}

TEST_F(Screenshots, MainWindowEmpty)
{
    for (QWidget* page : gui->centerWidgetList())
        gui->removeWidget(page);
    check(screenshot("main-empty"));
}

TEST_F(Screenshots, MainWindowAtStart)
{
    check(screenshot("main-start"));
}

TEST_F(Screenshots, MainWindowAfterACleanRun)
{
    run(false, false);
    check(screenshot("main-messages-ok"));
    messageView()->expandAll();
    check(screenshot("main-messages-ok-open"));
}

TEST_F(Screenshots, MainWindowAfterARunWithAWarning)
{
    run(true, false);
    check(screenshot("main-messages-warning"));
}

TEST_F(Screenshots, MainWindowAfterARunWithAnError)
{
    run(true, true);
    check(screenshot("main-messages-error"));
    messageView()->collapseAll();
    check(screenshot("main-messages-error-folded"));
}

TEST_F(Screenshots, MainWindowWithPagesAndDocks)
{
    QPlainTextEdit first, second;
    QPlainTextEdit left;
    QLabel status("Font size: 10 pt   Mode: Insert");
    QLabel right("PicoBlaze 3");
    first.setPlainText("; the main program\n\nstart:  LOAD  s0, 0\nloop:   ADD   s0, 1\n        JUMP  loop\n");
    gui->addWidget(nullptr, ModGuiHookIf::eLocationTabs, &second, "uart.psm");
    gui->addWidget(nullptr, ModGuiHookIf::eLocationTabs, &first, "main.psm");
    gui->addWidget(nullptr, ModGuiHookIf::eLocationDockLeft, &left, "Source Navigator");
    gui->addWidget(nullptr, ModGuiHookIf::eLocationStatusFirst, &status, "");
    gui->addWidget(nullptr, ModGuiHookIf::eLocationStatusSecond, &right, "");
    gui->setStatusBarText("Ready");
    run(true, false);
    check(screenshot("main-pages"));
    for (QWidget* widget : QList<QWidget*>{&first, &second, &left, &status, &right})
        gui->removeWidget(widget);
}
