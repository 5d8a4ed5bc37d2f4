#pragma once

#include "AsmFeMsgCatalogue.h"
#include "ModMsgHookIf.h"
#include "ModMsgPluginIf.h"
#include "SrcReference.h"

#include <QObject>
#include <QUrl>

#include <vector>

namespace nsModAsmFe {

class AsmFeFileHndlr;

/// The one place where assembler messages get their words, their help link and their link into the sources.
class AsmFeMsgHndlr : public QObject, public ModMsgPluginIf
{
    Q_OBJECT

public:
    /// A message that was held back.
    struct sHeldMsg_t
    {
        int type;
        bool hasSrcRef;
        SrcReference srcRef;
        QString arg1;
        QString arg2;
        QString arg3;
    };
    using HeldMsgs = std::vector<sHeldMsg_t>;

    /// @param fileHndlr turns file numbers into paths; not owned, must outlive the handler
    explicit AsmFeMsgHndlr(AsmFeFileHndlr* fileHndlr, QObject* parent = nullptr);

    /// Shows a message at a position.
    /// @param srcRef may be null: the message then has no link
    void signMsg(eMsgType_t type, const SrcReference* srcRef, QString arg1 = QString(), QString arg2 = QString(),
                 QString arg3 = QString());
    /// Shows a message without a position.
    void signMsg(eMsgType_t type, QString arg1 = QString(), QString arg2 = QString(), QString arg3 = QString());
    /// Opens a message group.
    void signMsgGroup(eMsgGrp_t group, QString arg1 = QString());
    /// An error that earlier checks should have made impossible.
    void signInternalError(QString text);
    /// An error of the file layer and of limits, which stands in no catalogue.
    void signError(QString text, const SrcReference* srcRef = nullptr);

    /// The link to a position, with the relative path and the line as its display name.
    nsModMsg::MsgUrl srcUrl(const SrcReference& srcRef) const;

    /// While set, messages go into the list instead of the view. Groups and internal errors are not held back.
    /// @param held null shows messages again; not owned
    /// @return what was set before
    HeldMsgs* setHeldMsgs(HeldMsgs* held);
    /// Shows, or holds back in turn, what was held back.
    void signHeldMsgs(HeldMsgs held);

private:
    QUrl helpUrl(const char* key) const;

    AsmFeFileHndlr* m_fileHndlr;
    HeldMsgs* m_held = nullptr;
};

} // namespace nsModAsmFe
