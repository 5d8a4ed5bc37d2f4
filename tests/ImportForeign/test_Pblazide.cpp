// pBlazIDE: each form, with the words of the PicoBlaze 3 written out by hand.

#include "ForeignFixture.h"

namespace {

class Pblazide : public ForeignTest
{
protected:
    void wordsP(const QByteArray& text, const QString& expected) { expectWords(Dialect::ePblazide, text, expected); }
    void refusedP(const QByteArray& text, const QString& key, int line = 1)
    {
        expectRefused(Dialect::ePblazide, text, key, line);
    }
};

TEST_F(Pblazide, Numbers)
{
    wordsP("LOAD s0, 10\nLOAD s1, $10\nLOAD s2, %0101\nLOAD s3, 010\nLOAD s4, -1\n", "0000A 00110 00205 0030A 004FF");
    refusedP("LOAD s0, 256\n", "errImpTooLargeNumber");
    refusedP("LOAD s0, 1F\n", "errImpUnknownName");
    refusedP("LOAD s0, $1G\n", "errImpUnknownName");
}

TEST_F(Pblazide, Equates)
{
    wordsP("hex EQU $1F\ndec EQU 12\nbin EQU %0101\nreg EQU s3\nother EQU reg\n"
           "LOAD reg, hex\nADD reg, dec\nSUB other, bin\nLOAD s0, reg\n",
           "0031F 1830C 1C305 01030");
    wordsP("LOAD s0, late\nlate EQU 3\n", "00003");
    wordsP("sum EQU 2 + 3 * 4\nLOAD s0, sum\nLOAD s1, sum - 4\n", "0000E 0010A");
    // Another spelling is the same name.
    wordsP("Value EQU 7\nLOAD s0, VALUE\n", "00007");
    EXPECT_TRUE(has("infoImpNameCase", 2));
    // A name may be called like a word.
    wordsP("MEM EQU 3\nIN EQU 4\nLOAD s0, MEM\nLOAD s1, IN\n", "00003 00104");
    refusedP("a EQU b\nb EQU a\nLOAD s0, a\n", "errImpCircle");
}

TEST_F(Pblazide, NamesThatStandForTwoThings)
{
    refusedP("x EQU 1\nx EQU 2\nLOAD s0, x\n", "errImpDuplicateName", 2);
    refusedP("x EQU s1\nx EQU s2\nLOAD x, 1\n", "errImpDuplicateName", 2);
    refusedP("x EQU s1\nx EQU 2\nLOAD s0, x\n", "errImpDuplicateName", 2);
    refusedP("x EQU 1\nx: JUMP x\n", "errImpDuplicateName", 2);
    refusedP("x DSIN s1\nIN s0, x\n", "errImpExpectValue", 1);
    refusedP("a-b EQU 1\nLOAD s0, 1\n", "errImpSyntax", 1);
    refusedP("LOAD = s1\nRET\n", "errImpOperandCount", 1);
    refusedP("$ EQU 1\nLOAD s0, 1\n", "errImpSyntax", 1);
    EXPECT_TRUE(source().contains("NO_COUNTERPART ; $ EQU 1")) << source().toStdString();
}

TEST_F(Pblazide, Origin)
{
    wordsP("ORG 0\nLOAD s0, 1\nORG $3FF\nRETI ENABLE\n", "00001 @3FF 38001");
    wordsP("base EQU $10\nLOAD s0, 1\nORG base\nRET\n", "00001 @10 2A000");
}

TEST_F(Pblazide, Devices)
{
    wordsP("sw DSIN $05\nlcd DSOUT 6, \"lcd.txt\"\nio DSIO 7\nram DSRAM $10\nrom DSROM $20\n"
           "IN s0, sw\nOUT s0, lcd\nIN s1, io\nOUT s1, ram\nOUT s1, rom\n",
           "04005 2C006 04107 2C110 2C120");
    EXPECT_TRUE(source().contains("DSOUT \"lcd.txt\"")) << source().toStdString();
}

TEST_F(Pblazide, OutputsBecomeComments)
{
    wordsP("VHDL \"t.vhd\", \"p.vhd\", \"p\"\nMEM \"p.mem\"\nHEX \"p.hex\"\nEXEC\nLOAD s0, 1\n", "00001");
    EXPECT_TRUE(has("warnImpOutput", 1));
    EXPECT_TRUE(m_import->project().contains("p.mem"));
    EXPECT_TRUE(m_import->project().contains("p.hex"));
    EXPECT_TRUE(source().contains("; EXEC"));
}

TEST_F(Pblazide, PortsAndScratchpad)
{
    wordsP("IN s0, 5\nIN s0, s1\nOUT s0, 5\nOUT s0, s1\nIN s0, (s1)\n", "04005 05010 2C005 2D010 05010");
    wordsP("FETCH s0, 5\nFETCH s0, s1\nSTORE s0, 5\nSTORE s0, s1\n", "06005 07010 2E005 2F010");
    wordsP("ptr EQU s4\nIN s0, ptr\n", "05040");
}

TEST_F(Pblazide, Instructions)
{
    wordsP("COMP s1, $23\nCOMP s1, s2\nADDC s1, $23\nSUBC s1, s2\nTEST s1, 1\nAND s1, 1\nOR s1, 1\nXOR s1, 1\n",
           "14123 15120 1A123 1F120 12101 0A101 0C101 0E101");
    wordsP("EINT\nDINT\nRET\nRET NZ\nRETI ENABLE\nRETI DISABLE\n", "3C001 3C000 2A000 2B400 38001 38000");
    wordsP("SRA s1\nSLA s1\nRR s1\nRL s1\nSR0 s1\nSL1 s1\nSRX s1\nSLX s1\n",
           "20108 20100 2010C 20102 2010E 20107 2010A 20104");
    wordsP("x: JUMP X\nJUMP NC, x\nCALL x\nCALL Z, x\nJUMP $200\n", "34000 35C00 30000 31000 34200 @200 00000");
    refusedP("COMPARE s0, 1\n", "errImpUnknownWord");
    refusedP("EINT 1\n", "errImpOperandCount");
}

} // namespace
