#include "ModClipboard.h"

#include "PluginList.h"

#include <QAction>
#include <QMainWindow>

namespace nsModClipboard {

ModClipboard::ModClipboard(QMainWindow* window)
    : QObject(window)
{
}

void ModClipboard::registerPlugin(ModClipboardPluginIf* plugin)
{
    if (plugin != nullptr)
        plugin->modClipboardHook = this;
}

void ModClipboard::setFeatureEnable(eClipboardFeature_t features, bool enable)
{
    if (m_actions == nullptr)
        return;
    if ((features & eClipboardFeatureCut) != 0)
        m_actions->setEnabled(ClipboardActions::eActionCut, enable);
    if ((features & eClipboardFeatureCopy) != 0)
        m_actions->setEnabled(ClipboardActions::eActionCopy, enable);
    if ((features & eClipboardFeaturePaste) != 0)
        m_actions->setEnabled(ClipboardActions::eActionPaste, enable);
}

QWidget* ModClipboard::currentPage() const
{
    return modGuiHook != nullptr ? modGuiHook->currentWidget(ModGuiHookIf::eLocationTabs) : nullptr;
}

void ModClipboard::switchAllOff()
{
    setFeatureEnable(static_cast<eClipboardFeature_t>(0xff), false);
}

void ModClipboard::registerPluginWidget(ModClipboardPluginIf* plugin, QWidget* widget)
{
    if (plugin == nullptr || widget == nullptr)
        return;
    // If a widget is deleted without being unregistered, a later widget at the same address must not count as
    // registered.
    if (!m_plugins.contains(widget))
        connect(widget, &QObject::destroyed, this, [this, widget] { m_plugins.remove(widget); });
    m_plugins.insert(widget, plugin);
}

void ModClipboard::unregisterPluginWidget(QWidget* widget)
{
    if (m_plugins.remove(widget) == 0)
        return;
    disconnect(widget, &QObject::destroyed, this, nullptr);
    if (currentPage() == widget)
        switchAllOff();
}

void ModClipboard::modRegisterPlugins(QList<ModPluginIf*> modules)
{
    registerPluginsOf<ModClipboardPluginIf>(modules, this);
}

void ModClipboard::modInit()
{
    if (m_actions != nullptr)
        return;
    m_actions = new ClipboardActions(this);
    m_actions->setEnabled(false);
    connect(m_actions, qOverload<ClipboardActions::eAction_t>(&ClipboardActions::triggered), this,
            &ModClipboard::handleAction);
}

void ModClipboard::modExit()
{
    delete m_actions;
    m_actions = nullptr;
}

void ModClipboard::setFocus(ModGuiHookIf::eLocation_t location, ModGuiPluginIf*, QWidget* widget)
{
    // When the last page was removed there is neither a widget nor a location.
    const bool noPage = widget == nullptr && currentPage() == nullptr;
    // The plug-in of a registered page sets the features itself.
    if (noPage || (location == ModGuiHookIf::eLocationTabs && !m_plugins.contains(widget)))
        switchAllOff();
}

QList<QAction*> ModClipboard::menuActions(ModActionHookIf::eActionClass_t actionClass)
{
    const bool isOurs = actionClass == ModActionHookIf::eActionClassEdit && m_actions != nullptr;
    return isOurs ? m_actions->menuActions() : QList<QAction*>();
}

QList<QAction*> ModClipboard::toolBarActions(ModActionHookIf::eActionClass_t actionClass)
{
    const bool isOurs = actionClass == ModActionHookIf::eActionClassEdit && m_actions != nullptr;
    return isOurs ? m_actions->toolBarActions() : QList<QAction*>();
}

void ModClipboard::handleAction(ClipboardActions::eAction_t action)
{
    ModClipboardPluginIf* plugin = m_plugins.value(currentPage());
    if (plugin == nullptr)
        return;
    switch (action) {
    case ClipboardActions::eActionCut:
        plugin->clipboardAction(eClipboardFeatureCut);
        break;
    case ClipboardActions::eActionCopy:
        plugin->clipboardAction(eClipboardFeatureCopy);
        break;
    case ClipboardActions::eActionPaste:
        plugin->clipboardAction(eClipboardFeaturePaste);
        break;
    }
}

} // namespace nsModClipboard
