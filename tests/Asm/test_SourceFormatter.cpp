// The formatter on single lines. That it changes no word and no message is shown by the assembler cases, and by the
// batch program on the examples.

#include "SourceFormatter.h"

#include <gtest/gtest.h>

#include <QList>
#include <QPair>

using nsModAsmFe::SourceFormatter;

namespace {

std::string formatted(const char* line)
{
    return SourceFormatter().formattedLine(QString::fromUtf8(line)).toStdString();
}

TEST(SourceFormatter, putsThePartsIntoColumns)
{
    EXPECT_EQ(formatted("load s0,1;set"), "        LOAD    s0, 1                   ;set");
    EXPECT_EQ(formatted("loop: sub s1 ,\t1 ; less"), "loop:   SUB     s1, 1                   ; less");
    EXPECT_EQ(formatted("  inner:"), "  inner:");
    EXPECT_EQ(formatted("\tinner:  ret"), "  inner: RET");
    EXPECT_EQ(formatted("a_long_label: jump nz,loop"), "a_long_label: JUMP nz, loop");
    EXPECT_EQ(formatted("loop:jump loop"), "loop:   JUMP    loop");
    EXPECT_EQ(formatted("  \t "), "");
}

TEST(SourceFormatter, aLabelAtTheStartStaysThereAndAnotherOneDoesNotGoThere)
{
    EXPECT_EQ(formatted("start:"), "start:");
    EXPECT_EQ(formatted("      start:"), "  start:");
}

TEST(SourceFormatter, leavesArgumentsStringsAndCommentsAsTheyAre)
{
    EXPECT_EQ(formatted("LOAD  s0, 0xaB+( 3  *2 )"), "        LOAD    s0, 0xaB+( 3  *2 )");
    EXPECT_EQ(formatted("LOAD  s0, \"a;  b\" ; \\navSep  \"x\""),
              "        LOAD    s0, \"a;  b\"             ; \\navSep  \"x\"");
    EXPECT_EQ(formatted("LOAD s0, '\\;'"), "        LOAD    s0, '\\;'");
    EXPECT_EQ(formatted("unknown s0 s1"), "        unknown s0 s1");
}

TEST(SourceFormatter, commentsOfTheirOwn)
{
    EXPECT_EQ(formatted(";## part"), ";## part");
    EXPECT_EQ(formatted("; text  "), "; text");
    EXPECT_EQ(formatted("   ; text"), "        ; text");
    EXPECT_EQ(formatted("                                   ; text"), "                                        ; text");
    // A tab counts as wide as one of eight columns.
    EXPECT_EQ(formatted("\t\t\t\t; text"), "                                        ; text");
}

TEST(SourceFormatter, directivesKeepTheirLayout)
{
    EXPECT_EQ(formatted("#EQU  NAME ,  \"a  b\"   "), "#EQU  NAME ,  \"a  b\"");
    EXPECT_EQ(formatted("  #ifdef A ; why"), "  #ifdef A                              ; why");
    EXPECT_EQ(formatted("#EQU\tNAME, 1 ; why"), "#EQU\tNAME, 1 ; why");
}

TEST(SourceFormatter, doesNotTouchWhatItIsNotSureAbout)
{
    // The assembler reads bytes, and one of this letter looks like a blank.
    EXPECT_EQ(formatted("load  s0, \"\xc3\xa0\""), "load  s0, \"\xc3\xa0\"");
    EXPECT_EQ(formatted("load s0,1 ; \xc3\xa0"), "        LOAD    s0, 1                   ; \xc3\xa0");
    EXPECT_EQ(formatted("load s0,1\rload s1,2"), "load s0,1\rload s1,2");
    // The blank is protected by the backslash.
    EXPECT_EQ(formatted("load \\ "), "        LOAD    \\ ");
}

TEST(SourceFormatter, caseIsAChoice)
{
    SourceFormatter::sStyle_t style;
    style.instructionCase = SourceFormatter::eCaseKeep;
    EXPECT_EQ(SourceFormatter(style).formattedLine("Load s0,1"), QString("        Load    s0, 1"));
    style.instructionCase = SourceFormatter::eCaseLower;
    EXPECT_EQ(SourceFormatter(style).formattedLine("Load S0,1"), QString("        load    S0, 1"));
}

TEST(SourceFormatter, aFileKeepsItsLineEndsAndItsMark)
{
    const SourceFormatter formatter;
    EXPECT_EQ(formatter.formatted("load s0,1\r\nret\n\nret"),
              QByteArray("        LOAD    s0, 1\r\n        RET\n\n        RET"));
    EXPECT_EQ(formatter.formatted("\xef\xbb\xbfret\n"), QByteArray("\xef\xbb\xbf        RET\n"));
    EXPECT_EQ(formatter.formatted(QByteArray()), QByteArray());
    EXPECT_EQ(formatter.formatted("ret ; \xe4\n"), QByteArray("        RET                             ; \xe4\n"));
    // Two bytes a character: the blanks at the end of the first line are the halves of a dagger.
    const QByteArray wide("\xff\xfe;\0 \x20\n\0", 8);
    EXPECT_EQ(formatter.formatted(wide), wide);
    const QByteArray dagger = QByteArray("\xfe\xff") + ";\x20\x20\n;\x20\x20";
    EXPECT_EQ(formatter.formatted(dagger), dagger);
    const QByteArray nul("ret\0x\nret\n", 10);
    EXPECT_EQ(formatter.formatted(nul), QByteArray("ret\0x\n        RET\n", 18));
}

/// Random lines of the characters that matter: twice is once, and nothing but blanks and case changes.
TEST(SourceFormatter, twiceIsOnce)
{
    const QString letters = "ab:,;\"\\ \t#(load')\xe4";
    quint32 state = 1;
    const auto random = [&state](int bound) {
        state = state * 1664525u + 1013904223u;
        return int((state >> 8) % quint32(bound));
    };
    const auto bare = [](QString text) {
        text.remove(' ').remove('\t');
        return text.toLower();
    };
    const SourceFormatter formatter;
    for (int i = 0; i < 200000; ++i) {
        QString line;
        for (int length = random(24); length > 0; --length)
            line += letters.at(random(letters.size()));
        const QString once = formatter.formattedLine(line);
        ASSERT_EQ(formatter.formattedLine(once).toStdString(), once.toStdString()) << line.toStdString();
        ASSERT_EQ(bare(once).toStdString(), bare(line).toStdString());
    }
}

} // namespace
