#include "XPBlze3.h"

#include "XPBlze3AsmBe.h"
#include "XPBlze3ConfigWidget.h"
#include "XPBlze3Sim.h"
#include "XPBlzeActionsSim.h"

namespace nsXPBlze3 {

XPBlze3::XPBlze3(QObject* parent)
    : ProcShell(nsProc::xpBlze3Table(), this, parent)
{
}

nsProc::ProcAsmBe* XPBlze3::createAsmBe()
{
    return new XPBlze3AsmBe;
}

nsProc::ProcSim* XPBlze3::createSim()
{
    return new XPBlze3Sim;
}

nsProc::ProcActionsSim* XPBlze3::createActionsSim()
{
    return new nsXPBlze::XPBlzeActionsSim;
}

nsProc::ProcConfigWidget* XPBlze3::createConfigWidget()
{
    return new XPBlze3ConfigWidget;
}

} // namespace nsXPBlze3
