// Scripts from files and resources, and what is reported of them.

#include "ScriptFixture.h"

#include <QDir>

TEST_F(ScriptTest, aFileThatDoesNotExistGivesOneErrorAndNoGroup)
{
    const QString path = folder.filePath("none.js");
    script->executeScriptFile(path);
    EXPECT_EQ(msg.log.size(), 1);
    EXPECT_EQ(msg.errors(), QStringList("Can not open script file: " + path));
    EXPECT_TRUE(msg.groups().isEmpty());
}

TEST_F(ScriptTest, aFolderIsNoScript)
{
    script->executeScriptFile(folder.path());
    EXPECT_EQ(msg.errors(), QStringList("Can not open script file: " + folder.path()));
    EXPECT_TRUE(msg.groups().isEmpty());
}

TEST_F(ScriptTest, aScriptRunsInAGroupThatIsClosedAsDone)
{
    const QString path = write("test.note('ran');");
    script->executeScriptFile(path);
    EXPECT_EQ(target.notes, QStringList("ran"));
    EXPECT_EQ(msg.groups(), QStringList("Execute script " + path));
    EXPECT_EQ(lastGroupResult(), "good");
    EXPECT_TRUE(msg.messages().isEmpty()) << qPrintable(msg.dump());
    EXPECT_TRUE(msg.openGroups.isEmpty());
}

TEST_F(ScriptTest, aScriptThatThrowsShowsLineAndTextAndItsGroupFails)
{
    const QString path = write("test.note('ran');\n\nfunction f() { throw new Error('no use'); }\nf();\n");
    script->executeScriptFile(path);
    EXPECT_EQ(msg.errors(), QStringList("Uncaught exception at line 3 - Error: no use"));
    EXPECT_EQ(lastGroupResult(), "failed");
    const FakeMsgHook::Entry error = msg.messages().value(0);
    EXPECT_EQ(error.group, "Execute script " + path);
    EXPECT_EQ(error.srcFile.path(), path);
    EXPECT_EQ(error.line(), 2);
    EXPECT_EQ(error.srcFile.displayName(), "s.js#3");
}

TEST_F(ScriptTest, aThrownTextKeepsItsLine)
{
    EXPECT_FALSE(run("1;\n2;\nthrow 'a word';"));
    EXPECT_EQ(msg.errors(), QStringList("Uncaught exception at line 3 - a word"));
}

TEST_F(ScriptTest, anUnknownGlobalIsAScriptError)
{
    EXPECT_FALSE(run("test.note('a');\nnobody.help();"));
    EXPECT_EQ(msg.errors(), QStringList("Uncaught exception at line 2 - ReferenceError: Can't find variable: nobody"));
    EXPECT_TRUE(run("test.note('b');"));
    EXPECT_EQ(target.notes, QStringList({"a", "b"}));
}

TEST_F(ScriptTest, aSyntaxErrorIsReportedWithItsLine)
{
    EXPECT_FALSE(run("1;\nvar x = ;\n"));
    EXPECT_EQ(msg.errors(), QStringList("Uncaught exception at line 2 - SyntaxError: Parse error"));
}

TEST_F(ScriptTest, aFileNameWithAColonInFrontReadsFromTheResources)
{
    script->executeScriptFile(":/test/inner.js");
    EXPECT_EQ(target.notes, QStringList("from the resources"));
    EXPECT_EQ(msg.groups(), QStringList("Execute internal script... "));
    EXPECT_EQ(lastGroupResult(), "good");
    script->executeScriptFile(":/test/none.js");
    EXPECT_EQ(msg.errors(), QStringList("Can not open script file: :/test/none.js"));
}

TEST_F(ScriptTest, aScriptEndsAtItsFirstZeroByte)
{
    script->executeScriptFile(write(QByteArray("test.note('a');\0 this is no script", 34)));
    EXPECT_EQ(target.notes, QStringList("a"));
    EXPECT_EQ(lastGroupResult(), "good") << qPrintable(msg.dump());
}

TEST_F(ScriptTest, textsAreReadAsUtf8)
{
    script->executeScriptFile(write("\xEF\xBB\xBFtest.note('gr\xC3\xBC\xC3\x9F');"));
    EXPECT_EQ(target.notes, QStringList(QString::fromUtf8("gr\xC3\xBC\xC3\x9F"))) << qPrintable(msg.dump());
}

TEST_F(ScriptTest, aScriptKnowsItsFolder)
{
    script->executeScriptFile(write("test.note(scriptDir);"));
    EXPECT_TRUE(run("test.note('<' + scriptDir + '>');"));
    EXPECT_EQ(target.notes, QStringList({folder.path(), "<>"}));
}

TEST_F(ScriptTest, aGroupThatAScriptLeavesOpenIsClosedWithIt)
{
    target.during = [this] { msg.openMessageGroup("of the script"); };
    script->executeScriptFile(write("test.meanwhile(); test.meanwhile(); throw 1;"));
    EXPECT_TRUE(msg.openGroups.isEmpty()) << qPrintable(msg.dump());
    EXPECT_EQ(msg.surplusCloses, 0);
    EXPECT_EQ(lastGroupResult(), "failed");
}

TEST_F(ScriptTest, anEmptyScriptDoesNothing)
{
    script->executeScriptFile(write(""));
    EXPECT_EQ(lastGroupResult(), "good");
    EXPECT_TRUE(run(QString()));
}
