#include "TextSearch.h"

namespace nsModEditor {

namespace {

/// How much one match may try, about some milliseconds.
const char* const limit = "(*LIMIT_MATCH=200000)";

QString patternOf(const sSearch_t& search)
{
    QString pattern = search.regExp ? search.text : QRegularExpression::escape(search.text);
    // As the text edit tells words.
    if (search.wholeWords)
        pattern = QStringLiteral("(?<![\\p{L}\\p{N}])(?:%1)(?![\\p{L}\\p{N}])").arg(pattern);
    return search.text.isEmpty() ? QString() : QLatin1String(limit) + pattern;
}

} // namespace

TextSearch::TextSearch(const sSearch_t& search)
    : m_search(search)
    , m_expression(patternOf(search), QRegularExpression::UseUnicodePropertiesOption |
                                          (search.caseSensitive ? QRegularExpression::NoPatternOption
                                                                : QRegularExpression::CaseInsensitiveOption))
{
    // What ends a group within the expression must not end ours.
    if (search.regExp && search.wholeWords && !QRegularExpression(search.text).isValid())
        m_expression.setPattern(search.text);
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

QVector<sHit_t> TextSearch::hitsIn(const QString& line, const QString& replacement) const
{
    QVector<sHit_t> hits;
    if (!isValid())
        return hits;
    for (QRegularExpressionMatchIterator it = m_expression.globalMatch(line); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        if (match.capturedLength() > 0)
            hits.append({match.capturedStart(), match.capturedLength(), expanded(replacement, match)});
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
