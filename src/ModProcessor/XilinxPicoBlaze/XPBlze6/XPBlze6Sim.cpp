#include "XPBlze6Sim.h"

#include "XPBlze6SimCore.h"

#include "Opcode.h"
#include "ProcSimCoreData.h"

namespace nsXPBlze6 {

using namespace nsModAsmFe;

namespace {

nsProc::sProcSimTraits_t traits()
{
    nsProc::sProcSimTraits_t result;
    result.helpPage = "XPBlze6SimMessages";
    result.bankCount = 2;
    result.clearsEachInstr = false;
    result.chainsZero = true;
    result.takesComputedTargets = true;
    result.takesPortConstants = true;
    result.fixedSettings = QStringList({"scrpdSize", "pageSize", "clkFreq"});
    return result;
}

} // namespace

XPBlze6Sim::XPBlze6Sim(QObject* parent)
    : ProcSim(traits(), parent)
{
    setPicoBlazeHandlers();
    setHandler(ocCompc, &XPBlze6Sim::simOpcode_compWithCarry);
    setHandler(ocTestc, &XPBlze6Sim::simOpcode_testWithCarry);
    setHandler(ocStar, &XPBlze6Sim::simOpcode_star);
    setHandler(ocRegbank, &XPBlze6Sim::simOpcode_regBank);
    setHandler(ocHwbuild, &XPBlze6Sim::simOpcode_hwBuild);
    setHandler(ocLoadret, &XPBlze6Sim::simOpcode_loadRet);
}

nsProc::ProcSimCore* XPBlze6Sim::createCoreWidget(const std::shared_ptr<nsProc::ProcSimCoreData>& data, int pcMax)
{
    return new XPBlze6SimCore(data, pcMax);
}

bool XPBlze6Sim::simOpcode_star()
{
    int value = 0;
    if (!getValueRegNum(m_pc->arg1, &value))
        return false;
    core()->toggleBank();
    const bool success = setValueReg(m_pc->arg0, value);
    core()->toggleBank();
    return success && finish();
}

bool XPBlze6Sim::simOpcode_regBank()
{
    const int bank = m_pc->arg0->iValue;
    if (bank != 0 && bank != 1) {
        signInternalError(tr("Can not get value of argument: %1").arg(m_pc->arg0->name));
        return false;
    }
    core()->setBank(bank);
    return finish();
}

bool XPBlze6Sim::simOpcode_hwBuild()
{
    int value = 0;
    if (!core()->readHwbld(&value)) {
        signMsg(nsProc::errHwBuildRd);
        return false;
    }
    if (!setValueReg(m_pc->arg0, value))
        return false;
    core()->setCarryBit(1);
    core()->setZeroBit(isZeroResult(value));
    return finish();
}

bool XPBlze6Sim::simOpcode_loadRet()
{
    if (m_pc->arg1->type != Arg::numeric) {
        signInternalError(tr("Can not get value of argument: %1").arg(m_pc->arg1->name));
        return false;
    }
    return setValueReg(m_pc->arg0, m_pc->arg1->iValue) && returnFromCall();
}

} // namespace nsXPBlze6
