// The run from outside: what starts it, which programs and actions follow it, and the state after it.

#include "AsmFixture.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QCoreApplication>
#include <QPointer>
#include <QTreeView>

using namespace nsModAsmFe;

namespace {

const char* const program = "start: LOAD s0, 1\n JUMP start\n";

void enableAll(AsmFixture* f)
{
    f->write("t.vhd", "{begin template}\n{INIT_00}\n");
    for (TargetVhdlConfig* hdl : {&f->asmFe.targets[kindVhdl], &f->asmFe.targets[kindVerilog]}) {
        hdl->en = true;
        hdl->entityName = "rom";
        hdl->templateFile = f->path("t.vhd");
    }
    f->asmFe.targets[kindVhdl].outputFile = f->path("out.vhd");
    f->asmFe.targets[kindVerilog].outputFile = f->path("out.v");
    f->asmFe.targets[kindHex].en = true;
    f->asmFe.targets[kindHex].outputFile = f->path("out.hex");
    f->asmFe.targets[kindMem].en = true;
    f->asmFe.targets[kindMem].outputFile = f->path("out.mem");
}

void setEvents(TargetConfig* config, bool but1, bool but2, bool save)
{
    config->writeFileEventBut1 = but1;
    config->writeFileEventBut2 = but2;
    config->writeFileEventSave = save;
}

TEST(PipelineEvents, eachWritesItsOwnFiles)
{
    AsmFixture f;
    f.open();
    enableAll(&f);
    setEvents(&f.asmFe.targets[kindVhdl], true, false, false);
    setEvents(&f.asmFe.targets[kindVerilog], false, true, false);
    setEvents(&f.asmFe.targets[kindHex], true, true, true);
    setEvents(&f.asmFe.targets[kindMem], false, false, true);
    const struct
    {
        ModAsmFe::eAssembleEvent_t event;
        QStringList files;
        QStringList programs;
    } rows[] = {
        {ModAsmFe::eEventNone, {}, {}},
        {ModAsmFe::eEventButton1, {f.path("out.vhd"), f.path("out.hex")}, {"syscall.run 0"}},
        {ModAsmFe::eEventButton2, {f.path("out.v"), f.path("out.hex")}, {"syscall.run 1"}},
        {ModAsmFe::eEventSave, {f.path("out.hex"), f.path("out.mem")}, {"syscall.run 2"}},
    };
    for (const auto& row : rows) {
        EXPECT_TRUE(f.run(program, row.event)) << f.msg.dump().toStdString();
        EXPECT_EQ(f.asmFe.writtenFiles(), row.files) << int(row.event);
        EXPECT_EQ(f.callsStartingWith("syscall"), row.programs) << int(row.event);
        EXPECT_TRUE(f.asmFe.runSucceeded());
    }
}

TEST(PipelineEvents, nothingToWriteStillRunsPrograms)
{
    AsmFixture f;
    f.open();
    for (TargetConfig* config : {&f.asmFe.targets[kindVhdl], &f.asmFe.targets[kindVerilog], &f.asmFe.targets[kindHex],
                                 &f.asmFe.targets[kindMem]})
        setEvents(config, false, true, true);
    EXPECT_TRUE(f.run(program, ModAsmFe::eEventButton1));
    EXPECT_TRUE(f.msg.infos().contains("Nothing todo for event"));
    EXPECT_EQ(f.calls.mid(f.calls.size() - 6),
              QStringList({"open grpWriteIODevToFile", "msg infoIODevNothingToDoForWriteEvent", "close ok",
                           "open Executing external programs...", "syscall.run 0", "close ok"}));
}

TEST(PipelineEvents, defaultsWriteOnButtonsAndNotOnSave)
{
    AsmFixture f;
    EXPECT_TRUE(f.run(program, ModAsmFe::eEventSave));
    EXPECT_TRUE(f.calls.contains("msg infoIODevNothingToDoForWriteEvent"));
    EXPECT_TRUE(f.run(program, ModAsmFe::eEventButton2));
    EXPECT_EQ(f.warnings().count("warnIODevNoFileToWrite"), 4);
}

TEST(PipelineEvents, aProgramThatFails)
{
    AsmFixture f;
    f.syscall.answer = false;
    EXPECT_TRUE(f.run(program, ModAsmFe::eEventButton1));
    EXPECT_FALSE(f.asmFe.runSucceeded());
    EXPECT_EQ(f.calls.mid(f.calls.size() - 2), QStringList({"syscall.run 0", "close failed"}));
    // The program itself is assembled, and stays so.
    EXPECT_TRUE(f.asmFe.isAssembled());
    EXPECT_TRUE(f.actionEnabled(AsmFeActions::eActionButton1));
}

TEST(PipelineEvents, triggers)
{
    AsmFixture f;
    f.open();
    f.setSources({program});
    const QList<QAction*> actions = f.asmFe.menuActions(ModActionHookIf::eActionClassAssembler);
    ASSERT_EQ(actions.size(), 3);
    EXPECT_EQ(actions.at(0)->text(), QString("Run assembler"));
    EXPECT_EQ(actions.at(1)->text(), QString("Write output files button 1"));
    EXPECT_EQ(actions.at(2)->text(), QString("Write output files button 2"));
    EXPECT_EQ(f.asmFe.toolBarActions(ModActionHookIf::eActionClassAssembler), actions);
    EXPECT_TRUE(f.asmFe.menuActions(ModActionHookIf::eActionClassSimulator).isEmpty());
    const char* const programs[] = {"syscall.run 2", "syscall.run 0", "syscall.run 1"};
    for (int i = 0; i < 3; ++i) {
        f.calls.clear();
        actions.at(i)->trigger();
        EXPECT_EQ(f.callsStartingWith("syscall"), QStringList(programs[i]));
        EXPECT_EQ(f.calls.first(), QString("clear"));
    }
    f.calls.clear();
    f.asmFe.srcFileContentChanged();
    EXPECT_EQ(f.callsStartingWith("syscall"), QStringList("syscall.run 2"));
    f.calls.clear();
    f.asmFe.srcFileListChanged();
    EXPECT_TRUE(f.callsStartingWith("syscall").isEmpty());
    EXPECT_TRUE(f.calls.contains("be.setAssembled 1"));
    // Nobody saves a document: the run reads what was saved last.
    EXPECT_FALSE(f.calls.contains("editor.saveAllFiles"));
    f.asmFe.setAssembleOnChange(false);
    f.calls.clear();
    f.asmFe.srcFileContentChanged();
    f.asmFe.srcFileListChanged();
    EXPECT_TRUE(f.calls.isEmpty());
}

TEST(PipelineState, actionsFollowTheRuns)
{
    AsmFixture f;
    const auto enabled = [&f] {
        QString text;
        for (int i = 0; i < 3; ++i)
            text += f.actionEnabled(AsmFeActions::eAction_t(i)) ? '1' : '0';
        return text;
    };
    EXPECT_EQ(enabled(), QString("000"));
    f.open();
    EXPECT_EQ(enabled(), QString("100"));
    QString during;
    f.be.onStage1 = [&] { during = enabled(); };
    EXPECT_TRUE(f.run(program));
    EXPECT_EQ(during, QString("100"));
    EXPECT_EQ(enabled(), QString("111"));
    EXPECT_FALSE(f.run(" NONSENSE\n"));
    EXPECT_EQ(enabled(), QString("100"));
    EXPECT_TRUE(f.run(program));
    EXPECT_EQ(enabled(), QString("111"));
    f.prj.close();
    EXPECT_EQ(enabled(), QString("000"));
}

TEST(PipelineState, instructionMemoryForOthers)
{
    AsmFixture f;
    f.be.pageSize = 64;
    int pageSize = 0;
    int pageCount = 0;
    bool high = false;
    EXPECT_FALSE(f.asmFe.instMemConfig(&pageSize, &pageCount, &high));
    EXPECT_TRUE(f.run(program));
    EXPECT_TRUE(f.asmFe.instMemConfig(&pageSize, &pageCount, &high));
    EXPECT_EQ(pageSize, 64);
    EXPECT_EQ(pageCount, 1);
    EXPECT_TRUE(high);
    EXPECT_FALSE(f.run("#SET INSTMEM::PAGESIZE, 32\n#SET INSTMEM::SHAREDMEMLOCATION, lomem\n NONSENSE\n"));
    EXPECT_FALSE(f.asmFe.instMemConfig(&pageSize, &pageCount, &high));
    EXPECT_EQ(pageSize, 32);
    EXPECT_FALSE(high);
    // What a directive has set is gone with the next run.
    EXPECT_TRUE(f.run(program));
    EXPECT_TRUE(f.asmFe.instMemConfig(&pageSize, &pageCount, &high));
    EXPECT_EQ(pageSize, 64);
    EXPECT_TRUE(high);
}

TEST(PipelineState, charsetOfASourceEndsWithItsRun)
{
    AsmFixture f;
    EXPECT_TRUE(f.run("#SET ASM::DFLTCHARSET, ISO-8859-1\n LOAD s0, \"\xe4\"'LEN\n"));
    EXPECT_EQ(f.asmFe.opcodeList()->first()->arg1->iValue, 1);
    EXPECT_TRUE(f.run(" LOAD s0, \"\xe4\"'LEN\n"));
    EXPECT_EQ(f.asmFe.opcodeList()->first()->arg1->iValue, 2);
}

TEST(PipelineState, listsOfAFailedRunStayUntilTheNext)
{
    AsmFixture f;
    EXPECT_FALSE(f.run("#EQU x, 1\nhere: NONSENSE\n"));
    EXPECT_FALSE(f.asmFe.isAssembled());
    EXPECT_EQ(f.asmFe.opcodeList()->count(), 1);
    EXPECT_TRUE(f.asmFe.equList()->contains("", "x"));
    EXPECT_TRUE(f.asmFe.labelList()->contains("", "here"));
    EXPECT_EQ(f.navi.tags.size(), 1);
    EXPECT_TRUE(f.run(" LOAD s0, 1\n"));
    EXPECT_FALSE(f.asmFe.equList()->contains("", "x"));
    EXPECT_EQ(f.asmFe.labelList()->first(), nullptr);
    EXPECT_TRUE(f.navi.tags.isEmpty());
}

TEST(PipelineState, editorKeepsTheLastGoodMap)
{
    AsmFixture f;
    EXPECT_TRUE(f.run(program));
    const auto* map = f.editor.map.get();
    EXPECT_FALSE(f.run("#ORG ADDR, 0x4000\n LOAD s0, 1\n"));
    EXPECT_EQ(f.editor.map.get(), map);
    EXPECT_FALSE(f.calls.contains("editor.setMemPageAddrMap"));
}

TEST(PipelineState, completionList)
{
    AsmFixture f;
    EXPECT_TRUE(f.run("#NAMESPACE ns\n#EQU x, 1\nhere: LOAD s0, x\n#ENDNAMESPACE\n#EQU y, ns::x\n LOAD s0, y\n"));
    const QStringList words = f.editor.completion;
    const int commands = words.indexOf("\\navConst \"\"");
    ASSERT_GT(commands, 0);
    EXPECT_EQ(words.mid(commands), QStringList({"\\navConst \"\"", "\\navSep \"\"", "\\navGrpBegin \"\"", "\\navGrpEnd",
                                                "\\navHw \"\"", "ns::here", "ns::x", "y"}));
    for (const QString& word : words.mid(0, commands))
        EXPECT_EQ(word, word.toUpper());
    EXPECT_TRUE(words.mid(0, commands).contains("UTF-8"));
}

QStringList entriesOf(AsmFixture* f, const QStringList& path)
{
    const nsModEditor::EditorSupportMenuNode* at = &f->editor.menu;
    for (const QString& name : path) {
        const nsModEditor::EditorSupportMenuNode* next = nullptr;
        for (const auto* child : at->children)
            next = child->name == name ? child : next;
        if (next == nullptr)
            return QStringList("no " + name);
        at = next;
    }
    QStringList names;
    for (const auto* child : at->children)
        names.append(child->name);
    names.sort();
    return names;
}

TEST(PipelineState, insertionMenu)
{
    AsmFixture f(AsmFixture::partBackend | AsmFixture::partEditor | AsmFixture::partMenu);
    EXPECT_EQ(entriesOf(&f, {"Hardware", "Pages"}), QStringList({"A", "B"}));
    EXPECT_EQ(entriesOf(&f, {"Hardware", "Register"}).size(), 16);
    EXPECT_TRUE(f.run("#EQU x, 1\n#NAMESPACE n\n#EQU y, 1\nhere: LOAD s0, y\n#ENDNAMESPACE\nthere: LOAD s0, x\n"));
    EXPECT_EQ(entriesOf(&f, {"Defines"}), QStringList({"n::y", "x"}));
    EXPECT_EQ(entriesOf(&f, {"Label"}), QStringList({"n::here", "there"}));
    EXPECT_TRUE(entriesOf(&f, {"Directives", "Controlling code generation"}).contains("PROC::FAKE1"));
    // A run that fails leaves the menu alone, the next good one replaces the names.
    f.run("other: NONSENSE\n");
    EXPECT_EQ(entriesOf(&f, {"Label"}), QStringList({"n::here", "there"}));
    EXPECT_TRUE(f.run("other: LOAD s0, 1\n"));
    EXPECT_EQ(entriesOf(&f, {"Label"}), QStringList("other"));
    EXPECT_EQ(entriesOf(&f, {"Defines"}), QStringList("no Defines"));
    f.asmFe.unregisterPlugin(&f.be);
    EXPECT_EQ(entriesOf(&f, {"Hardware"}), QStringList("no Hardware"));
}

TEST(PipelineState, theInsertionMenuIsRebuiltForOtherNamesOnly)
{
    AsmFixture f(AsmFixture::partBackend | AsmFixture::partEditor | AsmFixture::partMenu);
    EXPECT_TRUE(f.run("#EQU one, 1\nhere: LOAD s0, one\n"));
    const QPointer<QObject> constant = f.editor.menu.node({"Defines", "one"});
    const QPointer<QObject> label = f.editor.menu.node({"Label", "here"});
    EXPECT_TRUE(f.run("#EQU one, 2\n\nhere: LOAD s0, one + 1\n"));
    EXPECT_EQ(constant.data(), f.editor.menu.node({"Defines", "one"}));
    EXPECT_EQ(label.data(), f.editor.menu.node({"Label", "here"}));
    EXPECT_TRUE(f.run("#EQU one, 2\n\nthere: LOAD s0, one + 1\n"));
    EXPECT_FALSE(constant.isNull());
    EXPECT_TRUE(label.isNull());
    EXPECT_EQ(entriesOf(&f, {"Label"}), QStringList("there"));
    // One more, and one less.
    EXPECT_TRUE(f.run("#EQU another, 3\n#EQU one, 2\n#EQU two, 2\n LOAD s0, one + 1\n"));
    EXPECT_EQ(constant.data(), f.editor.menu.node({"Defines", "one"}));
    EXPECT_EQ(entriesOf(&f, {"Defines"}), QStringList({"another", "one", "two"}));
    EXPECT_TRUE(f.run("#EQU one, 2\n#EQU two, 2\n LOAD s0, one + 1\n"));
    EXPECT_EQ(constant.data(), f.editor.menu.node({"Defines", "one"}));
    EXPECT_EQ(entriesOf(&f, {"Defines"}), QStringList({"one", "two"}));
    EXPECT_TRUE(f.run(" LOAD s0, 1\n"));
    EXPECT_TRUE(constant.isNull());
    EXPECT_EQ(entriesOf(&f, {"Defines"}), QStringList("no Defines"));
}

TEST(PipelineState, constantsAreShownAfterEventsOnly)
{
    AsmFixture f;
    f.run("#EQU x, 1\n LOAD s0, x\n");
    QWidget* view = f.gui.widgetNamed("EQU list");
    ASSERT_NE(view, nullptr);
    const QAbstractItemModel* lines = view->findChild<QTreeView*>("equListView")->model();
    EXPECT_EQ(lines->rowCount(), 0);
    f.run("#EQU x, 1\n LOAD s0, x\n", ModAsmFe::eEventSave);
    EXPECT_EQ(lines->rowCount(), 1);
    // With success or without.
    f.run("#EQU x, 1\n#EQU y, 2\n NONSENSE\n", ModAsmFe::eEventButton1);
    EXPECT_EQ(lines->rowCount(), 2);
    f.prj.close();
    EXPECT_EQ(lines->rowCount(), 0);
}

TEST(PipelineState, defineOfTheProcessor)
{
    AsmFixture f;
    EXPECT_TRUE(f.run("#IFDEF proc::fake1\n LOAD s0, 1\n#ELSE\n NONSENSE\n#ENDIF\n"));
    EXPECT_TRUE(f.msg.infos().contains("Set processor define: PROC::FAKE1"));
}

TEST(PipelineReentrancy, aRunWithinARunIsNone)
{
    AsmFixture f;
    int maps = 0;
    const auto disturb = [&f] {
        f.asmFe.srcFileContentChanged();
        f.asmFe.srcFileListChanged();
        f.asmFe.handleActions(AsmFeActions::eActionButton2);
        f.asmFe.assemble(ModAsmFe::eEventButton1);
    };
    f.editor.onMap = [&] {
        ++maps;
        disturb();
    };
    f.be.onStage1 = disturb;
    f.be.onAssembled = [&](bool) { disturb(); };
    f.syscall.onRun = disturb;
    EXPECT_TRUE(f.run(program, ModAsmFe::eEventSave));
    EXPECT_EQ(maps, 1);
    EXPECT_EQ(f.calls.count("be.stage1"), 1);
    EXPECT_EQ(f.calls.count("open Assembling..."), 1);
    EXPECT_EQ(f.callsStartingWith("syscall"), QStringList("syscall.run 2"));
    EXPECT_EQ(f.asmFe.opcodeList()->count(), 2);
    EXPECT_TRUE(f.msg.openGroups.isEmpty());
    // The next one is a run again.
    EXPECT_TRUE(f.run(program));
    EXPECT_EQ(f.calls.count("be.stage1"), 1);
}

TEST(PipelineReentrancy, whatIsSavedWhileAProgramRunsIsAssembledAfterwards)
{
    AsmFixture f;
    f.syscall.onRun = [&f] {
        f.asmFe.srcFileListChanged();
        f.asmFe.srcFileContentChanged();
        f.syscall.onRun = nullptr;
    };
    EXPECT_TRUE(f.run(program, ModAsmFe::eEventButton1));
    EXPECT_EQ(f.calls.count("be.stage1"), 1);
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
    EXPECT_EQ(f.calls.count("be.stage1"), 2) << "once for all of them";
    EXPECT_EQ(f.callsStartingWith("syscall"), QStringList({"syscall.run 0", "syscall.run 2"}));

    // With its project, the reason has gone.
    f.syscall.onRun = [&f] {
        f.asmFe.srcFileContentChanged();
        f.asmFe.prjClose();
    };
    f.run(program, ModAsmFe::eEventButton1);
    QCoreApplication::processEvents();
    EXPECT_EQ(f.callsStartingWith("syscall").size(), 1);
}

TEST(PipelineReentrancy, projectClosesDuringARun)
{
    AsmFixture f;
    for (int where = 0; where < 4; ++where) {
        f.open();
        f.be.onStage1 = where == 0 ? std::function<void()>([&f] { f.prj.close(); }) : nullptr;
        f.editor.onMap = where == 1 ? std::function<void()>([&f] { f.prj.close(); }) : nullptr;
        f.be.onAssembled = where == 2 ? std::function<void(bool)>([&f](bool) { f.prj.close(); }) : nullptr;
        f.syscall.onRun = where == 3 ? std::function<void()>([&f] { f.prj.close(); }) : nullptr;
        f.setSources({program});
        f.asmFe.assemble(ModAsmFe::eEventSave);
        EXPECT_FALSE(f.asmFe.isAssembled()) << where;
        EXPECT_EQ(f.asmFe.opcodeList()->count(), 0) << where;
        EXPECT_TRUE(f.msg.openGroups.isEmpty()) << where;
        EXPECT_FALSE(f.actionEnabled(AsmFeActions::eActionAssemble)) << where;
    }
}

TEST(PipelineReentrancy, backEndLeavesDuringARun)
{
    AsmFixture f;
    f.be.onStage1 = [&f] { f.asmFe.unregisterPlugin(&f.be); };
    EXPECT_FALSE(f.run(program, ModAsmFe::eEventSave));
    EXPECT_TRUE(f.msg.openGroups.isEmpty());
    EXPECT_EQ(f.be.modAsmFeHook, nullptr);
    f.be.onStage1 = nullptr;
    f.asmFe.registerPlugin(&f.be);
    EXPECT_TRUE(f.run(program));
}

TEST(PipelineReentrancy, backEndLeavesBetweenTwoStages)
{
    AsmFixture f;
    for (const QString& group : {QString("Map code to memory ranges..."), QString("Run backend stage 1 for %1 ..."),
                                 QString("Run backend stage 2 for %1 ...")}) {
        f.msg.onGroup = [&f,
                         text = group.contains('%') ? group.arg(f.be.processorName()) : group](const QString& opened) {
            if (opened == text)
                f.asmFe.unregisterPlugin(&f.be);
        };
        EXPECT_FALSE(f.run(program, ModAsmFe::eEventSave)) << group.toStdString();
        EXPECT_EQ(f.be.modAsmFeHook, nullptr) << group.toStdString();
        EXPECT_TRUE(f.msg.openGroups.isEmpty());
        f.asmFe.registerPlugin(&f.be);
    }
    f.msg.onGroup = nullptr;
    EXPECT_TRUE(f.run(program));
}

TEST(PipelineBackEnd, oneAtATime)
{
    AsmFixture f;
    FakeBackend other(&f.calls);
    other.define = "PROC::OTHER";
    other.regs = {{"r0", 0}};
    f.asmFe.registerPlugin(&other);
    EXPECT_EQ(f.be.modAsmFeHook, nullptr);
    EXPECT_EQ(other.modAsmFeHook, &f.asmFe);
    EXPECT_TRUE(f.run("s0: LOAD r0, 1\n"));
    EXPECT_EQ(f.asmFe.defines(), QStringList("PROC::OTHER"));
    // One that was replaced does not take the present one with it.
    f.asmFe.unregisterPlugin(&f.be);
    EXPECT_TRUE(f.run("s0: LOAD r0, 1\n"));
    f.asmFe.unregisterPlugin(&other);
    EXPECT_EQ(other.modAsmFeHook, nullptr);
    EXPECT_FALSE(f.asmFe.isAssembled());
    EXPECT_FALSE(f.run("s0: LOAD r0, 1\n"));
    EXPECT_EQ(f.errors().last(), QString("errNoAsmBe"));
}

template <class Plugin>
void checkStrangers(ModAsmFeHookIf* hook, Plugin* known, Plugin* stranger)
{
    stranger->modAsmFeHook = hook;
    hook->registerPlugin(static_cast<Plugin*>(nullptr));
    hook->unregisterPlugin(static_cast<Plugin*>(nullptr));
    hook->unregisterPlugin(stranger);
    EXPECT_EQ(stranger->modAsmFeHook, hook) << "with nobody registered";
    hook->registerPlugin(known);
    EXPECT_EQ(known->modAsmFeHook, hook);
    hook->registerPlugin(static_cast<Plugin*>(nullptr));
    hook->unregisterPlugin(static_cast<Plugin*>(nullptr));
    hook->unregisterPlugin(stranger);
    EXPECT_EQ(stranger->modAsmFeHook, hook);
    EXPECT_EQ(known->modAsmFeHook, hook);
    hook->unregisterPlugin(known);
    EXPECT_EQ(known->modAsmFeHook, nullptr);
}

TEST(PipelineClients, nullAndStrangersThatLeaveChangeNothing)
{
    AsmFixture f(AsmFixture::partEditor);
    ModAsmFePluginIf known;
    ModAsmFePluginIf stranger;
    checkStrangers<ModAsmFePluginIf>(&f.asmFe, &known, &stranger);
    FakeBackend otherBe(&f.calls);
    checkStrangers<ModAsmFePluginIfBackend>(&f.asmFe, &f.be, &otherBe);
    f.asmFe.registerPlugin(static_cast<ModAsmFePluginIfInterMod*>(nullptr));
    f.asmFe.unregisterPlugin(static_cast<ModAsmFePluginIfInterMod*>(nullptr));
}

TEST(PipelineBackEnd, withoutTables)
{
    class Bare : public FakeBackend
    {
    public:
        using FakeBackend::FakeBackend;
        const QHash<QString, int>* regNames() override { return nullptr; }
        const QHash<QString, int>* regBankNames() override { return nullptr; }
    };
    AsmFixture f(AsmFixture::partEditor);
    Bare bare(&f.calls);
    f.asmFe.registerPlugin(&bare);
    EXPECT_TRUE(f.run("s0: JUMP s0\n"));
    f.asmFe.unregisterPlugin(&bare);
}

TEST(PipelineBackEnd, highlighterAndMenuKnowItsWords)
{
    AsmFixture f(AsmFixture::partEditor);
    f.asmFe.registerPlugin(&f.be);
    EXPECT_TRUE(f.calls.contains("editor.clearHighlighter"));
    QStringList hardware;
    for (const auto& rule : f.editor.rules) {
        if (rule.first == ModEditorHookIf::eHighlightRuleHw)
            hardware.append(rule.second.pattern());
    }
    hardware.sort();
    EXPECT_EQ(hardware.size(), 18);
    EXPECT_TRUE(hardware.contains("\\bsF\\b"));
    EXPECT_TRUE(hardware.contains("\\bA\\b"));
    f.asmFe.unregisterPlugin(&f.be);
    for (const auto& rule : f.editor.rules)
        EXPECT_NE(rule.first, int(ModEditorHookIf::eHighlightRuleHw));
}

} // namespace
