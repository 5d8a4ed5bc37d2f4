#include "LMico8v3xSim.h"

#include "LMico8v3xSimCore.h"

#include "Opcode.h"
#include "ProcSimCoreData.h"

namespace nsLMico8v3x {

using namespace nsModAsmFe;

namespace {

nsProc::sProcSimTraits_t traits()
{
    nsProc::sProcSimTraits_t result;
    result.helpPage = "LMico8v3xSimMessages";
    result.logicClearsCarry = false;
    result.takesPortConstants = true;
    result.fixedSettings = QStringList({"scrpdSize", "pageSize", "clkFreq", "instrClkCnt", "regCount"});
    return result;
}

} // namespace

LMico8v3xSim::LMico8v3xSim(QObject* parent)
    : ProcSim(traits(), parent)
{
    setCommonHandlers();
    setHandler(ocCompc, &LMico8v3xSim::simOpcode_compWithCarry);
    for (eOpcode_t opcode : {ocRol, ocRolc, ocRor, ocRorc})
        setHandler(opcode, &LMico8v3xSim::simOpcode_rot);
    setHandler(ocClr, &LMico8v3xSim::simOpcode_clr);
    setHandler(ocSet, &LMico8v3xSim::simOpcode_set);
}

nsProc::ProcSimCore* LMico8v3xSim::createCoreWidget(const std::shared_ptr<nsProc::ProcSimCoreData>& data, int pcMax)
{
    return new LMico8v3xSimCore(data, pcMax);
}

bool LMico8v3xSim::setFlag(int value)
{
    switch (m_pc->arg0->type) {
    case Arg::flagC:
        core()->setCarryBit(value);
        return finish();
    case Arg::flagZ:
        core()->setZeroBit(value);
        return finish();
    default:
        signInternalError(tr("Unsupported argument!"));
        return false;
    }
}

} // namespace nsLMico8v3x
