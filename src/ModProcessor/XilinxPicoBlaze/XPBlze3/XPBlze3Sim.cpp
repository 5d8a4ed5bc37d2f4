#include "XPBlze3Sim.h"

#include "XPBlze3SimCore.h"

namespace nsXPBlze3 {

namespace {

nsProc::sProcSimTraits_t traits()
{
    nsProc::sProcSimTraits_t result;
    result.helpPage = "XPBlze3SimMessages";
    result.fixedSettings = QStringList({"pageSize", "clkFreq"});
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

} // namespace nsXPBlze3
