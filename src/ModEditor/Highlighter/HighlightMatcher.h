#pragma once

#include "HighlightPattern.h"
#include "HighlightSpan.h"

#include <QHash>
#include <QTextCharFormat>
#include <QVector>

namespace nsModEditor {

/// Computes how the rules format a line. The result is the same as if every rule were applied to the line in the order
/// of the list.
///
/// Rules for whole words, most of the list, are found by one look-up a word of the line. Other rules are applied only
/// to lines that contain what the expression needs. The result is cached by the text of the line.
class HighlightMatcher
{
public:
    HighlightMatcher();

    void clear();
    void addRule(const QRegExp& regExp, const QTextCharFormat& format);

    /// The formatted parts of a line, ascending; neighbours differ in their formats. Parts with the default format are
    /// left out.
    HighlightSpans spans(const QString& text);
    /// Combines spans with marked ranges: each range gets the format at its start with the background of the selection.
    /// @param marks ascending, without overlap; their formats do not count
    HighlightSpans withMarks(const QString& text, const HighlightSpans& spans, const HighlightSpans& marks);

    /// @param index from a span
    const QTextCharFormat& format(int index) const { return m_formats.at(index); }
    /// The format with the background of the selection.
    static QTextCharFormat marked(QTextCharFormat format);

private:
    /// A rule for whole words, by the first of them.
    struct Words
    {
        QString text;
        int rule;
        Qt::CaseSensitivity cs;
        bool single; ///< no more than one word
    };

    /// The search for words in one line.
    struct WordSearch
    {
        const QString& text;
        const bool caseSensitiveOnly;
        QHash<int, int> ends; ///< end of the last match of rules of several words, whose matches could overlap
    };

    int formatIndex(const QTextCharFormat& format);
    HighlightSpans match(const QString& text);
    void matchWords(const QString& text, bool caseSensitiveOnly);
    void matchWordsAt(int start, int end, WordSearch* search);
    void paint(int rule, int start, int length);
    HighlightSpans spansOf(const QVector<int>& formats) const;

    QVector<HighlightPattern> m_rules;
    QVector<int> m_ruleFormats;             ///< by rule
    QHash<QString, QVector<Words>> m_words; ///< by the first word in small letters
    QVector<int> m_otherRules;
    QVector<int> m_foldingRules; ///< rules among m_words whose case does not matter

    QVector<QTextCharFormat> m_formats; ///< all different; the first is the default
    QVector<int> m_markedFormats;       ///< by format, -1 if not yet made

    QVector<int> m_top; ///< scratch: last rule of each character, -1 for none

    /// Cached lines; a full cache becomes the old one, from which lines that are still used are taken over.
    QHash<QString, HighlightSpans> m_known;
    QHash<QString, HighlightSpans> m_knownBefore;
    int m_knownSize = 0;
};

} // namespace nsModEditor
