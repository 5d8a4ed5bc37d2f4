#include "ForeignCase.h"

using foreign::Dialect;

TEST(Kcpsm6, everyInstructionHasItsWord)
{
    expectLines(Dialect::Kcpsm6, "",
                {{"LOAD s1, s2", "00120"},
                 {"LOAD s1, 2", "01102"},
                 {"AND s1, s2", "02120"},
                 {"AND s1, 0F", "0310F"},
                 {"OR s1, s2", "04120"},
                 {"OR s1, 0F", "0510F"},
                 {"XOR s1, s2", "06120"},
                 {"XOR s1, 0F", "0710F"},
                 {"INPUT s1, (s2)", "08120"},
                 {"INPUT s1, s2", "08120"},
                 {"INPUT s1, 0F", "0910F"},
                 {"FETCH s1, (s2)", "0A120"},
                 {"FETCH s1, FF", "0B1FF"},
                 {"TEST s1, s2", "0C120"},
                 {"TEST s1, 0F", "0D10F"},
                 {"TESTCY s1, s2", "0E120"},
                 {"TESTCY s1, 0F", "0F10F"},
                 {"ADD s1, s2", "10120"},
                 {"ADD s1, 0F", "1110F"},
                 {"ADDCY s1, s2", "12120"},
                 {"ADDCY s1, 0F", "1310F"},
                 {"SLA s1", "14100"},
                 {"RL s1", "14102"},
                 {"SLX s1", "14104"},
                 {"SL0 s1", "14106"},
                 {"SL1 s1", "14107"},
                 {"SRA s1", "14108"},
                 {"SRX s1", "1410A"},
                 {"RR s1", "1410C"},
                 {"SR0 s1", "1410E"},
                 {"SR1 s1", "1410F"},
                 {"HWBUILD s1", "14180"},
                 {"STAR s1, s2", "16120"},
                 {"STAR s1, 2A", "1712A"},
                 {"SUB s1, s2", "18120"},
                 {"SUB s1, 0F", "1910F"},
                 {"SUBCY s1, s2", "1A120"},
                 {"SUBCY s1, 0F", "1B10F"},
                 {"COMPARE s1, s2", "1C120"},
                 {"COMPARE s1, 0F", "1D10F"},
                 {"COMPARECY s1, s2", "1E120"},
                 {"COMPARECY s1, 0F", "1F10F"},
                 {"CALL FFF", "20FFF"},
                 {"LOAD&RETURN s0, 2A", "2102A"},
                 {"JUMP ABC", "22ABC"},
                 {"CALL@ (s1, s0)", "24100"},
                 {"RETURN", "25000"},
                 {"JUMP@ (s1, s0)", "26100"},
                 {"JUMP@(sA,sB)", "26AB0"},
                 {"DISABLE INTERRUPT", "28000"},
                 {"ENABLE INTERRUPT", "28001"},
                 {"RETURNI DISABLE", "29000"},
                 {"RETURNI ENABLE", "29001"},
                 {"OUTPUTK 2A, 3", "2B2A3"},
                 {"OUTPUT s1, (s2)", "2C120"},
                 {"OUTPUT s1, s2", "2C120"},
                 {"OUTPUT s1, 0F", "2D10F"},
                 {"STORE s1, (s2)", "2E120"},
                 {"STORE s1, C0", "2F1C0"},
                 {"CALL Z, 123", "30123"},
                 {"RETURN Z", "31000"},
                 {"JUMP Z, 123", "32123"},
                 {"CALL NZ, 123", "34123"},
                 {"RETURN NZ", "35000"},
                 {"JUMP NZ, 123", "36123"},
                 {"REGBANK A", "37000"},
                 {"REGBANK B", "37001"},
                 {"CALL C, 123", "38123"},
                 {"RETURN C", "39000"},
                 {"JUMP C, 123", "3A123"},
                 {"CALL NC, 123", "3C123"},
                 {"RETURN NC", "3D000"},
                 {"JUMP NC, 123", "3E123"},
                 {"INST 12345", "12345"},
                 {"INST 0", "00000"},
                 {"INST 3FFFF", "3FFFF"}});
}

TEST(Kcpsm6, literalsAndComplements)
{
    expectLines(Dialect::Kcpsm6,
                "CONSTANT mask, 0F\nCONSTANT unmask, ~mask\nCONSTANT letter, \"z\"\nCONSTANT tens, 100'd\n",
                {{"LOAD s0, 20'd", "01014"},
                 {"LOAD s0, 00010100'b", "01014"},
                 {"LOAD s0, \"A\"", "01041"},
                 {"LOAD s0, \";\" ; semicolon", "0103B"},
                 {"LOAD s0, \",\"", "0102C"},
                 {"LOAD s0, \" \"", "01020"},
                 {"LOAD s0, ~\"A\"", "010BE"},
                 {"LOAD s0, ~20'd", "010EB"},
                 {"LOAD s0, ~mask", "010F0"},
                 {"LOAD s0, ~01010101'b", "010AA"},
                 {"LOAD s0, ~0F", "010F0"},
                 {"LOAD s0, unmask", "010F0"},
                 {"LOAD s0, ~unmask", "0100F"},
                 {"LOAD s0, letter", "0107A"},
                 {"OUTPUTK ~mask, C", "2BF0C"},
                 {"OUTPUTK tens, 12'd", "2B64C"},
                 {"OUTPUTK letter, mask", "2B7AF"},
                 {"LOAD&RETURN s4, ~letter", "21485"}});
}

TEST(Kcpsm6, predefinedNamesAndStamps)
{
    expectLines(Dialect::Kcpsm6, "",
                {{"LOAD s0, NUL", "01000"},
                 {"LOAD s0, BEL", "01007"},
                 {"LOAD s0, BS", "01008"},
                 {"LOAD s0, HT", "01009"},
                 {"LOAD s0, LF", "0100A"},
                 {"LOAD s0, VT", "0100B"},
                 {"LOAD s0, CR", "0100D"},
                 {"LOAD s0, ESC", "0101B"},
                 {"LOAD s0, DEL", "0107F"},
                 {"LOAD s0, DCS", "01090"},
                 {"LOAD s0, ST", "0109C"},
                 {"LOAD s0, timestamp_hours", "0100E"},
                 {"LOAD s0, timestamp_minutes", "01005"},
                 {"LOAD s0, timestamp_seconds", "01026"},
                 {"LOAD s0, datestamp_year", "0100E"},
                 {"LOAD s0, datestamp_month", "01003"},
                 {"LOAD s0, datestamp_day", "01007"},
                 {"OUTPUTK timestamp$, 1", "2B311 2B341 2B3A1 2B301 2B351 2B3A1 2B331 2B381"},
                 {"LOAD&RETURN s1, datestamp$", "21130 21137 21120 2114D 21161 21172 21120 21132 21130 21131 21134"}});
}

TEST(Kcpsm6, stringsAndTables)
{
    expectLines(Dialect::Kcpsm6,
                "CONSTANT tail, 21\nSTRING who$, \"you\"\nSTRING text$, \"Hi, \", who$, tail, CR, 20'd, 0A\n"
                "TABLE hex#, [1, 2, FF]\nTABLE dec#, [1, 20, 255]'d\nTABLE bin#, [1, 10100, 11111111]'b\n",
                {{"LOAD&RETURN s5, text$", "21548 21569 2152C 21520 21579 2156F 21575 21521 2150D 21514 2150A"},
                 {"OUTPUTK who$, 3", "2B793 2B6F3 2B753"},
                 {"LOAD&RETURN s0, hex#", "21001 21002 210FF"},
                 {"OUTPUTK dec#, F", "2B01F 2B14F 2BFFF"},
                 {"LOAD&RETURN s0, bin#", "21001 21014 210FF"}});
}

TEST(Kcpsm6, labelsBehindAnExpansionAndPartsOfTheirAddresses)
{
    ForeignCase program;
    EXPECT_EQ(program.words(Dialect::Kcpsm6,
                            "LOAD s1, text'upper\nLOAD s0, text'lower\nCALL@ (s1, s0)\nJUMP after\n"
                            "STRING t$, \"ab\"\nADDRESS 2FE\ntext: LOAD&RETURN s2, t$\nafter: LOAD s0, after'lower\n"
                            "LOAD s3, ~after'upper\nLOAD&RETURN s4, text'upper\n"),
              "000:01102 001:010FE 002:24100 003:22300 2FE:21261 2FF:21262 300:01000 301:013FC 302:21402");
}

TEST(Kcpsm6, includedFilesStandWhereTheyAreIncluded)
{
    ForeignCase program;
    program.write("lib/a.psm", "LOAD s1, 01\nINCLUDE \"deep/b.psm\" ; from this folder\nLOAD s3, 03\n");
    program.write("lib/deep/b.psm", "LOAD s2, 02\nINCLUDE \"lib/c.psm\" ; from that of the program\n");
    program.write("lib/c.psm", "CONSTANT c_value, 55");
    EXPECT_EQ(program.words(Dialect::Kcpsm6, "LOAD s0, 00\nINCLUDE \"lib/a.psm\"\nLOAD s4, c_value\n"),
              "000:01000 001:01101 002:01202 003:01303 004:01455");
}

TEST(Kcpsm6, unusedWordsJump)
{
    ForeignCase program;
    program.options().memorySize = 6;
    EXPECT_EQ(program.words(Dialect::Kcpsm6, "DEFAULT_JUMP trap\nLOAD s0, 01\nADDRESS 003\ntrap: JUMP trap\n"),
              "000:01001 001:22003 002:22003 003:22003 004:22003 005:22003");
    EXPECT_EQ(program.words(Dialect::Kcpsm6, "JUMP 003\nDEFAULT_JUMP 2A0\n"),
              "000:22003 001:222A0 002:222A0 003:222A0 004:222A0 005:222A0");
}

TEST(Kcpsm6, renamedRegistersInBothBanks)
{
    ForeignCase program;
    EXPECT_EQ(program.words(Dialect::Kcpsm6,
                            "NAMEREG s5, count\nREGBANK B\nLOAD count, 02\nSTAR s5, count\nSTAR s6, count\n"
                            "NAMEREG count, s5\nLOAD s5, s6\n"),
              "000:37001 001:01502 002:16550 003:16650 004:00560");
}

TEST(Kcpsm6, whatIsDoubtfulIsRefused)
{
    expectRefused(Dialect::Kcpsm6,
                  {"OUTPUTK 2A, 10\n", "LOAD&RETURN s0, missing$\n", "LOAD&RETURN s0, missing#\n",
                   "TABLE t#, [1, 100]\nLOAD&RETURN s0, t#\n", "INST 40000\n", "INCLUDE \"missing.psm\"\n",
                   "INCLUDE \"main.psm\"\n", "CONSTANT CR, 0D\n", "JUMP 1000\n", "JUMP@ (s0)\n", "JUMP@ s1, s0\n",
                   "REGBANK C\n", "STRING a$, a$\nOUTPUTK a$, 1\n", "STRING a, \"x\"\n", "LOAD s0, nothing'upper\n",
                   "LOAD s0, ~~01\n", "LOAD s0, 01\n\x1A\nLOAD s0, 02\n", "ADDRESS 1000\n",
                   "ADDRESS FFF\nLOAD s0, s1\nLOAD s0, s1\n"});
}

TEST(Kcpsm6, hexFileAndLog)
{
    ForeignCase program;
    const foreign::Image image =
        program.assemble(Dialect::Kcpsm6, "STRING t$, \"ab\"\nJUMP 0AB ; go\nOUTPUTK t$, C\nADDRESS 004\nINST 3F00F\n");
    EXPECT_EQ(foreign::hexFile(image, 6), "220AB\n2B61C\n2B62C\n00000\n3F00F\n00000\n");
    EXPECT_EQ(
        foreign::logFile(image, "/x/main.psm", foreign::Stamp()),
        "Assembler log file for program 'main.psm'.\nAssembly timestamp: 14:05:38\nAssembly datestamp: 07 Mar 2014\n\n"
        " Addr  Code   Source\n\n"
        "  000         STRING t$, \"ab\"\n"
        "  000  220AB  JUMP 0AB ; go\n"
        "  001  2B61C  OUTPUTK t$, C\n"
        "  002  2B62C\n"
        "  004         ADDRESS 004\n"
        "  004  3F00F  INST 3F00F\n");
}
