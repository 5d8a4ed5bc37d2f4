// Every field of every page in a real main window: cancelled, restored, set to defaults, applied and killed, while
// projects come and go.

#include "EditorSyntaxHighlighterConfig.h"
#include "ExampleFolder.h"
#include "SettingsFixture.h"

#include <QRegularExpression>

#include <algorithm>
#include <functional>
#include <random>

namespace {

class SettingsAttack : public SettingsFixture
{
};

} // namespace

TEST_F(SettingsAttack, CancelLeavesEveryFileAndFieldAsItWas)
{
    start();
    const QString path = makePrj(QString::fromUtf8("Prüf stand/p ä.nalvo"));
    ASSERT_TRUE(prj()->open(path));
    config()->openDialog();
    config()->closeDialog(true);
    const QByteArray project = content(path);
    const QByteArray settings = content(settingsFile());
    config()->openDialog();
    const Snapshot before = snapshot();
    ASSERT_EQ(before.size(), titles().size());
    changeEverything();
    const Snapshot changed = snapshot();
    for (const QString& title : titles())
        expectEachDiffers(before[title], changed[title]);
    press("&Cancel");
    EXPECT_EQ(content(path), project);
    EXPECT_EQ(content(settingsFile()), settings);
    config()->openDialog();
    expectSame(snapshot(), before);
    config()->closeDialog();
    prj()->savePrjCfg();
    EXPECT_EQ(content(path), project);
    EXPECT_TRUE(closeWindow());
    // Sizes of the window and its like are written at the end as well.
    EXPECT_EQ(content(path), project);
    makeWindow();
    ASSERT_TRUE(prj()->open(path));
    config()->openDialog();
    expectSame(snapshot(), before);
}

TEST_F(SettingsAttack, RestoreAndDefaultsConcernTheirPageAlone)
{
    start();
    ASSERT_TRUE(prj()->open(makePrj("p.nalvo")));
    for (const QString& button : {QString("Restore values"), QString("Set page default values")}) {
        config()->openDialog();
        const Snapshot before = snapshot();
        const QStringList all = titles();
        config()->closeDialog();
        for (const QString& title : all) {
            config()->openDialog();
            changeEverything();
            const Snapshot changed = snapshot();
            ASSERT_TRUE(config()->selectDialogPageByTitle(title));
            press(button);
            Snapshot after = snapshot();
            for (const QString& other : all) {
                if (other != title)
                    expectSame(after[other], changed[other], button + " on " + title);
            }
            // Another processor's fields are out of sight, and stay as they are until it is chosen again.
            Snapshot wanted = before;
            keepShownProcessor(&after);
            keepShownProcessor(&wanted);
            if (button == "Restore values") {
                expectSame(after[title], wanted[title], button + " on " + title);
            } else if (title == "Sources") {
                expectSame(after[title], changed[title], "defaults leave the list of sources alone");
            } else if (title != "All shortcuts") { // a list alone, with tests of its own
                EXPECT_NE(after[title], changed[title]) << qPrintable(title);
            }
            config()->closeDialog();
        }
    }
}

TEST_F(SettingsAttack, WhatIsAppliedIsOnTheDiskEvenIfTheProgramDies)
{
    start();
    const QString path = makePrj("p.nalvo");
    ASSERT_TRUE(prj()->open(path));
    config()->openDialog();
    changeEverything();
    Snapshot applied = snapshot();
    keepShownProcessor(&applied);
    press("Apply and close");
    config()->openDialog();
    Snapshot shown = snapshot();
    keepShownProcessor(&shown);
    expectSame(shown, applied);
    config()->closeDialog();

    // Without any exit phase.
    makeWindow();
    ASSERT_TRUE(prj()->open(path));
    config()->openDialog();
    Snapshot read = snapshot();
    keepShownProcessor(&read);
    // The one setting that is not stored.
    QStringList* assembler[] = {&applied["Assembler"], &read["Assembler"]};
    for (QStringList* values : assembler)
        values->erase(std::remove_if(values->begin(), values->end(),
                                     [](const QString& value) { return value.contains("behaviorIntVector"); }),
                      values->end());
    expectSame(read, applied);
}

TEST_F(SettingsAttack, TheProjectCanBeClosedByTheMenuBehindEachWayOut)
{
    start();
    ASSERT_TRUE(prj()->open(makePrj("p.nalvo")));
    QAction* close = nullptr;
    for (QAction* action : window->findChildren<QAction*>()) {
        if (action->text() == "Close project")
            close = action;
    }
    ASSERT_NE(close, nullptr);
    const QList<std::function<void()>> waysOut = {
        [this] { press("Apply and close"); }, [this] { press("&Cancel"); },
        [this] { QTest::mouseClick(window->findChild<QPushButton*>("buttonCloseTab"), Qt::LeftButton); },
        [this] { config()->closeDialog(); }};
    for (const auto& leave : waysOut) {
        config()->openDialog();
        EXPECT_FALSE(close->isEnabled());
        leave();
        ASSERT_EQ(dialog() != nullptr && dialog()->isVisible(), false);
        EXPECT_TRUE(close->isEnabled());
        EXPECT_TRUE(close->isVisible());
        EXPECT_FALSE(close->associatedWidgets().isEmpty());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    close->trigger();
    EXPECT_FALSE(prj()->isValid());
    EXPECT_FALSE(close->isEnabled());
}

TEST_F(SettingsAttack, ProjectsAndProcessorsComeAndGoInAnyOrder)
{
    start();
    const QStringList paths = {makePrj("1/a.nalvo", "Xilinx PicoBlaze 6"), makePrj("2/b.nalvo", "Lattice Mico8 v3.x"),
                               makePrj("3/c.nalvo", "Unheard Of"), makePrj("4/d.nalvo", "")};
    const QString broken = writeFile("broken.nalvo", "<project><a></project>");
    std::mt19937 random(7);
    QString log;
    for (int step = 0; step < 400; ++step) {
        const int what = int(random() % 9);
        log = QString("step %1: %2").arg(step).arg(what);
        if (what == 0)
            config()->openDialog();
        else if (what == 1)
            config()->closeDialog(true);
        else if (what == 2)
            config()->closeDialog(false);
        else if (what <= 4)
            ASSERT_TRUE(prj()->open(paths.at(int(random() % 4)))) << qPrintable(log);
        else if (what == 5)
            prj()->close();
        else if (what == 6)
            EXPECT_FALSE(prj()->open(broken)) << qPrintable(log);
        else if (what == 7)
            prj()->hndlAction(nsModPrj::PrjActions::eAction_t(random() % 3));
        else if (dialog() != nullptr && dialog()->isVisible() && prj()->isValid())
            change(field<QComboBox>("Processor", "processor"));
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const bool open = dialog() != nullptr;
        if (auto* tabs = window->findChild<QTabWidget*>("prjMngrTabs")) {
            ASSERT_EQ(tabs->isEnabled(), !open) << qPrintable(log);
        }
        if (open) {
            ASSERT_EQ(page("Sources")->findChild<QListWidget*>("sourcesList")->count(), prj()->isValid() ? 2 : 0)
                << qPrintable(log);
        }
        ASSERT_EQ(module<ModSourcesHookIf>()->files().size(), prj()->isValid() ? 2 : 0) << qPrintable(log);
    }
    EXPECT_TRUE(closeWindow());
}

TEST_F(SettingsAttack, AnUntouchedPageCarriesNothingOverIntoTheNextProject)
{
    start();
    const QString first = makePrj("1/a.nalvo", "Xilinx PicoBlaze 6",
                                  "<ModEditor><tabIndent>2</tabIndent></ModEditor><AsmFe><defaultCharset>ISO-8859-1"
                                  "</defaultCharset><behavior><charset>0</charset><equ>0</equ><set>0</set></behavior>"
                                  "<target><hex><en>1</en><outputFile>a.hex</outputFile></hex></target></AsmFe>");
    const QString second = makePrj("2/b.nalvo", "Xilinx PicoBlaze 3",
                                   "<ModEditor><tabIndent>8</tabIndent></ModEditor><AsmFe><defaultCharset>Unheard-Of"
                                   "</defaultCharset><behavior><charset>7</charset><equ>-1</equ><set>2</set></behavior>"
                                   "</AsmFe>");
    const QString third = makePrj("3/c.nalvo", "", "<AsmFe><defaultCharset></defaultCharset></AsmFe>");
    for (const QString& path : {second, third}) {
        ASSERT_TRUE(prj()->open(path));
        prj()->savePrjCfg();
        const QByteArray wanted = content(path);
        ASSERT_TRUE(prj()->open(first));
        config()->openDialog();
        ASSERT_TRUE(prj()->open(path));
        press("Apply and close");
        EXPECT_EQ(content(path), wanted) << content(path).constData() << wanted.constData();
    }
}

TEST_F(SettingsAttack, APageOfAClosedProjectChoosesNoProcessorForTheNext)
{
    start();
    const QString unknown = makePrj("2/b.nalvo", "Unheard Of");
    ASSERT_TRUE(prj()->open(makePrj("1/a.nalvo", "Xilinx PicoBlaze 6")));
    config()->openDialog();
    EXPECT_EQ(field<QComboBox>("Processor", "processor")->currentText(), "Xilinx PicoBlaze 6");
    ASSERT_TRUE(prj()->open(unknown));
    EXPECT_EQ(field<QComboBox>("Processor", "processor")->currentText(), "Unset");
    press("Apply and close");
    EXPECT_FALSE(content(unknown).contains("PicoBlaze"));
}

TEST_F(SettingsAttack, RubbishInTheProjectFile)
{
    start();
    for (const char* value : {"nan", "-inf", "1e300", "-1", "99999999999999999999", "abc", ""}) {
        const std::pair<const char*, const char*> processors[] = {
            {"Xilinx PicoBlaze 3", "XPBlze3"}, {"Xilinx PicoBlaze 6", "XPBlze6"}, {"Lattice Mico8 v3.x", "LMico8v3x"}};
        for (const auto& processor : processors) {
            const QString path = makePrj("p.nalvo", processor.first, rubbishSections(processor.second, value));
            ASSERT_TRUE(prj()->open(path));
            prj()->savePrjCfg();
            EXPECT_TRUE(QRegularExpression("<clkFreq>-?[0-9]+</clkFreq>").match(content(path)).hasMatch())
                << value << content(path).constData();
            config()->openDialog();
            press("Apply and close");
            config()->openDialog();
            const Snapshot shown = snapshot();
            config()->closeDialog(true);
            EXPECT_TRUE(QRegularExpression("<clkFreq>-?[0-9]+</clkFreq>").match(content(path)).hasMatch())
                << value << content(path).constData();
            prj()->close();
            ASSERT_TRUE(prj()->open(path));
            config()->openDialog();
            expectSame(snapshot(), shown);
            config()->closeDialog();
        }
    }
}

TEST_F(SettingsAttack, RubbishTypedIntoEveryField)
{
    start();
    const QString file = QString::fromUtf8("mit Lücke & %1 <ß> ").repeated(20) + "!.x";
    const QString text = QString::fromUtf8("/!&<>\"' äöü € \xF0\x9F\x98\x80 ://\\:;%1 &#47;").repeated(8);
    const QString path = makePrj(QString::fromUtf8("mit Lücke/%1/p q.nalvo").arg(QString(200, QChar(0xe4)).left(100)));
    ASSERT_TRUE(prj()->open(path));
    config()->openDialog();
    for (QWidget* widget : dialog()->findChildren<QWidget*>()) {
        if (auto* box = qobject_cast<QCheckBox*>(widget))
            box->setChecked(true);
    }
    for (QWidget* widget : dialog()->findChildren<QWidget*>()) {
        if (auto* box = qobject_cast<QAbstractSpinBox*>(widget))
            type(box, "-99999999999999999999999999e999");
        else if (auto* plain = qobject_cast<QPlainTextEdit*>(widget))
            plain->insertPlainText(text + "\n" + text);
        else if (auto* edit = qobject_cast<QLineEdit*>(widget))
            edit->insert(isPartOfBox(edit) || edit->isReadOnly() ? QString()
                         : edit->objectName() == "pathEdit"      ? file
                                                                 : text);
    }
    Snapshot applied = snapshot();
    keepShownProcessor(&applied);
    press("Apply and close");
    prj()->close();
    ASSERT_TRUE(prj()->open(path));
    config()->openDialog();
    Snapshot read = snapshot();
    keepShownProcessor(&read);
    expectSame(read, applied);
    EXPECT_TRUE(closeWindow());
}

TEST_F(SettingsAttack, AssemblesAndSimulatesWhileItIsOpen)
{
    copyFolder(NALVO_SOURCE_DIR "/examples/uart_monitor", projectDir() + "/uart_monitor");
    copyFolder(NALVO_SOURCE_DIR "/examples/templates", projectDir() + "/templates");
    start();
    const QString path = projectDir() + "/uart_monitor/uart_monitor.nalvo";
    ASSERT_TRUE(prj()->open(path));
    config()->openDialog();
    const Snapshot before = snapshot();
    trigger("Run assembler");
    ASSERT_TRUE(module<ModAsmFeHookIf>()->isAssembled());
    expectSame(snapshot(), before);
    trigger("Enable/disable simulator");
    trigger("Next instruction");
    config()->openDialog(); // behind the views of the simulator
    expectSame(snapshot(), before);

    // While the simulator runs with these settings they stay.
    press("Apply and close");
    ASSERT_TRUE(dialog() != nullptr && dialog()->isVisible());
    EXPECT_TRUE(messageTexts().contains("The simulator must be disabled before closing the configuration dialog."));
    trigger("Enable/disable simulator");
    press("Apply and close");
    EXPECT_EQ(dialog(), nullptr);
    config()->openDialog();
    expectSame(snapshot(), before);

    // Cancel needs no consent, and a project takes its simulator along.
    trigger("Run assembler");
    trigger("Enable/disable simulator");
    config()->openDialog();
    press("&Cancel");
    EXPECT_EQ(dialog(), nullptr);
    config()->openDialog();
    prj()->close();
    ASSERT_NE(dialog(), nullptr);
    press("Apply and close");
    EXPECT_EQ(dialog(), nullptr);
    EXPECT_TRUE(closeWindow());
}

TEST_F(SettingsAttack, WithoutAProjectTextIsPlain)
{
    start();
    auto* rules = window->findChild<nsModEditor::EditorSyntaxHighlighterConfig*>();
    ASSERT_NE(rules, nullptr);
    EXPECT_TRUE(rules->rules().isEmpty());
    config()->openDialog();
    press("Apply and close");
    EXPECT_TRUE(rules->rules().isEmpty());
    for (const char* processor : {"Xilinx PicoBlaze 6", ""}) {
        ASSERT_TRUE(prj()->open(makePrj("p.nalvo", processor)));
        EXPECT_FALSE(rules->rules().isEmpty());
        config()->openDialog();
        press("Apply and close");
        EXPECT_FALSE(rules->rules().isEmpty());
        prj()->close();
        EXPECT_TRUE(rules->rules().isEmpty()) << processor;
    }
}
