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

} // namespace nsXPBlze6
