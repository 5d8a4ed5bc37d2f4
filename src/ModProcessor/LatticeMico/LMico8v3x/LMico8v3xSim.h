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
    int regCount() const override { return config().regCount; }
    int clocksOfInstr() const override { return config().instrClkCnt; }

private:
    bool simOpcode_rot() { return simOpcode_sr(); }
    bool simOpcode_clr() { return setFlag(0); }
    bool simOpcode_set() { return setFlag(1); }
    bool setFlag(int value);
};

} // namespace nsLMico8v3x
