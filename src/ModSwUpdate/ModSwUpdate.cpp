#include "ModSwUpdate.h"

#include "PlainText.h"
#include "SwUpdateCheck.h"
#include "SwUpdateConfigPage.h"

#include "ModNetworkHookIf.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QScreen>

namespace nsModSwUpdate {

namespace {

const int lineMax = 300; ///< characters of a line of the change log
const int changeLogLinesMax = 200;

QString screenSize()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    const QSize size = screen != nullptr ? screen->geometry().size() : QSize(0, 0);
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

} // namespace

ModSwUpdate::ModSwUpdate(QObject* parent)
    : QObject(parent)
    , m_addresses(SwUpdateAddresses::own())
{
    QCoreApplication::setApplicationVersion(applicationVersion());
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &ModSwUpdate::handleTimeout);
}

ModSwUpdate::~ModSwUpdate()
{
    delete m_configPage;
}

// --- check ---

void ModSwUpdate::chkForUpdate()
{
    if (m_check == nullptr)
        return;
    if (m_addresses.server.isEmpty()) {
        showMessage(ModMsgHookIf::eMsgInfo, tr("This build has no update server."));
        return;
    }
    if (m_check->isRunning()) {
        showMessage(ModMsgHookIf::eMsgInfo, tr("An update check is in progress."));
        return;
    }
    m_check->setServer(m_addresses.server);
    m_check->setProxy(modNetworkHook != nullptr ? modNetworkHook->proxy() : QNetworkProxy());
    m_timer.start(timeOut * 1000);
    showMessage(ModMsgHookIf::eMsgInfo, tr("Checking for update..."));
    m_check->chkUpdate(releaseText(), screenSize(), true);
}

void ModSwUpdate::evaluateUpdateCheck()
{
    m_timer.stop();
    if (m_check == nullptr)
        return;
    lastUpdateCheck = QDate::currentDate();
    if (!m_check->isExpired()) {
        showMessage(ModMsgHookIf::eMsgInfo, tr("No update available."));
        return;
    }
    const QString text = tr("Update available: %1 from %2").arg(m_check->release(), m_check->date());
    showMessage(ModMsgHookIf::eMsgInfo, text);
    showChangeLog();
    if (!m_addresses.downloadPage.isEmpty())
        openDownloadPage();
}

/// As a group that folds itself: one line until the user wants to know more.
void ModSwUpdate::showChangeLog()
{
    QStringList lines = m_check->changeLog().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    if (lines.isEmpty() || modMsgHook == nullptr)
        return;
    if (lines.size() > changeLogLinesMax) {
        lines = lines.mid(0, changeLogLinesMax);
        lines.append(QStringLiteral("..."));
    }
    modMsgHook->openMessageGroup(tr("Changes"));
    for (const QString& line : qAsConst(lines))
        modMsgHook->showInfoMessage(PlainText::bounded(line, lineMax));
    modMsgHook->closeMessageGroup(true);
}

void ModSwUpdate::openDownloadPage()
{
    const QUrl page = m_addresses.downloadPage;
    if (page.isEmpty()) {
        showMessage(ModMsgHookIf::eMsgInfo, tr("This build has no download page."));
        return;
    }
    if (!QDesktopServices::openUrl(page))
        showMessage(ModMsgHookIf::eMsgError, tr("Can not open the download page: ") + page.toDisplayString());
}

/// The timer goes on: what failed has no answer, so it ends as a check that takes too long.
void ModSwUpdate::handleFailure(const QString& reason)
{
    showMessage(ModMsgHookIf::eMsgWarning, tr("Update check: ") + reason);
}

void ModSwUpdate::handleTimeout()
{
    stopCheck();
    showMessage(ModMsgHookIf::eMsgError, tr("Timeout during update check!"));
}

void ModSwUpdate::stopCheck()
{
    m_timer.stop();
    if (m_check != nullptr)
        m_check->abort();
}

void ModSwUpdate::showMessage(ModMsgHookIf::eMsgType_t type, const QString& text)
{
    if (modMsgHook != nullptr)
        modMsgHook->showMessage(type, text);
}

// --- actions ---

QList<QAction*> ModSwUpdate::menuActions(ModActionHookIf::eActionClass_t actionClass)
{
    const bool isOurs = actionClass == ModActionHookIf::eActionClassHelp && m_actions != nullptr;
    return isOurs ? m_actions->menuActions() : QList<QAction*>();
}

QList<QAction*> ModSwUpdate::toolBarActions(ModActionHookIf::eActionClass_t actionClass)
{
    const bool isOurs = actionClass == ModActionHookIf::eActionClassHelp && m_actions != nullptr;
    return isOurs ? m_actions->toolBarActions() : QList<QAction*>();
}

void ModSwUpdate::handleActions(SwUpdateActions::eAction_t action)
{
    switch (action) {
    case SwUpdateActions::eActionCheck:
        chkForUpdate();
        break;
    case SwUpdateActions::eActionDownloadPage:
        openDownloadPage();
        break;
    }
}

// --- settings ---

void ModSwUpdate::rdAppCfg()
{
    if (modCfgAppHook != nullptr)
        rdSwUpdateConfig(modCfgAppHook);
}

void ModSwUpdate::wrAppCfg()
{
    if (modCfgAppHook != nullptr)
        wrSwUpdateConfig(modCfgAppHook);
}

nsModConfig::ModConfigPagePluginIf* ModSwUpdate::configPage(int)
{
    if (m_configPage == nullptr) {
        m_configPage = new SwUpdateConfigPage;
        if (m_addresses.server.isEmpty())
            m_configPage->setNote(tr("This build has no update server, so it never checks for updates."));
    }
    return m_configPage;
}

void ModSwUpdate::configPageSetConfig(nsModConfig::ModConfigPagePluginIf*)
{
    if (m_configPage != nullptr)
        m_configPage->setConfig(this);
}

void ModSwUpdate::configPageClose(bool accepted)
{
    if (m_configPage != nullptr && accepted) {
        m_configPage->config(this);
        wrAppCfg();
    }
    delete m_configPage;
}

// --- life cycle ---

void ModSwUpdate::modInit()
{
    if (m_check != nullptr)
        return;
    m_check = new SwUpdateCheck(this);
    connect(m_check, &SwUpdateCheck::ready, this, &ModSwUpdate::evaluateUpdateCheck);
    connect(m_check, &SwUpdateCheck::failed, this, &ModSwUpdate::handleFailure);
    // The program can end without the phases of the exit; a request must not outlive the event loop.
    connect(qApp, &QCoreApplication::aboutToQuit, this, &ModSwUpdate::stopCheck);
    m_actions = new SwUpdateActions(this);
    connect(m_actions, qOverload<SwUpdateActions::eAction_t>(&SwUpdateActions::triggered), this,
            &ModSwUpdate::handleActions);
}

void ModSwUpdate::modRun()
{
    if (updateCheckInterval < intervalNever || updateCheckInterval > intervalMonthly)
        updateCheckInterval = intervalDaily;
    if (!m_addresses.server.isEmpty() && isCheckDue(QDate::currentDate()))
        chkForUpdate();
}

void ModSwUpdate::modExitIntermod()
{
    stopCheck();
}

void ModSwUpdate::modExit()
{
    delete m_check;
    m_check = nullptr;
    delete m_actions;
    m_actions = nullptr;
}

} // namespace nsModSwUpdate
