// A case for each form of each dialect, through converter and assembler as they are started in a shell. The words are
// written out by hand, from the tables of the processors.

#include "ImportRun.h"
#include "RandomForeign.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

using foreign::Dialect;

namespace {

struct Row
{
    Dialect dialect;
    const char* name; ///< of the form
    const char* text;
    const char* words; ///< from address 0 on; after `@`, an address
};

const Dialect k3 = Dialect::Kcpsm3;
const Dialect k6 = Dialect::Kcpsm6;
const Dialect pb = Dialect::PBlazIde;
const Dialect m8 = Dialect::Mico8Gnu;

const Row rows[] = {
    // KCPSM3
    {k3, "statement", "alone:\nboth: LOAD s0, 1 ; comment\n\n; comment\nJUMP alone\nJUMP both\n", "00001 34000 34000"},
    {k3, "caseOfNames", "CONSTANT Ab, 1\nCONSTANT aB, 2\nload s0, Ab\nLoad s0, aB\nx: jump X\nX: JUMP x\n",
     "00001 00002 34003 34002"},
    {k3, "lineEndsTabsAndTheEndMark", "\tLOAD\ts0,\t01\t; \xB0 \xE4\r\nRETURN\r\n\x1A", "00001 2A000"},
    {k3, "bytes", "LOAD s0, 1F\nLOAD s0, 0A\nLOAD s0, 7\nLOAD s0, ff\nLOAD s0, 10\n", "0001F 0000A 00007 000FF 00010"},
    {k3, "addressesOfThreeDigits", "JUMP 3FF\nADDRESS 3FF\nJUMP 0\n", "343FF @3FF 34000"},
    {k3, "registers", "LOAD s0, sF\nLOAD S0, sa\nLOAD Sa, SF\nLOAD s9, s0\n", "010F0 010A0 01AF0 01900"},
    {k3, "CONSTANT", "LOAD s0, late\nCONSTANT name, 1F\nLOAD s0, name\nCONSTANT late, 2E\n", "0002E 0001F"},
    {k3, "NAMEREG",
     "LOAD s3, 1\nNAMEREG s3, name\nLOAD name, 2\nNAMEREG name, other\nLOAD other, 3\nNAMEREG s4, s3\n"
     "LOAD s3, 4\n",
     "00301 00302 00303 00404"},
    {k3, "ADDRESS", "RETURN\nADDRESS 010\nRETURN\nADDRESS 00A\nRETURN\n", "2A000 @A 2A000 @10 2A000"},
    {k3, "sameWords", "LOAD s1, 23\nAND s1, 23\nOR s1, 23\nXOR s1, 23\nTEST s1, 23\nADD s1, 23\nSUB s1, 23\n",
     "00123 0A123 0C123 0E123 12123 18123 1C123"},
    {k3, "sameWordsWithRegisters",
     "LOAD s1, s2\nAND s1, s2\nOR s1, s2\nXOR s1, s2\nTEST s1, s2\nADD s1, s2\nSUB s1, s2\n",
     "01120 0B120 0D120 0F120 13120 19120 1D120"},
    {k3, "COMPARE_ADDCY_SUBCY",
     "COMPARE s1, 23\nCOMPARE s1, s2\nADDCY s1, 23\nADDCY s1, s2\nSUBCY s1, 23\nSUBCY s1, s2\n",
     "14123 15120 1A123 1B120 1E123 1F120"},
    {k3, "shifts", "SR0 s1\nSR1 s1\nSRX s1\nSL0 s1\nSL1 s1\nSLX s1\n", "2010E 2010F 2010A 20106 20107 20104"},
    {k3, "SRA_SLA_RR_RL", "SRA s1\nSLA s1\nRR s1\nRL s1\n", "20108 20100 2010C 20102"},
    {k3, "INPUT", "INPUT s0, 05\nINPUT s0, (s1)\nINPUT s0, s1\n", "04005 05010 05010"},
    {k3, "OUTPUT", "OUTPUT s0, 05\nOUTPUT s0, (s1)\nOUTPUT s0, s1\n", "2C005 2D010 2D010"},
    {k3, "FETCH_STORE", "FETCH s0, 05\nFETCH s0, (s1)\nFETCH s0, s1\nSTORE s0, 05\nSTORE s0, (s1)\nSTORE s0, s1\n",
     "06005 07010 07010 2E005 2F010 2F010"},
    {k3, "JUMP", "x: JUMP x\nJUMP Z, x\nJUMP NZ, x\nJUMP C, x\nJUMP NC, x\n", "34000 35000 35400 35800 35C00"},
    {k3, "CALL", "x: CALL x\nCALL Z, x\nCALL NZ, x\nCALL C, x\nCALL NC, x\n", "30000 31000 31400 31800 31C00"},
    {k3, "numericTargets", "JUMP 002\nCALL NZ, 1\nJUMP 2F0\n", "34002 31401 342F0 @2F0 00000"},
    {k3, "RETURN", "RETURN\nRETURN Z\nRETURN NZ\nRETURN C\nRETURN NC\n", "2A000 2B000 2B400 2B800 2BC00"},
    {k3, "RETURNI", "RETURNI ENABLE\nRETURNI DISABLE\n", "38001 38000"},
    {k3, "INTERRUPT", "ENABLE INTERRUPT\nDISABLE INTERRUPT\n", "3C001 3C000"},
    {k3, "literalsOfOtherAssemblers",
     "LOAD s0, $1F\nLOAD s0, %0101\nLOAD s0, 20'd\nLOAD s0, 00010100'b\nLOAD s0, \"A\"\n",
     "0001F 00005 00014 00014 00041"},
    // KCPSM6: what it has of KCPSM3, with words of its own
    {k6, "wordsOfKcpsm3",
     "LOAD s1, 23\nLOAD s1, s2\nSTAR s1, s2\nAND s1, 23\nOR s1, 23\nXOR s1, 23\nTEST s1, 23\nADD s1, 23\n"
     "ADDCY s1, 23\nSUB s1, 23\nSUBCY s1, 23\nCOMPARE s1, 23\n",
     "01123 00120 16120 03123 05123 07123 0D123 11123 13123 19123 1B123 1D123"},
    {k6, "shiftsOfKcpsm3", "SR0 s1\nSR1 s1\nSRX s1\nSRA s1\nRR s1\nSL0 s1\nSL1 s1\nSLX s1\nSLA s1\nRL s1\n",
     "1410E 1410F 1410A 14108 1410C 14106 14107 14104 14100 14102"},
    {k6, "portsOfKcpsm3",
     "INPUT s1, 23\nINPUT s1, (s2)\nOUTPUT s1, 23\nOUTPUT s1, (s2)\nFETCH s1, 23\nFETCH s1, (s2)\n"
     "STORE s1, 23\nSTORE s1, (s2)\n",
     "09123 08120 2D123 2C120 0B123 0A120 2F123 2E120"},
    {k6, "flowOfKcpsm3",
     "x: JUMP x\nJUMP Z, x\nJUMP NZ, x\nJUMP C, x\nJUMP NC, x\nCALL x\nCALL Z, x\nCALL NZ, x\nCALL C, x\n"
     "CALL NC, x\nRETURN\nRETURN Z\nRETURN NZ\nRETURN C\nRETURN NC\n",
     "22000 32000 36000 3A000 3E000 20000 30000 34000 38000 3C000 25000 31000 35000 39000 3D000"},
    {k6, "interruptsOfKcpsm3", "RETURNI ENABLE\nRETURNI DISABLE\nENABLE INTERRUPT\nDISABLE INTERRUPT\n",
     "29001 29000 28001 28000"},
    {k6, "twelveBitsOfAddress", "JUMP FFF\nADDRESS FFF\nCALL 0\n", "22FFF @FFF 20000"},
    {k6, "literals", "LOAD s0, 20'd\nLOAD s0, 00010100'b\nLOAD s0, \"A\"\n", "01014 01014 01041"},
    {k6, "complements", "CONSTANT name, 0F\nLOAD s0, ~name\nLOAD s0, ~\"A\"\nLOAD s0, ~20'd\n", "010F0 010BE 010EB"},
    {k6, "upperAndLower", "LOAD s0, there'upper\nLOAD s0, there'lower\nADDRESS 3A5\nthere: RETURN\n",
     "01003 010A5 @3A5 25000"},
    {k6, "TESTCY_COMPARECY_STAR", "TESTCY s1, 23\nTESTCY s1, s2\nCOMPARECY s1, 23\nCOMPARECY s1, s2\nSTAR s0, s1\n",
     "0F123 0E120 1F123 1E120 16010"},
    {k6, "OUTPUTK", "OUTPUTK 2A, 3\n", "2B2A3"},
    {k6, "LOADandRETURN", "LOAD&RETURN s0, 2A\n", "2102A"},
    {k6, "REGBANK_HWBUILD", "REGBANK A\nREGBANK B\nHWBUILD s0\nHWBUILD sF\n", "37000 37001 14080 14F80"},
    {k6, "computedFlow", "JUMP@ (s1, s0)\nCALL@ (s1, s0)\n", "26100 24100"},
    {k6, "INCLUDE", "LOAD s0, 1\nINCLUDE \"file.psm\"\nLOAD s0, 4\n", "01001 01002 01003 01004"},
    {k6, "STRING", "STRING other$, \"x\"\nSTRING text$, \"Hello\", CR, \"x\", 2A, other$\nLOAD&RETURN s0, text$\n",
     "21048 21065 2106C 2106C 2106F 2100D 21078 2102A 21078"},
    {k6, "TABLE",
     "TABLE a#, [1, 2, FF]\nTABLE b#, [1, 20, 255]'d\nTABLE c#, [1, 101]'b\nLOAD&RETURN s0, a#\n"
     "LOAD&RETURN s0, b#\nLOAD&RETURN s0, c#\n",
     "21001 21002 210FF 21001 21014 210FF 21001 21005"},
    {k6, "sequencesToPorts", "STRING text$, \"Hi\"\nTABLE name#, [1, 2]\nOUTPUTK text$, 3\nOUTPUTK name#, 4\n",
     "2B483 2B693 2B014 2B024"},
    {k6, "INST", "INST 01023\nINST 2B2A3\nINST 36001\n", "01023 2B2A3 36001"},
    {k6, "predefined",
     "LOAD s0, NUL\nLOAD s0, BEL\nLOAD s0, BS\nLOAD s0, HT\nLOAD s0, LF\nLOAD s0, VT\nLOAD s0, CR\n"
     "LOAD s0, ESC\nLOAD s0, DEL\nLOAD s0, DCS\nLOAD s0, ST\n",
     "01000 01007 01008 01009 0100A 0100B 0100D 0101B 0107F 01090 0109C"},
    {k6, "stamps",
     "LOAD s0, timestamp_hours\nLOAD s0, timestamp_minutes\nLOAD s0, timestamp_seconds\n"
     "LOAD s0, datestamp_year\nLOAD s0, datestamp_month\nLOAD s0, datestamp_day\n",
     "01001 01002 01003 01046 01001 01002"},
    {k6, "stampsAsText", "LOAD&RETURN s0, timestamp$\nOUTPUTK datestamp$, 1\n",
     "21030 21031 2103A 21030 21032 2103A 21030 21033 "
     "2B301 2B321 2B201 2B4A1 2B611 2B6E1 2B201 2B311 2B391 2B371 2B301"},
    // pBlazIDE
    {pb, "EQU", "hex EQU $1F\ndec EQU 12\nbin EQU %0101\nreg EQU s3\nLOAD reg, hex\nLOAD reg, dec\nLOAD reg, bin\n",
     "0031F 0030C 00305"},
    {pb, "ORG", "RET\nORG $3FF\nRET\n", "2A000 @3FF 2A000"},
    {pb, "devices",
     "a DSIN $05\nb DSOUT 6\nc DSIO $07, \"file\"\nd DSRAM 8\ne DSROM 9\nIN s0, a\nOUT s0, b\nIN s0, c\n"
     "OUT s0, d\nIN s0, e\n",
     "04005 2C006 04007 2C008 04009"},
    {pb, "outputs",
     "VHDL \"template.vhd\", \"target.vhd\", \"entity\"\nMEM \"file\"\nHEX \"file\"\nEXEC \"tool\"\nRET\n", "2A000"},
    {pb, "portsAndScratchpad",
     "port EQU 5\nIN s0, port\nIN s0, s1\nOUT s0, port\nOUT s0, s1\nFETCH s0, 5\nFETCH s0, s1\n"
     "STORE s0, 5\nSTORE s0, s1\n",
     "04005 05010 2C005 2D010 06005 07010 2E005 2F010"},
    {pb, "sameWords",
     "COMP s1, $23\nCOMP s1, s2\nADDC s1, $23\nADDC s1, s2\nSUBC s1, $23\nSUBC s1, s2\nRET\nRET Z\nRET NZ\n"
     "RET C\nRET NC\nRETI ENABLE\nRETI DISABLE\n",
     "14123 15120 1A123 1B120 1E123 1F120 2A000 2B000 2B400 2B800 2BC00 38001 38000"},
    {pb, "wordsOfKcpsm3",
     "LOAD s1, $23\nAND s1, s2\nOR s1, s2\nXOR s1, s2\nTEST s1, s2\nADD s1, s2\nSUB s1, s2\nx: JUMP NC, x\n"
     "CALL Z, x\n",
     "00123 0B120 0D120 0F120 13120 19120 1D120 35C07 31007"},
    {pb, "EINT_DINT", "EINT\nDINT\n", "3C001 3C000"},
    {pb, "shifts", "SRA s1\nSLA s1\nRR s1\nRL s1\nSR0 s1\nSR1 s1\nSRX s1\nSL0 s1\nSL1 s1\nSLX s1\n",
     "20108 20100 2010C 20102 2010E 2010F 2010A 20106 20107 20104"},
    {pb, "numbers", "LOAD s0, 16\nLOAD s0, $16\nLOAD s0, %10\n", "00010 00016 00002"},
    // Mico8
    {m8, "comments", "nop ; nop\n# nop\n/* nop\nnop */ nop\nnop // nop\n", "10000 10000 10000"},
    {m8, "immediateMarks", "export R03, #0\nmovi r1, #0x10\nssp r1, #2\n", "2E300 12110 2E114"},
    {m8, "registers", "mov R0, R31\nmov r07, r7\nmov r31, R00\n", "100F8 10738 11F00"},
    {m8, "numbers", "movi r0, 0x1F\nmovi r0, 12\nmovi r0, 017\nmovi r0, 0b101\nmovi r0, 'A'\n",
     "1201F 1200C 1200F 12005 12041"},
    {m8, "twoRegisters",
     "add r1, r2\naddc r1, r2\nsub r1, r2\nsubc r1, r2\nand r1, r2\nor r1, r2\nxor r1, r2\ncmp r1, r2\n"
     "test r1, r2\nmov r1, r2\n",
     "08110 0C110 00110 04110 14110 18110 1C110 20110 24110 10110"},
    {m8, "registerAndValue",
     "addi r1, 2\naddic r1, 2\nsubi r1, 2\nsubic r1, 2\nandi r1, 2\nori r1, 2\nxori r1, 2\n"
     "cmpi r1, 2\ntesti r1, 2\nmovi r1, 2\n",
     "0A102 0E102 02102 06102 16102 1A102 1E102 22102 26102 12102"},
    {m8, "inc_dec", "inc r4\ndec r4\n", "0A401 02401"},
    {m8, "rotates", "ror r1, r2\nrol r1, r2\nrorc r1, r2\nrolc r1, r2\n", "28110 28111 28112 28113"},
    {m8, "flags", "clrc\nsetc\nclrz\nsetz\nclri\nseti\n", "2C000 2C001 2C002 2C003 2C004 2C005"},
    {m8, "branches", "x: b x\nbz x\nbnz x\nbc x\nbnc x\n", "3B000 30FFF 31FFE 32FFD 33FFC"},
    {m8, "calls", "x: call x\ncallz x\ncallnz x\ncallc x\ncallnc x\n", "38000 34FFF 35FFE 36FFD 37FFC"},
    {m8, "relativeTargets", "b $+2\nnop\nbz $-1\ncall $\nb $+3\n", "3B002 10000 30FFF 38000 3B003 @7 00000"},
    {m8, "returns", "ret\niret\nnop\n", "39000 3A000 10000"},
    {m8, "export_import", "export r1, 5\nexporti r1, r2\nimport r1, 5\nimporti r1, r2\n", "2E128 2E112 2E129 2E113"},
    {m8, "scratchpad", "ssp r1, 5\nsspi r1, r2\nlsp r1, 5\nlspi r1, r2\n", "2E12C 2E116 2E12D 2E117"},
    {m8, "inp_outp", "inp r1, 5\noutp r1, 5\ninpi r1, r2\noutpi r1, r2\n", "2E129 2E128 2E113 2E112"},
    {m8, "names", "a equ 5\n.equ b, 6\n.set c, 7\nd reg r1\nmovi d, a\nmovi d, b\nmovi d, c\n.set c, 8\nmovi d, c\n",
     "12105 12106 12107 12108"},
    {m8, "org", "nop\n.org 0x10\nret\n", "10000 @10 39000"},
    {m8, "localLabels", "1: nop\nb 1b\nbz 1f\n1: nop\nb 1b\n", "10000 3BFFF 30001 10000 3BFFF"},
    {m8, "bytesOfAValue",
     ".equ x, 0x1234\nmovi r1, _lo(x)\nmovi r1, _hi(x)\nmovi r1, _lo(y)\nmovi r1, _hi(y)\n.org 0x123\ny: ret\n",
     "12134 12112 12123 12101 @123 39000"},
    {m8, "linesOfTheLinker", ".section .text\n.text\n.global x\n.type x, @function\nx: ret\n.size x, .-x\n", "39000"},
};

/// "00012 @3FF 38001"
QMap<int, quint32> wordsOf(const char* text)
{
    QMap<int, quint32> words;
    int address = 0;
    for (const QString& part : QString(text).split(' ')) {
        if (part.startsWith('@'))
            address = part.mid(1).toInt(nullptr, 16);
        else
            words.insert(address++, part.toUInt(nullptr, 16));
    }
    return words;
}

std::string nameOf(const ::testing::TestParamInfo<Row>& info)
{
    const Dialect dialect = info.param.dialect;
    const char* const start = dialect == k3   ? "kcpsm3_"
                              : dialect == k6 ? "kcpsm6_"
                              : dialect == pb ? "pblazide_"
                                              : "mico8_";
    return std::string(start) + info.param.name;
}

class Rows : public ::testing::TestWithParam<Row>
{
};

} // namespace

TEST_P(Rows, hasTheWordsOfTheOriginal)
{
    QTemporaryDir folder;
    const QDir dir(folder.path());
    // The moment of the run, where nothing tells it: 1970-01-02 01:02:03.
    qputenv("SOURCE_DATE_EPOCH", "90123");
    const foreign::RandomProgram program = {{{"main.psm", GetParam().text},
                                             {"file.psm", "LOAD s0, 2\nINCLUDE \"more.psm\"\n"},
                                             {"more.psm", "LOAD s0, 3\n"}},
                                            0};
    const QString main = foreign::writeProgram(program, dir.filePath("foreign"));
    const QStringList arguments{"-d", dialectOption(GetParam().dialect), "-o", dir.filePath("result"), main};
    const ToolRun run = runTool(NALVO_IMPORT, arguments, folder.path());
    EXPECT_EQ(run.status, 0) << run.err.toStdString();
    QString problem;
    const QMap<int, quint32> words = assembledProject(dir.filePath("result"), &problem);
    EXPECT_EQ(problem.toStdString(), "");
    EXPECT_EQ(words, wordsOf(GetParam().words)) << differences(wordsOf(GetParam().words), words).toStdString();
}

INSTANTIATE_TEST_SUITE_P(All, Rows, ::testing::ValuesIn(rows), nameOf);

/// All unused words jump, in a memory whose size the image tells.
TEST(RowsAlone, kcpsm6_DEFAULT_JUMP)
{
    QTemporaryDir folder;
    const QDir dir(folder.path());
    const QString main =
        foreign::writeProgram({{{"main.psm", "DEFAULT_JUMP x\nLOAD s0, 1\nx: JUMP x\n"}}, 0}, dir.filePath("foreign"));
    runTool(NALVO_IMPORT, {"-d", "kcpsm6", "-o", dir.filePath("result"), main}, folder.path());
    QString problem;
    QMap<int, quint32> words = assembledProject(dir.filePath("result"), &problem);
    EXPECT_EQ(words.size(), 1024);
    EXPECT_EQ(words.take(0), 0x01001u);
    for (const quint32 word : words)
        EXPECT_EQ(word, 0x22001u);
}

/// What has no counterpart stands marked in the result.
TEST(RowsAlone, linesWithoutACounterpart)
{
    struct Line
    {
        const char* dialect;
        const char* text;
    };
    const Line lines[] = {{"mico8", "ret\n.byte 1\n"},        {"mico8", "ret\n.data\nx: .byte 1\n"},
                          {"mico8", "ret\n.ascii \"x\"\n"},   {"mico8", "ret\n.space 4\n"},
                          {"kcpsm6", "RETURN\nINST 12345\n"}, {"kcpsm3", "RETURN\nLOAD&RETURN s0, 1\n"}};
    for (const Line& line : lines) {
        QTemporaryDir folder;
        const QDir dir(folder.path());
        const QString main = foreign::writeProgram({{{"main.s", line.text}}, 0}, dir.filePath("foreign"));
        const QStringList arguments{"-d", line.dialect, "-o", dir.filePath("result"), main};
        EXPECT_EQ(runTool(NALVO_IMPORT, arguments, folder.path()).status, 1) << line.text;
        QString problem;
        assembledProject(dir.filePath("result"), &problem);
        EXPECT_TRUE(problem.contains("NO_COUNTERPART")) << line.text << problem.toStdString();
    }
}
