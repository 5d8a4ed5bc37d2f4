#pragma once

#include "ProcSimMsg.h"

#include <QString>

#include <vector>

namespace nsProc {

/// A message of the simulator as a value: who shows it gives it its text, its help and its place.
struct sSimReport_t
{
    enum eKind_t {
        eKindMessage,     ///< of the catalogue, see ProcSimMsg
        eKindInternal,    ///< what earlier checks should have made impossible; it has a text of its own
        eKindUnsupported, ///< the processor does not have the instruction; the front end's message
    };

    eKind_t kind = eKindMessage;
    eSimMsg_t msg = errNoOpcodeToExec;
    QString arg;   ///< of the message, the text of an internal error, the mnemonic that is not supported
    int value = 0; ///< of a message whose argument is empty
    /// The core goes on where the simulator would have stopped: the message of an error is a warning.
    bool coreGoesOn = false;
    /// The position in the program that it is about; atProgramCounter where it says nothing of its own.
    int position = atProgramCounter;
    static constexpr int atProgramCounter = -1;

    /// The key of the message; "internal" for an internal error.
    QString key() const;
    /// What a person reads. Not for what is not supported: that has the text of the front end's message.
    QString text() const;
    bool isWarning() const { return kind == eKindMessage && (coreGoesOn || key().startsWith(QLatin1String("warn"))); }
};

/// What a step of the simulated processor, or a change of its program counter, came to.
struct SimOutcome
{
    enum eEnd_t {
        eEndWentOn,      ///< executed; the reports, if any, say that there is no next instruction
        eEndStopped,     ///< not executed, for the reason that is reported; or an observer has called halt()
        eEndNoPortValue, ///< not executed: the source of the port `port` has no value. It is not reported
        eEndAsksPage,    ///< in progress: ProcSimEngine::goOnInPage() goes on, anything else drops it
    };

    eEnd_t end = eEndWentOn;
    int port = -1;                     ///< that could not be read: eEndNoPortValue, errIODevRd, warnIODevAddedToRd
    std::vector<sSimReport_t> reports; ///< in their order

    bool wentOn() const { return end == eEndWentOn; }
    void report(eSimMsg_t msg, const QString& arg = QString(), int value = 0);
    void reportInternal(const QString& text);
    /// The last report; null if there is none.
    const sSimReport_t* last() const { return reports.empty() ? nullptr : &reports.back(); }
};

} // namespace nsProc
