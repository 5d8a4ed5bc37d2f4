#include "ModImport.h"

#include "ImportProgramDialog.h"
#include "ImportWidget.h"

#include "HelpRef.h"
#include "ModCfgAppHookIf.h"
#include "ModEditorHookIf.h"
#include "ModGuiHookIf.h"
#include "ModHlpHookIf.h"
#include "ModMsgHookIf.h"
#include "ModPrjHookIf.h"
#include "ModScriptHookIf.h"

namespace nsModImport {

ModImport::ModImport(QObject* parent)
    : QObject(parent)
{
    m_pool.setMaxThreadCount(2);
}

ModImport::~ModImport()
{
    // One that is shown belongs to the window; its worker uses the pool.
    delete m_programDialog;
    // A page in the window is deleted with it.
    if (m_widget != nullptr && m_widget->parent() == nullptr)
        delete m_widget;
}

// --- the page ---

void ModImport::openImportDialog()
{
    if (m_widget != nullptr || modGuiHook == nullptr)
        return;
    m_widget = new ImportWidget;
    if (modPrjHook != nullptr)
        m_widget->setPrjPath(modPrjHook->prjDir().absolutePath());
    connect(m_widget, QOverload<QString>::of(&ImportWidget::useFile), this, &ModImport::useFile);
    connect(m_widget, &ImportWidget::importProgramRequested, this, &ModImport::openImportProgramDialog);
    // Whoever deletes the window's widgets deletes the page, too.
    connect(m_widget, &QObject::destroyed, this, [this](QObject* page) {
        if (page == m_widget)
            m_widget = nullptr;
    });
    if (modHlpHook != nullptr)
        modHlpHook->showDialogHlpRef(m_widget, QStringLiteral("pageId://filesImport"));
    modGuiHook->addWidget(this, ModGuiHookIf::eLocationTabs, m_widget, tr("Import files"));
    if (modMsgHook != nullptr)
        modMsgHook->registerPlugin(m_widget);
    m_widget->setFocus();
}

void ModImport::closeImportDialog()
{
    if (m_widget == nullptr)
        return;
    ImportWidget* page = m_widget;
    m_widget = nullptr;
    // A conversion that is in progress ends.
    page->stop();
    if (modMsgHook != nullptr)
        modMsgHook->unregisterPlugin(page);
    if (modGuiHook != nullptr)
        modGuiHook->removeWidget(page);
    if (modHlpHook != nullptr)
        modHlpHook->closeDialogHlp(page);
    page->disconnect(this);
    // Deleted later, as the call may come from within one of its operations.
    page->hide();
    page->deleteLater();
}

void ModImport::importFile(QString srcFile, QString filterName)
{
    openImportDialog();
    if (m_widget == nullptr)
        return;
    QString problem;
    if (!m_widget->setImportFilter(filterName))
        problem = tr("There is no import filter: ") + filterName;
    if (!m_widget->openFile(srcFile) && problem.isEmpty())
        problem = tr("Can not open file: ") + srcFile;
    if (!problem.isEmpty() && modScriptHook != nullptr)
        modScriptHook->throwError(problem);
}

void ModImport::useFile(QString srcCode)
{
    if (modEditorHook != nullptr)
        modEditorHook->newFile(srcCode);
}

// --- whole programs ---

void ModImport::openImportProgramDialog()
{
    if (modGuiHook == nullptr)
        return;
    if (!m_programDialog) {
        // The parent is the main window, whose style the dialog has and in front of which it stays.
        m_programDialog = new ImportProgramDialog(&m_pool, qobject_cast<QWidget*>(parent()));
        m_programDialog->setConfig(m_programConfig);
        m_programDialog->setCanOpenProject(modPrjHook != nullptr);
        HelpRef::set(m_programDialog, QStringLiteral("pageId://filesImport#program"));
        connect(m_programDialog, &ImportProgramDialog::placeRequested, this, &ModImport::showPlace);
        connect(m_programDialog, &ImportProgramDialog::openProjectRequested, this, &ModImport::openProject);
        connect(m_programDialog, &QDialog::finished, this, [this] {
            if (m_programDialog)
                m_programConfig = m_programDialog->config();
        });
    }
    m_programDialog->show();
    m_programDialog->raise();
    m_programDialog->activateWindow();
}

void ModImport::showPlace(const QString& file, int line)
{
    if (modEditorHook != nullptr)
        modEditorHook->setLineHighlighted(file, line - 1);
}

void ModImport::openProject(const QString& file)
{
    if (modPrjHook == nullptr)
        return;
    // The user is asked for what is not saved; anything may happen meanwhile.
    const QPointer<ModImport> self(this);
    const bool isOpen = modPrjHook->open(file);
    if (self && isOpen && m_programDialog)
        m_programDialog->close();
}

// --- life cycle ---

void ModImport::modInit()
{
    m_actions = new ImportActions(this);
    m_actions->setEnabled(false);
    connect(m_actions, QOverload<ImportActions::eAction_t>::of(&ImportActions::triggered), this,
            &ModImport::openImportDialog);
    m_programActions = new ImportProgramActions(this);
    connect(m_programActions, QOverload<ImportProgramActions::eAction_t>::of(&ImportProgramActions::triggered), this,
            &ModImport::openImportProgramDialog);
}

void ModImport::modInitIntermod()
{
    if (modScriptHook != nullptr)
        modScriptHook->registerObject(this, QStringLiteral("importFiles"));
}

void ModImport::modExitIntermod()
{
    closeImportDialog();
    if (m_programDialog)
        m_programDialog->close();
}

void ModImport::modExit()
{
    delete m_programActions;
    m_programActions = nullptr;
    delete m_actions;
    m_actions = nullptr;
}

// --- project ---

void ModImport::prjOpen()
{
    if (m_actions != nullptr)
        m_actions->setEnabled(true);
    if (m_widget != nullptr && modPrjHook != nullptr)
        m_widget->setPrjPath(modPrjHook->prjDir().absolutePath());
}

/// Later, when the window has come to rest with the project.
void ModImport::openSoon()
{
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (modPrjHook != nullptr && modPrjHook->isValid())
                openImportDialog();
        },
        Qt::QueuedConnection);
}

QList<PrjStep> ModImport::prjSteps()
{
    if (modPrjHook == nullptr)
        return {};
    if (!modPrjHook->isValid())
        return {{PrjStep::eOrderStart, false, tr("Import sources..."),
                 tr("Makes a project and opens the page that converts sources of other assemblers"), [this] {
                     modPrjHook->showNewProject([self = QPointer<ModImport>(this)] {
                         if (self != nullptr)
                             self->openSoon();
                     });
                 }}};
    return {{PrjStep::eOrderSource + 1, false, tr("Import sources..."), tr("Converts sources of other assemblers"),
             [this] { openImportDialog(); }}};
}

void ModImport::prjClose()
{
    closeImportDialog();
    if (m_actions != nullptr)
        m_actions->setEnabled(false);
}

// --- main window ---

void ModImport::removeWidgetRequest(QWidget* widget)
{
    if (m_widget != nullptr && widget == m_widget)
        closeImportDialog();
}

QList<QAction*> ModImport::menuActions(ModActionHookIf::eActionClass_t actionClass)
{
    if (actionClass != ModActionHookIf::eActionClassFile || m_actions == nullptr)
        return {};
    return m_actions->menuActions() + m_programActions->menuActions();
}

QList<QAction*> ModImport::toolBarActions(ModActionHookIf::eActionClass_t actionClass)
{
    const bool isOurs = actionClass == ModActionHookIf::eActionClassFile && m_actions != nullptr;
    return isOurs ? m_actions->toolBarActions() : QList<QAction*>();
}

// --- settings of the user ---

void ModImport::rdAppCfg()
{
    if (modCfgAppHook != nullptr)
        m_programConfig.rdConfig(modCfgAppHook);
}

void ModImport::wrAppCfg()
{
    if (m_programDialog)
        m_programConfig = m_programDialog->config();
    if (modCfgAppHook != nullptr)
        m_programConfig.wrConfig(modCfgAppHook);
}

} // namespace nsModImport
