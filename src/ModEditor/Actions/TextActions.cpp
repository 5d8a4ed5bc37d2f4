#include "TextActions.h"

#include "Brackets.h"
#include "DocumentViews.h"
#include "EditorWidget.h"
#include "EditorWidgetLeftMargin.h"
#include "Folding.h"
#include "GotoLineField.h"
#include "OpenDocuments.h"

#include "SourceFormatter.h"

#include <QKeyEvent>
#include <QMenu>
#include <QTextBlock>

#include <algorithm>

namespace nsModEditor {

namespace {

void goToBracket(EditorWidget* widget)
{
    QTextCursor cursor = widget->textCursor();
    const sBracketPair_t pair = bracketPairAt(cursor.block().text(), cursor.positionInBlock());
    if (pair.at < 0)
        return;
    cursor.setPosition(cursor.block().position() + pair.partner);
    widget->setTextCursor(cursor);
}

void format(EditorWidget* widget)
{
    const nsModAsmFe::SourceFormatter formatter;
    widget->lineCommands().changeLines(!widget->textCursor().hasSelection(),
                                       [&formatter](const QString& line) { return formatter.formattedLine(line); });
}

} // namespace

TextActions::TextActions(const SourceFinder::sParts_t& parts, QObject* parent)
    : QObject(parent)
    , m_documents(parts.documents)
    , m_splitViews(parts.documents)
    , m_sourceFinder(parts)
    , m_actions(new EditorActionsLines(this))
    , m_marginActions(new EditorActionsMargin(this))
    , m_lineMenu(std::make_unique<QMenu>(tr("Lines")))
    , m_foldMenu(std::make_unique<QMenu>(tr("Folding")))
    , m_viewMenu(std::make_unique<QMenu>(tr("Split view")))
{
    m_foldMenu->addActions(m_actions->folds());
    m_foldMenu->setToolTipsVisible(true);
    m_lineMenu->addActions(m_actions->commands());
    m_lineMenu->setToolTipsVisible(true);
    m_viewMenu->addActions(m_actions->views());
    m_viewMenu->setToolTipsVisible(true);
    connect(m_actions, qOverload<EditorActionsLines::eAction_t>(&EditorActionsLines::triggered), this,
            &TextActions::handle);
    connect(m_marginActions, qOverload<EditorActionsMargin::eAction_t>(&EditorActionsMargin::triggered), this,
            &TextActions::handleMargin);
    setEnabled(false, false);
}

TextActions::~TextActions() = default;

QList<QAction*> TextActions::menuActions(ModActionHookIf::eActionClass_t actionClass) const
{
    switch (actionClass) {
    case ModActionHookIf::eActionClassEdit:
        return QList<QAction*>{m_lineMenu->menuAction(), m_foldMenu->menuAction(), m_viewMenu->menuAction()}
               << m_actions->places() << m_marginActions->actions() << m_actions->findInSources();
    case ModActionHookIf::eActionClassNavigation:
        return m_actions->bookmarks();
    default:
        return {};
    }
}

void TextActions::addTo(EditorWidget* widget)
{
    widget->addActions(m_actions->commands());
    widget->addActions(m_actions->places());
    widget->addActions(m_actions->bookmarks());
    widget->addActions(m_actions->folds());
    widget->addActions(m_marginActions->actions());
    widget->addActions(m_actions->views());
    widget->installEventFilter(this);
}

/// On some desktops the key of "Go to line..." is that of "Find next", too: in a document it leads to the line.
bool TextActions::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress)
        return QObject::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    QAction* action = m_actions->places().first();
    const QKeySequence keys(int(key->modifiers() & ~Qt::KeypadModifier) + key->key());
    if (!action->isEnabled() || !action->shortcuts().contains(keys))
        return QObject::eventFilter(watched, event);
    event->accept();
    if (event->type() == QEvent::KeyPress)
        action->trigger();
    return true;
}

void TextActions::setEnabled(bool current, bool project)
{
    m_actions->setEnabled(current);
    m_marginActions->setEnabled(current);
    m_actions->setEnabled(EditorActionsLines::eActionFindInSources, project);
    m_lineMenu->menuAction()->setEnabled(current);
    m_foldMenu->menuAction()->setEnabled(current);
    m_viewMenu->menuAction()->setEnabled(current);
    enableViews();
}

void TextActions::goToBookmark(bool backward)
{
    EditorWidget* current = m_documents->current();
    if (current == nullptr)
        return;
    const QList<EditorWidget*>& all = m_documents->all();
    const int count = all.size();
    const int start = all.indexOf(current);
    // At last the lines of the current document that are behind the cursor.
    for (int i = 0; i <= count; ++i) {
        EditorWidget* widget = all.at(((start + (backward ? -i : i)) % count + count) % count);
        QList<int> lines = widget->bookmarks();
        std::sort(lines.begin(), lines.end());
        if (backward)
            std::reverse(lines.begin(), lines.end());
        for (const int line : qAsConst(lines)) {
            const bool isAhead = backward ? line < current->cursorLine() : line > current->cursorLine();
            // The number of a line can be beyond the end.
            if ((i == 0 && !isAhead) || line >= widget->blockCount())
                continue;
            m_documents->show(widget);
            widget->setCursorPos(widget->document()->findBlockByNumber(line).position());
            widget->setFocus();
            return;
        }
    }
}

void TextActions::handleMargin(EditorActionsMargin::eAction_t action)
{
    EditorWidget* widget = m_documents->current();
    if (widget == nullptr)
        return;
    if (action == EditorActionsMargin::eActionMarks)
        widget->leftMargin()->showMenuAtCursor();
    else
        widget->switchToNotice();
}

void TextActions::handle(EditorActionsLines::eAction_t action)
{
    if (action == EditorActionsLines::eActionFindInSources) {
        m_sourceFinder.open();
        return;
    }
    EditorWidget* widget = m_documents->current();
    if (widget == nullptr || handleViews(action, widget))
        return;
    switch (action) {
    case EditorActionsLines::eActionToggleComment:
        widget->lineCommands().toggleComment();
        break;
    case EditorActionsLines::eActionDeleteLines:
        widget->lineCommands().deleteLines();
        break;
    case EditorActionsLines::eActionJoinLines:
        widget->lineCommands().joinLines();
        break;
    case EditorActionsLines::eActionSortLines:
        widget->lineCommands().sortLines();
        break;
    case EditorActionsLines::eActionUpperCase:
        widget->lineCommands().changeCase(true);
        break;
    case EditorActionsLines::eActionLowerCase:
        widget->lineCommands().changeCase(false);
        break;
    case EditorActionsLines::eActionTrimLines:
        widget->lineCommands().removeTrailingBlanks(!widget->textCursor().hasSelection());
        break;
    case EditorActionsLines::eActionFormat:
        format(widget);
        break;
    case EditorActionsLines::eActionGotoLine:
        GotoLineField::open(widget);
        break;
    case EditorActionsLines::eActionGotoBracket:
        goToBracket(widget);
        break;
    case EditorActionsLines::eActionSetBookmark:
        widget->setBookmark(widget->cursorLine());
        break;
    case EditorActionsLines::eActionNextBookmark:
        goToBookmark(false);
        break;
    case EditorActionsLines::eActionPrevBookmark:
        goToBookmark(true);
        break;
    case EditorActionsLines::eActionFold:
        widget->folding()->toggle(widget->cursorLine());
        break;
    case EditorActionsLines::eActionFoldAll:
        widget->folding()->foldAll();
        break;
    case EditorActionsLines::eActionUnfoldAll:
        widget->folding()->unfoldAll();
        break;
    default:
        break;
    }
}

/// @return it is a command for the views of a document
bool TextActions::handleViews(EditorActionsLines::eAction_t action, EditorWidget* widget)
{
    switch (action) {
    case EditorActionsLines::eActionSplitBeside:
        m_splitViews.split(widget, Qt::Horizontal);
        break;
    case EditorActionsLines::eActionSplitBelow:
        m_splitViews.split(widget, Qt::Vertical);
        break;
    case EditorActionsLines::eActionOtherView:
        widget->views()->exchange();
        widget->setFocus();
        break;
    case EditorActionsLines::eActionUnsplit:
        m_splitViews.unsplit(widget);
        break;
    default:
        return false;
    }
    enableViews();
    return true;
}

/// What needs a split page.
void TextActions::enableViews()
{
    const EditorWidget* widget = m_documents->current();
    const bool isSplit = widget != nullptr && widget->views()->second() != nullptr;
    m_actions->setEnabled(EditorActionsLines::eActionOtherView, isSplit);
    m_actions->setEnabled(EditorActionsLines::eActionUnsplit, isSplit);
}

} // namespace nsModEditor
