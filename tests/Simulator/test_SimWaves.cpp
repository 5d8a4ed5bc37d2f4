// The wave viewer in the window: names of ports, the present time, what a user types.

#include "QtPrinters.h"
#include "SimWindow.h"

#include "ProcSimIO.h"
#include "ProcSimStatusBar.h"
#include "ProcSimVcd.h"
#include "ProcSimWaveTree.h"
#include "ProcSimWaveViewer.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QTest>

namespace {

using Data = nsProc::ProcSimWaveData;

const QStringList program = {
    "#EQU PORT_LEDS, 0x05",     // 0
    "#EQU BAUD, 9600",          // 1
    "#EQU EF, 0x21",            // 2
    "#EQU KEYS, sA",            // 3
    "    LOAD s1, PORT_LEDS",   // 4
    "loop:",                    // 5
    "    ADD s0, 1",            // 6
    "    WRPRT s0, PORT_LEDS",  // 7
    "    WRPRT s0, (s1)",       // 8
    "    RDPRT s2, 0x05",       // 9
    "    JUMP loop",            // 10
    "#NAMESPACE uart",          // 11
    "#EQU DATA, 0x10",          // 12
    "    WRPRT s0, DATA",       // 13
    "    RDPRT s0, DATA",       // 14
    "#ENDNAMESPACE",            // 15
    "    WRPRT s0, uart::DATA", // 16
    "    RET",                  // 17
};

class SimWaves : public SimWindow
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(start("XPBlze3", program)) << messageTexts().join('\n').toStdString();
        sim()->showWaveViewer();
        viewer = sim()->waveViewer();
        ASSERT_NE(viewer, nullptr);
        tree = viewer->findChild<nsProc::ProcSimWaveTree*>("procSimWaveTree");
        field = viewer->findChild<QLineEdit*>("procSimWaveAddr");
        ASSERT_TRUE(tree != nullptr && field != nullptr);
    }
    /// Types into the address field and presses Enter.
    void type(const QString& text, Data::eAccessType_t access = Data::eAccessWr)
    {
        viewer->findChild<QComboBox*>("procSimWaveAccess")->setCurrentIndex(access == Data::eAccessRd ? 0 : 1);
        field->setFocus();
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        QTest::keyClicks(field, text);
        QTest::keyClick(field, Qt::Key_Return);
    }
    QStringList ports() const
    {
        QStringList result;
        for (int row = 0; row < tree->topLevelItemCount(); ++row)
            result.append(tree->topLevelItem(row)->text(0));
        return result;
    }
    QString message() const { return viewer->findChild<QLabel*>("statusBarTitle")->text(); }
    QString moment() const { return viewer->findChild<QLabel*>("procSimWaveMoment")->text(); }
    bool isRefused() const { return field->property("problem").toBool(); }
    /// The wires of the dump.
    QStringList wires() const
    {
        QStringList result;
        for (const QByteArray& line : nsProc::ProcSimVcd::vcdText(*viewer->data(), 50e6).split('\n')) {
            if (line.startsWith("$var"))
                result.append(QString::fromLatin1(line).section(' ', 4, 4));
        }
        return result;
    }

    nsProc::ProcSimWaveViewer* viewer = nullptr;
    nsProc::ProcSimWaveTree* tree = nullptr;
    QLineEdit* field = nullptr;
};

TEST_F(SimWaves, AConstantOfTheProgramIsAnAddress)
{
    type("PORT_LEDS");
    EXPECT_NE(viewer->data()->channel(5, Data::eAccessWr), nullptr);
    EXPECT_EQ(viewer->data()->channels().size(), 1u);
    type("uart::DATA", Data::eAccessRd);
    EXPECT_NE(viewer->data()->channel(0x10, Data::eAccessRd), nullptr);
    EXPECT_EQ(ports(), (QStringList{"Write PORT_LEDS", "Read uart::DATA"}));
    EXPECT_EQ(message(), "");
    EXPECT_FALSE(isRefused());
    // A number is a number, unless the program has a constant of that name.
    type("1C");
    EXPECT_NE(viewer->data()->channel(0x1C, Data::eAccessWr), nullptr);
    type("EF");
    EXPECT_NE(viewer->data()->channel(0x21, Data::eAccessWr), nullptr);
    EXPECT_EQ(viewer->data()->channel(0xEF, Data::eAccessWr), nullptr);
    type("0EF");
    EXPECT_NE(viewer->data()->channel(0xEF, Data::eAccessWr), nullptr);
}

TEST_F(SimWaves, WhatIsNeitherNumberNorConstantIsRefusedInSight)
{
    for (const char* typed : {"PORT_LED", "port_leds", "LOAD", "1FF", "12G", "-1", "DATA"}) {
        const QString text(typed);
        type(text);
        EXPECT_TRUE(viewer->data()->isEmpty()) << text.toStdString();
        EXPECT_EQ(field->text(), text);
        EXPECT_EQ(message(), "No address from 00 to FF: \"" + text + "\"");
        EXPECT_TRUE(isRefused()) << text.toStdString();
        EXPECT_TRUE(field->hasFocus());
    }
    // These are constants, but no ports.
    type("BAUD");
    EXPECT_EQ(message(), "No address from 00 to FF: \"BAUD\"");
    EXPECT_EQ(viewer->findChild<QLabel*>("statusBarTitle")->toolTip(),
              "\"BAUD\" is neither an address from 00 to FF nor a constant with such a value.");
    EXPECT_TRUE(isRefused());
    type("KEYS");
    EXPECT_EQ(message(), "No address from 00 to FF: \"KEYS\"");
    EXPECT_TRUE(viewer->data()->isEmpty());
    // The sign goes as soon as the text changes.
    QTest::keyClicks(field, "x");
    EXPECT_FALSE(isRefused());
    type("");
    EXPECT_TRUE(isRefused());
    EXPECT_EQ(message(), "Enter an address from 00 to FF, or a constant.");
    type("PORT_LEDS");
    EXPECT_FALSE(isRefused());
    EXPECT_EQ(message(), "");
}

TEST_F(SimWaves, ANameStaysInTheFieldWhenTheBaseChanges)
{
    field->setText("EF");
    trigger(Action::eActionBaseDec);
    EXPECT_EQ(field->text(), "EF");
    field->setText("100");
    trigger(Action::eActionBaseHex);
    EXPECT_EQ(field->text(), "64");
}

TEST_F(SimWaves, APortHasTheNameThatTheProgramHasForIt)
{
    // By number, before anything has passed.
    type("5");
    type("5", Data::eAccessRd);
    type("10");
    type("10", Data::eAccessRd);
    EXPECT_EQ(ports(), (QStringList{"Write PORT_LEDS", "Read 05", "Write uart::DATA", "Read uart::DATA"}));
    EXPECT_EQ(wires(),
              (QStringList{"port_05_wr_PORT_LEDS", "port_05_rd", "port_10_wr_uart__DATA", "port_10_rd_uart__DATA"}));
    EXPECT_EQ(tree->topLevelItem(0)->toolTip(0), "Write 05, PORT_LEDS");
    EXPECT_EQ(tree->topLevelItem(0)->child(0)->text(0), "[7]");
    // An access by a register does not rename it.
    for (int step = 0; step < 4; ++step)
        trigger(Action::eActionNextInstruction);
    EXPECT_EQ(viewer->data()->channel(5, Data::eAccessWr)->values.size(), 2u);
    EXPECT_EQ(ports().first(), "Write PORT_LEDS");
    type("5");
    EXPECT_EQ(message(), "\"Write PORT_LEDS\" is shown already.");
}

TEST_F(SimWaves, NamesFollowTheProgram)
{
    type("5");
    type("10", Data::eAccessRd);
    QStringList changed = program;
    changed[0] = "#EQU LAMPS, 0x05";
    changed[4] = "    LOAD s1, LAMPS";
    changed[7] = "    WRPRT s0, LAMPS";
    changed[12] = "#EQU DATA, 0x11";
    writeSource(changed);
    ASSERT_TRUE(assemble()) << messageTexts().join('\n').toStdString();
    EXPECT_EQ(ports(), (QStringList{"Write LAMPS", "Read 10"}));
    EXPECT_EQ(wires(), (QStringList{"port_05_wr_LAMPS", "port_10_rd"}));
    // A failed run has no names: nothing can be looked up, and nothing is lost.
    writeSource({"this is nothing"});
    ASSERT_FALSE(assemble());
    EXPECT_EQ(ports().first(), "Write LAMPS");
    type("LAMPS");
    EXPECT_TRUE(isRefused());
    screenshot("sim-waves-refused", viewer);
    type("7");
    EXPECT_EQ(ports().last(), "Write 07");
}

TEST_F(SimWaves, ANameThatTheUserHasTypedStaysWhileItHolds)
{
    type("BAUD");
    ASSERT_TRUE(isRefused());
    type("EF");
    EXPECT_EQ(ports(), QStringList{"Write EF"});
    ASSERT_TRUE(assemble());
    EXPECT_EQ(ports(), QStringList{"Write EF"});
    QStringList changed = program;
    changed[2] = "#EQU EF, 0x22";
    writeSource(changed);
    ASSERT_TRUE(assemble());
    EXPECT_EQ(ports(), QStringList{"Write 21"});
}

TEST_F(SimWaves, TimeIsUpToDateAfterAHiddenRun)
{
    type("PORT_LEDS");
    trigger(Action::eActionNextInstruction);
    QCoreApplication::processEvents();
    ASSERT_EQ(moment(), "Now 2 clocks");
    // The user looks at something else in the bottom dock, while the program runs without updates of the waves.
    auto* gui = module<ModGuiHookIf>();
    gui->setCurrentWidget(messageView());
    ASSERT_FALSE(viewer->isVisible());
    sim()->simOpcode();
    sim()->updateWidgets();
    ASSERT_FALSE(viewer->isVisible());
    gui->setCurrentWidget(viewer);
    ASSERT_TRUE(viewer->isVisible());
    EXPECT_EQ(moment(), "Now 4 clocks");
    // The same for a count that was cleared.
    gui->setCurrentWidget(messageView());
    ASSERT_FALSE(viewer->isVisible());
    sim()->statusBarWidget()->clear();
    gui->setCurrentWidget(viewer);
    EXPECT_EQ(moment(), "Now 0 clocks");
}

} // namespace
