#pragma once

#include <QString>
#include <QStringView>

#include <vector>

namespace nsModAsmFe {

/// Gives equal texts one shared QString, so that the thousands of `LOAD` and `s0` of a program exist once.
class StringPool
{
public:
    StringPool();

    /// The shared text equal to the view.
    const QString& intern(QStringView text);
    /// The shared text equal to the view in upper case.
    const QString& internUpper(QStringView text);
    void clear();

private:
    void grow();

    std::vector<QString> m_slots; ///< a power of two; a null string is a free slot
    size_t m_used = 0;
    uint m_seed;
    QString m_empty;
};

} // namespace nsModAsmFe
