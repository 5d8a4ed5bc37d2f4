#pragma once

#include <QVector>
#include <QWidget>

#include <memory>

class QLabel;

namespace nsProc {

class ProcSimCoreData;
class ProcSimEdtNumeric;

/// Some rows of the scratchpad: fields of consecutive addresses with their titles.
class ProcSimScrpdBlock : public QWidget
{
    Q_OBJECT

public:
    static constexpr int narrowRow = 4; ///< cells
    static constexpr int wideRow = 8;   ///< cells
    static constexpr int spacing = 2;   ///< pixels

    /// @param first address of the first cell, a multiple of wideRow
    /// @param count at least 1
    ProcSimScrpdBlock(std::shared_ptr<ProcSimCoreData> data, int first, int count, QWidget* parent);

    int first() const { return m_first; }
    int count() const { return m_cells.size(); }
    /// @param addr one of this block
    ProcSimEdtNumeric* cell(int addr) const { return m_cells.at(addr - m_first); }
    /// Lays the cells out, if they are not so already.
    void arrange(int cellsPerRow);
    /// @param base 8, 10 or 16
    void setBase(int base);
    /// Shows what has changed in the data. @param highlighted address of the highlighted cell, -1 for none
    void refresh(int highlighted);
    /// Pixels that so many cells need beside each other, with their address.
    int rowWidth(int cells) const;

private:
    std::shared_ptr<ProcSimCoreData> m_data;
    int m_first;
    QVector<ProcSimEdtNumeric*> m_cells;
    QVector<QLabel*> m_titles; ///< of each narrow row
    int m_cellsPerRow = 0;
};

} // namespace nsProc
