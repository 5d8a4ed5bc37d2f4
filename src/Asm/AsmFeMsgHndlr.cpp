#include "AsmFeMsgHndlr.h"

#include "AsmFeFileHndlr.h"

#include <cstring>

namespace nsModAsmFe {

namespace {

/// Fills %1 to %3 in one go, so that a percent sign inside an argument is not taken for a place.
QString filled(const QString& text, const QString& arg1, const QString& arg2, const QString& arg3)
{
    const QString* const args[] = {&arg1, &arg2, &arg3};
    QString result;
    result.reserve(text.size() + arg1.size() + arg2.size() + arg3.size());
    for (int i = 0; i < text.size(); ++i) {
        const int number = text.at(i) == '%' && i + 1 < text.size() ? text.at(i + 1).unicode() - '0' : 0;
        if (number >= 1 && number <= 3) {
            result += *args[number - 1];
            ++i;
        } else {
            result += text.at(i);
        }
    }
    return result;
}

ModMsgHookIf::eMsgType_t grade(const char* key)
{
    if (std::strncmp(key, "info", 4) == 0)
        return ModMsgHookIf::eMsgInfo;
    if (std::strncmp(key, "warn", 4) == 0)
        return ModMsgHookIf::eMsgWarning;
    return ModMsgHookIf::eMsgError;
}

} // namespace

AsmFeMsgHndlr::AsmFeMsgHndlr(AsmFeFileHndlr* fileHndlr, QObject* parent)
    : QObject(parent)
    , m_fileHndlr(fileHndlr)
{
}

void AsmFeMsgHndlr::signMsg(eMsgType_t type, const SrcReference* srcRef, QString arg1, QString arg2, QString arg3)
{
    const sMsgText_t* text = msgText(type);
    if (srcRef != nullptr && text != nullptr && grade(text->key) == ModMsgHookIf::eMsgError)
        ++m_errorsOfFiles[m_fileHndlr->absSrcFilePath(srcRef->fileNo)];
    showMsg(modMsgHook, type, srcRef != nullptr ? srcUrl(*srcRef) : nsModMsg::MsgUrl(), arg1, arg2, arg3);
}

void AsmFeMsgHndlr::showMsg(ModMsgHookIf* hook, eMsgType_t type, const nsModMsg::MsgUrl& link, const QString& arg1,
                            const QString& arg2, const QString& arg3)
{
    if (hook == nullptr)
        return;
    const sMsgText_t* text = msgText(type);
    if (text == nullptr) {
        showMsg(hook, errInternal, nsModMsg::MsgUrl(), tr("Unsupported simulator message."));
        return;
    }
    const QString words = filled(tr(text->text), arg1, arg2, arg3);
    switch (grade(text->key)) {
    case ModMsgHookIf::eMsgInfo:
        hook->showInfoMessage(words, helpUrl(text->key), link);
        break;
    case ModMsgHookIf::eMsgWarning:
        hook->showWarningMessage(words, helpUrl(text->key), link);
        break;
    case ModMsgHookIf::eMsgError:
        hook->showErrorMessage(words, helpUrl(text->key), link);
        break;
    }
}

void AsmFeMsgHndlr::signMsg(eMsgType_t type, QString arg1, QString arg2, QString arg3)
{
    signMsg(type, static_cast<const SrcReference*>(nullptr), arg1, arg2, arg3);
}

void AsmFeMsgHndlr::signMsgGroup(eMsgGrp_t group, QString arg1)
{
    const sMsgText_t* text = msgGrpText(group);
    if (text == nullptr) {
        signInternalError(tr("Unsupported simulator message."));
        return;
    }
    if (modMsgHook != nullptr)
        modMsgHook->openMessageGroup(filled(tr(text->text), arg1, QString(), QString()), helpUrl(text->key));
}

void AsmFeMsgHndlr::openGroup(const QString& text)
{
    if (modMsgHook != nullptr)
        modMsgHook->openMessageGroup(text);
}

void AsmFeMsgHndlr::closeGroup(bool success)
{
    if (modMsgHook != nullptr)
        modMsgHook->closeMessageGroup(success);
}

void AsmFeMsgHndlr::clearMessages()
{
    if (modMsgHook != nullptr)
        modMsgHook->clearMessages();
}

void AsmFeMsgHndlr::signInternalError(QString text)
{
    signMsg(errInternal, text);
}

nsModMsg::MsgUrl AsmFeMsgHndlr::srcUrl(const SrcReference& srcRef) const
{
    nsModMsg::MsgUrl url;
    url.setScheme("file");
    url.setPath(m_fileHndlr->absSrcFilePath(srcRef.fileNo));
    url.setFragment(srcRef.lineNo);
    url.setDisplayName(m_fileHndlr->convToRelPath(m_fileHndlr->relSrcFilePath(srcRef.fileNo)) + '#' +
                       QString::number(srcRef.lineNo + 1));
    return url;
}

QUrl AsmFeMsgHndlr::helpUrl(const char* key)
{
    QUrl url("pageid://asmFeMessages");
    url.setFragment(QString::fromLatin1(key));
    return url;
}

} // namespace nsModAsmFe
