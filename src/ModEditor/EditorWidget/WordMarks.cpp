#include "WordMarks.h"

#include "EditorSyntaxHighlighter.h"
#include "EditorWidget.h"

#include <QTextBlock>
#include <QTimer>

namespace nsModEditor {

namespace {

/// In documents with this many lines, lines that are not visible are marked after a delay, so that extending a
/// selection stays fast.
const int manyLines = 2000;
const int rehighlightDelay = 100; ///< milliseconds

} // namespace

WordMarks::WordMarks(EditorWidget* editor, EditorSyntaxHighlighter* highlighter)
    : QObject(editor)
    , m_editor(editor)
    , m_highlighter(highlighter)
    , m_timer(new QTimer(this))
{
    m_timer->setSingleShot(true);
    m_timer->setInterval(rehighlightDelay);
    connect(m_timer, &QTimer::timeout, this, &WordMarks::rehighlight);
}

void WordMarks::mark(const QString& text)
{
    // The text edit reports the selection again for each change of formats.
    if (text == m_marked)
        return;
    m_marked = text;
    m_highlighter->setSelection(text);
    if (m_editor->blockCount() < manyLines) {
        rehighlight();
        return;
    }
    rehighlightVisible();
    m_timer->start();
}

void WordMarks::setSelectionEn(bool enabled)
{
    m_selectionEn = enabled;
    if (enabled)
        markSelection();
    else
        mark(QString());
}

void WordMarks::markSelection()
{
    if (m_selectionEn)
        mark(m_editor->textCursor().selectedText());
}

void WordMarks::rehighlight()
{
    m_timer->stop();
    m_highlighter->rehighlight();
}

void WordMarks::rehighlightVisible()
{
    QTextBlock block = m_editor->firstVisibleBlock();
    qreal top = m_editor->blockBoundingGeometry(block).translated(m_editor->contentOffset()).top();
    for (; block.isValid() && top <= m_editor->viewport()->height(); block = block.next()) {
        m_highlighter->rehighlightBlock(block);
        top += m_editor->blockBoundingRect(block).height();
    }
}

} // namespace nsModEditor
