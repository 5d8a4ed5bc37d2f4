#pragma once

#include "ModMsgHookIf.h"
#include "ModMsgPluginIf.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

/// Stands in for the message service: records everything that is reported, in order.
///
/// Hand it to a client with attach(), or let the code under test register itself.
class FakeMsgHook : public ModMsgHookIf
{
public:
    enum eKind_t { kindMessage, kindGroupOpen, kindGroupClose, kindClear };

    struct Entry
    {
        eKind_t kind = kindMessage;
        int type = eMsgInfo;      ///< grade; of a group that closes: eMsgInfo on success, else eMsgError
        QString text;             ///< text of the message or of the group
        QUrl hlpDoc;              ///< help link
        nsModMsg::MsgUrl srcFile; ///< source link
        int depth = 0;            ///< number of groups around the message
        QString group;            ///< text of the innermost group around the message
        bool success = true;      ///< argument of closeMessageGroup()
        QString key() const { return hlpDoc.fragment(); } ///< key of the message, which is the help link's fragment
        int line() const { return srcFile.fragment().toInt(); } ///< line of the source link, counted from 0
    };

    /// Sets the client's hook member, as the server would.
    template <class Plugin>
    void attach(Plugin* plugin)
    {
        plugin->modMsgHook = this;
    }

    void registerPlugin(ModMsgPluginIfInterMod* plugin) override { setHook(plugin, this); }
    void unregisterPlugin(ModMsgPluginIfInterMod* plugin) override { setHook(plugin, nullptr); }
    void registerPlugin(ModMsgPluginIf* plugin) override { setHook(plugin, this); }
    void unregisterPlugin(ModMsgPluginIf* plugin) override { setHook(plugin, nullptr); }
    void registerPluginUrlHndlr(eUrlHndlr_t kind, ModMsgPluginIfUrlHndlr* handler) override
    {
        QList<ModMsgPluginIfUrlHndlr*>& list = kind == eUrlHndlrHelp ? helpHandlers : sourceHandlers;
        if (handler != nullptr && !list.contains(handler))
            list.append(handler);
    }
    void unregisterPluginUrlHndlr(eUrlHndlr_t kind, ModMsgPluginIfUrlHndlr* handler) override
    {
        (kind == eUrlHndlrHelp ? helpHandlers : sourceHandlers).removeAll(handler);
    }

    /// Records the call and, as the real service, drops what was shown; inside a group it does nothing.
    void clearMessages() override
    {
        if (!openGroups.isEmpty())
            return;
        if (dropOnClear)
            log.clear();
        Entry entry;
        entry.kind = kindClear;
        append(entry);
    }
    void openMessageGroup(QString text, QUrl hlpDoc = QUrl()) override
    {
        Entry entry;
        entry.kind = kindGroupOpen;
        entry.text = text;
        entry.hlpDoc = hlpDoc;
        append(entry);
        openGroups.append(text);
    }
    void closeMessageGroup(bool success) override
    {
        Entry entry;
        entry.kind = kindGroupClose;
        entry.success = success;
        entry.type = success ? eMsgInfo : eMsgError;
        if (openGroups.isEmpty())
            ++surplusCloses;
        else
            entry.text = openGroups.takeLast();
        append(entry);
    }
    void showMessage(eMsgType_t type, QString text, QUrl hlpDoc = QUrl(),
                     nsModMsg::MsgUrl srcFile = nsModMsg::MsgUrl()) override
    {
        Entry entry;
        entry.type = type;
        entry.text = text;
        entry.hlpDoc = hlpDoc;
        entry.srcFile = srcFile;
        append(entry);
    }
    void showInfoMessage(QString text, QUrl hlpDoc = QUrl(), nsModMsg::MsgUrl srcFile = nsModMsg::MsgUrl()) override
    {
        showMessage(eMsgInfo, text, hlpDoc, srcFile);
    }
    void showWarningMessage(QString text, QUrl hlpDoc = QUrl(), nsModMsg::MsgUrl srcFile = nsModMsg::MsgUrl()) override
    {
        showMessage(eMsgWarning, text, hlpDoc, srcFile);
    }
    void showErrorMessage(QString text, QUrl hlpDoc = QUrl(), nsModMsg::MsgUrl srcFile = nsModMsg::MsgUrl()) override
    {
        showMessage(eMsgError, text, hlpDoc, srcFile);
    }

    int messageGroupDepth() const override { return openGroups.size(); }

    /// Messages alone, without groups.
    QList<Entry> messages() const
    {
        QList<Entry> result;
        for (const Entry& entry : log) {
            if (entry.kind == kindMessage)
                result.append(entry);
        }
        return result;
    }
    QList<Entry> messages(eMsgType_t type) const
    {
        QList<Entry> result;
        for (const Entry& entry : log) {
            if (entry.kind == kindMessage && entry.type == type)
                result.append(entry);
        }
        return result;
    }
    QStringList texts() const { return textsOf(messages()); }
    QStringList texts(eMsgType_t type) const { return textsOf(messages(type)); }
    QStringList infos() const { return texts(eMsgInfo); }
    QStringList warnings() const { return texts(eMsgWarning); }
    QStringList errors() const { return texts(eMsgError); }
    /// Keys of all messages of the grade, in order.
    QStringList keys(eMsgType_t type) const
    {
        QStringList result;
        for (const Entry& entry : messages(type))
            result.append(entry.key());
        return result;
    }
    /// Texts of all groups that were opened, in order.
    QStringList groups() const
    {
        QStringList result;
        for (const Entry& entry : log) {
            if (entry.kind == kindGroupOpen)
                result.append(entry.text);
        }
        return result;
    }
    /// Everything as one line each, such as "error: text", indented by two blanks a group; for messages of failed
    /// tests.
    QString dump() const
    {
        static const char* const grades[] = {"info", "warning", "error"};
        QString result;
        for (const Entry& entry : log) {
            result += QString(2 * entry.depth, QLatin1Char(' '));
            if (entry.kind == kindGroupOpen)
                result += QLatin1String("group: ") + entry.text;
            else if (entry.kind == kindGroupClose)
                result += QLatin1String(entry.success ? "done: " : "failure: ") + entry.text;
            else if (entry.kind == kindClear)
                result += QLatin1String("clear");
            else
                result += QLatin1String(entry.type >= 0 && entry.type <= 2 ? grades[entry.type] : "bad grade") +
                          QLatin1String(": ") + entry.text;
            result += QLatin1Char('\n');
        }
        return result;
    }
    /// Forgets everything, open groups included.
    void reset()
    {
        log.clear();
        openGroups.clear();
        surplusCloses = 0;
    }

    QList<Entry> log;        ///< everything, in order
    QStringList openGroups;  ///< texts of the groups that are open now, outermost first
    int surplusCloses = 0;   ///< closes without an open group
    bool dropOnClear = true; ///< knob: false keeps the log over clearMessages()
    QList<ModMsgPluginIfUrlHndlr*> helpHandlers;
    QList<ModMsgPluginIfUrlHndlr*> sourceHandlers;

private:
    template <class Plugin>
    void setHook(Plugin* plugin, ModMsgHookIf* hook)
    {
        if (plugin != nullptr)
            plugin->modMsgHook = hook;
    }
    void append(Entry entry)
    {
        entry.depth = openGroups.size();
        entry.group = openGroups.isEmpty() ? QString() : openGroups.last();
        log.append(entry);
    }
    static QStringList textsOf(const QList<Entry>& entries)
    {
        QStringList result;
        for (const Entry& entry : entries)
            result.append(entry.text);
        return result;
    }
};
