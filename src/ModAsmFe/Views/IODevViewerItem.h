#pragma once

#include "Colors.h"
#include "SrcReference.h"

#include <QColor>
#include <QWidget>

namespace nsModAsmFe {

class IODev;

/// The memory map of one IO device: a strip of cells in rows, the address of each row at its left.
///
/// The widget asks the device only for the cells that it paints or that the pointer is over; the cost depends on what
/// is visible, not on the size of the device. The device must live as long as the widget shows it.
class IODevViewerItem : public QWidget
{
    Q_OBJECT

public:
    /// Kind of a cell, which decides its colour.
    enum eCellKind_t { eInitValue, ePageValue, eSharedValue };

    struct sConfig_t
    {
        QColor initValue = Colors::of(Colors::eMapInit); ///< nothing wrote the cell
        QColor pageValue = Colors::of(Colors::eMapPage); ///< a value or an instruction
        QColor sharedValue =
            Colors::of(Colors::eMapShared); ///< an instruction of the shared range, repeated in each page
        const QColor& color(eCellKind_t kind) const
        {
            return kind == eInitValue ? initValue : (kind == ePageValue ? pageValue : sharedValue);
        }
    };

    /// @param dev not owned
    explicit IODevViewerItem(IODev* dev, QWidget* parent = nullptr);

    void setConfig(const sConfig_t& config);
    /// Cells in a row: a power of two, so that the addresses of the rows are round. @param columns 8 or more
    void setColumns(int columns);
    int columns() const { return m_columns; }
    /// The most columns, 8 at least, that stand side by side in so many pixels.
    int columnsForWidth(int width) const;
    /// Pixels from row to row.
    int rowHeight() const { return m_pitch; }
    /// Rows with that many columns.
    qint64 rowCount(int columns) const;

    /// Where a cell is painted. @param addr 0 to the size of the device - 1
    QRect cellRect(int addr) const;
    /// The cell at a position in the widget, -1 beside the cells.
    int cellAt(const QPoint& pos) const;
    /// What a cell holds; an initial value for an address out of bounds.
    eCellKind_t kindOf(int addr) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

public slots:
    /// Shows address and value of the cell at a position, and hides the tip where there is none.
    /// @param pos in the widget @param globalPos on the screen
    void showTip(QPoint pos, QPoint globalPos);
    /// Asks for the source of the cell at a position; nothing happens for a cell that nothing wrote.
    void emitSrcRefRequest(QPoint pos);

signals:
    /// @param srcRef belongs to the device
    void srcRefRequest(SrcReference* srcRef);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void measure();
    void paintRow(QPainter* painter, int row) const;
    int columnLeft(int column) const;
    void setHovered(int addr);

    IODev* m_dev;
    sConfig_t m_config;
    QFont m_addrFont;
    int m_columns = 8;
    int m_addrDigits = 1;
    int m_gutter = 0; ///< width of the addresses, pixels
    int m_cell = 0;   ///< edge of a cell, pixels
    int m_pitch = 0;  ///< from cell to cell
    int m_group = 0;  ///< additional gap after each eight cells
    int m_hovered = -1;
};

} // namespace nsModAsmFe
