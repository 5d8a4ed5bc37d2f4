#include "ProcAsmReport.h"

#include "AsmFeMsgHndlr.h"

#include <QCoreApplication>

namespace nsProc {

using namespace nsModAsmFe;

namespace {

const char* const context = "nsProc::ProcAsmBe"; ///< of the translations, as in the catalogue

} // namespace

ProcAsmReport::ProcAsmReport(const char* helpPage, AsmFeMsgHndlr* msgHndlr)
    : m_helpPage(helpPage)
    , m_msgHndlr(msgHndlr)
{
}

void ProcAsmReport::signMsg(eAsmMsg_t type, const SrcReference* srcRef, const QString& arg, int value) const
{
    const sAsmMsg_t* msg = asmMsg(type);
    ModMsgHookIf* hook = m_msgHndlr->modMsgHook;
    if (msg == nullptr || hook == nullptr)
        return;
    QString text = QCoreApplication::translate(context, msg->text);
    if (text.contains("%2"))
        text = text.arg(arg, QString::number(value));
    else if (text.contains("%1"))
        text = text.arg(arg);
    QUrl help("pageid://" + QLatin1String(m_helpPage));
    help.setFragment(QString::fromLatin1(msg->key));
    const nsModMsg::MsgUrl link = srcRef != nullptr ? m_msgHndlr->srcUrl(*srcRef) : nsModMsg::MsgUrl();
    if (QLatin1String(msg->key).startsWith(QLatin1String("warn")))
        hook->showWarningMessage(text, help, link);
    else
        hook->showErrorMessage(text, help, link);
}

void ProcAsmReport::signMsg(eAsmMsg_t type, int value, int page) const
{
    signMsg(type, nullptr, QString::number(value), page);
}

void ProcAsmReport::signMsg(eMsgType_t type, const SrcReference* srcRef, const QString& arg) const
{
    m_msgHndlr->signMsg(type, srcRef, arg);
}

void ProcAsmReport::signOffset(const char* text) const
{
    m_msgHndlr->signInternalError(QCoreApplication::translate(context, text));
}

} // namespace nsProc
