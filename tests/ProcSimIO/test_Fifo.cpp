// The list of a FIFO: one pointer that reading and writing share.

#include "ProcSimIOFifo.h"
#include "QtPrinters.h"

#include <gtest/gtest.h>

using namespace nsProc;

namespace {

QStringList texts(ProcSimIOFifo& fifo)
{
    QStringList result;
    for (int i = 0; i < fifo.lines().count(); ++i)
        result << fifo.lines().text(i);
    return result;
}

} // namespace

TEST(Fifo, BeginsWithOneEmptyLine)
{
    ProcSimIOFifo fifo(0);
    EXPECT_EQ(texts(fifo), QStringList({""}));
    EXPECT_EQ(fifo.lines().pointer(), 0);
    EXPECT_EQ(fifo.lastAccess(), ProcSimIOFifo::eAccessNone);
}

TEST(Fifo, WritingReplacesTheEmptyLineAndAppendsAnother)
{
    ProcSimIOFifo fifo(0);
    fifo.setValue(5, "OUT", 0xA);
    EXPECT_EQ(texts(fifo), QStringList({"0A", ""}));
    EXPECT_EQ(fifo.lines().pointer(), 1);
    fifo.setValue(5, "OUT", 0xFF);
    EXPECT_EQ(texts(fifo), QStringList({"0A", "FF", ""}));
    EXPECT_EQ(fifo.lines().pointer(), 2);
    EXPECT_EQ(fifo.lastValue(), 0xFF);
    EXPECT_EQ(fifo.lastAccess(), ProcSimIOFifo::eAccessWr);
    EXPECT_TRUE(fifo.isHighlighted());
    EXPECT_EQ(fifo.name(), "OUT");
    EXPECT_EQ(fifo.addr(), 0) << "the address is not touched";
}

TEST(Fifo, WhatWasWrittenCannotBeReadUntilThePointerIsReset)
{
    ProcSimIOFifo fifo(0);
    for (int value : {1, 2, 3})
        fifo.setValue(0, "", value);
    int value = -1;
    EXPECT_FALSE(fifo.value(0, "IN", &value));
    EXPECT_EQ(value, -1);
    EXPECT_TRUE(fifo.isExpanded()) << "the user is to type a value";
    EXPECT_EQ(fifo.lines().pointer(), 3);
    fifo.clear();
    EXPECT_EQ(fifo.lastValue(), 0);
    EXPECT_EQ(texts(fifo), QStringList({"01", "02", "03", ""}));
    for (int expected : {1, 2, 3}) {
        ASSERT_TRUE(fifo.value(0, "IN", &value));
        EXPECT_EQ(value, expected);
        EXPECT_EQ(fifo.lastValue(), expected);
        EXPECT_EQ(fifo.lastAccess(), ProcSimIOFifo::eAccessRd);
    }
    EXPECT_FALSE(fifo.value(0, "IN", &value));
}

TEST(Fifo, AListIsReadDownAndGetsAnEmptyLineAtItsEnd)
{
    ProcSimIOFifo fifo(0);
    fifo.replaceLines(0, 1, {"7", "zz", "8"});
    int value = 0;
    ASSERT_TRUE(fifo.value(0, "", &value));
    EXPECT_EQ(value, 7);
    EXPECT_FALSE(fifo.value(0, "", &value)) << "no number";
    EXPECT_EQ(fifo.lines().pointer(), 1);
    fifo.replaceLines(1, 1, {"9"});
    ASSERT_TRUE(fifo.value(0, "", &value));
    EXPECT_EQ(value, 9);
    ASSERT_TRUE(fifo.value(0, "", &value));
    EXPECT_EQ(value, 8);
    EXPECT_EQ(texts(fifo), QStringList({"7", "9", "8", ""}));
    EXPECT_EQ(fifo.lines().pointer(), 3);
}

TEST(Fifo, WritingReplacesLinesFromThePointerOn)
{
    ProcSimIOFifo fifo(0);
    fifo.replaceLines(0, 1, {"1", "x", "3"});
    fifo.setValue(0, "", 0x11);
    fifo.setValue(0, "", 0x12);
    EXPECT_EQ(texts(fifo), QStringList({"11", "12", "3"}));
    int value = 0;
    EXPECT_TRUE(fifo.value(0, "", &value));
    EXPECT_EQ(value, 3) << "reading and writing share the pointer";
}

TEST(Fifo, InitialValuesGetALineEach)
{
    ProcSimIOFifo fifo(0);
    fifo.setValue(0, "", 1);
    unsigned int values[] = {1, 0xAB, 0x1FF, 0xFFFFFFFFu};
    fifo.initValue(values, 4);
    EXPECT_EQ(texts(fifo), QStringList({"01", "AB", "1FF", "FFFFFFFF"}));
    EXPECT_EQ(fifo.lines().pointer(), 0);
    fifo.setBase(10);
    fifo.initValue(values, 2);
    EXPECT_EQ(texts(fifo), QStringList({"001", "171"}));
    fifo.initValue(values, 0);
    EXPECT_EQ(texts(fifo), QStringList({""}));
}

TEST(Fifo, ABaseConvertsTheLinesAndKeepsThePointer)
{
    ProcSimIOFifo fifo(0);
    fifo.replaceLines(0, 1, {"f", "0A", "zz", "", "10"});
    int value = 0;
    ASSERT_TRUE(fifo.value(0, "", &value));
    fifo.setBase(10);
    EXPECT_EQ(texts(fifo), QStringList({"015", "010", "zz", "", "016"}));
    EXPECT_EQ(fifo.lines().pointer(), 1);
    fifo.setBase(8);
    EXPECT_EQ(texts(fifo), QStringList({"017", "012", "zz", "", "020"}));
    ASSERT_TRUE(fifo.value(0, "", &value));
    EXPECT_EQ(value, 10);
}

TEST(Fifo, EditsInTheMiddleMoveTheRest)
{
    ProcSimIOFifo fifo(0);
    fifo.replaceLines(0, 1, {"a?", "02", "b?", "04"});
    fifo.replaceLines(1, 1, {"x", "y", "z"});
    EXPECT_EQ(texts(fifo), QStringList({"a?", "x", "y", "z", "b?", "04"}));
    fifo.replaceLines(0, 3, {"01"});
    EXPECT_EQ(texts(fifo), QStringList({"01", "z", "b?", "04"}));
    int value = 0;
    ASSERT_TRUE(fifo.value(0, "", &value));
    fifo.replaceLines(0, 4, {});
    EXPECT_EQ(texts(fifo), QStringList({""}));
    EXPECT_EQ(fifo.lines().pointer(), 1) << "no edit moves it";
}

TEST(Fifo, TheOldestQuarterIsDroppedAtTheBound)
{
    ProcSimIOFifo fifo(0);
    const int quarter = ProcSimFifoLines::maxLines / 4;
    for (int i = 0; i < ProcSimFifoLines::maxLines; ++i)
        fifo.setValue(0, QString(), i & 0xFF);
    EXPECT_EQ(fifo.lines().dropped(), quarter);
    EXPECT_EQ(fifo.lines().count(), ProcSimFifoLines::maxLines - quarter + 1);
    EXPECT_EQ(fifo.lines().pointer(), fifo.lines().count() - 1);
    EXPECT_EQ(fifo.lines().text(fifo.lines().count() - 2), "FF");
    fifo.clear();
    int value = -1;
    ASSERT_TRUE(fifo.value(0, QString(), &value));
    EXPECT_EQ(value, quarter & 0xFF);
}
