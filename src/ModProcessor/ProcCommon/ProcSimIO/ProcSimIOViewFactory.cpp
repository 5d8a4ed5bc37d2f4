#include "ProcSimIOViewFactory.h"

#include "ProcSimIOFifo.h"
#include "ProcSimIOFifoView.h"
#include "ProcSimIOMem.h"
#include "ProcSimIOMemView.h"
#include "ProcSimIOReg8Bit.h"
#include "ProcSimIORegView.h"

namespace nsProc {

ProcSimIODeviceView* ProcSimIOViewFactory::createView(ProcSimIOPluginIf* device)
{
    if (auto* reg = dynamic_cast<ProcSimIOReg8Bit*>(device))
        return new ProcSimIORegView(reg);
    if (auto* fifo = dynamic_cast<ProcSimIOFifo*>(device))
        return new ProcSimIOFifoView(fifo);
    if (auto* mem = dynamic_cast<ProcSimIOMem*>(device))
        return new ProcSimIOMemView(mem);
    return nullptr;
}

} // namespace nsProc
