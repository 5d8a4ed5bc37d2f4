// Pictures of the wave viewer in its states, for a person to look at.

#include "Colors.h"
#include "Readable.h"
#include "WavesFixture.h"

#include <QComboBox>
#include <QDir>
#include <QFile>

namespace {

class WavesScreenshot : public WavesTest
{
protected:
    void SetUp() override
    {
        QFile sheet(NALVO_SOURCE_DIR "/src/Resources/styles/stylesheet.css");
        ASSERT_TRUE(sheet.open(QIODevice::ReadOnly));
        qApp->setStyleSheet(Colors::filled(QString::fromUtf8(sheet.readAll())));
        WavesTest::SetUp();
    }
    void TearDown() override { qApp->setStyleSheet({}); }

    void save(const QString& name)
    {
        settle();
        expectReadable(viewer.get());
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

TEST_F(WavesScreenshot, MillionValues)
{
    watch();
    fill(1000000);
    tree->expandItem(tree->topLevelItem(0));
    settle();
    // From single values to all of them.
    for (int step = 0; step < 24; ++step)
        click("procSimWaveZoomOut");
    EXPECT_EQ(bar->maximum(), 0) << "not all of the time is shown";
    save("million");
}

} // namespace
