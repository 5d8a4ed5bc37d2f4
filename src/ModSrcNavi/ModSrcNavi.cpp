#include "ModSrcNavi.h"

#include "Colors.h"
#include "FileListWidget.h"
#include "FilePanel.h"
#include "HelpRef.h"
#include "NaviWidget.h"
#include "SrcNaviConfigPage.h"

#include "ModActionHookIf.h"
#include "ModCfgAppHookIf.h"
#include "ModEditorHookIf.h"
#include "ModGuiHookIf.h"

#include <QApplication>
#include <QMenu>
#include <QPointer>

namespace nsModSrcNavi {

namespace {

const QString keyRecentFiles = QStringLiteral("ModSrcNavi/recentFiles");

/// A label as its line begins with it: without its namespace, with its colon.
QString labelText(const QString& title)
{
    const int nameSpace = title.lastIndexOf(QStringLiteral("::"));
    const QString name = nameSpace < 0 ? title : title.mid(nameSpace + 2);
    return name.endsWith(':') ? name : name + ':';
}

} // namespace

ModSrcNavi::ModSrcNavi(QObject* parent)
    : QObject(parent)
    , m_naviWidget(new NaviWidget)
    , m_filePanel(new FilePanel(
          [this] {
              return FilePanel::sServices_t{modPrjHook, modSourcesHook, modEditorHook, modGuiHook, m_symbols};
          },
          this))
{
    // Until a project is open there is nothing to navigate in.
    m_naviWidget->setEnabled(false);
}

ModSrcNavi::~ModSrcNavi()
{
    delete m_configPage;
    if (m_naviWidget == nullptr)
        return;
    // A panel inside of the window is deleted by the window; its tags are deleted now.
    m_naviWidget->clearTagList();
    if (m_naviWidget->parentWidget() == nullptr)
        delete m_naviWidget.data();
}

// --- clients ---

void ModSrcNavi::registerPlugin(ModSrcNaviPluginIf* plugin)
{
    if (m_plugins.add(plugin))
        plugin->modSrcNaviHook = this;
}

void ModSrcNavi::unregisterPlugin(ModSrcNaviPluginIf* plugin)
{
    if (m_plugins.remove(plugin))
        plugin->modSrcNaviHook = nullptr;
}

void ModSrcNavi::registerPlugin(ModSrcNaviPluginIfSymbols* plugin)
{
    if (plugin == nullptr)
        return;
    if (m_symbols != nullptr)
        m_symbols->modSrcNaviHook = nullptr;
    m_symbols = plugin;
    plugin->modSrcNaviHook = this;
}

void ModSrcNavi::unregisterPlugin(ModSrcNaviPluginIfSymbols* plugin)
{
    if (plugin == nullptr || plugin != m_symbols)
        return;
    m_symbols = nullptr;
    plugin->modSrcNaviHook = nullptr;
}

// --- tags ---

void ModSrcNavi::clearTagList()
{
    // Empties the tree first: its items point to the tags.
    if (m_naviWidget != nullptr)
        m_naviWidget->clearTagList();
    m_tagList.clear();
}

void ModSrcNavi::addTag(NaviTag* tag)
{
    m_tagList.addTag(tag);
}

void ModSrcNavi::showTagList()
{
    if (m_naviWidget == nullptr)
        return;
    const bool flat = tagListSortMode == sortPlainAscent || tagListSortMode == sortPlainDescent;
    QList<NaviTag*> list;
    if (!flat)
        list = m_tagList.tagListDocument();
    else if (tagListSortMode == sortPlainAscent)
        list = m_tagList.tagListAsc();
    else
        list = m_tagList.tagListDesc();
    // Whoever looks at the list of files goes on to do so; over anything else the navigator comes to the front.
    FileListWidget* files = m_filePanel->widget();
    const bool isBehind = modGuiHook != nullptr && files != nullptr && files->isVisible() &&
                          modGuiHook->currentWidget(dockLocation()) == files;
    const QPointer<QWidget> focus(QApplication::focusWidget());
    m_naviWidget->showTagList(&list, flat);
    if (!isBehind)
        return;
    modGuiHook->setCurrentWidget(files);
    if (focus != nullptr && files->isAncestorOf(focus))
        focus->setFocus();
}

void ModSrcNavi::sortModeChanged()
{
    tagListSortMode = m_naviWidget->sortMode();
    showTagList();
}

void ModSrcNavi::showSelectedTag(NaviTag* tag)
{
    if (tag == nullptr || modEditorHook == nullptr)
        return;
    // The call can start a run of the assembler, which deletes the tag: the editor gets copies of its values.
    const QString text = tag->type == NaviTag::typeLabel ? labelText(tag->title) : tag->lineRef;
    modEditorHook->setCursorToLine(tag->filePath, text, tag->line);
}

// --- life cycle ---

void ModSrcNavi::modRegisterPlugins(QList<ModPluginIf*> modules)
{
    registerPluginsOf<ModSrcNaviPluginIf>(modules, this);
    registerPluginsOf<ModSrcNaviPluginIfSymbols>(modules, this);
}

void ModSrcNavi::modInit()
{
    if (modActionHook == nullptr)
        return;
    m_actions = new NaviActions(this);
    m_actions->setEnabled(false);
    connect(m_actions, qOverload<NaviActions::eAction_t>(&NaviActions::triggered), this, &ModSrcNavi::handleActions);
}

void ModSrcNavi::modExit()
{
    delete m_actions;
    m_actions = nullptr;
}

void ModSrcNavi::modInitIntermod()
{
    // The list of files first, so that the navigator stays in front.
    if (modGuiHook != nullptr && m_filePanel->widget() != nullptr) {
        HelpRef::set(m_filePanel->widget(), QStringLiteral("pageId://fileList"));
        modGuiHook->addWidget(this, ModGuiHookIf::eLocationDockLeft, m_filePanel->widget(), tr("Files"));
    }
    connect(m_naviWidget, &NaviWidget::sortModeChanged, this, &ModSrcNavi::sortModeChanged);
    connect(m_naviWidget, &NaviWidget::selected, this, &ModSrcNavi::showSelectedTag);
    connect(Colors::instance(), &Colors::changed, this, [this] {
        configureNaviWidget();
        showTagList();
    });
    configureNaviWidget();
}

ModGuiHookIf::eLocation_t ModSrcNavi::dockLocation() const
{
    switch (naviWidgetLocation) {
    case locationLeft:
        return ModGuiHookIf::eLocationDockLeft;
    case locationRight:
        return ModGuiHookIf::eLocationDockRight;
    default:
        return ModGuiHookIf::eLocationNone;
    }
}

void ModSrcNavi::configureNaviWidget()
{
    if (m_naviWidget == nullptr)
        return;
    m_naviWidget->setConfig(this);
    if (modGuiHook == nullptr)
        return;
    const ModGuiHookIf::eLocation_t location = dockLocation();
    if (location == ModGuiHookIf::eLocationNone) {
        modGuiHook->removeWidget(m_naviWidget);
        m_naviWidget->hide();
        return;
    }
    // A panel that is in its dock already is not added again: it would come to the front of the other tabs.
    if (modGuiHook->hasWidget(location, m_naviWidget))
        return;
    modGuiHook->removeWidget(m_naviWidget);
    HelpRef::set(m_naviWidget, QStringLiteral("pageId://navigator"));
    modGuiHook->addWidget(this, location, m_naviWidget, tr("Source Navigator"));
    m_naviWidget->show();
}

void ModSrcNavi::rdAppCfg()
{
    if (modCfgAppHook == nullptr)
        return;
    rdSrcNaviConfig(modCfgAppHook);
    m_filePanel->setRecent(modCfgAppHook->value(keyRecentFiles, QStringList()));
    // The settings are read after the panel was placed.
    configureNaviWidget();
}

void ModSrcNavi::wrAppCfg()
{
    if (modCfgAppHook == nullptr)
        return;
    wrSrcNaviConfig(modCfgAppHook);
    modCfgAppHook->setValue(keyRecentFiles, m_filePanel->recent());
}

// --- settings dialog ---

nsModConfig::ModConfigPagePluginIf* ModSrcNavi::configPage(int)
{
    if (m_configPage == nullptr)
        m_configPage = new SrcNaviConfigPage;
    return m_configPage;
}

void ModSrcNavi::configPageSetConfig(nsModConfig::ModConfigPagePluginIf*)
{
    if (m_configPage != nullptr)
        m_configPage->setConfig(this);
}

void ModSrcNavi::configPageClose(bool accepted)
{
    if (m_configPage != nullptr && accepted) {
        m_configPage->config(this);
        configureNaviWidget();
        if (m_naviWidget != nullptr)
            m_naviWidget->showSortMode(static_cast<eTagListSortMode_t>(tagListSortMode));
        showTagList();
        // The dialog saves the settings tree, so the new values are written to it first.
        wrAppCfg();
    }
    delete m_configPage;
}

// --- project ---

void ModSrcNavi::prjOpen()
{
    if (m_naviWidget != nullptr)
        m_naviWidget->setEnabled(true);
    if (m_actions != nullptr)
        m_actions->setEnabled(true);
}

void ModSrcNavi::prjOpened()
{
    m_filePanel->setProjectOpen(true);
}

void ModSrcNavi::prjClose()
{
    clearTagList();
    m_filePanel->setProjectOpen(false);
    if (m_naviWidget != nullptr)
        m_naviWidget->setEnabled(false);
    if (m_actions != nullptr)
        m_actions->setEnabled(false);
}

// --- files ---

void ModSrcNavi::setTargetFiles(QStringList templates, QStringList outputs, QMap<QString, int> errors)
{
    m_filePanel->setTargets(templates, outputs, errors);
}

void ModSrcNavi::srcFileListChanged()
{
    m_filePanel->refreshSoon();
}

void ModSrcNavi::srcFileContentChanged()
{
    m_filePanel->refreshSoon();
}

void ModSrcNavi::setFocus(ModGuiHookIf::eLocation_t location, ModGuiPluginIf*, QWidget* widget)
{
    // When the last page was removed there is neither a widget nor a location.
    if (location == ModGuiHookIf::eLocationTabs || widget == nullptr)
        m_filePanel->pageShown(widget);
}

void ModSrcNavi::showFileRequest(QString path)
{
    if (modGuiHook == nullptr || m_filePanel->widget() == nullptr)
        return;
    modGuiHook->setCurrentWidget(m_filePanel->widget());
    m_filePanel->select(path);
    m_filePanel->widget()->setFocus();
}

QList<QAction*> ModSrcNavi::menuActions(ModActionHookIf::eActionClass_t actionClass)
{
    if (m_actions != nullptr && actionClass == ModActionHookIf::eActionClassNavigation)
        return m_actions->menuActions();
    if (m_actions != nullptr && actionClass == ModActionHookIf::eActionClassFile)
        return {m_filePanel->recentMenu()->menuAction()};
    return {};
}

void ModSrcNavi::handleActions(NaviActions::eAction_t action)
{
    switch (action) {
    case NaviActions::eActionQuickOpen:
        m_filePanel->quickOpen(m_tagList);
        break;
    case NaviActions::eActionFileList:
        if (modGuiHook != nullptr && m_filePanel->widget() != nullptr) {
            modGuiHook->setCurrentWidget(m_filePanel->widget());
            m_filePanel->widget()->setFocus();
        }
        break;
    }
}

} // namespace nsModSrcNavi
