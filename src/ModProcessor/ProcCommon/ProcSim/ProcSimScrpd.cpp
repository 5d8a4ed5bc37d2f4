#include "ProcSimScrpd.h"

#include "ProcSimCoreData.h"
#include "ProcSimEdtNumeric.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QLabel>

#include <algorithm>

namespace nsProc {

namespace {

const int shownCells = 1024;
const int cellsPerRow = 4;
const int scrollMargin = 50; ///< pixels

} // namespace

ProcSimScrpd::ProcSimScrpd(std::shared_ptr<ProcSimCoreData> data, QWidget* parent)
    : QScrollArea(parent)
    , m_data(std::move(data))
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
    auto* page = new QWidget(this);
    auto* layout = new QGridLayout(page);
    layout->setContentsMargins(0, 0, 4, 0);
    layout->setHorizontalSpacing(4);
    layout->setVerticalSpacing(2);
    const int count = std::min(m_data->scrpdSize(), shownCells);
    for (int addr = 0; addr < count; ++addr) {
        const int row = addr / cellsPerRow;
        if (addr % cellsPerRow == 0) {
            auto* title = new QLabel(page);
            title->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
            title->setToolTip(tr("Address"));
            layout->addWidget(title, row, 0, Qt::AlignRight | Qt::AlignVCenter);
            m_addresses.append(title);
        }
        auto* cell = new ProcSimEdtNumeric(page);
        layout->addWidget(cell, row, 1 + addr % cellsPerRow);
        m_cells.append(cell);
        connect(cell, &ProcSimEdtNumeric::edited, this, [this, addr](int value) { m_data->editScrpd(addr, value); });
    }
    layout->setColumnStretch(1 + cellsPerRow, 1);
    const int rows = (count + cellsPerRow - 1) / cellsPerRow;
    if (m_data->scrpdSize() > count) {
        auto* note = new QLabel(tr("%1 further cells are not shown: no program reaches them.").arg(m_data->scrpdSize() - count), page);
        note->setWordWrap(true);
        layout->addWidget(note, rows, 0, 1, cellsPerRow + 2);
    }
    layout->setRowStretch(rows + 1, 1);
    setWidget(page);
    setMinimumWidth(page->sizeHint().width() + 20);
    setBase(16);
    refresh();
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
    for (int addr = 0; addr < m_data->scrpdSize() && addr < shownCells; ++addr)
        m_data->editScrpd(addr, 0);
    refresh();
}

void ProcSimScrpd::setBase(int base)
{
    const int width = QString::number(std::max(int(m_cells.size()) - 1, 0), base).size();
    for (int row = 0; row < m_addresses.size(); ++row)
        m_addresses.at(row)->setText(QString::number(row * cellsPerRow, base).toUpper().rightJustified(width, '0'));
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
    ensureWidgetVisible(m_cells.at(highlighted), scrollMargin, scrollMargin);
}

} // namespace nsProc
