#include "ProcSimIntLine.h"

#include <algorithm>

namespace nsProc {

void ProcSimIntLine::request(qint64 clock, qint64 length)
{
    sPulse_t pulse{clock, length > never - clock ? never : clock + length};
    // Those that touch the new one become one with it.
    auto first = std::lower_bound(m_pulses.begin() + qptrdiff(m_first), m_pulses.end(), clock,
                                  [](const sPulse_t& a, qint64 from) { return a.to < from; });
    auto last = first;
    for (; last != m_pulses.end() && last->from <= pulse.to; ++last) {
        pulse.from = std::min(pulse.from, last->from);
        pulse.to = std::max(pulse.to, last->to);
    }
    m_pulses.insert(m_pulses.erase(first, last), pulse);
}

void ProcSimIntLine::hold(bool up, qint64 clock)
{
    if (up && !isHeld()) {
        m_heldFrom = clock;
    } else if (!up && isHeld()) {
        if (clock > m_heldFrom)
            request(m_heldFrom, clock - m_heldFrom);
        m_heldFrom = never;
    }
}

void ProcSimIntLine::clear()
{
    m_pulses.clear();
    m_first = 0;
    m_heldFrom = never;
}

void ProcSimIntLine::shift(qint64 clocks)
{
    const auto moved = [clocks](qint64 at) { return at == never ? never : std::max(at + clocks, qint64(0)); };
    m_pulses.erase(m_pulses.begin(), m_pulses.begin() + qptrdiff(m_first));
    m_first = 0;
    for (sPulse_t& pulse : m_pulses)
        pulse = {moved(pulse.from), moved(pulse.to)};
    m_heldFrom = moved(m_heldFrom);
}

qint64 ProcSimIntLine::nextUp(qint64 clock) const
{
    qint64 next = isHeld() ? std::max(clock, m_heldFrom) : never;
    const auto found = std::upper_bound(m_pulses.begin() + qptrdiff(m_first), m_pulses.end(), clock,
                                        [](qint64 at, const sPulse_t& pulse) { return at < pulse.to; });
    if (found != m_pulses.end())
        next = std::min(next, std::max(clock, found->from));
    return next;
}

void ProcSimIntLine::forgetBefore(qint64 clock)
{
    while (m_first < m_pulses.size() && m_pulses[m_first].to <= clock)
        ++m_first;
}

} // namespace nsProc
