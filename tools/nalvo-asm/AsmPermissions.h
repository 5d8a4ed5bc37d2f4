#pragma once

#include "AsmRunListener.h"

#include <QCoreApplication>

namespace nsNalvoAsm {

/// What a run may do beside assembling, as the command line says.
///
/// Who starts the program has chosen the project, and with it the outputs that its settings name; a source that the
/// project took from elsewhere is not read first.
class AsmPermissions : public nsModAsmFe::AsmRunListener
{
    Q_DECLARE_TR_FUNCTIONS(AsmPermissions)

public:
    /// @param allowOutside sources may name outputs outside of the project's folder, too
    explicit AsmPermissions(bool allowOutside)
        : m_allowOutside(allowOutside)
    {
    }

    QStringList refusedOutputs(const QVector<nsModAsmFe::AsmOutsideFile>& files) override;
    QString refusalHint() override;

private:
    bool m_allowOutside;
};

} // namespace nsNalvoAsm
