#pragma once

#include <QObject>
#include <QRectF>
#include <QTextBlock>
#include <QVector>

class QPainter;

namespace nsModEditor {

class SourceEdit;

/// Lines that belong together, counted from 0: the first one stays visible when the others are hidden.
struct sFoldRange_t
{
    int first = 0;
    int last = 0;

    bool operator==(const sFoldRange_t& other) const { return first == other.first && last == other.last; }
};

/// Hides the lines of conditionals, namespaces and groups of the navigator below their first line.
///
/// What is hidden is seen again as soon as the cursor goes there. No text changes, and nothing of it is kept.
class Folding : public QObject
{
    Q_OBJECT

public:
    /// @param editor owns the object
    explicit Folding(SourceEdit* editor);

    /// What can be folded in a text, in the order of the first lines.
    static QVector<sFoldRange_t> rangesOf(const QTextDocument* document);

    /// Any line is hidden.
    bool hasHidden() const;
    bool isFolded(const QTextBlock& block) const;
    /// Shows what is hidden below the line; otherwise hides the innermost range around it.
    void toggle(int line);
    void foldAll();
    void unfoldAll();
    /// Shows the lines, and all that is hidden together with them.
    void show(int first, int last);
    /// Whether hidden lines are shown as soon as the cursor of this view comes into them; they are at first.
    void setUnfolding(bool unfolds) { m_isUnfolding = unfolds; }

    void paint(QPainter* painter) const;

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// Lines were hidden or shown by this view.
    void changed();

private:
    void setVisible(QTextBlock first, const QTextBlock& last, bool visible);
    void hide(const sFoldRange_t& range);
    void showCursor();
    QRectF markOf(const QTextBlock& block) const;

    SourceEdit* m_editor;
    bool m_isUnfolding = true;
};

} // namespace nsModEditor
