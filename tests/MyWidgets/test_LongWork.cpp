// Progress of long work: when its bar comes and goes, and what can be done meanwhile.

#include "MyLongWork.h"

#include <QLabel>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <memory>

namespace {

class LongWork : public ::testing::Test
{
protected:
    LongWork()
    {
        new QVBoxLayout(&m_window);
        m_window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&m_window, 60000));
    }
    ~LongWork() override { MyLongWork::setDelay(MyLongWork::usualDelay); }
    std::unique_ptr<MyLongWork> work(int delay)
    {
        MyLongWork::setDelay(delay);
        return std::make_unique<MyLongWork>(
            "Counting", [this](QWidget* bar) { m_window.layout()->addWidget(bar); },
            [](QWidget* bar) { bar->setParent(nullptr); });
    }
    QToolButton* button() const { return m_window.findChild<QToolButton*>("longWorkCancel"); }
    QString state() const
    {
        const auto* label = m_window.findChild<QLabel*>("longWorkState");
        return label != nullptr ? label->text() : QString();
    }
    /// Does something from within the events that the work handles.
    template <class Act>
    static bool duringNext(MyLongWork* work, Act act)
    {
        QTimer::singleShot(0, act);
        return work->goesOn("1 line");
    }

    QWidget m_window;
};

} // namespace

TEST_F(LongWork, ShortWorkShowsNothing)
{
    const auto quick = work(1000000);
    EXPECT_TRUE(quick->goesOn("1 line"));
    EXPECT_FALSE(quick->isShown());
    EXPECT_EQ(button(), nullptr);
}

TEST_F(LongWork, ABarSaysHowFarItIsAndGoesWithTheWork)
{
    auto counting = work(0);
    EXPECT_TRUE(counting->goesOn("1 line"));
    EXPECT_EQ(state(), "Counting: 1 line");
    EXPECT_TRUE(counting->goesOn(QString()));
    EXPECT_EQ(state(), "Counting");
    counting->rests();
    EXPECT_EQ(button(), nullptr);
    EXPECT_TRUE(counting->goesOn("2 lines"));
    EXPECT_NE(button(), nullptr);
    counting.reset();
    EXPECT_EQ(button(), nullptr);
}

TEST_F(LongWork, IsCancelledByItsButtonAndByEsc)
{
    for (const bool byKey : {false, true}) {
        const auto counting = work(0);
        EXPECT_TRUE(counting->goesOn("1 line"));
        EXPECT_FALSE(duringNext(counting.get(), [&] {
            if (byKey)
                QTest::keyClick(&m_window, Qt::Key_Escape);
            else
                QTest::mouseClick(button(), Qt::LeftButton);
        }));
        EXPECT_TRUE(counting->isCancelled());
        EXPECT_FALSE(counting->goesOn("2 lines")) << "for good";
    }
}

TEST_F(LongWork, WhatBelongsTogetherIsNotCancelled)
{
    for (const bool byKey : {false, true}) {
        const auto counting = work(0);
        EXPECT_TRUE(counting->goesOn("1 line"));
        EXPECT_TRUE(button()->isEnabled());
        counting->commits();
        EXPECT_FALSE(button()->isEnabled());
        EXPECT_TRUE(duringNext(counting.get(), [&] {
            if (byKey)
                QTest::keyClick(&m_window, Qt::Key_Escape);
            else
                QTest::mouseClick(button(), Qt::LeftButton);
        }));
        EXPECT_FALSE(counting->isCancelled());
    }
    // Also where the bar comes later.
    const auto late = work(0);
    late->commits();
    EXPECT_TRUE(late->goesOn("1 line"));
    EXPECT_FALSE(button()->isEnabled());
}

TEST_F(LongWork, TheRestOfTheWindowGetsNoInput)
{
    int clicks = 0;
    auto* other = new QToolButton(&m_window);
    m_window.layout()->addWidget(other);
    QObject::connect(other, &QToolButton::clicked, [&clicks] { ++clicks; });
    const auto counting = work(0);
    EXPECT_TRUE(counting->goesOn("1 line"));
    EXPECT_TRUE(duringNext(counting.get(), [&] {
        QTest::mouseClick(other, Qt::LeftButton);
        m_window.close();
    }));
    EXPECT_EQ(clicks, 0);
    EXPECT_TRUE(m_window.isVisible());
}
