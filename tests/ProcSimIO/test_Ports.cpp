// Which device answers, and what is added where none does.

#include "ProcSimIOFifo.h"
#include "ProcSimIOMem.h"
#include "ProcSimIOReg8Bit.h"
#include "ProcSimPorts.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

using namespace nsProc;

TEST(Ports, AReadWithoutADeviceAddsARegisterForReading)
{
    ProcSimPorts ports;
    EXPECT_FALSE(ports.chkIOPluginToRd(0x12, "KEYS"));
    ASSERT_EQ(ports.devices().size(), 1);
    auto* reg = dynamic_cast<ProcSimIOReg8Bit*>(ports.devices().first());
    ASSERT_NE(reg, nullptr);
    EXPECT_EQ(reg->addr(), 0x12);
    EXPECT_EQ(reg->name(), "KEYS");
    EXPECT_EQ(reg->directionData(), 1);
    reg->updateValue(0x42);
    EXPECT_TRUE(ports.chkIOPluginToRd(0x12, "KEYS"));
    int value = 0;
    EXPECT_TRUE(ports.value(0x12, "KEYS", &value));
    EXPECT_EQ(value, 0x42);
    EXPECT_EQ(ports.devices().size(), 1);
}

TEST(Ports, AReadThatWasNotAskedForAddsARegisterToo)
{
    ProcSimPorts ports;
    int value = -1;
    EXPECT_FALSE(ports.value(3, "P", &value));
    EXPECT_EQ(value, -1);
    ASSERT_EQ(ports.devices().size(), 1);
    EXPECT_NE(dynamic_cast<ProcSimIOReg8Bit*>(ports.devices().first()), nullptr);
}

TEST(Ports, AWriteWithoutADeviceAddsAFifoThatHoldsTheValue)
{
    ProcSimPorts ports;
    EXPECT_FALSE(ports.takeContentChanged());
    EXPECT_TRUE(ports.setValue(0x20, "LEDS", 0x99));
    ASSERT_EQ(ports.devices().size(), 1);
    auto* fifo = dynamic_cast<ProcSimIOFifo*>(ports.devices().first());
    ASSERT_NE(fifo, nullptr);
    EXPECT_EQ(fifo->directionData(), 2);
    EXPECT_EQ(fifo->addr(), 0x20);
    EXPECT_EQ(fifo->name(), "LEDS");
    EXPECT_EQ(fifo->lines().text(0), "99");
    EXPECT_TRUE(ports.takeContentChanged());
    EXPECT_FALSE(ports.takeContentChanged());
    ports.setValue(0x20, "LEDS", 0x98);
    EXPECT_EQ(ports.devices().size(), 1);
    EXPECT_EQ(fifo->lines().count(), 3);
}

TEST(Ports, ADeviceForReadingDoesNotServeAWrite)
{
    ProcSimPorts ports;
    ports.chkIOPluginToRd(1, "P");
    ports.setValue(1, "P", 5);
    ASSERT_EQ(ports.devices().size(), 2);
    int value = -1;
    ASSERT_TRUE(ports.value(1, "P", &value));
    EXPECT_EQ(value, 0) << "the register for reading, not what was written";
}

TEST(Ports, ADeviceForWritingDoesNotServeARead)
{
    ProcSimPorts ports;
    ports.setValue(1, "P", 5);
    EXPECT_FALSE(ports.chkIOPluginToRd(1, "P"));
    EXPECT_EQ(ports.devices().size(), 2);
}

TEST(Ports, TheFirstMatchInTheListAnswers)
{
    ProcSimPorts ports;
    auto* wrong = ports.addIOPlugin(ProcSimPorts::eDevReg, ProcSimIOPluginIf::eDirectionWr, 0);
    auto* first = ports.addIOPlugin(ProcSimPorts::eDevReg, ProcSimIOPluginIf::eDirectionRdWr, 0);
    auto* second = ports.addIOPlugin(ProcSimPorts::eDevReg, ProcSimIOPluginIf::eDirectionRd, 0);
    int number = 1;
    for (auto* device : {wrong, first, second}) {
        device->setBaseAddr(6, "");
        static_cast<ProcSimIOReg8Bit*>(device)->updateValue(number++);
    }
    int value = 0;
    ASSERT_TRUE(ports.value(6, "", &value));
    EXPECT_EQ(value, 2);
    ports.removeIOPlugin(first);
    ASSERT_TRUE(ports.value(6, "", &value));
    EXPECT_EQ(value, 3);
}

TEST(Ports, AnEmptyFifoOpensItsListAndGivesNothing)
{
    ProcSimPorts ports;
    auto* fifo =
        static_cast<ProcSimIOFifo*>(ports.addIOPlugin(ProcSimPorts::eDevFifo, ProcSimIOPluginIf::eDirectionRdWr, 0));
    fifo->setBaseAddr(4, "");
    EXPECT_TRUE(ports.chkIOPluginToRd(4, "IN"));
    int value = -1;
    EXPECT_FALSE(fifo->isExpanded());
    EXPECT_FALSE(ports.value(4, "IN", &value));
    EXPECT_TRUE(fifo->isExpanded());
    EXPECT_EQ(ports.devices().size(), 1);
}

TEST(Ports, AResetKeepsDevicesAndListsAndClearsValues)
{
    ProcSimPorts ports;
    auto* reg =
        static_cast<ProcSimIOReg8Bit*>(ports.addIOPlugin(ProcSimPorts::eDevReg, ProcSimIOPluginIf::eDirectionRdWr, 0));
    reg->setBaseAddr(1, "");
    ports.setValue(1, "", 7);
    ports.setValue(2, "", 8);
    auto* fifo = static_cast<ProcSimIOFifo*>(ports.devices().last());
    ports.clear();
    EXPECT_EQ(ports.devices().size(), 2);
    EXPECT_EQ(reg->regValue(), 0);
    EXPECT_EQ(fifo->lines().text(0), "08");
    EXPECT_EQ(fifo->lines().pointer(), 0);
    EXPECT_FALSE(fifo->isHighlighted());
}

TEST(Ports, AClosedDeviceIsReplacedAtTheNextAccess)
{
    ProcSimPorts ports;
    ports.setValue(2, "", 8);
    ports.removeIOPlugin(ports.devices().first());
    EXPECT_TRUE(ports.devices().isEmpty());
    ports.setValue(2, "", 9);
    ASSERT_EQ(ports.devices().size(), 1);
    auto* fifo = static_cast<ProcSimIOFifo*>(ports.devices().first());
    EXPECT_EQ(fifo->lines().text(0), "09");
    EXPECT_EQ(fifo->lines().count(), 2);
}

TEST(Ports, ABaseHoldsForDevicesThatAreAndThatCome)
{
    ProcSimPorts ports;
    ports.setValue(2, "", 8);
    ports.setBase(10);
    EXPECT_EQ(static_cast<ProcSimIOFifo*>(ports.devices().first())->lines().text(0), "008");
    auto* mem =
        static_cast<ProcSimIOMem*>(ports.addIOPlugin(ProcSimPorts::eDevMem, ProcSimIOPluginIf::eDirectionRdWr, 0));
    EXPECT_EQ(mem->base(), 10);
}

TEST(Ports, MarksAreClearedAtTheNextInstruction)
{
    ProcSimPorts ports;
    ports.setValue(2, "", 8);
    auto* fifo = static_cast<ProcSimIOFifo*>(ports.devices().first());
    EXPECT_TRUE(fifo->isHighlighted());
    ports.clearTouched();
    EXPECT_FALSE(fifo->isHighlighted());
}
