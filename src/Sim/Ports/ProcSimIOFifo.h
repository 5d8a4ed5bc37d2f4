#pragma once

#include "ProcSimFifoLines.h"
#include "ProcSimIODevice.h"

namespace nsProc {

/// A list of values at a port: collects what the program writes, or hands out what the user has typed.
class ProcSimIOFifo : public ProcSimIODevice
{
public:
    /// What the label beside the last value says.
    enum eAccess_t { eAccessNone, eAccessRd, eAccessWr };

    /// @param initValue last value shown at first, 0 to 255
    explicit ProcSimIOFifo(int initValue);

    void setBase(int base) override;
    void initValue(unsigned int* values, int count) override;
    /// Keeps the address: the device has one list for its port.
    void setValue(int addr, QString name, int value) override;
    bool value(int addr, QString name, int* value) override;
    void setMemSize(int size) override { Q_UNUSED(size) }
    void clear() override;

    ProcSimFifoLines& lines() { return m_lines; }
    /// The user has typed in the list; see ProcSimFifoLines::replace().
    void replaceLines(int first, int removed, const QStringList& texts);
    int lastValue() const { return m_lastValue; }
    eAccess_t lastAccess() const { return m_lastAccess; }
    /// The list is shown. A read that finds nothing opens it.
    bool isExpanded() const { return m_expanded; }
    void setExpanded(bool expanded);

private:
    void setLastValue(int value, eAccess_t access);

    ProcSimFifoLines m_lines;
    int m_lastValue = 0;
    eAccess_t m_lastAccess = eAccessNone;
    bool m_expanded = false;
};

} // namespace nsProc
