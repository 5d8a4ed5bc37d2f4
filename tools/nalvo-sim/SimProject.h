#pragma once

#include "ProcCoreConfig.h"

namespace nsModAsmFe {
class AsmFeFileHndlr;
class AsmFeMsgHndlr;
struct AsmProgram;
} // namespace nsModAsmFe
namespace nsProc {
struct ProcTable;
}

namespace nsNalvoSim {

/// What a run needs of an assembled project. Nothing is owned.
struct SimProject
{
    nsModAsmFe::AsmProgram* program = nullptr;
    const nsModAsmFe::AsmFeFileHndlr* files = nullptr;
    const nsModAsmFe::AsmFeMsgHndlr* links = nullptr; ///< makes the links of messages
    const nsProc::ProcTable* processor = nullptr;
    nsProc::ProcCoreConfig config; ///< of the last run
};

} // namespace nsNalvoSim
