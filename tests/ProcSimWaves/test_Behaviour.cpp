// What the wave viewer does, operation by operation.

#include "WavesFixture.h"

#include <QComboBox>
#include <QSignalSpy>

namespace {

class WaveViewer : public WavesTest
{
protected:
    QTreeWidgetItem* row(int index) const { return tree->topLevelItem(index); }
    std::vector<int> valuesOf(int addr, Data::eAccessType_t access) const
    {
        std::vector<int> result;
        for (const auto& value : viewer->data()->channel(addr, access)->values)
            result.push_back(value.value);
        return result;
    }
    /// Expands all rows and shows them.
    void showAll()
    {
        viewer->resize(1000, 900);
        tree->expandAll();
        settle();
    }
};

TEST_F(WaveViewer, addAddrChannelMakesANumberAndEightBits)
{
    EXPECT_TRUE(viewer->addAddrChannel(0x10, wr, -1, {}));
    ASSERT_EQ(tree->topLevelItemCount(), 1);
    ASSERT_EQ(row(0)->childCount(), 8);
    for (int child = 0; child < 8; ++child)
        EXPECT_EQ(row(0)->child(child)->text(0), QString("[%1]").arg(7 - child));
    showAll();
    const auto shown = waves->waves();
    ASSERT_EQ(shown.size(), 9);
    EXPECT_EQ(shown[0]->kind, nsProc::eWaveNumeric);
    EXPECT_EQ(shown[0]->maximum, 255);
    for (int bit = 7; bit >= 0; --bit) {
        EXPECT_EQ(shown[8 - bit]->kind, nsProc::eWaveBit);
        EXPECT_EQ(shown[8 - bit]->maximum, 1);
        EXPECT_EQ(shown[8 - bit]->bit, bit);
        EXPECT_EQ(shown[8 - bit]->channel, viewer->data()->channel(0x10, wr));
    }
}

TEST_F(WaveViewer, addAddrChannelGivesTheNextIndexAlsoAfterARemoval)
{
    viewer->addAddrChannel(1, wr, -1, {});
    viewer->removeAddrChannel(viewer->data()->channel(1, wr));
    viewer->addAddrChannel(2, wr, -1, {});
    settle();
    ASSERT_EQ(waves->waves().size(), 1);
    EXPECT_EQ(waves->waves()[0]->index, 9);
}

TEST_F(WaveViewer, addAddrChannelTellsReadFromWrite)
{
    EXPECT_TRUE(viewer->addAddrChannel(5, rd, -1, {}));
    EXPECT_TRUE(viewer->addAddrChannel(5, wr, -1, {}));
    EXPECT_FALSE(viewer->addAddrChannel(5, wr, -1, {}));
    EXPECT_NE(viewer->data()->channel(5, rd), viewer->data()->channel(5, wr));
    EXPECT_EQ(row(0)->text(0), "Read 05");
    EXPECT_EQ(row(1)->text(0), "Write 05");
}

TEST_F(WaveViewer, addValueAppendsToTheChannelOfAddressAndAccess)
{
    viewer->addAddrChannel(5, rd, -1, {});
    viewer->addAddrChannel(5, wr, -1, {});
    viewer->addAddrChannel(6, wr, -1, {});
    viewer->addValue(5, wr, {}, 0x11, 10);
    viewer->addValue(5, wr, {}, 0x22, 14);
    viewer->addValue(6, rd, {}, 0x33, 18);
    EXPECT_EQ(valuesOf(5, wr), (std::vector<int>{0x11, 0x22}));
    EXPECT_EQ(viewer->data()->channel(5, wr)->values[1].clock, 14);
    EXPECT_TRUE(valuesOf(5, rd).empty());
    EXPECT_TRUE(valuesOf(6, wr).empty());
}

TEST_F(WaveViewer, clearValuesForgetsAllValuesAndKeepsTheChannels)
{
    viewer->addAddrChannel(5, rd, -1, {});
    viewer->addAddrChannel(6, wr, -1, {});
    viewer->addValue(5, rd, {}, 1, 10);
    viewer->addValue(6, wr, {}, 2, 12);
    viewer->clearValues();
    EXPECT_TRUE(valuesOf(5, rd).empty());
    EXPECT_TRUE(valuesOf(6, wr).empty());
    EXPECT_EQ(tree->topLevelItemCount(), 2);
    EXPECT_EQ(row(0)->text(1), QString());
    EXPECT_EQ(viewer->data()->clock(), 0);
}

TEST_F(WaveViewer, clearAddrChannelValuesForgetsThoseOfOneChannel)
{
    viewer->addAddrChannel(5, rd, -1, {});
    viewer->addAddrChannel(6, wr, -1, {});
    viewer->addValue(5, rd, {}, 1, 10);
    viewer->addValue(6, wr, {}, 2, 12);
    viewer->clearAddrChannelValues(viewer->data()->channel(5, rd));
    EXPECT_TRUE(valuesOf(5, rd).empty());
    EXPECT_EQ(valuesOf(6, wr), std::vector<int>{2});
    EXPECT_EQ(viewer->data()->clock(), 12);
}

TEST_F(WaveViewer, theAddButtonTakesThePortAddress)
{
    auto* field = child<QLineEdit>("procSimWaveAddr");
    field->setFocus();
    QTest::keyClicks(field, "1f");
    child<QComboBox>("procSimWaveAccess")->setCurrentIndex(1);
    click("procSimWaveAdd");
    ASSERT_EQ(tree->topLevelItemCount(), 1);
    EXPECT_NE(viewer->data()->channel(0x1F, wr), nullptr);
}

TEST_F(WaveViewer, theButtonRemoveAllLeavesNothing)
{
    viewer->addAddrChannel(5, rd, -1, {});
    viewer->addAddrChannel(6, wr, -1, {});
    viewer->addValue(6, wr, {}, 2, 12);
    showAll();
    click("procSimWaveRemoveAll");
    settle();
    EXPECT_TRUE(viewer->data()->isEmpty());
    EXPECT_EQ(tree->topLevelItemCount(), 0);
    EXPECT_TRUE(waves->waves().isEmpty());
}

TEST_F(WaveViewer, contentChangedComesWithValuesAndNamesTheViewer)
{
    viewer->addAddrChannel(5, wr, -1, {});
    QSignalSpy changed(viewer.get(), &Viewer::contentChanged);
    viewer->addValue(5, wr, {}, 1, 10);
    viewer->refresh();
    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed[0][0].value<QWidget*>(), viewer.get());
    // Time that goes on is no new content, nor is a clearing of what is empty.
    viewer->setClock(20);
    viewer->refresh();
    EXPECT_EQ(changed.count(), 1);
    viewer->clearValues();
    EXPECT_EQ(changed.count(), 2);
    viewer->clearValues();
    viewer->setClock(20);
    viewer->refresh();
    viewer->setClock(0);
    viewer->refresh();
    EXPECT_EQ(changed.count(), 2);
}

TEST_F(WaveViewer, valuesAreTwoDigitsInUpperCaseInTheBase)
{
    viewer->addAddrChannel(5, wr, -1, {});
    const struct
    {
        int base;
        int value;
        const char* text;
    } cases[] = {{16, 0xA, "0A"}, {16, 0xFF, "FF"}, {10, 7, "07"}, {10, 255, "255"}, {8, 8, "10"}, {8, 7, "07"}};
    int clock = 0;
    for (const auto& one : cases) {
        viewer->setBase(one.base);
        viewer->addValue(5, wr, {}, one.value, ++clock);
        settle();
        EXPECT_EQ(row(0)->text(1), one.text);
        EXPECT_EQ(waves->valueText(one.value), one.text);
    }
}

TEST_F(WaveViewer, setBaseShowsAddressesInTheBase)
{
    viewer->addAddrChannel(0xF0, rd, -1, {});
    viewer->setBase(8);
    EXPECT_EQ(row(0)->text(0), "Read 360");
    viewer->setBase(10);
    EXPECT_EQ(row(0)->text(0), "Read 240");
    viewer->setBase(16);
    EXPECT_EQ(row(0)->text(0), "Read F0");
}

TEST_F(WaveViewer, onlyWhatTheTreeShowsIsDrawn)
{
    viewer->addAddrChannel(5, wr, -1, {});
    viewer->addAddrChannel(6, wr, -1, {});
    viewer->resize(1000, 900);
    settle();
    EXPECT_EQ(waves->waves().size(), 2);
    tree->expandItem(row(1));
    settle();
    ASSERT_EQ(waves->waves().size(), 10);
    EXPECT_EQ(waves->waves()[2]->name, "Write 06[7]");
    tree->collapseItem(row(1));
    settle();
    EXPECT_EQ(waves->waves().size(), 2);
}

TEST_F(WaveViewer, wavesAreDrawnInTheirGreenFromTheFirstValueOn)
{
    viewer->addAddrChannel(5, wr, -1, {});
    showAll();
    const QColor green("#00ff00");
    EXPECT_EQ(countColor(picture(), waves->rect(), green), 0);
    viewer->addValue(5, wr, {}, 0x81, 2);
    viewer->setClock(10);
    const QImage image = picture();
    // The number and each of its bits.
    for (const auto* wave : waves->waves())
        EXPECT_GT(countColor(image, QRect(0, wave->top, waves->width(), wave->height), green), 0)
            << wave->name.toStdString();
}

TEST_F(WaveViewer, aBitIsDrawnHighOrLowByItsValue)
{
    viewer->addAddrChannel(5, wr, -1, {});
    showAll();
    viewer->addValue(5, wr, {}, 0x80, 2);
    viewer->setClock(10);
    const QImage image = picture();
    const auto upperHalf = [&](int wave) {
        const auto* shown = waves->waves().at(wave);
        return countColor(image, QRect(0, shown->top, waves->width(), shown->height / 2), QColor("#00ff00"));
    };
    EXPECT_GT(upperHalf(1), 30);
    EXPECT_LT(upperHalf(8), 10);
}

TEST_F(WaveViewer, theTreeHasItsName)
{
    EXPECT_EQ(tree->objectName(), "procSimWaveTree");
}

} // namespace
