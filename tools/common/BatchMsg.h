#pragma once

#include "ModMsgHookIf.h"

#include <QStringList>

namespace nsBatch {

/// Which messages are printed, and how.
struct BatchMsgStyle
{
    bool json = false;    ///< one object a line on standard output, instead of text on standard error
    bool werror = false;  ///< warnings make the run fail, except for those of `harmless`
    QStringList harmless; ///< keys of warnings that never make the run fail
    bool quiet = false;   ///< errors alone
    bool verbose = false; ///< info messages and groups too
};

/// The message service of a program without a window: prints each message as it comes, and counts.
class BatchMsg : public ModMsgHookIf
{
public:
    explicit BatchMsg(const BatchMsgStyle& style);

    int errors() const { return m_errors; }
    int warnings() const { return m_warnings; }
    /// Number of warnings that make the run fail.
    int fatalWarnings() const { return m_fatalWarnings; }

    // ModMsgHookIf
    void registerPlugin(ModMsgPluginIfInterMod* plugin) override;
    void unregisterPlugin(ModMsgPluginIfInterMod* plugin) override;
    void registerPlugin(ModMsgPluginIf* plugin) override;
    void unregisterPlugin(ModMsgPluginIf* plugin) override;
    void registerPluginUrlHndlr(eUrlHndlr_t, ModMsgPluginIfUrlHndlr*) override {}
    void unregisterPluginUrlHndlr(eUrlHndlr_t, ModMsgPluginIfUrlHndlr*) override {}
    /// Messages that were printed stay printed.
    void clearMessages() override {}
    void openMessageGroup(QString text, QUrl hlpDoc) override;
    void closeMessageGroup(bool success) override;
    void showMessage(eMsgType_t type, QString text, QUrl hlpDoc, nsModMsg::MsgUrl srcFile) override;
    void showInfoMessage(QString text, QUrl hlpDoc, nsModMsg::MsgUrl srcFile) override;
    void showWarningMessage(QString text, QUrl hlpDoc, nsModMsg::MsgUrl srcFile) override;
    void showErrorMessage(QString text, QUrl hlpDoc, nsModMsg::MsgUrl srcFile) override;

private:
    bool isFatal(const QString& key) const { return m_style.werror && !m_style.harmless.contains(key); }
    bool isShown(eMsgType_t type, const QString& key) const;
    void printText(eMsgType_t type, const QString& text, const QString& key, const QString& file, int line);
    void printJson(eMsgType_t type, const QString& text, const QString& key, const QString& file, int line);

    BatchMsgStyle m_style;
    QStringList m_groups;
    int m_errors = 0;
    int m_warnings = 0;
    int m_fatalWarnings = 0;
};

} // namespace nsBatch
