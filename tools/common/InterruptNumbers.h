#pragma once

#include "BatchNumbers.h"

#include <QtGlobal>

#include <vector>

namespace nsBatch {

/// The numbers of the instructions before which an interrupt is raised: every so many, and those of a list.
class InterruptNumbers
{
public:
    InterruptNumbers() = default;
    /// @param every 0: never @param at ascending, each once, from 1 on
    InterruptNumbers(qint64 every, const std::vector<qint64>& at);

    /// The next one; `unbounded` if there is none.
    qint64 next() const { return m_next; }
    /// The next one has been raised.
    void pass();

private:
    qint64 m_every = 0;
    std::vector<qint64> m_at;
    size_t m_used = 0; ///< of the list
    qint64 m_next = unbounded;
};

} // namespace nsBatch
