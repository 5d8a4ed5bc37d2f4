#pragma once

#include "ProcActionsSim.h"

namespace nsXPBlze {

/// The simulator's actions of a PicoBlaze.
class XPBlzeActionsSim : public nsProc::ProcActionsSim
{
    Q_OBJECT

public:
    using ProcActionsSim::ProcActionsSim;
};

} // namespace nsXPBlze
