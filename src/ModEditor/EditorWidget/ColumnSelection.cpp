#include "ColumnSelection.h"

#include "Folding.h"
#include "SourceEdit.h"
#include "TextColumns.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QTextBlock>

namespace nsModEditor {

namespace {

const char* const columnFormat = "application/x-nalvo-columns";
const int maxColumn = 10000; ///< how far after the end of a line it may go
const int groundAlpha = 90;

bool isText(const QKeyEvent* event)
{
    const QString text = event->text();
    return !text.isEmpty() && (text.at(0).isPrint() || text.at(0).isSurrogate()) &&
           (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != Qt::ControlModifier &&
           (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) != Qt::AltModifier;
}

QStringList linesOf(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace('\r', '\n').replace(QChar(QChar::ParagraphSeparator), '\n').replace(QChar(QChar::LineSeparator), '\n');
    return text.split('\n');
}

} // namespace

ColumnSelection::ColumnSelection(SourceEdit* editor)
    : QObject(editor)
    , m_editor(editor)
{
    editor->installEventFilter(this);
    editor->viewport()->installEventFilter(this);
    const auto endUnlessBusy = [this] {
        if (!m_busy)
            end();
    };
    connect(editor, &QPlainTextEdit::cursorPositionChanged, this, endUnlessBusy);
    connect(editor->document(), &QTextDocument::contentsChange, this, endUnlessBusy);
}

void ColumnSelection::end()
{
    m_dragging = false;
    if (!m_active)
        return;
    m_active = false;
    m_editor->viewport()->update();
    m_editor->reportActions();
}

int ColumnSelection::left() const
{
    return qMin(m_anchor.x(), m_position.x());
}

int ColumnSelection::right() const
{
    return qMax(m_anchor.x(), m_position.x());
}

int ColumnSelection::top() const
{
    return qMin(m_anchor.y(), m_position.y());
}

int ColumnSelection::bottom() const
{
    return qMax(m_anchor.y(), m_position.y());
}

QString ColumnSelection::text() const
{
    QStringList lines;
    for (int line = top(); line <= bottom(); ++line) {
        const QString text = m_editor->document()->findBlockByNumber(line).text();
        const TextColumns columns(text, m_editor->indentStyle().width);
        const int from = columns.indexAt(left());
        lines.append(text.mid(from, columns.indexAt(right()) - from));
    }
    return lines.join('\n');
}

void ColumnSelection::copy() const
{
    if (!hasWidth())
        return;
    auto* data = new QMimeData;
    data->setText(text());
    data->setData(columnFormat, QByteArray());
    QApplication::clipboard()->setMimeData(data);
}

void ColumnSelection::cut()
{
    copy();
    if (hasWidth())
        remove(0, 0);
}

bool ColumnSelection::isColumnText(const QMimeData* data)
{
    return data != nullptr && data->hasFormat(columnFormat) && data->hasText();
}

void ColumnSelection::paste(const QMimeData* data)
{
    if (data == nullptr || !data->hasText())
        return;
    const QStringList lines = linesOf(data->text());
    if (lines.size() == 1)
        insert(lines.first());
    else
        insertLines(lines);
}

void ColumnSelection::pasteAtCursor(const QMimeData* data)
{
    if (m_editor->isReadOnly())
        return;
    QTextCursor cursor = m_editor->textCursor();
    cursor.beginEditBlock();
    cursor.removeSelectedText();
    const QTextBlock block = cursor.block();
    begin(QPoint(TextColumns(block.text(), m_editor->indentStyle().width).columnOf(cursor.positionInBlock()),
                 block.blockNumber()));
    insertLines(linesOf(data->text()));
    cursor.endEditBlock();
    end();
}

/// Runs an edit as one step to undo, which does not end the selection.
void ColumnSelection::change(const std::function<void()>& edit)
{
    const QScopedValueRollback<bool> busy(m_busy, true);
    QTextCursor step(m_editor->document());
    step.beginEditBlock();
    edit();
    step.endEditBlock();
    showCursor();
}

/// Removes what is selected, and in each line as many characters before and after it.
void ColumnSelection::remove(int before, int after)
{
    if (m_editor->isReadOnly())
        return;
    const int from = qMax(left() - before, 0);
    const int to = right() + after;
    change([&] {
        for (int line = top(); line <= bottom(); ++line) {
            const QTextBlock block = m_editor->document()->findBlockByNumber(line);
            const TextColumns columns(block.text(), m_editor->indentStyle().width);
            int end = columns.indexAt(to);
            // A tab is wider than one column.
            if (after > 0 && columns.columnOf(end) < to && columns.width() >= to)
                end = columns.indexAfter(end);
            QTextCursor cursor(block);
            cursor.setPosition(block.position() + columns.indexAt(from));
            cursor.setPosition(block.position() + end, QTextCursor::KeepAnchor);
            cursor.removeSelectedText();
        }
        m_anchor.setX(from);
        m_position.setX(from);
    });
}

void ColumnSelection::insertInLine(int line, int column, const QString& text)
{
    const QTextBlock block = m_editor->document()->findBlockByNumber(line);
    const TextColumns columns(block.text(), m_editor->indentStyle().width);
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + columns.indexAt(column));
    // A line that ends before the column is filled up.
    cursor.insertText(QString(qMax(column - columns.width(), 0), ' ') + text);
}

/// Puts the text into each line, in place of what is selected.
void ColumnSelection::insert(const QString& text)
{
    if (m_editor->isReadOnly() || text.isEmpty())
        return;
    change([&] {
        remove(0, 0);
        for (int line = top(); line <= bottom(); ++line)
            insertInLine(line, left(), text);
        const int column = left() + TextColumns(text, m_editor->indentStyle().width).width();
        m_anchor.setX(column);
        m_position.setX(column);
    });
}

/// Puts each of the texts into a line, from the first selected one on; the document gets the lines that it lacks.
void ColumnSelection::insertLines(const QStringList& lines)
{
    if (m_editor->isReadOnly())
        return;
    change([&] {
        remove(0, 0);
        int width = 0;
        for (int i = 0; i < lines.size(); ++i) {
            if (top() + i >= m_editor->blockCount()) {
                QTextCursor cursor(m_editor->document());
                cursor.movePosition(QTextCursor::End);
                cursor.insertBlock();
            }
            if (!lines.at(i).isEmpty())
                insertInLine(top() + i, left(), lines.at(i));
            width = qMax(width, TextColumns(lines.at(i), m_editor->indentStyle().width).width());
        }
        const QPoint end(left() + width, top() + lines.size() - 1);
        m_anchor = QPoint(end.x(), top());
        m_position = end;
    });
}

void ColumnSelection::begin(const QPoint& place)
{
    m_active = true;
    m_anchor = place;
    m_position = place;
}

void ColumnSelection::extendTo(QPoint place)
{
    place.setX(qBound(0, place.x(), maxColumn));
    place.setY(qBound(0, place.y(), m_editor->blockCount() - 1));
    m_position = place;
    m_editor->folding()->show(top(), bottom());
    showCursor();
    m_editor->reportActions();
}

void ColumnSelection::extendBy(int columns, int lines)
{
    if (!m_active) {
        const QTextCursor cursor = m_editor->textCursor();
        const auto placeOf = [this](int position) {
            const QTextBlock block = m_editor->document()->findBlock(position);
            const TextColumns line(block.text(), m_editor->indentStyle().width);
            return QPoint(line.columnOf(position - block.position()), block.blockNumber());
        };
        begin(placeOf(cursor.anchor()));
        m_position = placeOf(cursor.position());
    }
    extendTo(m_position + QPoint(columns, lines));
}

/// The cursor of the document stands where the selection was extended last.
void ColumnSelection::showCursor()
{
    const QScopedValueRollback<bool> busy(m_busy, true);
    const QTextBlock block = m_editor->document()->findBlockByNumber(m_position.y());
    QTextCursor cursor(block);
    cursor.setPosition(block.position() +
                       TextColumns(block.text(), m_editor->indentStyle().width).indexAt(m_position.x()));
    m_editor->setTextCursor(cursor);
    m_editor->viewport()->update();
}

QPoint ColumnSelection::placeAt(const QPoint& pixels) const
{
    const QTextCursor cursor = m_editor->cursorForPosition(pixels);
    const TextColumns columns(cursor.block().text(), m_editor->indentStyle().width);
    int column = columns.columnOf(cursor.positionInBlock());
    if (column == columns.width()) {
        const int width = qMax(m_editor->fontMetrics().horizontalAdvance('x'), 1);
        column += qMax((pixels.x() - m_editor->cursorRect(cursor).left() + width / 2) / width, 0);
    }
    return QPoint(column, cursor.blockNumber());
}

int ColumnSelection::xOf(const QTextBlock& block, int column) const
{
    const TextColumns columns(block.text(), m_editor->indentStyle().width);
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + columns.indexAt(column));
    return m_editor->cursorRect(cursor).left() +
           qMax(column - columns.width(), 0) * m_editor->fontMetrics().horizontalAdvance('x');
}

void ColumnSelection::paint(QPainter* painter) const
{
    if (!m_active)
        return;
    QColor ground = m_editor->palette().color(QPalette::Highlight);
    const QColor edge = ground;
    ground.setAlpha(groundAlpha);
    const int height = m_editor->viewport()->height();
    QTextBlock block = m_editor->firstVisibleBlock();
    if (block.blockNumber() < top())
        block = m_editor->document()->findBlockByNumber(top());
    for (; block.isValid() && block.blockNumber() <= bottom(); block = block.next()) {
        if (!block.isVisible())
            continue;
        const QRect row = m_editor->cursorRect(QTextCursor(block));
        if (row.top() > height)
            break;
        const int from = xOf(block, left());
        painter->fillRect(QRect(from, row.top(), xOf(block, right()) - from, row.height()), ground);
        painter->fillRect(QRect(xOf(block, m_position.x()), row.top(), 2, row.height()), edge);
    }
}

bool ColumnSelection::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        return watched == m_editor && keyPressed(static_cast<QKeyEvent*>(event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        return watched == m_editor->viewport() && mouseEvent(static_cast<QMouseEvent*>(event));
    default:
        return false;
    }
}

bool ColumnSelection::keyPressed(QKeyEvent* event)
{
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if (modifiers == (Qt::AltModifier | Qt::ShiftModifier)) {
        switch (event->key()) {
        case Qt::Key_Left:
            extendBy(-1, 0);
            return true;
        case Qt::Key_Right:
            extendBy(1, 0);
            return true;
        case Qt::Key_Up:
            extendBy(0, -1);
            return true;
        case Qt::Key_Down:
            extendBy(0, 1);
            return true;
        default:
            break;
        }
    }
    if (!m_active)
        return false;
    switch (event->key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
        return false;
    case Qt::Key_Escape:
        end();
        return true;
    case Qt::Key_Tab:
        if (modifiers == Qt::NoModifier)
            insert(m_editor->indentStyle().blanks ? QString(m_editor->indentStyle().width, ' ') : QString("\t"));
        return true;
    default:
        break;
    }
    if (modifiers == Qt::NoModifier && event->key() == Qt::Key_Backspace)
        remove(hasWidth() ? 0 : 1, 0);
    else if (modifiers == Qt::NoModifier && event->key() == Qt::Key_Delete)
        remove(0, hasWidth() ? 0 : 1);
    else if (event->matches(QKeySequence::Copy))
        copy();
    else if (event->matches(QKeySequence::Cut))
        cut();
    else if (event->matches(QKeySequence::Paste))
        paste(QApplication::clipboard()->mimeData());
    else if (isText(event))
        insert(event->text());
    else {
        end();
        return false;
    }
    event->accept();
    return true;
}

bool ColumnSelection::mouseEvent(QMouseEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress && event->button() == Qt::LeftButton &&
        event->modifiers() == Qt::AltModifier) {
        m_editor->setFocus(Qt::MouseFocusReason);
        begin(placeAt(event->pos()));
        m_dragging = true;
        extendTo(m_position);
        return true;
    }
    if (m_dragging && event->type() == QEvent::MouseMove) {
        extendTo(placeAt(event->pos()));
        return true;
    }
    if (m_dragging && event->type() == QEvent::MouseButtonRelease) {
        m_dragging = false;
        return true;
    }
    if (event->type() == QEvent::MouseButtonPress && event->button() == Qt::LeftButton)
        end();
    return false;
}

} // namespace nsModEditor
