// The PicoBlaze 3.

#include "ProcTables.h"

namespace nsProc {

namespace {

using namespace nsModAsmFe;

/// The instruction set. Words without their operands: number and register form, or always, Z, NZ, C, NC, or
/// DISABLE, ENABLE.
constexpr sInstr_t instrs[] = {
    {ocLoad, formTwoOperand, {0x00000, 0x01000}},
    {ocAnd, formTwoOperand, {0x0A000, 0x0B000}},
    {ocOr, formTwoOperand, {0x0C000, 0x0D000}},
    {ocXor, formTwoOperand, {0x0E000, 0x0F000}},
    {ocTest, formTwoOperand, {0x12000, 0x13000}},
    {ocComp, formTwoOperand, {0x14000, 0x15000}},
    {ocAdd, formTwoOperand, {0x18000, 0x19000}},
    {ocAddc, formTwoOperand, {0x1A000, 0x1B000}},
    {ocSub, formTwoOperand, {0x1C000, 0x1D000}},
    {ocSubc, formTwoOperand, {0x1E000, 0x1F000}},
    {ocRdprt, formPort, {0x04000, 0x05000}},
    {ocRdmem, formScrpd, {0x06000, 0x07000}},
    {ocWrprt, formPort, {0x2C000, 0x2D000}},
    {ocWrmem, formScrpd, {0x2E000, 0x2F000}},
    {ocJump, formFlow, {0x34000, 0x35000, 0x35400, 0x35800, 0x35C00}},
    {ocCall, formFlow, {0x30000, 0x31000, 0x31400, 0x31800, 0x31C00}},
    {ocRet, formReturn, {0x2A000, 0x2B000, 0x2B400, 0x2B800, 0x2BC00}},
    {ocInt, formSwitch, {0x3C000, 0x3C001}},
    {ocReti, formSwitch, {0x38000, 0x38001}},
    {ocNop, formNone, {0x01000}},
    {ocRolc, formReg, {0x20000}},
    {ocRol, formReg, {0x20002}},
    {ocSlx, formReg, {0x20004}},
    {ocSl0, formReg, {0x20006}},
    {ocSl1, formReg, {0x20007}},
    {ocRorc, formReg, {0x20008}},
    {ocSrx, formReg, {0x2000A}},
    {ocRor, formReg, {0x2000C}},
    {ocSr0, formReg, {0x2000E}},
    {ocSr1, formReg, {0x2000F}},
    {ocClr, formUnsupported, {}},
    {ocCompc, formUnsupported, {}},
    {ocHwbuild, formUnsupported, {}},
    {ocLoadret, formUnsupported, {}},
    {ocRegbank, formUnsupported, {}},
    {ocSet, formUnsupported, {}},
    {ocStar, formUnsupported, {}},
    {ocTestc, formUnsupported, {}},
};
static_assert(coversInstrs(instrs), "each instruction has one row");

constexpr sProcSetting_t settings[] = {
    clkFreqSetting(),
    pageSizeSetting(),
    scrpdIODevSetting("SCRPDIODEV"),
};

constexpr ProcTable table()
{
    ProcTable t;
    t.name = "Xilinx PicoBlaze 3";
    t.define = "PROC::XPBLZE3";
    t.cfgSection = "XPBlze3";
    t.asmHelpPage = "XPBlze3AsmBeMessages";
    t.simHelpPage = "XPBlze3SimMessages";
    t.cfgHelpPage = "configPageXPBlze3Processor";

    t.regs.letter = 's';
    t.regs.base = 16;
    t.regs.count = 16;

    t.layout.dstShift = 8;
    t.layout.srcShift = 4;
    t.layout.regBits = 4;
    t.layout.portBits = 8;
    t.layout.scrpdBits = 6;
    t.layout.maxNumber = 255;
    t.layout.maxPort = 255;
    t.layout.flowBits = 10;

    t.core.hasFlagCopy = true;
    t.core.entryKeepsNewFlags = true;

    t.storedSettings = {settingClkFreq, settingPageSize};
    t.fixedSettings = {settingPageSize, settingClkFreq};
    t.setInstrs(instrs);
    t.setSettings(settings);
    return t;
}

constexpr ProcTable xpBlze3 = table();
static_assert(isConsistent(xpBlze3), "settings with a row, fields that hold the registers");

} // namespace

const ProcTable& xpBlze3Table()
{
    return xpBlze3;
}

} // namespace nsProc
