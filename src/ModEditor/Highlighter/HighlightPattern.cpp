#include "HighlightPattern.h"

namespace nsModEditor {

namespace {

const QString metaCharacters = QStringLiteral("\\^$.*+?()[]{}|");

bool isAscii(ushort character)
{
    return character < 128;
}

bool isAsciiWord(QChar character)
{
    return isAscii(character.unicode()) && isWordCharacter(character);
}

/// The text between `\b` and `\b` if it has no special characters.
QString wholeWordsOf(const QString& pattern)
{
    const QString boundary = QStringLiteral("\\b");
    if (pattern.size() < 5 || !pattern.startsWith(boundary) || !pattern.endsWith(boundary))
        return QString();
    const QString text = pattern.mid(2, pattern.size() - 4);
    for (const QChar character : text) {
        if (!isAscii(character.unicode()) || metaCharacters.contains(character))
            return QString();
    }
    return isAsciiWord(text.at(0)) && isAsciiWord(text.at(text.size() - 1)) ? text : QString();
}

/// Parses an expression and collects what a text must contain to match each branch.
class Analysis
{
public:
    Analysis(const QString& pattern, Qt::CaseSensitivity cs)
        : m_pattern(pattern)
        , m_cs(cs)
    {
    }

    /// @return the walk came to the end of the expression
    bool run(QVector<HighlightPattern::Demand>* branches)
    {
        m_branches = branches;
        while (m_pos < m_pattern.size()) {
            if (!element())
                return false;
        }
        endBranch();
        return true;
    }

private:
    bool at(char character) const { return m_pos < m_pattern.size() && m_pattern.at(m_pos) == QLatin1Char(character); }

    bool element()
    {
        const QChar character = m_pattern.at(m_pos++);
        switch (character.unicode()) {
        case '|':
            endBranch();
            return true;
        case '^':
        case '$':
        case '.':
            return something();
        case '\\':
            return escape();
        case '[':
            return set();
        case '(':
            return skipGroup() && something();
        case ')':
        case ']':
        case '{':
        case '}':
        case '*':
        case '+':
        case '?':
            return false;
        default:
            return literal(character);
        }
    }

    /// An element that the analysis does not understand.
    bool something()
    {
        bool needed = true;
        endRun();
        return quantifiers(&needed);
    }

    bool escape()
    {
        if (m_pos == m_pattern.size())
            return false;
        const QChar character = m_pattern.at(m_pos++);
        // Numbers of characters and references to what has matched have a length of their own.
        if (character == QLatin1Char('x') || character.isDigit())
            return false;
        // A word boundary does not end a run of literal characters.
        if (character == QLatin1Char('b') && !at('*') && !at('+') && !at('?') && !at('{'))
            return true;
        return character.isLetter() ? something() : literal(character);
    }

    bool literal(QChar character)
    {
        const int mark = m_pos;
        bool needed = true;
        if (!quantifiers(&needed))
            return false;
        const bool known = m_cs == Qt::CaseSensitive || isAscii(character.unicode());
        if (!needed || !known) {
            endRun();
            return true;
        }
        m_run += character;
        if (isAscii(character.unicode()))
            m_demand.all.add(character.unicode());
        if (character == QChar::ParagraphSeparator)
            m_demand.lineBreak = true;
        // With a quantifier the character may come more than once.
        if (m_pos != mark)
            endRun();
        return true;
    }

    bool set()
    {
        AsciiSet characters;
        bool known = m_cs == Qt::CaseSensitive;
        bool first = true;
        if (at('^')) {
            known = false;
            ++m_pos;
        }
        while (first || !at(']')) {
            if (m_pos >= m_pattern.size())
                return false;
            known = setMember(&characters) && known;
            first = false;
        }
        ++m_pos;
        bool needed = true;
        endRun();
        if (!quantifiers(&needed))
            return false;
        if (needed && known)
            m_demand.anyOf.append(characters);
        return true;
    }

    /// @return the member is a plain ASCII character or a range of such
    bool setMember(AsciiSet* characters)
    {
        const QChar from = m_pattern.at(m_pos++);
        if (from == QLatin1Char('\\')) {
            ++m_pos;
            return false;
        }
        if (!isAsciiWord(from))
            return false;
        QChar to = from;
        if (at('-') && m_pos + 1 < m_pattern.size()) {
            to = m_pattern.at(m_pos + 1);
            if (!isAsciiWord(to))
                return false;
            m_pos += 2;
        }
        for (ushort character = from.unicode(); character <= to.unicode(); ++character)
            characters->add(character);
        return true;
    }

    bool skipGroup()
    {
        int depth = 1;
        while (m_pos < m_pattern.size()) {
            const QChar character = m_pattern.at(m_pos++);
            if (character == QLatin1Char('[') || character == QLatin1Char('\\')) {
                // Parentheses inside a set are no groups; such an expression is not analysed.
                if (character == QLatin1Char('['))
                    return false;
                ++m_pos;
            } else if (character == QLatin1Char('(')) {
                ++depth;
            } else if (character == QLatin1Char(')') && --depth == 0) {
                return true;
            }
        }
        return false;
    }

    /// @param needed cleared if the element before may be absent
    bool quantifiers(bool* needed)
    {
        while (at('*') || at('+') || at('?') || at('{')) {
            *needed = *needed && at('+');
            if (at('{')) {
                m_pos = m_pattern.indexOf(QLatin1Char('}'), m_pos);
                if (m_pos < 0)
                    return false;
            }
            ++m_pos;
        }
        return true;
    }

    void endRun()
    {
        if (m_run.size() > m_demand.text.size())
            m_demand.text = m_run;
        m_run.clear();
    }

    void endBranch()
    {
        endRun();
        m_branches->append(m_demand);
        m_demand = HighlightPattern::Demand();
    }

    const QString m_pattern;
    const Qt::CaseSensitivity m_cs;
    int m_pos = 0;
    QString m_run; ///< literal characters that follow each other
    HighlightPattern::Demand m_demand;
    QVector<HighlightPattern::Demand>* m_branches = nullptr;
};

} // namespace

void AsciiSet::add(ushort character)
{
    if (character >= 'A' && character <= 'Z')
        character += 'a' - 'A';
    if (character < 64)
        m_low |= quint64(1) << character;
    else if (character < 128)
        m_high |= quint64(1) << (character - 64);
}

LineFacts::LineFacts(const QString& text)
{
    for (const QChar character : text) {
        const ushort code = character.unicode();
        if (isAscii(code))
            characters.add(code);
        else if (code == 0x130 || code == 0x131 || code == 0x17f || code == 0x212a)
            foldsToAscii = true;
    }
}

HighlightPattern::HighlightPattern(const QRegExp& regExp)
    : m_regExp(regExp)
{
    const QRegExp::PatternSyntax syntax = regExp.patternSyntax();
    if (syntax == QRegExp::RegExp || syntax == QRegExp::RegExp2)
        analyse(regExp.pattern(), regExp.caseSensitivity());
}

HighlightPattern::HighlightPattern(const QString& pattern, Qt::CaseSensitivity cs)
{
    analyse(pattern, cs);
}

void HighlightPattern::analyse(const QString& pattern, Qt::CaseSensitivity cs)
{
    m_cs = cs;
    m_wholeWords = wholeWordsOf(pattern);
    if (!Analysis(pattern, cs).run(&m_branches))
        m_branches.clear();
}

bool HighlightPattern::neverMatches() const
{
    bool never = !m_branches.isEmpty();
    for (const Demand& branch : m_branches)
        never = never && branch.lineBreak;
    return never;
}

bool HighlightPattern::mayMatch(const QString& text, const LineFacts& facts) const
{
    if (m_branches.isEmpty() || (facts.foldsToAscii && m_cs == Qt::CaseInsensitive))
        return true;
    for (const Demand& branch : m_branches) {
        bool may = facts.characters.contains(branch.all);
        for (const AsciiSet& anyOf : branch.anyOf)
            may = may && facts.characters.intersects(anyOf);
        if (may && (branch.text.isEmpty() || text.contains(branch.text, m_cs)))
            return true;
    }
    return false;
}

} // namespace nsModEditor
