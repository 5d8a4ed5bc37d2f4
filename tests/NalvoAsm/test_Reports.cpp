// Listing and symbols: their form, and where they go.

#include "AsmToolFixture.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class AsmToolReports : public AsmToolTest
{
protected:
    QByteArray listing(const QString& project = "p.nalvo") const
    {
        const AsmToolResult result = run({"-q", "-l", "-", project});
        EXPECT_EQ(result.status, 0) << result.err.constData();
        return result.out;
    }

    QJsonObject symbols() const
    {
        const AsmToolResult result = run({"-q", "-s", "-", "p.nalvo"});
        EXPECT_EQ(result.status, 0) << result.err.constData();
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(result.out, &error);
        EXPECT_EQ(error.error, QJsonParseError::NoError) << result.out.constData();
        return document.object();
    }

    static QJsonObject label(const QString& name, const QJsonValue& address, const QJsonValue& page, int line,
                             const QString& file = "a.psm")
    {
        return {{"name", name}, {"address", address}, {"page", page}, {"file", file}, {"line", line}};
    }

    static QJsonObject equ(const QString& name, const QString& kind, const QJsonValue& value, int line, bool used)
    {
        return {{"name", name}, {"kind", kind}, {"value", value}, {"file", "a.psm"}, {"line", line}, {"used", used}};
    }

    /// The run fails with this reason for the listing, and the output file is written all the same.
    void expectNoListing(const QString& file, const QString& reason) const
    {
        QFile::remove(path("out.hex"));
        const AsmToolResult result = run({"-l", file, "p.nalvo"});
        EXPECT_EQ(result.status, 1) << file.toStdString();
        EXPECT_EQ(result.errLines().value(0), "error: " + reason);
        EXPECT_EQ(result.errLines().value(1), "nalvo-asm: failed, 1 error, 0 warnings, 3 instructions, 1 file written");
        EXPECT_EQ(read("out.hex"), hexText());
    }
};

TEST_F(AsmToolReports, ListingOfOneFile)
{
    writeGoodProject();
    EXPECT_EQ(listing(), QByteArray("0000 PAGE0 000 00001 a.psm:2         LOAD    s0, 1\n"
                                    "0001 PAGE0 001 34000 a.psm:3         JUMP    start\n"
                                    "03FF PAGE0 3FF 38001 a.psm:5         RETI    ENABLE\n"));
}

TEST_F(AsmToolReports, ListingKeepsTheBytesOfTheSource)
{
    writeGoodProject("l:\tLOAD s0,1\t; gr\xc3\xbc\xc3\x9f"
                     "e \xff\x01\r\n\r\n\tJUMP l ; no end of the line");
    const AsmToolResult result = run({"-q", "-l", "-", "p.nalvo"});
    EXPECT_EQ(result.out, QByteArray("0000 PAGE0 000 00001 a.psm:1 l:\tLOAD s0,1\t; gr\xc3\xbc\xc3\x9f"
                                     "e \xff\x01\n"
                                     "0001 PAGE0 001 34000 a.psm:3 \tJUMP l ; no end of the line\n"));
}

TEST_F(AsmToolReports, ListingOfSeveralFiles)
{
    AsmProject project;
    project.sources = QStringList{"z.psm", "empty.psm", "sub/y.psm"};
    writeProject(project);
    write("z.psm", " NOP\n#ORG ADDR, 0x20\n NOP\n");
    write("empty.psm", "");
    write("sub/y.psm", " LOAD s0, 2\n#ORG ADDR, 0x3FF\n RETI ENABLE\n");
    EXPECT_EQ(listing(), QByteArray("0000 PAGE0 000 01000 z.psm:1  NOP\n"
                                    "0020 PAGE0 020 01000 z.psm:3  NOP\n"
                                    "0021 PAGE0 021 00002 sub/y.psm:1  LOAD s0, 2\n"
                                    "03FF PAGE0 3FF 38001 sub/y.psm:3  RETI ENABLE\n"));
}

TEST_F(AsmToolReports, ListingOfTwoPagesWithASharedRange)
{
    AsmProject project;
    project.sources = QStringList{"s.psm", "0.psm", "1.psm"};
    writeProject(project);
    write("s.psm", "#SET INSTMEM::PAGESIZE, 1024\n#SET INSTMEM::PAGECOUNT, 2\n"
                   "#SET INSTMEM::SHAREDMEMLOCATION, HIMEM\n#ORG MEMRANGE, SHARED\nback: LOAD s0, 9\n RET\n"
                   "#ORG ADDR, 0x3FF\n RETI ENABLE\n");
    write("0.psm", "#ORG MEMRANGE, PAGE0\n LOAD s0, 1\n JUMP back\n");
    write("1.psm", "#ORG MEMRANGE, page1\n LOAD s0, 2\n JUMP back\n");
    EXPECT_EQ(listing(), QByteArray("0000 PAGE0 000 00001 0.psm:2  LOAD s0, 1\n"
                                    "0001 PAGE0 001 343FD 0.psm:3  JUMP back\n"
                                    "03FD SHARED 3FD 00009 s.psm:5 back: LOAD s0, 9\n"
                                    "03FE SHARED 3FE 2A000 s.psm:6  RET\n"
                                    "03FF SHARED 3FF 38001 s.psm:8  RETI ENABLE\n"
                                    "0400 PAGE1 000 00002 1.psm:2  LOAD s0, 2\n"
                                    "0401 PAGE1 001 343FD 1.psm:3  JUMP back\n"));
}

TEST_F(AsmToolReports, NoReportsOfAFailedRun)
{
    writeGoodProject(" NOSUCH\n");
    write("list", "old");
    EXPECT_EQ(run({"-l", "list", "-s", "syms", "p.nalvo"}).status, 1);
    EXPECT_EQ(read("list"), QByteArray("old"));
    EXPECT_FALSE(exists("syms"));
    EXPECT_EQ(run({"-l", "-", "p.nalvo"}).out, QByteArray());
}

TEST_F(AsmToolReports, ReportsOfARunThatWentOnAfterAnError)
{
    writeGoodProject(":\n" + goodSource());
    const AsmToolResult result = run({"-l", "list", "p.nalvo"});
    EXPECT_EQ(result.errLines().value(0),
              QString("a.psm:1: error: Syntax error! Label is not defined. [errLblIsEmpty]"));
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(read("list").count('\n'), 3);
    EXPECT_EQ(read("out.hex"), hexText());
}

TEST_F(AsmToolReports, ASourceThatVanishesMeanwhile)
{
    // The warnings come when all is read. Nobody takes them from the pipe, so the run stands still in the midst of
    // them.
    QByteArray source;
    for (int i = 0; i < 3000; ++i)
        source += "#EQU unused_" + QByteArray::number(i) + ", 1\n";
    writeGoodProject(source + goodSource());
    const QByteArray fifo = QFile::encodeName(path("fifo"));
    ASSERT_EQ(mkfifo(fifo.constData(), 0600), 0);
    const int reader = open(fifo.constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    ASSERT_GE(reader, 0);
    AsmToolSetup to = setup();
    to.stderrFile = path("fifo");
    ToolProcess process;
    process.setup(NALVO_ASM, {"-l", "list", "p.nalvo"}, to);
    process.start();
    QElapsedTimer clock;
    clock.start();
    int waiting = 0;
    while (waiting < 60000 && clock.elapsed() < 60000 && !process.waitForFinished(5))
        ASSERT_EQ(ioctl(reader, FIONREAD, &waiting), 0);
    ASSERT_GE(waiting, 60000);
    ASSERT_TRUE(QFile::remove(path("a.psm")));
    QByteArray messages;
    char buffer[4096];
    do {
        for (ssize_t count = 1; count > 0;) {
            count = ::read(reader, buffer, sizeof buffer);
            messages.append(buffer, int(qMax<ssize_t>(count, 0)));
        }
    } while (!process.waitForFinished(5) && clock.elapsed() < 120000);
    for (ssize_t count = 1; count > 0;) {
        count = ::read(reader, buffer, sizeof buffer);
        messages.append(buffer, int(qMax<ssize_t>(count, 0)));
    }
    close(reader);
    EXPECT_EQ(process.exitCode(), 0) << messages.constData();
    EXPECT_EQ(messages.count('\n'), 3001);
    EXPECT_EQ(read("list"), QByteArray("0000 PAGE0 000 00001 a.psm:3002 \n"
                                       "0001 PAGE0 001 34000 a.psm:3003 \n"
                                       "03FF PAGE0 3FF 38001 a.psm:3005 \n"));
}

TEST_F(AsmToolReports, SymbolsOfEveryKindOfEqu)
{
    AsmProject project;
    project.processor = "Xilinx PicoBlaze 6";
    writeProject(project);
    write("a.psm", "#EQU num, 0x10 + 2\n"
                   "#EQU alias, num\n"
                   "#EQU text, \"A\\\"B\"\n"
                   "#EQU enc, \"A\"'UTF-8\n"
                   "#EQU length, \"gr\xc3\xbcn\"'LEN\n"
                   "#EQU umlaut, \"\xc3\xbc\"\n"
                   "#EQU r, s3\n"
                   "#EQU r2, r\n"
                   "#EQU b, B\n"
                   "#EQU minus, -1\n"
                   "#NAMESPACE ns\n"
                   "#EQU num, 7\n"
                   "#ENDNAMESPACE\n"
                   " LOAD r2, alias\n"
                   " LOAD r, ns::num\n");
    const QJsonArray equs = symbols().value("equs").toArray();
    ASSERT_EQ(equs.size(), 11);
    EXPECT_EQ(equs.at(0).toObject(), equ("num", "numeric", 18, 1, true));
    EXPECT_EQ(equs.at(1).toObject(), equ("alias", "numeric", 18, 2, true));
    EXPECT_EQ(equs.at(2).toObject(), equ("text", "string", "A\"B", 3, false));
    EXPECT_EQ(equs.at(3).toObject(), equ("enc", "string", "A", 4, false));
    EXPECT_EQ(equs.at(4).toObject().value("kind").toString(), QString("numeric"));
    EXPECT_EQ(equs.at(5).toObject(), equ("umlaut", "string", "ü", 6, false));
    EXPECT_EQ(equs.at(6).toObject(), equ("r", "register", "s3", 7, true));
    EXPECT_EQ(equs.at(7).toObject(), equ("r2", "register", "s3", 8, true));
    EXPECT_EQ(equs.at(8).toObject(), equ("b", "bank", "B", 9, false));
    EXPECT_EQ(equs.at(9).toObject(), equ("minus", "numeric", -1, 10, false));
    EXPECT_EQ(equs.at(10).toObject(), equ("ns::num", "numeric", 7, 12, true));
}

TEST_F(AsmToolReports, SymbolsOfLabels)
{
    AsmProject project;
    project.sources = QStringList{"a.psm", "b.psm"};
    writeProject(project);
    write("a.psm", "#SET INSTMEM::PAGECOUNT, 2\n"
                   "#ORG MEMRANGE, PAGE0\n"
                   "start: NOP\n"
                   "same:\n"
                   "\n"
                   "  also:\n"
                   " NOP\n"
                   "#NAMESPACE outer\n"
                   "start: JUMP start\n"
                   "#NAMESPACE inner\n"
                   "start: NOP\n"
                   "lost:\n"
                   "#ENDNAMESPACE\n"
                   "#ENDNAMESPACE\n");
    write("b.psm", "#ORG MEMRANGE, SHARED\n#ORG ADDR, 0x3FF\nvector: RETI ENABLE\n#ORG MEMRANGE, PAGE1\n"
                   "second: NOP\nbehind:\n");
    const QJsonArray labels = symbols().value("labels").toArray();
    ASSERT_EQ(labels.size(), 9);
    EXPECT_EQ(labels.at(0).toObject(), label("start", 0, "PAGE0", 3));
    EXPECT_EQ(labels.at(1).toObject(), label("same", 1, "PAGE0", 4));
    EXPECT_EQ(labels.at(2).toObject(), label("also", 1, "PAGE0", 6));
    EXPECT_EQ(labels.at(3).toObject(), label("outer::start", 2, "PAGE0", 9));
    EXPECT_EQ(labels.at(4).toObject(), label("outer::inner::start", 3, "PAGE0", 11));
    EXPECT_EQ(labels.at(5).toObject(), label("outer::inner::lost", QJsonValue(), QJsonValue(), 12));
    EXPECT_EQ(labels.at(6).toObject(), label("vector", 0x3ff, "SHARED", 3, "b.psm"));
    EXPECT_EQ(labels.at(7).toObject(), label("second", 0, "PAGE1", 5, "b.psm"));
    EXPECT_EQ(labels.at(8).toObject(), label("behind", QJsonValue(), QJsonValue(), 6, "b.psm"));
}

TEST_F(AsmToolReports, SymbolsOfAProgramWithoutAny)
{
    writeGoodProject(" NOP\n");
    EXPECT_EQ(symbols(), (QJsonObject{{"labels", QJsonArray()}, {"equs", QJsonArray()}}));
}

TEST_F(AsmToolReports, FilesGetTheSameAsStandardOutput)
{
    writeGoodProject();
    mkdir("reports");
    const AsmToolResult result =
        run({"-f", "json", "-l", "reports/a list.txt", "-s", path("reports/ß.json"), "p.nalvo"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(read("reports/a list.txt"), listing());
    EXPECT_EQ(read("reports/ß.json"), run({"-q", "-s", "-", "p.nalvo"}).out);
    EXPECT_EQ(result.objects().last().value("files").toArray(),
              (QJsonArray{"out.hex", "reports/a list.txt", "reports/ß.json"}));
}

TEST_F(AsmToolReports, AnOldReportIsReplacedAsAWhole)
{
    writeGoodProject();
    write("list", QByteArray(100000, 'x'));
    ASSERT_TRUE(QFile::setPermissions(path("list"), QFile::ReadOwner | QFile::WriteOwner));
    ASSERT_TRUE(QFile::link("list", path("link")));
    EXPECT_EQ(run({"-q", "-l", "link", "p.nalvo"}).status, 0);
    EXPECT_EQ(read("list"), listing());
    EXPECT_TRUE(QFileInfo(path("link")).isSymLink());
    struct stat info;
    ASSERT_EQ(stat(QFile::encodeName(path("list")).constData(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777, 0600u);
    EXPECT_EQ(QDir(path()).entryList(QDir::Files | QDir::Hidden),
              QStringList({"a.psm", "link", "list", "out.hex", "p.nalvo"}));
}

TEST_F(AsmToolReports, UnwritablePlaces)
{
    writeGoodProject();
    mkdir("folder");
    expectNoListing("no/such/folder/list", "Can not write no/such/folder/list: No such file or directory");
    expectNoListing("/dev/full", "Can not write /dev/full: No space left on device");
    expectNoListing("/proc/nalvo-list", "Can not write /proc/nalvo-list: No such file or directory");
    expectNoListing("a.psm/list", "Can not write a.psm/list: Not a directory");
    const AsmToolResult folder = run({"-s", "folder", "p.nalvo"});
    EXPECT_EQ(folder.status, 1);
    EXPECT_TRUE(folder.errLines().value(0).startsWith("error: Can not write folder: "));
}

TEST_F(AsmToolReports, ADeviceStaysADevice)
{
    writeGoodProject();
    EXPECT_EQ(run({"-l", "/dev/null", "p.nalvo"}).status, 0);
    EXPECT_EQ(run({"-l", "/dev/full", "p.nalvo"}).status, 1);
    for (const char* device : {"/dev/null", "/dev/full"}) {
        struct stat info;
        ASSERT_EQ(stat(device, &info), 0);
        EXPECT_TRUE(S_ISCHR(info.st_mode)) << device;
    }
    EXPECT_EQ(run({"-q", "-l", "/dev/stdout", "p.nalvo"}).out, listing());
}

TEST_F(AsmToolReports, FilesOfTheProjectAreNotOverwritten)
{
    AsmProject project;
    project.output("hex", "out.hex").vhdl("t.vhd", "out.vhd");
    writeProject(project);
    write("a.psm", goodSource());
    write("t.vhd", vhdlTemplate());
    ASSERT_TRUE(QFile::link("a.psm", path("link")));
    mkdir("d");
    for (const char* file : {"p.nalvo", "a.psm", "d/../a.psm", "link", "t.vhd", "out.hex", "out.vhd"}) {
        for (const char* option : {"-l", "-s"}) {
            run({"-q", "p.nalvo"});
            const QByteArray before = read(file);
            const AsmToolResult result = run({option, file, "p.nalvo"});
            EXPECT_EQ(result.status, 1);
            EXPECT_TRUE(result.errLines().contains(QString("error: File of the project would be overwritten: ") + file))
                << result.err.constData();
            EXPECT_EQ(read(file), before) << file;
        }
    }
}

} // namespace
