#pragma once

#include "HlpActionsHelp.h"
#include "HlpActionsNavi.h"
#include "HlpCollection.h"
#include "HlpConfig.h"
#include "HlpSourceIf.h"
#include "ModActionPluginIf.h"
#include "ModCfgAppPluginIf.h"
#include "ModClipboardPluginIf.h"
#include "ModConfigPluginIf.h"
#include "ModFindReplacePluginIf.h"
#include "ModGuiPluginIf.h"
#include "ModHlpHookIf.h"
#include "ModHlpPluginIf.h"
#include "ModMsgPluginIf.h"
#include "ModNetworkPluginIf.h"
#include "ModPluginIf.h"
#include "ModPrjPluginIf.h"
#include "ModScriptPluginIf.h"
#include "PluginList.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>

#include <memory>
#include <optional>

class QHelpEngine;
class QWebView;

namespace nsModHlp {

class HlpConfigPage;
class HlpDialogWindow;
class HlpIndexWidget;
class HlpNetworkAccessManager;
class HlpWidget;

/// The help: pages as tabs of the centre, beside dialogs, and a panel with contents, index and search.
class ModHlp : public QObject,
               public ModHlpHookIf,
               public ModPluginIf,
               public ModCfgAppPluginIf,
               public ModPrjPluginIf,
               public ModMsgPluginIf,
               public ModMsgPluginIfUrlHndlr,
               public ModGuiPluginIf,
               public ModConfigPluginIfDflt,
               public ModActionPluginIf,
               public ModNetworkPluginIf,
               public ModFindReplacePluginIf,
               public ModClipboardPluginIf,
               public ModScriptPluginIf,
               public HlpConfig,
               public HlpSourceIf
{
    Q_OBJECT

public:
    explicit ModHlp(QObject* parent = nullptr);
    ~ModHlp() override;

    /// Opens the collection that belongs to the program file. Done after the window is seen, or when the first page is
    /// wanted. @return false: there is none that can be used
    bool setupData();
    /// The program file beside which the collection lies, instead of the running one. Before modInitIntermod().
    void setProgramFile(const QString& file) { m_programFile = file; }
    /// The open pages of the centre, in the order in which they were opened.
    QList<HlpWidget*> pages() const { return m_pages; }

    // HlpSourceIf
    HlpNetworkAccessManager* network() override;
    bool isReady() const override;

    // ModHlpHookIf
    void showDialogHlpRef(QWidget* dialog, QString ref) override;
    void showHlp(QUrl url) override { openFile(url); }
    void closeDialogHlp(QWidget* dialog) override;

    // ModMsgPluginIfUrlHndlr
    void handleUrl(QUrl url) override { openFile(url); }

    // ModPluginIf
    void modRegisterPlugins(QList<ModPluginIf*> modules) override;
    void modInit() override;
    void modInitIntermod() override;
    void modRun() override;
    bool modExitRequest() override { return true; }
    void modExitIntermod() override;
    void modExit() override;

    // ModCfgAppPluginIf
    void rdAppCfg() override;
    void wrAppCfg() override;

    // ModPrjPluginIf
    void prjOpen() override;
    void prjOpened() override {}
    void prjSave() override;
    void prjClose() override {}

    // ModGuiPluginIf
    void removeWidgetRequest(QWidget* widget) override;
    void setFocus(ModGuiHookIf::eLocation_t location, ModGuiPluginIf* plugin, QWidget* widget) override;

    // ModConfigPluginIf
    nsModConfig::ModConfigPagePluginIf* configPage(int index) override;
    void configPageSetConfig(nsModConfig::ModConfigPagePluginIf* page) override;
    void configPageClose(bool accepted) override;
    void configPagesClosed(bool accepted) override;

    // ModActionPluginIf
    QList<QAction*> menuActions(ModActionHookIf::eActionClass_t actionClass) override;
    QList<QAction*> toolBarActions(ModActionHookIf::eActionClass_t actionClass) override;

    // ModFindReplacePluginIf
    QString findInit() override;
    void findExit() override {}
    void findNext(bool configChanged) override;
    void findPrev(bool configChanged) override;
    void replace(bool) override {}
    void replaceAll(bool) override {}

    // ModClipboardPluginIf
    void clipboardAction(ModClipboardHookIf::eClipboardFeature_t feature) override;

    void registerPlugin(ModHlpPluginIf* plugin);

    /// Opens the page about a widget: about the word at its text cursor; else about the page or panel that it is a part
    /// of, which says so by its property "helpRef"; else the first page. In front of a modal dialog, if there is one.
    void explain(QWidget* widget);
    /// Shows what a widget is: its own short text, or that of what it is a part of. Without any, the next click chooses
    /// what is explained.
    void whatsThis(QWidget* widget);

    /// Of the whole program: opens the pages that the links of these short texts name, what a dialog's button or F1 in
    /// a dialog asks for, and the collection once the window is painted.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /// The module is about to be deleted.
    void vanishing();

public slots:
    /// Opens a page: "pageid://" and the id of a page, or a file of the collection. A link to the web opens in the
    /// user's browser.
    void openFile(QUrl url);
    void closeAllFiles();
    /// Closes the current page.
    void closeFile();
    void closeFile(QWidget* widget);

private slots:
    void openFile(QWebView** view);
    void openPsmFile(QUrl url);
    void enableActions(nsModHlp::HlpWidget* widget);
    void setFileName(QWidget* widget, QString title);
    void callScript(QString script);
    void handleActions(nsModHlp::HlpActionsHelp::eAction_t action);
    void handleActions(nsModHlp::HlpActionsNavi::eAction_t action);

private:
    /// What the project keeps.
    struct sOpenPages_t
    {
        QStringList files;
        QString current; ///< empty if no help page is current
    };

    HlpWidget* currentPage() const;
    HlpWidget* pageAt(const QUrl& url) const;
    sOpenPages_t openPages() const;
    HlpWidget* addPage();
    void showDialogHlp(QWidget* dialog, const QUrl& url);
    void showIndexWidget();
    void makeReady();
    void openCollection();
    void closeCollection();
    static QUrl pageStart();
    void openStart();
    void openDueStart();
    QHelpEngine* openedEngine();
    void dropPage(HlpWidget* page);
    void dropWindow();
    void deleteSoon(QWidget* widget);
    void show(const QUrl& url);
    void find(bool backwards);
    QUrl urlOfWord(const QString& word);

    PluginList<ModHlpPluginIf> m_plugins;
    QString m_programFile; ///< empty: the running program
    HlpCollection m_collection;
    HlpNetworkAccessManager* m_network = nullptr; ///< null until it is needed
    HlpActionsHelp* m_actionsHelp = nullptr;
    HlpActionsNavi* m_actionsNavi = nullptr;
    QPointer<HlpIndexWidget> m_index;
    QPointer<HlpDialogWindow> m_window;        ///< in front of a modal dialog
    QPointer<HlpConfigPage> m_configPage;      ///< null while the settings dialog is closed
    QList<HlpWidget*> m_pages;                 ///< of the centre
    QHash<QWidget*, HlpWidget*> m_dialogPages; ///< by the dialog that they stand beside
    std::unique_ptr<QWidget> m_closedPages;    ///< holds those that are deleted later
    bool m_isStartDue = false;                 ///< the first page opens as soon as the window is seen
    std::optional<sOpenPages_t> m_lastPages;   ///< those of the end: the project is saved when they are closed
};

} // namespace nsModHlp
