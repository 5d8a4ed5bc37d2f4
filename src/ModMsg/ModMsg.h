#pragma once

#include "ModGuiPluginIf.h"
#include "ModMsgHookIf.h"
#include "ModPluginIf.h"
#include "ModScriptPluginIf.h"
#include "PluginList.h"

#include <QObject>
#include <QPointer>
#include <QVariantList>

#include <vector>

namespace nsModMsg {

class MsgStatusBar;
class MsgViewer;

/// The message service: shows what the modules report in the view at the bottom of the window, and passes clicked links
/// on.
///
/// Visible to scripts as "msg". Calls before modInit() show nothing.
class ModMsg : public QObject, public ModMsgHookIf, public ModPluginIf, public ModGuiPluginIf, public ModScriptPluginIf
{
    Q_OBJECT

public:
    explicit ModMsg(QWidget* parent = nullptr);
    ~ModMsg() override;

    // ModMsgHookIf
    void registerPlugin(ModMsgPluginIfInterMod* plugin) override;
    void unregisterPlugin(ModMsgPluginIfInterMod* plugin) override;
    void registerPlugin(ModMsgPluginIf* plugin) override;
    void unregisterPlugin(ModMsgPluginIf* plugin) override;
    void registerPluginUrlHndlr(eUrlHndlr_t kind, ModMsgPluginIfUrlHndlr* handler) override;
    void unregisterPluginUrlHndlr(eUrlHndlr_t kind, ModMsgPluginIfUrlHndlr* handler) override;
    Q_INVOKABLE void clearMessages() override;
    void openMessageGroup(QString text, QUrl hlpDoc) override;
    Q_INVOKABLE void closeMessageGroup(bool success) override;
    void showMessage(eMsgType_t type, QString text, QUrl hlpDoc, MsgUrl srcFile) override;
    void showInfoMessage(QString text, QUrl hlpDoc, MsgUrl srcFile) override;
    void showWarningMessage(QString text, QUrl hlpDoc, MsgUrl srcFile) override;
    void showErrorMessage(QString text, QUrl hlpDoc, MsgUrl srcFile) override;

    int messageGroupDepth() const override;
    QVector<sMessage> messagesOfRun() const override;
    void selectMessage(int row) override;

    // What scripts call.
    Q_INVOKABLE void openMessageGroup(QString text);
    Q_INVOKABLE void showInfoMessage(QString text);
    Q_INVOKABLE void showInfoMessage(QString text, QUrl hlpDoc);
    Q_INVOKABLE void showWarningMessage(QString text);
    Q_INVOKABLE void showWarningMessage(QString text, QUrl hlpDoc);
    Q_INVOKABLE void showErrorMessage(QString text);
    Q_INVOKABLE void showErrorMessage(QString text, QUrl hlpDoc);
    /// The messages since the last call of clearMessages(), with which each run of the assembler begins; also those of
    /// a run within a group, which clears nothing. Groups and their closing lines are left out.
    /// @return a map each: "grade" ("info", "warning", "error"), "text", "file" (empty if there is none), "line" (from
    /// 1 on, 0 if there is none)
    Q_INVOKABLE QVariantList messages() const;
    /// The same of all that stands in the view.
    Q_INVOKABLE QVariantList allMessages() const;
    /// Number of errors, or warnings, among messages().
    Q_INVOKABLE int errorCount() const;
    Q_INVOKABLE int warningCount() const;

    // ModPluginIf
    void modRegisterPlugins(QList<ModPluginIf*> modules) override;
    void modInit() override;
    void modInitIntermod() override;
    void modRun() override {}
    bool modExitRequest() override { return true; }
    void modExitIntermod() override;
    void modExit() override {}

    // ModGuiPluginIf: the view stays where it is.
    void removeWidgetRequest(QWidget*) override {}
    void setFocus(ModGuiHookIf::eLocation_t, ModGuiPluginIf*, QWidget*) override {}

private slots:
    void showHlpUrl(QUrl url);
    void showSrcUrl(QUrl url);
    void showFirstWorst();

private:
    using UrlHndlrList = PluginList<ModMsgPluginIfUrlHndlr>;

    /// A message that stands in the view.
    struct sRecord_t
    {
        eMsgType_t grade;
        QString text;
        QUrl place;
    };

    UrlHndlrList* urlHndlrs(eUrlHndlr_t kind);
    QVariantList messagesFrom(size_t first) const;
    void showCounts();

    QPointer<MsgViewer> m_viewer;       ///< in the bottom dock, which owns it; ours while it stands nowhere
    QPointer<MsgStatusBar> m_statusBar; ///< null without a window
    PluginList<ModMsgPluginIf> m_plugins;
    UrlHndlrList m_hlpUrlHndlrs;
    UrlHndlrList m_srcUrlHndlrs;
    std::vector<sRecord_t> m_records;
    int m_counts[3] = {};     ///< by grade, since the last call of clearMessages()
    size_t m_runStart = 0;    ///< first record since the last call of clearMessages()
    bool m_isClosing = false; ///< the closing line of a group is shown
};

} // namespace nsModMsg
