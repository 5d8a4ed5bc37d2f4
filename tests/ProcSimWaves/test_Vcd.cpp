// The value change dump: byte for byte, and read back.

#include "ProcSimVcd.h"
#include "ProcSimWaveData.h"
#include "QtPrinters.h"
#include "Release.h"

#include <QBuffer>
#include <QList>
#include <QMap>
#include <QSet>
#include <QVector>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace {

using nsProc::ProcSimVcd;
using Data = nsProc::ProcSimWaveData;

constexpr Data::eAccessType_t rd = Data::eAccessRd;
constexpr Data::eAccessType_t wr = Data::eAccessWr;

/// A dump as a reader sees it.
struct Dump
{
    using Changes = QList<QPair<qint64, QByteArray>>;

    QByteArray timescale;
    QMap<QByteArray, QByteArray> names; ///< wire code to name
    QMap<QByteArray, Changes> changes;  ///< name to time and bits
    qint64 end = -1;
    QString error;

    explicit Dump(const QByteArray& text)
    {
        QList<QByteArray> words = text.simplified().split(' ');
        while (!words.isEmpty() && error.isEmpty()) {
            const QByteArray word = words.takeFirst();
            if (word == "$var")
                readWire(words);
            else if (word == "$timescale")
                readTimescale(words);
            else if (word == "$date" || word == "$version" || word == "$scope")
                words = words.mid(words.indexOf("$end"));
            else if (word.startsWith('#'))
                readTime(word.mid(1).toLongLong());
            else if (word.startsWith('b'))
                readChange(word.mid(1), words.takeFirst());
            else if (word != "$end" && word != "$upscope" && word != "$enddefinitions" && word != "$dumpvars")
                error = "strange word " + word;
        }
    }

private:
    void readTimescale(QList<QByteArray>& words)
    {
        timescale = words.takeFirst();
        timescale += words.takeFirst();
    }
    void readWire(QList<QByteArray>& words)
    {
        if (words.takeFirst() != "wire" || words.takeFirst() != "8")
            error = "no wire of 8 bits";
        const QByteArray code = words.takeFirst();
        const QByteArray name = words.takeFirst();
        if (names.contains(code) || names.values().contains(name))
            error = "not unique: " + code + ' ' + name;
        names.insert(code, name);
        words.removeFirst();
    }
    void readTime(qint64 time)
    {
        if (time <= end)
            error = "time does not go on";
        end = time;
    }
    void readChange(const QByteArray& bits, const QByteArray& code)
    {
        if (!names.contains(code) || bits.size() != 8)
            error = "strange change " + bits + ' ' + code;
        Changes& list = changes[names.value(code)];
        if (!list.isEmpty() && list.last().first == end)
            error = "two values at once";
        list.append({end, bits});
    }
};

QByteArray bitsOf(int value)
{
    return QByteArray::number(value, 2).rightJustified(8, '0');
}

/// The text after the header.
QByteArray body(const QByteArray& text)
{
    return text.mid(text.indexOf("#0\n"));
}

TEST(WaveVcd, ByteForByte)
{
    qputenv("SOURCE_DATE_EPOCH", "1000000000");
    Data data;
    data.addChannel(0x10, wr, "led");
    data.addChannel(0x2A, rd, {});
    data.addValue(0x10, wr, 0x81, 0);
    data.addValue(0x2A, rd, 0x0F, 3);
    data.addValue(0x10, wr, 0xFF, 5);
    data.setClock(9);
    const QByteArray text = ProcSimVcd::vcdText(data, 50e6);
    qunsetenv("SOURCE_DATE_EPOCH");
    EXPECT_EQ(text, "$date\n    2001-09-09T01:46:40Z\n$end\n"
                    "$version\n    Nalvo " +
                        Release::own().text().toLatin1() +
                        "\n$end\n"
                        "$timescale\n    1 ps\n$end\n"
                        "$scope module ports $end\n"
                        "$var wire 8 ! port_10_wr_led [7:0] $end\n"
                        "$var wire 8 \" port_2A_rd [7:0] $end\n"
                        "$upscope $end\n"
                        "$enddefinitions $end\n"
                        "#0\n$dumpvars\nb10000001 !\nbxxxxxxxx \"\n$end\n"
                        "#60000\nb00001111 \"\n"
                        "#100000\nb11111111 !\n"
                        "#180000\n");
}

TEST(WaveVcd, WithoutValues)
{
    Data data;
    EXPECT_EQ(body(ProcSimVcd::vcdText(data, 50e6)), "#0\n$dumpvars\n$end\n");
    data.addChannel(0, rd, {});
    EXPECT_EQ(body(ProcSimVcd::vcdText(data, 50e6)), "#0\n$dumpvars\nbxxxxxxxx !\n$end\n");
}

TEST(WaveVcd, ClockOfUnknownRateIsANanosecond)
{
    Data data;
    data.addChannel(1, rd, {});
    data.addValue(1, rd, 1, 7);
    for (const double frequency : {0.0, -5.0, std::nan(""), double(INFINITY)}) {
        const QByteArray text = ProcSimVcd::vcdText(data, frequency);
        EXPECT_EQ(Dump(text).timescale, "1ns");
        EXPECT_EQ(body(text), "#0\n$dumpvars\nbxxxxxxxx !\n$end\n#7\nb00000001 !\n");
    }
}

TEST(WaveVcd, RoundingDoesNotAddUp)
{
    Data data;
    data.addChannel(1, rd, {});
    data.addValue(1, rd, 1, 1);
    data.addValue(1, rd, 2, 3);
    data.addValue(1, rd, 3, 3000000);
    // A clock is 333333.33 ps.
    EXPECT_EQ(body(ProcSimVcd::vcdText(data, 3e6)), "#0\n$dumpvars\nbxxxxxxxx !\n$end\n#333333\nb00000001 !\n"
                                                    "#1000000\nb00000010 !\n#1000000000000\nb00000011 !\n");
}

TEST(WaveVcd, OfValuesAtTheSameTimeTheLastOneStands)
{
    Data data;
    data.addChannel(1, rd, {});
    data.addChannel(2, rd, {});
    // At 10 THz, ten clocks are a picosecond.
    data.addValue(1, rd, 1, 1);
    data.addValue(1, rd, 2, 3);
    data.addValue(1, rd, 3, 11);
    data.addValue(2, rd, 4, 11);
    data.addValue(1, rd, 5, 12);
    EXPECT_EQ(body(ProcSimVcd::vcdText(data, 1e13)),
              "#0\n$dumpvars\nb00000010 !\nbxxxxxxxx \"\n$end\n#1\nb00000101 !\nb00000100 \"\n");
}

TEST(WaveVcd, LongTimesOfSlowClocksHaveALargerUnit)
{
    Data data;
    data.addChannel(1, rd, {});
    data.addValue(1, rd, 1, 100000000);
    const Dump dump(ProcSimVcd::vcdText(data, 1));
    EXPECT_EQ(dump.error, QString());
    EXPECT_EQ(dump.timescale, "1ns");
    EXPECT_EQ(dump.end, 100000000LL * 1000000000LL);
}

TEST(WaveVcd, NamesAreLegal)
{
    Data data;
    data.addChannel(0x05, rd, QString::fromUtf8("Gr\u00fc\u00dfe, {x} $end"));
    data.addChannel(0x123, wr, "b[2]");
    const Dump dump(ProcSimVcd::vcdText(data, 1e6));
    EXPECT_EQ(dump.error, QString());
    EXPECT_EQ(dump.names.values(), (QList<QByteArray>{"port_05_rd_Gr__e___x___end", "port_123_wr_b_2_"}));
}

TEST(WaveVcd, RandomValuesReadBack)
{
    std::mt19937 random(11);
    Data data;
    QMap<QByteArray, Dump::Changes> expected;
    QList<QPair<int, Data::eAccessType_t>> ports;
    // More wires than there are one-letter codes.
    for (int addr = 0; addr < 60; ++addr) {
        for (const Data::eAccessType_t access : {rd, wr}) {
            data.addChannel(addr, access, {});
            ports.append({addr, access});
        }
    }
    const double frequency = 33.333e6;
    const auto nameOf = [](const QPair<int, Data::eAccessType_t>& port) {
        return "port_" + QByteArray::number(port.first, 16).toUpper().rightJustified(2, '0') +
               (port.second == rd ? "_rd" : "_wr");
    };
    for (const auto& port : ports)
        expected[nameOf(port)].append({0, "xxxxxxxx"});
    qint64 clock = 0;
    for (int count = 0; count < 20000; ++count) {
        clock += 1 + qint64(random() % 1000);
        const auto& port = ports[int(random() % unsigned(ports.size()))];
        const int value = int(random() % 256);
        data.addValue(port.first, port.second, value, clock);
        expected[nameOf(port)].append({std::llround(double(clock) * 1e12 / frequency), bitsOf(value)});
    }
    QByteArray text;
    QBuffer buffer(&text);
    ASSERT_TRUE(buffer.open(QIODevice::WriteOnly));
    ASSERT_TRUE(ProcSimVcd::write(&buffer, data, frequency));
    const Dump dump(text);
    EXPECT_EQ(dump.error, QString());
    EXPECT_EQ(dump.names.size(), 120);
    EXPECT_TRUE(dump.changes == expected);
}

/// A device without room.
class FullDevice : public QIODevice
{
protected:
    qint64 readData(char*, qint64) override { return -1; }
    qint64 writeData(const char*, qint64 size) override { return qMin<qint64>(size, 100); }
};

TEST(WaveVcd, TheWatchSeesHowFarItIsAndEndsIt)
{
    Data data;
    data.addChannel(1, rd, {});
    for (int i = 1; i <= 100000; ++i)
        data.addValue(1, rd, i & 0xFF, i);
    QBuffer whole;
    ASSERT_TRUE(whole.open(QIODevice::WriteOnly));
    QVector<int> percents;
    ASSERT_TRUE(ProcSimVcd::write(&whole, data, 1e6, [&](int percent) {
        percents.append(percent);
        return true;
    }));
    EXPECT_GT(percents.size(), 10);
    EXPECT_TRUE(std::is_sorted(percents.cbegin(), percents.cend()));
    EXPECT_GE(percents.last(), 90);
    EXPECT_LE(percents.last(), 100);
    QBuffer part;
    ASSERT_TRUE(part.open(QIODevice::WriteOnly));
    // The data may be gone when the watch says no.
    EXPECT_FALSE(ProcSimVcd::write(&part, data, 1e6, [&](int) {
        data.clear();
        return false;
    }));
    EXPECT_LT(part.data().size(), whole.data().size());
}

TEST(WaveVcd, FullDeviceFails)
{
    Data data;
    data.addChannel(1, rd, {});
    FullDevice device;
    ASSERT_TRUE(device.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    EXPECT_FALSE(ProcSimVcd::write(&device, data, 1e6));
}

} // namespace
