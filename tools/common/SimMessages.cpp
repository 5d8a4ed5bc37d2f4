#include "SimMessages.h"

#include "BatchMsg.h"

#include "AsmFeMsgHndlr.h"
#include "Opcode.h"
#include "ProcSimEngine.h"
#include "ProcTable.h"

#include <QUrl>

namespace nsBatch {

using nsModAsmFe::Opcode;

void showReport(BatchMsg* msg, const nsModAsmFe::AsmFeMsgHndlr& links, const nsProc::ProcSimEngine& engine,
                const nsProc::sSimReport_t& report)
{
    const auto link = [&links](const Opcode* opcode) {
        return opcode != nullptr ? links.srcUrl(opcode->srcRef) : nsModMsg::MsgUrl();
    };
    switch (report.kind) {
    case nsProc::sSimReport_t::eKindUnsupported:
        nsModAsmFe::AsmFeMsgHndlr::showMsg(msg, nsModAsmFe::errOcUnsupported, link(engine.programCounter()),
                                           report.arg);
        break;
    case nsProc::sSimReport_t::eKindInternal:
        msg->showErrorMessage(report.text(), QUrl(), {});
        break;
    case nsProc::sSimReport_t::eKindMessage: {
        QUrl help("pageid://" + QLatin1String(engine.table().simHelpPage));
        help.setFragment(report.key());
        msg->showMessage(report.isWarning() ? ModMsgHookIf::eMsgWarning : ModMsgHookIf::eMsgError, report.text(), help,
                         link(engine.placeOf(report)));
        break;
    }
    }
}

void showReports(BatchMsg* msg, const nsModAsmFe::AsmFeMsgHndlr& links, const nsProc::ProcSimEngine& engine,
                 const nsProc::SimOutcome& outcome)
{
    for (const nsProc::sSimReport_t& report : outcome.reports)
        showReport(msg, links, engine, report);
}

} // namespace nsBatch
