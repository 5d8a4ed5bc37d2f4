// The form of the messages: text for people and editors, JSON for programs.

#include "AsmToolFixture.h"

#include <QJsonArray>

namespace {

class AsmToolMessages : public AsmToolTest
{
protected:
    static QStringList keys(const QList<QJsonObject>& objects)
    {
        QStringList keys;
        for (const QJsonObject& object : objects)
            keys.append(object.value("key").toString("-"));
        return keys;
    }

    /// The positions at the start of the errors of a run, without the texts.
    QStringList errorPlaces(const QString& project, const AsmToolSetup& setup) const
    {
        QStringList places;
        for (const QString& line : run({"-q", project}, setup).errLines())
            places.append(line.left(line.indexOf(": error: ")));
        return places;
    }
};

TEST_F(AsmToolMessages, SummaryCountsInWords)
{
    writeGoodProject();
    EXPECT_EQ(run({"p.nalvo"}).errLines(),
              QStringList("nalvo-asm: assembled, 0 errors, 0 warnings, 3 instructions, 1 file written"));
    write("a.psm", "#EQU u, 1\n NOSUCH\n");
    EXPECT_EQ(run({"p.nalvo"}).errLines().last(),
              "nalvo-asm: failed, 1 error, 0 warnings, 1 instruction, 0 files written");
}

TEST_F(AsmToolMessages, PathsAreRelativeToTheWorkingFolder)
{
    AsmProject project;
    project.sources = QStringList{"src/one.psm", "two.psm"};
    writeProject(project);
    mkdir("beside/deep");
    write("src/one.psm", "\n\n NOSUCH\n");
    write("two.psm", " NOSUCH\n");
    AsmToolSetup from = setup();
    EXPECT_EQ(errorPlaces("p.nalvo", from), QStringList({"src/one.psm:3", "two.psm:1"}));
    EXPECT_EQ(errorPlaces(path("p.nalvo"), from), QStringList({"src/one.psm:3", "two.psm:1"}));
    from.folder = path("src");
    EXPECT_EQ(errorPlaces("../p.nalvo", from), QStringList({"one.psm:3", "../two.psm:1"}));
    from.folder = path("beside/deep");
    EXPECT_EQ(errorPlaces("../../p.nalvo", from), QStringList({"../../src/one.psm:3", "../../two.psm:1"}));
    from.folder = path("..");
    EXPECT_EQ(errorPlaces("prj/p.nalvo", from), QStringList({"prj/src/one.psm:3", "prj/two.psm:1"}));
    from.folder = "/";
    EXPECT_EQ(errorPlaces(path("p.nalvo"), from),
              QStringList({path("src/one.psm").mid(1) + ":3", path("two.psm").mid(1) + ":1"}));
}

TEST_F(AsmToolMessages, AnyFileNameIsShownAsItIs)
{
    const QStringList names = {"with blank.psm", "ümläut €.psm", "co:lon:3.psm", "100%25 #1 ?.psm",
                               "-dash.psm",      "quo\"te'.psm", "[b]&amp;.psm", "back\\slash.psm"};
    for (const QString& name : names) {
        AsmProject project;
        project.sources = QStringList(name);
        writeProject(project, name + ".nalvo");
        write(name, " NOP\n NOSUCH\n");
        EXPECT_EQ(run({"-q", "--", name + ".nalvo"}).errLines(),
                  QStringList(name + ":2: error: Unsupported instruction: NOSUCH [errOcUnsupported]"));
        const QList<QJsonObject> objects = run({"-f", "json", "--", name + ".nalvo"}).objects();
        ASSERT_EQ(objects.size(), 2);
        EXPECT_EQ(objects.first().value("file").toString(), name);
        EXPECT_EQ(objects.first().value("line").toInt(), 2);
    }
}

TEST_F(AsmToolMessages, AFileNameWithALineEndStaysOnOneLine)
{
    AsmProject project;
    project.sources = QStringList("two\nlines.psm");
    writeProject(project);
    write("two\nlines.psm", " NOSUCH\n");
    EXPECT_EQ(run({"p.nalvo"}).errLines().size(), 2);
    const QList<QJsonObject> objects = run({"-f", "json", "p.nalvo"}).objects();
    ASSERT_EQ(objects.size(), 2);
    EXPECT_EQ(objects.first().value("file").toString(), QString("two\nlines.psm"));
}

TEST_F(AsmToolMessages, WithoutAPositionTheFrontPartIsLeftOut)
{
    AsmProject project;
    project.processor.clear();
    writeProject(project);
    write("a.psm", goodSource());
    EXPECT_EQ(run({"-q", "p.nalvo"}).errLines(),
              QStringList("error: No assembler backend registerd. Please select a processor. [errNoAsmBe]"));
    const QJsonObject object = run({"-f", "json", "p.nalvo"}).objects().value(0);
    EXPECT_TRUE(object.value("file").isNull() && object.contains("file"));
    EXPECT_TRUE(object.value("line").isNull() && object.contains("line"));
    EXPECT_EQ(object.value("key").toString(), QString("errNoAsmBe"));
}

TEST_F(AsmToolMessages, JsonObjectsHaveAllFields)
{
    writeGoodProject("#EQU unused, 1\n" + goodSource());
    const AsmToolResult result = run({"--format", "json", "p.nalvo"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, QByteArray());
    const QList<QJsonObject> objects = result.objects();
    ASSERT_EQ(objects.size(), 2);
    EXPECT_EQ(objects.at(0), (QJsonObject{{"severity", "warning"},
                                          {"key", "warnEquUnused"},
                                          {"text", "Unused EQU directive: unused"},
                                          {"file", "a.psm"},
                                          {"line", 1},
                                          {"groups", QJsonArray{"Assembling...", "Check usage of directives..."}}}));
    EXPECT_EQ(objects.at(1), (QJsonObject{{"result", "assembled"},
                                          {"errors", 0},
                                          {"warnings", 1},
                                          {"instructions", 3},
                                          {"files", QJsonArray{"out.hex"}}}));
}

TEST_F(AsmToolMessages, JsonTellsAFailedRun)
{
    writeGoodProject(" NOSUCH\n NOP 1, 2\n");
    const AsmToolResult result = run({"-f", "json", "p.nalvo"});
    EXPECT_EQ(result.status, 1);
    const QJsonObject last = result.objects().last();
    EXPECT_EQ(last.value("result").toString(), QString("failed"));
    EXPECT_EQ(last.value("errors").toInt(), result.objects().size() - 1);
    EXPECT_EQ(last.value("files").toArray(), QJsonArray());
}

TEST_F(AsmToolMessages, JsonNamesTheOpenGroups)
{
    writeGoodProject();
    const QList<QJsonObject> objects = run({"-v", "-f", "json", "p.nalvo"}).objects();
    const auto groupsOf = [&objects](const QString& text) {
        for (const QJsonObject& object : objects) {
            if (object.value("text").toString().startsWith(text))
                return object.value("groups").toArray();
        }
        return QJsonArray{"no such message"};
    };
    EXPECT_EQ(groupsOf("Open project: /"), QJsonArray());
    EXPECT_EQ(groupsOf("Open project: Done"), QJsonArray());
    EXPECT_EQ(groupsOf("Set processor define: "), QJsonArray{"Assembling..."});
    EXPECT_EQ(groupsOf("Parsing file 1: "), (QJsonArray{"Assembling...", "Parsing files..."}));
    EXPECT_EQ(groupsOf("Mapping instructions"), (QJsonArray{"Assembling...", "Map code to memory ranges..."}));
    EXPECT_EQ(groupsOf("Writing IO device"), (QJsonArray{"Write IO devices to files...", "Writing hex files..."}));
    // Groups are no messages of their own here.
    EXPECT_FALSE(keys(objects).contains("grpParsingFiles"));
    for (const QJsonObject& object : objects.mid(0, objects.size() - 1))
        EXPECT_EQ(object.value("severity").toString(), QString("info"));
}

TEST_F(AsmToolMessages, JsonFollowsQuietAndWerror)
{
    writeGoodProject("#EQU unused, 1\n" + goodSource());
    EXPECT_EQ(keys(run({"-f", "json", "p.nalvo"}).objects()), QStringList({"warnEquUnused", "-"}));
    const AsmToolResult quiet = run({"-q", "-f", "json", "p.nalvo"});
    EXPECT_EQ(quiet.status, 0);
    EXPECT_EQ(keys(quiet.objects()), QStringList("-"));
    EXPECT_EQ(quiet.objects().last().value("warnings").toInt(), 1);
    const AsmToolResult werror = run({"-q", "-W", "-f", "json", "p.nalvo"});
    EXPECT_EQ(werror.status, 1);
    EXPECT_EQ(keys(werror.objects()), QStringList({"warnEquUnused", "-"}));
    EXPECT_EQ(werror.objects().last().value("result").toString(), QString("failed"));
    EXPECT_EQ(werror.objects().last().value("errors").toInt(), 0);
}

TEST_F(AsmToolMessages, JsonOfAProjectThatCanNotBeOpened)
{
    const AsmToolResult result = run({"-f", "json", "nosuch.nalvo"});
    EXPECT_EQ(result.status, 2);
    const QList<QJsonObject> objects = result.objects();
    ASSERT_EQ(objects.size(), 2);
    EXPECT_EQ(objects.first().value("text").toString(), "Project file does not exist: " + path("nosuch.nalvo"));
    EXPECT_EQ(objects.last().value("result").toString(), QString("failed"));
    EXPECT_EQ(objects.last().value("errors").toInt(), 1);
    EXPECT_EQ(result.err, QByteArray());
}

TEST_F(AsmToolMessages, ControlCharactersDoNotReachTheTerminal)
{
    QByteArray word = "f";
    for (char c = 1; c < 0x20; ++c) {
        if (c < '\t' || c > '\r')
            word += c;
    }
    word += "\x7f\x1b[31m";
    writeGoodProject(" LOAD s0, " + word + "\n");
    const AsmToolResult text = run({"p.nalvo"});
    ASSERT_EQ(text.errLines().size(), 2);
    EXPECT_TRUE(text.errLines().first().contains("Unsupported argument: f\\x01\\x02")) << text.err.constData();
    EXPECT_TRUE(text.errLines().first().contains("\\x7F\\x1B[31m [errUnsupportedArgument]")) << text.err.constData();
    for (const char c : text.err)
        EXPECT_TRUE(uchar(c) >= 0x20 || c == '\n') << int(c);
    const QList<QJsonObject> objects = run({"-f", "json", "p.nalvo"}).objects();
    ASSERT_EQ(objects.size(), 2);
    EXPECT_EQ(objects.first().value("text").toString(), "Unsupported argument: " + QString::fromLatin1(word));
}

TEST_F(AsmToolMessages, SourcesMayBeUtf8OrNot)
{
    const struct
    {
        QByteArray word;
        QString shown;
    } cases[] = {{"gr\xc3\xb6\xc3\x9f"
                  "e",
                  "größe"},
                 {"gr\xf6\xdf"
                  "e",
                  "größe"},
                 {"\xe2\x82\xac\xf0\x9f\x98\x80", "€😀"},
                 {"x\xc3\xbc\xff\xc3y", "xüÿÃy"},
                 {"\xed\xa0\x80\xc0\xaf", QString::fromLatin1("\xed\xa0\x80\xc0\xaf")}};
    for (const auto& entry : cases) {
        writeGoodProject(" LOAD s0, " + entry.word + "\n");
        const AsmToolResult json = run({"-f", "json", "p.nalvo"});
        EXPECT_EQ(json.status, 1);
        EXPECT_EQ(json.objects().value(0).value("text").toString(), "Unsupported argument: " + entry.shown);
        const AsmToolResult text = run({"-q", "p.nalvo"});
        ASSERT_EQ(text.errLines().size(), 1);
        QString shown = entry.shown;
        shown.replace(QChar(0x80), "\\x80");
        EXPECT_EQ(text.errLines().first(),
                  "a.psm:1: error: Unsupported argument: " + shown + " [errUnsupportedArgument]");
    }
}

TEST_F(AsmToolMessages, MessagesComeInOrderWithTheListingOnOneStream)
{
    writeGoodProject("#EQU unused, 1\n" + goodSource());
    AsmToolSetup both = setup();
    both.program = "sh";
    const AsmToolResult result = run({"-c", "\"$0\" -l - p.nalvo 2>&1", NALVO_ASM}, both);
    const QList<QByteArray> lines = result.out.split('\n');
    ASSERT_EQ(lines.size(), 6);
    EXPECT_TRUE(lines.at(0).startsWith("a.psm:1: warning: "));
    EXPECT_TRUE(lines.at(1).startsWith("0000 PAGE0 "));
    EXPECT_TRUE(lines.at(3).startsWith("03FF PAGE0 "));
    EXPECT_TRUE(lines.at(4).startsWith("nalvo-asm: assembled"));
}

TEST_F(AsmToolMessages, LinesAreWrittenInOnePiece)
{
    // A pipe takes each short write as a whole: lines of several runs mix only where a line comes in pieces.
    QByteArray source;
    for (int i = 0; i < 400; ++i)
        source += "#EQU unused_" + QByteArray::number(i) + ", 1\n";
    writeGoodProject(source + goodSource());
    AsmToolSetup both = setup();
    both.program = "sh";
    const AsmToolResult result =
        run({"-c", "for i in 1 2 3 4; do \"$0\" -e none p.nalvo 2>&1 & done | cat; wait", NALVO_ASM}, both);
    QList<QByteArray> lines = result.out.split('\n');
    EXPECT_EQ(lines.takeLast(), QByteArray());
    EXPECT_EQ(lines.size(), 4 * 401);
    for (const QByteArray& line : qAsConst(lines)) {
        EXPECT_TRUE(line.startsWith("a.psm:") ? line.endsWith(" [warnEquUnused]") : line.endsWith(" files written"))
            << line.constData();
    }
}

} // namespace
