#include "MessageMarks.h"

#include "Colors.h"

#include <QPainter>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextLayout>

#include <algorithm>

namespace nsModEditor {

namespace {

const qreal waveHeight = 2; ///< pixels
const qreal waveWidth = 4;  ///< pixels, up and down

/// From one point to the other along the lower edge of the text.
void paintWave(QPainter* painter, qreal left, qreal right, qreal bottom)
{
    QPolygonF points;
    bool isUp = false;
    for (qreal x = left; x < right + waveWidth / 2; x += waveWidth / 2, isUp = !isUp)
        points << QPointF(x, isUp ? bottom - waveHeight : bottom);
    painter->drawPolyline(points);
}

} // namespace

void MessageMarks::set(const QVector<sMessageMark>& marks)
{
    m_marks.clear();
    const QTextDocument* document = m_edit->document();
    for (const sMessageMark& mark : marks) {
        if (m_marks.size() == maxCount)
            break;
        QTextBlock block = document->findBlockByNumber(mark.line);
        if (!block.isValid())
            block = document->lastBlock();
        const int last = block.length() - 1;
        QTextCursor cursor(block);
        cursor.setPosition(block.position() + qBound(0, mark.column, last));
        cursor.setPosition(block.position() + qBound(0, mark.column + mark.length, last), QTextCursor::KeepAnchor);
        m_marks.push_back({cursor, mark.grade, mark.text});
    }
    m_edit->viewport()->update();
}

QStringList MessageMarks::texts(int line) const
{
    QStringList result;
    const QTextBlock block = m_edit->document()->findBlockByNumber(line);
    for (const sMark& mark : m_marks) {
        if (block.contains(mark.cursor.selectionStart()))
            result.append(mark.text);
    }
    return result;
}

QTextCursor MessageMarks::place(int index) const
{
    return index >= 0 && size_t(index) < m_marks.size() ? m_marks[size_t(index)].cursor : QTextCursor();
}

int MessageMarks::gradeOf(const QTextBlock& line) const
{
    const int start = line.position();
    const int end = start + line.length();
    int grade = -1;
    for (const sMark& mark : m_marks) {
        const int place = mark.cursor.selectionStart();
        if (place >= start && place < end)
            grade = std::max(grade, mark.grade);
    }
    return grade;
}

QColor MessageMarks::colorOf(int grade)
{
    static const Colors::eRole_t roles[] = {Colors::eInfoLine, Colors::eWarningLine, Colors::eErrorLine};
    return Colors::of(roles[qBound(0, grade, 2)]);
}

void MessageMarks::paint(QPainter* painter, const QTextBlock& firstVisible, const QPointF& offset, int bottom) const
{
    if (m_marks.empty())
        return;
    painter->setRenderHint(QPainter::Antialiasing);
    QPointF origin = offset;
    for (QTextBlock block = firstVisible; block.isValid() && origin.y() <= bottom; block = block.next()) {
        if (!block.isVisible())
            continue;
        const int start = block.position();
        const int end = start + block.length();
        for (const sMark& mark : m_marks) {
            if (mark.cursor.selectionStart() >= start && mark.cursor.selectionStart() < end)
                paintMark(painter, mark, block, origin);
        }
        origin.ry() += m_edit->document()->documentLayout()->blockBoundingRect(block).height();
    }
}

/// A wave in each row of the block that the mark reaches; a mark whose text was removed has none.
void MessageMarks::paintMark(QPainter* painter, const sMark& mark, const QTextBlock& block, const QPointF& origin) const
{
    const int start = mark.cursor.selectionStart() - block.position();
    const int end = std::min(mark.cursor.selectionEnd() - block.position(), block.length() - 1);
    painter->setPen(QPen(colorOf(mark.grade), 1.2));
    const QTextLayout* layout = block.layout();
    for (int i = 0; i < layout->lineCount(); ++i) {
        const QTextLine row = layout->lineAt(i);
        const int from = std::max(start, row.textStart());
        const int to = std::min(end, row.textStart() + row.textLength());
        if (from >= to)
            continue;
        const QPointF corner = origin + layout->position();
        paintWave(painter, corner.x() + row.cursorToX(from), corner.x() + row.cursorToX(to),
                  corner.y() + row.y() + row.height() - 0.5);
    }
}

} // namespace nsModEditor
