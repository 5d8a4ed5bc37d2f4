#pragma once

#include "ProcSimCore.h"

namespace nsXPBlze3 {

/// The dock of a simulated PicoBlaze 3.
class XPBlze3SimCore : public nsProc::ProcSimCore
{
    Q_OBJECT

public:
    XPBlze3SimCore(const std::shared_ptr<nsProc::ProcSimCoreData>& data, int pcMax, QWidget* parent = nullptr);
    /// With a state of its own.
    XPBlze3SimCore(int scrpdSize, int pcMax, QWidget* parent = nullptr);
};

} // namespace nsXPBlze3
