#include "AsmEditorFeed.h"

#include "AsmCharsets.h"
#include "AsmRunListener.h"
#include "Assembler.h"
#include "EditorMemPageAddrMap.h"
#include "EditorSupportMenu.h"
#include "HighlightRules.h"
#include "InstructionWords.h"
#include "ModEditorHookIf.h"
#include "Opcode.h"

#include <QRegExp>
#include <QSet>

#include <memory>

namespace nsModAsmFe {

using nsModEditor::EditorSupportMenu;

namespace {

struct sMenuEntry_t
{
    const char* path;
    const char* text;
};

const char* const codeGeneration = "Directives/Controlling code generation/%1";

const sMenuEntry_t directiveEntries[] = {
    {"Directives/Variables and constants/#EQU", "#EQU name,\t\tvalue"},
    {"Directives/Controlling code generation/#DEFINE", "#DEFINE yourDefine"},
    {"Directives/Controlling code generation/#IFDEF", "#IFDEF yourDefine"},
    {"Directives/Controlling code generation/#ELSEIF", "#ELSEIF yourDefine"},
    {"Directives/Controlling code generation/#ELSE", "#ELSE"},
    {"Directives/Controlling code generation/#ENDIF", "#ENDIF"},
    {"Directives/Memory organization/#ORG ADDR, 0x0000", "#ORG ADDR,\t\t0x000"},
    {"Directives/Memory organization/#ORG MEMRANGE, SHARED", "#ORG MEMRANGE,\t\tSHARED"},
    {"Directives/Memory organization/#ORG MEMRANGE, PAGE0", "#ORG MEMRANGE,\t\tPAGE0"},
    {"Directives/Memory organization/#ORG MEMRANGE, PAGE1", "#ORG MEMRANGE,\t\tPAGE1"},
    {"Directives/Memory organization/#ORG MEMRANGE, PAGE2", "#ORG MEMRANGE,\t\tPAGE2"},
    {"Directives/Memory organization/#ORG MEMRANGE, PAGE3", "#ORG MEMRANGE,\t\tPAGE3"},
    {"Directives/Namespaces/#NAMESPACE, nsYourName", "#NAMESPACE,\t\tnsYourName"},
    {"Directives/Namespaces/#ENDNAMESPACE", "#ENDNAMESPACE"},
};

const char* const navigatorCommands[] = {
    "; \\navConst \"Your title\"", "; \\navSep \"Your title\"", "; \\navGrpBegin \"Your title\"", "; \\navGrpEnd",
    "; \\navHw \"Your title\"",
};

// The rules are made below the modules, which know no editor.
static_assert(int(highlightDirective) == ModEditorHookIf::eHighlightRuleDirective &&
                  int(highlightInstruction) == ModEditorHookIf::eHighlightRuleCmd &&
                  int(highlightHardware) == ModEditorHookIf::eHighlightRuleHw &&
                  int(highlightHex) == ModEditorHookIf::eHighlightRuleHexNumber &&
                  int(highlightDecimal) == ModEditorHookIf::eHighlightRuleDecNumber &&
                  int(highlightOctal) == ModEditorHookIf::eHighlightRuleOctNumber &&
                  int(highlightBinary) == ModEditorHookIf::eHighlightRuleBinNumber &&
                  int(highlightLabel) == ModEditorHookIf::eHighlightRuleLabel &&
                  int(highlightComment) == ModEditorHookIf::eHighlightRuleComment &&
                  int(highlightDoc) == ModEditorHookIf::eHighlightRuleDoc &&
                  int(highlightSeparator) == ModEditorHookIf::eHighlightRuleSeparator &&
                  int(highlightNavigator) == ModEditorHookIf::eHighlightRuleNaviCmd &&
                  int(highlightAttribute) == ModEditorHookIf::eHighlightRuleAttr &&
                  int(highlightString) == ModEditorHookIf::eHighlightRuleString &&
                  int(highlightKeyWord) == ModEditorHookIf::eHighlightRuleKeyWords,
              "the kinds of text are those of the editor");

} // namespace

AsmEditorFeed::AsmEditorFeed(Assembler& assembler, AsmRunListener& listener)
    : m_assembler(assembler)
    , m_listener(listener)
{
}

void AsmEditorFeed::setupSupportMenuBasic(ModEditorHookIf* editor)
{
    EditorSupportMenu* menu = editor != nullptr ? editor->supportMenu() : nullptr;
    if (menu == nullptr)
        return;
    const auto text = EditorSupportMenu::typeText;
    menu->removeEntry("Directives");
    menu->setEntrySortEn("Directives", false);
    for (const sMenuEntry_t& entry : directiveEntries)
        menu->setEntry(entry.path, entry.text, text);
    for (const sInstructionGroup_t& group : instructionGroups()) {
        for (const QString& word : group.words)
            menu->setEntry(QString("Instructions/%1/%2").arg(group.name, word), word, text);
    }
    for (const char* command : navigatorCommands)
        menu->setEntry(QString("Navigator commands/%1").arg(command), command, text);
    // There are hundreds of them.
    menu->fillLater([](EditorSupportMenu* shown) {
        for (const QString& charset : AsmCharsets::available())
            shown->setEntry("Attributes/Characer set/" + charset, charset, EditorSupportMenu::typeText);
    });
    menu->setEntry("Attributes/Numerics/2 Byte Big Endian", "'2BE", text);
    menu->setEntry("Attributes/Numerics/4 Byte Big Endian", "'4BE", text);
}

void AsmEditorFeed::setupSupportMenuDynamics(ModEditorHookIf* editor, const QString& processorDefine)
{
    EditorSupportMenu* menu = editor != nullptr ? editor->supportMenu() : nullptr;
    if (menu == nullptr)
        return;
    setupSupportMenuNames(menu, "Label", m_assembler.program().labels.nameList(), &m_menuLabels);
    setupSupportMenuNames(menu, "Defines", m_assembler.program().equs.nameList(), &m_menuDefines);
    if (!processorDefine.isEmpty())
        menu->setEntry(QString(codeGeneration).arg(processorDefine), processorDefine, EditorSupportMenu::typeText);
}

/// Makes the names the entries of a sub menu.
/// @param shown the names that the sub menu has. Most runs change few or none of them, and updating tens of thousands
/// of entries is slow.
void AsmEditorFeed::setupSupportMenuNames(EditorSupportMenu* menu, const QString& title, const QStringList& names,
                                          QStringList* shown)
{
    if (names == *shown)
        return;
    QSet<QString> inMenu(shown->cbegin(), shown->cend());
    const QSet<QString> now(names.cbegin(), names.cend());
    const QSet<QString> gone = QSet<QString>(inMenu).subtract(now);
    bool goesOn = true;
    if (now.isEmpty() || gone.size() > now.size() / 2) {
        menu->removeEntry(title);
        inMenu.clear();
    } else {
        for (auto name = gone.cbegin(); name != gone.cend() && goesOn; ++name) {
            menu->removeEntry(title + '/' + *name);
            inMenu.remove(*name);
            goesOn = m_listener.runGoesOn(0);
        }
    }
    const QSet<QString> added = QSet<QString>(now).subtract(inMenu);
    for (auto name = added.cbegin(); name != added.cend() && goesOn; ++name) {
        menu->setEntry(title + '/' + *name, *name, EditorSupportMenu::typeText);
        inMenu.insert(*name);
        goesOn = m_listener.runGoesOn(0);
    }
    // Where the run was cancelled the next one goes on from what the menu has.
    *shown = goesOn ? names : QStringList(inMenu.values());
}

void AsmEditorFeed::setupSupportMenuHardware(ModEditorHookIf* editor)
{
    EditorSupportMenu* menu = editor != nullptr ? editor->supportMenu() : nullptr;
    if (menu == nullptr)
        return;
    menu->removeEntry("Hardware");
    const QHash<QString, int>& regs = m_assembler.words().regs();
    for (auto reg = regs.cbegin(); reg != regs.cend(); ++reg)
        menu->setEntry("Hardware/Register/" + reg.key(), reg.key(), EditorSupportMenu::typeText);
    const QHash<QString, int>& banks = m_assembler.words().banks();
    for (auto bank = banks.cbegin(); bank != banks.cend(); ++bank)
        menu->setEntry("Hardware/Pages/" + bank.key(), bank.key(), EditorSupportMenu::typeText);
}

void AsmEditorFeed::setHighlighter(ModEditorHookIf* editor)
{
    if (editor == nullptr)
        return;
    editor->clearHighlighter();
    QStringList devices;
    for (const IODev* dev : m_assembler.program().ioDevs.devices()) {
        if (!dev->devName.isEmpty())
            devices.append(dev->devName);
    }
    const QVector<sHighlightRule_t> rules =
        highlightRules(m_assembler.words(), m_assembler.charsets().names(), devices);
    for (const sHighlightRule_t& rule : rules)
        editor->configHighlighterAddRegExp(ModEditorHookIf::eHighlightRule_t(rule.kind),
                                           QRegExp(rule.expression, rule.cs));
}

void AsmEditorFeed::setupTextCompleter(ModEditorHookIf* editor)
{
    if (editor == nullptr)
        return;
    QStringList words = m_assembler.charsets().names();
    words << "\\navConst \"\""
          << "\\navSep \"\""
          << "\\navGrpBegin \"\""
          << "\\navGrpEnd"
          << "\\navHw \"\"";
    words << m_assembler.program().labels.nameList() << m_assembler.program().equs.nameList();
    editor->setTextCompletionList(words);
}

void AsmEditorFeed::setupMemPageAddrMap(ModEditorHookIf* editor, QStringList files)
{
    if (editor == nullptr)
        return;
    auto map = std::make_unique<nsModEditor::EditorMemPageAddrMap>(&files);
    for (const Opcode* opcode : m_assembler.program().opcodes) {
        if (!map->addItem(opcode->srcRef.fileNo, opcode->srcRef.lineNo, opcode->pageAddr))
            return;
    }
    editor->setMemPageAddrMap(map.release());
}

} // namespace nsModAsmFe
