#pragma once

namespace nsProc {

/// The messages of all assembler back ends. The prefix of a key is its grade: warn or err.
enum eAsmMsg_t {
    errExceededMaxNumeric,
    errExceededScrpdSize,
    errExceededMaxPort,
    errUnenclosedRegister,
    errUnenclosedRegisters,
    errIntVectorOutOfMem,
    errIvldScrpdSize,
    errIvldRegCnt,
    errIvldClkFreq,
    errIvldInstClkCycleCnt,
    errScrpdIODevNotDefined,
    errScrpdIODevSizeMismatch,
    errMissingInstrAtStartAddr,
    warnMissingInstrAtIntVectorAddr,
    errMissingInstrAtIntVectorAddr,
    warnMissingInstrAtIntVectorAddrAndPage,
    errMissingInstrAtIntVectorAddrAndPage,
    warnFlowAddrTruncated,
    eAsmMsgCount, ///< number of messages, not a message
};

/// One row of the catalogue.
struct sAsmMsg_t
{
    eAsmMsg_t type;
    const char* key;  ///< also the anchor in the back end's help page
    const char* text; ///< with the places %1 and %2
};

/// Null for a value outside of the catalogue.
const sAsmMsg_t* asmMsg(int type);

} // namespace nsProc
