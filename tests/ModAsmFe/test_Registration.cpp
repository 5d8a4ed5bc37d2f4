// Who reports through the message service is registered with it; nobody gives itself the hook.

#include "AsmFixture.h"

#include "AsmFeFileHndlr.h"
#include "TargetFileWriteVerilog.h"
#include "TargetFileWriteVhdl.h"
#include "TargetWriteFileHex.h"
#include "TargetWriteFileMem.h"

#include <gtest/gtest.h>

using namespace nsModAsmFe;

namespace {

TEST(AsmRegistration, handlersLiveWithTheModule)
{
    AsmFixture f;
    const LoggingMsgHook* msg = &f.msg;
    EXPECT_TRUE(msg->registered.contains(f.asmFe.fileHndlr()));
    EXPECT_TRUE(msg->registered.contains(f.asmFe.msgHndlr()));
    EXPECT_EQ(f.asmFe.fileHndlr()->modMsgHook, msg);
    f.asmFe.modExitIntermod();
    EXPECT_FALSE(msg->registered.contains(f.asmFe.fileHndlr()));
    EXPECT_FALSE(msg->registered.contains(f.asmFe.msgHndlr()));
    EXPECT_EQ(f.asmFe.fileHndlr()->modMsgHook, nullptr);
}

TEST(AsmRegistration, writersAreRegisteredWhileTheyWrite)
{
    EXPECT_EQ(TargetWriteFileHex().modMsgHook, nullptr);
    EXPECT_EQ(TargetWriteFileMem().modMsgHook, nullptr);
    EXPECT_EQ(TargetFileWriteVhdl().modMsgHook, nullptr);
    EXPECT_EQ(TargetFileWriteVerilog().modMsgHook, nullptr);
    AsmFixture f;
    f.open();
    const QSet<ModMsgPluginIf*> before = f.msg.registered;
    const int registrations = f.msg.registrations;
    EXPECT_TRUE(f.run(" LOAD s0, 1\n", ModAsmFe::eEventButton1));
    EXPECT_EQ(f.msg.registrations, registrations + 4);
    EXPECT_EQ(f.msg.registered, before);
    // What a writer reports is seen.
    EXPECT_FALSE(f.run("#SET IODEV::a::EN, TRUE\n#SET IODEV::a::SIZE, 1\n#SET IODEV::a::HEXEN, TRUE\n"
                       "#SET IODEV::a::HEXTARGETFILE, \"no/such/folder/x.hex\"\n LOAD s0, 1\n",
                       ModAsmFe::eEventButton1));
    EXPECT_EQ(f.errors(), QStringList("errTargetOpenOutput"));
    EXPECT_EQ(f.msg.registered, before);
}

} // namespace
