#pragma once

#include "SymbolTable.h"

#include <QString>
#include <QVector>

namespace nsModAsmFe {

class AsmWords;

/// Another name for a label or a constant: where the text changes, or why it must not.
class SymbolRename
{
public:
    /// @param table of the present sources; both must outlive the object
    /// @param words the names that are taken by language and processor
    SymbolRename(const SymbolTable& table, const AsmWords& words);

    /// Why the symbol can not be renamed at all, as a sentence; empty if it can.
    QString refusal(int symbol) const;
    /// Why it can not get this name; empty if it can. With the new name, all words of the program stay the same.
    QString refusal(int symbol, const QString& name) const;
    /// Where the old name stands, in the order of the sources.
    QVector<sSymbolPlace> places(int symbol) const { return m_table.placesOf(symbol); }

private:
    const SymbolTable& m_table;
    const AsmWords& m_words;
};

} // namespace nsModAsmFe
