// pBlazIDE, for the PicoBlaze 3 and its elder brothers.

#include "ForeignDialect.h"

#include "ProcTables.h"

namespace nsImport {

namespace {

using namespace nsModAsmFe;

constexpr sForeignWord_t words[] = {
    {"EQU", opEquate},
    {"ORG", opAddress},
    {"DSIN", opEquate},
    {"DSOUT", opEquate},
    {"DSIO", opEquate},
    {"DSRAM", opEquate},
    {"DSROM", opEquate},
    {"VHDL", opOutput},
    {"MEM", opOutput},
    {"HEX", opOutput},
    {"EXEC", opIgnored},
    {"LOAD", opInstruction, ocLoad, frmRegAny},
    {"AND", opInstruction, ocAnd, frmRegAny},
    {"OR", opInstruction, ocOr, frmRegAny},
    {"XOR", opInstruction, ocXor, frmRegAny},
    {"TEST", opInstruction, ocTest, frmRegAny},
    {"ADD", opInstruction, ocAdd, frmRegAny},
    {"ADDC", opInstruction, ocAddc, frmRegAny},
    {"SUB", opInstruction, ocSub, frmRegAny},
    {"SUBC", opInstruction, ocSubc, frmRegAny},
    {"COMP", opInstruction, ocComp, frmRegAny},
    {"SR0", opInstruction, ocSr0, frmReg},
    {"SR1", opInstruction, ocSr1, frmReg},
    {"SRX", opInstruction, ocSrx, frmReg},
    {"SRA", opInstruction, ocRorc, frmReg},
    {"RR", opInstruction, ocRor, frmReg},
    {"SL0", opInstruction, ocSl0, frmReg},
    {"SL1", opInstruction, ocSl1, frmReg},
    {"SLX", opInstruction, ocSlx, frmReg},
    {"SLA", opInstruction, ocRolc, frmReg},
    {"RL", opInstruction, ocRol, frmReg},
    {"IN", opInstruction, ocRdprt, frmPort},
    {"OUT", opInstruction, ocWrprt, frmPort},
    {"FETCH", opInstruction, ocRdmem, frmPort},
    {"STORE", opInstruction, ocWrmem, frmPort},
    {"JUMP", opInstruction, ocJump, frmFlow},
    {"CALL", opInstruction, ocCall, frmFlow},
    {"RET", opInstruction, ocRet, frmReturn},
    {"RETI", opInstruction, ocReti, frmSwitch},
    {"EINT", opInstruction, ocInt, frmNone, "ENABLE"},
    {"DINT", opInstruction, ocInt, frmNone, "DISABLE"},
};

ForeignDialect dialect()
{
    ForeignDialect d{};
    d.dialect = ForeignDialect::ePblazide;
    d.key = "pblazide";
    d.title = "pBlazIDE";
    d.processor = nsProc::xpBlze3Table;
    d.words = words;
    d.wordCount = int(sizeof(words) / sizeof(words[0]));
    d.numbers = numDollar;
    d.expressions = true;
    d.maxAddress = 0x3FF;
    return d;
}

} // namespace

const ForeignDialect& pblazideDialect()
{
    static const ForeignDialect instance = dialect();
    return instance;
}

} // namespace nsImport
