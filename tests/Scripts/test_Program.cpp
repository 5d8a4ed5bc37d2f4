// The program as a process, with a script on its command line and no display.

#include "ExampleFolder.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace {

const int patience = 120000; // ms; only reached when something hangs

struct ProgramResult
{
    int status = -1; ///< -1: killed, or never ended
    QString out;
    QString err;
};

class ScriptProgram : public ::testing::Test
{
protected:
    QString write(const QByteArray& text, const QString& name = "s.js") const
    {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(text), text.size());
        return file.fileName();
    }
    ProgramResult run(const QStringList& arguments, const QString& stdoutFile = QString()) const
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        QDir(folder.path()).mkpath("home/runtime");
        for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
            environment.insert(name, folder.filePath("home"));
        environment.insert("QT_QPA_PLATFORM", "offscreen");
        // The window lives until the process ends.
        environment.insert("ASAN_OPTIONS", "detect_leaks=0");
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder.path());
        if (!stdoutFile.isEmpty())
            process.setStandardOutputFile(stdoutFile);
        process.start(QStringLiteral(NALVO_PROGRAM), arguments);
        ProgramResult result;
        if (!process.waitForFinished(patience)) {
            ADD_FAILURE() << "no end: " << process.readAllStandardOutput().constData()
                          << process.readAllStandardError().constData();
            process.kill();
            process.waitForFinished();
            return result;
        }
        if (process.exitStatus() == QProcess::NormalExit)
            result.status = process.exitCode();
        result.out = QString::fromUtf8(process.readAllStandardOutput());
        result.err = QString::fromUtf8(process.readAllStandardError());
        return result;
    }
    /// Runs an example in a copy of its folder.
    ProgramResult runExample(const QString& name) const
    {
        copyFolder(NALVO_SOURCE_DIR "/examples/scripts", folder.filePath("scripts"));
        return run({"-s", folder.filePath("scripts/" + name)});
    }
    QByteArray content(const QString& name) const
    {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder;
};

} // namespace

TEST_F(ScriptProgram, theExampleThatAssembles)
{
    const ProgramResult result = runExample("assemble.js");
    EXPECT_EQ(result.status, 0) << qPrintable(result.err);
    EXPECT_EQ(result.out, "0 errors, 0 warnings\n"
                          "written: multiply.hex\n"
                          "17 instructions, \"multiply\" at address 2\n"
                          "PASS\n");
    // LOAD s0, 12 and LOAD s1, 7.
    EXPECT_EQ(content("scripts/multiply/output/multiply.hex").left(12), "0000C\n00107\n");
}

TEST_F(ScriptProgram, theExampleThatAssemblesReportsErrors)
{
    copyFolder(NALVO_SOURCE_DIR "/examples/scripts", folder.filePath("scripts"));
    write("start:\n        LOAD s0, 1\n        NONSENSE\n", "scripts/multiply/multiply.psm");
    const ProgramResult result = run({"-s", folder.filePath("scripts/assemble.js")});
    EXPECT_EQ(result.status, 0);
    const QStringList lines = result.out.split('\n');
    ASSERT_GE(lines.size(), 3) << qPrintable(result.err);
    EXPECT_TRUE(lines[0].startsWith("multiply.psm:3: error: ")) << qPrintable(result.out);
    EXPECT_EQ(lines[1], "1 errors, 0 warnings");
    EXPECT_EQ(lines[2], "FAIL");
}

TEST_F(ScriptProgram, theExampleThatSimulates)
{
    const ProgramResult result = runExample("simulate.js");
    EXPECT_EQ(result.status, 0) << qPrintable(result.err);
    EXPECT_EQ(result.out, "12 * 7 = 84 in 118 clocks\n"
                          "0 * 0 = 0 in 106 clocks\n"
                          "255 * 255 = 65025 in 138 clocks\n"
                          "1 * 200 = 200 in 118 clocks\n"
                          "128 * 2 = 256 in 110 clocks\n"
                          "PASS\n");
}

TEST_F(ScriptProgram, theExampleThatSimulatesFindsAFault)
{
    copyFolder(NALVO_SOURCE_DIR "/examples/scripts", folder.filePath("scripts"));
    QByteArray source = content("scripts/multiply/multiply.psm");
    ASSERT_EQ(source.count("ADDC    productHi, 0"), 1);
    source.replace("ADDC    productHi, 0", "ADDC    productHi, 1");
    write(source, "scripts/multiply/multiply.psm");
    const ProgramResult result = run({"-s", folder.filePath("scripts/simulate.js")});
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.out.contains("FAIL: 12 * 7 is ")) << qPrintable(result.out);
    EXPECT_TRUE(result.out.endsWith("FAIL: 4\n")) << qPrintable(result.out);
}

TEST_F(ScriptProgram, theExampleThatSwitchesTheProcessor)
{
    const ProgramResult result = runExample("processors.js");
    EXPECT_EQ(result.status, 0) << qPrintable(result.err);
    EXPECT_EQ(result.out, "of the project: Xilinx PicoBlaze 3\n"
                          "Lattice Mico8 v3.x: 16 instructions, 122 clocks, product 84\n"
                          "Xilinx PicoBlaze 3: 17 instructions, 122 clocks, product 84\n"
                          "Xilinx PicoBlaze 6: 17 instructions, 122 clocks, product 84\n");
    QFile before(NALVO_SOURCE_DIR "/examples/scripts/multiply/multiply.nalvo");
    ASSERT_TRUE(before.open(QIODevice::ReadOnly));
    EXPECT_EQ(content("scripts/multiply/multiply.nalvo"), before.readAll());
}

TEST_F(ScriptProgram, anExitBeforeTheEventLoopLeavesTheProgramUp)
{
    const QString script = write("app.exit();\n"
                                 "print('still here');\n"
                                 "setTimeout(function() { print('still up'); app.exit(); }, 0);\n");
    const ProgramResult result = run({"-s", script});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "still here\nstill up\n");
}

TEST_F(ScriptProgram, aScriptBesideAProjectFindsItOpen)
{
    copyFolder(NALVO_SOURCE_DIR "/examples/scripts/multiply", folder.filePath("multiply"));
    const QString script = write("setTimeout(function() { app.exit(); }, 0);\n"
                                 "print(project.isOpen(), project.path());\n"
                                 "project.close();\n"
                                 "print(project.isOpen(), '<' + project.path() + '>');\n");
    const ProgramResult result = run({folder.filePath("multiply/multiply.nalvo"), "-s", script});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "true " + folder.filePath("multiply/multiply.nalvo") + "\nfalse <>\n");
}

TEST_F(ScriptProgram, aScriptThatFailsSaysSoOnStandardErrorAndHangsInNoDebugger)
{
    const QString script = write("setTimeout(function() { app.exit(); }, 0);\ndebugger;\nnobody();\n");
    const ProgramResult result = run({"-s", script});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, QString());
    EXPECT_TRUE(result.err.contains("Uncaught exception at line 3 - ReferenceError: Can't find variable: nobody\n"))
        << qPrintable(result.err);
}

TEST_F(ScriptProgram, theWindowCanBeClosedByAScript)
{
    const QString script = write("app.close();\nwhile (true);\n");
    const ProgramResult result = run({"-s", script});
    EXPECT_EQ(result.status, 0);
    // Unlike an exit, a close saves the settings.
    EXPECT_TRUE(QFile::exists(folder.filePath("home/Brelmont/Nalvo.ini"))) << qPrintable(result.err);
}

// Without a display nobody answers a question: the script must not wait for it.
TEST_F(ScriptProgram, whatOnlyAUserCanAllowIsNotDone)
{
    QDir(folder.path()).mkpath("other");
    QDir(folder.path()).mkpath("foreign");
    write("start: JUMP start\n", "foreign/p.psm");
    const QString outside = QDir(folder.filePath("other")).canonicalPath() + "/out.hex";
    write("<project version=\"3\"><sources><srcFiles>p.psm</srcFiles></sources><AsmFe><target>"
          "<vhdl><en>0</en></vhdl><verilog><en>0</en></verilog><mem><en>0</en></mem><hex><en>1</en>"
          "<writeFileEventBut1>1</writeFileEventBut1><writeFileEventBut2>0</writeFileEventBut2>"
          "<outputFile>../other/out.hex</outputFile></hex></target></AsmFe>"
          "<ModProcessor><processor>Xilinx PicoBlaze 3</processor></ModProcessor><Syscall>"
          "<syscall0ExecEventBut2>1</syscall0ExecEventBut2><syscall0StoreRelToPrj>0</syscall0StoreRelToPrj>"
          "<syscall0Exe>/bin/touch</syscall0Exe><syscall0Arg>ran by-the-project</syscall0Arg></Syscall></project>\n",
          "foreign/p.nalvo");
    const QString script = write("project.open(scriptDir + '/foreign/p.nalvo');\n"
                                 "[1, 2, 1, 2].forEach(function(button) {\n"
                                 "    assembler.assemble(button);\n"
                                 "    msg.messages().forEach(function(message) {\n"
                                 "        if (message.grade === 'error') print(message.text);\n"
                                 "    });\n"
                                 "});\n"
                                 "app.close();\n");
    const ProgramResult result = run({"-s", script});
    EXPECT_EQ(result.status, 0);
    const QString command = "/bin/touch \"ran\" \"by-the-project\"\n";
    const QString shown =
        "Output file outside of the project's folder is not allowed: " + folder.filePath("foreign/../other/out.hex") +
        " (nobody can be asked)\n"
        "Nobody can be asked whether this program may run, so it does not run: " +
        command;
    EXPECT_EQ(result.out, shown + shown) << qPrintable(result.err);
    const QString start = ": nobody can be asked, so this is not allowed: ";
    EXPECT_EQ(result.err.count(start + outside + '\n'), 2) << qPrintable(result.err);
    EXPECT_EQ(result.err.count(start + command), 2) << qPrintable(result.err);
    EXPECT_FALSE(QFile::exists(outside));
    EXPECT_FALSE(QFile::exists(folder.filePath("foreign/ran")));
    EXPECT_TRUE(QFile::exists(folder.filePath("home/Brelmont/Nalvo.ini")));
    EXPECT_FALSE(content("home/Brelmont/Nalvo.ini").contains("[Consent]")) << "nobody has answered";
}

// The question for a text that is not saved, at the end. The text is kept for the next start.
TEST_F(ScriptProgram, aQuestionIsAnsweredAsByEsc)
{
    const QString script = write("editor.newFile('only here\\n');\napp.close();\n");
    const ProgramResult result = run({"-s", script});
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.err.contains("Nobody can answer this: File was modified: The file was changed."))
        << qPrintable(result.err);
    EXPECT_TRUE(QFile::exists(folder.filePath("home/Brelmont/Nalvo.ini")));
    bool isKept = false;
    QDirIterator files(folder.filePath("home"), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        isKept = (file.open(QIODevice::ReadOnly) && file.readAll().contains("only here")) || isKept;
    }
    EXPECT_TRUE(isKept);
}

TEST_F(ScriptProgram, anOutputThatTakesNothingIsAScriptError)
{
    const QString script = write("setTimeout(function() { app.exit(); }, 0);\nprint('lost');\n");
    const ProgramResult result = run({"-s", script}, "/dev/full");
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.err.contains("Can not write to the standard output.")) << qPrintable(result.err);
}

TEST_F(ScriptProgram, printWritesUtf8)
{
    const QString script =
        write("setTimeout(function() { app.exit(); }, 0);\nprint(); print('gr\xC3\xBC\xC3\x9F', 1, true, null);\n");
    EXPECT_EQ(run({"-s", script}).out, QString::fromUtf8("\ngr\xC3\xBC\xC3\x9F 1 true null\n"));
}
