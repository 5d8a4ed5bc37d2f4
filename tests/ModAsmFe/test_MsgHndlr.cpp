// Words, help links and source links of messages.

#include "FakeMsgHook.h"
#include "QtPrinters.h"

#include "AsmFeFileHndlr.h"
#include "AsmFeMsgHndlr.h"

#include <gtest/gtest.h>

#include <QRegExp>
#include <QSet>

using namespace nsModAsmFe;

namespace {

class MsgHndlrTest : public ::testing::Test
{
protected:
    MsgHndlrTest()
    {
        msg.attach(&hndlr);
        files.setPrjDir("/home/me/prj/case.nalvo");
        files.setFiles({"/home/me/prj/main.psm", "/home/me/prj/lib/50% of it #1.psm", "/opt/shared/io.psm"});
    }

    FakeMsgHook::Entry last() const { return msg.messages().isEmpty() ? FakeMsgHook::Entry() : msg.messages().last(); }

    AsmFeFileHndlr files;
    AsmFeMsgHndlr hndlr{&files};
    FakeMsgHook msg;
};

TEST_F(MsgHndlrTest, positionBecomesALink)
{
    const SrcReference srcRef = {0, 41, 99};
    hndlr.signMsg(errUnsupportedArgument, &srcRef, "s99");
    EXPECT_EQ(last().text, QString("Unsupported argument: s99"));
    EXPECT_EQ(last().type, int(ModMsgHookIf::eMsgError));
    EXPECT_EQ(last().srcFile.scheme(), QString("file"));
    EXPECT_EQ(last().srcFile.path(), QString("/home/me/prj/main.psm"));
    EXPECT_EQ(last().srcFile.fragment(), QString("41"));
    EXPECT_EQ(last().srcFile.displayName(), QString("main.psm#42"));
}

TEST_F(MsgHndlrTest, oddPathsStayWhatTheyAre)
{
    SrcReference srcRef = {1, 0, 0};
    hndlr.signMsg(errSyntax, &srcRef);
    EXPECT_EQ(last().srcFile.path(QUrl::FullyDecoded), QString("/home/me/prj/lib/50% of it #1.psm"));
    EXPECT_EQ(last().srcFile.toLocalFile(), QString("/home/me/prj/lib/50% of it #1.psm"));
    EXPECT_EQ(last().srcFile.displayName(), QString("lib/50% of it #1.psm#1"));
    srcRef.fileNo = 2;
    hndlr.signMsg(errSyntax, &srcRef);
    EXPECT_EQ(last().srcFile.displayName(), QString("../../../opt/shared/io.psm#1"));
}

TEST_F(MsgHndlrTest, fileNumbersOutOfRange)
{
    for (const int fileNo : {-1, 3, 2147483647}) {
        const SrcReference srcRef = {fileNo, 4, 4};
        hndlr.signMsg(errSyntax, &srcRef);
        EXPECT_EQ(last().text, QString("Syntax error."));
        EXPECT_TRUE(last().srcFile.path().isEmpty());
        EXPECT_EQ(last().srcFile.displayName(), QString("#5"));
    }
}

TEST_F(MsgHndlrTest, noPositionNoLink)
{
    hndlr.signMsg(errOcExpect);
    EXPECT_TRUE(last().srcFile.isEmpty());
    EXPECT_TRUE(last().srcFile.displayName().isEmpty());
    hndlr.signMsg(errSyntax, static_cast<const SrcReference*>(nullptr));
    EXPECT_TRUE(last().srcFile.isEmpty());
}

TEST_F(MsgHndlrTest, keyIsTheHelpFragment)
{
    hndlr.signMsg(warnEquUnused, "x");
    EXPECT_EQ(last().hlpDoc, QUrl("pageid://asmFeMessages#warnEquUnused"));
    EXPECT_EQ(last().type, int(ModMsgHookIf::eMsgWarning));
    hndlr.signMsg(infoSetProcDef, "PROC::X");
    EXPECT_EQ(last().hlpDoc.fragment(), QString("infoSetProcDef"));
    EXPECT_EQ(last().type, int(ModMsgHookIf::eMsgInfo));
    hndlr.signMsgGroup(grpRunBackend1, "Fake");
    EXPECT_EQ(msg.log.last().text, QString("Run backend stage 1 for Fake ..."));
    EXPECT_EQ(msg.log.last().hlpDoc, QUrl("pageid://asmFeMessages#grpRunBackend1"));
}

TEST_F(MsgHndlrTest, percentSignsInArguments)
{
    hndlr.signMsg(infoMMMappingRangePage, "%2", "%3 %1", "100%");
    EXPECT_EQ(last().text, QString("Mapping instructions to PAGE%2 range from address %3 %1 up to 100%."));
    hndlr.signMsg(errUnsupportedArgument, "%1%99%%L1");
    EXPECT_EQ(last().text, QString("Unsupported argument: %1%99%%L1"));
    hndlr.signMsgGroup(grpRunBackend2, "%1 50%");
    EXPECT_EQ(msg.log.last().text, QString("Run backend stage 2 for %1 50% ..."));
}

TEST_F(MsgHndlrTest, missingAndSurplusArguments)
{
    hndlr.signMsg(errIODevAddrExceedsDevSize, "7");
    EXPECT_EQ(last().text, QString("Address 7 exceeds IODev size of ."));
    hndlr.signMsg(errSyntax, "a", "b", "c");
    EXPECT_EQ(last().text, QString("Syntax error."));
}

TEST_F(MsgHndlrTest, unknownValues)
{
    for (const int value : {-1, int(eMsgTypeCount), 9999}) {
        msg.reset();
        hndlr.signMsg(eMsgType_t(value), "x");
        EXPECT_EQ(msg.errors(), QStringList("Internal error: Unsupported simulator message.")) << value;
    }
    for (const int value : {-1, int(eMsgGrpCount), 9999}) {
        msg.reset();
        hndlr.signMsgGroup(eMsgGrp_t(value));
        EXPECT_EQ(msg.errors(), QStringList("Internal error: Unsupported simulator message.")) << value;
        EXPECT_TRUE(msg.groups().isEmpty());
    }
    hndlr.signInternalError("x 100%1");
    EXPECT_EQ(last().text, QString("Internal error: x 100%1"));
    EXPECT_TRUE(last().srcFile.isEmpty());
}

TEST_F(MsgHndlrTest, withoutAMessageService)
{
    AsmFeMsgHndlr silent(&files);
    silent.signMsg(errSyntax);
    silent.signMsg(eMsgType_t(-1));
    silent.signMsgGroup(grpParsingFiles);
    silent.signInternalError("x");
    AsmFeMsgHndlr::showMsg(nullptr, errSyntax, nsModMsg::MsgUrl());
}

TEST_F(MsgHndlrTest, internalErrorsHaveAHelpLinkToo)
{
    hndlr.signInternalError("x");
    EXPECT_EQ(last().hlpDoc, QUrl("pageid://asmFeMessages#errInternal"));
    hndlr.signMsg(eMsgType_t(-1));
    EXPECT_EQ(last().key(), QString("errInternal"));
}

TEST_F(MsgHndlrTest, aHookOfAnother)
{
    AsmFeMsgHndlr::showMsg(&msg, warnTargetStuffing, nsModMsg::MsgUrl());
    EXPECT_EQ(last().type, int(ModMsgHookIf::eMsgWarning));
    EXPECT_EQ(last().hlpDoc, QUrl("pageid://asmFeMessages#warnTargetStuffing"));
    AsmFeMsgHndlr::showMsg(&msg, errTargetWrite, nsModMsg::MsgUrl(), "%2", "full");
    EXPECT_EQ(last().text, QString("Can not write output file: %2 (full)"));
}

TEST(MsgCatalogue, complete)
{
    QSet<QString> keys;
    for (int type = 0; type < eMsgTypeCount; ++type) {
        const sMsgText_t* row = msgText(type);
        ASSERT_NE(row, nullptr) << type;
        const QString key = QString::fromLatin1(row->key);
        const QString text = QString::fromLatin1(row->text);
        EXPECT_FALSE(keys.contains(key)) << row->key;
        keys.insert(key);
        EXPECT_TRUE(QRegExp("(info|warn|err)[A-Z]\\w+").exactMatch(key)) << row->key;
        EXPECT_FALSE(text.trimmed().isEmpty()) << row->key;
        // Places are counted from 1 without a gap.
        for (int place = 2; place <= 3; ++place) {
            if (text.contains('%' + QString::number(place))) {
                EXPECT_TRUE(text.contains('%' + QString::number(place - 1))) << row->key;
            }
        }
    }
    for (int group = 0; group < eMsgGrpCount; ++group) {
        const sMsgText_t* row = msgGrpText(group);
        ASSERT_NE(row, nullptr) << group;
        EXPECT_FALSE(keys.contains(row->key)) << row->key;
        keys.insert(row->key);
        EXPECT_TRUE(QRegExp("(grp|chk|refresh)[A-Z]\\w+").exactMatch(row->key)) << row->key;
        EXPECT_TRUE(QString::fromLatin1(row->text).endsWith("...")) << row->key;
    }
    EXPECT_EQ(keys.size(), 121 + 18);
    EXPECT_EQ(msgText(-1), nullptr);
    EXPECT_EQ(msgText(eMsgTypeCount), nullptr);
    EXPECT_EQ(msgGrpText(-1), nullptr);
    EXPECT_EQ(msgGrpText(eMsgGrpCount), nullptr);
}

TEST(MsgCatalogue, textsWithOddSpellings)
{
    EXPECT_STREQ(msgText(errSetOverwriteGuiSettings)->text, "Overwriting gui settings is not allowd by configuration.");
    EXPECT_STREQ(msgText(errUnallowedCharsInName)->text, "Found unalowed characters in name.");
    EXPECT_STREQ(msgText(errStrExpectRange)->text, "Can not select character from string! spezify a range.");
    EXPECT_STREQ(msgText(errNoAsmBe)->text, "No assembler backend registerd. Please select a processor.");
    EXPECT_STREQ(msgText(errIODevMissingTargetFile)->text, "Missing %1 target file for IO device  %2.");
    EXPECT_STREQ(msgText(errIODevRangeStopAddrOutsideOfInstMem)->text,
                 "Instruction memory address range stop value %1 is outside of the instruction memory range0 to %2.");
    EXPECT_STREQ(msgText(errMMapIODevIvldDevCnt)->text,
                 "IO device count of \"INSTMEM::ioDevices\" does not match page count!");
    EXPECT_STREQ(msgGrpText(grpSetupIODevs)->text, "Setup IO devices files...");
}

TEST(FileHndlr, pathsAndNumbers)
{
    AsmFeFileHndlr files;
    EXPECT_EQ(files.fileCount(), 0);
    EXPECT_TRUE(files.file(0).isEmpty());
    files.setFiles({"/p/a.psm", "/p/sub/b.psm"});
    // Without a project a path stays as it is.
    EXPECT_EQ(files.relSrcFilePath(1), QString("/p/sub/b.psm"));
    files.setPrjDir("/p/x.nalvo");
    EXPECT_EQ(files.relSrcFilePath(1), QString("sub/b.psm"));
    EXPECT_EQ(files.convToRelPath("/q/c.psm"), QString("../q/c.psm"));
    EXPECT_EQ(files.convToRelPath("sub/b.psm"), QString("sub/b.psm"));
    EXPECT_EQ(files.absSrcFilePath(0), QString("/p/a.psm"));
    EXPECT_EQ(files.file(1), QString("/p/sub/b.psm"));
    EXPECT_EQ(files.fileNo("/p/sub/b.psm"), 1);
    EXPECT_EQ(files.fileNo("sub/b.psm"), -1);
    EXPECT_EQ(files.fileNo("/p/A.psm"), -1);
    for (const int fileNo : {2, 99, -1}) {
        EXPECT_TRUE(files.file(fileNo).isEmpty());
        EXPECT_TRUE(files.absSrcFilePath(fileNo).isEmpty());
        EXPECT_TRUE(files.relSrcFilePath(fileNo).isEmpty());
    }
    files.clear();
    EXPECT_EQ(files.fileCount(), 0);
    EXPECT_EQ(files.fileNo("/p/a.psm"), -1);
}

} // namespace
