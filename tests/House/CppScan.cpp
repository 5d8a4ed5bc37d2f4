#include "CppScan.h"

#include <QRegularExpression>

namespace nsHouse {

namespace {

/// Reads a source once and blanks what is no code.
class Blanker
{
public:
    enum eBlank_t { eBlankComments, eBlankAll };

    Blanker(const QString& text, eBlank_t what)
        : m_text(text)
        , m_what(what)
    {
    }

    QString run()
    {
        static const QRegularExpression rawText("\\GR\"([^(]*)\\(");
        while (m_at < m_text.length()) {
            const QChar c = m_text.at(m_at);
            const auto raw = c == 'R' ? rawText.match(m_text, m_at) : QRegularExpressionMatch();
            if (starts("//"))
                blankTo(endOfLine());
            else if (starts("/*"))
                blankTo(after("*/", m_at + 2));
            else if (raw.hasMatch())
                blankTo(after(")" + raw.captured(1) + "\"", raw.capturedEnd()));
            else if (c == '"' || (c == '\'' && !isSeparator()))
                blankTo(endOfText(c));
            else if (c == '#' && m_lineIsEmpty)
                blankTo(endOfLine());
            else
                take(c);
        }
        return m_text;
    }

private:
    bool starts(const char* word) const { return m_text.midRef(m_at).startsWith(QLatin1String(word)); }

    /// An apostrophe between the digits of a number.
    bool isSeparator() const { return m_at > 0 && m_text.at(m_at - 1).isLetterOrNumber(); }

    /// The end of the line, which a backslash continues.
    int endOfLine() const
    {
        int end = m_at;
        while (end < m_text.length() && (m_text.at(end) != '\n' || m_text.at(end - 1) == '\\'))
            ++end;
        return end;
    }

    int after(const QString& word, int from) const
    {
        const int at = m_text.indexOf(word, from);
        return at < 0 ? m_text.length() : at + word.length();
    }

    int endOfText(QChar quote) const
    {
        int end = m_at + 1;
        while (end < m_text.length() && m_text.at(end) != quote)
            end += m_text.at(end) == '\\' ? 2 : 1;
        return qMin(end + 1, m_text.length());
    }

    void blankTo(int end)
    {
        const bool isComment = m_text.at(m_at) == '/';
        for (; m_at < end; ++m_at) {
            if (m_text.at(m_at) != '\n' && (isComment || m_what == eBlankAll))
                m_text[m_at] = ' ';
        }
        m_lineIsEmpty = m_lineIsEmpty && isComment;
    }

    void take(QChar c)
    {
        if (c == '\n')
            m_lineIsEmpty = true;
        else if (!c.isSpace())
            m_lineIsEmpty = false;
        ++m_at;
    }

    QString m_text;
    eBlank_t m_what;
    int m_at = 0;
    bool m_lineIsEmpty = true;
};

/// The words in front of a declaration that are no part of it: macros of Qt, templates, sections of a class.
QString withoutPrefix(QString head)
{
    static const QRegularExpression prefix(
        "^\\s*(Q_[A-Z_]+\\s*(\\([^()]*(\\([^()]*\\)[^()]*)*\\))?|(public|protected|private|signals|Q_SIGNALS)"
        "(\\s+(slots|Q_SLOTS))?\\s*:|inline|virtual|explicit|static|mutable)(?!\\w)");
    static const QRegularExpression templateHead("^\\s*template\\s*<(?:[^<>]|<[^<>]*>)*>");
    const QString before = head;
    head.remove(templateHead);
    head.remove(prefix);
    head = head.trimmed();
    return head == before ? head : withoutPrefix(head);
}

/// Without the arguments of templates, which may hold parentheses and commas of their own.
QString withoutTemplates(QString head)
{
    static const QRegularExpression arguments("(?<=\\w)<[^<>;]*>");
    static const QRegularExpression arrow("->");
    head.replace(arrow, "  ");
    QString before;
    do {
        before = head;
        head.remove(arguments);
    } while (head != before);
    return head;
}

bool startsWithWord(const QString& head, const char* words)
{
    return QRegularExpression(QString("^(%1)\\b").arg(QLatin1String(words))).match(head).hasMatch();
}

/// The first of two positions; -1 is none.
bool isBefore(int a, int b)
{
    return a >= 0 && (b < 0 || a < b);
}

} // namespace

QString withoutTexts(const QString& text)
{
    return Blanker(text, Blanker::eBlankAll).run();
}

QString withoutComments(const QString& text)
{
    return Blanker(text, Blanker::eBlankComments).run();
}

CppScan::CppScan(const QString& text)
{
    for (const QChar c : withoutTexts(text))
        takeChar(c);
}

void CppScan::takeChar(QChar c)
{
    readChar(c);
    if (!c.isSpace())
        m_last = c;
}

void CppScan::readChar(QChar c)
{
    static const QRegularExpression section("^\\s*(public|protected|private|signals|Q_SIGNALS)(\\s+(slots|Q_SLOTS))?$");
    const bool inBody = isIn(eScopeFunction) || isIn(eScopeOther);
    if (c == '\n')
        ++m_line;
    if (c == '(')
        ++m_parentheses;
    else if (c == ')')
        --m_parentheses;
    if (c == '{' && (inBody || m_parentheses > 0))
        m_scopes.append({eScopeOther, -1, m_line, 0, m_last != ')', false});
    else if (c == '{')
        openBrace();
    else if (c == '}')
        closeBrace();
    else if (inBody && c == ';')
        markStatement();
    else if (inBody)
        return;
    else if (c == ';' && m_parentheses == 0)
        endStatement();
    else if (c == ':' && isIn(eScopeClass) && section.match(m_head).hasMatch()) {
        m_scopes.last().isSignals = m_head.contains("ignal", Qt::CaseInsensitive);
        clearHead();
    } else {
        if (m_head.isEmpty() && c.isSpace())
            return;
        if (m_head.isEmpty())
            m_headLine = m_line;
        m_head.append(c);
    }
}

CppScan::eScope_t CppScan::kindOfHead(const QString& wholeHead) const
{
    static const QRegularExpression function(
        "\\)\\s*(const|noexcept|override|final|mutable|&|->[\\w\\s:<>*&,]+|\\s)*$");
    const QString head = withoutPrefix(wholeHead);
    if (startsWithWord(head, "namespace|extern"))
        return eScopeNamespace;
    const QString plain = withoutTemplates(head);
    if (startsWithWord(head, "class|struct|union") && !plain.contains('('))
        return eScopeClass;
    const bool isOperator = plain.contains(QRegularExpression("\\boperator\\b"));
    if (!isOperator && isBefore(plain.indexOf('='), plain.indexOf('(')))
        return eScopeOther;
    // In a list of initializers, braces that follow a name are those of a member.
    return function.match(head).hasMatch() ? eScopeFunction : eScopeOther;
}

void CppScan::openBrace()
{
    static const QRegularExpression className("\\b(?:class|struct|union)\\s+(?:\\w+_EXPORT\\s+)?([\\w:]+)");
    static const QRegularExpression functionName(
        "([~\\w:]*(?:operator\\s*[^\\s\\w(]+|operator\\s*\\(\\)|[~\\w]+))\\s*\\(");
    const eScope_t kind = kindOfHead(m_head);
    int index = -1;
    if (kind == eScopeClass) {
        index = m_classes.size();
        m_classes.append({className.match(m_head).captured(1), m_headLine, 0, 0});
    } else if (kind == eScopeFunction) {
        addOperation(withoutPrefix(m_head));
        index = m_functions.size();
        m_functions.append({functionName.match(withoutTemplates(withoutPrefix(m_head))).captured(1), m_headLine, 0});
    }
    // What follows braces in a list of initializers, or is initialized by them, is still the same declaration.
    if (kind == eScopeOther)
        m_head.append(' ');
    else
        clearHead();
    m_scopes.append({kind, index, m_line, 0, kind == eScopeOther, false});
}

/// Braces around a statement are no table.
void CppScan::markStatement()
{
    for (int i = m_scopes.size() - 1; i >= 0 && m_scopes.at(i).kind == eScopeOther; --i)
        m_scopes[i].isTable = false;
}

void CppScan::closeBrace()
{
    if (m_scopes.isEmpty())
        return;
    const sScope_t scope = m_scopes.takeLast();
    if (scope.kind == eScopeFunction) {
        sFunction_t& function = m_functions[scope.index];
        function.lines = m_line - function.line + 1 - scope.tableLines;
        return;
    }
    if (scope.kind == eScopeOther && !m_scopes.isEmpty())
        m_scopes.last().tableLines += scope.isTable ? m_line - scope.line : scope.tableLines;
    if (scope.kind == eScopeOther && !isIn(eScopeFunction) && !isIn(eScopeOther) && m_parentheses == 0) {
        // "m_a{1}" in a list of initializers stands for "m_a()".
        m_head.append("()");
    }
}

/// Counts a function of a class that stands for itself: what makes and deletes objects, and what they announce, does
/// not.
void CppScan::addOperation(const QString& declaration)
{
    if (!isIn(eScopeClass) || m_scopes.last().isSignals)
        return;
    sClass_t& owner = m_classes[m_scopes.last().index];
    const QString self = "~?" + QRegularExpression::escape(owner.name.section("::", -1)) + "\\s*\\(";
    if (!QRegularExpression("^" + self).match(declaration).hasMatch())
        ++owner.operations;
}

void CppScan::endStatement()
{
    const QString head = withoutPrefix(m_head);
    const bool isConstant = m_head.contains(QRegularExpression("\\bstatic\\b"));
    clearHead();
    if (!isIn(eScopeClass) || head.isEmpty() || startsWithWord(head, "using|typedef|friend|static_assert|enum"))
        return;
    sClass_t& owner = m_classes[m_scopes.last().index];
    QString plain = withoutTemplates(head);
    const bool isOperator = plain.contains(QRegularExpression("\\boperator\\b"));
    const int brace = plain.indexOf(" ()");
    const int open = plain.indexOf('(');
    const bool isFunction = isOperator || (open >= 0 && open != brace + 1 && !isBefore(plain.indexOf('='), open));
    if (isFunction) {
        static const QRegularExpression deleted("=\\s*delete\\s*$");
        if (!plain.contains(deleted))
            addOperation(plain);
        return;
    }
    static const QRegularExpression forward("^(class|struct|union)\\s+\\w+$");
    if (!isConstant && !plain.contains(forward))
        owner.members += 1 + plain.remove(QRegularExpression("\\([^()]*\\)")).count(',');
}

void CppScan::clearHead()
{
    m_head.clear();
}

} // namespace nsHouse
