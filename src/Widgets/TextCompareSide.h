#pragma once

#include <QPlainTextEdit>
#include <QVector>

/// One of the two texts of a comparison: for reading, with line numbers, with its differing lines on a coloured
/// background.
///
/// Both sides have the same number of rows. Where the other side has a line that this one does not have, a row is empty
/// and has no number.
class TextCompareSide : public QPlainTextEdit
{
    Q_OBJECT

public:
    enum eRow_t {
        eRowEqual = 0,
        eRowChanged = 1,
        eRowOnlyHere = 2,
        eRowMissing = 3 ///< the other side has a line here
    };

    struct sRow_t
    {
        int line = -1; ///< counted from 0, -1 for none
        eRow_t kind = eRowEqual;
    };

    explicit TextCompareSide(QWidget* parent = nullptr);

    /// @param texts the shown text of each row
    void setRows(const QVector<sRow_t>& rows, const QStringList& texts);
    const QVector<sRow_t>& rows() const { return m_rows; }
    /// Flags the rows of the difference that the user has gone to, [first, first + count), and shows them.
    void setCurrentRows(int first, int count);
    /// The row at the upper edge.
    int firstRow() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    class Margin;

    int marginWidth() const;
    void paintMargin(QPaintEvent* event);

    QVector<sRow_t> m_rows;
    int m_lineCount = 0;
    int m_currentRow = 0;
    int m_currentCount = 0;
    QWidget* m_margin;
};
