#pragma once

#include "ProcSim.h"

namespace nsXPBlze6 {

/// The simulator of the PicoBlaze 6.
class XPBlze6Sim : public nsProc::ProcSim
{
    Q_OBJECT

public:
    explicit XPBlze6Sim(QObject* parent = nullptr);

protected:
    nsProc::ProcSimCore* createCoreWidget(const std::shared_ptr<nsProc::ProcSimCoreData>& data, int pcMax) override;
};

} // namespace nsXPBlze6
