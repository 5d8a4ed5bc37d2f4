#include "JumpHistory.h"

#include "EditorDocument.h"

namespace nsModSymbols {

using nsModEditor::EditorDocument;

sTextPlace JumpHistory::sStop::now() const
{
    sTextPlace result = place;
    if (document != nullptr && !cursor.isNull()) {
        result.path = document->filePath();
        result.line = cursor.blockNumber();
        result.column = cursor.positionInBlock();
    }
    return result;
}

/// @return false: there is nothing to come back to
bool JumpHistory::stopOf(EditorDocument* document, sStop* stop)
{
    // A document without a file could not be opened again.
    if (document == nullptr || document->filePath().isEmpty())
        return false;
    stop->document = document;
    stop->cursor = document->textCursor();
    stop->cursor.clearSelection();
    stop->place = stop->now();
    return true;
}

void JumpHistory::leave(EditorDocument* document)
{
    sStop stop;
    if (!stopOf(document, &stop))
        return;
    if (m_back.size() == maxCount)
        m_back.erase(m_back.begin());
    m_back.push_back(stop);
    m_forward.clear();
}

sTextPlace JumpHistory::move(std::vector<sStop>* from, std::vector<sStop>* to, EditorDocument* document)
{
    if (from->empty())
        return {};
    sStop stop;
    if (stopOf(document, &stop))
        to->push_back(stop);
    const sTextPlace place = from->back().now();
    from->pop_back();
    return place;
}

sTextPlace JumpHistory::back(EditorDocument* document)
{
    return move(&m_back, &m_forward, document);
}

sTextPlace JumpHistory::forward(EditorDocument* document)
{
    return move(&m_forward, &m_back, document);
}

void JumpHistory::documentClosing(const EditorDocument* document)
{
    for (std::vector<sStop>* stops : {&m_back, &m_forward}) {
        for (sStop& stop : *stops) {
            if (stop.document != document)
                continue;
            stop.place = stop.now();
            stop.document = nullptr;
            stop.cursor = QTextCursor();
        }
    }
}

void JumpHistory::clear()
{
    m_back.clear();
    m_forward.clear();
}

} // namespace nsModSymbols
