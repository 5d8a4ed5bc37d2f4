// A project is no licence to run code: who is asked, when, and what is kept.

#include "SyscallFixture.h"

#include "ModalAnswers.h"
#include "SyscallConfigPage.h"

#include <QCheckBox>
#include <QDialogButtonBox>

using namespace nsModSyscall;

namespace {

class SyscallConsent : public SyscallFixture
{
protected:
    SyscallConsent() { setHelper(0, "exit 0"); }

    void openForeign() { prj.open(prjFile()); }
    static void press(QDialog* dialog, QDialogButtonBox::StandardButton button)
    {
        QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(button), Qt::LeftButton);
    }
    static void yes(QDialog* dialog) { press(dialog, QDialogButtonBox::Yes); }
    static void no(QDialog* dialog) { press(dialog, QDialogButtonBox::No); }
    static void start(QWidget* monitor) { QTest::mouseClick(buttonOf(monitor, "syscallStart"), Qt::LeftButton); }
    /// What the dialog of the settings does with the page.
    void acceptPage(const std::function<void(SyscallConfigPage*)>& change)
    {
        auto* page = static_cast<SyscallConfigPage*>(module->configPage(0));
        module->configPageSetConfig(page);
        page->setPrjConfigEnabled(true);
        change(page);
        module->configPageClose(true);
        module->configPagesClosed(true);
    }

    const QStringList command = {NALVO_HELPER, "exit", "0"};
};

} // namespace

TEST_F(SyscallConsent, yesIsAskedForOnce)
{
    openForeign();
    QString shown;
    ModalAnswers answers({[&](QDialog* dialog) {
        shown = dialog->findChild<QPlainTextEdit*>("consentAct")->toPlainText();
        yes(dialog);
    }});
    EXPECT_TRUE(run());
    EXPECT_TRUE(run());
    EXPECT_EQ(answers.seen(), 1);
    EXPECT_EQ(shown, QString(NALVO_HELPER) + "\n    \"exit\"\n    \"0\"") << "program and arguments in full";
    EXPECT_EQ(answer(command), ProjectConsent::answerYes);
    EXPECT_EQ(keys(), QStringList({"infoWaiting", "infoExitWithSuccess", "infoWaiting", "infoExitWithSuccess"}));
}

TEST_F(SyscallConsent, enterAndEscAnswerNo)
{
    for (Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        cfgApp.tree.values.clear();
        openForeign();
        ModalAnswers answers({[key](QDialog* dialog) { QTest::keyClick(dialog, key); }});
        EXPECT_TRUE(run()) << "as abort is off";
        EXPECT_EQ(answers.seen(), 1);
        EXPECT_EQ(answer(command), ProjectConsent::answerNo);
        EXPECT_EQ(statusOf(monitor(0)), "Not running");
        EXPECT_EQ(keys(), QStringList("errNotAllowed"));
    }
}

TEST_F(SyscallConsent, noIsKeptAndReported)
{
    set(0, "AbortIfNoSuccess", 1);
    openForeign();
    ModalAnswers answers({no});
    EXPECT_FALSE(run());
    EXPECT_FALSE(run());
    EXPECT_EQ(answers.seen(), 1);
    const QList<FakeMsgHook::Entry> shown = msg.messages();
    ASSERT_EQ(shown.size(), 2);
    EXPECT_TRUE(shown.last().text.contains("press \"Start\" in its monitor")) << qPrintable(shown.last().text);
    EXPECT_EQ(shown.last().type, ModMsgHookIf::eMsgError);
}

TEST_F(SyscallConsent, startAsksAgain)
{
    openForeign();
    {
        ModalAnswers answers({no});
        EXPECT_TRUE(run());
    }
    msg.log.clear();
    {
        ModalAnswers answers({no});
        start(monitor(0));
        EXPECT_EQ(answers.seen(), 1);
        EXPECT_EQ(statusOf(monitor(0)), "Not running");
    }
    {
        ModalAnswers answers({yes});
        start(monitor(0));
        EXPECT_EQ(answers.seen(), 1);
        ASSERT_TRUE(waitForState(0, 1));
        EXPECT_EQ(statusOf(monitor(0)), "Not running, return value: 0");
    }
    EXPECT_TRUE(msg.log.isEmpty()) << "the button reports nothing";
    ModalAnswers answers({});
    EXPECT_TRUE(run());
    start(monitor(0));
    ASSERT_TRUE(waitForState(0, 1));
    EXPECT_EQ(answers.seen(), 0);
}

TEST_F(SyscallConsent, anotherCommandIsAnotherQuestion)
{
    openForeign();
    {
        ModalAnswers answers({yes});
        EXPECT_TRUE(run());
    }
    prj.tree.set(key(0, "Arg"), QString("exit 0 "));
    openForeign();
    ModalAnswers answers({no});
    EXPECT_TRUE(run());
    EXPECT_EQ(answers.seen(), 1) << "one more argument";
}

TEST_F(SyscallConsent, anotherProjectFileIsAnotherQuestion)
{
    openForeign();
    {
        ModalAnswers answers({yes});
        EXPECT_TRUE(run());
    }
    ASSERT_TRUE(QFile::copy(prjFile(), folder.filePath("q.nalvo")));
    prj.open(folder.filePath("q.nalvo"));
    ModalAnswers answers({no});
    EXPECT_TRUE(run());
    EXPECT_EQ(answers.seen(), 1);
}

TEST_F(SyscallConsent, whatTheUserTypesIsAllowed)
{
    openForeign();
    ModalAnswers answers({});
    acceptPage([](SyscallConfigPage* page) { page->findChild<QLineEdit*>("syscallArg0")->setText("exit 5"); });
    EXPECT_TRUE(run());
    EXPECT_EQ(monitor(0)->exitCode(), 5);
    EXPECT_EQ(answers.seen(), 0);
}

TEST_F(SyscallConsent, otherChangesAllowNothing)
{
    // Forms that a page would write in another way.
    for (const QString& exe : {QString(NALVO_HELPER), "/usr/../" + QString(NALVO_HELPER), QString("./a//b\n")}) {
        for (int relative : {0, 1}) {
            setProgram(0, exe, QString(40000, 'x'));
            set(0, "StoreRelToPrj", relative);
            openForeign();
            acceptPage([](SyscallConfigPage* page) {
                page->findChild<QLineEdit*>("syscallComment0")->setText("new");
                for (int i = 0; i < 2; ++i)
                    page->findChild<QCheckBox*>("syscallStoreRelToPrj0")->click();
                page->findChild<QCheckBox*>("syscallEvent02")->click();
            });
            EXPECT_EQ(module->programs[0].comment, "new");
            EXPECT_EQ(cfgApp.tree.values.size(), 0) << qPrintable(exe) << relative;
        }
    }
}

TEST_F(SyscallConsent, theDefaultsAllowNothing)
{
    openForeign();
    acceptPage([](SyscallConfigPage* page) { page->setDefaultConfig(); });
    EXPECT_EQ(module->programs[0].exe, QString());
    EXPECT_EQ(answer(command), ProjectConsent::answerNone);
}

// --- what happens under the question ---

TEST_F(SyscallConsent, theProjectIsClosedUnderTheQuestion)
{
    openForeign();
    ModalAnswers answers({[this](QDialog* dialog) {
        prj.close();
        yes(dialog);
    }});
    EXPECT_FALSE(run());
    EXPECT_EQ(answers.seen(), 1);
    EXPECT_EQ(keys(), QStringList());
    EXPECT_TRUE(cfgApp.tree.values.isEmpty()) << "nobody has answered for another project";
}

TEST_F(SyscallConsent, anotherProjectIsOpenedUnderTheQuestion)
{
    openForeign();
    const FakeTree tree = prj.tree;
    ModalAnswers answers({[&](QDialog* dialog) {
        prj.close();
        prj.tree = tree;
        prj.open(folder.filePath("q.nalvo"));
        yes(dialog);
    }});
    start(monitor(0));
    EXPECT_EQ(answers.seen(), 1);
    EXPECT_TRUE(cfgApp.tree.values.isEmpty());
    EXPECT_EQ(statusOf(monitor(0)), "Not running");
}

TEST_F(SyscallConsent, theCommandChangesUnderTheQuestion)
{
    openForeign();
    ModalAnswers answers({[this](QDialog* dialog) {
        module->programs[0].arg = "exit 1";
        module->configPagesClosed(true);
        yes(dialog);
    }});
    EXPECT_FALSE(run());
    EXPECT_TRUE(cfgApp.tree.values.isEmpty());
    EXPECT_EQ(statusOf(monitor(0)), "Not running");
}

TEST_F(SyscallConsent, theProgramIsDisabledUnderTheQuestion)
{
    openForeign();
    ModalAnswers answers({[this](QDialog* dialog) {
        module->programs[0].en = false;
        module->configPagesClosed(true);
        yes(dialog);
    }});
    EXPECT_FALSE(run());
    EXPECT_EQ(monitor(0), nullptr);
}

TEST_F(SyscallConsent, theProgramIsStartedUnderTheQuestion)
{
    prj.tree.set(key(0, "Arg"), QString("rest"));
    openForeign();
    ModalAnswers answers({[this](QDialog* dialog) {
        monitor(0)->run();
        yes(dialog);
    }});
    EXPECT_FALSE(run());
    EXPECT_EQ(keys(), QStringList("errExeAlreadyRunning"));
}
