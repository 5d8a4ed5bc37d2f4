#pragma once

#include "DocumentFormat.h"
#include "DocumentOnDisk.h"
#include "EditorActionsEdit.h"
#include "EditorActionsFile.h"
#include "EditorActionsSim.h"
#include "EditorConfig.h"
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
#include "RecoveryStore.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

class MyNoticeBar;
class QPrinter;
class QStringListModel;

namespace nsModEditor {

class DocumentWatcher;
class EditorConfigPage;
class EditorMemPageAddrMap;
class EditorRecovery;
class EditorStatusBar;
class EditorSupportMenu;
class EditorSyntaxHighlighterConfig;
class EditorTipManager;
class EditorWidget;

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
                  public EditorConfig
{
    Q_OBJECT

public:
    /// What the find and replace strip asks for.
    struct sFindParameter_t
    {
        bool caseSensitive = false;
        bool wholeWords = false;
        bool wrapPending = false; ///< the end of the document was reached; the next search continues at the other end
        QString findString;
        QString replaceString;
    };

    /// Largest file that is opened, in bytes.
    static const qint64 maxFileSize = qint64(64) * 1024 * 1024;

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
    bool simBreakpointsChanged() override { return m_simBreakpointsChangedFlag; }
    bool simStartPointer(QString* path, int* line) override;
    void simEn(bool enabled) override;
    void setTextCompletionList(QStringList& words) override;
    EditorSupportMenu* supportMenu() override { return m_supportMenu; }
    int simBreakpointsRevision() override { return m_simBreakpointsRevision; }

    // ModCfgAppPluginIf
    void rdAppCfg() override;
    void wrAppCfg() override;

    // ModPrjPluginIf
    void prjOpen() override;
    void prjOpened() override {}
    void prjAboutToClose() override;
    void prjSave() override;
    void prjClose() override;

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

    // ModClipboardPluginIf
    void clipboardAction(ModClipboardHookIf::eClipboardFeature_t feature) override;

    /// Open documents in the order of their creation. Owned.
    const QList<EditorWidget*>& editorWidgets() const { return m_editorWidgets; }
    EditorStatusBar* statusBar() const;
    /// Looks after what is not in a file; null before modInit() and after modExit().
    EditorRecovery* recovery() const { return m_recovery; }
    /// Prints the document, or what is selected in it, as the printer is set.
    void printFile(EditorWidget* widget, QPrinter* printer);

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
    void setSimBreakpointsChanged();
    void clearSimBreakpoints();
    void clearAllSimStartPointer();
    void clearAllBookmarks();
    void checkDisk(const QString& path, bool sure);
    // What the user chooses in the status bar.
    void setLineEnd(int lineEnd);
    void setMark(bool mark);
    void openDroppedFiles(const QStringList& paths);

private:
    // Documents (ModEditorDocuments.cpp, ModEditorFiles.cpp)
    EditorWidget* newEditorWidget(const QString& path);
    void removeEditorWidget(EditorWidget* widget);
    EditorWidget* openFileWidget(const QString& path);
    EditorWidget* currentEditorWidget() const;
    /// Gives the focus to the current document, after a command of the user.
    void focusCurrentWidget();
    void openFilesByDialog();
    bool readFile(const QString& path, QByteArray* bytes);
    bool writeFile(const QString& path, const QByteArray& bytes);
    QByteArray encoded(EditorWidget* widget);
    bool saveFile(EditorWidget* widget);
    bool saveFileAs(EditorWidget* widget);
    void reloadFile(EditorWidget* widget);
    void closeFile(EditorWidget* widget);
    void closeFiles(const QList<EditorWidget*>& widgets);
    template <class Action>
    bool inGroup(const QString& text, Action action);
    void printFile(EditorWidget* widget);
    bool askForSave(const QString& path);
    bool askForReload(const QString& path);
    bool askForProjectMember(const QString& path);
    bool ask(const QString& title, const QString& first, const QString& path, const QStringList& closing);
    // Files that others change (ModEditorDisk.cpp)
    /// The user's choice if a file and its document have both changed.
    enum eConflict_t { eConflictCancel = 0, eConflictKeepMine = 1, eConflictTakeFile = 2 };
    /// What is known of the file of a document.
    struct sDisk_t
    {
        DocumentOnDisk onDisk;
        QPointer<MyNoticeBar> notice;     ///< others have changed or removed the file
        QPointer<MyNoticeBar> lockNotice; ///< the file can not be shown as it is
        QByteArray reported;              ///< what the notice was about, closed or not
        bool isGivenUp = false;           ///< the user has agreed to lose the text `givenUp`
        QString givenUp;
    };
    /// Shows what was read. @param asEdit as a step to undo
    void setContent(EditorWidget* widget, const QByteArray& bytes, bool asEdit);
    bool keepReplacedText(EditorWidget* widget);
    /// After an open or a reload.
    void showContent(EditorWidget* widget, const QByteArray& bytes);
    void setNewPath(EditorWidget* widget, const QString& path);
    void setLocked(EditorWidget* widget, DocumentFormat::eObstacle_t obstacle);
    bool canSaveAs(EditorWidget* widget, const QString& path);
    bool writeDocument(EditorWidget* widget);
    bool saveChecked(EditorWidget* widget);
    eConflict_t askForConflict(EditorWidget* widget, const QByteArray& other, bool gone);
    eConflict_t compareWithFile(EditorWidget* widget, const QByteArray& other);
    bool takeFile(EditorWidget* widget);
    void keepMine(EditorWidget* widget);
    void writeAgain(EditorWidget* widget);
    void compareByNotice(EditorWidget* widget);
    void watchDocuments();
    void checkDisk(EditorWidget* widget);
    void showGoneNotice(EditorWidget* widget);
    void showChangedNotice(EditorWidget* widget);
    void removeDiskNotice(EditorWidget* widget);
    static void removeNotice(QPointer<MyNoticeBar>* bar);

    void setFileContentChanged();
    void chkProjectMembership(const QString& path);
    QString convToRelPath(const QString& path) const;
    static int lineOf(const QUrl& url);
    void showError(const QString& text);
    void showWarning(const QString& text);

    // What must not be lost (ModEditorRecovery.cpp)
    void initRecovery();
    void exitRecovery();
    void settleFiles(bool isNew);
    void settleFile(EditorWidget* widget, bool isNew);
    bool keepText(EditorWidget* widget, bool isNew);
    void keepSession();
    RecoveryStore::Session takeSession();
    QString prjFilePath() const;
    void offerRecovery();
    void showRecoverDialog();
    void closeRecoveryNotice();
    bool restoreText(const QString& id);
    bool compareText(const QString& id, bool canRestore);
    EditorWidget* documentOf(const QString& path) const;

    // State (ModEditor.cpp)
    void connectEditorWidget(EditorWidget* widget);
    void configureEditorWidget(EditorWidget* widget);
    void configureEditorWidgets();
    void setActionState(EditorWidget* current);
    void updateActionState();
    void clearMessageFlag();
    void setFindParameter();
    void find(bool configChanged, bool backward);

    QList<EditorWidget*> m_editorWidgets;
    QHash<EditorWidget*, sDisk_t> m_disk;
    DocumentWatcher* m_watcher = nullptr; ///< null before the first document
    PluginList<ModEditorPluginIf> m_plugins;
    ModEditorPluginIfAssembler* m_assembler = nullptr; ///< not owned
    ModEditorPluginIfSimulator* m_simulator = nullptr; ///< not owned
    EditorSyntaxHighlighterConfig* m_syntaxHighlighterConfig = nullptr;
    EditorTipManager* m_tipManager = nullptr;
    EditorSupportMenu* m_supportMenu = nullptr;
    QStringListModel* m_textCompletionList;
    QPointer<EditorStatusBar> m_statusBar;
    QPointer<EditorConfigPage> m_configPage; ///< null while the settings dialog is closed
    EditorActionsFile* m_actionsFile = nullptr;
    EditorActionsEdit* m_actionsEdit = nullptr;
    EditorActionsSim* m_actionsSim = nullptr;
    sFindParameter_t m_findParameter;
    EditorRecovery* m_recovery = nullptr;
    QAction* m_recoverAction = nullptr; ///< enabled at any time, unlike those of the documents
    QAction* m_recoverSeparator = nullptr;
    QPointer<MyNoticeBar> m_recoveryNotice;           ///< after a start that found texts, until its user closes it
    QString m_lastPath;                               ///< folder that the next dialog for saving starts in
    EditorMemPageAddrMap* m_memPageAddrMap = nullptr; ///< owned
    bool m_simBreakpointsChangedFlag = false;         ///< once set, it stays
    int m_simBreakpointsRevision = 0;                 ///< incremented when the result of simBreakpoints() changes
    bool m_simEnabled = false;
    bool m_isMessageFlagged = false; ///< the flagged line is that of a message which the user has clicked
    bool m_errorShown = false;       ///< the present action of the user has reported an error
};

} // namespace nsModEditor
