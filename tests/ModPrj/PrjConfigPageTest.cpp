// The settings page "Info" and what the module does around it.

#include "PrjConfigPage.h"
#include "FakeHooks.h"
#include "ModPrj.h"
#include "PrjTestSupport.h"
#include "QtPrinters.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTest>

using nsModPrj::ModPrj;
using nsModPrj::PrjConfigPage;

namespace {

class PrjConfigPageTest : public ::testing::Test
{
protected:
    PrjConfigPageTest()
    {
        gui.registerPlugin(static_cast<ModGuiPluginIf*>(&prj));
        msg.registerPlugin(static_cast<ModMsgPluginIf*>(&prj));
        action.registerPlugin(static_cast<ModActionPluginIf*>(&prj));
        prj.modRegisterPlugins({&prj});
        prj.modInit();
        prj.modInitIntermod();
        prj.modRun();
    }
    ~PrjConfigPageTest() override { prj.modExit(); }

    QString makePrj(const QString& name, const QByteArray& title)
    {
        const QString path = m_dir.filePath(name);
        writeFile(path, "<project version=\"3\"><PrjInfo><title>" + title +
                            "</title><version>1.2</version><comment>A test</comment></PrjInfo></project>");
        return path;
    }
    /// The steps of the dialog up to the page.
    void openPage()
    {
        page = dynamic_cast<PrjConfigPage*>(prj.configPage(0));
        ASSERT_NE(page, nullptr);
        prj.configPageSetConfig(page);
        page->setPrjConfigEnabled(prj.isValid());
        page->resize(500, 300);
        page->show();
        page->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(page.data(), 60000));
    }
    void closePage(bool accepted)
    {
        prj.configPageClose(accepted);
        prj.configPagesClosed(accepted);
    }
    QLineEdit* edit(const char* name) const { return page->findChild<QLineEdit*>(name); }
    QPlainTextEdit* comment() const { return page->findChild<QPlainTextEdit*>("prjComment"); }
    static void retype(QLineEdit* field, const QString& text)
    {
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(field, text);
    }
    QAction* actionNamed(const QString& text)
    {
        for (QAction* candidate : prj.menuActions(ModActionHookIf::eActionClassConfiguration)) {
            if (candidate->text() == text)
                return candidate;
        }
        return nullptr;
    }

    QTemporaryDir m_dir;
    FakeMsgHook msg;
    FakeGuiHook gui;
    FakeActionHook action;
    ModPrj prj;
    QPointer<PrjConfigPage> page;
};

} // namespace

TEST_F(PrjConfigPageTest, saysWhatItIs)
{
    openPage();
    EXPECT_EQ(page->pageTitle(), "Info");
    EXPECT_EQ(page->pageHelpRef(), "pageId://configPagePrjInfo");
    EXPECT_EQ(page->pageWidget(), page.data());
    QStringList labels;
    for (QLabel* label : page->findChildren<QLabel*>())
        labels.append(label->text());
    for (const char* text : {"Title:", "Version:", "Comment:"})
        EXPECT_TRUE(labels.contains(text)) << text;
    for (QWidget* field : QList<QWidget*>{edit("prjTitle"), edit("prjVersion"), comment()})
        EXPECT_FALSE(field->toolTip().isEmpty());
}

TEST_F(PrjConfigPageTest, showsAndTakesTheValuesOfTheProject)
{
    ASSERT_TRUE(prj.openPrj(makePrj("a.nalvo", "Blinker")));
    openPage();
    EXPECT_EQ(edit("prjTitle")->text(), "Blinker");
    EXPECT_EQ(edit("prjVersion")->text(), "1.2");
    EXPECT_EQ(comment()->toPlainText(), "A test");
    retype(edit("prjTitle"), "Counter & <more>");
    QTest::keyClick(edit("prjTitle"), Qt::Key_Tab);
    ASSERT_TRUE(edit("prjVersion")->hasFocus());
    QTest::keyClick(edit("prjVersion"), Qt::Key_Tab);
    ASSERT_TRUE(comment()->hasFocus());
    QTest::keyClick(comment(), Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(comment(), Qt::Key_Return);
    QTest::keyClicks(comment(), "second line");
    closePage(true);
    EXPECT_TRUE(page.isNull());
    EXPECT_EQ(prj.prjTitle(), "Counter & <more>");
    EXPECT_EQ(prj.prjComment(), "A test\nsecond line");
    EXPECT_EQ(gui.titles.last(), "a.nalvo ( Title: Counter & <more>, Project version: 1.2)");
    // The next run reads what was written.
    const QString path = m_dir.filePath("a.nalvo");
    prj.closePrj();
    ASSERT_TRUE(prj.openPrj(path));
    EXPECT_EQ(prj.prjTitle(), "Counter & <more>");
    EXPECT_EQ(prj.prjComment(), "A test\nsecond line");
}

TEST_F(PrjConfigPageTest, cancelKeepsTheValues)
{
    ASSERT_TRUE(prj.openPrj(makePrj("a.nalvo", "Blinker")));
    openPage();
    const int titles = gui.titles.size();
    retype(edit("prjTitle"), "Other");
    closePage(false);
    EXPECT_TRUE(page.isNull());
    EXPECT_EQ(prj.prjTitle(), "Blinker");
    EXPECT_EQ(gui.titles.size(), titles);
}

TEST_F(PrjConfigPageTest, defaultsAreThoseOfANewProject)
{
    ASSERT_TRUE(prj.openPrj(makePrj("a.nalvo", "Blinker")));
    openPage();
    page->setDefaultConfig();
    EXPECT_EQ(edit("prjTitle")->text(), "Untitled");
    EXPECT_EQ(edit("prjVersion")->text(), "0.1");
    EXPECT_EQ(comment()->toPlainText(), "");
    EXPECT_TRUE(page->checkConfig());
}

TEST_F(PrjConfigPageTest, withoutAProjectItIsDisabledAndSaysWhy)
{
    openPage();
    EXPECT_FALSE(page->pageIsEnabled());
    EXPECT_FALSE(edit("prjTitle")->isEnabled());
    EXPECT_TRUE(page->findChild<QLabel*>("pageNote")->isVisible());
    page->setPrjConfigEnabled(true);
    EXPECT_TRUE(page->pageIsEnabled());
    EXPECT_TRUE(edit("prjTitle")->isEnabled());
    EXPECT_FALSE(page->findChild<QLabel*>("pageNote")->isVisible());
}

TEST_F(PrjConfigPageTest, followsTheProjectWhileItIsOpen)
{
    ASSERT_TRUE(prj.openPrj(makePrj("a.nalvo", "First")));
    openPage();
    ASSERT_TRUE(prj.openPrj(makePrj("b.nalvo", "Second")));
    EXPECT_EQ(edit("prjTitle")->text(), "Second");
    prj.closePrj();
    EXPECT_EQ(edit("prjTitle")->text(), "Untitled");
    EXPECT_EQ(edit("prjVersion")->text(), "0.1");
    // With no project there is nothing that apply could change.
    retype(edit("prjTitle"), "Nobody's");
    closePage(true);
    EXPECT_EQ(prj.prjTitle(), "Second");
    ASSERT_TRUE(prj.openPrj(m_dir.filePath("a.nalvo")));
    EXPECT_EQ(prj.prjTitle(), "First");
}

TEST_F(PrjConfigPageTest, theProjectActionsAreDisabledWhileItIsOpen)
{
    ASSERT_TRUE(prj.openPrj(makePrj("a.nalvo", "First")));
    openPage();
    for (const char* text : {"New project...", "Open project...", "Close project"})
        EXPECT_FALSE(actionNamed(text)->isEnabled()) << text;
    // Not even a script that opens another project changes that.
    ASSERT_TRUE(prj.open(makePrj("b.nalvo", "Second")));
    EXPECT_FALSE(actionNamed("Close project")->isEnabled());
    closePage(false);
    for (const char* text : {"New project...", "Open project...", "Close project"})
        EXPECT_TRUE(actionNamed(text)->isEnabled()) << text;
    prj.closePrj();
    EXPECT_FALSE(actionNamed("Close project")->isEnabled());
    openPage();
    closePage(false);
    EXPECT_TRUE(actionNamed("Open project...")->isEnabled());
    EXPECT_FALSE(actionNamed("Close project")->isEnabled());
}

TEST_F(PrjConfigPageTest, aPageThatWasDeletedIsNotFollowed)
{
    ASSERT_TRUE(prj.openPrj(makePrj("a.nalvo", "First")));
    openPage();
    delete page;
    prj.configPageSetConfig(nullptr);
    prj.closePrj();
    closePage(true);
}
