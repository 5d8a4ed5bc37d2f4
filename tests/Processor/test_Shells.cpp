// The processors' own settings: their keys, what a run makes of them, and what the back ends give away.

#include "ProcRun.h"
#include "QtPrinters.h"
#include "RegistryFixture.h"

#include "LMico8v3x.h"
#include "ModPrj.h"
#include "ProcAsmMsg.h"
#include "ProcShell.h"
#include "ProcSim.h"
#include "XPBlze3.h"
#include "XPBlze6.h"

#include <QFile>

namespace {

/// A processor with its section and all of its keys, with the values that a new processor has.
struct sShell
{
    const char* name;
    QString section;
    QString define;
    QHash<QString, QString> defaults;
};

const QList<sShell>& shells()
{
    static const QList<sShell> list = {
        {namePicoBlaze3, "XPBlze3", "PROC::XPBLZE3", {{"clkFreq", "80000000"}, {"memMap/pageSize", "1024"}}},
        {namePicoBlaze6,
         "XPBlze6",
         "PROC::XPBLZE6",
         {{"scrpdSize", "64"}, {"intVectorAddr", "1023"}, {"clkFreq", "80000000"}, {"memMap/pageSize", "1024"}}},
        {nameMico8,
         "LMico8v3x",
         "PROC::LMICO8V3X",
         {{"scrpdSize", "32"},
          {"clkFreq", "80000000"},
          {"instrClkCnt", "2"},
          {"regCount", "32"},
          {"memMap/pageSize", "1024"}}},
    };
    return list;
}

/// The keys below a section, with their values as text.
QHash<QString, QString> keysBelow(const FakeTree& tree, const QString& section)
{
    QHash<QString, QString> keys;
    for (auto it = tree.values.cbegin(); it != tree.values.cend(); ++it) {
        if (it.key().startsWith(section + '/'))
            keys.insert(it.key().mid(section.size() + 1), it.value().toString());
    }
    return keys;
}

class ShellTest : public RegistryTest
{
protected:
    void save() { prj.savePrjCfg(); }
    QHash<QString, QString> stored(const QString& section) { return keysBelow(prj.tree, section); }
};

TEST_F(ShellTest, AProjectWithDefaultsGetsAllKeys)
{
    for (const sShell& shell : shells()) {
        prj.tree.values.clear();
        open(shell.name);
        save();
        EXPECT_EQ(stored(shell.section), shell.defaults) << shell.name;
        EXPECT_EQ(prj.tree.values.size(), shell.defaults.size() + 1) << "and no others, but the processor's name";
    }
}

TEST_F(ShellTest, StoredValuesComeBack)
{
    for (const sShell& shell : shells()) {
        prj.tree.values.clear();
        QHash<QString, QString> wanted;
        int value = 100;
        int registers = 17;
        for (auto it = shell.defaults.cbegin(); it != shell.defaults.cend(); ++it) {
            // The number of registers has a range of its own.
            wanted.insert(it.key(), QString::number(it.key() == "regCount" ? registers++ : ++value));
            prj.tree.set(shell.section + '/' + it.key(), wanted.value(it.key()));
        }
        open(shell.name);
        prj.tree.values.clear();
        save();
        EXPECT_EQ(stored(shell.section), wanted) << shell.name;
    }
}

TEST_F(ShellTest, AFrequencyMayBeLargerThanAnInt)
{
    for (const sShell& shell : shells()) {
        prj.tree.set(shell.section + "/clkFreq", QString("10000000000"));
        open(shell.name);
        prj.tree.values.clear();
        save();
        EXPECT_EQ(stored(shell.section).value("clkFreq"), "10000000000") << shell.name;
    }
}

TEST_F(ShellTest, AMissingKeyReadsAsTheDefaultNotAsTheLastValue)
{
    for (const sShell& shell : shells()) {
        prj.tree.values.clear();
        for (auto it = shell.defaults.cbegin(); it != shell.defaults.cend(); ++it)
            prj.tree.set(shell.section + '/' + it.key(), QString("77"));
        open(shell.name);
        prj.tree.values.clear();
        open(shell.name);
        prj.tree.values.clear();
        save();
        EXPECT_EQ(stored(shell.section), shell.defaults) << shell.name;
    }
}

TEST_F(ShellTest, SettingsOutliveDetaching)
{
    prj.tree.set("XPBlze6/scrpdSize", 256);
    prj.tree.set("XPBlze6/memMap/pageSize", 4096);
    open(namePicoBlaze6);
    registry.setupProcessorIf(nullptr);
    prj.tree.values.clear();
    registry.setupProcessorIf(processor(namePicoBlaze6));
    EXPECT_EQ(registry.currentProcessor()->beConfig(), 4096);
    save();
    EXPECT_EQ(stored("XPBlze6").value("scrpdSize"), "256");
}

TEST_F(ShellTest, KeysAreReadWhenAProjectOpensAndNotWhenAProcessorIsChosen)
{
    prj.tree.set("XPBlze6/scrpdSize", 256);
    open(namePicoBlaze3);
    registry.setupProcessorIf(processor(namePicoBlaze6));
    save();
    EXPECT_EQ(stored("XPBlze6").value("scrpdSize"), "64") << "the object kept what it had";
}

TEST_F(ShellTest, ThereAndBackKeepsTheKeysOfEach)
{
    prj.tree.set("XPBlze6/scrpdSize", 128);
    prj.tree.set("XPBlze6/intVectorAddr", 512);
    open(namePicoBlaze6);
    const auto choose = [&](const char* name) {
        registry.processor = name;
        registry.setupProcessorIf();
        EXPECT_EQ(currentName(), name);
        save();
        EXPECT_EQ(storedName(), name);
    };
    choose(nameMico8);
    EXPECT_EQ(stored("XPBlze6").value("scrpdSize"), "128") << "keys of a processor that is not attached stay";
    EXPECT_EQ(stored("LMico8v3x"), shells().at(2).defaults);
    choose(namePicoBlaze3);
    choose(namePicoBlaze6);
    EXPECT_EQ(stored("XPBlze6").value("scrpdSize"), "128");
    EXPECT_EQ(stored("XPBlze6").value("intVectorAddr"), "512");
    EXPECT_EQ(stored("LMico8v3x"), shells().at(2).defaults);
    EXPECT_EQ(stored("XPBlze3"), shells().at(0).defaults);
}

TEST(ShellFile, TheProjectFileHoldsTheKeysOfAllProcessorsThatWereChosen)
{
    QTemporaryDir dir;
    const QString file = dir.filePath("p.nalvo");
    FakeMsgHook msg;
    nsModPrj::ModPrj prj;
    nsModProcessor::ModProcessor registry;
    msg.attach(static_cast<ModMsgPluginIf*>(&prj));
    prj.registerPlugin(static_cast<ModPrjPluginIf*>(&registry));
    ASSERT_TRUE(prj.prjMngrGenerate(file, "a title") && prj.openPrj(file));
    for (const sShell& shell : shells()) {
        registry.processor = shell.name;
        registry.setupProcessorIf();
        prj.savePrjCfg();
    }
    prj.closePrj();

    CfgTree tree(nullptr);
    ASSERT_TRUE(prj.readPrjFile(&tree, file));
    for (const sShell& shell : shells()) {
        for (auto it = shell.defaults.cbegin(); it != shell.defaults.cend(); ++it)
            EXPECT_EQ(tree.value(shell.section + '/' + it.key(), QString("(none)")), it.value()) << shell.name;
    }
    EXPECT_EQ(tree.value("ModProcessor/processor", QString()), nameMico8);
    EXPECT_EQ(msg.errors(), QStringList());
    registry.prjClose();
}

TEST_F(ShellTest, NamesAndTablesOfTheBackEnds)
{
    const QHash<QString, int> banks = {{"A", 0}, {"B", 1}};
    for (const sShell& shell : shells()) {
        open(shell.name);
        nsModProcessor::ProcPluginIf* current = registry.currentProcessor();
        EXPECT_EQ(current->processorName(), shell.name);
        EXPECT_EQ(current->processorDefine(), shell.define);
        QHash<QString, int> regs;
        const bool isMico8 = shell.section == "LMico8v3x";
        for (int i = 0; i < (isMico8 ? 32 : 16); ++i)
            regs.insert(isMico8 ? 'r' + QString::number(i) : 's' + QString::number(i, 16).toUpper(), i);
        EXPECT_EQ(*current->regNames(), regs);
        if (shell.section == "XPBlze6")
            EXPECT_EQ(*current->regBankNames(), banks);
        else
            EXPECT_EQ(current->regBankNames(), nullptr);
    }
}

TEST_F(ShellTest, WithoutABackEndThereIsNothingToGive)
{
    for (const sShell& shell : shells()) {
        nsModProcessor::ProcPluginIf* idle = processor(shell.name);
        EXPECT_EQ(idle->regNames(), nullptr);
        EXPECT_EQ(idle->regBankNames(), nullptr);
        EXPECT_EQ(idle->processorDefine(), QString());
        EXPECT_FALSE(idle->assembleStage1());
        EXPECT_FALSE(idle->assembleStage2());
        EXPECT_EQ(idle->beConfig(), 1024);
    }
}

TEST_F(ShellTest, AFailedRunOfTheFrontEndFailsTheStage)
{
    open(namePicoBlaze3);
    // This front end answers false for the instruction memory.
    EXPECT_FALSE(registry.currentProcessor()->assembleStage1());
}

TEST(ShellDefaults, OfTheConfigurations)
{
    const nsXPBlze3::XPBlze3Config pb3;
    EXPECT_EQ(pb3.pageSize, 1024);
    EXPECT_EQ(pb3.pageCount, 1);
    EXPECT_TRUE(pb3.sharedMemHi);
    EXPECT_EQ(pb3.intVectorAddr, 1023);
    EXPECT_EQ(pb3.scrpdSize, 64);
    EXPECT_EQ(pb3.scrpdIODev, QString());
    EXPECT_EQ(pb3.clkFreq, 80000000);
    const nsXPBlze6::XPBlze6Config pb6;
    EXPECT_EQ(pb6.pageSize, 1024);
    EXPECT_EQ(pb6.intVectorAddr, 1023);
    EXPECT_EQ(pb6.scrpdSize, 64);
    EXPECT_EQ(pb6.clkFreq, 80000000);
    const nsLMico8v3x::LMico8v3xConfig mico;
    EXPECT_EQ(mico.pageSize, 1024);
    EXPECT_EQ(mico.intVectorAddr, 0);
    EXPECT_EQ(mico.regCount, 32);
    EXPECT_EQ(mico.scrpdSize, 32);
    EXPECT_EQ(mico.clkFreq, 80000000);
    EXPECT_EQ(mico.instrClkCnt, 2);
}

/// A run whose sources set every parameter of a processor: the run takes them, the stored settings stay.
template <class Shell>
const Shell* runAndSave(ProcRun* run, const sShell& shell, const QStringList& lines)
{
    EXPECT_TRUE(run->assemble(lines)) << run->summary();
    run->prj.savePrjCfg();
    EXPECT_EQ(keysBelow(run->prj.tree, shell.section), shell.defaults);
    return dynamic_cast<const Shell*>(run->processor.currentProcessor());
}

TEST(ShellRun, ParametersOfAPicoBlaze3HoldForTheRun)
{
    ProcRun run(namePicoBlaze3, {{"AsmFe/behavior/set", 2}});
    const auto* config = runAndSave<nsXPBlze3::XPBlze3>(
        &run, shells().at(0),
        {"#SET PROC::XPBLZE3::CLKFREQ, 12345678", "#SET PROC::XPBLZE3::SCRPDIODEV, IODEV::scr",
         "#SET IODEV::scr::EN, TRUE", "#SET IODEV::scr::SIZE, 64", "#SET INSTMEM::PAGESIZE, 2048", "NOP"});
    ASSERT_NE(config, nullptr);
    EXPECT_EQ(config->clkFreq, 12345678);
    EXPECT_EQ(config->scrpdIODev, "IODEV::scr");
    EXPECT_EQ(config->pageSize, 2048);
    ASSERT_TRUE(run.assemble({"NOP"}));
    EXPECT_EQ(config->clkFreq, 80000000);
    EXPECT_EQ(config->scrpdIODev, QString());
    EXPECT_EQ(config->pageSize, 1024);
}

TEST(ShellRun, ParametersOfAPicoBlaze6HoldForTheRun)
{
    ProcRun run(namePicoBlaze6, {{"AsmFe/behavior/set", 2}});
    const auto* config =
        runAndSave<nsXPBlze6::XPBlze6>(&run, shells().at(1),
                                       {"#SET PROC::XPBLZE6::SCRPDSIZE, 256", "#SET PROC::XPBLZE6::INTVECTOR, 3",
                                        "#SET PROC::XPBLZE6::CLKFREQ, 5", "RDMEM s0, 255"});
    ASSERT_NE(config, nullptr);
    EXPECT_EQ(config->scrpdSize, 256);
    EXPECT_EQ(config->intVectorAddr, 3);
    EXPECT_EQ(config->clkFreq, 5);
    EXPECT_FALSE(run.assemble({"RDMEM s0, 64"})) << "the next run starts from the settings again";
    EXPECT_EQ(run.messages().value(0),
              QStringList("errExceededScrpdSize | Address \"64\"exceeds scratchpad size of \"63\"!"));
    EXPECT_EQ(config->scrpdSize, 64);
    EXPECT_EQ(config->intVectorAddr, 1023);
}

TEST(ShellRun, ParametersOfAMico8HoldForTheRun)
{
    ProcRun run(nameMico8, {{"AsmFe/behavior/set", 2}});
    const auto* config = runAndSave<nsLMico8v3x::LMico8v3x>(
        &run, shells().at(2),
        {"#SET PROC::LMICO8V3X::INTSCRPDSIZE, 64", "#SET PROC::LMICO8V3X::REGCOUNT, 16",
         "#SET PROC::LMICO8V3X::CLKFREQ, 5", "#SET PROC::LMICO8V3X::INSTCLKCYCLECOUNT, 7", "RDMEM r0, 63"});
    ASSERT_NE(config, nullptr);
    EXPECT_EQ(config->scrpdSize, 64);
    EXPECT_EQ(config->regCount, 16);
    EXPECT_EQ(config->clkFreq, 5);
    EXPECT_EQ(config->instrClkCnt, 7);
    EXPECT_FALSE(run.assemble({"RDMEM r0, 32"}));
    EXPECT_EQ(config->regCount, 32);
    EXPECT_EQ(config->instrClkCnt, 2);
}

TEST(ShellRun, AParameterThatOverridesWarnsInEachRun)
{
    ProcRun run(namePicoBlaze6, {{"AsmFe/behavior/set", 1}});
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(run.assemble({"#SET PROC::XPBLZE6::SCRPDSIZE, 128", "NOP"}));
        EXPECT_EQ(run.messages().value(0),
                  QStringList("warnSetOverwriteGuiSettings | Overwriting gui configuration: scrpdSize"));
    }
}

TEST(ShellRun, MessagesLeadToHelpAndLine)
{
    const QHash<QString, QString> pages = {{namePicoBlaze3, "XPBlze3AsmBeMessages"},
                                           {namePicoBlaze6, "XPBlze6AsmBeMessages"},
                                           {nameMico8, "LMico8v3xAsmBeMessages"}};
    for (const sShell& shell : shells()) {
        ProcRun run(shell.name);
        const QString reg = shell.section == "LMico8v3x" ? "r1" : "s1";
        EXPECT_FALSE(run.assemble({"NOP", "", "ADD " + reg + ", 256"}));
        const QList<FakeMsgHook::Entry> errors = run.msg.messages(ModMsgHookIf::eMsgError);
        ASSERT_EQ(errors.size(), 1);
        const FakeMsgHook::Entry& entry = errors.first();
        // A host has no case.
        EXPECT_EQ(entry.hlpDoc.scheme(), "pageid");
        EXPECT_EQ(entry.hlpDoc.host(), pages.value(shell.name).toLower());
        EXPECT_EQ(entry.hlpDoc.fragment(), "errExceededMaxNumeric");
        EXPECT_EQ(entry.srcFile.scheme(), "file");
        EXPECT_TRUE(QFile::exists(entry.srcFile.path()));
        EXPECT_EQ(entry.srcFile.fragment(), "2") << "lines are counted from 0";
        EXPECT_EQ(entry.srcFile.displayName(), "main.psm#3") << "and shown from 1";

        EXPECT_FALSE(run.assemble({"#ORG 1", "NOP"}));
        const QList<FakeMsgHook::Entry> plain = run.msg.messages(ModMsgHookIf::eMsgError);
        ASSERT_EQ(plain.size(), 1);
        EXPECT_EQ(plain.first().key(), "errMissingInstrAtStartAddr");
        EXPECT_TRUE(plain.first().srcFile.isEmpty());
    }
}

TEST(ShellRun, APercentSignInAnArgumentStaysWhatItIs)
{
    ProcRun run(namePicoBlaze3);
    EXPECT_FALSE(run.assemble({"NOP", "ADD s1, 300 %2000", "ADD s1, 3000 % 1000 + 300"}));
    EXPECT_EQ(run.messages().value(1),
              QStringList("errExceededMaxNumeric | Value \"300 %2000\"exceeds maximum of \"255\"!"));
    EXPECT_EQ(run.messages().value(2),
              QStringList("errExceededMaxNumeric | Value \"3000 % 1000 + 300\"exceeds maximum of \"255\"!"));
}

TEST_F(ShellTest, ServicesThatAreGoneAreNotCalledAndKeepTheirHooks)
{
    open(namePicoBlaze3);
    auto* shell = dynamic_cast<nsProc::ProcShell*>(registry.currentProcessor());
    ASSERT_NE(shell, nullptr);
    takeLog();
    shell->dropServices();
    // Only a service sets or takes back the hook to itself.
    EXPECT_EQ(shell->modMsgHook, &msg);
    EXPECT_EQ(shell->modGuiHook, &gui);
    EXPECT_EQ(shell->modAsmFeHook, &asmFe);
    shell->modExitIntermod();
    EXPECT_EQ(takeLog(), QStringList());
    EXPECT_EQ(shell->sim(), nullptr);
}

TEST(ShellCatalogue, KeysInOrder)
{
    const QStringList keys = {"errExceededMaxNumeric",
                              "errExceededScrpdSize",
                              "errExceededMaxPort",
                              "errUnenclosedRegister",
                              "errUnenclosedRegisters",
                              "errIntVectorOutOfMem",
                              "errIvldScrpdSize",
                              "errIvldRegCnt",
                              "errIvldClkFreq",
                              "errIvldInstClkCycleCnt",
                              "errScrpdIODevNotDefined",
                              "errScrpdIODevSizeMismatch",
                              "errMissingInstrAtStartAddr",
                              "warnMissingInstrAtIntVectorAddr",
                              "errMissingInstrAtIntVectorAddr",
                              "warnMissingInstrAtIntVectorAddrAndPage",
                              "errMissingInstrAtIntVectorAddrAndPage",
                              "warnFlowAddrTruncated"};
    for (int i = 0; i < keys.size(); ++i) {
        ASSERT_NE(nsProc::asmMsg(i), nullptr);
        EXPECT_EQ(nsProc::asmMsg(i)->key, keys.at(i));
    }
    EXPECT_EQ(nsProc::asmMsg(keys.size()), nullptr);
    EXPECT_EQ(nsProc::asmMsg(-1), nullptr);
}

} // namespace
