#include "ProcSimScrpd.h"

#include "ProcSimCoreData.h"
#include "ProcSimEdtNumeric.h"
#include "ProcSimScrpdBlock.h"

#include <QEvent>
#include <QLabel>
#include <QLayout>
#include <QScrollBar>

#include <algorithm>

namespace nsProc {

namespace {

const int blockCells = 32;
const int firstBlocks = 8;    ///< always there: a program reaches 256 cells by a register
const int scrollMargin = 50;  ///< pixels
const int maxCells = 1 << 20; ///< a widget has no more than 16,777,215 pixels, so the rows are counted

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
    m_count = std::min(m_data->scrpdSize(), maxCells);
    m_cellsPerRow = ProcSimScrpdBlock::narrowRow;
    setWidget(m_page);
    for (int index = 0; index < firstBlocks && index * blockCells < m_count; ++index)
        block(index);
    if (m_data->scrpdSize() > m_count) {
        m_note = new QLabel(tr("The cells from address %1 on are not shown.").arg(m_count), m_page);
        m_note->setWordWrap(true);
    }
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &ProcSimScrpd::showBlocks);
    arrange();
    refresh();
}

ProcSimScrpdBlock* ProcSimScrpd::block(int index)
{
    if (ProcSimScrpdBlock* present = m_blocks.value(index))
        return present;
    const int first = index * blockCells;
    auto* made = new ProcSimScrpdBlock(m_data, first, std::min(blockCells, m_count - first), m_page);
    made->setBase(m_base);
    made->arrange(m_cellsPerRow);
    made->refresh(m_highlighted);
    m_blocks.insert(index, made);
    chainFocus(index);
    place(made);
    made->show();
    return made;
}

void ProcSimScrpd::chainFocus(int index)
{
    const auto here = m_blocks.constFind(index);
    if (here == m_blocks.constBegin())
        return;
    // Blocks are made in the order in which the user comes to them; each cell is put after the one with the address
    // before.
    const ProcSimScrpdBlock* former = *std::prev(here);
    QWidget* before = former->cell(former->first() + former->count() - 1);
    for (int addr = (*here)->first(); addr < (*here)->first() + (*here)->count(); ++addr) {
        setTabOrder(before, (*here)->cell(addr));
        before = (*here)->cell(addr);
    }
}

void ProcSimScrpd::arrange()
{
    if (m_blocks.isEmpty())
        return;
    for (ProcSimScrpdBlock* each : qAsConst(m_blocks))
        each->arrange(m_cellsPerRow);
    const ProcSimScrpdBlock* model = m_blocks.first();
    const int rows = (model->count() + m_cellsPerRow - 1) / m_cellsPerRow;
    const int rowHeight = model->sizeHint().height() / rows;
    m_blockHeight = model->sizeHint().height();
    const int allRows = (m_count + m_cellsPerRow - 1) / m_cellsPerRow;
    const int cellsHeight = m_count <= blockCells
                                ? m_blockHeight
                                : m_count / blockCells * m_blockHeight +
                                      (allRows - m_count / blockCells * blockCells / m_cellsPerRow) * rowHeight;
    int height = cellsHeight;
    if (m_note != nullptr) {
        m_note->setGeometry(0, cellsHeight, viewport()->width(), m_note->heightForWidth(viewport()->width()));
        height += m_note->height();
    }
    m_page->setMinimumHeight(height);
    for (ProcSimScrpdBlock* each : qAsConst(m_blocks))
        place(each);
    showBlocks();
}

void ProcSimScrpd::place(ProcSimScrpdBlock* block)
{
    block->setGeometry(0, block->first() / blockCells * m_blockHeight, std::max(viewport()->width(), 1),
                       block->sizeHint().height());
    block->layout()->activate();
}

void ProcSimScrpd::showBlocks()
{
    if (m_blocks.isEmpty() || !isVisible())
        return;
    const int last = (m_count - 1) / blockCells;
    const int top = verticalScrollBar()->value();
    // One block more at each end, so that the Tab key finds a field beyond the visible ones.
    const int from = std::max(top / m_blockHeight - 1, 0);
    const int to = std::min((top + viewport()->height()) / m_blockHeight + 1, last);
    for (int index = from; index <= to; ++index)
        block(index);
    for (int index : m_blocks.keys()) {
        ProcSimScrpdBlock* each = m_blocks.value(index);
        const bool isFocused = each->isAncestorOf(focusWidget()) && focusWidget()->hasFocus();
        if (index < firstBlocks || (index >= from && index <= to) || isFocused)
            continue;
        // Deleted later, as the call may come from one of its fields.
        m_blocks.remove(index);
        each->hide();
        each->deleteLater();
    }
}

QSize ProcSimScrpd::sizeHint() const
{
    const QSize least = minimumSizeHint();
    return {least.width(), 2 * least.height()};
}

QSize ProcSimScrpd::minimumSizeHint() const
{
    if (m_blocks.isEmpty())
        return {verticalScrollBar()->sizeHint().width(), 0};
    const ProcSimScrpdBlock* model = m_blocks.first();
    return {model->rowWidth(ProcSimScrpdBlock::narrowRow) + verticalScrollBar()->sizeHint().width(),
            2 * model->cell(0)->sizeHint().height()};
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
    m_base = base;
    for (ProcSimScrpdBlock* each : qAsConst(m_blocks))
        each->setBase(base);
}

void ProcSimScrpd::chooseColumns()
{
    if (m_blocks.isEmpty())
        return;
    const int wide = m_blocks.first()->rowWidth(ProcSimScrpdBlock::wideRow);
    m_cellsPerRow = viewport()->width() >= wide ? ProcSimScrpdBlock::wideRow : ProcSimScrpdBlock::narrowRow;
    arrange();
}

void ProcSimScrpd::refresh()
{
    const int highlighted = m_data->scrpdHighlighted();
    for (ProcSimScrpdBlock* each : qAsConst(m_blocks))
        each->refresh(highlighted);
    if (highlighted == m_highlighted)
        return;
    m_highlighted = highlighted;
    if (!isShown(highlighted))
        return;
    m_isScrollDue = true;
    if (isVisible())
        scrollToHighlighted();
}

void ProcSimScrpd::scrollToHighlighted()
{
    if (!m_isScrollDue || !isShown(m_highlighted))
        return;
    m_isScrollDue = false;
    const ProcSimScrpdBlock* holder = block(m_highlighted / blockCells);
    // ensureWidgetVisible() would show the cursor of the field instead of the field.
    const QRect cell = holder->cell(m_highlighted)->geometry().translated(holder->pos());
    const QSize room = viewport()->size() / 2;
    ensureVisible(cell.center().x(), cell.center().y(), std::min(scrollMargin + cell.width() / 2, room.width()),
                  std::min(scrollMargin + cell.height() / 2, room.height()));
    showBlocks();
}

void ProcSimScrpd::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    chooseColumns();
}

void ProcSimScrpd::showEvent(QShowEvent* event)
{
    QScrollArea::showEvent(event);
    arrange();
    // Before the first layout it was not possible to scroll.
    scrollToHighlighted();
}

bool ProcSimScrpd::event(QEvent* event)
{
    const bool result = QScrollArea::event(event);
    // Both events change the size of a cell.
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::FontChange)
        chooseColumns();
    return result;
}

} // namespace nsProc
