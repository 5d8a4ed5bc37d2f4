#include "ModFindReplace.h"

#include "HelpRef.h"
#include "LateContent.h"
#include "PluginList.h"

#include <QAction>

namespace nsModFindReplace {

namespace {

constexpr int featureReplace = 1;
constexpr int featureWholeWords = 2;

} // namespace

ModFindReplace::ModFindReplace(QObject* parent)
    : QObject(parent)
{
}

ModFindReplace::~ModFindReplace()
{
    delete m_widget.data();
}

// --- clients ---

void ModFindReplace::registerPlugin(ModFindReplacePluginIf* plugin)
{
    if (plugin != nullptr)
        plugin->modFindReplaceHook = this;
}

void ModFindReplace::registerPluginWidget(ModFindReplacePluginIf* plugin, QWidget* widget, int features)
{
    if (plugin == nullptr || widget == nullptr)
        return;
    // If a widget is deleted without being unregistered, a later widget at the same address must not count as
    // registered.
    if (!m_widgets.contains(widget))
        connect(widget, &QObject::destroyed, this, [this, widget] { forgetWidget(widget); });
    sWidgetParameter_t parameter;
    parameter.plugin = plugin;
    parameter.replaceEn = (features & featureReplace) != 0;
    parameter.wholeWordsEn = (features & featureWholeWords) != 0;
    m_widgets.insert(widget, parameter);
    // The page may have become the current one before it was registered.
    if (widget == currentWidget())
        setActionsEn(widget);
}

void ModFindReplace::unregisterPluginWidget(QWidget* widget)
{
    if (!m_widgets.contains(widget))
        return;
    disconnect(widget, &QObject::destroyed, this, nullptr);
    forgetWidget(widget);
    if (widget == currentWidget())
        setActionsEn(widget);
}

void ModFindReplace::forgetWidget(QWidget* widget)
{
    const ModFindReplacePluginIf* plugin = m_widgets.take(widget).plugin;
    for (const sWidgetParameter_t& parameter : qAsConst(m_widgets)) {
        if (parameter.plugin == plugin)
            return;
    }
    // A client without widgets may be deleted soon; it is not called any more, and another client may get its address.
    if (plugin == m_activePlugin)
        m_activePlugin = nullptr;
    if (plugin == m_informedPlugin)
        m_informedPlugin = nullptr;
}

QString ModFindReplace::findString()
{
    return m_widget != nullptr ? m_widget->findString() : QString();
}

QString ModFindReplace::replaceString()
{
    return m_widget != nullptr ? m_widget->replaceString() : QString();
}

bool ModFindReplace::isCaseSensitive()
{
    return m_widget != nullptr && m_widget->isCaseSensitive();
}

bool ModFindReplace::isWholeWords()
{
    return m_widget != nullptr && m_widget->isWholeWords();
}

bool ModFindReplace::isRegExp()
{
    return m_widget != nullptr && m_widget->isRegExp();
}

bool ModFindReplace::isInSelection()
{
    return m_widget != nullptr && m_widget->isInSelection();
}

void ModFindReplace::setFindResult(const QString& text, const QString& toolTip)
{
    if (m_widget != nullptr)
        m_widget->setResult(text, toolTip);
}

// --- life cycle ---

void ModFindReplace::modRegisterPlugins(QList<ModPluginIf*> modules)
{
    registerPluginsOf<ModFindReplacePluginIf>(modules, this);
}

void ModFindReplace::modInit()
{
    if (m_actions != nullptr)
        return;
    m_widget = new FindReplaceWidget;
    connectWidget();
    m_actions = new FindReplaceActions(this);
    m_actions->setEnabled(false);
    LateContent::later(m_widget, [this] {
        if (m_actions != nullptr)
            m_widget->setCommands(*m_actions);
    });
    connect(m_actions, qOverload<FindReplaceActions::eAction_t>(&FindReplaceActions::triggered), this,
            &ModFindReplace::handleActions);
}

void ModFindReplace::connectWidget()
{
    connect(m_widget, &FindReplaceWidget::configChanged, this, &ModFindReplace::setConfigChanged);
    connect(m_widget, &FindReplaceWidget::findNext, this, &ModFindReplace::findNext);
    connect(m_widget, &FindReplaceWidget::findPrev, this, &ModFindReplace::findPrev);
    connect(m_widget, &FindReplaceWidget::replace, this, &ModFindReplace::replace);
    connect(m_widget, &FindReplaceWidget::replaceAll, this, &ModFindReplace::replaceAll);
    connect(m_widget, &FindReplaceWidget::closeRequest, this, &ModFindReplace::closeWidget);
}

void ModFindReplace::modInitIntermod()
{
    if (modGuiHook == nullptr || m_widget == nullptr)
        return;
    HelpRef::set(m_widget, QStringLiteral("pageId://editorFindReplace"));
    modGuiHook->addWidget(this, ModGuiHookIf::eLocationCenterBelow, m_widget, QString());
    hideWidget();
}

void ModFindReplace::modExitIntermod()
{
    if (modGuiHook != nullptr && m_widget != nullptr)
        modGuiHook->removeWidget(m_widget);
}

void ModFindReplace::modExit()
{
    m_activePlugin = nullptr;
    delete m_widget.data();
    delete m_actions;
    m_actions = nullptr;
}

// --- the bar ---

QWidget* ModFindReplace::currentWidget() const
{
    return modGuiHook != nullptr ? modGuiHook->currentWidget(ModGuiHookIf::eLocationTabs) : nullptr;
}

ModFindReplacePluginIf* ModFindReplace::currentPlugin() const
{
    return m_widgets.value(currentWidget()).plugin;
}

void ModFindReplace::setFocus(ModGuiHookIf::eLocation_t location, ModGuiPluginIf*, QWidget* widget)
{
    // When the last page was removed there is neither a widget nor a location.
    if (location == ModGuiHookIf::eLocationTabs || (widget == nullptr && currentWidget() == nullptr))
        setActionsEn(widget);
    preview();
}

/// Lets the client show what the bar would find in its current page.
void ModFindReplace::preview()
{
    if (m_activePlugin != nullptr && m_activePlugin == currentPlugin())
        m_activePlugin->findPreview();
}

void ModFindReplace::initWidget(FindReplaceWidget::eMode_t mode)
{
    if (m_activePlugin != nullptr) {
        ModFindReplacePluginIf* plugin = m_activePlugin;
        m_activePlugin = nullptr;
        plugin->findExit();
    }
    setActionsEn(currentWidget());
    const auto it = m_widgets.constFind(currentWidget());
    if (it == m_widgets.constEnd() || m_widget == nullptr)
        return;
    const sWidgetParameter_t parameter = *it;
    m_activePlugin = parameter.plugin;
    m_widget->setReplaceEnable(parameter.replaceEn);
    m_widget->setWholeWordsEnable(parameter.wholeWordsEn);
    m_widget->setExpressionsEnable(parameter.plugin->hasExpressions());
    // A field that is not shown yet does not take the focus.
    showWidget();
    m_widget->setInitString(parameter.plugin->findInit(), mode);
}

void ModFindReplace::setActionsEn(QWidget* widget)
{
    if (m_actions == nullptr || m_widget == nullptr)
        return;
    m_actions->setEnabled(false);
    const auto it = m_widgets.constFind(widget);
    if (it == m_widgets.constEnd()) {
        hideWidget();
        return;
    }
    m_actions->setEnabled(FindReplaceActions::eActionFind, true);
    m_actions->setEnabled(FindReplaceActions::eActionReplace, it->replaceEn);
    // With the bar closed, their keys search for the last text.
    m_actions->setEnabled(FindReplaceActions::eActionFindNext, m_widget->isFindEnabled());
    m_actions->setEnabled(FindReplaceActions::eActionFindPrev, m_widget->isFindEnabled());
    if (it->plugin == m_activePlugin)
        showWidget();
    else
        hideWidget();
}

void ModFindReplace::showWidget()
{
    if (modGuiHook == nullptr)
        return;
    modGuiHook->setCurrentWidget(m_widget);
    modGuiHook->setWidgetVisible(ModGuiHookIf::eLocationCenterBelow, true);
    // If the focus is in the bar already, such as in the field for the replacement, it stays there.
    const QWidget* focus = m_widget->window()->focusWidget();
    if (focus == nullptr || !m_widget->isAncestorOf(focus))
        m_widget->setFocus();
}

void ModFindReplace::hideWidget()
{
    // The area may show a notice of somebody else.
    if (modGuiHook != nullptr && modGuiHook->currentWidget(ModGuiHookIf::eLocationCenterBelow) == m_widget)
        modGuiHook->setWidgetVisible(ModGuiHookIf::eLocationCenterBelow, false);
}

void ModFindReplace::closeWidget()
{
    ModFindReplacePluginIf* plugin = m_activePlugin;
    m_activePlugin = nullptr;
    if (plugin != nullptr)
        plugin->findExit();
    setActionsEn(currentWidget());
    if (QWidget* page = currentWidget())
        page->setFocus();
}

void ModFindReplace::setConfigChanged()
{
    if (currentPlugin() == nullptr)
        return;
    m_configChanged = true;
    setActionsEn(currentWidget());
    preview();
}

bool ModFindReplace::takeConfigChanged()
{
    // If another client has searched last, this one must read the parameters again.
    const bool changed = m_configChanged || currentPlugin() != m_informedPlugin;
    m_configChanged = false;
    m_informedPlugin = currentPlugin();
    return changed;
}

// --- passing on ---

void ModFindReplace::findNext()
{
    if (ModFindReplacePluginIf* plugin = currentPlugin())
        plugin->findNext(takeConfigChanged());
}

void ModFindReplace::findPrev()
{
    if (ModFindReplacePluginIf* plugin = currentPlugin())
        plugin->findPrev(takeConfigChanged());
}

void ModFindReplace::replace()
{
    if (ModFindReplacePluginIf* plugin = currentPlugin())
        plugin->replace(takeConfigChanged());
}

void ModFindReplace::replaceAll()
{
    if (ModFindReplacePluginIf* plugin = currentPlugin())
        plugin->replaceAll(takeConfigChanged());
}

// --- actions ---

QList<QAction*> ModFindReplace::menuActions(ModActionHookIf::eActionClass_t actionClass)
{
    const bool isOurs = actionClass == ModActionHookIf::eActionClassEdit && m_actions != nullptr;
    return isOurs ? m_actions->menuActions() : QList<QAction*>();
}

QList<QAction*> ModFindReplace::toolBarActions(ModActionHookIf::eActionClass_t actionClass)
{
    const bool isOurs = actionClass == ModActionHookIf::eActionClassEdit && m_actions != nullptr;
    return isOurs ? m_actions->toolBarActions() : QList<QAction*>();
}

void ModFindReplace::handleActions(FindReplaceActions::eAction_t action)
{
    switch (action) {
    case FindReplaceActions::eActionFind:
        initWidget(FindReplaceWidget::eModeFind);
        break;
    case FindReplaceActions::eActionReplace:
        initWidget(FindReplaceWidget::eModeReplace);
        break;
    case FindReplaceActions::eActionFindNext:
        findNext();
        break;
    case FindReplaceActions::eActionFindPrev:
        findPrev();
        break;
    }
}

} // namespace nsModFindReplace
