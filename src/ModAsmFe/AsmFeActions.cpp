#include "AsmFeActions.h"

namespace nsModAsmFe {

AsmFeActions::AsmFeActions(QObject* parent)
    : ActionGroup(parent, ":/ModAsmFe/img/actions/")
{
    addEntries({
        {eActionAssemble, QT_TR_NOOP("Run assembler"),
         QT_TR_NOOP("Run assembler and write the output files of the save event"), "assemble", "Ctrl+B"},
        {eActionButton1, QT_TR_NOOP("Write output files button 1"), nullptr, "assemble1"},
        {eActionButton2, QT_TR_NOOP("Write output files button 2"), nullptr, "assemble2"},
    });
}

void AsmFeActions::setFiles(eAction_t action, const QStringList& files)
{
    if (files.isEmpty())
        resetLook(action);
    else
        setLook(action, nullptr, tr("Assembles and writes %1").arg(files.join(QLatin1String(", "))));
}

} // namespace nsModAsmFe
