// Commands for lines and columns, and what helps while the text is written.

#include "EditorWidget.h"

#include "ColumnSelection.h"
#include "Folding.h"
#include "MarkFollower.h"
#include "TextOverlay.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QPainter>
#include <QTextBlock>

namespace nsModEditor {

LineCommands EditorWidget::lineCommands()
{
    m_tools.columns->end();
    LineCommands commands(this, indentStyle());
    // What is hidden below the last line is not left behind.
    const QPair<int, int> lines = commands.selectedLines();
    m_tools.folding->show(lines.first, lines.second + 1);
    return commands;
}

void EditorWidget::cut()
{
    if (m_tools.columns->isActive())
        m_tools.columns->cut();
    else
        QPlainTextEdit::cut();
}

void EditorWidget::copy()
{
    if (m_tools.columns->isActive())
        m_tools.columns->copy();
    else
        QPlainTextEdit::copy();
}

void EditorWidget::paste()
{
    if (m_tools.columns->isActive())
        m_tools.columns->paste(QApplication::clipboard()->mimeData());
    else
        QPlainTextEdit::paste();
}

void EditorWidget::insertFromMimeData(const QMimeData* source)
{
    if (ColumnSelection::isColumnText(source))
        m_tools.columns->pasteAtCursor(source);
    else
        QPlainTextEdit::insertFromMimeData(source);
}

void EditorWidget::indent()
{
    lineCommands().indent();
}

void EditorWidget::deindent()
{
    lineCommands().deindent();
}

void EditorWidget::commentOut()
{
    lineCommands().commentOut();
}

void EditorWidget::commentIn()
{
    lineCommands().commentIn();
}

void EditorWidget::duplicateLine()
{
    lineCommands().duplicateLine();
}

void EditorWidget::moveLineUp()
{
    moveLines(true);
}

void EditorWidget::moveLineDown()
{
    moveLines(false);
}

void EditorWidget::moveLines(bool up)
{
    LineCommands commands = lineCommands();
    const QPair<int, int> lines = commands.selectedLines();
    const int revision = m_textDocument->revision();
    if (up)
        commands.moveLineUp();
    else
        commands.moveLineDown();
    if (m_textDocument->revision() != revision)
        m_tools.markFollower->moveLines(lines.first, lines.second, up);
}

void EditorWidget::setComfort(const sEditorComfort_t& comfort)
{
    m_comfort = comfort;
    applyComfort();
}

void EditorWidget::applyComfort()
{
    m_tools.overlay->setRulerColumn(m_comfort.rulerColumn);
    QTextOption option = m_textDocument->defaultTextOption();
    QTextOption::Flags flags = option.flags();
    flags.setFlag(QTextOption::ShowTabsAndSpaces, m_comfort.showBlanksEn);
    if (flags == option.flags())
        return;
    option.setFlags(flags);
    m_textDocument->setDefaultTextOption(option);
}

/// The keys that do more where the user has set it. @return the key is done
bool EditorWidget::comfortKey(const QKeyEvent* event)
{
    const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if (event->key() == Qt::Key_Backspace && modifiers == Qt::NoModifier)
        return m_comfort.indentWithBlanks && LineCommands(this, indentStyle()).removeIndent();
    if (event->key() == Qt::Key_Home && (modifiers & ~Qt::ShiftModifier) == 0)
        return m_comfort.smartHomeEn &&
               LineCommands(this, indentStyle()).goToTextStart((modifiers & Qt::ShiftModifier) != 0);
    return false;
}

void EditorWidget::paintEvent(QPaintEvent* event)
{
    QPlainTextEdit::paintEvent(event);
    QPainter painter(viewport());
    m_tools.overlay->paint(&painter);
    m_tools.columns->paint(&painter);
    m_tools.folding->paint(&painter);
}

} // namespace nsModEditor
