// The ways into the help: the word at the cursor, panels and fields, dialogs, settings.

#include "HlpFixture.h"

#include "HelpRef.h"
#include "HlpConfigPage.h"
#include "QtPrinters.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QVBoxLayout>
#include <QWhatsThisClickedEvent>

using nsModHlp::HlpConfig;
using nsModHlp::HlpWidget;

namespace {

class Ways : public HlpFixture
{
protected:
    /// The page that F1 opens with the cursor at this place of a text.
    QString pageAt(const QString& text, int position)
    {
        QPlainTextEdit edit(text);
        HelpRef::setForNames(&edit, "pageId://langNames");
        QTextCursor cursor = edit.textCursor();
        cursor.setPosition(position);
        edit.setTextCursor(cursor);
        hlp->explain(&edit);
        const QUrl url = page()->source();
        return url.fileName() + (url.hasFragment() ? '#' + url.fragment() : QString());
    }
};

TEST_F(Ways, theWordAtTheCursor)
{
    gui.showsPages = false;
    start();
    prj.setValue("ModProcessor/processor", QString("Xilinx PicoBlaze 6"));
    EXPECT_EQ(pageAt("LOAD s0, 1", 0), "instrxpblze6.html#LOAD");
    EXPECT_EQ(pageAt("LOAD s0, 1", 4), "instrxpblze6.html#LOAD");
    EXPECT_EQ(pageAt("  load s0, 1", 3), "instrxpblze6.html#LOAD");
    prj.setValue("ModProcessor/processor", QString("Xilinx PicoBlaze 3"));
    EXPECT_EQ(pageAt("LOAD s0, 1", 2), "instrxpblze3.html#LOAD");
    EXPECT_EQ(pageAt("#EQU a, 1", 0), "langdirectives.html#EQU");
    EXPECT_EQ(pageAt("#EQU a, 1", 1), "langdirectives.html#EQU");
    EXPECT_EQ(pageAt("#equ a, 1", 4), "langdirectives.html#EQU");
    EXPECT_EQ(pageAt("; errSyntax", 5), "asmfemessages.html#errSyntax");
    EXPECT_EQ(pageAt("CALL my_label", 8), "langnames.html");
    // A label may be called as a word of the index.
    EXPECT_EQ(pageAt("memory: LOAD s0, 1", 2), "langnames.html");
    EXPECT_EQ(pageAt("Several: LOAD s0, 1", 2), "langnames.html");
}

TEST_F(Ways, theCursorOnNoWord)
{
    gui.showsPages = false;
    start();
    EXPECT_EQ(pageAt("", 0), "start.html");
    EXPECT_EQ(pageAt("LOAD  , 1", 5), "start.html");
    EXPECT_EQ(pageAt("#", 0), "langnames.html");
}

TEST_F(Ways, aTextWithoutNames)
{
    gui.showsPages = false;
    start();
    prj.setValue("ModProcessor/processor", QString("Xilinx PicoBlaze 3"));
    QPlainTextEdit values("FF");
    HelpRef::set(&values, "pageId://about");
    hlp->explain(&values);
    EXPECT_EQ(page()->source().fileName(), "about.html");
    values.setPlainText("LOAD");
    hlp->explain(&values);
    EXPECT_EQ(page()->source().fileName(), "instrxpblze3.html");
}

TEST_F(Ways, aWidgetOrWhatItIsAPartOf)
{
    gui.showsPages = false;
    start();
    QWidget panel;
    auto* inner = new QWidget(&panel);
    auto* field = new QWidget(inner);
    hlp->explain(field);
    EXPECT_EQ(page()->source().fileName(), "start.html");
    HelpRef::set(&panel, "pageId://asmFeMessages#errLast");
    hlp->explain(field);
    EXPECT_EQ(page()->source(), QUrl("qthelp://nv/Nalvo/asmfemessages.html#errLast"));
    HelpRef::set(inner, "pageId://about");
    hlp->explain(field);
    EXPECT_EQ(page()->source().fileName(), "about.html");
}

TEST_F(Ways, theLinkOfAShortTextOpensItsPage)
{
    gui.showsPages = false;
    QWidget window;
    hlp = nullptr;
    auto* module = new nsModHlp::ModHlp(&window);
    gui.registerPlugin(static_cast<ModGuiPluginIf*>(module));
    prj.registerPlugin(static_cast<ModPrjPluginIf*>(module));
    module->setProgramFile(TestCollection::program());
    module->hlpIndexSideRight = HlpConfig::indexDisabled;
    module->modInit();
    module->modInitIntermod();
    auto* panel = new QWidget(&window);
    auto* field = new QWidget(panel);
    HelpRef::setWhatsThis(field, "A <field> & more", "pageId://about");
    EXPECT_TRUE(field->whatsThis().contains("A &lt;field&gt; &amp; more"));
    QWhatsThisClickedEvent event("pageId://about");
    QApplication::sendEvent(field, &event);
    ASSERT_EQ(module->pages().size(), 1);
    EXPECT_EQ(module->pages().first()->source().fileName(), "about.html");
    module->modExitIntermod();
    module->modExit();
}

TEST_F(Ways, helpComesAndGoesWithItsDialog)
{
    start();
    QWidget first;
    QWidget second;
    hlp->showDialogHlpRef(&first, "pageId://ABOUT");
    auto* page = qobject_cast<HlpWidget*>(gui.currentWidget(ModGuiHookIf::eLocationDockRight));
    ASSERT_NE(page, nullptr);
    EXPECT_TRUE(isLoaded(page, "About page"));
    hlp->showDialogHlpRef(&second, "pageId://gettingStarted");
    EXPECT_EQ(gui.widgets.size(), 2);
    // One a dialog.
    hlp->showDialogHlpRef(&first, "pageId://asmFeMessages");
    EXPECT_EQ(gui.widgets.size(), 2);
    EXPECT_TRUE(isLoaded(page, "Messages page"));
    // F1 in the dialog brings it to the front.
    auto* field = new QWidget(&first);
    hlp->explain(field);
    EXPECT_EQ(gui.currentWidget(ModGuiHookIf::eLocationDockRight), page);
    EXPECT_TRUE(pages().isEmpty());

    const QPointer<HlpWidget> guard(page);
    hlp->closeDialogHlp(&first);
    EXPECT_EQ(gui.widgets.size(), 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return guard.isNull(); }, 20000));
    hlp->closeDialogHlp(&first);
    hlp->closeDialogHlp(nullptr);
    hlp->showDialogHlpRef(nullptr, "pageId://about");
    EXPECT_EQ(gui.widgets.size(), 1);
    stop();
    EXPECT_TRUE(gui.widgets.isEmpty());
}

TEST_F(Ways, theDialogIsDeletedFirst)
{
    start();
    for (int turns = 0; turns < 6; ++turns) {
        auto dialog = std::make_unique<QWidget>();
        hlp->showDialogHlpRef(dialog.get(), "pageId://asmFeMessages");
        const QPointer<QWidget> page(gui.currentWidget(ModGuiHookIf::eLocationDockRight));
        for (int turn = 0; turn < turns; ++turn)
            QApplication::processEvents();
        dialog.reset();
        EXPECT_TRUE(gui.widgets.isEmpty());
        EXPECT_TRUE(QTest::qWaitFor([&] { return page.isNull(); }, 20000));
    }
    // The page is deleted first.
    QWidget dialog;
    hlp->showDialogHlpRef(&dialog, "pageId://about");
    hlp->closeDialogHlp(&dialog);
    hlp->showDialogHlpRef(&dialog, "pageId://about");
    EXPECT_EQ(gui.widgets.size(), 1);
    hlp.reset();
}

TEST_F(Ways, theSettings)
{
    start();
    auto* page = dynamic_cast<nsModHlp::HlpConfigPage*>(hlp->configPage(0));
    ASSERT_NE(page, nullptr);
    hlp->configPageSetConfig(page);
    EXPECT_EQ(page->pageTitle(), "Help");
    EXPECT_EQ(page->pageHelpRef(), "pageId://configPageHelp");
    EXPECT_FALSE(page->pageIcon().isNull());
    auto* location = page->findChild<QComboBox*>("hlpIndexLocation");
    EXPECT_EQ(location->itemText(0), "Disabled");
    EXPECT_EQ(location->itemText(1), "Left side");
    EXPECT_EQ(location->itemText(2), "Right side");
    EXPECT_EQ(location->currentIndex(), 0);
    EXPECT_FALSE(page->findChild<QCheckBox*>("showOnlyOneHelpPage")->isChecked());
    page->findChild<QCheckBox*>("showOnlyOneHelpPage")->setChecked(true);
    page->findChild<QCheckBox*>("showGettingStarted")->setChecked(true);
    location->setCurrentIndex(1);
    hlp->configPageClose(true);
    hlp->configPagesClosed(true);
    EXPECT_TRUE(hlp->showOnlyOneHelpPage);
    EXPECT_TRUE(hlp->showGettingStarted);
    EXPECT_EQ(hlp->hlpIndexSideRight, HlpConfig::indexLeft);
    hlp->wrAppCfg();
    EXPECT_EQ(cfg.value("ModHlp/hlpIndexSideRight", -1), 1);
    cfg.setValue("ModHlp/hlpIndexSideRight", 77);
    cfg.setValue("ModHlp/showOnlyOneHelpPage", 0);
    hlp->rdAppCfg();
    EXPECT_EQ(hlp->hlpIndexSideRight, HlpConfig::indexLeft);
    EXPECT_FALSE(hlp->showOnlyOneHelpPage);

    // Without acceptance nothing is taken over.
    hlp->configPage(0);
    hlp->configPageSetConfig(nullptr);
    hlp->configPageClose(false);
    EXPECT_EQ(hlp->hlpIndexSideRight, HlpConfig::indexLeft);
}

TEST_F(Ways, withoutAnyServer)
{
    nsModHlp::ModHlp alone;
    alone.setProgramFile(TestCollection::program());
    alone.modRegisterPlugins({&alone});
    alone.modInit();
    alone.modInitIntermod();
    alone.modRun();
    alone.openFile(QUrl("pageId://about"));
    alone.explain(nullptr);
    alone.findNext(false);
    alone.showDialogHlpRef(nullptr, "pageId://about");
    alone.closeAllFiles();
    alone.modExitIntermod();
    alone.modExit();
}

} // namespace
