#pragma once

#include <QRegularExpression>
#include <QString>
#include <QVector>

namespace nsModEditor {

/// What is searched for, and how.
struct sSearch_t
{
    QString text;
    bool caseSensitive = false;
    bool wholeWords = false;
    bool regExp = false;

    bool operator==(const sSearch_t& other) const
    {
        return text == other.text && caseSensitive == other.caseSensitive && wholeWords == other.wholeWords &&
               regExp == other.regExp;
    }
};

/// A hit in a line, as position and length in characters.
struct sHit_t
{
    int start = 0;
    int length = 0;
    QString replacement; ///< what would take its place
};

/// A search within lines. An expression that would take long is given up: it then has no hits in that line.
class TextSearch
{
public:
    explicit TextSearch(const sSearch_t& search);

    /// There is something to search for, and it is a valid expression.
    bool isValid() const { return !m_search.text.isEmpty() && m_expression.isValid(); }
    /// Why it is not valid; empty if it is, or if there is nothing to search for.
    QString errorText() const;
    bool isRegExp() const { return m_search.regExp; }
    const QString& text() const { return m_search.text; }
    const QRegularExpression& expression() const { return m_expression; }
    /// The hits of a line that are not empty.
    /// @param replacement a text; of a regular expression with \0 to \9 for what its groups have found, \t for a tab
    /// and \\ for a backslash
    QVector<sHit_t> hitsIn(const QString& line, const QString& replacement = QString()) const;
    /// The line after the replacement of the hits.
    static QString replaced(const QString& line, const QVector<sHit_t>& hits);

private:
    QString expanded(const QString& replacement, const QRegularExpressionMatch& match) const;

    sSearch_t m_search;
    QRegularExpression m_expression;
};

} // namespace nsModEditor
