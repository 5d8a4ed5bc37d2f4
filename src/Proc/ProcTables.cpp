#include "ProcTables.h"

namespace nsProc {

const QVector<const ProcTable*>& procTables()
{
    static const QVector<const ProcTable*> tables = {&lMico8v3xTable(), &xpBlze6Table(), &xpBlze3Table()};
    return tables;
}

const ProcTable* procTable(const QString& name)
{
    for (const ProcTable* table : procTables()) {
        if (name == QLatin1String(table->name))
            return table;
    }
    return nullptr;
}

} // namespace nsProc
