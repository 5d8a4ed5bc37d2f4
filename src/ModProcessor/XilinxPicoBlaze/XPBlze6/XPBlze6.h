#pragma once

#include "ProcShell.h"
#include "XPBlze6Config.h"

namespace nsXPBlze6 {

/// The PicoBlaze 6.
class XPBlze6 : public nsProc::ProcShell, public XPBlze6Config
{
    Q_OBJECT

public:
    explicit XPBlze6(QObject* parent = nullptr);

    nsProc::ProcSim* createSim() override;

protected:
    nsProc::ProcAsmBe* createAsmBe() override;
    nsProc::ProcActionsSim* createActionsSim() override;
    nsProc::ProcConfigWidget* createConfigWidget() override;
};

} // namespace nsXPBlze6
