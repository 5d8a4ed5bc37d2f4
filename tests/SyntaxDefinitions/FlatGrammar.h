#pragma once

#include <QByteArray>
#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QVector>

/// A rule, as the editors have it in common.
struct sFlatRule_t
{
    QChar letter;
    QRegularExpression expression;
    QVector<sFlatRule_t> inside; ///< of a rule that begins what reaches to the end of the line
    bool toLineEnd = false;
};

/// A definition as a list of rules, read from the file of an editor and applied as that editor does it: at each
/// position the first rule that matches there counts, or else the position moves on.
class FlatGrammar
{
public:
    /// The grammar of TextMate. An expression that does not compile, or a word that is not known, fails the test.
    static FlatGrammar ofTextMate(const QByteArray& json);
    /// The definition of GtkSourceView.
    static FlatGrammar ofGtk(const QByteArray& xml);

    QStringList painted(const QStringList& lines) const;
    const QVector<sFlatRule_t>& rules() const { return m_rules; }

private:
    static void paint(const QVector<sFlatRule_t>& rules, const QString& line, int from, QString* painted);

    QVector<sFlatRule_t> m_rules;
};
