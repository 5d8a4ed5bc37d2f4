// `memory_initialization_radix=16; memory_initialization_vector=1, 2, 3;`

#include "ImageBuilder.h"

#include <algorithm>

namespace nsImport {

namespace {

/// The text with its comments blanked. In front of the vector a semicolon at the start of a line begins a comment.
QByteArray withoutComments(const QByteArray& content)
{
    QByteArray text = content;
    const QByteArray upper = content.toUpper();
    bool atStart = true;
    bool inComment = false;
    for (int pos = 0; pos < text.size(); ++pos) {
        const char c = text.at(pos);
        if (c == '\n' || c == '\r') {
            atStart = true;
            inComment = false;
            continue;
        }
        if (atStart && !inComment && upper.at(pos) == 'M' && upper.mid(pos, 28) == "MEMORY_INITIALIZATION_VECTOR")
            break;
        inComment = inComment || (atStart && c == ';');
        atStart = atStart && isBlank(c);
        if (inComment)
            text[pos] = ' ';
    }
    return text;
}

/// Position behind `KEY =`; -1 if there is none.
int valueOf(const QByteArray& text, const QByteArray& key)
{
    const int pos = text.toUpper().indexOf(key);
    const int equals = pos < 0 ? -1 : text.indexOf('=', pos);
    return equals < 0 ? -1 : equals + 1;
}

} // namespace

bool readCoe(const QByteArray& content, ImageBuilder* image)
{
    const QByteArray text = withoutComments(content);
    const LineIndex lines(text);
    int radix = 0;
    const int radixPos = valueOf(text, "MEMORY_INITIALIZATION_RADIX");
    if (radixPos < 0)
        return image->fail(0, QStringLiteral("The file says no memory_initialization_radix."));
    const QByteArray radixText = text.mid(radixPos, std::max(text.indexOf(';', radixPos) - radixPos, 0)).trimmed();
    radix = radixText.toInt();
    if (radix != 2 && radix != 10 && radix != 16)
        return image->fail(lines.lineAt(radixPos),
                           QStringLiteral("The radix must be 2, 10 or 16: %1.").arg(shown(radixText)));
    int pos = valueOf(text, "MEMORY_INITIALIZATION_VECTOR");
    if (pos < 0)
        return image->fail(0, QStringLiteral("The file has no memory_initialization_vector."));
    int address = 0;
    while (pos < text.size() && text.at(pos) != ';') {
        if (isBlank(text.at(pos)) || text.at(pos) == ',') {
            ++pos;
            continue;
        }
        const int start = pos;
        while (pos < text.size() && !isBlank(text.at(pos)) && text.at(pos) != ',' && text.at(pos) != ';')
            ++pos;
        const QByteArray piece = text.mid(start, pos - start);
        quint64 word = 0;
        if (!toNumber(piece, radix, &word))
            return image->fail(lines.lineAt(start), QStringLiteral("%1 is no word.").arg(shown(piece)));
        if (!image->add(address++, word, lines.lineAt(start)))
            return false;
    }
    if (pos >= text.size())
        image->note(QStringLiteral("The vector is not ended by a semicolon: the file may have been cut off."));
    return true;
}

} // namespace nsImport
