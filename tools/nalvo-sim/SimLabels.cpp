#include "SimLabels.h"

#include "AsmProgram.h"
#include "BatchOutput.h"
#include "EditDistance.h"
#include "LabelTarget.h"
#include "SimProject.h"
#include "SymbolHash.h"

#include <QCoreApplication>

#include <algorithm>
#include <vector>

namespace nsNalvoSim {

using namespace nsModAsmFe;

namespace {

const int shownNames = 5;
const int longestName = 64; ///< names beyond that are only compared as a whole

QString tr(const char* text)
{
    return QCoreApplication::translate("nalvo-sim", text);
}

QString withoutNameSpace(const QString& name)
{
    const int colons = name.lastIndexOf("::");
    return colons < 0 ? name : name.mid(colons + 2);
}

} // namespace

QStringList nearNames(const QStringList& names, const QString& wanted)
{
    const QString lower = wanted.toLower();
    const QString local = withoutNameSpace(lower);
    const int limit = std::max(2, local.size() / 3);
    std::vector<std::pair<int, QString>> ranked;
    for (const QString& name : names) {
        const QString other = name.toLower();
        const QString otherLocal = withoutNameSpace(other);
        int rank = otherLocal == local ? int(other != lower) : limit + 1;
        const bool isComparable = lower.size() <= longestName && other.size() <= longestName;
        if (rank > limit && isComparable)
            rank = 1 + std::min(nsBatch::editDistance(lower, other), nsBatch::editDistance(local, otherLocal));
        if (rank <= limit + 1 && (isComparable || rank <= 1))
            ranked.emplace_back(rank, name);
    }
    std::sort(ranked.begin(), ranked.end());
    ranked.erase(std::unique(ranked.begin(), ranked.end()), ranked.end());
    QStringList result;
    for (size_t i = 0; i < ranked.size() && i < size_t(shownNames); ++i)
        result.append(ranked[i].second);
    return result;
}

Opcode* opcodeOfLabel(const SimProject& project, const QString& name, QString* failure)
{
    const LabelTarget target = LabelTarget::find(project.program->labels, project.program->opcodes, name);
    if (target.label == nullptr) {
        *failure = tr("No such label: %1").arg(name);
        QString wanted = QString::fromLatin1(name.toLocal8Bit());
        if (wanted.startsWith("::"))
            wanted.remove(0, 2);
        const QStringList near = nearNames(project.program->labels.nameList(), wanted);
        if (!near.isEmpty())
            *failure += tr(" (near: %1)").arg(nsBatch::readable(near.join(", ")));
        return nullptr;
    }
    if (target.opcode == nullptr)
        *failure = tr("No instruction stands at or behind the label: %1").arg(name);
    return target.opcode;
}

} // namespace nsNalvoSim
