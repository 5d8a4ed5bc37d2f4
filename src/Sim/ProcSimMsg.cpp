#include "ProcSimMsg.h"

#include "EnumTable.h"

#include <QtGlobal>

namespace nsProc {

namespace {

// The context of the translation is the class that shows the messages.
#define NALVO_MSG(type, text)                                                                                          \
    {                                                                                                                  \
        type, #type, QT_TRANSLATE_NOOP("nsProc::ProcSim", text)                                                        \
    }

/// Indexed by eSimMsg_t.
constexpr sSimMsg_t simMsgs[] = {
    NALVO_MSG(errNoOpcodeToExec, "No command to execute!"),
    NALVO_MSG(errNoOpcodeAtIntVect, "No instruction at interrupt vector: %1"),
    NALVO_MSG(errNoOpcodeAssembled, "Need successfull assembled code for simulation."),
    NALVO_MSG(warnCallStackInvalidDueToReload, "Call stack may becomes invalid due to reloading sources to simulator!"),
    NALVO_MSG(errCallStackOverflow, "Call stack overflow!"),
    NALVO_MSG(errCallStackEmpty, "Call stack is empty! Nothing to return."),
    NALVO_MSG(errCallStackInvalidRetAddr, "Call stack contains an invalid return address."),
    NALVO_MSG(errScrpdRd, "Can not read scratchpad value."),
    NALVO_MSG(errScrpdWr, "Can not write scratchpad value."),
    NALVO_MSG(warnIODevAddedToRd, "An IO device was added to read. Please type in your value."),
    NALVO_MSG(errIODevRd, "Can not read IO value."),
    NALVO_MSG(errRegRd, "Can not get value of register: %1"),
    NALVO_MSG(errHwBuildRd, "Can not read hwbuild value."),
    NALVO_MSG(errProcSetChanged, "At least one processor settings was changed. Please restart simulator or restore the "
                                 "setting: %1"),
    NALVO_MSG(errPcRestore, "Can not restore program counter. Please set manually from cursor."),
    NALVO_MSG(errPcNoPrjFile, "The current file not part of the project."),
    NALVO_MSG(warnIODevNoPort, "The address of IO device %1 does not fit into 16 bits. It answers at no port."),
    NALVO_MSG(warnCoreStart, "The core starts elsewhere."),
    NALVO_MSG(warnCoreRequestKept, "An interrupt request was lost here that the core can keep."),
    NALVO_MSG(warnCoreNoSecondLevel, "The core takes no second interrupt before the return from this one."),
    NALVO_MSG(warnCoreConstantWrite, "The core writes constants by a strobe of their own here."),
    NALVO_MSG(warnCoreAccessClocks, "The core takes another number of clock cycles here."),
    NALVO_MSG(warnCoreChainedZero, "The core keeps the zero flag set here."),
    NALVO_MSG(warnCoreRotateSource, "The core rotates the second register into the first here."),
    NALVO_MSG(warnCoreRotateCarry, "The core leaves carry alone here."),
    NALVO_MSG(warnCoreStackWraps, "The core overwrites its oldest return address here."),
    NALVO_MSG(warnCoreReset, "The core resets itself here."),
    NALVO_MSG(warnCoreReturnedFlags, "The core returns with other flags here."),
    NALVO_MSG(warnCoreReturnedBank, "The core returns to the other register bank here."),
    NALVO_MSG(warnCoreStaysEnabled, "The core leaves interrupts enabled here."),
    NALVO_MSG(warnCoreEntryFlags, "The core enters the interrupt with other flags here."),
    NALVO_MSG(warnCoreEntryClocks, "The core takes two clock cycles to enter the interrupt here."),
    NALVO_MSG(warnCoreEntryBank, "The core enters the interrupt in the other register bank here."),
    NALVO_MSG(warnCoreAddress, "The core takes another address here."),
    NALVO_MSG(warnCoreStartZero, "The core still has the zero flag set from its start here."),
};

static_assert(isIndexedBy(simMsgs, &sSimMsg_t::type, eSimMsgCount), "the rows are indexed by eSimMsg_t");

} // namespace

const sSimMsg_t* simMsg(int type)
{
    return type >= 0 && type < eSimMsgCount ? &simMsgs[type] : nullptr;
}

} // namespace nsProc
