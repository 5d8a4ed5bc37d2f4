#include "ModConfig.h"

#include "Colors.h"
#include "ConfigDialog.h"
#include "ConfigKeys.h"
#include "ModConfigPagePluginIf.h"
#include "PageValues.h"

#include "ModCfgAppHookIf.h"
#include "ModGuiHookIf.h"
#include "ModHlpHookIf.h"
#include "ModMsgHookIf.h"
#include "ModPrjHookIf.h"
#include "ModScriptHookIf.h"
#include "MsgGroup.h"

#include <QCoreApplication>
#include <QListWidget>
#include <QMessageBox>
#include <QPointer>
#include <QStackedWidget>

#include <optional>

namespace nsModConfig {

ModConfig::ModConfig(QObject* parent)
    : QObject(parent)
{
    // Before the pages, which are made later: they still show the colours of the former scheme.
    connect(Colors::instance(), &Colors::changed, this, &ModConfig::takeNewColors);
}

ModConfig::~ModConfig() = default;

// --- clients ---

void ModConfig::registerPlugin(ModConfigPluginIf* plugin)
{
    if (m_plugins.add(plugin))
        plugin->modConfigHook = this;
}

void ModConfig::unregisterPlugin(ModConfigPluginIf* plugin)
{
    if (!m_plugins.remove(plugin))
        return;
    // Its pages leave with it.
    for (QListWidgetItem* item : items()) {
        if (m_items.value(item).plugin == plugin)
            closePage(item, false);
    }
    plugin->modConfigHook = nullptr;
}

// --- open ---

void ModConfig::openDialog()
{
    if (m_dialog != nullptr) {
        if (modGuiHook != nullptr)
            modGuiHook->setCurrentWidget(m_dialog);
        return;
    }
    if (modGuiHook == nullptr)
        return;
    m_state = eState_t::opening;
    makeDialog();
    modGuiHook->addWidget(this, ModGuiHookIf::eLocationTabs, m_dialog, tr("Configuration"));
    m_plugins.forEach([this](ModConfigPluginIf* plugin) { addPages(plugin); });
    connect(m_list, &QListWidget::currentItemChanged, this, &ModConfig::changeDlgPage);
    enableConfigItems(modPrjHook != nullptr && modPrjHook->isValid());
    if (modCfgAppHook != nullptr && modCfgAppHook->value(configKeys::opensAtLastPage, 0) != 0)
        selectLastPage();
    setDockRightVisible(false);
    m_state = eState_t::open;
    m_dialog->setFocus();
    QCoreApplication::processEvents();
}

void ModConfig::openDialog(QString title)
{
    openDialog();
    selectDialogPageByTitle(title);
}

void ModConfig::makeDialog()
{
    m_dialog = new ConfigDialog;
    m_list = m_dialog->list();
    m_stack = m_dialog->stack();
    connect(m_dialog, &ConfigDialog::vanishing, this, &ModConfig::forgetDialog);
    connect(m_dialog, &ConfigDialog::setDefaultRequested, this, &ModConfig::hndlEventSetDefault);
    connect(m_dialog, &ConfigDialog::restoreRequested, this, &ModConfig::hndlEventRestore);
    connect(m_dialog, &ConfigDialog::closeRequested, this, &ModConfig::hndlEventClose);
    connect(m_dialog, &ConfigDialog::cancelRequested, this, &ModConfig::hndlEventCancel);
    connect(m_dialog, &ConfigDialog::escapeRequested, this, &ModConfig::hndlEventEscape);
    connect(m_dialog, &ConfigDialog::helpRequested, this, &ModConfig::hndlEventHelp);
}

void ModConfig::addPages(ModConfigPluginIf* plugin)
{
    const int count = plugin->configPageCnt();
    for (int index = 0; index < count; ++index) {
        ModConfigPagePluginIf* page = plugin->configPage(index);
        if (page != nullptr && page->pageWidget() != nullptr)
            addPage(plugin, page);
    }
}

void ModConfig::addPage(ModConfigPluginIf* plugin, ModConfigPagePluginIf* page)
{
    page->modConfigPageHook = this;
    page->setFocus(false);
    plugin->configPageSetConfig(page);
    QListWidgetItem* item = m_dialog->addPage(page->pageIcon(), page->pageTitle(), page->pageWidget());
    sConfigItem_t entry;
    entry.plugin = plugin;
    entry.page = page;
    entry.values = PageValues::of(page->pageWidget());
    m_items.insert(item, entry);
    connect(page->pageWidget(), &QObject::destroyed, this, [this, page] { forgetPage(page); });
}

void ModConfig::forgetPage(ModConfigPagePluginIf* page)
{
    QListWidgetItem* item = itemOf(page);
    if (item == nullptr)
        return;
    // Without the entry the pointer is not used any more.
    m_items.remove(item);
    m_dialog->dropPage(item);
}

void ModConfig::forgetDialog()
{
    if (sender() != m_dialog)
        return;
    m_items.clear();
    m_dialog = nullptr;
    m_list = nullptr;
    m_stack = nullptr;
    m_state = eState_t::closed;
}

// --- pages ---

QList<QListWidgetItem*> ModConfig::items() const
{
    QList<QListWidgetItem*> result;
    for (int row = 0; m_dialog != nullptr && row < m_list->count(); ++row)
        result.append(m_list->item(row));
    return result;
}

QListWidgetItem* ModConfig::itemOf(const ModConfigPagePluginIf* page) const
{
    for (auto it = m_items.cbegin(); it != m_items.cend(); ++it) {
        if (it.value().page == page)
            return it.key();
    }
    return nullptr;
}

bool ModConfig::selectDialogPageByTitle(QString title)
{
    for (QListWidgetItem* item : items()) {
        if (item->text() == title) {
            m_list->setCurrentItem(item);
            return true;
        }
    }
    return false;
}

/// Where that page is gone or needs a project, the first one stays.
void ModConfig::selectLastPage()
{
    const QString title = modCfgAppHook->value(configKeys::lastPage, QString());
    for (QListWidgetItem* item : items()) {
        if (item->text() == title && (item->flags() & Qt::ItemIsEnabled) != 0)
            m_list->setCurrentItem(item);
    }
}

void ModConfig::enableConfigItems(bool enable)
{
    for (QListWidgetItem* item : items()) {
        if (!m_items.contains(item))
            continue;
        ModConfigPagePluginIf* page = m_items.value(item).page;
        page->setPrjConfigEnabled(enable);
        const bool enabled = page->pageIsEnabled();
        if (!enabled)
            m_items[item].stale = true;
        ConfigDialog::setPageEnabled(item, enabled);
    }
    selectFirstEnabled();
}

void ModConfig::selectFirstEnabled()
{
    if (m_dialog == nullptr)
        return;
    QListWidgetItem* first = nullptr;
    for (QListWidgetItem* item : items()) {
        if (first == nullptr && (item->flags() & Qt::ItemIsEnabled) != 0)
            first = item;
    }
    m_list->setCurrentItem(first);
    // The same entry as before may have been enabled now.
    m_dialog->showPage(first);
}

void ModConfig::changeDlgPage(QListWidgetItem* next, QListWidgetItem* prev)
{
    if (m_items.contains(prev))
        m_items.value(prev).page->setFocus(false);
    m_dialog->showPage(next);
    if (!m_items.contains(next))
        return;
    ModConfigPagePluginIf* page = m_items.value(next).page;
    page->setFocus(true);
    if (modHlpHook != nullptr)
        modHlpHook->showDialogHlpRef(m_dialog, page->pageHelpRef());
}

void ModConfig::showDialogPageHelp(ModConfigPagePluginIf* page)
{
    if (m_dialog == nullptr || modHlpHook == nullptr)
        return;
    const auto current = m_items.constFind(m_list->currentItem());
    if (current != m_items.cend() && current.value().page == page)
        modHlpHook->showDialogHlpRef(m_dialog, page->pageHelpRef());
}

void ModConfig::hndlEventHelp()
{
    const auto current = m_items.constFind(m_list->currentItem());
    if (modHlpHook == nullptr || current == m_items.cend())
        return;
    // Shown anew, it is in front of the other panels of its dock.
    modHlpHook->closeDialogHlp(m_dialog);
    modHlpHook->showDialogHlpRef(m_dialog, current.value().page->pageHelpRef());
    setDockRightVisible(true);
}

// --- close ---

void ModConfig::closeDialog(bool accepted)
{
    if (m_dialog == nullptr || m_state != eState_t::open)
        return;
    m_state = eState_t::closing;
    setDockRightVisible(true);
    if (accepted && !mayApply()) {
        m_state = eState_t::open;
        return;
    }
    // Applied settings start a run of the assembler, which must not clear the other messages of this action.
    std::optional<nsModMsg::MsgGroup> group;
    if (accepted)
        group.emplace(modMsgHook, tr("Applying the configuration..."));
    const QString lastPage = m_list->currentItem() != nullptr ? m_list->currentItem()->text() : QString();
    closePages(accepted);
    removeDialog();
    if (modCfgAppHook != nullptr && modCfgAppHook->value(configKeys::opensAtLastPage, 0) != 0)
        modCfgAppHook->setValue(configKeys::lastPage, lastPage);
    m_state = eState_t::closed;
    if (accepted)
        saveConfig();
}

bool ModConfig::mayApply()
{
    for (QListWidgetItem* item : items()) {
        if (m_items.contains(item) && !m_items.value(item).plugin->configPageCloseRequest())
            return false;
    }
    for (QListWidgetItem* item : items()) {
        if (!m_items.contains(item))
            continue;
        ModConfigPagePluginIf* page = m_items.value(item).page;
        if (page->checkConfig())
            continue;
        selectDialogPageByTitle(page->pageTitle());
        if (modMsgHook != nullptr)
            modMsgHook->showErrorMessage(tr("Invalid configuration."));
        return false;
    }
    return true;
}

void ModConfig::closePages(bool accepted)
{
    // From here on the pages are removed one after the other, without bringing the next one to the front.
    disconnect(m_list, &QListWidget::currentItemChanged, this, &ModConfig::changeDlgPage);
    QList<ModConfigPluginIf*> plugins;
    for (QListWidgetItem* item : items()) {
        if (!m_items.contains(item))
            continue;
        plugins.append(m_items.value(item).plugin);
        closePage(item, accepted);
    }
    for (ModConfigPluginIf* plugin : qAsConst(plugins)) {
        if (m_plugins.contains(plugin))
            plugin->configPagesClosed(accepted);
    }
}

void ModConfig::closePage(QListWidgetItem* item, bool accepted)
{
    // The entry is removed first, as the module deletes the page.
    const sConfigItem_t entry = m_items.take(item);
    entry.page->modConfigPageHook = nullptr;
    entry.plugin->configPageClose(accepted);
    m_dialog->takePage(item);
}

void ModConfig::removeDialog()
{
    if (modHlpHook != nullptr)
        modHlpHook->closeDialogHlp(m_dialog);
    modGuiHook->removeWidget(m_dialog);
    m_dialog->hide();
    // Deleted later, as the call may come from one of its buttons.
    m_dialog->deleteLater();
    m_items.clear();
    m_dialog = nullptr;
    m_list = nullptr;
    m_stack = nullptr;
}

void ModConfig::saveConfig()
{
    if (modCfgAppHook != nullptr)
        modCfgAppHook->saveAppConfig();
    if (modPrjHook != nullptr && modPrjHook->isValid())
        modPrjHook->savePrjCfg();
}

// --- buttons ---

void ModConfig::hndlEventSetDefault()
{
    const sConfigItem_t entry = m_items.value(m_list->currentItem());
    if (entry.page != nullptr)
        entry.page->setDefaultConfig();
}

void ModConfig::hndlEventRestore()
{
    if (m_items.contains(m_list->currentItem()))
        fillPage(m_list->currentItem());
}

void ModConfig::hndlEventClose()
{
    closeDialog(true);
}

void ModConfig::hndlEventCancel()
{
    closeDialog(false);
}

void ModConfig::hndlEventEscape()
{
    if (m_dialog == nullptr || m_state != eState_t::open)
        return;
    if (isChanged()) {
        // The dialog may be closed, and the window with it, while the question is open.
        const QPointer<ConfigDialog> dialog(m_dialog);
        const QPointer<QMessageBox> box(
            new QMessageBox(QMessageBox::Question, tr("Configuration"),
                            tr("The values on these pages have been changed. Discard the changes?"),
                            QMessageBox::Discard | QMessageBox::Cancel, m_dialog));
        box->setDefaultButton(QMessageBox::Cancel);
        const int answer = box->exec();
        delete box;
        if (dialog == nullptr || answer != QMessageBox::Discard)
            return;
    }
    closeDialog(false);
}

/// Puts the present settings into a page.
void ModConfig::fillPage(QListWidgetItem* item)
{
    const sConfigItem_t entry = m_items.value(item);
    entry.plugin->configPageSetConfig(entry.page);
    if (m_items.contains(item))
        m_items[item].values = PageValues::of(entry.page->pageWidget());
}

/// Whether the user has changed something since the pages were filled.
bool ModConfig::isChanged() const
{
    for (const sConfigItem_t& entry : m_items) {
        if (PageValues::of(entry.page->pageWidget()) != entry.values)
            return true;
    }
    return false;
}

/// Another colour scheme changes what pages show, which is no change of the user's.
void ModConfig::takeNewColors()
{
    QList<ModConfigPagePluginIf*> unchanged;
    for (const sConfigItem_t& entry : qAsConst(m_items)) {
        if (PageValues::of(entry.page->pageWidget()) == entry.values)
            unchanged.append(entry.page);
    }
    const QPointer<ConfigDialog> dialog(m_dialog);
    QMetaObject::invokeMethod(
        this,
        [this, dialog, unchanged] {
            for (sConfigItem_t& entry : m_items) {
                if (dialog != nullptr && dialog == m_dialog && unchanged.contains(entry.page))
                    entry.values = PageValues::of(entry.page->pageWidget());
            }
        },
        Qt::QueuedConnection);
}

void ModConfig::handleActions(ActionsConfig::eAction_t)
{
    openDialog();
}

// --- life cycle ---

void ModConfig::modRegisterPlugins(QList<ModPluginIf*> modules)
{
    registerPluginsOf<ModConfigPluginIf>(modules, this);
}

void ModConfig::modInit()
{
    m_actions = new ActionsConfig(this);
    connect(m_actions, QOverload<ActionsConfig::eAction_t>::of(&ActionsConfig::triggered), this,
            &ModConfig::handleActions);
}

void ModConfig::modInitIntermod()
{
    if (modScriptHook != nullptr)
        modScriptHook->registerObject(this, QStringLiteral("config"));
}

void ModConfig::modRun() {}

bool ModConfig::modExitRequest()
{
    return true;
}

void ModConfig::modExitIntermod()
{
    closeDialog(false);
}

void ModConfig::modExit()
{
    delete m_actions;
    m_actions = nullptr;
}

// --- project ---

void ModConfig::prjOpen()
{
    enableConfigItems(true);
}

void ModConfig::prjOpened()
{
    // The values on these pages are not those of this project, but would be written into it.
    for (QListWidgetItem* item : items()) {
        const auto it = m_items.find(item);
        if (it == m_items.end() || !it.value().stale)
            continue;
        it.value().stale = false;
        fillPage(item);
    }
}

void ModConfig::prjSave() {}

void ModConfig::prjClose()
{
    enableConfigItems(false);
}

// --- main window ---

void ModConfig::removeWidgetRequest(QWidget* widget)
{
    if (m_dialog != nullptr && widget == m_dialog)
        closeDialog(true);
}

void ModConfig::setFocus(ModGuiHookIf::eLocation_t location, ModGuiPluginIf*, QWidget* widget)
{
    if (location == ModGuiHookIf::eLocationTabs)
        setDockRightVisible(m_dialog == nullptr || widget != m_dialog);
}

void ModConfig::setDockRightVisible(bool visible)
{
    if (modGuiHook != nullptr)
        modGuiHook->setWidgetVisible(ModGuiHookIf::eLocationDockRight, visible);
}

QList<QAction*> ModConfig::menuActions(ModActionHookIf::eActionClass_t actionClass)
{
    const bool isOurs = actionClass == ModActionHookIf::eActionClassConfiguration && m_actions != nullptr;
    return isOurs ? m_actions->menuActions() : QList<QAction*>();
}

QList<QAction*> ModConfig::toolBarActions(ModActionHookIf::eActionClass_t actionClass)
{
    const bool isOurs = actionClass == ModActionHookIf::eActionClassConfiguration && m_actions != nullptr;
    return isOurs ? m_actions->toolBarActions() : QList<QAction*>();
}

} // namespace nsModConfig
