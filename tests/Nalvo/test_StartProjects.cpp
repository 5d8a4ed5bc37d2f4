// First contact: examples and recent projects.

#include "DeadDisk.h"
#include "StartPageFixture.h"

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

TEST(ExampleProjects, anEmptyFolderOfAnExampleIsCopied)
{
    QTemporaryDir shipped;
    QTemporaryDir target;
    ASSERT_TRUE(QDir(shipped.path()).mkpath("a/output"));
    ASSERT_TRUE(QDir(target.path()).mkpath("copies"));
    QFile project(shipped.filePath("a/a.nalvo"));
    ASSERT_TRUE(project.open(QIODevice::WriteOnly));
    project.write("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<project version=\"3\"/>\n");
    project.close();
    const nsModPrj::ExampleProjects examples(shipped.path());
    ASSERT_EQ(examples.list().size(), 1);
    QString error;
    EXPECT_EQ(examples.copy(examples.list().constFirst(), target.filePath("copies"), &error),
              target.filePath("copies/a/a.nalvo"))
        << qPrintable(error);
    EXPECT_TRUE(QFileInfo(target.filePath("copies/a/output")).isDir());
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
    EXPECT_TRUE(QTest::qWaitFor([&] { return hints().contains("missing: " + first); }, 60000))
        << qPrintable(hints().join('\n'));
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

TEST_F(StartPage, aDiskThatDoesNotAnswerHoldsTheStartPageNotUp)
{
    const QString first = makeProject("first.nalvo");
    ASSERT_TRUE(prj()->openPrj(first));
    ASSERT_TRUE(prj()->openPrj(makeProject("second.nalvo")));
    ASSERT_TRUE(closeWindow());
    ASSERT_TRUE(QFile::remove(first));
    DeadDisk disk("first.nalvo");
    start();
    EXPECT_EQ(linkTexts().mid(5), QStringList({"Recent projects", "second", "first"}));
    EXPECT_TRUE(QTest::qWaitFor([&] { return disk.isAsked(); }, 60000));
    for (int i = 0; i < 3; ++i) {
        prj()->stepsChanged();
        settleLayout();
    }
    EXPECT_EQ(hints().filter("missing").size(), 0);
    disk.answer();
    EXPECT_TRUE(QTest::qWaitFor([&] { return hints().contains("missing: " + first); }, 60000))
        << qPrintable(hints().join('\n'));
    EXPECT_FALSE(disk.isAskedByWindow());
    // The window ends while a disk is still to answer.
    DeadDisk other("first.nalvo");
    prj()->stepsChanged();
    EXPECT_TRUE(QTest::qWaitFor([&] { return other.isAsked(); }, 60000));
    EXPECT_TRUE(closeWindow());
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
