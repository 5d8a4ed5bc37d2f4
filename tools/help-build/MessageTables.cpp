#include "MessageTables.h"

#include "AsmFeMsgCatalogue.h"
#include "ImportMsg.h"
#include "ProcAsmMsg.h"
#include "ProcSimMsg.h"
#include "ProcTables.h"
#include "SyscallMsgHndlr.h"

namespace nsHelpBuild {

namespace {

const char* const syscallPage = "syscallMessages";
const char* const importPage = "importMessages";

/// The prefix of a key is its grade.
MessageText messageText(const char* key, const char* text)
{
    MessageText message;
    message.text = QString::fromLatin1(text);
    const QLatin1String name(key);
    if (name.startsWith(QLatin1String("info")))
        message.grade = MessageText::gradeInfo;
    else if (name.startsWith(QLatin1String("warn")))
        message.grade = MessageText::gradeWarning;
    else if (name.startsWith(QLatin1String("err")))
        message.grade = MessageText::gradeError;
    else
        message.grade = MessageText::gradeGroup;
    return message;
}

template <class Row>
void take(MessageTexts* messages, const Row* (*rowOf)(int))
{
    for (int i = 0; rowOf(i) != nullptr; ++i)
        messages->insert(QString::fromLatin1(rowOf(i)->key), messageText(rowOf(i)->key, rowOf(i)->text));
}

void takeSyscall(MessageTexts* messages)
{
    using nsModSyscall::SyscallMsgHndlr;
    for (int i = 0; i < SyscallMsgHndlr::msgCount; ++i) {
        const auto type = SyscallMsgHndlr::eMsgType_t(i);
        const char* key = SyscallMsgHndlr::msgKey(type);
        messages->insert(QString::fromLatin1(key), messageText(key, SyscallMsgHndlr::msgText(type)));
    }
}

} // namespace

MessageTexts messagesOfPage(const QString& pageId)
{
    MessageTexts messages;
    const auto is = [&](const char* id) { return pageId.compare(QLatin1String(id), Qt::CaseInsensitive) == 0; };
    if (is("asmFeMessages")) {
        take(&messages, nsModAsmFe::msgText);
        take(&messages, nsModAsmFe::msgGrpText);
    }
    if (is(syscallPage))
        takeSyscall(&messages);
    if (is(importPage))
        take(&messages, nsImport::importMsg);
    for (const nsProc::ProcTable* table : nsProc::procTables()) {
        if (is(table->asmHelpPage))
            take(&messages, nsProc::asmMsg);
        if (is(table->simHelpPage))
            take(&messages, nsProc::simMsg);
    }
    return messages;
}

QStringList messagePages()
{
    QStringList ids{QStringLiteral("asmFeMessages")};
    for (const nsProc::ProcTable* table : nsProc::procTables())
        ids << QString::fromLatin1(table->asmHelpPage) << QString::fromLatin1(table->simHelpPage);
    return ids << QString::fromLatin1(syscallPage) << QString::fromLatin1(importPage);
}

QStringList entryPages()
{
    return messagePages() + QStringList{QStringLiteral("projectMessages"), QStringLiteral("otherMessages"),
                                        QStringLiteral("errMsgInternalError")};
}

} // namespace nsHelpBuild
