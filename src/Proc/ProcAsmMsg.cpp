#include "ProcAsmMsg.h"

#include "EnumTable.h"

#include <QtGlobal>

namespace nsProc {

namespace {

// The context of the translation is the class that all back ends derive from.
#define NALVO_MSG(type, text)                                                                                          \
    {                                                                                                                  \
        type, #type, QT_TRANSLATE_NOOP("nsProc::ProcAsmBe", text)                                                      \
    }

/// Indexed by eAsmMsg_t.
constexpr sAsmMsg_t asmMsgs[] = {
    NALVO_MSG(errExceededMaxNumeric, "Value \"%1\"exceeds maximum of \"%2\"!"),
    NALVO_MSG(errExceededScrpdSize, "Address \"%1\"exceeds scratchpad size of \"%2\"!"),
    NALVO_MSG(errExceededMaxPort, "Address \"%1\"exceeds port range of \"%2\"!"),
    NALVO_MSG(errUnenclosedRegister, "The register needs to be enclosed with parentheses: \"%1\""),
    NALVO_MSG(errUnenclosedRegisters, "The registers needs to be enclosed with parentheses!"),
    NALVO_MSG(errIntVectorOutOfMem, "Interrupt vector address is located out of memory: %1"),
    NALVO_MSG(errIvldScrpdSize, "Scratchpad size must be 64, 128 or 256: %1"),
    NALVO_MSG(errIvldRegCnt, "Invalid register count of %1!"),
    NALVO_MSG(errIvldClkFreq, "Invalid clock frequency of %1!"),
    NALVO_MSG(errIvldInstClkCycleCnt, "Invalid instruction clock cycle count of %1!"),
    NALVO_MSG(errScrpdIODevNotDefined, "Scratchpad IO device is not defined."),
    NALVO_MSG(errScrpdIODevSizeMismatch, "Scratchpad IO device size does not match scratch pad size."),
    NALVO_MSG(errMissingInstrAtStartAddr, "Missing instruction at start address."),
    NALVO_MSG(warnMissingInstrAtIntVectorAddr, "Missing instruction at interrupt vector address %1."),
    NALVO_MSG(errMissingInstrAtIntVectorAddr, "Missing instruction at interrupt vector address %1."),
    NALVO_MSG(warnMissingInstrAtIntVectorAddrAndPage, "Missing instruction at interrupt vector address %1 on page %2."),
    NALVO_MSG(errMissingInstrAtIntVectorAddrAndPage, "Missing instruction at interrupt vector address %1 on page %2."),
    NALVO_MSG(warnFlowAddrTruncated,
              "Address %1 exceeds the address field of the instruction: the processor goes to address %2."),
};

static_assert(isIndexedBy(asmMsgs, &sAsmMsg_t::type, eAsmMsgCount), "the rows are indexed by eAsmMsg_t");

} // namespace

const sAsmMsg_t* asmMsg(int type)
{
    return type >= 0 && type < eAsmMsgCount ? &asmMsgs[type] : nullptr;
}

} // namespace nsProc
