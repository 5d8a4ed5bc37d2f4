// The Mico8 v3.x.

#include "ProcTables.h"

namespace nsProc {

namespace {

using namespace nsModAsmFe;

/// The instruction set. Words without their operands: number and register form, or always, Z, NZ, C, NC, or C and Z, or
/// DISABLE, ENABLE.
constexpr sInstr_t instrs[] = {
    {ocSub, formTwoOperand, {0x02000, 0x00000}},
    {ocSubc, formTwoOperand, {0x06000, 0x04000}},
    {ocAdd, formTwoOperand, {0x0A000, 0x08000}},
    {ocAddc, formTwoOperand, {0x0E000, 0x0C000}},
    {ocLoad, formTwoOperand, {0x12000, 0x10000}},
    {ocAnd, formTwoOperand, {0x16000, 0x14000}},
    {ocOr, formTwoOperand, {0x1A000, 0x18000}},
    {ocXor, formTwoOperand, {0x1E000, 0x1C000}},
    {ocComp, formTwoOperand, {0x22000, 0x20000}},
    {ocTest, formTwoOperand, {0x26000, 0x24000}},
    {ocRor, formRotate, {0x28000}},
    {ocRol, formRotate, {0x28001}},
    {ocRorc, formRotate, {0x28002}},
    {ocRolc, formRotate, {0x28003}},
    {ocWrprt, formPort, {0x2E000, 0x2E002}},
    {ocRdprt, formPort, {0x2E001, 0x2E003}},
    {ocWrmem, formScrpd, {0x2E004, 0x2E006}},
    {ocRdmem, formScrpd, {0x2E005, 0x2E007}},
    {ocJump, formFlow, {0x3B000, 0x30000, 0x31000, 0x32000, 0x33000}},
    {ocCall, formFlow, {0x38000, 0x34000, 0x35000, 0x36000, 0x37000}},
    {ocRet, formNone, {0x39000}},
    {ocReti, formNone, {0x3A000}},
    {ocClr, formFlag, {0x2C000, 0x2C002}},
    {ocSet, formFlag, {0x2C001, 0x2C003}},
    {ocInt, formSwitch, {0x2C004, 0x2C005}},
    {ocNop, formNone, {0x10000}},
    {ocCompc, formSimulated, {}},
    {ocHwbuild, formUnsupported, {}},
    {ocLoadret, formUnsupported, {}},
    {ocRegbank, formUnsupported, {}},
    {ocSl0, formUnsupported, {}},
    {ocSl1, formUnsupported, {}},
    {ocSlx, formUnsupported, {}},
    {ocSr0, formUnsupported, {}},
    {ocSr1, formUnsupported, {}},
    {ocSrx, formUnsupported, {}},
    {ocStar, formUnsupported, {}},
    {ocTestc, formUnsupported, {}},
};
static_assert(coversInstrs(instrs), "each instruction has one row");

constexpr int minRegCount = 16;
constexpr int maxRegCount = 32;
constexpr int maxInstrClkCnt = 10000;

constexpr sProcSetting_t regCountSetting()
{
    sProcSetting_t s;
    s.setting = settingRegCount;
    s.directive = "REGCOUNT";
    s.storedMin = minRegCount;
    s.storedMax = maxRegCount;
    s.choices = {minRegCount, maxRegCount};
    s.control = sProcSetting_t::eControlChoice;
    s.title = QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Register count:");
    s.toolTip = QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Number of registers that the processor is built with");
    return s;
}

constexpr sProcSetting_t scrpdSizeSetting()
{
    sProcSetting_t s;
    s.setting = settingScrpdSize;
    s.directive = "INTSCRPDSIZE";
    s.least = 32;
    s.control = sProcSetting_t::eControlLargeNumber;
    s.title = QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Internal scratchpad size:");
    s.unit = QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Bytes");
    s.toolTip =
        QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Size of the scratchpad that the processor is built with");
    s.shownMin = 32;
    s.shownMax = 4294967296.0;
    s.shownStart = 32;
    return s;
}

constexpr sProcSetting_t instrClkCntSetting()
{
    sProcSetting_t s;
    s.setting = settingInstrClkCnt;
    s.directive = "INSTCLKCYCLECOUNT";
    s.storedMax = maxInstrClkCnt;
    s.least = 1;
    s.control = sProcSetting_t::eControlNumber;
    s.title = QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Instruction clock cycle count:");
    s.unit = QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Clock cycles");
    s.toolTip =
        QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Clock cycles that the processor takes for an instruction");
    s.shownMax = maxInstrClkCnt;
    return s;
}

constexpr sProcSetting_t settings[] = {
    clkFreqSetting(),     regCountSetting(), scrpdSizeSetting(),
    instrClkCntSetting(), pageSizeSetting(), scrpdIODevSetting("INTSCRPDIODEV"),
};

constexpr ProcTable table()
{
    ProcTable t;
    t.name = "Lattice Mico8 v3.x";
    t.define = "PROC::LMICO8V3X";
    t.cfgSection = "LMico8v3x";
    t.asmHelpPage = "LMico8v3xAsmBeMessages";
    t.simHelpPage = "LMico8v3xSimMessages";
    t.cfgHelpPage = "configPageLMico8v3xProcessor";

    t.regs.letter = 'r';
    t.regs.base = 10;
    t.regs.count = maxRegCount;

    t.layout.dstShift = 8;
    t.layout.srcShift = 3;
    t.layout.regBits = 5;
    t.layout.addrShift = 3;
    t.layout.portBits = 5;
    t.layout.scrpdBits = 5;
    t.layout.maxNumber = 255;
    t.layout.maxPort = 255;
    t.layout.flowBits = 12;
    t.layout.relativeFlow = true;
    t.layout.portIsNumber = true;

    t.regCount = maxRegCount;
    t.scrpdSize = 32;
    t.intVectorAddr = 0;
    t.everyPageHasIntVector = true;

    t.sim.logicClearsCarry = false;
    t.sim.takesPortConstants = true;

    t.core.stack = sCoreTraits_t::eStackOfReturns;
    t.core.stackCells = 16;
    t.core.memorySize = 4096;
    t.core.startAddr = 1;
    t.core.startZero = true;
    t.core.latchesRequests = true;
    t.core.rotatesSource = true;
    t.core.rotateKeepsCarry = true;
    t.core.hasLongAddresses = true;
    t.core.takesRegModulo = true;
    t.core.accessClocks = 3;

    t.storedSettings = {settingScrpdSize, settingClkFreq, settingInstrClkCnt, settingRegCount, settingPageSize};
    t.fixedSettings = {settingScrpdSize, settingPageSize, settingClkFreq, settingInstrClkCnt, settingRegCount};
    t.setInstrs(instrs);
    t.setSettings(settings);
    return t;
}

constexpr ProcTable lMico8v3x = table();
static_assert(isConsistent(lMico8v3x), "settings with a row, fields that hold the registers");

} // namespace

const ProcTable& lMico8v3xTable()
{
    return lMico8v3x;
}

} // namespace nsProc
