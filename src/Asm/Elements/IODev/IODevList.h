#pragma once

#include "IODev.h"

#include <QList>

namespace nsModAsmFe {

/// The IO devices of the program, in the order of their declaration. Owns them.
class IODevList
{
public:
    IODevList() = default;
    ~IODevList();
    IODevList(const IODevList&) = delete;
    IODevList& operator=(const IODevList&) = delete;

    /// Deletes all elements.
    void clear();
    /// Takes the ownership.
    void append(IODev* dev);
    /// Null if the list is empty.
    IODev* first() const { return m_devs.isEmpty() ? nullptr : m_devs.first(); }
    const QList<IODev*>& devices() const { return m_devs; }
    /// Dumps the list to standard output.
    void print() const;
    void print(const IODev* dev) const;

    /// Names are compared as written.
    bool contains(const QString& devName) const { return find(devName) != nullptr; }
    IODev* find(const QString& devName) const;

private:
    QList<IODev*> m_devs;
};

} // namespace nsModAsmFe
