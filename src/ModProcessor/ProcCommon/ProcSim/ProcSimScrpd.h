#pragma once

#include <QMap>
#include <QScrollArea>

#include <memory>

class QLabel;

namespace nsProc {

class ProcSimCoreData;
class ProcSimScrpdBlock;

/// The cells of the scratchpad, each with its address.
///
/// A scratchpad can be far larger than a window can have fields. So there are fields only for the first addresses,
/// which most programs use, for the visible addresses and the blocks next to them, and where the focus is. The others
/// are created when they become visible.
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

    /// A few rows; the widget grows with the available space.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool event(QEvent* event) override;

private:
    void setup();
    /// Gives each block its place.
    /// As many cells in a row as there is room for.
    void chooseColumns();
    void arrange();
    void place(ProcSimScrpdBlock* block);
    /// Creates the blocks that have become visible, and deletes those that are hidden now.
    void showBlocks();
    /// The block with a number, made if it does not exist.
    ProcSimScrpdBlock* block(int index);
    /// Inserts a new block between its neighbours in the tab order.
    void chainFocus(int index);
    void scrollToHighlighted();
    bool isShown(int addr) const { return addr >= 0 && addr < m_count; }

    std::shared_ptr<ProcSimCoreData> m_data;
    QWidget* m_page;
    QMap<int, ProcSimScrpdBlock*> m_blocks; ///< by number; the first ones are always there
    QLabel* m_note = nullptr;               ///< null where all cells can be shown
    int m_count = 0;                        ///< cells that can be shown
    int m_cellsPerRow = 0;
    int m_blockHeight = 1; ///< pixels
    int m_base = 16;
    int m_highlighted = -1;
    bool m_isScrollDue = false; ///< the highlighted cell was not brought into view yet
};

} // namespace nsProc
