#include "XPBlze6SimCore.h"

#include "XPBlze6SimCoreReg.h"

#include "ProcSimCoreData.h"

namespace nsXPBlze6 {

XPBlze6SimCore::XPBlze6SimCore(const std::shared_ptr<nsProc::ProcSimCoreData>& data, int pcMax, QWidget* parent)
    : ProcSimCore(data, pcMax, new XPBlze6SimCoreReg(data), parent)
{
    addHwbld();
}

XPBlze6SimCore::XPBlze6SimCore(int scrpdSize, int pcMax, QWidget* parent)
    : XPBlze6SimCore(std::make_shared<nsProc::ProcSimCoreData>(16, 2, scrpdSize), pcMax, parent)
{
}

void XPBlze6SimCore::setBank(int bank)
{
    data()->setBank(bank);
    refresh();
}

void XPBlze6SimCore::toggleBank()
{
    data()->toggleBank();
    refresh();
}

void XPBlze6SimCore::setHwbld(int value)
{
    data()->setHwbld(value);
    refresh();
}

bool XPBlze6SimCore::hwbld(int* value) const
{
    return data()->readHwbld(value);
}

} // namespace nsXPBlze6
