#pragma once

#include <QList>
#include <QStringList>

namespace nsModProcessor {

class ProcPluginIf;

/// All processors that the program knows. Owns them.
class ProcList
{
public:
    /// Creates one object of each processor.
    ProcList();
    ~ProcList();
    ProcList(const ProcList&) = delete;
    ProcList& operator=(const ProcList&) = delete;

    /// The processor with this display name, null if there is none.
    ProcPluginIf* interface(const QString& name) const;
    const QList<ProcPluginIf*>& processors() const { return m_processors; }
    /// All display names, sorted.
    QStringList nameList() const;
    /// Shuts down and deletes all processors.
    void clear();

private:
    QList<ProcPluginIf*> m_processors;
};

} // namespace nsModProcessor
