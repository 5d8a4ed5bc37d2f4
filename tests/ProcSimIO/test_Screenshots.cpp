// Pictures of the dock in its main states, for a person to look at.

#include "PortsFixture.h"

using namespace nsProc;

class PortsScreenshots : public PortsFixture
{
};

TEST_F(PortsScreenshots, Empty)
{
    screenshot("empty");
    EXPECT_TRUE(dock.findChild<QLabel*>("procSimIOHint")->isVisible());
}

TEST_F(PortsScreenshots, AllKinds)
{
    addReg(0x12)->setValue(0x12, "KEYS", 0x5A);
    addFifo(0x20)->setValue(0x20, "LEDS_OF_THE_FRONT_PANEL", 0x33);
    addMem(0)->setValue(7, "BUFFER", 0x44);
    dock.refresh();
    screenshot("collapsed");
    for (int i = 1; i < 3; ++i)
        click(ports->devices().at(i), "procSimIOExpand");
    for (int value : {0x11, 0x22})
        ports->setValue(0x20, "LEDS_OF_THE_FRONT_PANEL", value);
    dock.refresh();
    dock.resize(300, 900);
    QApplication::processEvents();
    screenshot("expanded");
    EXPECT_TRUE(part<ProcSimEdtFifo>(ports->devices().at(1), "procSimEdtFifo")->isVisible());
    dock.resize(280, 300);
    screenshot("scrolled");
}
