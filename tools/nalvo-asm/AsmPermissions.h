#pragma once

#include "AsmRunListener.h"

#include <QCoreApplication>

namespace nsNalvoAsm {

class AsmPrograms;

/// What a run may do beside assembling, as the command line says.
///
/// Who starts the program has chosen the project, and with it the outputs that its settings name; a source that the
/// project took from elsewhere is not read first.
class AsmPermissions : public nsModAsmFe::AsmRunListener
{
    Q_DECLARE_TR_FUNCTIONS(AsmPermissions)

public:
    /// @param allowOutside sources may name outputs outside of the project's folder, too
    /// @param programs those of the project; not owned
    /// @param runPrograms they may be run
    AsmPermissions(bool allowOutside, AsmPrograms& programs, bool runPrograms)
        : m_allowOutside(allowOutside)
        , m_programs(programs)
        , m_runPrograms(runPrograms)
    {
    }

    QStringList refusedOutputs(const QVector<nsModAsmFe::AsmOutsideFile>& files) override;
    QString refusalHint() override;
    bool runExternalPrograms(nsModAsmFe::AsmFeConfig::eAssembleEvent_t event) override;

private:
    bool m_allowOutside;
    AsmPrograms& m_programs;
    bool m_runPrograms;
};

} // namespace nsNalvoAsm
