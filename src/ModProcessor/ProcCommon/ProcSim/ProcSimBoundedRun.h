#pragma once

#include <functional>

namespace nsModAsmFe {
class Opcode;
} // namespace nsModAsmFe

namespace nsProc {

/// A run of the simulator for a caller that wants to know what came of it: its bounds and its result.
struct sSimBoundedRun_t
{
    enum eEnd_t {
        eEndCount,
        eEndTarget,
        eEndBreakpoint,
        eEndMessage, ///< the simulator reports why it does not go on
        eEndStopped, ///< by the user, or the program is gone
    };

    const nsModAsmFe::Opcode* target = nullptr; ///< ends before this one is executed; null: none. Not owned
    int count = 1;                              ///< ends after so many instructions
    bool stopsAtBreakpoints = true;
    std::function<bool()> goesOn; ///< handles the user's events now and then; false ends the run

    eEnd_t end = eEndStopped;
    int executed = 0; ///< instructions
};

} // namespace nsProc
