// Settings, command and messages: what the window and the batch assembler share.

#include "FakeMsgHook.h"
#include "FakePrjHook.h"
#include "QtPrinters.h"
#include "SyscallCommand.h"
#include "SyscallConfig.h"
#include "SyscallMsgHndlr.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QTemporaryDir>

using namespace nsModSyscall;

TEST(SyscallConfig, hasTheDefaults)
{
    const SyscallConfig config;
    for (int i = 0; i < programCount; ++i) {
        const SyscallRecord& program = config.programs[i];
        EXPECT_EQ(program.en, i == 0);
        EXPECT_FALSE(program.execEventBut1 || program.execEventBut2 || program.execEventSave);
        EXPECT_TRUE(program.blockingModeEn);
        EXPECT_FALSE(program.abortIfNoSuccess);
        EXPECT_TRUE(program.storeRelToPrj);
        EXPECT_EQ(program.retValOfSuccess, 0);
        EXPECT_TRUE(program.exe.isEmpty() && program.arg.isEmpty() && program.comment.isEmpty());
    }
}

TEST(SyscallConfig, isWrittenAndReadUnderItsKeys)
{
    FakePrjHook prj;
    prj.path = "/prj/dir/p.nalvo";
    SyscallConfig config;
    for (int i = 0; i < programCount; ++i) {
        SyscallRecord& program = config.programs[i];
        program.execEventBut1 = i == 0;
        program.execEventBut2 = i == 1;
        program.execEventSave = i == 2;
        program.en = i != 0;
        program.blockingModeEn = i == 1;
        program.abortIfNoSuccess = i == 2;
        program.storeRelToPrj = i != 2;
        program.retValOfSuccess = -5 * i;
        program.exe = QString("/prj/tools/t%1").arg(i);
        program.arg = QString(" a%1  b ").arg(i);
        program.comment = QString("c%1").arg(i);
    }
    config.wrSyscallConfig(&prj);
    EXPECT_EQ(prj.tree.values.size(), 33);
    const QString key = "Syscall/syscall%1%2";
    EXPECT_EQ(prj.tree.get<int>(key.arg(0).arg("ExecEventBut1"), 9), 1);
    EXPECT_EQ(prj.tree.get<int>(key.arg(1).arg("ExecEventBut2"), 9), 1);
    EXPECT_EQ(prj.tree.get<int>(key.arg(2).arg("ExecEventSave"), 9), 1);
    EXPECT_EQ(prj.tree.get<int>(key.arg(0).arg("En"), 9), 0);
    EXPECT_EQ(prj.tree.get<int>(key.arg(1).arg("BlockingModeEn"), 9), 1);
    EXPECT_EQ(prj.tree.get<int>(key.arg(2).arg("AbortIfNoSuccess"), 9), 1);
    EXPECT_EQ(prj.tree.get<int>(key.arg(2).arg("StoreRelToPrj"), 9), 0);
    EXPECT_EQ(prj.tree.get<int>(key.arg(2).arg("RetValOfSuccess"), 9), -10);
    EXPECT_EQ(prj.tree.get<QString>(key.arg(1).arg("Exe"), {}), "../tools/t1");
    EXPECT_EQ(prj.tree.get<QString>(key.arg(2).arg("Exe"), {}), "/prj/tools/t2");
    EXPECT_EQ(prj.tree.get<QString>(key.arg(1).arg("Arg"), {}), " a1  b ");
    EXPECT_EQ(prj.tree.get<QString>(key.arg(1).arg("Comment"), {}), "c1");
    SyscallConfig read;
    read.rdSyscallConfig(&prj);
    EXPECT_EQ(QFileInfo(read.programs[1].exe), QFileInfo("/prj/tools/t1"));
    EXPECT_EQ(read.programs[2].exe, "/prj/tools/t2");
    EXPECT_EQ(read.programs[2].retValOfSuccess, -10);
    EXPECT_TRUE(read.programs[2].execEventSave && !read.programs[2].storeRelToPrj && read.programs[2].en);
}

TEST(SyscallConfig, anEmptyPathStaysEmpty)
{
    FakePrjHook prj;
    prj.path = "/prj/dir/p.nalvo";
    SyscallConfig().wrSyscallConfig(&prj);
    SyscallConfig read;
    read.rdSyscallConfig(&prj);
    EXPECT_EQ(read.programs[0].exe, QString());
}

TEST(SyscallCommand, splitsAtEachBlank)
{
    EXPECT_EQ(SyscallCommand::splitArguments(""), QStringList(""));
    EXPECT_EQ(SyscallCommand::splitArguments("a b"), QStringList({"a", "b"}));
    EXPECT_EQ(SyscallCommand::splitArguments(" a  b "), QStringList({"", "a", "", "b", ""}));
    EXPECT_EQ(SyscallCommand::splitArguments("\"a b\"\tc"), QStringList({"\"a", "b\"\tc"}));
}

TEST(SyscallCommand, findsTheProgram)
{
    const QDir dir("/prj/dir");
    SyscallRecord record;
    EXPECT_EQ(SyscallCommand::of(record, dir).program, QString());
    record.exe = "sh";
    EXPECT_EQ(SyscallCommand::of(record, dir).program, "/prj/dir/sh") << "relative to the project";
    record.storeRelToPrj = false;
    const QString found = SyscallCommand::of(record, dir).program;
    EXPECT_TRUE(QDir::isAbsolutePath(found) && found.endsWith("/sh")) << qPrintable(found);
    record.exe = "no-such-program-anywhere";
    EXPECT_EQ(SyscallCommand::of(record, dir).program, "no-such-program-anywhere");
    record.exe = "../x/./run.sh";
    record.arg = "1 2";
    const SyscallCommand command = SyscallCommand::of(record, dir);
    EXPECT_EQ(command.texts(), QStringList({"/prj/x/run.sh", "1", "2"}));
    EXPECT_EQ(command.folder, "/prj/dir");
}

TEST(SyscallMessages, haveKeyTextAndGrade)
{
    FakeMsgHook msg;
    SyscallMsgHndlr messages;
    messages.signMsg(SyscallMsgHndlr::infoWaiting); // nobody listens
    msg.attach(&messages);
    const struct
    {
        int value;
        const char* key;
        const char* text;
        int grade;
    } expected[] = {{0, "infoNothingTodo", "Nothing todo for event.", 0},
                    {1, "infoWaiting", "Waiting for program...", 0},
                    {2, "infoExitWithSuccess", "Program exited with success.", 0},
                    {3, "errExeAlreadyRunning", "Program is already running", 2},
                    {4, "errCanNotStart", "Can not start program.", 2},
                    {5, "errExitWithoutSuccess", "Program exited without success.", 2}};
    for (const auto& message : expected)
        messages.signMsg(static_cast<SyscallMsgHndlr::eMsgType_t>(message.value));
    const QList<FakeMsgHook::Entry> shown = msg.messages();
    ASSERT_EQ(shown.size(), 6);
    for (int i = 0; i < shown.size(); ++i) {
        EXPECT_EQ(shown.at(i).text, expected[i].text);
        EXPECT_EQ(shown.at(i).type, expected[i].grade);
        EXPECT_EQ(shown.at(i).hlpDoc, QUrl(QString("pageid://syscallMessages#") + expected[i].key));
    }
}

TEST(SyscallMessages, groupsAndUnknownValues)
{
    FakeMsgHook msg;
    SyscallMsgHndlr messages;
    msg.attach(&messages);
    messages.signMsgGroup(SyscallMsgHndlr::grpSyscall, "2", "tool %1 %2");
    messages.signMsg(static_cast<SyscallMsgHndlr::eMsgType_t>(99));
    messages.signMsg(static_cast<SyscallMsgHndlr::eMsgType_t>(-1));
    messages.signMsgGroup(static_cast<SyscallMsgHndlr::eMsgGrp_t>(7), "", "");
    messages.signMsg(SyscallMsgHndlr::warnTerminated, "%1");
    messages.closeGroup(true);
    EXPECT_EQ(msg.log.first().text, "Calling external program 2: tool %1 %2");
    EXPECT_EQ(msg.log.first().hlpDoc, QUrl("pageid://syscallMessages#grpSyscall"));
    const QList<FakeMsgHook::Entry> shown = msg.messages();
    ASSERT_EQ(shown.size(), 4);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(shown.at(i).text, "Internal error: Unsupported simulator message.");
        EXPECT_EQ(shown.at(i).type, 2);
    }
    EXPECT_EQ(shown.at(3).type, 1);
    EXPECT_EQ(shown.at(3).text, "External program %1 was still running: it has been terminated.");
}
