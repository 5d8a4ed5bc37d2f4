#include "LMico8v3xAsmBe.h"

#include "ProcCoreConfig.h"

#include "Set.h"

namespace nsLMico8v3x {

namespace {

using namespace nsModAsmFe;
using namespace nsProc;

/// The instruction set. Words without their operands: number and register form, or always, Z, NZ, C, NC, or C and Z, or
/// DISABLE, ENABLE.
const QVector<sInstr_t>& instrs()
{
    static const QVector<sInstr_t> table = {
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
    };
    return table;
}

const sInstrLayout_t layout = {8, 3, 3, 255, 255, 12, true, true};
const int smallestScrpdSize = 32;

} // namespace

LMico8v3xAsmBe::LMico8v3xAsmBe(QObject* parent)
    : ProcAsmBe(&instrs(), layout, "LMico8v3xAsmBeMessages", parent)
{
    for (int number = 0; number < 32; ++number)
        m_regs.insert('r' + QString::number(number), number);
}

QString LMico8v3xAsmBe::processorDefine() const
{
    return QStringLiteral("PROC::LMICO8V3X");
}

bool LMico8v3xAsmBe::setConfigFromDirective(Set* set, bool* known)
{
    *known = true;
    if (set->nameUpper == QLatin1String("INTSCRPDSIZE")) {
        if (!overrideConfig(set, &m_config->scrpdSize, "scrpdSize"))
            return false;
        m_scrpdMax = m_config->scrpdSize - 1;
        return checkConfigScrpdSize(&set->srcRef);
    }
    if (set->nameUpper == QLatin1String("INTSCRPDIODEV"))
        return setConfigScrpdIODev(set);
    if (set->nameUpper == QLatin1String("REGCOUNT"))
        return setConfigRegCount(set);
    if (set->nameUpper == QLatin1String("CLKFREQ"))
        return setConfigClkFreq(set);
    if (set->nameUpper == QLatin1String("INSTCLKCYCLECOUNT"))
        return setConfigInstrClkCnt(set);
    *known = false;
    return true;
}

bool LMico8v3xAsmBe::setConfigRegCount(Set* set)
{
    set->used = true;
    if (!expectNumeric(set))
        return false;
    m_config->regCount = set->iValue;
    if (set->iValue == 16 || set->iValue == 32)
        return true;
    signMsg(errIvldRegCnt, &set->srcRef, set->value, 0);
    return false;
}

bool LMico8v3xAsmBe::setConfigInstrClkCnt(Set* set)
{
    set->used = true;
    if (!expectNumeric(set))
        return false;
    m_config->instrClkCnt = set->iValue;
    if (set->iValue >= 1)
        return true;
    signMsg(errIvldInstClkCycleCnt, &set->srcRef, set->value, 0);
    return false;
}

bool LMico8v3xAsmBe::checkConfigStage1()
{
    // The interrupt vector is at a fixed place, which every page has.
    return checkConfigScrpdSize(nullptr);
}

bool LMico8v3xAsmBe::checkConfigScrpdSize(const SrcReference* srcRef)
{
    if (m_config->scrpdSize >= smallestScrpdSize)
        return true;
    signMsg(errIvldScrpdSize, srcRef, QString::number(m_config->scrpdSize), 0);
    return false;
}

} // namespace nsLMico8v3x
