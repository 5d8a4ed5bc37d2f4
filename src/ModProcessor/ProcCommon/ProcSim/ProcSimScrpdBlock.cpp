#include "ProcSimScrpdBlock.h"

#include "ProcSimCoreData.h"
#include "ProcSimEdtNumeric.h"
#include "ProcSimFont.h"

#include <QGridLayout>
#include <QLabel>

#include <algorithm>

namespace nsProc {

ProcSimScrpdBlock::ProcSimScrpdBlock(std::shared_ptr<ProcSimCoreData> data, int first, int count, QWidget* parent)
    : QWidget(parent)
    , m_data(std::move(data))
    , m_first(first)
{
    const QFont font = monospaceFont();
    // Wide enough for any base, so that nothing moves when the base changes.
    const QString widest(QString::number(std::max(m_data->scrpdSize() - 1, 0), 8).size(), QLatin1Char('0'));
    for (int addr = first; addr < first + count; ++addr) {
        if (addr % narrowRow == 0) {
            auto* title = new QLabel(this);
            title->setFont(font);
            title->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            title->setMinimumWidth(title->fontMetrics().horizontalAdvance(widest));
            title->setToolTip(tr("Address"));
            m_titles.append(title);
        }
        auto* cell = new ProcSimEdtNumeric(this);
        cell->setCompact();
        m_cells.append(cell);
        connect(cell, &ProcSimEdtNumeric::edited, this, [this, addr](int value) { m_data->editScrpd(addr, value); });
    }
}

void ProcSimScrpdBlock::arrange(int cellsPerRow)
{
    if (cellsPerRow == m_cellsPerRow)
        return;
    m_cellsPerRow = cellsPerRow;
    delete layout();
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, spacing, 2);
    grid->setHorizontalSpacing(spacing);
    grid->setVerticalSpacing(2);
    for (int index = 0; index < m_titles.size(); ++index) {
        const int offset = index * narrowRow;
        const bool isFirst = offset % cellsPerRow == 0;
        m_titles.at(index)->setVisible(isFirst);
        if (isFirst)
            grid->addWidget(m_titles.at(index), offset / cellsPerRow, 0);
    }
    for (int offset = 0; offset < m_cells.size(); ++offset)
        grid->addWidget(m_cells.at(offset), offset / cellsPerRow, 1 + offset % cellsPerRow);
    grid->setColumnStretch(1 + cellsPerRow, 1);
}

void ProcSimScrpdBlock::setBase(int base)
{
    const int width = QString::number(std::max(m_data->scrpdSize() - 1, 0), base).size();
    const auto text = [base, width](int addr) {
        return QString::number(addr, base).toUpper().rightJustified(width, '0');
    };
    for (int index = 0; index < m_titles.size(); ++index)
        m_titles.at(index)->setText(text(m_first + index * narrowRow));
    for (int offset = 0; offset < m_cells.size(); ++offset) {
        m_cells.at(offset)->setBase(base);
        m_cells.at(offset)->setToolTip(tr("Address") + ' ' + text(m_first + offset));
    }
}

void ProcSimScrpdBlock::refresh(int highlighted)
{
    for (int offset = 0; offset < m_cells.size(); ++offset) {
        int value = 0;
        m_data->scrpd(m_first + offset, &value);
        m_cells.at(offset)->setValue(value);
        m_cells.at(offset)->setHighlightEn(m_first + offset == highlighted);
    }
}

int ProcSimScrpdBlock::rowWidth(int cells) const
{
    return m_titles.first()->minimumWidth() + cells * (spacing + m_cells.first()->width()) + 2 * spacing;
}

} // namespace nsProc
