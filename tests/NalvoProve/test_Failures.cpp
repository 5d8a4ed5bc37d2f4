// What a proof says where it finds a difference, and where it can not prove anything.

#include "ProveToolFixture.h"

#include <QElapsedTimer>
#include <QJsonArray>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>

namespace {

class ProveFailures : public ProveToolTest
{
protected:
    void SetUp() override
    {
        SKIP_WITHOUT(Language::Verilog);
        writeProgram(Core::PicoBlaze3, "loop:\n"
                                       "        ADD     s0, 0x31\n"
                                       "        ADDC    s1, 0\n"
                                       "        WRPRT   s1, 0x20\n"
                                       "        JUMP    loop\n");
    }

    /// Nothing is proved, and this is said.
    void expectNothing(const QStringList& options, const char* said) const { expectNothing(run(options), said); }
    static void expectNothing(const AsmToolResult& result, const char* said)
    {
        EXPECT_EQ(result.status, 2) << result.out.constData() << result.err.constData();
        EXPECT_EQ(result.out, "");
        EXPECT_TRUE(result.err.contains(said)) << result.err.constData();
    }

    static QString core(Language language = Language::Verilog) { return HdlCore::sourceOf(Core::PicoBlaze3, language); }

    /// The setup of a run whose temporary folders are below the project's.
    AsmToolSetup withTemporary() const
    {
        AsmToolSetup own = setup();
        mkdir("tmp");
        own.env.insert("TMPDIR", path("tmp"));
        return own;
    }

    /// The port list of a PicoBlaze 3.
    static QByteArray shell(const QByteArray& body)
    {
        return "module kcpsm3(output [9:0] address, input [17:0] instruction, output [7:0] port_id, output "
               "write_strobe,\n"
               "  output [7:0] out_port, output read_strobe, input [7:0] in_port, input interrupt,\n"
               "  output interrupt_ack, input reset, input clk);\n" +
               body + "endmodule\n";
    }
};

const char* const noCarry = "{8'h00, pair == ADDC && 1'b0}";
const char* const carry = "{8'h00, pair == ADDC && carry}";

} // namespace

TEST_F(ProveFailures, TheFirstDifferenceIsShownWithItsLineEventsAndStates)
{
    write("kcpsm3.v", changed(Core::PicoBlaze3, Language::Verilog, carry, noCarry));
    const AsmToolResult result = run({"--core", "kcpsm3.v", "p.nalvo"});
    EXPECT_EQ(result.status, 1) << result.err.constData();
    // The sixth sum is the first one that leaves a carry.
    EXPECT_TRUE(result.out.startsWith("different at a.psm:4: W 20 01 @45 in the simulation, W 20 00 @45 in the core\n"))
        << result.out.constData();
    EXPECT_TRUE(result.out.contains("The states differ from clock 44 on, after a.psm:3: register 1 is 01 in the "
                                    "simulation, 00 in the core\n"))
        << result.out.constData();
    EXPECT_TRUE(result.out.contains("\n> W 20 01 @45               W 20 00 @45\n")) << result.out.constData();
    EXPECT_TRUE(result.out.contains("  registers 00: 26 01 00")) << result.out.constData();
}

TEST_F(ProveFailures, TheResultCanBeJson)
{
    AsmToolResult result = run({"--core", core(), "-n", "8", "-f", "json", "p.nalvo"});
    EXPECT_EQ(result.status, 0);
    QJsonObject object = result.objects().last();
    EXPECT_EQ(object.value("result").toString(), "equal");
    EXPECT_EQ(object.value("instructions").toInt(), 8);
    EXPECT_EQ(object.value("events").toInt(), 10);
    EXPECT_EQ(object.value("clocks").toInt(), 16);
    write("kcpsm3.v", changed(Core::PicoBlaze3, Language::Verilog, carry, noCarry));
    result = run({"--core", "kcpsm3.v", "-f", "json", "p.nalvo"});
    EXPECT_EQ(result.status, 1);
    object = result.objects().last();
    EXPECT_EQ(object.value("result").toString(), "different");
    const QJsonObject difference = object.value("difference").toObject();
    EXPECT_EQ(difference.value("place").toString(), "a.psm:4");
    EXPECT_EQ(difference.value("origin").toObject().value("place").toString(), "a.psm:3");
    EXPECT_EQ(difference.value("core").toObject().value("events").toArray().size(), 10);
    EXPECT_EQ(difference.value("core").toObject().value("registers").toArray().at(1).toInt(-1), 0);
    EXPECT_EQ(difference.value("simulation").toObject().value("registers").toArray().at(1).toInt(-1), 1);
}

TEST_F(ProveFailures, AStateThatNoEventShowsIsFound)
{
    write("a.psm", "        ADD     s0, 0xFF\n        ADD     s0, 2\n        ADDC    s1, 0\nloop:   JUMP    loop\n");
    write("kcpsm3.v", changed(Core::PicoBlaze3, Language::Verilog, carry, noCarry));
    const AsmToolResult result = run({"--core", "kcpsm3.v", "-n", "50", "p.nalvo"});
    EXPECT_EQ(result.status, 1) << result.err.constData();
    EXPECT_TRUE(result.out.startsWith(
        "different at a.psm:3: register 1 is 01 in the simulation, 00 in the core\n2 instructions, "))
        << result.out.constData();
}

TEST_F(ProveFailures, TheCoreIsMissing)
{
    expectNothing({"p.nalvo"}, "No source of the core given");
    expectNothing({"--core", "nowhere.v", "p.nalvo"}, "There is no such file or folder with the core: nowhere.v");
    mkdir("empty");
    expectNothing({"--core", "empty", "p.nalvo"}, "No Verilog or VHDL file is in the folder: empty");
    expectNothing({"--core", "a.psm", "p.nalvo"}, "The core must be a file .v, .vhd or .vhdl: a.psm");
    expectNothing({"--core", HdlCore::sourceOf(Core::PicoBlaze6, Language::Verilog), "p.nalvo"},
                  "The project is for PicoBlaze 3, but no module or entity kcpsm3 is in ");
    expectNothing({"--core", core(), "--language", "vhdl", "p.nalvo"}, "but no VHDL entity kcpsm3 is in ");
    write("two/a.v", shell(""));
    write("two/b.v", shell(""));
    expectNothing({"--core", "two", "p.nalvo"},
                  "Several files have a kcpsm3 in Verilog; name the one: two/a.v, two/b.v");
    expectNothing({"--core", core(), "nowhere.nalvo"}, "nowhere.nalvo");
    expectNothing({"--core", core(), "--language", "ada", "p.nalvo"}, "Unknown language: ada");
    expectNothing({"--core", core(), "-n", "0", "p.nalvo"}, "--instructions takes a number from 1 to ");
}

TEST_F(ProveFailures, TheCoreIsNotWhatItShouldBe)
{
    write("k.v", "module kcpsm3(input clk, input reset, output [9:0] address); endmodule\n");
    expectNothing({"--core", "k.v", "p.nalvo"},
                  "kcpsm3 in k.v is not the core of PicoBlaze 3 as it is known: it has no port instruction, in_port, ");
    write("k.v", shell("  assign address = ;\n"));
    expectNothing({"--core", "k.v", "p.nalvo"},
                  "Icarus Verilog does not compile k.v:\nnalvo-prove:     k.v:4: syntax error");
    write("k.v", shell("  other part(.clk(clk));\n"));
    expectNothing({"--core", "k.v", "p.nalvo"}, "Unknown module type: other");
    write("k.v", shell(""));
    expectNothing({"--core", "k.v", "p.nalvo"}, "The core does not execute any instruction after a reset");
    write("k.v", shell("  initial $finish;\n"));
    expectNothing({"--core", "k.v", "p.nalvo"}, "does not run the core");
}

TEST_F(ProveFailures, FilesThatAreNoCores)
{
    QByteArray binary;
    for (quint32 i = 0; i < 50000; ++i)
        binary += char(i * i / 7 + i);
    for (const char* name : {"binary.v", "binary.vhd"}) {
        write(name, binary);
        expectNothing({"--core", name, "p.nalvo"},
                      "The project is for PicoBlaze 3, but no module or entity kcpsm3 is in ");
    }
    write("huge.v", QByteArray((16 << 20) + 1, ' '));
    expectNothing({"--core", "huge.v", "p.nalvo"}, "The file is too large for a core: huge.v");
    mkdir("folder.v");
    expectNothing({"--core", "folder.v", "p.nalvo"}, "No Verilog or VHDL file is in the folder: folder.v");
    // Nobody writes into this pipe: it is not even opened.
    ASSERT_EQ(mkfifo(path("pipe.v").toLocal8Bit().constData(), 0600), 0);
    expectNothing({"--core", "pipe.v", "p.nalvo"}, "The core is neither a file nor a folder: pipe.v");
    if (!HdlCore::isToolThere(Language::Vhdl))
        return;
    write("k.vhd",
          changed(Core::PicoBlaze3, Language::Vhdl, "architecture behaviour of kcpsm3 is", "architecture of is"));
    expectNothing({"--core", "k.vhd", "p.nalvo"}, "ghdl does not compile k.vhd:\nnalvo-prove:     k.vhd:");
}

TEST_F(ProveFailures, AToolThatIsKilledIsNotASlowCore)
{
    const QStringList tools = {"iverilog", "vvp", "sh"};
    for (const char* killed : {"vvp", "iverilog"}) {
        QStringList others = tools;
        others.removeAll(killed);
        QDir(path("bin")).removeRecursively();
        const AsmToolSetup own = withTools(others);
        const QString name = QString("bin/") + killed;
        write(name, "#!/bin/sh\nkill -KILL $$\n");
        ASSERT_TRUE(QFile::setPermissions(path(name), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        expectNothing(run({"--core", core(), "p.nalvo"}, own),
                      QByteArray(killed) == "vvp" ? "Icarus Verilog has died on the core: Killed"
                                                  : "iverilog has died while it compiled the core: Killed");
    }
}

TEST_F(ProveFailures, ADiskThatIsFull)
{
    // The copy of the core, and then what the compiler writes, does not fit any more.
    for (const rlim_t bytes : {rlim_t(3000), rlim_t(30000)}) {
        AsmToolSetup own = withTemporary();
        own.inChild = [bytes] {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit size = {bytes, bytes};
            setrlimit(RLIMIT_FSIZE, &size);
        };
        expectNothing(run({"--core", core(), "p.nalvo"}, own),
                      bytes == 3000 ? "Can not write " : "Icarus Verilog does not ");
        EXPECT_EQ(QDir(path("tmp")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
    }
}

TEST_F(ProveFailures, ATemporaryFolderThatIsNotThereIsNotNeeded)
{
    AsmToolSetup own = setup();
    own.env.insert("TMPDIR", path("nowhere"));
    EXPECT_EQ(run({"--core", core(), "-n", "20", "p.nalvo"}, own).status, 0);
    EXPECT_FALSE(exists("nowhere"));
}

TEST_F(ProveFailures, AProjectWithoutInstructions)
{
    write("a.psm", "; nothing\n");
    expectNothing({"--core", core(), "p.nalvo"}, "not assembled");
    write("p.nalvo", "");
    expectNothing({"--core", core(), "p.nalvo"}, "p.nalvo");
}

TEST_F(ProveFailures, ACoreThatHangsIsEnded)
{
    write("k.v", shell("  integer n; initial begin n = 0; forever n = n + 1; end\n"));
    AsmToolSetup own = setup();
    // The tools inherit what is less than their own limits of processor time.
    own.inChild = [] {
        const rlimit time = {2, 10};
        setrlimit(RLIMIT_CPU, &time);
    };
    expectNothing(run({"--core", "k.v", "p.nalvo"}, own), "The core does not get on: Icarus Verilog has taken ");
}

TEST_F(ProveFailures, APortOfAMico8MayHaveAnotherName)
{
    writeProgram(Core::Mico8,
                 "        NOP\nloop:\n        ADD     r1, 1\n        WRPRT   r1, 3\n        RDPRT   r2, 4\n"
                 "        JUMP    loop\n");
    write("reads.txt", QByteArray("5\n").repeated(100));
    QByteArray core = changed(Core::Mico8, Language::Verilog, "", "");
    core.replace("module lm8 ", "module isp8_core ");
    for (const auto& [from, to] : std::vector<std::pair<const char*, const char*>>{
             {"prom_data", "instr"}, {"prom_en", "prom_enable"}, {"ext_ready", "ext_mem_ready"}, {"rst_n", "resetn"}})
        core.replace(from, to);
    core.replace("input  wire                    intr,",
                 "input  wire                    intr,\n    input wire [3:0] spare,");
    write("k.v", core);
    const QStringList options = {"--core", "k.v", "-n", "60", "--reads", "reads.txt", "--interrupt-at", "7", "p.nalvo"};
    const AsmToolResult result = run(options);
    EXPECT_EQ(result.status, 0) << result.out.constData() << result.err.constData();
    EXPECT_TRUE(result.err.contains("C and Z at the end")) << result.err.constData();
    // What can not be guessed is named.
    write("k.v", QByteArray(core).replace("ext_io_din", "what"));
    expectNothing(options, "isp8_core in k.v is not the core of Mico8 as it is known: it has no port ext_io_din");
}

TEST_F(ProveFailures, ACoreThatEndsOrPrintsIsNoProof)
{
    const QByteArray model =
        changed(Core::PicoBlaze3, Language::Verilog, "endmodule", "  initial #900 $finish;\nendmodule");
    write("k.v", model);
    expectNothing({"--core", "k.v", "p.nalvo"}, "Icarus Verilog has ended before the run was over");
    write("k.v",
          changed(Core::PicoBlaze3, Language::Verilog, "endmodule", "  initial $display(\"hello\");\nendmodule"));
    EXPECT_EQ(run({"--core", "k.v", "-n", "20", "p.nalvo"}).status, 0);
}

TEST_F(ProveFailures, AToolIsMissing)
{
    expectNothing(run({"--core", core(), "p.nalvo"}, withTools({})),
                  "iverilog is not installed: a core in Verilog runs under Icarus Verilog");
    expectNothing(run({"--core", core(Language::Vhdl), "p.nalvo"}, withTools({"iverilog", "vvp"})),
                  "ghdl is not installed: a core in VHDL runs under ghdl");
}

TEST_F(ProveFailures, PathsMayHaveBlanksAndQuotes)
{
    for (const Language language : allLanguages) {
        if (!HdlCore::isToolThere(language))
            continue;
        const QString folder = QString::fromUtf8("it's a \"core\" of k\u00fcpf $HOME");
        const QString name = folder + (language == Language::Verilog ? "/my core.v" : "/my core.vhd");
        write(name, changed(Core::PicoBlaze3, language, "", ""));
        EXPECT_EQ(run({"--core", name, "-n", "20", "p.nalvo"}).status, 0);
        AsmToolSetup other = setup();
        mkdir("t m p");
        other.env.insert("TMPDIR", path("t m p"));
        EXPECT_EQ(run({"--core", name, "-n", "20", "p.nalvo"}, other).status, 0);
    }
}

TEST_F(ProveFailures, AFolderHasWhatTheCoreUsesAndOtherThings)
{
    QByteArray source = changed(Core::PicoBlaze3, Language::Verilog, "endmodule", "  helper part();\nendmodule");
    write("f/deep/k.v", source);
    write("f/helper.v", "module helper; endmodule\n");
    write("f/template.v", "{begin template} module {name}; endmodule\n");
    EXPECT_EQ(run({"--core", "f", "-n", "20", "p.nalvo"}).status, 0);
    // The language for which all is there.
    QFile::remove(path("f/helper.v"));
    write("f/k.vhd", changed(Core::PicoBlaze3, Language::Vhdl, "", ""));
    if (HdlCore::isToolThere(Language::Vhdl)) {
        const AsmToolResult result = run({"--core", "f", "-n", "20", "p.nalvo"});
        EXPECT_EQ(result.status, 0) << result.err.constData();
        EXPECT_TRUE(result.err.contains("k.vhd under ghdl")) << result.err.constData();
    }
}

TEST_F(ProveFailures, NothingIsLeftBehind)
{
    const AsmToolSetup own = withTemporary();
    EXPECT_EQ(run({"--core", core(), "-n", "20", "p.nalvo"}, own).status, 0);
    write("k.v", shell("  assign address = ;\n"));
    EXPECT_EQ(run({"--core", "k.v", "p.nalvo"}, own).status, 2);
    EXPECT_EQ(QDir(path("tmp")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
}

TEST_F(ProveFailures, ASignalEndsARunWithItsChildren)
{
    // A core that never gets on: it tells that it runs by a file.
    write("k.v", shell("  integer f; initial begin f = $fopen(\"" + path("runs").toUtf8() +
                       "\", \"w\"); $fclose(f); forever f = f + 1; end\n"));
    for (const int signal : {SIGINT, SIGTERM}) {
        QFile::remove(path("runs"));
        const AsmToolSetup own = withTemporary();
        ToolProcess process;
        process.setup(own.program, {"--core", "k.v", "p.nalvo"}, own);
        process.start();
        ASSERT_TRUE(process.waitForStarted(-1));
        // Whatever the machine does: the file comes.
        while (!exists("runs") && !process.waitForFinished(20)) {
        }
        ASSERT_TRUE(exists("runs")) << process.readAllStandardError().constData();
        ::kill(pid_t(process.processId()), signal);
        ASSERT_TRUE(process.waitForFinished(-1));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(process.exitCode(), 130);
        EXPECT_EQ(QDir(path("tmp")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot), QStringList());
        // No process has the temporary folder as its own any more.
        for (const QString& pid : QDir("/proc").entryList(QDir::Dirs)) {
            const QString folder = QFile::symLinkTarget("/proc/" + pid + "/cwd");
            EXPECT_FALSE(folder.startsWith(path("tmp"))) << pid.toStdString();
        }
    }
}

TEST_F(ProveFailures, ProgramsThatTheBenchCanNotRunAreRefused)
{
    write("a.psm", "        NONSENSE\n");
    expectNothing({"--core", core(), "p.nalvo"}, "not assembled");
}

TEST_F(ProveFailures, HelpSaysWhatACoreCanDo)
{
    const AsmToolResult result = run({"--help"});
    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(result.out.contains("give it only files that you trust")) << result.out.constData();
}
