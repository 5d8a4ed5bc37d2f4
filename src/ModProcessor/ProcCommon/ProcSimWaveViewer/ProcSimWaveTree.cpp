#include "ProcSimWaveTree.h"

#include "ProcSimWavesWidget.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>

namespace nsProc {

namespace {

enum eColumn_t { eColumnName, eColumnValue };

constexpr int waveRole = Qt::UserRole;

} // namespace

ProcSimWaveTree::ProcSimWaveTree(ProcSimWavesWidget* waves, QWidget* parent)
    : QTreeWidget(parent)
    , m_waves(waves)
{
    setObjectName(QStringLiteral("procSimWaveTree"));
    setToolTip(tr("Watched ports; expand one to see its bits"));
    setColumnCount(2);
    setHeaderLabels({tr("Port"), tr("Value")});
    headerItem()->setToolTip(eColumnName, tr("Access and address; Delete removes a port"));
    headerItem()->setToolTip(eColumnValue, tr("Value at the marker, or the last one if there is no marker"));
    headerItem()->setTextAlignment(eColumnValue, Qt::AlignRight | Qt::AlignVCenter);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(eColumnName, QHeaderView::Stretch);
    header()->setSectionResizeMode(eColumnValue, QHeaderView::Fixed);
    header()->setSectionsMovable(false);
    header()->resizeSection(eColumnValue, 12 + fontMetrics().horizontalAdvance(tr("Value")) + 12);
    setIndentation(16);
    setUniformRowHeights(true);
    setSelectionMode(SingleSelection);
    // The waves beside it have no horizontal scroll bar either, so the heights are equal.
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    connect(this, &QTreeWidget::itemExpanded, this, &ProcSimWaveTree::itemExpanded);
    connect(this, &QTreeWidget::currentItemChanged, this,
            [this](QTreeWidgetItem* item) { m_waves->setCurrentWave(waveOf(item)); });
}

QSize ProcSimWaveTree::sizeHint() const
{
    return {180, 160};
}

sWave_t* ProcSimWaveTree::waveOf(const QTreeWidgetItem* item)
{
    return item == nullptr ? nullptr : static_cast<sWave_t*>(item->data(eColumnName, waveRole).value<void*>());
}

sWave_t* ProcSimWaveTree::currentWave() const
{
    return waveOf(currentItem());
}

QString ProcSimWaveTree::accessText(const sAddrChannel_t* channel, const QString& port)
{
    return channel->access == ProcSimWaveData::eAccessRd ? tr("Read %1").arg(port) : tr("Write %1").arg(port);
}

QString ProcSimWaveTree::placeText(const sAddrChannel_t* channel, int base)
{
    return accessText(channel, QStringLiteral("%1").arg(channel->addr, 2, base, QLatin1Char('0')).toUpper());
}

QString ProcSimWaveTree::channelText(const sAddrChannel_t* channel, int base)
{
    // A port is often read and written under the same name, so the access is shown, too.
    return channel->name.isEmpty() ? placeText(channel, base) : accessText(channel, channel->name);
}

void ProcSimWaveTree::addWave(sWave_t* wave)
{
    auto* item = new QTreeWidgetItem;
    item->setData(eColumnName, waveRole, QVariant::fromValue<void*>(wave));
    QFont font(QStringLiteral("DejaVu Sans Mono"), 8);
    font.setStyleHint(QFont::Monospace);
    item->setFont(eColumnValue, font);
    item->setTextAlignment(eColumnValue, Qt::AlignRight | Qt::AlignVCenter);
    m_items.insert(wave, item);
    QTreeWidgetItem* parent = nullptr;
    for (int row = topLevelItemCount() - 1; wave->kind == eWaveBit && row >= 0 && parent == nullptr; --row) {
        if (waveOf(topLevelItem(row))->channel == wave->channel)
            parent = topLevelItem(row);
    }
    setNames(item);
    if (parent != nullptr)
        parent->addChild(item);
    else
        addTopLevelItem(item);
}

void ProcSimWaveTree::setNames(QTreeWidgetItem* item)
{
    sWave_t* wave = waveOf(item);
    const QString channel = channelText(wave->channel, m_base);
    const bool isBit = wave->kind == eWaveBit;
    const QString bit = QStringLiteral("[%1]").arg(wave->bit);
    wave->name = isBit ? channel + bit : channel;
    item->setText(eColumnName, isBit ? bit : channel);
    // A long name is cut in its column.
    QString place = placeText(wave->channel, m_base);
    if (!wave->channel->name.isEmpty())
        place += QStringLiteral(", ") + wave->channel->name;
    item->setToolTip(eColumnName, isBit ? tr("%1, bit %2").arg(place).arg(wave->bit) : place);
}

void ProcSimWaveTree::removeChannel(const sAddrChannel_t* channel)
{
    m_waves->setWaves({});
    for (auto entry = m_items.begin(); entry != m_items.end();) {
        if (entry.key()->channel == channel)
            entry = m_items.erase(entry);
        else
            ++entry;
    }
    for (int row = topLevelItemCount() - 1; row >= 0; --row) {
        if (waveOf(topLevelItem(row))->channel == channel)
            delete topLevelItem(row);
    }
    viewport()->update();
}

void ProcSimWaveTree::clear()
{
    m_waves->setWaves({});
    m_items.clear();
    QTreeWidget::clear();
}

void ProcSimWaveTree::setBase(int base)
{
    m_base = base;
    for (QTreeWidgetItem* item : qAsConst(m_items))
        setNames(item);
}

void ProcSimWaveTree::showValues(qint64 clock)
{
    const auto show = [this, clock](QTreeWidgetItem* item) {
        const sWave_t* wave = waveOf(item);
        const auto& values = wave->channel->values;
        int value = values.empty() ? -1 : values.back().value;
        if (clock >= 0)
            value = ProcSimWavesWidget::valueAt(wave, clock);
        else if (value >= 0 && wave->kind == eWaveBit)
            value = (value >> wave->bit) & 1;
        QString text;
        if (value >= 0)
            text = wave->kind == eWaveBit ? QString::number(value) : m_waves->valueText(value);
        if (item->text(eColumnValue) != text)
            item->setText(eColumnValue, text);
    };
    for (int row = 0; row < topLevelItemCount(); ++row) {
        QTreeWidgetItem* item = topLevelItem(row);
        show(item);
        for (int bit = 0; item->isExpanded() && bit < item->childCount(); ++bit)
            show(item->child(bit));
    }
}

void ProcSimWaveTree::selectChannel(const sAddrChannel_t* channel)
{
    for (int row = 0; row < topLevelItemCount(); ++row) {
        if (waveOf(topLevelItem(row))->channel == channel)
            selectWave(waveOf(topLevelItem(row)));
    }
}

void ProcSimWaveTree::selectWave(const sWave_t* wave)
{
    if (QTreeWidgetItem* item = itemOf(wave)) {
        setCurrentItem(item);
        scrollToItem(item);
    }
}

void ProcSimWaveTree::itemExpanded(QTreeWidgetItem* item)
{
    if (item->childCount() == 0)
        return;
    showValues(m_waves->marker());
    scrollToItem(item->child(item->childCount() - 1));
    scrollToItem(item);
}

void ProcSimWaveTree::paintEvent(QPaintEvent* event)
{
    passVisibleWaves();
    QTreeWidget::paintEvent(event);
}

void ProcSimWaveTree::resizeEvent(QResizeEvent* event)
{
    QTreeWidget::resizeEvent(event);
    passVisibleWaves();
}

void ProcSimWaveTree::passVisibleWaves()
{
    const int top = m_waves->mapFromGlobal(viewport()->mapToGlobal(QPoint(0, 0))).y();
    QList<sWave_t*> visible;
    bool changed = false;
    for (QTreeWidgetItem* item = itemAt(0, 0); item != nullptr; item = itemBelow(item)) {
        const QRect place = visualItemRect(item);
        if (place.top() >= viewport()->height())
            break;
        sWave_t* wave = waveOf(item);
        changed = changed || wave->top != place.top() + top || wave->height != place.height();
        wave->top = place.top() + top;
        wave->height = place.height();
        visible.append(wave);
    }
    m_waves->setAxisHeight(top);
    if (changed || visible != m_waves->waves()) {
        m_waves->setWaves(visible);
        m_waves->setCurrentWave(currentWave());
    }
}

void ProcSimWaveTree::keyPressEvent(QKeyEvent* event)
{
    sWave_t* wave = currentWave();
    if (event->key() == Qt::Key_Delete && event->modifiers() == Qt::NoModifier && wave != nullptr)
        emit removeRequested(wave->channel);
    else
        QTreeWidget::keyPressEvent(event);
}

void ProcSimWaveTree::contextMenuEvent(QContextMenuEvent* event)
{
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    sWave_t* wave = byKey ? currentWave() : waveOf(itemAt(viewport()->mapFromGlobal(event->globalPos())));
    if (wave == nullptr)
        return;
    auto* menu = new QMenu(this);
    menu->setObjectName(QStringLiteral("procSimWaveMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    sAddrChannel_t* channel = wave->channel;
    QAction* remove = menu->addAction(tr("Remove \"%1\"").arg(channelText(channel, m_base)));
    remove->setShortcut(Qt::Key_Delete);
    // The menu stays open while a program runs, which may remove the row.
    connect(remove, &QAction::triggered, this, [this, channel] {
        for (const sWave_t* known : m_items.keys()) {
            if (known->channel == channel) {
                emit removeRequested(channel);
                return;
            }
        }
    });
    menu->popup(byKey ? viewport()->mapToGlobal(visualItemRect(currentItem()).bottomLeft()) : event->globalPos());
}

} // namespace nsProc
