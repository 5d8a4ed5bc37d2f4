#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>

namespace nsProc {
class ProcSimEngine;
}

namespace nsNalvoSim {

struct SimProject;

/// Why a run ended.
struct SimEnd
{
    enum eReason_t {
        endInstructions, ///< bound
        endClocks,       ///< bound
        endLabel,
        endMessage, ///< of the simulator
        endReads,   ///< a read found no value
        endSignal,
        endFile, ///< a file could not be read or written on the way
    };

    eReason_t reason = endInstructions;
    QString key;  ///< of the message; empty if none
    QString text; ///< for people
};

/// The name of a reason in the dump.
const char* reasonName(SimEnd::eReason_t reason);

/// The state of the simulator as JSON.
QByteArray dumpText(const SimProject& project, const nsProc::ProcSimEngine& engine, qint64 instructions,
                    const SimEnd& end);

} // namespace nsNalvoSim
