// The document itself: text, font, keys, wheel and what it shares with other documents.

#include "EditorWidget.h"

#include "DocumentViews.h"
#include "EditorConfig.h"
#include "EditorSupportMenu.h"
#include "EditorSyntaxHighlighter.h"
#include "EditorTipManager.h"
#include "EditorWidgetLeftMargin.h"
#include "Folding.h"
#include "HelpRef.h"
#include "MarkFollower.h"
#include "PageProperties.h"
#include "SecondView.h"
#include "TextCompletion.h"
#include "ViewPlace.h"
#include "WordMarks.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QFontInfo>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextDocumentLayout>
#include <QStringListModel>
#include <QTextBlock>
#include <QUrl>
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

/// A letter with Alt is a shortcut of the window and not text. Ctrl with Alt is the right Alt key of some keyboards.
bool isTextWithAlt(const QKeyEvent* event)
{
    const QString text = event->text();
    return (event->modifiers() & (Qt::AltModifier | Qt::ControlModifier)) == Qt::AltModifier && !text.isEmpty() &&
           text.at(0).isPrint();
}

/// The dragged local files; empty if anything else is dragged.
QStringList draggedFiles(const QMimeData* data)
{
    QStringList paths;
    for (const QUrl& url : data->urls()) {
        if (!url.isLocalFile())
            return {};
        paths.append(url.toLocalFile());
    }
    return paths;
}

/// Takes the drag of files. The files are opened and not moved, whatever action was proposed.
void acceptAsCopy(QDropEvent* event)
{
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

} // namespace

EditorWidget::EditorWidget(QWidget* parent)
    : SourceEdit(parent)
    , m_textDocument(new QTextDocument(this))
    , m_lineHighlights(this)
    , m_views(std::make_unique<DocumentViews>(this, &m_lineHighlights))
    , m_messageMarks(this)
{
    HelpRef::set(this, QStringLiteral("pageId://editor"));
    HelpRef::setForNames(this, QStringLiteral("pageId://langNames"));
    m_textDocument->setDocumentLayout(new QPlainTextDocumentLayout(m_textDocument));
    m_syntaxHighlighter = new EditorSyntaxHighlighter(m_textDocument);
    m_wordMarks = new WordMarks(this, m_syntaxHighlighter);
    setDocument(m_textDocument);
    setAccessibleName(tr("Text of the document"));
    m_baseFontSize = QFontInfo(font()).pointSize();
    m_fontSize = m_baseFontSize;
    setLineWrapMode(QPlainTextEdit::NoWrap);
    m_completion = new TextCompletion(this);
    setupTools();
    m_markFollower = new MarkFollower(this, &m_marks);

    connect(this, &QPlainTextEdit::selectionChanged, m_wordMarks, &WordMarks::markSelection);
    connect(this, SIGNAL(copyAvailable(bool)), this, SLOT(setActionChanged()));
    connect(m_textDocument, SIGNAL(undoAvailable(bool)), this, SLOT(setActionChanged()));
    connect(m_textDocument, SIGNAL(redoAvailable(bool)), this, SLOT(setActionChanged()));
    connect(m_textDocument, SIGNAL(contentsChanged()), this, SLOT(setModified()));
    // The keys for undo call the text edit directly, not undo() of this class.
    connect(m_textDocument, SIGNAL(modificationChanged(bool)), this, SLOT(setModified()));
    connect(this, SIGNAL(blockCountChanged(int)), this, SLOT(setMemPageAddrInvalid(int)));
    m_leftMargin = new EditorWidgetLeftMargin(this);
    m_leftMargin->setMessageMarks(&m_messageMarks);
    connect(this, SIGNAL(blockCountChanged(int)), this, SLOT(updateLeftMarginWidth()));
    connect(this, SIGNAL(updateRequest(QRect, int)), this, SLOT(updateLeftMargin(QRect, int)));
    updateLeftMarginWidth();
    connect(this, &QPlainTextEdit::cursorPositionChanged, this, [this] { m_lineHighlights.followCursor(); });
    m_lineHighlights.followCursor();
    connect(folding(), &Folding::changed, this, [this] { m_views->followFolds(); });
    calculateTabWidth();
}

EditorWidget::~EditorWidget()
{
    // The shared dialog may have this document for its parent.
    if (m_tipManager != nullptr && m_tipManager->parent() == this)
        m_tipManager->setParent(nullptr);
    // The second view shows the text of this one.
    m_views->dropSecond();
    // The slots must not be called while the base class is being destroyed.
    m_textDocument->disconnect(this);
    disconnect(this);
    disconnect(m_wordMarks);
    deleteTools();
    delete m_markFollower;
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
    m_completion->setWords(words);
}

void EditorWidget::setTextCompletionEn(bool enabled)
{
    m_completion->setEnabled(enabled);
}

void EditorWidget::setTextCompleterPrefixLength(int length)
{
    m_completion->setPrefixLength(length);
}

void EditorWidget::setTextCompleterItemCount(int count)
{
    m_completion->setItemCount(count);
}

void EditorWidget::setFilePath(const QString& path)
{
    m_filePath = path;
    setProperty(PageProperties::file, path);
    // They are breakpoints of another file now.
    if (!m_marks.simBreakpoints.lines().isEmpty())
        emit simBreakpointChanged();
}

void EditorWidget::setText(const QString& text)
{
    const int flaggedLine = m_lineHighlights.isFlagged() ? m_lineHighlights.flaggedLine() : -1;
    const sViewPlace second = m_views->second() != nullptr ? sViewPlace::of(m_views->second()) : sViewPlace();
    m_settingText = true;
    setUpdatesEnabled(false);
    setPlainText(text);
    m_textDocument->clearUndoRedoStacks();
    m_textDocument->setModified(false);
    moveCursor(QTextCursor::Start);
    // The flag keeps its line number, like the marks.
    m_views->flag(flaggedLine);
    if (m_views->second() != nullptr)
        m_views->second()->showPlace(second);
    setUpdatesEnabled(true);
    m_settingText = false;
    m_reportedModified = false;
    emit modifiedChanged(this);
}

QString EditorWidget::text() const
{
    return m_textDocument->toRawText().replace(QChar(QChar::ParagraphSeparator), QChar('\n'));
}

bool EditorWidget::isModified() const
{
    return m_textDocument->isModified() || m_format != m_cleanFormat;
}

void EditorWidget::clearModified()
{
    m_cleanFormat = m_format;
    m_textDocument->setModified(false);
    setModified();
}

void EditorWidget::setModified()
{
    if (m_settingText || m_reportedModified == isModified())
        return;
    m_reportedModified = isModified();
    emit modifiedChanged(this);
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
    SourceEdit::undo();
    m_reportedModified = isModified();
    emit modifiedChanged(this);
}

void EditorWidget::redo()
{
    SourceEdit::redo();
    m_reportedModified = isModified();
    emit modifiedChanged(this);
}

void EditorWidget::insertText(const QString& text)
{
    if (isReadOnly())
        return;
    textCursor().insertText(text);
    ensureCursorVisible();
}

sPrintJob EditorWidget::printJob(const QString& name, bool selectionOnly) const
{
    const QTextCursor cursor = textCursor();
    const bool isPart = selectionOnly && cursor.hasSelection();
    sPrintJob job;
    job.document = m_textDocument;
    job.name = name;
    job.time = QDateTime::currentDateTime();
    job.font = font();
    job.font.setPointSize(m_baseFontSize);
    job.tabIndent = qMax(indentStyle().width, 1);
    job.start = isPart ? cursor.selectionStart() : 0;
    job.end = isPart ? cursor.selectionEnd() : m_textDocument->characterCount() - 1;
    return job;
}

void EditorWidget::rehighlight()
{
    m_wordMarks->rehighlight();
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
    m_markFollower->moveLines(lines.first, lines.second, up, [&commands, up] {
        if (up)
            commands.moveLineUp();
        else
            commands.moveLineDown();
    });
}

void EditorWidget::setActionChanged()
{
    emit actionChanged(this);
}

void EditorWidget::setFont(const QFont& font)
{
    m_baseFontSize = font.pointSize() > 0 ? font.pointSize() : QFontInfo(font).pointSize();
    QFont smooth = font;
    smooth.setStyleStrategy(QFont::PreferAntialias);
    applyFont(smooth);
}

void EditorWidget::resetZoom()
{
    setZoom(0);
}

void EditorWidget::setZoom(int points)
{
    m_zoom = points;
    applyFont(font());
}

/// Shows the font in the size that the document has.
void EditorWidget::applyFont(const QFont& font)
{
    m_fontSize = qBound(EditorConfig::minFontSize, m_baseFontSize + m_zoom, EditorConfig::maxFontSize);
    QFont scaled = font;
    scaled.setPointSize(m_fontSize);
    SourceEdit::setFont(scaled);
    calculateTabWidth();
    updateLeftMarginWidth();
    m_views->takeLook();
    emit actionChanged(this);
}

void EditorWidget::setAutoReturnIndentEn(bool enabled)
{
    m_autoReturnIndentEn = enabled;
}

void EditorWidget::dragEnterEvent(QDragEnterEvent* event)
{
    if (draggedFiles(event->mimeData()).isEmpty())
        SourceEdit::dragEnterEvent(event);
    else
        acceptAsCopy(event);
}

void EditorWidget::dragMoveEvent(QDragMoveEvent* event)
{
    if (draggedFiles(event->mimeData()).isEmpty())
        SourceEdit::dragMoveEvent(event);
    else
        acceptAsCopy(event);
}

void EditorWidget::dropEvent(QDropEvent* event)
{
    const QStringList paths = draggedFiles(event->mimeData());
    if (paths.isEmpty()) {
        SourceEdit::dropEvent(event);
        return;
    }
    acceptAsCopy(event);
    emit filesDropped(paths);
}

void EditorWidget::wheelEvent(QWheelEvent* event)
{
    const int delta = event->angleDelta().y();
    if (delta == 0 || !(event->modifiers() & Qt::ControlModifier)) {
        SourceEdit::wheelEvent(event);
        return;
    }
    // Starts at the displayed size, so that turning the wheel at a limit has no delayed effect.
    m_zoom = m_fontSize + (delta > 0 ? 1 : -1) - m_baseFontSize;
    applyFont(font());
    event->accept();
}

void EditorWidget::keyPressEvent(QKeyEvent* event)
{
    const Qt::KeyboardModifiers modifiers = event->modifiers();
    if (isTextWithAlt(event)) {
        event->ignore();
        return;
    }
    if (isReadOnly()) {
        SourceEdit::keyPressEvent(event);
        return;
    }
    if (comfortKey(event)) {
        event->accept();
        return;
    }
    switch (event->key()) {
    case Qt::Key_Return:
        insertAutoReturnIndent(event);
        break;
    case Qt::Key_Insert:
        // With a modifier, Insert is a clipboard key.
        if (modifiers & ~Qt::KeypadModifier) {
            SourceEdit::keyPressEvent(event);
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

/// Passes a key to the text edit. With Shift it would insert a line separator: in the file this character ends a line,
/// but in the document, its line numbers and marks it does not.
void EditorWidget::insertLineBreak(QKeyEvent* event)
{
    if (!event->matches(QKeySequence::InsertLineSeparator)) {
        SourceEdit::keyPressEvent(event);
        return;
    }
    QKeyEvent plain(event->type(), event->key(), event->modifiers() & ~Qt::ShiftModifier, event->text(),
                    event->isAutoRepeat(), ushort(event->count()));
    SourceEdit::keyPressEvent(&plain);
    event->setAccepted(plain.isAccepted());
}

void EditorWidget::insertAutoReturnIndent(QKeyEvent* event)
{
    const QTextCursor before = textCursor();
    const QString blanks = leadingBlanks(before.block().text().left(before.positionInBlock()));
    insertLineBreak(event);
    QTextCursor cursor = textCursor();
    // With some modifiers the key inserts no line break.
    if (!m_autoReturnIndentEn || blanks.isEmpty() || !cursor.atBlockStart())
        return;
    cursor.joinPreviousEditBlock();
    cursor.insertText(blanks);
    cursor.endEditBlock();
    ensureCursorVisible();
}

void EditorWidget::resizeEvent(QResizeEvent* event)
{
    SourceEdit::resizeEvent(event);
    layoutNotices();
    const QRect rect = contentsRect();
    m_leftMargin->setGeometry(rect.left(), rect.top() + m_noticeHeight, leftMarginWidth(),
                              rect.height() - m_noticeHeight);
}

void EditorWidget::contextMenuEvent(QContextMenuEvent* event)
{
    if (m_supportMenu == nullptr)
        return;
    const QPointer<QMenu> menu(createStandardContextMenu());
    emit menuRequested(menu);
    m_supportMenu->showMenu(menu, event->globalPos());
    // The document may have been closed meanwhile, and the menu with it.
    delete menu;
}

} // namespace nsModEditor
