// Files that are no sources, that lead elsewhere, or that are made to wear the program out.

#include "ForeignFixture.h"

#include "DialectFinder.h"
#include "ForeignReader.h"

#include <sys/stat.h>

namespace {

using namespace nsImport;

class ImportHostile : public ForeignTest
{
protected:
    void refused(const QByteArray& text, const QString& key, int line = 0)
    {
        expectRefused(Dialect::eKcpsm6, text, key, line);
    }
};

TEST_F(ImportHostile, BinaryFiles)
{
    refused(QByteArray("LOAD s0, 1\nLOAD\0 s0, 1\n", 24), "errImpBinary", 2);
    EXPECT_FALSE(m_import->hasResult());
    refused("LOAD s0, 1\n\x1aLOAD s0, 1\n", "errImpBinary", 2);
    QByteArray random;
    for (int i = 0; i < 100000; ++i)
        random += char((i * 7919 + i / 251) & 0xFF);
    EXPECT_FALSE(import(Dialect::eKcpsm6, random));
    EXPECT_FALSE(m_import->hasResult());
}

TEST_F(ImportHostile, RandomTextIsNoProgram)
{
    // No crash, an end, and never a result without a message.
    for (int dialect = 0; dialect < Dialect::eDialectCount; ++dialect) {
        quint32 seed = 1;
        for (int round = 0; round < 50; ++round) {
            QByteArray text;
            static const char* const pieces[] = {
                "LOAD",  "s0", ",",    " ",       "\n",     ":",       "\"",     "'",
                "(",     ")",  "[",    "]",       "STRING", "$",       "#",      "~",
                ";",     "1F", "INST", "x",       "JUMP",   "ADDRESS", "3FF",    "EQU",
                "%",     "/*", "*/",   "NAMEREG", "TABLE",  "-",       "'upper", "DEFAULT_JUMP",
                ".byte", "1b", "b",    "movi",    "r1",     "ORG",     "=",      "\t"};
            for (int i = 0; i < 400; ++i) {
                seed = seed * 1664525u + 1013904223u;
                text += pieces[(seed >> 8) % (sizeof(pieces) / sizeof(pieces[0]))];
            }
            const bool ok = import(Dialect::eDialect_t(dialect), text);
            EXPECT_TRUE(ok || m_import->messages().errors() > 0) << text.constData();
        }
    }
}

TEST_F(ImportHostile, AHundredMegabytes)
{
    QFile file(path("main.psm"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(100 << 20)); // sparse
    file.close();
    EXPECT_FALSE(import(Dialect::eKcpsm3));
    EXPECT_TRUE(has("errImpTooLarge"));
}

TEST_F(ImportHostile, LongLines)
{
    refused("LOAD s0, 1\n; " + QByteArray(20000, 'x') + '\n', "errImpLineTooLong", 2);
    refused("LOAD s0, " + QByteArray(9000, '~') + "1\n", "errImpSyntax", 1);
    expectRefused(Dialect::eMico8, "movi r1, " + QByteArray(4500, '(') + "1" + QByteArray(4500, ')') + '\n',
                  "errImpSyntax", 1);
    expectRefused(Dialect::eMico8, "movi r1, " + QByteArray(9000, '-') + "1\n", "errImpSyntax", 1);
}

TEST_F(ImportHostile, LongChains)
{
    QByteArray forwards;
    QByteArray backwards;
    const int count = 20000;
    for (int i = 0; i < count; ++i) {
        forwards += "CONSTANT n" + QByteArray::number(i) + "_, n" + QByteArray::number(i + 1) + "_\n";
        backwards += "CONSTANT n" + QByteArray::number(count - 1 - i) + "_, n" + QByteArray::number(count - i) + "_\n";
    }
    for (const QByteArray& chain : {forwards, backwards}) {
        EXPECT_TRUE(import(Dialect::eKcpsm6, "CONSTANT n20000_, 42\n" + chain + "LOAD s0, n0_\n"))
            << messages().left(1000).toStdString();
        EXPECT_EQ(words().toStdString(), "01042");
    }
}

TEST_F(ImportHostile, ManyDefinitionsOfOneName)
{
    // Each ends after a time that grows with the number of lines, not with its square.
    const int count = 50000;
    expectRefused(Dialect::eKcpsm6, "LOAD s0, 1\n" + QByteArray("a:\n").repeated(count), "errImpDuplicateName", 3);
    QByteArray text;
    for (int i = 0; i < count; ++i)
        text += "CONSTANT a, 1\nCONSTANT n" + QByteArray::number(i) + ", a\n";
    expectRefused(Dialect::eKcpsm6, "LOAD s0, 1\n" + text, "errImpDuplicateName", 4);
    expectWords(Dialect::eMico8, QByteArray("1:\n").repeated(count) + "b 1b\n" + QByteArray("1:\n").repeated(count),
                "3B000");
    expectWords(Dialect::eMico8, ".set a, 0\n" + QByteArray(".set a, a + 1\n").repeated(200) + "movi r1, a\n", "121C8");
    text = "x reg r1\n";
    for (int i = 0; i < count; ++i)
        text = text + "x reg r2\n.set n" + QByteArray::number(i) + ", 1\n";
    expectWords(Dialect::eMico8, text + "mov x, x\n", "10210");
    text.clear();
    for (int i = count; i > 0; --i)
        text += 'a' + QByteArray::number(i) + " reg a" + QByteArray::number(i - 1) + '\n';
    expectWords(Dialect::eMico8, text + "a0 reg r2\nmov a" + QByteArray::number(count) + ", r1\n", "10208");
}

TEST_F(ImportHostile, MillionsOfLines)
{
    refused("LOAD s0, 1\n" + QByteArray(ForeignReader::maxLines, '\n'), "errImpTooManyLines");
    EXPECT_FALSE(m_import->hasResult());
}

TEST_F(ImportHostile, StringsThatGrow)
{
    QByteArray text = "STRING s0$, \"0123456789\"\n";
    for (int i = 1; i < 40; ++i) {
        const QByteArray last = "s" + QByteArray::number(i - 1) + "$";
        text += "STRING s" + QByteArray::number(i) + "$, " + last + ", " + last + "\n";
    }
    refused(text + "LOAD&RETURN s0, s39$\n", "errImpTooManyWords");
}

TEST_F(ImportHostile, MissingAndRecursiveIncludes)
{
    refused("LOAD s0, 1\nINCLUDE \"none.psm\"\n", "errImpIncludeMissing", 2);
    EXPECT_FALSE(m_import->hasResult());
    refused("INCLUDE \"main.psm\"\n", "errImpIncludeCycle", 1);
    write("a.psm", "INCLUDE \"b.psm\"\n");
    write("b.psm", "INCLUDE \"a.psm\"\n");
    refused("INCLUDE \"a.psm\"\n", "errImpIncludeCycle", 1);
    refused("INCLUDE\n", "errImpSyntax", 1);
    refused("INCLUDE \"\"\n", "errImpSyntax", 1);
    QDir().mkpath(path("folder.psm"));
    refused("INCLUDE \"folder.psm\"\n", "errImpNotAFile", 1);
}

TEST_F(ImportHostile, AThousandMillionIncludes)
{
    for (int i = 0; i < 30; ++i) {
        const QByteArray next = "INCLUDE \"f" + QByteArray::number(i + 1) + ".psm\"\n";
        write(QString("f%1.psm").arg(i), next + next);
    }
    write("f30.psm", "LOAD s0, 1\n");
    refused("INCLUDE \"f0.psm\"\n", "errImpTooManyFiles");
    for (int i = 0; i < 60; ++i)
        write(QString("g%1.psm").arg(i), "INCLUDE \"g" + QByteArray::number(i + 1) + ".psm\"\n");
    refused("INCLUDE \"g0.psm\"\n", "errImpIncludeDepth");
}

TEST_F(ImportHostile, NothingOutsideOfTheFoldersIsRead)
{
    write("secret.psm", "LOAD s0, 1\n");
    write("program/main.psm", "INCLUDE \"../secret.psm\"\n");
    m_options.source = path("program/main.psm");
    m_options.dialect = &Dialect::of(Dialect::eKcpsm6);
    EXPECT_FALSE(importAsItIs());
    EXPECT_TRUE(has("errImpIncludeOutside", 1)) << messages().toStdString();
    write("program/main.psm", "INCLUDE \"" + path("secret.psm").toUtf8() + "\"\n");
    EXPECT_FALSE(importAsItIs());
    EXPECT_TRUE(has("errImpIncludeOutside", 1));
    write("program/main.psm", "INCLUDE \"/etc/passwd\"\n");
    EXPECT_FALSE(importAsItIs());
    EXPECT_TRUE(has("errImpIncludeOutside", 1));
    // A link is no way out either.
    ASSERT_TRUE(QFile::link(path("secret.psm"), path("program/link.psm")));
    write("program/main.psm", "INCLUDE \"link.psm\"\n");
    EXPECT_FALSE(importAsItIs());
    EXPECT_TRUE(has("errImpIncludeOutside", 1));
    // Unless the user says so.
    m_options.folders = QStringList(path());
    EXPECT_TRUE(importAsItIs()) << messages().toStdString();
    write("program/main.psm", "INCLUDE \"secret.psm\"\n");
    EXPECT_TRUE(importAsItIs()) << messages().toStdString();
    EXPECT_EQ(words().toStdString(), "01001");
}

TEST_F(ImportHostile, WhatIsNoFile)
{
    m_options.dialect = &Dialect::of(Dialect::eKcpsm6);
    m_options.source = path("none.psm");
    EXPECT_FALSE(importAsItIs());
    EXPECT_TRUE(has("errImpCannotRead"));
    m_options.source = path();
    EXPECT_FALSE(importAsItIs());
    EXPECT_TRUE(has("errImpNotAFile"));
    ASSERT_EQ(mkfifo(QFile::encodeName(path("fifo.psm")).constData(), 0600), 0);
    m_options.source = path("fifo.psm");
    EXPECT_FALSE(importAsItIs());
    EXPECT_TRUE(has("errImpNotAFile"));
    m_options.source = QString();
    EXPECT_FALSE(importAsItIs());
    write("main.psm", "INCLUDE \"fifo.psm\"\n");
    EXPECT_FALSE(import(Dialect::eKcpsm6));
    EXPECT_TRUE(has("errImpNotAFile", 1));
}

TEST_F(ImportHostile, ManyErrorsAreBounded)
{
    EXPECT_FALSE(import(Dialect::eKcpsm6, QByteArray("FOO s0, 1\n").repeated(3500)));
    EXPECT_EQ(m_import->messages().all().size(),
              ImportMessages::maxMessages + 2); // the dialect, and that there are more
    EXPECT_TRUE(has("errImpTooManyMessages"));
    EXPECT_EQ(m_import->messages().errors(), 3500);
    // Notes do not hide an error, and are none.
    QByteArray text;
    for (int i = 0; i < 3000; ++i) {
        const QByteArray number = QByteArray::number(i);
        text += "CONSTANT Name_" + number + ", 1\nCONSTANT name_" + number + ", 1\n";
    }
    EXPECT_TRUE(import(Dialect::eKcpsm6, text + "LOAD s0, 1\n")) << messages().right(500).toStdString();
    EXPECT_TRUE(has("infoImpTooManyNotes"));
    EXPECT_EQ(m_import->messages().all().size(), ImportMessages::maxMessages + 1);
    expectRefused(Dialect::eKcpsm6, text + "LOAD s0, 1\nFOO\n", "errImpUnknownWord", 6002);
}

TEST_F(ImportHostile, EmptyFiles)
{
    refused("", "errImpNoInstructions");
    refused("\r\n\r\n\x1a", "errImpNoInstructions");
    m_options.dialect = nullptr;
    write("main.psm", "");
    EXPECT_FALSE(importAsItIs());
    EXPECT_TRUE(has("errImpDialectUnknown"));
}

TEST(DialectFinder, KnowsTheDialects)
{
    const auto found = [](const char* text) {
        const DialectFinder finder{QString::fromLatin1(text)};
        return finder.dialect != nullptr ? QString::fromLatin1(finder.dialect->key) : QString();
    };
    EXPECT_EQ(found("CONSTANT a, 1\nstart: LOAD s0, a\nJUMP start\n"), "kcpsm3");
    EXPECT_EQ(found("CONSTANT a, 1\nstart: LOAD s0, a\nOUTPUTK 1, 2\nJUMP start\n"), "kcpsm6");
    EXPECT_EQ(found("INCLUDE \"x.psm\"\nSTRING a$, \"x\"\n"), "kcpsm6");
    EXPECT_EQ(found("a EQU $10\nstart: IN s0, a\nCOMP s0, 3\nJUMP start\n"), "pblazide");
    EXPECT_EQ(found("# x\nstart: movi r1, 5\nimport r2, 3\nb start\n"), "mico8");
    EXPECT_EQ(found("start: add r1, r2\ncall start\n"), "mico8");
    EXPECT_EQ(found("This is a letter,\nnot a program.\n"), QString());
    EXPECT_EQ(found(""), QString());
    // Where another one fits as well, the user is told: the words of its processor are others.
    EXPECT_TRUE(DialectFinder("LOAD s0, 10\n").because.endsWith("; but KCPSM6, pBlazIDE fits as well"))
        << DialectFinder("LOAD s0, 10\n").because.toStdString();
    EXPECT_TRUE(DialectFinder("CONSTANT a, 1\nLOAD s0, a\n").because.endsWith("; but KCPSM6 fits as well"));
    EXPECT_FALSE(DialectFinder("LOAD s0, 10\nHWBUILD s0\n").because.contains("fits as well"));
}

} // namespace
