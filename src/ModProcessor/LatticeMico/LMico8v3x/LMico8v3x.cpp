#include "LMico8v3x.h"

#include "LMico8v3xAsmBe.h"
#include "LMico8v3xConfigWidget.h"
#include "LMico8v3xSim.h"
#include "LMicoActionsSim.h"

namespace nsLMico8v3x {

LMico8v3x::LMico8v3x(QObject* parent)
    : ProcShell(this, parent)
{
    setSettings(defaultConfig());
}

QString LMico8v3x::processorName()
{
    return QStringLiteral("Lattice Mico8 v3.x");
}

nsProc::ProcAsmBe* LMico8v3x::createAsmBe()
{
    return new LMico8v3xAsmBe;
}

nsProc::ProcSim* LMico8v3x::createSim()
{
    return new LMico8v3xSim;
}

nsProc::ProcActionsSim* LMico8v3x::createActionsSim()
{
    return new nsLMico::LMicoActionsSim;
}

QString LMico8v3x::cfgSection() const
{
    return QStringLiteral("LMico8v3x");
}

nsProc::ProcCoreConfig LMico8v3x::defaultConfig() const
{
    return LMico8v3xConfig();
}

nsProc::ProcConfigWidget* LMico8v3x::createConfigWidget()
{
    return new LMico8v3xConfigWidget;
}

QList<nsProc::ProcShell::sCfgNumber> LMico8v3x::cfgNumbers(nsProc::ProcCoreConfig* settings) const
{
    return {{"scrpdSize", &settings->scrpdSize},
            {"clkFreq", nullptr},
            {"instrClkCnt", &settings->instrClkCnt, 0, LMico8v3xConfig::maxInstrClkCnt},
            {"regCount", &settings->regCount, LMico8v3xConfig::minRegCount, LMico8v3xConfig::maxRegCount},
            {"memMap/pageSize", &settings->pageSize}};
}

} // namespace nsLMico8v3x
