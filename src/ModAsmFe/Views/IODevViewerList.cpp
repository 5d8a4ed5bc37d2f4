#include "IODevViewerList.h"

#include "IODevList.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QShowEvent>
#include <QVBoxLayout>

namespace nsModAsmFe {

namespace {

const int margin = 8;
/// Largest height of the maps in pixels: a widget has at most 2^24, and the headings of many devices need space, too.
const qint64 maxMapHeight = 12000000;

} // namespace

IODevViewerList::IODevViewerList(QWidget* parent)
    : QWidget(parent)
{
    setObjectName("ioDevViewerList");
    m_legend = setupLegend();
    m_scroll = new QScrollArea(this);
    m_scroll->setObjectName("ioDevViewerScroll");
    m_scroll->setAccessibleName(tr("Memory maps of the devices"));
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->viewport()->installEventFilter(this);
    m_content = new QWidget;
    m_content->setObjectName("ioDevViewerContent");
    m_scroll->setWidget(m_content);
    m_note =
        new QLabel(tr("<strong>Note:</strong><p>This list will be updated after each run of the assembler.</p>"), this);
    m_note->setWordWrap(true);
    m_note->setMargin(margin);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_scroll, 1);
    layout->addWidget(m_legend);
    layout->addWidget(m_note);
    m_legend->hide();
}

QSize IODevViewerList::sizeHint() const
{
    // Sixteen cells side by side with their addresses.
    return QSize(fontMetrics().averageCharWidth() * 40, fontMetrics().height() * 16);
}

QIcon IODevViewerList::iconFromColor(const QColor& color)
{
    QPixmap pixmap(10, 10);
    pixmap.fill(color);
    return QIcon(pixmap);
}

QWidget* IODevViewerList::setupLegend()
{
    auto* legend = new QWidget(this);
    legend->setObjectName("ioDevViewerLegend");
    legend->setAttribute(Qt::WA_StyledBackground);
    // The legend must not limit how narrow the panel can be.
    legend->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_legendLayout = new QGridLayout(legend);
    QGridLayout* layout = m_legendLayout;
    layout->setContentsMargins(margin, margin / 2, margin, margin / 2);
    layout->setHorizontalSpacing(margin + margin / 2);
    layout->setVerticalSpacing(margin / 4);
    layout->setColumnStretch(3, 1);
    m_legendEntries.append(new QLabel(QStringLiteral("<b>%1</b>").arg(tr("Legend")), legend));
    const auto add = [&](IODevViewerItem::eCellKind_t kind, const QString& text) {
        auto* entry = new QWidget(legend);
        auto* line = new QHBoxLayout(entry);
        line->setContentsMargins(0, 0, 0, 0);
        line->setSpacing(margin);
        auto* square = new QLabel(entry);
        m_legendSquares.append({square, kind});
        line->addWidget(square);
        auto* label = new QLabel(text, entry);
        line->addWidget(label, 1);
        m_legendTexts.append(label);
        m_legendEntries.append(entry);
    };
    add(IODevViewerItem::eInitValue, tr("Init value"));
    add(IODevViewerItem::ePageValue, tr("Page value"));
    add(IODevViewerItem::eSharedValue, tr("Shared range value"));
    showColors();
    arrangeLegend(0);
    return legend;
}

/// The colours of the present scheme, in legend and maps.
void IODevViewerList::showColors()
{
    m_config = IODevViewerItem::sConfig_t();
    for (const auto& square : qAsConst(m_legendSquares))
        square.first->setPixmap(iconFromColor(m_config.color(square.second)).pixmap(10, 10));
    for (const sViewerElements_t& element : qAsConst(m_elements))
        element.item->setConfig(m_config);
}

/// Two lines where the width suffices, else one line an entry.
void IODevViewerList::arrangeLegend(int width)
{
    // A text that can be broken does not say how wide it is.
    for (QLabel* text : qAsConst(m_legendTexts))
        text->setWordWrap(false);
    int needed = 2 * margin + 3 * margin;
    for (const QWidget* entry : m_legendEntries.mid(0, 3))
        needed += entry->sizeHint().width();
    const bool wide = width >= needed;
    const int places[][4] = {{0, 0, 1, 1}, {0, 1, 1, 1}, {0, 2, 1, 1}, {1, 1, 1, 3}};
    for (int i = 0; i < m_legendEntries.size(); ++i) {
        QWidget* entry = m_legendEntries.at(i);
        m_legendLayout->removeWidget(entry);
        if (wide)
            m_legendLayout->addWidget(entry, places[i][0], places[i][1], places[i][2], places[i][3]);
        else
            m_legendLayout->addWidget(entry, i, 0, 1, 4);
    }
    for (QLabel* text : qAsConst(m_legendTexts))
        text->setWordWrap(!wide);
}

void IODevViewerList::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    arrangeLegend(width());
}

QString IODevViewerList::setupDevSummary(const IODev* dev)
{
    const QString row = QStringLiteral("<tr><td>%1</td><td style=\"padding-left:12px\">%2</td></tr>");
    // Values set by directives do not count as instructions.
    const int instructions = dev->instMem ? dev->valueCnt : 0;
    return QStringLiteral("<table cellspacing=\"0\" cellpadding=\"0\">") +
           row.arg(tr("Size:"), QString::number(dev->memSize)) +
           QStringLiteral("<tr><td colspan=\"2\"><i>%1</i></td></tr>").arg(tr("Instructions")) +
           row.arg(tr("Summary instruction count:"), QString::number(instructions)) +
           row.arg(tr("Shared range instruction count:"), QString::number(dev->mirrorCnt)) + QStringLiteral("</table>");
}

QLabel* IODevViewerList::addLabel(const QString& text, const char* objectName)
{
    auto* label = new QLabel(text, m_content);
    label->setObjectName(objectName);
    return label;
}

void IODevViewerList::addElement(IODev* dev)
{
    sViewerElements_t element;
    element.nameTitle = addLabel(QStringLiteral("<b>%1</b>").arg(tr("Device name")), "ioDevNameTitle");
    element.name = addLabel(QString(), "ioDevName");
    // The name comes from a source and must not be interpreted as markup.
    element.name->setTextFormat(Qt::PlainText);
    element.name->setToolTip(QStringLiteral("<qt>%1</qt>").arg(dev->devName.toHtmlEscaped()));
    element.summaryTitle = addLabel(QStringLiteral("<b>%1</b>").arg(tr("Device summary")), "ioDevSummaryTitle");
    element.summary = addLabel(setupDevSummary(dev), "ioDevSummary");
    element.summary->setWordWrap(true);
    element.mapTitle = addLabel(QStringLiteral("<b>%1</b>").arg(tr("Memory map")), "ioDevMapTitle");
    element.item = new IODevViewerItem(dev, m_content);
    element.item->setConfig(m_config);
    connect(element.item, &IODevViewerItem::srcRefRequest, this, &IODevViewerList::srcRefRequest);
    m_elements.append(element);
}

void IODevViewerList::setupView(IODevList* devList)
{
    clear();
    m_devList = devList;
    const QStringList devices = deviceKeys(devList);
    const bool isNew = devices != m_lastDevices;
    if (isNew)
        m_scrolled = 0;
    m_lastDevices = devices;
    if (isVisible())
        build();
    if (isNew)
        emit contentChanged(this);
}

QStringList IODevViewerList::deviceKeys(const IODevList* devList)
{
    QStringList keys;
    for (const IODev* dev : devList != nullptr ? devList->devices() : QList<IODev*>())
        keys.append(dev->devName + ' ' + QString::number(dev->memSize));
    return keys;
}

void IODevViewerList::clear()
{
    if (m_built)
        m_scrolled = m_scroll->verticalScrollBar()->value();
    dropElements();
    m_devList = nullptr;
    m_content->resize(0, 0);
    m_legend->hide();
    m_note->show();
}

void IODevViewerList::dropElements()
{
    // Deleted at once, as the devices are deleted right after this.
    for (QObject* child : QObjectList(m_content->children()))
        delete child;
    m_more = nullptr;
    m_elements.clear();
    m_built = false;
}

void IODevViewerList::build()
{
    m_built = true;
    const QList<IODev*> devices = m_devList != nullptr ? m_devList->devices() : QList<IODev*>();
    for (IODev* dev : devices.mid(0, maxShownDevices))
        addElement(dev);
    if (devices.size() > maxShownDevices)
        m_more = addLabel(tr("%1 further devices are not shown.").arg(devices.size() - maxShownDevices), "ioDevMore");
    m_legend->setVisible(!m_elements.isEmpty());
    m_note->setVisible(m_elements.isEmpty());
    // Legend and note determine the space that is left for the maps.
    layout()->activate();
    layoutElements();
    for (QObject* child : m_content->children())
        static_cast<QWidget*>(child)->show();
    m_scroll->verticalScrollBar()->setValue(m_scrolled);
}

/// Columns that all maps have, so that equal addresses stand below each other. If the maps would become too tall, more
/// columns than fit are used, with a horizontal scroll bar.
int IODevViewerList::columnsThatFit(int width) const
{
    int columns = m_elements.first().item->columnsForWidth(width);
    for (const sViewerElements_t& element : m_elements)
        columns = qMin(columns, element.item->columnsForWidth(width));
    for (;; columns *= 2) {
        qint64 height = 0;
        for (const sViewerElements_t& element : m_elements)
            height += element.item->rowCount(columns) * element.item->rowHeight();
        if (height <= maxMapHeight)
            return columns;
    }
}

/// Places the widgets by hand: a layout ends at half a million pixels, and a large memory is taller.
void IODevViewerList::layoutElements()
{
    const int available = qMax(1, m_scroll->viewport()->width() - 2 * margin);
    int width = available;
    int y = margin;
    // Texts keep to the width of the panel as far as they can be broken, a map may exceed it.
    const auto place = [&](QLabel* label, int gap) {
        const int labelWidth = qMax(available, label->minimumSizeHint().width());
        const int height = label->wordWrap() ? label->heightForWidth(labelWidth) : label->sizeHint().height();
        label->setGeometry(margin, y, labelWidth, height);
        width = qMax(width, labelWidth);
        y += height + gap;
    };
    const int columns = m_elements.isEmpty() ? 0 : columnsThatFit(available);
    for (int i = 0; i < m_elements.size(); ++i) {
        const sViewerElements_t& element = m_elements.at(i);
        const QString name = m_devList->devices().at(i)->devName;
        element.name->setText(element.name->fontMetrics().elidedText(name, Qt::ElideMiddle, available));
        place(element.nameTitle, margin / 4);
        place(element.name, margin);
        place(element.summaryTitle, margin / 4);
        place(element.summary, margin);
        place(element.mapTitle, margin / 2);
        element.item->setColumns(columns);
        element.item->move(margin, y);
        width = qMax(width, element.item->width());
        y += element.item->height() + 3 * margin;
    }
    if (m_more != nullptr)
        place(m_more, margin);
    m_content->resize(m_elements.isEmpty() ? 0 : width + 2 * margin, m_elements.isEmpty() ? 0 : y - margin);
}

void IODevViewerList::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (!m_built)
        build();
}

bool IODevViewerList::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_scroll->viewport() && event->type() == QEvent::Resize && m_built)
        layoutElements();
    return QWidget::eventFilter(watched, event);
}

void IODevViewerList::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if ((event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) && m_built)
        layoutElements();
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        arrangeLegend(width());
    if (event->type() == QEvent::PaletteChange)
        showColors();
}

} // namespace nsModAsmFe
