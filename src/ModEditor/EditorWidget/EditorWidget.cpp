// The document itself: text, font, keys, wheel and what it shares with other documents.

#include "EditorWidget.h"

#include "EditorDocumentLayout.h"
#include "EditorSupportMenu.h"
#include "EditorSyntaxHighlighter.h"
#include "EditorTipManager.h"
#include "EditorWidgetLeftMargin.h"

#include <QAction>
#include <QCompleter>
#include <QContextMenuEvent>
#include <QFontInfo>
#include <QKeyEvent>
#include <QMenu>
#include <QStringListModel>
#include <QTextBlock>
#include <QTimer>
#include <QWheelEvent>

namespace nsModEditor {

namespace {

QString leadingBlanks(const QString& text)
{
    int length = 0;
    while (length < text.length() && text.at(length).isSpace())
        ++length;
    return text.left(length);
}

} // namespace

EditorWidget::EditorWidget(QWidget* parent)
    : QPlainTextEdit(parent)
    , m_textDocument(new QTextDocument(this))
    , m_rehighlightTimer(new QTimer(this))
{
    m_layout = new EditorDocumentLayout(m_textDocument);
    m_textDocument->setDocumentLayout(m_layout);
    m_syntaxHighlighter = new EditorSyntaxHighlighter(m_textDocument);
    setDocument(m_textDocument);
    m_fontSize = QFontInfo(font()).pointSize();
    setLineWrapMode(QPlainTextEdit::NoWrap);
    initCompleter();

    connect(this, SIGNAL(selectionChanged()), this, SLOT(highlightSelection()));
    connect(this, SIGNAL(copyAvailable(bool)), this, SLOT(setActionChanged()));
    connect(m_textDocument, SIGNAL(undoAvailable(bool)), this, SLOT(setActionChanged()));
    connect(m_textDocument, SIGNAL(redoAvailable(bool)), this, SLOT(setActionChanged()));
    connect(m_textDocument, SIGNAL(contentsChanged()), this, SLOT(setModified()));
    // Undo keys reach the text edit without undo() of this class.
    connect(m_textDocument, SIGNAL(modificationChanged(bool)), this, SLOT(setModified()));
    connect(this, SIGNAL(blockCountChanged(int)), this, SLOT(setMemPageAddrInvalid(int)));
    initLeftMargin();
    initHighlighting();
    calculateTabWidth();
}

EditorWidget::~EditorWidget()
{
    // The shared dialog may have this document for its parent.
    if (m_tipManager != nullptr && m_tipManager->parent() == this)
        m_tipManager->setParent(nullptr);
    // What the base class does at its end is no matter for the slots.
    m_textDocument->disconnect(this);
    disconnect(this);
}

void EditorWidget::initCompleter()
{
    m_completer = new QCompleter(this);
    m_completer->setWidget(this);
    m_completer->setCaseSensitivity(Qt::CaseSensitive);
    m_completer->setWrapAround(false);
    m_completer->setCompletionMode(QCompleter::PopupCompletion);
    connect(m_completer, SIGNAL(activated(QString)), this, SLOT(insertCompletion(QString)));
}

void EditorWidget::setSyntaxHighlighterConfig(EditorSyntaxHighlighterConfig* config)
{
    m_syntaxHighlighter->setSyntaxHighlighterConfig(config);
}

void EditorWidget::setTipManager(EditorTipManager* manager)
{
    m_tipManager = manager;
}

void EditorWidget::setSupportMenu(EditorSupportMenu* menu)
{
    m_supportMenu = menu;
}

void EditorWidget::setTextCompletionList(QStringListModel* words)
{
    m_completer->setModel(words);
}

void EditorWidget::setTextCompletionEn(bool enabled)
{
    m_textCompletionEn = enabled;
}

void EditorWidget::setTextCompleterPrefixLength(int length)
{
    m_textCompleterPrefixLength = length;
}

void EditorWidget::setTextCompleterItemCount(int count)
{
    m_completer->setMaxVisibleItems(qMax(count, 1));
}

void EditorWidget::insertCompletion(const QString& completion)
{
    if (isReadOnly())
        return;
    QTextCursor cursor = textCursor();
    cursor.movePosition(QTextCursor::Left);
    cursor.movePosition(QTextCursor::EndOfWord);
    cursor.insertText(completion.mid(m_completer->completionPrefix().length()));
    setTextCursor(cursor);
}

void EditorWidget::setFilePath(const QString& path)
{
    m_filePath = path;
}

void EditorWidget::setText(const QString& text)
{
    const int flaggedLine = m_highlightSelection.cursor.blockNumber();
    m_settingText = true;
    setUpdatesEnabled(false);
    closeOpenEditBlocks();
    setPlainText(text);
    m_textDocument->clearUndoRedoStacks();
    m_textDocument->setModified(false);
    moveCursor(QTextCursor::Start);
    // The flag stays on its number, as the marks do.
    const QTextBlock flagged = m_textDocument->findBlockByNumber(flaggedLine);
    m_lineHighlightEn = m_lineHighlightEn && flagged.isValid();
    if (m_lineHighlightEn)
        m_highlightSelection.cursor = QTextCursor(flagged);
    setHighlightLinesToEditor();
    setUpdatesEnabled(true);
    m_settingText = false;
    m_modifiedTold = false;
    emit modifiedChanged(this);
}

QString EditorWidget::text() const
{
    return m_textDocument->toRawText().replace(QChar(QChar::ParagraphSeparator), QChar('\n'));
}

bool EditorWidget::isModified() const
{
    return m_textDocument->isModified() || m_format != m_cleanFormat ||
           (m_openEditBlocks > 0 && m_textDocument->availableUndoSteps() != m_cleanUndoSteps);
}

void EditorWidget::clearModified()
{
    m_cleanUndoSteps = m_textDocument->availableUndoSteps();
    m_cleanFormat = m_format;
    m_textDocument->setModified(false);
    setModified();
}

void EditorWidget::setModified()
{
    if (m_settingText || m_modifiedTold == isModified())
        return;
    m_modifiedTold = isModified();
    emit modifiedChanged(this);
}

bool EditorWidget::hasSelection() const
{
    return textCursor().hasSelection();
}

bool EditorWidget::isUndoAvailable() const
{
    return m_textDocument->isUndoAvailable();
}

bool EditorWidget::isRedoAvailable() const
{
    return m_textDocument->isRedoAvailable();
}

void EditorWidget::undo()
{
    QPlainTextEdit::undo();
    settleOpenEdit();
    m_modifiedTold = isModified();
    emit modifiedChanged(this);
}

void EditorWidget::redo()
{
    QPlainTextEdit::redo();
    settleOpenEdit();
    m_modifiedTold = isModified();
    emit modifiedChanged(this);
}

void EditorWidget::insertText(const QString& text)
{
    if (isReadOnly())
        return;
    textCursor().insertText(text);
    settleOpenEdit();
    ensureCursorVisible();
}

void EditorWidget::rehighlight()
{
    m_rehighlightTimer->stop();
    m_syntaxHighlighter->rehighlight();
}

void EditorWidget::setActionChanged()
{
    emit actionChanged(this);
}

void EditorWidget::setFont(const QFont& font)
{
    m_fontSize = font.pointSize() > 0 ? font.pointSize() : QFontInfo(font).pointSize();
    QFont smooth = font;
    smooth.setStyleStrategy(QFont::PreferAntialias);
    QPlainTextEdit::setFont(smooth);
    calculateTabWidth();
    updateLeftMarginWidth();
    emit actionChanged(this);
}

void EditorWidget::setTabIndent(int indent)
{
    m_tabIndent = indent;
    calculateTabWidth();
}

void EditorWidget::calculateTabWidth()
{
    setTabStopDistance(QFontMetricsF(font()).horizontalAdvance(QString(qMax(m_tabIndent, 1), 'x')));
}

void EditorWidget::setDynamicLineWrapEn(bool enabled)
{
    setLineWrapMode(enabled ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
}

void EditorWidget::setAutoReturnIndentEn(bool enabled)
{
    m_autoReturnIndentEn = enabled;
}

bool EditorWidget::event(QEvent* event)
{
    return QPlainTextEdit::event(event);
}

bool EditorWidget::viewportEvent(QEvent* event)
{
    // Whatever has changed the text, its cursor is painted next.
    settleOpenEdit();
    return QPlainTextEdit::viewportEvent(event);
}

void EditorWidget::mouseMoveEvent(QMouseEvent* event)
{
    QPlainTextEdit::mouseMoveEvent(event);
}

void EditorWidget::wheelEvent(QWheelEvent* event)
{
    const int delta = event->angleDelta().y();
    if (delta == 0 || !(event->modifiers() & Qt::ControlModifier)) {
        QPlainTextEdit::wheelEvent(event);
        return;
    }
    m_fontSize += delta > 0 ? 1 : -1;
    QFont scaled = font();
    scaled.setPointSize(qMax(m_fontSize, 1));
    QPlainTextEdit::setFont(scaled);
    calculateTabWidth();
    updateLeftMarginWidth();
    emit actionChanged(this);
    event->accept();
}

void EditorWidget::keyPressEvent(QKeyEvent* event)
{
    settleOpenEdit();
    if (isReadOnly())
        QPlainTextEdit::keyPressEvent(event);
    else
        handleKey(event);
    settleOpenEdit();
}

void EditorWidget::handleKey(QKeyEvent* event)
{
    const Qt::KeyboardModifiers modifiers = event->modifiers();
    switch (event->key()) {
    case Qt::Key_Return:
        insertAutoReturnIndent(event);
        break;
    case Qt::Key_Insert:
        // With a modifier it is a key of the clipboard.
        if (modifiers & ~Qt::KeypadModifier) {
            QPlainTextEdit::keyPressEvent(event);
            break;
        }
        setOverwriteMode(!overwriteMode());
        emit actionChanged(this);
        break;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        if (modifiers == Qt::ShiftModifier)
            deindent();
        else if (modifiers == Qt::NoModifier)
            indent();
        event->accept();
        break;
    default:
        insertLineBreak(event);
        break;
    }
}

/// The text edit's own way with a key. With Shift it would separate lines by a character that the file has as a line,
/// while for the document, its line numbers and marks it is none.
void EditorWidget::insertLineBreak(QKeyEvent* event)
{
    if (!event->matches(QKeySequence::InsertLineSeparator)) {
        QPlainTextEdit::keyPressEvent(event);
        return;
    }
    QKeyEvent plain(event->type(), event->key(), event->modifiers() & ~Qt::ShiftModifier, event->text(),
                    event->isAutoRepeat(), ushort(event->count()));
    QPlainTextEdit::keyPressEvent(&plain);
    event->setAccepted(plain.isAccepted());
}

void EditorWidget::insertAutoReturnIndent(QKeyEvent* event)
{
    const QTextCursor before = textCursor();
    const QString blanks = leadingBlanks(before.block().text().left(before.positionInBlock()));
    insertLineBreak(event);
    QTextCursor cursor = textCursor();
    // With some modifiers the key breaks no line.
    if (!m_autoReturnIndentEn || blanks.isEmpty() || !cursor.atBlockStart())
        return;
    cursor.joinPreviousEditBlock();
    cursor.insertText(blanks);
    cursor.endEditBlock();
    ensureCursorVisible();
}

void EditorWidget::resizeEvent(QResizeEvent* event)
{
    QPlainTextEdit::resizeEvent(event);
    layoutNotices();
    const QRect rect = contentsRect();
    m_leftMargin->setGeometry(rect.left(), rect.top() + m_noticeHeight, leftMarginWidth(), rect.height() - m_noticeHeight);
}

void EditorWidget::contextMenuEvent(QContextMenuEvent* event)
{
    if (m_supportMenu == nullptr)
        return;
    const QPointer<EditorWidget> self(this);
    const QPointer<QMenu> menu(createStandardContextMenu());
    m_supportMenu->showMenu(menu, event->globalPos());
    // The document may have been closed meanwhile, and the menu with it.
    delete menu;
    if (self != nullptr)
        settleOpenEdit();
}

void EditorWidget::leaveEditBlockOpen()
{
    ++m_openEditBlocks;
    if (m_openEditBlocks > 1)
        return;
    m_cleanUndoSteps = m_textDocument->availableUndoSteps();
    m_layout->setUnsettled(true);
}

void EditorWidget::closeOpenEditBlocks()
{
    for (QTextCursor cursor(m_textDocument); m_openEditBlocks > 0; --m_openEditBlocks)
        cursor.endEditBlock();
    m_layout->setUnsettled(false);
}

void EditorWidget::settleOpenEdit()
{
    if (m_openEditBlocks == 0)
        return;
    const QTextCursor cursor = textCursor();
    const QString state = QString("%1 %2 %3 %4")
                              .arg(m_textDocument->availableUndoSteps())
                              .arg(m_textDocument->characterCount())
                              .arg(cursor.position())
                              .arg(cursor.anchor());
    if (state == m_openEditState)
        return;
    m_openEditState = state;
    if (isModified())
        m_textDocument->setModified(true);
    // Lays out all that has changed since the last time.
    m_textDocument->markContentsDirty(cursor.position(), 0);
    rehighlight();
    highlightCurrentLine();
    m_leftMargin->update();
    viewport()->update();
    setModified();
    setActionChanged();
}

} // namespace nsModEditor
