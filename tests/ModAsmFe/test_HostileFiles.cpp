// Files that are not what they should be: sources, templates and outputs.

#include "ChildProcess.h"
#include "HostileRun.h"

#include <gtest/gtest.h>

#include <QDir>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <thread>

using namespace nsModAsmFe;

namespace {

const QByteArray program = "start: LOAD s0, 1\n JUMP start\n";

void makeFifo(const QString& path)
{
    ASSERT_EQ(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
}

/// Assembles with one source beside a good one. @return what is wrong, or an empty text
QString runWithSource(const QString& file)
{
    AsmFixture f;
    f.open();
    f.setSources({program});
    f.sources.srcFiles.append(file);
    f.asmFe.assemble(ModAsmFe::eEventSave);
    if (f.asmFe.isAssembled() || f.errors() != QStringList("errFileRead"))
        return "unexpected: " + f.msg.errors().join(" / ");
    if (f.msg.errors().first() != "Can not read file: " + file)
        return "unexpected: " + f.msg.errors().first();
    // What was read before stays.
    if (f.asmFe.opcodeList()->count() != 2 || f.callsStartingWith("open ").last() != "open grpParsingFiles")
        return QString("the run went on");
    return brokenRule(f);
}

TEST(HostileSourceFiles, thatAreNone)
{
    const AsmFixture f;
    makeFifo(f.path("fifo"));
    QFile::link("loop", f.path("loop"));
    QFile::link("nowhere", f.path("dangling"));
    for (const QString& file :
         {QString("/dev/zero"), QString("/dev/null"), f.path("fifo"), f.path("loop"), f.path("dangling"),
          QDir::tempPath(), f.path("missing"), QString("relative.psm"), QString(""), QString("\n"),
          QString("/proc/self/mem"), f.path(QString(300, 'x')), QString(5000, '/')}) {
        SCOPED_TRACE(file.left(100).toStdString());
        expectGoodEnd([&] { return runWithSource(file); }, 10, 100);
    }
}

TEST(HostileSourceFiles, unreadable)
{
    const AsmFixture f;
    const QString file = f.write("secret.psm", program);
    chmod(QFile::encodeName(file).constData(), 0);
    // Nobody keeps root from reading it.
    if (QFile(file).open(QIODevice::ReadOnly))
        EXPECT_EQ(geteuid(), 0u);
    else
        EXPECT_EQ(runWithSource(file), QString());
}

TEST(HostileSourceFiles, deletedAfterOpening)
{
    AsmFixture f;
    EXPECT_TRUE(f.run(program));
    QFile::remove(f.path("src0.psm"));
    f.asmFe.assemble(ModAsmFe::eEventSave);
    EXPECT_EQ(f.errors(), QStringList("errFileRead"));
    EXPECT_EQ(f.asmFe.opcodeList()->count(), 0);
    EXPECT_TRUE(f.calls.contains("be.setAssembled 0"));
}

/// The kinds of output.
struct Kind
{
    const char* name;
    const char* openError;
    bool hdl;
};

const Kind kinds[] = {{"vhdl", "Can not open destination file: ", true},
                      {"verilog", "Can not open destination file: ", true},
                      {"hex", "Can not open output file: ", false},
                      {"mem", "Can not open output file: ", false}};

class HostileOutput : public ::testing::TestWithParam<Kind>
{
protected:
    HostileOutput()
    {
        f.open();
        templateFile = f.write("template", templateText);
    }

    TargetConfig* config()
    {
        const QString kind = GetParam().name;
        if (kind == "vhdl")
            return &f.asmFe.targets[kindVhdl];
        if (kind == "verilog")
            return &f.asmFe.targets[kindVerilog];
        return kind == "hex" ? &f.asmFe.targets[kindHex] : &f.asmFe.targets[kindMem];
    }

    /// Assembles with this output file. @return the errors
    QStringList write(const QString& file)
    {
        config()->en = true;
        config()->outputFile = file;
        for (TargetVhdlConfig* hdl : {&f.asmFe.targets[kindVhdl], &f.asmFe.targets[kindVerilog]}) {
            hdl->entityName = "rom";
            hdl->templateFile = templateFile;
        }
        f.run(program, ModAsmFe::eEventButton1);
        EXPECT_EQ(f.asmFe.runSucceeded(), f.msg.errors().isEmpty());
        EXPECT_EQ(f.asmFe.writtenFiles().contains(file), f.msg.errors().isEmpty());
        EXPECT_EQ(f.callsStartingWith("syscall").isEmpty(), !f.msg.errors().isEmpty());
        EXPECT_TRUE(f.msg.openGroups.isEmpty());
        return f.msg.errors();
    }

    const QByteArray templateText = "{begin template}\n{INIT_00}\n";
    AsmFixture f;
    QString templateFile;
};

TEST_P(HostileOutput, goodFile)
{
    EXPECT_EQ(write(f.path("out")), QStringList());
    EXPECT_FALSE(f.read("out").isEmpty());
    // Nothing is left of a longer file that was there before.
    const QByteArray text = f.read("out");
    f.write("out", QByteArray(100000, 'x'));
    EXPECT_EQ(write(f.path("out")), QStringList());
    EXPECT_EQ(f.read("out"), text);
}

TEST_P(HostileOutput, fullDisk)
{
    const QStringList errors = write("/dev/full");
    ASSERT_EQ(errors.size(), 1);
    EXPECT_TRUE(errors.first().startsWith("Can not write output file: /dev/full (")) << errors.first().toStdString();
}

TEST_P(HostileOutput, fullDiskForALargeFile)
{
    f.be.pageSize = 65536;
    if (GetParam().hdl) {
        QByteArray text = "{begin template}\n";
        for (int i = 0; i < 4096; ++i)
            text += "{INIT_" + QByteArray::number(i, 16) + "}\n";
        f.write("template", text);
    }
    const QStringList errors = write("/dev/full");
    ASSERT_EQ(errors.size(), 1);
    EXPECT_TRUE(errors.first().startsWith("Can not write output file: /dev/full (")) << errors.first().toStdString();
    EXPECT_EQ(write("/dev/null"), QStringList());
}

TEST_P(HostileOutput, placesWhereNoFileCanBe)
{
    QDir(f.path("")).mkdir("folder");
    QFile::link("loop", f.path("loop"));
    for (const QString& file : {f.path("missing/out"), f.path("folder"), f.path("test.nalvo/out"), f.path("loop"),
                                f.path(QString(300, 'x')), QString("/proc/out"), QString("/")}) {
        EXPECT_EQ(write(file), QStringList(GetParam().openError + file));
    }
    EXPECT_TRUE(QFileInfo(f.path("folder")).isDir());
}

TEST_P(HostileOutput, aPipeThatNobodyReads)
{
    makeFifo(f.path("pipe"));
    f.be.pageSize = 65536;
    if (GetParam().hdl)
        f.write("template", "{begin template}\n" + QByteArray("{INIT_00}\n").repeated(5000));
    expectGoodEnd(
        [this] {
            const QStringList errors = write(f.path("pipe"));
            return errors == QStringList(GetParam().openError + f.path("pipe")) ? QString()
                                                                                : "unexpected: " + errors.join(" / ");
        },
        10, 100);
}

TEST_P(HostileOutput, aPipeThatIsRead)
{
    makeFifo(f.path("pipe"));
    f.be.pageSize = GetParam().hdl ? 16 : 65536;
    EXPECT_EQ(write(f.path("out")), QStringList());
    QByteArray bytes;
    std::thread reader([&] { bytes = f.read("pipe"); });
    // The pipe has a reader as soon as the other side waits for a writer.
    int fd = -1;
    while ((fd = open(QFile::encodeName(f.path("pipe")).constData(), O_WRONLY | O_NONBLOCK)) < 0)
        std::this_thread::yield();
    EXPECT_EQ(write(f.path("pipe")), QStringList());
    close(fd);
    reader.join();
    EXPECT_EQ(bytes, f.read("out"));
}

TEST_P(HostileOutput, filesOfTheProjectAreNotOverwritten)
{
    QFile::link(f.path("src0.psm"), f.path("link"));
    QDir(f.path("")).mkdir("sub");
    const QByteArray project = f.read("test.nalvo");
    for (const char* name : {"src0.psm", "test.nalvo", "link", "sub/../src0.psm", "./test.nalvo"}) {
        EXPECT_EQ(write(f.path(name)),
                  QStringList("Output file would overwrite a file of the project: " + f.path(name)));
        EXPECT_EQ(f.read("src0.psm"), program);
        EXPECT_EQ(f.read("test.nalvo"), project);
    }
}

TEST_P(HostileOutput, templateIsNotOverwritten)
{
    f.asmFe.targets[kindVhdl].en = true;
    f.asmFe.targets[kindVhdl].outputFile = f.path("other.vhd");
    for (const QString& file : {templateFile, f.path("./template")}) {
        const QStringList errors = write(file);
        ASSERT_EQ(errors.size(), 1);
        EXPECT_TRUE(errors.first().endsWith(file)) << errors.first().toStdString();
        EXPECT_EQ(f.read("template"), templateText);
    }
}

TEST_P(HostileOutput, twoKindsInOneFile)
{
    f.asmFe.targets[kindHex].en = f.asmFe.targets[kindMem].en = true;
    f.asmFe.targets[kindHex].outputFile = f.asmFe.targets[kindMem].outputFile = f.path("same");
    config()->en = true;
    config()->outputFile = f.path("same");
    for (TargetVhdlConfig* hdl : {&f.asmFe.targets[kindVhdl], &f.asmFe.targets[kindVerilog]}) {
        hdl->entityName = "rom";
        hdl->templateFile = templateFile;
    }
    f.run(program, ModAsmFe::eEventButton1);
    EXPECT_FALSE(f.asmFe.runSucceeded());
    EXPECT_TRUE(f.msg.errors().contains("Output file was already written in this run: " + f.path("same")));
    EXPECT_EQ(f.asmFe.writtenFiles(), QStringList(f.path("same")));
}

TEST_P(HostileOutput, unusableTemplates)
{
    if (!GetParam().hdl)
        return;
    makeFifo(f.path("pipe"));
    for (const QString& file :
         {f.path("missing"), QDir::tempPath(), f.path("pipe"), QString("/dev/zero"), QString("/proc/self/mem")}) {
        templateFile = file;
        f.write("out", "old contents");
        expectGoodEnd(
            [&] {
                const QStringList errors = write(f.path("out"));
                if (errors != QStringList("Can not open template file: " + file))
                    return "unexpected: " + errors.join(" / ");
                return f.read("out") == "old contents" ? QString() : QString("the output is gone");
            },
            10, 100);
    }
}

TEST_P(HostileOutput, oddTemplates)
{
    if (!GetParam().hdl)
        return;
    const QList<QByteArray> texts = {
        "{begin template}\n{INIT_00}\n{INIT_FFFFFFFFFFFFFFFF}{INIT_}{INIT_-1}{INITP_7FFFFFFF}{[17:9]_INITP_80000000}\n",
        "{begin template}\n" + QByteArray("{INIT_00}").repeated(20000),
        "{begin template}\n{INIT_00}\n" + QByteArray(2 << 20, '{') + "\n" + QByteArray("{INIT_").repeated(200000),
        "{begin template}\n{INIT_00}\n" + QByteArray(4 << 20, 0) + "\n\xff\xfe\n",
        QByteArray(2 << 20, 'x') + "{BEGIN TEMPLATE}\n{init_0}",
    };
    for (const QByteArray& text : texts) {
        f.write("template", text);
        expectGoodEnd(
            [&] {
                const QStringList errors = write(f.path("out"));
                return errors.isEmpty() ? QString() : "unexpected: " + errors.join(" / ").left(500);
            },
            10, 300);
    }
    f.write("template", "");
    EXPECT_EQ(write(f.path("empty")), QStringList("Opcode at address 0 was not written to file!"));
}

INSTANTIATE_TEST_SUITE_P(kinds, HostileOutput, ::testing::ValuesIn(kinds),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(HostileDeviceFiles, targetOfADeviceIsTheSource)
{
    AsmFixture f;
    const QByteArray source = "#SET IODEV::d::EN, TRUE\n#SET IODEV::d::SIZE, 4\n#SET IODEV::d::HEXEN, TRUE\n"
                              "#SET IODEV::d::HEXTARGETFILE, \"src0.psm\"\n LOAD s0, 1\n";
    f.run(source, ModAsmFe::eEventButton1);
    EXPECT_FALSE(f.asmFe.runSucceeded());
    EXPECT_EQ(f.read("src0.psm"), source);
}

TEST(HostileDeviceFiles, noRunTouchesFilesBeforeItHasSucceeded)
{
    AsmFixture f;
    f.open();
    f.write("out.hex", "old contents");
    f.asmFe.targets[kindHex].en = true;
    f.asmFe.targets[kindHex].outputFile = f.path("out.hex");
    f.run(" NONSENSE\n", ModAsmFe::eEventButton1);
    EXPECT_EQ(f.read("out.hex"), QByteArray("old contents"));
}

} // namespace
