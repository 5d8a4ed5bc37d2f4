// First contact: the start page, a new project from nothing to its outputs, and the next step.

#include "StartPageFixture.h"

// --- start page ---

TEST_F(StartPage, leadsWithAllWaysToBegin)
{
    const QStringList ways{"Start", "New project...", "Open project...", "Open an example...", "Import sources..."};
    EXPECT_EQ(linkTexts().mid(0, 5), ways);
    screenshot("start-page");
    // Without the page of the project manager the empty centre leads in the same way.
    click(field<QPushButton>("buttonCancel"));
    EXPECT_EQ(linkTexts().mid(0, 5), ways);
    screenshot("start-empty-center");
}

TEST_F(StartPage, isUsedByKeyboardAlone)
{
    MyLinkButton* first = link("New project...");
    ASSERT_NE(first, nullptr);
    first->setFocus();
    QTest::keyClick(first, Qt::Key_Down);
    EXPECT_EQ(QApplication::focusWidget(), link("Open project..."));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(field<QTabWidget>("prjMngrTabs")->currentIndex(), 0);
}

TEST_F(StartPage, opensAProjectByTheDialog)
{
    const QString file = makeProject("dialog.nalvo");
    ModalAnswers answers({[&](QDialog* box) {
        EXPECT_EQ(box->windowTitle(), "Select project file to open");
        QTest::keyClicks(box->findChild<QLineEdit*>("fileNameEdit"), file);
        QTest::keyClick(box->findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
    }});
    click(link("Open project..."));
    EXPECT_EQ(prj()->path(), file);
}

TEST_F(StartPage, anImportBeginsWithAProjectForIt)
{
    click(link("Import sources..."));
    EXPECT_EQ(field<QTabWidget>("prjMngrTabs")->currentIndex(), 0);
    auto* path = field<QWidget>("prjMngrNewFile")->findChild<QLineEdit*>();
    QTest::keyClicks(path, projectDir() + "/import");
    tabToTitle(path);
    click(button("Generate and open project"));
    ASSERT_TRUE(QTest::qWaitFor([this] { return window->findChild<QTabWidget*>("widgetAreaTabs")->count() > 0; }));
    EXPECT_EQ(window->findChild<QTabWidget*>("widgetAreaTabs")->tabText(0), "Import files");
}

TEST_F(StartPage, anImportIsForgottenWhereTheUserGoesAnotherWay)
{
    const QString file = makeProject("other.nalvo");
    auto* pages = window->findChild<QTabWidget*>("widgetAreaTabs");
    for (const bool byCancel : {false, true}) {
        SCOPED_TRACE(byCancel);
        click(link("Import sources..."));
        if (byCancel) {
            button("&Cancel")->click(); // below the fold
        } else {
            pages->findChild<QTabWidget*>("prjMngrTabs")->setCurrentIndex(1);
            QLineEdit* path = field<QWidget>("prjMngrOpenFile")->findChild<QLineEdit*>();
            path->setText(file);
            click(button("Open project"));
        }
        if (!prj()->isValid()) {
            ASSERT_TRUE(prj()->openPrj(file));
        }
        settleLayout();
        EXPECT_EQ(pages->count(), 0) << "no page of an import in a project that was there already";
        prj()->hndlAction(nsModPrj::PrjActions::eActionClose);
        settleLayout();
    }
}

// --- new project ---

TEST_F(StartPage, fromNothingToHexAndVhdlInEightClicksAndOneDialog)
{
    clicks = 0;
    click(link("New project..."));
    ModalAnswers answers({[this](QDialog* box) {
        EXPECT_EQ(box->windowTitle(), "New project file");
        auto* edit = box->findChild<QLineEdit*>("fileNameEdit");
        QTest::keyClicks(edit, projectDir() + "/blinker");
        QTest::keyClick(edit, Qt::Key_Return);
    }});
    click(field<QWidget>("prjMngrNewFile")->findChild<QPushButton*>());
    EXPECT_EQ(field<QLineEdit>("prjMngrNewTitle")->text(), "blinker");
    auto* processor = field<QComboBox>("prjMngrNewProcessor");
    click(processor);
    QAbstractItemView* popup = processor->view();
    ASSERT_TRUE(QTest::qWaitFor([popup] { return popup->isVisible(); }));
    const int row = processor->findText("Xilinx PicoBlaze 3");
    ASSERT_GE(row, 0);
    ++clicks;
    QTest::mouseClick(popup->viewport(), Qt::LeftButton, Qt::NoModifier,
                      popup->visualRect(popup->model()->index(row, 0)).center());
    // The list of a combo box takes a click for an answer when some time has passed since it was opened.
    if (popup->isVisible())
        QTest::keyClick(popup, Qt::Key_Return);
    ASSERT_EQ(processor->currentText(), "Xilinx PicoBlaze 3");
    click(field<QCheckBox>("prjMngrNewHex"));
    click(field<QCheckBox>("prjMngrNewVhdl"));
    EXPECT_TRUE(field<QCheckBox>("prjMngrNewHex")->isChecked());
    EXPECT_TRUE(field<QCheckBox>("prjMngrNewVhdl")->isChecked());
    screenshot("start-new-project");
    click(button("Generate and open project"));
    settleLayout();
    ASSERT_TRUE(prj()->isValid());
    EXPECT_EQ(nextStep(), "Next: Write the output files");
    screenshot("start-opened");
    click(window->findChild<MyLinkButton*>("nextStepLink"));
    settleLayout();
    EXPECT_LE(clicks, 8);
    EXPECT_EQ(answers.seen(), 1);

    const QByteArray hex = content(projectDir() + "/blinker_rom.hex");
    EXPECT_EQ(hex.count('\n'), 1024);
    const QByteArray vhdl = content(projectDir() + "/blinker_rom.vhd");
    EXPECT_TRUE(vhdl.contains("entity blinker_rom is")) << vhdl.left(400).constData();
    EXPECT_TRUE(QFile::exists(projectDir() + "/rom_1kx18.vhd")) << "a copy of the template is the user's";
    EXPECT_EQ(nextStep(), QString());
    EXPECT_FALSE(hasMessage("Warning"));
    EXPECT_EQ(tool("Write output files button 1")->toolTip().contains("blinker_rom.hex, blinker_rom.vhd") ||
                  tool("Write output files button 1")->toolTip().contains("blinker_rom.vhd, blinker_rom.hex"),
              true)
        << qPrintable(tool("Write output files button 1")->toolTip());
}

TEST_F(StartPage, everyProcessorStartsWithAProgramThatAssemblesWithoutAWarning)
{
    for (const QString& processor : nsModPrj::NewProject::processors()) {
        SCOPED_TRACE(qPrintable(processor));
        QDir(projectDir()).removeRecursively();
        prj()->hndlAction(nsModPrj::PrjActions::eActionNew);
        settleLayout();
        auto* path = field<QWidget>("prjMngrNewFile")->findChild<QLineEdit*>();
        // Keys outside of ASCII can not be pressed here.
        path->setText(projectDir() + QString::fromUtf8("/Über \"a\" & b"));
        tabToTitle(path);
        field<QComboBox>("prjMngrNewProcessor")->setCurrentText(processor);
        for (const char* name : {"prjMngrNewHex", "prjMngrNewMem", "prjMngrNewVhdl", "prjMngrNewVerilog"})
            field<QCheckBox>(name)->setChecked(true);
        click(button("Generate and open project"));
        settleLayout();
        ASSERT_TRUE(prj()->isValid());
        click(tool("Write output files button 1"));
        settleLayout();
        for (const char* suffix : {".hex", ".mem", ".vhd", ".v"})
            EXPECT_TRUE(QFile::exists(projectDir() + QString::fromUtf8("/Über \"a\" & b_rom") + suffix)) << suffix;
        EXPECT_EQ(nextStep(), QString());
        for (QTreeWidgetItemIterator it(messageView()); *it != nullptr; ++it)
            EXPECT_FALSE((*it)->text(0).contains("arning")) << qPrintable((*it)->text(0));
        prj()->closePrj();
        prj()->prjMngrClose();
    }
}

TEST_F(StartPage, filesThatExistAreTakenAndNotReplaced)
{
    writeFile("main.psm", "mine: JUMP mine\n");
    writeFile("rom_1kx18.vhd", "mine");
    click(link("New project..."));
    auto* path = field<QWidget>("prjMngrNewFile")->findChild<QLineEdit*>();
    QTest::keyClicks(path, projectDir() + "/keep");
    tabToTitle(path);
    field<QComboBox>("prjMngrNewProcessor")->setCurrentText("Xilinx PicoBlaze 3");
    field<QCheckBox>("prjMngrNewVhdl")->setChecked(true);
    click(button("Generate and open project"));
    settleLayout();
    EXPECT_EQ(content(projectDir() + "/main.psm"), "mine: JUMP mine\n");
    EXPECT_EQ(content(projectDir() + "/rom_1kx18.vhd"), "mine");
    EXPECT_TRUE(content(projectDir() + "/keep.nalvo").contains("main.psm"));
}

TEST_F(StartPage, withoutAChoiceTheProjectHoldsItsTitleAlone)
{
    click(link("New project..."));
    auto* path = field<QWidget>("prjMngrNewFile")->findChild<QLineEdit*>();
    QTest::keyClicks(path, projectDir() + "/plain");
    tabToTitle(path);
    click(button("Generate and add project to collection"));
    const QByteArray text = content(projectDir() + "/plain.nalvo");
    EXPECT_TRUE(text.contains("<PrjInfo>"));
    EXPECT_FALSE(text.contains("AsmFe")) << text.constData();
    EXPECT_EQ(QDir(projectDir()).entryList(QDir::Files), QStringList("plain.nalvo"));
}

TEST_F(StartPage, aFolderThatCanNotBeWrittenIsReportedAndThePageStays)
{
    click(link("New project..."));
    auto* path = field<QWidget>("prjMngrNewFile")->findChild<QLineEdit*>();
    QTest::keyClicks(path, "/proc/new");
    tabToTitle(path);
    field<QCheckBox>("prjMngrNewSource")->setChecked(true);
    click(button("Generate and open project"));
    settleLayout();
    EXPECT_TRUE(hasMessage("Can not write /proc/main.psm")) << qPrintable(messageTexts().join('\n'));
    EXPECT_FALSE(prj()->isValid());
    EXPECT_NE(button("Generate and open project"), nullptr);
}

// --- next step ---

TEST_F(StartPage, theNextMissingStepIsALinkUntilTheOutputsAreWritten)
{
    ASSERT_TRUE(prj()->openPrj(makeProject("steps.nalvo")));
    EXPECT_EQ(linkTexts().value(0), "Next step");
    EXPECT_EQ(linkTexts().value(1), "Write the first source");
    EXPECT_EQ(nextStep(), "Next: Write the first source");
    click(link("Write the first source"));
    settleLayout();
    EXPECT_EQ(window->findChild<QTabWidget*>("widgetAreaTabs")->tabText(0), "Untitled");

    writeFile("main.psm", "main: JUMP main\n");
    ASSERT_TRUE(prj()->openPrj(writeFile("more.nalvo",
                                         "<project version=\"3\"><PrjInfo><title>T</title></PrjInfo><sources><srcFiles>"
                                         "main.psm</srcFiles></sources></project>")));
    EXPECT_EQ(linkTexts().value(1), "Choose a processor");
    EXPECT_TRUE(linkTexts().contains("main.psm")) << "the page lists the sources";
    screenshot("start-next-step");
    click(link("Choose a processor"));
    ASSERT_NE(field<QWidget>("configDialog"), nullptr);
    field<QComboBox>("processor")->setCurrentText("Xilinx PicoBlaze 3");
    click(button("Apply and close"));
    settleLayout();
    EXPECT_EQ(nextStep(), "Next: Choose the output files");
    click(link("main.psm"));
    settleLayout();
    EXPECT_EQ(window->findChild<QTabWidget*>("widgetAreaTabs")->tabText(0), "main.psm");
    EXPECT_EQ(nextStep(), "Next: Choose the output files") << "also beside an open document";
}

TEST_F(StartPage, aProjectThatVanishesWhileItIsListedIsNoHarm)
{
    const QString file = makeProject("gone.nalvo");
    ASSERT_TRUE(prj()->openPrj(file));
    ASSERT_TRUE(QFile::remove(file));
    prj()->closePrj();
    prj()->hndlAction(nsModPrj::PrjActions::eActionOpen);
    ASSERT_TRUE(QFile::remove(file));
    click(link("gone"));
    settleLayout();
    EXPECT_FALSE(prj()->isValid());
}

// --- project manager ---

TEST_F(StartPage, theTabKeyReachesTheCardsBeforeTheButtonsBelowThem)
{
    const QString a = makeProject("a.nalvo");
    const QString b = makeProject("b.nalvo");
    auto* path = field<QWidget>("prjMngrOpenFile")->findChild<QLineEdit*>();
    for (const QString& file : {a, b}) {
        path->clear();
        QTest::keyClicks(path, file);
        click(button("Add project to collection"));
    }
    settleLayout();
    QStringList order;
    field<QTabWidget>("prjMngrTabs")->tabBar()->setFocus();
    for (int i = 0; i < 30; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        if (auto* reached = qobject_cast<QPushButton*>(QApplication::focusWidget()))
            order.append(reached->text());
        if (!order.isEmpty() && order.last() == "&Cancel")
            break;
    }
    const QStringList wanted{"Remove from collection",
                             "Open",
                             "Remove from collection",
                             "Open",
                             "Save project manager configuration and close",
                             "&Cancel"};
    EXPECT_EQ(order.mid(0, 4),
              QStringList({"New project...", "Open project...", "Open an example...", "Import sources..."}))
        << qPrintable(order.join(", "));
    EXPECT_EQ(order.mid(order.size() - 6), wanted) << qPrintable(order.join(", "));
}

TEST_F(StartPage, aNewCardIsSeen)
{
    window->resize(800, 600);
    settleLayout();
    auto* path = field<QWidget>("prjMngrOpenFile")->findChild<QLineEdit*>();
    QString last;
    for (int i = 0; i < 6; ++i) {
        last = makeProject(QString("card%1.nalvo").arg(i));
        path->clear();
        QTest::keyClicks(path, last);
        QTest::mouseClick(button("Add project to collection"), Qt::LeftButton);
        settleLayout();
    }
    QWidget* card = nullptr;
    for (QWidget* candidate : window->findChildren<QWidget*>("prjView"))
        card = candidate;
    ASSERT_NE(card, nullptr);
    EXPECT_FALSE(card->visibleRegion().isEmpty());
}
