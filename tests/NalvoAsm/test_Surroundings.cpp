// Environment, locale, streams, users: a run does the same in all of them, or says why not.

#include "AsmToolFixture.h"

#include <QDateTime>

#include <cstdlib>
#include <fcntl.h>
#include <grp.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

class AsmToolSurroundings : public AsmToolTest
{
protected:
    AsmToolResult shell(const QString& script) const
    {
        AsmToolSetup with = setup();
        with.program = "sh";
        with.env.insert("A", NALVO_ASM);
        return run({"-c", script}, with);
    }

    /// Writes p.nalvo with an output that has the time stamp alone in it.
    void writeStampProject() const
    {
        writeProject(AsmProject().vhdl("t.vhd", "out.vhd"));
        write("t.vhd", vhdlTemplate("[{TIMESTAMP}]\n"));
        write("a.psm", goodSource());
    }

    QByteArray stamp(const QString& epoch) const
    {
        AsmToolSetup with = setup();
        with.env.insert("TZ", "Asia/Tokyo");
        with.env.insert("SOURCE_DATE_EPOCH", epoch);
        const AsmToolResult result = run({"p.nalvo"}, with);
        EXPECT_EQ(result.status, 0) << result.err.constData();
        return read("out.vhd").split('\n').value(0);
    }
};

TEST_F(AsmToolSurroundings, NoEnvironmentAtAll)
{
    writeGoodProject();
    AsmToolSetup bare = setup();
    bare.program = "/usr/bin/env";
    const AsmToolResult result = run({"-i", NALVO_ASM, "p.nalvo"}, bare);
    EXPECT_EQ(result.status, 0) << result.err.constData();
    EXPECT_EQ(result.errLines().size(), 1);
    EXPECT_EQ(read("out.hex"), hexText());
}

TEST_F(AsmToolSurroundings, AnyLocaleFindsAnyFile)
{
    AsmProject project;
    project.sources = QStringList("größe €.psm");
    writeProject(project.output("hex", "ausgäbe.hex"), "prüfung.nalvo");
    write("größe €.psm", "#EQU unused, 1\n" + goodSource());
    for (const char* locale : {"C", "POSIX", "C.UTF-8", "no_SUCH.UTF-8", "tr_TR.UTF-8", ""}) {
        AsmToolSetup with = setup();
        with.env.remove("LC_ALL");
        with.env.insert("LANG", locale);
        QFile::remove(path("ausgäbe.hex"));
        const AsmToolResult result = run({"-l", "lüste", "prüfung.nalvo"}, with);
        EXPECT_EQ(result.status, 0) << locale << result.err.constData();
        EXPECT_EQ(result.errLines().value(0),
                  QString("größe €.psm:1: warning: Unused EQU directive: unused [warnEquUnused]"));
        EXPECT_EQ(read("ausgäbe.hex"), hexText());
        EXPECT_TRUE(read("lüste").startsWith("0000 PAGE0 000 00001 größe €.psm:3 ")) << locale;
        EXPECT_EQ(run({"-f", "json", "prüfung.nalvo"}, with).objects().first().value("file").toString(),
                  QString("größe €.psm"));
    }
}

TEST_F(AsmToolSurroundings, AFileNameThatIsNoUtf8IsRefusedCleanly)
{
    writeGoodProject();
    const AsmToolResult result =
        shell("cp p.nalvo \"$(printf 'x\\377.nalvo')\" && \"$A\" \"$(printf 'x\\377.nalvo')\"; "
              "status=$?; rm x*.nalvo; exit $status");
    EXPECT_EQ(result.status, 2);
    EXPECT_TRUE(result.err.startsWith("error: Project file does not exist: "));
}

TEST_F(AsmToolSurroundings, HomeAndSettingsFoldersDoNotMatter)
{
    writeGoodProject();
    AsmToolSetup with = setup();
    for (const char* home : {"", "/no/such/folder", "/dev/null"}) {
        for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR", "TMPDIR"})
            with.env.insert(name, home);
        const AsmToolResult result = run({"p.nalvo"}, with);
        EXPECT_EQ(result.status, 0) << home;
        EXPECT_EQ(result.errLines().size(), 1) << result.err.constData();
    }
    with.env.remove("HOME");
    EXPECT_EQ(run({"p.nalvo"}, with).status, 0);
}

TEST_F(AsmToolSurroundings, NoDisplayAndNoPlatformAreAskedFor)
{
    writeGoodProject();
    AsmToolSetup with = setup();
    with.env.insert("DISPLAY", ":77");
    with.env.insert("QT_QPA_PLATFORM", "nosuch");
    with.env.insert("QT_STYLE_OVERRIDE", "nosuch");
    with.env.insert("QT_DEBUG_PLUGINS", "1");
    const AsmToolResult result = run({"p.nalvo"}, with);
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errLines().size(), 1) << result.err.constData();
}

TEST_F(AsmToolSurroundings, AWorkingFolderThatIsGone)
{
    writeGoodProject();
    const AsmToolResult result = shell("mkdir gone && cd gone && rmdir ../gone && \"$A\" '" + path("p.nalvo") + "'");
    EXPECT_EQ(result.status, 0) << result.err.constData();
    EXPECT_EQ(read("out.hex"), hexText());
}

TEST_F(AsmToolSurroundings, StandardInputIsLeftAlone)
{
    writeGoodProject();
    EXPECT_EQ(shell("\"$A\" p.nalvo <&-").status, 0);
    EXPECT_EQ(shell("echo text | { \"$A\" -q p.nalvo; cat; }").out, QByteArray("text\n"));
    // A terminal at which nobody sits.
    const int terminal = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    ASSERT_GE(terminal, 0);
    ASSERT_EQ(grantpt(terminal), 0);
    ASSERT_EQ(unlockpt(terminal), 0);
    AsmToolSetup with = setup();
    with.stdinFile = ptsname(terminal);
    EXPECT_EQ(run({"p.nalvo"}, with).status, 0);
    write("a.psm", " NOSUCH\n");
    EXPECT_EQ(run({"p.nalvo"}, with).status, 1);
    close(terminal);
}

TEST_F(AsmToolSurroundings, ClosedStreamsDoNotEndUpInFiles)
{
    // A template for a larger memory is warned of while the output is open: a message that takes its number ends up in
    // it.
    writeProject(AsmProject().output("hex", "out.hex").vhdl("t.vhd", "out.vhd"));
    write("t.vhd", vhdlTemplate() + "{INIT_40}\n");
    write("a.psm", "#EQU unused, 1\n" + goodSource());
    const AsmToolResult open = run({"p.nalvo"});
    EXPECT_EQ(open.status, 0);
    EXPECT_EQ(open.errLines().size(), 3);
    const QByteArray vhdl = read("out.vhd");
    EXPECT_EQ(vhdl.count('\n'), 65);
    for (const char* closed : {"2>&-", ">&- 2>&-", "<&- >&- 2>&-", "<&- 2>&-"}) {
        QFile::remove(path("out.hex"));
        QFile::remove(path("out.vhd"));
        EXPECT_EQ(shell(QString("\"$A\" -v -l list p.nalvo ") + closed).status, 0) << closed;
        EXPECT_EQ(read("out.hex"), hexText()) << closed;
        EXPECT_EQ(read("out.vhd"), vhdl) << closed;
        EXPECT_EQ(read("list").count('\n'), 3) << closed;
    }
    EXPECT_EQ(shell("\"$A\" -v p.nalvo 2>/dev/full").status, 0);
}

TEST_F(AsmToolSurroundings, TextThatIsLostOnStandardOutputFailsTheRun)
{
    writeGoodProject();
    const QByteArray full = "standard output: No space left on device\n";
    for (const char* arguments : {"-l - p.nalvo", "-s - p.nalvo"}) {
        const AsmToolResult result = shell(QString("\"$A\" ") + arguments + " >/dev/full");
        EXPECT_EQ(result.status, 1);
        EXPECT_TRUE(result.err.startsWith("error: Can not write " + full)) << result.err.constData();
        EXPECT_EQ(result.errLines().size(), 2);
    }
    for (const char* arguments : {"-f json p.nalvo", "--help", "--version"}) {
        const AsmToolResult result = shell(QString("\"$A\" ") + arguments + " >/dev/full");
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.err, "nalvo-asm: Can not write " + full);
        EXPECT_EQ(shell(QString("\"$A\" ") + arguments + " >&-").err,
                  QByteArray("nalvo-asm: Can not write standard output: Bad file descriptor\n"));
    }
    EXPECT_EQ(shell("\"$A\" p.nalvo >&-").status, 0);
    EXPECT_EQ(shell("\"$A\" -f json nosuch.nalvo >/dev/full").status, 2);
}

TEST_F(AsmToolSurroundings, AReaderThatLeavesEarlyDoesNotStopTheRun)
{
    QByteArray source;
    for (int i = 0; i < 3000; ++i)
        source += "#EQU unused_" + QByteArray::number(i) + ", 1\n";
    writeGoodProject(source + goodSource());
    const struct
    {
        const char* command;
        const char* first;
        const char* status;
    } cases[] = {{"\"$A\" p.nalvo 2>&1; echo $? >status", "a.psm:1: warning: ", "0\n"},
                 {"\"$A\" -f json p.nalvo 2>complaint; echo $? >status", "{\"file\":\"a.psm\"", "1\n"},
                 {"\"$A\" -s - p.nalvo 2>complaint; echo $? >status", "{\n", "1\n"}};
    for (const auto& entry : cases) {
        QFile::remove(path("out.hex"));
        const AsmToolResult result = shell(QString("{ ") + entry.command + "; } | head -1");
        EXPECT_TRUE(result.out.startsWith(entry.first)) << result.out.constData();
        EXPECT_EQ(result.out.count('\n'), 1);
        EXPECT_EQ(read("out.hex"), hexText());
        EXPECT_EQ(read("status"), QByteArray(entry.status)) << entry.command;
        EXPECT_EQ(exists("complaint"), entry.status[0] != '0');
        EXPECT_TRUE(!exists("complaint") || read("complaint").contains("an not write standard output: Broken pipe"));
        QFile::remove(path("complaint"));
    }
}

TEST_F(AsmToolSurroundings, TheTimeStampFollowsTheEnvironment)
{
    writeStampProject();
    EXPECT_EQ(stamp("0"), QByteArray("[1970-01-01 00:00:00 ]"));
    EXPECT_EQ(stamp("1700000000"), QByteArray("[2023-11-14 22:13:20 ]"));
    EXPECT_EQ(stamp("-5"), QByteArray("[1969-12-31 23:59:55 ]"));
    EXPECT_EQ(stamp("253402300799"), QByteArray("[9999-12-31 23:59:59 ]"));
    EXPECT_EQ(stamp("-62135596800"), QByteArray("[0001-01-01 00:00:00 ]"));
    const auto now = [this] {
        return QDateTime::fromString(QString::fromLatin1(stamp("")).mid(1, 19), "yyyy-MM-dd hh:mm:ss");
    };
    // Without one it is the time of the run, on the clock of whoever starts it.
    const qint64 japan = 9 * 3600;
    EXPECT_LT(qAbs(QDateTime::currentDateTimeUtc().toSecsSinceEpoch() + japan -
                   QDateTime(now().date(), now().time(), Qt::UTC).toSecsSinceEpoch()),
              120);
}

TEST_F(AsmToolSurroundings, AMeaninglessTimeIsRefused)
{
    writeStampProject();
    for (const char* epoch : {"now", "1e9", "12.5", "0x10", "253402300800", "-62135596801", "9223372036854775807",
                              "-9223372036854775808", "99999999999999999999999", "1 2", "\xff"}) {
        AsmToolSetup with = setup();
        with.env.insert("SOURCE_DATE_EPOCH", QString::fromLatin1(epoch));
        const AsmToolResult result = run({"p.nalvo"}, with);
        EXPECT_EQ(result.status, 2) << epoch;
        EXPECT_TRUE(result.err.startsWith("nalvo-asm: SOURCE_DATE_EPOCH is no time in seconds since 1970: "));
        EXPECT_EQ(result.errLines().size(), 1);
        EXPECT_FALSE(exists("out.vhd"));
        EXPECT_EQ(run({"--version"}, with).status, 0);
    }
}

/// Another user than the one who owns the project. Only the superuser can become somebody else; for all others the same
/// checks hold for themselves, on files that nobody may write.
class AsmToolOtherUser : public AsmToolTest
{
protected:
    AsmToolOtherUser()
    {
        // The program is copied to where everybody may run it.
        QFile::copy(NALVO_ASM, path("../nalvo-asm"));
        for (const char* folder : {"..", "."})
            ::chmod(QFile::encodeName(path(folder)).constData(), 0755);
    }

    ~AsmToolOtherUser() override { ::chmod(QFile::encodeName(path()).constData(), 0755); }

    AsmToolSetup asOther() const
    {
        AsmToolSetup with = setup();
        with.program = path("../nalvo-asm");
        if (geteuid() == 0) {
            with.inChild = [] {
                const gid_t nobody = 65534;
                if (setgroups(0, nullptr) != 0 || setgid(nobody) != 0 || setuid(nobody) != 0)
                    _exit(99);
            };
        }
        return with;
    }

    void chmod(const QString& name, mode_t mode) const
    {
        ASSERT_EQ(::chmod(QFile::encodeName(path(name)).constData(), mode), 0);
    }
};

TEST_F(AsmToolOtherUser, AReadOnlyProjectAssembles)
{
    writeGoodProject();
    for (const char* name : {"p.nalvo", "a.psm"})
        chmod(name, 0444);
    chmod(".", 0555);
    const QStringList before = snapshot(path());
    const QString warning = "warning: File is not writable: " + path("a.psm");
    const AsmToolResult result = run({"-e", "none", "-l", "-", "p.nalvo"}, asOther());
    EXPECT_EQ(result.status, 0) << result.err.constData();
    EXPECT_EQ(result.out.count('\n'), 3);
    EXPECT_EQ(result.errLines().value(0), warning);
    EXPECT_EQ(snapshot(path()), before);
    // Its outputs have no place to go.
    const AsmToolResult output = run({"-q", "p.nalvo"}, asOther());
    EXPECT_EQ(output.status, 1);
    EXPECT_EQ(output.errLines(),
              QStringList("error: Can not open output file: " + path("out.hex") + " [errTargetOpenOutput]"));
    const AsmToolResult listing = run({"-q", "-e", "none", "-l", "list", "p.nalvo"}, asOther());
    EXPECT_EQ(listing.status, 1);
    EXPECT_EQ(listing.errLines(), QStringList("error: Can not write list: Permission denied"));
    EXPECT_EQ(snapshot(path()), before);
}

TEST_F(AsmToolOtherUser, AnUnreadableProjectOrSource)
{
    writeGoodProject();
    chmod("p.nalvo", 0);
    const AsmToolResult project = run({"-q", "p.nalvo"}, asOther());
    EXPECT_EQ(project.status, 2);
    EXPECT_EQ(project.errLines(), QStringList("error: Project file is not readable: " + path("p.nalvo")));
    chmod("p.nalvo", 0644);
    chmod("a.psm", 0);
    const AsmToolResult source = run({"-q", "p.nalvo"}, asOther());
    EXPECT_EQ(source.status, 1);
    EXPECT_EQ(source.errLines(), QStringList("error: Can not read file: " + path("a.psm") + " [errFileRead]"));
    chmod("a.psm", 0644);
}

TEST_F(AsmToolOtherUser, AListingThatMayBeWrittenInAFolderThatMayNot)
{
    writeGoodProject();
    write("list", "old");
    chmod("list", 0666);
    chmod(".", 0555);
    const AsmToolResult result = run({"-q", "-e", "none", "-l", "list", "p.nalvo"}, asOther());
    EXPECT_EQ(result.status, 0) << result.err.constData();
    EXPECT_EQ(read("list").count('\n'), 3);
    chmod("list", 0444);
    EXPECT_EQ(run({"-q", "-e", "none", "-l", "list", "p.nalvo"}, asOther()).status, 1);
    EXPECT_EQ(read("list").count('\n'), 3);
}

} // namespace
