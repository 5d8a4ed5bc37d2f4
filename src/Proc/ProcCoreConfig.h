#pragma once

#include <QString>

namespace nsProc {

/// The settings of processors. Each processor provides its defaults, and does not use the settings that it does not
/// have.
struct ProcCoreConfig
{
    int pageSize = 1024;       ///< words of an instruction memory page; also the limit of an interrupt vector
    int pageCount = 1;         ///< set by the assembler at each run
    bool sharedMemHi = true;   ///< set by the assembler at each run
    int intVectorAddr = 1023;  ///< address within a page where an interrupt enters
    bool spare = false;        ///< copied, but not used
    int scrpdSize = 64;        ///< bytes of the scratchpad
    QString scrpdIODev;        ///< IO device with the scratchpad's initial contents; empty if none
    double clkFreq = 80000000; ///< Hz
    int regCount = 16;         ///< registers, where the hardware can be built with more or less
    int instrClkCnt = 2;       ///< clock cycles of an instruction
    int exactSimulation = 0;   ///< not 0: the simulation does what the core does, where the two differ
    int coreWarnings = 0;      ///< not 0: a simulation that is not exact warns where the core would do otherwise
    /// What ends an exact simulation although the core goes on.
    enum eExactStop_t { eStopAtStack = 1, eStopAtScrpd = 2, eStopAtEmpty = 4, allExactStops = 7 };
    int exactStops = 0;  ///< of these, added
    int addressBits = 8; ///< of a port or scratchpad address in a register, where the core can be built so: 8 to 32
    int waitStates = 0;  ///< clock cycles that an access to a port waits, where the core can: up to 255
};

} // namespace nsProc
