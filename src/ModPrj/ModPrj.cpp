#include "ModPrj.h"

#include "DialogParent.h"
#include "HelpRef.h"
#include "PrjConfigPage.h"
#include "PrjHome.h"
#include "PrjMngrWidget.h"

#include "ModActionHookIf.h"
#include "ModGuiHookIf.h"
#include "ModMsgHookIf.h"
#include "ModScriptHookIf.h"
#include "Unattended.h"

#include <QApplication>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>

namespace nsModPrj {

ModPrj::ModPrj(QObject* parent)
    : CfgTree(parent)
    , CfgLookAccess(this)
    , m_project(this, this)
{
}

ModPrj::~ModPrj()
{
    delete m_home;
    delete m_page;
    delete m_prjMngr;
}

// --- files ---

bool ModPrj::readPrjFile(CfgTree* tree, QString file)
{
    return Project::readFile(tree, file, modMsgHook);
}

bool ModPrj::savePrjFile(CfgTree* tree, QString file)
{
    return Project::writeFile(tree, file, modMsgHook);
}

void ModPrj::rdPrjInfo(CfgTree* tree, PrjConfig* config)
{
    config->rdPrjConfig(tree);
}

void ModPrj::wrPrjInfo(CfgTree* tree, const PrjConfig& config)
{
    config.wrPrjConfig(tree);
}

// --- open, save, close ---

ModMsgHookIf* ModPrj::groupHook() const
{
    return modGuiHook != nullptr ? modMsgHook : nullptr;
}

QString ModPrj::openingText(const QString& file)
{
    return tr("Opening project %1...").arg(QFileInfo(file).fileName());
}

bool ModPrj::openPrj(QString file, nsModMsg::MsgGroup::eEarlier_t earlier)
{
    if (m_closing)
        return false;
    nsModMsg::MsgGroup group(groupHook(), openingText(file), earlier);
    return group.end(openPrjInGroup(file));
}

bool ModPrj::openPrjInGroup(const QString& file)
{
    if (m_closing)
        return false;
    const bool wasOpen = isValid();
    if (wasOpen)
        closePrj();
    if (!m_project.open(file, modMsgHook)) {
        // Without a project the window shows the project manager.
        if (wasOpen) {
            prjMngrSetup();
            prjMngrSetMode(eModeOpen);
        }
        return false;
    }
    const int serial = ++m_openCount;
    const auto isOpen = [this, serial] { return isValid() && m_openCount == serial; };
    // A client may close the project, or open another one; the clients after it then have nothing to read.
    m_plugins.forEach([&](ModPrjPluginIf* plugin) {
        if (isOpen())
            plugin->prjOpen();
    });
    m_plugins.forEach([&](ModPrjPluginIf* plugin) {
        if (isOpen())
            plugin->prjOpened();
    });
    if (!isOpen())
        return false;
    prjMngrClose();
    if (!isOpen())
        return false;
    if (m_home != nullptr)
        m_home->addRecent(m_project.path());
    stepsChanged();
    updateCloseAction();
    if (m_page)
        m_page->setConfig(*this);
    setWindowTitle();
    Project::reportOpened(modMsgHook);
    return true;
}

void ModPrj::savePrjCfg()
{
    saveOpenPrj();
}

bool ModPrj::saveOpenPrj()
{
    if (!isValid()) {
        error(tr("No project file set."));
        return false;
    }
    // If a client saves from within prjSave(), the save in progress does it.
    if (m_saving)
        return true;
    m_saving = true;
    info(tr("Saving project configuration"));
    wrPrjInfo(this, *this);
    m_plugins.forEach([](ModPrjPluginIf* plugin) { plugin->prjSave(); });
    const bool saved = m_project.write(modMsgHook);
    m_saving = false;
    return saved;
}

bool ModPrj::closePrj()
{
    if (m_closing || m_saving)
        return false;
    if (!isValid()) {
        error(tr("No project to close!"));
        return false;
    }
    nsModMsg::MsgGroup group(groupHook(), tr("Closing project %1...").arg(prjFileName()));
    m_closing = true;
    m_plugins.forEach([](ModPrjPluginIf* plugin) { plugin->prjAboutToClose(); });
    if (modGuiHook != nullptr) {
        // At the end of the program, nobody can read the messages any more.
        while (!group.end(saveOpenPrj()) && m_exiting && askToTryAgain()) {
        }
        modGuiHook->setWindowTitle(QString());
    }
    m_project.close();
    updateCloseAction();
    if (m_page)
        m_page->setDefaultConfig();
    m_plugins.forEach([](ModPrjPluginIf* plugin) { plugin->prjClose(); });
    m_closing = false;
    stepsChanged();
    info(tr("Close project: Done"));
    return true;
}

bool ModPrj::open(QString file)
{
    return openPrj(file);
}

void ModPrj::close()
{
    closePrj();
}

bool ModPrj::isOpen()
{
    return isValid();
}

bool ModPrj::save()
{
    return saveOpenPrj();
}

QString ModPrj::path()
{
    return m_project.path();
}

void ModPrj::hndlAction(int action)
{
    hndlAction(static_cast<PrjActions::eAction_t>(action));
}

// --- clients ---

void ModPrj::registerPlugin(ModPrjPluginIfInterMod* plugin)
{
    if (plugin != nullptr)
        plugin->modPrjHook = this;
}

void ModPrj::unregisterPlugin(ModPrjPluginIfInterMod* plugin)
{
    if (plugin != nullptr)
        plugin->modPrjHook = nullptr;
}

void ModPrj::registerPlugin(ModPrjPluginIf* plugin)
{
    if (!m_plugins.add(plugin))
        return;
    plugin->modPrjHook = this;
    if (isValid())
        plugin->prjOpen();
    if (isValid() && m_plugins.contains(plugin))
        plugin->prjOpened();
}

void ModPrj::unregisterPlugin(ModPrjPluginIf* plugin)
{
    if (!m_plugins.contains(plugin))
        return;
    if (isValid()) {
        plugin->prjSave();
        plugin->prjClose();
    }
    m_plugins.remove(plugin);
    plugin->modPrjHook = nullptr;
}

bool ModPrj::isValid()
{
    return m_project.isOpen();
}

// --- place and name ---

QDir ModPrj::prjDir()
{
    return m_project.dir();
}

QString ModPrj::prjFileName()
{
    return m_project.fileName();
}

QString ModPrj::convToRelPath(QString path)
{
    return m_project.convToRelPath(path);
}

void ModPrj::convToRelPath(QString* path)
{
    if (path != nullptr)
        *path = convToRelPath(*path);
}

QString ModPrj::convToAbsPath(QString path)
{
    return m_project.convToAbsPath(path);
}

void ModPrj::convToAbsPath(QString* path)
{
    if (path != nullptr)
        *path = convToAbsPath(*path);
}

QString ModPrj::prjTitle()
{
    return cfgTitle;
}

QString ModPrj::prjVersion()
{
    return cfgVersion;
}

QString ModPrj::prjComment()
{
    return cfgComment;
}

// --- life cycle ---

void ModPrj::modRegisterPlugins(QList<ModPluginIf*> modules)
{
    registerPluginsOf<ModPrjPluginIf>(modules, this);
    registerPluginsOf<ModPrjPluginIfInterMod>(modules, this);
}

void ModPrj::modInit()
{
    // Actions belong to menus; a batch program has neither.
    if (modActionHook == nullptr)
        return;
    m_actions = new PrjActions(this);
    connect(m_actions, QOverload<PrjActions::eAction_t>::of(&PrjActions::triggered), this,
            qOverload<PrjActions::eAction_t>(&ModPrj::hndlAction));
    updateCloseAction();
}

void ModPrj::modInitIntermod()
{
    if (modScriptHook != nullptr)
        modScriptHook->registerObject(this, QStringLiteral("project"));
    if (modGuiHook != nullptr)
        setupHome();
}

void ModPrj::modRun()
{
    if (isValid())
        return;
    prjMngrSetup();
    prjMngrSetMode(eModeOpen);
}

bool ModPrj::modExitRequest()
{
    return true;
}

/// Neither Enter nor Esc loses the changes of the project.
bool ModPrj::askToTryAgain()
{
    // Nobody would ever give up; the failure has been reported.
    if (Unattended::isOn())
        return false;
    QMessageBox box(QMessageBox::Warning, tr("Project can not be saved"),
                    QLatin1String("<p>") + tr("The project file can not be written:") + QLatin1String("</p><p><b>") +
                        m_project.path().toHtmlEscaped() + QLatin1String("</b><p><p>") +
                        tr("Without the file, the changes of the project are lost.") + QLatin1String("</p>"),
                    QMessageBox::Retry | QMessageBox::Discard, DialogParent::get());
    HelpRef::set(&box, QStringLiteral("pageId://recovery#files"));
    box.setDefaultButton(QMessageBox::Retry);
    box.setEscapeButton(QMessageBox::Retry);
    return box.exec() == QMessageBox::Retry && isValid();
}

void ModPrj::modExitIntermod() {}

void ModPrj::modExit()
{
    if (isValid()) {
        m_exiting = true;
        closePrj();
        m_exiting = false;
        prjMngrSetup();
        prjMngrSetMode(eModeOpen);
    }
    if (modGuiHook != nullptr && m_home != nullptr) {
        modGuiHook->setEmptyPage(nullptr);
        modGuiHook->removeWidget(m_home->statusLink());
    }
    delete m_home;
    m_home = nullptr;
    delete m_actions;
    m_actions = nullptr;
}

void ModPrj::removeWidgetRequest(QWidget* widget)
{
    if (m_prjMngr != nullptr && widget == m_prjMngr)
        prjMngrHndlEventCancel();
}

void ModPrj::setFocus(ModGuiHookIf::eLocation_t, ModGuiPluginIf*, QWidget*) {}

// --- settings dialog: while it is open, the project can not be changed ---

nsModConfig::ModConfigPagePluginIf* ModPrj::configPage(int)
{
    if (m_actions != nullptr)
        m_actions->setEnabled(false);
    if (m_home != nullptr)
        m_home->setLocked(true);
    if (m_prjMngr)
        m_prjMngr->setTabsEnabled(false);
    if (modGuiHook == nullptr)
        return nullptr;
    if (!m_page)
        m_page = new PrjConfigPage;
    return m_page;
}

void ModPrj::configPageSetConfig(nsModConfig::ModConfigPagePluginIf*)
{
    if (m_page)
        m_page->setConfig(isValid() ? static_cast<const PrjConfig&>(*this) : PrjConfig());
}

void ModPrj::configPageClose(bool accepted)
{
    if (accepted && m_page && isValid())
        static_cast<PrjConfig&>(*this) = m_page->config();
    delete m_page;
    if (accepted)
        setWindowTitle();
}

void ModPrj::configPagesClosed(bool)
{
    if (m_actions != nullptr)
        m_actions->setEnabled(true);
    if (m_home != nullptr)
        m_home->setLocked(false);
    if (m_prjMngr)
        m_prjMngr->setTabsEnabled(true);
    updateCloseAction();
}

// --- actions ---

QList<QAction*> ModPrj::menuActions(ModActionHookIf::eActionClass_t actionClass)
{
    if (m_actions == nullptr || actionClass != ModActionHookIf::eActionClassConfiguration)
        return {};
    QList<QAction*> entries = m_actions->menuActions();
    if (m_home != nullptr)
        entries.append(m_home->recentMenu()->menuAction());
    return entries;
}

QList<QAction*> ModPrj::toolBarActions(ModActionHookIf::eActionClass_t actionClass)
{
    if (m_actions == nullptr || actionClass != ModActionHookIf::eActionClassConfiguration)
        return {};
    return m_actions->toolBarActions();
}

void ModPrj::hndlAction(PrjActions::eAction_t action)
{
    switch (action) {
    case PrjActions::eActionNew:
        showNewProject(nullptr);
        break;
    case PrjActions::eActionClose:
        closePrj();
        [[fallthrough]];
    case PrjActions::eActionOpen:
        m_afterNew = nullptr;
        prjMngrSetup();
        prjMngrSetMode(eModeOpen);
        break;
    }
}

// --- reports ---

void ModPrj::setWindowTitle()
{
    if (!isValid() || modGuiHook == nullptr)
        return;
    modGuiHook->setWindowTitle(convToRelPath(m_project.path()) + tr(" ( Title: ") + cfgTitle +
                               tr(", Project version: ") + cfgVersion + QLatin1Char(')'));
}

void ModPrj::updateCloseAction()
{
    if (m_actions != nullptr)
        m_actions->setEnabled(PrjActions::eActionClose, isValid());
}

void ModPrj::info(const QString& text)
{
    if (modMsgHook != nullptr)
        modMsgHook->showInfoMessage(text);
}

void ModPrj::warning(const QString& text)
{
    if (modMsgHook != nullptr)
        modMsgHook->showWarningMessage(text);
}

void ModPrj::error(const QString& text)
{
    if (modMsgHook != nullptr)
        modMsgHook->showErrorMessage(text);
}

} // namespace nsModPrj
