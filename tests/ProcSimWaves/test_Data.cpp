// The values by time, and what a picture finds of them.

#include "ProcSimWaveColumns.h"
#include "ProcSimWaveData.h"
#include "ProcSimWaveTime.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using nsProc::ProcSimWaveColumns;
using nsProc::ProcSimWaveTime;
using Data = nsProc::ProcSimWaveData;

constexpr Data::eAccessType_t rd = Data::eAccessRd;
constexpr Data::eAccessType_t wr = Data::eAccessWr;

TEST(WaveData, AddressAndAccessChooseTheChannel)
{
    Data data;
    EXPECT_TRUE(data.isEmpty());
    data.addValue(0x10, wr, 1, 1);
    Data::sAddrChannel_t* written = data.addChannel(0x10, wr, "led");
    Data::sAddrChannel_t* read = data.addChannel(0x10, rd, {});
    Data::sAddrChannel_t* other = data.addChannel(0x11, wr, {});
    EXPECT_FALSE(data.isEmpty());
    data.addValue(0x10, wr, 0xA5, 7);
    data.addValue(0x10, rd, 0x5A, 8);
    data.addValue(0x12, wr, 0xFF, 9);
    ASSERT_EQ(written->values.size(), 1U);
    EXPECT_EQ(written->values[0].value, 0xA5);
    EXPECT_EQ(written->values[0].clock, 7);
    ASSERT_EQ(read->values.size(), 1U);
    EXPECT_EQ(read->values[0].value, 0x5A);
    EXPECT_TRUE(other->values.empty());
    EXPECT_EQ(written->name, "led");
    EXPECT_EQ(data.channel(0x10, rd), read);
    EXPECT_EQ(data.channel(0x12, rd), nullptr);
}

TEST(WaveData, ChannelIsThereOnce)
{
    Data data;
    EXPECT_NE(data.addChannel(1, rd, {}), nullptr);
    EXPECT_EQ(data.addChannel(1, rd, "again"), nullptr);
    EXPECT_NE(data.addChannel(1, wr, {}), nullptr);
    EXPECT_EQ(data.channels().size(), 2U);
}

TEST(WaveData, ClearingKeepsTheChannels)
{
    Data data;
    Data::sAddrChannel_t* one = data.addChannel(1, rd, {});
    Data::sAddrChannel_t* two = data.addChannel(2, rd, {});
    data.addValue(1, rd, 3, 10);
    data.addValue(2, rd, 4, 11);
    data.clearValues(one);
    EXPECT_TRUE(one->values.empty());
    EXPECT_EQ(two->values.size(), 1U);
    EXPECT_EQ(data.clock(), 11);
    const unsigned changes = data.changes();
    data.clearValues();
    EXPECT_NE(data.changes(), changes);
    EXPECT_TRUE(two->values.empty());
    EXPECT_EQ(data.clock(), 0);
    EXPECT_EQ(data.channels().size(), 2U);
    data.removeChannel(one);
    EXPECT_EQ(data.channel(1, rd), nullptr);
    EXPECT_EQ(data.channel(2, rd), two);
    data.clear();
    EXPECT_TRUE(data.isEmpty());
}

TEST(WaveData, TimeStartsAnewWhenTheClockGoesBack)
{
    Data data;
    Data::sAddrChannel_t* one = data.addChannel(1, rd, {});
    Data::sAddrChannel_t* two = data.addChannel(2, rd, {});
    data.addValue(1, rd, 3, 10);
    data.addValue(2, rd, 4, 20);
    data.addValue(1, rd, 5, 4);
    ASSERT_EQ(one->values.size(), 1U);
    EXPECT_EQ(one->values[0].value, 5);
    EXPECT_TRUE(two->values.empty());
    // The same without a value.
    data.setClock(30);
    EXPECT_EQ(one->values.size(), 1U);
    data.setClock(30);
    EXPECT_EQ(one->values.size(), 1U);
    data.setClock(0);
    EXPECT_TRUE(one->values.empty());
    EXPECT_EQ(data.clock(), 0);
}

TEST(WaveData, LongestChannelMakesRoom)
{
    Data data(10);
    Data::sAddrChannel_t* busy = data.addChannel(1, rd, {});
    Data::sAddrChannel_t* quiet = data.addChannel(2, rd, {});
    data.addValue(2, rd, 99, 0);
    for (int clock = 1; clock <= 9; ++clock)
        data.addValue(1, rd, clock, clock);
    EXPECT_FALSE(busy->dropped);
    data.addValue(1, rd, 10, 10);
    // Five of nine went.
    ASSERT_EQ(busy->values.size(), 5U);
    EXPECT_EQ(busy->values.front().value, 6);
    EXPECT_EQ(busy->values.back().value, 10);
    EXPECT_TRUE(busy->dropped);
    EXPECT_EQ(quiet->values.size(), 1U);
    EXPECT_FALSE(quiet->dropped);
    for (int clock = 11; clock < 1000; ++clock) {
        data.addValue(1 + clock % 2, rd, clock, clock);
        ASSERT_LE(busy->values.size() + quiet->values.size(), 10U);
    }
    // What is left counts against the limit only once.
    data.clearValues();
    for (int clock = 0; clock < 10; ++clock)
        data.addValue(1, rd, clock, clock);
    EXPECT_EQ(busy->values.size(), 10U);
    EXPECT_FALSE(busy->dropped);
    data.removeChannel(busy);
    for (int clock = 10; clock < 20; ++clock)
        data.addValue(2, rd, clock, clock);
    EXPECT_EQ(quiet->values.size(), 10U);
}

TEST(WaveData, NoLimit)
{
    Data data(0);
    Data::sAddrChannel_t* one = data.addChannel(1, rd, {});
    for (int clock = 0; clock < 5000; ++clock)
        data.addValue(1, rd, clock, clock);
    EXPECT_EQ(one->values.size(), 5000U);
}

TEST(WaveData, BitsAndPlacesAreThoseOfAPlainSearch)
{
    std::mt19937 random(3);
    // The limit is reached, so that the summaries are made anew on the way.
    Data data(1000);
    Data::sAddrChannel_t* one = data.addChannel(1, rd, {});
    qint64 clock = 0;
    for (int count = 0; count < 2345; ++count) {
        clock += qint64(random() % 9);
        data.addValue(1, rd, int(random() % 3 == 0 ? random() % 256 : 0x42), clock);
    }
    ASSERT_TRUE(one->dropped);
    const auto& values = one->values;
    for (int round = 0; round < 2000; ++round) {
        const size_t first = random() % values.size();
        const size_t end = first + 1 + random() % (values.size() - first);
        int any = 0;
        int all = 0xFF;
        for (size_t index = first; index < end; ++index) {
            any |= values[index].value;
            all &= values[index].value;
        }
        const Data::sBits_t bits = Data::bits(*one, first, end);
        ASSERT_EQ(bits.any, any) << first << ' ' << end;
        ASSERT_EQ(bits.all, all) << first << ' ' << end;
        const qint64 wanted = values.front().clock - 5 + qint64(random() % size_t(clock - values.front().clock + 10));
        size_t plain = 0;
        while (plain < values.size() && values[plain].clock < wanted)
            ++plain;
        ASSERT_EQ(Data::indexAt(*one, wanted), plain);
        ASSERT_EQ(Data::indexAt(*one, wanted, plain / 2), plain);
    }
    EXPECT_EQ(Data::indexAt(*one, clock + 1), values.size());
    EXPECT_EQ(Data::indexAt(*one, 0, values.size()), values.size());
}

TEST(WaveColumns, EachValueIsInTheColumnOfItsClock)
{
    std::mt19937 random(5);
    Data data;
    Data::sAddrChannel_t* one = data.addChannel(1, rd, {});
    qint64 clock = 0;
    for (int count = 0; count < 3000; ++count) {
        clock += qint64(random() % 20);
        data.addValue(1, rd, int(random() % 256), clock);
    }
    const int width = 200;
    for (const double scale : {64.0, 8.0, 3.0, 1.0, 0.37, 0.1, 0.005}) {
        for (const double first : {0.0, 17.5, 9000.25, double(clock) - 3, double(clock) + 100}) {
            ProcSimWaveTime time(0);
            time.setPxPerClock(scale);
            time.setFirst(first);
            const ProcSimWaveColumns shown(*one, time, width);
            size_t index = 0;
            int before = -1;
            while (index < one->values.size() && one->values[index].clock < time.boundary(0))
                before = one->values[index++].value;
            EXPECT_EQ(shown.before, before);
            int last = -1;
            for (const ProcSimWaveColumns::sColumn_t& column : shown.columns) {
                ASSERT_GT(column.x, last);
                last = column.x;
                ASSERT_EQ(column.first, index);
                ASSERT_GT(column.end, column.first);
                for (; index < column.end; ++index) {
                    ASSERT_GE(one->values[index].clock, time.boundary(column.x));
                    ASSERT_LT(one->values[index].clock, time.boundary(column.x + 1));
                }
                ASSERT_EQ(column.value, one->values[index - 1].value);
            }
            // The next one is not visible.
            if (index < one->values.size()) {
                EXPECT_GE(one->values[index].clock, time.boundary(width));
            }
        }
    }
}

TEST(WaveTime, TicksAreRoundAndApart)
{
    ProcSimWaveTime time(50e6);
    time.setPxPerClock(8);
    auto ticks = time.ticks(1000, 100);
    ASSERT_EQ(ticks.size(), 7);
    EXPECT_EQ(ticks[0].text, "0");
    EXPECT_EQ(ticks[1].text, "20");
    EXPECT_EQ(ticks[1].x, 160);
    // A clock is 20 ns.
    time.setSeconds(true);
    ticks = time.ticks(1000, 100);
    ASSERT_GE(ticks.size(), 3);
    EXPECT_EQ(ticks[0].text, "0 s");
    EXPECT_EQ(ticks[1].text, "500 ns");
    EXPECT_EQ(ticks[1].x, 200);
    EXPECT_EQ(ticks[2].text, "1.0 us");
    EXPECT_EQ(time.text(120), "2.40 us");
    EXPECT_EQ(time.unitText(120), "2.40 us");
    time.setSeconds(false);
    EXPECT_EQ(time.text(120), "120");
    EXPECT_EQ(time.unitText(1), "1 clock");
    EXPECT_EQ(time.longText(120), "120 clocks (2.40 us)");
}

TEST(WaveTime, NoClockRateNoSeconds)
{
    ProcSimWaveTime time(0);
    time.setSeconds(true);
    EXPECT_FALSE(time.isSeconds());
    EXPECT_EQ(time.longText(3), "3 clocks");
}

TEST(WaveTime, TicksOfAnyScaleAreFew)
{
    for (const double frequency : {0.5, 1000.0, 50e6, 3e9}) {
        for (const bool seconds : {false, true}) {
            ProcSimWaveTime time(frequency);
            time.setSeconds(seconds);
            for (double scale = 64; scale > 1e-10; scale /= 3) {
                time.setPxPerClock(scale);
                for (const double first : {0.0, 12345.678, 1e9, 1e12}) {
                    time.setFirst(first);
                    const auto ticks = time.ticks(1000, 100);
                    ASSERT_LE(ticks.size(), 12) << frequency << ' ' << scale << ' ' << first;
                    for (int index = 1; index < ticks.size(); ++index)
                        ASSERT_GE(ticks[index].x - ticks[index - 1].x, 98);
                    for (int index = 1; index < ticks.size() && first <= 12345.678; ++index)
                        ASSERT_NE(ticks[index].text, ticks[index - 1].text);
                }
            }
        }
    }
}

} // namespace
