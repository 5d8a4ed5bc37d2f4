#include "SourceFinder.h"

#include "DocumentCommands.h"
#include "EditorServices.h"
#include "EditorWidget.h"
#include "HelpRef.h"
#include "OpenDocuments.h"

#include "ModGuiHookIf.h"
#include "ModGuiPluginIf.h"
#include "ModSourcesHookIf.h"
#include "ModSourcesPluginIf.h"

#include <QMap>
#include <QTextBlock>

namespace nsModEditor {

namespace {

/// The line with this text that is nearest to the place where it was; not valid if there is none.
QTextBlock lineOf(const EditorWidget* widget, const sListedHit_t& hit)
{
    const QTextDocument* document = widget->document();
    QTextBlock up = document->findBlockByNumber(qMin(hit.line, document->blockCount() - 1));
    QTextBlock down = up;
    while (up.isValid() || down.isValid()) {
        if (down.isValid() && down.text() == hit.text)
            return down;
        if (up.isValid() && up.text() == hit.text)
            return up;
        up = up.isValid() ? up.previous() : up;
        down = down.isValid() ? down.next() : down;
    }
    return {};
}

} // namespace

SourceFinder::SourceFinder(const sParts_t& parts, QObject* parent)
    : QObject(parent)
    , m_parts(parts)
    , m_search(new SourceSearch(this))
{
    connect(m_search, &SourceSearch::found, this, &SourceFinder::showFound);
    connect(m_search, &SourceSearch::finished, this, &SourceFinder::showEnd);
    connect(m_search, &SourceSearch::failed, this, [this](const QString& path, const QString& reason) {
        ++m_failed;
        m_parts.services->showWarning(tr("Can not search %1: %2").arg(m_parts.services->relPath(path), reason));
    });
}

SourceFinder::~SourceFinder()
{
    if (m_panel != nullptr && m_panel->parent() == nullptr)
        delete m_panel;
}

void SourceFinder::open()
{
    ModGuiHookIf* gui = m_parts.gui->modGuiHook;
    if (gui == nullptr)
        return;
    if (m_panel == nullptr) {
        m_panel = new SourceSearchPanel;
        HelpRef::set(m_panel, QStringLiteral("pageId://editorFindReplace#find-in-sources"));
        connect(m_panel, &SourceSearchPanel::findRequest, this, &SourceFinder::find);
        connect(m_panel, &SourceSearchPanel::stopRequest, m_search, &SourceSearch::stop);
        connect(m_panel, &SourceSearchPanel::replaceRequest, this, &SourceFinder::replace);
        connect(m_panel, &SourceSearchPanel::activated, this, &SourceFinder::goTo);
        gui->addWidget(m_parts.gui, ModGuiHookIf::eLocationDockBottom, m_panel, tr("Find in sources"));
    }
    gui->setCurrentWidget(m_panel);
    const EditorWidget* current = m_parts.documents->current();
    m_panel->begin(current != nullptr ? current->textCursor().selectedText() : QString());
}

void SourceFinder::close()
{
    m_search->stop();
    if (m_panel != nullptr && m_parts.gui->modGuiHook != nullptr)
        m_parts.gui->modGuiHook->removeWidget(m_panel);
    delete m_panel;
}

void SourceFinder::clear()
{
    m_search->stop();
    if (m_panel == nullptr)
        return;
    m_panel->clear();
    m_panel->setStatus(QString());
}

void SourceFinder::find()
{
    const TextSearch search(m_panel->search());
    m_search->stop();
    m_panel->clear();
    m_panel->setListed(m_panel->search());
    if (!search.isValid()) {
        m_panel->setStatus(tr("No valid regular expression: %1").arg(search.errorText()));
        return;
    }
    QStringList paths;
    if (m_parts.sources->modSourcesHook != nullptr)
        paths = m_parts.sources->modSourcesHook->files();
    for (EditorWidget* widget : m_parts.documents->all()) {
        if (!widget->filePath().isEmpty() && !paths.contains(widget->filePath()))
            paths.append(widget->filePath());
    }
    QList<SourceSearch::sSource_t> sources;
    for (const QString& path : qAsConst(paths)) {
        const EditorWidget* open = m_parts.documents->of(path);
        sources.append({path, open != nullptr, open != nullptr ? open->text() : QString()});
    }
    m_files = 0;
    m_failed = 0;
    m_panel->setRunning(true);
    m_panel->setStatus(tr("Searching %1 files...").arg(sources.size()));
    m_search->start(search, sources);
}

void SourceFinder::showFound(const QString& path, const QVector<sFoundLine_t>& lines)
{
    if (m_panel == nullptr)
        return;
    ++m_files;
    m_panel->addSource(path, m_parts.services->relPath(path), lines);
}

void SourceFinder::showEnd(bool complete)
{
    if (m_panel == nullptr)
        return;
    m_panel->setRunning(false);
    QString text = m_search->hits() == 1 ? tr("1 hit") : tr("%1 hits in %2 files").arg(m_search->hits()).arg(m_files);
    if (m_search->hits() == 0)
        text = tr("No hit");
    if (m_search->hits() >= SourceSearch::maxHits)
        text = tr("%1; there are more").arg(text);
    else if (!complete)
        text = tr("%1; the search was stopped").arg(text);
    if (m_failed > 0)
        text = tr("%1; not searched: %2").arg(text).arg(m_failed);
    if (m_search->leftOut() > 0)
        text = tr("%1; lines that take too long: %2").arg(text).arg(m_search->leftOut());
    m_panel->setStatus(text);
}

void SourceFinder::goTo(const sListedHit_t& hit)
{
    EditorWidget* widget = m_parts.commands->openFile(hit.path);
    if (widget == nullptr)
        return;
    const QTextBlock block = lineOf(widget, hit);
    if (block.isValid()) {
        QTextCursor cursor(block);
        cursor.setPosition(block.position() + hit.hit.start);
        cursor.setPosition(block.position() + hit.hit.start + hit.hit.length, QTextCursor::KeepAnchor);
        widget->setTextCursor(cursor);
        widget->centerCursor();
    } else {
        widget->setCursorPos(
            widget->document()->findBlockByNumber(qMin(hit.line, widget->blockCount() - 1)).position());
    }
    widget->setFocus();
}

/// Replaces hits of one document as one step to undo. @param left gets how many it has left, as their lines are others
/// @return how many were replaced
int SourceFinder::replaceIn(EditorWidget* widget, const QVector<sListedHit_t>& hits, int* left) const
{
    QMap<int, QVector<sHit_t>> lines;
    for (const sListedHit_t& hit : hits) {
        const QTextBlock block = widget->document()->findBlockByNumber(hit.line);
        if (widget->isReadOnly() || !block.isValid() || block.text() != hit.text)
            ++*left;
        else
            lines[hit.line].append(hit.hit);
    }
    int count = 0;
    QTextCursor step(widget->document());
    step.beginEditBlock();
    for (auto it = lines.cbegin(); it != lines.cend(); ++it) {
        const QTextBlock block = widget->document()->findBlockByNumber(it.key());
        for (int i = it.value().size() - 1; i >= 0; --i) {
            const sHit_t& hit = it.value().at(i);
            QTextCursor cursor(block);
            cursor.setPosition(block.position() + hit.start);
            cursor.setPosition(block.position() + hit.start + hit.length, QTextCursor::KeepAnchor);
            cursor.insertText(hit.replacement);
            ++count;
        }
    }
    step.endEditBlock();
    return count;
}

void SourceFinder::replace()
{
    QStringList paths;
    QMap<QString, QVector<sListedHit_t>> hits;
    for (const sListedHit_t& hit : m_panel->tickedHits()) {
        if (!hits.contains(hit.path))
            paths.append(hit.path);
        hits[hit.path].append(hit);
    }
    EditorWidget* before = m_parts.documents->current();
    int count = 0;
    int left = 0;
    for (const QString& path : qAsConst(paths)) {
        // It can ask a question, during which all of this may be closed.
        const QPointer<SourceFinder> self(this);
        EditorWidget* widget = m_parts.commands->openFile(path);
        if (self == nullptr)
            return;
        int leftHere = 0;
        if (widget == nullptr)
            leftHere = hits.value(path).size();
        else
            count += replaceIn(widget, hits.value(path), &leftHere);
        if (leftHere > 0)
            m_parts.services->showWarning(tr("Not replaced in %1, as the lines have changed or can not be changed: %2")
                                              .arg(m_parts.services->relPath(path))
                                              .arg(leftHere));
        left += leftHere;
    }
    if (m_parts.documents->contains(before))
        m_parts.documents->show(before);
    if (m_panel == nullptr)
        return;
    // What the list shows is no longer there.
    m_panel->clear();
    m_panel->setStatus(left == 0 ? tr("Replaced: %1").arg(count)
                                 : tr("Replaced: %1; left, as their lines have changed: %2").arg(count).arg(left));
}

} // namespace nsModEditor
