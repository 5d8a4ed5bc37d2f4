// The run: its stages and its calls to the other modules, in their order.

#include "AsmFixture.h"

#include <gtest/gtest.h>

using namespace nsModAsmFe;

namespace {

const char* const program = "#SET EDITOR::TABINDENT, 4\n"
                            "#EQU x, 1\n"
                            "start: LOAD s0, x\n"
                            "  JUMP start\n";

const QStringList frontEndCalls = {
    "clear",
    "open Assembling...",
    "navi.clear",
    "msg infoSetProcDef",
    "open grpParsingFiles",
    "msg infoParsingFile",
    "close ok",
    "navi.show",
    "open chkSetDirectives",
    "editor.setTabIndent 4",
    "close ok",
    "open chkLabelDirectives",
    "close ok",
    "open chkOrgDirectives",
    "close ok",
    "open chkEquDirectives",
    "close ok",
};

const QStringList backEndCalls = {
    "open grpMapOpcodeToMem",
    "msg infoMMMappingRangePage",
    "close ok",
    "open refreshMemAddrMapInfo",
    "editor.setMemPageAddrMap",
    "close ok",
    "open chkInstructions",
    "close ok",
    "open grpRunBackend1",
    "be.stage1",
    "close ok",
    "open grpSetupIODevs",
    "close ok",
    "open grpRunBackend2",
    "be.stage2",
    "close ok",
    "open grpUsageCheck",
    "close ok",
    "open refreshTextCompleter",
    "editor.setTextCompletionList",
    "close ok",
    "open refreshInsertionMenu",
    "close ok",
    "open refreshIODevViewer",
    "close ok",
    "be.setAssembled 1",
    "close ok",
};

TEST(PipelineOrder, success)
{
    AsmFixture f;
    EXPECT_TRUE(f.run(program)) << f.msg.dump().toStdString();
    EXPECT_EQ(f.calls, frontEndCalls + backEndCalls);
    EXPECT_EQ(f.msg.surplusCloses, 0);
    EXPECT_TRUE(f.msg.openGroups.isEmpty());
    // The groups of the stages lie inside the group of the run.
    for (const FakeMsgHook::Entry& entry : f.msg.log) {
        if (entry.kind == FakeMsgHook::kindGroupOpen) {
            EXPECT_EQ(entry.depth, entry.text == "Assembling..." ? 0 : 1) << entry.text.toStdString();
        }
    }
    // While the back end works, the run counts as successful so far.
    EXPECT_TRUE(f.be.wasAssembled);
}

TEST(PipelineOrder, successWithFiles)
{
    AsmFixture f;
    f.open();
    f.asmFe.targets[kindHex].en = true;
    f.asmFe.targets[kindHex].outputFile = f.path("out.hex");
    EXPECT_TRUE(f.run(program, ModAsmFe::eEventButton1));
    const QStringList outputCalls = {
        "open grpWriteIODevToFile",
        "open Writing vhdl files...",
        "msg warnIODevNoFileToWrite",
        "close ok",
        "open Writing verilog files...",
        "msg warnIODevNoFileToWrite",
        "close ok",
        "open Writing hex files...",
        "msg infoIODevWriteFile",
        "close ok",
        "open Writing mem files...",
        "msg warnIODevNoFileToWrite",
        "close ok",
        "close ok",
        "open Executing external programs...",
        "syscall.run 0",
        "close ok",
    };
    EXPECT_EQ(f.calls, frontEndCalls + backEndCalls + outputCalls);
    EXPECT_EQ(f.read("out.hex").left(12), QByteArray("00100\n00101\n"));
    EXPECT_EQ(f.asmFe.writtenFiles(), QStringList(f.path("out.hex")));
    EXPECT_TRUE(f.asmFe.runSucceeded());
}

/// Where a run can fail.
struct Stage
{
    const char* group;  ///< the group that closes as a failure
    const char* source; ///< null: a knob
    const char* error;
};

const Stage stages[] = {
    {"grpParsingFiles", "#DEFINE\n LOAD s0, 1\n", "errSyntax"},
    {"chkSetDirectives", "#SET ASM::nonsense, 1\n LOAD s0, 1\n", "errSetUnsupportedParameter"},
    {"chkLabelDirectives", "s0: LOAD s0, 1\n", "errLblIsReg"},
    {"chkOrgDirectives", "#ORG NOWHERE, 1\n LOAD s0, 1\n", "errUnsupportedArgument"},
    {"chkEquDirectives", "#EQU x, x\n LOAD s0, 1\n", "errEquClosedLoop"},
    {"grpMapOpcodeToMem", "#ORG ADDR, 0x400\n LOAD s0, 1\n", "errMMAddrOutsideMem"},
    {"chkInstructions", " LOD s0, 1\n", "errOcUnsupported"},
    {"grpRunBackend1", nullptr, nullptr},
    {"grpSetupIODevs", "#SET IODEV::x::EN, TRUE\n LOAD s0, 1\n", "errSetMissingDirective"},
    {"grpRunBackend2", nullptr, nullptr},
};

class PipelineFailure : public ::testing::TestWithParam<Stage>
{
};

TEST_P(PipelineFailure, stopsTheRun)
{
    const Stage stage = GetParam();
    AsmFixture f;
    f.be.stage1 = qstrcmp(stage.group, "grpRunBackend1") != 0;
    f.be.stage2 = qstrcmp(stage.group, "grpRunBackend2") != 0;
    f.open();
    f.asmFe.targets[kindHex].en = true;
    f.asmFe.targets[kindHex].outputFile = f.path("out.hex");
    EXPECT_FALSE(f.run(stage.source != nullptr ? stage.source : " LOAD s0, 1\n", ModAsmFe::eEventButton1));
    EXPECT_FALSE(f.asmFe.runSucceeded());
    // Groups open and close in pairs: only this one and the outer one close as failures, and no group opens after it.
    QStringList failed;
    for (const FakeMsgHook::Entry& entry : f.msg.log) {
        if (entry.kind == FakeMsgHook::kindGroupClose && !entry.success)
            failed.append(entry.text);
    }
    ASSERT_EQ(failed.size(), 2) << f.msg.dump().toStdString();
    EXPECT_EQ(failed.last(), QString("Assembling..."));
    EXPECT_TRUE(f.msg.openGroups.isEmpty());
    EXPECT_EQ(f.callsStartingWith("open ").last(), QString("open ") + stage.group);
    EXPECT_EQ(f.calls.mid(f.calls.size() - 2), QStringList({"be.setAssembled 0", "close failed"}));
    EXPECT_EQ(f.calls.count("navi.show"), 1);
    if (stage.error != nullptr) {
        EXPECT_EQ(f.errors(), QStringList(stage.error));
    }
    // Nothing is written, nothing is executed.
    EXPECT_TRUE(f.callsStartingWith("syscall").isEmpty());
    EXPECT_TRUE(f.asmFe.writtenFiles().isEmpty());
    EXPECT_FALSE(QFile::exists(f.path("out.hex")));
    EXPECT_TRUE(f.actionEnabled(AsmFeActions::eActionAssemble));
    EXPECT_FALSE(f.actionEnabled(AsmFeActions::eActionButton1));
    EXPECT_FALSE(f.actionEnabled(AsmFeActions::eActionButton2));
}

TEST_P(PipelineFailure, stagesBeforeItRun)
{
    const Stage stage = GetParam();
    AsmFixture f;
    f.be.stage1 = qstrcmp(stage.group, "grpRunBackend1") != 0;
    f.be.stage2 = qstrcmp(stage.group, "grpRunBackend2") != 0;
    f.run(stage.source != nullptr ? stage.source : " LOAD s0, 1\n");
    const QStringList all = (frontEndCalls + backEndCalls).filter(QRegExp("^open "));
    const QStringList opened = f.callsStartingWith("open ");
    EXPECT_EQ(opened, all.mid(0, opened.size()));
    EXPECT_EQ(opened.contains("open refreshMemAddrMapInfo"), f.calls.contains("editor.setMemPageAddrMap"));
    EXPECT_FALSE(f.calls.contains("editor.setTextCompletionList"));
}

INSTANTIATE_TEST_SUITE_P(stages, PipelineFailure, ::testing::ValuesIn(stages),
                         [](const auto& row) { return std::string(row.param.group); });

TEST(PipelineOrder, failureWhileWriting)
{
    AsmFixture f;
    f.open();
    f.asmFe.targets[kindHex].en = true;
    f.asmFe.targets[kindHex].outputFile = f.path("missing/out.hex");
    f.asmFe.targets[kindMem].en = true;
    f.asmFe.targets[kindMem].outputFile = f.path("out.mem");
    f.run(program, ModAsmFe::eEventButton2);
    EXPECT_FALSE(f.asmFe.runSucceeded());
    // The program was assembled, and the back end was notified of that before.
    EXPECT_TRUE(f.calls.contains("be.setAssembled 1"));
    EXPECT_FALSE(f.calls.contains("be.setAssembled 0"));
    EXPECT_EQ(f.msg.errors(), QStringList("Can not open output file: " + f.path("missing/out.hex")));
    // The other kinds are written all the same, but no program runs.
    EXPECT_TRUE(QFile::exists(f.path("out.mem")));
    EXPECT_TRUE(f.callsStartingWith("syscall").isEmpty());
    EXPECT_EQ(f.calls.last(), QString("close failed"));
    EXPECT_TRUE(f.msg.openGroups.isEmpty());
}

TEST(PipelineOrder, withoutABackEnd)
{
    AsmFixture f(AsmFixture::partEditor);
    EXPECT_FALSE(f.run(program, ModAsmFe::eEventSave));
    QStringList expected = frontEndCalls;
    expected.removeAll("msg infoSetProcDef");
    EXPECT_EQ(f.calls, expected + QStringList({"msg errNoAsmBe", "close failed"}));
    EXPECT_EQ(f.errors(), QStringList("errNoAsmBe"));
    // The errors in the sources are reported in addition.
    f.run("#EQU x, x\n");
    EXPECT_EQ(f.errors(), QStringList({"errEquClosedLoop", "errNoAsmBe"}));
}

TEST(PipelineOrder, withoutAProject)
{
    AsmFixture f;
    f.setSources({program});
    f.asmFe.assemble(ModAsmFe::eEventSave);
    EXPECT_TRUE(f.calls.isEmpty());
    EXPECT_FALSE(f.asmFe.isAssembled());
    f.asmFe.srcFileContentChanged();
    f.asmFe.srcFileListChanged();
    EXPECT_TRUE(f.calls.isEmpty());
}

TEST(PipelineOrder, withoutSources)
{
    AsmFixture f;
    f.open();
    f.asmFe.assemble(ModAsmFe::eEventNone);
    EXPECT_EQ(f.errors(), QStringList("errOcExpect"));
    EXPECT_EQ(f.callsStartingWith("open ").last(), QString("open chkInstructions"));
    EXPECT_EQ(f.msg.errors(), QStringList("No Instructions found!"));
}

TEST(PipelineOrder, warningsDoNotFail)
{
    AsmFixture f;
    EXPECT_TRUE(f.run("#EQU never, 1\n LOAD s0, 1\n"));
    EXPECT_EQ(f.warnings(), QStringList("warnEquUnused"));
    EXPECT_TRUE(f.actionEnabled(AsmFeActions::eActionButton1));
}

TEST(PipelineOrder, onlyNamesThatAreRightGetValues)
{
    AsmFixture f;
    EXPECT_FALSE(f.run("#EQU add, nowhere\n#EQU x, nowhere\n LOAD s0, 1\n"));
    EXPECT_EQ(f.errors(), QStringList("errLblIsOpcode"));
}

TEST(PipelineOrder, filesInProjectOrder)
{
    AsmFixture f;
    f.open();
    f.setSources({"#DEFINE one\n LOAD s0, 1\n", "#IFDEF one\n LOAD s0, 2\n#ENDIF\n", " LOAD s0, 3\n"});
    f.asmFe.assemble(ModAsmFe::eEventNone);
    EXPECT_TRUE(f.asmFe.isAssembled());
    QStringList parsing;
    for (const QString& text : f.msg.infos()) {
        if (text.startsWith("Parsing"))
            parsing.append(text);
    }
    EXPECT_EQ(parsing, QStringList({"Parsing file 1: " + f.path("src0.psm"), "Parsing file 2: " + f.path("src1.psm"),
                                    "Parsing file 3: " + f.path("src2.psm")}));
    QList<int> files;
    QList<int> lines;
    for (const Opcode* opcode : *f.asmFe.opcodeList()) {
        files.append(opcode->srcRef.fileNo);
        lines.append(opcode->srcRef.absLineNo);
    }
    EXPECT_EQ(files, QList<int>({0, 1, 2}));
    EXPECT_EQ(lines, QList<int>({1, 3, 5}));
    // The editor gets the address of each line.
    ASSERT_NE(f.editor.map, nullptr);
    EXPECT_EQ(f.editor.map->map(f.path("src1.psm"))->lineNo, 1);
    EXPECT_EQ(f.editor.map->map(f.path("src1.psm"))->memPageAddr, 1);
}

TEST(PipelineOrder, aFileThatFailsIsTheLastOneRead)
{
    AsmFixture f;
    f.open();
    f.setSources({"#DEFINE\n#DEFINE\n", "#DEFINE\n"});
    f.asmFe.assemble(ModAsmFe::eEventNone);
    EXPECT_EQ(f.errors(), QStringList({"errSyntax", "errSyntax"}));
}

} // namespace
