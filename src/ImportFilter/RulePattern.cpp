#include "RulePattern.h"

#include <QVector>

#include <algorithm>
#include <cmath>

namespace nsModImport {

namespace {

const double maxPatternSize = 1000; ///< the expression's automaton grows with the square of it
const double maxReplaced = 1e7;     ///< characters

/// What stands between two brackets of an expression.
struct sGroup_t
{
    double size = 1;
    double last = 0; ///< size of the last part, which a repetition repeats
    bool isLookahead = false;
};

/// The largest number of a repetition such as "{2,5}".
double repetitions(const QString& text)
{
    double most = 1;
    for (const QString& number : text.split(','))
        most = std::max(most, number.toDouble() + 1);
    return most;
}

} // namespace

RulePattern::RulePattern(const QString& pattern)
{
    measure(pattern);
    // Making the automaton of a huge expression would take the memory of the machine.
    if (m_size > maxPatternSize)
        return;
    m_expression = QRegExp(pattern, Qt::CaseInsensitive);
    m_isValid = m_expression.isValid();
}

void RulePattern::measure(const QString& pattern)
{
    QVector<sGroup_t> groups(1);
    int lookaheads = 0;
    m_anchored = pattern.startsWith('^');
    const auto add = [&groups](double size) {
        groups.last().size += size;
        groups.last().last = size;
    };
    const auto closeGroup = [&] {
        const sGroup_t closed = groups.takeLast();
        if (closed.isLookahead)
            --lookaheads;
        add(closed.size);
    };
    for (int i = 0; i < pattern.size(); ++i) {
        const QChar c = pattern.at(i);
        if (c == '\\') {
            ++i;
            add(1);
        } else if (c == '[') {
            // A bracket that comes first is a character of the set.
            const int from = i + (pattern.mid(i + 1, 1) == QLatin1String("^") ? 3 : 2);
            const int end = pattern.indexOf(']', from);
            i = end < 0 ? pattern.size() : end;
            add(1);
        } else if (c == '(') {
            sGroup_t group;
            const QString kind = pattern.mid(i + 1, 2);
            group.isLookahead = kind == QLatin1String("?=") || kind == QLatin1String("?!");
            if (group.isLookahead)
                m_lookaheads = std::max(m_lookaheads, ++lookaheads);
            // Else the question mark would count as a repetition.
            if (kind.startsWith('?'))
                i += 2;
            groups.append(group);
        } else if (c == ')' && groups.size() > 1) {
            closeGroup();
        } else if (c == '*' || c == '+' || c == '?') {
            m_loops = true;
        } else if (c == '|') {
            // The other alternatives of the whole expression begin anywhere.
            m_anchored = m_anchored && groups.size() > 1;
        } else if (c == '{') {
            const int end = pattern.indexOf('}', i);
            const double extra = groups.last().last * repetitions(pattern.mid(i + 1, end - i - 1));
            m_loops = true;
            groups.last().size += extra;
            groups.last().last += extra;
            i = end < 0 ? pattern.size() : end;
        } else {
            add(1);
        }
    }
    while (groups.size() > 1)
        closeGroup();
    m_size = groups.first().size;
}

double RulePattern::stepsOfMatch(int length) const
{
    const double weight = m_loops ? m_size * m_size : m_size;
    return weight * std::pow(double(length) + 1, 1 + m_lookaheads);
}

double RulePattern::stepsOfSearch(int length) const
{
    return stepsOfMatch(length) * (m_anchored ? 1 : double(length) + 1);
}

bool RulePattern::matches(const QString& text, bool* tooLong)
{
    if (!m_isValid)
        return false;
    if (stepsOfMatch(text.size()) > maxSteps) {
        *tooLong = true;
        return false;
    }
    return m_expression.exactMatch(text);
}

bool RulePattern::replaceAll(QString* text, const QString& replacement)
{
    if (!m_isValid)
        return true;
    if (stepsOfSearch(text->size()) > maxSteps || (text->size() + 1.0) * (replacement.size() + 1.0) > maxReplaced)
        return false;
    text->replace(m_expression, replacement);
    return true;
}

} // namespace nsModImport
