// The objects that scripts see, with their operations.

#include "ScriptWindow.h"

#include "EditorWidget.h"
#include "ModEditor.h"
#include "ModProcessor.h"
#include "ProcShell.h"

namespace {

const int patience = 60000; // ms; only reached when something hangs

} // namespace

TEST_F(ScriptWindow, everyObjectHasItsOperations)
{
    const QMap<QString, QStringList> operations = {
        {"app", {"exit"}},
        {"msg",
         {"openMessageGroup", "closeMessageGroup", "clearMessages", "showInfoMessage", "showWarningMessage",
          "showErrorMessage", "messages", "allMessages", "errorCount", "warningCount"}},
        {"project", {"open", "close", "hndlAction", "isOpen", "save", "path"}},
        {"sources", {}},
        {"processor", {"names", "current", "select"}},
        {"editor",
         {"newFile", "openFile", "reloadAllFiles", "reloadFile", "selectFile", "saveAllFiles", "saveFile", "saveFileAs",
          "closeAllFiles", "closeOtherFiles", "closeFile", "printFile", "setCursorToLine", "clearLineHighlited",
          "setLineHighlighted", "insertText"}},
        {"config", {"openDialog", "closeDialog", "selectDialogPageByTitle"}},
        {"importFiles", {"openImportDialog", "closeImportDialog", "importFile", "useFile"}},
        {"assembler", {"assemble", "isAssembled", "writtenFiles", "instructionCount", "labels", "labelAddress"}},
        {"simulator",
         {"isEnabled", "enable",         "disable",    "reset",         "step",      "run",       "runTo",
          "runToLine", "endReason",      "pc",         "setPc",         "file",      "line",      "regNames",
          "reg",       "setReg",         "bank",       "setBank",       "carry",     "setCarry",  "zero",
          "setZero",   "scratchpadSize", "scratchpad", "setScratchpad", "callDepth", "interrupt", "clocks"}},
    };
    QFile readme(NALVO_SOURCE_DIR "/examples/scripts/README.md");
    ASSERT_TRUE(readme.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(readme.readAll());
    for (auto it = operations.cbegin(); it != operations.cend(); ++it) {
        EXPECT_EQ(notes("test.note(typeof " + it.key() + ");"), QStringList("object")) << qPrintable(it.key());
        EXPECT_TRUE(text.contains('`' + it.key() + '`')) << qPrintable(it.key());
        for (const QString& operation : it.value()) {
            EXPECT_EQ(notes("test.note(typeof " + it.key() + '.' + operation + ");"), QStringList("function"))
                << qPrintable(it.key() + '.' + operation);
            EXPECT_TRUE(text.contains('`' + operation + '(')) << qPrintable(it.key() + '.' + operation);
        }
    }
}

TEST_F(ScriptWindow, messagesAreShown)
{
    ASSERT_TRUE(run("msg.clearMessages(); msg.openMessageGroup('group'); msg.showInfoMessage('info');\n"
                    "msg.showWarningMessage('warning', 'pageid://asmFeMessages#key'); msg.showErrorMessage('error');\n"
                    "msg.closeMessageGroup(true);"));
    EXPECT_EQ(messageTexts(), QStringList({"group", "info", "warning", "error", "Done"}));
    EXPECT_EQ(messageView()->topLevelItem(0)->child(1)->text(1), "Show help page");
    EXPECT_EQ(
        notes("var m = msg.messages(); for (var i in m) test.note(m[i].grade + m[i].text + m[i].file + m[i].line);\n"
              "test.note(msg.errorCount() + ',' + msg.warningCount());"),
        QStringList({"infoinfo0", "warningwarning0", "errorerror0", "1,1"}));
}

TEST_F(ScriptWindow, messagesAreThoseOfTheLastRun)
{
    ASSERT_TRUE(run("open();"));
    writeFile("multiply.psm", "start:\n        NONSENSE\n");
    EXPECT_EQ(
        notes(
            "msg.openMessageGroup('mine'); msg.showErrorMessage('before'); test.note(assembler.assemble(1));\n"
            "var m = msg.messages(), errors = [];\n"
            "for (var i in m) if (m[i].grade === 'error') errors.push(m[i]);\n"
            "test.note(errors.length + ',' + msg.errorCount()); test.note(errors[0].file); test.note(errors[0].line);\n"
            "test.note(msg.allMessages().length > m.length);"),
        QStringList({"false", "1,1", projectDir() + "/multiply.psm", "2", "true"}));
}

TEST_F(ScriptWindow, theSettingsDialogIsDriven)
{
    EXPECT_EQ(notes("config.openDialog('Editor'); test.note(config.selectDialogPageByTitle('Editor'));\n"
                    "test.note(config.selectDialogPageByTitle('None')); config.closeDialog();\n"
                    "test.note(config.selectDialogPageByTitle('Editor'));\n"
                    "config.openDialog(); config.closeDialog(true); config.closeDialog(false);"),
              QStringList({"true", "false", "false"}));
}

TEST_F(ScriptWindow, foreignSourcesAreImported)
{
    writeFile("foreign.psm", "LOAD s0, 1F");
    EXPECT_EQ(notes("open(); importFiles.importFile('foreign.psm', 'KCPSM3'); importFiles.openImportDialog();\n"
                    "test.note(failure(function() { importFiles.importFile('foreign.psm', 'None'); }));\n"
                    "test.note(failure(function() { importFiles.importFile('none.psm', 'KCPSM6'); }));\n"
                    "importFiles.closeImportDialog(); importFiles.closeImportDialog(); importFiles.useFile('RET');"),
              QStringList({"Error: There is no import filter: None", "Error: Can not open file: none.psm"}));
    const QList<nsModEditor::EditorWidget*> documents = module<nsModEditor::ModEditor>()->editorWidgets();
    ASSERT_EQ(documents.size(), 1);
    EXPECT_EQ(documents.first()->text(), "RET");
}

TEST_F(ScriptWindow, filesAreEdited)
{
    const QString source = projectDir() + "/multiply.psm";
    EXPECT_EQ(notes("open(); test.note(editor.openFile('" + source + "')); test.note(editor.selectFile('" + source +
                    "'));\neditor.setCursorToLine('" + source + "', 3); editor.insertText('; here\\n');\n" +
                    "editor.setCursorToLine('file://" + source +
                    "#5');\ntest.note(editor.saveFile());\n"
                    "editor.closeAllFiles(); test.note(editor.openFile('/none'));"),
              QStringList({"true", "true", "true", "false"}));
    QFile file(source);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().split('\n').value(3), "; here");
}

TEST_F(ScriptWindow, theAssemblerAnswers)
{
    EXPECT_EQ(
        notes("test.note(failure(function() { assembler.assemble(1); }));\n"
              "test.note(failure(function() { assembler.labels(); })); open();\n"
              "test.note(failure(function() { assembler.assemble(3); }));\n"
              "test.note(assembler.assemble(2)); test.note(assembler.writtenFiles().length);\n"
              "test.note(assembler.assemble()); test.note(assembler.writtenFiles().join());\n"
              "test.note(assembler.labels().join()); test.note(assembler.labelAddress('done'));\n"
              "test.note(assembler.labelAddress('::start'));\n"
              "test.note(failure(function() { assembler.labelAddress('nowhere'); }));"),
        QStringList({"Error: No project is open.", "Error: No program is assembled.", "Error: There is no button 3.",
                     "true", "0", "true", projectDir() + "/output/multiply.hex",
                     "start,multiply,done,product,next_bit,no_addition", "3", "0", "Error: No such label: nowhere"}));
}

TEST_F(ScriptWindow, theProcessorIsSelected)
{
    EXPECT_EQ(notes("test.note(failure(function() { processor.select('Xilinx PicoBlaze 6'); })); open();\n"
                    "test.note(processor.names().join()); test.note(processor.current());\n"
                    "test.note(failure(function() { processor.select('Abacus'); })); test.note(processor.current());\n"
                    "test.note(processor.select('Xilinx PicoBlaze 6')); test.note(processor.current());\n"
                    "test.note(assembler.isAssembled()); test.note(assembler.assemble(0)); simulator.enable();\n"
                    "test.note(processor.select('Xilinx PicoBlaze 3')); test.note(processor.current());\n"
                    "simulator.disable(); test.note(processor.select('')); test.note(processor.current());\n"
                    "test.note(assembler.assemble(0));"),
              QStringList({"Error: No project is open.", "Lattice Mico8 v3.x,Xilinx PicoBlaze 3,Xilinx PicoBlaze 6",
                           "Xilinx PicoBlaze 3", "Error: There is no processor Abacus.", "Xilinx PicoBlaze 3", "true",
                           "Xilinx PicoBlaze 6", "false", "true", "false", "Xilinx PicoBlaze 6", "true", "", "false"}));
}

TEST_F(ScriptWindow, aSelectedProcessorIsSaved)
{
    ASSERT_TRUE(run("open(); processor.select('Xilinx PicoBlaze 6');"));
    EXPECT_EQ(notes("test.note(project.save());"), QStringList("true"));
    QFile file(project());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("Xilinx PicoBlaze 6"));
    EXPECT_EQ(notes("project.close(); test.note(project.save());"), QStringList("false"));
}

TEST_F(ScriptWindow, everySimulatorCallWithoutASimulatorIsAScriptError)
{
    const QStringList calls = {"reset()",
                               "step()",
                               "run()",
                               "runTo('done')",
                               "runToLine('multiply.psm', 1)",
                               "pc()",
                               "setPc(0)",
                               "file()",
                               "line()",
                               "regNames()",
                               "reg('s0')",
                               "reg('s0', 0)",
                               "setReg('s0', 1)",
                               "setReg('s0', 1, 0)",
                               "bank()",
                               "setBank(0)",
                               "carry()",
                               "setCarry(true)",
                               "zero()",
                               "setZero(true)",
                               "scratchpadSize()",
                               "scratchpad(0)",
                               "setScratchpad(0, 1)",
                               "callDepth()",
                               "interrupt()",
                               "clocks()"};
    for (const char* state : {"", "open();", "open(); assembler.assemble(0); simulator.enable(); simulator.disable();",
                              "project.close();"}) {
        ASSERT_TRUE(run(state));
        for (const QString& call : calls)
            EXPECT_EQ(notes("test.note(failure(function() { simulator." + call + "; }));"),
                      QStringList("Error: The simulator is not enabled."))
                << state << qPrintable(call);
        EXPECT_EQ(notes("test.note(simulator.isEnabled()); simulator.disable();"), QStringList("false"));
    }
}

TEST_F(ScriptWindow, theSimulatorRuns)
{
    EXPECT_EQ(
        notes(
            "open(); assembler.assemble(0); test.note(simulator.enable()); test.note(simulator.enable());\n"
            "test.note(simulator.pc() + ',' + simulator.line() + ',' + simulator.file());\n"
            "test.note(simulator.step() + ',' + simulator.pc() + ',' + simulator.endReason());\n"
            "test.note(simulator.step(3) + ',' + simulator.callDepth());\n"
            "test.note(simulator.runTo('done', 3) + ',' + simulator.endReason());\n"
            "test.note(simulator.runTo('done') + ',' + simulator.endReason() + ',' + simulator.pc());\n"
            // It jumps to itself: one instruction further it is reached again.
            "var c = simulator.clocks(); test.note(simulator.runTo('done') + ',' + (simulator.clocks() - c));\n"
            "test.note(simulator.run(1000) + ',' + simulator.endReason());\n"
            "simulator.reset(); test.note(simulator.pc()); test.note(simulator.setPc(2)); test.note(simulator.pc());\n"
            "test.note(simulator.setPc(0x200)); test.note(simulator.pc());\n"
            "test.note(simulator.runToLine('multiply.psm', 30, 1000)); test.note(simulator.line());"),
        QStringList({"true", "true", "0,20," + projectDir() + "/multiply.psm", "1,1,count", "3,1", "false,count",
                     "true,target,3", "true,2", "1000,count", "0", "true", "2", "false", "2", "true", "30"}));
}

TEST_F(ScriptWindow, theSimulatorsStateIsReadAndSet)
{
    EXPECT_EQ(
        notes("open(); processor.select('Xilinx PicoBlaze 6'); assembler.assemble(0); simulator.enable();\n"
              "test.note(simulator.regNames().join()); simulator.setReg('s0', 255); simulator.setReg('SF', 7, 1);\n"
              "test.note([simulator.reg('S0'), simulator.reg('s0', 1), simulator.reg('sf', 1)].join());\n"
              "simulator.setBank(1); test.note(simulator.bank() + ',' + simulator.reg('sF'));\n"
              "simulator.setCarry(true); test.note(simulator.carry() + ',' + simulator.zero());\n"
              "simulator.setZero(true); simulator.setCarry(false); test.note(simulator.carry() + ',' + "
              "simulator.zero());\n"
              "test.note(simulator.scratchpadSize()); simulator.setScratchpad(63, 9); "
              "test.note(simulator.scratchpad(63));\n"
              "simulator.interrupt();"),
        QStringList({"s0,s1,s2,s3,s4,s5,s6,s7,s8,s9,sA,sB,sC,sD,sE,sF", "255,0,7", "1,7", "true,false", "false,true",
                     "64", "9"}));
    for (const char* call : {"reg('s16')",
                             "reg('')",
                             "reg('s0', 2)",
                             "reg('s0', -1)",
                             "setReg('s0', 256)",
                             "setReg('s0', -1)",
                             "setReg('x', 1)",
                             "setBank(2)",
                             "setBank(-1)",
                             "scratchpad(64)",
                             "scratchpad(-1)",
                             "setScratchpad(64, 0)",
                             "setScratchpad(0, 256)",
                             "step(0)",
                             "run(-1)",
                             "runTo('nowhere')",
                             "runTo('done', 0)",
                             "runToLine('none.psm', 1)",
                             "runToLine('multiply.psm', 0)",
                             "runToLine('multiply.psm', 999)"}) {
        const QStringList noted = notes(QString("test.note(failure(function() { simulator.%1; }));").arg(call));
        EXPECT_TRUE(noted.value(0).startsWith("Error: ")) << call << qPrintable(noted.join(' '));
    }
}

TEST_F(ScriptWindow, aRunStopsAtABreakpointAndAStepDoesNot)
{
    const QString source = projectDir() + "/multiply.psm";
    ASSERT_TRUE(run("open(); assembler.assemble(0); editor.setCursorToLine('" + source + "', 22);"));
    module<nsModEditor::ModEditor>()->editorWidgets().last()->setSimBreakpoint(22);
    EXPECT_EQ(notes("simulator.enable(); test.note(simulator.run()); test.note(simulator.endReason() + ',' + "
                    "simulator.line());\n"
                    "simulator.reset(); test.note(simulator.step(5)); test.note(simulator.endReason());"),
              QStringList({"2", "breakpoint,23", "5", "count"}));
}

TEST_F(ScriptWindow, aRunEndsWithAMessageOfTheSimulator)
{
    writeFile("multiply.psm", "start:\n        LOAD s0, 1\n        RDPRT s0, 1\n        JUMP start\n");
    EXPECT_EQ(notes("open(); assembler.assemble(0); simulator.enable(); msg.clearMessages();\n"
                    "test.note(simulator.run(10)); test.note(simulator.endReason());\n"
                    "test.note(msg.errorCount() + msg.warningCount() > 0);"),
              QStringList({"1", "message", "true"}));
}

TEST_F(ScriptWindow, aLongRunOfTheSimulatorIsStoppedWithItsScript)
{
    ASSERT_TRUE(run("open(); assembler.assemble(0); simulator.enable();"));
    QTimer::singleShot(0, window.get(), [this] { trigger("Stop script"); });
    EXPECT_FALSE(run("simulator.run(2147483647); test.note('on'); while (true);"));
    EXPECT_TRUE(hasMessage("The script was stopped."));
    EXPECT_EQ(notes("test.note(simulator.endReason()); test.note(simulator.step());"), QStringList({"stopped", "1"}));
}

TEST_F(ScriptWindow, theUserStopsTheRunAndTheScriptGoesOn)
{
    ASSERT_TRUE(run("open(); assembler.assemble(0); simulator.enable();"));
    auto* shell = dynamic_cast<nsProc::ProcShell*>(module<nsModProcessor::ModProcessor>()->currentProcessor());
    ASSERT_NE(shell, nullptr);
    QTimer::singleShot(0, shell, [shell] { shell->simRun(); });
    EXPECT_EQ(notes("simulator.run(2147483647); test.note(simulator.endReason());"), QStringList("stopped"));
}

TEST_F(ScriptWindow, projectAndProcessorGoDuringARunOfTheSimulator)
{
    ASSERT_TRUE(run("open(); assembler.assemble(0); simulator.enable();"));
    QTimer::singleShot(0, window.get(), [this] { trigger("Close project"); });
    EXPECT_EQ(notes("simulator.run(2147483647); test.note(simulator.endReason()); test.note(simulator.isEnabled());\n"
                    "test.note(failure(function() { simulator.step(); }));"),
              QStringList({"stopped", "false", "Error: The simulator is not enabled."}));
    EXPECT_EQ(notes("open(); assembler.assemble(0); simulator.enable(); test.note(simulator.runTo('done'));"),
              QStringList("true"));
}

TEST_F(ScriptWindow, theAssemblerRunsDuringARunOfTheSimulator)
{
    ASSERT_TRUE(run("open(); assembler.assemble(0); simulator.enable();"));
    QTimer::singleShot(0, window.get(), [this] { trigger("Run assembler"); });
    EXPECT_EQ(notes("simulator.run(2147483647); test.note(simulator.endReason()); test.note(simulator.step());"),
              QStringList({"stopped", "1"}));
}

TEST_F(ScriptWindow, aFunctionOfAScriptDoesNotDisturbARunOfTheUser)
{
    ASSERT_TRUE(run("open(); assembler.assemble(0); simulator.enable();\n"
                    "setTimeout(function() { test.note(failure(function() { simulator.step(); }));\n"
                    "test.note(failure(function() { simulator.disable(); })); test.meanwhile(); }, 0);"));
    auto* shell = dynamic_cast<nsProc::ProcShell*>(module<nsModProcessor::ModProcessor>()->currentProcessor());
    ASSERT_NE(shell, nullptr);
    target.during = [shell] { shell->simDisable(); };
    shell->simRun();
    EXPECT_EQ(target.notes, QStringList({"Error: The simulator is running.", "Error: The simulator is running."}));
    EXPECT_EQ(notes("test.note(simulator.isEnabled());"), QStringList("true"));
}
