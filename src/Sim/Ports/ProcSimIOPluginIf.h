#pragma once

#include <QString>

namespace nsProc {

class ProcSimIOPluginIf;

/// What a simulated IO device can request from its list.
class ProcSimIOHookIf
{
public:
    virtual ~ProcSimIOHookIf() = default;

    /// Removes the device from the list and deletes it.
    virtual void removeIOPlugin(ProcSimIOPluginIf* plugin) = 0;
};

/// A simulated IO device at a port of the processor.
class ProcSimIOPluginIf
{
public:
    enum eDirection_t { eDirectionRd = 0, eDirectionWr = 1, eDirectionRdWr = 2 };

    virtual ~ProcSimIOPluginIf() = default;

    /// Device name, shown in the address line.
    virtual void setName(QString name) = 0;
    /// @param base 8, 10 or 16
    virtual void setBase(int base) = 0;
    /// Initial contents.
    virtual void initValue(unsigned int* values, int count) = 0;
    /// The program writes the port.
    /// @param name name that the program used for the address
    virtual void setValue(int addr, QString name, int value) = 0;
    /// The program reads the port.
    /// @return false if nothing can be read
    virtual bool value(int addr, QString name, int* value) = 0;
    /// Size in words; devices without a size ignore it.
    virtual void setMemSize(int size) = 0;
    virtual void setDirection(eDirection_t direction) = 0;
    virtual bool chkDirection(eDirection_t direction) = 0;
    virtual void setBaseAddr(int addr, QString name) = 0;
    /// @return the device answers at the address
    virtual bool chkAddr(int addr) = 0;
    virtual void setHighlightEn(bool enabled) = 0;
    virtual void clearHighlighted() = 0;
    virtual void clear() = 0;
    /// @return a write of the value at the address would leave the contents as they are
    virtual bool holds(int /*addr*/, int /*value*/) const { return false; }

    /// Set by the list while the device stands in it. Not owned.
    ProcSimIOHookIf* procSimIOHook = nullptr;
};

} // namespace nsProc
