// A rename changes no word of a program: on all assembler cases, all examples, and what it refuses.

#include "AsmCase.h"
#include "SymbolsFixture.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>

using namespace nsModAsmFe;

namespace {

QString textOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        ADD_FAILURE() << qPrintable(path);
    // A byte order mark is not a part of the text, as in the documents of the editor.
    const QByteArray bytes = file.readAll();
    return QString::fromLatin1(bytes.startsWith("\xEF\xBB\xBF") ? bytes.mid(3) : bytes);
}

/// Puts another name into the texts.
void rename(QVector<sSymbolSource>* sources, const QVector<sSymbolPlace>& places, const QString& name)
{
    for (int i = places.size() - 1; i >= 0; --i) {
        const sSymbolPlace& place = places.at(i);
        QStringList lines = sources->at(place.file).text.split('\n');
        lines[place.line].replace(place.column, place.length, name);
        (*sources)[place.file].text = lines.join('\n');
    }
}

/// Renames each label and each constant, and compares the words. @return the number of renames
int renameEach(Sources* sources, const QString& what)
{
    if (!sources->assemble())
        return 0;
    const QVector<int> before = sources->image();
    const QVector<sSymbolSource> original = sources->all();
    const SymbolTable table = sources->table();
    int count = 0;
    for (int symbol = 0; symbol < table.symbols().size(); ++symbol) {
        const SymbolRename plan(table, sources->words());
        const QString name = QStringLiteral("renamed_%1").arg(symbol);
        if (!plan.refusal(symbol, name).isEmpty())
            continue;
        sources->all() = original;
        rename(&sources->all(), plan.places(symbol), name);
        EXPECT_TRUE(sources->assemble()) << qPrintable(what + ": " + table.symbol(symbol).fullName());
        EXPECT_EQ(sources->image(), before) << qPrintable(what + ": " + table.symbol(symbol).fullName());
        // The old name is gone, and the new one has all its places.
        const SymbolTable after = sources->table();
        const sSymbol& old = table.symbol(symbol);
        EXPECT_LT(after.find(old.kind, old.nameSpace, old.name), 0);
        EXPECT_EQ(after.placesOf(after.find(old.kind, old.nameSpace, name)).size(), plan.places(symbol).size());
        ++count;
    }
    sources->all() = original;
    return count;
}

TEST(SymbolRename, noWordOfAnyAssemblerCaseChanges)
{
    const QStringList cases = AsmCase::scan(NALVO_SOURCE_DIR "/tests/data/asm");
    ASSERT_GT(cases.size(), 300);
    int count = 0;
    for (const QString& path : cases) {
        const AsmCase asmCase(path);
        const QDir folder = asmCase.isFolder ? QDir(path) : QFileInfo(path).dir();
        Sources sources(asmCase.processor);
        sources.config.behaviorEqu = AsmFeConfig::equSilent;
        for (const QString& name : asmCase.sources)
            sources.add(name, textOf(folder.filePath(name)));
        count += renameEach(&sources, path);
    }
    std::printf("%d renames\n", count);
    EXPECT_GT(count, 300);
}

TEST(SymbolRename, noWordOfAnyExampleChanges)
{
    int count = 0;
    QDirIterator it(NALVO_SOURCE_DIR "/examples", {"*.nalvo"}, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString project = it.next();
        const QString text = textOf(project);
        const int start = text.indexOf("<srcFiles>") + 10;
        const int processor = text.indexOf("<processor>") + 11;
        Sources sources(text.mid(processor, text.indexOf('<', processor) - processor));
        for (QString name : text.mid(start, text.indexOf('<', start) - start).split(':')) {
            name.replace("&amp;#47;", "/");
            sources.add(name, textOf(QFileInfo(project).dir().filePath(name)));
        }
        const int renames = renameEach(&sources, project);
        EXPECT_GT(renames, 0) << qPrintable(project);
        count += renames;
    }
    std::printf("%d renames\n", count);
    EXPECT_GT(count, 50);
}

class Refusals : public ::testing::Test
{
protected:
    Refusals()
    {
        sources.add("a.psm", "#EQU one, 1\n#NAMESPACE x\n#EQU two, 2\nthere: LOAD s0, two\n#ENDNAMESPACE\n"
                             "start: LOAD s0, one\nJUMP x::there\nother: JUMP start\n");
        EXPECT_TRUE(sources.assemble());
        table = sources.table();
    }
    QString refusal(const QString& nameSpace, const QString& old, const QString& name) const
    {
        int symbol = table.find(symbolLabel, nameSpace, old);
        if (symbol < 0)
            symbol = table.find(symbolConstant, nameSpace, old);
        return SymbolRename(table, sources.words()).refusal(symbol, name);
    }

    Sources sources;
    SymbolTable table;
};

TEST_F(Refusals, namesThatAreNone)
{
    EXPECT_EQ(refusal("", "start", "fresh"), "");
    for (const char* name : {"", "start", "a b", "a-b", "a::b", "x:", "LOAD", "load", "z", "NC", "s0", "0x10", "12",
                             "b1", "\xC3\xA4", "a;b", "\"a\"", "#a"})
        EXPECT_NE(refusal("", "start", name), "") << name;
    EXPECT_EQ(refusal("", "start", "s0"), "Using register as label is not allowed: s0");
}

TEST_F(Refusals, namesThatCollide)
{
    EXPECT_EQ(refusal("", "start", "other"), "There is a label of this name: other");
    EXPECT_EQ(refusal("", "start", "one"), "There is a constant of this name: one");
    EXPECT_EQ(refusal("", "one", "start"), "There is a label of this name: start");
    // Labels of another namespace may have the name, constants of another one not.
    EXPECT_EQ(refusal("", "start", "there"), "");
    EXPECT_EQ(refusal("", "start", "two"), "There is a constant of this name: x::two");
    EXPECT_EQ(refusal("", "one", "two"), "");
    EXPECT_EQ(refusal("x", "two", "one"), "");
    EXPECT_EQ(refusal("", "one", "there"), "There is a label of this name: x::there");
}

TEST_F(Refusals, aNameInAnotherNamespaceMayBeTheSame)
{
    for (const auto& pair :
         {qMakePair(QString("there"), QString("start")), qMakePair(QString("two"), QString("one"))}) {
        Sources renamed;
        renamed.all() = sources.all();
        int symbol = table.find(symbolLabel, "x", pair.first);
        if (symbol < 0)
            symbol = table.find(symbolConstant, "x", pair.first);
        ASSERT_EQ(SymbolRename(table, sources.words()).refusal(symbol, pair.second), "");
        rename(&renamed.all(), table.placesOf(symbol), pair.second);
        EXPECT_TRUE(renamed.assemble());
        EXPECT_EQ(renamed.image(), sources.image());
    }
}

TEST_F(Refusals, onlyLabelsAndConstantsOfAnAssembledProgram)
{
    const SymbolRename plan(table, sources.words());
    EXPECT_EQ(plan.refusal(-1), "There is no label and no constant here.");
    EXPECT_EQ(plan.refusal(table.find(symbolNameSpace, "", "x")), "Only labels and constants can be renamed.");
    EXPECT_EQ(plan.refusal(table.find(symbolLabel, "", "start")), "");
    sources.all()[0].text += "LOAD s0, nothing\n";
    EXPECT_FALSE(sources.assemble());
    const SymbolTable failed = sources.table();
    EXPECT_NE(SymbolRename(failed, sources.words()).refusal(failed.find(symbolLabel, "", "start")), "");
}

} // namespace
