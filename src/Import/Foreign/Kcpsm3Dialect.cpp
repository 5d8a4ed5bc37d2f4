// KCPSM3, for the PicoBlaze 3.

#include "ForeignDialect.h"

#include "ProcTables.h"

namespace nsImport {

namespace {

using namespace nsModAsmFe;

constexpr sForeignWord_t words[] = {
    {"CONSTANT", opConstant},
    {"NAMEREG", opNameReg},
    {"ADDRESS", opAddress},
    {"LOAD", opInstruction, ocLoad, frmRegAny},
    {"AND", opInstruction, ocAnd, frmRegAny},
    {"OR", opInstruction, ocOr, frmRegAny},
    {"XOR", opInstruction, ocXor, frmRegAny},
    {"TEST", opInstruction, ocTest, frmRegAny},
    {"ADD", opInstruction, ocAdd, frmRegAny},
    {"ADDCY", opInstruction, ocAddc, frmRegAny},
    {"SUB", opInstruction, ocSub, frmRegAny},
    {"SUBCY", opInstruction, ocSubc, frmRegAny},
    {"COMPARE", opInstruction, ocComp, frmRegAny},
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
    {"INPUT", opInstruction, ocRdprt, frmPort},
    {"OUTPUT", opInstruction, ocWrprt, frmPort},
    {"FETCH", opInstruction, ocRdmem, frmPort},
    {"STORE", opInstruction, ocWrmem, frmPort},
    {"JUMP", opInstruction, ocJump, frmFlow},
    {"CALL", opInstruction, ocCall, frmFlow},
    {"RETURN", opInstruction, ocRet, frmReturn},
    {"RETURNI", opInstruction, ocReti, frmSwitch},
    {"ENABLE", opInstruction, ocInt, frmInterrupt, "ENABLE"},
    {"DISABLE", opInstruction, ocInt, frmInterrupt, "DISABLE"},
};

ForeignDialect dialect()
{
    ForeignDialect d{};
    d.dialect = ForeignDialect::eKcpsm3;
    d.key = "kcpsm3";
    d.title = "KCPSM3";
    d.processor = nsProc::xpBlze3Table;
    d.words = words;
    d.wordCount = int(sizeof(words) / sizeof(words[0]));
    d.numbers = numHexPlain;
    d.namesDifferByCase = true;
    d.maxAddress = 0x3FF;
    return d;
}

} // namespace

const ForeignDialect& kcpsm3Dialect()
{
    static const ForeignDialect instance = dialect();
    return instance;
}

} // namespace nsImport
