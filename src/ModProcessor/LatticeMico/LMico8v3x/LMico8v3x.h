#pragma once

#include "LMico8v3xConfig.h"
#include "ProcShell.h"

namespace nsLMico8v3x {

/// The Mico8 v3.x.
class LMico8v3x : public nsProc::ProcShell, public LMico8v3xConfig
{
    Q_OBJECT

public:
    explicit LMico8v3x(QObject* parent = nullptr);

    QString processorName() override;
    nsProc::ProcSim* createSim() override;

protected:
    nsProc::ProcAsmBe* createAsmBe() override;
    nsProc::ProcActionsSim* createActionsSim() override;
    QString cfgSection() const override;
    nsProc::ProcCoreConfig defaultConfig() const override;
    nsProc::ProcConfigWidget* createConfigWidget() override;
    QList<sCfgNumber> cfgNumbers(nsProc::ProcCoreConfig* settings) const override;
};

} // namespace nsLMico8v3x
