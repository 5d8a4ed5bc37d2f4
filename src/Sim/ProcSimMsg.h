#pragma once

namespace nsProc {

/// The messages of all simulators. The prefix of a key is its grade: warn or err.
enum eSimMsg_t {
    errNoOpcodeToExec,
    errNoOpcodeAtIntVect,
    errNoOpcodeAssembled,
    warnCallStackInvalidDueToReload,
    errCallStackOverflow,
    errCallStackEmpty,
    errCallStackInvalidRetAddr,
    errScrpdRd,
    errScrpdWr,
    warnIODevAddedToRd,
    errIODevRd,
    errRegRd,
    errHwBuildRd,
    errProcSetChanged,
    errPcRestore,
    errPcNoPrjFile,
    warnIODevNoPort,
    // What the core would do otherwise.
    warnCoreStart,
    warnCoreRequestKept,
    warnCoreNoSecondLevel,
    warnCoreConstantWrite,
    warnCoreAccessClocks,
    warnCoreChainedZero,
    warnCoreRotateSource,
    warnCoreRotateCarry,
    warnCoreStackWraps,
    warnCoreReset,
    warnCoreReturnedFlags,
    warnCoreReturnedBank,
    warnCoreStaysEnabled,
    warnCoreEntryFlags,
    warnCoreEntryClocks,
    warnCoreEntryBank,
    warnCoreAddress,
    warnCoreStartZero,
    eSimMsgCount, ///< number of messages, not a message
};

/// One row of the catalogue.
struct sSimMsg_t
{
    eSimMsg_t type;
    const char* key;  ///< also the anchor in the simulator's help page
    const char* text; ///< with the place %1
};

/// Null for a value outside of the catalogue.
const sSimMsg_t* simMsg(int type);

} // namespace nsProc
