#pragma once

#include <QPlainTextEdit>

namespace nsProc {

class ProcSimFifoLines;
class ProcSimIOFifo;

/// The list of a FIFO as text, one value a line. The margin and a coloured line show the read and write pointer.
///
/// Of a long list, only the lines around the pointer are in the text, as a text is much slower to fill than the list.
class ProcSimEdtFifo : public QPlainTextEdit
{
    Q_OBJECT

public:
    static constexpr int windowLines =
        16384; ///< lines of the list that are in the text at most, but for what the user inserts

    /// @param device not owned, must outlive its use by refresh() and by the user
    explicit ProcSimEdtFifo(ProcSimIOFifo* device, QWidget* parent = nullptr);

    /// Shows the changes of the list.
    void refresh();
    /// Line of the list that is the first in the text.
    int firstLine() const { return m_first; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void takeEdit(int position, int removed, int added);
    /// The list has changed since the text was filled: an edit of the text can not be applied to it.
    bool isStale(int line, int count) const;
    void fill();
    void updateLines(int first, int last);
    void setBlocks(int first, int last, const QStringList& texts);
    void showPointer();
    void paintMargin();
    ProcSimFifoLines& lines() const;

    ProcSimIOFifo* m_device;
    QWidget* m_margin;
    int m_first = 0;
    int m_shown = 1;         ///< lines in the text
    int m_pointer = -1;      ///< as shown
    long long m_dropped = 0; ///< lines that the list had dropped when the text was last brought up to date
    bool m_updating = false;
};

} // namespace nsProc
