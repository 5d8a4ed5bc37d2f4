#pragma once

#include "ProcSimWaveTree.h"
#include "ProcSimWaveViewer.h"
#include "ProcSimWavesWidget.h"
#include "QtPrinters.h"

#include <QAbstractButton>
#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

/// A viewer on the screen, in the size that it has in the dock.
class WavesTest : public ::testing::Test
{
protected:
    using Viewer = nsProc::ProcSimWaveViewer;
    using Data = nsProc::ProcSimWaveData;
    using Tree = nsProc::ProcSimWaveTree;
    using Waves = nsProc::ProcSimWavesWidget;

    static constexpr Data::eAccessType_t rd = Data::eAccessRd;
    static constexpr Data::eAccessType_t wr = Data::eAccessWr;

    void make(double clkFreq)
    {
        viewer = std::make_unique<Viewer>(clkFreq);
        viewer->resize(1000, 200);
        viewer->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(viewer.get(), 60000));
        tree = viewer->findChild<Tree*>("procSimWaveTree");
        waves = viewer->findChild<Waves*>("procSimWaves");
        bar = viewer->findChild<QScrollBar*>("procSimWaveScrollBar");
        ASSERT_TRUE(tree != nullptr && waves != nullptr && bar != nullptr);
    }
    void SetUp() override { make(50e6); }

    void settle()
    {
        viewer->refresh();
        QApplication::sendPostedEvents();
        QApplication::processEvents();
    }
    template <class T>
    T* child(const char* name) const
    {
        return viewer->findChild<T*>(name);
    }
    void click(const char* button) { QTest::mouseClick(child<QAbstractButton>(button), Qt::LeftButton); }
    /// The picture of the waves, one pixel a logical one.
    QImage picture()
    {
        settle();
        return waves->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
    static int countColor(const QImage& image, const QRect& area, const QColor& color)
    {
        int result = 0;
        const QRect inside = area.intersected(image.rect());
        for (int y = inside.top(); y <= inside.bottom(); ++y) {
            for (int x = inside.left(); x <= inside.right(); ++x)
                result += image.pixelColor(x, y) == color ? 1 : 0;
        }
        return result;
    }

    std::unique_ptr<Viewer> viewer;
    Tree* tree = nullptr;
    Waves* waves = nullptr;
    QScrollBar* bar = nullptr;
};
