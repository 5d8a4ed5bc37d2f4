#include "ProcSimFifoLines.h"

#include "ProcSimIODevice.h"

#include <algorithm>
#include <limits>

namespace nsProc {

void ProcSimFifoLines::setBase(int base)
{
    if (base == m_base)
        return;
    const std::map<int, QString> texts = std::move(m_texts);
    m_texts.clear();
    for (const auto& [index, text] : texts) {
        int number = 0;
        if (ProcSimIODevice::number(text, m_base, &number))
            m_lines[static_cast<size_t>(index)] = number;
        else
            m_texts[index] = text;
    }
    m_base = base;
    touch(0, count() - 1);
}

void ProcSimFifoLines::write(int value)
{
    const int line = std::min(m_pointer, count());
    if (line == count())
        m_lines.push_back(eMarkEmpty);
    forget(line);
    m_lines[static_cast<size_t>(line)] = qMax(0, value);
    touch(line, line);
    ++m_pointer;
    appendEmptyAtEnd();
}

bool ProcSimFifoLines::read(int* value)
{
    if (m_pointer >= count())
        return false;
    const int line = m_lines[static_cast<size_t>(m_pointer)];
    if (line == eMarkEmpty || (line == eMarkText && !ProcSimIODevice::number(m_texts[m_pointer], m_base, value)))
        return false;
    if (line >= 0)
        *value = line;
    ++m_pointer;
    appendEmptyAtEnd();
    return true;
}

void ProcSimFifoLines::appendEmptyAtEnd()
{
    if (m_pointer < count())
        return;
    if (count() >= maxLines)
        dropOldest();
    m_lines.push_back(eMarkEmpty);
    touch(count() - 1, count() - 1);
}

void ProcSimFifoLines::dropOldest()
{
    const int drop = maxLines / 4;
    m_lines.erase(m_lines.begin(), m_lines.begin() + drop);
    std::map<int, QString> texts;
    for (auto& [index, text] : m_texts) {
        if (index >= drop)
            texts[index - drop] = std::move(text);
    }
    m_texts = std::move(texts);
    m_pointer = qMax(0, m_pointer - drop);
    m_dropped += drop;
    m_changedFirst = 0;
    m_changedLast = count() - 1;
}

void ProcSimFifoLines::assign(const unsigned int* values, int count)
{
    m_lines.clear();
    m_texts.clear();
    m_pointer = 0;
    const int lines = (values == nullptr) ? 0 : qMax(0, qMin(count, maxLines));
    m_dropped += qMax(0, count - maxLines);
    m_lines.reserve(static_cast<size_t>(lines) + 1);
    for (int i = 0; i < lines; ++i) {
        const bool fits = values[i] <= static_cast<unsigned int>(std::numeric_limits<int>::max());
        m_lines.push_back(fits ? static_cast<int>(values[i]) : static_cast<int>(eMarkText));
        if (!fits)
            m_texts[i] = ProcSimIODevice::text(values[i], m_base);
    }
    if (m_lines.empty())
        m_lines.push_back(eMarkEmpty);
    touch(0, this->count() - 1);
}

QString ProcSimFifoLines::text(int line) const
{
    const int number = m_lines[static_cast<size_t>(line)];
    if (number >= 0)
        return ProcSimIODevice::text(static_cast<unsigned int>(number), m_base);
    return number == eMarkText ? m_texts.at(line) : QString();
}

void ProcSimFifoLines::replace(int first, int removed, const QStringList& texts)
{
    const int added = texts.size();
    if (added != removed) {
        const auto at = m_lines.begin() + first;
        std::map<int, QString> kept;
        for (auto& [index, text] : m_texts) {
            if (index < first)
                kept[index] = std::move(text);
            else if (index >= first + removed)
                kept[index + added - removed] = std::move(text);
        }
        m_texts = std::move(kept);
        if (added > removed)
            m_lines.insert(at + removed, static_cast<size_t>(added - removed), static_cast<int>(eMarkEmpty));
        else
            m_lines.erase(at + added, at + removed);
    }
    for (int i = 0; i < added; ++i) {
        forget(first + i);
        m_lines[static_cast<size_t>(first + i)] = lineOf(first + i, texts.at(i));
    }
    if (m_lines.empty())
        m_lines.push_back(eMarkEmpty);
    touch(first, added == removed ? first + added - 1 : count() - 1);
}

int ProcSimFifoLines::lineOf(int index, const QString& text)
{
    if (text.isEmpty())
        return eMarkEmpty;
    int number = 0;
    if (ProcSimIODevice::number(text, m_base, &number) &&
        ProcSimIODevice::text(static_cast<unsigned int>(number), m_base) == text)
        return number;
    m_texts[index] = text;
    return eMarkText;
}

void ProcSimFifoLines::forget(int index)
{
    if (m_lines[static_cast<size_t>(index)] == eMarkText)
        m_texts.erase(index);
}

void ProcSimFifoLines::touch(int first, int last)
{
    if (m_changedLast < m_changedFirst) {
        m_changedFirst = first;
        m_changedLast = last;
        return;
    }
    m_changedFirst = std::min(m_changedFirst, first);
    m_changedLast = std::max(m_changedLast, last);
}

bool ProcSimFifoLines::takeChanged(int* first, int* last)
{
    *first = m_changedFirst;
    *last = std::min(m_changedLast, count() - 1);
    const bool changed = m_changedFirst <= m_changedLast;
    m_changedFirst = 0;
    m_changedLast = -1;
    return changed;
}

} // namespace nsProc
