#pragma once

namespace nsModAsmFe {
class AsmFeMsgHndlr;
}
namespace nsProc {
class ProcSimEngine;
struct SimOutcome;
struct sSimReport_t;
} // namespace nsProc

namespace nsBatch {

class BatchMsg;

/// Shows what the simulator reports, at the instruction that it concerns.
/// @param links makes the links of messages
void showReport(BatchMsg* msg, const nsModAsmFe::AsmFeMsgHndlr& links, const nsProc::ProcSimEngine& engine,
                const nsProc::sSimReport_t& report);
/// All of an outcome.
void showReports(BatchMsg* msg, const nsModAsmFe::AsmFeMsgHndlr& links, const nsProc::ProcSimEngine& engine,
                 const nsProc::SimOutcome& outcome);

} // namespace nsBatch
