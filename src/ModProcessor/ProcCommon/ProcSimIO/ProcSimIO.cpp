#include "ProcSimIO.h"

#include "HelpRef.h"
#include "ProcSimIODeviceView.h"
#include "ProcSimIOViewFactory.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace nsProc {

namespace {

constexpr int emptyWidth = 230; ///< pixels; the empty dock is as wide as one with devices
constexpr int leastColumn = 96; ///< pixels of the cards that are always seen
constexpr int margin = 8;

} // namespace

ProcSimIO::ProcSimIO(QWidget* parent)
    : ProcSimIO(std::make_shared<ProcSimPorts>(), parent)
{
}

ProcSimIO::ProcSimIO(std::shared_ptr<ProcSimPorts> ports, QWidget* parent)
    : QWidget(parent)
    , m_ports(std::move(ports))
{
    setObjectName(QStringLiteral("procSimIO"));
    HelpRef::setWhatsThis(this,
                          tr("The devices that answer when the program reads and writes ports. A port that no device "
                             "answers gets one by itself; Add adds one by hand."),
                          QStringLiteral("pageId://simulatorDevices"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(margin);
    // As narrow as minimumSizeHint() says.
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    addTools(layout);
    addColumn(layout);
    m_ports->setListener(this);
    for (ProcSimIOPluginIf* device : m_ports->devices())
        deviceAdded(device);
    updateColumn();
}

ProcSimIO::~ProcSimIO()
{
    m_ports->setListener(nullptr);
}

void ProcSimIO::addTools(QVBoxLayout* layout)
{
    m_type = new QComboBox(this);
    m_type->setObjectName(QStringLiteral("procSimIODevType"));
    m_type->setToolTip(tr("Kind of device to add"));
    m_type->addItem(tr("Fifo"), ProcSimPorts::eDevFifo);
    m_type->addItem(tr("Register"), ProcSimPorts::eDevReg);
    m_type->addItem(tr("Memory block"), ProcSimPorts::eDevMem);
    m_type->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_type->setMinimumWidth(leastColumn / 2);

    const auto addButton = [this](const QString& text, const QString& toolTip, const char* name) {
        auto* button = new QPushButton(text, this);
        button->setToolTip(toolTip);
        button->setObjectName(QLatin1String(name));
        return button;
    };
    QPushButton* add = addButton(tr("Add"), tr("Add a device of this kind"), "procSimIOAdd");
    QPushButton* removeAll = addButton(tr("Remove all"), tr("Remove all devices"), "procSimIORemoveAll");
    QPushButton* waves = addButton(tr("Waves"), tr("Show the values of ports against time"), "procSimIOWaves");
    m_removeAll = removeAll;
    m_waves = waves;
    connect(add, &QPushButton::clicked, this, &ProcSimIO::addIOPluginFromMenu);
    connect(removeAll, &QPushButton::clicked, this, &ProcSimIO::removeIOPlugins);
    connect(waves, &QPushButton::clicked, this, &ProcSimIO::wavesRequested);

    auto* addLine = new QHBoxLayout;
    addLine->setSpacing(8);
    addLine->addWidget(m_type, 1);
    addLine->addWidget(add);
    m_buttons = new QHBoxLayout;
    m_buttons->setSpacing(8);
    m_buttons->addWidget(removeAll);
    m_buttons->addStretch(1);
    m_buttons->addWidget(waves);
    layout->addLayout(addLine);
    layout->addLayout(m_buttons);
}

void ProcSimIO::addColumn(QVBoxLayout* layout)
{
    m_hint =
        new QLabel(tr("No devices yet. A port that the program reads or writes appears here by itself: a register to "
                      "type the value into that is read, a list that collects the values that are written."),
                   this);
    m_hint->setObjectName(QStringLiteral("procSimIOHint"));
    m_hint->setToolTip(tr("Devices can also be added by hand, before the program needs them"));
    m_hint->setWordWrap(true);
    m_hint->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_hint->setMinimumWidth(leastColumn);

    m_scroll = new QScrollArea(this);
    m_scroll->setObjectName(QStringLiteral("procSimIOScroll"));
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setWidgetResizable(true);
    m_scroll->setMinimumWidth(leastColumn);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_column = new QWidget;
    m_column->setObjectName(QStringLiteral("procSimIOColumn"));
    m_columnLayout = new QVBoxLayout(m_column);
    m_columnLayout->setContentsMargins(0, 0, 0, 0);
    m_columnLayout->setSpacing(4);
    m_column->installEventFilter(this);
    m_columnLayout->addWidget(m_hint);
    m_columnLayout->addStretch(1);
    m_scroll->setWidget(m_column);
    layout->addWidget(m_scroll, 1);
}

ProcSimIODeviceView* ProcSimIO::viewOf(const ProcSimIOPluginIf* device) const
{
    for (const sCard_t& card : m_cards) {
        if (card.device == device)
            return card.view;
    }
    return nullptr;
}

void ProcSimIO::deviceAdded(ProcSimIOPluginIf* device)
{
    ProcSimIODeviceView* view = ProcSimIOViewFactory::createView(device);
    if (view == nullptr)
        return;
    view->refresh();
    m_cards.append({device, view});
    m_columnLayout->insertWidget(m_columnLayout->count() - 1, view);
    view->show();
    updateColumn();
}

void ProcSimIO::deviceRemoved(ProcSimIOPluginIf* device)
{
    ProcSimIODeviceView* view = viewOf(device);
    m_cards.erase(
        std::remove_if(m_cards.begin(), m_cards.end(), [device](const sCard_t& card) { return card.device == device; }),
        m_cards.end());
    if (view != nullptr)
        m_columnLayout->removeWidget(view);
    updateColumn();
    if (view == nullptr)
        return;
    view->forgetDevice();
    // A card whose close button was clicked still handles that event, so it is deleted later.
    if (view->isClosing())
        view->deleteLater();
    else
        delete view;
}

void ProcSimIO::updateColumn()
{
    m_hint->setVisible(m_cards.isEmpty());
    m_removeAll->setEnabled(!m_cards.isEmpty());
    updateGeometry();
}

QSize ProcSimIO::sizeHint() const
{
    const int cards = qMax(emptyWidth, m_column->minimumSizeHint().width());
    return {cards + m_scroll->verticalScrollBar()->sizeHint().width() + 2 * margin, QWidget::sizeHint().height()};
}

QSize ProcSimIO::minimumSizeHint() const
{
    const int column = leastColumn + m_scroll->verticalScrollBar()->sizeHint().width();
    const int buttons = qMax(m_removeAll->sizeHint().width(), m_waves->sizeHint().width());
    return {qMax(column, buttons) + 2 * margin, QWidget::minimumSizeHint().height()};
}

void ProcSimIO::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const int beside = m_removeAll->sizeHint().width() + m_waves->sizeHint().width() + 3 * margin;
    m_buttons->setDirection(beside <= width() ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}

bool ProcSimIO::eventFilter(QObject* watched, QEvent* event)
{
    const bool result = QWidget::eventFilter(watched, event);
    if (watched == m_column && event->type() == QEvent::LayoutRequest)
        updateColumn();
    return result;
}

void ProcSimIO::refresh()
{
    for (const sCard_t& card : qAsConst(m_cards)) {
        if (card.view != nullptr)
            card.view->refresh();
    }
    if (m_ports->takeContentChanged())
        emit contentChanged(this);
}

ProcSimIOPluginIf* ProcSimIO::addIOPlugin(eDevType_t type, eDirection_t direction, int initValue)
{
    return m_ports->addIOPlugin(type, direction, initValue);
}

void ProcSimIO::addIOPluginFromMenu()
{
    addIOPlugin(static_cast<eDevType_t>(m_type->currentData().toInt()), ProcSimIOPluginIf::eDirectionRdWr, 0);
    showNew();
}

void ProcSimIO::showNew()
{
    if (m_cards.isEmpty())
        return;
    // The column has its new height only after the layout was activated.
    m_column->layout()->activate();
    ProcSimIODeviceView* view = m_cards.last().view;
    if (view != nullptr)
        QTimer::singleShot(0, view, [this, view] { m_scroll->ensureWidgetVisible(view, 0, 8); });
}

void ProcSimIO::removeIOPlugin(ProcSimIOPluginIf* plugin)
{
    m_ports->removeIOPlugin(plugin);
}

void ProcSimIO::removeIOPlugins()
{
    m_ports->removeIOPlugins();
}

bool ProcSimIO::chkIOPluginToRd(int addr, const QString& name)
{
    const bool found = m_ports->chkIOPluginToRd(addr, name);
    refresh();
    return found;
}

bool ProcSimIO::value(int addr, const QString& name, int* value)
{
    const bool ok = m_ports->value(addr, name, value);
    refresh();
    return ok;
}

bool ProcSimIO::setValue(int addr, const QString& name, int value)
{
    const bool ok = m_ports->setValue(addr, name, value);
    refresh();
    return ok;
}

void ProcSimIO::clear()
{
    m_ports->clear();
    refresh();
}

void ProcSimIO::clearHighlighted()
{
    m_ports->clearHighlighted();
    refresh();
}

void ProcSimIO::setBase(int base)
{
    m_ports->setBase(base);
    refresh();
}

} // namespace nsProc
