// The registry: which processor is attached, and in which order it is attached and detached.

#include "QtPrinters.h"
#include "RegistryFixture.h"

namespace {

const QStringList attached = {"modInit",
                              "+ModGuiPluginIf",
                              "+ModMsgPluginIf",
                              "+ModEditorPluginIf",
                              "+ModAsmFePluginIfBackend",
                              "+ModActionPluginIf",
                              "+ModCfgAppPluginIfInterMod",
                              "+ModPrjPluginIfInterMod",
                              "modInitIntermod"};
const QStringList detached = {"modExitIntermod",          "-ModPrjPluginIfInterMod", "-ModCfgAppPluginIfInterMod",
                              "-ModGuiPluginIf",          "-ModMsgPluginIf",         "-ModEditorPluginIf",
                              "-ModAsmFePluginIfBackend", "-ModActionPluginIf",      "modExit"};

TEST_F(RegistryTest, AttachesInOrder)
{
    FakeProcessor one("one", &log);
    registry.setupProcessorIf(&one);
    EXPECT_EQ(takeLog(), attached);
    EXPECT_EQ(registry.currentProcessor(), &one);
    EXPECT_TRUE(one.hasAllHooks());
    registry.setupProcessorIf(nullptr);
}

TEST_F(RegistryTest, DetachesInOrder)
{
    FakeProcessor one("one", &log);
    registry.setupProcessorIf(&one);
    takeLog();
    registry.setupProcessorIf(nullptr);
    EXPECT_EQ(takeLog(), detached);
    EXPECT_EQ(registry.currentProcessor(), nullptr);
    EXPECT_TRUE(one.hasNoHook());
}

TEST_F(RegistryTest, DetachesTheOldOneBeforeItAttachesTheNewOne)
{
    FakeProcessor one("one", &log);
    FakeProcessor two("two", &log);
    registry.setupProcessorIf(&one);
    takeLog();
    registry.setupProcessorIf(&two);
    EXPECT_EQ(takeLog(), detached + attached);
    EXPECT_EQ(registry.currentProcessor(), &two);
    EXPECT_TRUE(one.hasNoHook());
    registry.setupProcessorIf(nullptr);
}

TEST_F(RegistryTest, TheSameProcessorAgainDoesNothing)
{
    FakeProcessor one("one", &log);
    registry.setupProcessorIf(&one);
    takeLog();
    registry.setupProcessorIf(&one);
    EXPECT_EQ(takeLog(), QStringList());
    registry.setupProcessorIf(nullptr);
    takeLog();
    registry.setupProcessorIf(nullptr);
    EXPECT_EQ(takeLog(), QStringList());
}

TEST_F(RegistryTest, ClosingTheProjectDetaches)
{
    FakeProcessor one("one", &log);
    registry.processor = "a name";
    registry.setupProcessorIf(&one);
    takeLog();
    registry.prjClose();
    EXPECT_EQ(takeLog(), detached);
    EXPECT_EQ(registry.currentProcessor(), nullptr);
    EXPECT_EQ(registry.processor, "a name") << "the name stays";
    registry.prjClose();
    EXPECT_EQ(takeLog(), QStringList()) << "with nothing attached there is nothing to do";
}

TEST_F(RegistryTest, SavingWritesTheNameAndAsksTheAttachedProcessor)
{
    FakeProcessor one("one", &log);
    registry.processor = "one";
    registry.prjSave();
    EXPECT_EQ(storedName(), "one");
    EXPECT_EQ(takeLog(), QStringList());
    registry.setupProcessorIf(&one);
    takeLog();
    registry.prjSave();
    EXPECT_EQ(takeLog(), QStringList("wrCfg"));
    registry.setupProcessorIf(nullptr);
}

TEST_F(RegistryTest, AProjectWithoutTheKeyHasNoProcessor)
{
    open(QString());
    EXPECT_EQ(registry.currentProcessor(), nullptr);
    EXPECT_EQ(registry.processor, QString());
    EXPECT_EQ(takeLog(), QStringList());
    registry.prjSave();
    EXPECT_EQ(storedName(), "");
}

TEST_F(RegistryTest, AnUnknownNameIsKeptAndWrittenBack)
{
    open("Some Other 9");
    EXPECT_EQ(registry.currentProcessor(), nullptr);
    EXPECT_EQ(registry.processor, "Some Other 9");
    prj.tree.values.clear();
    registry.prjSave();
    EXPECT_EQ(storedName(), "Some Other 9");
    EXPECT_EQ(msg.messages().size(), 0) << "it is no error";
}

TEST_F(RegistryTest, AnUnknownNameDetachesTheEarlierProcessor)
{
    open(namePicoBlaze3);
    ASSERT_EQ(currentName(), namePicoBlaze3);
    open("Some Other 9");
    EXPECT_EQ(registry.currentProcessor(), nullptr);
    EXPECT_EQ(processor(namePicoBlaze3)->modPrjHook, nullptr);
}

TEST_F(RegistryTest, NamesAreComparedExactly)
{
    for (const char* name : {"xilinx PicoBlaze 3", "Xilinx PicoBlaze 3 ", "Xilinx PicoBlaze", "XPBlze3", ""}) {
        open(name);
        EXPECT_EQ(registry.currentProcessor(), nullptr) << name;
    }
}

TEST_F(RegistryTest, OpensEachOfTheThree)
{
    for (const char* name : {namePicoBlaze3, namePicoBlaze6, nameMico8}) {
        open(name);
        EXPECT_EQ(currentName(), name);
        EXPECT_EQ(registry.processor, name);
    }
}

TEST_F(RegistryTest, AProcessorIsAttachedBeforeItReadsItsKeys)
{
    prj.tree.set("XPBlze6/memMap/pageSize", 2048);
    open(namePicoBlaze6);
    EXPECT_EQ(registry.currentProcessor()->beConfig(), 2048);
}

TEST_F(RegistryTest, OpeningTheSameProcessorAgainKeepsTheObjectButReadsItsKeys)
{
    open(namePicoBlaze3);
    const QHash<QString, int>* regs = registry.currentProcessor()->regNames();
    takeLog();
    prj.tree.set("XPBlze3/memMap/pageSize", 512);
    open(namePicoBlaze3);
    EXPECT_EQ(takeLog(), QStringList()) << "nothing was registered again";
    EXPECT_EQ(registry.currentProcessor()->regNames(), regs) << "the back end is the same";
    EXPECT_EQ(registry.currentProcessor()->beConfig(), 512);
}

TEST_F(RegistryTest, ARealProcessorRegistersItsBackEndLast)
{
    open(namePicoBlaze3);
    QStringList order = takeLog();
    EXPECT_EQ(order.mid(0, 7), attached.mid(1, 7));
    order = order.mid(7);
    EXPECT_TRUE(order.contains("+ModMsgPluginIf"));
    EXPECT_TRUE(order.contains("+ModAsmFePluginIfInterMod"));
    EXPECT_TRUE(order.filter("-").isEmpty());
    registry.prjClose();
    order = takeLog();
    EXPECT_EQ(order.mid(order.size() - 7), detached.mid(1, 7));
    order = order.mid(0, order.size() - 7);
    EXPECT_TRUE(order.contains("-ModMsgPluginIf"));
    EXPECT_TRUE(order.contains("-ModAsmFePluginIfInterMod"));
}

TEST_F(RegistryTest, ClearingAListShutsDownWhatIsAttached)
{
    nsModProcessor::ProcList list;
    nsModProcessor::ProcPluginIf* attachedOne = list.interface(nameMico8);
    attachedOne->modInit();
    attachedOne->modMsgHook = &msg;
    attachedOne->modAsmFeHook = &asmFe;
    attachedOne->modInitIntermod();
    takeLog();
    list.clear();
    const QStringList order = takeLog();
    EXPECT_EQ(order.count("-ModMsgPluginIf"), 1);
    EXPECT_EQ(order.count("-ModAsmFePluginIfInterMod"), 1);
    EXPECT_TRUE(list.processors().isEmpty());
    EXPECT_TRUE(list.nameList().isEmpty());
    EXPECT_EQ(list.interface(nameMico8), nullptr);
}

TEST_F(RegistryTest, TheListHasItsOwnOrderAndSortedNames)
{
    QStringList order;
    for (nsModProcessor::ProcPluginIf* each : registry.processorList()->processors())
        order.append(each->processorName());
    EXPECT_EQ(order, QStringList({nameMico8, namePicoBlaze6, namePicoBlaze3}));
    EXPECT_EQ(registry.processorList()->nameList(), QStringList({nameMico8, namePicoBlaze3, namePicoBlaze6}));
    EXPECT_EQ(registry.processorList()->interface(""), nullptr);
    EXPECT_EQ(registry.processorList()->interface("Some Other 9"), nullptr);
    for (nsModProcessor::ProcPluginIf* each : registry.processorList()->processors())
        EXPECT_EQ(registry.processorList()->interface(each->processorName()), each);
}

TEST_F(RegistryTest, TheDialogMayCloseUnlessTheProcessorRefuses)
{
    EXPECT_TRUE(registry.configPageCloseRequest());
    FakeProcessor one("one", &log);
    registry.setupProcessorIf(&one);
    EXPECT_TRUE(registry.configPageCloseRequest());
    one.mayClose = false;
    EXPECT_FALSE(registry.configPageCloseRequest());
    registry.setupProcessorIf(nullptr);
}

TEST_F(RegistryTest, IsKnownToScriptsAndNeverRefusesToEnd)
{
    registry.modInitIntermod();
    EXPECT_EQ(script.objects.value("processor"), &registry);
    open(namePicoBlaze6);
    EXPECT_TRUE(registry.modExitRequest());
}

TEST(RegistryAlone, NeedsNoServiceButTheProject)
{
    FakePrjHook prj;
    nsModProcessor::ModProcessor registry;
    prj.registerPlugin(static_cast<ModPrjPluginIf*>(&registry));
    registry.modInitIntermod();
    for (const char* name : {nameMico8, namePicoBlaze6, namePicoBlaze3, ""}) {
        prj.tree.set("ModProcessor/processor", QString(name));
        prj.open("/nowhere/p.nalvo");
        prj.savePrjCfg();
    }
    EXPECT_EQ(registry.currentProcessor(), nullptr);
    prj.close();
}

} // namespace
