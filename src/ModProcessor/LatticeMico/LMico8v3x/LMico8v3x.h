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

    nsProc::ProcSim* createSim() override;

protected:
    nsProc::ProcAsmBe* createAsmBe() override;
    nsProc::ProcActionsSim* createActionsSim() override;
    nsProc::ProcConfigWidget* createConfigWidget() override;
};

} // namespace nsLMico8v3x
