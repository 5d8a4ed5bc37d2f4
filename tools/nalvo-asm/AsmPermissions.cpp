#include "AsmPermissions.h"

namespace nsNalvoAsm {

QStringList AsmPermissions::refusedOutputs(const QVector<nsModAsmFe::AsmOutsideFile>& files)
{
    QStringList refused;
    for (const nsModAsmFe::AsmOutsideFile& outside : files) {
        if (outside.bySource && !m_allowOutside)
            refused.append(outside.file);
    }
    return refused;
}

QString AsmPermissions::refusalHint()
{
    return tr("a source names it; --allow-outside writes it");
}

} // namespace nsNalvoAsm
