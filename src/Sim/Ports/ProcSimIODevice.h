#pragma once

#include "ProcSimIOPluginIf.h"

#include <QString>

namespace nsProc {

/// What all devices at ports have in common: address, name, direction, base and marks.
///
/// A device is plain data: it needs no application object and knows no view. A view reads the device from time to time,
/// see takeChanged(); what the user types there changes the device at once.
class ProcSimIODevice : public ProcSimIOPluginIf
{
public:
    static constexpr int maxValue = 255;     ///< largest value that a field of a device shows
    static constexpr int maxAddr = 0xFFFF;   ///< largest address of a device
    static constexpr int noAddr = -1;        ///< a device that answers at no address
    static constexpr int maxPortAddr = 0xFF; ///< largest address that a processor can ask for

    ProcSimIODevice() = default;
    ProcSimIODevice(const ProcSimIODevice&) = delete;
    ProcSimIODevice& operator=(const ProcSimIODevice&) = delete;

    void setName(QString name) override;
    void setBase(int base) override;
    void setDirection(eDirection_t direction) override;
    bool chkDirection(eDirection_t direction) override;
    /// With an address that is out of range the device does not answer at any port.
    void setBaseAddr(int addr, QString name) override;
    bool chkAddr(int addr) override { return m_addr != noAddr && addr == m_addr; }
    void setHighlightEn(bool enabled) override;
    void clearHighlighted() override { setHighlightEn(false); }

    int base() const { return m_base; }
    /// 0 to maxAddr, or noAddr
    int addr() const { return m_addr; }
    /// The user's choice. @param addr 0 to maxAddr, others are limited
    void setAddr(int addr);
    /// The name by which the program last addressed the device; the device's own name until then.
    const QString& name() const { return m_usedName.isEmpty() ? m_name : m_usedName; }
    /// Selection of the direction: 1 read, 2 write, 4 read and write.
    int directionData() const { return m_directionData; }
    void setDirectionData(int data);
    bool isHighlighted() const { return m_highlighted; }

    /// @return true once after anything that the view shows has changed
    bool takeChanged();

    /// @return a number as devices show it: upper case, zeros in front up to the width of maxValue
    static QString text(unsigned int value, int base);
    /// @return false, with the value unchanged, if the text is no number in the base
    static bool number(const QString& text, int base, int* value);

protected:
    void setUsedName(const QString& name) { m_usedName = name; }
    void setChanged() { m_changed = true; }

private:
    QString m_name;
    QString m_usedName;
    int m_addr = 0;
    int m_base = 16;
    int m_directionData = 4;
    bool m_highlighted = false;
    bool m_changed = true;
};

} // namespace nsProc
