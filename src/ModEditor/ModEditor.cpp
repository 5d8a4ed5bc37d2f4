#include "ModEditor.h"

#include "Colors.h"
#include "DocumentCommands.h"
#include "DocumentKeeper.h"
#include "DocumentMarks.h"
#include "DocumentSession.h"
#include "DocumentSync.h"
#include "DocumentViews.h"
#include "EditorConfigPage.h"
#include "EditorFinder.h"
#include "EditorKeys.h"
#include "EditorMemPageAddrMap.h"
#include "EditorRecovery.h"
#include "EditorServices.h"
#include "EditorStatusBar.h"
#include "EditorSupportMenu.h"
#include "EditorSyntaxHighlighterConfig.h"
#include "EditorTipManager.h"
#include "EditorWidget.h"
#include "EditorWidgetLeftMargin.h"
#include "HelpRef.h"
#include "OpenDocuments.h"
#include "RecoveryOffer.h"
#include "SourceFinder.h"
#include "TextActions.h"

#include "ModCfgAppHookIf.h"
#include "ModEditorPluginIf.h"
#include "ModGuiHookIf.h"
#include "ModMsgHookIf.h"
#include "ModPrjHookIf.h"
#include "ModScriptHookIf.h"

#include <QDir>
#include <QMenu>
#include <QRegExp>
#include <QStringListModel>

namespace nsModEditor {

ModEditor::ModEditor(QObject* parent)
    : QObject(parent)
    , m_documents(std::make_unique<OpenDocuments>(this))
    , m_marks(std::make_unique<DocumentMarks>(m_documents.get()))
    , m_services(std::make_unique<EditorServices>(this, this, this))
    , m_keeper(std::make_unique<DocumentKeeper>(m_documents.get(), m_services.get()))
    , m_sync(std::make_unique<DocumentSync>(m_documents.get(), m_services.get(), m_keeper.get()))
    , m_commands(
          std::make_unique<DocumentCommands>(m_documents.get(), m_services.get(), m_keeper.get(), m_sync.get(), this))
    , m_finder(std::make_unique<EditorFinder>(this, this, m_documents.get()))
    , m_textCompletionList(new QStringListModel(this))
{
    connect(Colors::instance(), &Colors::changed, this, &ModEditor::showColors);
    connect(m_sync.get(), &DocumentSync::written, this, &ModEditor::setActionStateEditorWidget);
    connect(m_marks.get(), &DocumentMarks::breakpointsCleared, this,
            [this] { m_keeper->session().clearBreakpoints(); });
    connect(m_marks.get(), &DocumentMarks::bookmarksCleared, this, [this] { m_keeper->session().clearBookmarks(); });
    connect(m_commands.get(), &DocumentCommands::renamed, this, [this](EditorWidget* widget, const QString& name) {
        if (modGuiHook != nullptr)
            modGuiHook->setWidgetName(widget, name);
    });
}

ModEditor::~ModEditor()
{
    // The window deletes the pages that it still contains; the others are owned by this object.
    for (EditorWidget* widget : m_documents->all()) {
        if (widget->parent() == nullptr)
            delete widget;
    }
    // If the window is deleted without being closed, these are still owned here.
    if (m_statusBar != nullptr && m_statusBar->parent() == nullptr)
        delete m_statusBar;
    delete m_tipManager;
    delete m_memPageAddrMap;
    delete m_configPage;
}

const QList<EditorWidget*>& ModEditor::editorWidgets() const
{
    return m_documents->all();
}

EditorRecovery* ModEditor::recovery() const
{
    return m_keeper->recovery();
}

EditorStatusBar* ModEditor::statusBar() const
{
    return m_statusBar;
}

void ModEditor::modRegisterPlugins(QList<ModPluginIf*> modules)
{
    registerPluginsOf<ModEditorPluginIf>(modules, this);
    registerPluginsOf<ModEditorPluginIfInterMod>(modules, this);
    registerPluginsOf<ModEditorPluginIfSimulator>(modules, this);
    registerPluginsOf<ModEditorPluginIfText>(modules, this);
}

void ModEditor::modInit()
{
    m_statusBar = new EditorStatusBar;
    connect(m_statusBar, &EditorStatusBar::lineEndSelected, m_commands.get(), &DocumentCommands::setLineEnd);
    connect(m_statusBar, &EditorStatusBar::markSelected, m_commands.get(), &DocumentCommands::setMark);
    m_syntaxHighlighterConfig = new EditorSyntaxHighlighterConfig(this);
    m_tipManager = new EditorTipManager;
    m_supportMenu = new EditorSupportMenu(this);
    connect(m_supportMenu, SIGNAL(insertText(QString)), this, SLOT(insertText(QString)));
    m_actionsFile = new EditorActionsFile(this);
    m_actionsEdit = new EditorActionsEdit(this);
    m_actionsSim = new EditorActionsSim(this);
    m_textActions = new TextActions(
        SourceFinder::sParts_t{m_documents.get(), m_services.get(), m_commands.get(), this, this}, this);
    connect(m_actionsFile, SIGNAL(triggered(nsModEditor::EditorActionsFile::eAction_t)), this,
            SLOT(handleActions(nsModEditor::EditorActionsFile::eAction_t)));
    connect(m_actionsEdit, SIGNAL(triggered(nsModEditor::EditorActionsEdit::eAction_t)), this,
            SLOT(handleActions(nsModEditor::EditorActionsEdit::eAction_t)));
    connect(m_actionsSim, SIGNAL(triggered(nsModEditor::EditorActionsSim::eAction_t)), this,
            SLOT(handleActions(nsModEditor::EditorActionsSim::eAction_t)));
    m_actionsFile->setEnabled(false);
    m_actionsEdit->setEnabled(false);
    m_actionsSim->setEnabled(false);
    m_supportMenu->setEnabled(false);
    m_keeper->start();
    // A child, so that its actions stand below the window like all others.
    m_recoveryOffer = std::make_unique<RecoveryOffer>(
        this, RecoveryOffer::sParts_t{m_documents.get(), m_services.get(), m_keeper.get(), m_commands.get(), this},
        this);
}

void ModEditor::modInitIntermod()
{
    if (modScriptHook != nullptr)
        modScriptHook->registerObject(this, "editor");
    if (modMsgHook != nullptr)
        modMsgHook->registerPluginUrlHndlr(ModMsgHookIf::eUrlHndlrSource, this);
    HelpRef::set(m_statusBar, QStringLiteral("pageId://mainWindow#status-bar"));
    if (modGuiHook != nullptr)
        modGuiHook->addWidget(this, ModGuiHookIf::eLocationStatusFirst, m_statusBar, QString());
}

void ModEditor::modRun()
{
    if (m_recoveryOffer != nullptr)
        m_recoveryOffer->offer();
}

bool ModEditor::modExitRequest()
{
    m_commands->settleFiles(true);
    return true;
}

void ModEditor::modExitIntermod()
{
    if (m_recoveryOffer != nullptr)
        m_recoveryOffer->closeNotice();
    if (modGuiHook != nullptr)
        modGuiHook->removeWidget(m_statusBar);
    m_textActions->sourceFinder()->close();
    if (modMsgHook != nullptr)
        modMsgHook->unregisterPluginUrlHndlr(ModMsgHookIf::eUrlHndlrSource, this);
}

void ModEditor::modExit()
{
    // Documents without a project have not been closed with it.
    while (!m_documents->isEmpty())
        removeEditorWidget(m_documents->all().first());
    m_keeper->stop();
    m_recoveryOffer.reset();
    delete m_supportMenu;
    m_supportMenu = nullptr;
    delete m_syntaxHighlighterConfig;
    m_syntaxHighlighterConfig = nullptr;
    delete m_tipManager;
    m_tipManager = nullptr;
    delete m_actionsFile;
    m_actionsFile = nullptr;
    delete m_actionsEdit;
    m_actionsEdit = nullptr;
    delete m_actionsSim;
    m_actionsSim = nullptr;
    delete m_textActions;
    m_textActions = nullptr;
    delete m_statusBar;
}

void ModEditor::registerPlugin(ModEditorPluginIf* plugin)
{
    if (m_plugins.add(plugin))
        plugin->modEditorHook = this;
}

void ModEditor::unregisterPlugin(ModEditorPluginIf* plugin)
{
    if (m_plugins.remove(plugin))
        plugin->modEditorHook = nullptr;
}

void ModEditor::registerPlugin(ModEditorPluginIfAssembler* plugin)
{
    if (plugin == nullptr)
        return;
    m_assembler = plugin;
    plugin->modEditorHook = this;
}

void ModEditor::unregisterPlugin(ModEditorPluginIfAssembler* plugin)
{
    if (plugin == nullptr || plugin != m_assembler)
        return;
    plugin->modEditorHook = nullptr;
    m_assembler = nullptr;
}

void ModEditor::registerPlugin(ModEditorPluginIfInterMod* plugin)
{
    if (plugin != nullptr)
        plugin->modEditorHook = this;
}

void ModEditor::unregisterPlugin(ModEditorPluginIfInterMod* plugin)
{
    if (plugin != nullptr)
        plugin->modEditorHook = nullptr;
}

void ModEditor::registerPlugin(ModEditorPluginIfSimulator* plugin)
{
    if (plugin == nullptr)
        return;
    m_simulator = plugin;
    plugin->modEditorHook = this;
}

void ModEditor::unregisterPlugin(ModEditorPluginIfSimulator* plugin)
{
    if (plugin == nullptr || plugin != m_simulator)
        return;
    plugin->modEditorHook = nullptr;
    m_simulator = nullptr;
}

void ModEditor::registerPlugin(ModEditorPluginIfText* plugin)
{
    m_documents->watchers().add(plugin);
}

void ModEditor::unregisterPlugin(ModEditorPluginIfText* plugin)
{
    m_documents->watchers().remove(plugin);
}

QList<EditorDocument*> ModEditor::documents()
{
    QList<EditorDocument*> documents;
    for (EditorWidget* widget : m_documents->all())
        documents.append(widget);
    return documents;
}

EditorDocument* ModEditor::currentDocument()
{
    return m_documents->current();
}

void ModEditor::rdAppCfg()
{
    rdEditorConfig(modCfgAppHook);
    configureEditorWidgets();
}

void ModEditor::wrAppCfg()
{
    wrEditorConfig(modCfgAppHook);
}

void ModEditor::prjOpen()
{
    m_commands->setFolder(modPrjHook->prjDir().absolutePath());
    tabIndent = qBound(1, modPrjHook->value(editorKeys::tabIndent, tabIndent), maxTabIndent);
    // The only value on the page that is also a project setting.
    if (m_configPage != nullptr)
        m_configPage->setTabIndent(tabIndent);
    // One file has one path, also outside of the project's folder.
    const auto fileOf = [this](const QString& path) { return QDir::cleanPath(modPrjHook->convToAbsPath(path)); };
    // The list of a program that was killed is newer than that of the project file.
    const RecoveryStore::Session session = m_keeper->takeSession();
    const bool isKilled = !session.project.isEmpty();
    for (const QString& file : isKilled ? session.files : modPrjHook->value(editorKeys::openFiles, QStringList()))
        m_commands->openFile(fileOf(file));
    configureEditorWidgets();
    const QString lastFile = isKilled ? session.lastFile : modPrjHook->value(editorKeys::lastFile, QString());
    EditorWidget* last = lastFile.isEmpty() ? nullptr : m_commands->openFile(fileOf(lastFile));
    if (last != nullptr)
        last->setCursorPos(isKilled ? session.lastCursorPos : modPrjHook->value(editorKeys::lastCursorPos, 0));
    m_keeper->session().restore(m_services->projectFile(), comfort.keepMarksEn, isKilled);
    // Without a last file one of the pages is current, too.
    updateActionState();
}

void ModEditor::prjAboutToClose()
{
    m_commands->settleFiles(false);
}

void ModEditor::prjSave()
{
    modPrjHook->setValue(editorKeys::tabIndent, tabIndent);
    QStringList open;
    for (const QString& path : m_documents->pathsByPage())
        open.append(m_services->relPath(path));
    modPrjHook->setValue(editorKeys::openFiles, open);
    EditorWidget* current = m_documents->current();
    modPrjHook->setValue(editorKeys::lastFile,
                         current != nullptr ? m_services->relPath(current->filePath()) : QString());
    modPrjHook->setValue(editorKeys::lastCursorPos, current != nullptr ? current->cursorPos() : 0);
    m_keeper->session().save(m_services->projectFile(), comfort.keepMarksEn);
}

void ModEditor::prjClose()
{
    if (m_textActions != nullptr)
        m_textActions->sourceFinder()->clear();
    closeAllFiles();
    m_keeper->session().clear();
    m_keeper->clearSession();
    setActionState(nullptr);
    setMemPageAddrMap(nullptr);
}

void ModEditor::handleUrl(QUrl url)
{
    setCursorToLine(url);
    clearMessageFlag();
    EditorWidget* widget = m_documents->current();
    // During a simulation the flagged line is that of the program counter.
    if (m_simEnabled || widget == nullptr || widget->filePath() != url.path())
        return;
    clearLineHighlited();
    widget->setLineHighlighted(lineOf(url));
    m_isMessageFlagged = true;
}

/// The next run brings messages of its own.
void ModEditor::clearMessageFlag()
{
    if (m_isMessageFlagged)
        clearLineHighlited();
}

QList<QAction*> ModEditor::menuActions(ModActionHookIf::eActionClass_t actionClass)
{
    if (m_actionsFile == nullptr)
        return {};
    switch (actionClass) {
    case ModActionHookIf::eActionClassFile:
        return m_actionsFile->menuActions() << m_recoveryOffer->menuActions();
    case ModActionHookIf::eActionClassEdit:
        return m_actionsEdit->menuActions()
               << m_supportMenu->menu->menuAction() << m_textActions->menuActions(actionClass);
    case ModActionHookIf::eActionClassNavigation:
        return m_textActions->menuActions(actionClass);
    case ModActionHookIf::eActionClassSimulator:
        return m_actionsSim->menuActions();
    default:
        return {};
    }
}

QList<QAction*> ModEditor::toolBarActions(ModActionHookIf::eActionClass_t actionClass)
{
    if (m_actionsFile == nullptr)
        return {};
    switch (actionClass) {
    case ModActionHookIf::eActionClassFile:
        return m_actionsFile->toolBarActions();
    case ModActionHookIf::eActionClassEdit:
        return m_actionsEdit->toolBarActions();
    default:
        return {};
    }
}

nsModConfig::ModConfigPagePluginIf* ModEditor::configPage(int)
{
    if (m_configPage == nullptr)
        m_configPage = new EditorConfigPage;
    return m_configPage;
}

void ModEditor::configPageSetConfig(nsModConfig::ModConfigPagePluginIf*)
{
    if (m_configPage != nullptr)
        m_configPage->setConfig(this);
}

void ModEditor::configPageClose(bool accepted)
{
    if (m_configPage != nullptr && accepted) {
        m_configPage->config(this);
        configureEditorWidgets();
        // The dialog saves the settings tree, so the new values are written to it first.
        if (modCfgAppHook != nullptr)
            wrAppCfg();
    }
    delete m_configPage;
}

void ModEditor::setTabIndent(int indent)
{
    tabIndent = qBound(1, indent, maxTabIndent);
    configureEditorWidgets();
}

/// The scheme of the colours is another one.
void ModEditor::showColors()
{
    if (m_syntaxHighlighterConfig != nullptr) {
        m_syntaxHighlighterConfig->clear();
        for (const auto& rule : qAsConst(m_highlightRules)) {
            QTextCharFormat format = shownFormatOfRule(rule.first);
            m_syntaxHighlighterConfig->addRule(rule.second, format);
        }
    }
    configureEditorWidgets();
}

void ModEditor::clearHighlighter()
{
    m_highlightRules.clear();
    if (m_syntaxHighlighterConfig != nullptr)
        m_syntaxHighlighterConfig->clear();
}

void ModEditor::configHighlighterAddRegExp(eHighlightRule_t rule, QRegExp regExp)
{
    if (m_syntaxHighlighterConfig == nullptr)
        return;
    if (formatOfRule(rule) != nullptr) {
        m_highlightRules.append({rule, regExp});
        QTextCharFormat format = shownFormatOfRule(rule);
        m_syntaxHighlighterConfig->addRule(regExp, format);
    } else {
        m_services->showError(tr("Internal error: Can not resolf TextCharFormat for HighlightingRule!"));
    }
}

void ModEditor::setTextCompletionList(QStringList& words)
{
    m_textCompletionList->setStringList(words);
    m_textCompletionList->sort(0, Qt::AscendingOrder);
}

void ModEditor::setMemPageAddrMap(EditorMemPageAddrMap* map)
{
    EditorMemPageAddrMap* old = m_memPageAddrMap;
    m_memPageAddrMap = map;
    for (EditorWidget* widget : m_documents->all())
        widget->setMemPageAddrMap(map);
    if (old != map)
        delete old;
}

void ModEditor::simEn(bool enabled)
{
    m_simEnabled = enabled;
    configureEditorWidgets();
}

void ModEditor::connectEditorWidget(EditorWidget* widget)
{
    connect(widget, &QPlainTextEdit::cursorPositionChanged, this, [this, widget] { showCursorPosition(widget); });
    connect(widget, SIGNAL(actionChanged(nsModEditor::EditorWidget*)), this,
            SLOT(setActionStateEditorWidget(nsModEditor::EditorWidget*)));
    connect(widget, SIGNAL(modifiedChanged(nsModEditor::EditorWidget*)), this,
            SLOT(setModifiedState(nsModEditor::EditorWidget*)));
    m_marks->add(widget);
    // After the drop has ended: opening can ask a question, which would block the program that the files are dragged
    // from.
    connect(widget, &EditorWidget::filesDropped, m_commands.get(), &DocumentCommands::openDroppedFiles,
            Qt::QueuedConnection);
    connect(widget, &QPlainTextEdit::textChanged, m_textActions, [this] { m_finder->noteChange(); });
    widget->addActions(m_actionsEdit->menuActions());
    m_textActions->addTo(widget);
}

void ModEditor::configureEditorWidget(EditorWidget* widget)
{
    widget->setFont(stdFont);
    widget->setTabIndent(tabIndent);
    widget->setDynamicLineWrapEn(dynamicLineWrapEn);
    widget->setLineNumberEn(lineNumberEn);
    widget->setAutoReturnIndentEn(autoReturnIndentEn);
    widget->setComfort(comfort);
    widget->setTextCompleterPrefixLength(textCompleterPrefixLength);
    widget->setTextCompleterItemCount(textCompleterItemCount);
    widget->setSelectionHighlightEn(highlightSelectionEn);
    widget->setCursorBgColor(Colors::shown(Colors::eEditorCursorLine, cursorBgColor));
    widget->setHighlightBgColor(Colors::shown(Colors::eEditorFlaggedLine, highlightBgColor));
    widget->leftMargin()->setBgColor(Colors::shown(Colors::eMarginGround, leftMarginBgColor));
    widget->leftMargin()->setFgColor(Colors::shown(Colors::eMarginText, leftMarginFgColor));
    widget->leftMargin()->setBreakpointColor(Colors::shown(Colors::eMarkBreakpoint, simBreakpointSymbolColor));
    widget->leftMargin()->setStartPointerColor(Colors::shown(Colors::eMarkStart, simStartAddressSymbolColor));
    widget->leftMargin()->setBookmarkColor(Colors::shown(Colors::eMarkBookmark, bookmarkSymbolColor));
    widget->setMemPageAddrEn(memPageAddrEn == memPageAddrOn || (memPageAddrEn == memPageAddrSimOnly && m_simEnabled));
    widget->views()->takeLook();
    widget->rehighlight();
}

void ModEditor::configureEditorWidgets()
{
    m_commands->setReloadKeepsUndo(reloadKeepsUndo);
    for (EditorWidget* widget : m_documents->all())
        configureEditorWidget(widget);
}

} // namespace nsModEditor
