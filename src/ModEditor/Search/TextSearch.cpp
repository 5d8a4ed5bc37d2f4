#include "TextSearch.h"

namespace nsModEditor {

namespace {

/// How much the library may try at one place of a text: about some milliseconds.
const int limitOfPlace = 200000;
const int timeOfLine = 1000;     ///< milliseconds
const int hitsBetweenLooks = 64; ///< at the clock

/// How much it may try at each place of a text of some length, so that all places together take some ten milliseconds
/// at the most.
struct sQuickLimit_t
{
    int length; ///< characters of the text, at the most
    int limit;
};
const sQuickLimit_t quickLimits[] = {{500, 24000}, {5000, 2400}, {50000, 240}, {500000, 24}};

QString patternOf(const sSearch_t& search)
{
    QString pattern = search.regExp ? search.text : QRegularExpression::escape(search.text);
    // As the text edit tells words.
    if (search.wholeWords)
        pattern = QStringLiteral("(?<![\\p{L}\\p{N}])(?:%1)(?![\\p{L}\\p{N}])").arg(pattern);
    return search.text.isEmpty() ? QString() : pattern;
}

} // namespace

TextSearch::TextSearch(const sSearch_t& search)
    : m_search(search)
    , m_pattern(patternOf(search))
{
    // What ends a group within the expression must not end ours.
    if (search.regExp && search.wholeWords && !QRegularExpression(search.text).isValid())
        m_pattern = search.text;
    m_expression = limited(limitOfPlace);
    for (const sQuickLimit_t& quick : quickLimits)
        m_quick.append(limited(quick.limit));
}

QRegularExpression TextSearch::limited(int limit) const
{
    if (m_pattern.isEmpty())
        return {};
    return QRegularExpression(
        QStringLiteral("(*LIMIT_MATCH=%1)(*NOTEMPTY)").arg(limit) + m_pattern,
        QRegularExpression::UseUnicodePropertiesOption |
            (m_search.caseSensitive ? QRegularExpression::NoPatternOption : QRegularExpression::CaseInsensitiveOption));
}

QRegularExpression TextSearch::forLines(int length) const
{
    QRegularExpression lines = m_quick.last();
    for (int i = m_quick.size() - 1; i >= 0; --i) {
        if (length <= quickLimits[i].length)
            lines = m_quick.at(i);
    }
    lines.setPatternOptions(lines.patternOptions() | QRegularExpression::MultilineOption);
    return lines;
}

/// The next match from a place on; none if it would take long.
/// @param quick tried first
QRegularExpressionMatch TextSearch::next(const QString& line, int from, const QRegularExpression& quick,
                                         SearchTime* time) const
{
    // The library looks at the whole text whether it is one, which takes its time in a line with thousands of hits.
    QRegularExpression::MatchOptions options = QRegularExpression::NoMatchOption;
    if (from > 0)
        options |= QRegularExpression::DontCheckSubjectStringMatchOption;
    const QRegularExpressionMatch first = quick.match(line, from, QRegularExpression::NormalMatch, options);
    if (first.isValid())
        return first;
    options |= QRegularExpression::AnchoredMatchOption;
    // Place by place, with a look at the clock.
    for (int at = from; at <= line.size() && !time->isOver(); ++at) {
        if (at > 0 && at < line.size() && line.at(at).isLowSurrogate() && line.at(at - 1).isHighSurrogate())
            continue;
        const QRegularExpressionMatch match = m_expression.match(line, at, QRegularExpression::NormalMatch, options);
        options |= QRegularExpression::DontCheckSubjectStringMatchOption;
        if (match.hasMatch())
            return match;
        if (!match.isValid())
            break;
        if (at == line.size())
            return match;
    }
    time->leaveOut();
    return {};
}

QString TextSearch::errorText() const
{
    return m_search.text.isEmpty() || m_expression.isValid() ? QString() : m_expression.errorString();
}

QString TextSearch::expanded(const QString& replacement, const QRegularExpressionMatch& match) const
{
    if (!m_search.regExp)
        return replacement;
    QString text;
    for (int i = 0; i < replacement.size(); ++i) {
        const QChar c = replacement.at(i);
        if (c != '\\' || i + 1 == replacement.size()) {
            text += c;
            continue;
        }
        const QChar next = replacement.at(++i);
        if (next >= '0' && next <= '9')
            text += match.captured(next.unicode() - '0');
        else if (next == 't')
            text += '\t';
        else if (next == '\\')
            text += '\\';
        else
            text += QString(c) + next;
    }
    return text;
}

QVector<sHit_t> TextSearch::hitsIn(const QString& line, const QString& replacement, SearchTime* time) const
{
    QVector<sHit_t> hits;
    if (!isValid())
        return hits;
    SearchTime own(timeOfLine);
    if (time == nullptr)
        time = &own;
    int kind = 0;
    while (kind + 1 < m_quick.size() && line.size() > quickLimits[kind].length)
        ++kind;
    for (int from = 0; from <= line.size();) {
        if (hits.size() % hitsBetweenLooks == hitsBetweenLooks - 1 && time->isOver()) {
            time->leaveOut();
            break;
        }
        const QRegularExpressionMatch match = next(line, from, m_quick.at(kind), time);
        if (!match.hasMatch())
            break;
        if (match.capturedLength() > 0)
            hits.append({match.capturedStart(), match.capturedLength(), expanded(replacement, match)});
        // An expression can put the start of what it has found behind its end.
        from = qMax(from + 1, match.capturedEnd());
    }
    return hits;
}

QString TextSearch::replaced(const QString& line, const QVector<sHit_t>& hits)
{
    QString text = line;
    for (int i = hits.size() - 1; i >= 0; --i)
        text.replace(hits.at(i).start, hits.at(i).length, hits.at(i).replacement);
    return text;
}

} // namespace nsModEditor
