#include "ProcSimIOAddrLine.h"

#include "ProcSimEdtNumeric.h"
#include "ProcSimIODevice.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QResizeEvent>
#include <QSignalBlocker>

namespace nsProc {

ProcSimIOAddrLine::ProcSimIOAddrLine(QWidget* parent)
    : QWidget(parent)
    , m_addr(new ProcSimEdtNumeric(this))
    , m_nameLabel(new QLabel(this))
{
    setObjectName(QStringLiteral("procSimIOAddrLine"));
    auto* title = new QLabel(tr("Addr:"), this);
    title->setObjectName(QStringLiteral("procSimIOTitle"));
    title->setBuddy(m_addr);
    title->setToolTip(tr("Address"));
    m_addr->setToolTip(tr("Address"));
    m_addr->setRange(0, ProcSimIODevice::maxPortAddr);
    m_nameLabel->setObjectName(QStringLiteral("procSimIOName"));
    m_nameLabel->setToolTip(tr("Address substitute"));
    // A long name is cut, so that it does not widen the dock.
    m_nameLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_nameLabel->setTextFormat(Qt::PlainText);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(title);
    layout->addWidget(m_addr);
    layout->addWidget(m_nameLabel, 1);
    setFocusProxy(m_addr);
    connect(m_addr, &ProcSimEdtNumeric::edited, this, &ProcSimIOAddrLine::takeEdit);
    connect(m_addr, &ProcSimEdtNumeric::valueChanged, this, &ProcSimIOAddrLine::finishEdit);
}

void ProcSimIOAddrLine::setBase(int base)
{
    if (base != m_addr->base())
        m_addr->setBase(base);
}

void ProcSimIOAddrLine::setAddr(int addr)
{
    if (addr == ProcSimIODevice::noAddr) {
        showNone();
        return;
    }
    if (m_isNone && m_addr->text().isEmpty())
        m_addr->setBase(m_addr->base());
    m_isNone = false;
    m_addr->setPlaceholderText(QString());
    if (addr > ProcSimIODevice::maxPortAddr)
        m_addr->setRange(0, ProcSimIODevice::maxAddr);
    m_addr->setValue(addr);
}

void ProcSimIOAddrLine::showNone()
{
    m_isNone = true;
    m_addr->setPlaceholderText(tr("none"));
    // Clearing the text must not count as an edit to address 0.
    const QSignalBlocker silence(m_addr);
    m_addr->clear();
}

void ProcSimIOAddrLine::takeEdit(int addr)
{
    // A field that the user leaves without typing shows a number, which does not count as an address.
    if (m_isNone && !m_addr->isModified())
        return;
    m_isNone = false;
    m_addr->setPlaceholderText(QString());
    emit addrEdited(addr);
}

void ProcSimIOAddrLine::finishEdit()
{
    if (m_isNone)
        showNone();
}

bool ProcSimIOAddrLine::addr(int* addr) const
{
    if (m_addr->text().isEmpty())
        return false;
    *addr = m_addr->value();
    return true;
}

void ProcSimIOAddrLine::setName(const QString& name)
{
    if (name == m_name)
        return;
    m_name = name;
    showName();
}

void ProcSimIOAddrLine::showName()
{
    m_nameLabel->setText(m_nameLabel->fontMetrics().elidedText(m_name, Qt::ElideMiddle, m_nameLabel->width()));
    m_nameLabel->setAccessibleName(m_name);
}

void ProcSimIOAddrLine::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layout()->activate();
    showName();
}

} // namespace nsProc
