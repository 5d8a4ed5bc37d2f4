#include "HighlightMatcher.h"

#include "Colors.h"

#include <algorithm>

namespace nsModEditor {

namespace {

/// Size of a store of known lines, in characters.
const int knownLimit = 8 << 20;
/// Memory of a cached line in addition to its characters.
const int knownLineSize = 64;

} // namespace

HighlightMatcher::HighlightMatcher()
{
    clear();
}

void HighlightMatcher::clear()
{
    m_rules.clear();
    m_ruleFormats.clear();
    m_words.clear();
    m_otherRules.clear();
    m_foldingRules.clear();
    m_formats = {QTextCharFormat()};
    m_markedFormats = {-1};
    m_known.clear();
    m_knownBefore.clear();
    m_knownSize = 0;
}

void HighlightMatcher::addRule(const QRegExp& regExp, const QTextCharFormat& format)
{
    m_known.clear();
    m_knownBefore.clear();
    m_knownSize = 0;
    const int rule = m_rules.size();
    m_rules.append(HighlightPattern(regExp));
    m_ruleFormats.append(formatIndex(format));
    const QString text = m_rules.last().wholeWords();
    if (text.isEmpty()) {
        m_otherRules.append(rule);
        return;
    }
    const auto end = std::find_if_not(text.begin(), text.end(), isWordCharacter);
    const QString first = text.left(int(end - text.begin()));
    m_words[first.toLower()].append({text, rule, regExp.caseSensitivity(), end == text.end()});
    if (regExp.caseSensitivity() == Qt::CaseInsensitive)
        m_foldingRules.append(rule);
}

int HighlightMatcher::formatIndex(const QTextCharFormat& format)
{
    const int found = m_formats.indexOf(format);
    if (found >= 0)
        return found;
    m_formats.append(format);
    m_markedFormats.append(-1);
    return m_formats.size() - 1;
}

QTextCharFormat HighlightMatcher::marked(QTextCharFormat format)
{
    format.setBackground(Colors::of(Colors::eEditorFound));
    return format;
}

HighlightSpans HighlightMatcher::spans(const QString& text)
{
    const auto known = m_known.constFind(text);
    if (known != m_known.constEnd())
        return *known;
    const auto before = m_knownBefore.constFind(text);
    const HighlightSpans result = before != m_knownBefore.constEnd() ? *before : match(text);
    const int size = text.size() + knownLineSize;
    if (m_knownSize > knownLimit - size) {
        m_knownBefore.swap(m_known);
        m_known.clear();
        m_knownSize = 0;
    }
    if (size <= knownLimit) {
        m_known.insert(text, result);
        m_knownSize += size;
    }
    return result;
}

HighlightSpans HighlightMatcher::match(const QString& text)
{
    m_top.fill(-1, text.size());
    const LineFacts facts(text);
    if (!m_words.isEmpty())
        matchWords(text, facts.foldsToAscii);
    const auto run = [this, &text](int rule) {
        m_rules.at(rule).forEachMatch(text, [this, rule](int start, int length) { paint(rule, start, length); });
    };
    for (const int rule : qAsConst(m_otherRules)) {
        if (m_rules.at(rule).mayMatch(text, facts))
            run(rule);
    }
    // Letters beyond ASCII may match ASCII letters of a word if the case is ignored, which the look-up does not
    // support.
    if (facts.foldsToAscii) {
        for (const int rule : qAsConst(m_foldingRules))
            run(rule);
    }
    for (int& top : m_top)
        top = top < 0 ? 0 : m_ruleFormats.at(top);
    return spansOf(m_top);
}

void HighlightMatcher::matchWords(const QString& text, bool caseSensitiveOnly)
{
    WordSearch search{text, caseSensitiveOnly, {}};
    int pos = 0;
    while (pos < text.size()) {
        if (!isWordCharacter(text.at(pos))) {
            ++pos;
            continue;
        }
        const int start = pos;
        while (pos < text.size() && isWordCharacter(text.at(pos)))
            ++pos;
        matchWordsAt(start, pos, &search);
    }
}

void HighlightMatcher::matchWordsAt(int start, int end, WordSearch* search)
{
    const QString& text = search->text;
    const auto found = m_words.constFind(text.mid(start, end - start).toLower());
    if (found == m_words.constEnd())
        return;
    for (const Words& words : *found) {
        const int length = words.text.size();
        if ((search->caseSensitiveOnly && words.cs == Qt::CaseInsensitive) ||
            QStringView(text).mid(start, length).compare(words.text, words.cs) != 0)
            continue;
        if (!words.single) {
            const int after = start + length;
            if ((after < text.size() && isWordCharacter(text.at(after))) || search->ends.value(words.rule) > start)
                continue;
            search->ends.insert(words.rule, after);
        }
        paint(words.rule, start, length);
    }
}

void HighlightMatcher::paint(int rule, int start, int length)
{
    const int end = qMin(start + length, m_top.size());
    for (int pos = start; pos < end; ++pos)
        m_top[pos] = qMax(m_top.at(pos), rule);
}

HighlightSpans HighlightMatcher::spansOf(const QVector<int>& formats) const
{
    HighlightSpans result;
    int pos = 0;
    while (pos < formats.size()) {
        const int start = pos;
        const int index = formats.at(start);
        while (pos < formats.size() && formats.at(pos) == index)
            ++pos;
        if (index != 0)
            result.append({start, pos - start, index});
    }
    return result;
}

HighlightSpans HighlightMatcher::withMarks(const QString& text, const HighlightSpans& spans,
                                           const HighlightSpans& marks)
{
    if (marks.isEmpty())
        return spans;
    QVector<int> formats(text.size(), 0);
    for (const HighlightSpan& span : spans)
        std::fill_n(formats.begin() + span.start, span.length, span.format);
    for (const HighlightSpan& mark : marks) {
        const int base = formats.at(mark.start);
        if (m_markedFormats.at(base) < 0) {
            const int made = formatIndex(marked(format(base)));
            m_markedFormats[base] = made;
        }
        std::fill_n(formats.begin() + mark.start, mark.length, m_markedFormats.at(base));
    }
    return spansOf(formats);
}

} // namespace nsModEditor
