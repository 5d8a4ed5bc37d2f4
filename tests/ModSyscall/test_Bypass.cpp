// Ways around the question that a project or its surroundings could take.

#include "SyscallFixture.h"

#include "ModalAnswers.h"
#include "Unattended.h"

#include <QDialogButtonBox>

using namespace nsModSyscall;

namespace {

class SyscallBypass : public SyscallFixture
{
protected:
    ~SyscallBypass() override
    {
        qputenv("PATH", m_path);
        Unattended::setOn(false);
    }

    /// A script that leaves a file behind when it runs.
    void writeScript(const QString& path) const
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("#!/bin/sh\ntouch ran\n");
        ASSERT_TRUE(file.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    }
    static void yes(QDialog* dialog)
    {
        QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Yes), Qt::LeftButton);
    }
    static QString actOf(QDialog* dialog) { return dialog->findChild<QPlainTextEdit*>("consentAct")->toPlainText(); }

private:
    const QByteArray m_path = qgetenv("PATH");
};

} // namespace

// Also with a search path with "." or an empty entry, which means the folder in which the child stands. What of the
// system looks for a name there depends on its release.
TEST_F(SyscallBypass, aNameIsNotFoundInTheFolderOfTheProject)
{
    writeScript(folder.filePath("evil"));
    setProgram(0, "evil", "");
    for (const QByteArray& path : {QByteArray("/usr/bin:.:/bin"), QByteArray(":/usr/bin:/bin"), QByteArray("")}) {
        qputenv("PATH", path);
        prj.open(prjFile());
        ModalAnswers answers({});
        EXPECT_FALSE(run());
        EXPECT_EQ(keys(), QStringList("errCanNotStart")) << path.constData();
        EXPECT_EQ(statusOf(monitor(0)), "FailedToStart");
        QTest::mouseClick(buttonOf(monitor(0), "syscallStart"), Qt::LeftButton);
        EXPECT_TRUE(waitForState(0, 1));
        EXPECT_EQ(answers.seen(), 0);
        EXPECT_FALSE(QFile::exists(folder.filePath("ran"))) << path.constData();
    }
}

// The same project file through a link in another folder: "sh tool" would be another script there.
TEST_F(SyscallBypass, aLinkFromAnotherFolderIsAskedFor)
{
    setProgram(0, "/bin/sh", "tool");
    const FakeTree tree = prj.tree;
    open();
    writeScript(folder.filePath("tool"));
    EXPECT_TRUE(run());
    EXPECT_EQ(keys().last(), "infoExitWithSuccess");

    QTemporaryDir other;
    writeScript(other.filePath("tool"));
    ASSERT_TRUE(QFile::link(prjFile(), other.filePath("p.nalvo")));
    prj.close();
    prj.tree = tree;
    prj.open(other.filePath("p.nalvo"));
    ModalAnswers answers({});
    EXPECT_TRUE(run());
    EXPECT_EQ(answers.seen(), 1);
    EXPECT_FALSE(QFile::exists(other.filePath("ran")));
}

TEST_F(SyscallBypass, nothingHidesInTheQuestion)
{
    const QString arguments = QString("a\nb") + QChar(0x2028) + 'c' + QChar(0x2029) + 'd' + QChar(0xfdd0) + 'e' +
                              QChar(0x202e) + 'f' + QString::fromUcs4(U"\U000e0041", 1);
    setProgram(0, NALVO_HELPER, arguments);
    prj.open(folder.filePath(QString("x\"\n\nAll is well") + QChar(0x2029) + ".nalvo"));
    QString act;
    QStringList texts;
    ModalAnswers answers({[&](QDialog* dialog) {
        act = actOf(dialog);
        for (const QLabel* label : dialog->findChildren<QLabel*>())
            texts.append(label->text());
    }});
    EXPECT_TRUE(run());
    EXPECT_EQ(act, QString(NALVO_HELPER) + "\n    \"a\\u000ab\\u2028c\\u2029d\\ufdd0e\\u202ef\\ue0041\"");
    EXPECT_FALSE(texts.filter("The project \"x\"\\u000a\\u000aAll is well\\u2029.nalvo\" wants").isEmpty())
        << qPrintable(texts.join('|'));
}

TEST_F(SyscallBypass, whereNobodyCanBeAskedTheAnswerIsNoForThisTime)
{
    Unattended::setOn(true);
    setHelper(0, "exit 0");
    prj.open(prjFile());
    for (int i = 0; i < 2; ++i) {
        testing::internal::CaptureStderr();
        EXPECT_TRUE(run()) << "as abort is off";
        const std::string err = testing::internal::GetCapturedStderr();
        EXPECT_NE(err.find(NALVO_HELPER " \"exit\" \"0\"\n"), std::string::npos) << err;
        ASSERT_EQ(msg.messages().size(), 1);
        EXPECT_TRUE(msg.messages().first().text.endsWith(": " NALVO_HELPER " \"exit\" \"0\""))
            << qPrintable(msg.messages().first().text);
        EXPECT_EQ(msg.messages().first().type, ModMsgHookIf::eMsgError);
        EXPECT_EQ(keys(), QStringList("errNobodyToAsk"));
        EXPECT_EQ(statusOf(monitor(0)), "Not running");
        EXPECT_TRUE(cfgApp.tree.values.isEmpty()) << "nobody has answered";
    }
    module->programs[0].abortIfNoSuccess = true;
    EXPECT_FALSE(run());
    // With a user again, the user is asked.
    Unattended::setOn(false);
    ModalAnswers answers({yes});
    EXPECT_TRUE(run());
    EXPECT_EQ(answers.seen(), 1);
    // And what was answered then holds for both.
    Unattended::setOn(true);
    EXPECT_TRUE(run());
    EXPECT_EQ(keys().last(), "infoExitWithSuccess");
}

// A script whose tool refuses to end, and which does not wait for it when it is ended itself.
TEST_F(SyscallBypass, aStubbornChildEndsWithTheProject)
{
    setHelper(0, "stubbornChild");
    set(0, "BlockingModeEn", 0);
    open();
    EXPECT_TRUE(run());
    ASSERT_TRUE(waitForOutput(0, "child"));
    const int child = numberInOutput(monitor(0), "child");
    prj.close();
    EXPECT_TRUE(QTest::qWaitFor([child] { return isGone(child); }, syscallTimeout));
}
