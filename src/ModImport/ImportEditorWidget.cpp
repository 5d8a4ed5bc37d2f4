#include "ImportEditorWidget.h"

#include "Colors.h"
#include "ImportEditorWidgetLeftMargin.h"

#include <QPaintEvent>
#include <QPainter>
#include <QTextBlock>
#include <QWheelEvent>

namespace nsModImport {

namespace {

const int columnSpace = 2; ///< pixels at the sides of the numbers
const int dfltFontSize = 10;

} // namespace

ImportEditorWidget::ImportEditorWidget(QWidget* parent)
    : QPlainTextEdit(parent)
    , m_leftMargin(new ImportEditorWidgetLeftMargin(this))
    , m_lineHighlights(this)
{
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setTabChangesFocus(true);
    QFont mono(QStringLiteral("DejaVu Sans Mono"), dfltFontSize);
    mono.setStyleHint(QFont::Monospace);
    setFont(mono);
    calculateTabWidth();
    connect(this, &QPlainTextEdit::blockCountChanged, this, &ImportEditorWidget::updateLeftMarginWidth);
    connect(this, &QPlainTextEdit::updateRequest, this, &ImportEditorWidget::updateLeftMargin);
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, [this] { m_lineHighlights.followCursor(); });
    m_lineHighlights.followCursor();
    updateLeftMarginWidth();
    connect(Colors::instance(), &Colors::changed, this, [this] {
        setCursorBgColor(Colors::of(Colors::eEditorCursorLine));
        setHighlightBgColor(Colors::of(Colors::eEditorFlaggedLine));
    });
}

// --- text ---

void ImportEditorWidget::setText(const QString& text)
{
    m_hasLines = false;
    setPlainText(text);
    m_lineHighlights.clearFlag();
}

QString ImportEditorWidget::text() const
{
    return document()->toRawText().replace(QChar(QChar::ParagraphSeparator), QChar('\n'));
}

void ImportEditorWidget::appendLine(const QString& line)
{
    appendLines({line});
}

void ImportEditorWidget::appendLines(const QStringList& lines)
{
    if (lines.isEmpty())
        return;
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    const bool isFirst = !m_hasLines && document()->isEmpty();
    cursor.insertText((isFirst ? QString() : QStringLiteral("\n")) + lines.join('\n'));
    m_hasLines = true;
    // The new lines are what the user wants to see.
    cursor.movePosition(QTextCursor::StartOfBlock);
    setTextCursor(cursor);
    ensureCursorVisible();
}

bool ImportEditorWidget::line(int number, QString* text) const
{
    const QTextBlock block = document()->findBlockByNumber(number);
    if (!block.isValid())
        return false;
    *text = block.text();
    return true;
}

// --- look ---

void ImportEditorWidget::setTabIndent(int indent)
{
    m_tabIndent = indent;
    calculateTabWidth();
}

void ImportEditorWidget::calculateTabWidth()
{
    setTabStopDistance(QFontMetricsF(font()).horizontalAdvance(QString(qMax(m_tabIndent, 1), 'x')));
}

void ImportEditorWidget::setCursorHighlightingEn(bool enabled)
{
    m_lineHighlights.setCursorShown(enabled);
}

void ImportEditorWidget::setCursorBgColor(const QColor& color)
{
    m_lineHighlights.setCursorColor(color);
}

void ImportEditorWidget::setHighlightBgColor(const QColor& color)
{
    m_lineHighlights.setFlagColor(color);
}

void ImportEditorWidget::setLineHighlighted(int line)
{
    m_lineHighlights.flag(line);
    const QTextBlock block = document()->findBlockByNumber(line);
    if (!block.isValid())
        return;
    setTextCursor(QTextCursor(block));
    ensureCursorVisible();
}

void ImportEditorWidget::clearLineHighlighted()
{
    m_lineHighlights.clearFlag();
}

int ImportEditorWidget::highlightedLine() const
{
    return m_lineHighlights.isFlagged() ? m_lineHighlights.flaggedLine() : -1;
}

void ImportEditorWidget::wheelEvent(QWheelEvent* event)
{
    const int delta = event->angleDelta().y();
    if (delta == 0 || !(event->modifiers() & Qt::ControlModifier)) {
        QPlainTextEdit::wheelEvent(event);
        return;
    }
    QFont scaled = font();
    scaled.setPointSize(qBound(minFontSize, fontSize() + (delta > 0 ? 1 : -1), maxFontSize));
    setFont(scaled);
    calculateTabWidth();
    updateLeftMarginWidth();
    event->accept();
}

// --- margin ---

int ImportEditorWidget::leftMarginWidth() const
{
    const int digits = QString::number(qMax(blockCount(), 1)).size();
    const int width = digits * fontMetrics().horizontalAdvance('9') + 2 + 2 * columnSpace;
    return qMax(width, m_leftMarginMinimumWidth);
}

void ImportEditorWidget::setLeftMarginMinimumWidth(int width)
{
    m_leftMarginMinimumWidth = width;
    updateLeftMarginWidth();
}

void ImportEditorWidget::updateLeftMarginWidth()
{
    const int width = leftMarginWidth();
    if (viewportMargins().left() != width)
        setViewportMargins(width, 0, 0, 0);
    const QRect rect = contentsRect();
    m_leftMargin->setGeometry(rect.left(), rect.top(), width, rect.height());
    m_leftMargin->update();
}

void ImportEditorWidget::updateLeftMargin(const QRect& rect)
{
    m_leftMargin->update(0, rect.y(), m_leftMargin->width(), rect.height());
}

void ImportEditorWidget::resizeEvent(QResizeEvent* event)
{
    QPlainTextEdit::resizeEvent(event);
    updateLeftMarginWidth();
}

void ImportEditorWidget::leftMarginPaintEvent(QPaintEvent* event)
{
    QPainter painter(m_leftMargin);
    painter.fillRect(event->rect(), Colors::of(Colors::eMarginGround));
    painter.setFont(font());
    painter.setPen(Colors::of(Colors::eMarginText));
    QTextBlock block = firstVisibleBlock();
    qreal top = blockBoundingGeometry(block).translated(contentOffset()).top();
    for (; block.isValid() && top <= event->rect().bottom(); block = block.next()) {
        const qreal height = blockBoundingRect(block).height();
        const QRect cell(0, qRound(top), m_leftMargin->width() - columnSpace - 1, painter.fontMetrics().height());
        painter.drawText(cell, Qt::AlignRight, QString::number(block.blockNumber() + 1));
        top += height;
    }
}

} // namespace nsModImport
