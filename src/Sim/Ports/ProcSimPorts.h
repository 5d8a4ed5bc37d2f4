#pragma once

#include "ProcSimIOPluginIf.h"

#include <QString>
#include <QVector>

namespace nsProc {

/// Is notified of added and removed devices, to show them.
class ProcSimPortsListener
{
public:
    virtual ~ProcSimPortsListener() = default;

    virtual void deviceAdded(ProcSimIOPluginIf* device) = 0;
    /// The device is deleted when this returns.
    virtual void deviceRemoved(ProcSimIOPluginIf* device) = 0;
};

/// The ports of a simulated processor: the devices that stand at them, in the order in which they were added. Owns the
/// devices.
///
/// The first device that answers at an address in the asked direction serves an access. Where there is none, one is
/// added: a register that the user fills in for a read, a FIFO that collects the values for a write. Uses no widgets.
class ProcSimPorts : public ProcSimIOHookIf
{
public:
    enum eDevType_t { eDevReg = 0, eDevFifo = 1, eDevMem = 2 };
    using eDirection_t = ProcSimIOPluginIf::eDirection_t;

    ProcSimPorts() = default;
    ~ProcSimPorts() override;
    ProcSimPorts(const ProcSimPorts&) = delete;
    ProcSimPorts& operator=(const ProcSimPorts&) = delete;

    /// @param listener null for none; not owned, must outlive its entry
    void setListener(ProcSimPortsListener* listener) { m_listener = listener; }
    const QVector<ProcSimIOPluginIf*>& devices() const { return m_devices; }

    /// Adds a device with the present base. @return owned by this object
    ProcSimIOPluginIf* addIOPlugin(eDevType_t type, eDirection_t direction, int initValue);
    void removeIOPlugin(ProcSimIOPluginIf* plugin) override;
    void removeIOPlugins();

    /// Is there a device that the program can read at this address? If not, a register for reading is added.
    /// @return false if a device had to be added
    bool chkIOPluginToRd(int addr, const QString& name);
    /// @return a device that answers a read at this address; null if there is none
    ProcSimIOPluginIf* deviceToRead(int addr) const { return find(addr, ProcSimIOPluginIf::eDirectionRd); }
    /// The program reads.
    /// @return false if no value is there; a register is added where there is no device
    bool value(int addr, const QString& name, int* value);
    /// The program writes. This never fails: a FIFO for writing is added where there is no device.
    bool setValue(int addr, const QString& name, int value);

    void clear();
    void clearHighlighted();
    /// The same for the start of each instruction; fast if no device was accessed since.
    void clearTouched();
    /// @param base 8, 10 or 16
    void setBase(int base);
    int base() const { return m_base; }

    /// @return true once after a write that has changed a device: the widget of the ports is then brought to the front
    bool takeContentChanged();

private:
    ProcSimIOPluginIf* find(int addr, eDirection_t direction) const;

    QVector<ProcSimIOPluginIf*> m_devices;
    ProcSimPortsListener* m_listener = nullptr;
    int m_base = 16;
    bool m_touched = false;
    bool m_contentChanged = false;
};

} // namespace nsProc
