// Words back into text: every one of the 2^18 words of each processor, and what the assembler makes of the text.

#include "Disassembler.h"
#include "Encodings.h"
#include "InstrSetTest.h"
#include "ProcProgram.h"
#include "ProcRun.h"
#include "QtPrinters.h"

namespace {

const int wordCount = 1 << 18;

class DisassemblerTest : public InstrSetTest
{
};

INSTANTIATE_TEST_SUITE_P(processors, DisassemblerTest, ::testing::ValuesIn(allInstrSets()), InstrSetTest::name);

/// How many words have a text.
const QHash<QString, int> canonicalWords = {
    // 10 * (4096 + 256) with two operands, 2 * (4096 + 256) ports, 2 * (1024 + 256) scratchpad, 10 * 1024 jumps and
    // calls,
    // 5 RET, 2 INT, 2 RETI, 160 shifts
    {"XPBlze3", 65193},
    // 13 * (4096 + 256) with two operands, 4 * (4096 + 256) ports and scratchpad, 4096 constant ports, 10 * 4096 + 512
    // jumps and
    // calls, 4096 LOADRET, 5 RET, 2 RETI, 2 INT, 2 REGBANK, 16 HWBUILD, 160 shifts
    {"XPBlze6", 123835},
    // 10 * (1024 + 8192) with two operands, 4096 rotates, 8 * 1024 ports and scratchpad, 10 * 4096 jumps and calls,
    // RET, RETI,
    // 4 flags, 2 INT
    {"LMico8v3x", 145416},
};

TEST_P(DisassemblerTest, everyWordThereAndBack)
{
    const Disassembler disassembler(set());
    ProcProgram program(set());
    int without = 0;
    for (int word = 0; word < wordCount; ++word) {
        const QString text = disassembler.text(word, program.nextAddress());
        if (text.isEmpty())
            ++without;
        else
            program.add(text, word);
    }
    EXPECT_EQ(program.count(), canonicalWords.value(set().section));
    EXPECT_EQ(without, wordCount - canonicalWords.value(set().section));

    ProcRun run(set().name, program.settings());
    ASSERT_TRUE(run.assemble(program.source())) << run.summary();
    int wrong = 0;
    for (int address = program.firstAddress(); address < program.nextAddress() && wrong < 10; ++address) {
        const sProgramLine& line = program.line(address);
        wrong += int(run.words().at(address) != line.word);
        EXPECT_EQ(run.words().at(address), line.word) << line.text.toStdString();
    }
}

TEST_P(DisassemblerTest, noWordHasTwoTexts)
{
    const Disassembler disassembler(set());
    for (int word = 0; word < wordCount; ++word)
        ASSERT_LE(disassembler.matches(word), 1) << std::hex << word;
}

TEST_P(DisassemblerTest, masksAndFieldsCoverEachBitOnce)
{
    for (const sDecoding& decoding : decoderOf(set()).decodings) {
        int fields = 0;
        const QStringList parts = QString(decoding.text).split('{').mid(1);
        for (const QString& part : parts) {
            const int bits = ((1 << decoderOf(set()).bitsOf(part.at(0))) - 1) << part.mid(1).section('}', 0, 0).toInt();
            EXPECT_EQ(fields & bits, 0) << decoding.text;
            fields |= bits;
        }
        EXPECT_EQ(decoding.mask & fields, 0) << decoding.text;
        EXPECT_EQ(decoding.mask | fields, wordCount - 1) << decoding.text;
        EXPECT_EQ(decoding.match & ~decoding.mask, 0) << decoding.text;
    }
}

/// Why a text is not what comes back for its word.
enum eOverlap_t {
    overlapNone,      ///< it is
    overlapNop,       ///< NOP is a load of a register with itself
    overlapRotate,    ///< a rotate inside one register is one of two registers
    overlapPort,      ///< an address above 31 has moved on to a register further up
    overlapJump,      ///< there was none further up: the word is a jump
    overlapUnexpected ///< none of these
};

eOverlap_t overlapOf(const QString& text, const QString& canonical)
{
    if (text == canonical)
        return overlapNone;
    const QString mnemonic = mnemonicOf(text);
    if (text == "NOP" && mnemonicOf(canonical) == "LOAD")
        return overlapNop;
    if (canonical == text + ", " + text.section(' ', 1))
        return overlapRotate;
    if (!QStringList({"WRPRT", "RDPRT", "WRMEM", "RDMEM"}).contains(mnemonic))
        return overlapUnexpected;
    const int reg = text.section(' ', 1, 1).mid(1).remove(',').toInt();
    const int addr = text.section(", ", 1).toInt();
    const QString moved = QString("%1 r%2, %3").arg(mnemonic).arg(reg + addr / 32).arg(addr % 32);
    if (reg + addr / 32 < 32)
        return canonical == moved ? overlapPort : overlapUnexpected;
    return canonical.startsWith("JUMP Z, ") ? overlapJump : overlapUnexpected;
}

TEST_P(DisassemblerTest, everyTextComesBackAsItselfOrAsAKnownOther)
{
    ProcProgram program(set());
    for (const sEncoding& encoding : set().encodings)
        program.addAll(encoding);
    const Disassembler disassembler(set());
    QVector<int> counts(overlapUnexpected + 1);
    for (int address = program.firstAddress(); address < program.nextAddress(); ++address) {
        const sProgramLine& line = program.line(address);
        const QString canonical = disassembler.text(line.word, address);
        const eOverlap_t overlap = overlapOf(line.text, canonical);
        ++counts[overlap];
        ASSERT_NE(overlap, overlapUnexpected) << line.text.toStdString() << " -> " << canonical.toStdString();
    }
    // Of a Mico8, 4 instructions have 32 registers with 224 addresses above 31; from register 31 on there is nothing
    // further up.
    const int jumps = 4 * (1 + 2 + 3 + 4 + 5 + 6 + 7) * 32;
    const bool isMico8 = set().section == "LMico8v3x";
    EXPECT_EQ(counts[overlapNop], 1);
    EXPECT_EQ(counts[overlapRotate], isMico8 ? 4 * 32 : 0);
    EXPECT_EQ(counts[overlapPort], isMico8 ? 4 * 32 * 224 - jumps : 0);
    EXPECT_EQ(counts[overlapJump], isMico8 ? jumps : 0);
    EXPECT_EQ(counts[overlapNone], canonicalWords.value(set().section));
}

TEST(DisassemblerTexts, someByHand)
{
    const Disassembler pb3(picoBlaze3());
    EXPECT_EQ(pb3.text(0x01000, 0), "LOAD s0, s0");
    EXPECT_EQ(pb3.text(0x181FF, 0), "ADD s1, 255");
    EXPECT_EQ(pb3.text(0x01FE0, 0), "LOAD sF, sE");
    EXPECT_EQ(pb3.text(0x20A06, 0), "SL0 sA");
    EXPECT_EQ(pb3.text(0x35C05, 100), "JUMP NC, L5");
    EXPECT_EQ(pb3.text(0x06040, 0), "") << "behind the scratchpad";
    EXPECT_EQ(pb3.text(0x01001, 0), "") << "a bit that holds nothing";
    const Disassembler pb6(picoBlaze6());
    EXPECT_EQ(pb6.text(0x00000, 0), "LOAD s0, s0");
    EXPECT_EQ(pb6.text(0x2BFFF, 0), "WRPRT 255, 15");
    EXPECT_EQ(pb6.text(0x24120, 0), "CALL (s1), (s2)");
    EXPECT_EQ(pb6.text(0x14180, 0), "HWBUILD s1");
    const Disassembler mico(mico8());
    EXPECT_EQ(mico.text(0x28109, 0), "ROL r1, r1");
    EXPECT_EQ(mico.text(0x3B002, 10), "JUMP L12");
    EXPECT_EQ(mico.text(0x3BFFF, 10), "JUMP L9");
    EXPECT_EQ(mico.text(0x2E110, 0), "WRPRT r1, 2");
    EXPECT_EQ(mico.text(0x2C003, 0), "SET Z");
}

} // namespace
