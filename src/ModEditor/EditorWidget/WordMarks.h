#pragma once

#include <QObject>
#include <QString>

class QTimer;

namespace nsModEditor {

class EditorSyntaxHighlighter;
class EditorWidget;

/// Marks a text wherever it occurs in a document.
class WordMarks : public QObject
{
    Q_OBJECT

public:
    /// @param editor owns the object; @param highlighter not owned
    WordMarks(EditorWidget* editor, EditorSyntaxHighlighter* highlighter);

    /// @param text empty for nothing
    void mark(const QString& text);

    /// Whether the selected text is marked.
    void setSelectionEn(bool enabled);

public slots:
    void markSelection();
    /// Brings the formats of all lines up to date.
    void rehighlight();

private:
    void rehighlightVisible();

    EditorWidget* m_editor;
    EditorSyntaxHighlighter* m_highlighter;
    bool m_selectionEn = false;
    QString m_marked;
    QTimer* m_timer; ///< delays the marks in invisible lines of a large document
};

} // namespace nsModEditor
