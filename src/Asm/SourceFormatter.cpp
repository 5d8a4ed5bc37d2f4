#include "SourceFormatter.h"

#include "AsmFeLineHndlr.h"
#include "AsmLimits.h"
#include "InstructionWords.h"

#include <QSet>

namespace nsModAsmFe {

namespace {

const int tabWidth = 8; ///< with which a comment of its own is sorted into a column

bool isPlain(const QString& line, int length)
{
    for (int i = 0; i < length; ++i) {
        const ushort c = line.at(i).unicode();
        // Within other encodings, the assembler sees bytes that look like blanks; it ends a line at a NUL.
        if (c > 126 || (c < ' ' && c != '\t'))
            return false;
    }
    return true;
}

bool isInstruction(const QString& word)
{
    static const QSet<QString> words = [] {
        const QStringList list = instructionWords();
        return QSet<QString>(list.begin(), list.end());
    }();
    return words.contains(word.toUpper());
}

/// Fills up to the column, with a blank at least if something is before it.
void goTo(QString* text, int column)
{
    if (!text->isEmpty() && !text->endsWith(' '))
        text->append(' ');
    text->append(QString(qMax(column - text->size(), 0), ' '));
}

int columnAfterBlanks(const QString& blanks)
{
    int column = 0;
    for (const QChar c : blanks)
        column += c == '\t' ? tabWidth - column % tabWidth : 1;
    return column;
}

QString withoutBlanksAtEnd(const QString& text)
{
    int end = text.size();
    while (end > 0 && (text.at(end - 1) == ' ' || text.at(end - 1) == '\t'))
        --end;
    return text.left(end);
}

/// Both lines have the same parts; blanks between them do not count, but whether the label is at the start does.
bool isSame(const QString& before, const QString& after)
{
    AsmFeLineHndlr a;
    AsmFeLineHndlr b;
    if (!a.splitLine(before) || !b.splitLine(after))
        return false;
    using Tags = AsmFeLineHndlr;
    for (const auto tag : {Tags::eTagLabel, Tags::eTagArg0, Tags::eTagSep, Tags::eTagArg1}) {
        if (a.tag(tag) != b.tag(tag))
            return false;
    }
    return a.tag(Tags::eTagInstruction).compare(b.tag(Tags::eTagInstruction), Qt::CaseInsensitive) == 0 &&
           withoutBlanksAtEnd(a.tag(Tags::eTagComment)) == withoutBlanksAtEnd(b.tag(Tags::eTagComment)) &&
           (a.isEmpty(Tags::eTagLabel) || a.isEmpty(Tags::eTagSpacer0) == b.isEmpty(Tags::eTagSpacer0));
}

} // namespace

QString SourceFormatter::formattedLine(const QString& line) const
{
    const QString result = codeLine(line);
    // The assembler cuts longer lines.
    return isSame(line, result) && result.toUtf8().size() < AsmLimits::maxLineLength ? result : line;
}

QString SourceFormatter::codeLine(const QString& line) const
{
    using Tags = AsmFeLineHndlr;
    AsmFeLineHndlr parts;
    if (!parts.splitLine(line))
        return line;
    const QString comment = withoutBlanksAtEnd(parts.tag(Tags::eTagComment));
    if (!isPlain(line, line.size() - parts.tag(Tags::eTagComment).size()))
        return line;
    const QString label = parts.tag(Tags::eTagLabel);
    const QString word = parts.tag(Tags::eTagInstruction);
    const bool hasArguments =
        !parts.isEmpty(Tags::eTagArg0) || !parts.isEmpty(Tags::eTagSep) || !parts.isEmpty(Tags::eTagArg1);
    QString text;
    if (label.isEmpty() && word.isEmpty() && !hasArguments) {
        // At the start of a line, comments have meanings of their own.
        const int column = columnAfterBlanks(parts.tag(Tags::eTagSpacer0));
        if (comment.isEmpty() || column == 0)
            return comment;
        const bool besideCode = 2 * column > m_style.instructionColumn + m_style.commentColumn;
        goTo(&text, besideCode ? m_style.commentColumn : m_style.instructionColumn);
        return text + comment;
    }
    if (word.startsWith('#')) {
        // How a directive and its value are laid out is left to the author.
        text = withoutBlanksAtEnd(line.left(line.size() - parts.tag(Tags::eTagComment).size()));
        if (text.contains('\t') && !comment.isEmpty())
            return withoutBlanksAtEnd(line);
    } else {
        if (!label.isEmpty() && !parts.isEmpty(Tags::eTagSpacer0))
            goTo(&text, m_style.labelColumn);
        text += label;
        const bool isKnown = isInstruction(word);
        if (!word.isEmpty() || hasArguments)
            goTo(&text, m_style.instructionColumn);
        text += !isKnown || m_style.instructionCase == eCaseKeep ? word
                : m_style.instructionCase == eCaseUpper          ? word.toUpper()
                                                                 : word.toLower();
        if (hasArguments) {
            goTo(&text, m_style.argumentColumn);
            text += parts.tag(Tags::eTagArg0) + parts.tag(Tags::eTagSep);
            if (!parts.isEmpty(Tags::eTagArg1)) {
                if (!parts.isEmpty(Tags::eTagArg0) || !parts.isEmpty(Tags::eTagSep))
                    text += ' ';
                text += parts.tag(Tags::eTagArg1);
            }
        }
    }
    if (!comment.isEmpty()) {
        goTo(&text, m_style.commentColumn);
        text += comment;
    }
    return text;
}

QByteArray SourceFormatter::formatted(const QByteArray& source) const
{
    // Of two bytes a character, one can look like a blank.
    if (source.startsWith("\xff\xfe") || source.startsWith("\xfe\xff"))
        return source;
    static const QByteArray mark("\xef\xbb\xbf");
    QByteArray result = source.startsWith(mark) ? mark : QByteArray();
    int pos = result.size();
    while (pos < source.size()) {
        int end = source.indexOf('\n', pos);
        const int next = end < 0 ? source.size() : end + 1;
        end = end < 0 ? source.size() : end;
        if (end > pos && source.at(end - 1) == '\r')
            --end;
        // As the assembler reads it: a character a byte.
        const QString line = QString::fromLatin1(source.constData() + pos, end - pos);
        result += line.contains(QChar('\0')) ? line.toLatin1() : formattedLine(line).toLatin1();
        result += source.mid(end, next - end);
        pos = next;
    }
    return result;
}

} // namespace nsModAsmFe
