#pragma once

#include <QRegExp>
#include <QString>

namespace nsModImport {

/// A regular expression of a rule, together with an estimate of the work that a match takes.
///
/// A match can not be interrupted, and a few characters suffice for one that takes hours. So the work is estimated
/// before it begins: an expression that is too large never matches, and a match that might take too long is not begun.
class RulePattern
{
public:
    /// Steps that a match may take: less than a second on a slow machine.
    static constexpr double maxSteps = 3e8;

    RulePattern() = default;
    /// A bad expression never matches.
    explicit RulePattern(const QString& pattern);

    /// The expression matches the whole text. @param tooLong set where the match was not begun
    bool matches(const QString& text, bool* tooLong);
    /// Capture of the last match.
    QString cap(int number) const { return m_expression.cap(number); }
    /// Replaces all matches, with the captures where the replacement names them as \1 to \9. @return false: not begun
    bool replaceAll(QString* text, const QString& replacement);

    bool isValid() const { return m_isValid; }
    /// Upper estimate of the steps for a match of a whole text of this length.
    double stepsOfMatch(int length) const;
    /// The same for all places of a text.
    double stepsOfSearch(int length) const;

private:
    void measure(const QString& pattern);

    QRegExp m_expression;
    bool m_isValid = false;
    double m_size = 0;      ///< characters, with repetitions written out
    bool m_loops = false;   ///< has optional or repeated parts
    int m_lookaheads = 0;   ///< deepest nesting
    bool m_anchored = true; ///< can match at the start of the text only
};

} // namespace nsModImport
