#include "ModGui.h"

#include "ColorScheme.h"
#include "ConfigKeys.h"
#include "DockShares.h"
#include "GuiConfigPage.h"
#include "SchemeIcons.h"
#include "SplashScreen.h"
#include "StatusFrame.h"
#include "WidgetAreaDock.h"
#include "WidgetAreaStacked.h"
#include "WidgetAreaTabbed.h"
#include "WindowPlace.h"

#include "ModCfgAppHookIf.h"

#include <QCoreApplication>
#include <QMainWindow>
#include <QSplitter>
#include <QStatusBar>
#include <QTimer>
#include <QVBoxLayout>

namespace nsModGui {

namespace {

const QString keyWidth = QStringLiteral("ModGui/width");
const QString keyHeight = QStringLiteral("ModGui/height");
const QString keyX = QStringLiteral("ModGui/x");
const QString keyY = QStringLiteral("ModGui/y");
const QString keyColors = QStringLiteral("ModGui/colorScheme"); ///< a value of ColorScheme::eChoice_t
/// A list of entries: the shares of the docks, the two below. All that is not in the stated keys.
const QString keyState = QStringLiteral("ModGui/state");
const QString entryMaximized = QStringLiteral("maximized");
const QString entryBars = QStringLiteral("bars="); ///< tool bars and docks, as the window writes them, in base 64

const int stateVersion = 1;           ///< of the bars
const QSize pictureWindow(1280, 750); ///< window size for pictures of the program
const int pictureDockHeight = 200;    ///< height of the bottom dock in these
const QSize windowIconSize(22, 22);
const int centerWidth = 500; ///< starting width of the tabs
const int rightWidth = 300;  ///< starting width of the area to the right of them

} // namespace

ModGui::ModGui(QMainWindow* window)
    : QObject(window)
    , m_windowObject(window)
{
    // First, so that the parts of the window are styled once.
    setupStyle();
    setupCenter();
    setupDocks();
    setupStatusBar();
    setWindowTitle(QString());
}

ModGui::~ModGui()
{
    delete m_splashScreen;
    delete m_configPage;
    qDeleteAll(m_widgets);
}

QMainWindow* ModGui::window() const
{
    return qobject_cast<QMainWindow*>(m_windowObject.data());
}

template <class Area>
void ModGui::setArea(eLocation_t location, Area* area)
{
    m_areas[location].widget = area;
    m_areas[location].area = area;
}

void ModGui::setupCenter()
{
    auto* center = new QWidget(window());
    auto* layout = new QVBoxLayout(center);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);

    auto* splitter = new QSplitter(center);
    splitter->setObjectName(QStringLiteral("splitterCenter"));
    splitter->setChildrenCollapsible(false);
    m_tabbed = new WidgetAreaTabbed;
    auto* tabbed = m_tabbed;
    auto* right = new WidgetAreaStacked;
    splitter->addWidget(tabbed);
    splitter->addWidget(right);
    splitter->setSizes({centerWidth, rightWidth});
    // The page gets the additional space.
    splitter->setStretchFactor(0, 1);
    splitter->setStretchFactor(1, 0);
    layout->addWidget(splitter, 1);

    auto* below = new WidgetAreaStacked(center);
    layout->addWidget(below);
    window()->setCentralWidget(center);

    setArea(eLocationTabs, tabbed);
    setArea(eLocationCenterRight, right);
    setArea(eLocationCenterBelow, below);
    connect(tabbed, &WidgetAreaTabbed::removeWidgetRequest, this, &ModGui::removeWidgetRequest);
    connect(tabbed, &WidgetAreaTabbed::currentWidgetChanged, this, &ModGui::currentWidgetChanged);
    connect(tabbed, &WidgetAreaTabbed::showFileRequested, this, [this](const QString& path) {
        m_plugins.forEach([&path](ModGuiPluginIf* plugin) { plugin->showFileRequest(path); });
    });
    // The click is reported before the page changes.
    connect(tabbed, &WidgetAreaTabbed::tabBarClicked, this, &ModGui::focusPage, Qt::QueuedConnection);
}

void ModGui::setupDocks()
{
    m_dockShares = new DockShares(window());
    const struct
    {
        eLocation_t location;
        Qt::DockWidgetArea side;
        const char* title;
        const char* objectName;
    } docks[] = {
        {eLocationDockLeft, Qt::LeftDockWidgetArea, QT_TR_NOOP("Dock widget left"), "dockLeft"},
        {eLocationDockBottom, Qt::BottomDockWidgetArea, QT_TR_NOOP("Dock widget bottom"), "dockBottom"},
        {eLocationDockRight, Qt::RightDockWidgetArea, QT_TR_NOOP("Dock widget right"), "dockRight"},
    };
    for (const auto& entry : docks) {
        auto* dock = new WidgetAreaDock(tr(entry.title), window());
        dock->setObjectName(QLatin1String(entry.objectName));
        window()->addDockWidget(entry.side, dock);
        setArea(entry.location, dock);
        connect(dock, &WidgetAreaDock::currentWidgetChanged, this, &ModGui::currentWidgetChanged);
        m_dockShares->add(dock);
        m_docks.append(dock);
    }
}

void ModGui::setupStatusBar()
{
    m_statusBar = window()->statusBar();
    for (eLocation_t location : {eLocationStatusFirst, eLocationStatusSecond, eLocationStatusThird}) {
        auto* frame = new StatusFrame;
        m_statusBar->addPermanentWidget(frame);
        setArea(location, frame->area());
    }
}

void ModGui::setupStyle()
{
    m_colorScheme = new ColorScheme(window());
    // The same in every scheme: it stands in the bars of the desktop.
    window()->setWindowIcon(SchemeIcons::always(QStringLiteral(":/ModGui/img/appIcon.png")));
}

WidgetArea* ModGui::area(int location) const
{
    if (location <= eLocationNone || location >= areaCount || m_areas[location].widget == nullptr)
        return nullptr;
    return m_areas[location].area;
}

WidgetAreaTabbed* ModGui::tabs() const
{
    return static_cast<WidgetAreaTabbed*>(m_areas[eLocationTabs].widget.data());
}

ModGuiHookIf::eLocation_t ModGui::locationOf(QWidget* widget) const
{
    for (int location = eLocationTabs; location < areaCount; ++location) {
        const WidgetArea* candidate = area(location);
        if (candidate != nullptr && candidate->hasWidget(widget))
            return static_cast<eLocation_t>(location);
    }
    return eLocationNone;
}

void ModGui::registerPlugin(ModGuiPluginIfInterMod* plugin)
{
    if (plugin != nullptr)
        plugin->modGuiHook = this;
}

void ModGui::unregisterPlugin(ModGuiPluginIfInterMod* plugin)
{
    if (plugin != nullptr)
        plugin->modGuiHook = nullptr;
}

void ModGui::registerPlugin(ModGuiPluginIf* plugin)
{
    if (m_plugins.add(plugin))
        plugin->modGuiHook = this;
}

void ModGui::unregisterPlugin(ModGuiPluginIf* plugin)
{
    if (!m_plugins.remove(plugin))
        return;
    plugin->modGuiHook = nullptr;
    // The client may be deleted soon: its widgets that are still in the window have no owner from now on.
    for (sWidgetData_t* data : qAsConst(m_widgets)) {
        if (data->plugin == plugin)
            data->plugin = nullptr;
    }
}

void ModGui::setWindowTitle(QString text)
{
    if (window() == nullptr)
        return;
    const QString name = QCoreApplication::applicationName();
    window()->setWindowTitle(text.isEmpty() ? name : name + QStringLiteral(" - ") + text);
    m_tabbed->setOpenText(text);
}

void ModGui::addWidget(ModGuiPluginIf* plugin, eLocation_t location, QWidget* widget, QString name)
{
    WidgetArea* target = area(location);
    if (target == nullptr || widget == nullptr)
        return;
    const eLocation_t before = locationOf(widget);
    forgetWidget(widget);
    if (before != eLocationNone)
        area(before)->removeWidget(widget);

    if (location == eLocationTabs)
        m_centerWidgets.append(widget);
    // The clients are notified of the new current widget before its owner is stored, so that an owner that is still
    // being set up is not called.
    const QPointer<QWidget> alive(widget);
    target->addWidget(name, widget);
    if (alive.isNull()) {
        m_centerWidgets.removeAll(widget);
        return;
    }
    if (!target->hasWidget(widget))
        return; // a client has moved the widget when it was notified

    forgetWidget(widget);
    if (location == eLocationTabs)
        m_centerWidgets.append(widget);
    auto* data = new sWidgetData_t;
    data->plugin = plugin;
    data->destroyed = connect(widget, &QObject::destroyed, this, [this, widget] { forgetWidget(widget); });
    m_widgets.insert(widget, data);
}

void ModGui::forgetWidget(QWidget* widget)
{
    m_centerWidgets.removeAll(widget);
    sWidgetData_t* data = m_widgets.take(widget);
    if (data == nullptr)
        return;
    disconnect(data->destroyed);
    delete data;
}

void ModGui::removeWidget(QWidget* widget)
{
    const eLocation_t location = locationOf(widget);
    forgetWidget(widget);
    if (location == eLocationNone)
        return;
    const bool hadFocus = holdsFocus(widget);
    area(location)->removeWidget(widget);
    if (hadFocus)
        focusPage();
}

bool ModGui::holdsFocus(const QWidget* widget) const
{
    const QWidget* focus = window() != nullptr ? window()->focusWidget() : nullptr;
    return focus != nullptr && widget != nullptr && (focus == widget || widget->isAncestorOf(focus));
}

/// Gives the focus to the page of the centre: to the field in it that had it last, or to its first one.
void ModGui::focusPage()
{
    QWidget* page = currentWidget(eLocationTabs);
    if (page == nullptr || holdsFocus(page))
        return;
    QWidget* target = page->focusWidget();
    if (target == nullptr || !target->isEnabled())
        target = page;
    if (target == page && page->focusProxy() == nullptr && page->focusPolicy() == Qt::NoFocus) {
        for (QWidget* next = page->nextInFocusChain(); next != page; next = next->nextInFocusChain()) {
            if (page->isAncestorOf(next) && (next->focusPolicy() & Qt::TabFocus) != 0 && next->isEnabled() &&
                next->isVisibleTo(page)) {
                target = next;
                break;
            }
        }
    }
    target->setFocus();
}

/// Called after a change of page. A field in a dock keeps the focus, as steps of the simulator change pages.
void ModGui::focusNewPage()
{
    const QWidget* focus = window() != nullptr ? window()->focusWidget() : nullptr;
    const bool elsewhere = focus != nullptr && focus->isVisible() && focus->isEnabled() && focus != window() &&
                           !m_tabbed->isAncestorOf(focus) && focus != m_tabbed;
    if (!elsewhere)
        focusPage();
}

void ModGui::setCurrentWidget(QWidget* widget)
{
    if (WidgetArea* owner = area(locationOf(widget)))
        owner->showWidget(widget);
}

void ModGui::setWidgetName(QWidget* widget, QString name)
{
    if (tabs() != nullptr)
        tabs()->setWidgetName(widget, name);
}

void ModGui::setWidgetIcon(QWidget* widget, QIcon icon)
{
    if (tabs() != nullptr)
        tabs()->setWidgetIcon(widget, icon);
}

QWidget* ModGui::currentWidget(eLocation_t location)
{
    const WidgetArea* asked = area(location);
    return asked != nullptr ? asked->currentAreaWidget() : nullptr;
}

void ModGui::setWidgetVisible(eLocation_t location, bool visible)
{
    WidgetArea* asked = area(location);
    if (asked == nullptr)
        return;
    const bool hadFocus = !visible && holdsFocus(m_areas[location].widget);
    if (auto* dock = qobject_cast<WidgetAreaDock*>(m_areas[location].widget.data()))
        dock->setAway(!visible && currentWidget(eLocationTabs) != nullptr);
    asked->setAreaVisible(visible);
    if (hadFocus)
        focusPage();
}

bool ModGui::widgetVisible(eLocation_t location)
{
    const WidgetArea* asked = area(location);
    return asked != nullptr && asked->isAreaVisible();
}

bool ModGui::hasWidget(eLocation_t location, QWidget* widget)
{
    const WidgetArea* asked = area(location);
    return asked != nullptr && asked->hasWidget(widget);
}

void ModGui::setEnabled(QWidget* widget, bool enabled)
{
    if (WidgetArea* owner = area(locationOf(widget)))
        owner->setWidgetEnabled(widget, enabled);
}

void ModGui::setStatusBarText(QString text)
{
    if (m_statusBar == nullptr)
        return;
    m_statusBar->showMessage(text, 0);
    if (sWidgetData_t* data = m_widgets.value(currentWidget(eLocationTabs)))
        data->statusBarText = text;
}

void ModGui::clearStatusBarText()
{
    if (m_statusBar == nullptr)
        return;
    m_statusBar->clearMessage();
    if (sWidgetData_t* data = m_widgets.value(currentWidget(eLocationTabs)))
        data->statusBarText.clear();
}

void ModGui::setEmptyPage(QWidget* page)
{
    if (tabs() != nullptr)
        tabs()->setEmptyPage(page);
}

QSplitter* ModGui::splitPage(QWidget* page, QWidget* second, Qt::Orientation orientation)
{
    return tabs() != nullptr ? tabs()->splitPage(page, second, orientation) : nullptr;
}

void ModGui::removeWidgetRequest(QWidget* widget)
{
    const sWidgetData_t* data = m_widgets.value(widget);
    if (data != nullptr && data->plugin != nullptr)
        data->plugin->removeWidgetRequest(widget);
}

void ModGui::showStoredStatusText(QWidget* widget)
{
    const sWidgetData_t* data = m_widgets.value(widget);
    if (data != nullptr && m_statusBar != nullptr && hasWidget(eLocationTabs, widget))
        m_statusBar->showMessage(data->statusBarText, 0);
}

void ModGui::currentWidgetChanged(QWidget*, QWidget* widget)
{
    // A window that is destroyed without its exit phases takes the clients along.
    if (window() == nullptr)
        return;
    const sWidgetData_t* data = m_widgets.value(widget);
    ModGuiPluginIf* owner = data != nullptr ? data->plugin : nullptr;
    showStoredStatusText(widget);
    const eLocation_t location = locationOf(widget);
    if (sender() == m_tabbed)
        endOfPage();
    // Each notified client may remove or delete the widget and its owner.
    const QPointer<QWidget> alive(widget);
    const bool any = widget != nullptr;
    m_plugins.forEach([&](ModGuiPluginIf* plugin) {
        if (plugin != owner && !(any && alive.isNull()))
            plugin->setFocus(location, owner, widget);
    });
    data = m_widgets.value(widget);
    if (owner != nullptr && data != nullptr && data->plugin == owner)
        owner->setFocus(location, owner, widget);
    if (location == eLocationTabs && m_centerWidgets.removeAll(widget) > 0)
        m_centerWidgets.append(widget);
    if (location == eLocationTabs)
        focusNewPage();
}

/// Shows the docks again that were hidden for a page, when that leaves the front.
void ModGui::endOfPage()
{
    for (WidgetAreaDock* dock : qAsConst(m_docks)) {
        if (dock != nullptr)
            dock->setAway(false);
    }
}

void ModGui::modRegisterPlugins(QList<ModPluginIf*> modules)
{
    registerPluginsOf<ModGuiPluginIf>(modules, this);
    registerPluginsOf<ModGuiPluginIfInterMod>(modules, this);
}

void ModGui::modInit()
{
    if (m_actions != nullptr)
        return;
    m_actions = new GuiActions(this);
    m_actions->setEnabled(true);
    connect(m_actions, qOverload<GuiActions::eAction_t>(&GuiActions::triggered), this, &ModGui::handleActions);
}

void ModGui::modRun()
{
    restoreState();
}

/// Restores tool bars and docks as the user has left them.
void ModGui::restoreState()
{
    if (modCfgAppHook == nullptr || window() == nullptr)
        return;
    const QStringList state = modCfgAppHook->value(keyState, QStringList());
    for (const QString& entry : state) {
        if (entry.startsWith(entryBars))
            window()->restoreState(QByteArray::fromBase64(entry.mid(entryBars.size()).toLatin1()), stateVersion);
    }
    // The visibility of docks is not restored: it depends on whether they have pages now.
    for (WidgetAreaDock* dock : qAsConst(m_docks)) {
        if (dock != nullptr)
            dock->setVisible(true);
    }
    m_dockShares->setShares(state);
}

void ModGui::modExit()
{
    delete m_actions;
    m_actions = nullptr;
}

QList<QAction*> ModGui::menuActions(ModActionHookIf::eActionClass_t actionClass)
{
    // The ways from page to page.
    if (actionClass == ModActionHookIf::eActionClassNavigation && tabs() != nullptr)
        return tabs()->actions();
    const bool isOurs = actionClass == ModActionHookIf::eActionClassHelp && m_actions != nullptr;
    return isOurs ? m_actions->menuActions() : QList<QAction*>();
}

QList<QAction*> ModGui::toolBarActions(ModActionHookIf::eActionClass_t actionClass)
{
    const bool isOurs = actionClass == ModActionHookIf::eActionClassHelp && m_actions != nullptr;
    return isOurs ? m_actions->toolBarActions() : QList<QAction*>();
}

void ModGui::handleActions(GuiActions::eAction_t action)
{
    if (action != GuiActions::eActionSetDefaultWindowSize || window() == nullptr)
        return;
    window()->resize(pictureWindow);
    if (auto* dock = static_cast<WidgetAreaDock*>(m_areas[eLocationDockBottom].widget.data()))
        dock->setHeight(pictureDockHeight);
    m_dockShares->record();
}

nsModConfig::ModConfigPagePluginIf* ModGui::configPage(int)
{
    if (m_configPage == nullptr)
        m_configPage = new GuiConfigPage;
    return m_configPage;
}

void ModGui::configPageSetConfig(nsModConfig::ModConfigPagePluginIf*)
{
    if (m_configPage != nullptr && m_colorScheme != nullptr)
        m_configPage->setColors(m_colorScheme->choice());
    if (m_configPage != nullptr && modCfgAppHook != nullptr)
        m_configPage->setOpensAtLastPage(modCfgAppHook->value(nsModConfig::configKeys::opensAtLastPage, 0) != 0);
}

void ModGui::configPageClose(bool accepted)
{
    const QPointer<GuiConfigPage> page = m_configPage;
    if (page != nullptr && accepted && m_colorScheme != nullptr) {
        m_colorScheme->setChoice(page->colors());
        if (modCfgAppHook != nullptr)
            modCfgAppHook->setValue(nsModConfig::configKeys::opensAtLastPage, page->opensAtLastPage() ? 1 : 0);
        // The dialog saves the settings tree, so the new value is written to it first.
        wrAppCfg();
    }
    delete page;
}

void ModGui::rdAppCfg()
{
    if (modCfgAppHook == nullptr || window() == nullptr)
        return;
    const QRect first = WindowPlace::first(window());
    const QSize size(modCfgAppHook->value(keyWidth, first.width()), modCfgAppHook->value(keyHeight, first.height()));
    const auto place = [this](const QString& key, int dflt) {
        return qBound(-WindowPlace::farthest, modCfgAppHook->value(key, dflt), WindowPlace::farthest);
    };
    const QPoint position(place(keyX, first.x()), place(keyY, first.y()));
    const QRect geometry = WindowPlace::reachable(
        QRect(position, size.expandedTo(WindowPlace::smallest).boundedTo(WindowPlace::largest)), window());
    window()->setGeometry(geometry);
    window()->setIconSize(windowIconSize);
    const int colors = modCfgAppHook->value(keyColors, int(ColorScheme::eAsSystem));
    if (m_colorScheme != nullptr && colors >= ColorScheme::eAsSystem && colors <= ColorScheme::eAlwaysDark)
        m_colorScheme->setChoice(static_cast<ColorScheme::eChoice_t>(colors));
    if (modCfgAppHook->value(keyState, QStringList()).contains(entryMaximized))
        window()->setWindowState(window()->windowState() | Qt::WindowMaximized);

    delete m_splashScreen;
    // The splash screen handles events. The pages are styled in the window, and when they are seen.
    QCoreApplication::removePostedEvents(nullptr, QEvent::PolishRequest);
    m_splashScreen = new SplashScreen;
    m_splashScreen->show(geometry.x(), geometry.y(), geometry.width(), geometry.height());
}

void ModGui::wrAppCfg()
{
    if (modCfgAppHook == nullptr || window() == nullptr)
        return;
    const bool maximized = window()->isMaximized();
    const QRect geometry = maximized ? window()->normalGeometry() : window()->geometry();
    QStringList state = m_dockShares->shares();
    if (maximized)
        state.append(entryMaximized);
    state.append(entryBars + QString::fromLatin1(window()->saveState(stateVersion).toBase64()));
    modCfgAppHook->setValue(keyState, state);
    if (m_colorScheme != nullptr)
        modCfgAppHook->setValue(keyColors, int(m_colorScheme->choice()));
    modCfgAppHook->setValue(keyWidth, geometry.width());
    modCfgAppHook->setValue(keyHeight, geometry.height());
    modCfgAppHook->setValue(keyX, geometry.x());
    modCfgAppHook->setValue(keyY, geometry.y());
}

} // namespace nsModGui
