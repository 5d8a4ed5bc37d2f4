#include "MyBusyCursor.h"

#include <gtest/gtest.h>

#include <QCursor>
#include <QGuiApplication>

#include <limits>

namespace {

bool isBusy()
{
    return QGuiApplication::overrideCursor() != nullptr && QGuiApplication::overrideCursor()->shape() == Qt::WaitCursor;
}

TEST(MyBusyCursor, comesWithTheFirstSignOfWorkThatIsLate)
{
    {
        // Late from the start.
        MyBusyCursor cursor(0);
        EXPECT_FALSE(isBusy()) << "the work may have ended";
        cursor.goesOn();
        EXPECT_TRUE(isBusy());
        EXPECT_TRUE(cursor.isShown());
        cursor.goesOn();
    }
    EXPECT_FALSE(isBusy()) << "shown once, given back once";
}

TEST(MyBusyCursor, staysAwayWhileTheWorkIsNotLate)
{
    MyBusyCursor cursor(std::numeric_limits<int>::max());
    for (int i = 0; i < 1000; ++i)
        cursor.goesOn();
    EXPECT_FALSE(isBusy());
    EXPECT_FALSE(cursor.isShown());
}

TEST(MyBusyCursor, workWithinWork)
{
    MyBusyCursor outer(0);
    outer.goesOn();
    {
        MyBusyCursor inner(0);
        inner.goesOn();
        EXPECT_TRUE(isBusy());
    }
    EXPECT_TRUE(isBusy()) << "the outer work goes on";
    {
        MyBusyCursor quick;
    }
    EXPECT_TRUE(isBusy());
}

} // namespace
