#include "TextCompareSide.h"

#include "Colors.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTextBlock>

namespace {

const int marginSpace = 4;
const int currentMarkWidth = 3;

QColor ground(TextCompareSide::eRow_t kind)
{
    switch (kind) {
    case TextCompareSide::eRowChanged:
        return Colors::of(Colors::eWarningGround);
    case TextCompareSide::eRowOnlyHere:
        return Colors::of(Colors::eCompareAdded);
    case TextCompareSide::eRowMissing:
        return Colors::of(Colors::eCompareMissing);
    case TextCompareSide::eRowEqual:
        break;
    }
    return {};
}

} // namespace

/// The line numbers.
class TextCompareSide::Margin : public QWidget
{
public:
    explicit Margin(TextCompareSide* side)
        : QWidget(side)
        , m_side(side)
    {
    }

protected:
    void paintEvent(QPaintEvent* event) override { m_side->paintMargin(event); }

private:
    TextCompareSide* m_side;
};

TextCompareSide::TextCompareSide(QWidget* parent)
    : QPlainTextEdit(parent)
    , m_margin(new Margin(this))
{
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    // Both sides are of one height, whatever the length of their lines.
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    QFont mono(QStringLiteral("DejaVu Sans Mono"), 9);
    mono.setStyleHint(QFont::Monospace);
    setFont(mono);
    connect(this, &QPlainTextEdit::updateRequest, m_margin, [this] { m_margin->update(); });
}

void TextCompareSide::setRows(const QVector<sRow_t>& rows, const QStringList& texts)
{
    m_rows = rows;
    m_lineCount = 0;
    for (const sRow_t& row : rows)
        m_lineCount = qMax(m_lineCount, row.line + 1);
    m_currentCount = 0;
    setPlainText(texts.join(QLatin1Char('\n')));
    setViewportMargins(marginWidth(), 0, 0, 0);
}

void TextCompareSide::setCurrentRows(int first, int count)
{
    m_currentRow = first;
    m_currentCount = count;
    QTextCursor cursor(document()->findBlockByNumber(first));
    setTextCursor(cursor);
    centerCursor();
    m_margin->update();
}

int TextCompareSide::firstRow() const
{
    return firstVisibleBlock().blockNumber();
}

int TextCompareSide::marginWidth() const
{
    const int digits = QString::number(qMax(m_lineCount, 1)).size();
    return digits * fontMetrics().horizontalAdvance(QLatin1Char('9')) + 2 * marginSpace + currentMarkWidth;
}

void TextCompareSide::resizeEvent(QResizeEvent* event)
{
    QPlainTextEdit::resizeEvent(event);
    const QRect rect = contentsRect();
    m_margin->setGeometry(rect.left(), rect.top(), marginWidth(), viewport()->height());
}

void TextCompareSide::paintEvent(QPaintEvent* event)
{
    {
        QPainter painter(viewport());
        QTextBlock block = firstVisibleBlock();
        qreal top = blockBoundingGeometry(block).translated(contentOffset()).top();
        for (; block.isValid() && top <= event->rect().bottom(); block = block.next()) {
            const qreal height = blockBoundingRect(block).height();
            const int row = block.blockNumber();
            const QColor color = row < m_rows.size() ? ground(m_rows.at(row).kind) : QColor();
            if (color.isValid())
                painter.fillRect(QRectF(0, top, viewport()->width(), height), color);
            top += height;
        }
    }
    QPlainTextEdit::paintEvent(event);
}

void TextCompareSide::paintMargin(QPaintEvent* event)
{
    QPainter painter(m_margin);
    painter.fillRect(event->rect(), Colors::of(Colors::eDisabledHover));
    painter.setFont(font());
    painter.setPen(Colors::of(Colors::eTextSecond));
    QTextBlock block = firstVisibleBlock();
    qreal top = blockBoundingGeometry(block).translated(contentOffset()).top();
    for (; block.isValid() && top <= event->rect().bottom(); block = block.next()) {
        const qreal height = blockBoundingRect(block).height();
        const int row = block.blockNumber();
        if (row >= m_currentRow && row < m_currentRow + m_currentCount)
            painter.fillRect(QRectF(0, top, currentMarkWidth, height), Colors::of(Colors::eAccent));
        if (row < m_rows.size() && m_rows.at(row).line >= 0)
            painter.drawText(QRectF(0, top, m_margin->width() - marginSpace, height), Qt::AlignRight | Qt::AlignVCenter,
                             QString::number(m_rows.at(row).line + 1));
        top += height;
    }
}
