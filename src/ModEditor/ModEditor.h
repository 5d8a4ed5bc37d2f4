#pragma once

#include "DocumentPages.h"
#include "EditorActionsEdit.h"
#include "EditorActionsFile.h"
#include "EditorActionsSim.h"
#include "EditorConfig.h"
#include "EditorFinder.h"
#include "ModActionPluginIf.h"
#include "ModCfgAppPluginIf.h"
#include "ModClipboardPluginIf.h"
#include "ModConfigPluginIf.h"
#include "ModEditorHookIf.h"
#include "ModFindReplacePluginIf.h"
#include "ModGuiPluginIf.h"
#include "ModMsgPluginIf.h"
#include "ModPluginIf.h"
#include "ModPrjPluginIf.h"
#include "ModScriptPluginIf.h"
#include "ModSourcesPluginIf.h"
#include "PluginList.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>

class QStringListModel;

namespace nsModEditor {

class DocumentCommands;
class DocumentKeeper;
class DocumentMarks;
class DocumentSync;
class EditorConfigPage;
class EditorDocument;
class EditorMemPageAddrMap;
class EditorRecovery;
class EditorServices;
class EditorStatusBar;
class EditorSupportMenu;
class EditorSyntaxHighlighterConfig;
class EditorTipManager;
class EditorWidget;
class OpenDocuments;
class RecoveryOffer;
class TextActions;

/// All open documents: opens, reloads, saves, prints and closes them, and shows lines of them for other modules.
///
/// A document is a page in the centre of the window. Its file is watched: a document without changes of its own follows
/// it, any other one shows a bar at its upper edge, and asks before it overwrites a file that others have changed.
/// Questions to the user are modal and nest the event loop.
class ModEditor : public QObject,
                  public ModEditorHookIf,
                  public ModPluginIf,
                  public ModCfgAppPluginIf,
                  public ModPrjPluginIf,
                  public ModMsgPluginIf,
                  public ModMsgPluginIfUrlHndlr,
                  public ModGuiPluginIf,
                  public ModActionPluginIf,
                  public ModConfigPluginIfDflt,
                  public ModSourcesPluginIf,
                  public ModFindReplacePluginIf,
                  public ModClipboardPluginIf,
                  public ModScriptPluginIf,
                  public EditorConfig,
                  public DocumentPages
{
    Q_OBJECT

public:
    using sFindParameter_t = EditorFinder::sFindParameter_t;

    explicit ModEditor(QObject* parent = nullptr);
    ~ModEditor() override;

    // ModPluginIf
    void modRegisterPlugins(QList<ModPluginIf*> modules) override;
    void modInit() override;
    void modInitIntermod() override;
    void modRun() override;
    /// Asks for the changed documents while the window is whole; afterwards each text is in its file or in the recovery
    /// store.
    bool modExitRequest() override;
    void modExitIntermod() override;
    void modExit() override;

    // ModEditorHookIf: clients
    void registerPlugin(ModEditorPluginIf* plugin) override;
    void unregisterPlugin(ModEditorPluginIf* plugin) override;
    void registerPlugin(ModEditorPluginIfAssembler* plugin) override;
    void unregisterPlugin(ModEditorPluginIfAssembler* plugin) override;
    void registerPlugin(ModEditorPluginIfInterMod* plugin) override;
    void unregisterPlugin(ModEditorPluginIfInterMod* plugin) override;
    void registerPlugin(ModEditorPluginIfSimulator* plugin) override;
    void unregisterPlugin(ModEditorPluginIfSimulator* plugin) override;

    // ModEditorHookIf: lines, marks and what the assembler hands over
    bool cursorLine(QString* path, int* line) override;
    void setTabIndent(int indent) override;
    void clearHighlighter() override;
    void configHighlighterAddRegExp(eHighlightRule_t rule, QRegExp regExp) override;
    void setMemPageAddrMap(EditorMemPageAddrMap* map) override;
    QMap<QString, QList<int>> simBreakpoints() override;
    bool simBreakpointsChanged() override;
    bool simStartPointer(QString* path, int* line) override;
    void simEn(bool enabled) override;
    void setTextCompletionList(QStringList& words) override;
    EditorSupportMenu* supportMenu() override { return m_supportMenu; }
    int simBreakpointsRevision() override;
    void registerPlugin(ModEditorPluginIfText* plugin) override;
    void unregisterPlugin(ModEditorPluginIfText* plugin) override;
    QList<EditorDocument*> documents() override;
    EditorDocument* currentDocument() override;
    sCompletionConfig completionConfig() override
    {
        return {textCompletionEn, textCompleterPrefixLength, textCompleterItemCount};
    }

    // ModCfgAppPluginIf
    void rdAppCfg() override;
    void wrAppCfg() override;

    // ModPrjPluginIf
    void prjOpen() override;
    void prjOpened() override {}
    void prjAboutToClose() override;
    void prjSave() override;
    void prjClose() override;
    QList<PrjStep> prjSteps() override;

    // ModMsgPluginIfUrlHndlr
    void handleUrl(QUrl url) override;

    // ModGuiPluginIf
    void removeWidgetRequest(QWidget* widget) override;
    void setFocus(ModGuiHookIf::eLocation_t location, ModGuiPluginIf* plugin, QWidget* widget) override;

    // ModActionPluginIf
    QList<QAction*> menuActions(ModActionHookIf::eActionClass_t actionClass) override;
    QList<QAction*> toolBarActions(ModActionHookIf::eActionClass_t actionClass) override;

    // ModConfigPluginIf
    nsModConfig::ModConfigPagePluginIf* configPage(int index) override;
    void configPageSetConfig(nsModConfig::ModConfigPagePluginIf* page) override;
    void configPageClose(bool accepted) override;

    // ModSourcesPluginIf
    void srcFileListChanged() override {}
    void srcFileContentChanged() override { clearMessageFlag(); }

    // ModFindReplacePluginIf
    QString findInit() override;
    void findExit() override;
    void findNext(bool configChanged) override;
    void findPrev(bool configChanged) override;
    void replace(bool configChanged) override;
    void replaceAll(bool configChanged) override;
    bool hasExpressions() override { return true; }
    void findPreview() override { m_finder->preview(); }

    // ModClipboardPluginIf
    void clipboardAction(ModClipboardHookIf::eClipboardFeature_t feature) override;

    /// Open documents in the order of their creation. Owned.
    const QList<EditorWidget*>& editorWidgets() const;
    EditorStatusBar* statusBar() const;
    /// Looks after what is not in a file; null before modInit() and after modExit().
    EditorRecovery* recovery() const;

public slots:
    // ModEditorHookIf: documents; also for scripts
    void newFile(QString text) override;
    bool openFile(QString path) override;
    void reloadAllFiles() override;
    void reloadFile() override;
    bool selectFile(QString path) override;
    void saveAllFiles() override;
    bool saveFile() override;
    bool saveFileAs() override;
    bool saveFileAs(QString path) override;
    void closeAllFiles() override;
    void closeOtherFiles() override;
    void closeFile() override;
    void printFile() override;
    void setCursorToLine(QString path, QString lineRef, int line) override;
    void setCursorToLine(QString path, int line) override;
    void setCursorToLine(QUrl url) override;
    void clearLineHighlited() override;
    void setLineHighlighted(QUrl url) override;
    void setLineHighlighted(QString path, int line) override;
    void markLine(QString path, int line) override;
    /// Inserts the text at the cursor of the current document.
    void insertText(QString text);

private slots:
    void handleActions(nsModEditor::EditorActionsFile::eAction_t action);
    void handleActions(nsModEditor::EditorActionsEdit::eAction_t action);
    void handleActions(nsModEditor::EditorActionsSim::eAction_t action);
    void setActionStateEditorWidget(nsModEditor::EditorWidget* widget);
    void setModifiedState(nsModEditor::EditorWidget* widget);

private:
    // DocumentPages (ModEditorDocuments.cpp)
    EditorWidget* newEditorWidget(const QString& path) override;
    void removeEditorWidget(EditorWidget* widget) override;
    /// The line that a link names in its fragment, counted from 0.
    static int lineOf(const QUrl& url);

    // State (ModEditor.cpp)
    void connectEditorWidget(EditorWidget* widget);
    void configureEditorWidget(EditorWidget* widget);
    void configureEditorWidgets();
    void showColors();
    void setActionState(EditorWidget* current);
    void showCursorPosition(EditorWidget* widget);
    void updateActionState();
    void clearMessageFlag();

    std::unique_ptr<OpenDocuments> m_documents;
    std::unique_ptr<DocumentMarks> m_marks;
    std::unique_ptr<EditorServices> m_services;
    std::unique_ptr<DocumentKeeper> m_keeper;
    std::unique_ptr<DocumentSync> m_sync;
    std::unique_ptr<DocumentCommands> m_commands;
    std::unique_ptr<EditorFinder> m_finder;
    std::unique_ptr<RecoveryOffer> m_recoveryOffer; ///< null before modInit() and after modExit()
    PluginList<ModEditorPluginIf> m_plugins;
    ModEditorPluginIfAssembler* m_assembler = nullptr; ///< not owned
    ModEditorPluginIfSimulator* m_simulator = nullptr; ///< not owned
    EditorSyntaxHighlighterConfig* m_syntaxHighlighterConfig = nullptr;
    QVector<QPair<eHighlightRule_t, QRegExp>> m_highlightRules; ///< those above, for another colour scheme
    EditorTipManager* m_tipManager = nullptr;
    EditorSupportMenu* m_supportMenu = nullptr;
    QStringListModel* m_textCompletionList;
    QPointer<EditorStatusBar> m_statusBar;
    QPointer<EditorConfigPage> m_configPage; ///< null while the settings dialog is closed
    EditorActionsFile* m_actionsFile = nullptr;
    EditorActionsEdit* m_actionsEdit = nullptr;
    EditorActionsSim* m_actionsSim = nullptr;
    TextActions* m_textActions = nullptr;
    EditorMemPageAddrMap* m_memPageAddrMap = nullptr; ///< owned
    bool m_simEnabled = false;
    bool m_isMessageFlagged = false; ///< the flagged line is that of a message which the user has clicked
};

} // namespace nsModEditor
