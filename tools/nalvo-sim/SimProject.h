#pragma once

#include "ProcCoreConfig.h"

namespace nsModAsmFe {
class AsmFeFileHndlr;
class AsmFeMsgHndlr;
class EquList;
class IODevList;
class LabelList;
class OpcodeList;
} // namespace nsModAsmFe
namespace nsProc {
struct ProcTable;
}

namespace nsNalvoSim {

/// What a run needs of an assembled project. Nothing is owned.
struct SimProject
{
    nsModAsmFe::OpcodeList* opcodes = nullptr;
    const nsModAsmFe::EquList* equs = nullptr;
    const nsModAsmFe::LabelList* labels = nullptr;
    const nsModAsmFe::IODevList* ioDevs = nullptr;
    const nsModAsmFe::AsmFeFileHndlr* files = nullptr;
    const nsModAsmFe::AsmFeMsgHndlr* links = nullptr; ///< makes the links of messages
    const nsProc::ProcTable* processor = nullptr;
    nsProc::ProcCoreConfig config; ///< of the last run
};

} // namespace nsNalvoSim
