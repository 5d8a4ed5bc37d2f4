#pragma once

#include <QObject>
#include <QPoint>

#include <functional>

class QKeyEvent;
class QMimeData;
class QMouseEvent;
class QPainter;
class QTextBlock;

namespace nsModEditor {

class SourceEdit;

/// A rectangle of text, as wide in each of its lines: drawn with the mouse and Alt, or with Alt, Shift and the arrows.
///
/// What is typed, deleted or pasted takes effect in all of its lines, as one step to undo. It ends as soon as something
/// else moves the cursor or changes the text.
class ColumnSelection : public QObject
{
    Q_OBJECT

public:
    /// @param editor owns the object
    explicit ColumnSelection(SourceEdit* editor);

    bool isActive() const { return m_active; }
    /// It is wider than a cursor.
    bool hasWidth() const { return m_active && m_anchor.x() != m_position.x(); }
    void end();
    /// The text of each line, one line feed in between.
    QString text() const;

    void copy() const;
    void cut();
    /// Into each line; of a text with several lines each line into its own one.
    void paste(const QMimeData* data);
    /// The text of a copied column, whose lines belong below one another.
    static bool isColumnText(const QMimeData* data);
    /// Pastes the text of a column at the cursor of the document.
    void pasteAtCursor(const QMimeData* data);

    void paint(QPainter* painter) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool keyPressed(QKeyEvent* event);
    bool mouseEvent(QMouseEvent* event);
    void begin(const QPoint& place);
    void extendTo(QPoint place);
    void extendBy(int columns, int lines);
    void showCursor();
    QPoint placeAt(const QPoint& pixels) const;
    int left() const;
    int right() const;
    int top() const;
    int bottom() const;
    int xOf(const QTextBlock& block, int column) const;
    void change(const std::function<void()>& edit);
    void remove(int before, int after);
    void insert(const QString& text);
    void insertLines(const QStringList& lines);
    void insertInLine(int line, int column, const QString& text);

    SourceEdit* m_editor;
    bool m_active = false;
    bool m_dragging = false;
    bool m_busy = false; ///< the changes that are reported are its own
    // Columns as x and lines as y, counted from 0; a column may be after the end of the line.
    QPoint m_anchor;
    QPoint m_position;
};

} // namespace nsModEditor
