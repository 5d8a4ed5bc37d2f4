#include "ProcSimEdtFifo.h"

#include "Colors.h"
#include "ProcSimFont.h"
#include "ProcSimIOFifo.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>

namespace nsProc {

namespace {

constexpr int marginWidth = 14;
constexpr int visibleLines = 8;

} // namespace

ProcSimEdtFifo::ProcSimEdtFifo(ProcSimIOFifo* device, QWidget* parent)
    : QPlainTextEdit(parent)
    , m_device(device)
    , m_margin(new QWidget(this))
{
    setObjectName(QStringLiteral("procSimEdtFifo"));
    setToolTip(tr("Values, one a line; the mark shows the line that is read or written next"));
    setFont(monospaceFont());
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTabChangesFocus(true);
    // The program writes here, too: an undo would revert what it wrote.
    setUndoRedoEnabled(false);
    setFixedHeight(fontMetrics().lineSpacing() * visibleLines + 2 * int(document()->documentMargin()) +
                   2 * frameWidth());
    setViewportMargins(marginWidth, 0, 0, 0);
    m_margin->setObjectName(QStringLiteral("procSimEdtFifoMargin"));
    m_margin->setToolTip(tr("Read and write pointer"));
    m_margin->installEventFilter(this);
    connect(document(), &QTextDocument::contentsChange, this, &ProcSimEdtFifo::takeEdit);
    connect(this, &QPlainTextEdit::updateRequest, m_margin, QOverload<>::of(&QWidget::update));
}

ProcSimFifoLines& ProcSimEdtFifo::lines() const
{
    return m_device->lines();
}

void ProcSimEdtFifo::takeEdit(int position, int removed, int added)
{
    Q_UNUSED(removed)
    if (m_updating)
        return;
    const QTextBlock first = document()->findBlock(position);
    QTextBlock last = document()->findBlock(position + added);
    if (!last.isValid())
        last = document()->lastBlock();
    QStringList texts;
    for (QTextBlock block = first; block.isValid() && block.blockNumber() <= last.blockNumber(); block = block.next())
        texts << block.text();
    const int grown = document()->blockCount() - m_shown;
    const int line = m_first + first.blockNumber();
    if (isStale(line, texts.size() - grown)) {
        QMetaObject::invokeMethod(
            this,
            [this] {
                fill();
                showPointer();
            },
            Qt::QueuedConnection);
        return;
    }
    m_shown += grown;
    m_device->replaceLines(line, texts.size() - grown, texts);
    // The pointer is shown later: the document must not be modified in a slot for contentsChange().
    QMetaObject::invokeMethod(this, &ProcSimEdtFifo::showPointer, Qt::QueuedConnection);
}

bool ProcSimEdtFifo::isStale(int line, int count) const
{
    return lines().dropped() != m_dropped || line + count > lines().count();
}

void ProcSimEdtFifo::refresh()
{
    int first = 0;
    int last = -1;
    const bool changed = lines().takeChanged(&first, &last);
    // If there is no line at the pointer, the end of the list is shown.
    const int pointer = qMin(lines().pointer(), lines().count() - 1);
    const bool inText = pointer >= m_first && pointer < m_first + qMax(m_shown, windowLines);
    if (!inText || lines().dropped() != m_dropped)
        fill();
    else if (changed)
        updateLines(first, last);
    showPointer();
}

void ProcSimEdtFifo::fill()
{
    m_dropped = lines().dropped();
    const int count = lines().count();
    // Half of the text is after the pointer, so that a growing list does not need to be filled each time.
    m_first = count <= windowLines ? 0 : qBound(0, lines().pointer() - windowLines / 2, count - windowLines / 2);
    const int last = qMin(count, m_first + windowLines) - 1;
    QStringList texts;
    texts.reserve(last - m_first + 1);
    for (int line = m_first; line <= last; ++line)
        texts << lines().text(line);
    m_updating = true;
    setPlainText(texts.join(QLatin1Char('\n')));
    m_updating = false;
    m_shown = texts.size();
    m_pointer = -1;
}

void ProcSimEdtFifo::updateLines(int first, int last)
{
    const int shown = qMin(lines().count() - m_first, qMax(m_shown, windowLines));
    const int from = qMax(0, first - m_first);
    int newLast = qMin(last - m_first, shown - 1);
    int oldLast = newLast;
    if (shown != m_shown) {
        newLast = shown - 1;
        oldLast = m_shown - 1;
    }
    if (shown == 0 || newLast < from)
        return;
    QStringList texts;
    for (int line = from; line <= newLast; ++line)
        texts << lines().text(m_first + line);
    setBlocks(from, oldLast, texts);
    m_shown = shown;
}

void ProcSimEdtFifo::setBlocks(int first, int last, const QStringList& texts)
{
    // Lines with the same text are not replaced, which keeps the cursor in them.
    QTextBlock block = document()->findBlockByNumber(first);
    int from = 0;
    while (from < texts.size() && block.isValid() && first + from <= last && block.text() == texts.at(from)) {
        block = block.next();
        ++from;
    }
    if (from == texts.size() && first + from > last)
        return;
    m_updating = true;
    const bool appends = first + from > last;
    QTextCursor cursor(appends ? document()->findBlockByNumber(last) : block);
    if (appends)
        cursor.movePosition(QTextCursor::EndOfBlock);
    else
        cursor.setPosition(document()->findBlockByNumber(last).position() +
                               document()->findBlockByNumber(last).length() - 1,
                           QTextCursor::KeepAnchor);
    const QString text = QStringList(texts.mid(from)).join(QLatin1Char('\n'));
    cursor.insertText(appends ? QLatin1Char('\n') + text : text);
    m_updating = false;
}

void ProcSimEdtFifo::showPointer()
{
    const int pointer = lines().pointer() - m_first;
    const QTextBlock block = document()->findBlockByNumber(pointer);
    // When lines are edited, a mark moves with the text of its line; the pointer keeps its line number.
    QList<QTextEdit::ExtraSelection> marks = extraSelections();
    const int marked = marks.isEmpty() ? -1 : marks.first().cursor.blockNumber();
    if (pointer == m_pointer && marked == (block.isValid() ? pointer : -1))
        return;
    m_pointer = pointer;
    marks.clear();
    if (block.isValid()) {
        QTextEdit::ExtraSelection mark;
        mark.cursor = QTextCursor(block);
        mark.format.setBackground(Colors::of(Colors::eHover));
        mark.format.setProperty(QTextFormat::FullWidthSelection, true);
        marks << mark;
    }
    setExtraSelections(marks);
    m_margin->update();
    // While the user types, the view is not scrolled.
    if (hasFocus())
        return;
    QScrollBar* bar = verticalScrollBar();
    if (pointer < bar->value())
        bar->setValue(pointer);
    else if (pointer > bar->value() + visibleLines - 2)
        bar->setValue(pointer - visibleLines + 2);
}

bool ProcSimEdtFifo::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_margin && event->type() == QEvent::Paint) {
        paintMargin();
        return true;
    }
    return QPlainTextEdit::eventFilter(watched, event);
}

void ProcSimEdtFifo::changeEvent(QEvent* event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() != QEvent::PaletteChange)
        return;
    QList<QTextEdit::ExtraSelection> marks = extraSelections();
    for (QTextEdit::ExtraSelection& mark : marks)
        mark.format.setBackground(Colors::of(Colors::eHover));
    setExtraSelections(marks);
}

void ProcSimEdtFifo::paintMargin()
{
    QPainter painter(m_margin);
    painter.fillRect(m_margin->rect(), Colors::of(Colors::eGround));
    const QTextBlock block = document()->findBlockByNumber(m_pointer);
    if (!block.isValid() || !block.isVisible())
        return;
    const QRectF line = blockBoundingGeometry(block).translated(contentOffset());
    const qreal middle = line.center().y();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Colors::of(Colors::eAccent));
    painter.drawPolygon(QPolygonF({{4, middle - 4}, {10, middle}, {4, middle + 4}}));
}

void ProcSimEdtFifo::keyPressEvent(QKeyEvent* event)
{
    // With Shift, the text edit would break the line inside of one paragraph. Here, each line is a value.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        QKeyEvent plain(event->type(), Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
        QPlainTextEdit::keyPressEvent(&plain);
        event->accept();
        return;
    }
    QPlainTextEdit::keyPressEvent(event);
}

void ProcSimEdtFifo::insertFromMimeData(const QMimeData* source)
{
    textCursor().insertText(source->text().replace(QChar::LineSeparator, QLatin1Char('\n')));
    ensureCursorVisible();
}

void ProcSimEdtFifo::resizeEvent(QResizeEvent* event)
{
    QPlainTextEdit::resizeEvent(event);
    const QRect inner = contentsRect();
    m_margin->setGeometry(inner.left(), inner.top(), marginWidth, inner.height());
}

} // namespace nsProc
