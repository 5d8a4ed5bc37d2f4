#include "ModHlp.h"

#include "HlpConfigPage.h"
#include "HlpDialogWindow.h"
#include "HlpIndexWidget.h"
#include "HlpNetworkAccessManager.h"
#include "HlpWidget.h"
#include "ModMsgHookIf.h"
#include "ModNetworkHookIf.h"
#include "ModScriptHookIf.h"
#include "ShippedFolder.h"

#include <QApplication>
#include <QHelpEngine>
#include <QNetworkProxy>
#include <QTimer>

#include <utility>

namespace nsModHlp {

namespace {

const QUrl pageAbout(QStringLiteral("pageid://about"));

} // namespace

ModHlp::ModHlp(QObject* parent)
    : QObject(parent)
    , m_closedPages(new QWidget)
{
    // The engine's threads must not run into the end of the process, which does not delete its windows.
    connect(qApp, &QCoreApplication::aboutToQuit, this, &ModHlp::closeCollection);
}

ModHlp::~ModHlp()
{
    emit vanishing();
    // If the window is deleted without the exit phases, the network manager must outlive what loads through it.
    for (QWidget* page : QList<HlpWidget*>(m_pages) + m_dialogPages.values()) {
        page->disconnect(this);
        delete page;
    }
    delete m_window;
    if (m_network != nullptr)
        m_network->setEngine(nullptr);
    m_collection.close();
    delete m_index;
    delete m_configPage;
}

void ModHlp::modRegisterPlugins(QList<ModPluginIf*> modules)
{
    registerPluginsOf<ModHlpPluginIf>(modules, this);
}

void ModHlp::registerPlugin(ModHlpPluginIf* plugin)
{
    if (!m_plugins.add(plugin))
        return;
    plugin->modHlpHook = this;
    // If the window is deleted without the exit phases, modules outlive this one and still have dialogs to close.
    if (auto* client = dynamic_cast<QObject*>(plugin))
        connect(this, &ModHlp::vanishing, client, [plugin] { plugin->modHlpHook = nullptr; });
}

void ModHlp::modInit()
{
    m_actionsHelp = new HlpActionsHelp(this);
    m_actionsNavi = new HlpActionsNavi(this);
    m_actionsNavi->setEnabled(false);
    qApp->installEventFilter(this);
    connect(m_actionsHelp, SIGNAL(triggered(nsModHlp::HlpActionsHelp::eAction_t)), this,
            SLOT(handleActions(nsModHlp::HlpActionsHelp::eAction_t)));
    connect(m_actionsNavi, SIGNAL(triggered(nsModHlp::HlpActionsNavi::eAction_t)), this,
            SLOT(handleActions(nsModHlp::HlpActionsNavi::eAction_t)));
}

bool ModHlp::setupData()
{
    const bool success = m_collection.open(HlpCollection::find(ShippedFolder::programDir(m_programFile)));
    network()->setEngine(m_collection.engine());
    return success;
}

HlpNetworkAccessManager* ModHlp::network()
{
    if (m_network == nullptr) {
        m_network = new HlpNetworkAccessManager([this] { openCollection(); }, this);
        connect(m_network, &HlpNetworkAccessManager::callScript, this, &ModHlp::callScript);
    }
    return m_network;
}

void ModHlp::makeReady()
{
    network()->makeReady();
}

bool ModHlp::isReady() const
{
    return m_network != nullptr && m_network->isReady();
}

void ModHlp::openCollection()
{
    if (!setupData() && modMsgHook != nullptr)
        modMsgHook->showErrorMessage(tr("Cannot setup help data!"));
}

void ModHlp::closeCollection()
{
    if (m_collection.engine() == nullptr)
        return;
    m_network->setEngine(nullptr);
    m_collection.close();
    // Another event loop may follow.
    m_network->setOpener([this] { openCollection(); });
}

QHelpEngine* ModHlp::openedEngine()
{
    makeReady();
    return m_collection.engine();
}

void ModHlp::modInitIntermod()
{
    // The window is seen first; without one, what is in progress goes first.
    if (parent() == nullptr)
        QTimer::singleShot(0, this, &ModHlp::makeReady);
    if (modMsgHook != nullptr)
        modMsgHook->registerPluginUrlHndlr(ModMsgHookIf::eUrlHndlrHelp, this);
    showIndexWidget();
}

void ModHlp::modRun()
{
    if (!showGettingStarted)
        return;
    m_isStartDue = true;
    // The window is seen first, see eventFilter().
    if (parent() == nullptr)
        QTimer::singleShot(0, this, &ModHlp::openDueStart);
}

void ModHlp::openDueStart()
{
    // The program may have ended.
    if (std::exchange(m_isStartDue, false) && !m_lastPages.has_value())
        openStart();
}

QUrl ModHlp::pageStart()
{
    return QUrl(QStringLiteral("pageid://gettingstarted"));
}

void ModHlp::openStart()
{
    openFile(pageStart());
}

void ModHlp::modExitIntermod()
{
    if (modMsgHook != nullptr)
        modMsgHook->unregisterPluginUrlHndlr(ModMsgHookIf::eUrlHndlrHelp, this);
    m_lastPages = openPages();
    closeAllFiles();
    dropWindow();
    for (QWidget* dialog : m_dialogPages.keys())
        closeDialogHlp(dialog);
    if (m_index != nullptr && modGuiHook != nullptr)
        modGuiHook->removeWidget(m_index);
    // Not deleted yet: the engine fills its lists beside the event loop, and does not notice when they are gone.
    if (m_index != nullptr)
        m_index->hide();
}

void ModHlp::modExit()
{
    delete m_actionsHelp;
    delete m_actionsNavi;
    m_actionsHelp = nullptr;
    m_actionsNavi = nullptr;
}

void ModHlp::rdAppCfg()
{
    rdHlpConfig(modCfgAppHook);
    showIndexWidget();
}

void ModHlp::wrAppCfg()
{
    wrHlpConfig(modCfgAppHook);
}

/// Puts contents and index where the settings want them.
void ModHlp::showIndexWidget()
{
    // Not before the modules know each other.
    if (modGuiHook == nullptr || m_actionsHelp == nullptr)
        return;
    if (m_index != nullptr)
        modGuiHook->removeWidget(m_index);
    if (hlpIndexSideRight == indexDisabled) {
        // Not deleted: the engine has its lists only once.
        if (m_index != nullptr)
            m_index->hide();
        return;
    }
    if (m_index == nullptr) {
        m_index = new HlpIndexWidget([this] { return openedEngine(); });
        connect(m_index, &HlpIndexWidget::linkActivated, this, [this](const QUrl& url) { openFile(url); });
    }
    const bool isRight = hlpIndexSideRight == indexRight;
    const auto location = isRight ? ModGuiHookIf::eLocationDockRight : ModGuiHookIf::eLocationDockLeft;
    // A panel that is added comes to the front: the one that the user has chosen stays there.
    QWidget* inFront = modGuiHook->currentWidget(location);
    modGuiHook->addWidget(this, location, m_index, tr("Help"));
    m_index->show();
    if (inFront != nullptr && inFront != m_index)
        modGuiHook->setCurrentWidget(inFront);
}

nsModConfig::ModConfigPagePluginIf* ModHlp::configPage(int)
{
    if (m_configPage == nullptr)
        m_configPage = new HlpConfigPage;
    return m_configPage;
}

void ModHlp::configPageSetConfig(nsModConfig::ModConfigPagePluginIf*)
{
    if (m_configPage != nullptr)
        m_configPage->setConfig(this);
}

void ModHlp::configPageClose(bool accepted)
{
    if (m_configPage != nullptr && accepted) {
        m_configPage->config(this);
        // The dialog saves the settings tree, so the new values are written to it first.
        if (modCfgAppHook != nullptr)
            wrHlpConfig(modCfgAppHook);
    }
    delete m_configPage;
}

void ModHlp::configPagesClosed(bool accepted)
{
    if (accepted)
        showIndexWidget();
}

QList<QAction*> ModHlp::menuActions(ModActionHookIf::eActionClass_t actionClass)
{
    if (actionClass == ModActionHookIf::eActionClassHelp && m_actionsHelp != nullptr)
        return m_actionsHelp->menuActions();
    if (actionClass == ModActionHookIf::eActionClassNavigation && m_actionsNavi != nullptr)
        return m_actionsNavi->menuActions();
    return {};
}

QList<QAction*> ModHlp::toolBarActions(ModActionHookIf::eActionClass_t actionClass)
{
    if (actionClass == ModActionHookIf::eActionClassHelp && m_actionsHelp != nullptr)
        return m_actionsHelp->toolBarActions();
    if (actionClass == ModActionHookIf::eActionClassNavigation && m_actionsNavi != nullptr)
        return m_actionsNavi->toolBarActions();
    return {};
}

void ModHlp::handleActions(HlpActionsHelp::eAction_t action)
{
    switch (action) {
    case HlpActionsHelp::eActionOnlineHelp:
        openStart();
        break;
    case HlpActionsHelp::eActionAbout:
        openFile(pageAbout);
        break;
    case HlpActionsHelp::eActionContext:
        explain(QApplication::focusWidget());
        break;
    case HlpActionsHelp::eActionWhatsThis:
        whatsThis(QApplication::focusWidget());
        break;
    }
}

void ModHlp::handleActions(HlpActionsNavi::eAction_t action)
{
    HlpWidget* page = currentPage();
    if (page == nullptr)
        return;
    if (action == HlpActionsNavi::eActionGoBack)
        page->goBack();
    else
        page->goForward();
}

void ModHlp::callScript(QString script)
{
    if (modScriptHook != nullptr)
        modScriptHook->executeScript(script);
}

} // namespace nsModHlp
