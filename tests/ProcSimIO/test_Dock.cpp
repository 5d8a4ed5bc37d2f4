// The dock: its buttons, devices that come and go, and what it costs.

#include "PortsFixture.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>

using namespace nsProc;

class PortsDock : public PortsFixture
{
};

TEST_F(PortsDock, TheMenuAddsTheSelectedKindForBothDirections)
{
    auto* type = dock.findChild<QComboBox*>("procSimIODevType");
    ASSERT_EQ(type->count(), 3);
    const char* const texts[] = {"Fifo", "Register", "Memory block"};
    const int data[] = {1, 0, 2};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(type->itemText(i), texts[i]);
        EXPECT_EQ(type->itemData(i).toInt(), data[i]);
        type->setFocus();
        QTest::keyClick(type, Qt::Key_Home);
        for (int down = 0; down < i; ++down)
            QTest::keyClick(type, Qt::Key_Down);
        clickDock("procSimIOAdd");
        QApplication::processEvents();
    }
    ASSERT_EQ(ports->devices().size(), 3);
    EXPECT_NE(dynamic_cast<ProcSimIOFifo*>(ports->devices().at(0)), nullptr);
    EXPECT_NE(dynamic_cast<ProcSimIOReg8Bit*>(ports->devices().at(1)), nullptr);
    auto* mem = dynamic_cast<ProcSimIOMem*>(ports->devices().at(2));
    ASSERT_NE(mem, nullptr);
    EXPECT_EQ(mem->size(), 16);
    EXPECT_EQ(mem->directionData(), 4);
    EXPECT_FALSE(dock.findChild<QLabel*>("procSimIOHint")->isVisible());
    clickDock("procSimIORemoveAll");
    EXPECT_TRUE(ports->devices().isEmpty());
    EXPECT_TRUE(dock.findChild<QLabel*>("procSimIOHint")->isVisible());
}

TEST_F(PortsDock, WavesAreAskedFor)
{
    QSignalSpy spy(&dock, &ProcSimIO::wavesRequested);
    auto* button = dock.findChild<QPushButton*>("procSimIOWaves");
    EXPECT_EQ(button->toolTip(), "Show the values of ports against time");
    clickDock("procSimIOWaves");
    EXPECT_EQ(spy.count(), 1);
}

TEST_F(PortsDock, AWriteTellsOfItsContentOnceARefresh)
{
    QSignalSpy spy(&dock, &ProcSimIO::contentChanged);
    dock.refresh();
    EXPECT_EQ(spy.count(), 0);
    ports->setValue(1, "", 1);
    ports->setValue(1, "", 2);
    dock.refresh();
    ASSERT_EQ(spy.count(), 1);
    EXPECT_EQ(spy.first().first().value<QWidget*>(), &dock);
    dock.refresh();
    EXPECT_EQ(spy.count(), 1);
    dock.setValue(1, "", 3);
    EXPECT_EQ(spy.count(), 2);
}

TEST_F(PortsDock, AClosedDeviceIsReplacedByTheNextAccess)
{
    ports->setValue(9, "OUT", 1);
    dock.refresh();
    QPointer<QWidget> view = dock.viewOf(ports->devices().first());
    auto* close = part<QToolButton>(ports->devices().first(), "procSimIOClose");
    EXPECT_EQ(close->toolTip(), "Close device");
    QTest::mouseClick(close, Qt::LeftButton);
    EXPECT_TRUE(ports->devices().isEmpty());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(view.isNull());
    ports->setValue(9, "OUT", 2);
    ASSERT_EQ(ports->devices().size(), 1);
    EXPECT_EQ(static_cast<ProcSimIOFifo*>(ports->devices().first())->lines().text(0), "02");
}

TEST_F(PortsDock, DevicesCloseInAnyOrderWhileAnotherOneIsEdited)
{
    unsigned int seed = 1;
    const auto random = [&seed](int limit) {
        seed = seed * 1103515245u + 12345u;
        return int((seed >> 16) % unsigned(limit));
    };
    for (int round = 0; round < 20; ++round) {
        for (int i = 0; i < 6; ++i) {
            ports->addIOPlugin(ProcSimPorts::eDevType_t(random(3)), ProcSimIOPluginIf::eDirectionRdWr, 0)
                ->setBaseAddr(i, "");
            dock.refresh();
        }
        for (int i = 0; i < 6; ++i) {
            auto* edited = ports->devices().at(random(ports->devices().size()));
            type(field(edited, "Address"), "2");
            auto* closed = ports->devices().at(random(ports->devices().size()));
            if (random(2) == 0)
                click(closed, "procSimIOClose");
            else
                ports->removeIOPlugin(closed);
            if (ports->devices().contains(edited)) {
                EXPECT_EQ(static_cast<ProcSimIODevice*>(edited)->addr(), 2);
            }
            if (random(2) == 0)
                QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            dock.refresh();
        }
        EXPECT_TRUE(ports->devices().isEmpty());
    }
}

TEST(PortsDockLife, DevicesOutliveTheDockAndShowUpInTheNext)
{
    auto ports = std::make_shared<ProcSimPorts>();
    ports->setValue(3, "OUT", 1);
    QPointer<QWidget> view;
    {
        ProcSimIO dock(ports);
        dock.show();
        view = dock.viewOf(ports->devices().first());
        EXPECT_TRUE(dock.isAncestorOf(view));
    }
    EXPECT_TRUE(view.isNull());
    ports->setValue(3, "OUT", 2);
    ProcSimIO dock(ports);
    EXPECT_TRUE(dock.isAncestorOf(dock.viewOf(ports->devices().first())));
    dock.removeIOPlugins();
    EXPECT_TRUE(ports->devices().isEmpty());
}

TEST_F(PortsDock, TheColumnScrollsSidewaysInANarrowDockOnly)
{
    addReg(0x12)->setValue(0x12, "A_VERY_LONG_NAME_OF_A_PORT_THAT_FITS_NOWHERE", 0xFF);
    addFifo(1)->setValue(1, "X", 2);
    addMem(0x1234);
    for (int i = 0; i < 3; ++i) {
        if (i > 0)
            click(ports->devices().at(i), "procSimIOExpand");
        dock.refresh();
        QApplication::processEvents();
    }
    dock.resize(dock.sizeHint().width(), 300);
    QApplication::processEvents();
    auto* scroll = dock.findChild<QScrollArea*>("procSimIOScroll");
    EXPECT_LE(scroll->widget()->width(), scroll->viewport()->width());
    EXPECT_LE(dock.sizeHint().width(), 320);
    EXPECT_LE(dock.minimumSizeHint().width(), 160);
    dock.resize(dock.minimumSizeHint().width(), 300);
    QApplication::processEvents();
    EXPECT_EQ(dock.width(), dock.minimumSizeHint().width());
    // What does not fit can be reached.
    EXPECT_GT(scroll->horizontalScrollBar()->maximum(), 0);
    for (const QPushButton* button : dock.findChildren<QPushButton*>())
        EXPECT_TRUE(dock.rect().contains(QRect(button->mapTo(&dock, QPoint(0, 0)), button->size())));
}

TEST_F(PortsDock, AMillionWritesCostNoWidget)
{
    addReg(1);
    addFifo(2);
    addMem(0);
    click(ports->devices().at(1), "procSimIOExpand");
    click(ports->devices().at(2), "procSimIOExpand");
    const QString name = "OUT";
    dock.refresh();
    const int widgets = dock.findChildren<QWidget*>().size();
    for (int i = 0; i < 1000000; ++i)
        ports->setValue(i % 3, name, i & 0xFF);
    dock.refresh();
    EXPECT_EQ(dock.findChildren<QWidget*>().size(), widgets);
}
