#pragma once

#include "ProcActionsSim.h"

namespace nsLMico {

/// The simulator's actions of a Mico.
class LMicoActionsSim : public nsProc::ProcActionsSim
{
    Q_OBJECT

public:
    using ProcActionsSim::ProcActionsSim;
};

} // namespace nsLMico
