#pragma once

#include "ImportActions.h"
#include "ImportProgramConfig.h"
#include "ModActionPluginIf.h"
#include "ModCfgAppPluginIf.h"
#include "ModEditorPluginIf.h"
#include "ModGuiPluginIf.h"
#include "ModHlpPluginIf.h"
#include "ModMsgPluginIf.h"
#include "ModPluginIf.h"
#include "ModPrjPluginIf.h"
#include "ModScriptPluginIf.h"

#include <QObject>
#include <QPointer>
#include <QThreadPool>

namespace nsModImport {

class ImportProgramDialog;
class ImportWidget;

/// Opens and closes the import page, and gives its result to the editor. Scripts know this object as "importFiles".
///
/// The dialog that imports whole programs belongs to no project: it stays when one is closed.
class ModImport : public QObject,
                  public ModPluginIf,
                  public ModEditorPluginIf,
                  public ModMsgPluginIf,
                  public ModPrjPluginIf,
                  public ModHlpPluginIf,
                  public ModGuiPluginIf,
                  public ModScriptPluginIf,
                  public ModActionPluginIf,
                  public ModCfgAppPluginIf
{
    Q_OBJECT

public:
    explicit ModImport(QObject* parent = nullptr);
    ~ModImport() override;

    /// Opens the page; does nothing while it is open.
    Q_INVOKABLE void openImportDialog();
    Q_INVOKABLE void closeImportDialog();
    /// Opens the page with a source and a filter. What can not be done is an error of the script that calls.
    /// @param srcFile absolute, or relative to the project's folder
    Q_INVOKABLE void importFile(QString srcFile, QString filterName);
    /// Shows the dialog that imports whole programs; one that is open comes to the front.
    void openImportProgramDialog();

    // ModPluginIf
    void modRegisterPlugins(QList<ModPluginIf*>) override {}
    void modInit() override;
    void modInitIntermod() override;
    void modRun() override {}
    bool modExitRequest() override { return true; }
    void modExitIntermod() override;
    void modExit() override;

    // ModPrjPluginIf
    void prjOpen() override;
    void prjOpened() override {}
    void prjSave() override {}
    void prjClose() override;
    QList<PrjStep> prjSteps() override;

    // ModGuiPluginIf
    void removeWidgetRequest(QWidget* widget) override;
    void setFocus(ModGuiHookIf::eLocation_t, ModGuiPluginIf*, QWidget*) override {}

    // ModActionPluginIf
    QList<QAction*> menuActions(ModActionHookIf::eActionClass_t actionClass) override;
    QList<QAction*> toolBarActions(ModActionHookIf::eActionClass_t actionClass) override;

    // ModCfgAppPluginIf
    void rdAppCfg() override;
    void wrAppCfg() override;

public slots:
    /// Opens the text as a new document; the page stays open.
    void useFile(QString srcCode);

private:
    void showPlace(const QString& file, int line);
    void openProject(const QString& file);
    void openSoon();

    ImportActions* m_actions = nullptr;
    ImportProgramActions* m_programActions = nullptr;
    ImportWidget* m_widget = nullptr; ///< null while the page is closed
    ImportProgramConfig m_programConfig;
    /// Imports that were stopped end here, before the program does. Two, so that a new one need not wait for such.
    QThreadPool m_pool;
    QPointer<ImportProgramDialog> m_programDialog;
};

} // namespace nsModImport
