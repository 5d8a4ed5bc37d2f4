// The PicoBlaze 6.

#include "ProcTables.h"

namespace nsProc {

namespace {

using namespace nsModAsmFe;

/// The instruction set. Words without their operands: number and register form and constant port, or always, Z, NZ, C,
/// NC and computed target, or DISABLE, ENABLE.
constexpr sInstr_t instrs[] = {
    {ocLoad, formTwoOperand, {0x01000, 0x00000}},
    {ocAnd, formTwoOperand, {0x03000, 0x02000}},
    {ocOr, formTwoOperand, {0x05000, 0x04000}},
    {ocXor, formTwoOperand, {0x07000, 0x06000}},
    {ocTest, formTwoOperand, {0x0D000, 0x0C000}},
    {ocTestc, formTwoOperand, {0x0F000, 0x0E000}},
    {ocAdd, formTwoOperand, {0x11000, 0x10000}},
    {ocAddc, formTwoOperand, {0x13000, 0x12000}},
    {ocStar, formTwoOperand, {0x17000, 0x16000}},
    {ocSub, formTwoOperand, {0x19000, 0x18000}},
    {ocSubc, formTwoOperand, {0x1B000, 0x1A000}},
    {ocComp, formTwoOperand, {0x1D000, 0x1C000}},
    {ocCompc, formTwoOperand, {0x1F000, 0x1E000}},
    {ocRdprt, formPort, {0x09000, 0x08000}},
    {ocRdmem, formScrpd, {0x0B000, 0x0A000}},
    {ocWrprt, formPort, {0x2D000, 0x2C000, 0x2B000}},
    {ocWrmem, formScrpd, {0x2F000, 0x2E000}},
    {ocJump, formFlow, {0x22000, 0x32000, 0x36000, 0x3A000, 0x3E000, 0x26000}},
    {ocCall, formFlow, {0x20000, 0x30000, 0x34000, 0x38000, 0x3C000, 0x24000}},
    {ocRet, formReturn, {0x25000, 0x31000, 0x35000, 0x39000, 0x3D000}},
    {ocReti, formSwitch, {0x29000, 0x29001}},
    {ocInt, formSwitch, {0x28000, 0x28001}},
    {ocLoadret, formRegNumber, {0x21000}},
    {ocRegbank, formBank, {0x37000}},
    {ocHwbuild, formReg, {0x14080}},
    {ocNop, formNone, {0x00000}},
    {ocRolc, formReg, {0x14000}},
    {ocRol, formReg, {0x14002}},
    {ocSlx, formReg, {0x14004}},
    {ocSl0, formReg, {0x14006}},
    {ocSl1, formReg, {0x14007}},
    {ocRorc, formReg, {0x14008}},
    {ocSrx, formReg, {0x1400A}},
    {ocRor, formReg, {0x1400C}},
    {ocSr0, formReg, {0x1400E}},
    {ocSr1, formReg, {0x1400F}},
    {ocClr, formUnsupported, {}},
    {ocSet, formUnsupported, {}},
};
static_assert(coversInstrs(instrs), "each instruction has one row");

constexpr sProcSetting_t scrpdSizeSetting()
{
    sProcSetting_t s;
    s.setting = settingScrpdSize;
    s.directive = "SCRPDSIZE";
    s.choices = {64, 128, 256};
    s.control = sProcSetting_t::eControlChoice;
    s.title = QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Scratchpad size:");
    s.unit = QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Bytes");
    s.toolTip =
        QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Size of the scratchpad that the processor is built with");
    return s;
}

constexpr sProcSetting_t intVectorAddrSetting()
{
    sProcSetting_t s;
    s.setting = settingIntVectorAddr;
    s.directive = "INTVECTOR";
    s.control = sProcSetting_t::eControlNumber;
    s.title = QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Interrupt vector address:");
    s.toolTip = QT_TRANSLATE_NOOP(
        "nsProc::ProcConfigWidget",
        "Address where the processor goes on at an interrupt, in decimal or, behind 0x, in hexadecimal");
    s.isAddress = true;
    s.shownMax = 4095;
    s.shownStart = 4095;
    return s;
}

constexpr sProcSetting_t settings[] = {
    clkFreqSetting(), scrpdSizeSetting(), intVectorAddrSetting(), pageSizeSetting(), scrpdIODevSetting("SCRPDIODEV"),
};

constexpr ProcTable table()
{
    ProcTable t;
    t.name = "Xilinx PicoBlaze 6";
    t.define = "PROC::XPBLZE6";
    t.cfgSection = "XPBlze6";
    t.asmHelpPage = "XPBlze6AsmBeMessages";
    t.simHelpPage = "XPBlze6SimMessages";
    t.cfgHelpPage = "configPageXPBlze6Processor";

    t.regs.letter = 's';
    t.regs.base = 16;
    t.regs.count = 16;
    t.banks = "AB";

    t.layout.dstShift = 8;
    t.layout.srcShift = 4;
    t.layout.regBits = 4;
    t.layout.portBits = 8;
    t.layout.scrpdBits = 8;
    t.layout.maxNumber = 255;
    t.layout.maxPort = 255;
    t.layout.flowBits = 12;

    t.sim.clearsEachInstr = false;
    t.sim.chainsZero = true;
    t.sim.takesComputedTargets = true;
    t.sim.takesPortConstants = true;

    t.core.stack = sCoreTraits_t::eStackResets;
    t.core.stackCells = 30;
    t.core.memorySize = 4096;
    t.core.constantWriteHasLines = true;

    t.storedSettings = {settingScrpdSize, settingIntVectorAddr, settingClkFreq, settingPageSize};
    t.fixedSettings = {settingScrpdSize, settingPageSize, settingClkFreq};
    t.setInstrs(instrs);
    t.setSettings(settings);
    return t;
}

constexpr ProcTable xpBlze6 = table();
static_assert(isConsistent(xpBlze6), "settings with a row, fields that hold the registers");

} // namespace

const ProcTable& xpBlze6Table()
{
    return xpBlze6;
}

} // namespace nsProc
