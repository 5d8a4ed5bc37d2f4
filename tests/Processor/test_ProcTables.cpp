// What reads the tables of the processors: numbers of registers, words back into text, and a processor without modules.

#include "Disassembler.h"
#include "Encodings.h"
#include "InstrSetTest.h"
#include "ProcDisassembler.h"
#include "ProcList.h"
#include "ProcRun.h"
#include "ProcTables.h"
#include "Processor.h"
#include "QtPrinters.h"

#include "AsmFeFileHndlr.h"
#include "AsmFeMsgHndlr.h"
#include "IODevList.h"
#include "InstructionWords.h"
#include "Opcode.h"
#include "OpcodeList.h"
#include "SetList.h"

namespace {

using namespace nsModAsmFe;
using nsProc::ProcCoreConfig;
using nsProc::Processor;
using nsProc::ProcTable;

class ProcTablesTest : public InstrSetTest
{
protected:
    const ProcTable& table() const { return *nsProc::procTable(set().name); }
    const sEncoding& encoding(const QString& text) const
    {
        for (const sEncoding& encoding : set().encodings) {
            if (encoding.text == text)
                return encoding;
        }
        throw std::invalid_argument(text.toStdString());
    }
};

INSTANTIATE_TEST_SUITE_P(processors, ProcTablesTest, ::testing::ValuesIn(allInstrSets()), InstrSetTest::name);

TEST_P(ProcTablesTest, everyRegisterHasItsNumberHoweverItIsNamed)
{
    const sEncoding& load = encoding("LOAD {r}, {r}");
    const sEncoding& read = encoding("RDPRT {r}, ({r})");
    QStringList source;
    QVector<int> words;
    const auto add = [&](const QString& line, int word) {
        source.append(line);
        words.append(word);
    };
    for (int i = 0; i < set().regCount; ++i) {
        add(QString("#EQU first%1, %2").arg(i).arg(set().regName(i)), -1);
        add(QString("#EQU second%1, first%1").arg(i), -1);
    }
    for (int i = 0; i < set().regCount; ++i) {
        const int j = set().regCount - 1 - i;
        const QStringList dst = {set().regName(i), QString("first%1").arg(i), QString("second%1").arg(i)};
        const QStringList src = {set().regName(j), QString("first%1").arg(j), QString("second%1").arg(j)};
        for (int kind = 0; kind < dst.size(); ++kind) {
            const QString other = src.at((kind + 1) % src.size());
            add("LOAD " + dst.at(kind) + ", " + other, load.word + load.first * i + load.second * j);
            add("RDPRT " + dst.at(kind) + ", (" + other + ')', read.word + read.first * i + read.second * j);
        }
    }
    ProcRun run(set().name);
    ASSERT_TRUE(run.assemble(source)) << run.summary();
    for (int line = 0; line < source.size(); ++line)
        EXPECT_EQ(run.words().at(line), words.at(line)) << source.at(line).toStdString();
}

TEST_P(ProcTablesTest, everyWordHasTheTextOfTheIndependentDecoder)
{
    const Disassembler expected(set());
    const nsProc::ProcDisassembler actual(table());
    const auto label = [](int addr) { return 'L' + QString::number(addr); };
    int withText = 0;
    for (int word = 0; word < 1 << 18; ++word) {
        const QString text = actual.text(word, 5000, label);
        ASSERT_EQ(text, expected.text(word, 5000)) << std::hex << word;
        withText += int(!text.isEmpty());
    }
    EXPECT_GT(withText, 60000);
    for (int word : {1 << 18, -1, (1 << 18) + 0x01000})
        EXPECT_EQ(actual.text(word, 5000, label), "") << std::hex << word;
}

TEST_P(ProcTablesTest, everyInstructionOfTheManualIsAssembledAndExecuted)
{
    QStringList expected;
    for (const sEncoding& encoding : set().encodings) {
        if (!expected.contains(mnemonicOf(encoding.text)))
            expected.append(mnemonicOf(encoding.text));
    }
    for (const QString& mnemonic : allMnemonics()) {
        const eOpcode_t opcode = opcodeOfMnemonic(mnemonic);
        EXPECT_EQ(table().assembled(opcode) != nullptr, expected.contains(mnemonic)) << mnemonic.toStdString();
        // The simulator of a Mico8 also executes a comparison with carry, which has no word.
        const bool isSimulatedOnly = set().section == "LMico8v3x" && mnemonic == "COMPC";
        EXPECT_EQ(table().isExecuted(opcode), expected.contains(mnemonic) || isSimulatedOnly) << mnemonic.toStdString();
    }
    EXPECT_EQ(table().assembled(ocUndefined), nullptr);
    EXPECT_FALSE(table().isExecuted(ocUndefined));
    EXPECT_FALSE(table().isExecuted(ocCount));
}

/// A processor among plain lists: no module, no hook but that of the messages.
class ProcessorTest : public ::testing::Test
{
protected:
    ProcessorTest()
    {
        msgHndlr.modMsgHook = &msg;
        program.opcodes = &opcodes;
        program.sets = &sets;
        program.ioDevs = &ioDevs;
        program.msgHndlr = &msgHndlr;
        program.pageSize = 2048;
        program.pageCount = 3;
        program.isSharedMemHigh = false;
        program.chkIntVector = 2;
    }
    /// An instruction with a register and a number at the next address.
    Opcode* add(eOpcode_t code, int reg, int number)
    {
        auto* opcode = new Opcode;
        opcode->opcode = code;
        opcode->name = mnemonicOfOpcode(code);
        opcode->arg0->type = Arg::reg;
        opcode->arg0->iValue = reg;
        opcode->arg1->type = Arg::numeric;
        opcode->arg1->iValue = number;
        opcode->arg1->name = QString::number(number);
        opcode->memAddr = opcodes.count();
        opcode->pageAddr = opcodes.count();
        opcode->memRange = 0;
        opcodes.append(opcode);
        return opcode;
    }
    void set(const QString& name, int value)
    {
        auto* element = new Set;
        element->nameSpace = "PROC::XPBLZE6";
        element->nameSpaceUpper = element->nameSpace;
        element->name = name;
        element->nameUpper = name;
        element->valueType = Set::valueNumeric;
        element->value = QString::number(value);
        element->iValue = value;
        sets.append(element);
    }

    FakeMsgHook msg;
    AsmFeFileHndlr fileHndlr;
    AsmFeMsgHndlr msgHndlr{&fileHndlr};
    OpcodeList opcodes;
    SetList sets;
    IODevList ioDevs;
    AsmBeProgram program;
};

TEST_F(ProcessorTest, AssemblesWhatItIsHanded)
{
    Processor processor(nsProc::xpBlze6Table());
    const Opcode* load = add(ocLoad, 10, 0x5A);
    set("SCRPDSIZE", 256);
    const Opcode* write = add(ocWrmem, 1, 255);
    EXPECT_TRUE(processor.assembleStage1(program)) << msg.errors().join('\n').toStdString();
    EXPECT_TRUE(processor.assembleStage2(program));
    EXPECT_EQ(load->instWord, 0x01A5A);
    EXPECT_EQ(write->instWord, 0x2F1FF);
    EXPECT_TRUE(sets.first()->used);
    const ProcCoreConfig* run = processor.runConfig();
    EXPECT_EQ(run->scrpdSize, 256);
    EXPECT_EQ(run->pageSize, 2048);
    EXPECT_EQ(run->pageCount, 3);
    EXPECT_FALSE(run->sharedMemHi);
    EXPECT_EQ(processor.settings().scrpdSize, 64) << "what a source sets is for the run alone";
    EXPECT_EQ(processor.beConfig(), 1024);

    sets.clear();
    EXPECT_FALSE(processor.assembleStage1(program));
    EXPECT_EQ(msg.errors(), QStringList("Address \"255\"exceeds scratchpad size of \"63\"!"));
}

TEST_F(ProcessorTest, ReportsWithItsOwnHelp)
{
    Processor processor(nsProc::xpBlze3Table());
    add(ocAdd, 0, 256);
    EXPECT_FALSE(processor.assembleStage1(program));
    ASSERT_EQ(msg.messages(ModMsgHookIf::eMsgError).size(), 1);
    EXPECT_EQ(msg.messages(ModMsgHookIf::eMsgError).first().hlpDoc.host(), "xpblze3asmbemessages");
    msg.reset();
    opcodes.clear();
    add(ocStar, 0, 1);
    EXPECT_FALSE(processor.assembleStage1(program));
    ASSERT_EQ(msg.messages(ModMsgHookIf::eMsgError).size(), 1);
    EXPECT_EQ(msg.messages(ModMsgHookIf::eMsgError).first().key(), "errOcUnsupported");
}

TEST_F(ProcessorTest, EachHasItsNamesAndKeepsItsSettings)
{
    QStringList names;
    for (const ProcTable* table : nsProc::procTables()) {
        Processor processor(*table);
        names.append(processor.processorName());
        EXPECT_EQ(nsProc::procTable(processor.processorName()), table);
        FakePrjHook prj;
        processor.writeSettings(&prj);
        ProcCoreConfig changed = processor.settings();
        changed.clkFreq = 1e9;
        changed.pageSize = 77;
        processor.setSettings(changed);
        EXPECT_EQ(processor.runConfig()->pageSize, 77);
        processor.readSettings(&prj);
        EXPECT_EQ(processor.settings().pageSize, 1024);
        EXPECT_EQ(processor.settings().clkFreq, 80e6);
        EXPECT_EQ(processor.runConfig()->pageSize, 1024);
    }
    EXPECT_EQ(names, QStringList({"Lattice Mico8 v3.x", "Xilinx PicoBlaze 6", "Xilinx PicoBlaze 3"}));
    EXPECT_EQ(nsProc::procTable("PicoBlaze"), nullptr);
    names.sort();
    EXPECT_EQ(nsModProcessor::ProcList().nameList(), names) << "each table has a shell";
}

/// Settings that only write down which keys are written.
class KeyLog : public FakePrjHook
{
public:
    using FakePrjHook::setValue;
    void setValue(QString key, QString) override { keys.append(key); }
    void setValue(QString key, int) override { keys.append(key); }

    QStringList keys;
};

TEST_F(ProcessorTest, WritesItsKeysInTheOrderOfTheFile)
{
    const QHash<QString, QString> expected = {
        {"XPBlze3", "clkFreq memMap/pageSize"},
        {"XPBlze6", "scrpdSize intVectorAddr clkFreq memMap/pageSize"},
        {"LMico8v3x", "scrpdSize clkFreq instrClkCnt regCount memMap/pageSize"},
    };
    for (const ProcTable* table : nsProc::procTables()) {
        KeyLog log;
        Processor(*table).writeSettings(&log);
        QStringList keys;
        for (const QString& key : expected.value(table->cfgSection).split(' '))
            keys.append(QString(table->cfgSection) + '/' + key);
        EXPECT_EQ(log.keys, keys);
    }
}

TEST_F(ProcessorTest, OfAProject)
{
    FakePrjHook prj;
    EXPECT_EQ(Processor::ofProject(&prj), nullptr);
    prj.tree.set("ModProcessor/processor", QString("Lattice Mico8"));
    EXPECT_EQ(Processor::ofProject(&prj), nullptr);
    prj.tree.set("ModProcessor/processor", QString("Lattice Mico8 v3.x"));
    prj.tree.set("LMico8v3x/regCount", 99);
    prj.tree.set("LMico8v3x/clkFreq", QString("12e6"));
    prj.tree.set("LMico8v3x/instrClkCnt", 3);
    const auto processor = Processor::ofProject(&prj);
    ASSERT_NE(processor, nullptr);
    EXPECT_EQ(processor->processorDefine(), "PROC::LMICO8V3X");
    EXPECT_EQ(processor->settings().regCount, 32) << "the nearest one";
    EXPECT_EQ(processor->settings().clkFreq, 12e6);
    EXPECT_EQ(processor->table().regCountOf(processor->settings()), 32);
    EXPECT_EQ(processor->table().instrClkCntOf(processor->settings()), 3);
    EXPECT_EQ(processor->table().scrpdSizeOf(processor->settings()), 32);
    const ProcTable& fixed = nsProc::xpBlze3Table();
    ProcCoreConfig other = fixed.defaultConfig();
    other.regCount = 8;
    other.scrpdSize = 256;
    other.instrClkCnt = 9;
    EXPECT_EQ(fixed.regCountOf(other), 16) << "these are no settings of a PicoBlaze 3";
    EXPECT_EQ(fixed.scrpdSizeOf(other), 64);
    EXPECT_EQ(fixed.instrClkCntOf(other), 2);
}

TEST(InstructionWords, InTheirOrders)
{
    EXPECT_EQ(
        instructionWords(),
        QString("RET RETI ADDC SUBC INT COMP COMPC ADD AND CALL HWBUILD JUMP LOAD NOP OR ROL ROLC ROR RORC SL0 SL1 "
                "SLX SR0 SR1 SRX SUB TEST TESTC XOR WRMEM WRPRT RDMEM RDPRT STAR regBank LOADRET SET CLR")
            .split(' '));
    QStringList groups;
    for (const sInstructionGroup_t& group : instructionGroups())
        groups.append(QString(group.name) + ": " + group.words.join(' '));
    EXPECT_EQ(
        groups,
        QStringList({"Arithmetic: ADD ADDC SUB SUBC", "Data movement: LOAD LOADRET RDPRT WRPRT WRMEM RDMEM",
                     "Interrupt: INT RETI", "Logic: AND OR XOR COMP COMPC TEST TESTC",
                     "Program flow: JUMP CALL RET LOADRET NOP SET CLR",
                     "Shift and rotate: ROL ROLC ROR RORC SL0 SL1 SLX SR0 SR1 SRX", "Special: STAR regBank HWBUILD"}));
}

} // namespace
