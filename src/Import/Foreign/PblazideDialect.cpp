// pBlazIDE, for the PicoBlaze 3 and its elder brothers.

#include "ForeignDialect.h"

#include "ProcTables.h"

namespace nsImport {

namespace {

using namespace nsModAsmFe;

constexpr sForeignWord_t words[] = {
    {"EQU", opEquate},
    {"ORG", opAddress},
    {"DSIN", opEquate, ocUndefined, frmRegValue},
    {"DSOUT", opEquate, ocUndefined, frmRegValue},
    {"DSIO", opEquate, ocUndefined, frmRegValue},
    {"DSRAM", opEquate, ocUndefined, frmRegValue},
    {"DSROM", opEquate, ocUndefined, frmRegValue},
    {"VHDL", opOutput},
    {"MEM", opOutput},
    {"HEX", opOutput},
    {"EXEC", opIgnored},
    {"ADDC", opInstruction, ocAddc, frmRegAny},
    {"SUBC", opInstruction, ocSubc, frmRegAny},
    {"COMP", opInstruction, ocComp, frmRegAny},
    {"IN", opInstruction, ocRdprt, frmPort},
    {"OUT", opInstruction, ocWrprt, frmPort},
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
    d.base = &picoBlazeWords();
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
