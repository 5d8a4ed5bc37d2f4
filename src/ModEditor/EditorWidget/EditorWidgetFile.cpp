// The document and its file: format, a text that was changed outside, bars at the upper edge.

#include "EditorWidget.h"

#include "DocumentViews.h"
#include "EditorNotices.h"
#include "MyNoticeBar.h"

#include <QScrollBar>
#include <QTextBlock>

namespace nsModEditor {

namespace {

/// The range in which two texts differ, as positions in characters.
struct sChange_t
{
    int begin = 0;
    int oldEnd = 0;
    int newEnd = 0;
};

sChange_t changeBetween(const QString& before, const QString& after)
{
    const int common = qMin(before.size(), after.size());
    sChange_t change;
    while (change.begin < common && before.at(change.begin) == after.at(change.begin))
        ++change.begin;
    // Two halves of one character stay together.
    if (change.begin > 0 && before.at(change.begin - 1).isHighSurrogate())
        --change.begin;
    int tail = 0;
    while (tail < common - change.begin && before.at(before.size() - 1 - tail) == after.at(after.size() - 1 - tail))
        ++tail;
    if (tail > 0 && before.at(before.size() - tail).isLowSurrogate())
        --tail;
    change.oldEnd = before.size() - tail;
    change.newEnd = after.size() - tail;
    return change;
}

} // namespace

void EditorWidget::setFormat(const DocumentFormat& format)
{
    m_format = format;
    setModified();
    emit actionChanged(this);
}

void EditorWidget::setFormatOnDisk(const DocumentFormat& format)
{
    m_cleanFormat = format;
    setFormat(format);
}

void EditorWidget::setLocked(bool locked)
{
    setTextInteractionFlags(locked ? Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard
                                   : Qt::TextEditorInteraction);
    m_views->takeLook();
}

void EditorWidget::changeText(const QString& text)
{
    const QString before = this->text();
    if (before == text)
        return;
    const sChange_t change = changeBetween(before, text);
    const int position = textCursor().position();
    const int anchor = textCursor().anchor();
    const QTextBlock top = firstVisibleBlock();
    const int topBegin = top.position();
    const int topLine = top.blockNumber();
    // A position after the change moves with its text, a position in it keeps line and column.
    const auto placeOf = [this](int at) {
        const QTextBlock block = m_textDocument->findBlock(at);
        return QPoint(at - block.position(), block.blockNumber());
    };
    const QPoint cursorPlace = placeOf(position);
    const QPoint anchorPlace = placeOf(anchor);

    QTextCursor step(m_textDocument);
    step.beginEditBlock();
    step.setPosition(change.begin);
    step.setPosition(change.oldEnd, QTextCursor::KeepAnchor);
    step.insertText(text.mid(change.begin, change.newEnd - change.begin));
    step.endEditBlock();

    const auto moved = [this, &change](int at, const QPoint& place) {
        if (at <= change.begin)
            return at;
        if (at >= change.oldEnd)
            return at + change.newEnd - change.oldEnd;
        const QTextBlock block = m_textDocument->findBlockByNumber(qMin(place.y(), blockCount() - 1));
        return block.position() + qMin(place.x(), block.length() - 1);
    };
    QTextCursor cursor(m_textDocument);
    cursor.setPosition(moved(anchor, anchorPlace));
    cursor.setPosition(moved(position, cursorPlace), QTextCursor::KeepAnchor);
    const int column = horizontalScrollBar()->value();
    const QTextBlock newTop = m_textDocument->findBlock(moved(topBegin, QPoint(0, topLine)));
    setTextCursor(cursor);
    verticalScrollBar()->setValue(newTop.firstLineNumber());
    horizontalScrollBar()->setValue(column);
    emit actionChanged(this);
}

void EditorWidget::addNotice(MyNoticeBar* bar)
{
    if (m_notices == nullptr) {
        m_notices = new EditorNotices(this);
        connect(m_notices, &EditorNotices::changed, this, &EditorWidget::layoutNotices);
        m_notices->show();
    }
    m_notices->add(bar);
    layoutNotices();
}

void EditorWidget::switchToNotice()
{
    if (m_notices != nullptr)
        m_notices->switchFocus();
}

void EditorWidget::layoutNotices()
{
    if (m_notices == nullptr)
        return;
    const QRect rect = contentsRect();
    const int width = rect.width() - (verticalScrollBar()->isVisible() ? verticalScrollBar()->width() : 0);
    const int height = m_notices->heightFor(width);
    m_notices->setGeometry(rect.left(), rect.top(), width, height);
    m_notices->raise();
    if (height == m_noticeHeight)
        return;
    m_noticeHeight = height;
    updateLeftMarginWidth();
}

} // namespace nsModEditor
