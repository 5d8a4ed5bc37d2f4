// Files of words: one or several a line, with addresses behind `@` or in front of a colon.

#include "ImageBuilder.h"

#include <algorithm>
#include <cstring>

namespace nsImport {

namespace {

/// How the words of a file are written.
struct sWordForm_t
{
    int wordRadix = 16;
    int addressRadix = 16;
    bool colonAddresses = false; ///< `addr: word word`
};

/// Takes the pieces of a line, without comments. A comment in `/* */` may go over several lines.
class LinePieces
{
public:
    /// @return the pieces of the line between blanks and commas
    QList<QByteArray> of(const QByteArray& line)
    {
        QList<QByteArray> pieces;
        int pos = 0;
        while (pos < line.size()) {
            if (m_inComment) {
                const int end = line.indexOf("*/", pos);
                m_inComment = end < 0;
                pos = end < 0 ? line.size() : end + 2;
                continue;
            }
            const char c = line.at(pos);
            const char next = pos + 1 < line.size() ? line.at(pos + 1) : '\0';
            if (c == ';' || c == '#' || (c == '/' && next == '/'))
                break;
            if (c == '/' && next == '*') {
                m_inComment = true;
                pos += 2;
            } else if (isBlank(c) || c == ',') {
                ++pos;
            } else {
                const int start = pos;
                while (pos < line.size() && !isBlank(line.at(pos)) && !std::strchr(",;#/", line.at(pos)))
                    ++pos;
                // A lone slash is a piece of its own, which nobody understands.
                pos = std::max(pos, start + 1);
                pieces.append(line.mid(start, pos - start));
            }
        }
        return pieces;
    }
    bool inComment() const { return m_inComment; }

private:
    bool m_inComment = false;
};

QByteArray withoutPrefix(const QByteArray& digits)
{
    return digits.startsWith("0x") || digits.startsWith("0X") ? digits.mid(2) : digits;
}

bool isHexWord(const QByteArray& piece)
{
    const QByteArray digits = withoutPrefix(piece);
    return !digits.isEmpty() && isHexDigit(digits.at(0)) &&
           std::all_of(digits.begin(), digits.end(), [](char c) { return isHexDigit(c) || c == '_'; });
}

bool isWordLine(const QList<QByteArray>& pieces)
{
    return std::all_of(pieces.begin(), pieces.end(), [](const QByteArray& piece) {
        return piece.startsWith('@') ? piece.size() == 1 || isHexWord(piece.mid(1)) : isHexWord(piece);
    });
}

/// What a look at the whole file tells of how it is written.
struct sWordFileLook_t
{
    bool hasAddresses = false;      ///< behind `@`
    bool addressesEndCrLf = true;   ///< all lines with an address, and
    bool wordsEndLf = true;         ///< all lines with words alone: our assembler writes decimal addresses then
    bool hasDigitAboveNine = false; ///< in a word
    bool isBinary = true;           ///< all words are long and of zeros and ones
    int words = 0;
};

const int shortestBinaryWord = 9; ///< as a hexadecimal number it would be too wide for any word

sWordFileLook_t lookAt(const QByteArray& content)
{
    sWordFileLook_t look;
    LineCursor cursor(content);
    LinePieces pieces;
    while (cursor.next()) {
        const QList<QByteArray> line = pieces.of(cursor.line());
        if (line.isEmpty())
            continue;
        if (line.first().startsWith('@')) {
            look.hasAddresses = true;
            look.addressesEndCrLf = look.addressesEndCrLf && cursor.end() == LineCursor::endCrLf && line.size() == 1;
            continue;
        }
        look.wordsEndLf = look.wordsEndLf && cursor.end() != LineCursor::endCrLf;
        for (const QByteArray& word : line) {
            ++look.words;
            for (char c : withoutPrefix(word)) {
                look.hasDigitAboveNine = look.hasDigitAboveNine || (isHexDigit(c) && (c < '0' || c > '9'));
                look.isBinary = look.isBinary && (c == '0' || c == '1');
            }
            look.isBinary = look.isBinary && word.size() >= shortestBinaryWord;
        }
    }
    return look;
}

/// Reads the words of a text into an image.
class WordReader
{
public:
    WordReader(const sWordForm_t& form, ImageBuilder* image)
        : m_form(form)
        , m_image(*image)
    {
    }

    bool readLine(const QList<QByteArray>& pieces, int line)
    {
        for (int i = 0; i < pieces.size(); ++i) {
            const bool isAddress = m_form.colonAddresses && i + 1 < pieces.size() && pieces.at(i + 1) == ":";
            if (!(isAddress ? readAddress(pieces.at(i++), line) : readPiece(pieces.at(i), line)))
                return false;
        }
        return true;
    }

private:
    bool readPiece(const QByteArray& piece, int line)
    {
        if (piece.startsWith('@'))
            return readAddress(piece.mid(1), line);
        const int colon = m_form.colonAddresses ? piece.indexOf(':') : -1;
        if (colon >= 0)
            return readAddress(piece.left(colon), line) &&
                   (colon + 1 == piece.size() || readPiece(piece.mid(colon + 1), line));
        quint64 word = 0;
        if (!toNumber(m_form.wordRadix == 16 ? withoutPrefix(piece) : piece, m_form.wordRadix, &word))
            return notUnderstood(piece, line);
        return m_image.add(m_address++, word, line);
    }

    bool readAddress(const QByteArray& digits, int line)
    {
        quint64 address = 0;
        if (!toNumber(digits, m_form.addressRadix, &address) || address >= quint64(ProgramImage::maxSize))
            return m_image.fail(line, QStringLiteral("%1 is no address.").arg(shown(digits)));
        m_address = qint64(address);
        return true;
    }

    bool notUnderstood(const QByteArray& piece, int line)
    {
        return m_image.fail(line, QStringLiteral("%1 is no word.").arg(shown(piece)));
    }

    sWordForm_t m_form;
    ImageBuilder& m_image;
    qint64 m_address = 0;
};

bool readWords(const QByteArray& content, const sWordForm_t& form, ImageBuilder* image)
{
    LineCursor cursor(content);
    LinePieces pieces;
    WordReader reader(form, image);
    while (cursor.next()) {
        if (!reader.readLine(pieces.of(cursor.line()), cursor.number()))
            return false;
    }
    return !pieces.inComment() || image->fail(cursor.number(), QStringLiteral("A comment is not ended."));
}

bool latticeRadix(const QByteArray& value, int* radix)
{
    static const int radixes[] = {2, 8, 10, 16};
    bool ok = false;
    const int index = value.toInt(&ok);
    if (!ok || index < 0 || index > 3)
        return false;
    *radix = radixes[index];
    return true;
}

/// Takes over a line `#Key=Value`. Unknown keys are remarks.
bool readLatticeHeader(const QByteArray& text, int line, sWordForm_t* form, ImageBuilder* image)
{
    const int equals = text.indexOf('=');
    const QByteArray key = text.mid(1, equals - 1).trimmed().toUpper();
    const QByteArray value = text.mid(equals + 1).trimmed();
    const auto wrong = [&] {
        return image->fail(
            line,
            QStringLiteral("%1 has a value that is not understood: %2.").arg(QString::fromLatin1(key), shown(value)));
    };
    if (equals < 0)
        return true;
    bool ok = true;
    if (key == "FORMAT") {
        const QByteArray name = value.toUpper();
        form->wordRadix = name.startsWith("BIN") ? 2 : 16;
        form->colonAddresses = name.startsWith("ADDR");
        ok = name.startsWith("BIN") || name == "HEX" || form->colonAddresses;
    } else if (key == "DEPTH") {
        image->image().depth = value.toInt(&ok);
        ok = ok && image->image().depth > 0 && image->image().depth <= ProgramImage::maxSize;
    } else if (key == "WIDTH") {
        const int width = value.toInt(&ok);
        if (ok && width > image->options().wordBits)
            return image->fail(line, QStringLiteral("The memory has words of %1 bits, and the program of %2.")
                                         .arg(width)
                                         .arg(image->options().wordBits));
    } else if (key == "ADDRRADIX") {
        ok = latticeRadix(value, &form->addressRadix);
    } else if (key == "DATARADIX") {
        ok = latticeRadix(value, &form->wordRadix);
    }
    return ok || wrong();
}

} // namespace

bool isWordFile(const QByteArray& content)
{
    LineCursor cursor(content);
    LinePieces pieces;
    bool any = false;
    bool paired = true;
    while (cursor.next()) {
        const QList<QByteArray> line = pieces.of(cursor.line());
        if (!isWordLine(line))
            return false;
        any = any || !line.isEmpty();
        paired = paired && (line.isEmpty() || (line.size() >= 2 && !line.first().startsWith('@') &&
                                               line.at(0).size() < line.at(1).size()));
    }
    // Where a short number stands in front of a longer one in each line, it is the address, and the rest happens to
    // look like words.
    return any && !(paired && isListing(content));
}

bool startsAsWordFile(const QByteArray& content)
{
    LineCursor cursor(content);
    LinePieces pieces;
    while (cursor.next()) {
        const QList<QByteArray> line = pieces.of(cursor.line());
        if (!line.isEmpty())
            return isWordLine(line);
    }
    return false;
}

bool readWordFile(const QByteArray& content, ImageBuilder* image)
{
    const sWordFileLook_t look = lookAt(content);
    sWordForm_t form;
    if (look.isBinary && look.words > 0) {
        form.wordRadix = 2;
        image->note(QStringLiteral("The words are taken as binary numbers."));
    }
    if (look.hasAddresses) {
        const ImageOptions::eAddresses_t addresses = image->options().addresses;
        const bool isOwn = look.addressesEndCrLf && look.wordsEndLf;
        const bool isDecimal =
            addresses == ImageOptions::eAddressesDecimal || (addresses == ImageOptions::eAddressesFound && isOwn);
        form.addressRadix = isDecimal ? 10 : 16;
        image->note(isDecimal ? QStringLiteral("The addresses behind @ are taken as decimal numbers.")
                              : QStringLiteral("The addresses behind @ are taken as hexadecimal numbers."));
    }
    const int fewWords = 16; // so few may happen to have no digit above 9
    if (form.wordRadix == 16 && !look.hasDigitAboveNine && look.words > fewWords)
        image->note(QStringLiteral("No word has a digit above 9; the words are taken as hexadecimal numbers."));
    return readWords(content, form, image);
}

bool readLatticeMem(const QByteArray& content, ImageBuilder* image)
{
    sWordForm_t form;
    LineCursor cursor(content);
    while (cursor.next()) {
        const QByteArray line = cursor.line().trimmed();
        if (line.startsWith('#') && !readLatticeHeader(line, cursor.number(), &form, image))
            return false;
    }
    if (!readWords(content, form, image))
        return false;
    const int depth = image->image().depth;
    return depth == 0 || image->image().size() <= depth ||
           image->fail(image->image().place(image->image().size() - 1).line,
                       QStringLiteral("There are more words than the %1 of the memory.").arg(depth));
}

} // namespace nsImport
