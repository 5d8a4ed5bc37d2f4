#include "FlatGrammar.h"

#include "Grammar.h"
#include "Painted.h"
#include "QtPrinters.h"

#include <QDomDocument>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace {

QRegularExpression compiled(const QString& expression)
{
    QRegularExpression result(expression);
    EXPECT_TRUE(result.isValid()) << qPrintable(expression) << ": " << qPrintable(result.errorString());
    EXPECT_FALSE(result.match(QString()).hasMatch()) << "matches nothing: " << qPrintable(expression);
    return result;
}

QChar letterOfScope(const QString& scope)
{
    for (const nsSyntax::sStyle_t& style : nsSyntax::styles()) {
        if (scope == QString(style.scope) + ".nalvo")
            return letterOf(style.id);
    }
    ADD_FAILURE() << "unknown scope " << qPrintable(scope);
    return '.';
}

QVector<sFlatRule_t> rulesOf(const QJsonArray& patterns, const QJsonObject& repository)
{
    QVector<sFlatRule_t> rules;
    for (const QJsonValue& value : patterns) {
        const QJsonObject pattern = value.toObject();
        const QString include = pattern.value("include").toString();
        if (!include.isEmpty()) {
            EXPECT_TRUE(repository.contains(include.mid(1))) << qPrintable(include);
            rules += rulesOf(repository.value(include.mid(1)).toObject().value("patterns").toArray(), repository);
            continue;
        }
        sFlatRule_t rule;
        rule.letter = letterOfScope(pattern.value("name").toString());
        rule.toLineEnd = pattern.contains("begin");
        rule.expression = compiled(pattern.value(rule.toLineEnd ? "begin" : "match").toString());
        if (rule.toLineEnd) {
            EXPECT_EQ(pattern.value("end").toString(), "$");
            rule.inside = rulesOf(pattern.value("patterns").toArray(), repository);
        }
        rules.append(rule);
    }
    return rules;
}

/// The contexts that a context includes.
QVector<sFlatRule_t> included(const QDomElement& context, const QHash<QString, QDomElement>& contexts)
{
    QVector<sFlatRule_t> rules;
    QDomElement ref = context.firstChildElement("include").firstChildElement("context");
    for (; !ref.isNull(); ref = ref.nextSiblingElement("context")) {
        EXPECT_TRUE(contexts.contains(ref.attribute("ref"))) << qPrintable(ref.attribute("ref"));
        const QDomElement target = contexts.value(ref.attribute("ref"));
        sFlatRule_t rule;
        rule.letter = letterOf(target.attribute("style-ref"));
        EXPECT_NE(rule.letter, QChar('.')) << qPrintable(target.attribute("style-ref"));
        rule.toLineEnd = target.attribute("end-at-line-end") == "true";
        rule.expression = compiled(target.firstChildElement(rule.toLineEnd ? "start" : "match").text());
        if (rule.toLineEnd)
            rule.inside = included(target, contexts);
        rules.append(rule);
    }
    return rules;
}

} // namespace

FlatGrammar FlatGrammar::ofTextMate(const QByteArray& json)
{
    QJsonParseError error;
    const QJsonObject root = QJsonDocument::fromJson(json, &error).object();
    EXPECT_EQ(error.error, QJsonParseError::NoError) << qPrintable(error.errorString());
    FlatGrammar grammar;
    grammar.m_rules = rulesOf(root.value("patterns").toArray(), root.value("repository").toObject());
    return grammar;
}

FlatGrammar FlatGrammar::ofGtk(const QByteArray& xml)
{
    QDomDocument document;
    QString error;
    EXPECT_TRUE(document.setContent(xml, &error)) << qPrintable(error);
    const QDomElement definitions = document.documentElement().firstChildElement("definitions");
    QHash<QString, QDomElement> contexts;
    QDomElement context = definitions.firstChildElement("context");
    for (; !context.isNull(); context = context.nextSiblingElement("context"))
        contexts.insert(context.attribute("id"), context);
    FlatGrammar grammar;
    grammar.m_rules = included(contexts.value(document.documentElement().attribute("id")), contexts);
    return grammar;
}

QStringList FlatGrammar::painted(const QStringList& lines) const
{
    QStringList result;
    for (const QString& line : lines) {
        QString painted(line.size(), '.');
        paint(m_rules, line, 0, &painted);
        result.append(painted);
    }
    return result;
}

void FlatGrammar::paint(const QVector<sFlatRule_t>& rules, const QString& line, int from, QString* painted)
{
    for (int pos = from; pos < line.size();) {
        int length = 0;
        for (const sFlatRule_t& rule : rules) {
            const QRegularExpressionMatch match = rule.expression.match(line, pos, QRegularExpression::NormalMatch,
                                                                        QRegularExpression::AnchoredMatchOption);
            if (!match.hasMatch() || match.capturedLength() == 0)
                continue;
            length = rule.toLineEnd ? line.size() - pos : match.capturedLength();
            painted->replace(pos, length, QString(length, rule.letter));
            if (rule.toLineEnd)
                paint(rule.inside, line, match.capturedEnd(), painted);
            break;
        }
        pos += qMax(1, length);
    }
}
