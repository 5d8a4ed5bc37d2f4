#pragma once

#include "MsgUrl.h"

#include <QString>
#include <QUrl>
#include <QVector>

class ModMsgPluginIf;
class ModMsgPluginIfInterMod;
class ModMsgPluginIfUrlHndlr;

/// The one channel through which the program reports to its user. Served by nsModMsg::ModMsg.
///
/// Messages can be nested in groups. A group shows the worst grade of its messages, and is folded if it has neither
/// warning nor error. Usable from modInit() of the modules that follow the server in the module list.
class ModMsgHookIf
{
public:
    /// Grade of a message. Any other value shows nothing.
    enum eMsgType_t { eMsgInfo = 0, eMsgWarning = 1, eMsgError = 2 };

    /// Kind of link that a URL handler answers.
    enum eUrlHndlr_t { eUrlHndlrHelp = 0, eUrlHndlrSource = 1 };

    virtual ~ModMsgHookIf() = default;

    /// Sets the hook member only; null is ignored.
    virtual void registerPlugin(ModMsgPluginIfInterMod* plugin) = 0;
    virtual void unregisterPlugin(ModMsgPluginIfInterMod* plugin) = 0;
    /// Enters the client into the list of clients; null and a known client are ignored.
    virtual void registerPlugin(ModMsgPluginIf* plugin) = 0;
    virtual void unregisterPlugin(ModMsgPluginIf* plugin) = 0;
    /// Enters a handler for clicked links of the kind; null and a known handler are ignored.
    virtual void registerPluginUrlHndlr(eUrlHndlr_t kind, ModMsgPluginIfUrlHndlr* handler) = 0;
    virtual void unregisterPluginUrlHndlr(eUrlHndlr_t kind, ModMsgPluginIfUrlHndlr* handler) = 0;

    /// Empties the view. Does nothing while a group is open.
    virtual void clearMessages() = 0;
    /// Opens a group inside the current one; further messages go into it.
    /// @param hlpDoc help link of the group, may be empty
    virtual void openMessageGroup(QString text, QUrl hlpDoc = QUrl()) = 0;
    /// Ends the innermost group with the line "Done" (success) or "Failure". Without an open group it does nothing.
    virtual void closeMessageGroup(bool success) = 0;
    /// @param hlpDoc help link, may be empty
    /// @param srcFile source link, may be empty
    virtual void showMessage(eMsgType_t type, QString text, QUrl hlpDoc = QUrl(),
                             nsModMsg::MsgUrl srcFile = nsModMsg::MsgUrl()) = 0;
    virtual void showInfoMessage(QString text, QUrl hlpDoc = QUrl(), nsModMsg::MsgUrl srcFile = nsModMsg::MsgUrl()) = 0;
    virtual void showWarningMessage(QString text, QUrl hlpDoc = QUrl(),
                                    nsModMsg::MsgUrl srcFile = nsModMsg::MsgUrl()) = 0;
    virtual void showErrorMessage(QString text, QUrl hlpDoc = QUrl(),
                                  nsModMsg::MsgUrl srcFile = nsModMsg::MsgUrl()) = 0;
    /// Number of groups that are open. A server without groups has none.
    virtual int messageGroupDepth() const { return 0; }

    /// A message that stands in the view.
    struct sMessage
    {
        eMsgType_t grade = eMsgInfo;
        QString text;
        QUrl place;  ///< source link, may be empty
        int row = 0; ///< for selectMessage()
    };

    /// The messages since clearMessages() was called last, in their order; without groups and their closing lines.
    virtual QVector<sMessage> messagesOfRun() const { return {}; }
    /// Shows a message in the view as the one that the user is at. The focus stays.
    /// @param row of a message that stands in the view
    virtual void selectMessage(int) {}
};
