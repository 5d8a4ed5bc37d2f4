#pragma once

#include "CfgLookAccess.h"
#include "CfgTree.h"
#include "ModActionPluginIf.h"
#include "ModCfgAppPluginIf.h"
#include "ModConfigPluginIf.h"
#include "ModGuiPluginIf.h"
#include "ModHlpPluginIf.h"
#include "ModMsgPluginIf.h"
#include "ModPluginIf.h"
#include "ModPrjHookIf.h"
#include "ModPrjPluginIf.h"
#include "ModScriptPluginIf.h"
#include "MsgGroup.h"
#include "PluginList.h"
#include "PrjActions.h"
#include "PrjConfig.h"
#include "Project.h"

#include <QPointer>

#include <functional>

namespace nsModPrj {

class PrjConfigPage;
class PrjHome;
class PrjMngrWidget;

/// The open project. The module's own tree holds the project's settings; clients read and write their keys in it.
///
/// A project is open exactly while the path of its file is not empty. Closing saves, without a question. Sections of
/// the file that no client knows stay in the tree and are written back.
///
/// In a program without a main window (no ModGuiHookIf) only savePrjCfg() writes the project: closing drops it.
class ModPrj : public CfgTree,
               public CfgLookAccess<ModPrjHookIf>,
               public ModPluginIf,
               public ModCfgAppPluginIf,
               public ModMsgPluginIf,
               public ModGuiPluginIf,
               public ModHlpPluginIf,
               public ModConfigPluginIfDflt,
               public ModActionPluginIf,
               public ModScriptPluginIf,
               public PrjConfig
{
    Q_OBJECT

public:
    explicit ModPrj(QObject* parent = nullptr);
    ~ModPrj() override;

    /// Closes the open project, then opens the file.
    /// @param earlier what happens to the messages in the view
    /// @return false: the file can not be read, which was reported; no project is open then
    bool openPrj(QString file, nsModMsg::MsgGroup::eEarlier_t earlier = nsModMsg::MsgGroup::eClearEarlier);
    /// Saves and closes the project.
    /// @return false: there is none, which was reported
    bool closePrj();

    /// The tabs of the project manager.
    enum eMode_t { eModeNew = 0, eModeOpen = 1 };
    /// Shows the page of the project manager; does nothing without a main window.
    void prjMngrSetup();
    /// Removes the page; what has changed on it is lost.
    void prjMngrClose();
    /// Brings a tab of the page to the front, if the page is shown.
    void prjMngrSetMode(eMode_t mode);
    /// Takes the page's list as the collection and saves it.
    void prjMngrFetchCollection();
    /// Lists a project on the page.
    /// @return false: the file can not be read, which was reported, or there is no page
    bool prjMngrAddToCollection(const QString& file);
    /// Creates a project file that holds only title, version and comment. If the open project has this file it is
    /// closed.
    /// @return false: the file can not be written, which was reported
    bool prjMngrGenerate(const QString& file, const QString& title);
    /// Absolute paths of the projects that the user has collected.
    QStringList collection() const { return m_collection; }

    /// Reads a project file into a tree and reports what is wrong with it.
    bool readPrjFile(CfgTree* tree, QString file);
    /// Writes a tree as a project file and reports what is wrong.
    bool savePrjFile(CfgTree* tree, QString file);
    /// Takes title, version and comment out of the tree; a missing one becomes a null string.
    static void rdPrjInfo(CfgTree* tree, PrjConfig* config);
    static void wrPrjInfo(CfgTree* tree, const PrjConfig& config);

    /// The same as openPrj() and closePrj(), for scripts.
    Q_INVOKABLE bool open(QString file) override;
    Q_INVOKABLE void close();
    /// A project is open.
    Q_INVOKABLE bool isOpen();
    /// Writes the project's settings into its file. @return false: there is none, or it can not be written; reported
    Q_INVOKABLE bool save();
    /// The file of the open project with its folder; empty if none is open.
    Q_INVOKABLE QString path();
    /// hndlAction() by number: 0 "New project...", 1 "Open project...", 2 "Close project"; any other does nothing.
    Q_INVOKABLE void hndlAction(int action);

    // ModPrjHookIf
    void registerPlugin(ModPrjPluginIfInterMod* plugin) override;
    void unregisterPlugin(ModPrjPluginIfInterMod* plugin) override;
    void registerPlugin(ModPrjPluginIf* plugin) override;
    void unregisterPlugin(ModPrjPluginIf* plugin) override;
    bool isValid() override;
    void savePrjCfg() override;
    using CfgLookAccess::font;
    using CfgLookAccess::setFont;
    using CfgLookAccess::setValue;
    using CfgLookAccess::value;
    QDir prjDir() override;
    QString prjFileName() override;
    QString convToRelPath(QString path) override;
    void convToRelPath(QString* path) override;
    QString convToAbsPath(QString path) override;
    void convToAbsPath(QString* path) override;
    QString prjTitle() override;
    QString prjVersion() override;
    QString prjComment() override;
    void stepsChanged() override;
    void showNewProject(std::function<void()> opened) override;

    // ModPluginIf
    void modRegisterPlugins(QList<ModPluginIf*> modules) override;
    void modInit() override;
    void modInitIntermod() override;
    void modRun() override;
    bool modExitRequest() override;
    void modExitIntermod() override;
    void modExit() override;

    // ModCfgAppPluginIf
    void rdAppCfg() override;
    void wrAppCfg() override;

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

public slots:
    void hndlAction(nsModPrj::PrjActions::eAction_t action);
    void prjMngrHndlEventGenerateAdd(QString file, QString title);
    void prjMngrHndlEventGenerateOpen(QString file, QString title);
    void prjMngrHndlEventAdd(QString file);
    void prjMngrHndlEventOpen(QString file);
    void prjMngrHndlEventClose();
    void prjMngrHndlEventCancel();

private:
    /// The message service for the groups of open and close; null in a batch program, whose messages nobody clears.
    ModMsgHookIf* groupHook() const;
    static QString openingText(const QString& file);
    bool openPrjInGroup(const QString& file);
    /// savePrjCfg() with its result.
    bool saveOpenPrj();
    /// After a failed save at the end of the program.
    bool askToTryAgain();
    /// prjMngrGenerate() with what the page offers besides.
    bool generateFromPage(const QString& file, const QString& title);
    void setupHome();
    void openProjectByDialog();
    void setWindowTitle();
    void updateCloseAction();
    void info(const QString& text);
    void warning(const QString& text);
    void error(const QString& text);

    Project m_project;   ///< over this module's tree
    int m_openCount = 0; ///< number of projects opened so far, to detect that another project was opened
    bool m_saving = false;
    bool m_exiting = false; ///< the program ends
    bool m_closing = false;
    PrjActions* m_actions = nullptr;   ///< null in a program without menus
    QPointer<PrjConfigPage> m_page;    ///< while the configuration dialog is open
    QPointer<PrjMngrWidget> m_prjMngr; ///< while the project manager is shown
    PrjHome* m_home = nullptr;         ///< null without a window
    std::function<void()> m_afterNew;  ///< when a project that was made on its page is open; null: nothing
    QStringList m_collection;          ///< key "PrjMngr/collection"
    PluginList<ModPrjPluginIf> m_plugins;
};

} // namespace nsModPrj
