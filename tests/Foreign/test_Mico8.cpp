#include "ForeignCase.h"

using foreign::Dialect;

TEST(Mico8, everyInstructionHasItsWord)
{
    for (const Dialect dialect : {Dialect::Mico8Vendor, Dialect::Mico8Gnu})
        expectLines(dialect, "", {{"sub r1, r2", "00110"},     {"subi r1, 2", "02102"},   {"subc r1, r2", "04110"},
                                  {"subic r1, 2", "06102"},    {"add r1, r2", "08110"},   {"addi r1, 2", "0A102"},
                                  {"addc r1, r2", "0C110"},    {"addic r1, 2", "0E102"},  {"mov r1, r2", "10110"},
                                  {"movi r1, 2", "12102"},     {"and r1, r2", "14110"},   {"andi r1, 2", "16102"},
                                  {"or r1, r2", "18110"},      {"ori r1, 2", "1A102"},    {"xor r1, r2", "1C110"},
                                  {"xori r1, 2", "1E102"},     {"cmp r1, r2", "20110"},   {"cmpi r1, 2", "22102"},
                                  {"test r1, r2", "24110"},    {"testi r1, 2", "26102"},  {"inc r3", "0A301"},
                                  {"dec r31", "03F01"},        {"ror r1, r2", "28110"},   {"rol r1, r2", "28111"},
                                  {"rorc r1, r2", "28112"},    {"rolc r1, r2", "28113"},  {"rol r1", "28109"},
                                  {"clrc", "2C000"},           {"setc", "2C001"},         {"clrz", "2C002"},
                                  {"setz", "2C003"},           {"clri", "2C004"},         {"seti", "2C005"},
                                  {"b $+2", "3B002"},          {"b 5", "3B005"},          {"bz $-0", "30000"},
                                  {"bnz $", "31000"},          {"bc $+1", "32001"},       {"bnc $-1", "33FFF"},
                                  {"call $+3", "38003"},       {"callz $+3", "34003"},    {"callnz $+3", "35003"},
                                  {"callc $+3", "36003"},      {"callnc $-2", "37FFE"},   {"ret", "39000"},
                                  {"iret", "3A000"},           {"nop", "10000"},          {"export r1, 2", "2E110"},
                                  {"exporti r1, r2", "2E112"}, {"import r1, 2", "2E111"}, {"importi r1, r2", "2E113"},
                                  {"outp r1, 2", "2E110"},     {"outpi r1, r2", "2E112"}, {"inp r1, 2", "2E111"},
                                  {"inpi r1, r2", "2E113"},    {"ssp r1, 31", "2E1FC"},   {"sspi r1, r2", "2E116"},
                                  {"lsp r1, 2", "2E115"},      {"lspi r1, r2", "2E117"},  {"add r31, r31", "09FF8"},
                                  {"xori r31, 0xFF", "1FFFF"}});
}

TEST(Mico8, numbersRegistersAndComments)
{
    for (const Dialect dialect : {Dialect::Mico8Vendor, Dialect::Mico8Gnu})
        expectLines(dialect, ".equ five, 5\n.equ wide, 0x1234\n# a comment\n  # another\n/* two\n lines: nop */ ; x\n",
                    {{"movi r1, 0x1F", "1211F"},
                     {"movi r1, 12", "1210C"},
                     {"movi r1, 017", "1210F"},
                     {"movi r1, 0b101", "12105"},
                     {"movi r1, 'A'", "12141"},
                     {"movi r1, ';' ; semicolon", "1213B"},
                     {"movi r1, ','", "1212C"},
                     {"movi r1, '\\n'", "1210A"},
                     {"movi r1, five // five", "12105"},
                     {"movi r1, #five", "12105"},
                     {"export R03, #0", "2E300"},
                     {"EXPORT r07, #0x1F", "2E7F8"},
                     {"movi r1, _lo(wide)", "12134"},
                     {"movi r1, _hi(wide)", "12112"},
                     {"movi r1, #_lo(0x56)", "12156"},
                     {"mov r1, /* between */ r2", "10110"}});
}

TEST(Mico8, definitionsOfTheVendorsStyle)
{
    ForeignCase program;
    EXPECT_EQ(program.words(Dialect::Mico8Vendor,
                            "port equ 5\ncount reg r4\nPTR REG R13\n\texport count, port\n\tlspi count, PTR\n"),
              "000:2E428 001:2E46F");
}

TEST(Mico8, definitionsAndLinesOfTheGnuStyle)
{
    ForeignCase program;
    EXPECT_EQ(program.words(Dialect::Mico8Gnu,
                            "\t.section .text\n\t.text\n\t.global main\n\t.type main, @function\n.set port, 5\n"
                            "main:\texport r4, port\n.Lx:\tb .Lx\n\t.size main, .-main\n.equ Port, 6\n"
                            "\timport r4, Port\n"),
              "000:2E428 001:3B000 002:2E431");
}

TEST(Mico8, aNameIsSetAgainInTheGnuStyle)
{
    ForeignCase program;
    EXPECT_EQ(program.words(Dialect::Mico8Gnu,
                            "movi r0, late\n.set x, 1\nmovi r1, x\n.set x, 2\nmovi r2, x\n.equ x, 3\nmovi r3, x\n"
                            ".equ late, 9\n"),
              "000:12009 001:12101 002:12202 003:12303");
    expectRefused(Dialect::Mico8Gnu, {"movi r0, x\n.set x, 1\n.set x, 2\n", "x: nop\n.set x, 1\n"});
    expectRefused(Dialect::Mico8Vendor, {".equ x, 1\n.equ x, 2\n"});
}

TEST(Mico8, numericLocalLabels)
{
    ForeignCase program;
    EXPECT_EQ(program.words(Dialect::Mico8Gnu, "b 1f\n1: nop\nb 1b\nbz 1f\n1:\nnop\n1: b 1b\ncall 2f\nb 1b\n2: ret\n"),
              "000:3B001 001:10000 002:3BFFF 003:30001 004:10000 005:3B000 006:38002 007:3BFFE 008:39000");
}

TEST(Mico8, addressesAndTheirBytes)
{
    ForeignCase program;
    EXPECT_EQ(program.words(Dialect::Mico8Vendor,
                            "start: b far\nmovi r14, _hi(far)\nmovi r13, _lo(far)\n.org 0x2AB\nfar: b start\n"),
              "000:3B2AB 001:12E02 002:12DAB 2AB:3BD55");
}

TEST(Mico8, whatIsDoubtfulIsRefused)
{
    for (const Dialect dialect : {Dialect::Mico8Vendor, Dialect::Mico8Gnu})
        expectRefused(dialect, {"movi r1, 256\n", "movi r1, -1\n", "movi r1, 09\n", "export r1, 32\n", "mov r32, r1\n",
                                "b nowhere\n", "b 1f\n", "add r1, 5\n", "movi r1, r2\n", ".byte 1\n",
                                ".data\n.byte 1\n", "/* no end\n", "x: nop\nx: nop\n", ".org 4096\nnop\n", "nop r1\n",
                                "movi r1, 'AB'\n", "r1: nop\n"});
    expectRefused(Dialect::Mico8Vendor, {"x: nop\nX: nop\n", "1: nop\n", ".text\n", ".set x, 1\n"});
    expectRefused(Dialect::Mico8Gnu, {"x equ 5\n", "x reg r1\n", ".equ x, r1\nmov x, x\n"});
}
