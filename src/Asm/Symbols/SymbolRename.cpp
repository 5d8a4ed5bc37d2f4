#include "SymbolRename.h"

#include "AsmFeMsgCatalogue.h"
#include "AsmFeMsgHndlr.h"
#include "SymbolChecker.h"

namespace nsModAsmFe {

SymbolRename::SymbolRename(const SymbolTable& table, const AsmWords& words)
    : m_table(table)
    , m_words(words)
{
}

QString SymbolRename::refusal(int symbol) const
{
    if (symbol < 0 || symbol >= m_table.symbols().size())
        return AsmFeMsgHndlr::tr("There is no label and no constant here.");
    const eSymbolKind_t kind = m_table.symbol(symbol).kind;
    if (kind != symbolLabel && kind != symbolConstant)
        return AsmFeMsgHndlr::tr("Only labels and constants can be renamed.");
    if (!m_table.isAssembled)
        return AsmFeMsgHndlr::tr("The last run has not assembled the program. Only an assembled program can be "
                                 "renamed in, as only its names are known for certain.");
    return QString();
}

QString SymbolRename::refusal(int symbol, const QString& name) const
{
    const QString refused = refusal(symbol);
    if (!refused.isEmpty())
        return refused;
    const sSymbol& renamed = m_table.symbol(symbol);
    if (name.isEmpty())
        return AsmFeMsgHndlr::tr("A name has at least one character.");
    if (name == renamed.name)
        return AsmFeMsgHndlr::tr("This is the present name.");
    eMsgType_t fault = errInternal;
    if (!SymbolChecker::mayBeNamed(m_words, name, &fault))
        return AsmFeMsgHndlr::tr(msgText(fault)->text).replace(QLatin1String("%1"), name);
    for (int other : m_table.named(name)) {
        const sSymbol& taken = m_table.symbol(other);
        // A label must not have the name of a constant in any namespace.
        const bool isRival = taken.kind == symbolLabel || taken.kind == symbolConstant;
        if (isRival && (taken.kind != renamed.kind || taken.nameSpace == renamed.nameSpace))
            return (taken.kind == symbolLabel ? AsmFeMsgHndlr::tr("There is a label of this name: %1")
                                              : AsmFeMsgHndlr::tr("There is a constant of this name: %1"))
                .arg(taken.fullName());
    }
    return QString();
}

} // namespace nsModAsmFe
