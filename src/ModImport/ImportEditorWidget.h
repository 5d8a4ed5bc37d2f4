#pragma once

#include "LineHighlights.h"

#include <QPlainTextEdit>

namespace nsModImport {

class ImportEditorWidgetLeftMargin;

/// The text of one side of the import page, with line numbers and a flagged line. All lines are counted from 0.
class ImportEditorWidget : public QPlainTextEdit
{
    Q_OBJECT

public:
    static const int minFontSize = 4; ///< points, as in a document
    static const int maxFontSize = 72;

    explicit ImportEditorWidget(QWidget* parent = nullptr);

    /// Replaces the text, to begin anew: nothing can be undone, no line is flagged.
    void setText(const QString& text);
    /// The text for a file, one line feed between lines.
    QString text() const;
    void appendLine(const QString& line);
    void appendLines(const QStringList& lines);
    /// @return false where there is no such line; *text is then unchanged
    bool line(int number, QString* text) const;

    /// @param indent width of a tab in characters
    void setTabIndent(int indent);
    /// Whether the line of the cursor is coloured.
    void setCursorHighlightingEn(bool enabled);
    void setCursorBgColor(const QColor& color);
    void setHighlightBgColor(const QColor& color);
    /// Flags the line and shows it; a line that there is not takes the flag away.
    void setLineHighlighted(int line);
    void clearLineHighlighted();
    /// -1 for none.
    int highlightedLine() const;

    /// Points; the wheel with Ctrl changes it.
    int fontSize() const { return font().pointSize(); }

    int leftMarginWidth() const;
    /// @param width in pixels that the margin has at least
    void setLeftMarginMinimumWidth(int width);
    void leftMarginPaintEvent(QPaintEvent* event);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private slots:
    void updateLeftMarginWidth();
    void updateLeftMargin(const QRect& rect);

private:
    void calculateTabWidth();

    ImportEditorWidgetLeftMargin* m_leftMargin;
    LineHighlights m_lineHighlights;
    int m_tabIndent = 4;
    int m_leftMarginMinimumWidth = 0;
    bool m_hasLines = false; ///< something was appended, be it an empty line
};

} // namespace nsModImport
