#include "XPBlze6Sim.h"

#include "XPBlze6SimCore.h"

#include "ProcTables.h"

namespace nsXPBlze6 {

XPBlze6Sim::XPBlze6Sim(QObject* parent)
    : ProcSim(nsProc::xpBlze6Table(), parent)
{
}

nsProc::ProcSimCore* XPBlze6Sim::createCoreWidget(const std::shared_ptr<nsProc::ProcSimCoreData>& data, int pcMax)
{
    return new XPBlze6SimCore(data, pcMax);
}

} // namespace nsXPBlze6
