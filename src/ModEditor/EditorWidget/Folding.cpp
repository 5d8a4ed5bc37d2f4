#include "Folding.h"

#include "SourceEdit.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPlainTextDocumentLayout>
#include <QTextLayout>

#include <algorithm>

namespace nsModEditor {

namespace {

const QString markText = QStringLiteral("...");
const int gap = 4; ///< pixels around the mark

enum eKind_t { kindConditional, kindNamespace, kindGroup, kindCount };

/// What a line does to the ranges of a kind.
struct sFoldWord_t
{
    eKind_t kind = kindCount; ///< kindCount for a line that does nothing
    bool ends = false;
    bool begins = false;
};

sFoldWord_t foldWordOf(const QString& line)
{
    int start = 0;
    while (start < line.size() && line.at(start).isSpace())
        ++start;
    if (start == line.size())
        return {};
    if (line.at(start) == '#') {
        int end = start + 1;
        while (end < line.size() && line.at(end).isLetter())
            ++end;
        const QString word = line.mid(start + 1, end - start - 1).toUpper();
        if (word == QLatin1String("IFDEF"))
            return {kindConditional, false, true};
        if (word == QLatin1String("ELSEIF") || word == QLatin1String("ELSE"))
            return {kindConditional, true, true};
        if (word == QLatin1String("ENDIF"))
            return {kindConditional, true, false};
        if (word == QLatin1String("NAMESPACE"))
            return {kindNamespace, false, true};
        if (word == QLatin1String("ENDNAMESPACE"))
            return {kindNamespace, true, false};
        return {};
    }
    if (line.at(start) != ';')
        return {};
    if (line.contains(QLatin1String("\\navGrpBegin"), Qt::CaseInsensitive))
        return {kindGroup, false, true};
    if (line.contains(QLatin1String("\\navGrpEnd"), Qt::CaseInsensitive))
        return {kindGroup, true, false};
    return {};
}

} // namespace

Folding::Folding(SourceEdit* editor)
    : QObject(editor)
    , m_editor(editor)
{
    connect(editor, &QPlainTextEdit::cursorPositionChanged, this, &Folding::showCursor);
    connect(editor->document(), &QTextDocument::contentsChanged, this, &Folding::showCursor);
    editor->viewport()->installEventFilter(this);
}

QVector<sFoldRange_t> Folding::rangesOf(const QTextDocument* document)
{
    QVector<sFoldRange_t> ranges;
    QVector<int> open[kindCount];
    for (QTextBlock block = document->begin(); block.isValid(); block = block.next()) {
        const sFoldWord_t word = foldWordOf(block.text());
        if (word.kind == kindCount)
            continue;
        const int line = block.blockNumber();
        if (word.ends && !open[word.kind].isEmpty()) {
            // The line of an "#ELSE" is the first one of another range.
            const sFoldRange_t range{open[word.kind].takeLast(), word.begins ? line - 1 : line};
            if (range.last > range.first)
                ranges.append(range);
        }
        if (word.begins)
            open[word.kind].append(line);
    }
    std::sort(ranges.begin(), ranges.end(),
              [](const sFoldRange_t& a, const sFoldRange_t& b) { return a.first < b.first; });
    return ranges;
}

bool Folding::hasHidden() const
{
    for (QTextBlock block = m_editor->document()->begin(); block.isValid(); block = block.next()) {
        if (!block.isVisible())
            return true;
    }
    return false;
}

bool Folding::isFolded(const QTextBlock& block) const
{
    return block.isVisible() && block.next().isValid() && !block.next().isVisible();
}

void Folding::setVisible(QTextBlock first, const QTextBlock& last, bool visible)
{
    QTextDocument* document = m_editor->document();
    const int begin = first.position();
    const int end = last.position() + last.length();
    for (QTextBlock block = first; block.isValid(); block = block.next()) {
        block.setVisible(visible);
        block.setLineCount(visible ? qMax(1, block.layout()->lineCount()) : 0);
        if (block == last)
            break;
    }
    document->markContentsDirty(begin, end - begin);
    auto* layout = static_cast<QPlainTextDocumentLayout*>(document->documentLayout());
    layout->requestUpdate();
    emit layout->documentSizeChanged(layout->documentSize());
    m_editor->viewport()->update();
    emit changed();
}

void Folding::hide(const sFoldRange_t& range)
{
    const QTextDocument* document = m_editor->document();
    // The cursor would bring it back.
    QTextCursor cursor = m_editor->textCursor();
    const int line = cursor.blockNumber();
    const int anchorLine = document->findBlock(cursor.anchor()).blockNumber();
    if ((line > range.first && line <= range.last) || (anchorLine > range.first && anchorLine <= range.last)) {
        const QTextBlock header = document->findBlockByNumber(range.first);
        cursor.setPosition(header.position() + header.length() - 1);
        m_editor->setTextCursor(cursor);
    }
    setVisible(document->findBlockByNumber(range.first + 1), document->findBlockByNumber(range.last), false);
}

void Folding::toggle(int line)
{
    const QTextBlock block = m_editor->document()->findBlockByNumber(line);
    if (isFolded(block)) {
        show(line + 1, line + 1);
        return;
    }
    const QVector<sFoldRange_t> ranges = rangesOf(m_editor->document());
    // The innermost one has begun last.
    for (int i = ranges.size() - 1; i >= 0; --i) {
        if (ranges.at(i).first <= line && line <= ranges.at(i).last) {
            hide(ranges.at(i));
            return;
        }
    }
}

void Folding::foldAll()
{
    int end = -1;
    for (const sFoldRange_t& range : rangesOf(m_editor->document())) {
        // Those within are hidden with it.
        if (range.first > end) {
            hide(range);
            end = range.last;
        }
    }
    m_editor->centerCursor();
}

void Folding::unfoldAll()
{
    show(0, m_editor->blockCount() - 1);
}

void Folding::show(int first, int last)
{
    QTextDocument* document = m_editor->document();
    QTextBlock block = document->findBlockByNumber(first);
    while (block.isValid() && block.blockNumber() <= last) {
        if (block.isVisible()) {
            block = block.next();
            continue;
        }
        QTextBlock begin = block;
        while (begin.previous().isValid() && !begin.previous().isVisible())
            begin = begin.previous();
        QTextBlock end = block;
        while (end.next().isValid() && !end.next().isVisible())
            end = end.next();
        setVisible(begin, end, true);
        block = end.next();
    }
}

/// An edit can bring the cursor, or the start of the document, into hidden lines.
void Folding::showCursor()
{
    if (!m_isUnfolding)
        return;
    const QTextCursor cursor = m_editor->textCursor();
    if (!cursor.block().isVisible())
        show(cursor.blockNumber(), cursor.blockNumber());
    if (!m_editor->document()->begin().isVisible())
        show(0, 0);
}

/// Where the mark behind a folded line is, in the pixels of the viewport; empty for other lines.
QRectF Folding::markOf(const QTextBlock& block) const
{
    if (!isFolded(block) || block.layout()->lineCount() == 0)
        return {};
    const QPointF origin = m_editor->blockBoundingGeometry(block).translated(m_editor->contentOffset()).topLeft();
    const QTextLine row = block.layout()->lineAt(block.layout()->lineCount() - 1);
    const QFontMetricsF metrics(m_editor->font());
    return QRectF(origin.x() + row.cursorToX(row.textStart() + row.textLength()) + gap, origin.y() + row.y(),
                  metrics.horizontalAdvance(markText) + 2 * gap, row.height());
}

void Folding::paint(QPainter* painter) const
{
    const int height = m_editor->viewport()->height();
    painter->setPen(m_editor->palette().color(QPalette::Highlight));
    painter->setBrush(Qt::NoBrush);
    painter->setFont(m_editor->font());
    for (QTextBlock block = m_editor->firstVisibleBlock(); block.isValid(); block = block.next()) {
        if (!block.isVisible())
            continue;
        if (m_editor->blockBoundingGeometry(block).translated(m_editor->contentOffset()).top() > height)
            break;
        const QRectF mark = markOf(block);
        if (mark.isEmpty())
            continue;
        painter->drawRect(mark.adjusted(0, 1, -1, -2));
        painter->drawText(mark, Qt::AlignCenter, markText);
    }
}

bool Folding::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_editor->viewport() || event->type() != QEvent::MouseButtonPress)
        return QObject::eventFilter(watched, event);
    const auto* mouse = static_cast<QMouseEvent*>(event);
    const QTextBlock block = m_editor->cursorForPosition(mouse->pos()).block();
    if (mouse->button() != Qt::LeftButton || !markOf(block).contains(mouse->pos()))
        return QObject::eventFilter(watched, event);
    toggle(block.blockNumber());
    return true;
}

} // namespace nsModEditor
