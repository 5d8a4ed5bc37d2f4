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
    {"ADDCY", opInstruction, ocAddc, frmRegAny},
    {"SUBCY", opInstruction, ocSubc, frmRegAny},
    {"COMPARE", opInstruction, ocComp, frmRegAny},
    {"INPUT", opInstruction, ocRdprt, frmPort},
    {"OUTPUT", opInstruction, ocWrprt, frmPort},
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
    d.base = &picoBlazeWords();
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
