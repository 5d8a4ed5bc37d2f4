#include "DocumentNames.h"

#include "CompletionPopup.h"
#include "ModSymbols.h"

#include "EditorDocument.h"
#include "ModEditorHookIf.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTextBlock>
#include <QTimer>
#include <QToolTip>

namespace nsModSymbols {

using nsModEditor::EditorDocument;

namespace {

/// Tells the underline of a link from the other marks of the document.
const int linkProperty = QTextFormat::UserProperty + 1;

} // namespace

DocumentNames::DocumentNames(EditorDocument* document, ModSymbols* module)
    : QObject(document)
    , m_document(document)
    , m_module(module)
{
    document->installEventFilter(this);
    document->viewport()->installEventFilter(this);
    document->viewport()->setMouseTracking(true);
    connect(document, &QPlainTextEdit::textChanged, this, &DocumentNames::textChanged);
    connect(document, &EditorDocument::tipRequested, this, &DocumentNames::showTip);
    connect(document, &QPlainTextEdit::cursorPositionChanged, this, [this] {
        // A word is left by a click or a key that moves the cursor.
        if (!m_isTyped && !m_isTaking)
            hideList();
    });
}

void DocumentNames::detach()
{
    hideList();
    hideLink();
    m_document->removeEventFilter(this);
    m_document->viewport()->removeEventFilter(this);
    m_document->disconnect(this);
}

bool DocumentNames::eventFilter(QObject* object, QEvent* event)
{
    if (m_module == nullptr)
        return false;
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        // While the list is shown, its keys are its own.
        if (object == m_document && m_list != nullptr && m_list->isVisible()) {
            const int key = static_cast<QKeyEvent*>(event)->key();
            if (key == Qt::Key_Escape || key == Qt::Key_Tab || key == Qt::Key_Return || key == Qt::Key_Enter ||
                key == Qt::Key_Up || key == Qt::Key_Down) {
                event->accept();
                return true;
            }
        }
        return false;
    case QEvent::KeyPress:
        return object == m_document && keyPressed(static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease:
        if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Control)
            hideLink();
        return false;
    case QEvent::MouseMove:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
        return object == m_document->viewport() && mouseEvent(static_cast<QMouseEvent*>(event));
    case QEvent::ToolTip:
        return object == m_document->viewport() && showTip(m_document, static_cast<QHelpEvent*>(event));
    case QEvent::FocusOut:
    case QEvent::Hide:
    case QEvent::Wheel:
    case QEvent::Resize:
        hideList();
        hideLink();
        return false;
    case QEvent::Leave:
        hideLink();
        return false;
    default:
        return false;
    }
}

// --- words ---

bool DocumentNames::keyPressed(QKeyEvent* event)
{
    m_isTyped = false;
    if (m_list != nullptr && m_list->isVisible() && keyPressedInList(event))
        return true;
    if (event->key() == Qt::Key_Control) {
        const QPoint pos = m_document->viewport()->mapFromGlobal(QCursor::pos());
        if (m_document->viewport()->rect().contains(pos))
            showLink(pos);
        return false;
    }
    const bool isPlain = (event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
    const bool isText = isPlain && !event->text().isEmpty() && event->text().at(0).isPrint();
    const bool isErased = event->key() == Qt::Key_Backspace && m_list != nullptr && m_list->isVisible();
    m_isTyped = isText || isErased;
    return false;
}

bool DocumentNames::keyPressedInList(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        hideList();
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (event->modifiers() & ~Qt::KeypadModifier) {
            hideList();
            return false;
        }
        takeWord();
        return true;
    default:
        if ((event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier && m_list->handleMove(event->key()))
            return true;
        return false;
    }
}

QString DocumentNames::textToCursor() const
{
    const QTextCursor cursor = m_document->textCursor();
    return cursor.block().text().left(cursor.positionInBlock());
}

void DocumentNames::textChanged()
{
    const bool isTyped = m_isTyped;
    m_isTyped = false;
    if (m_isTaking || m_module == nullptr)
        return;
    const bool isShown = m_list != nullptr && m_list->isVisible();
    if (!isTyped || m_document->isReadOnly())
        hideList();
    else if (isShown || (m_module->isCompletionOn() && (m_module->modEditorHook == nullptr ||
                                                        m_module->modEditorHook->completionConfig().comesByItself)))
        showList(false);
}

void DocumentNames::complete()
{
    if (!m_document->isReadOnly())
        showList(true);
}

/// @param isAsked by the user, and not by what is typed
void DocumentNames::showList(bool isAsked)
{
    CompletionWords& words = m_module->completionWords();
    m_place = words.placeOf(textToCursor());
    ModEditorHookIf::sCompletionConfig config;
    if (m_module->modEditorHook != nullptr)
        config = m_module->modEditorHook->completionConfig();
    const bool isShown = m_list != nullptr && m_list->isVisible();
    if (m_place.kinds == 0 ||
        (!isAsked && (m_place.prefix.isEmpty() || (!isShown && m_place.prefix.size() < config.prefixLength)))) {
        hideList();
        return;
    }
    const QVector<sCompletion> hits = words.wordsAt(m_place);
    // A word that is complete needs no list.
    const bool isComplete = !isAsked && hits.size() == 1 && hits.first().word == m_place.prefix;
    if (hits.isEmpty() || isComplete) {
        hideList();
        return;
    }
    if (m_list == nullptr) {
        m_list = new CompletionPopup(m_document);
        connect(m_list, &CompletionPopup::chosen, this, &DocumentNames::takeWord);
    }
    QTextCursor start = m_document->textCursor();
    start.movePosition(QTextCursor::Left, QTextCursor::MoveAnchor, m_place.prefix.size());
    QRect anchor = m_document->cursorRect(start);
    anchor.moveTopLeft(m_document->viewport()->mapToGlobal(anchor.topLeft()));
    m_list->showWords(hits, anchor, config.itemCount);
}

void DocumentNames::hideList()
{
    if (m_list != nullptr && m_list->isVisible())
        m_list->hide();
}

/// Puts the word in place of what is typed of it, as one step to undo. Instructions follow the case of what is typed.
void DocumentNames::takeWord()
{
    if (m_list == nullptr || m_document->isReadOnly())
        return;
    const sCompletion chosen = m_list->current();
    QString word = chosen.word;
    hideList();
    if (word.isEmpty())
        return;
    const bool isLower = !m_place.prefix.isEmpty() && m_place.prefix.at(0).isLower();
    if ((m_place.kinds & wordInstruction) && !word.startsWith('#'))
        word = isLower ? word.toLower() : word.toUpper();
    // In a namespace, a name of the outermost one has to be told from those of its own.
    const bool isName = (chosen.kind & (wordConstant | wordLabel)) != 0;
    if (isName && !word.contains(QLatin1String("::")) &&
        (m_place.prefix.startsWith(QLatin1String("::")) ||
         (m_module != nullptr &&
          !m_module->names().nameSpaceAt(m_document, m_document->textCursor().blockNumber()).isEmpty())))
        word.prepend(QLatin1String("::"));
    m_isTaking = true;
    QTextCursor cursor = m_document->textCursor();
    cursor.beginEditBlock();
    cursor.clearSelection();
    cursor.movePosition(QTextCursor::Left, QTextCursor::KeepAnchor, m_place.prefix.size());
    cursor.insertText(word);
    cursor.endEditBlock();
    // Between the quotes of a title.
    if (word.endsWith(QLatin1String("\"\"")))
        cursor.movePosition(QTextCursor::Left);
    m_document->setTextCursor(cursor);
    m_isTaking = false;
}

// --- pointer ---

bool DocumentNames::placeAt(const QPoint& pos, int* line, int* column) const
{
    return placeIn(m_document, pos, line, column);
}

/// @return false beyond the end of a line or of the text
bool DocumentNames::placeIn(QPlainTextEdit* view, const QPoint& pos, int* line, int* column)
{
    const QTextCursor cursor = view->cursorForPosition(pos);
    const QRect rect = view->cursorRect(cursor);
    if (pos.y() < rect.top() || pos.y() > rect.bottom())
        return false;
    *line = cursor.blockNumber();
    *column = cursor.positionInBlock();
    // The cursor is the gap that is nearest; the character is the one below the pointer.
    if (pos.x() < rect.left())
        --*column;
    return *column >= 0 && *column < cursor.block().length() - 1;
}

bool DocumentNames::mouseEvent(QMouseEvent* event)
{
    const bool isLinkKey = event->modifiers() == Qt::ControlModifier;
    switch (event->type()) {
    case QEvent::MouseMove:
        if (isLinkKey && event->buttons() == Qt::NoButton)
            showLink(event->pos());
        else
            hideLink();
        return false;
    case QEvent::MouseButtonPress: {
        hideList();
        if (!isLinkKey || event->button() != Qt::LeftButton)
            return false;
        showLink(event->pos());
        return m_isLink;
    }
    case QEvent::MouseButtonRelease: {
        if (!m_isLink || event->button() != Qt::LeftButton)
            return false;
        hideLink();
        int line = 0;
        int column = 0;
        if (placeAt(event->pos(), &line, &column)) {
            // After the click: opening a file may ask a question, under which the document may be closed.
            const QPointer<EditorDocument> document(m_document);
            QTimer::singleShot(0, m_module.data(), [module = m_module.data(), document, line, column] {
                if (document != nullptr)
                    module->goToDefinition(document, line, column);
            });
        }
        return true;
    }
    default:
        return false;
    }
}

void DocumentNames::showLink(const QPoint& pos)
{
    int line = 0;
    int column = 0;
    const bool isName =
        placeAt(pos, &line, &column) && m_module->symbolAt(m_document, line, column, ProgramNames::eQuick) != nullptr;
    hideLink();
    if (!isName)
        return;
    QTextCursor cursor(m_document->document()->findBlockByNumber(line));
    const QString text = cursor.block().text();
    const auto isPart = [&text](int i) { return text.at(i).isLetterOrNumber() || text.at(i) == '_'; };
    int start = column;
    while (start > 0 && isPart(start - 1))
        --start;
    int end = column;
    while (end < text.size() && isPart(end))
        ++end;
    const int block = cursor.block().position();
    cursor.setPosition(block + start);
    cursor.setPosition(block + end, QTextCursor::KeepAnchor);
    QTextEdit::ExtraSelection link;
    link.cursor = cursor;
    link.format.setForeground(m_document->palette().link());
    link.format.setFontUnderline(true);
    link.format.setProperty(linkProperty, true);
    m_document->setExtraSelections(m_document->extraSelections() << link);
    m_document->viewport()->setCursor(Qt::PointingHandCursor);
    m_isLink = true;
}

void DocumentNames::hideLink()
{
    if (!m_isLink)
        return;
    m_isLink = false;
    QList<QTextEdit::ExtraSelection> others;
    for (const QTextEdit::ExtraSelection& selection : m_document->extraSelections()) {
        if (!selection.format.hasProperty(linkProperty))
            others.append(selection);
    }
    m_document->setExtraSelections(others);
    m_document->viewport()->setCursor(Qt::IBeamCursor);
}

/// @param view of the document, which may be shown in two
bool DocumentNames::showTip(QPlainTextEdit* view, const QHelpEvent* event)
{
    if (m_module == nullptr)
        return false;
    int line = 0;
    int column = 0;
    QString tip;
    if (placeIn(view, event->pos(), &line, &column))
        tip = m_module->tipAt(m_document, line, column);
    if (tip.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(event->globalPos(), tip, view->viewport());
    return true;
}

} // namespace nsModSymbols
