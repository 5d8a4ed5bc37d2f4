#include "AsmFeLineHndlr.h"

#include <cstdio>

namespace nsModAsmFe {

namespace {

// The scanners run on every line, so they read it once by index. Each returns the position after its piece.

inline bool isSpace(QChar c)
{
    const ushort u = c.unicode();
    return u < 128 ? u == ' ' || (u >= '\t' && u <= '\r') : c.isSpace();
}

int afterSpacer(const QChar* text, int pos, int length)
{
    while (pos < length && isSpace(text[pos]))
        ++pos;
    return pos;
}

/// @return position after the piece, which ends before the first character for which the test is true. Quotes protect
/// such characters, and a backslash protects the character after it.
template <class Ends>
int afterQuoted(const QChar* text, int pos, int length, Ends ends)
{
    bool quoted = false;
    while (pos < length) {
        const QChar c = text[pos];
        if (c == '\\') {
            pos += 2;
            continue;
        }
        if (c == '"')
            quoted = !quoted;
        else if (!quoted && ends(c))
            break;
        ++pos;
    }
    return pos < length ? pos : length;
}

int afterWord(const QChar* text, int pos, int length)
{
    return afterQuoted(text, pos, length, [](QChar c) { return c == ',' || c == ';' || isSpace(c); });
}

int afterList(const QChar* text, int pos, int length)
{
    return afterQuoted(text, pos, length, [](QChar c) { return c == ';'; });
}

/// @return position after the colon of a label at the position; the position itself if there is no label
int afterLabel(const QChar* text, int pos, int length)
{
    for (int i = pos; i < length; ++i) {
        const QChar c = text[i];
        if (c == ':')
            return i + 1;
        if (c == ',' || c == ';' || c == '"' || isSpace(c))
            return pos;
    }
    return pos;
}

int withoutSpaceAtEnd(const QChar* text, int start, int end)
{
    while (end > start && isSpace(text[end - 1]))
        --end;
    return end;
}

} // namespace

bool AsmFeLineHndlr::splitLine(const QString& line)
{
    m_line = line;
    const QChar* text = m_line.constData();
    const int length = m_line.size();
    int pos = 0;
    const auto take = [&](eTag_t tag, int end) {
        m_tags[tag] = {pos, end - pos};
        pos = end;
    };
    take(eTagSpacer0, afterSpacer(text, pos, length));
    take(eTagLabel, afterLabel(text, pos, length));
    take(eTagSpacer2, afterSpacer(text, pos, length));
    take(eTagInstruction, afterWord(text, pos, length));
    take(eTagSpacer4, afterSpacer(text, pos, length));
    take(eTagArg0, afterWord(text, pos, length));
    take(eTagSpacer6, afterSpacer(text, pos, length));
    take(eTagSep, pos < length && text[pos] == ',' ? pos + 1 : pos);
    take(eTagSpacer8, afterSpacer(text, pos, length));
    take(eTagArg1, afterList(text, pos, length));
    m_tags[eTagArg1].length = withoutSpaceAtEnd(text, m_tags[eTagArg1].start, pos) - m_tags[eTagArg1].start;
    take(eTagSpacer10, afterSpacer(text, pos, length));
    take(eTagComment, pos < length && text[pos] == ';' ? length : pos);
    return pos == length;
}

QString AsmFeLineHndlr::mergeLine() const
{
    QString line;
    for (int i = 0; i < eTagCount; ++i)
        line += tag(eTag_t(i));
    return line;
}

void AsmFeLineHndlr::printTags() const
{
    static const char* const names[eTagCount] = {"Spacer", "Label", "Spacer", "Instruction", "Spacer", "Arg0",
                                                 "Spacer", "Sep",   "Spacer", "Arg1",        "Spacer", "Comment"};
    for (int i = 0; i < eTagCount; ++i)
        std::printf("Tag %2d: %s %s\n", i, names[i], qPrintable(tag(eTag_t(i))));
}

namespace {

QString taken(const QString& line, int* pos, int end)
{
    const QString piece = line.mid(*pos, end - *pos);
    *pos = end;
    return piece;
}

} // namespace

QString AsmFeLineHndlr::splitLineSpacer(QString& line, int* pos, int length)
{
    return taken(line, pos, afterSpacer(line.constData(), *pos, length));
}

QString AsmFeLineHndlr::splitLineWord(QString& line, int* pos, int length)
{
    return taken(line, pos, afterWord(line.constData(), *pos, length));
}

QString AsmFeLineHndlr::splitLineList(QString& line, int* pos, int length)
{
    QString piece = taken(line, pos, afterList(line.constData(), *pos, length));
    piece.truncate(withoutSpaceAtEnd(piece.constData(), 0, piece.size()));
    return piece;
}

QString AsmFeLineHndlr::splitLineLabel(QString& line, int* pos, int length)
{
    return taken(line, pos, afterLabel(line.constData(), *pos, length));
}

QString AsmFeLineHndlr::splitLineSep(QString& line, int* pos, int length)
{
    return taken(line, pos, *pos < length && line.at(*pos) == ',' ? *pos + 1 : *pos);
}

QString AsmFeLineHndlr::splitLineComment(QString& line, int* pos, int length)
{
    return taken(line, pos, *pos < length && line.at(*pos) == ';' ? length : *pos);
}

} // namespace nsModAsmFe
