// The vendor's isp8asm, the GNU assembler for the Mico8, and others of their style.

#include "ForeignDialect.h"

#include "ProcTables.h"

namespace nsImport {

namespace {

using namespace nsModAsmFe;

constexpr sForeignWord_t words[] = {
    {"ADD", opInstruction, ocAdd, frmRegReg},
    {"ADDC", opInstruction, ocAddc, frmRegReg},
    {"SUB", opInstruction, ocSub, frmRegReg},
    {"SUBC", opInstruction, ocSubc, frmRegReg},
    {"AND", opInstruction, ocAnd, frmRegReg},
    {"OR", opInstruction, ocOr, frmRegReg},
    {"XOR", opInstruction, ocXor, frmRegReg},
    {"CMP", opInstruction, ocComp, frmRegReg},
    {"TEST", opInstruction, ocTest, frmRegReg},
    {"MOV", opInstruction, ocLoad, frmRegReg},
    {"ADDI", opInstruction, ocAdd, frmRegValue},
    {"ADDIC", opInstruction, ocAddc, frmRegValue},
    {"SUBI", opInstruction, ocSub, frmRegValue},
    {"SUBIC", opInstruction, ocSubc, frmRegValue},
    {"ANDI", opInstruction, ocAnd, frmRegValue},
    {"ORI", opInstruction, ocOr, frmRegValue},
    {"XORI", opInstruction, ocXor, frmRegValue},
    {"CMPI", opInstruction, ocComp, frmRegValue},
    {"TESTI", opInstruction, ocTest, frmRegValue},
    {"MOVI", opInstruction, ocLoad, frmRegValue},
    {"INC", opInstruction, ocAdd, frmRegConst, "1"},
    {"DEC", opInstruction, ocSub, frmRegConst, "1"},
    {"ROR", opInstruction, ocRor, frmRotate},
    {"ROL", opInstruction, ocRol, frmRotate},
    {"RORC", opInstruction, ocRorc, frmRotate},
    {"ROLC", opInstruction, ocRolc, frmRotate},
    {"CLRC", opInstruction, ocClr, frmNone, "C"},
    {"SETC", opInstruction, ocSet, frmNone, "C"},
    {"CLRZ", opInstruction, ocClr, frmNone, "Z"},
    {"SETZ", opInstruction, ocSet, frmNone, "Z"},
    {"CLRI", opInstruction, ocInt, frmNone, "DISABLE"},
    {"SETI", opInstruction, ocInt, frmNone, "ENABLE"},
    {"B", opInstruction, ocJump, frmFlowCondition, ""},
    {"BZ", opInstruction, ocJump, frmFlowCondition, "Z"},
    {"BNZ", opInstruction, ocJump, frmFlowCondition, "NZ"},
    {"BC", opInstruction, ocJump, frmFlowCondition, "C"},
    {"BNC", opInstruction, ocJump, frmFlowCondition, "NC"},
    {"CALL", opInstruction, ocCall, frmFlowCondition, ""},
    {"CALLZ", opInstruction, ocCall, frmFlowCondition, "Z"},
    {"CALLNZ", opInstruction, ocCall, frmFlowCondition, "NZ"},
    {"CALLC", opInstruction, ocCall, frmFlowCondition, "C"},
    {"CALLNC", opInstruction, ocCall, frmFlowCondition, "NC"},
    {"RET", opInstruction, ocRet, frmNone},
    {"IRET", opInstruction, ocReti, frmNone},
    {"NOP", opInstruction, ocNop, frmNone},
    {"EXPORT", opInstruction, ocWrprt, frmPortDirect},
    {"EXPORTI", opInstruction, ocWrprt, frmPortIndirect},
    {"OUTP", opInstruction, ocWrprt, frmPortDirect},
    {"OUTPI", opInstruction, ocWrprt, frmPortIndirect},
    {"IMPORT", opInstruction, ocRdprt, frmPortDirect},
    {"IMPORTI", opInstruction, ocRdprt, frmPortIndirect},
    {"INP", opInstruction, ocRdprt, frmPortDirect},
    {"INPI", opInstruction, ocRdprt, frmPortIndirect},
    {"SSP", opInstruction, ocWrmem, frmPortDirect},
    {"SSPI", opInstruction, ocWrmem, frmPortIndirect},
    {"LSP", opInstruction, ocRdmem, frmPortDirect},
    {"LSPI", opInstruction, ocRdmem, frmPortIndirect},
    {"EQU", opEquate},
    {"=", opEquate},
    {"REG", opEquate, ocUndefined, frmReg},
    {".EQU", opSetConstant},
    {".SET", opSetConstant},
    {".ORG", opAddress},
    {"ORG", opAddress},
    {".INCLUDE", opInclude},
    {"INCLUDE", opInclude},
    {".TEXT", opCode},
    {".DATA", opData},
    {".BSS", opData},
    {".SECTION", opSection},
    {".GLOBAL", opIgnored},
    {".GLOBL", opIgnored},
    {".EXTERN", opIgnored},
    {".LOCAL", opIgnored},
    {".WEAK", opIgnored},
    {".HIDDEN", opIgnored},
    {".TYPE", opIgnored},
    {".SIZE", opIgnored},
    {".FILE", opIgnored},
    {".IDENT", opIgnored},
    {".LOC", opIgnored},
    {".END", opEnd},
    {".BYTE", opNoCounter},
    {".SHORT", opNoCounter},
    {".HALF", opNoCounter},
    {".HWORD", opNoCounter},
    {".WORD", opNoCounter},
    {".LONG", opNoCounter},
    {".INT", opNoCounter},
    {".ASCII", opNoCounter},
    {".ASCIZ", opNoCounter},
    {".STRING", opNoCounter},
    {".SPACE", opNoCounter},
    {".SKIP", opNoCounter},
    {".ZERO", opNoCounter},
    {".FILL", opNoCounter},
    {".COMM", opNoCounter},
    {".LCOMM", opNoCounter},
    {".ALIGN", opNoCounter},
    {".BALIGN", opNoCounter},
    {".P2ALIGN", opNoCounter},
    {"DB", opNoCounter},
    {"DW", opNoCounter},
};

ForeignDialect dialect()
{
    ForeignDialect d{};
    d.dialect = ForeignDialect::eMico8;
    d.key = "mico8";
    d.title = "Mico8";
    d.processor = nsProc::lMico8v3xTable;
    d.words = words;
    d.wordCount = int(sizeof(words) / sizeof(words[0]));
    d.numbers = numC;
    d.expressions = true;
    d.anyOrder = true;
    d.hashComments = true;
    d.cComments = true;
    d.localLabels = true;
    d.hashImmediates = true;
    d.maxAddress = 0xFFF;
    return d;
}

} // namespace

const ForeignDialect& mico8Dialect()
{
    static const ForeignDialect instance = dialect();
    return instance;
}

} // namespace nsImport
