// What the templates compute, on a naive machine, for all values or a good part of them.

#include "NaiveCpu.h"
#include "Opcode.h"
#include "TemplateProgram.h"

#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

class TemplateResults : public ::testing::TestWithParam<const char*>
{
protected:
    void load(const char* name)
    {
        const TemplateFile file = TemplateFile::named(name, GetParam());
        ASSERT_FALSE(file.path.isEmpty()) << name;
        program = std::make_unique<TemplateProgram>(file.source(), GetParam(), false);
        ASSERT_TRUE(program->isAssembled()) << name;
        cpu = std::make_unique<NaiveCpu>(program->opcodes(), isMico8());
    }
    bool isMico8() const { return QString(GetParam()).contains("Mico8"); }
    void call(const char* routine)
    {
        nsModAsmFe::Opcode* entry = program->entry(routine);
        ASSERT_NE(entry, nullptr) << routine;
        ASSERT_TRUE(cpu->call(entry)) << routine << ": " << cpu->problem.toStdString();
    }
    int first() const { return cpu->reg[1] << 8 | cpu->reg[0]; }
    void setWords(int a, int b)
    {
        cpu->reg[0] = a & 0xFF;
        cpu->reg[1] = a >> 8;
        cpu->reg[2] = b & 0xFF;
        cpu->reg[3] = b >> 8;
    }
    /// What was put out at the port of the text templates.
    QByteArray output() const
    {
        QByteArray text;
        for (const auto& write : cpu->written)
            text += char(write.second);
        return text;
    }

    std::unique_ptr<TemplateProgram> program;
    std::unique_ptr<NaiveCpu> cpu;
};

const QList<int> words = {0,      1,      2,      0x7F,   0x80,   0xFF,   0x100,  0x101,  0x1FF,  0x200,  0x1234,
                          0x7FFF, 0x8000, 0x8001, 0xABCD, 0xFF00, 0xFF01, 0xFFFE, 0xFFFF, 0x00FE, 0xFE00, 0x5A5A};

TEST_P(TemplateResults, multiply)
{
    ASSERT_NO_FATAL_FAILURE(load("multiply"));
    for (int a = 0; a < 256; ++a) {
        for (int b = 0; b < 256; b += a % 5 == 0 ? 1 : 7) {
            cpu->reg[0] = 0xAA;
            cpu->reg[2] = a;
            cpu->reg[3] = b;
            ASSERT_NO_FATAL_FAILURE(call("multiply::bytes"));
            ASSERT_EQ(first(), a * b) << a << " * " << b;
            ASSERT_LE(cpu->steps, isMico8() ? 74 : 66);
        }
    }
}

TEST_P(TemplateResults, divideByte)
{
    ASSERT_NO_FATAL_FAILURE(load("divide"));
    for (int a = 0; a < 256; ++a) {
        for (int b = 0; b < 256; b += a % 5 == 0 ? 1 : 7) {
            cpu->reg[0] = a;
            cpu->reg[1] = b;
            ASSERT_NO_FATAL_FAILURE(call("divide::byte"));
            ASSERT_EQ(cpu->reg[0], b == 0 ? 255 : a / b) << a << " / " << b;
            ASSERT_EQ(cpu->reg[2], b == 0 ? a : a % b) << a << " / " << b;
        }
    }
}

TEST_P(TemplateResults, divideWord)
{
    ASSERT_NO_FATAL_FAILURE(load("divide"));
    for (int a : words) {
        for (int b = 0; b < 256; ++b) {
            cpu->reg[0] = a & 0xFF;
            cpu->reg[1] = a >> 8;
            cpu->reg[2] = b;
            ASSERT_NO_FATAL_FAILURE(call("divide::word"));
            ASSERT_EQ(first(), b == 0 ? 0xFFFF : a / b) << a << " / " << b;
            ASSERT_EQ(cpu->reg[3], b == 0 ? a & 0xFF : a % b) << a << " / " << b;
        }
    }
}

TEST_P(TemplateResults, wordsOfTwo)
{
    ASSERT_NO_FATAL_FAILURE(load("word"));
    for (int a : words) {
        for (int b : words) {
            setWords(a, b);
            ASSERT_NO_FATAL_FAILURE(call("word::sum"));
            ASSERT_EQ(first(), (a + b) & 0xFFFF);
            ASSERT_EQ(cpu->carry, a + b > 0xFFFF);
            setWords(a, b);
            ASSERT_NO_FATAL_FAILURE(call("word::difference"));
            ASSERT_EQ(first(), (a - b) & 0xFFFF);
            ASSERT_EQ(cpu->carry, a < b);
            setWords(a, b);
            ASSERT_NO_FATAL_FAILURE(call("word::compare"));
            ASSERT_EQ(first(), a);
            ASSERT_EQ(cpu->carry, a < b) << a << ' ' << b;
            ASSERT_EQ(cpu->zero, a == b) << a << ' ' << b;
        }
    }
}

TEST_P(TemplateResults, wordsOfOne)
{
    ASSERT_NO_FATAL_FAILURE(load("word"));
    const QList<QPair<const char*, std::function<int(int)>>> routines = {
        {"word::negate", [](int a) { return -a; }},
        {"word::shift_left", [](int a) { return a << 1; }},
        {"word::shift_right", [](int a) { return a >> 1; }},
        {"word::halve_signed", [](int a) { return qint16(a) >> 1; }},
    };
    for (const auto& routine : routines) {
        for (int a : words) {
            setWords(a, 0x1234);
            cpu->carry = a % 3 == 0;
            ASSERT_NO_FATAL_FAILURE(call(routine.first));
            ASSERT_EQ(first(), routine.second(a) & 0xFFFF) << routine.first << ' ' << a;
            if (QString(routine.first) == "word::shift_left") {
                ASSERT_EQ(cpu->carry, (a & 0x8000) != 0) << a;
            } else if (QString(routine.first) != "word::negate") {
                ASSERT_EQ(cpu->carry, (a & 1) != 0) << routine.first << ' ' << a;
            }
        }
    }
}

TEST_P(TemplateResults, bcd)
{
    ASSERT_NO_FATAL_FAILURE(load("bcd"));
    for (int a = 0; a < 256; ++a) {
        cpu->reg[0] = a;
        ASSERT_NO_FATAL_FAILURE(call("bcd::digits"));
        ASSERT_EQ(cpu->reg[2] * 100 + cpu->reg[1] * 10 + cpu->reg[0], a);
        ASSERT_LT(cpu->reg[1], 10);
        ASSERT_LT(cpu->reg[0], 10);
    }
    const auto packed = [](int number) { return (number / 10 % 10) << 4 | number % 10; };
    for (int a = 0; a < 100; ++a) {
        for (int b = 0; b < 100; ++b) {
            cpu->reg[0] = packed(a);
            cpu->reg[1] = packed(b);
            cpu->carry = a % 2 != 0;
            ASSERT_NO_FATAL_FAILURE(call("bcd::sum"));
            ASSERT_EQ(cpu->reg[0], packed(a + b)) << a << " + " << b;
            ASSERT_EQ(cpu->carry, a + b > 99) << a << " + " << b;
        }
    }
}

TEST_P(TemplateResults, crc8)
{
    ASSERT_NO_FATAL_FAILURE(load("crc8"));
    // The check value of this checksum.
    for (const char character : QByteArray("123456789")) {
        cpu->reg[1] = character;
        ASSERT_NO_FATAL_FAILURE(call("crc8::append"));
    }
    EXPECT_EQ(cpu->reg[0], 0xF4);
}

TEST_P(TemplateResults, delay)
{
    ASSERT_NO_FATAL_FAILURE(load("delay"));
    for (int ms : {1, 3, 20}) {
        cpu->reg[0] = ms;
        ASSERT_NO_FATAL_FAILURE(call("delay::ms"));
        // Two clocks of 20 ns an instruction.
        EXPECT_GE(cpu->steps * 40, ms * 1000000);
        EXPECT_LE(cpu->steps * 40, ms * 1010000);
    }
}

TEST_P(TemplateResults, uart)
{
    ASSERT_NO_FATAL_FAILURE(load("uart"));
    int status = 1; // transmitter full
    int reads = 0;
    cpu->readPort = [&](int port) {
        if (port == 1)
            return int('R');
        if (++reads == 5)
            status = 0;
        return status;
    };
    cpu->reg[0] = 'T';
    ASSERT_NO_FATAL_FAILURE(call("uart::send"));
    EXPECT_EQ(reads, 5);
    EXPECT_EQ(cpu->written, (QList<QPair<int, int>>{{1, 'T'}}));
    cpu->reg[0] = 'x';
    ASSERT_NO_FATAL_FAILURE(call("uart::poll"));
    EXPECT_TRUE(cpu->zero);
    EXPECT_EQ(cpu->reg[0], 'x');
    status = 2;
    ASSERT_NO_FATAL_FAILURE(call("uart::poll"));
    EXPECT_FALSE(cpu->zero);
    EXPECT_EQ(cpu->reg[0], 'R');
    cpu->reg[0] = 'x';
    status = 0;
    reads = 0;
    cpu->readPort = [&](int port) { return port == 1 ? int('S') : ++reads == 7 ? 3 : 0; };
    ASSERT_NO_FATAL_FAILURE(call("uart::receive"));
    EXPECT_EQ(cpu->reg[0], 'S');
    EXPECT_EQ(reads, 7);
}

TEST_P(TemplateResults, hex)
{
    ASSERT_NO_FATAL_FAILURE(load("hex"));
    for (int a = 0; a < 256; ++a) {
        cpu->reg[0] = a;
        ASSERT_NO_FATAL_FAILURE(call("hex::byte"));
        ASSERT_EQ((QString(QChar(cpu->reg[1])) + QChar(cpu->reg[0])),
                  QString("%1").arg(a, 2, 16, QChar('0')).toUpper());
        bool isDigit = false;
        const int value = QString(QChar(a)).toInt(&isDigit, 16);
        isDigit = isDigit && a < 128;
        cpu->reg[0] = a;
        ASSERT_NO_FATAL_FAILURE(call("hex::value"));
        ASSERT_EQ(cpu->carry, !isDigit) << a;
        if (isDigit) {
            ASSERT_EQ(cpu->reg[0], value) << a;
        }
    }
}

TEST_P(TemplateResults, text)
{
    ASSERT_NO_FATAL_FAILURE(load("text"));
    ASSERT_NO_FATAL_FAILURE(call("text::hello"));
    EXPECT_EQ(output(), QByteArray("Hello\r\n"));
}

TEST_P(TemplateResults, table)
{
    ASSERT_NO_FATAL_FAILURE(load("table"));
    const int segments[] = {0x3F, 0x06, 0x5B, 0x4F, 0x66, 0x6D, 0x7D, 0x07, 0x7F, 0x6F};
    for (int digit = 0; digit < 10; ++digit) {
        cpu->reg[0] = digit;
        ASSERT_NO_FATAL_FAILURE(call("table::segments"));
        EXPECT_EQ(cpu->reg[1], segments[digit]) << digit;
    }
}

TEST_P(TemplateResults, scratchpad)
{
    ASSERT_NO_FATAL_FAILURE(load("scratchpad"));
    const auto cells = [this] {
        QByteArray bytes;
        for (int i = 0; i < 16; ++i)
            bytes += char('0' + cpu->scratchpad[i]);
        return bytes;
    };
    for (int count : {0, 3}) {
        setWords(count << 8 | 4, 7);
        ASSERT_NO_FATAL_FAILURE(call("scratchpad::fill"));
        EXPECT_EQ(cells(), QByteArray(count == 0 ? "0000000000000000" : "0000777000000000"));
    }
    for (int i = 0; i < 4; ++i)
        cpu->scratchpad[i] = i + 1;
    for (int count : {0, 4}) {
        setWords(count << 8 | 0, 10);
        ASSERT_NO_FATAL_FAILURE(call("scratchpad::copy"));
        EXPECT_EQ(cells(), QByteArray(count == 0 ? "1234777000000000" : "1234777000123400"));
    }
}

TEST_P(TemplateResults, ring)
{
    ASSERT_NO_FATAL_FAILURE(load("ring"));
    for (int& cell : cpu->scratchpad)
        cell = 0xFF;
    ASSERT_NO_FATAL_FAILURE(call("ring::init"));
    QList<int> model;
    // More is put than fetched at first, and more fetched than put at last.
    for (int turn = 0; turn < 400; ++turn) {
        const bool puts = (turn * 7919 % 100) < (turn / 100 % 2 == 0 ? 70 : 30);
        if (puts) {
            cpu->reg[0] = turn & 0xFF;
            ASSERT_NO_FATAL_FAILURE(call("ring::put"));
            ASSERT_EQ(cpu->carry, model.size() == 7);
            if (model.size() < 7)
                model.append(turn & 0xFF);
        } else {
            ASSERT_NO_FATAL_FAILURE(call("ring::get"));
            ASSERT_EQ(cpu->carry, model.isEmpty());
            if (!model.isEmpty()) {
                ASSERT_EQ(cpu->reg[0], model.takeFirst());
            }
        }
    }
    EXPECT_EQ(cpu->scratchpad[0x0F], 0xFF);
    EXPECT_EQ(cpu->scratchpad[0x1A], 0xFF);
}

TEST_P(TemplateResults, interrupt)
{
    ASSERT_NO_FATAL_FAILURE(load("interrupt"));
    cpu->reg[0] = 0x12;
    cpu->reg[1] = 0x34;
    cpu->readPort = [](int) { return 1; };
    ASSERT_NO_FATAL_FAILURE(call(isMico8() ? "entry" : "vector"));
    EXPECT_EQ(cpu->reg[0], 0x12);
    EXPECT_EQ(cpu->reg[1], 0x34);
    EXPECT_EQ(cpu->interruptEn, !isMico8());
    EXPECT_EQ(program->entry(isMico8() ? "entry" : "vector")->pageAddr, isMico8() ? 0 : 0x3FF);
}

std::string processorName(const ::testing::TestParamInfo<const char*>& info)
{
    return QString(info.param).replace(QRegExp("[^A-Za-z0-9]"), "_").toStdString();
}

INSTANTIATE_TEST_SUITE_P(Processors, TemplateResults,
                         ::testing::Values("Xilinx PicoBlaze 3", "Xilinx PicoBlaze 6", "Lattice Mico8 v3.x"),
                         processorName);

TEST(TemplateResultsPicoBlaze6, interruptOfItsOwnBankComesBackToBankA)
{
    const TemplateFile file = TemplateFile::named("interrupt_bank", "Xilinx PicoBlaze 6");
    TemplateProgram program(file.source(), "Xilinx PicoBlaze 6", true);
    ASSERT_TRUE(program.isAssembled());
    NaiveCpu cpu(program.opcodes(), false);
    ASSERT_TRUE(cpu.call(program.entry("vector"))) << cpu.problem.toStdString();
    EXPECT_EQ(cpu.bank, 0);
    EXPECT_TRUE(cpu.interruptEn);
}

} // namespace
