#include "SourceEdit.h"

#include "ColumnSelection.h"
#include "Folding.h"
#include "TextOverlay.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QPainter>
#include <QTextBlock>

namespace nsModEditor {

SourceEdit::SourceEdit(QWidget* parent)
    : EditorDocument(parent)
{
}

SourceEdit::~SourceEdit() = default;

void SourceEdit::setupTools()
{
    m_columns = new ColumnSelection(this);
    m_folding = new Folding(this);
    m_overlay = std::make_unique<TextOverlay>(this);
}

/// Before the text goes, of which they are told.
void SourceEdit::deleteTools()
{
    delete m_columns;
    m_columns = nullptr;
    delete m_folding;
    m_folding = nullptr;
}

void SourceEdit::setUnfolding(bool unfolds)
{
    m_folding->setUnfolding(unfolds);
}

int SourceEdit::lineAt(int y) const
{
    QTextBlock block = firstVisibleBlock();
    qreal top = blockBoundingGeometry(block).translated(contentOffset()).top();
    for (; block.isValid() && top <= y; block = block.next()) {
        const qreal bottom = top + blockBoundingRect(block).height();
        if (block.isVisible() && y < bottom)
            return block.blockNumber();
        top = bottom;
    }
    return 0;
}

void SourceEdit::setTabIndent(int indent)
{
    m_tabIndent = indent;
    calculateTabWidth();
}

void SourceEdit::calculateTabWidth()
{
    setTabStopDistance(QFontMetricsF(font()).horizontalAdvance(QString(qMax(m_tabIndent, 1), 'x')));
}

void SourceEdit::setDynamicLineWrapEn(bool enabled)
{
    setLineWrapMode(enabled ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
}

bool SourceEdit::hasSelection() const
{
    return textCursor().hasSelection() || (m_columns != nullptr && m_columns->hasWidth());
}

LineCommands SourceEdit::lineCommands()
{
    m_columns->end();
    LineCommands commands(this, indentStyle());
    // What is hidden below the last line is not left behind.
    const QPair<int, int> lines = commands.selectedLines();
    m_folding->show(lines.first, lines.second + 1);
    return commands;
}

void SourceEdit::cut()
{
    if (m_columns->isActive())
        m_columns->cut();
    else
        QPlainTextEdit::cut();
}

void SourceEdit::copy()
{
    if (m_columns->isActive())
        m_columns->copy();
    else
        QPlainTextEdit::copy();
}

void SourceEdit::paste()
{
    if (m_columns->isActive())
        m_columns->paste(QApplication::clipboard()->mimeData());
    else
        QPlainTextEdit::paste();
}

void SourceEdit::insertFromMimeData(const QMimeData* source)
{
    if (ColumnSelection::isColumnText(source))
        m_columns->pasteAtCursor(source);
    else
        QPlainTextEdit::insertFromMimeData(source);
}

void SourceEdit::indent()
{
    lineCommands().indent();
}

void SourceEdit::deindent()
{
    lineCommands().deindent();
}

void SourceEdit::commentOut()
{
    lineCommands().commentOut();
}

void SourceEdit::commentIn()
{
    lineCommands().commentIn();
}

void SourceEdit::duplicateLine()
{
    lineCommands().duplicateLine();
}

void SourceEdit::setComfort(const sEditorComfort_t& comfort)
{
    m_comfort = comfort;
    m_overlay->setRulerColumn(m_comfort.rulerColumn);
    QTextOption option = document()->defaultTextOption();
    QTextOption::Flags flags = option.flags();
    flags.setFlag(QTextOption::ShowTabsAndSpaces, m_comfort.showBlanksEn);
    if (flags == option.flags())
        return;
    option.setFlags(flags);
    document()->setDefaultTextOption(option);
}

bool SourceEdit::comfortKey(const QKeyEvent* event)
{
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if (event->key() == Qt::Key_Backspace && modifiers == Qt::NoModifier)
        return m_comfort.indentWithBlanks && LineCommands(this, indentStyle()).removeIndent();
    if (event->key() == Qt::Key_Home && (modifiers & ~Qt::ShiftModifier) == 0)
        return m_comfort.smartHomeEn &&
               LineCommands(this, indentStyle()).goToTextStart((modifiers & Qt::ShiftModifier) != 0);
    return false;
}

void SourceEdit::paintEvent(QPaintEvent* event)
{
    QPlainTextEdit::paintEvent(event);
    QPainter painter(viewport());
    m_overlay->paint(&painter);
    m_columns->paint(&painter);
    m_folding->paint(&painter);
}

} // namespace nsModEditor
