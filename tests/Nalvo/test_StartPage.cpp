// First contact: the start page, a new project from nothing to its outputs, examples, recent projects, and the next
// step.

#include "MainWindowFixture.h"
#include "ModalAnswers.h"

#include "ExampleProjects.h"
#include "ExamplesDialog.h"
#include "ModGuiHookIf.h"
#include "ModPrj.h"
#include "MyLinkButton.h"
#include "MyLinkList.h"
#include "NewProject.h"
#include "QtPrinters.h"
#include "RecentProjects.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

namespace {

class StartPage : public MainWindowFixture
{
protected:
    StartPage()
    {
        writeSetting("ModGui/width", "1280");
        writeSetting("ModGui/height", "900");
        start();
    }
    void start()
    {
        makeWindow();
        window->activateWindow();
        settleLayout();
    }

    nsModPrj::ModPrj* prj() const { return module<nsModPrj::ModPrj>(); }
    /// The list of links that the user sees: on the page of the project manager, or in the empty centre.
    MyLinkList* links() const
    {
        for (MyLinkList* list : window->findChildren<MyLinkList*>()) {
            if (list->isVisible())
                return list;
        }
        return nullptr;
    }
    QStringList linkTexts() const
    {
        settleLayout();
        return links() != nullptr ? links()->texts() : QStringList();
    }
    MyLinkButton* link(const QString& text) const
    {
        settleLayout();
        if (links() == nullptr)
            return nullptr;
        for (MyLinkButton* button : links()->findChildren<MyLinkButton*>()) {
            if (button->text() == text && button->isVisible())
                return button;
        }
        return nullptr;
    }
    /// The next missing step in the status bar; empty if nothing is missing.
    QString nextStep() const
    {
        settleLayout();
        auto* button = window->findChild<MyLinkButton*>("nextStepLink");
        return button != nullptr && button->isVisible() ? button->text() : QString();
    }
    void click(QWidget* widget)
    {
        ASSERT_NE(widget, nullptr);
        ASSERT_TRUE(widget->isVisible()) << qPrintable(widget->objectName());
        ASSERT_TRUE(widget->isEnabled()) << qPrintable(widget->objectName());
        ++clicks;
        QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier,
                          qobject_cast<QCheckBox*>(widget) != nullptr ? QPoint(8, widget->height() / 2) : QPoint());
    }
    QPushButton* button(const QString& text) const
    {
        for (QPushButton* candidate : window->findChildren<QPushButton*>()) {
            if (candidate->text() == text && candidate->isVisible())
                return candidate;
        }
        return nullptr;
    }
    QToolButton* tool(const QString& text) const
    {
        settleLayout();
        for (QToolButton* candidate : window->findChildren<QToolButton*>()) {
            if (candidate->defaultAction() != nullptr && candidate->defaultAction()->text() == text &&
                candidate->isVisible())
                return candidate;
        }
        return nullptr;
    }
    template <class Widget>
    Widget* field(const char* name) const
    {
        return window->findChild<Widget*>(name);
    }
    bool hasMessage(const QString& start) const
    {
        for (const QString& text : messageTexts()) {
            if (text.startsWith(start))
                return true;
        }
        return false;
    }
    static QByteArray content(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    /// A folder of the test. @return its path
    QString makeDir(const QString& name) const
    {
        QDir().mkpath(folder.filePath(name));
        return folder.filePath(name);
    }
    QString makeProject(const QString& name)
    {
        return writeFile(name, "<project version=\"3\"><PrjInfo><title>T</title></PrjInfo></project>");
    }
    /// Opens the example in this row by keyboard. @return path of its project; empty: the dialog stayed
    QString openExample(int row, const QString& target)
    {
        MyLinkButton* opener = link("Open an example...");
        if (opener == nullptr)
            return QString();
        opener->setFocus();
        ModalAnswers answers({[&](QDialog* box) {
            auto* dialog = qobject_cast<nsModPrj::ExamplesDialog*>(box);
            ASSERT_NE(dialog, nullptr);
            auto* list = dialog->findChild<QListWidget*>("examplesList");
            for (int i = 0; i < row; ++i)
                QTest::keyClick(list, Qt::Key_Down);
            auto* edit = dialog->findChild<QLineEdit*>("examplesFolder");
            edit->selectAll();
            QTest::keyClick(edit, Qt::Key_Delete);
            QTest::keyClicks(edit, target);
            note = dialog->findChild<QLabel*>("examplesNote")->text();
            QTest::keyClick(edit, Qt::Key_Return);
            if (dialog->isVisible())
                note = dialog->findChild<QLabel*>("examplesNote")->text();
        }});
        QTest::keyClick(opener, Qt::Key_Return);
        EXPECT_EQ(answers.seen(), 1);
        settleLayout();
        return prj()->path();
    }

    /// Past the button beside the path, which the title then follows.
    static void tabToTitle(QWidget* path)
    {
        QTest::keyClick(path, Qt::Key_Tab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), "prjMngrNewTitle");
    }

    int clicks = 0;
    QString note; ///< what the dialog of the examples said last
};

} // namespace

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
        path->clear();
        QTest::keyClicks(path, projectDir() + QString::fromUtf8("/Über \"a\" & b"));
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

// --- examples ---

TEST_F(StartPage, anExampleIsCopiedAndOpenedAndNeverOverwritten)
{
    const QString target = makeDir(QString::fromUtf8("Übung \"1\" & mehr"));
    const QString first = openExample(1, target);
    ASSERT_TRUE(first.startsWith(target + '/')) << qPrintable(first + note);
    EXPECT_TRUE(note.contains(target));
    EXPECT_FALSE(hasMessage("Failure"));
    const QString name = QFileInfo(first).dir().dirName();
    // What the user has done in the copy stays.
    QFile changed(QFileInfo(first).path() + "/README.md");
    ASSERT_TRUE(changed.open(QIODevice::WriteOnly));
    changed.write("mine");
    changed.close();
    prj()->closePrj();
    settleLayout();
    const QString second = openExample(1, target);
    EXPECT_EQ(second, target + '/' + name + "_2/" + QFileInfo(first).fileName());
    EXPECT_EQ(content(changed.fileName()), "mine");
}

TEST_F(StartPage, everyExampleRunsAsACopy)
{
    const nsModPrj::ExampleProjects examples = nsModPrj::ExampleProjects::shipped();
    ASSERT_GE(examples.list().size(), 7);
    const QString target = makeDir("copies");
    for (const nsModPrj::ExampleProject& example : examples.list()) {
        SCOPED_TRACE(qPrintable(example.folder));
        EXPECT_FALSE(example.comment.isEmpty()) << "each has a line that says what it shows";
        QString error;
        const QString file = examples.copy(example, target, &error);
        ASSERT_FALSE(file.isEmpty()) << qPrintable(error);
        ASSERT_TRUE(prj()->openPrj(file));
        settleLayout();
        click(tool("Write output files button 1"));
        settleLayout();
        EXPECT_FALSE(hasMessage("Failure"));
        EXPECT_EQ(nextStep(), QString());
        prj()->closePrj();
    }
}

TEST_F(StartPage, anExampleThatCanNotBeCopiedSaysWhyAndTheDialogStays)
{
    EXPECT_EQ(openExample(0, "/proc"), QString());
    EXPECT_TRUE(note.startsWith("Can not make a folder in /proc")) << qPrintable(note);
    EXPECT_EQ(openExample(0, folder.filePath("none")), QString());
    EXPECT_EQ(note, "The folder does not exist.");
    EXPECT_EQ(openExample(0, ""), QString());
    EXPECT_EQ(note, "Choose the folder that the copy goes into.");
}

TEST(ExampleProjects, aTemplateWithAnotherContentStopsTheCopyAndNothingIsLeft)
{
    QTemporaryDir dir;
    const nsModPrj::ExampleProjects examples = nsModPrj::ExampleProjects::shipped();
    nsModPrj::ExampleProject lock;
    for (const nsModPrj::ExampleProject& example : examples.list()) {
        if (example.folder == "keypad_lock")
            lock = example;
    }
    QDir(dir.path()).mkdir("templates");
    QFile mine(dir.filePath("templates/rom_1kx18_halves.vhd"));
    ASSERT_TRUE(mine.open(QIODevice::WriteOnly));
    mine.write("mine");
    mine.close();
    QString error;
    EXPECT_EQ(examples.copy(lock, dir.path(), &error), QString());
    EXPECT_TRUE(error.contains("rom_1kx18_halves.vhd")) << qPrintable(error);
    EXPECT_FALSE(QFileInfo::exists(dir.filePath("keypad_lock")));
    ASSERT_TRUE(mine.open(QIODevice::ReadOnly));
    EXPECT_EQ(mine.readAll(), "mine");
}

TEST(ExampleProjects, anInstallationWithoutThemHasNone)
{
    for (const QString& dir : {QString(), QStringLiteral("/nowhere/examples")}) {
        const nsModPrj::ExampleProjects none(dir);
        EXPECT_TRUE(none.list().isEmpty());
        QString error;
        EXPECT_EQ(none.copy({"a", "a.nalvo", "A", ""}, QDir::tempPath(), &error), QString());
        EXPECT_TRUE(error.startsWith("The example is not there any more")) << qPrintable(error);
        nsModPrj::ExamplesDialog dialog(none, QDir::tempPath(), nullptr);
        EXPECT_EQ(dialog.findChild<QLabel*>("examplesNote")->text(),
                  "The examples that ship with the program were not found.");
        dialog.accept();
        EXPECT_EQ(dialog.projectFile(), QString());
    }
}

TEST(ExampleProjects, aUserWithoutAHomeHasToChoose)
{
    const QByteArray home = qgetenv("HOME");
    const QByteArray config = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", "/nonexistent/config");
    for (const char* none : {"/nonexistent", "/"}) {
        qputenv("HOME", none);
        EXPECT_EQ(nsModPrj::ExamplesDialog::usersFolder(), QString()) << none;
    }
    qputenv("HOME", home);
    qputenv("XDG_CONFIG_HOME", config);
    if (config.isNull())
        qunsetenv("XDG_CONFIG_HOME");
}

// --- recent projects ---

TEST_F(StartPage, recentProjectsAreKeptAndAMissingOneIsToldAndRemoved)
{
    const QString first = makeProject("first.nalvo");
    const QString second = makeProject("second.nalvo");
    ASSERT_TRUE(prj()->openPrj(first));
    ASSERT_TRUE(prj()->openPrj(second));
    ASSERT_TRUE(closeWindow());
    start();
    EXPECT_EQ(linkTexts().mid(5), QStringList({"Recent projects", "second", "first"}));
    screenshot("start-recent");
    ASSERT_TRUE(QFile::remove(first));
    click(link("first"));
    settleLayout();
    EXPECT_TRUE(hasMessage("Project file does not exist: " + first));
    EXPECT_FALSE(prj()->isValid());
    EXPECT_NE(link("first"), nullptr) << "its disk may come back";
    QStringList details;
    for (const QLabel* label : links()->findChildren<QLabel*>("pageHint"))
        details.append(label->text());
    EXPECT_TRUE(details.contains("missing: " + first)) << qPrintable(details.join('\n'));
    const QList<QToolButton*> removers = links()->findChildren<QToolButton*>("linkRemove");
    ASSERT_EQ(removers.size(), 2);
    EXPECT_EQ(removers.last()->accessibleName(), "Remove first from the list");
    click(removers.last());
    EXPECT_EQ(linkTexts().mid(5), QStringList({"Recent projects", "second"}));
    click(link("second"));
    EXPECT_EQ(prj()->path(), second);
    ASSERT_TRUE(closeWindow());
    start();
    EXPECT_EQ(linkTexts().mid(5), QStringList({"Recent projects", "second"}));
}

TEST_F(StartPage, generateAndOpenRemembersTheProject)
{
    click(link("New project..."));
    auto* path = field<QWidget>("prjMngrNewFile")->findChild<QLineEdit*>();
    QTest::keyClicks(path, projectDir() + "/kept");
    tabToTitle(path);
    click(button("Generate and open project"));
    ASSERT_TRUE(prj()->isValid());
    QMenu* menu = nullptr;
    for (QAction* action : window->menuBar()->actions().first()->menu()->actions()) {
        if (action->text().remove('&') == "Recent projects")
            menu = action->menu();
    }
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), 1);
    EXPECT_EQ(menu->actions().first()->text(), "kept");
    prj()->closePrj();
    menu->actions().first()->trigger();
    EXPECT_EQ(prj()->path(), projectDir() + "/kept.nalvo");
}

TEST_F(StartPage, aSpoiltListLeavesWhatCanBeRead)
{
    const QString good = makeProject("good.nalvo");
    window.reset();
    writeSetting("PrjMngr/recent", ":::relative.nalvo:/:" + good + ':' + good + ":/with%00null:" + QString(9000, 'x'));
    start();
    EXPECT_NE(link("good"), nullptr);
    EXPECT_EQ(linkTexts().count("good"), 1);
    EXPECT_FALSE(linkTexts().contains("relative"));
}

TEST(RecentProjects, areAbsoluteUniqueAndNotTooMany)
{
    nsModPrj::RecentProjects recent;
    for (int i = 0; i < 30; ++i)
        recent.add(QString("/p/%1.nalvo").arg(i));
    EXPECT_EQ(recent.files().size(), int(nsModPrj::RecentProjects::maxCount));
    EXPECT_EQ(recent.files().first(), "/p/29.nalvo");
    recent.add("/p/25.nalvo");
    EXPECT_EQ(recent.files().first(), "/p/25.nalvo");
    EXPECT_EQ(recent.files().count("/p/25.nalvo"), 1);
    recent.add("relative.nalvo");
    recent.add("");
    EXPECT_EQ(recent.files().first(), "/p/25.nalvo");
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
    path->setFocus();
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
                             "Cancel"};
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
