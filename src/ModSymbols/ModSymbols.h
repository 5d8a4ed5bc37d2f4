#pragma once

#include "JumpHistory.h"
#include "MessagePlaces.h"
#include "ProgramNames.h"
#include "SymbolActions.h"

#include "ModActionPluginIf.h"
#include "ModAsmFePluginIf.h"
#include "ModCfgAppPluginIf.h"
#include "ModEditorPluginIf.h"
#include "ModGuiPluginIf.h"
#include "ModMsgPluginIf.h"
#include "ModPluginIf.h"
#include "ModPrjPluginIf.h"
#include "ModSourcesPluginIf.h"
#include "ModSrcNaviPluginIf.h"

#include <QHash>
#include <QObject>
#include <QPointer>

#include <memory>

class QMenu;

namespace nsModProcessor {
class SimValuesIf;
}

namespace nsModSymbols {

class CompletionActions;
class CompletionWords;
class DocumentNames;
class HoverTexts;
class UsagesPanel;

/// What the documents know of the program: where a name is defined and used, other names for it, words that complete
/// what is typed, messages at their places, and what stands below the pointer.
class ModSymbols : public QObject,
                   public ModPluginIf,
                   public ModMsgPluginIf,
                   public ModPrjPluginIf,
                   public ModGuiPluginIf,
                   public ModSourcesPluginIf,
                   public ModSrcNaviPluginIfSymbols,
                   public ModEditorPluginIf,
                   public ModEditorPluginIfText,
                   public ModAsmFePluginIf,
                   public ModActionPluginIf,
                   public ModCfgAppPluginIf
{
    Q_OBJECT

public:
    explicit ModSymbols(QObject* parent = nullptr);
    ~ModSymbols() override;

    // ModPluginIf
    void modRegisterPlugins(QList<ModPluginIf*> modules) override;
    void modInit() override;
    void modInitIntermod() override {}
    void modRun() override {}
    bool modExitRequest() override { return true; }
    void modExitIntermod() override;
    void modExit() override;
    void registerPlugin(nsModProcessor::SimValuesIf* values);

    // ModPrjPluginIf
    void prjOpen() override;
    void prjOpened() override {}
    void prjSave() override {}
    void prjClose() override;

    // ModGuiPluginIf: the panel stays where it is.
    void removeWidgetRequest(QWidget*) override {}
    void setFocus(ModGuiHookIf::eLocation_t, ModGuiPluginIf*, QWidget*) override {}

    // ModSourcesPluginIf: the run that follows reports itself.
    void srcFileListChanged() override {}
    void srcFileContentChanged() override {}

    // ModSrcNaviPluginIfSymbols
    QVector<nsModSrcNavi::NaviSymbol> naviSymbols() override;
    void showNaviSymbol(const nsModSrcNavi::NaviSymbol& symbol) override;

    // ModEditorPluginIfText
    void documentOpened(nsModEditor::EditorDocument* document) override;
    void documentClosing(nsModEditor::EditorDocument* document) override;
    void currentDocumentChanged(nsModEditor::EditorDocument* document) override;

    // ModAsmFePluginIf
    void asmRunEnded() override;

    // ModActionPluginIf
    QList<QAction*> menuActions(ModActionHookIf::eActionClass_t actionClass) override;
    QList<QAction*> toolBarActions(ModActionHookIf::eActionClass_t) override { return {}; }

    // ModCfgAppPluginIf
    void rdAppCfg() override;
    void wrAppCfg() override;

    /// The name at a place of a document; null if there is none.
    const nsModAsmFe::sSymbol* symbolAt(const nsModEditor::EditorDocument* document, int line, int column,
                                        ProgramNames::eCost_t cost = ProgramNames::eExact);
    /// Goes to where the name at the place is defined. What keeps it from that is said in the status bar.
    void goToDefinition(nsModEditor::EditorDocument* document, int line, int column);
    /// What a tip says about the place; empty for nothing.
    QString tipAt(nsModEditor::EditorDocument* document, int line, int column);
    ProgramNames& names() { return m_names; }
    CompletionWords& completionWords() { return *m_completionWords; }
    /// Does the list of words come by itself, and by its key?
    bool isCompletionOn() const;

private:
    void handleAction(SymbolActions::eAction_t action);
    void handleCompletionAction();
    DocumentNames* attach(nsModEditor::EditorDocument* document);
    void addMenuEntries(QMenu* menu);
    void updateActions();
    void updateHistoryActions();
    void textChanged();
    void prepareWords();
    bool show(const sTextPlace& place);
    bool jump(const sTextPlace& place);
    void travel(JumpHistory::eWay_t way);
    void findUsages(nsModEditor::EditorDocument* document);
    void showUsage(int index);
    void addUsagesPanel();
    void rename(nsModEditor::EditorDocument* document);
    void applyRename(const nsModAsmFe::sSymbol& symbol, const QString& name);
    void walkMessages(int step);
    void say(const QString& text) const;
    nsModEditor::EditorDocument* documentOf(const QString& path) const;
    nsModEditor::EditorDocument* current() const;

    ProgramNames m_names;
    JumpHistory m_history;
    MessagePlaces m_messages;
    std::unique_ptr<CompletionWords> m_completionWords;
    std::unique_ptr<HoverTexts> m_hover;
    SymbolActions* m_actions = nullptr;
    CompletionActions* m_completionActions = nullptr;
    QPointer<UsagesPanel> m_usages;                                  ///< null until usages are sought
    nsModAsmFe::sSymbol m_usagesSymbol;                              ///< what the panel shows the places of
    QHash<nsModEditor::EditorDocument*, DocumentNames*> m_documents; ///< owned by the documents
    bool m_isOpening = false;                                        ///< the first run of a project is still to come
};

} // namespace nsModSymbols
