#include "XPBlze6.h"

#include "XPBlze6AsmBe.h"
#include "XPBlze6ConfigWidget.h"
#include "XPBlze6Sim.h"
#include "XPBlzeActionsSim.h"

namespace nsXPBlze6 {

XPBlze6::XPBlze6(QObject* parent)
    : ProcShell(nsProc::xpBlze6Table(), this, parent)
{
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

nsProc::ProcConfigWidget* XPBlze6::createConfigWidget()
{
    return new XPBlze6ConfigWidget;
}

} // namespace nsXPBlze6
