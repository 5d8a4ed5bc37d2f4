// Elements of a program by themselves: what they start with, and the cells of an IO device.

#include "QtPrinters.h"

#include "Equ.h"
#include "IODev.h"
#include "IODevList.h"
#include "Label.h"
#include "Opcode.h"
#include "Org.h"
#include "Set.h"

#include <gtest/gtest.h>

#include <QString>

using namespace nsModAsmFe;

namespace {

TEST(Elements, instructionStartsUnmapped)
{
    const Opcode opcode;
    EXPECT_EQ(opcode.opcode, ocUndefined);
    EXPECT_EQ(opcode.memRange, -1);
    EXPECT_EQ(opcode.memAddr, -1);
    EXPECT_EQ(opcode.pageAddr, -1);
    EXPECT_FALSE(opcode.mappedToIODev);
    EXPECT_EQ(opcode.breakpoint, 0);
    EXPECT_EQ(opcode.prev, nullptr);
    EXPECT_EQ(opcode.next, nullptr);
    for (const Arg* arg : {opcode.arg0, opcode.arg1}) {
        EXPECT_EQ(arg->type, Arg::unset);
        EXPECT_TRUE(arg->isValid);
        EXPECT_EQ(arg->labelOpcode, nullptr);
    }
    for (const ArgExt* ext : {opcode.arg0Ext, opcode.arg1Ext}) {
        EXPECT_EQ(ext->attrType, ArgExt::unset);
        EXPECT_EQ(ext->rangeStart, 0);
        EXPECT_EQ(ext->rangeStop, 0);
        EXPECT_EQ(ext->parentheses, 0);
    }
}

TEST(Elements, othersStartUntouched)
{
    const Label label;
    EXPECT_EQ(label.addr, -1);
    EXPECT_FALSE(label.indented);
    const Equ equ;
    EXPECT_FALSE(equ.used);
    EXPECT_EQ(equ.arg->type, Arg::unset);
    const Set set;
    EXPECT_FALSE(set.used);
    EXPECT_EQ(set.valueType, 0);
    const Org org;
    EXPECT_FALSE(org.used);
    EXPECT_EQ(org.type, 0);
}

TEST(Elements, numbersOfKindsAreFixed)
{
    EXPECT_EQ(int(Arg::unset), 0);
    EXPECT_EQ(int(Arg::numeric), 2);
    EXPECT_EQ(int(Arg::reg), 5);
    EXPECT_EQ(int(Arg::regRef), 6);
    EXPECT_EQ(int(Arg::label), 14);
    EXPECT_EQ(int(ArgExt::charset), 5);
    EXPECT_EQ(int(IODev::mem), 1);
    EXPECT_EQ(int(IODev::fifo), 2);
    EXPECT_EQ(int(IODev::reg), 3);
    EXPECT_EQ(int(IODev::simRdWr), 2);
}

TEST(Elements, namesOfArgumentKinds)
{
    const char* const names[] = {"unset", "empty",  "numeric", "string UTF-16", "string encoded",
                                 "reg",   "regRef", "regBank", "flagZ",         "flagNZ",
                                 "flagC", "flagNC", "enable",  "disable",       "label"};
    for (int type = 0; type < 15; ++type)
        EXPECT_STREQ(argTypeName(Arg::eArgType_t(type)), names[type]);
}

TEST(Elements, mnemonics)
{
    const char* const words[] = {"ADD",     "ADDC", "AND",  "CALL",    "CLR",   "COMP", "COMPC", "INT",
                                 "HWBUILD", "JUMP", "LOAD", "LOADRET", "NOP",   "OR",   "RDMEM", "RDPRT",
                                 "REGBANK", "RET",  "RETI", "ROL",     "ROLC",  "ROR",  "RORC",  "SET",
                                 "SL0",     "SL1",  "SLX",  "SR0",     "SR1",   "SRX",  "STAR",  "WRMEM",
                                 "WRPRT",   "SUB",  "SUBC", "TEST",    "TESTC", "XOR"};
    int number = 0;
    for (const char* word : words)
        EXPECT_EQ(int(opcodeOfMnemonic(QString::fromLatin1(word))), ++number) << word;
    EXPECT_EQ(number, 38);
    for (const char* word : {"", "add", "ADDX", "AD", "regBank", "#SET"})
        EXPECT_EQ(opcodeOfMnemonic(QString::fromLatin1(word)), ocUndefined) << word;
    EXPECT_STREQ(opcodeName(ocUndefined), "undefined");
    EXPECT_STREQ(opcodeName(opcodeOfMnemonic("HWBUILD")), "hwbld");
    EXPECT_STREQ(opcodeName(opcodeOfMnemonic("XOR")), "xor");
}

TEST(Elements, takingOverAValueKeepsTheOwnText)
{
    Arg from;
    from.nameSpace = "ns";
    from.dispName = "from";
    from.name = "12";
    from.type = Arg::stringEncoded;
    from.iValue = 12;
    from.strValue = "text";
    from.barrValue = "bytes";
    from.isValid = false;
    Opcode target;
    from.labelOpcode = &target;
    Arg to;
    to.dispName = "to";
    to.name = "from";
    to.takeValue(from);
    EXPECT_EQ(to.dispName, QString("to"));
    EXPECT_EQ(to.name, QString("12"));
    EXPECT_EQ(to.nameSpace, QString("ns"));
    EXPECT_EQ(to.type, Arg::stringEncoded);
    EXPECT_EQ(to.iValue, 12);
    EXPECT_EQ(to.strValue, QString("text"));
    EXPECT_EQ(to.barrValue, QByteArray("bytes"));
    EXPECT_FALSE(to.isValid);
    EXPECT_EQ(to.labelOpcode, &target);
}

class DeviceTest : public ::testing::Test
{
protected:
    DeviceTest()
    {
        dev.memSize = 4;
        dev.initValue = 0xabcd;
        dev.initValueSrcRef = &initRef;
        dev.initDevice();
    }

    SrcReference initRef;
    SrcReference ref;
    IODev dev;
};

TEST_F(DeviceTest, startsWithInitValues)
{
    for (int addr = 0; addr < 4; ++addr) {
        unsigned int value = 0;
        bool isInit = false;
        SrcReference* srcRef = nullptr;
        ASSERT_TRUE(dev.value(addr, &value, &isInit));
        ASSERT_TRUE(dev.srcRef(addr, &srcRef));
        EXPECT_EQ(value, 0xabcdu);
        EXPECT_TRUE(isInit);
        EXPECT_TRUE(dev.isInitValue(addr));
        EXPECT_FALSE(dev.isWritten(addr));
        EXPECT_FALSE(dev.metaInfo(addr)->mirrored);
        EXPECT_EQ(srcRef, &initRef);
    }
    EXPECT_EQ(dev.appendAddr, 0);
    EXPECT_EQ(dev.valueCnt, 0);
    EXPECT_EQ(dev.mirrorCnt, 0);
}

TEST_F(DeviceTest, setValueKeepsTrack)
{
    EXPECT_TRUE(dev.setValue(2, 7, &ref, false));
    EXPECT_EQ(dev.appendAddr, 3);
    EXPECT_TRUE(dev.setValue(1, 8, &ref, true));
    EXPECT_EQ(dev.appendAddr, 3);
    EXPECT_TRUE(dev.setValue(3, 0xffffffffu, nullptr, true));
    EXPECT_EQ(dev.appendAddr, 4);
    EXPECT_EQ(dev.valueCnt, 3);
    EXPECT_EQ(dev.mirrorCnt, 2);
    unsigned int value = 0;
    bool isInit = true;
    EXPECT_TRUE(dev.value(3, &value, &isInit));
    EXPECT_EQ(value, 0xffffffffu);
    EXPECT_FALSE(isInit);
    EXPECT_TRUE(dev.isInitValue(0));
    EXPECT_FALSE(dev.isInitValue(1));
    EXPECT_TRUE(dev.metaInfo(1)->mirrored);
    EXPECT_EQ(dev.metaInfo(1)->srcRef, &ref);
    EXPECT_FALSE(dev.metaInfo(2)->mirrored);
    // The last of several values of a cell counts, its mark too.
    EXPECT_TRUE(dev.setValue(1, 9, nullptr, false));
    EXPECT_FALSE(dev.metaInfo(1)->mirrored);
    EXPECT_EQ(dev.valueCnt, 4);
    EXPECT_EQ(dev.mirrorCnt, 2);
}

TEST_F(DeviceTest, nothingHappensOutOfBounds)
{
    for (const int addr : {4, 5, -1, 2147483647, -2147483647 - 1}) {
        unsigned int value = 0x77;
        bool isInit = false;
        SrcReference* srcRef = &ref;
        EXPECT_FALSE(dev.setValue(addr, 1, &ref, true)) << addr;
        EXPECT_FALSE(dev.value(addr, &value)) << addr;
        EXPECT_FALSE(dev.value(addr, &value, &isInit)) << addr;
        EXPECT_FALSE(dev.srcRef(addr, &srcRef)) << addr;
        EXPECT_EQ(value, 0x77u);
        EXPECT_FALSE(isInit);
        EXPECT_EQ(srcRef, &ref);
        EXPECT_TRUE(dev.isInitValue(addr)) << addr;
        dev.setWritten(addr);
        EXPECT_FALSE(dev.isWritten(addr)) << addr;
        EXPECT_EQ(dev.metaInfo(addr), nullptr) << addr;
    }
    EXPECT_EQ(dev.appendAddr, 0);
    EXPECT_EQ(dev.valueCnt, 0);
    EXPECT_EQ(dev.mirrorCnt, 0);
}

TEST_F(DeviceTest, nothingHappensWithoutArrays)
{
    EXPECT_TRUE(dev.setValue(0, 1, &ref, false));
    dev.delArrays();
    EXPECT_TRUE(dev.isInitValue(0));
    EXPECT_FALSE(dev.setValue(0, 1, &ref, false));
    unsigned int value = 0;
    EXPECT_FALSE(dev.value(0, &value));
    dev.setWritten(0);
    EXPECT_FALSE(dev.isWritten(0));
    dev.clearWritten();
    dev.delArrays();
    const IODev fresh;
    EXPECT_TRUE(fresh.isInitValue(0));
    EXPECT_EQ(fresh.metaInfo(0), nullptr);
}

TEST_F(DeviceTest, arraysDoNotFollowASizeThatGrows)
{
    dev.memSize = 100;
    EXPECT_FALSE(dev.setValue(50, 1, &ref, false));
    EXPECT_TRUE(dev.isInitValue(50));
    dev.initDevice();
    EXPECT_TRUE(dev.setValue(50, 1, &ref, false));
}

TEST_F(DeviceTest, writtenMarks)
{
    dev.setWritten(1);
    dev.setWritten(3);
    EXPECT_FALSE(dev.isWritten(0));
    EXPECT_TRUE(dev.isWritten(1));
    EXPECT_TRUE(dev.isWritten(3));
    EXPECT_TRUE(dev.isInitValue(1));
    dev.clearWritten();
    EXPECT_FALSE(dev.isWritten(1));
    EXPECT_FALSE(dev.isWritten(3));
}

TEST_F(DeviceTest, initialisingAgainForgetsAll)
{
    dev.setValue(3, 1, &ref, true);
    dev.setWritten(3);
    dev.initValue = 5;
    dev.initDevice();
    unsigned int value = 0;
    EXPECT_TRUE(dev.value(3, &value));
    EXPECT_EQ(value, 5u);
    EXPECT_TRUE(dev.isInitValue(3));
    EXPECT_FALSE(dev.isWritten(3));
    EXPECT_EQ(dev.appendAddr, 0);
    EXPECT_EQ(dev.valueCnt, 0);
    EXPECT_EQ(dev.mirrorCnt, 0);
}

TEST_F(DeviceTest, noCellsForNoSize)
{
    for (const int size : {0, -1, -2147483647 - 1}) {
        dev.memSize = size;
        dev.initDevice();
        EXPECT_FALSE(dev.setValue(0, 1, &ref, false)) << size;
        EXPECT_TRUE(dev.isInitValue(0)) << size;
    }
}

TEST(DeviceList, namesAreComparedAsWritten)
{
    IODevList list;
    EXPECT_EQ(list.first(), nullptr);
    auto* rom = new IODev;
    rom->devName = "IODEV::rom";
    rom->devNameUpper = "IODEV::ROM";
    list.append(rom);
    auto* second = new IODev;
    second->devName = "IODEV::rom";
    list.append(second);
    EXPECT_EQ(list.first(), rom);
    EXPECT_EQ(list.find("IODEV::rom"), rom);
    EXPECT_FALSE(list.contains("IODEV::ROM"));
    EXPECT_EQ(list.find("rom"), nullptr);
    list.clear();
    EXPECT_EQ(list.first(), nullptr);
    EXPECT_FALSE(list.contains("IODEV::rom"));
}

} // namespace
