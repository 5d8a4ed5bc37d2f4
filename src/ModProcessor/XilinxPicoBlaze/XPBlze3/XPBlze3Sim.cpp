#include "XPBlze3Sim.h"

#include "XPBlze3SimCore.h"

#include "ProcTables.h"

namespace nsXPBlze3 {

XPBlze3Sim::XPBlze3Sim(QObject* parent)
    : ProcSim(nsProc::xpBlze3Table(), parent)
{
}

nsProc::ProcSimCore* XPBlze3Sim::createCoreWidget(const std::shared_ptr<nsProc::ProcSimCoreData>& data, int pcMax)
{
    return new XPBlze3SimCore(data, pcMax);
}

} // namespace nsXPBlze3
