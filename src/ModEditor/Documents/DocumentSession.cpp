#include "DocumentSession.h"

#include "EditorConfig.h"
#include "EditorServices.h"
#include "EditorWidget.h"
#include "LineMarks.h"
#include "OpenDocuments.h"
#include "SafeFile.h"
#include "ViewPlace.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <climits>

namespace nsModEditor {

namespace {

const int version = 1;
const qint64 maxSize = 1 << 24; ///< bytes of the file
const int maxMarks = 100000;    ///< of one kind in a document
const int maxClosed = 1000;     ///< closed documents with marks
const int anyLine = INT_MAX;

namespace keys {
const QLatin1String version("nalvoSession");
const QLatin1String documents("documents");
const QLatin1String file("file");
const QLatin1String cursor("cursor");
const QLatin1String anchor("anchor");
const QLatin1String top("top"); ///< first line on the screen
const QLatin1String left("left");
const QLatin1String split("split");
const QLatin1String zoom("zoom");
const QLatin1String breakpoints("breakpoints");
const QLatin1String bookmarks("bookmarks");
const QLatin1String start("start");
} // namespace keys

QJsonArray arrayOf(const QList<int>& lines)
{
    QJsonArray array;
    for (const int line : lines)
        array.append(line);
    return array;
}

/// The lines that the document has.
LineMarks marksOf(const QJsonValue& value, int lineCount)
{
    LineMarks marks;
    const QJsonArray array = value.toArray();
    for (int i = 0; i < qMin(array.size(), maxMarks); ++i) {
        const int line = array.at(i).toInt(-1);
        if (line >= 0 && line < lineCount && !marks.contains(line))
            marks.toggle(line);
    }
    return marks;
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return QFileInfo(path).isFile() && file.size() <= maxSize && file.open(QIODevice::ReadOnly) ? file.readAll()
                                                                                                : QByteArray();
}

/// May the file be written over? A damaged one of ours may, one of a newer version or of another program may not.
bool isOurs(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return true;
    if (!info.isFile() || info.size() > maxSize)
        return false;
    const QByteArray content = contentOf(path);
    const QJsonDocument document = QJsonDocument::fromJson(content);
    if (document.isNull())
        return info.size() == 0 || content.contains(QByteArray(keys::version.data()));
    const int found = document.object().value(keys::version).toInt(0);
    return found > 0 && found <= version;
}

} // namespace

DocumentSession::DocumentSession(const OpenDocuments* documents, EditorServices* services)
    : m_documents(documents)
    , m_services(services)
    , m_splitViews(documents)
{
}

QString DocumentSession::fileOf(const QString& project)
{
    return project + QStringLiteral(".user");
}

QJsonObject DocumentSession::stateOf(EditorWidget* widget, bool keepMarks) const
{
    const sViewPlace place = sViewPlace::of(widget);
    QJsonObject state{{keys::file, m_services->relPath(widget->filePath())},
                      {keys::cursor, place.position},
                      {keys::anchor, place.anchor},
                      {keys::top, place.top},
                      {keys::left, place.left}};
    const QJsonObject split = m_splitViews.stateOf(widget);
    if (!split.isEmpty())
        state.insert(keys::split, split);
    if (!keepMarks)
        return state;
    state.insert(keys::zoom, widget->zoom());
    state.insert(keys::breakpoints, arrayOf(widget->simBreakpoints()));
    state.insert(keys::bookmarks, arrayOf(widget->bookmarks()));
    state.insert(keys::start, widget->marks().simStartPointer);
    return state;
}

void DocumentSession::save(const QString& project, bool keepMarks)
{
    if (project.isEmpty())
        return;
    QJsonArray documents;
    for (EditorWidget* widget : m_documents->all()) {
        if (!widget->filePath().isEmpty())
            documents.append(stateOf(widget, keepMarks));
    }
    for (auto it = m_closed.cbegin(); keepMarks && it != m_closed.cend(); ++it) {
        if (QFileInfo::exists(QDir(m_services->projectFolder()).filePath(it.key())))
            documents.append(QJsonObject{{keys::file, it.key()},
                                         {keys::breakpoints, arrayOf(it->simBreakpoints.lines())},
                                         {keys::bookmarks, arrayOf(it->bookmarks.lines())}});
    }
    const QString path = fileOf(project);
    if (documents.isEmpty() && !QFileInfo::exists(path))
        return;
    const QByteArray bytes =
        QJsonDocument(QJsonObject{{keys::version, version}, {keys::documents, documents}}).toJson();
    if (contentOf(path) == bytes || !isOurs(path))
        return;
    // Without it, the documents open at their start the next time.
    SafeFile::replace(path, bytes, nullptr);
}

void DocumentSession::restore(const QString& project, bool keepMarks, bool isNewer)
{
    const QString path = fileOf(project);
    if (project.isEmpty() || !QFileInfo::exists(path))
        return;
    const QJsonObject session = QJsonDocument::fromJson(contentOf(path)).object();
    if (session.value(keys::version).toInt() != version || !session.value(keys::documents).isArray()) {
        m_services->showWarning(tr("The places of the last session can not be read: ") + path);
        return;
    }
    EditorWidget* current = m_documents->current();
    for (const QJsonValue& value : session.value(keys::documents).toArray()) {
        const QJsonObject state = value.toObject();
        const QString file = state.value(keys::file).toString();
        bool isOpen = false;
        for (EditorWidget* widget : m_documents->all()) {
            if (m_services->relPath(widget->filePath()) != file)
                continue;
            isOpen = true;
            // The place in the current document stands in the project, too.
            restoreState(widget, state, keepMarks, isNewer || widget == current);
        }
        if (!isOpen && !file.isEmpty())
            keepClosed(file, marksOf(state.value(keys::breakpoints), anyLine),
                       marksOf(state.value(keys::bookmarks), anyLine));
    }
}

void DocumentSession::keepClosed(const QString& file, const LineMarks& breakpoints, const LineMarks& bookmarks)
{
    // The start mark, of which there is one in all documents, may be elsewhere by then.
    sDocumentMarks_t marks;
    marks.simBreakpoints = breakpoints;
    marks.bookmarks = bookmarks;
    if (marks.isEmpty())
        m_closed.remove(file);
    else if (m_closed.size() < maxClosed)
        m_closed.insert(file, marks);
}

void DocumentSession::noteClosing(EditorWidget* widget)
{
    if (!widget->filePath().isEmpty() && m_services->isProjectOpen())
        keepClosed(m_services->relPath(widget->filePath()), widget->marks().simBreakpoints, widget->marks().bookmarks);
}

void DocumentSession::noteOpened(EditorWidget* widget)
{
    const sDocumentMarks_t kept = m_closed.take(m_services->relPath(widget->filePath()));
    if (kept.isEmpty() || !widget->comfort().keepMarksEn)
        return;
    const auto ofText = [widget](LineMarks marks) {
        marks.map([widget](int line) { return line < widget->blockCount() ? line : -1; });
        return marks;
    };
    sDocumentMarks_t marks;
    marks.simBreakpoints = ofText(kept.simBreakpoints);
    marks.bookmarks = ofText(kept.bookmarks);
    widget->setMarks(marks);
}

void DocumentSession::clearBreakpoints()
{
    for (sDocumentMarks_t& marks : m_closed)
        marks.simBreakpoints.clear();
}

void DocumentSession::clearBookmarks()
{
    for (sDocumentMarks_t& marks : m_closed)
        marks.bookmarks.clear();
}

void DocumentSession::restoreState(EditorWidget* widget, const QJsonObject& state, bool keepMarks,
                                   bool keepsCursor) const
{
    const int end = widget->document()->characterCount() - 1;
    const int position = qBound(0, state.value(keys::cursor).toInt(), end);
    if (keepMarks) {
        const int range = EditorConfig::maxFontSize;
        widget->setZoom(qBound(-range, state.value(keys::zoom).toInt(), range));
        sDocumentMarks_t marks;
        marks.simBreakpoints = marksOf(state.value(keys::breakpoints), widget->blockCount());
        marks.bookmarks = marksOf(state.value(keys::bookmarks), widget->blockCount());
        const int start = state.value(keys::start).toInt(-1);
        marks.simStartPointer = start < widget->blockCount() ? qMax(start, -1) : -1;
        widget->setMarks(marks);
    }
    m_splitViews.restore(widget, state.value(keys::split).toObject());
    if (keepsCursor && widget->cursorPos() != position)
        return;
    const sViewPlace place{position, state.value(keys::anchor).toInt(), state.value(keys::top).toInt(),
                           state.value(keys::left).toInt()};
    place.show(widget);
}

} // namespace nsModEditor
