#include "SyscallMsgHndlr.h"

#include "EnumTable.h"
#include "ModMsgHookIf.h"

#include <cstring>

namespace nsModSyscall {

namespace {

struct sMsgText_t
{
    SyscallMsgHndlr::eMsgType_t type;
    const char* key;
    const char* text;
};

#define NALVO_MSG(value, text)                                                                                         \
    {                                                                                                                  \
        SyscallMsgHndlr::value, #value, QT_TRANSLATE_NOOP("nsModSyscall::SyscallMsgHndlr", text)                       \
    }

/// Indexed by eMsgType_t.
constexpr sMsgText_t msgTexts[] = {
    NALVO_MSG(infoNothingTodo, "Nothing todo for event."),
    NALVO_MSG(infoWaiting, "Waiting for program..."),
    NALVO_MSG(infoExitWithSuccess, "Program exited with success."),
    NALVO_MSG(errExeAlreadyRunning, "Program is already running"),
    NALVO_MSG(errCanNotStart, "Can not start program."),
    NALVO_MSG(errExitWithoutSuccess, "Program exited without success."),
    NALVO_MSG(errNotAllowed, "External program %1 is not allowed to run. To allow it, press \"Start\" in its monitor, "
                             "which asks again."),
    NALVO_MSG(warnTerminated, "External program %1 was still running: it has been terminated."),
    NALVO_MSG(warnKilled, "External program %1 was still running and did not end when asked to: it has been killed."),
    NALVO_MSG(infoLeftOut, "The external programs of the event are left out; --external-programs runs them."),
    NALVO_MSG(errNobodyToAsk, "Nobody can be asked whether this program may run, so it does not run: %1"),
};
static_assert(isIndexedBy(msgTexts, &sMsgText_t::type, SyscallMsgHndlr::msgCount), "each message has its row");

const sMsgText_t* rowOf(SyscallMsgHndlr::eMsgType_t type)
{
    return type >= 0 && type < SyscallMsgHndlr::msgCount ? &msgTexts[type] : nullptr;
}

} // namespace

SyscallMsgHndlr::SyscallMsgHndlr(QObject* parent)
    : QObject(parent)
    , m_baseUrl(QStringLiteral("pageid://syscallMessages"))
{
}

void SyscallMsgHndlr::signMsg(eMsgType_t type, const QString& arg)
{
    const sMsgText_t* text = rowOf(type);
    if (text == nullptr) {
        signInternalError(tr("Unsupported simulator message."));
        return;
    }
    if (modMsgHook == nullptr)
        return;
    QString words = tr(text->text);
    words.replace(QLatin1String("%1"), arg);
    if (std::strncmp(text->key, "info", 4) == 0)
        modMsgHook->showInfoMessage(words, helpUrl(text->key));
    else if (std::strncmp(text->key, "warn", 4) == 0)
        modMsgHook->showWarningMessage(words, helpUrl(text->key));
    else
        modMsgHook->showErrorMessage(words, helpUrl(text->key));
}

void SyscallMsgHndlr::signMsgGroup(eMsgGrp_t group, const QString& arg1, const QString& arg2)
{
    if (group != grpSyscall) {
        signInternalError(tr("Unsupported simulator message."));
        return;
    }
    if (modMsgHook != nullptr)
        modMsgHook->openMessageGroup(tr("Calling external program %1: %2").arg(arg1, arg2), helpUrl("grpSyscall"));
}

void SyscallMsgHndlr::closeGroup(bool success)
{
    if (modMsgHook != nullptr)
        modMsgHook->closeMessageGroup(success);
}

void SyscallMsgHndlr::signInternalError(const QString& text)
{
    if (modMsgHook != nullptr)
        modMsgHook->showErrorMessage(tr("Internal error: ") + text);
}

const char* SyscallMsgHndlr::msgKey(eMsgType_t type)
{
    const sMsgText_t* text = rowOf(type);
    return text != nullptr ? text->key : nullptr;
}

const char* SyscallMsgHndlr::msgText(eMsgType_t type)
{
    const sMsgText_t* row = rowOf(type);
    return row != nullptr ? row->text : nullptr;
}

QUrl SyscallMsgHndlr::helpUrl(const char* key) const
{
    QUrl url = m_baseUrl;
    url.setFragment(QString::fromLatin1(key));
    return url;
}

} // namespace nsModSyscall
