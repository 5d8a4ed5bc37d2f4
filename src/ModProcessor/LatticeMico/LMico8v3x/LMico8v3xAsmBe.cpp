#include "LMico8v3xAsmBe.h"

#include "ProcCoreConfig.h"
#include "ProcTables.h"

#include "Set.h"

namespace nsLMico8v3x {

namespace {

using namespace nsModAsmFe;
using namespace nsProc;

const int smallestScrpdSize = 32;

} // namespace

LMico8v3xAsmBe::LMico8v3xAsmBe(QObject* parent)
    : ProcAsmBe(lMico8v3xTable(), parent)
{
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
