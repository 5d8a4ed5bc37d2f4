#include "TextOverlay.h"

#include "Brackets.h"
#include "SourceEdit.h"

#include <QPainter>
#include <QTextBlock>
#include <QTextLayout>

namespace nsModEditor {

namespace {

const int rulerAlpha = 60;
const int hitAlpha = 45;
const int maxHitsInLine = 1000; ///< that are marked
const int maxPaintTime = 250;   ///< milliseconds that the search for the hits may take

/// The characters from one position to another of a line in the pixels of the viewport, a rectangle for each row.
QList<QRectF> rectsOf(const SourceEdit* editor, const QTextBlock& block, int from, int to)
{
    QList<QRectF> rects;
    const QPointF origin = editor->blockBoundingGeometry(block).translated(editor->contentOffset()).topLeft();
    for (int i = 0; i < block.layout()->lineCount(); ++i) {
        const QTextLine row = block.layout()->lineAt(i);
        const int start = qMax(from, row.textStart());
        const int end = qMin(to, row.textStart() + row.textLength());
        if (start >= end)
            continue;
        const qreal x = row.cursorToX(start);
        rects.append(QRectF(origin + QPointF(x, row.y()), QSizeF(row.cursorToX(end) - x, row.height())));
    }
    return rects;
}

} // namespace

TextOverlay::TextOverlay(SourceEdit* editor)
    : m_editor(editor)
    , m_hits(sSearch_t())
{
}

void TextOverlay::setRulerColumn(int column)
{
    m_rulerColumn = column;
    m_editor->viewport()->update();
}

void TextOverlay::setHits(const sSearch_t& search)
{
    if (search == m_hits.search())
        return;
    m_hits = TextSearch(search);
    m_takesLong = false;
    m_editor->viewport()->update();
}

void TextOverlay::paint(QPainter* painter) const
{
    paintHits(painter);
    paintBrackets(painter);
    paintRuler(painter);
}

void TextOverlay::paintRuler(QPainter* painter) const
{
    if (m_rulerColumn <= 0)
        return;
    const qreal x = m_editor->contentOffset().x() + m_editor->document()->documentMargin() +
                    QFontMetricsF(m_editor->font()).horizontalAdvance('x') * m_rulerColumn;
    QColor color = m_editor->palette().color(QPalette::Text);
    color.setAlpha(rulerAlpha);
    painter->fillRect(QRect(qRound(x), 0, 1, m_editor->viewport()->height()), color);
}

void TextOverlay::paintBrackets(QPainter* painter) const
{
    const QTextCursor cursor = m_editor->textCursor();
    const QTextBlock block = cursor.block();
    if (!block.isVisible())
        return;
    const sBracketPair_t pair = bracketPairAt(block.text(), cursor.positionInBlock());
    if (pair.at < 0)
        return;
    painter->setPen(m_editor->palette().color(QPalette::Highlight));
    painter->setBrush(Qt::NoBrush);
    for (const int at : {pair.at, pair.partner}) {
        for (const QRectF& rect : rectsOf(m_editor, block, at, at + 1))
            painter->drawRect(rect.adjusted(0, 0, -1, -1));
    }
}

void TextOverlay::paintHits(QPainter* painter) const
{
    if (!m_hits.isValid() || m_takesLong)
        return;
    QColor color = m_editor->palette().color(QPalette::Highlight);
    painter->setPen(color);
    color.setAlpha(hitAlpha);
    painter->setBrush(color);
    const int height = m_editor->viewport()->height();
    SearchTime time(maxPaintTime);
    for (QTextBlock block = m_editor->firstVisibleBlock(); block.isValid(); block = block.next()) {
        if (m_editor->blockBoundingGeometry(block).translated(m_editor->contentOffset()).top() > height)
            break;
        if (!block.isVisible())
            continue;
        const QVector<sHit_t> hits = m_hits.hitsIn(block.text(), &time);
        for (int i = 0; i < qMin(maxHitsInLine, hits.size()); ++i) {
            for (const QRectF& rect : rectsOf(m_editor, block, hits.at(i).start, hits.at(i).start + hits.at(i).length))
                painter->drawRect(rect.adjusted(0, 0, -1, -1));
        }
    }
    // The text is painted with each blink of the cursor.
    m_takesLong = time.isOver();
}

} // namespace nsModEditor
