#pragma once

#include <QString>

namespace nsProc {

/// What all processors have to set.
struct ProcCoreConfig
{
    int pageSize = 1024;        ///< words of an instruction memory page; also the limit of an interrupt vector
    int pageCount = 1;          ///< set by the assembler at each run
    bool sharedMemHi = true;    ///< set by the assembler at each run
    int intVectorAddr = 1023;   ///< address within a page where an interrupt enters
    bool spare = false;         ///< copied along; nothing reads it
    int scrpdSize = 64;         ///< bytes of the scratchpad
    QString scrpdIODev;         ///< IO device with the scratchpad's initial contents; empty if none
    double clkFreq = 80000000;  ///< Hz
};

} // namespace nsProc
