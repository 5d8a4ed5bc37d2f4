#include "ModAction.h"

#include "FixedKeys.h"
#include "MenuKeys.h"
#include "ModActionPluginIf.h"
#include "ModCfgAppHookIf.h"
#include "ShortcutsPage.h"
#include "ToolTipKeys.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

namespace nsModAction {

namespace {

struct sActionClass_t
{
    ModActionHookIf::eActionClass_t actionClass;
    const char* title;
    const char* objectName; ///< of the tool bar
};

/// In the order of the screen, which is not that of the values.
const sActionClass_t actionClasses[] = {
    {ModActionHookIf::eActionClassConfiguration, QT_TRANSLATE_NOOP("nsModAction::ModAction", "Configuration"),
     "toolBarConfiguration"},
    {ModActionHookIf::eActionClassFile, QT_TRANSLATE_NOOP("nsModAction::ModAction", "File"), "toolBarFile"},
    {ModActionHookIf::eActionClassEdit, QT_TRANSLATE_NOOP("nsModAction::ModAction", "Edit"), "toolBarEdit"},
    {ModActionHookIf::eActionClassNavigation, QT_TRANSLATE_NOOP("nsModAction::ModAction", "Navigation"),
     "toolBarNavigation"},
    {ModActionHookIf::eActionClassAssembler, QT_TRANSLATE_NOOP("nsModAction::ModAction", "Assembler"),
     "toolBarAssembler"},
    {ModActionHookIf::eActionClassSimulator, QT_TRANSLATE_NOOP("nsModAction::ModAction", "Simulator"),
     "toolBarSimulator"},
    {ModActionHookIf::eActionClassTools, QT_TRANSLATE_NOOP("nsModAction::ModAction", "Tools"), "toolBarTools"},
    {ModActionHookIf::eActionClassHelp, QT_TRANSLATE_NOOP("nsModAction::ModAction", "Help"), "toolBarHelp"},
};

const QSize toolBarIconSize(26, 26);
const QString keyShortcuts = QStringLiteral("ModAction/shortcuts"); ///< a list, as Shortcuts stores it

/// Deletes the separators of the last refresh; the actions belong to the clients.
void deleteSeparators(QWidget* bar)
{
    for (QAction* action : bar->actions()) {
        if (action->isSeparator() && action->parent() == bar)
            delete action;
    }
}

} // namespace

ModAction::ModAction(QMainWindow* mainWindow)
    : QObject(mainWindow)
    , m_mainWindow(mainWindow)
{
}

ModAction::~ModAction()
{
    delete m_configPage;
}

void ModAction::setupActionClasses()
{
    for (const sActionClass_t& entry : actionClasses) {
        setupActionClass(QLatin1String(entry.title), entry.actionClass);
        if (QToolBar* toolBar = m_toolBars.value(entry.actionClass))
            toolBar->setObjectName(QLatin1String(entry.objectName));
    }
}

void ModAction::setupActionClass(QString title, eActionClass_t actionClass)
{
    if (m_mainWindow == nullptr || m_menus.contains(actionClass))
        return;
    const QString text = tr(title.toUtf8().constData());
    m_menus.insert(actionClass, m_mainWindow->menuBar()->addMenu(text));
    QToolBar* toolBar = m_mainWindow->addToolBar(text);
    toolBar->setObjectName(QStringLiteral("toolBar%1").arg(actionClass));
    m_toolBars.insert(actionClass, toolBar);
}

void ModAction::registerPlugin(ModActionPluginIfInterMod* plugin)
{
    if (plugin != nullptr)
        plugin->modActionHook = this;
}

void ModAction::unregisterPlugin(ModActionPluginIfInterMod* plugin)
{
    if (plugin != nullptr)
        plugin->modActionHook = nullptr;
}

void ModAction::registerPlugin(ModActionPluginIf* plugin)
{
    if (!m_plugins.add(plugin))
        return;
    plugin->modActionHook = this;
    refreshActions();
}

void ModAction::unregisterPlugin(ModActionPluginIf* plugin)
{
    if (!m_plugins.remove(plugin))
        return;
    plugin->modActionHook = nullptr;
    refreshActions();
}

void ModAction::refreshActions()
{
    if (!m_active)
        return;
    for (auto it = m_menus.cbegin(); it != m_menus.cend(); ++it)
        refreshMenu(it.key(), it.value());
    for (auto it = m_toolBars.cbegin(); it != m_toolBars.cend(); ++it)
        refreshToolBar(it.key(), it.value());
}

QList<QAction*> ModAction::collectActions(eActionClass_t actionClass, ListOperation list, QWidget* bar)
{
    QList<QAction*> result;
    m_plugins.forEach([&](ModActionPluginIf* plugin) {
        QList<QAction*> actions = (plugin->*list)(actionClass);
        actions.removeAll(nullptr);
        if (actions.isEmpty())
            return;
        if (!result.isEmpty()) {
            auto* separator = new QAction(bar);
            separator->setSeparator(true);
            result.append(separator);
        }
        result.append(actions);
    });
    return result;
}

void ModAction::refreshMenu(eActionClass_t actionClass, QMenu* menu)
{
    if (menu == nullptr)
        return;
    deleteSeparators(menu);
    menu->clear();
    const QList<QAction*> actions = collectActions(actionClass, &ModActionPluginIf::menuActions, menu);
    menu->setEnabled(!actions.isEmpty());
    m_shortcuts.setEntries(Shortcuts::plainText(menu->title()), actions);
    for (QAction* action : actions)
        menu->addAction(action);
}

void ModAction::refreshToolBar(eActionClass_t actionClass, QToolBar* toolBar)
{
    if (toolBar == nullptr)
        return;
    deleteSeparators(toolBar);
    toolBar->clear();
    const QList<QAction*> actions = collectActions(actionClass, &ModActionPluginIf::toolBarActions, toolBar);
    for (QAction* action : actions)
        toolBar->addAction(action);
    toolBar->setIconSize(toolBarIconSize);
}

void ModAction::modRegisterPlugins(QList<ModPluginIf*> modules)
{
    registerPluginsOf<ModActionPluginIf>(modules, this);
    registerPluginsOf<ModActionPluginIfInterMod>(modules, this);
}

void ModAction::modInit()
{
    setupActionClasses();
    if (m_mainWindow != nullptr && m_menuKeys == nullptr)
        m_menuKeys = new MenuKeys(m_mainWindow);
    new ToolTipKeys(this);
}

void ModAction::modRun()
{
    m_active = true;
    refreshActions();
}

void ModAction::modExitIntermod()
{
    m_active = false;
}

// --- keys of the user ---

void ModAction::rdAppCfg()
{
    if (modCfgAppHook != nullptr)
        m_shortcuts.setStored(modCfgAppHook->value(keyShortcuts, QStringList()));
}

void ModAction::wrAppCfg()
{
    if (modCfgAppHook != nullptr)
        modCfgAppHook->setValue(keyShortcuts, m_shortcuts.stored());
}

nsModConfig::ModConfigPagePluginIf* ModAction::configPage(int)
{
    if (m_configPage == nullptr)
        m_configPage = new ShortcutsPage;
    return m_configPage;
}

void ModAction::configPageSetConfig(nsModConfig::ModConfigPagePluginIf*)
{
    if (m_configPage != nullptr)
        m_configPage->setCommands(m_shortcuts.commands() + FixedKeys::rows());
}

void ModAction::configPageClose(bool accepted)
{
    if (m_configPage != nullptr && accepted) {
        m_shortcuts.setChosen(m_configPage->keys());
        // The dialog saves the settings tree, so the new values are written to it first.
        wrAppCfg();
    }
    delete m_configPage;
}

} // namespace nsModAction
