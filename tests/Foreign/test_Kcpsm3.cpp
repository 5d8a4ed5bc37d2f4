#include "ForeignCase.h"

using foreign::Dialect;

TEST(Kcpsm3, everyInstructionHasItsWord)
{
    expectLines(Dialect::Kcpsm3, "",
                {{"LOAD s1, 1F", "0011F"},
                 {"LOAD s1, s2", "01120"},
                 {"AND s3, 0A", "0A30A"},
                 {"AND s3, s4", "0B340"},
                 {"OR s5, 7", "0C507"},
                 {"OR s5, s6", "0D560"},
                 {"XOR s7, FF", "0E7FF"},
                 {"XOR s7, s8", "0F780"},
                 {"TEST s9, 80", "12980"},
                 {"TEST s9, sA", "139A0"},
                 {"COMPARE sB, 1", "14B01"},
                 {"COMPARE sB, sC", "15BC0"},
                 {"ADD sD, 10", "18D10"},
                 {"ADD sD, sE", "19DE0"},
                 {"ADDCY sF, 00", "1AF00"},
                 {"ADDCY sF, s0", "1BF00"},
                 {"SUB s0, 01", "1C001"},
                 {"SUB s0, s1", "1D010"},
                 {"SUBCY s2, 03", "1E203"},
                 {"SUBCY s2, s3", "1F230"},
                 {"SR0 s1", "2010E"},
                 {"SR1 s1", "2010F"},
                 {"SRX s1", "2010A"},
                 {"SRA s1", "20108"},
                 {"RR s1", "2010C"},
                 {"SL0 sA", "20A06"},
                 {"SL1 sA", "20A07"},
                 {"SLX sA", "20A04"},
                 {"SLA sA", "20A00"},
                 {"RL sA", "20A02"},
                 {"INPUT s0, 05", "04005"},
                 {"INPUT s0, (s1)", "05010"},
                 {"INPUT s0, s1", "05010"},
                 {"OUTPUT s3, FF", "2C3FF"},
                 {"OUTPUT s3, (s4)", "2D340"},
                 {"OUTPUT s3, s4", "2D340"},
                 {"FETCH s0, 3F", "0603F"},
                 {"FETCH s0, (s1)", "07010"},
                 {"FETCH s0, s1", "07010"},
                 {"STORE s0, 10", "2E010"},
                 {"STORE s0, (sF)", "2F0F0"},
                 {"STORE s0, sF", "2F0F0"},
                 {"JUMP 3FF", "343FF"},
                 {"JUMP Z, 010", "35010"},
                 {"JUMP NZ, 010", "35410"},
                 {"JUMP C, 010", "35810"},
                 {"JUMP NC, 010", "35C10"},
                 {"JUMP 7", "34007"},
                 {"CALL 200", "30200"},
                 {"CALL Z, 200", "31200"},
                 {"CALL NZ, 200", "31600"},
                 {"CALL C, 200", "31A00"},
                 {"CALL NC, 200", "31E00"},
                 {"RETURN", "2A000"},
                 {"RETURN Z", "2B000"},
                 {"RETURN NZ", "2B400"},
                 {"RETURN C", "2B800"},
                 {"RETURN NC", "2BC00"},
                 {"RETURNI ENABLE", "38001"},
                 {"RETURNI DISABLE", "38000"},
                 {"ENABLE INTERRUPT", "3C001"},
                 {"DISABLE INTERRUPT", "3C000"}});
}

TEST(Kcpsm3, literalsAndSpellings)
{
    expectLines(Dialect::Kcpsm3, "CONSTANT Kp, 2A\n",
                {{"LOAD s0, 0A", "0000A"},
                 {"LOAD S0, 1f", "0001F"},
                 {"load Sa, sb", "01AB0"},
                 {"LOAD s0, $1F", "0001F"},
                 {"LOAD s0, %0101", "00005"},
                 {"LOAD s0, 20'd", "00014"},
                 {"LOAD s0, 00010100'b", "00014"},
                 {"LOAD s0, \"A\"", "00041"},
                 {"LOAD s0, Kp", "0002A"},
                 {"\tLoad\ts0 ,Kp;x", "0002A"},
                 {"here: jump nz, here", "35400"},
                 {"LOAD s0, 10 ; \"", "00010"}});
}

TEST(Kcpsm3, constantsLabelsAndRegistersTellCaseApart)
{
    ForeignCase program;
    EXPECT_EQ(program.words(Dialect::Kcpsm3,
                            "CONSTANT port, 01\nCONSTANT Port, 02\nloop: LOAD s0, port\nLoop: LOAD s0, Port\n"
                            "JUMP loop\nJUMP Loop\n"),
              "000:00001 001:00002 002:34000 003:34001");
}

TEST(Kcpsm3, constantsAreKnownBeforeTheirLine)
{
    ForeignCase program;
    EXPECT_EQ(program.words(Dialect::Kcpsm3, "LOAD s0, late\nCONSTANT late, 7E\n"), "000:0007E");
}

TEST(Kcpsm3, aRenamedRegisterHasItsNameFromThereOn)
{
    ForeignCase program;
    EXPECT_EQ(program.words(Dialect::Kcpsm3,
                            "LOAD s3, 01\nNAMEREG s3, count\nLOAD count, 02\nNAMEREG s4, s3\nLOAD s3, 03\n"
                            "NAMEREG count, Total\nADD s3, Total\n"),
              "000:00301 001:00302 002:00403 003:19430");
    expectRefused(Dialect::Kcpsm3, {"NAMEREG s3, count\nLOAD s3, 01\n", "LOAD count, 01\nNAMEREG s3, count\n",
                                    "NAMEREG s3, count\nNAMEREG count, total\nLOAD count, 00\n"});
}

TEST(Kcpsm3, addressesAndLabelsAlone)
{
    ForeignCase program;
    EXPECT_EQ(program.words(Dialect::Kcpsm3, "start:\n\nJUMP isr\nADDRESS 3FE\nisr: RETURNI ENABLE\nJUMP start\n"),
              "000:343FE 3FE:38001 3FF:34000");
}

TEST(Kcpsm3, fileEndsAndLineEnds)
{
    ForeignCase program;
    EXPECT_EQ(program.words(Dialect::Kcpsm3, "LOAD s0, 01 ; \xB5s\r\n\tLOAD s1, 02\r\n\x1A"), "000:00001 001:00102");
}

TEST(Kcpsm3, whatIsDoubtfulIsRefused)
{
    expectRefused(Dialect::Kcpsm3, {"LOAD s0, 100\n",
                                    "LOAD s0, nothing\n",
                                    "JUMP 400\n",
                                    "JUMP nowhere\n",
                                    "FETCH s0, 40\n",
                                    "LOADRET s0, 1\n",
                                    "CONSTANT AD, 12\n",
                                    "CONSTANT x, 1\nCONSTANT x, 2\n",
                                    "x: LOAD s0, 1\nx: LOAD s0, 2\n",
                                    "LOAD s0\n",
                                    "JUMP M, 000\n",
                                    "ADDRESS 3FF\nLOAD s0, 0\nLOAD s0, 1\n",
                                    "LOAD s0, 0\nADDRESS 000\nLOAD s0, 1\n",
                                    "STAR s0, s1\n",
                                    "RETURNI\n",
                                    "LOAD s0, 256'd\n",

                                    "add s0, -1\n",
                                    "CONSTANT a1x, a1x\nLOAD s0, a1x\n",
                                    "LOAD s0, ~0F\n",
                                    "COMPARECY s0, s1\n"});
}
