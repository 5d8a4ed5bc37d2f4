#include "InterruptNumbers.h"

#include <algorithm>

namespace nsBatch {

InterruptNumbers::InterruptNumbers(qint64 every, const std::vector<qint64>& at)
    : m_every(every)
    , m_at(at)
    , m_next(every > 0 ? every : unbounded)
{
    if (!m_at.empty())
        m_next = std::min(m_next, m_at.front());
}

void InterruptNumbers::pass()
{
    while (m_used < m_at.size() && m_at[m_used] <= m_next)
        ++m_used;
    const qint64 listed = m_used < m_at.size() ? m_at[m_used] : unbounded;
    const qint64 rounds = m_every > 0 ? m_next / m_every + 1 : 0;
    const bool isRegular = m_every > 0 && rounds <= unbounded / m_every;
    m_next = isRegular ? std::min(listed, rounds * m_every) : listed;
}

} // namespace nsBatch
