// The words that the assemblers for PicoBlaze have in common.

#include "ForeignDialect.h"

namespace nsImport {

namespace {

using namespace nsModAsmFe;

constexpr sForeignWord_t words[] = {
    {"LOAD", opInstruction, ocLoad, frmRegAny}, {"AND", opInstruction, ocAnd, frmRegAny},
    {"OR", opInstruction, ocOr, frmRegAny},     {"XOR", opInstruction, ocXor, frmRegAny},
    {"TEST", opInstruction, ocTest, frmRegAny}, {"ADD", opInstruction, ocAdd, frmRegAny},
    {"SUB", opInstruction, ocSub, frmRegAny},   {"SR0", opInstruction, ocSr0, frmReg},
    {"SR1", opInstruction, ocSr1, frmReg},      {"SRX", opInstruction, ocSrx, frmReg},
    {"SRA", opInstruction, ocRorc, frmReg},     {"RR", opInstruction, ocRor, frmReg},
    {"SL0", opInstruction, ocSl0, frmReg},      {"SL1", opInstruction, ocSl1, frmReg},
    {"SLX", opInstruction, ocSlx, frmReg},      {"SLA", opInstruction, ocRolc, frmReg},
    {"RL", opInstruction, ocRol, frmReg},       {"FETCH", opInstruction, ocRdmem, frmPort},
    {"STORE", opInstruction, ocWrmem, frmPort}, {"JUMP", opInstruction, ocJump, frmFlow},
    {"CALL", opInstruction, ocCall, frmFlow},
};

ForeignDialect dialect()
{
    ForeignDialect d{};
    d.words = words;
    d.wordCount = int(sizeof(words) / sizeof(words[0]));
    return d;
}

} // namespace

const ForeignDialect& picoBlazeWords()
{
    static const ForeignDialect instance = dialect();
    return instance;
}

} // namespace nsImport
