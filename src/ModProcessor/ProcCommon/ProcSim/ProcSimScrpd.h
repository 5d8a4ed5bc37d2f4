#pragma once

#include <QScrollArea>
#include <QVector>

#include <memory>

class QLabel;

namespace nsProc {

class ProcSimCoreData;
class ProcSimEdtNumeric;

/// The cells of the scratchpad, each with its address.
///
/// A program reaches 256 cells. Of a scratchpad that is declared larger, the first 1024 are shown, with a note.
class ProcSimScrpd : public QScrollArea
{
    Q_OBJECT

public:
    explicit ProcSimScrpd(std::shared_ptr<ProcSimCoreData> data, QWidget* parent = nullptr);
    /// With a scratchpad of its own.
    explicit ProcSimScrpd(int size, QWidget* parent = nullptr);

    /// Sets a cell, which is the one highlighted from now on, and scrolls to it.
    /// @return false, with nothing changed, for an address outside
    bool setValue(int addr, int value);
    /// @return false, with nothing changed, for an address outside
    bool value(int addr, int* value) const;
    /// @return false, with nothing changed, with more values than cells
    bool initValues(unsigned int* values, int count);
    /// All cells to 0.
    void clear();
    /// @param base 8, 10 or 16
    void setBase(int base);
    /// Shows what has changed in the data.
    void refresh();

    /// A few rows: it takes what room there is.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void setup();
    /// Lays the cells out, if they are not so already.
    void arrange(int cellsPerRow);
    void scrollToHighlighted();
    /// Pixels that so many cells need beside each other, with their address.
    int rowWidth(int cells) const;

    std::shared_ptr<ProcSimCoreData> m_data;
    QWidget* m_page;
    QVector<ProcSimEdtNumeric*> m_cells;
    QVector<QLabel*> m_addresses; ///< of the cells 0, 4, 8 ...
    QLabel* m_note = nullptr;     ///< null where all cells are shown
    int m_cellsPerRow = 0;
    int m_highlighted = -1;
    bool m_isScrollDue = false; ///< the highlighted cell was not brought into view yet
};

} // namespace nsProc
