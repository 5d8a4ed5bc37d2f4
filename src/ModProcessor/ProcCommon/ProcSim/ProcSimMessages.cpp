// What the engine reports, as messages.

#include "ProcSim.h"

#include "ProcSimEngine.h"
#include "ProcSimOutcome.h"
#include "ProcTable.h"

#include "AsmFeMsgHndlr.h"
#include "ModAsmFeHookIf.h"
#include "ModMsgHookIf.h"
#include "Opcode.h"

namespace nsProc {

using nsModAsmFe::Opcode;

void ProcSim::show(const SimOutcome& outcome)
{
    for (const sSimReport_t& report : outcome.reports)
        show(report);
}

void ProcSim::show(const sSimReport_t& report)
{
    // Updates the widgets first, as one of them may come to the front and would cover the message.
    updateWidgets();
    // What is wrong with the start is said before there is an engine.
    const Opcode* opcode = m_engine != nullptr ? m_engine->placeOf(report) : nullptr;
    if (report.kind == sSimReport_t::eKindUnsupported) {
        modAsmFeHook->msgHndlr()->signMsg(nsModAsmFe::errOcUnsupported, &opcode->srcRef, report.arg);
        return;
    }
    if (modMsgHook == nullptr)
        return;
    if (report.kind == sSimReport_t::eKindInternal) {
        modMsgHook->showErrorMessage(report.text());
        return;
    }
    QUrl help("pageid://" + QLatin1String(m_table.simHelpPage));
    help.setFragment(report.key());
    const nsModMsg::MsgUrl link = opcode != nullptr && modAsmFeHook != nullptr
                                      ? modAsmFeHook->msgHndlr()->srcUrl(opcode->srcRef)
                                      : nsModMsg::MsgUrl();
    if (report.isWarning())
        modMsgHook->showWarningMessage(report.text(), help, link);
    else
        modMsgHook->showErrorMessage(report.text(), help, link);
}

void ProcSim::signMsg(eSimMsg_t type, const QString& arg, int value)
{
    show(sSimReport_t{sSimReport_t::eKindMessage, type, arg, value});
}

} // namespace nsProc
