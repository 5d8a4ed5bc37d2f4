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
    }

    ProcRun run;
    std::unique_ptr<nsProc::ProcSim> sim;
    bool started = false;
};
