// KCPSM6, for the PicoBlaze 6: what it has beside the words of KCPSM3.

#include "ForeignDialect.h"

#include "ProcTables.h"

namespace nsImport {

namespace {

using namespace nsModAsmFe;

constexpr sForeignWord_t words[] = {
    {"TESTCY", opInstruction, ocTestc, frmRegAny},
    {"COMPARECY", opInstruction, ocCompc, frmRegAny},
    {"STAR", opInstruction, ocStar, frmRegAny},
    {"OUTPUTK", opInstruction, ocWrprt, frmPortConstant},
    {"LOAD&RETURN", opInstruction, ocLoadret, frmLoadReturn},
    {"REGBANK", opInstruction, ocRegbank, frmBank},
    {"HWBUILD", opInstruction, ocHwbuild, frmReg},
    {"JUMP@", opInstruction, ocJump, frmFlowComputed},
    {"CALL@", opInstruction, ocCall, frmFlowComputed},
    {"INCLUDE", opInclude},
    {"STRING", opString},
    {"TABLE", opTable},
    {"INST", opWord},
    {"DEFAULT_JUMP", opDefaultJump},
};

constexpr sForeignConstant_t constants[] = {
    {"NUL", 0x00}, {"BEL", 0x07}, {"BS", 0x08},  {"HT", 0x09},  {"LF", 0x0A}, {"VT", 0x0B},
    {"CR", 0x0D},  {"ESC", 0x1B}, {"DEL", 0x7F}, {"DCS", 0x90}, {"ST", 0x9C},
};

ForeignDialect dialect()
{
    ForeignDialect d{};
    d.dialect = ForeignDialect::eKcpsm6;
    d.key = "kcpsm6";
    d.title = "KCPSM6";
    d.processor = nsProc::xpBlze6Table;
    d.words = words;
    d.wordCount = int(sizeof(words) / sizeof(words[0]));
    d.base = &kcpsm3Dialect();
    d.numbers = numHexPlain;
    d.namesDifferByCase = true;
    d.maxAddress = 0xFFF;
    d.constants = constants;
    d.constantCount = int(sizeof(constants) / sizeof(constants[0]));
    d.stamps = true;
    return d;
}

} // namespace

const ForeignDialect& kcpsm6Dialect()
{
    static const ForeignDialect instance = dialect();
    return instance;
}

} // namespace nsImport
