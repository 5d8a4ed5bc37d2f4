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

JumpHistory::sStop JumpHistory::here(EditorDocument* document)
{
    sStop stop;
    // A document without a file could not be opened again.
    if (document == nullptr || document->filePath().isEmpty())
        return stop;
    stop.document = document;
    stop.cursor = document->textCursor();
    stop.cursor.clearSelection();
    stop.place = stop.now();
    return stop;
}

void JumpHistory::push(std::vector<sStop>* stops, const sStop& stop)
{
    if (stop.place.isNull())
        return;
    if (stops->size() == maxCount)
        stops->erase(stops->begin());
    stops->push_back(stop);
}

void JumpHistory::leave(const sStop& from)
{
    if (from.place.isNull())
        return;
    push(&m_back, from);
    m_forward.clear();
}

sTextPlace JumpHistory::take(eWay_t way)
{
    std::vector<sStop>& stops = way == wayBack ? m_back : m_forward;
    if (stops.empty())
        return {};
    const sTextPlace place = stops.back().now();
    stops.pop_back();
    return place;
}

void JumpHistory::arrive(eWay_t way, const sStop& from)
{
    push(way == wayBack ? &m_forward : &m_back, from);
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
