// Pictures of the wave viewer in its states, for a person to look at, and the time that drawing takes.

#include "WavesFixture.h"

#include <QComboBox>
#include <QDir>
#include <QFile>

#include <chrono>

namespace {

class WavesScreenshot : public WavesTest
{
protected:
    void SetUp() override
    {
        QFile sheet(NALVO_SOURCE_DIR "/src/Resources/styles/stylesheet.css");
        ASSERT_TRUE(sheet.open(QIODevice::ReadOnly));
        qApp->setStyleSheet(QString::fromUtf8(sheet.readAll()));
        WavesTest::SetUp();
    }
    void TearDown() override { qApp->setStyleSheet({}); }

    void save(const QString& name)
    {
        settle();
        const QString dir = QStringLiteral(NALVO_BINARY_DIR "/screenshots");
        ASSERT_TRUE(QDir().mkpath(dir));
        for (const int percent : {100, 200}) {
            QImage image(viewer->size() * percent / 100, QImage::Format_RGB32);
            image.setDevicePixelRatio(percent / 100.0);
            viewer->render(&image);
            const QString scale = percent == 100 ? QString() : QStringLiteral("-200");
            EXPECT_TRUE(image.save(QStringLiteral("%1/waves-%2%3.png").arg(dir, name, scale)));
        }
    }
    void fill(int count)
    {
        unsigned random = 7;
        qint64 clock = 0;
        for (int index = 0; index < count; ++index) {
            random = random * 1664525 + 1013904223;
            clock += 2 + (random >> 28);
            viewer->data()->addValue(0x10, wr, index & 0xFF, clock);
            if (index % 3 == 0)
                viewer->data()->addValue(0x2A, rd, index % 40 < 30 ? 0 : 0x81, clock + 1);
            if (index % 50 == 0)
                viewer->data()->addValue(0x2B, rd, int(random >> 24), clock + 1);
        }
        viewer->setClock(clock + 6);
    }
    void watch()
    {
        viewer->addAddrChannel(0x10, wr, -1, {});
        viewer->addAddrChannel(0x2A, rd, -1, {});
        viewer->addAddrChannel(0x2B, rd, -1, {});
    }
};

TEST_F(WavesScreenshot, Empty)
{
    save("empty");
}

TEST_F(WavesScreenshot, FewValues)
{
    watch();
    fill(60);
    tree->expandItem(tree->topLevelItem(0));
    save("few");
    tree->collapseAll();
    QTest::mouseClick(waves, Qt::LeftButton, {}, {300, 40});
    QTest::mouseMove(waves, {420, 40});
    child<QComboBox>("procSimWaveUnit")->setCurrentIndex(1);
    save("marker");
}

TEST_F(WavesScreenshot, ManyValues)
{
    watch();
    fill(3000);
    for (int step = 0; step < 4; ++step)
        click("procSimWaveZoomOut");
    save("dense");
    click("procSimWaveZoomFit");
    tree->expandItem(tree->topLevelItem(1));
    save("fit");
    viewer->resize(600, 240);
    save("narrow");
}

/// At 25 pictures a second, drawing a million values must leave the simulator its time.
TEST_F(WavesScreenshot, MillionValuesAreDrawnQuickly)
{
    watch();
    fill(1000000);
    tree->expandItem(tree->topLevelItem(0));
    settle();
    QImage image(waves->size(), QImage::Format_RGB32);
    double worst = 0;
    // From single values to all of them.
    for (int step = 0; step < 24; ++step) {
        std::chrono::nanoseconds best = std::chrono::hours(1);
        for (int round = 0; round < 10; ++round) {
            const auto start = std::chrono::steady_clock::now();
            waves->render(&image);
            best = std::min<std::chrono::nanoseconds>(best, std::chrono::steady_clock::now() - start);
        }
        worst = std::max(worst, double(best.count()) / 1e6);
        click("procSimWaveZoomOut");
    }
    EXPECT_EQ(bar->maximum(), 0) << "not all of the time is shown";
    RecordProperty("microseconds", int(worst * 1000));
    // Ten times what it takes on a machine of its own.
    EXPECT_LT(worst, 30.0);
    save("million");
}

} // namespace
