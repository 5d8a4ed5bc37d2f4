// Images for tools of vendors: what such a tool reads must be the words of the program.

#include "AsmToolFixture.h"
#include "ImageReaders.h"

#include <QStandardPaths>

#include <unistd.h>

using namespace nsImage;

namespace {

/// A memory of a processor.
struct sMemory_t
{
    const char* name; ///< of the test
    const char* processor;
    const char* key; ///< of the processor's settings
    int words;
    int pages;
};

void PrintTo(const sMemory_t& memory, std::ostream* stream)
{
    *stream << memory.name;
}

const sMemory_t memories[] = {
    {"Mico8_256", "Lattice Mico8 v3.x", "LMico8v3x", 256, 1},
    {"PicoBlaze3_1024", "Xilinx PicoBlaze 3", "XPBlze3", 1024, 1},
    {"PicoBlaze3_TwoPages", "Xilinx PicoBlaze 3", "XPBlze3", 1024, 2},
    {"PicoBlaze6_2048", "Xilinx PicoBlaze 6", "XPBlze6", 2048, 1},
    {"PicoBlaze6_4096", "Xilinx PicoBlaze 6", "XPBlze6", 4096, 1},
    {"PicoBlaze6_1024", "Xilinx PicoBlaze 6", "XPBlze6", 1024, 1},
    {"Mico8_1024", "Lattice Mico8 v3.x", "LMico8v3x", 1024, 1},
};

class AsmToolImages : public AsmToolTest
{
protected:
    /// Writes a project with the program in several pieces, holes between them, and the hex file of it.
    void writeProgram(const sMemory_t& memory)
    {
        AsmProject project;
        project.processor = memory.processor;
        project.settings[QString(memory.key) + "/memMap/pageSize"] = QString::number(memory.words);
        project.output("hex", "words.hex");
        writeProject(project);
        const QString reg = QString(memory.processor).contains("Mico8") ? "r" : "s";
        const auto pieces = [&](int page, const QVector<int>& starts) {
            QString text;
            for (int start : starts) {
                text += QString("#ORG ADDR, %1\n").arg(start);
                for (int i = 0; i < 20; ++i)
                    text += QString(" LOAD %1%2, %3\n").arg(reg).arg(i % 8).arg((start * 7 + i * 13 + page) % 256);
            }
            return text;
        };
        const QVector<int> starts = {0, memory.words / 4 + 3, memory.words / 2};
        QString source;
        if (memory.pages > 1) {
            source += QString("#SET INSTMEM::PAGECOUNT, %1\n#SET INSTMEM::SHAREDMEMLOCATION, HIMEM\n"
                              "#ORG MEMRANGE, SHARED\n%2")
                          .arg(memory.pages)
                          .arg(pieces(7, {memory.words - 20}));
            for (int page = 0; page < memory.pages; ++page)
                source += QString("#ORG MEMRANGE, PAGE%1\n").arg(page) + pieces(page, starts);
        } else {
            source = pieces(0, starts + QVector<int>{memory.words - 20});
        }
        write("a.psm", source.toLatin1());
    }

    /// The words of the program, from the hex file of the same run, after all these outputs were written.
    Words writeOutputs(const QStringList& outputs)
    {
        QStringList arguments;
        for (const QString& output : outputs)
            arguments << "-o" << output;
        const AsmToolResult result = run(arguments + QStringList("p.nalvo"));
        EXPECT_EQ(result.status, 0) << result.err.constData();
        return readHex(read("words.hex"));
    }

    /// What a tool of the system prints or writes; an empty text if it fails.
    bool callTool(const QString& tool, const QStringList& arguments)
    {
        AsmToolSetup call = setup();
        call.program = QStandardPaths::findExecutable(tool);
        EXPECT_FALSE(call.program.isEmpty()) << tool.toStdString() << " is not installed";
        const AsmToolResult result = AsmToolTest::run(arguments, call);
        EXPECT_EQ(result.status, 0) << result.err.constData();
        return result.status == 0;
    }

    void expectWrong(const QString& output, const QString& reason)
    {
        const AsmToolResult result = run({"-o", output, "p.nalvo"});
        EXPECT_EQ(result.status, 2) << output.toStdString();
        EXPECT_EQ(result.errLines().value(0), "nalvo-asm: " + reason);
    }
};

class AsmToolImagesOf : public AsmToolImages, public ::testing::WithParamInterface<sMemory_t>
{
};

INSTANTIATE_TEST_SUITE_P(Memories, AsmToolImagesOf, ::testing::ValuesIn(memories),
                         [](const auto& memory) { return std::string(memory.param.name); });

TEST_P(AsmToolImagesOf, AllReadBackAsTheWordsOfTheProgram)
{
    writeProgram(GetParam());
    const Words words = writeOutputs(
        {"mif=a.mif", "coe=a.coe", "binary=little.bin", "binary:big=big.bin", "binary:32=wide.bin", "ihex=little.ihex",
         "ihex:big=big.ihex", "ihex:words=words.ihex", "ihex:32=wide.ihex", "ram=halves.mem", "ram:whole=whole.mem"});
    ASSERT_EQ(words.size(), GetParam().words * GetParam().pages);
    const Mif mif = readMif(read("a.mif"));
    EXPECT_EQ(mif.width, 18);
    EXPECT_EQ(mif.words, words);
    EXPECT_EQ(readCoe(read("a.coe")), words);
    EXPECT_EQ(wordsOf(read("little.bin"), 3, false), words);
    EXPECT_EQ(wordsOf(read("big.bin"), 3, true), words);
    EXPECT_EQ(wordsOf(read("wide.bin"), 4, false), words);
    EXPECT_EQ(readIntelHex(read("little.ihex")), read("little.bin"));
    EXPECT_EQ(readIntelHex(read("big.ihex")), read("big.bin"));
    EXPECT_EQ(readIntelHex(read("wide.ihex")), read("wide.bin"));
    const QMap<quint32, QByteArray> records = readIntelHexRecords(read("words.ihex"));
    const QMap<quint32, quint32> halves = readRamMem(read("halves.mem"), 1);
    const QMap<quint32, quint32> whole = readRamMem(read("whole.mem"), 2);
    ASSERT_EQ(records.size(), words.size());
    ASSERT_EQ(halves.size(), 2 * words.size());
    ASSERT_EQ(whole.size(), words.size());
    const quint32 size = quint32(words.size());
    for (quint32 addr = 0; addr < size; ++addr) {
        const quint32 word = words[int(addr)];
        ASSERT_EQ(wordsOf(records.value(addr), 3, true), Words({word})) << addr;
        ASSERT_EQ(halves.value(addr) | halves.value(size + addr) << 9, word) << addr;
        ASSERT_LT(halves.value(addr), 512u);
        ASSERT_LT(halves.value(size + addr), 512u);
        ASSERT_EQ(whole.value(2 * addr, 0xffffffff), word) << addr;
    }
}

TEST_P(AsmToolImagesOf, OtherProgramsReadThemAlike)
{
    writeProgram(GetParam());
    writeOutputs({"mif=a.mif", "binary=a.bin", "ihex=a.ihex", "ihex:32=wide.ihex", "binary:32=wide.bin"});
    ASSERT_TRUE(callTool("objcopy", {"-I", "ihex", "-O", "binary", "a.ihex", "objcopy.bin"}));
    EXPECT_EQ(read("objcopy.bin"), read("a.bin"));
    ASSERT_TRUE(callTool("objcopy", {"-I", "ihex", "-O", "binary", "wide.ihex", "objcopy_wide.bin"}));
    EXPECT_EQ(read("objcopy_wide.bin"), read("wide.bin"));
    ASSERT_TRUE(callTool("srec_cat", {"a.ihex", "-intel", "-o", "srec_ihex.bin", "-binary"}));
    EXPECT_EQ(read("srec_ihex.bin"), read("a.bin"));
    ASSERT_TRUE(callTool("srec_cat", {"a.mif", "-mif", "-o", "srec_mif.bin", "-binary"}));
    EXPECT_EQ(read("srec_mif.bin"), read("a.bin"));
}

TEST_F(AsmToolImages, ALargeDeviceCrossesTheBoundOfARecordsAddress)
{
    writeProject(AsmProject());
    write("a.psm", "#SET IODEV::big::EN, TRUE\n#SET IODEV::big::SIZE, 50000\n#SET IODEV::big::INITVALUE, 0x12345\n"
                   "#SET IODEV::big::VALUE, 21845: 0x2ABCD, 0x3FFFF\n#SET IODEV::big::VALUE, 49999: 0x00001\n" +
                       goodSource());
    const AsmToolResult result = run({"-o", "ihex={DEVICE}.ihex", "-o", "binary={DEVICE}.bin", "p.nalvo"});
    ASSERT_EQ(result.status, 0) << result.err.constData();
    const QByteArray bytes = readIntelHex(read("big.ihex"));
    EXPECT_EQ(bytes, read("big.bin"));
    const Words words = wordsOf(bytes, 3, false);
    ASSERT_EQ(words.size(), 50000);
    // Three bytes of this word lie on both sides of 64 K.
    EXPECT_EQ(words[21845], 0x2ABCDu);
    EXPECT_EQ(words[21846], 0x3FFFFu);
    EXPECT_EQ(words[49999], 1u);
    EXPECT_EQ(words.count(0x12345), 49997);
    ASSERT_TRUE(callTool("objcopy", {"-I", "ihex", "-O", "binary", "big.ihex", "objcopy.bin"}));
    EXPECT_EQ(read("objcopy.bin"), bytes);
}

TEST_F(AsmToolImages, EachMemoryGetsItsFile)
{
    writeProject(AsmProject());
    write("a.psm", "#SET IODEV::lo::EN, TRUE\n#SET IODEV::lo::SIZE, 1024\n"
                   "#SET IODEV::lo::VALUE, INSTMEM[0:1023][8:0]\n"
                   "#SET IODEV::hi::EN, TRUE\n#SET IODEV::hi::SIZE, 1024\n"
                   "#SET IODEV::hi::VALUE, INSTMEM[0:1023][17:9]\n" +
                       goodSource());
    const AsmToolResult refused = run({"-o", "hex=all.hex", "p.nalvo"});
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.errLines().value(0),
              "error: The program lies in several memories: IODEV::lo, IODEV::hi. {DEVICE} "
              "in the name of the file makes a file of each: all.hex");
    EXPECT_FALSE(exists("all.hex"));
    const AsmToolResult result = run({"-o", "mif:9=rom_{DEVICE}.mif", "p.nalvo"});
    EXPECT_EQ(result.status, 0) << result.err.constData();
    const Mif low = readMif(read("rom_lo.mif"));
    const Mif high = readMif(read("rom_hi.mif"));
    EXPECT_EQ(low.width, 9);
    EXPECT_EQ(high.words.mid(0, 3), Words({0, 0x1A0, 0}));
    EXPECT_EQ(low.words.mid(0, 3), Words({1, 0, 0}));
    EXPECT_EQ(high.words.value(1023) << 9 | low.words.value(1023), 0x38001u);
}

TEST_F(AsmToolImages, NoNameOfADeviceLeadsToAnotherFolder)
{
    mkdir("up");
    writeProject(AsmProject());
    write("a.psm", "#SET IODEV::../../x::EN, TRUE\n#SET IODEV::../../x::SIZE, 4\n" + goodSource());
    const QStringList before = snapshot(QFileInfo(path()).path());
    const AsmToolResult result = run({"-o", "hex=up/{DEVICE}.hex", "p.nalvo"});
    // Whether such a name is one at all is for the assembler to say.
    const QStringList files = QDir(path("up")).entryList(QDir::Files);
    EXPECT_EQ(result.status == 0, !files.isEmpty()) << result.err.constData();
    QStringList outside;
    for (const QString& line : snapshot(QFileInfo(path()).path())) {
        if (!before.contains(line) && !line.contains("/up"))
            outside.append(line);
    }
    EXPECT_EQ(outside.filter("x.hex"), QStringList());
    for (const QString& file : files)
        EXPECT_FALSE(file.contains(".."));
}

TEST_F(AsmToolImages, TheOptionDoesWithoutAnyOutputOfTheProject)
{
    writeProject(AsmProject());
    write("a.psm", goodSource());
    const AsmToolResult result = run({"-e", "none", "-o", "hex=rom.hex", "-o", "mem=rom.mem", "p.nalvo"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errLines(),
              QStringList("nalvo-asm: assembled, 0 errors, 0 warnings, 3 instructions, 2 files written"));
    EXPECT_EQ(read("rom.hex"), hexText());
    EXPECT_TRUE(read("rom.mem").startsWith("@0\r\n00001\r\n"));
}

TEST_F(AsmToolImages, AFileNeverReplacesOneOfTheRun)
{
    writeGoodProject();
    for (const char* file : {"p.nalvo", "a.psm", "out.hex"}) {
        const QByteArray before = exists(file) ? read(file) : QByteArray();
        const AsmToolResult result = run({"-o", QString("mif=") + file, "p.nalvo"});
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.errLines().value(0), QString("error: File of the project would be overwritten: ") + file);
        EXPECT_EQ(read(file), before.isEmpty() ? hexText() : before);
    }
    const AsmToolResult twice = run({"-o", "mif=x", "-o", "coe=./x", "p.nalvo"});
    EXPECT_EQ(twice.status, 1);
    EXPECT_EQ(twice.errLines().value(0), "error: File was already written in this run: ./x");
    EXPECT_EQ(readMif(read("x")).words.size(), 1024);
    const AsmToolResult listing = run({"-o", "mif=y", "-l", "y", "p.nalvo"});
    EXPECT_EQ(listing.status, 1);
    EXPECT_EQ(listing.errLines().value(0), "error: File was already written in this run: y");
}

/// A file with two names is one file, whichever of them an output has.
TEST_F(AsmToolImages, AnotherNameOfAFileOfTheRunIsNotWritten)
{
    writeProject(AsmProject().output("hex", "hard.psm").vhdl("t.vhd", "out.vhd"));
    write("a.psm", goodSource());
    write("t.vhd", vhdlTemplate());
    ASSERT_EQ(link(qPrintable(path("a.psm")), qPrintable(path("hard.psm"))), 0);
    ASSERT_EQ(link(qPrintable(path("t.vhd")), qPrintable(path("out.vhd"))), 0);
    const AsmToolResult ofProject = run({"p.nalvo"});
    EXPECT_EQ(ofProject.status, 1);
    EXPECT_TRUE(ofProject.err.contains("would overwrite a file of the project: " + path("hard.psm").toUtf8()))
        << ofProject.err.constData();
    // No output of the project any more, but still a name of its source.
    writeProject(AsmProject());
    for (const QStringList& option :
         {QStringList{"-o", "mif=hard.psm"}, {"-l", "hard.psm"}, {"--depfile", "hard.psm"}}) {
        const AsmToolResult result = run(QStringList{"-e", "none", "--depfile-target", "x", "--depfile", "x.d"} +
                                         option + QStringList("p.nalvo"));
        EXPECT_EQ(result.status, 1) << option.join(' ').toStdString();
        EXPECT_EQ(result.errLines().value(0), "error: File of the project would be overwritten: hard.psm");
    }
    EXPECT_EQ(read("a.psm"), goodSource());
    EXPECT_EQ(read("t.vhd"), vhdlTemplate());
    write("one", "");
    ASSERT_EQ(link(qPrintable(path("one")), qPrintable(path("two"))), 0);
    const AsmToolResult twice = run({"-q", "-e", "none", "-o", "mif=one", "-o", "coe=two", "p.nalvo"});
    EXPECT_EQ(twice.errLines().value(0), "error: File was already written in this run: two");
    EXPECT_EQ(readMif(read("one")).words.size(), 1024);
}

TEST_F(AsmToolImages, AFolderThatDoesNotExist)
{
    writeGoodProject();
    const AsmToolResult result = run({"-o", "mif=none/x.mif", "p.nalvo"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errLines().value(0),
              "error: Can not open output file: " + path("none/x.mif") + " [errTargetOpenOutput]");
}

TEST_F(AsmToolImages, AWordThatIsTooWideWritesNothing)
{
    writeGoodProject();
    const AsmToolResult result = run({"-o", "mif:17=x.mif", "p.nalvo"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errLines().value(0),
              "error: Word at address 1 does not fit into 17 bits: " + path("x.mif") + " [errTargetWordTooWide]");
    EXPECT_FALSE(exists("x.mif"));
}

TEST_F(AsmToolImages, WrongTexts)
{
    writeGoodProject();
    const QString kinds = "hex, mem, mif, coe, binary, ihex, ram";
    expectWrong("mif", "An output is KIND=FILE: mif");
    expectWrong("mif=", "An output is KIND=FILE: mif=");
    expectWrong("mif=-", "An output goes to a file and not to standard output: mif=-");
    expectWrong("elf=x", "Unknown kind of output: elf. There are " + kinds);
    // These need a template, which is a setting of the project.
    expectWrong("vhdl=x", "Unknown kind of output: vhdl. There are " + kinds);
    expectWrong("MIF=x", "Unknown kind of output: MIF. There are " + kinds);
    expectWrong("hex:9=x", "hex has no options: 9");
    expectWrong("mif:big=x", "Unknown option of mif: big. Possible: a number of bits");
    expectWrong("binary:words=x", "Unknown option of binary: words. Possible: little, big, a number of bits");
    expectWrong("ram:0=x", "A word has 1 to 32 bits: 0");
    expectWrong("ram:33=x", "A word has 1 to 32 bits: 33");
    expectWrong("ram:-1=x", "Unknown option of ram: -1. Possible: halves, whole, a number of bits");
    expectWrong("binary:big:little=x", "An output has one layout and one number of bits: binary:big:little=x");
    expectWrong("ihex:18:words:32=x", "An output has one layout and one number of bits: ihex:18:words:32=x");
    EXPECT_FALSE(exists("x"));
}

TEST_F(AsmToolImages, ANameMayHoldAnEqualsSign)
{
    writeGoodProject();
    EXPECT_EQ(run({"-o", "coe:18=a=b.coe", "p.nalvo"}).status, 0);
    EXPECT_EQ(readCoe(read("a=b.coe")), readHex(read("out.hex")));
}

TEST_F(AsmToolImages, SettingsOfTheProjectWriteThem)
{
    AsmProject project = AsmProject().output("hex", "out.hex");
    project.settings["Outputs/mif/en"] = "1";
    project.settings["Outputs/mif/outputFile"] = "out.mif";
    project.settings["Outputs/ihex/en"] = "1";
    project.settings["Outputs/ihex/outputFile"] = "out.ihex";
    project.settings["Outputs/ihex/layout"] = "1";
    writeProject(project);
    write("a.psm", goodSource());
    const AsmToolResult result = run({"p.nalvo"});
    EXPECT_EQ(result.errLines(),
              QStringList("nalvo-asm: assembled, 0 errors, 0 warnings, 3 instructions, 3 files written"));
    EXPECT_EQ(readMif(read("out.mif")).words, readHex(read("out.hex")));
    EXPECT_EQ(wordsOf(readIntelHex(read("out.ihex")), 3, true), readHex(read("out.hex")));
}

TEST_F(AsmToolImages, ValuesOfTheProjectThatAreOutOfRange)
{
    AsmProject project = AsmProject().output("hex", "out.hex");
    project.settings["Outputs/mif/en"] = "1";
    project.settings["Outputs/mif/outputFile"] = "out.mif";
    project.settings["Outputs/mif/wordWidth"] = "99";
    project.settings["Outputs/binary/en"] = "1";
    project.settings["Outputs/binary/outputFile"] = "out.bin";
    project.settings["Outputs/binary/layout"] = "7";
    writeProject(project);
    write("a.psm", goodSource());
    EXPECT_EQ(run({"p.nalvo"}).status, 0);
    EXPECT_EQ(readMif(read("out.mif")).width, 32);
    EXPECT_EQ(wordsOf(read("out.bin"), 3, false), readHex(read("out.hex")));
}

} // namespace
