#pragma once

#include "ForeignDialect.h"

#include <QHash>
#include <QString>
#include <QVector>

namespace nsImport {

/// The names of registers at one place of a program that renames them.
class RegisterNames
{
public:
    explicit RegisterNames(const ForeignDialect& dialect)
        : m_dialect(&dialect)
        , m_free(64, false)
    {
    }

    /// -1 if no register has this name here.
    int registerOf(const QString& name) const;
    /// Gives the register of a name another name; the old one is free then.
    /// @return the register; -1 if there is none, -2 if the new name is another register's
    int rename(const QString& from, const QString& to);

private:
    QString keyOf(const QString& name) const;

    const ForeignDialect* m_dialect;
    QHash<QString, int> m_names; ///< other than the original ones
    QVector<bool> m_free;        ///< by register: it does not have its original name
};

} // namespace nsImport
