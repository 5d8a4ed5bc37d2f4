#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace nsProc {
struct ProcTable;
}

namespace nsImport {

/// Gives the names of a foreign program names that the result can have: none is a word of its language or of the
/// processor, and no two differ by case alone. The same names in the same order come to the same result.
class ImportNames
{
public:
    /// What a name is for; also what is appended where the name is taken.
    enum eUse_t { eLabel, eConstant, eRegister };

    explicit ImportNames(const nsProc::ProcTable& table);

    /// A name that was not given before, the wanted one if it can be had.
    /// @param reason why it is another one; for the user
    QString make(const QString& wanted, eUse_t use, QString* reason);

private:
    QString refusal(const QString& name) const;
    static QString withAllowedCharacters(const QString& name);

    struct Taken
    {
        QString wanted;
        eUse_t use = eLabel;
    };

    QHash<QString, Taken> m_taken; ///< by lower case
    QHash<QString, int> m_numbers; ///< the next one for names that are made, by what they begin with
    QStringList m_registers;
    QStringList m_banks;
};

} // namespace nsImport
