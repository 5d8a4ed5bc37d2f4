#pragma once

#include "ProcShell.h"
#include "XPBlze3Config.h"

namespace nsXPBlze3 {

/// The PicoBlaze 3.
class XPBlze3 : public nsProc::ProcShell, public XPBlze3Config
{
    Q_OBJECT

public:
    explicit XPBlze3(QObject* parent = nullptr);

    nsProc::ProcSim* createSim() override;

protected:
    nsProc::ProcAsmBe* createAsmBe() override;
    nsProc::ProcActionsSim* createActionsSim() override;
    nsProc::ProcConfigWidget* createConfigWidget() override;
};

} // namespace nsXPBlze3
