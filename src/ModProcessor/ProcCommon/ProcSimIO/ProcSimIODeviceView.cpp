#include "ProcSimIODeviceView.h"

#include "HelpRef.h"
#include "ProcSimEdtDirection.h"
#include "ProcSimEdtNumeric.h"
#include "ProcSimIOAddrLine.h"
#include "ProcSimIODevice.h"
#include "ProcSimIOTypeIdentifier.h"
#include "SchemeIcons.h"

#include <QHBoxLayout>
#include <QToolButton>
#include <QVBoxLayout>

namespace nsProc {

ProcSimIODeviceView::ProcSimIODeviceView(ProcSimIODevice* device, Colors::eRole_t color, const QString& type)
    : m_device(device)
    , m_addrRow(new QHBoxLayout)
    , m_addrLine(new ProcSimIOAddrLine(this))
    , m_direction(new ProcSimEdtDirection(this))
    , m_directionLine(new QHBoxLayout)
    , m_body(new QVBoxLayout)
{
    setObjectName(QStringLiteral("procSimIODevice"));
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    HelpRef::setWhatsThis(m_addrLine,
                          tr("The port at which the device answers; of a memory the first one. It can be changed at "
                             "any time. The name is that which the program used for the port last."),
                          QStringLiteral("pageId://simulatorDevices#common"));
    HelpRef::setWhatsThis(m_direction,
                          tr("The accesses that the device answers: reads of the program, its writes, or both."),
                          QStringLiteral("pageId://simulatorDevices#common"));

    m_addrRow->setSpacing(4);
    m_addrRow->addWidget(m_addrLine, 1);
    QToolButton* close = makeButton(QStringLiteral("procSimIOClose"));
    close->setIcon(SchemeIcons::of(QStringLiteral(":/ProcSim/img/devClose.png")));
    close->setToolTip(tr("Close device"));
    m_addrRow->addWidget(close);
    m_directionLine->setSpacing(8);
    m_directionLine->addWidget(m_direction);
    m_directionLine->addStretch(1);

    m_body->setContentsMargins(6, 4, 4, 4);
    m_body->setSpacing(4);
    m_body->addLayout(m_addrRow);
    m_body->addLayout(m_directionLine);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);
    layout->addWidget(new ProcSimIOTypeIdentifier(color, type, this));
    layout->addLayout(m_body, 1);
    // In the tab order, the close button is the last one of the first line.
    setTabOrder(m_addrLine->addrEdit(), m_direction);

    connect(close, &QToolButton::clicked, this, &ProcSimIODeviceView::closeDevice);
    connect(m_addrLine, &ProcSimIOAddrLine::addrEdited, this, [this](int addr) {
        if (m_device != nullptr)
            m_device->setAddr(addr);
    });
    connect(m_direction, &ProcSimEdtDirection::directionSelected, this, [this](int selection) {
        if (m_device != nullptr)
            m_device->setDirectionData(selection);
    });
}

ProcSimIODeviceView::~ProcSimIODeviceView()
{
    forgetDevice();
}

void ProcSimIODeviceView::forgetDevice()
{
    m_device = nullptr;
    // Fields that lose the focus because the card is closed must not report the end of their edit.
    const QList<QObject*> parts = findChildren<QObject*>();
    for (QObject* part : parts)
        part->blockSignals(true);
    hide();
}

void ProcSimIODeviceView::closeDevice()
{
    if (m_device == nullptr || m_device->procSimIOHook == nullptr)
        return;
    m_closing = true;
    m_device->procSimIOHook->removeIOPlugin(m_device);
}

void ProcSimIODeviceView::refresh()
{
    if (m_device == nullptr || !m_device->takeChanged())
        return;
    m_addrLine->setBase(m_device->base());
    m_addrLine->setAddr(m_device->addr());
    m_addrLine->setName(m_device->name());
    if (m_direction->data() != m_device->directionData())
        m_direction->setData(m_device->directionData());
    showDevice();
}

QToolButton* ProcSimIODeviceView::makeButton(const QString& objectName)
{
    auto* button = new QToolButton(this);
    button->setObjectName(objectName);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setIconSize(QSize(16, 16));
    button->setFixedSize(22, 22);
    return button;
}

QToolButton* ProcSimIODeviceView::addButton(const QString& objectName)
{
    QToolButton* button = makeButton(objectName);
    m_addrRow->insertWidget(m_addrRow->count() - 1, button);
    return button;
}

void ProcSimIODeviceView::showExpanded(QToolButton* button, bool expanded)
{
    button->setToolTip(expanded ? tr("Collapse list") : tr("Expand list"));
    button->setIcon(SchemeIcons::of(expanded ? QStringLiteral(":/ProcSim/img/fifoCollapse.png")
                                             : QStringLiteral(":/ProcSim/img/fifoExpand.png")));
}

} // namespace nsProc
