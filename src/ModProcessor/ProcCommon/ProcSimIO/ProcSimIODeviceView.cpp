#include "ProcSimIODeviceView.h"

#include "ProcSimIODevice.h"

namespace nsProc {

ProcSimIODeviceView::ProcSimIODeviceView(ProcSimIODevice* device)
    : m_device(device)
{
}

ProcSimIODeviceView::~ProcSimIODeviceView()
{
    forgetDevice();
}

void ProcSimIODeviceView::refresh()
{
    if (m_device != nullptr && m_device->takeChanged())
        showDevice();
}

void ProcSimIODeviceView::forgetDevice()
{
    m_device = nullptr;
}

} // namespace nsProc
