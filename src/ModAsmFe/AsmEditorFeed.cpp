#include "AsmEditorFeed.h"

#include "AsmRunListener.h"
#include "Assembler.h"
#include "EditorMemPageAddrMap.h"
#include "EditorSupportMenu.h"
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

/// A rule for a fixed expression.
struct sRule_t
{
    ModEditorHookIf::eHighlightRule_t rule;
    const char* expression;
    Qt::CaseSensitivity cs;
};

const sRule_t organizationRules[] = {
    {ModEditorHookIf::eHighlightRuleKeyWords, "\\bADDR\\b", Qt::CaseInsensitive},
    {ModEditorHookIf::eHighlightRuleKeyWords, "\\bMEMRANGE\\b", Qt::CaseInsensitive},
    {ModEditorHookIf::eHighlightRuleKeyWords, "\\bSHARED\\b", Qt::CaseInsensitive},
    {ModEditorHookIf::eHighlightRuleKeyWords, "PAGE[0-9]+", Qt::CaseInsensitive},
    {ModEditorHookIf::eHighlightRuleLabel, "^\\S+:", Qt::CaseSensitive},
    {ModEditorHookIf::eHighlightRuleHexNumber, "\\b0[xX]{1}[0-9A-Fa-f]+\\b", Qt::CaseSensitive},
    {ModEditorHookIf::eHighlightRuleDecNumber, "\\b[0-9]+\\b", Qt::CaseSensitive},
    {ModEditorHookIf::eHighlightRuleOctNumber, "\\\\[0-7]+", Qt::CaseSensitive},
    {ModEditorHookIf::eHighlightRuleBinNumber, "\\b[bB]{1}[0-1]+\\b", Qt::CaseSensitive},
};

const char* const attributeExpressions[] = {
    "\\b[24]+BE\\b",   "\\bLEN\\b",  "\\bINSTMEM\\b", "\\bIODev\\b", "\\bhiMem\\b", "\\bloMem\\b", "\\bvhdl\\b",
    "\\bverilog\\b",   "\\bhex\\b",  "\\bsim\\b",     "\\bmem\\b",   "\\bfifo\\b",  "\\breg\\b",   "\\bappend\\b",
    "\\accessMode\\b", "\\btrue\\b", "\\bfalse\\b",   "\\brd\\b",    "\\bwr\\b",    "\\brdWr\\b",
};

const char* const directiveExpressions[] = {
    "#\\bEQU\\b",
    "#\\bSET\\b",
    "#\\bORG\\b",
    "#\\bDEFINE\\b",
    "#\\bDEFINE\\b[\\s\\t]+\\S+",
    "#\\bIFDEF\\b",
    "#\\bIFDEF\\b[\\s\\t\\S]+",
    "#\\bELSEIF\\b",
    "#\\bELSEIF\\b[\\s\\t\\S]+",
    "#\\bELSE\\b",
    "#\\bENDIF\\b",
    "#\\bMACRO\\b",
    "#\\bMACRO\\b[\\s\\t]+\\S+",
    "#\\bMACRO\\b",
    "#\\bNAMESPACE\\b",
    "#\\bNAMESPACE\\b[\\s\\t]+\\S+",
    "#\\bENDNAMESPACE\\b",
};

const sRule_t lastRules[] = {
    {ModEditorHookIf::eHighlightRuleString, "\\\".*\\\"", Qt::CaseSensitive},
    {ModEditorHookIf::eHighlightRuleComment, ";[^\n]*", Qt::CaseSensitive},
    {ModEditorHookIf::eHighlightRuleSeparator, "^;[\\s]*\\#\\#[^\n]*", Qt::CaseSensitive},
    {ModEditorHookIf::eHighlightRuleNaviCmd,
     "^*\\\\\\bnavHw\\b"
     "|^*\\\\\\bnavConst\\b"
     "|^*\\\\\\bnavSep\\b"
     "|^*\\\\\\bnavGrpBegin\\b"
     "|^*\\\\\\bnavGrpEnd\\b"
     "|^*\\\\\\bnavHw\\b\\s+\".*\""
     "|^*\\\\\\bnavHw\\b\\s+\\S+\\s*"
     "|^*\\\\\\bnavConst\\b\\s+\".*\""
     "|^*\\\\\\bnavConst\\b\\s+\\S+\\s*"
     "|^*\\\\\\bnavSep\\b\\s+\".*\""
     "|^*\\\\\\bnavSep\\b\\s+\\S+\\s*"
     "|^*\\\\\\bnavGrpBegin\\b\\s+\".*\""
     "|^*\\\\\\bnavGrpBegin\\b\\s+\\S+\\s*"
     "|^*\\\\\\bnavGrpEnd\\b",
     Qt::CaseInsensitive},
};

/// Adds rules to the editor's list, in the order of the calls.
class RuleList
{
public:
    explicit RuleList(ModEditorHookIf* editor)
        : m_editor(editor)
    {
    }

    void add(ModEditorHookIf::eHighlightRule_t rule, const QString& expression, Qt::CaseSensitivity cs)
    {
        m_editor->configHighlighterAddRegExp(rule, QRegExp(expression, cs));
    }
    void addWords(ModEditorHookIf::eHighlightRule_t rule, const QStringList& words, Qt::CaseSensitivity cs)
    {
        for (const QString& word : words)
            add(rule, "\\b" + word + "\\b", cs);
    }
    template <size_t n>
    void addRules(const sRule_t (&rules)[n])
    {
        for (const sRule_t& rule : rules)
            add(rule.rule, rule.expression, rule.cs);
    }
    template <size_t n>
    void addExpressions(ModEditorHookIf::eHighlightRule_t rule, const char* const (&expressions)[n])
    {
        for (const char* expression : expressions)
            add(rule, expression, Qt::CaseInsensitive);
    }

private:
    ModEditorHookIf* m_editor;
};

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
    for (const QString& charset : m_assembler.charsets().names())
        menu->setEntry("Attributes/Characer set/" + charset, charset, text);
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
    RuleList rules(editor);
    const AsmWords& words = m_assembler.words();
    rules.addWords(ModEditorHookIf::eHighlightRuleCmd, words.instructionWords(), Qt::CaseInsensitive);
    rules.addWords(ModEditorHookIf::eHighlightRuleKeyWords, words.argumentWords(), Qt::CaseInsensitive);
    rules.addWords(ModEditorHookIf::eHighlightRuleHw, words.regs().keys(), Qt::CaseSensitive);
    rules.addWords(ModEditorHookIf::eHighlightRuleHw, words.banks().keys(), Qt::CaseSensitive);
    rules.addRules(organizationRules);
    rules.addWords(ModEditorHookIf::eHighlightRuleAttr, m_assembler.charsets().names(), Qt::CaseInsensitive);
    rules.addExpressions(ModEditorHookIf::eHighlightRuleAttr, attributeExpressions);
    for (const IODev* dev : m_assembler.program().ioDevs.devices()) {
        if (!dev->devName.isEmpty())
            rules.add(ModEditorHookIf::eHighlightRuleAttr, QString("::\\b%1\\b").arg(dev->devName),
                      Qt::CaseInsensitive);
    }
    rules.add(ModEditorHookIf::eHighlightRuleAttr, "\\b\\S+\\b::", Qt::CaseInsensitive);
    rules.add(ModEditorHookIf::eHighlightRuleAttr, "::", Qt::CaseInsensitive);
    rules.addExpressions(ModEditorHookIf::eHighlightRuleDirective, directiveExpressions);
    rules.addRules(lastRules);
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
