#pragma once

#include "HighlightSpan.h"

#include <QPointer>
#include <QRegExp>
#include <QString>
#include <QSyntaxHighlighter>
#include <QTextBlock>

#include <memory>

namespace nsModEditor {

class EditorSyntaxHighlighterConfig;
class HighlightPattern;

/// Formats one document by the shared list of rules, and marks the selected text wherever it occurs.
///
/// Without a configuration, or after its end, the text is plain. A change of the rules repaints the document by itself.
class EditorSyntaxHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    /// @param document owns the highlighter; may be null
    explicit EditorSyntaxHighlighter(QTextDocument* document);
    ~EditorSyntaxHighlighter() override;

    /// @param config not owned, may be null
    void setSyntaxHighlighterConfig(EditorSyntaxHighlighterConfig* config);
    /// What rehighlight() is to mark: all whole words that match the text, whose characters work as pattern characters.
    /// An empty text marks nothing.
    void setSelection(const QString& text);

    /// Called for each line that changes; formats the line.
    void highlightBlock(const QString& text) override;
    /// Adds the marks of the selection to the formats of the line.
    void highlightSelection(const QString& text);

public slots:
    /// Brings the formats of all lines up to date. It touches only lines whose formats differ, so it is much faster
    /// than the operation of the base class, with the same result.
    void rehighlight();

private:
    HighlightSpans selectionMarks(const QString& text) const;
    bool updateBlock(QTextBlock block);

    QPointer<EditorSyntaxHighlighterConfig> m_config;
    QString m_selection;
    QRegExp m_selectionRegExp; ///< empty when nothing is selected, or when the selection can match no line
    std::unique_ptr<HighlightPattern> m_selectionPattern;
};

} // namespace nsModEditor
