#include "XPBlze3Sim.h"

#include "XPBlze3SimCore.h"

namespace nsXPBlze3 {

namespace {

nsProc::sProcSimTraits_t traits()
{
    nsProc::sProcSimTraits_t result;
    result.helpPage = "XPBlze3SimMessages";
    return result;
}

} // namespace

XPBlze3Sim::XPBlze3Sim(QObject* parent)
    : ProcSim(traits(), parent)
{
    setPicoBlazeHandlers();
}

nsProc::ProcSimCore* XPBlze3Sim::createCoreWidget(const std::shared_ptr<nsProc::ProcSimCoreData>& data, int pcMax)
{
    return new XPBlze3SimCore(data, pcMax);
}

QString XPBlze3Sim::changedSetting(const nsProc::ProcCoreConfig& config) const
{
    if (config.pageSize != this->config().pageSize)
        return QStringLiteral("pageSize");
    if (config.clkFreq != this->config().clkFreq)
        return QStringLiteral("clkFreq");
    return QString();
}

} // namespace nsXPBlze3
