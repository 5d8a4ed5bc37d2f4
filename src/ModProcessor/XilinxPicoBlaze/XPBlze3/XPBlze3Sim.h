#pragma once

#include "ProcSim.h"

namespace nsXPBlze3 {

/// The simulator of the PicoBlaze 3.
class XPBlze3Sim : public nsProc::ProcSim
{
    Q_OBJECT

public:
    explicit XPBlze3Sim(QObject* parent = nullptr);

protected:
    nsProc::ProcSimCore* createCoreWidget(const std::shared_ptr<nsProc::ProcSimCoreData>& data, int pcMax) override;
};

} // namespace nsXPBlze3
