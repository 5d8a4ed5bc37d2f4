#include "ProcSimScrpd.h"

#include "ProcSimCoreData.h"
#include "ProcSimEdtNumeric.h"
#include "ProcSimFont.h"

#include <QGridLayout>
#include <QLabel>
#include <QScrollBar>

#include <algorithm>

namespace nsProc {

namespace {

const int shownCells = 1024;
const int narrowRow = 4; ///< cells
const int wideRow = 8;   ///< cells
const int spacing = 4;   ///< pixels
const int scrollMargin = 50; ///< pixels

} // namespace

ProcSimScrpd::ProcSimScrpd(std::shared_ptr<ProcSimCoreData> data, QWidget* parent)
    : QScrollArea(parent)
    , m_data(std::move(data))
    , m_page(new QWidget(this))
{
    setup();
}

ProcSimScrpd::ProcSimScrpd(int size, QWidget* parent)
    : ProcSimScrpd(std::make_shared<ProcSimCoreData>(0, 1, size), parent)
{
}

void ProcSimScrpd::setup()
{
    setObjectName(QStringLiteral("procSimScrpd"));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // The cells take the focus.
    setFocusPolicy(Qt::NoFocus);
    const QFont font = monospaceFont();
    const int count = std::min(m_data->scrpdSize(), shownCells);
    // Room for any base, so that nothing moves when the base changes.
    const QString widest(QString::number(std::max(count - 1, 0), 8).size(), QLatin1Char('0'));
    for (int addr = 0; addr < count; ++addr) {
        if (addr % narrowRow == 0) {
            auto* title = new QLabel(m_page);
            title->setFont(font);
            title->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            title->setMinimumWidth(title->fontMetrics().horizontalAdvance(widest));
            title->setToolTip(tr("Address"));
            m_addresses.append(title);
        }
        auto* cell = new ProcSimEdtNumeric(m_page);
        m_cells.append(cell);
        connect(cell, &ProcSimEdtNumeric::edited, this, [this, addr](int value) { m_data->editScrpd(addr, value); });
    }
    if (m_data->scrpdSize() > count) {
        m_note = new QLabel(tr("The cells from address %1 on are not shown: no program reaches them.").arg(count), m_page);
        m_note->setWordWrap(true);
    }
    arrange(narrowRow);
    setWidget(m_page);
    setBase(16);
    refresh();
}

void ProcSimScrpd::arrange(int cellsPerRow)
{
    if (cellsPerRow == m_cellsPerRow)
        return;
    m_cellsPerRow = cellsPerRow;
    delete m_page->layout();
    auto* layout = new QGridLayout(m_page);
    layout->setContentsMargins(0, 0, spacing, 0);
    layout->setHorizontalSpacing(spacing);
    layout->setVerticalSpacing(2);
    for (int index = 0; index < m_addresses.size(); ++index) {
        const int addr = index * narrowRow;
        const bool isFirst = addr % cellsPerRow == 0;
        m_addresses.at(index)->setVisible(isFirst);
        if (isFirst)
            layout->addWidget(m_addresses.at(index), addr / cellsPerRow, 0);
    }
    for (int addr = 0; addr < m_cells.size(); ++addr)
        layout->addWidget(m_cells.at(addr), addr / cellsPerRow, 1 + addr % cellsPerRow);
    const int rows = (m_cells.size() + cellsPerRow - 1) / cellsPerRow;
    if (m_note != nullptr)
        layout->addWidget(m_note, rows, 0, 1, cellsPerRow + 2);
    layout->setColumnStretch(1 + cellsPerRow, 1);
    layout->setRowStretch(rows + 1, 1);
}

int ProcSimScrpd::rowWidth(int cells) const
{
    if (m_cells.isEmpty())
        return 0;
    return m_addresses.first()->minimumWidth() + cells * (spacing + m_cells.first()->width()) + 2 * spacing;
}

void ProcSimScrpd::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    arrange(viewport()->width() >= rowWidth(wideRow) ? wideRow : narrowRow);
}

QSize ProcSimScrpd::sizeHint() const
{
    const QSize least = minimumSizeHint();
    return {least.width(), 2 * least.height()};
}

QSize ProcSimScrpd::minimumSizeHint() const
{
    const int rowHeight = m_cells.isEmpty() ? 0 : m_cells.first()->sizeHint().height();
    return {rowWidth(narrowRow) + verticalScrollBar()->sizeHint().width(), 2 * rowHeight};
}

bool ProcSimScrpd::setValue(int addr, int value)
{
    const bool success = m_data->setScrpd(addr, value);
    refresh();
    return success;
}

bool ProcSimScrpd::value(int addr, int* value) const
{
    return m_data->scrpd(addr, value);
}

bool ProcSimScrpd::initValues(unsigned int* values, int count)
{
    const bool success = m_data->initScrpd(values, count);
    refresh();
    return success;
}

void ProcSimScrpd::clear()
{
    m_data->clearScrpd();
    refresh();
}

void ProcSimScrpd::setBase(int base)
{
    const int width = QString::number(std::max(int(m_cells.size()) - 1, 0), base).size();
    for (int row = 0; row < m_addresses.size(); ++row)
        m_addresses.at(row)->setText(QString::number(row * narrowRow, base).toUpper().rightJustified(width, '0'));
    for (int addr = 0; addr < m_cells.size(); ++addr) {
        m_cells.at(addr)->setBase(base);
        m_cells.at(addr)->setToolTip(tr("Address") + ' ' + QString::number(addr, base).toUpper().rightJustified(width, '0'));
    }
}

void ProcSimScrpd::refresh()
{
    for (int addr = 0; addr < m_cells.size(); ++addr) {
        int value = 0;
        m_data->scrpd(addr, &value);
        m_cells.at(addr)->setValue(value);
    }
    const int highlighted = m_data->scrpdHighlighted();
    if (highlighted == m_highlighted)
        return;
    if (m_highlighted >= 0 && m_highlighted < m_cells.size())
        m_cells.at(m_highlighted)->setHighlightEn(false);
    m_highlighted = highlighted;
    if (highlighted < 0 || highlighted >= m_cells.size())
        return;
    m_cells.at(highlighted)->setHighlightEn(true);
    m_isScrollDue = true;
    if (isVisible())
        scrollToHighlighted();
}

void ProcSimScrpd::scrollToHighlighted()
{
    if (!m_isScrollDue || m_highlighted < 0 || m_highlighted >= m_cells.size())
        return;
    m_isScrollDue = false;
    m_page->layout()->activate();
    // Asked for the widget itself, the area would bring the cursor of the field into view.
    const QRect cell = m_cells.at(m_highlighted)->geometry();
    const QSize room = viewport()->size() / 2;
    ensureVisible(cell.center().x(), cell.center().y(), std::min(scrollMargin + cell.width() / 2, room.width()),
                  std::min(scrollMargin + cell.height() / 2, room.height()));
}

void ProcSimScrpd::showEvent(QShowEvent* event)
{
    QScrollArea::showEvent(event);
    // Where nothing was laid out yet, there was nowhere to scroll to.
    scrollToHighlighted();
}

} // namespace nsProc
