#include "AsmPermissions.h"

#include "AsmPrograms.h"

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

bool AsmPermissions::runExternalPrograms(nsModAsmFe::AsmFeConfig::eAssembleEvent_t event)
{
    using nsModAsmFe::AsmFeConfig;
    nsModSyscall::eEvent_t programEvent = nsModSyscall::eEventButton1;
    if (event == AsmFeConfig::eEventButton2)
        programEvent = nsModSyscall::eEventButton2;
    else if (event == AsmFeConfig::eEventSave)
        programEvent = nsModSyscall::eEventSave;
    if (m_runPrograms)
        return m_programs.run(programEvent);
    m_programs.leaveOut(programEvent);
    return true;
}

} // namespace nsNalvoAsm
