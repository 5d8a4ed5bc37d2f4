#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QVariantAnimation>

/// Hands out all events that wait: layouts, resizes and paints that follow from one another included.
inline void settleLayout()
{
    // A layout that changes a size posts the events of the next one.
    for (int round = 0; round < 8; ++round) {
        QApplication::sendPostedEvents();
        QApplication::processEvents();
    }
}

/// Waits until every animation that runs now has ended. All animations share one clock, so one that starts now and
/// lasts longer than each of them (folds 250 ms, clear buttons 160 ms) ends last, however slow the machine is.
inline void settleAnimations()
{
    QVariantAnimation last;
    last.setStartValue(0);
    last.setEndValue(1);
    last.setDuration(300);
    QSignalSpy ended(&last, &QVariantAnimation::finished);
    last.start();
    EXPECT_TRUE(QTest::qWaitFor([&ended] { return !ended.isEmpty(); }, 120000));
    settleLayout();
}
