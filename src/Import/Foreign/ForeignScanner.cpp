#include "ForeignScanner.h"

namespace nsImport {

namespace {

int afterBlanks(const QString& text, int pos)
{
    while (pos < text.size() && text.at(pos).isSpace())
        ++pos;
    return pos;
}

void dropBlanksAtEnd(QString* text)
{
    int size = text->size();
    while (size > 0 && text->at(size - 1).isSpace())
        --size;
    text->truncate(size);
}

} // namespace

int ForeignScanner::afterQuoted(const QString& text, int pos, bool apostrophes)
{
    const QChar quote = text.at(pos);
    if (quote != '"' && !(apostrophes && quote == '\''))
        return pos;
    // One character, which may be the quote itself.
    if (pos + 2 < text.size() && text.at(pos + 2) == quote && (text.at(pos + 1) != '\\' || quote == '"'))
        return pos + 3;
    for (int end = pos + 1; end < text.size(); ++end) {
        if (apostrophes && text.at(end) == '\\')
            ++end;
        else if (text.at(end) == quote)
            return end + 1;
    }
    // An apostrophe without a partner is no quote.
    return quote == '"' ? text.size() : pos;
}

void ForeignScanner::scan(ForeignStatement* statement)
{
    if (m_ended) {
        const bool isEmpty = statement->text.trimmed().isEmpty();
        statement->commentPos = isEmpty ? -1 : 0;
        statement->comment = isEmpty ? QString() : ' ' + statement->text;
        dropBlanksAtEnd(&statement->comment);
        return;
    }
    cutComments(statement);
    int pos = 0;
    cutLabels(statement, &pos);
    cutWord(statement, &pos);
    cutOperands(statement, pos);
}

/// Length of the mark of a comment that begins here; 0: none does.
int ForeignScanner::commentAt(const QString& text, int pos, bool* isBlock) const
{
    *isBlock = false;
    const QChar c = text.at(pos);
    const QChar next = pos + 1 < text.size() ? text.at(pos + 1) : QChar('\0');
    if (c == ';')
        return 1;
    if (m_dialect.cComments && c == '/' && (next == '/' || next == '*')) {
        *isBlock = next == '*';
        return 2;
    }
    if (!m_dialect.hashComments || c != '#')
        return 0;
    // At the start of the line; or apart from the operands, where it can not mark a value.
    int before = pos - 1;
    while (before >= 0 && text.at(before).isSpace())
        --before;
    const bool isApart = before < pos - 1 && text.at(qMax(before, 0)) != ',' && (next.isSpace() || next.isNull());
    return before < 0 || isApart ? 1 : 0;
}

void ForeignScanner::cutComments(ForeignStatement* statement)
{
    const QString& text = statement->text;
    statement->code = text;
    const bool apostrophes = m_dialect.numbers != numHexPlain;
    QStringList comments;
    int pos = 0;
    while (pos < text.size()) {
        int mark = 0;
        bool isBlock = m_inComment;
        if (!m_inComment) {
            const int end = afterQuoted(text, pos, apostrophes);
            mark = end == pos ? commentAt(text, pos, &isBlock) : 0;
            if (mark == 0) {
                pos = qMax(end, pos + 1);
                continue;
            }
        }
        if (statement->commentPos < 0)
            statement->commentPos = pos;
        int end = text.size();
        int after = end;
        m_inComment = false;
        if (isBlock) {
            const int close = text.indexOf(QLatin1String("*/"), pos + mark);
            m_inComment = close < 0;
            end = close < 0 ? end : close;
            after = close < 0 ? end : close + 2;
        }
        comments.append(text.mid(pos + mark, end - pos - mark));
        statement->code.replace(pos, after - pos, QString(after - pos, QLatin1Char(' ')));
        pos = after;
    }
    if (m_inComment && comments.isEmpty()) {
        statement->commentPos = 0;
        comments.append(QString());
    }
    statement->comment = comments.join(QLatin1Char(' '));
    dropBlanksAtEnd(&statement->comment);
    dropBlanksAtEnd(&statement->code);
}

void ForeignScanner::cutLabels(ForeignStatement* statement, int* pos) const
{
    const QString& code = statement->code;
    for (;;) {
        const int start = afterBlanks(code, *pos);
        int end = start;
        while (end < code.size() && !code.at(end).isSpace() && !QStringLiteral(":,\"'()[]").contains(code.at(end)))
            ++end;
        // A blank in front of the colon is taken by some assemblers.
        const int colon = afterBlanks(code, end);
        if (end == start || colon >= code.size() || code.at(colon) != ':') {
            *pos = start;
            return;
        }
        statement->labels.append({start, end - start});
        *pos = colon + 1;
    }
}

ForeignPiece ForeignScanner::wordAt(const QString& code, int pos) const
{
    int end = pos;
    while (end < code.size() && !code.at(end).isSpace() && !QStringLiteral("(,\"=[").contains(code.at(end)))
        ++end;
    if (end == pos && end < code.size())
        ++end;
    return {pos, end - pos};
}

void ForeignScanner::cutWord(ForeignStatement* statement, int* pos) const
{
    const QString& code = statement->code;
    ForeignPiece word = wordAt(code, *pos);
    *pos = word.pos + word.length;
    if (word.length == 0)
        return;
    // `name EQU value`: the second word decides, as a name may be called like an instruction.
    const int start = afterBlanks(code, *pos);
    const ForeignPiece second = wordAt(code, start);
    const int after = afterBlanks(code, second.pos + second.length);
    if (after < code.size() && code.at(after) != ',') {
        const sForeignWord_t* meaning = m_dialect.find(statement->part(second).toUpper());
        if (meaning != nullptr && meaning->op == opEquate) {
            statement->name = word;
            statement->word = second;
            statement->meaning = meaning;
            *pos = second.pos + second.length;
            return;
        }
    }
    statement->word = word;
    statement->meaning = m_dialect.find(statement->part(word).toUpper());
    if (statement->meaning != nullptr && statement->meaning->op == opEquate)
        statement->meaning = nullptr;
}

void ForeignScanner::cutOperands(ForeignStatement* statement, int pos) const
{
    const QString& code = statement->code;
    pos = afterBlanks(code, pos);
    if (pos >= code.size())
        return;
    const bool apostrophes = m_dialect.numbers != numHexPlain;
    int depth = 0;
    int start = pos;
    const auto add = [&](int end) {
        while (end > start && code.at(end - 1).isSpace())
            --end;
        statement->operands.append({start, end - start});
    };
    while (pos < code.size()) {
        const int end = afterQuoted(code, pos, apostrophes);
        if (end > pos) {
            pos = end;
            continue;
        }
        const QChar c = code.at(pos);
        depth += c == '(' || c == '[' ? 1 : 0;
        depth -= c == ')' || c == ']' ? 1 : 0;
        if (c == ',' && depth <= 0) {
            add(pos);
            start = afterBlanks(code, pos + 1);
            pos = start;
            continue;
        }
        ++pos;
    }
    add(code.size());
}

} // namespace nsImport
