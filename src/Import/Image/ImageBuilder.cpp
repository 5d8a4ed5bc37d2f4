#include "ImageBuilder.h"

#include <algorithm>

namespace nsImport {

ImageBuilder::ImageBuilder(const ImageOptions& options, const QString& fileName)
    : m_options(options)
{
    m_result.image.wordBits = options.wordBits;
    m_result.image.addFile(fileName);
}

bool ImageBuilder::add(qint64 address, quint64 word, int line)
{
    if ((word >> m_options.wordBits) != 0)
        return fail(line,
                    QStringLiteral("The word %1 has more than %2 bits.").arg(hexText(word, 5)).arg(m_options.wordBits));
    const int place = address < 0 || address >= ProgramImage::maxSize ? -1 : int(address);
    switch (m_result.image.setWord(place, quint32(word), line)) {
    case ProgramImage::eSetDone:
        break;
    case ProgramImage::eSetConflict:
        return fail(line, QStringLiteral("Address %1 has two words: %2 in line %3, and %4 here.")
                              .arg(hexText(quint64(place), 3), hexText(m_result.image.word(place), 5),
                                   QString::number(m_result.image.place(place).line), hexText(word, 5)));
    case ProgramImage::eSetOutOfRange:
        return fail(line, QStringLiteral("Address %1 is beyond the %2 words that an image can have.")
                              .arg(hexText(quint64(address), 3))
                              .arg(ProgramImage::maxSize));
    }
    return true;
}

void ImageBuilder::note(const QString& text)
{
    if (!m_result.notes.contains(text))
        m_result.notes.append(text);
}

bool ImageBuilder::fail(int line, const QString& text)
{
    if (m_result.error.isEmpty()) {
        m_result.error = text;
        m_result.errorLine = line;
    }
    return false;
}

ImageResult ImageBuilder::finish(bool success, eImageFormat_t format)
{
    m_result.format = format;
    if (success && m_result.image.isEmpty())
        success = fail(0, QStringLiteral("The file has no word."));
    m_result.ok = success;
    if (!success)
        m_result.image = ProgramImage();
    return m_result;
}

bool LineCursor::next()
{
    if (m_pos >= m_text.size())
        return false;
    m_start = m_pos;
    const char* text = m_text.constData();
    while (m_pos < m_text.size() && text[m_pos] != '\n' && text[m_pos] != '\r')
        ++m_pos;
    m_length = m_pos - m_start;
    ++m_number;
    m_end = endNone;
    if (m_pos < m_text.size()) {
        m_end = text[m_pos] == '\n' ? endLf : endCr;
        ++m_pos;
        if (m_end == endCr && m_pos < m_text.size() && text[m_pos] == '\n') {
            m_end = endCrLf;
            ++m_pos;
        }
    }
    return true;
}

LineIndex::LineIndex(const QByteArray& text)
{
    m_starts.push_back(0);
    for (int pos = 0; pos < text.size(); ++pos) {
        const char c = text.at(pos);
        if (c == '\n' || (c == '\r' && (pos + 1 == text.size() || text.at(pos + 1) != '\n')))
            m_starts.push_back(pos + 1);
    }
}

int LineIndex::lineAt(int pos) const
{
    return int(std::upper_bound(m_starts.begin(), m_starts.end(), pos) - m_starts.begin());
}

bool isBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

bool isHexDigit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

bool toNumber(const QByteArray& digits, int radix, quint64* value)
{
    quint64 result = 0;
    bool any = false;
    for (char c : digits) {
        if (c == '_' && any)
            continue;
        const int digit = c >= '0' && c <= '9' ? c - '0' : isHexDigit(c) ? (c | 0x20) - 'a' + 10 : radix;
        if (digit >= radix || (result >> 58) != 0)
            return false;
        result = result * quint64(radix) + quint64(digit);
        any = true;
    }
    *value = result;
    return any;
}

QString hexText(quint64 value, int digits)
{
    return QString::number(value, 16).toUpper().rightJustified(digits, '0');
}

QString shown(const QByteArray& text)
{
    const int longest = 32;
    QString result;
    for (char c : text.left(longest))
        result += c >= ' ' && c <= '~' ? QChar(c) : QChar('?');
    return '"' + result + (text.size() > longest ? QStringLiteral("...\"") : QStringLiteral("\""));
}

} // namespace nsImport
