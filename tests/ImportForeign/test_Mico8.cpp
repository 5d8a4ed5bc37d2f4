// Mico8: each form of the vendor's and of the GNU assembler, with the words of the core written out by hand.

#include "ForeignFixture.h"

namespace {

class Mico8 : public ForeignTest
{
protected:
    void wordsM(const QByteArray& text, const QString& expected) { expectWords(Dialect::eMico8, text, expected); }
    void refusedM(const QByteArray& text, const QString& key, int line = 1)
    {
        expectRefused(Dialect::eMico8, text, key, line);
    }
};

TEST_F(Mico8, TwoRegisters)
{
    wordsM("sub r1, r2\nsubc r1, r2\nadd r1, r2\naddc r1, r2\nmov r1, r2\nand r1, r2\nor r1, r2\nxor r1, r2\n"
           "cmp r1, r2\ntest r1, r2\n",
           "00110 04110 08110 0C110 10110 14110 18110 1C110 20110 24110");
    wordsM("mov R31, r07\nmov r0, R00\n", "11F38 10000");
    // A number is no register: the word would be another one.
    refusedM("add r1, 5\n", "errImpExpectRegister");
    refusedM("mov r32, r1\n", "errImpExpectRegister");
}

TEST_F(Mico8, RegisterAndValue)
{
    wordsM("subi r1, 2\nsubic r1, 2\naddi r1, 2\naddic r1, 2\nmovi r1, 2\nandi r1, 2\nori r1, 2\nxori r1, 2\n"
           "cmpi r1, 2\ntesti r1, 2\n",
           "02102 06102 0A102 0E102 12102 16102 1A102 1E102 22102 26102");
    wordsM("inc r4\ndec r4\n", "0A401 02401");
    refusedM("addi r1, r2\n", "errImpExpectValue");
    refusedM("movi r1, 256\n", "errImpTooLargeNumber");
}

TEST_F(Mico8, Numbers)
{
    wordsM("movi r1, 0x1F\nmovi r1, 12\nmovi r1, 017\nmovi r1, 0b101\nmovi r1, 'A'\nmovi r1, #7\nmovi r1, '\\n'\n"
           "movi r1, ';'\nmovi r1, ','\nmovi r1, -1\nmovi r1, 0\n",
           "1211F 1210C 1210F 12105 12141 12107 1210A 1213B 1212C 121FF 12100");
    refusedM("movi r1, 08\n", "errImpUnknownName");
    refusedM("movi r1, 0b102\n", "errImpUnknownName");
    refusedM("movi r1, 'AB'\n", "errImpUnknownName");
}

TEST_F(Mico8, Calculations)
{
    wordsM(".equ a, 3\nmovi r1, a + 1\nmovi r1, (a + 1) * 2\nmovi r1, a << 4 | 1\nmovi r1, ~a\nmovi r1, a - 5\n"
           "movi r1, 7 % 4 * 2\nmovi r1, -a\n",
           "12104 12108 12131 121FC 121FE 12106 121FD");
    refusedM("movi r1, 1 / 0\n", "errImpSyntax");
    refusedM("movi r1, (1\n", "errImpSyntax");
    refusedM("movi r1, 1 +\n", "errImpSyntax");
    refusedM("movi r1, 2147483647 * 4\n", "errImpSyntax");
}

TEST_F(Mico8, Rotates)
{
    wordsM("ror r1, r2\nrol r1, r2\nrorc r1, r2\nrolc r1, r2\nror r1\n", "28110 28111 28112 28113 28108");
}

TEST_F(Mico8, Flags)
{
    wordsM("clrc\nsetc\nclrz\nsetz\nclri\nseti\nnop\nret\niret\n",
           "2C000 2C001 2C002 2C003 2C004 2C005 10000 39000 3A000");
}

TEST_F(Mico8, Branches)
{
    wordsM("x: b x\nbz x\nbnz x\nbc x\nbnc x\n", "3B000 30FFF 31FFE 32FFD 33FFC");
}

TEST_F(Mico8, Calls)
{
    wordsM("x: call x\ncallz x\ncallnz x\ncallc x\ncallnc x\n", "38000 34FFF 35FFE 36FFD 37FFC");
}

TEST_F(Mico8, RelativeTargets)
{
    wordsM("b $+2\nnop\nnop\nbz $-1\nbnz $\n", "3B002 10000 10000 30FFF 31000");
    wordsM("b $+3\n", "3B003 @3 00000");
    refusedM("b $-1\n", "errImpAddressRange");
}

TEST_F(Mico8, NumericTargets)
{
    wordsM("b 0x10\ncall 1\n", "3B010 38000 @10 00000");
    // A jump reaches 2047 forwards.
    refusedM("b 0x800\n", "errImpTooFar");
}

TEST_F(Mico8, LocalLabels)
{
    wordsM("1: nop\nb 1b\nbz 1f\n1: nop\nb 1b\n", "10000 3BFFF 30001 10000 3BFFF");
    refusedM("nop\nb 1b\n1: nop\n", "errImpUnknownName", 2);
    refusedM("1: nop\nb 1f\n", "errImpUnknownName", 2);
}

TEST_F(Mico8, Ports)
{
    wordsM("export r1, 5\nexporti r1, r2\nimport r1, 5\nimporti r1, r2\n", "2E128 2E112 2E129 2E113");
    wordsM("outp r1, 5\noutpi r1, r2\ninp r1, 5\ninpi r1, r2\nexport R03, #0\n", "2E128 2E112 2E129 2E113 2E300");
    refusedM("export r1, 32\n", "errImpTooLargeNumber");
    refusedM("export r1, r2\n", "errImpExpectValue");
    refusedM("exporti r1, 2\n", "errImpExpectRegister");
}

TEST_F(Mico8, Scratchpad)
{
    wordsM("ssp r1, 5\nsspi r1, r2\nlsp r1, 31\nlspi r1, r2\nlspi r1, (r2)\n", "2E12C 2E116 2E1FD 2E117 2E117");
    refusedM("lsp r1, 32\n", "errImpTooLargeNumber");
}

TEST_F(Mico8, Names)
{
    wordsM("a equ 5\n.equ b, 6\n.set c, 7\nd reg r1\nmovi d, a\nmovi d, b\nmovi d, c\nmov r2, d\n",
           "12105 12106 12107 10208");
    wordsM("e = 8\nmovi r1, e\n", "12108");
    // A name that is set again.
    wordsM(".set v, 1\nmovi r1, v\n.set v, 2\nmovi r1, v\n", "12101 12102");
    wordsM("x reg r1\nmov x, x\nx reg r2\nmov x, x\n", "10108 10210");
}

TEST_F(Mico8, NamesThatAreSetAgain)
{
    for (const char* word : {".set v,", ".equ v,", "v ="}) {
        const QByteArray set = word;
        wordsM(set + " 1\nmovi r1, v\n" + set + " 2\nmovi r1, v\n", "12101 12102");
        // Each value may be made of the one before.
        wordsM(set + " 1\n" + set + " v + 1\nmovi r1, v\n" + set + " v * 3\nmovi r1, v\n", "12102 12106");
        // Which value is meant before the first of several?
        refusedM("movi r1, v\n" + set + " 1\n" + set + " 2\n", "errImpAmbiguousName", 1);
        wordsM("movi r1, v\n" + set + " 1\n", "12101");
    }
    refusedM("mov r1, x\nx reg r1\nx reg r2\n", "errImpAmbiguousName", 1);
    refusedM("nop\na equ 1\na equ 2\n", "errImpDuplicateName", 3);
    refusedM("nop\n.set a, 1\na equ 2\n", "errImpDuplicateName", 3);
    refusedM("nop\na: nop\n.set a, 1\n", "errImpDuplicateName", 3);
    refusedM("nop\nx reg 5\n", "errImpExpectRegister", 2);
    refusedM(".set a, a\nmovi r1, a\n", "errImpCircle", 1);
    // Two spellings, and a third one: there is no telling.
    refusedM(".equ Ab, 1\n.equ aB, 2\nmovi r1, ab\n", "errImpUnknownName", 3);
}

TEST_F(Mico8, TheOrderOfOperators)
{
    // Those of the GNU assembler bind differently from those of C.
    for (const char* text : {"1 + 1 << 2", "1 << 1 + 1", "6 & 2 + 1", "1 | 2 + 1", "4 - 1 ^ 1", "1 | 3 & 2"})
        refusedM(QByteArray("movi r1, ") + text + '\n', "errImpAmbiguousOrder");
    EXPECT_TRUE(messages().contains("1 | 3 & 2"));
    wordsM(
        "movi r1, (1 + 1) << 2\nmovi r1, 1 << (1 + 1)\nmovi r1, 2 * 3 + 1\nmovi r1, 9 - 4 - 2\nmovi r1, 1 << 2 | 1\n",
        "12108 12104 12107 12103 12105");
    // Where the order makes no difference.
    wordsM("movi r1, 0 + 1 << 0\nmovi r1, -1 & 15\n", "12101 1210F");
}

TEST_F(Mico8, TheEndOfTheProgram)
{
    wordsM("ret\n.end\nret\n\nno: program\n", "39000");
    EXPECT_TRUE(has("infoImpAfterEnd", 2)) << messages().toStdString();
    EXPECT_TRUE(messages().contains("\".end\" ends the program: 2 lines")) << messages().toStdString();
    EXPECT_TRUE(source().contains("; no: program")) << source().toStdString();
    wordsM("ret\n.END main\n\n", "39000");
    EXPECT_FALSE(has("infoImpAfterEnd"));
    // Whether the file that includes it goes on is not agreed.
    write("part.s", "nop\n.end\n");
    refusedM(".include \"part.s\"\nret\n", "errImpNoCounterpart", 2);
}

TEST_F(Mico8, DataHaveAddressesOfTheirOwn)
{
    wordsM("nop\n.data\n.org 0x100\n.text\nret\n", "10000 39000");
}

TEST_F(Mico8, Origin)
{
    wordsM("nop\n.org 0x10\nret\n", "10000 @10 39000");
}

TEST_F(Mico8, BytesOfAValue)
{
    wordsM(".equ x, 0x1234\nmovi r1, _lo(x)\nmovi r2, _hi(x)\nmovi r3, _hi(0x55AA)\n", "12134 12212 12355");
    wordsM("movi r1, _lo(f)\nmovi r2, _hi(f)\n.org 0x123\nf: ret\n", "12123 12201 @123 39000");
}

TEST_F(Mico8, LinesOfTheLinker)
{
    wordsM(".file \"a.c\"\n.text\n.global main\n.type main, @function\nmain: ret\n.size main, .-main\n"
           ".section .text\nnop\n",
           "39000 10000");
    refusedM("nop\n.byte 1\n", "errImpNoCounterpart", 2);
    refusedM("nop\n.section .rodata\nx: .asciz \"a;b\"\n", "errImpNoCounterpart", 3);
    refusedM("nop\n.data\nadd r1, r2\n", "errImpNoCounterpart", 3);
    EXPECT_TRUE(source().contains("NO_COUNTERPART"));
}

TEST_F(Mico8, Comments)
{
    wordsM("# nop\n  # nop\n; nop\n// nop\nnop ; nop\nnop // nop\nnop /* nop */\n/* nop\nnop\n*/ nop\n"
           "movi r1, /* here */ 2\nmovi r1, #3 # three\n",
           "10000 10000 10000 10000 12102 12103");
    refusedM("nop\n/* open\n", "errImpSyntax", 2);
}

} // namespace
