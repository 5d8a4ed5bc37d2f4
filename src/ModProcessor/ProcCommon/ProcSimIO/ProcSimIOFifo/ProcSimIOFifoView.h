#pragma once

#include "ProcSimIODeviceView.h"

class QLabel;

namespace nsProc {

class ProcSimEdtFifo;
class ProcSimEdtNumeric;
class ProcSimIOFifo;

/// The card of a FIFO: the value of the last access, and the list when it is expanded.
class ProcSimIOFifoView : public ProcSimIODeviceView
{
    Q_OBJECT

public:
    explicit ProcSimIOFifoView(ProcSimIOFifo* device);

protected:
    void showDevice() override;

private:
    ProcSimIOFifo* m_fifo;
    QLabel* m_access;
    ProcSimEdtNumeric* m_lastValue;
    ProcSimEdtFifo* m_list;
    QToolButton* m_expand;
};

} // namespace nsProc
