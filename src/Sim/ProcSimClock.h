#pragma once

#include <QtGlobal>

namespace nsProc {

/// The clock cycles that a simulated processor has taken since the user cleared the count.
struct ProcSimClock
{
    qint64 clocks = 0;
};

} // namespace nsProc
