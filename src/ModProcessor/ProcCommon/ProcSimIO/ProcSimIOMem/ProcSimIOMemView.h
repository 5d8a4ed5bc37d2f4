#pragma once

#include "ProcSimIODeviceView.h"

class QLabel;
class QLineEdit;

namespace nsProc {

class ProcSimEdtMemArray;
class ProcSimEdtNumeric;
class ProcSimIOMem;

/// The card of a memory: address and value of the last access; size and words when it is expanded.
class ProcSimIOMemView : public ProcSimIODeviceView
{
    Q_OBJECT

public:
    explicit ProcSimIOMemView(ProcSimIOMem* device);

protected:
    void showDevice() override;

private:
    void addLastAccess();
    void addArray();
    void takeSize();
    void showLastAccess();

    ProcSimIOMem* m_mem;
    QLabel* m_access;
    ProcSimEdtNumeric* m_lastAddr;
    ProcSimEdtNumeric* m_lastValue;
    QWidget* m_arrayPart;
    QLineEdit* m_size;
    ProcSimEdtMemArray* m_array;
    QToolButton* m_expand;
    int m_shownSize = -1;
};

} // namespace nsProc
