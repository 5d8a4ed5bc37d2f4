// KCPSM6: what it has beside KCPSM3, with the words of the PicoBlaze 6 written out by hand.

#include "ForeignFixture.h"

namespace {

class Kcpsm6 : public ForeignTest
{
protected:
    void words6(const QByteArray& text, const QString& expected) { expectWords(Dialect::eKcpsm6, text, expected); }
    void refused6(const QByteArray& text, const QString& key, int line = 1)
    {
        expectRefused(Dialect::eKcpsm6, text, key, line);
    }
};

TEST_F(Kcpsm6, WordsOfTheElderBrother)
{
    words6("LOAD s1, 23\nLOAD s1, s2\nAND s1, 23\nOR s1, s2\nXOR s1, 23\nTEST s1, s2\nADD s1, 23\nADDCY s1, s2\n"
           "SUB s1, 23\nSUBCY s1, s2\nCOMPARE s1, 23\n",
           "01123 00120 03123 04120 07123 0C120 11123 12120 19123 1A120 1D123");
    words6("INPUT s1, 23\nINPUT s1, (s2)\nOUTPUT s1, 23\nOUTPUT s1, s2\nFETCH s1, 23\nFETCH s1, (s2)\n"
           "STORE s1, 23\nSTORE s1, (s2)\n",
           "09123 08120 2D123 2C120 0B123 0A120 2F123 2E120");
    words6("x: JUMP x\nJUMP NC, x\nCALL C, x\nRETURN NZ\nRETURNI DISABLE\nENABLE INTERRUPT\nSRA s1\nSLA s1\nRR s1\n",
           "22000 3E000 38000 35000 29000 28001 14108 14100 1410C");
}

TEST_F(Kcpsm6, TwelveBitsOfAddress)
{
    words6("JUMP FFF\n", "22FFF @FFF 00000");
    words6("LOAD s0, 1\nADDRESS 7FF\nx: CALL x\n", "01001 @7FF 207FF");
    refused6("JUMP 1000\n", "errImpAddressRange");
}

TEST_F(Kcpsm6, Literals)
{
    words6("LOAD s0, 20'd\nLOAD s1, 00010100'b\nLOAD s2, \"A\"\nLOAD s3, \";\"\nLOAD s4, \",\"\nLOAD s5, \"\"\"\n"
           "LOAD s6, \" \"\nLOAD s7, \"\\\"\n",
           "01014 01114 01241 0133B 0142C 01522 01620 0175C");
    words6("CONSTANT a, 255'd\nCONSTANT b, \"z\"\nLOAD s0, a\nLOAD s1, b\n", "010FF 0117A");
    refused6("LOAD s0, 256'd\n", "errImpTooLargeNumber");
    refused6("LOAD s0, \"AB\"\n", "errImpUnknownName");
}

TEST_F(Kcpsm6, Complements)
{
    words6("CONSTANT mask, 0F\nLOAD s0, ~mask\nLOAD s1, ~\"A\"\nLOAD s2, ~20'd\nLOAD s3, ~FF\nOUTPUTK ~mask, 1\n",
           "010F0 011BE 012EB 01300 2BF01");
    words6("CONSTANT mask, 0F\nCONSTANT other, ~mask\nCONSTANT third, ~other\nLOAD s0, other\nLOAD s1, third\n",
           "010F0 0110F");
    words6("CONSTANT letter, \"A\"\nLOAD s0, ~letter\n", "010BE");
}

TEST_F(Kcpsm6, BitsOfALabel)
{
    words6("LOAD s0, there'upper\nLOAD s1, there'lower\nLOAD&RETURN s2, there'lower\nADDRESS 3A5\nthere: RETURN\n",
           "01003 011A5 212A5 @3A5 25000");
    EXPECT_TRUE(source().contains("there[11:8]"));
    words6("OUTPUTK there'lower, 1\nCONSTANT low, there'lower\nLOAD s0, low\nADDRESS 3A5\nthere: RETURN\n",
           "2BA51 010A5 @3A5 25000");
    EXPECT_TRUE(has("infoImpNumberForName", 1));
    EXPECT_TRUE(has("infoImpNumberForName", 2));
    refused6("LOAD s0, there\nthere: RETURN\n", "errImpUnknownName");
    refused6("LOAD s0, there'middle\nthere: RETURN\n", "errImpUnknownName");
}

TEST_F(Kcpsm6, InstructionsOfItsOwn)
{
    words6("TESTCY s1, 23\nTESTCY s1, s2\nCOMPARECY s1, 23\nCOMPARECY s1, s2\nSTAR s1, s2\nSTAR s1, 23\n",
           "0F123 0E120 1F123 1E120 16120 17123");
    words6("OUTPUTK 2A, 3\nOUTPUTK FF, F\nLOAD&RETURN s0, 2A\nREGBANK A\nREGBANK B\nHWBUILD s1\n",
           "2B2A3 2BFFF 2102A 37000 37001 14180");
    words6("JUMP@ (s1, s0)\nCALL@ (s3,s2)\njump@(s1,s0)\n", "26100 24320 26100");
    refused6("OUTPUTK 2A, 10\n", "errImpTooLargeNumber");
    refused6("REGBANK C\n", "errImpExpectWord");
    refused6("JUMP@ s1, s0\n", "errImpSyntax");
    refused6("JUMP@ (s1)\n", "errImpSyntax");
}

TEST_F(Kcpsm6, RegistersOfTheOtherBankHaveTheirOwnNames)
{
    words6("NAMEREG s3, x\nSTAR s3, x\nSTAR S3, 23\nSTAR x, s2\n", "16330 17323 16320");
    refused6("NAMEREG s3, x\nSTAR s3, s3\n", "errImpUnknownName", 2);
}

TEST_F(Kcpsm6, Strings)
{
    words6("STRING hi$, \"Hi\", CR, 41, inner$, \"z\"\nSTRING inner$, \"a,;\"\nLOAD&RETURN s0, hi$\n",
           "21048 21069 2100D 21041 21061 2102C 2103B 2107A");
    words6("STRING hi$, \"Hi\"\nOUTPUTK hi$, 3\nnext: JUMP next\n", "2B483 2B693 22002");
    // A jump into the middle of what a string becomes.
    words6("STRING hi$, \"Hi\"\nLOAD&RETURN s0, hi$\nCALL 001\n", "21048 21069 20001");
    words6("STRING unused$, \"Hi\"\nLOAD s0, 1\n", "01001");
    refused6("STRING a$, b$\nSTRING b$, a$\nLOAD&RETURN s0, a$\n", "errImpCircle", 2);
    refused6("STRING a$, nothing$\nLOAD s0, 1\n", "errImpUnknownName");
    refused6("LOAD s0, 1\nLOAD&RETURN s0, nothing$\n", "errImpUnknownName", 2);
    refused6("STRING a$, \"x\"\nLOAD s0, a$\n", "errImpExpectValue", 2);
}

TEST_F(Kcpsm6, StringsAreBytesOfTheirFile)
{
    // Latin-1: one byte. UTF-8: as many as it has.
    words6("STRING a$, \"\xe9\"\nLOAD&RETURN s0, a$\n", "210E9");
    words6("STRING a$, \"\xc3\xa9\"\nLOAD&RETURN s0, a$\n", "210C3 210A9");
    words6("LOAD s0, \"\xe9\"\n", "010E9");
}

TEST_F(Kcpsm6, Tables)
{
    words6("TABLE t#, [1, 2, FF]\nLOAD&RETURN s0, t#\n", "21001 21002 210FF");
    words6("TABLE t#, [10, 255]'d\nOUTPUTK t#, 2\n", "2B0A2 2BFF2");
    words6("TABLE t#, [101,11111111]'b\nLOAD&RETURN sA, t#\n", "21A05 21AFF");
    refused6("TABLE t#, [1, 1FF]\nLOAD&RETURN s0, t#\n", "errImpTooLargeNumber");
    refused6("TABLE t#, [1, 256]'d\nLOAD&RETURN s0, t#\n", "errImpTooLargeNumber");
    refused6("TABLE t#, [1, 2\nLOAD&RETURN s0, t#\n", "errImpSyntax");
    refused6("TABLE t#, [12]'b\nLOAD&RETURN s0, t#\n", "errImpNumber");
}

TEST_F(Kcpsm6, WordsThatAreGiven)
{
    words6("INST 01023\nINST 00120\nINST 2B2A3\nINST 26100\n", "01023 00120 2B2A3 26100");
    words6("INST 22003\nINST 3A100\n", "22003 3A100 @3 00000 @100 00000");
    words6("INST 00000\n", "00000");
    refused6("LOAD s0, 1\nINST 3FFFF\n", "errImpNoSuchWord", 2);
    EXPECT_TRUE(source().contains("NO_COUNTERPART ; INST 3FFFF"));
    refused6("INST 12345678\n", "errImpNoSuchWord");
    refused6("CONSTANT ab, 12\nINST ab\nCONSTANT w, 12\nINST w\n", "errImpNumber", 4);
}

TEST_F(Kcpsm6, UnusedWordsJump)
{
    m_options.memorySize = 1024;
    ASSERT_TRUE(import(Dialect::eKcpsm6, "DEFAULT_JUMP oops\nLOAD s0, 1\noops: JUMP oops\nADDRESS 3FE\nRETURN\n"))
        << messages().toStdString();
    EXPECT_EQ(m_import->image().count(), 1024);
    // A program that is larger than the memory that was supposed fills the next size.
    m_options.memorySize = 0;
    ASSERT_TRUE(import(Dialect::eKcpsm6, "DEFAULT_JUMP oops\nJUMP oops\nADDRESS 500\noops: JUMP oops\n"));
    EXPECT_EQ(m_import->image().count(), 2048);
    EXPECT_EQ(m_import->image().word(0x7FF), 0x22500u);
    refused6("DEFAULT_JUMP 000\nLOAD s0, 1\nDEFAULT_JUMP 001\n", "errImpDuplicateName", 3);
    m_options.memorySize = 1024;
    ASSERT_TRUE(import(Dialect::eKcpsm6, "DEFAULT_JUMP oops\nLOAD s0, 1\noops: JUMP oops\nADDRESS 3FE\nRETURN\n"));
    const nsImport::ProgramImage& image = m_import->image();
    EXPECT_EQ(image.word(0), 0x01001u);
    for (int address = 2; address < 1024; ++address)
        EXPECT_EQ(image.word(address), address == 0x3FE ? 0x25000u : 0x22001u) << address;
    m_options.memorySize = 0;
}

TEST_F(Kcpsm6, NamesThatItKnows)
{
    words6("LOAD s0, NUL\nLOAD s0, BEL\nLOAD s0, BS\nLOAD s0, HT\nLOAD s0, LF\nLOAD s0, VT\nLOAD s0, CR\n"
           "LOAD s0, ESC\nLOAD s0, DEL\nLOAD s0, DCS\nLOAD s0, ST\n",
           "01000 01007 01008 01009 0100A 0100B 0100D 0101B 0107F 01090 0109C");
    // The program's own meaning comes first.
    words6("CONSTANT CR, 55\nLOAD s0, CR\n", "01055");
}

TEST_F(Kcpsm6, TheMomentOfTheRun)
{
    m_options.stamp.moment = QDateTime(QDate(2012, 10, 27), QTime(14, 30, 59));
    m_options.stamp.isKnown = true;
    words6("LOAD s0, timestamp_hours\nLOAD s0, timestamp_minutes\nLOAD s0, timestamp_seconds\n"
           "LOAD s0, datestamp_year\nLOAD s0, datestamp_month\nLOAD s0, datestamp_day\n",
           "0100E 0101E 0103B 0100C 0100A 0101B");
    EXPECT_TRUE(has("infoImpStamp", 1));
    words6("OUTPUTK timestamp$, 1\n", "2B311 2B341 2B3A1 2B331 2B301 2B3A1 2B351 2B391");
    words6("LOAD&RETURN s0, datestamp$\n", "21032 21037 21020 2104F 21063 21074 21020 21032 21030 21031 21032");
    m_options.stamp.isKnown = false;
    words6("LOAD s0, timestamp_hours\n", "0100E");
    EXPECT_TRUE(has("warnImpStamp", 1));
}

TEST_F(Kcpsm6, TheScratchpadIsAsLargeAsItIsUsed)
{
    words6("FETCH s0, FF\n", "0B0FF");
    words6("STORE s0, 40\n", "2F040");
}

} // namespace
