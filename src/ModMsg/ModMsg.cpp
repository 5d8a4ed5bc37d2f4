#include "ModMsg.h"

#include "MsgStatusBar.h"
#include "MsgViewer.h"

#include "ModGuiHookIf.h"
#include "ModMsgPluginIf.h"
#include "ModScriptHookIf.h"
#include "PageProperties.h"

#include <QWidget>

#include <algorithm>
#include <iterator>

namespace nsModMsg {

ModMsg::ModMsg(QWidget* parent)
    : QObject(parent)
{
}

ModMsg::~ModMsg()
{
    if (m_viewer != nullptr && m_viewer->parentWidget() == nullptr)
        delete m_viewer;
    if (m_statusBar != nullptr && m_statusBar->parentWidget() == nullptr)
        delete m_statusBar;
}

void ModMsg::registerPlugin(ModMsgPluginIfInterMod* plugin)
{
    if (plugin != nullptr)
        plugin->modMsgHook = this;
}

void ModMsg::unregisterPlugin(ModMsgPluginIfInterMod* plugin)
{
    if (plugin != nullptr)
        plugin->modMsgHook = nullptr;
}

void ModMsg::registerPlugin(ModMsgPluginIf* plugin)
{
    if (m_plugins.add(plugin))
        plugin->modMsgHook = this;
}

void ModMsg::unregisterPlugin(ModMsgPluginIf* plugin)
{
    if (m_plugins.remove(plugin))
        plugin->modMsgHook = nullptr;
}

ModMsg::UrlHndlrList* ModMsg::urlHndlrs(eUrlHndlr_t kind)
{
    switch (kind) {
    case eUrlHndlrHelp:
        return &m_hlpUrlHndlrs;
    case eUrlHndlrSource:
        return &m_srcUrlHndlrs;
    }
    return nullptr;
}

void ModMsg::registerPluginUrlHndlr(eUrlHndlr_t kind, ModMsgPluginIfUrlHndlr* handler)
{
    if (UrlHndlrList* list = urlHndlrs(kind))
        list->add(handler);
}

void ModMsg::unregisterPluginUrlHndlr(eUrlHndlr_t kind, ModMsgPluginIfUrlHndlr* handler)
{
    if (UrlHndlrList* list = urlHndlrs(kind))
        list->remove(handler);
}

void ModMsg::clearMessages()
{
    if (m_viewer == nullptr)
        return;
    if (m_viewer->groupDepth() == 0)
        m_records.clear();
    m_runStart = m_records.size();
    std::fill(std::begin(m_counts), std::end(m_counts), 0);
    m_viewer->clearMessages();
    showCounts();
}

void ModMsg::openMessageGroup(QString text, QUrl hlpDoc)
{
    if (m_viewer != nullptr)
        m_viewer->openMessageGroup(text, hlpDoc);
}

void ModMsg::closeMessageGroup(bool success)
{
    if (m_viewer == nullptr)
        return;
    // The closing line is a message like any other, so that a failure marks the group that it ends.
    m_isClosing = true;
    if (success)
        showInfoMessage(tr("Done"));
    else
        showErrorMessage(tr("Failure"));
    m_isClosing = false;
    m_viewer->closeMessageGroup();
}

void ModMsg::showMessage(eMsgType_t type, QString text, QUrl hlpDoc, MsgUrl srcFile)
{
    if (m_viewer == nullptr)
        return;
    if (!m_isClosing && type >= eMsgInfo && type <= eMsgError) {
        m_records.push_back({type, text, srcFile});
        ++m_counts[type];
    }
    m_viewer->setNextNumber(m_isClosing ? -1 : int(m_records.size()) - 1);
    switch (type) {
    case eMsgInfo:
        m_viewer->showInfoMessage(text, hlpDoc, srcFile);
        break;
    case eMsgWarning:
        m_viewer->showWarningMessage(text, hlpDoc, srcFile);
        break;
    case eMsgError:
        m_viewer->showErrorMessage(text, hlpDoc, srcFile);
        break;
    }
    if (type != eMsgInfo)
        showCounts();
}

void ModMsg::showInfoMessage(QString text, QUrl hlpDoc, MsgUrl srcFile)
{
    showMessage(eMsgInfo, text, hlpDoc, srcFile);
}

void ModMsg::showWarningMessage(QString text, QUrl hlpDoc, MsgUrl srcFile)
{
    showMessage(eMsgWarning, text, hlpDoc, srcFile);
}

void ModMsg::showErrorMessage(QString text, QUrl hlpDoc, MsgUrl srcFile)
{
    showMessage(eMsgError, text, hlpDoc, srcFile);
}

void ModMsg::openMessageGroup(QString text)
{
    openMessageGroup(text, QUrl());
}

void ModMsg::showInfoMessage(QString text)
{
    showInfoMessage(text, QUrl(), MsgUrl());
}

void ModMsg::showInfoMessage(QString text, QUrl hlpDoc)
{
    showInfoMessage(text, hlpDoc, MsgUrl());
}

void ModMsg::showWarningMessage(QString text)
{
    showWarningMessage(text, QUrl(), MsgUrl());
}

void ModMsg::showWarningMessage(QString text, QUrl hlpDoc)
{
    showWarningMessage(text, hlpDoc, MsgUrl());
}

void ModMsg::showErrorMessage(QString text)
{
    showErrorMessage(text, QUrl(), MsgUrl());
}

void ModMsg::showErrorMessage(QString text, QUrl hlpDoc)
{
    showErrorMessage(text, hlpDoc, MsgUrl());
}

int ModMsg::messageGroupDepth() const
{
    return m_viewer != nullptr ? m_viewer->groupDepth() : 0;
}

QVector<ModMsgHookIf::sMessage> ModMsg::messagesOfRun() const
{
    QVector<sMessage> result;
    for (size_t i = m_runStart; i < m_records.size(); ++i)
        result.append({m_records[i].grade, m_records[i].text, m_records[i].place, int(i)});
    return result;
}

void ModMsg::selectMessage(int row)
{
    if (m_viewer != nullptr)
        m_viewer->selectMessage(row);
}

void ModMsg::showCounts()
{
    if (m_statusBar != nullptr)
        m_statusBar->setCounts(errorCount(), warningCount());
}

void ModMsg::showFirstWorst()
{
    if (m_viewer == nullptr)
        return;
    if (modGuiHook != nullptr)
        modGuiHook->setCurrentWidget(m_viewer);
    m_viewer->showFirstWorst();
}

QVariantList ModMsg::messagesFrom(size_t first) const
{
    static const char* const grades[] = {"info", "warning", "error"};
    QVariantList result;
    for (size_t i = first; i < m_records.size(); ++i) {
        const sRecord_t& record = m_records[i];
        result.append(QVariantMap{{"grade", QLatin1String(grades[record.grade])},
                                  {"text", record.text},
                                  {"file", record.place.path()},
                                  {"line", record.place.hasFragment() ? record.place.fragment().toInt() + 1 : 0}});
    }
    return result;
}

QVariantList ModMsg::messages() const
{
    return messagesFrom(m_runStart);
}

QVariantList ModMsg::allMessages() const
{
    return messagesFrom(0);
}

int ModMsg::errorCount() const
{
    return m_counts[eMsgError];
}

int ModMsg::warningCount() const
{
    return m_counts[eMsgWarning];
}

void ModMsg::modRegisterPlugins(QList<ModPluginIf*> modules)
{
    registerPluginsOf<ModMsgPluginIf>(modules, this);
    registerPluginsOf<ModMsgPluginIfInterMod>(modules, this);
}

void ModMsg::modInit()
{
    if (m_viewer != nullptr)
        return;
    m_viewer = new MsgViewer;
    connect(m_viewer, &MsgViewer::hlpUrlClicked, this, &ModMsg::showHlpUrl);
    connect(m_viewer, &MsgViewer::srcUrlClicked, this, &ModMsg::showSrcUrl);
}

void ModMsg::modInitIntermod()
{
    if (modGuiHook != nullptr) {
        modGuiHook->addWidget(this, ModGuiHookIf::eLocationDockBottom, m_viewer, tr("Messages"));
        if (m_statusBar == nullptr) {
            m_statusBar = new MsgStatusBar;
            m_statusBar->setProperty(PageProperties::isCompanion, true);
            connect(m_statusBar, &MsgStatusBar::clicked, this, &ModMsg::showFirstWorst);
        }
        modGuiHook->addWidget(this, ModGuiHookIf::eLocationStatusThird, m_statusBar, QString());
    }
    if (modScriptHook != nullptr)
        modScriptHook->registerObject(this, QStringLiteral("msg"));
}

void ModMsg::modExitIntermod()
{
    if (modGuiHook != nullptr && m_statusBar != nullptr)
        modGuiHook->removeWidget(m_statusBar);
    delete m_statusBar;
}

void ModMsg::showHlpUrl(QUrl url)
{
    if (!url.isEmpty())
        m_hlpUrlHndlrs.forEach([&url](ModMsgPluginIfUrlHndlr* handler) { handler->handleUrl(url); });
}

void ModMsg::showSrcUrl(QUrl url)
{
    if (!url.isEmpty())
        m_srcUrlHndlrs.forEach([&url](ModMsgPluginIfUrlHndlr* handler) { handler->handleUrl(url); });
}

} // namespace nsModMsg
