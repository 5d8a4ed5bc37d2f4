#pragma once

#include "AsmRunListener.h"

namespace nsModAsmFe {

/// Asks the listener of a run now and then whether the run goes on. A stage calls goesOn() for each of its elements and
/// ends when the answer is no.
///
///     for (Opcode* opcode : opcodes) {
///         if (!watch.goesOn())
///             return false;
///         ...
///     }
class RunWatch
{
public:
    /// @param listener not owned; null for nobody: the run goes on
    explicit RunWatch(AsmRunListener* listener = nullptr)
        : m_listener(listener)
    {
    }

    /// Costs nearly nothing. @return false from the moment when the run was cancelled
    bool goesOn() { return (++m_steps & mask) != 0 ? !m_cancelled : ask(); }
    /// Asks at once.
    bool ask()
    {
        m_cancelled = m_cancelled || (m_listener != nullptr && !m_listener->runGoesOn(0));
        return !m_cancelled;
    }

private:
    static const unsigned int mask = 0x3ff; ///< elements between two questions, some tenths of a millisecond

    AsmRunListener* m_listener;
    unsigned int m_steps = 0;
    bool m_cancelled = false;
};

} // namespace nsModAsmFe
