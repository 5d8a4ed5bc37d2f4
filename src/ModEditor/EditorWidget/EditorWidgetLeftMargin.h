#pragma once

#include <QWidget>

namespace nsModEditor {

class EditorWidget;

/// The strip on the left of a document with its marks, memory page addresses and line numbers. The document paints it.
class EditorWidgetLeftMargin : public QWidget
{
    Q_OBJECT

public:
    /// Right-most x at which a click sets a mark, in pixels.
    static const int maxMarkX = 17;

    /// @param editor the document; owns the margin
    explicit EditorWidgetLeftMargin(EditorWidget* editor);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    /// Left button on the symbols: toggles a breakpoint, with Ctrl the simulator's start mark, with Shift a bookmark.
    void mousePressEvent(QMouseEvent* event) override;
    /// Scrolls and zooms like the text.
    void wheelEvent(QWheelEvent* event) override;

private:
    EditorWidget* m_editor; ///< not owned
};

} // namespace nsModEditor
