#include "Assembly.h"
#include "ImageText.h"
#include "ProcTables.h"
#include "QtPrinters.h"
#include "Rescue.h"

#include <gtest/gtest.h>

using namespace nsImport;

namespace {

const nsProc::ProcTable& pb3 = nsProc::xpBlze3Table();
const nsProc::ProcTable& pb6 = nsProc::xpBlze6Table();
const nsProc::ProcTable& mico8 = nsProc::lMico8v3xTable();

/// The image of a source of our own.
ProgramImage assembled(const nsProc::ProcTable& table, const QByteArray& text, int pageSize = 1024)
{
    Assembly assembly(table);
    assembly.settings.pageSize = pageSize;
    assembly.settings.scrpdSize = table.scrpdSize == 32 ? 32 : 256;
    const AssemblyResult result = assembly.run({{"a.psm", text}});
    EXPECT_TRUE(result.ok) << qPrintable(result.firstError());
    return result.image;
}

AssemblyResult again(const nsProc::ProcTable& table, const RescueResult& rescued)
{
    Assembly assembly(table);
    assembly.settings = rescued.settings;
    return assembly.run({{"b.psm", rescued.source}});
}

/// The lines of a source without addresses and words.
QStringList statements(const RescueResult& result)
{
    QStringList lines;
    for (QString line : QString::fromUtf8(result.source).split('\n')) {
        const int comment = line.indexOf(';');
        line = comment > 0 ? line.left(comment) : line;
        lines.append(line.simplified());
    }
    return lines;
}

} // namespace

TEST(Rescue, aProgramWithRoutinesPortsAndAnInterrupt)
{
    const ProgramImage image = assembled(pb3, "start: RDPRT s0, 0x05\n"
                                              "CALL sub1\n"
                                              "WRPRT s0, 0x0A\n"
                                              "JUMP NZ, start\n"
                                              "CALL Z, sub1\n"
                                              "halt: JUMP halt\n"
                                              "sub1: ADD s0, 1\n"
                                              "RET\n"
                                              "LOAD s1, 2\n"
                                              "int1: RDPRT s1, (s2)\n"
                                              "RETI ENABLE\n"
                                              "#ORG ADDR, 0x3FF\nJUMP int1\n");
    RescueOptions options;
    options.name = "old.hex";
    const RescueResult result = Rescue(pb3, options).run(image);
    ASSERT_TRUE(result.ok) << qPrintable(result.error);
    EXPECT_EQ(statements(result), QStringList({"; Made from the image of a program for the Xilinx PicoBlaze 3: old.hex",
                                               "; 12 words; behind each line: address and word",
                                               "",
                                               "; Ports",
                                               "#EQU IN_PORT_05, 0x05",
                                               "#EQU OUT_PORT_0A, 0x0A",
                                               "",
                                               "start:",
                                               "RDPRT s0, IN_PORT_05",
                                               "CALL routine_006",
                                               "WRPRT s0, OUT_PORT_0A",
                                               "JUMP NZ, start",
                                               "CALL Z, routine_006",
                                               "label_005:",
                                               "JUMP label_005",
                                               "",
                                               "; Routine, called from 001, 004",
                                               "routine_006:",
                                               "ADD s0, 0x01",
                                               "RET",
                                               "",
                                               "; Not reached from the start or the interrupt vector",
                                               "LOAD s1, 0x02",
                                               "",
                                               "; Reached from the start or the interrupt vector",
                                               "; Interrupt routine",
                                               "isr:",
                                               "RDPRT s1, (s2)",
                                               "RETI ENABLE",
                                               "",
                                               "; Interrupt vector",
                                               "#ORG ADDR, 0x3FF",
                                               "interrupt:",
                                               "JUMP isr",
                                               ""}));
    EXPECT_TRUE(result.source.contains("        JUMP    NZ, start                       ; 003 35400\n"))
        << result.source.constData();
    EXPECT_EQ(imageText(again(pb3, result).image), imageText(image));
    EXPECT_TRUE(again(pb3, result).messages.isEmpty());
    EXPECT_EQ(result.wordCount, 12);
    EXPECT_EQ(result.settings.pageSize, 1024);
    EXPECT_TRUE(result.invalid.isEmpty());
    EXPECT_EQ(result.notes,
              QStringList("Number of words that are not reached from the start or the interrupt vector: 1."));
}

TEST(Rescue, zerosThatNothingReachesAreLeftOut)
{
    ProgramImage image;
    for (int address = 0; address < 1024; ++address)
        image.setWord(address, address == 2 ? 0x34000 : address == 3 ? 0x34200 : address == 0x3ff ? 0x38001 : 0);
    const RescueResult result = Rescue(pb3).run(image);
    ASSERT_TRUE(result.ok) << qPrintable(result.error);
    EXPECT_EQ(result.filledCount, 1024 - 6);
    EXPECT_EQ(result.wordCount, 6);
    EXPECT_EQ(imageText(again(pb3, result).image), "000: 00000 00000 34000 34200 | 200: 00000 | 3FF: 38001");
    EXPECT_EQ(result.settings.pageSize, 1024);
}

TEST(Rescue, targetsOutsideOfTheImageGetAnInstructionWithTheWordOfUnusedMemory)
{
    const RescueResult result = Rescue(pb3).run(imageOf({0x34010}));
    ASSERT_TRUE(result.ok) << qPrintable(result.error);
    EXPECT_EQ(result.addedCount, 1);
    EXPECT_TRUE(result.notes.value(0).endsWith(": 010.")) << qPrintable(result.notes.value(0));
    EXPECT_EQ(imageText(again(pb3, result).image), "000: 34010 | 010: 00000");
    // Without a word at the start, too.
    EXPECT_EQ(imageText(again(pb3, Rescue(pb3).run(imageOf({0x00105}, 5))).image), "000: 00000 | 005: 00105");
}

TEST(Rescue, thePageHasRoomForAllTargets)
{
    const RescueResult result = Rescue(pb6).run(imageOf({0x22801, 0x01005}));
    ASSERT_TRUE(result.ok) << qPrintable(result.error);
    EXPECT_EQ(result.settings.pageSize, 4096);
    EXPECT_EQ(imageText(again(pb6, result).image), "000: 22801 01005 | 801: 00000");
    ProgramImage image = imageOf({0x22001, 0x01005});
    image.depth = 2048;
    EXPECT_EQ(Rescue(pb6).run(image).settings.pageSize, 2048);
    EXPECT_EQ(Rescue(mico8).run(imageOf(QVector<quint32>(512, 0x10000))).settings.pageSize, 512);
}

TEST(Rescue, wordsThatTheProcessorDoesNotReachAreTold)
{
    struct Row
    {
        const nsProc::ProcTable& table;
        int last;
        quint32 word; ///< of an instruction
        const char* note;
    };
    const Row rows[] = {
        {pb3, 0x3FF, 0x00001, "Number of words beyond address 3FF, the last one that the processor reaches: 2."},
        {pb6, 0xFFF, 0x01001, "Number of words beyond address FFF, the last one that the processor reaches: 2."},
        {mico8, 0xFFF, 0x12001, "Number of words beyond address FFF, the last one that the processor reaches: 2."}};
    for (const Row& row : rows) {
        ProgramImage image;
        image.setWord(0, 0);
        image.setWord(row.last, 0);
        EXPECT_FALSE(Rescue(row.table).run(image).notes.join('\n').contains("beyond"));
        image.setWord(row.last + 1, row.word);
        image.setWord(row.last + 2, row.word);
        const RescueResult result = Rescue(row.table).run(image);
        EXPECT_TRUE(result.ok) << qPrintable(result.error);
        EXPECT_TRUE(result.notes.contains(row.note)) << qPrintable(result.notes.join('\n'));
        // Where the words are, the memory is.
        EXPECT_EQ(result.settings.pageSize, 2 * (row.last + 1));
        EXPECT_EQ(again(row.table, result).image.word(row.last + 2), row.word);
    }
}

TEST(Rescue, theScratchpadIsAsLargeAsItsAddresses)
{
    EXPECT_EQ(Rescue(pb6).run(imageOf({0x0b03f})).settings.scrpdSize, 64);
    EXPECT_EQ(Rescue(pb6).run(imageOf({0x0b040})).settings.scrpdSize, 128);
    EXPECT_EQ(Rescue(pb6).run(imageOf({0x2f0ff})).settings.scrpdSize, 256);
    EXPECT_TRUE(Rescue(pb6).run(imageOf({0x2f0ff})).ok);
}

TEST(Rescue, theInterruptVectorOfThePicoBlaze6CanBeElsewhere)
{
    RescueOptions options;
    options.intVectorAddr = 0x7fe;
    ProgramImage image = imageOf({0x22000});
    image.setWord(0x7fe, 0x29001, 2);
    const RescueResult result = Rescue(pb6, options).run(image);
    ASSERT_TRUE(result.ok) << qPrintable(result.error);
    EXPECT_EQ(result.settings.intVectorAddr, 0x7fe);
    EXPECT_TRUE(statements(result).contains("interrupt:"));
    EXPECT_FALSE(result.source.contains("Not reached"));
    EXPECT_TRUE(again(pb6, result).messages.isEmpty());
}

TEST(Rescue, computedJumpsMayReachEverything)
{
    const ProgramImage image =
        assembled(pb6, "start: CALL (s1), (s0)\nJUMP (s1), (s2)\nLOADRET s0, 1\nLOADRET s0, 2\nWRPRT 0x2A, 3\n");
    const RescueResult result = Rescue(pb6).run(image);
    ASSERT_TRUE(result.ok) << qPrintable(result.error);
    EXPECT_TRUE(statements(result).contains("; Reached by computed jumps alone, or not at all"));
    EXPECT_TRUE(statements(result).contains("WRPRT 0x2A, CONST_PORT_3"));
    EXPECT_TRUE(result.notes.join('\n').contains("everything may be reached"));
    EXPECT_EQ(imageText(again(pb6, result).image), imageText(image));
    ProgramImage wrong = image;
    wrong.setWord(5, 0x3ffff);
    EXPECT_TRUE(Rescue(pb6).run(wrong).invalid.value(0).reachable);
}

TEST(Rescue, tablesAndTextsStandTogether)
{
    const ProgramImage image =
        assembled(pb6, "JUMP (s1), (s0)\nLOADRET s0, 0x41\nLOADRET s0, 0x5C\nLOADRET s0, 0x0A\nRET\n"
                       "x: JUMP x2\nJUMP x2\nJUMP x2\nx2: WRPRT 0x7E, 3\nWRPRT 0x20, 3\n");
    const RescueResult result = Rescue(pb6).run(image);
    ASSERT_TRUE(result.ok) << qPrintable(result.error);
    EXPECT_TRUE(result.source.contains("; 001 21041 'A'\n"
                                       "        LOADRET s0, 0x5C                        ; 002 2105C\n"
                                       "        LOADRET s0, 0x0A                        ; 003 2100A\n"
                                       "\n"
                                       "        RET                                     ; 004 25000\n"
                                       "\n"
                                       "        JUMP    label_008                       ; 005 22008\n"
                                       "        JUMP    label_008                       ; 006 22008\n"
                                       "        JUMP    label_008                       ; 007 22008\n"
                                       "\n"
                                       "label_008:\n"
                                       "        WRPRT   0x7E, CONST_PORT_3              ; 008 2B7E3 '~'\n"
                                       "        WRPRT   0x20, CONST_PORT_3              ; 009 2B203\n"))
        << result.source.constData();
}

TEST(Rescue, wordsThatAreNoInstructionAreReportedAndRefused)
{
    const ProgramImage image = imageOf({0x34003, 0x3ffff, 0x00001, 0x34001});
    const RescueResult result = Rescue(pb3).run(image);
    ASSERT_TRUE(result.ok) << qPrintable(result.error);
    ASSERT_EQ(result.invalid.size(), 1);
    EXPECT_EQ(result.invalid.first().address, 1);
    EXPECT_EQ(result.invalid.first().word, 0x3ffffu);
    EXPECT_TRUE(result.invalid.first().reachable);
    EXPECT_EQ(result.invalid.first().reason, "The Xilinx PicoBlaze 3 has no instruction with this word.");
    EXPECT_TRUE(statements(result).contains("NO_INSTRUCTION 0x3FFFF"));
    const AssemblyResult refused = again(pb3, result);
    EXPECT_FALSE(refused.ok);
    ASSERT_EQ(refused.messages.size(), 1);
    EXPECT_EQ(refused.messages.first().key, "errOcUnsupported");

    RescueOptions options;
    options.invalid = RescueOptions::eInvalidReplaced;
    const RescueResult replaced = Rescue(pb3, options).run(image);
    EXPECT_TRUE(replaced.ok);
    EXPECT_EQ(replaced.invalid.size(), 1);
    EXPECT_EQ(imageText(again(pb3, replaced).image), "000: 34003 00000 00001 34001");
    EXPECT_TRUE(replaced.source.contains("001 3FFFF is no instruction here")) << replaced.source.constData();
    // Wider than a word, and what nothing reaches.
    EXPECT_EQ(Rescue(pb3).run(imageOf({0x34000, 0xfffff})).invalid.value(0).word, 0xfffffu);
    EXPECT_FALSE(Rescue(pb3).run(imageOf({0x34000, 0xfffff})).invalid.value(0).reachable);
}

TEST(Rescue, whatDoesNothingIsANop)
{
    EXPECT_TRUE(statements(Rescue(pb3).run(imageOf({0x01000, 0x34000}))).contains("NOP"));
    EXPECT_TRUE(statements(Rescue(pb6).run(imageOf({0x00000, 0x22000}))).contains("NOP"));
    EXPECT_TRUE(statements(Rescue(mico8).run(imageOf({0x10000, 0x3bfff}))).contains("NOP"));
    EXPECT_TRUE(statements(Rescue(pb3).run(imageOf({0x01010, 0x34000}))).contains("LOAD s0, s1"));
}

TEST(Rescue, distancesOfTheMico8)
{
    // JUMP to itself, backwards, and to an address in front of the memory.
    const RescueResult good = Rescue(mico8).run(imageOf({0x10000, 0x3b000, 0x3bfff, 0x3bffd}));
    ASSERT_TRUE(good.ok) << qPrintable(good.error);
    EXPECT_TRUE(good.invalid.isEmpty());
    EXPECT_TRUE(statements(good).contains("JUMP label_001"));
    EXPECT_TRUE(statements(good).contains("JUMP start"));
    const RescueResult bad = Rescue(mico8).run(imageOf({0x10000, 0x3bffe, 0x39000}));
    ASSERT_TRUE(bad.ok) << qPrintable(bad.error);
    ASSERT_EQ(bad.invalid.size(), 1);
    EXPECT_EQ(bad.invalid.first().address, 1);
    EXPECT_EQ(bad.invalid.first().reason, "It would lead to address -1, which is outside of any memory.");
}

TEST(Rescue, anImageWithoutWordsIsAnError)
{
    EXPECT_FALSE(Rescue(pb3).run(ProgramImage()).ok);
    EXPECT_EQ(Rescue(pb3).run(ProgramImage()).error, "The image has no word.");
}

TEST(Rescue, theNameOfTheImageIsNoSource)
{
    RescueOptions options;
    options.name = "x\n  LOAD s0, 1\r\n; \xe4.hex";
    const RescueResult result = Rescue(pb3, options).run(imageOf({0x34000}));
    EXPECT_TRUE(result.ok) << qPrintable(result.error);
    EXPECT_EQ(imageText(again(pb3, result).image), "000: 34000");
}
