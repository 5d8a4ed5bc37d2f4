#include "StringPool.h"

#include <QHash>

#include <cstring>

namespace nsModAsmFe {

namespace {

const size_t initialSlots = 1024;
const int longestAsciiWord = 32;

bool isSame(const QString& one, QStringView other)
{
    return one.size() == other.size() &&
           std::memcmp(one.constData(), other.data(), size_t(other.size()) * sizeof(QChar)) == 0;
}

} // namespace

StringPool::StringPool()
    : m_slots(initialSlots)
    , m_seed(uint(qGlobalQHashSeed()))
    , m_empty("")
{
}

const QString& StringPool::intern(QStringView text)
{
    if (text.isEmpty())
        return m_empty;
    if (m_used * 2 >= m_slots.size())
        grow();
    const size_t mask = m_slots.size() - 1;
    size_t slot = qHash(text, m_seed) & mask;
    while (!m_slots[slot].isNull()) {
        if (isSame(m_slots[slot], text))
            return m_slots[slot];
        slot = (slot + 1) & mask;
    }
    m_slots[slot] = text.toString();
    ++m_used;
    return m_slots[slot];
}

const QString& StringPool::internUpper(QStringView text)
{
    QChar upper[longestAsciiWord];
    if (text.size() > longestAsciiWord)
        return intern(text.toString().toUpper());
    for (int i = 0; i < text.size(); ++i) {
        const ushort c = text[i].unicode();
        if (c > 127)
            return intern(text.toString().toUpper());
        upper[i] = QChar(ushort(c >= 'a' && c <= 'z' ? c - 32 : c));
    }
    return intern(QStringView(upper, text.size()));
}

void StringPool::clear()
{
    std::vector<QString>(initialSlots).swap(m_slots);
    m_used = 0;
}

void StringPool::grow()
{
    std::vector<QString> old(m_slots.size() * 2);
    old.swap(m_slots);
    const size_t mask = m_slots.size() - 1;
    for (QString& text : old) {
        if (text.isNull())
            continue;
        size_t slot = qHash(QStringView(text), m_seed) & mask;
        while (!m_slots[slot].isNull())
            slot = (slot + 1) & mask;
        m_slots[slot].swap(text);
    }
}

} // namespace nsModAsmFe
