#include "LMico8v3xSim.h"

#include "LMico8v3xSimCore.h"

#include "ProcTables.h"

namespace nsLMico8v3x {

LMico8v3xSim::LMico8v3xSim(QObject* parent)
    : ProcSim(nsProc::lMico8v3xTable(), parent)
{
}

nsProc::ProcSimCore* LMico8v3xSim::createCoreWidget(const std::shared_ptr<nsProc::ProcSimCoreData>& data, int pcMax)
{
    return new LMico8v3xSimCore(data, pcMax);
}

} // namespace nsLMico8v3x
