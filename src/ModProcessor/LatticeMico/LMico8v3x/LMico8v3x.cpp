#include "LMico8v3x.h"

#include "LMico8v3xAsmBe.h"
#include "LMico8v3xConfigWidget.h"
#include "LMico8v3xSim.h"
#include "LMicoActionsSim.h"

namespace nsLMico8v3x {

LMico8v3x::LMico8v3x(QObject* parent)
    : ProcShell(nsProc::lMico8v3xTable(), this, parent)
{
}

nsProc::ProcAsmBe* LMico8v3x::createAsmBe()
{
    return new LMico8v3xAsmBe;
}

nsProc::ProcSim* LMico8v3x::createSim()
{
    return new LMico8v3xSim;
}

nsProc::ProcActionsSim* LMico8v3x::createActionsSim()
{
    return new nsLMico::LMicoActionsSim;
}

nsProc::ProcConfigWidget* LMico8v3x::createConfigWidget()
{
    return new LMico8v3xConfigWidget;
}

} // namespace nsLMico8v3x
