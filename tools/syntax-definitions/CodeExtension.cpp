#include "CodeExtension.h"

#include "Grammar.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstring>

namespace nsSyntax {

namespace {

const QLatin1String scopeName("source.nalvo");

QString scopeOf(const sRule_t& rule)
{
    return QString("%1.%2").arg(styleOf(rule.kind).scope, languageId);
}

QJsonObject patternOf(const sRule_t& rule)
{
    const QString flag = rule.cs == Qt::CaseInsensitive ? "(?i)" : "";
    if (!reachesLineEnd(rule))
        return {{"name", scopeOf(rule)}, {"match", flag + rule.expression}};
    return {{"name", scopeOf(rule)},
            {"begin", flag + rule.expression.chopped(int(strlen(".*")))},
            {"end", "$"},
            {"patterns", QJsonArray{QJsonObject{{"include", "#comment"}}}}};
}

QJsonArray patternsOf(const Grammar& grammar, ePlace_t place)
{
    QJsonArray patterns;
    for (const sRule_t& rule : grammar.rules()) {
        if (rule.place == place)
            patterns.append(patternOf(rule));
    }
    return patterns;
}

/// The messages of nalvo-asm, and of the other programs without a window.
QJsonObject problemMatcher()
{
    const QJsonObject pattern{{"regexp", "^(.+?):(\\d+): (error|warning|info): (.*?)(?: \\[(\\w+)\\])?$"},
                              {"file", 1},
                              {"line", 2},
                              {"severity", 3},
                              {"message", 4},
                              {"code", 5}};
    return {{"name", "nalvo-asm"},
            {"label", "Messages of nalvo-asm"},
            {"owner", languageId},
            {"source", "nalvo-asm"},
            {"fileLocation", QJsonArray{"autoDetect", "${workspaceFolder}"}},
            {"pattern", pattern}};
}

} // namespace

QByteArray codePackage(const QString& version)
{
    const QJsonObject sources{{"id", languageId},
                              {"aliases", QJsonArray{languageTitle}},
                              {"extensions", QJsonArray{sourceSuffix}},
                              {"configuration", "./language-configuration.json"}};
    const QJsonObject projects{{"id", "xml"}, {"extensions", QJsonArray{projectSuffix}}};
    const QJsonObject grammar{
        {"language", languageId}, {"scopeName", scopeName}, {"path", "./syntaxes/nalvo.tmLanguage.json"}};
    const QJsonObject package{
        {"name", languageId},
        {"displayName", "Nalvo"},
        {"description", "Sources of Nalvo, the IDE for the soft-core processors inside FPGAs: PicoBlaze and Mico8"},
        {"version", version},
        {"publisher", languageId},
        {"license", "MIT"},
        {"engines", QJsonObject{{"vscode", "^1.40.0"}}},
        {"categories", QJsonArray{"Programming Languages"}},
        {"contributes", QJsonObject{{"languages", QJsonArray{sources, projects}},
                                    {"grammars", QJsonArray{grammar}},
                                    {"problemMatchers", QJsonArray{problemMatcher()}}}}};
    return QJsonDocument(package).toJson();
}

QByteArray codeLanguage()
{
    const QJsonArray pairs{QJsonArray{"(", ")"}, QJsonArray{"[", "]"}};
    QJsonArray quoted = pairs;
    quoted.append(QJsonArray{"\"", "\""});
    const QJsonObject markers{
        {"start", "^\\s*(?:#(?:[iI][fF][dD][eE][fF]|[nN][aA][mM][eE][sS][pP][aA][cC][eE])\\b|;.*\\\\navGrpBegin\\b)"},
        {"end", "^\\s*(?:#(?:[eE][nN][dD][iI][fF]|[eE][nN][dD][nN][aA][mM][eE][sS][pP][aA][cC][eE])\\b|"
                ";.*\\\\navGrpEnd\\b)"}};
    const QJsonObject configuration{{"comments", QJsonObject{{"lineComment", ";"}}},
                                    {"brackets", pairs},
                                    {"autoClosingPairs", quoted},
                                    {"surroundingPairs", quoted},
                                    {"wordPattern", "[A-Za-z0-9_]+"},
                                    {"folding", QJsonObject{{"markers", markers}}}};
    return QJsonDocument(configuration).toJson();
}

QByteArray textMateGrammar(const Grammar& grammar)
{
    const QJsonObject comment{{"patterns", patternsOf(grammar, placeComment)}};
    const QJsonObject root{{"name", languageTitle},
                           {"scopeName", scopeName},
                           {"fileTypes", QJsonArray{QString(sourceSuffix).mid(1)}},
                           {"patterns", patternsOf(grammar, placeCode)},
                           {"repository", QJsonObject{{"comment", comment}}}};
    return QJsonDocument(root).toJson();
}

} // namespace nsSyntax
