#include "HighlightRules.h"

#include "AsmWords.h"

namespace nsModAsmFe {

namespace {

/// Adds rules to a list.
class RuleList
{
public:
    void add(eHighlight_t kind, const QString& expression, Qt::CaseSensitivity cs)
    {
        m_rules.append({kind, expression, cs});
    }
    void addWords(eHighlight_t kind, const QStringList& words, Qt::CaseSensitivity cs)
    {
        for (const QString& word : words)
            add(kind, "\\b" + word + "\\b", cs);
    }
    void addRules(const QVector<sHighlightRule_t>& rules) { m_rules += rules; }
    const QVector<sHighlightRule_t>& rules() const { return m_rules; }

private:
    QVector<sHighlightRule_t> m_rules;
};

void addDirectives(RuleList* rules)
{
    for (const sDirectiveWord_t& directive : directiveWords()) {
        const QString word = QString("#\\b%1\\b").arg(directive.word);
        rules->add(highlightDirective, word, Qt::CaseInsensitive);
        if (directive.tail == tailName)
            rules->add(highlightDirective, word + "[\\s\\t]+\\S+", Qt::CaseInsensitive);
        if (directive.tail == tailLine)
            rules->add(highlightDirective, word + "[\\s\\t\\S]+", Qt::CaseInsensitive);
        // The list has this one twice, which paints nothing else.
        if (directive.word == QLatin1String("MACRO"))
            rules->add(highlightDirective, word, Qt::CaseInsensitive);
    }
}

void addAttributes(RuleList* rules, const QStringList& charsets, const QStringList& devices)
{
    rules->addWords(highlightAttribute, charsets, Qt::CaseInsensitive);
    rules->add(highlightAttribute, byteOrderExpression(), Qt::CaseInsensitive);
    for (const QString& word : attributeWords()) {
        // No word of the language: the expression begins with an alert character, so that it paints next to nothing.
        if (word == QLatin1String("true"))
            rules->add(highlightAttribute, "\\accessMode\\b", Qt::CaseInsensitive);
        rules->add(highlightAttribute, "\\b" + word + "\\b", Qt::CaseInsensitive);
    }
    for (const QString& device : devices)
        rules->add(highlightAttribute, QString("::\\b%1\\b").arg(device), Qt::CaseInsensitive);
    rules->add(highlightAttribute, "\\b\\S+\\b::", Qt::CaseInsensitive);
    rules->add(highlightAttribute, "::", Qt::CaseInsensitive);
}

/// One expression for all commands, first without their titles.
QString navigatorExpression()
{
    QStringList branches;
    QStringList titles;
    for (const sNavigatorWord_t& command : navigatorWords()) {
        const QString word = QString("^*\\\\\\b%1\\b").arg(command.word);
        branches.append(word);
        if (command.hasTitle)
            titles << word + "\\s+\".*\"" << word + "\\s+\\S+\\s*";
        else
            titles << word;
    }
    return (branches + titles).join('|');
}

} // namespace

const QVector<sDirectiveWord_t>& directiveWords()
{
    static const QVector<sDirectiveWord_t> words = {
        {"EQU", tailNone},   {"SET", tailNone},       {"ORG", tailNone},          {"DEFINE", tailName},
        {"IFDEF", tailLine}, {"ELSEIF", tailLine},    {"ELSE", tailNone},         {"ENDIF", tailNone},
        {"MACRO", tailName}, {"NAMESPACE", tailName}, {"ENDNAMESPACE", tailNone},
    };
    return words;
}

const QVector<sNavigatorWord_t>& navigatorWords()
{
    static const QVector<sNavigatorWord_t> words = {
        {"navHw", true}, {"navConst", true}, {"navSep", true}, {"navGrpBegin", true}, {"navGrpEnd", false}};
    return words;
}

const QStringList& organizationWords()
{
    static const QStringList words = {"ADDR", "MEMRANGE", "SHARED"};
    return words;
}

QString pageExpression()
{
    return QStringLiteral("PAGE[0-9]+");
}

const QStringList& attributeWords()
{
    static const QStringList words = {"LEN", "INSTMEM", "IODev", "hiMem",  "loMem", "vhdl",  "verilog", "hex", "sim",
                                      "mem", "fifo",    "reg",   "append", "true",  "false", "rd",      "wr",  "rdWr"};
    return words;
}

QString byteOrderExpression()
{
    return QStringLiteral("\\b[24]+BE\\b");
}

const QVector<sHighlightRule_t>& numberRules()
{
    static const QVector<sHighlightRule_t> rules = {
        {highlightHex, "\\b0[xX]{1}[0-9A-Fa-f]+\\b", Qt::CaseSensitive},
        {highlightDecimal, "\\b[0-9]+\\b", Qt::CaseSensitive},
        {highlightOctal, "\\\\[0-7]+", Qt::CaseSensitive},
        {highlightBinary, "\\b[bB]{1}[0-1]+\\b", Qt::CaseSensitive},
    };
    return rules;
}

QVector<sHighlightRule_t> highlightRules(const AsmWords& words, const QStringList& charsets, const QStringList& devices)
{
    RuleList rules;
    rules.addWords(highlightInstruction, words.instructionWords(), Qt::CaseInsensitive);
    rules.addWords(highlightKeyWord, words.argumentWords(), Qt::CaseInsensitive);
    rules.addWords(highlightHardware, words.regs().keys(), Qt::CaseSensitive);
    rules.addWords(highlightHardware, words.banks().keys(), Qt::CaseSensitive);
    rules.addWords(highlightKeyWord, organizationWords(), Qt::CaseInsensitive);
    rules.add(highlightKeyWord, pageExpression(), Qt::CaseInsensitive);
    rules.add(highlightLabel, "^\\S+:", Qt::CaseSensitive);
    rules.addRules(numberRules());
    addAttributes(&rules, charsets, devices);
    addDirectives(&rules);
    rules.add(highlightString, "\\\".*\\\"", Qt::CaseSensitive);
    rules.add(highlightComment, ";[^\n]*", Qt::CaseSensitive);
    rules.add(highlightSeparator, "^;[\\s]*\\#\\#[^\n]*", Qt::CaseSensitive);
    rules.add(highlightNavigator, navigatorExpression(), Qt::CaseInsensitive);
    return rules.rules();
}

} // namespace nsModAsmFe
