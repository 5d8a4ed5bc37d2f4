#include "EditorFinder.h"

#include "DocumentViews.h"
#include "EditorWidget.h"
#include "OpenDocuments.h"

#include "ModFindReplaceHookIf.h"
#include "ModFindReplacePluginIf.h"
#include "ModGuiHookIf.h"
#include "ModGuiPluginIf.h"

#include <QScrollBar>
#include <QTextBlock>

#include <algorithm>

namespace nsModEditor {

namespace {

const int maxCount = 9999;      ///< hits that are counted
const int maxCountTime = 60;    ///< milliseconds that counting may take
const int previewTime = 250;    ///< milliseconds that the look for the first hit may take while the user types
const int findTime = 2000;      ///< milliseconds that a search may take
const int linesAroundHit = 3;   ///< lines that are shown above a hit
const int pause = 250;          ///< milliseconds without a change until the hits are counted again
const int timeCheckLines = 256; ///< lines between two looks at the clock

} // namespace

EditorFinder::EditorFinder(const ModFindReplacePluginIf* strip, const ModGuiPluginIf* gui,
                           const OpenDocuments* documents)
    : m_strip(strip)
    , m_gui(gui)
    , m_documents(documents)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(pause);
    QObject::connect(&m_pause, &QTimer::timeout, &m_pause, [this] { showCount(); });
}

void EditorFinder::noteChange()
{
    if (m_isPreviewing)
        m_pause.start();
}

EditorFinder::sFindParameter_t EditorFinder::stripParameter() const
{
    sFindParameter_t parameter;
    auto* hook = m_strip->modFindReplaceHook;
    if (hook == nullptr)
        return parameter;
    parameter.findString = hook->findString();
    parameter.replaceString = hook->replaceString();
    parameter.caseSensitive = hook->isCaseSensitive();
    parameter.wholeWords = hook->isWholeWords();
    parameter.regExp = hook->isRegExp();
    parameter.inSelection = hook->isInSelection();
    return parameter;
}

void EditorFinder::setFindParameter()
{
    if (m_strip->modFindReplaceHook == nullptr)
        return;
    m_findParameter = stripParameter();
    takeRange(m_findParameter);
}

sSearch_t EditorFinder::searchOf(const sFindParameter_t& parameter)
{
    return {parameter.findString, parameter.caseSensitive, parameter.wholeWords, parameter.regExp};
}

/// The selection at the moment in which the search is restricted to it; later ones are hits.
void EditorFinder::takeRange(const sFindParameter_t& parameter)
{
    EditorWidget* widget = m_documents->current();
    if (!parameter.inSelection)
        m_range = QTextCursor();
    else if (widget != nullptr && !hasRange(widget) && widget->textCursor().hasSelection())
        m_range = widget->textCursor();
}

bool EditorFinder::hasRange(const EditorWidget* widget) const
{
    return !m_range.isNull() && m_range.document() == widget->document();
}

bool EditorFinder::isExtended(const EditorWidget* widget) const
{
    return m_findParameter.regExp || hasRange(widget);
}

void EditorFinder::say(const QString& text) const
{
    if (m_gui->modGuiHook == nullptr)
        return;
    if (text.isEmpty())
        m_gui->modGuiHook->clearStatusBarText();
    else
        m_gui->modGuiHook->setStatusBarText(text);
}

QTextCursor EditorFinder::hitFrom(EditorWidget* widget, const TextSearch& search, int position, bool backward,
                                  SearchTime* time) const
{
    const int begin = hasRange(widget) ? m_range.selectionStart() : 0;
    const int end = hasRange(widget) ? m_range.selectionEnd() : widget->document()->characterCount() - 1;
    position = qBound(begin, position, end);
    for (QTextBlock block = widget->document()->findBlock(position); block.isValid();
         block = backward ? block.previous() : block.next()) {
        if (backward ? block.position() + block.length() <= begin : block.position() > end)
            break;
        QVector<sHit_t> hits = search.hitsIn(block.text(), time);
        if (time->isOver() && hits.isEmpty()) {
            time->leaveOut();
            break;
        }
        if (backward)
            std::reverse(hits.begin(), hits.end());
        for (const sHit_t& hit : qAsConst(hits)) {
            const int start = block.position() + hit.start;
            const bool isAhead = backward ? start + hit.length <= position : start >= position;
            if (!isAhead || start < begin || start + hit.length > end)
                continue;
            QTextCursor cursor(block);
            cursor.setPosition(start);
            cursor.setPosition(start + hit.length, QTextCursor::KeepAnchor);
            return cursor;
        }
    }
    return {};
}

/// Selects the next hit. @param fromEdge begins at the start or, backward, at the end
bool EditorFinder::search(EditorWidget* widget, bool backward, bool fromEdge, SearchTime* time) const
{
    if (!isExtended(widget))
        return widget->find(m_findParameter.findString, m_findParameter.caseSensitive, m_findParameter.wholeWords,
                            backward,
                            !fromEdge  ? EditorWidget::eFindOriginCursor
                            : backward ? EditorWidget::eFindOriginEnd
                                       : EditorWidget::eFindOriginStart);
    const QTextCursor cursor = widget->textCursor();
    const int edge = backward ? widget->document()->characterCount() - 1 : 0;
    const int from = fromEdge ? edge : backward ? cursor.selectionStart() : cursor.selectionEnd();
    const QTextCursor hit = hitFrom(widget, TextSearch(searchOf(m_findParameter)), from, backward, time);
    if (hit.isNull())
        return false;
    widget->setTextCursor(hit);
    widget->ensureCursorVisible();
    return true;
}

void EditorFinder::find(bool configChanged, bool backward)
{
    if (configChanged)
        setFindParameter();
    EditorWidget* widget = m_documents->current();
    if (widget == nullptr)
        return;
    const QString error = TextSearch(searchOf(m_findParameter)).errorText();
    if (m_findParameter.regExp && !error.isEmpty()) {
        say(tr("No valid regular expression: %1").arg(error));
        return;
    }
    SearchTime time(findTime);
    if (search(widget, backward, false, &time)) {
        if (m_findParameter.wrapPending)
            say(QString());
        m_findParameter.wrapPending = false;
    } else if (time.isOver()) {
        say(tr("The regular expression takes too long."));
    } else if (!m_findParameter.wrapPending) {
        m_findParameter.wrapPending = true;
        say(backward ? tr("Begin of file reached, continuing from the end...")
                     : tr("End of file reached, continuing from the begin..."));
    } else {
        m_findParameter.wrapPending = false;
        say(search(widget, backward, true, &time) ? QString() : notFoundText(time));
    }
    showCount();
}

QString EditorFinder::notFoundText(const SearchTime& time)
{
    return time.isComplete()
               ? tr("String not found.")
               : tr("String not found; lines in which the regular expression takes too long were left out.");
}

void EditorFinder::replaceHit(EditorWidget* widget) const
{
    if (!isExtended(widget)) {
        // The user may have selected another text since the search.
        if (widget->isHit(m_findParameter.findString, m_findParameter.caseSensitive, m_findParameter.wholeWords))
            widget->replace(m_findParameter.replaceString);
        return;
    }
    const QTextCursor cursor = widget->textCursor();
    const QTextBlock block = widget->document()->findBlock(cursor.selectionStart());
    const QVector<sHit_t> hits =
        TextSearch(searchOf(m_findParameter)).hitsIn(block.text(), m_findParameter.replaceString);
    for (const sHit_t& hit : hits) {
        if (block.position() + hit.start == cursor.selectionStart() &&
            hit.length == cursor.selectionEnd() - cursor.selectionStart())
            widget->replace(hit.replacement);
    }
}

void EditorFinder::replace(bool configChanged)
{
    if (configChanged)
        setFindParameter();
    EditorWidget* widget = m_documents->current();
    if (widget == nullptr)
        return;
    if (m_strip->modFindReplaceHook != nullptr)
        m_findParameter.replaceString = m_strip->modFindReplaceHook->replaceString();
    replaceHit(widget);
    find(configChanged, false);
}

void EditorFinder::replaceAllHits(EditorWidget* widget) const
{
    if (widget->isReadOnly())
        return;
    const TextSearch search(searchOf(m_findParameter));
    const int begin = hasRange(widget) ? m_range.selectionStart() : 0;
    const int end = hasRange(widget) ? m_range.selectionEnd() : widget->document()->characterCount() - 1;
    SearchTime time(findTime);
    QVector<sHit_t> all; ///< by their place in the text
    // From the last line to the first one, so that the places of the hits stay true.
    for (QTextBlock block = widget->document()->findBlock(end); block.isValid() && time.isComplete();
         block = block.previous()) {
        const QVector<sHit_t> hits = search.hitsIn(block.text(), m_findParameter.replaceString, &time);
        for (int i = hits.size() - 1; i >= 0; --i) {
            const int start = block.position() + hits.at(i).start;
            if (start >= begin && start + hits.at(i).length <= end)
                all.append({start, hits.at(i).length, hits.at(i).replacement});
        }
        if (block.position() <= begin)
            break;
    }
    // A part of them would be worse than none: nobody could tell which.
    if (!time.isComplete()) {
        say(tr("Nothing was replaced: the regular expression takes too long."));
        return;
    }
    QTextCursor step(widget->document());
    step.beginEditBlock();
    for (const sHit_t& hit : qAsConst(all)) {
        QTextCursor place(widget->document());
        place.setPosition(hit.start);
        place.setPosition(hit.start + hit.length, QTextCursor::KeepAnchor);
        place.insertText(hit.replacement);
    }
    step.endEditBlock();
}

void EditorFinder::replaceAll(bool configChanged)
{
    if (configChanged)
        setFindParameter();
    EditorWidget* widget = m_documents->current();
    if (widget == nullptr)
        return;
    if (isExtended(widget))
        replaceAllHits(widget);
    else
        widget->replaceAll(m_findParameter.findString, m_findParameter.replaceString, m_findParameter.caseSensitive,
                           m_findParameter.wholeWords);
    showCount();
}

void EditorFinder::preview()
{
    m_isPreviewing = true;
    EditorWidget* current = m_documents->current();
    const sFindParameter_t parameter = stripParameter();
    takeRange(parameter);
    const TextSearch search(searchOf(parameter));
    for (EditorWidget* widget : m_documents->all())
        widget->views()->setHits(widget == current && search.isValid() ? search.search() : sSearch_t());
    showCount();
    if (current == nullptr || !search.isValid())
        return;
    SearchTime time(previewTime);
    const QTextCursor hit = hitFrom(current, search, current->textCursor().selectionStart(), false, &time);
    // What is hidden comes into view when the cursor goes there.
    if (hit.isNull() || !hit.block().isVisible())
        return;
    const QRect rect = current->cursorRect(hit);
    if (!current->viewport()->rect().contains(rect))
        current->verticalScrollBar()->setValue(qMax(hit.block().firstLineNumber() - linesAroundHit, 0));
}

void EditorFinder::showCount() const
{
    auto* hook = m_strip->modFindReplaceHook;
    EditorWidget* widget = m_documents->current();
    if (hook == nullptr || widget == nullptr)
        return;
    const sFindParameter_t parameter = stripParameter();
    const TextSearch search(searchOf(parameter));
    if (!search.isValid()) {
        hook->setFindResult(search.errorText().isEmpty() ? QString() : tr("Not valid"), search.errorText());
        return;
    }
    const int begin = hasRange(widget) ? m_range.selectionStart() : 0;
    const int end = hasRange(widget) ? m_range.selectionEnd() : widget->document()->characterCount() - 1;
    const QTextCursor cursor = widget->textCursor();
    SearchTime time(maxCountTime);
    int count = 0;
    int present = 0;
    bool isWhole = true;
    for (QTextBlock block = widget->document()->findBlock(begin); block.isValid() && block.position() <= end;
         block = block.next()) {
        for (const sHit_t& hit : search.hitsIn(block.text(), &time)) {
            const int start = block.position() + hit.start;
            if (start < begin || start + hit.length > end)
                continue;
            ++count;
            if (start == cursor.selectionStart() && start + hit.length == cursor.selectionEnd())
                present = count;
        }
        const bool isTimeToLook = block.blockNumber() % timeCheckLines == 0 || !time.isComplete();
        isWhole = count < maxCount && !(isTimeToLook && time.isOver());
        if (!isWhole)
            break;
    }
    isWhole = isWhole && time.isComplete();
    if (!isWhole && count == 0) {
        hook->setFindResult(tr("Takes too long"), tr("The regular expression takes too long in some lines, which are "
                                                     "left out."));
        return;
    }
    const QString number = isWhole ? QString::number(count) : tr("more than %1").arg(count);
    hook->setFindResult(count == 0      ? tr("No hit")
                        : present > 0   ? tr("%1 of %2").arg(present).arg(number)
                        : number == "1" ? tr("1 hit")
                                        : tr("%1 hits").arg(number),
                        QString());
}

void EditorFinder::end()
{
    m_range = QTextCursor();
    m_isPreviewing = false;
    m_pause.stop();
    for (EditorWidget* widget : m_documents->all())
        widget->views()->setHits(sSearch_t());
    if (EditorWidget* widget = m_documents->current())
        widget->ensureCursorVisible();
}

} // namespace nsModEditor
