#pragma once

#include <QElapsedTimer>
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

/// How long a search may take, and whether anything was left out for that.
class SearchTime
{
public:
    explicit SearchTime(int milliseconds)
        : m_milliseconds(milliseconds)
    {
        m_timer.start();
    }

    /// No time is left. Whoever then leaves anything out says so by leaveOut().
    bool isOver() const { return m_timer.hasExpired(m_milliseconds); }
    void leaveOut() { m_isComplete = false; }
    bool isComplete() const { return m_isComplete; }

private:
    QElapsedTimer m_timer;
    int m_milliseconds;
    bool m_isComplete = true;
};

/// A search within lines. An expression can try for years: what would take long in a line is given up, and the line is
/// left out from there on.
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
    const sSearch_t& search() const { return m_search; }
    /// The expression for some lines at once, in a text of up to so many characters. It is given up early: then the
    /// lines have to be searched on their own.
    QRegularExpression forLines(int length) const;
    /// The hits of a line that are not empty.
    /// @param time that may be taken; null for as long as a single line may take
    QVector<sHit_t> hitsIn(const QString& line, SearchTime* time = nullptr) const { return hitsIn(line, {}, time); }
    /// @param replacement a text; of a regular expression with \0 to \9 for what its groups have found, \t for a tab
    /// and \\ for a backslash
    QVector<sHit_t> hitsIn(const QString& line, const QString& replacement, SearchTime* time = nullptr) const;
    /// The line after the replacement of the hits.
    static QString replaced(const QString& line, const QVector<sHit_t>& hits);

private:
    QString expanded(const QString& replacement, const QRegularExpressionMatch& match) const;
    QRegularExpressionMatch next(const QString& line, int from, const QRegularExpression& quick,
                                 SearchTime* time) const;
    QRegularExpression limited(int limit) const;

    sSearch_t m_search;
    QString m_pattern;
    QRegularExpression m_expression;     ///< for a place of a line on its own
    QVector<QRegularExpression> m_quick; ///< for a line of the lengths of a table each
};

} // namespace nsModEditor
