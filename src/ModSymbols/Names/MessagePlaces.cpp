#include "MessagePlaces.h"

#include "SourceText.h"

#include "EditorDocument.h"
#include "ModMsgHookIf.h"
#include "ModMsgPluginIf.h"

#include <QCoreApplication>
#include <QTextBlock>

#include <algorithm>

namespace nsModSymbols {

using nsModEditor::EditorDocument;
using nsModEditor::sMessageMark;

namespace {

/// The word that a message ends with, if it stands in the line; else all of the code.
void findPiece(const QString& line, const QString& message, sMessageMark* mark)
{
    int end = SourceText::codeLength(line);
    while (end > 0 && line.at(end - 1).isSpace())
        --end;
    const int colon = message.lastIndexOf(QLatin1String(": "));
    const QString word = colon >= 0 ? message.mid(colon + 2).trimmed() : QString();
    const int found = word.isEmpty() ? -1 : line.leftRef(end).indexOf(word, 0, Qt::CaseInsensitive);
    if (found >= 0) {
        mark->column = found;
        mark->length = word.size();
        return;
    }
    int start = 0;
    while (start < end && line.at(start).isSpace())
        ++start;
    // A message about a line without code marks what there is.
    mark->column = start < end ? start : 0;
    mark->length = start < end ? end - start : line.size();
}

} // namespace

void MessagePlaces::take()
{
    clear();
    if (m_msg->modMsgHook == nullptr)
        return;
    for (const ModMsgHookIf::sMessage& message : m_msg->modMsgHook->messagesOfRun()) {
        bool isLine = false;
        const int line = message.place.fragment().toInt(&isLine);
        if (message.grade != ModMsgHookIf::eMsgInfo && isLine && !message.place.path().isEmpty())
            m_messages.append({message.grade, message.text, message.place.path(), line, message.row});
    }
}

void MessagePlaces::clear()
{
    m_messages.clear();
    m_marked.clear();
    m_current = -1;
}

void MessagePlaces::mark(EditorDocument* document)
{
    QVector<sMessageMark> marks;
    QVector<int> lines;
    const QString path = document->filePath();
    for (const sMessage& message : qAsConst(m_messages)) {
        if (message.path != path)
            continue;
        sMessageMark mark;
        mark.grade = sMessageMark::eGrade_t(message.grade);
        mark.text = message.text;
        marks.append(mark);
        lines.append(message.line);
    }
    // The run has read the file, not what the document has of its own.
    if (!marks.isEmpty() && document->document()->isModified())
        lines = SourceText::movedLines(SourceText::onDisk(path), document->text(), lines);
    for (int i = 0; i < marks.size(); ++i) {
        marks[i].line = lines.at(i);
        findPiece(document->document()->findBlockByNumber(lines.at(i)).text(), marks.at(i).text, &marks[i]);
    }
    document->setMessageMarks(marks);
    m_marked.insert(document);
}

sTextPlace MessagePlaces::walk(int step)
{
    if (m_messages.isEmpty())
        return {};
    const int count = m_messages.size();
    m_current = m_current < 0 && step < 0 ? count - 1 : (m_current + step + count) % count;
    const sMessage& message = m_messages.at(m_current);
    if (m_msg->modMsgHook != nullptr)
        m_msg->modMsgHook->selectMessage(message.row);
    return {message.path, message.line, 0, 0};
}

sTextPlace MessagePlaces::placeIn(const EditorDocument* document) const
{
    if (m_current < 0 || m_current >= m_messages.size() || !m_marked.contains(document))
        return {};
    const QString path = m_messages.at(m_current).path;
    const auto index = std::count_if(m_messages.cbegin(), m_messages.cbegin() + m_current,
                                     [&path](const sMessage& message) { return message.path == path; });
    const QTextCursor cursor = document->messagePlace(int(index));
    if (cursor.isNull())
        return {};
    QTextCursor start = cursor;
    start.setPosition(cursor.selectionStart());
    return {document->filePath(), start.blockNumber(), start.positionInBlock(),
            cursor.selectionEnd() - cursor.selectionStart()};
}

QString MessagePlaces::currentText() const
{
    return m_current >= 0 && m_current < m_messages.size() ? m_messages.at(m_current).text : QString();
}

QString MessagePlaces::position() const
{
    return QCoreApplication::translate("nsModSymbols::MessagePlaces", "%1 of %2")
        .arg(m_current + 1)
        .arg(m_messages.size());
}

} // namespace nsModSymbols
