// Absurd numbers wherever a number may stand.

#include "ChildProcess.h"
#include "HostileRun.h"

#include <gtest/gtest.h>

namespace {

const QByteArray instruction = " LOAD s0, 1\n";
const QByteArray device = "#SET IODEV::d::EN, TRUE\n";

const QList<QByteArray> numbers = {
    "0",        "-1",   "1",    "2147483647",           "-2147483648", "4294967296", "0x7FFFFFFF", "0xFFFFFFFF",
    "16777217", "1024", "1025", "99999999999999999999", "0d1",         "b2",         "\\9",        "--1"};

TEST(HostileNumbers, everyParameter)
{
    const QList<QByteArray> parameters = {
        "INSTMEM::PAGESIZE",        "INSTMEM::PAGECOUNT",      "INSTMEM::SHAREDMEMLOCATION",
        "EDITOR::TABINDENT",        "ASM::DFLTCHARSET",        "IODEV::d::SIZE",
        "IODEV::d::BASEADDR",       "IODEV::d::INITVALUE",     "IODEV::d::SIMEN",
        "IODEV::d::SIMACCESSMODE",  "IODEV::d::TYPE",          "IODEV::d::VALUE",
        "IODEV::d::HEXEN",          "IODEV::d::HEXTARGETFILE", "IODEV::d::MEMGAPSTUFFING",
        "IODEV::d::VHDLENTITYNAME", "NOTHING::AT_ALL"};
    for (const QByteArray& parameter : parameters) {
        SCOPED_TRACE(parameter.constData());
        expectGoodEnd(
            [&] {
                for (const QByteArray& number : numbers) {
                    QByteArray source = "#SET " + parameter + ", " + number + "\n" + device;
                    if (!parameter.endsWith("SIZE"))
                        source += "#SET IODEV::d::SIZE, 16\n";
                    const QString broken = hostileRun({source + instruction});
                    if (!broken.isEmpty())
                        return number + ": " + broken;
                }
                return QString();
            },
            30, 900);
    }
}

TEST(HostileNumbers, origins)
{
    expectGoodEnd(
        [] {
            for (const QByteArray& number : numbers) {
                for (const QByteArray& source :
                     {"#ORG ADDR, " + number, "#ORG " + number, "#ORG MEMRANGE, PAGE" + number,
                      "#ORG MEMRANGE, SHARED\n#ORG ADDR, " + number,
                      "#SET INSTMEM::PAGECOUNT, 2\n#ORG MEMRANGE, SHARED\n LOAD s0, 1\n#ORG MEMRANGE, PAGE0\n#ORG "
                      "ADDR, " +
                          number + "\n LOAD s0, 1\n#ORG MEMRANGE, PAGE1"}) {
                    const QString broken = hostileRun({source + "\n" + instruction + instruction});
                    if (!broken.isEmpty())
                        return source + ": " + broken;
                }
            }
            return QString();
        },
        30, 500);
}

TEST(HostileNumbers, valuesAndTheirAddresses)
{
    expectGoodEnd(
        [] {
            for (const QByteArray& number : numbers) {
                for (const QByteArray& value :
                     {number, number + ": 1", "append: " + number, number + ": INSTMEM", number + ": INSTMEM[5], 1",
                      number + ": INSTMEM[5:900], INSTMEM[5:900]", "INSTMEM[" + number + "]",
                      "INSTMEM[0:" + number + "]", "INSTMEM[" + number + ":0]", "INSTMEM[0:3][" + number + ":0]",
                      "INSTMEM[0:3][7:" + number + "]", "INSTMEM[PAGE" + number + "]", "INSTMEM[0][" + number + "]",
                      number + ": " + number + "," + number}) {
                    const QString broken = hostileRun(
                        {device + "#SET IODEV::d::SIZE, 2048\n#SET IODEV::d::VALUE, " + value + "\n" + instruction});
                    if (!broken.isEmpty())
                        return value + ": " + broken;
                }
            }
            return QString();
        },
        60, 500);
}

TEST(HostileNumbers, argumentsOfInstructions)
{
    expectGoodEnd(
        [] {
            for (const QByteArray& number : numbers) {
                for (const QByteArray& arg :
                     {number, number + "'2BE", number + "'4BE", number + "[7:0]", "1[" + number + "]",
                      "1[" + number + ":0]", "1[7:" + number + "]", "here[" + number + ":0]", "1 << " + number,
                      "1 >> " + number, "(1 << 31) / " + number, "5 % " + number, "\"AB\"[" + number + "]",
                      number + " * " + number, "~" + number}) {
                    const QString broken = hostileRun({"here: LOAD s0, " + arg + "\n#EQU x, " + arg + "\n"});
                    if (!broken.isEmpty())
                        return arg + ": " + broken;
                }
            }
            return QString();
        },
        60, 500);
}

TEST(HostileNumbers, largestMemories)
{
    // As many words as are allowed at all, in the instruction memory and in a device.
    expectGoodEnd(
        [] {
            return hostileRun({"#SET INSTMEM::PAGESIZE, 16384\n#SET INSTMEM::PAGECOUNT, 1024\n#ORG MEMRANGE, SHARED\n" +
                               instruction});
        },
        20, 600);
    expectGoodEnd([] { return hostileRun({"#SET INSTMEM::PAGESIZE, 16777216\n" + instruction}); }, 20, 900);
    expectGoodEnd([] { return refusedRun({"#SET INSTMEM::PAGESIZE, 16777217\n" + instruction}); }, 20, 100);
    expectGoodEnd([] { return hostileRun({device + "#SET IODEV::d::SIZE, 16777216\n" + instruction}); }, 20, 900);
    expectGoodEnd(
        [] {
            // Each is allowed, all of them are not.
            QByteArray text;
            for (int i = 0; i < 100; ++i) {
                const QByteArray dev = "#SET IODEV::d" + QByteArray::number(i) + "::";
                text += dev + "EN, TRUE\n" + dev + "SIZE, 16777216\n";
            }
            return refusedRun({text + instruction});
        },
        20, 900);
}

TEST(HostileNumbers, pages)
{
    const auto paged = [](int count, int size, const QByteArray& location) {
        QByteArray text = "#SET INSTMEM::PAGECOUNT, " + QByteArray::number(count) + "\n#SET INSTMEM::PAGESIZE, " +
                          QByteArray::number(size) + "\n#SET INSTMEM::SHAREDMEMLOCATION, " + location +
                          "\n#ORG MEMRANGE, SHARED\n" + instruction;
        for (int i = 0; i < count; ++i)
            text += "#ORG MEMRANGE, PAGE" + QByteArray::number(i) + "\n" + instruction;
        return text;
    };
    expectGoodEnd(
        [=] {
            AsmFixture f;
            if (!f.run(paged(1024, 16384, "HIMEM")))
                return "not assembled: " + f.msg.errors().join(" / ").left(300);
            return f.asmFe.opcodeList()->count() == 1025 ? QString() : QString("instructions are missing");
        },
        20, 700);
    // A shared word at address 0 is also mirrored to the address after the end of the memory.
    expectGoodEnd([=] { return refusedRun({paged(1024, 16, "LOMEM")}); }, 10, 100);
    // Pages that a directive names are asked for, one message each.
    expectGoodEnd(
        [] {
            AsmFixture f;
            f.run("#SET INSTMEM::PAGECOUNT, 1024\n" + instruction);
            return f.errors().count("errMMMissingRangePage") == 1024 ? QString() : QString("messages are missing");
        },
        10, 100);
    expectGoodEnd(
        [=] {
            for (const int size : {0, -1, 1, 2}) {
                for (const char* location : {"HIMEM", "LOMEM"}) {
                    const QString broken = hostileRun({paged(3, size, location)});
                    if (!broken.isEmpty())
                        return QString::number(size) + location + ": " + broken;
                }
            }
            return QString();
        },
        10, 100);
}

TEST(HostileNumbers, backEndWithoutMemory)
{
    for (const int size : {0, -1, -2147483647, 2147483647}) {
        AsmFixture f;
        f.be.pageSize = size;
        EXPECT_FALSE(f.run(instruction)) << size;
        EXPECT_EQ(brokenRule(f), QString()) << size;
    }
}

TEST(HostileNumbers, settingsOfTheProject)
{
    for (const int value : {-1, 3, 2147483647}) {
        AsmFixture f;
        for (const char* key : {"AsmFe/behavior/charset", "AsmFe/behavior/equ", "AsmFe/behavior/set"})
            f.prj.tree.set(QString::fromLatin1(key), value);
        EXPECT_TRUE(f.run("#EQU x, 1\n#EQU x, 2\n#SET INSTMEM::PAGESIZE, 16\n LOAD s0, \"A\"\n LOAD s0, x\n")) << value;
        EXPECT_EQ(brokenRule(f), QString());
    }
}

} // namespace
