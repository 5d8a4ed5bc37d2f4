// Registers, memories, and what all devices share; as data, without their cards.

#include "ProcSimIOFifo.h"
#include "ProcSimIOMem.h"
#include "ProcSimIOReg8Bit.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

using namespace nsProc;

TEST(Device, DirectionsAreThoseOfTheSelection)
{
    ProcSimIOReg8Bit reg;
    const struct
    {
        ProcSimIOPluginIf::eDirection_t direction;
        int data;
        bool rd, wr, rdWr;
    } rows[] = {{ProcSimIOPluginIf::eDirectionRd, 1, true, false, false},
                {ProcSimIOPluginIf::eDirectionWr, 2, false, true, false},
                {ProcSimIOPluginIf::eDirectionRdWr, 4, true, true, true}};
    for (const auto& row : rows) {
        reg.setDirection(row.direction);
        EXPECT_EQ(reg.directionData(), row.data);
        EXPECT_EQ(reg.chkDirection(ProcSimIOPluginIf::eDirectionRd), row.rd) << row.data;
        EXPECT_EQ(reg.chkDirection(ProcSimIOPluginIf::eDirectionWr), row.wr) << row.data;
        EXPECT_EQ(reg.chkDirection(ProcSimIOPluginIf::eDirectionRdWr), row.rdWr) << row.data;
    }
}

TEST(Device, TheNameIsTheOneThatTheProgramUsedLast)
{
    ProcSimIOReg8Bit reg;
    reg.setBaseAddr(3, "");
    reg.setName("ledReg");
    EXPECT_EQ(reg.name(), "ledReg");
    reg.setValue(3, "LED", 1);
    EXPECT_EQ(reg.name(), "LED");
    int value = 0;
    reg.value(3, "LED_ALIAS", &value);
    EXPECT_EQ(reg.name(), "LED_ALIAS");
}

TEST(Device, WithAnAddressOutOfRangeItAnswersNowhere)
{
    ProcSimIOReg8Bit reg;
    for (int addr : {-1, 0x10000}) {
        reg.setBaseAddr(7, "");
        EXPECT_TRUE(reg.chkAddr(7));
        reg.setBaseAddr(addr, "");
        EXPECT_EQ(reg.addr(), ProcSimIODevice::noAddr);
        for (int port : {addr, 0, 7, 8})
            EXPECT_FALSE(reg.chkAddr(port)) << addr << " at " << port;
    }
    reg.setBaseAddr(0xFFFF, "");
    EXPECT_TRUE(reg.chkAddr(0xFFFF));
}

TEST(Register, HoldsOneValue)
{
    ProcSimIOReg8Bit reg;
    reg.setValue(2, "P", 0x5A);
    EXPECT_EQ(reg.addr(), 2);
    EXPECT_TRUE(reg.isHighlighted());
    int value = 0;
    ASSERT_TRUE(reg.value(2, "P", &value));
    EXPECT_EQ(value, 0x5A);
    reg.clear();
    EXPECT_FALSE(reg.isHighlighted());
    ASSERT_TRUE(reg.value(2, "P", &value));
    EXPECT_EQ(value, 0);
}

TEST(Register, TakesTheFirstInitialValue)
{
    ProcSimIOReg8Bit reg;
    unsigned int values[] = {9, 8};
    reg.initValue(values, 0);
    EXPECT_EQ(reg.regValue(), 0);
    reg.initValue(values, 2);
    EXPECT_EQ(reg.regValue(), 9);
    values[0] = 256;
    reg.initValue(values, 1);
    EXPECT_EQ(reg.regValue(), 9) << "does not fit";
}

TEST(Memory, IsAddressedByThePort)
{
    ProcSimIOMem mem(0);
    mem.setMemSize(8);
    mem.setBaseAddr(4, "");
    EXPECT_FALSE(mem.chkAddr(3));
    EXPECT_TRUE(mem.chkAddr(4));
    EXPECT_TRUE(mem.chkAddr(11));
    EXPECT_FALSE(mem.chkAddr(12));
    mem.setValue(5, "M", 0x33);
    EXPECT_EQ(mem.word(5), 0x33u) << "the base address is not subtracted";
    EXPECT_EQ(mem.word(1), 0u);
    int value = -1;
    ASSERT_TRUE(mem.value(5, "M", &value));
    EXPECT_EQ(value, 0x33);
    mem.setValue(9, "M", 0x44);
    EXPECT_EQ(mem.lastAddr(), 9);
    EXPECT_EQ(mem.lastValue(), 0x44);
    for (int row = 0; row < mem.size(); ++row)
        EXPECT_NE(mem.word(row), 0x44u) << "dropped";
    value = -1;
    EXPECT_FALSE(mem.value(9, "M", &value));
    EXPECT_EQ(value, -1);
}

TEST(Memory, MarksWhatWasTouched)
{
    ProcSimIOMem mem(0);
    EXPECT_EQ(mem.touchedRow(), -1);
    mem.setValue(3, "", 1);
    EXPECT_EQ(mem.touchedRow(), 3);
    EXPECT_TRUE(mem.isWritten(3));
    int value = 0;
    mem.value(4, "", &value);
    EXPECT_EQ(mem.touchedRow(), 4);
    EXPECT_FALSE(mem.isWritten(4)) << "only read";
    EXPECT_EQ(mem.lastAccess(), ProcSimIOMem::eAccessRd);
    mem.clearHighlighted();
    EXPECT_FALSE(mem.isWritten(3));
    mem.setValue(3, "", 7);
    mem.clear();
    EXPECT_EQ(mem.lastAddr(), -1);
    EXPECT_EQ(mem.lastValue(), -1);
    EXPECT_EQ(mem.lastAccess(), ProcSimIOMem::eAccessNone);
    EXPECT_FALSE(mem.isHighlighted());
    EXPECT_EQ(mem.word(3), 7u) << "the contents stay";
}

TEST(Memory, NewWordsGetTheInitialValue)
{
    ProcSimIOMem mem(0x11);
    EXPECT_EQ(mem.size(), 16);
    mem.setMemSize(4);
    unsigned int values[] = {1, 2, 3, 4, 5};
    mem.initValue(values, 5);
    EXPECT_EQ(mem.word(0), 0x11u) << "more values than words";
    mem.initValue(values, 4);
    mem.setMemSize(6);
    EXPECT_EQ(mem.word(3), 4u);
    EXPECT_EQ(mem.word(4), 0x11u);
}

TEST(Memory, ItsSizeIsDecimalAndLimited)
{
    ProcSimIOMem mem(0);
    mem.setBase(16);
    EXPECT_TRUE(mem.setMemSizeFromGui("20"));
    EXPECT_EQ(mem.size(), 20);
    EXPECT_FALSE(mem.setMemSizeFromGui("0x"));
    EXPECT_EQ(mem.size(), 20);
    mem.setValue(19, "", 1);
    mem.setMemSizeFromGui("0");
    EXPECT_EQ(mem.size(), 1);
    EXPECT_EQ(mem.touchedRow(), -1);
    mem.setMemSizeFromGui("99999999999");
    EXPECT_EQ(mem.size(), 65536);
}
