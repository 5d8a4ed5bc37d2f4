// Sources that no person has written: none may crash the assembler, hang it or eat the memory of the machine.

#include "ChildProcess.h"
#include "HostileRun.h"

#include <gtest/gtest.h>

#include <random>

namespace {

const int oneMb = 1 << 20;

QByteArray randomBytes(unsigned int seed, int count, const QByteArray& alphabet)
{
    std::mt19937 random(seed);
    QByteArray bytes(count, 0);
    for (int i = 0; i < count; ++i) {
        bytes[i] = alphabet.isEmpty() ? char(random() & 0xff) : alphabet.at(int(random() % unsigned(alphabet.size())));
    }
    return bytes;
}

/// The text over and over, up to about this many bytes.
QByteArray repeated(const QByteArray& text, int bytes)
{
    return text.repeated(bytes / text.size() + 1);
}

int scaled(int size)
{
    return underSanitizer ? size / 8 : size;
}

TEST(HostileSources, binaryGarbage)
{
    for (unsigned int seed = 1; seed <= 2; ++seed)
        expectGoodEnd([=] { return refusedRun({randomBytes(seed, scaled(4 * oneMb), QByteArray())}); }, 20, 700);
}

TEST(HostileSources, garbageOfTheLanguage)
{
    const QByteArray alphabet("\n\n\n  \t,;:'\"()[]#+-*/%&|^~<>\\01xXbBdasLOAD");
    expectGoodEnd([=] { return refusedRun({randomBytes(3, scaled(4 * oneMb), alphabet)}); }, 40, 900);
}

TEST(HostileSources, wordsInRandomOrder)
{
    const QList<QByteArray> words = {"#EQU",
                                     "#SET",
                                     "#ORG",
                                     "#IFDEF",
                                     "#ELSE",
                                     "#ENDIF",
                                     "#NAMESPACE",
                                     "#ENDNAMESPACE",
                                     "LOAD",
                                     "JUMP",
                                     "s0",
                                     "x",
                                     "y:",
                                     "0x10",
                                     "\"A\"",
                                     "ADDR",
                                     "a::",
                                     "TRUE",
                                     "INSTMEM",
                                     "[7:0]",
                                     "'2BE",
                                     "(s1)",
                                     ",",
                                     ",",
                                     "\n",
                                     "\n",
                                     "\n",
                                     "\n",
                                     ";",
                                     "+",
                                     "MEMRANGE",
                                     "PAGE0",
                                     "IODEV::d::SIZE",
                                     "IODEV::d::EN",
                                     "IODEV::d::VALUE",
                                     "#DEFINE"};
    for (unsigned int seed = 1; seed <= 4; ++seed) {
        expectGoodEnd(
            [&] {
                std::mt19937 random(seed);
                QByteArray text;
                while (text.size() < scaled(oneMb))
                    text += words.at(int(random() % unsigned(words.size()))) + ' ';
                return refusedRun({text});
            },
            20, 500);
    }
}

struct Line
{
    const char* name;
    const char* before;
    const char* after;
};

const Line lines[] = {
    {"bare", "", ""},
    {"first", " LOAD ", ", 1"},
    {"second", " LOAD s0, ", ""},
    {"constant", "#EQU x, ", "\n LOAD s0, x"},
    {"nameOfConstant", "#EQU ", ", 1"},
    {"parameter", "#SET ", ", 1"},
    {"value", "#SET IODEV::d::VALUE, ", "\n#SET IODEV::d::SIZE, 4\n#SET IODEV::d::EN, TRUE\n LOAD s0, 1"},
    {"condition", "#IFDEF ", "\n#ENDIF"},
    {"origin", "#ORG ADDR, ", "\n LOAD s0, 1"},
    {"range", "#ORG MEMRANGE, PAGE", "\n LOAD s0, 1"},
    {"define", "#DEFINE ", ""},
    {"nameSpace", "#NAMESPACE ", "\n#ENDNAMESPACE"},
    {"label", "", ":\n LOAD s0, 1"},
    {"comment", "; \\navConst ", "\n LOAD s0, 1"},
    {"string", " LOAD s0, \"", "\""},
    {"bits", " LOAD s0, 1[", "]"},
    {"attribute", " LOAD s0, \"A\"'", ""},
    {"instMem", "#SET IODEV::d::VALUE, INSTMEM[", "]\n#SET IODEV::d::SIZE, 4\n#SET IODEV::d::EN, TRUE\n LOAD s0, 1"},
};

const char* const fillers[] = {"a",  "\"",      "(",    ")",    "1+", ":",     "'",  "[",        "]",
                               ",",  "-",       "\\",   "|",    "a ", "0",     "::", "()",       "1 ",
                               "~",  "1<<",     "%",    " %",   "\t", "\\nav", "1,", "0x1:",     "\"a\"",
                               "s0", "append:", "\xe4", "(1)+", "--", "PAGE",  "][", "\xff\xfe", "\\navSep "};

class HostileLine : public ::testing::TestWithParam<Line>
{
};

/// A long line of each kind: what grows with the square of its length shows here.
TEST_P(HostileLine, ofAnyContent)
{
    const Line line = GetParam();
    for (const char* filler : fillers) {
        SCOPED_TRACE(filler);
        expectGoodEnd(
            [&] { return hostileRun({line.before + repeated(filler, scaled(oneMb / 4)) + line.after + "\n"}); }, 10,
            250);
    }
}

INSTANTIATE_TEST_SUITE_P(kinds, HostileLine, ::testing::ValuesIn(lines),
                         [](const auto& row) { return std::string(row.param.name); });

/// Ten megabytes in one line.
TEST(HostileSources, hugeLines)
{
    for (const Line& line : {lines[0], lines[2], lines[3]}) {
        for (const char* filler : {"a", "\"", "(", "1+", ":", "'", "[", ","}) {
            SCOPED_TRACE(std::string(line.before) + filler);
            expectGoodEnd([&] { return hostileRun({line.before + repeated(filler, scaled(10 * oneMb)) + line.after}); },
                          20, 1500);
        }
    }
}

TEST(HostileSources, lineWithoutEnd)
{
    // Beyond the bound of a line nothing is kept.
    expectGoodEnd(
        [] {
            AsmFixture f;
            f.run(" LOAD s0, 1\n" + QByteArray(20 * oneMb, 'x') + "\n LOAD s0, 1\n");
            if (f.errors() != QStringList("errSyntax") || f.msg.messages(ModMsgHookIf::eMsgError).first().line() != 1)
                return "unexpected: " + f.msg.errors().join(" / ").left(500);
            return brokenRule(f);
        },
        20, 400);
}

TEST(HostileSources, nulBytes)
{
    AsmFixture f;
    EXPECT_TRUE(f.run(QByteArray(" LOAD s0, 1\0 nonsense\n LOAD s0, 2\n\0\n", 37)));
    EXPECT_EQ(f.asmFe.opcodeList()->count(), 2);
    EXPECT_EQ(f.asmFe.opcodeList()->first()->next->srcRef.lineNo, 1);
    expectGoodEnd([] { return refusedRun({QByteArray(scaled(8 * oneMb), 0)}); }, 10, 100);
    expectGoodEnd([] { return refusedRun({repeated(QByteArray("\0\n", 2), scaled(8 * oneMb))}); }, 10, 100);
}

TEST(HostileSources, invalidUtf8)
{
    AsmFixture f;
    EXPECT_TRUE(f.run("; \xc3\x28 \xff\xfe\xfd\n LOAD s0, \"\xff\"[0] ; \xe2\x82\n"));
    EXPECT_FALSE(f.run("\xff\xfe: LOAD s0, 1\n"));
    EXPECT_EQ(f.errors(), QStringList("errUnallowedCharsInName"));
    EXPECT_FALSE(f.run(QByteArray::fromHex("fffe20004c004f00")));
    EXPECT_EQ(brokenRule(f), QString());
}

TEST(HostileSources, manyLines)
{
    expectGoodEnd([] { return refusedRun({repeated("\n", scaled(8 * oneMb))}); }, 10, 100);
    expectGoodEnd([] { return refusedRun({repeated(";\n", scaled(8 * oneMb))}); }, 10, 100);
    expectGoodEnd([] { return refusedRun({repeated(":\n", scaled(oneMb / 4))}); }, 20, 900);
    expectGoodEnd([] { return refusedRun({repeated("a:\n", scaled(oneMb / 4))}); }, 20, 900);
    expectGoodEnd([] { return refusedRun({repeated("#ENDIF\n", scaled(oneMb))}); }, 20, 700);
    expectGoodEnd([] { return refusedRun({repeated(" LOAD s0, 1\n", scaled(4 * oneMb))}); }, 20, 500);
}

TEST(HostileSources, manyFiles)
{
    expectGoodEnd(
        [] {
            QList<QByteArray> sources;
            for (int i = 0; i < 2000; ++i)
                sources.append(i % 4 == 0 ? QByteArray() : QByteArray(" ;x\n"));
            sources.append(" LOAD s0, 1");
            return hostileRun(sources);
        },
        20, 200);
}

TEST(HostileSources, sameFileTwice)
{
    AsmFixture f;
    f.open();
    f.setSources({"x: LOAD s0, 1\n"});
    f.sources.srcFiles.append(f.sources.srcFiles.first());
    f.asmFe.assemble(nsModAsmFe::ModAsmFe::eEventNone);
    EXPECT_EQ(f.errors(), QStringList("errLblIsDuplicate"));
}

} // namespace
