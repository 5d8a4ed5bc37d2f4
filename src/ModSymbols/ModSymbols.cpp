#include "ModSymbols.h"

#include "CompletionActions.h"
#include "CompletionWords.h"
#include "DocumentNames.h"
#include "HoverTexts.h"
#include "UsagesPanel.h"

#include "EditorDocument.h"
#include "ModActionHookIf.h"
#include "ModAsmFeHookIf.h"
#include "ModCfgAppHookIf.h"
#include "ModEditorHookIf.h"
#include "ModGuiHookIf.h"
#include "ModPrjHookIf.h"
#include "PluginList.h"
#include "SimValuesIf.h"

#include <QAction>
#include <QMenu>
#include <QTextBlock>
#include <QTimer>

namespace nsModSymbols {

using nsModEditor::EditorDocument;

namespace {

const QString completionKey = QStringLiteral("ModSymbols/completionEn");

} // namespace

ModSymbols::ModSymbols(QObject* parent)
    : QObject(parent)
    , m_names(this, this, this)
    , m_messages(this)
    , m_completionWords(std::make_unique<CompletionWords>(this, &m_names))
    , m_hover(std::make_unique<HoverTexts>(&m_names))
{
}

ModSymbols::~ModSymbols()
{
    // The window deletes the panel that it still contains.
    if (m_usages != nullptr && m_usages->parentWidget() == nullptr)
        delete m_usages;
}

void ModSymbols::modRegisterPlugins(QList<ModPluginIf*> modules)
{
    registerPluginsOf<nsModProcessor::SimValuesIf>(modules, this);
}

void ModSymbols::registerPlugin(nsModProcessor::SimValuesIf* values)
{
    m_hover->setValues(values);
}

void ModSymbols::modInit()
{
    m_actions = new SymbolActions(this);
    m_completionActions = new CompletionActions(this);
    connect(m_actions, &SymbolActions::triggered, this, &ModSymbols::handleAction);
    connect(m_completionActions, &CompletionActions::completionRequested, this, &ModSymbols::handleCompletionAction);
    // The menus know what the user wants instead.
    connect(m_completionActions, &CompletionActions::keysChanged, this, [this] {
        if (modActionHook != nullptr)
            modActionHook->refreshActions();
    });
    updateActions();
}

void ModSymbols::modExitIntermod()
{
    if (modGuiHook != nullptr && m_usages != nullptr)
        modGuiHook->removeWidget(m_usages);
    delete m_usages;
}

void ModSymbols::modExit()
{
    delete m_actions;
    m_actions = nullptr;
    delete m_completionActions;
    m_completionActions = nullptr;
}

QList<QAction*> ModSymbols::menuActions(ModActionHookIf::eActionClass_t actionClass)
{
    if (m_actions == nullptr)
        return {};
    if (actionClass == ModActionHookIf::eActionClassNavigation)
        return m_actions->menuActions();
    if (actionClass == ModActionHookIf::eActionClassEdit)
        return m_completionActions->menuActions();
    return {};
}

void ModSymbols::rdAppCfg()
{
    if (m_completionActions != nullptr)
        m_completionActions->setOn(modCfgAppHook->value(completionKey, 0) != 0);
}

void ModSymbols::wrAppCfg()
{
    if (modCfgAppHook != nullptr)
        modCfgAppHook->setValue(completionKey, isCompletionOn() ? 1 : 0);
}

bool ModSymbols::isCompletionOn() const
{
    return m_completionActions != nullptr && m_completionActions->isOn();
}

void ModSymbols::prjOpen()
{
    m_isOpening = true;
}

void ModSymbols::prjClose()
{
    m_isOpening = false;
    m_names.clear();
    m_messages.clear();
    m_history.clear();
    m_completionWords->clear();
    // An empty list at the next project would be no use.
    if (m_usages != nullptr && modGuiHook != nullptr) {
        modGuiHook->removeWidget(m_usages);
        m_usages->deleteLater();
        m_usages = nullptr;
    }
    updateActions();
}

// --- documents ---

EditorDocument* ModSymbols::documentOf(const QString& path) const
{
    if (modEditorHook == nullptr)
        return nullptr;
    for (EditorDocument* document : modEditorHook->documents()) {
        if (document->filePath() == path)
            return document;
    }
    return nullptr;
}

EditorDocument* ModSymbols::current() const
{
    return modEditorHook != nullptr ? modEditorHook->currentDocument() : nullptr;
}

DocumentNames* ModSymbols::attach(EditorDocument* document)
{
    DocumentNames*& names = m_documents[document];
    if (names != nullptr)
        return names;
    names = new DocumentNames(document, this);
    connect(document, &EditorDocument::menuRequested, this, &ModSymbols::addMenuEntries);
    connect(document->document(), &QTextDocument::contentsChanged, this, &ModSymbols::textChanged);
    return names;
}

void ModSymbols::documentOpened(EditorDocument* document)
{
    attach(document);
    m_names.documentsChanged();
    if (!m_messages.isEmpty())
        m_messages.mark(document);
    // Its addresses are those of the last run, unless they would make those of an edited document valid again.
    if (modAsmFeHook != nullptr && m_names.staleReason().isEmpty())
        modAsmFeHook->handOverAddresses();
}

void ModSymbols::documentClosing(EditorDocument* document)
{
    m_history.documentClosing(document);
    m_messages.forget(document);
    m_names.documentsChanged();
    if (DocumentNames* names = m_documents.take(document))
        names->detach();
}

void ModSymbols::currentDocumentChanged(EditorDocument* document)
{
    if (document != nullptr)
        attach(document);
    updateActions();
}

void ModSymbols::textChanged()
{
    if (m_usages != nullptr)
        m_usages->setOutdated();
}

void ModSymbols::addMenuEntries(QMenu* menu)
{
    if (m_actions == nullptr)
        return;
    QAction* first = menu->actions().value(0);
    menu->insertActions(first, m_actions->nameActions());
    menu->insertSeparator(first);
}

void ModSymbols::updateActions()
{
    if (m_actions == nullptr)
        return;
    const bool isDocument = current() != nullptr;
    for (const auto action :
         {SymbolActions::eActionDefinition, SymbolActions::eActionUsages, SymbolActions::eActionRename})
        m_actions->setEnabled(action, isDocument);
    for (const auto action : {SymbolActions::eActionNextMessage, SymbolActions::eActionPrevMessage})
        m_actions->setEnabled(action, !m_messages.isEmpty());
    m_completionActions->setDocument(isDocument);
    updateHistoryActions();
}

void ModSymbols::updateHistoryActions()
{
    if (m_actions == nullptr)
        return;
    m_actions->setEnabled(SymbolActions::eActionBack, m_history.canGoBack());
    m_actions->setEnabled(SymbolActions::eActionForward, m_history.canGoForward());
}

// --- runs ---

void ModSymbols::asmRunEnded()
{
    m_names.runEnded();
    m_completionWords->clear();
    m_messages.take();
    if (modEditorHook != nullptr) {
        for (EditorDocument* document : modEditorHook->documents())
            m_messages.mark(document);
    }
    // A project is assembled when it is opened, without an event that would fill the list of constants.
    if (m_isOpening && modAsmFeHook != nullptr)
        modAsmFeHook->showEquList();
    m_isOpening = false;
    updateActions();
    prepareWords();
}

/// The first letters that are typed after a run do not wait for the list of words: it is made when the window has
/// nothing else to do, in two steps.
void ModSymbols::prepareWords()
{
    if (!isCompletionOn())
        return;
    const auto isOpen = [this] { return modPrjHook != nullptr && modPrjHook->isValid() && modAsmFeHook != nullptr; };
    QTimer::singleShot(0, this, [this, isOpen] {
        if (!isOpen())
            return;
        m_names.table();
        QTimer::singleShot(0, this, [this, isOpen] {
            if (isOpen())
                m_completionWords->prepare();
        });
    });
}

void ModSymbols::say(const QString& text) const
{
    if (modGuiHook != nullptr)
        modGuiHook->setStatusBarText(text);
}

// --- actions ---

void ModSymbols::handleAction(SymbolActions::eAction_t action)
{
    const QPointer<EditorDocument> document(current());
    // Questions are asked, under which the window can go, and the module with it.
    const QPointer<ModSymbols> self(this);
    say(QString());
    switch (action) {
    case SymbolActions::eActionDefinition:
        if (document != nullptr)
            goToDefinition(document, document->textCursor().blockNumber(), document->textCursor().positionInBlock());
        break;
    case SymbolActions::eActionUsages:
        if (document != nullptr)
            findUsages(document);
        break;
    case SymbolActions::eActionRename:
        if (document != nullptr)
            rename(document);
        break;
    case SymbolActions::eActionBack:
        travel(JumpHistory::wayBack);
        break;
    case SymbolActions::eActionForward:
        travel(JumpHistory::wayForward);
        break;
    case SymbolActions::eActionNextMessage:
        walkMessages(1);
        break;
    case SymbolActions::eActionPrevMessage:
        walkMessages(-1);
        break;
    }
    if (self != nullptr)
        updateHistoryActions();
}

void ModSymbols::handleCompletionAction()
{
    if (EditorDocument* document = current())
        attach(document)->complete();
}

const nsModAsmFe::sSymbol* ModSymbols::symbolAt(const EditorDocument* document, int line, int column,
                                                ProgramNames::eCost_t cost)
{
    const int symbol = m_names.symbolAt(document, line, column, cost);
    return symbol >= 0 ? &m_names.lastTable().symbol(symbol) : nullptr;
}

QString ModSymbols::tipAt(EditorDocument* document, int line, int column)
{
    return m_hover->tipAt(document, line, column);
}

/// Shows a place as it is now. @return false: there is no such file
bool ModSymbols::show(const sTextPlace& place)
{
    const QPointer<ModSymbols> self(this);
    if (place.isNull() || modEditorHook == nullptr || !modEditorHook->openFile(place.path) || self == nullptr)
        return false;
    EditorDocument* document = documentOf(place.path);
    if (document == nullptr)
        return false;
    const QTextBlock block = document->document()->findBlockByNumber(place.line);
    const QTextBlock line = block.isValid() ? block : document->document()->lastBlock();
    const int last = line.length() - 1;
    QTextCursor cursor(line);
    cursor.setPosition(line.position() + qBound(0, place.column, last));
    cursor.setPosition(line.position() + qBound(0, place.column + place.length, last), QTextCursor::KeepAnchor);
    document->setTextCursor(cursor);
    document->centerCursor();
    document->setFocus();
    return true;
}

bool ModSymbols::jump(const sTextPlace& place)
{
    if (place.isNull())
        return false;
    const JumpHistory::sStop from = JumpHistory::here(current());
    const QPointer<ModSymbols> self(this);
    const bool isShown = show(place);
    if (self == nullptr)
        return false;
    if (isShown)
        m_history.leave(from);
    updateHistoryActions();
    return isShown;
}

void ModSymbols::travel(JumpHistory::eWay_t way)
{
    const JumpHistory::sStop from = JumpHistory::here(current());
    const sTextPlace place = m_history.take(way);
    const QPointer<ModSymbols> self(this);
    const bool isShown = show(place);
    if (self != nullptr && isShown)
        m_history.arrive(way, from);
}

void ModSymbols::goToDefinition(EditorDocument* document, int line, int column)
{
    const int symbol = m_names.symbolAt(document, line, column);
    if (symbol < 0) {
        say(m_names.fileOf(document->filePath()) < 0 ? tr("The document is no source of the project.")
                                                     : tr("There is no name of the program here."));
        return;
    }
    const nsModAsmFe::SymbolTable& table = m_names.lastTable();
    if (table.symbol(symbol).kind == nsModAsmFe::symbolFile) {
        jump({table.symbol(symbol).name, 0, 0, 0});
        return;
    }
    const nsModAsmFe::sSymbolPlace* definition = table.definitionOf(symbol);
    if (definition == nullptr) {
        say(tr("\"%1\" is not defined in the sources.").arg(table.symbol(symbol).fullName()));
        return;
    }
    jump(m_names.placeOf(*definition));
}

void ModSymbols::walkMessages(int step)
{
    const sTextPlace onDisk = m_messages.walk(step);
    if (onDisk.isNull() || modEditorHook == nullptr)
        return;
    const JumpHistory::sStop from = JumpHistory::here(current());
    const QPointer<ModSymbols> self(this);
    if (!modEditorHook->openFile(onDisk.path) || self == nullptr)
        return;
    EditorDocument* document = documentOf(onDisk.path);
    const sTextPlace now = document != nullptr ? m_messages.placeIn(document) : sTextPlace();
    const bool isShown = show(now.isNull() ? onDisk : now);
    if (self == nullptr)
        return;
    if (isShown)
        m_history.leave(from);
    say(QStringLiteral("%1: %2").arg(m_messages.position(), m_messages.currentText()));
}

} // namespace nsModSymbols
