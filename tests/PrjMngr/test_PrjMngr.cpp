// The project manager's page, by mouse and keys, and the collection on the disk.

#include "PrjMngrFixture.h"

#include "ModalHelper.h"

#include <QFileDialog>
#include <QScrollBar>

namespace {

using nsModPrj::PrjMngrListElementWidget;

class PrjMngr : public PrjMngrFixture
{
};

// --- the page ---

TEST_F(PrjMngr, IsTheFirstThingToBeSeen)
{
    start();
    ASSERT_FALSE(page.isNull());
    EXPECT_EQ(gui.currentWidget(ModGuiHookIf::eLocationTabs), page.data());
    EXPECT_EQ(hlp.refs, QStringList("pageId://projectManager"));
    EXPECT_EQ(tabs()->tabPosition(), QTabWidget::West);
    EXPECT_EQ(tabs()->tabText(0), "New project");
    EXPECT_EQ(tabs()->tabText(1), "Open");
    EXPECT_EQ(tabs()->currentIndex(), 1);
    EXPECT_FALSE(prjAction(2)->isEnabled());
    for (const char* text : {"Project manager", "Project collection:", "Project file:", "Project title:"})
        EXPECT_TRUE(labels(page).contains(text)) << text;
    expectToolTips(page);
}

TEST_F(PrjMngr, AnEmptyCollectionSaysWhatToDo)
{
    start();
    auto* hint = page->listWidget()->findChild<QLabel*>("pageHint");
    ASSERT_NE(hint, nullptr);
    EXPECT_TRUE(hint->isVisible());
    EXPECT_TRUE(hint->text().contains("New project"));
    prj.prjMngrAddToCollection(makePrj("p.nalvo"));
    EXPECT_FALSE(hint->isVisible());
    press("Remove from collection");
    EXPECT_TRUE(hint->isVisible());
}

TEST_F(PrjMngr, TheActionsLeadToItsTabs)
{
    start();
    prjAction(0)->trigger();
    EXPECT_EQ(tabs()->currentIndex(), 0);
    prjAction(1)->trigger();
    EXPECT_EQ(tabs()->currentIndex(), 1);
    EXPECT_EQ(gui.center.size(), 1) << "it is the same page";
    press("&Cancel");
    EXPECT_TRUE(gui.center.isEmpty());
    prjAction(0)->trigger();
    bringUp();
    ASSERT_FALSE(page.isNull());
    EXPECT_EQ(tabs()->currentIndex(), 0);
}

TEST_F(PrjMngr, GoesWithAProjectAndComesBackBehindIt)
{
    start();
    const QString file = makePrj("p.nalvo", "T");
    ASSERT_TRUE(prj.openPrj(file));
    EXPECT_TRUE(gui.center.isEmpty());
    EXPECT_EQ(hlp.closed.size(), 1);
    EXPECT_TRUE(prjAction(2)->isEnabled());
    prjAction(2)->trigger();
    EXPECT_FALSE(prj.isValid());
    bringUp();
    ASSERT_FALSE(page.isNull());
    EXPECT_EQ(tabs()->currentIndex(), 1);
    EXPECT_FALSE(prjAction(2)->isEnabled());
}

TEST_F(PrjMngr, ComesBackWhenTheNextProjectIsBroken)
{
    start();
    ASSERT_TRUE(prj.openPrj(makePrj("p.nalvo", "T")));
    EXPECT_FALSE(prj.openPrj(makeBroken("broken.nalvo")));
    EXPECT_FALSE(prj.isValid());
    bringUp();
    EXPECT_FALSE(page.isNull());
}

TEST_F(PrjMngr, StandsBesideAnOpenProject)
{
    start();
    ASSERT_TRUE(prj.openPrj(makePrj("p.nalvo", "T")));
    prjAction(0)->trigger();
    bringUp();
    ASSERT_FALSE(page.isNull());
    EXPECT_TRUE(prj.isValid());
    EXPECT_TRUE(prjAction(2)->isEnabled());
    press("&Cancel");
    EXPECT_TRUE(prj.isValid());
    EXPECT_TRUE(prjAction(2)->isEnabled());
}

TEST_F(PrjMngr, IsLockedBelowTheSettingsDialog)
{
    start();
    prj.configPage(0);
    EXPECT_FALSE(tabs()->isEnabled());
    prj.configPageClose(false);
    prj.configPagesClosed(false);
    EXPECT_TRUE(tabs()->isEnabled());
}

TEST_F(PrjMngr, IsLockedWhenItComesWhileTheSettingsDialogIsOpen)
{
    start();
    ASSERT_TRUE(prj.openPrj(makePrj("p.nalvo", "T")));
    prj.configPage(0);
    prj.hndlAction(nsModPrj::PrjActions::eActionClose);
    bringUp();
    ASSERT_FALSE(page.isNull());
    EXPECT_FALSE(tabs()->isEnabled());
    prj.configPageClose(false);
    prj.configPagesClosed(false);
    EXPECT_TRUE(tabs()->isEnabled());
}

TEST_F(PrjMngr, IsThereAgainBehindTheProjectThatTheEndOfTheProgramCloses)
{
    start();
    const QString file = makePrj("p.nalvo", "T");
    ASSERT_TRUE(prj.openPrj(file));
    prj.modExitIntermod();
    prj.modExit();
    EXPECT_FALSE(prj.isValid());
    bringUp();
    ASSERT_FALSE(page.isNull());
    EXPECT_EQ(tabs()->currentIndex(), 1);
}

TEST_F(PrjMngr, TheEndOfTheProgramBringsNoPageWithoutAProject)
{
    start();
    press("&Cancel");
    prj.modExitIntermod();
    prj.modExit();
    EXPECT_TRUE(gui.center.isEmpty());
}

TEST_F(PrjMngr, ClosingItsTabCancels)
{
    const QString file = makePrj("p.nalvo", "T");
    start();
    prj.prjMngrAddToCollection(file);
    QWidget other;
    prj.removeWidgetRequest(&other);
    EXPECT_EQ(gui.center.size(), 1);
    prj.removeWidgetRequest(page);
    EXPECT_TRUE(gui.center.isEmpty());
    EXPECT_EQ(prj.collection(), QStringList());
}

TEST(PrjMngrAlone, WithoutAWindowThereIsNoPage)
{
    nsModPrj::ModPrj prj;
    prj.modInit();
    prj.rdAppCfg();
    prj.modRun();
    prj.prjMngrSetMode(nsModPrj::ModPrj::eModeNew);
    prj.prjMngrFetchCollection();
    EXPECT_FALSE(prj.prjMngrAddToCollection("/nowhere/p.nalvo"));
    prj.prjMngrClose();
    prj.wrAppCfg();
    EXPECT_EQ(prj.collection(), QStringList());
}

// --- new projects ---

TEST_F(PrjMngr, TheButtonsNeedAFileAndATitle)
{
    start();
    selectTab(0);
    QPushButton* add = button("Generate and add project to collection");
    QPushButton* open = button("Generate and open project");
    QLineEdit* file = pathEdit("prjMngrNewFile");
    auto* title = page->findChild<QLineEdit*>("prjMngrNewTitle");
    const auto enabled = [&] { return int(add->isEnabled()) + int(open->isEnabled()); };
    EXPECT_EQ(enabled(), 0);
    typeInto(file, path("p.nalvo"));
    EXPECT_EQ(enabled(), 0);
    typeInto(title, "T");
    EXPECT_EQ(enabled(), 2);
    typeInto(file, path("no/such/folder.nalvo"));
    EXPECT_EQ(enabled(), 0);
    typeInto(file, path("p.nalvo"));
    EXPECT_EQ(enabled(), 2);
    QTest::keyClick(title, Qt::Key_Backspace);
    EXPECT_EQ(enabled(), 0);
}

TEST_F(PrjMngr, GenerateAndOpen)
{
    start();
    selectTab(0);
    typeInto(pathEdit("prjMngrNewFile"), path("blink.nalvo"));
    typeInto(page->findChild<QLineEdit*>("prjMngrNewTitle"), "Blink & co");
    press("Generate and open project");
    EXPECT_EQ(prj.prjFileName(), "blink.nalvo");
    EXPECT_EQ(prj.prjTitle(), "Blink & co");
    EXPECT_EQ(prj.prjVersion(), "0.1");
    EXPECT_TRUE(gui.center.isEmpty());
    EXPECT_EQ(prj.collection(), QStringList()) << "opening alone collects nothing";
}

TEST_F(PrjMngr, AGeneratedFileHoldsTheInfoAlone)
{
    start();
    selectTab(0);
    typeInto(pathEdit("prjMngrNewFile"), path("blink.nalvo"));
    typeInto(page->findChild<QLineEdit*>("prjMngrNewTitle"), "Blink");
    press("Generate and add project to collection");
    EXPECT_EQ(content(path("blink.nalvo")), QByteArray(R"x(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<project version="3">
    <PrjInfo>
        <title>Blink</title>
        <version>0.1</version>
        <comment></comment>
    </PrjInfo>
</project>
)x"));
    EXPECT_FALSE(prj.isValid());
    EXPECT_EQ(listed(), QStringList(path("blink.nalvo")));
    EXPECT_EQ(tabs()->currentIndex(), 1) << "there it is to be seen";
    EXPECT_NE(card(path("blink.nalvo")), nullptr);
    selectTab(0);
    EXPECT_EQ(pathEdit("prjMngrNewFile")->text(), "");
}

TEST_F(PrjMngr, ReturnCreatesWhenBothFieldsAreFilled)
{
    start();
    prjAction(0)->trigger();
    QLineEdit* file = pathEdit("prjMngrNewFile");
    auto* title = page->findChild<QLineEdit*>("prjMngrNewTitle");
    EXPECT_TRUE(file->hasFocus());
    QTest::keyClick(file, Qt::Key_Return);
    EXPECT_FALSE(prj.isValid());
    QTest::keyClicks(file, path("blink"));
    QTest::keyClick(file, Qt::Key_Return);
    EXPECT_FALSE(prj.isValid());
    EXPECT_TRUE(title->hasFocus()) << "the next field that is needed";
    QTest::keyClicks(title, "Blink");
    QTest::keyPress(title, Qt::Key_Return); // with it the page goes
    EXPECT_EQ(prj.prjFileName(), "blink.nalvo") << "a name without a suffix gets it";
}

TEST_F(PrjMngr, ReturnDoesNotReplaceAFile)
{
    const QString file = makePrj("p.nalvo", "Old");
    const QByteArray before = content(file);
    start();
    selectTab(0);
    typeInto(page->findChild<QLineEdit*>("prjMngrNewTitle"), "New");
    typeInto(pathEdit("prjMngrNewFile"), file);
    bool said = false;
    for (const QLabel* label : page->findChildren<QLabel*>())
        said = said || label->text().contains("exists already");
    EXPECT_TRUE(said);
    QTest::keyClick(pathEdit("prjMngrNewFile"), Qt::Key_Return);
    EXPECT_FALSE(prj.isValid());
    EXPECT_EQ(content(file), before);
    EXPECT_TRUE(button("Generate and open project")->hasFocus());
    press("Generate and open project");
    EXPECT_EQ(prj.prjTitle(), "New");
}

TEST_F(PrjMngr, OverThePresentProjectANewOneStartsAfresh)
{
    start();
    const QString file = makePrj("p.nalvo", "Old");
    ASSERT_TRUE(prj.openPrj(file));
    static_cast<ModPrjHookIf&>(prj).setValue("A/key", QString("1"));
    prjAction(0)->trigger();
    bringUp();
    typeInto(pathEdit("prjMngrNewFile"), file);
    typeInto(page->findChild<QLineEdit*>("prjMngrNewTitle"), "New");
    press("Generate and open project");
    EXPECT_EQ(prj.prjTitle(), "New");
    EXPECT_FALSE(prj.hasNode("A"));
    EXPECT_FALSE(content(file).contains("<A>"));
}

TEST_F(PrjMngr, AFileThatCanNotBeWrittenIsReportedAndThePageStays)
{
    start();
    QDir().mkpath(path("d.nalvo"));
    selectTab(0);
    typeInto(pathEdit("prjMngrNewFile"), path("d.nalvo"));
    typeInto(page->findChild<QLineEdit*>("prjMngrNewTitle"), "T");
    press("Generate and open project");
    press("Generate and add project to collection");
    EXPECT_EQ(msg.errors(), QStringList({"Project file is directory: " + path("d.nalvo"),
                                         "Project file is directory: " + path("d.nalvo")}));
    EXPECT_FALSE(prj.isValid());
    EXPECT_EQ(listed(), QStringList());
    EXPECT_EQ(gui.center.size(), 1);
}

TEST_F(PrjMngr, TheFileDialogs)
{
    const QString existing = makePrj("p.nalvo", "T");
    start();
    for (const bool isNew : {true, false}) {
        selectTab(isNew ? 0 : 1);
        ModalHelper helper([&](QDialog* dialog) {
            auto* files = qobject_cast<QFileDialog*>(dialog);
            ASSERT_NE(files, nullptr);
            EXPECT_EQ(files->windowTitle(), isNew ? "New project file" : "Select project file to open");
            EXPECT_EQ(files->acceptMode(), isNew ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
            EXPECT_EQ(files->defaultSuffix(), "nalvo");
            EXPECT_EQ(files->nameFilters(), QStringList({"Nalvo project files(*.nalvo)", "Any files(*)"}));
            files->setDirectory(folder.path());
            files->selectFile(isNew ? path("q.nalvo") : existing);
            QMetaObject::invokeMethod(files, "accept");
        });
        QWidget* field = page->findChild<QWidget*>(isNew ? "prjMngrNewFile" : "prjMngrOpenFile");
        QTest::mouseClick(field->findChild<QPushButton*>("buttonOpenFile"), Qt::LeftButton);
        EXPECT_EQ(helper.seen(), 1);
        EXPECT_EQ(field->findChild<QLineEdit*>()->text(), isNew ? path("q.nalvo") : existing);
    }
}

// --- existing projects ---

TEST_F(PrjMngr, OpenAndAddNeedAnExistingFile)
{
    const QString file = makePrj("p.nalvo", "T");
    start();
    QLineEdit* edit = pathEdit("prjMngrOpenFile");
    EXPECT_FALSE(button("Open project")->isEnabled());
    EXPECT_FALSE(button("Add project to collection")->isEnabled());
    typeInto(edit, path("none.nalvo"));
    EXPECT_FALSE(button("Open project")->isEnabled());
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_EQ(msg.errors(), QStringList());
    typeInto(edit, file);
    EXPECT_TRUE(button("Open project")->isEnabled());
    // Leaving the field opens nothing.
    press("Add project to collection");
    EXPECT_FALSE(prj.isValid());
    EXPECT_EQ(listed(), QStringList(file));
    press("Open project");
    EXPECT_TRUE(prj.isValid());
    EXPECT_EQ(prj.collection(), QStringList(file));
    EXPECT_EQ(disk.stored("PrjMngr/collection"), file) << "at once";
}

TEST_F(PrjMngr, ReturnOpens)
{
    const QString file = makePrj("p.nalvo", "T");
    start();
    prjAction(1)->trigger();
    QLineEdit* edit = pathEdit("prjMngrOpenFile");
    EXPECT_TRUE(edit->hasFocus());
    QTest::keyClicks(edit, file);
    QTest::keyPress(edit, Qt::Key_Return); // with it the page goes
    EXPECT_EQ(prj.prjTitle(), "T");
    EXPECT_TRUE(gui.center.isEmpty());
}

TEST_F(PrjMngr, AProjectStandsInTheListOnce)
{
    const QString file = makePrj("p.nalvo", "T");
    start();
    prj.prjMngrAddToCollection(file);
    makePrj("p.nalvo", "U");
    prj.prjMngrAddToCollection(file);
    EXPECT_EQ(listed(), QStringList(file));
    EXPECT_EQ(cardText(file, "prjViewTitle"), "U");
}

TEST_F(PrjMngr, ABrokenFileIsReportedAndNotListed)
{
    const QString good = makePrj("p.nalvo", "T");
    const QString broken = makeBroken("broken.nalvo");
    disk.start(&prj);
    static_cast<ModCfgAppPluginIf&>(prj).modCfgAppHook->setValue("PrjMngr/collection", QStringList({broken, good}));
    prj.rdAppCfg();
    prj.modRun();
    bringUp();
    EXPECT_EQ(msg.errors(), QStringList("Project file not XML conform!" + broken));
    EXPECT_EQ(listed(), QStringList(good));
}

// --- the collection ---

TEST_F(PrjMngr, AVanishedFileIsDroppedWithAWarningAtTheNextStart)
{
    const QString gone = makePrj("gone.nalvo", "G");
    const QString stays = makePrj("stays.nalvo", "S");
    start();
    prj.prjMngrAddToCollection(gone);
    prj.prjMngrAddToCollection(stays);
    press("Save project manager configuration and close");
    EXPECT_TRUE(gui.center.isEmpty());
    disk.end(&prj);
    EXPECT_EQ(disk.stored("PrjMngr/collection"), gone + ":" + stays);

    ASSERT_TRUE(QFile::remove(gone));
    start();
    EXPECT_EQ(msg.warnings(),
              QStringList("Can not find project file " + gone + ". Removing it from project collection"));
    EXPECT_EQ(listed(), QStringList(stays));
    EXPECT_EQ(prj.collection(), QStringList(stays));
}

TEST_F(PrjMngr, APathMayHoldEveryCharacterAndBeLong)
{
    const QString dir = path(QString::fromUtf8("Prüf stand: 100%1 & <b>;, \"x\" \\ ") + QString(100, QChar(0xe4)));
    const QString file = dir + '/' + QString(100, 'y') + QString::fromUtf8(" ß!.nalvo");
    ASSERT_TRUE(QDir().mkpath(dir));
    ASSERT_GE(file.size(), 240);
    start();
    selectTab(0);
    pathEdit("prjMngrNewFile")->insert(file);
    page->findChild<QLineEdit*>("prjMngrNewTitle")->insert(QString::fromUtf8("Tür & <b>"));
    press("Generate and add project to collection");
    EXPECT_EQ(listed(), QStringList(file));
    press("Save project manager configuration and close");
    disk.end(&prj);
    start();
    EXPECT_EQ(listed(), QStringList(file));
    EXPECT_EQ(cardText(file, "prjViewTitle"), QString::fromUtf8("Tür & <b>"));
    press("Open", card(file));
    EXPECT_TRUE(prj.isValid());
    EXPECT_EQ(prj.prjDir().path(), dir);
    EXPECT_TRUE(msg.warnings().isEmpty());
    EXPECT_TRUE(msg.errors().isEmpty());
}

TEST_F(PrjMngr, CancelKeepsWhatWasRemoved)
{
    const QString a = makePrj("a.nalvo", "A");
    const QString b = makePrj("b.nalvo", "B");
    start();
    prj.prjMngrAddToCollection(a);
    prj.prjMngrAddToCollection(b);
    press("Save project manager configuration and close");
    prjAction(1)->trigger();
    bringUp();
    press("Remove from collection", card(a));
    EXPECT_EQ(listed(), QStringList(b));
    press("&Cancel");
    EXPECT_EQ(prj.collection(), QStringList({a, b}));
    prjAction(1)->trigger();
    bringUp();
    EXPECT_EQ(listed(), QStringList({a, b}));
    press("Remove from collection", card(a));
    press("Save project manager configuration and close");
    EXPECT_EQ(prj.collection(), QStringList(b));
    EXPECT_EQ(disk.stored("PrjMngr/collection"), b);
    EXPECT_TRUE(QFile::exists(a)) << "the files stay";
}

TEST_F(PrjMngr, TheLastOneRemovedLeavesNoKeyBehind)
{
    const QString a = makePrj("a.nalvo", "A");
    start();
    prj.prjMngrAddToCollection(a);
    prj.prjMngrFetchCollection();
    EXPECT_EQ(disk.stored("PrjMngr/collection"), a);
    press("Remove from collection");
    press("Save project manager configuration and close");
    EXPECT_EQ(disk.stored("PrjMngr/collection"), "(none)");
}

// --- the cards ---

TEST_F(PrjMngr, ACardShowsWhatTheProjectSays)
{
    const QString full = makePrj("full.nalvo", "A title", "1.2", "What it is about");
    const QString bare = makePrj("bare.nalvo");
    start();
    prj.prjMngrAddToCollection(full);
    prj.prjMngrAddToCollection(bare);
    EXPECT_EQ(cardText(full, "prjViewTitle"), "A title");
    EXPECT_EQ(cardText(full, "prjViewVersion"), "1.2");
    EXPECT_EQ(cardText(full, "prjViewComment"), "What it is about");
    for (const char* text : {"Version:", "Comment:", "Project file:"})
        EXPECT_TRUE(labels(card(full)).contains(text)) << text;
    EXPECT_EQ(cardText(bare, "prjViewTitle"), "Title: No title set");
    EXPECT_EQ(cardText(bare, "prjViewVersion"), "No version set");
    // A card without a comment has the line all the same, so that the cards are of one height.
    EXPECT_EQ(cardText(bare, "prjViewComment"), "");
    EXPECT_FALSE(card(bare)->findChild<QLabel*>("prjViewComment")->isHidden());
    for (const QLabel* label : card(bare)->findChildren<QLabel*>())
        EXPECT_FALSE(label->isHidden()) << qPrintable(label->text());
    EXPECT_EQ(card(full)->objectName(), "prjView");
    EXPECT_NE(card(full)->findChild<QFrame*>("prjViewButtonLine"), nullptr);
}

TEST(PrjMngrCard, ALongPathShowsItsEnd)
{
    PrjMngrListElementWidget card;
    const auto shown = [&card](const QString& path) {
        card.setPrjInfo(path, "T", "1", "");
        return card.findChild<QLabel*>("prjViewPath")->text();
    };
    const QString forty = "/" + QString(33, 'x') + ".nalvo";
    ASSERT_EQ(forty.size(), 40);
    EXPECT_EQ(shown(forty), forty);
    const QString fortyOne = "/y" + forty.mid(1);
    EXPECT_EQ(shown(fortyOne), "..." + fortyOne.right(40));
    EXPECT_EQ(card.prjFile(), fortyOne);
    EXPECT_EQ(card.findChild<QLabel*>("prjViewPath")->toolTip(), "<p>" + fortyOne + "</p>");
}

TEST_F(PrjMngr, TextsOfProjectsAreNoMarkup)
{
    const QString file = makePrj("p.nalvo", "&lt;b&gt;bold&lt;/b&gt;", "1", "&lt;img src=x&gt;");
    start();
    prj.prjMngrAddToCollection(file);
    EXPECT_EQ(cardText(file, "prjViewTitle"), "<b>bold</b>");
    EXPECT_EQ(card(file)->findChild<QLabel*>("prjViewTitle")->textFormat(), Qt::PlainText);
    EXPECT_EQ(card(file)->findChild<QLabel*>("prjViewComment")->textFormat(), Qt::PlainText);
}

TEST_F(PrjMngr, TheButtonAndADoubleClickOpen)
{
    const QString a = makePrj("a.nalvo", "A");
    const QString b = makePrj("b.nalvo", "B");
    start();
    prj.prjMngrAddToCollection(a);
    prj.prjMngrAddToCollection(b);
    press("Open", card(b));
    EXPECT_EQ(prj.prjTitle(), "B");
    EXPECT_EQ(prj.collection(), QStringList({a, b}));
    prjAction(2)->trigger();
    bringUp();
    QTest::mouseDClick(card(a), Qt::RightButton);
    EXPECT_FALSE(prj.isValid());
    QTest::mouseDClick(card(a), Qt::LeftButton);
    EXPECT_EQ(prj.prjTitle(), "A");
}

TEST_F(PrjMngr, KeysReachEveryCard)
{
    const QString a = makePrj("a.nalvo", "A");
    const QString b = makePrj("b.nalvo", "B");
    start();
    prj.prjMngrAddToCollection(a);
    prj.prjMngrAddToCollection(b);
    QWidget* open = button("Open", card(b));
    for (int i = 0; i < 20 && !open->hasFocus(); ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_TRUE(open->hasFocus());
    QTest::keyClick(open, Qt::Key_Space);
    EXPECT_EQ(prj.prjTitle(), "B");
}

// --- pictures ---

TEST_F(PrjMngr, Pictures)
{
    start();
    screenshot("prjMngrEmpty");
    selectTab(0);
    screenshot("prjMngrNew");
    typeInto(pathEdit("prjMngrNewFile"), makePrj("Projects/uart.nalvo", "UART bridge"));
    typeInto(page->findChild<QLineEdit*>("prjMngrNewTitle"), "UART bridge");
    screenshot("prjMngrNewExists");
    selectTab(1);
    prj.prjMngrAddToCollection(path("Projects/uart.nalvo"));
    prj.prjMngrAddToCollection(makePrj("blink.nalvo", "Blink", "1.0", "Eight lamps in a row, driven from a table"));
    prj.prjMngrAddToCollection(makePrj("bare.nalvo"));
    prj.prjMngrAddToCollection(
        makePrj("Projects/Customers/A rather long name of a customer/Boards/Revision 7/Firmware/boot "
                "loader.nalvo",
                "A boot loader with a title that is longer than what most people would give to a "
                "project of theirs, to see how it wraps",
                "2.11.0-rc3", QString("A long comment. ").repeated(30)));
    prj.prjMngrAddToCollection(makePrj("clock.nalvo", "Clock", "0.3", "Shows the time"));
    screenshot("prjMngrFive");
    auto* bar = page->findChild<QScrollArea*>("prjMngrListArea")->verticalScrollBar();
    bar->setValue(bar->maximum());
    screenshot("prjMngrFiveEnd");
}

} // namespace
