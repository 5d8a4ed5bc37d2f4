#pragma once

#include "ProcSimCore.h"

namespace nsLMico8v3x {

/// The dock of a simulated Mico8.
class LMico8v3xSimCore : public nsProc::ProcSimCore
{
    Q_OBJECT

public:
    LMico8v3xSimCore(const std::shared_ptr<nsProc::ProcSimCoreData>& data, int pcMax, QWidget* parent = nullptr);
    /// With a state of its own.
    LMico8v3xSimCore(int regCount, int scrpdSize, int pcMax, QWidget* parent = nullptr);
};

} // namespace nsLMico8v3x
