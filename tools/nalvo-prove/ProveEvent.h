#pragma once

#include <QString>
#include <QtGlobal>

#include <vector>

namespace nsNalvoProve {

/// What a core does that can be seen from outside.
struct ProveEvent
{
    enum eKind_t { eFetch, eRead, eWrite, eConstantWrite, eEntry, eReset };
    /// Of an address or clock that is not known.
    static constexpr qint64 unknown = -1;

    eKind_t kind = eFetch;
    qint64 address = unknown; ///< of an executed instruction, or the port; else unknown
    int value = 0;            ///< that is read or written
    qint64 clock = unknown;
    int position = -1; ///< of the instruction that does it, in the simulated program; -1 if it is not known

    /// The other one is the same thing at the same time, as far as both know.
    bool equals(const ProveEvent& other) const;
    /// As one line, in the form of the traces of the simulator, with the clock at the end.
    QString text() const;
};

/// What is in a core. A flag is -1 where it can not be seen.
struct ProveState
{
    std::vector<int> registers; ///< bank by bank
    std::vector<int> scratchpad;
    int carry = -1;
    int zero = -1;
};

/// One side of a proof.
struct ProveTrace
{
    std::vector<ProveEvent> events;
    ProveState state; ///< after the last clock
};

} // namespace nsNalvoProve
