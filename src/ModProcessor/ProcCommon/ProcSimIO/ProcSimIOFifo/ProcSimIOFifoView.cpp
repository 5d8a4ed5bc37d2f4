#include "ProcSimIOFifoView.h"

#include "Colors.h"
#include "HelpRef.h"
#include "ProcSimEdtFifo.h"
#include "ProcSimEdtNumeric.h"
#include "ProcSimIOFifo.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QToolButton>
#include <QVBoxLayout>

namespace nsProc {

ProcSimIOFifoView::ProcSimIOFifoView(ProcSimIOFifo* device)
    : ProcSimIODeviceView(device, Colors::eKindFifo, tr("Fifo"))
    , m_fifo(device)
    , m_access(new QLabel(this))
    , m_lastValue(new ProcSimEdtNumeric(this))
    , m_list(new ProcSimEdtFifo(device, this))
    , m_expand(addButton(QStringLiteral("procSimIOExpand")))
{
    HelpRef::setWhatsThis(this,
                          tr("A FIFO: a list of values, one a line. The triangle shows which line the next read takes, "
                             "and where the next write goes. Values can be typed, pasted and deleted."),
                          QStringLiteral("pageId://simulatorDevices#device-fifo"));
    m_access->setObjectName(QStringLiteral("procSimIOAccess"));
    m_access->setToolTip(tr("Last access: rd for a read, wr for a write"));
    m_lastValue->setToolTip(tr("Last value"));
    m_lastValue->setRange(0, ProcSimIODevice::maxValue);
    m_lastValue->setReadOnly(true);
    m_lastValue->setFocusPolicy(Qt::NoFocus);
    m_list->hide();
    directionLine()->addWidget(m_access);
    directionLine()->addWidget(m_lastValue);
    body()->addWidget(m_list);
    connect(m_expand, &QToolButton::clicked, this, [this] {
        m_fifo->setExpanded(!m_fifo->isExpanded());
        refresh();
    });
}

void ProcSimIOFifoView::showDevice()
{
    if (m_lastValue->base() != m_fifo->base())
        m_lastValue->setBase(m_fifo->base());
    m_lastValue->setValue(m_fifo->lastValue());
    m_lastValue->setHighlightEn(m_fifo->isHighlighted());
    const ProcSimIOFifo::eAccess_t access = m_fifo->lastAccess();
    m_access->setText(access == ProcSimIOFifo::eAccessNone ? QString()
                      : access == ProcSimIOFifo::eAccessRd ? QStringLiteral("rd")
                                                           : QStringLiteral("wr"));
    if (m_expand->toolTip().isEmpty() || m_list->isHidden() == m_fifo->isExpanded())
        showExpanded(m_expand, m_fifo->isExpanded());
    m_list->setVisible(m_fifo->isExpanded());
    if (m_fifo->isExpanded())
        m_list->refresh();
    const long long dropped = m_fifo->lines().dropped();
    const QString note = dropped == 0 ? QString() : tr("The oldest %L1 values have been dropped").arg(dropped);
    if (toolTip() != note)
        setToolTip(note);
}

} // namespace nsProc
