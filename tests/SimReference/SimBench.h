#pragma once

#include "ProcRun.h"
#include "ProcShell.h"
#include "ProcSim.h"

#include <memory>

const char* const b3 = "Xilinx PicoBlaze 3";
const char* const b6 = "Xilinx PicoBlaze 6";
const char* const m8 = "Lattice Mico8 v3.x";

/// A simulator on a program of a few lines, without widgets.
struct SimBench
{
    /// @param program lines separated by semicolons
    /// @param settings keys of the project file with their values
    SimBench(const QString& processor, const QString& program, const QHash<QString, int>& settings = {})
        : run(processor, settings)
    {
        auto* shell = dynamic_cast<nsProc::ProcShell*>(run.processor.currentProcessor());
        sim.reset(shell->createSim());
        started = run.assemble(program.split(';'));
        sim->modAsmFeHook = &run.asmFe;
        sim->modMsgHook = &run.msg;
        started = started && sim->simInit(shell->runConfig());
        m_messagesBefore = run.msg.messages().size();
    }

    /// Key of the last message of the simulator; "internal" for an internal error, empty for none.
    QString lastKey() const
    {
        const QList<FakeMsgHook::Entry> messages = run.msg.messages();
        if (messages.size() == m_messagesBefore)
            return QString();
        return messages.last().text.startsWith(internalStart) ? QStringLiteral("internal") : messages.last().key();
    }
    /// Text of the last message, if that is an internal error.
    QString lastInternalError() const
    {
        const QList<FakeMsgHook::Entry> messages = run.msg.messages();
        const QString text = messages.isEmpty() ? QString() : messages.last().text;
        return text.startsWith(internalStart) ? text.mid(internalStart.size()) : QString();
    }

    ProcRun run;
    std::unique_ptr<nsProc::ProcSim> sim;
    bool started = false;

private:
    const QString internalStart = QStringLiteral("Internal error: ");
    int m_messagesBefore = 0;
};
