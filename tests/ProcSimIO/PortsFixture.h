#pragma once

#include "ProcSimEdtBit.h"
#include "ProcSimEdtDirection.h"
#include "ProcSimEdtFifo.h"
#include "ProcSimEdtNumeric.h"
#include "ProcSimIO.h"
#include "ProcSimIODeviceView.h"
#include "ProcSimIOFifo.h"
#include "ProcSimIOMem.h"
#include "ProcSimIOReg8Bit.h"
#include "QtPrinters.h"

#include "Readable.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QToolButton>

/// The dock on the screen, in the look of the program, with its ports.
class PortsFixture : public testing::Test
{
protected:
    PortsFixture()
    {
        QFile style(QStringLiteral(NALVO_SOURCE_DIR "/src/Resources/styles/stylesheet.css"));
        EXPECT_TRUE(style.open(QIODevice::ReadOnly));
        dock.setStyleSheet(
            Colors::filled(QString::fromUtf8(style.readAll()) + "QWidget#procSimIO { background-color: @ground; }"));
        dock.resize(280, 600);
        dock.show();
        QApplication::setActiveWindow(&dock);
    }

    template <typename Device>
    Device* add(nsProc::ProcSimPorts::eDevType_t type, int addr,
                nsProc::ProcSimIOPluginIf::eDirection_t direction = nsProc::ProcSimIOPluginIf::eDirectionRdWr)
    {
        auto* device = dynamic_cast<Device*>(ports->addIOPlugin(type, direction, 0));
        device->setBaseAddr(addr, QString());
        dock.refresh();
        return device;
    }
    nsProc::ProcSimIOReg8Bit* addReg(int addr)
    {
        return add<nsProc::ProcSimIOReg8Bit>(nsProc::ProcSimPorts::eDevReg, addr);
    }
    nsProc::ProcSimIOFifo* addFifo(int addr)
    {
        return add<nsProc::ProcSimIOFifo>(nsProc::ProcSimPorts::eDevFifo, addr);
    }
    nsProc::ProcSimIOMem* addMem(int addr) { return add<nsProc::ProcSimIOMem>(nsProc::ProcSimPorts::eDevMem, addr); }

    /// A control of a card, by its object name.
    template <typename Widget>
    Widget* part(nsProc::ProcSimIOPluginIf* device, const char* name) const
    {
        auto* widget = dock.viewOf(device)->findChild<Widget*>(name);
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    /// A number field of a card, by its tool tip.
    nsProc::ProcSimEdtNumeric* field(nsProc::ProcSimIOPluginIf* device, const char* toolTip) const
    {
        const auto fields = dock.viewOf(device)->findChildren<nsProc::ProcSimEdtNumeric*>();
        for (auto* edit : fields) {
            if (edit->toolTip() == toolTip)
                return edit;
        }
        ADD_FAILURE() << toolTip;
        return nullptr;
    }
    static void type(QWidget* field, const QString& text)
    {
        field->setFocus();
        QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(field, text);
    }
    void click(nsProc::ProcSimIOPluginIf* device, const char* button) const
    {
        QTest::mouseClick(part<QToolButton>(device, button), Qt::LeftButton);
    }
    void clickDock(const char* button) { QTest::mouseClick(dock.findChild<QPushButton*>(button), Qt::LeftButton); }
    void screenshot(const char* name)
    {
        QApplication::processEvents();
        QDir().mkpath(NALVO_BINARY_DIR "/screenshots");
        EXPECT_TRUE(expectReadable(&dock).save(QString(NALVO_BINARY_DIR "/screenshots/ports-%1.png").arg(name)));
    }

    std::shared_ptr<nsProc::ProcSimPorts> ports = std::make_shared<nsProc::ProcSimPorts>();
    nsProc::ProcSimIO dock{ports};
};
