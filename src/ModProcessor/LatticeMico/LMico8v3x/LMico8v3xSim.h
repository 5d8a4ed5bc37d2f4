#pragma once

#include "ProcSim.h"

namespace nsLMico8v3x {

/// The simulator of the Mico8.
class LMico8v3xSim : public nsProc::ProcSim
{
    Q_OBJECT

public:
    explicit LMico8v3xSim(QObject* parent = nullptr);

protected:
    nsProc::ProcSimCore* createCoreWidget(const std::shared_ptr<nsProc::ProcSimCoreData>& data, int pcMax) override;
};

} // namespace nsLMico8v3x
