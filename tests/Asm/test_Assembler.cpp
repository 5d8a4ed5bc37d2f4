#include "Assembler.h"

#include "AsmBackend.h"
#include "AsmFeFileHndlr.h"
#include "AsmFeMsgHndlr.h"
#include "ModMsgHookIf.h"
#include "Opcode.h"

#include <QFile>
#include <QSet>
#include <QTemporaryDir>
#include <QUrl>

#include <gtest/gtest.h>

#include <functional>

using namespace nsModAsmFe;

namespace {

/// Writes down groups and messages, by their key where they have one.
class Log : public ModMsgHookIf
{
public:
    void registerPlugin(ModMsgPluginIfInterMod*) override {}
    void unregisterPlugin(ModMsgPluginIfInterMod*) override {}
    void registerPlugin(ModMsgPluginIf* plugin) override { plugin->modMsgHook = this; }
    void unregisterPlugin(ModMsgPluginIf* plugin) override { plugin->modMsgHook = nullptr; }
    void registerPluginUrlHndlr(eUrlHndlr_t, ModMsgPluginIfUrlHndlr*) override {}
    void unregisterPluginUrlHndlr(eUrlHndlr_t, ModMsgPluginIfUrlHndlr*) override {}
    void clearMessages() override { lines.clear(); }
    void openMessageGroup(QString text, QUrl help) override
    {
        lines << "open " + (help.fragment().isEmpty() ? text : help.fragment());
    }
    void closeMessageGroup(bool success) override { lines << (success ? "close ok" : "close failed"); }
    void showMessage(eMsgType_t, QString text, QUrl help, nsModMsg::MsgUrl) override
    {
        lines << (help.fragment().isEmpty() ? text : help.fragment());
    }
    void showInfoMessage(QString text, QUrl help, nsModMsg::MsgUrl src) override
    {
        showMessage(eMsgInfo, text, help, src);
    }
    void showWarningMessage(QString text, QUrl help, nsModMsg::MsgUrl src) override
    {
        showMessage(eMsgWarning, text, help, src);
    }
    void showErrorMessage(QString text, QUrl help, nsModMsg::MsgUrl src) override
    {
        showMessage(eMsgError, text, help, src);
    }

    QStringList lines;
};

/// A processor with one register, whose words are the addresses.
class Processor : public AsmBackend
{
public:
    QString processorName() override { return QStringLiteral("Test"); }
    QString processorDefine() override { return QStringLiteral("PROC::TEST"); }
    const QHash<QString, int>* regNames() override { return &regs; }
    const QHash<QString, int>* regBankNames() override { return nullptr; }
    int beConfig() override { return 8; }
    bool assembleStage1(const AsmBeProgram& program) override
    {
        seen = program;
        for (Opcode* opcode : *program.opcodes)
            opcode->instWord = 0x100 + opcode->pageAddr;
        if (onStage1)
            onStage1();
        return true;
    }
    bool assembleStage2(const AsmBeProgram&) override { return true; }
    void setAssembled(bool assembled) override { answers.append(assembled); }

    QHash<QString, int> regs{{"s0", 5}};
    AsmBeProgram seen;
    QList<bool> answers;
    std::function<void()> onStage1;
};

/// Takes every hand-over.
class Everything : public AsmRunListener
{
public:
    void programDropped() override { calls << "dropped"; }
    bool wantsNaviTags() override { return true; }
    void naviTagFound(const AsmNaviTag& tag) override { calls << "tag " + tag.title; }
    void naviTagsComplete() override { calls << "tags"; }
    void tabIndentSet(int indent) override { calls << "indent " + QString::number(indent); }
    void addressesMapped() override { calls << "addresses"; }
    void programComplete() override { calls << "complete"; }
    void refreshTextCompleter() override { calls << "completer"; }
    void refreshInsertionMenu() override { calls << "menu"; }
    void refreshIODevViewer() override { calls << "devices"; }
    void runFailed() override { calls << "failed"; }
    bool runExternalPrograms(AsmFeConfig::eAssembleEvent_t) override
    {
        calls << "external";
        return externalAnswer;
    }
    void refreshEquList() override { calls << "constants"; }

    QStringList calls;
    bool externalAnswer = true;
};

/// Cancels the run at the Nth time that it is asked, once.
class Canceller : public AsmRunListener
{
public:
    explicit Canceller(const Log& log)
        : m_log(log)
    {
    }

    bool runGoesOn(int) override
    {
        if (!hasBegun)
            ++asked;
        // The last group that was opened, if it is open still.
        for (int i = m_log.lines.size() - 1; i >= 0 && !m_log.lines.at(i).startsWith("close"); --i) {
            if (m_log.lines.at(i).startsWith("open ")) {
                groups.insert(m_log.lines.at(i).mid(5));
                break;
            }
        }
        return hasBegun ? answerOfOutputs : asked != cancelAt;
    }
    void outputsBegin() override { hasBegun = true; }
    void runFailed() override { hasFailed = true; }

    int cancelAt = 0; ///< 0: never
    int asked = 0;    ///< before the outputs
    bool answerOfOutputs = true;
    bool hasBegun = false;
    bool hasFailed = false;
    QSet<QString> groups; ///< in which it was asked

private:
    const Log& m_log;
};

class AssemblerTest : public ::testing::Test
{
protected:
    AssemblerTest()
    {
        messages.modMsgHook = &log;
        config.targets[kindHex].en = true;
        config.targets[kindHex].outputFile = dir.filePath("out.hex");
        project.dir = dir.path();
        project.fileName = QStringLiteral("test.nalvo");
    }

    bool run(const QByteArray& text)
    {
        QFile file(dir.filePath("a.psm"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
        file.close();
        return assembler.run({file.fileName()}, project, AsmFeConfig::eEventButton1);
    }

    QTemporaryDir dir;
    Log log;
    AsmFeFileHndlr files;
    AsmFeMsgHndlr messages{&files};
    AsmFeConfig config;
    AsmProjectInfo project;
    Processor processor;
    Assembler assembler{files, messages, config};
};

const char* const program = "; \\navSep \"Start\"\n#SET EDITOR::tabIndent, 4\nstart: LOAD s0, 1\nJUMP start\n";

} // namespace

TEST_F(AssemblerTest, writesAProgramWithoutAnyModule)
{
    assembler.setBackend(&processor);
    ASSERT_TRUE(run(program)) << qPrintable(log.lines.join('\n'));
    EXPECT_TRUE(assembler.isAssembled());
    ASSERT_EQ(assembler.program().opcodes.count(), 2);
    EXPECT_EQ(assembler.program().opcodes.first()->arg0->iValue, 5);
    EXPECT_EQ(assembler.program().ioDevs.devices().size(), 1);
    EXPECT_EQ(assembler.writtenFiles(), QStringList(dir.filePath("out.hex")));
    QFile hex(dir.filePath("out.hex"));
    ASSERT_TRUE(hex.open(QIODevice::ReadOnly));
    EXPECT_EQ(hex.readLine(), "00100\n");
    EXPECT_EQ(hex.readLine(), "00101\n");
    EXPECT_EQ(processor.answers, QList<bool>{true});
}

TEST_F(AssemblerTest, handsTheProcessorItsPartOfTheProgram)
{
    assembler.setBackend(&processor);
    config.behaviorSet = AsmFeConfig::setError;
    config.behaviorChkIntVector = AsmFeConfig::intVectorSilent;
    ASSERT_TRUE(run(program));
    EXPECT_EQ(processor.seen.opcodes, &assembler.program().opcodes);
    EXPECT_EQ(processor.seen.sets, &assembler.program().sets);
    EXPECT_EQ(processor.seen.ioDevs, &assembler.program().ioDevs);
    EXPECT_EQ(processor.seen.msgHndlr, &messages);
    EXPECT_TRUE(processor.seen.isSetRefused);
    EXPECT_FALSE(processor.seen.isSetWarned);
    EXPECT_EQ(processor.seen.pageSize, 8);
    EXPECT_EQ(processor.seen.pageCount, 1);
    EXPECT_TRUE(processor.seen.isSharedMemHigh);
    EXPECT_EQ(processor.seen.chkIntVector, 2);
}

TEST_F(AssemblerTest, endsWithAnErrorWithoutAProcessor)
{
    EXPECT_FALSE(run(program));
    EXPECT_FALSE(assembler.isAssembled());
    EXPECT_EQ(log.lines.mid(log.lines.size() - 2), QStringList({"errNoAsmBe", "close failed"}));
    EXPECT_TRUE(assembler.writtenFiles().isEmpty());
}

TEST_F(AssemblerTest, showsTheSameMessagesWithAListener)
{
    assembler.setBackend(&processor);
    ASSERT_TRUE(run(program));
    const QStringList alone = log.lines;
    EXPECT_TRUE(alone.contains("open refreshInsertionMenu"));
    Everything listener;
    assembler.setListener(&listener);
    ASSERT_TRUE(run(program));
    EXPECT_EQ(log.lines, alone);
    EXPECT_EQ(listener.calls, QStringList({"dropped", "tag Start", "tag start:", "tags", "indent 4", "addresses",
                                           "complete", "completer", "menu", "devices", "external", "constants"}));
}

TEST_F(AssemblerTest, aFailedStageKeepsTheLaterOnesFromRunning)
{
    Everything listener;
    assembler.setListener(&listener);
    assembler.setBackend(&processor);
    EXPECT_FALSE(run("LOAD s0, nothing\n"));
    EXPECT_FALSE(assembler.isAssembled());
    EXPECT_EQ(processor.seen.opcodes, nullptr);
    EXPECT_EQ(processor.answers, QList<bool>{false});
    EXPECT_EQ(listener.calls, QStringList({"dropped", "tags", "addresses", "failed", "constants"}));
}

TEST_F(AssemblerTest, aFailedExternalProgramFailsTheRunButNotTheProgram)
{
    Everything listener;
    listener.externalAnswer = false;
    assembler.setListener(&listener);
    assembler.setBackend(&processor);
    EXPECT_FALSE(run(program));
    EXPECT_TRUE(assembler.isAssembled());
    EXPECT_FALSE(assembler.runSucceeded());
}

TEST_F(AssemblerTest, aProgramThatIsDroppedDuringItsRunGoesWhenTheRunHasEnded)
{
    assembler.setBackend(&processor);
    int during = 0;
    processor.onStage1 = [&] {
        assembler.drop();
        during = assembler.program().opcodes.count();
    };
    EXPECT_FALSE(run(program));
    EXPECT_EQ(during, 2);
    EXPECT_EQ(assembler.program().opcodes.count(), 0);
    EXPECT_FALSE(assembler.isAssembled());
    EXPECT_TRUE(assembler.writtenFiles().isEmpty());
}

TEST_F(AssemblerTest, aProcessorThatIsTakenAwayDuringTheRunEndsIt)
{
    assembler.setBackend(&processor);
    processor.onStage1 = [&] { assembler.setBackend(nullptr); };
    EXPECT_FALSE(run(program));
    EXPECT_EQ(assembler.program().opcodes.count(), 0);
    EXPECT_TRUE(assembler.words().regs().isEmpty());
    EXPECT_TRUE(processor.answers.isEmpty());
}

TEST_F(AssemblerTest, noRunStartsWithinARun)
{
    assembler.setBackend(&processor);
    bool inner = true;
    processor.onStage1 = [&] { inner = assembler.run({}, project, AsmFeConfig::eEventNone); };
    EXPECT_TRUE(run(program));
    EXPECT_FALSE(inner);
    EXPECT_EQ(assembler.program().opcodes.count(), 2);
}

namespace {

/// A program of which each stage has enough to do to be asked meanwhile.
QByteArray longProgram()
{
    QByteArray text = "#SET instMem::pageSize, 16384\n";
    for (int i = 0; i < 3000; ++i) {
        const QByteArray number = QByteArray::number(i);
        text += "#EQU value" + number + ", " + (i == 0 ? QByteArray("1") : "value" + QByteArray::number(i - 1)) + "\n";
        text += "#ORG ADDR, " + QByteArray::number(4 * i) + "\n";
        text += "label" + number + ": LOAD s0, 1\n";
    }
    return text;
}

} // namespace

TEST_F(AssemblerTest, aRunIsCancelledAtAnyTimeAndLeavesTheOutputsAsTheyWere)
{
    assembler.setBackend(&processor);
    const QByteArray source = longProgram();
    const auto content = [&] {
        QFile file(dir.filePath("out.hex"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    Canceller nobody(log);
    assembler.setListener(&nobody);
    ASSERT_TRUE(run(source)) << qPrintable(log.lines.join('\n'));
    for (const char* group : {"grpParsingFiles", "chkLabelDirectives", "chkOrgDirectives", "chkEquDirectives",
                              "grpMapOpcodeToMem", "chkInstructions", "grpSetupIODevs", "grpUsageCheck"})
        EXPECT_TRUE(nobody.groups.contains(group)) << group;
    QFile::remove(dir.filePath("out.hex"));
    ASSERT_TRUE(run("LOAD s0, 1\n"));
    const QByteArray old = content();
    ASSERT_FALSE(old.isEmpty());
    for (int cancelAt = 1; cancelAt <= nobody.asked; ++cancelAt) {
        SCOPED_TRACE(cancelAt);
        Canceller canceller(log);
        canceller.cancelAt = cancelAt;
        assembler.setListener(&canceller);
        EXPECT_FALSE(run(source));
        EXPECT_FALSE(assembler.isAssembled());
        EXPECT_FALSE(canceller.hasBegun);
        EXPECT_TRUE(canceller.hasFailed);
        EXPECT_TRUE(assembler.writtenFiles().isEmpty());
        EXPECT_EQ(content(), old);
    }
    // Outputs are written whole, whatever is answered meanwhile.
    Canceller late(log);
    late.answerOfOutputs = false;
    assembler.setListener(&late);
    EXPECT_TRUE(run(source));
    EXPECT_TRUE(late.hasBegun);
    EXPECT_NE(content(), old);
    assembler.setListener(nullptr);
}
