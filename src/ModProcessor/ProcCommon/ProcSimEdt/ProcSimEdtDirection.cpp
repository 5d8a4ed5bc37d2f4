#include "ProcSimEdtDirection.h"

#include <QWheelEvent>

namespace nsProc {

namespace {

const int leastWidth = 56; ///< pixels

} // namespace

ProcSimEdtDirection::ProcSimEdtDirection(QWidget* parent)
    : QComboBox(parent)
{
    setObjectName(QStringLiteral("procSimEdtDirection"));
    setToolTip(tr("Direction of the accesses that the device answers"));
    setFocusPolicy(Qt::StrongFocus);
    // In a narrow dock the end of its text is cut off, which the list shows whole.
    setMinimumWidth(leastWidth);
    addItem(tr("Read"), 1);
    addItem(tr("Write"), 2);
    addItem(tr("Read/Write"), 4);
    connect(this, QOverload<int>::of(&QComboBox::activated), this, [this] { emit directionSelected(data()); });
}

void ProcSimEdtDirection::setDirection(ProcSimIOPluginIf::eDirection_t direction)
{
    setData(1 << direction);
}

void ProcSimEdtDirection::setData(int data)
{
    setCurrentIndex(findData(data));
}

bool ProcSimEdtDirection::chkDirection(ProcSimIOPluginIf::eDirection_t direction) const
{
    const int both = 1 << ProcSimIOPluginIf::eDirectionRdWr;
    return data() == both || data() == 1 << direction;
}

void ProcSimEdtDirection::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

} // namespace nsProc
