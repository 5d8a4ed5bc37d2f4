#include "XPBlze6.h"

#include "XPBlze6AsmBe.h"
#include "XPBlze6ConfigWidget.h"
#include "XPBlze6Sim.h"
#include "XPBlzeActionsSim.h"

namespace nsXPBlze6 {

XPBlze6::XPBlze6(QObject* parent)
    : ProcShell(this, parent)
{
    setSettings(defaultConfig());
}

QString XPBlze6::processorName()
{
    return QStringLiteral("Xilinx PicoBlaze 6");
}

nsProc::ProcAsmBe* XPBlze6::createAsmBe()
{
    return new XPBlze6AsmBe;
}

nsProc::ProcSim* XPBlze6::createSim()
{
    return new XPBlze6Sim;
}

nsProc::ProcActionsSim* XPBlze6::createActionsSim()
{
    return new nsXPBlze::XPBlzeActionsSim;
}

QString XPBlze6::cfgSection() const
{
    return QStringLiteral("XPBlze6");
}

nsProc::ProcCoreConfig XPBlze6::defaultConfig() const
{
    return XPBlze6Config();
}

nsProc::ProcConfigWidget* XPBlze6::createConfigWidget()
{
    return new XPBlze6ConfigWidget;
}

QList<nsProc::ProcShell::sCfgNumber> XPBlze6::cfgNumbers(nsProc::ProcCoreConfig* settings) const
{
    return {{"scrpdSize", &settings->scrpdSize},
            {"intVectorAddr", &settings->intVectorAddr},
            {"clkFreq", nullptr},
            {"memMap/pageSize", &settings->pageSize}};
}

} // namespace nsXPBlze6
