#pragma once

#include <QtGlobal>

#include <vector>

namespace nsProc {

/// The interrupt input of a core: a level against the clock.
///
/// Requests are intervals of the clock; a switch holds the input beside them. Clock 0 is the first clock of the first
/// instruction.
class ProcSimIntLine
{
public:
    static constexpr qint64 never = Q_INT64_C(0x7fffffffffffffff);

    /// The input is up from this clock on, for so many clocks. Requests may overlap, and come in any order.
    /// @param clock 0 or more @param length 1 or more
    void request(qint64 clock, qint64 length);
    /// Holds the input up from a clock on, or lets go of it.
    void hold(bool up, qint64 clock);
    bool isHeld() const { return m_heldFrom != never; }
    /// No requests, and the switch is open.
    void clear();

    /// The clock is counted from elsewhere: all times are later by so many clocks. What comes before clock 0 then is
    /// gone.
    void shift(qint64 clocks);

    bool isUp(qint64 clock) const { return nextUp(clock) == clock; }
    /// The first clock from this one on at which the input is up; `never` if there is none.
    qint64 nextUp(qint64 clock) const;
    /// What lies before a clock is no longer asked for.
    void forgetBefore(qint64 clock);

private:
    /// The clocks from `from` up to `to`, without this one.
    struct sPulse_t
    {
        qint64 from;
        qint64 to;
    };

    std::vector<sPulse_t> m_pulses; ///< ascending, with gaps between them
    size_t m_first = 0;             ///< those before it are forgotten
    qint64 m_heldFrom = never;
};

} // namespace nsProc
