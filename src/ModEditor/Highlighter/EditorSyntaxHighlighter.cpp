#include "EditorSyntaxHighlighter.h"

#include "EditorSyntaxHighlighterConfig.h"
#include "HighlightMatcher.h"

#include <QTextDocument>
#include <QTimer>

namespace nsModEditor {

namespace {

/// Longest selection over several lines that is compiled although it may match nothing, in characters. Compiling takes
/// a time that grows with the square of the length.
const int longSelection = 20000;

} // namespace

EditorSyntaxHighlighter::EditorSyntaxHighlighter(QTextDocument* document)
    : QSyntaxHighlighter(document)
{
}

EditorSyntaxHighlighter::~EditorSyntaxHighlighter() = default;

void EditorSyntaxHighlighter::setSyntaxHighlighterConfig(EditorSyntaxHighlighterConfig* config)
{
    if (m_config == config)
        return;
    if (m_config != nullptr)
        m_config->disconnect(this);
    m_config = config;
    if (config != nullptr)
        connect(config, &EditorSyntaxHighlighterConfig::rulesChanged, this, &EditorSyntaxHighlighter::rehighlight);
    QTimer::singleShot(0, this, &EditorSyntaxHighlighter::rehighlight);
}

void EditorSyntaxHighlighter::setSelection(const QString& text)
{
    if (text == m_selection)
        return;
    m_selection = text;
    m_selectionRegExp = QRegExp();
    m_selectionPattern.reset();
    if (text.isEmpty())
        return;
    const QString pattern = "\\b" + text + "\\b";
    // All of a large document may be selected; a selection over several lines that cannot match is detected without
    // compiling it.
    if (HighlightPattern(pattern, Qt::CaseSensitive).neverMatches() ||
        (text.size() > longSelection && text.contains(QChar::ParagraphSeparator)))
        return;
    m_selectionRegExp = QRegExp(pattern, Qt::CaseSensitive);
    m_selectionPattern = std::make_unique<HighlightPattern>(m_selectionRegExp);
}

void EditorSyntaxHighlighter::highlightBlock(const QString& text)
{
    if (m_config != nullptr) {
        HighlightMatcher* matcher = m_config->matcher();
        for (const HighlightSpan& span : matcher->spans(text))
            setFormat(span.start, span.length, matcher->format(span.format));
        highlightSelection(text);
    }
    setCurrentBlockState(0);
}

void EditorSyntaxHighlighter::highlightSelection(const QString& text)
{
    for (const HighlightSpan& mark : selectionMarks(text))
        setFormat(mark.start, mark.length, HighlightMatcher::marked(format(mark.start)));
}

HighlightSpans EditorSyntaxHighlighter::selectionMarks(const QString& text) const
{
    HighlightSpans marks;
    if (m_selectionPattern != nullptr && m_selectionPattern->mayMatch(text, LineFacts(text)))
        m_selectionPattern->forEachMatch(text, [&marks](int start, int length) { marks.append({start, length, 0}); });
    return marks;
}

void EditorSyntaxHighlighter::rehighlight()
{
    QTextDocument* text = document();
    if (text == nullptr)
        return;
    int from = -1;
    int to = -1;
    for (QTextBlock block = text->begin(); block.isValid(); block = block.next()) {
        if (!updateBlock(block))
            continue;
        from = from < 0 ? block.position() : from;
        to = block.position() + block.length();
    }
    // Reports one change for all lines, so that they are laid out only when they are shown.
    if (from >= 0)
        text->markContentsDirty(from, to - from);
}

/// @return the formats of the line have changed, and its layout must be updated
bool EditorSyntaxHighlighter::updateBlock(QTextBlock block)
{
    QTextLayout* layout = block.layout();
    if (!layout->preeditAreaText().isEmpty()) {
        // Preedit text of an input method is part of the line and shifts the formats.
        rehighlightBlock(block);
        return false;
    }
    block.setUserState(0);
    QVector<QTextLayout::FormatRange> ranges;
    if (m_config != nullptr) {
        HighlightMatcher* matcher = m_config->matcher();
        const QString text = block.text();
        const HighlightSpans spans = matcher->withMarks(text, matcher->spans(text), selectionMarks(text));
        ranges.reserve(spans.size());
        for (const HighlightSpan& span : spans)
            ranges.append({span.start, span.length, matcher->format(span.format)});
    }
    if (ranges == layout->formats())
        return false;
    layout->setFormats(ranges);
    return true;
}

} // namespace nsModEditor
