#include "XPBlze3SimCore.h"

#include "XPBlze3SimCoreReg.h"

#include "ProcSimCoreData.h"

namespace nsXPBlze3 {

XPBlze3SimCore::XPBlze3SimCore(const std::shared_ptr<nsProc::ProcSimCoreData>& data, int pcMax, QWidget* parent)
    : ProcSimCore(data, pcMax, new XPBlze3SimCoreReg(data), parent)
{
}

XPBlze3SimCore::XPBlze3SimCore(int scrpdSize, int pcMax, QWidget* parent)
    : XPBlze3SimCore(std::make_shared<nsProc::ProcSimCoreData>(16, 1, scrpdSize), pcMax, parent)
{
}

} // namespace nsXPBlze3
