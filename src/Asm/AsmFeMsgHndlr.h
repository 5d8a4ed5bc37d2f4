#pragma once

#include "AsmFeMsgCatalogue.h"
#include "ModMsgHookIf.h"
#include "ModMsgPluginIf.h"
#include "SrcReference.h"

#include <QMap>
#include <QObject>
#include <QUrl>

namespace nsModAsmFe {

class AsmFeFileHndlr;

/// Gives all assembler messages their text, their help link and their link into the sources.
class AsmFeMsgHndlr : public QObject, public ModMsgPluginIf
{
    Q_OBJECT

public:
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
    /// Opens a group that has a text of its own and no help.
    void openGroup(const QString& text);
    /// Closes the innermost group.
    void closeGroup(bool success);
    /// Empties the message view.
    void clearMessages();
    /// An error that earlier checks should have made impossible.
    void signInternalError(QString text);
    /// Shows a message of the catalogue, for those who report through a hook of their own.
    /// @param hook may be null: nothing is shown then
    static void showMsg(ModMsgHookIf* hook, eMsgType_t type, const nsModMsg::MsgUrl& link,
                        const QString& arg1 = QString(), const QString& arg2 = QString(),
                        const QString& arg3 = QString());

    /// Number of errors since forgetErrors() in each source that has some, by absolute path.
    QMap<QString, int> errorsOfFiles() const { return m_errorsOfFiles; }
    void forgetErrors() { m_errorsOfFiles.clear(); }

    /// The link to a position, with the relative path and the line as its display name.
    nsModMsg::MsgUrl srcUrl(const SrcReference& srcRef) const;

private:
    static QUrl helpUrl(const char* key);

    AsmFeFileHndlr* m_fileHndlr;
    QMap<QString, int> m_errorsOfFiles;
};

} // namespace nsModAsmFe
