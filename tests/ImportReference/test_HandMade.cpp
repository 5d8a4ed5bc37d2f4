// Small programs with one difficulty each, through converter and assembler.

#include "ImportCase.h"

#include <gtest/gtest.h>

using foreign::Dialect;

namespace {

void expectSame(Dialect dialect, const QByteArray& text, const QVector<foreign::SourceFile>& included = {},
                int memorySize = 1024)
{
    ImportCase test;
    test.dialect = dialect;
    test.program.files.append({"main.psm", text});
    test.program.files += included;
    test.program.memorySize = memorySize;
    EXPECT_EQ(importProblem(test).toStdString(), "") << text.toStdString();
}

} // namespace

TEST(HandMade, aFileThatIsIncludedTwiceSeesTheNamesOfItsPlace)
{
    expectSame(Dialect::Kcpsm6,
               "NAMEREG s3, work\nLOAD work, 01\nINCLUDE \"add.psm\"\nNAMEREG work, s3\nNAMEREG s4, work\nINCLUDE "
               "\"add.psm\"\n"
               "LOAD s3, work\n",
               {{"add.psm", "ADD work, 05\nSUB work, 01\n"}});
}

TEST(HandMade, anIncludedFileRenamesForWhatFollows)
{
    expectSame(Dialect::Kcpsm6, "INCLUDE \"names.psm\"\nLOAD count, limit\nLOAD s4, s5\nJUMP out\n",
               {{"names.psm", "NAMEREG s3, count\nCONSTANT limit, 20'd\nout: RETURN\n"}});
}

TEST(HandMade, anIncludeInTheMiddleKeepsTheOrder)
{
    expectSame(Dialect::Kcpsm6,
               "LOAD s0, 01\nINCLUDE \"a.psm\"\nLOAD s0, 04\nINCLUDE \"c.psm\"\nlast: LOAD s0, 06\nJUMP first\n",
               {{"a.psm", "first: LOAD s0, 02\nINCLUDE \"b.psm\"\n"},
                {"b.psm", "LOAD s0, 03"},
                {"c.psm", "LOAD s0, 05\nJUMP last"}});
}

TEST(HandMade, filesOfOneNameInTwoFolders)
{
    expectSame(Dialect::Kcpsm6, "INCLUDE \"a/part.psm\"\nINCLUDE \"b/part.psm\"\nINCLUDE \"b/main.psm\"\n",
               {{"a/part.psm", "LOAD s0, 01\n"}, {"b/part.psm", "LOAD s0, 02\n"}, {"b/main.psm", "LOAD s0, 03\n"}});
}

TEST(HandMade, targetsInTheMiddleOfAnExpansion)
{
    expectSame(Dialect::Kcpsm6,
               "STRING t$, \"abcd\"\nJUMP 003\nLOAD&RETURN s0, t$\nJUMP NZ, 002\nCALL 001\nCALL Z, 000\n");
}

TEST(HandMade, targetsAtLabelsAndAtNothing)
{
    for (const Dialect dialect : {Dialect::Kcpsm3, Dialect::Kcpsm6})
        expectSame(
            dialect,
            "start: JUMP 001\nhere: CALL 000\nJUMP 3FE\nJUMP 3FE\nCALL 3FF\nJUMP 2\nADDRESS 200\nJUMP 1FF\nJUMP 201\n");
}

TEST(HandMade, labelsWhereNoInstructionFollows)
{
    for (const Dialect dialect : {Dialect::Kcpsm3, Dialect::Kcpsm6}) {
        expectSame(dialect, "JUMP gap\nJUMP end\ngap:\nADDRESS 100\nJUMP gap\nend:\n");
        expectSame(dialect, "JUMP one\nJUMP two\none:\ntwo:\n; the end\n");
        expectSame(dialect, "JUMP 001\nunused:\nADDRESS 3FF\nJUMP 000\n");
    }
    expectSame(Dialect::PBlazIde, "JUMP gap\ngap:\nORG $100\nJUMP gap\nCALL end\nend:\n");
    expectSame(Dialect::Mico8Gnu, "b gap\ngap:\n.org 0x100\nb gap\ncall 1f\n1:\n");
}

TEST(HandMade, labelsThatShareAnAddress)
{
    expectSame(Dialect::Kcpsm3, "one:\ntwo:\n\nthree: LOAD s0, 01\nJUMP one\nJUMP two\nJUMP three\nJUMP 000\n");
}

TEST(HandMade, addressesThatGoBack)
{
    for (const Dialect dialect : {Dialect::Kcpsm3, Dialect::Kcpsm6})
        expectSame(dialect,
                   "JUMP high\nADDRESS 300\nhigh: JUMP low\nADDRESS 010\nlow: JUMP 001\nADDRESS 2FF\nJUMP high\n");
    expectSame(Dialect::PBlazIde, "ORG $300\nhigh: JUMP low\nORG 0\nlow: JUMP high\n");
    expectSame(Dialect::Mico8Vendor, ".org 0x30\nhigh: b low\n.org 0\nlow: b high\nb $+5\n");
}

TEST(HandMade, lettersThatMeanSomethingElsewhere)
{
    for (const Dialect dialect : {Dialect::Kcpsm3, Dialect::Kcpsm6})
        expectSame(
            dialect,
            "LOAD s0, \"\\\"\nLOAD s0, \"'\" ; '\nLOAD s0, \";\"\nLOAD s0, \",\"\nLOAD s0, \" \"\nLOAD s0, \"(\"\n"
            "LOAD s0, \"%\"\nLOAD s0, \"#\"\nCONSTANT back, \"\\\"\nLOAD s1, back\n");
    expectSame(Dialect::Kcpsm6,
               "STRING t$, \"\\n; it's [x], \", \"\\\"\nOUTPUTK t$, 1\nLOAD&RETURN s0, t$\nLOAD s0, ~\";\"\n");
    expectSame(Dialect::Mico8Gnu,
               "movi r0, ';'\nmovi r0, ','\nmovi r0, '#'\nmovi r0, '/'\nmovi r0, '\"'\nmovi r0, ' '\nmovi r0, '('\n");
}

TEST(HandMade, namesThatTheConverterCouldMake)
{
    expectSame(Dialect::Kcpsm6, "CONSTANT COMP, 01\nCONSTANT COMP_const, 02\nloop: LOAD s0, COMP\nLoop: LOAD s0, "
                                "COMP_const\nloop_2: JUMP Loop\n"
                                "Loop_2: JUMP loop\nJUMP loop_2\nJUMP Loop_2\naddr_3F0: JUMP 3F0\nJUMP addr_3F0\n");
    expectSame(Dialect::Mico8Gnu, ".L1: b .L1\n_L1: b _L1\nL1: b L1\n.l1: b .L1\nb .l1\n");
}

TEST(HandMade, namesThatAreRegistersOrNumbersInOurs)
{
    expectSame(Dialect::PBlazIde,
               "b0 EQU 5\nb12 EQU 6\nr0 EQU 7\nloop: LOAD s0, b0\nLOAD s1, b12\nLOAD s2, r0\nb1: JUMP b1\na: JUMP a\n");
    expectSame(Dialect::Mico8Vendor, "s0 equ 5\nsF reg r3\nmovi sF, s0\nb0: b b0\nA: b A\n");
    expectSame(Dialect::Kcpsm3, "CONSTANT b1010, 07\nNAMEREG s3, r3\nLOAD r3, b1010\nR3: JUMP R3\n");
}

TEST(HandMade, partsOfAddresses)
{
    expectSame(
        Dialect::Kcpsm6,
        "LOAD s0, here'upper\nLOAD s1, here'lower\nLOAD s2, ~here'lower\nJUMP@ (s0, s1)\nADDRESS FF0\nhere: JUMP here\n"
        "LOAD&RETURN s0, here'lower\nOUTPUTK here'upper, 3\n",
        {}, 4096);
}

TEST(HandMade, unusedWordsJump)
{
    expectSame(
        Dialect::Kcpsm6,
        "DEFAULT_JUMP trap\nJUMP start\nADDRESS 010\nstart: JUMP NZ, 200\ntrap: JUMP trap\nADDRESS 3FF\nJUMP start\n");
    expectSame(Dialect::Kcpsm6, "JUMP 000\nDEFAULT_JUMP 3F0\n");
}

TEST(HandMade, constantsOfConstantsAndComplements)
{
    expectSame(
        Dialect::Kcpsm6,
        "LOAD s0, third\nCONSTANT third, ~second\nCONSTANT second, ~first\nCONSTANT first, ~01\nLOAD s1, ~third\n"
        "OUTPUTK ~third, 5\nCOMPARE s1, first\n");
}

TEST(HandMade, theScratchpadOfAWholeByte)
{
    expectSame(Dialect::Kcpsm6, "FETCH s0, FF\nSTORE s0, 80\nFETCH s1, 40\n");
}

TEST(HandMade, localLabels)
{
    expectSame(Dialect::Mico8Gnu,
               "1: b 1b\nb 1f\n1: b 1f\nb 1b\n1:\n1: b 1b\n12: b 12b\nb 1f\nb 2f\n2: b 2b\n1: ret\nb 12b\n");
}

TEST(HandMade, namesThatAreSetAgain)
{
    expectSame(
        Dialect::Mico8Gnu,
        "movi r0, late\n.set x, 1\nmovi r1, x\n.set x, 2\n.set y, 5\nmovi r2, x\n.set x, 3\nmovi r3, x\n.equ late, 9\n"
        "movi r4, y\n.set X, 7\nmovi r5, _lo(x)\nmovi r6, #X\n");
}

TEST(HandMade, theEndOfTheProgram)
{
    expectSame(Dialect::Mico8Gnu, "b later\nlater: ret\n.end\nThis is: no program, nor #ORG ADDR, 0\n  b nowhere\n");
    expectSame(Dialect::Mico8Gnu, "ret\n .end ; of it");
}

TEST(HandMade, registersOfTheOtherBank)
{
    expectSame(Dialect::Kcpsm6, "NAMEREG s3, count\nSTAR s3, count\nSTAR S3, 5A\nSTAR s4, s5\nSTAR count, s3_value\n"
                                "CONSTANT s3_value, 12\n");
}

TEST(HandMade, relativeTargets)
{
    for (const Dialect dialect : {Dialect::Mico8Vendor, Dialect::Mico8Gnu})
        expectSame(dialect,
                   "b $\nb $+1\nb $+2\nb $-1\nbz $+0x10\ncall $+300\nx: b $-6\n.org 0x80\nb $-1\nbnz $-0x80\n");
}

TEST(HandMade, caseTellsConstantsAndLabelsApart)
{
    expectSame(Dialect::Mico8Gnu,
               ".equ RX, 3\nrx: movi r0, RX\nmovi r0, _lo(rx)\nmovi r0, _lo(RX)\nmovi r0, _hi(rx)\nb rx\n");
    expectSame(Dialect::Kcpsm6,
               "CONSTANT TABLE_x, 3\nLOAD s0, 01\ntable_x: LOAD s0, TABLE_x\nLOAD s0, table_x'lower\nJUMP table_x\n");
    expectSame(Dialect::Kcpsm3,
               "NAMEREG s1, Count\nNAMEREG s2, count\nCONSTANT COUNT, 3\nLOAD Count, COUNT\nADD count, Count\n");
}

TEST(HandMade, wordsAsNumbers)
{
    expectSame(
        Dialect::Kcpsm6,
        "INST 01F2A\nINST 22123\nINST 37001\nINST 00000\nINST 2BFF3\nINST 16120\nINST 14180\nINST 29001\nINST 28000\n"
        "INST 25000\nINST 26120\n");
}

TEST(HandMade, endsAndMarksOfFiles)
{
    expectSame(Dialect::Kcpsm3, "LOAD s0, 01\r\nLOAD s1, 02 ; \xB0\r\n\x1A");
    expectSame(Dialect::Kcpsm3, "LOAD s0, 01\rLOAD s1, 02\r");
    expectSame(Dialect::Kcpsm6, "INCLUDE \"a.psm\"\nLOAD s1, 02", {{"a.psm", "LOAD s0, 01\n\x1A"}});
}

/// A line of the log that has no word begins, behind its address, with what could be one.
TEST(HandMade, aLogWithLabelsThatLookLikeWords)
{
    expectSame(Dialect::Kcpsm6, "ADDED: LOAD s0, timestamp_hours\nB1010 :\nJUMP ADDED\nJUMP B1010\n");
}
