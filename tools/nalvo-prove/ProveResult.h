#pragma once

#include "ProveEvent.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace nsNalvoProve {

/// What a proof has come to, for people and for programs.
struct ProveResult
{
    bool isEqual = true;
    qint64 instructions = 0; ///< all that were compared, or those before the difference
    qint64 events = 0;
    qint64 clocks = 0;
    QString core; ///< file
    QString tool;
    QStringList compared;    ///< what was
    QStringList notCompared; ///< what the core does not show
    QString end;             ///< why the run has ended before its bound; empty if it has not

    // Where it differs.
    QString place;                ///< file and line of the source; empty if none filled the place
    QStringList simulationEvents; ///< the last ones, that which differs at the end
    QStringList coreEvents;
    QString what; ///< differs, where it is no event
    // The first difference of what is in the core, if it came before that.
    QString origin;
    QString originPlace;
    qint64 originClock = 0;
    qint64 stateClock = 0; ///< of the states: the beginning of the instruction
    ProveState simulationState;
    ProveState coreState;
    int banks = 1;

    QByteArray text() const;
    /// One object in one line.
    QByteArray json() const;
};

/// The first difference of two states as far as both are known, in words; empty if there is none.
QString stateDifference(const ProveState& simulation, const ProveState& core, int banks);

} // namespace nsNalvoProve
