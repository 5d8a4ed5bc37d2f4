#include "ForeignCase.h"

using foreign::Dialect;

TEST(PBlazIde, everyInstructionHasItsWord)
{
    expectLines(
        Dialect::PBlazIde, "",
        {{"LOAD s1, $1F", "0011F"},  {"LOAD s1, s2", "01120"},   {"AND s3, 10", "0A30A"},   {"AND s3, s4", "0B340"},
         {"OR s5, 7", "0C507"},      {"OR s5, s6", "0D560"},     {"XOR s7, 255", "0E7FF"},  {"XOR s7, s8", "0F780"},
         {"TEST s9, $80", "12980"},  {"TEST s9, sA", "139A0"},   {"COMP sB, 1", "14B01"},   {"COMP sB, sC", "15BC0"},
         {"ADD sD, 16", "18D10"},    {"ADD sD, sE", "19DE0"},    {"ADDC sF, 0", "1AF00"},   {"ADDC sF, s0", "1BF00"},
         {"SUB s0, 1", "1C001"},     {"SUB s0, s1", "1D010"},    {"SUBC s2, 3", "1E203"},   {"SUBC s2, s3", "1F230"},
         {"SR0 s1", "2010E"},        {"SR1 s1", "2010F"},        {"SRX s1", "2010A"},       {"SRA s1", "20108"},
         {"RR s1", "2010C"},         {"SL0 sA", "20A06"},        {"SL1 sA", "20A07"},       {"SLX sA", "20A04"},
         {"SLA sA", "20A00"},        {"RL sA", "20A02"},         {"IN s0, 5", "04005"},     {"IN s0, s1", "05010"},
         {"OUT s3, $FF", "2C3FF"},   {"OUT s3, s4", "2D340"},    {"FETCH s0, 63", "0603F"}, {"FETCH s0, s1", "07010"},
         {"STORE s0, $10", "2E010"}, {"STORE s0, sF", "2F0F0"},  {"JUMP $3FF", "343FF"},    {"JUMP Z, 16", "35010"},
         {"JUMP NZ, 16", "35410"},   {"JUMP C, 16", "35810"},    {"JUMP NC, 16", "35C10"},  {"CALL $200", "30200"},
         {"CALL Z, $200", "31200"},  {"CALL NZ, $200", "31600"}, {"CALL C, $200", "31A00"}, {"CALL NC, $200", "31E00"},
         {"RET", "2A000"},           {"RET Z", "2B000"},         {"RET NZ", "2B400"},       {"RET C", "2B800"},
         {"RET NC", "2BC00"},        {"RETI ENABLE", "38001"},   {"RETI DISABLE", "38000"}, {"EINT", "3C001"},
         {"DINT", "3C000"}});
}

TEST(PBlazIde, namesForNumbersRegistersPortsAndMemories)
{
    expectLines(Dialect::PBlazIde,
                "hex EQU $1F\ndec EQU 12\nbin EQU %0101\nr_name EQU s3\nswitches DSIN $05\nleds DSOUT $06\nbus DSIO 7\n"
                "ram DSRAM $20\nrom DSROM $30, \"rom.txt\"\nsame EQU dec\nvector EQU $3FF\n",
                {{"LOAD s0, hex", "0001F"},
                 {"LOAD s0, dec", "0000C"},
                 {"LOAD s0, bin", "00005"},
                 {"LOAD s0, same", "0000C"},
                 {"ADD r_name, s3", "19330"},
                 {"IN s1, switches", "04105"},
                 {"OUT s1, leds", "2C106"},
                 {"OUT s1, bus", "2C107"},
                 {"FETCH s1, ram", "06120"},
                 {"STORE s1, rom", "2E130"},
                 {"IN s1, r_name", "05130"},
                 {"JUMP vector", "343FF"},
                 {"LOAD s0, %11", "00003"},
                 {"in S0, 10", "0400A"}});
}

TEST(PBlazIde, addressesAndLinesForTheTool)
{
    ForeignCase program;
    EXPECT_EQ(program.words(Dialect::PBlazIde,
                            "VHDL \"t.vhd\", \"o.vhd\", \"rom\"\nMEM \"o.mem\"\nHEX \"o.hex\"\nEXEC \"x\"\n"
                            "start: JUMP isr ; go\nloop: JUMP NZ, loop\nORG $3FE\nisr:\nRETI ENABLE\nJUMP start\n"),
              "000:343FE 001:35401 3FE:38001 3FF:34000");
}

TEST(PBlazIde, whatIsDoubtfulIsRefused)
{
    expectRefused(Dialect::PBlazIde,
                  {"LOAD s0, 256\n", "LOAD s0, 1F\n", "LOAD s0, FF\n", "x EQU 1\nx EQU 2\n", "Loop: RET\nloop: RET\n",
                   "JUMP 1024\n", "STORE s0, 64\n", "RETURN\n", "JUMP nowhere\n", "x EQU x\nLOAD s0, x\n",
                   "LOAD s0, %2\n", "LOAD s0\n", "ORG nowhere\n", "NAMEREG s0, x\n"});
}
