#include "AsmFeMsgCatalogue.h"

#include "EnumTable.h"

#include <QtGlobal>

namespace nsModAsmFe {

namespace {

// The context of the translation is the class that shows the messages.
#define NALVO_MSG(value, text)                                                                                         \
    {                                                                                                                  \
        value, #value, QT_TRANSLATE_NOOP("nsModAsmFe::AsmFeMsgHndlr", text)                                            \
    }

/// Indexed by eMsgType_t.
constexpr sMsgText_t msgTexts[] = {
    NALVO_MSG(warnNothingTodo, "Nothing to do."),
    NALVO_MSG(infoSetProcDef, "Set processor define: %1"),
    NALVO_MSG(errFileRead, "Can not read file: %1"),
    NALVO_MSG(warnAttributeEmpty, "Attribute is empty."),
    NALVO_MSG(errSyntax, "Syntax error."),
    NALVO_MSG(warnNumericTruncated, "Numeric will be truncated."),
    NALVO_MSG(errExpectArgument, "Expecting argument."),
    NALVO_MSG(errExpectNumeric, "Expecting numeric value as argument: %1"),
    NALVO_MSG(errExpectString, "Expecting string value as argument: %1"),
    NALVO_MSG(errRangeWithoutArg, "Found range without argument!"),
    NALVO_MSG(errAttrWithoutArg, "Found attribute without argument!"),
    NALVO_MSG(errUnsupportedArgument, "Unsupported argument: %1"),
    NALVO_MSG(errUnsupportedParenthese, "Unsupported parenthese."),
    NALVO_MSG(errUnsupportedRange, "Unsupported range."),
    NALVO_MSG(errIvldRange, "Invalid range: %1"),
    NALVO_MSG(errUnsupportedAttribute, "Unsupported attribute: %1"),
    NALVO_MSG(errMissingParentheseOpen, "Missing opening parenthese."),
    NALVO_MSG(errMissingParentheseClose, "Missing closing parenthese."),
    NALVO_MSG(errMissingArgument, "Missing argument."),
    NALVO_MSG(warnSetIgnoring, "Ignoring set directive."),
    NALVO_MSG(warnSetOverwriteGuiSettings, "Overwriting gui configuration: %1"),
    NALVO_MSG(errSetOverwriteGuiSettings, "Overwriting gui settings is not allowd by configuration."),
    NALVO_MSG(errSetDuplicate, "Parameter is already set: %1"),
    NALVO_MSG(errSetExpectNs, "Missing namespace: %1"),
    NALVO_MSG(errSetUnsupportedParameter, "Unknown parameter to set: %1"),
    NALVO_MSG(errSetMissingDirective, "Missing SET directive: %1"),
    NALVO_MSG(errSetExpectNsEndBeforeEof, "Missing directive #ENDNAMESPACE before end of file."),
    NALVO_MSG(errSetMissingEndNsBeforeNs, "Missing directive #ENDNAMESPACE before starting a new namespace!"),
    NALVO_MSG(errDefDuplicate, "Define is already defined: %1"),
    NALVO_MSG(errSetExpectIf, "Missing preceding #IF directive."),
    NALVO_MSG(errSetExpectIfEndBeforeEof, "Missing directive #ENDIF before end of file."),
    NALVO_MSG(warnOrgIgnoring, "Ignoring org directive."),
    NALVO_MSG(errOrgExpectMemRange, "Expecting memory range: %1"),
    NALVO_MSG(warnEquDuplicate, "Label is already used. Replacing it: %1"),
    NALVO_MSG(errEquDuplicate, "Label is already used: %1"),
    NALVO_MSG(warnEquUnused, "Unused EQU directive: %1"),
    NALVO_MSG(errEquClosedLoop, "Found closed loop (dead lock)!"),
    NALVO_MSG(errEquUnresolvedLabel, "Can not resolve label: %1"),
    NALVO_MSG(errLblIsOpcode, "Using instruction as label is not allowed: %1"),
    NALVO_MSG(errLblIsOpcodeArg, "Using instruction arguments as label is not allowed: %1"),
    NALVO_MSG(errLblIsReg, "Using register as label is not allowed: %1"),
    NALVO_MSG(errLblIsPage, "Using page as label is not allowed: %1"),
    NALVO_MSG(errLblIsNumeric, "Using numeric as label is not allowed: %1"),
    NALVO_MSG(errUnallowedCharsInName, "Found unalowed characters in name."),
    NALVO_MSG(errLblIsEmpty, "Syntax error! Label is not defined."),
    NALVO_MSG(errLblIsDuplicate, "Label already used: %1"),
    NALVO_MSG(errLblIsEqu, "Label is already used in EQU directive: %1"),
    NALVO_MSG(errLblDoesNotReferenceOc, "The used label does not reference any instructions within its namespace!"),
    NALVO_MSG(errOcUnsupported, "Unsupported instruction: %1"),
    NALVO_MSG(errOcExpect, "No Instructions found!"),
    NALVO_MSG(infoStrSetDefaultCharset, "Setting default charset to: %1"),
    NALVO_MSG(warnStrUsingDefaultCharset, "Using default charset: %1!"),
    NALVO_MSG(errStrNoCharset, "No charset defined for string!"),
    NALVO_MSG(errStrEmpty, "Empty string is not allowed!"),
    NALVO_MSG(errStrAlreadyEnc, "String is already encoded."),
    NALVO_MSG(errStrIvldDefaultCharset, "Can not get default text codec from charset: %1"),
    NALVO_MSG(errStrIvldCharset, "Can not get text codec from charset: %1"),
    NALVO_MSG(errStrNoDefaultCodec, "No default text codec set!"),
    NALVO_MSG(errStrAttrRangeConflict, "Attribute conflicts with range access."),
    NALVO_MSG(errStrIvldCharCnt, "More than one characters selected from string!"),
    NALVO_MSG(errStrRangeExceedLen, "Range exceeds string length!"),
    NALVO_MSG(errStrExpectRange, "Can not select character from string! spezify a range."),
    NALVO_MSG(errExprNonNumericTerm, "Found non numeric term in expression: %1"),
    NALVO_MSG(errExprEmptyParentheses, "Found empty parentheses!"),
    NALVO_MSG(errNoAsmBe, "No assembler backend registerd. Please select a processor."),
    NALVO_MSG(infoIODevWriteFile, "Writing IO device %1 to file %2..."),
    NALVO_MSG(infoIODevNothingToDoForWriteEvent, "Nothing todo for event"),
    NALVO_MSG(warnIODevNoType, "No type set for device: %1"),
    NALVO_MSG(warnMMapIODevOverwriteValues, "Overwriting values of device: %1"),
    NALVO_MSG(warnIODevOverwriteValue, "Overwriting value at address %1"),
    NALVO_MSG(warnIODevUnmappedInstructions, "Instructions of memory range %1 to %2 are not mapped to an IO device."),
    NALVO_MSG(errIODevUnsupportedDstFileType, "Unsupported destination file type: %1"),
    NALVO_MSG(errIODevUnsupportedDirection, "Unsupported direction: %1"),
    NALVO_MSG(errIODevDuplicate, "Duplicates are not allowed in list."),
    NALVO_MSG(errIODevExpectDevList, "Expecting device list."),
    NALVO_MSG(errIODevAddrExceedsDevSize, "Address %1 exceeds IODev size of %2."),
    NALVO_MSG(errIODevExpectInstMemRange, "Expecting memory range."),
    NALVO_MSG(errIODevRangeStartAddrOutsideOfInstMem,
              "Instruction memory address range start value %1 is outside of the instruction memory range 0 to %2."),
    NALVO_MSG(errIODevRangeStopAddrOutsideOfInstMem,
              "Instruction memory address range stop value %1 is outside of the instruction memory range0 to %2."),
    NALVO_MSG(errIODevInstMemRangeExceedsIODeviceRange,
              "Instruction memory range address of %1 exceeds IO device size of %2."),
    NALVO_MSG(errIODevUnsupportedBitRange, "Unsupported bit range: %1."),
    NALVO_MSG(errIODevMissingEntityName, "Missing %1 entity name for IO device %2."),
    NALVO_MSG(errIODevMissingTemplateFile, "Missing %1 template file for IO device %2."),
    NALVO_MSG(errIODevMissingTargetFile, "Missing %1 target file for IO device  %2."),
    NALVO_MSG(warnIODevNoFileToWrite, "No file defined to write."),
    NALVO_MSG(errMMIvldRangePage, "Valid page count range is 1 to 8."),
    NALVO_MSG(errMMUnsupportedSharedLoc, "Unsupported value: %1. Try hiMem or loMem."),
    NALVO_MSG(errMMEmptyDevList, "Expecting device list."),
    NALVO_MSG(errMMDevDuplicate, "Duplicates are not allowed in list."),
    NALVO_MSG(errMMDevNotDefinedAsIODev, "Device is not defined as IODev: %1"),
    NALVO_MSG(errMMMissingRangeShared, "Missing shared memory range!"),
    NALVO_MSG(errMMMissingRangePage, "Missing page range: PAGE%1"),
    NALVO_MSG(errMMAddrOutsideMem, "Memory address %1 outside of memory range of %2."),
    NALVO_MSG(infoMMMappingRangeShared, "Mapping instructions to SHARED range from address %1 up to %2."),
    NALVO_MSG(infoMMMappingRangePage, "Mapping instructions to PAGE%1 range from address %2 up to %3."),
    NALVO_MSG(errMMAddrConflictPrevCode, "Address conflict with previous code!"),
    NALVO_MSG(errMMCodeOutsideRange, "Can not map code outside of ranges!"),
    NALVO_MSG(errMMPageCrossReference, "Referencing from PAGE%1 to PAGE%2 without intercall through shared range."),
    NALVO_MSG(errMMapIODevNotDefined, "IO device is not defined: %1"),
    NALVO_MSG(errMMapIODevIvldDevCnt, "IO device count of \"INSTMEM::ioDevices\" does not match page count!"),
    NALVO_MSG(errMMPageOutsidePageCount, "Memory page exceeds memory page count: %1"),
    NALVO_MSG(warnLoneCarriageReturn, "Carriage return without line feed ends no line."),
    NALVO_MSG(infoParsingFile, "Parsing file %1: %2"),
    NALVO_MSG(errNsTooLong, "Namespace exceeds maximum of %1 characters."),
    NALVO_MSG(errMMInstMemTooLarge, "Instruction memory of %1 pages of %2 words exceeds maximum of %3 words."),
    NALVO_MSG(errIODevTooLarge, "Size of IO device %1 exceeds maximum of %2 words for all devices: %3"),
    NALVO_MSG(errTargetOverwritesProject, "Output file would overwrite a file of the project: %1"),
    NALVO_MSG(errTargetWrittenTwice, "Output file was already written in this run: %1"),
    NALVO_MSG(errTargetNoType, "Memory type for %1 is not defined."),
    NALVO_MSG(errTargetNoEntityName, "%1 entity name for %2 is not defined."),
    NALVO_MSG(errTargetNoTemplateFile, "%1 template file for %2 is not defined."),
    NALVO_MSG(errTargetNoOutputFile, "%1 output file for %2 is not defined."),
    NALVO_MSG(errTargetNoSize, "Memory size must be greater than zero: %1"),
    NALVO_MSG(errTargetOpenTemplate, "Can not open template file: %1"),
    NALVO_MSG(errTargetOpenOutput, "Can not open output file: %1"),
    NALVO_MSG(errTargetOpenDestination, "Can not open destination file: %1"),
    NALVO_MSG(errTargetWrite, "Can not write output file: %1 (%2)"),
    NALVO_MSG(errTargetNotComplete, "Opcode at address %1 was not written to file!"),
    NALVO_MSG(warnTargetStuffing, "Template memory size bigger than expected: Stuffing with zeros"),
    NALVO_MSG(errTargetOutside, "Output file outside of the project's folder is not allowed: %1 (%2)"),
    NALVO_MSG(errInternal, "Internal error: %1"),
    NALVO_MSG(errTargetWordTooWide, "Word at address %1 does not fit into %2 bits: %3"),
};

/// Indexed by eMsgGrp_t.
constexpr sMsgText_t msgGrpTexts[] = {
    NALVO_MSG(grpParsingFiles, "Parsing files..."),
    NALVO_MSG(chkSetDirectives, "Check SET directives..."),
    NALVO_MSG(chkOrgDirectives, "Check ORG directives..."),
    NALVO_MSG(chkEquDirectives, "Check EQU directives..."),
    NALVO_MSG(chkLabelDirectives, "Check Label directives..."),
    NALVO_MSG(chkInstructions, "Check instructions..."),
    NALVO_MSG(grpSetupIODevs, "Setup IO devices files..."),
    NALVO_MSG(grpMapOpcodeToMem, "Map code to memory ranges..."),
    NALVO_MSG(grpRunBackend1, "Run backend stage 1 for %1 ..."),
    NALVO_MSG(grpRunBackend2, "Run backend stage 2 for %1 ..."),
    NALVO_MSG(grpMapMemToIODev, "Map memory array to IO device..."),
    NALVO_MSG(grpUsageCheck, "Check usage of directives..."),
    NALVO_MSG(grpWriteIODevToFile, "Write IO devices to files..."),
    NALVO_MSG(refreshTextCompleter, "Refresh editor text completer..."),
    NALVO_MSG(refreshInsertionMenu, "Refresh editor insertion menu..."),
    NALVO_MSG(refreshMemAddrMapInfo, "Refresh editor memory address map information..."),
    NALVO_MSG(refreshIODevViewer, "Refresh IO device map viewer..."),
};

static_assert(isIndexedBy(msgTexts, &sMsgText_t::value, eMsgTypeCount), "the rows are indexed by eMsgType_t");
static_assert(isIndexedBy(msgGrpTexts, &sMsgText_t::value, eMsgGrpCount), "the rows are indexed by eMsgGrp_t");

} // namespace

const sMsgText_t* msgText(int type)
{
    return type >= 0 && type < eMsgTypeCount ? &msgTexts[type] : nullptr;
}

const sMsgText_t* msgGrpText(int group)
{
    return group >= 0 && group < eMsgGrpCount ? &msgGrpTexts[group] : nullptr;
}

} // namespace nsModAsmFe
