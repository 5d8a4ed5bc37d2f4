#include "XPBlze3AsmBe.h"

#include "ProcTables.h"

namespace nsXPBlze3 {

namespace {

using namespace nsModAsmFe;
using namespace nsProc;

} // namespace

XPBlze3AsmBe::XPBlze3AsmBe(QObject* parent)
    : ProcAsmBe(xpBlze3Table(), parent)
{
}

bool XPBlze3AsmBe::checkConfigStage1()
{
    return checkConfigIntVectorAddr(nullptr);
}

} // namespace nsXPBlze3
