#pragma once

#include <QRegExp>
#include <QString>
#include <QVector>

namespace nsModEditor {

/// A set of ASCII characters in which a capital letter and its small letter are the same.
class AsciiSet
{
public:
    void add(ushort character);
    bool intersects(const AsciiSet& other) const { return ((m_low & other.m_low) | (m_high & other.m_high)) != 0; }
    bool contains(const AsciiSet& other) const { return ((other.m_low & ~m_low) | (other.m_high & ~m_high)) == 0; }

private:
    quint64 m_low = 0;
    quint64 m_high = 0;
};

/// What is known of a line before any expression runs.
struct LineFacts
{
    explicit LineFacts(const QString& text);

    AsciiSet characters;
    /// Some character beyond ASCII is the same as an ASCII letter when the case is ignored, such as the sign of kelvin.
    bool foldsToAscii = false;
};

/// An expression, with the conditions that a line must meet so that it can match.
///
/// The conditions hold for every match; an expression that the analysis does not support has no conditions.
class HighlightPattern
{
public:
    explicit HighlightPattern(const QRegExp& regExp);
    /// Without an expression to run: to look at a pattern before it is compiled.
    HighlightPattern(const QString& pattern, Qt::CaseSensitivity cs);

    /// The expression is `\b` + text + `\b` where the text has no special characters and begins and ends with an ASCII
    /// letter, digit or underscore; else an empty text.
    const QString& wholeWords() const { return m_wholeWords; }
    /// @return no line of a document can match
    bool neverMatches() const;
    /// @param facts of the text
    bool mayMatch(const QString& text, const LineFacts& facts) const;

    /// Calls visit(start, length) for every match that is not empty, from left to right.
    template <class Visit>
    void forEachMatch(const QString& text, Visit visit) const
    {
        int pos = 0;
        while ((pos = m_regExp.indexIn(text, pos)) >= 0) {
            const int length = m_regExp.matchedLength();
            if (length > 0)
                visit(pos, length);
            // An empty match must not stop the search.
            pos += qMax(length, 1);
        }
    }

    /// What a text must contain to match one branch of the expression.
    struct Demand
    {
        AsciiSet all;            ///< each of these characters
        QVector<AsciiSet> anyOf; ///< one character of each set
        QString text;            ///< this text
        bool lineBreak = false;  ///< the end of a line in the middle
    };

private:
    void analyse(const QString& pattern, Qt::CaseSensitivity cs);

    QRegExp m_regExp;
    Qt::CaseSensitivity m_cs = Qt::CaseSensitive;
    QString m_wholeWords;
    QVector<Demand> m_branches; ///< one of them must be met; empty if nothing is known
};

/// A character as the expressions see it at a word boundary.
inline bool isWordCharacter(QChar character)
{
    return character.isLetterOrNumber() || character.isMark() || character == QLatin1Char('_');
}

} // namespace nsModEditor
