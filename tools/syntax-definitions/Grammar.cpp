#include "Grammar.h"

#include "AsmWords.h"
#include "ProcTables.h"

#include <algorithm>

namespace nsSyntax {

using namespace nsModAsmFe;

namespace {

QStringList registerNames()
{
    QStringList names;
    for (const nsProc::ProcTable* table : nsProc::procTables()) {
        for (int number = 0; number < table->regs.count; ++number)
            names.append(table->regName(number));
    }
    return names;
}

QStringList bankNames()
{
    QStringList names;
    for (const nsProc::ProcTable* table : nsProc::procTables()) {
        for (const char* bank = table->banks; *bank != '\0'; ++bank)
            names.append(QString(QLatin1Char(*bank)));
    }
    return names;
}

sFold_t foldOf(const QString& directive)
{
    if (directive == QLatin1String("IFDEF"))
        return {"", "conditional"};
    if (directive == QLatin1String("ELSEIF") || directive == QLatin1String("ELSE"))
        return {"conditional", "conditional"};
    if (directive == QLatin1String("ENDIF"))
        return {"conditional", ""};
    if (directive == QLatin1String("NAMESPACE"))
        return {"", "namespace"};
    if (directive == QLatin1String("ENDNAMESPACE"))
        return {"namespace", ""};
    return {};
}

sFold_t foldOfCommand(const QString& command)
{
    if (command == QLatin1String("navGrpBegin"))
        return {"", "group"};
    if (command == QLatin1String("navGrpEnd"))
        return {"group", ""};
    return {};
}

} // namespace

Grammar::Grammar()
{
    // Comments come first: what they hold has rules of its own.
    add(highlightSeparator, "separator", "^;[ \\t]*##.*");
    add(highlightComment, "comment", ";.*");
    for (const sNavigatorWord_t& command : navigatorWords()) {
        const QString title = command.hasTitle ? QStringLiteral("(?:[ \\t]+(?:\".*\"|[^ \\t\"]+))?") : QString();
        add(highlightNavigator, QString(command.word).toLower(), "\\\\" + QString(command.word) + "\\b" + title,
            Qt::CaseInsensitive, placeComment, foldOfCommand(command.word));
    }
    add(highlightString, "string", "\"(?:[^\"\\\\]|\\\\.)*\"", Qt::CaseSensitive);
    addDirectives();
    add(highlightAttribute, "scope", "\\b[A-Za-z_][A-Za-z0-9_]*::|::");
    add(highlightLabel, "label", "^[^ \\t,;:\"#]+:", Qt::CaseSensitive);
    addAttributes();
    addRest();
}

void Grammar::addDirectives()
{
    for (const sDirectiveWord_t& directive : directiveWords()) {
        QString expression = "#" + QString(directive.word) + "\\b";
        if (directive.tail == tailName)
            expression += "(?:[ \\t]+[^ \\t;]+)?";
        if (directive.tail == tailLine)
            expression += "[^;]*";
        add(highlightDirective, "directive_" + QString(directive.word).toLower(), expression, Qt::CaseInsensitive,
            placeCode, foldOf(directive.word));
    }
}

void Grammar::addAttributes()
{
    const QString charset = QStringLiteral("[A-Za-z0-9_][A-Za-z0-9_.:=+-]*");
    // Behind a quote nothing else can stand. The assembler alone knows the character sets of its computer.
    add(highlightAttribute, "attribute_quoted", "(?<=')[ \\t]*" + charset);
    add(highlightAttribute, "attribute_charset", "\\bDFLTCHARSET[ \\t]*,[ \\t]*" + charset);
    addWords(highlightAttribute, "attribute", attributeWords(), Qt::CaseInsensitive);
}

void Grammar::addRest()
{
    for (const sHighlightRule_t& rule : numberRules())
        add(rule.kind, styleOf(rule.kind).id, rule.expression, rule.cs);
    const AsmWords words;
    add(highlightKeyWord, "page", "\\b" + pageExpression() + "\\b");
    addWords(highlightKeyWord, "organization", organizationWords(), Qt::CaseInsensitive);
    addWords(highlightHardware, "register", registerNames(), Qt::CaseSensitive);
    addWords(highlightHardware, "bank", bankNames(), Qt::CaseSensitive);
    addWords(highlightKeyWord, "argument", words.argumentWords(), Qt::CaseInsensitive);
    addWords(highlightInstruction, "instruction", words.instructionWords(), Qt::CaseInsensitive);
}

void Grammar::addWords(eHighlight_t kind, const QString& name, const QStringList& words, Qt::CaseSensitivity cs)
{
    QStringList sorted = words;
    sorted.removeDuplicates();
    sorted.sort();
    add(kind, name, "\\b(?:" + sorted.join('|') + ")\\b", cs);
    m_rules.last().words = sorted;
}

void Grammar::add(eHighlight_t kind, const QString& name, const QString& expression, Qt::CaseSensitivity cs,
                  ePlace_t place, sFold_t fold)
{
    m_rules.append({kind, name, expression, cs, place, fold, {}});
}

bool reachesLineEnd(const sRule_t& rule)
{
    return rule.kind == highlightComment || rule.kind == highlightSeparator;
}

const QVector<sStyle_t>& styles()
{
    static const QVector<sStyle_t> all = {
        {highlightInstruction, "instruction", "Instruction", "dsKeyword", "def:keyword", "Statement",
         "keyword.mnemonic"},
        {highlightDirective, "directive", "Directive", "dsPreprocessor", "def:preprocessor", "PreProc",
         "keyword.control.directive"},
        {highlightHardware, "hardware", "Hardware", "dsDataType", "def:type", "Identifier",
         "variable.language.register"},
        {highlightHex, "hexadecimal", "Hexadecimal", "dsBaseN", "def:base-n-integer", "Number", "constant.numeric.hex"},
        {highlightDecimal, "decimal", "Decimal number", "dsDecVal", "def:decimal", "Number",
         "constant.numeric.decimal"},
        {highlightOctal, "octal", "Octal number", "dsBaseN", "def:base-n-integer", "Number", "constant.numeric.octal"},
        {highlightBinary, "binary", "Binary number", "dsBaseN", "def:base-n-integer", "Number",
         "constant.numeric.binary"},
        {highlightComment, "comment", "Comment", "dsComment", "def:comment", "Comment", "comment.line.semicolon"},
        {highlightSeparator, "separator", "Separator", "dsRegionMarker", "def:doc-comment", "SpecialComment",
         "comment.line.separator"},
        {highlightLabel, "label", "Label", "dsFunction", "def:function", "Function", "entity.name.function.label"},
        {highlightNavigator, "navigator", "Navi command", "dsAnnotation", "def:doc-comment-element", "Todo",
         "keyword.other.navigator"},
        {highlightAttribute, "attribute", "Attribute", "dsAttribute", "def:special-constant", "Type",
         "storage.modifier.attribute"},
        {highlightString, "string", "String", "dsString", "def:string", "String", "string.quoted.double"},
        {highlightKeyWord, "keyword", "Key words", "dsBuiltIn", "def:builtin", "Special", "constant.language"},
    };
    return all;
}

const sStyle_t& styleOf(eHighlight_t kind)
{
    const auto isKind = [kind](const sStyle_t& style) { return style.kind == kind; };
    return *std::find_if(styles().begin(), styles().end(), isKind);
}

} // namespace nsSyntax
