#include "CompletionWords.h"

#include "NumberText.h"
#include "ProgramNames.h"

#include "AsmFeLineHndlr.h"
#include "AsmWords.h"
#include "InstructionNotes.h"
#include "ModAsmFeHookIf.h"
#include "ModAsmFePluginIf.h"
#include "ProcTables.h"
#include "eOpcode.h"

#include <QCoreApplication>

#include <QPair>

#include <algorithm>

namespace nsModSymbols {

using nsModAsmFe::AsmFeLineHndlr;

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("nsModSymbols::CompletionWords", text);
}

struct sNote
{
    const char* word;
    const char* note;
};

const sNote directives[] = {
    {"#EQU", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "name, value: a constant")},
    {"#SET", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "namespace::parameter, value: a setting")},
    {"#ORG", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "ADDR, number or MEMRANGE, page: a place in memory")},
    {"#DEFINE", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "name: for #IFDEF")},
    {"#IFDEF", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "name | name: what follows if one is defined")},
    {"#ELSEIF", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "name | name: otherwise, if one is defined")},
    {"#ELSE", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "otherwise")},
    {"#ENDIF", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "the end of an #IFDEF")},
    {"#NAMESPACE", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "name: names of its own up to the end")},
    {"#ENDNAMESPACE", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "the end of a namespace")},
};

const sNote ranges[] = {
    {"ADDR", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "the next instruction's address")},
    {"MEMRANGE", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "the page of what follows")},
    {"SHARED", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "the range that all pages see")},
    {"PAGE0", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "a page")},
    {"PAGE1", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "a page")},
    {"PAGE2", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "a page")},
    {"PAGE3", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "a page")},
};

const sNote parameters[] = {
    {"IODev::name::en", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "true: declares a device")},
    {"IODev::name::size", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "words of a device")},
    {"IODev::name::baseAddr", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "first address of a device")},
    {"IODev::name::type", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "mem, fifo or reg")},
    {"IODev::name::initValue", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "of words that nothing writes")},
    {"IODev::name::value", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "contents of the next words")},
    {"IODev::name::simEn", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "true: stands in the simulation")},
    {"asm::dfltCharset", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "character set of strings")},
    {"editor::tabIndent", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "width of a tab in the editor")},
};

const sNote flags[] = {
    {"Z", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "if the zero flag is set")},
    {"NZ", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "if the zero flag is clear")},
    {"C", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "if the carry flag is set")},
    {"NC", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "if the carry flag is clear")},
};

const sNote switches[] = {
    {"ENABLE", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "allows interrupts")},
    {"DISABLE", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "refuses interrupts")},
};

const sNote navigator[] = {
    {"\\navConst \"\"", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "a title for constants")},
    {"\\navSep \"\"", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "a separating title")},
    {"\\navGrpBegin \"\"", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "begins a group")},
    {"\\navGrpEnd", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "ends a group")},
    {"\\navHw \"\"", QT_TRANSLATE_NOOP("nsModSymbols::CompletionWords", "a title for hardware")},
};

bool isWordPart(QChar c)
{
    return c.isLetterOrNumber() || c == '_' || c == ':';
}

/// Where the word at the end of the text begins. Names of character sets contain hyphens, which elsewhere are
/// operators.
int wordStart(const QString& text)
{
    int start = text.size();
    while (start > 0 && isWordPart(text.at(start - 1)))
        --start;
    int attribute = start;
    while (attribute > 0 && (isWordPart(text.at(attribute - 1)) || text.at(attribute - 1) == '-'))
        --attribute;
    return attribute > 0 && text.at(attribute - 1) == '\'' ? attribute : start;
}

/// Is the end of the text in the comment, or in a string?
void scanText(const QString& text, bool* isComment, bool* isString)
{
    *isComment = false;
    *isString = false;
    for (int i = 0; i < text.size() && !*isComment; ++i) {
        if (text.at(i) == '\\')
            ++i;
        else if (text.at(i) == '"')
            *isString = !*isString;
        else if (text.at(i) == ';' && !*isString)
            *isComment = true;
    }
}

} // namespace

QString sCompletion::shownNote() const
{
    if (!note.isEmpty() || (kind & (wordConstant | wordLabel)) == 0)
        return note;
    return kind == wordLabel ? NumberText::address(value, page) : NumberText::inBases(value);
}

CompletionWords::CompletionWords(const ModAsmFePluginIf* assembler, ProgramNames* names)
    : m_assembler(assembler)
    , m_names(names)
{
}

void CompletionWords::add(const QString& word, const QString& note, eWordKind_t kind)
{
    sCompletion entry;
    entry.word = word;
    entry.note = note;
    entry.kind = kind;
    m_words.append(entry);
}

void CompletionWords::prepare()
{
    if (!m_isMade)
        make();
}

void CompletionWords::make()
{
    m_isMade = true;
    m_words.clear();
    m_table = nsProc::procTable(m_names->table().processor);
    addInstructions(m_table);
    addLanguage();
    addProcessor(m_table);
    addProgram();
    sort();
}

/// In alphabetical order without regard to case. Folding each word once takes a fraction of what it takes to compare
/// the words themselves.
void CompletionWords::sort()
{
    QVector<QPair<QString, int>> keys;
    keys.reserve(m_words.size());
    for (int i = 0; i < m_words.size(); ++i)
        keys.append({m_words.at(i).word.toCaseFolded(), i});
    std::sort(keys.begin(), keys.end(), [this](const auto& a, const auto& b) {
        const int order = a.first.compare(b.first);
        return order != 0 ? order < 0 : m_words.at(a.second).word < m_words.at(b.second).word;
    });
    QVector<sCompletion> sorted;
    sorted.reserve(m_words.size());
    for (const auto& key : qAsConst(keys))
        sorted.append(std::move(m_words[key.second]));
    m_words = sorted;
}

void CompletionWords::addInstructions(const nsProc::ProcTable* table)
{
    for (int i = nsModAsmFe::ocUndefined + 1; i < nsModAsmFe::ocCount; ++i) {
        const auto opcode = nsModAsmFe::eOpcode_t(i);
        // Without a processor all instructions are proposed.
        if (table != nullptr && table->assembled(opcode) == nullptr)
            continue;
        add(QLatin1String(nsModAsmFe::wordOfOpcode(opcode)), nsProc::instructionNote(table, opcode), wordInstruction);
    }
}

void CompletionWords::addLanguage()
{
    const auto addAll = [this](const auto& notes, eWordKind_t kind) {
        for (const sNote& note : notes)
            add(QLatin1String(note.word), tr(note.note), kind);
    };
    addAll(directives, wordDirective);
    addAll(ranges, wordRange);
    addAll(parameters, wordParameter);
    addAll(flags, wordFlag);
    addAll(switches, wordSwitch);
    addAll(navigator, wordNavigator);
    if (m_assembler->modAsmFeHook == nullptr)
        return;
    for (const QString& name : m_assembler->modAsmFeHook->charsetNames())
        add(QLatin1Char('\'') + name, tr("character set"), wordAttribute);
    add(QStringLiteral("'LEN"), tr("number of bytes"), wordAttribute);
    add(QStringLiteral("'2BE"), tr("two bytes, the high one first"), wordAttribute);
    add(QStringLiteral("'4BE"), tr("four bytes, the highest first"), wordAttribute);
}

void CompletionWords::addProcessor(const nsProc::ProcTable* table)
{
    const nsModAsmFe::AsmWords* words =
        m_assembler->modAsmFeHook != nullptr ? m_assembler->modAsmFeHook->words() : nullptr;
    if (words == nullptr)
        return;
    for (auto reg = words->regs().cbegin(); reg != words->regs().cend(); ++reg)
        add(reg.key(), tr("register %1").arg(reg.value()), wordRegister);
    for (auto bank = words->banks().cbegin(); bank != words->banks().cend(); ++bank)
        add(bank.key(), tr("register bank"), wordBank);
    for (int i = 0; table != nullptr && i < table->settingRowCount; ++i) {
        const QString name = QLatin1String(table->settings[i].directive);
        if (!name.isEmpty())
            add(QLatin1String(table->define) + QLatin1String("::") + name, tr("setting of the processor"),
                wordParameter);
    }
}

void CompletionWords::addProgram()
{
    const QVector<nsModAsmFe::sSymbol>& symbols = m_names->table().symbols();
    const QString constant = tr("constant");
    const QString label = tr("label");
    const QString device = tr("device");
    m_words.reserve(m_words.size() + symbols.size());
    for (const nsModAsmFe::sSymbol& symbol : symbols) {
        if (symbol.kind == nsModAsmFe::symbolConstant)
            add(symbol.fullName(),
                symbol.hasValue         ? QString()
                : symbol.text.isEmpty() ? constant
                                        : symbol.text,
                wordConstant);
        else if (symbol.kind == nsModAsmFe::symbolLabel)
            add(symbol.fullName(), symbol.hasValue ? QString() : label, wordLabel);
        else if (symbol.kind == nsModAsmFe::symbolDevice)
            add(symbol.name + QLatin1String("::"), device, wordParameter);
        else
            continue;
        m_words.last().value = symbol.value;
        m_words.last().page = symbol.page;
    }
}

/// What the argument of an instruction can be, by the forms that the processor has for it.
int CompletionWords::kindsOfArgument(const QString& instruction, int number) const
{
    using namespace nsProc;
    const sInstr_t* row = m_table != nullptr ? m_table->assembled(nsModAsmFe::opcodeOfMnemonic(instruction)) : nullptr;
    if (row == nullptr)
        return wordRegister | wordConstant | wordLabel;
    const bool isFirst = number == 0;
    switch (row->form) {
    case formTwoOperand:
    case formRegNumber:
        return isFirst ? wordRegister : row->form == formRegNumber ? wordConstant : wordRegister | wordConstant;
    case formPort:
    case formScrpd:
        return isFirst ? wordRegister : wordConstant | wordRegister;
    case formFlow:
        return isFirst ? wordLabel | wordFlag : wordLabel;
    case formReturn:
        return isFirst ? wordFlag : 0;
    case formSwitch:
        return isFirst ? wordSwitch : 0;
    case formReg:
        return isFirst ? wordRegister : 0;
    case formRotate:
        return wordRegister;
    case formFlag:
        return isFirst ? wordFlag : 0;
    case formBank:
        return isFirst ? wordBank : 0;
    default:
        return 0;
    }
}

sCompletionPlace CompletionWords::placeOf(const QString& text)
{
    prepare();
    sCompletionPlace place;
    int start = wordStart(text);
    bool isComment = false;
    bool isString = false;
    scanText(text, &isComment, &isString);
    const QChar before = start > 0 ? text.at(start - 1) : QChar();
    if (isComment || isString) {
        if (isComment && before == '\\') {
            place.prefix = text.mid(start - 1);
            place.kinds = place.bestKinds = wordNavigator;
        }
        return place;
    }
    if (before == '#' || before == '\'')
        --start;
    place.prefix = text.mid(start);
    if (before == '\'') {
        place.kinds = place.bestKinds = wordAttribute;
        return place;
    }
    AsmFeLineHndlr line;
    line.splitLine(text);
    const QString word = line.tag(AsmFeLineHndlr::eTagInstruction).toUpper();
    if (word.isEmpty() || start <= line.tagStart(AsmFeLineHndlr::eTagInstruction)) {
        place.kinds = wordInstruction | wordDirective;
        place.bestKinds = before == '#' ? wordDirective : wordInstruction;
        return place;
    }
    const int number = start > line.tagStart(AsmFeLineHndlr::eTagArg0) &&
                               (!line.isEmpty(AsmFeLineHndlr::eTagSep) || !line.isEmpty(AsmFeLineHndlr::eTagArg1))
                           ? 1
                           : 0;
    if (word == QLatin1String("#SET"))
        place.kinds = place.bestKinds = number == 0 ? wordParameter : wordAttribute;
    else if (word == QLatin1String("#ORG"))
        place.kinds = place.bestKinds = wordRange;
    else if (word == QLatin1String("#EQU"))
        place.kinds = place.bestKinds = number == 0 ? 0 : wordConstant | wordRegister | wordBank;
    else if (!word.startsWith('#')) {
        place.bestKinds = kindsOfArgument(word, number);
        // What the processor does not take may come from another one: it is proposed last.
        place.kinds = place.bestKinds == 0 ? 0 : place.bestKinds | wordConstant | wordRegister | wordLabel;
    }
    return place;
}

QVector<sCompletion> CompletionWords::wordsAt(const sCompletionPlace& place)
{
    prepare();
    QVector<sCompletion> best;
    QVector<sCompletion> others;
    const bool isOutermost = place.prefix.startsWith(QLatin1String("::"));
    const QString prefix = isOutermost ? place.prefix.mid(2) : place.prefix;
    for (const sCompletion& candidate : qAsConst(m_words)) {
        if ((candidate.kind & place.kinds) == 0)
            continue;
        const QString& word = candidate.word;
        const bool isName = (candidate.kind & (wordConstant | wordLabel)) != 0;
        bool isHit = word.startsWith(prefix, Qt::CaseInsensitive);
        if (isOutermost) {
            isHit = isHit && isName && !word.contains(QLatin1String("::"));
        } else if (!isHit && isName) {
            // A name is found without its namespace, too.
            const int end = word.lastIndexOf(QLatin1String("::"));
            isHit = end >= 0 && word.midRef(end + 2).startsWith(prefix, Qt::CaseInsensitive);
        }
        if (isHit)
            (candidate.kind & place.bestKinds ? best : others).append(candidate);
    }
    return best + others;
}

} // namespace nsModSymbols
