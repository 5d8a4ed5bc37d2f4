// KCPSM3: each form, with the words of the PicoBlaze 3 written out by hand.

#include "ForeignFixture.h"

namespace {

class Kcpsm3 : public ForeignTest
{
protected:
    void words3(const QByteArray& text, const QString& expected) { expectWords(Dialect::eKcpsm3, text, expected); }
    void refused3(const QByteArray& text, const QString& key, int line = 1)
    {
        expectRefused(Dialect::eKcpsm3, text, key, line);
    }
};

TEST_F(Kcpsm3, NumbersAreHexadecimal)
{
    words3("LOAD s0, 1F\nLOAD s1, 0A\nLOAD s2, 7\nLOAD s3, 10\nLOAD s4, ff\n", "0001F 0010A 00207 00310 004FF");
    words3("LOAD s0, $1F\nLOAD s1, %0101\n", "0001F 00105");
    words3("LOAD s0, 20'd\nLOAD s1, 00010100'b\nLOAD s2, \"A\"\n", "00014 00114 00241");
    refused3("LOAD s0, 1FF\n", "errImpTooLargeNumber");
    refused3("LOAD s0, 1G\n", "errImpUnknownName");
    refused3("LOAD s0, 102'b\n", "errImpUnknownName");
}

TEST_F(Kcpsm3, Registers)
{
    words3("LOAD s0, sF\nLOAD SA, s0\nLOAD sa, Sb\n", "010F0 01A00 01AB0");
    refused3("LOAD sG, 1\n", "errImpExpectRegister");
    refused3("LOAD s10, 1\n", "errImpExpectRegister");
}

TEST_F(Kcpsm3, ConstantsAlsoBeforeTheirLine)
{
    words3("LOAD s0, late\nCONSTANT late, 0A\nOUTPUT s1, late\n", "0000A 2C10A");
    words3("CONSTANT a, b\nCONSTANT b, 22\nLOAD s0, a\n", "00022");
    // Names that differ by case are different names.
    words3("CONSTANT Port, 1\nCONSTANT PORT, 2\nLOAD s0, Port\nLOAD s1, PORT\n", "00001 00102");
    refused3("LOAD s0, late\nCONSTANT Late, 1\n", "errImpUnknownName");
    refused3("CONSTANT a, 1\nCONSTANT a, 2\nLOAD s0, a\n", "errImpDuplicateName", 2);
    refused3("CONSTANT a, b\nCONSTANT b, a\nLOAD s0, a\n", "errImpCircle");
}

TEST_F(Kcpsm3, ANameThatCouldBeANumberIsTheName)
{
    words3("CONSTANT AD, 12\nLOAD s0, AD\nLOAD s1, AE\n", "00012 001AE");
    EXPECT_TRUE(has("warnImpNameIsNumber", 2));
    // No number has more than three digits.
    words3("CONSTANT ADDC, 12\nFACE: LOAD s0, ADDC\nJUMP FACE\n", "00012 34000");
    EXPECT_FALSE(has("warnImpNameIsNumber")) << messages().toStdString();
    words3("LOAD s0, 1\nADD: JUMP ADD\n", "00001 34001");
    EXPECT_TRUE(has("warnImpNameIsNumber", 2));
}

TEST_F(Kcpsm3, NamesThatStandForTwoThings)
{
    refused3("CONSTANT x, 1\nNAMEREG s3, x\nLOAD s0, x\n", "errImpDuplicateName", 2);
    refused3("NAMEREG s3, x\nLOAD s0, x\nCONSTANT x, 1\n", "errImpDuplicateName", 1);
    refused3("CONSTANT ~x, 1\nLOAD s0, 1\n", "errImpSyntax", 1);
    refused3("CONSTANT % x, 1\nLOAD s0, 1\n", "errImpSyntax", 1);
    refused3("CONSTANT , 1\nLOAD s0, 1\n", "errImpSyntax", 1);
    // A target and a value stand at different places.
    words3("CONSTANT x, 1\nx: LOAD s0, x\nJUMP x\n", "00001 34000");
}

TEST_F(Kcpsm3, RenamedRegisters)
{
    words3("NAMEREG s3, counter\nLOAD counter, 1\nADD counter, s4\n", "00301 19340");
    // The name means another register from there on.
    words3("NAMEREG s3, x\nLOAD x, 1\nNAMEREG x, y\nNAMEREG s5, x\nLOAD x, 2\nLOAD y, 3\n", "00301 00502 00303");
    // Back to the original name.
    words3("NAMEREG s3, x\nNAMEREG x, s3\nLOAD s3, 1\n", "00301");
    // The name of another register that has given it away.
    words3("NAMEREG s5, five\nNAMEREG s3, s5\nLOAD s5, 1\nLOAD five, 2\n", "00301 00502");
    refused3("NAMEREG s3, x\nLOAD s3, 1\n", "errImpExpectRegister", 2);
    refused3("LOAD x, 1\nNAMEREG s3, x\n", "errImpExpectRegister");
    refused3("NAMEREG s3, s4\nLOAD s4, 1\n", "errImpNoCounterpart");
    refused3("NAMEREG x, y\nLOAD s4, 1\n", "errImpExpectRegister");
}

TEST_F(Kcpsm3, Addresses)
{
    words3("LOAD s0, 1\nADDRESS 3FF\nJUMP 000\n", "00001 @3FF 34000");
    words3("LOAD s0, 1\nADDRESS 10\nLOAD s0, 2\nADDRESS 11\nLOAD s0, 3\n", "00001 @10 00002 00003");
    refused3("LOAD s0, 1\nADDRESS 400\nLOAD s0, 2\n", "errImpAddressRange", 2);
    refused3("ADDRESS 3FF\nLOAD s0, 1\nLOAD s0, 2\n", "errImpAddressRange", 3);
    refused3("LOAD s0, 1\nADDRESS 0\nLOAD s0, 2\n", "errImpAddressTwice", 3);
}

TEST_F(Kcpsm3, LogicAndArithmetic)
{
    words3("LOAD s1, 23\nLOAD s1, s2\nAND s1, 23\nAND s1, s2\nOR s1, 23\nOR s1, s2\nXOR s1, 23\nXOR s1, s2\n",
           "00123 01120 0A123 0B120 0C123 0D120 0E123 0F120");
    words3("TEST s1, 23\nTEST s1, s2\nADD s1, 23\nADD s1, s2\nSUB s1, 23\nSUB s1, s2\n",
           "12123 13120 18123 19120 1C123 1D120");
    words3("COMPARE s1, 23\nCOMPARE s1, s2\nADDCY s1, 23\nADDCY s1, s2\nSUBCY s1, 23\nSUBCY s1, s2\n",
           "14123 15120 1A123 1B120 1E123 1F120");
    words3("load s1, 23\nCompare S1, S2\n", "00123 15120");
}

TEST_F(Kcpsm3, Shifts)
{
    words3("SR0 s1\nSR1 s1\nSRX s1\nSL0 s1\nSL1 s1\nSLX s1\n", "2010E 2010F 2010A 20106 20107 20104");
    words3("SRA s1\nSLA s1\nRR s1\nRL s1\n", "20108 20100 2010C 20102");
    refused3("SRA s1, s2\n", "errImpOperandCount");
}

TEST_F(Kcpsm3, PortsAndScratchpad)
{
    words3("INPUT s0, 05\nINPUT s0, (s1)\nINPUT s0, s1\nINPUT s0, ( s1 )\n", "04005 05010 05010 05010");
    words3("OUTPUT s0, 05\nOUTPUT s0, (s1)\nOUTPUT s0, s1\n", "2C005 2D010 2D010");
    words3("FETCH s0, 05\nFETCH s0, (s1)\nFETCH s0, s1\n", "06005 07010 07010");
    words3("STORE s0, 05\nSTORE s0, (s1)\nSTORE s0, s1\n", "2E005 2F010 2F010");
    refused3("FETCH s0, 40\n", "errImpTooLargeNumber");
}

TEST_F(Kcpsm3, JumpsCallsReturns)
{
    words3("x: JUMP x\nJUMP Z, x\nJUMP NZ, x\nJUMP C, x\njump nc, x\n", "34000 35000 35400 35800 35C00");
    words3("x: CALL x\nCALL Z, x\nCALL NZ, x\nCALL C, x\nCALL NC, x\n", "30000 31000 31400 31800 31C00");
    words3("RETURN\nRETURN Z\nRETURN NZ\nRETURN C\nRETURN NC\n", "2A000 2B000 2B400 2B800 2BC00");
    words3("RETURNI ENABLE\nRETURNI DISABLE\nENABLE INTERRUPT\nDISABLE INTERRUPT\n", "38001 38000 3C001 3C000");
    refused3("JUMP Y, x\nx: RETURN\n", "errImpExpectWord");
    refused3("RETURNI\n", "errImpOperandCount");
    refused3("ENABLE\n", "errImpOperandCount");
    refused3("ENABLE IT\n", "errImpExpectWord");
}

TEST_F(Kcpsm3, NumericTargets)
{
    // At an instruction, a label is made there; a label of the program is used.
    words3("LOAD s0, 1\nJUMP 000\nhere: JUMP 002\n", "00001 34000 34002");
    EXPECT_TRUE(source().contains("addr_000:\n"));
    EXPECT_TRUE(source().contains("JUMP here"));
    // Where there is none, the memory holds zero.
    words3("JUMP 3FF\n", "343FF @3FF 00000");
    EXPECT_TRUE(has("infoImpTargetMade"));
    words3("JUMP 200\nADDRESS 100\nCALL 180\n", "34200 @100 30180 @180 00000 @200 00000");
    refused3("JUMP 400\n", "errImpAddressRange");
}

TEST_F(Kcpsm3, ALabelAloneAndSeveralOfThem)
{
    words3("a:\nb: c:\n  LOAD s0, 1\nJUMP a\nJUMP b\nJUMP c\n", "00001 34000 34000 34000");
    // At the end of the program there is no instruction to stand at.
    words3("JUMP end\nend:\n", "34001 00000");
    // What nothing uses needs none.
    words3("LOAD s0, 1\nend:\n", "00001");
    refused3("a: LOAD s0, 1\na: LOAD s0, 2\n", "errImpDuplicateName", 2);
}

TEST_F(Kcpsm3, ALabelInFrontOfAnAddressStandsBeforeIt)
{
    words3("JUMP a\na:\nADDRESS 100\nLOAD s0, 1\n", "34001 00000 @100 00001");
}

TEST_F(Kcpsm3, ADescendingAddressIsMoved)
{
    words3("ADDRESS 3FF\nisr: RETURNI ENABLE\nADDRESS 000\nmain: JUMP main\nCALL isr\n", "34000 303FF @3FF 38001");
    EXPECT_TRUE(has("infoImpReordered", 3));
}

TEST_F(Kcpsm3, AProgramThatBeginsLater)
{
    words3("ADDRESS 010\nx: JUMP x\n", "00000 @10 34010");
    EXPECT_TRUE(has("infoImpStartFilled"));
}

TEST_F(Kcpsm3, UnknownWords)
{
    refused3("LOAD s0, 1\nMOVE s1, 2\n", "errImpUnknownWord", 2);
    EXPECT_TRUE(source().contains("NO_COUNTERPART ; MOVE s1, 2")) << source().toStdString();
    EXPECT_EQ(m_import->brokenCount(), 1);
    EXPECT_TRUE(m_import->hasResult());
    EXPECT_TRUE(words().isEmpty());
    refused3("TESTCY s0, 1\n", "errImpUnknownWord");
    refused3("LOAD s0\n", "errImpOperandCount");
    refused3("LOAD s0, 1, 2\n", "errImpOperandCount");
    refused3("LOAD s0, \n", "errImpOperandCount");
    refused3("; nothing\n", "errImpNoInstructions", 0);
}

} // namespace
