#include "XPBlze6AsmBe.h"

#include "ProcCoreConfig.h"
#include "ProcTables.h"

#include "Set.h"

namespace nsXPBlze6 {

namespace {

using namespace nsModAsmFe;
using namespace nsProc;

} // namespace

XPBlze6AsmBe::XPBlze6AsmBe(QObject* parent)
    : ProcAsmBe(xpBlze6Table(), parent)
{
}

bool XPBlze6AsmBe::setConfigFromDirective(Set* set, bool* known)
{
    *known = true;
    if (set->nameUpper == QLatin1String("INTVECTOR"))
        return overrideConfig(set, &m_config->intVectorAddr, "intVectorAddr") && checkConfigIntVectorAddr(&set->srcRef);
    if (set->nameUpper == QLatin1String("SCRPDSIZE")) {
        if (!overrideConfig(set, &m_config->scrpdSize, "scrpdSize"))
            return false;
        m_scrpdMax = m_config->scrpdSize - 1;
        return checkConfigScrpdSize(&set->srcRef);
    }
    return ProcAsmBe::setConfigFromDirective(set, known);
}

bool XPBlze6AsmBe::checkConfigStage1()
{
    return checkConfigIntVectorAddr(nullptr) && checkConfigScrpdSize(nullptr);
}

bool XPBlze6AsmBe::checkConfigScrpdSize(const SrcReference* srcRef)
{
    const int size = m_config->scrpdSize;
    if (size == 64 || size == 128 || size == 256)
        return true;
    signMsg(errIvldScrpdSize, srcRef, QString::number(size), 0);
    return false;
}

} // namespace nsXPBlze6
