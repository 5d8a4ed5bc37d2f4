// `WIDTH=18; DEPTH=1024; ADDRESS_RADIX=HEX; DATA_RADIX=HEX; CONTENT BEGIN 0: 1 2; [2..3FF]: 0; END;`

#include "ImageBuilder.h"

#include <vector>

namespace nsImport {

namespace {

/// The text with its comments blanked: `-- to the end of the line`, and `% between percent signs %`.
QByteArray withoutComments(const QByteArray& content)
{
    QByteArray text = content;
    bool toEndOfLine = false;
    bool toPercent = false;
    for (int pos = 0; pos < text.size(); ++pos) {
        const char c = text.at(pos);
        const bool isLineEnd = c == '\n' || c == '\r';
        if (toEndOfLine && isLineEnd)
            toEndOfLine = false;
        const bool wasPercent = toPercent;
        if (!toEndOfLine && c == '%')
            toPercent = !toPercent;
        if (!toPercent && !wasPercent && c == '-' && pos + 1 < text.size() && text.at(pos + 1) == '-')
            toEndOfLine = true;
        if ((toEndOfLine || toPercent || wasPercent) && !isLineEnd)
            text[pos] = ' ';
    }
    return text;
}

class MifReader
{
public:
    MifReader(const QByteArray& content, ImageBuilder* image)
        : m_text(withoutComments(content))
        , m_lines(m_text)
        , m_image(*image)
    {
    }

    bool read()
    {
        const int begin = m_text.toUpper().indexOf("BEGIN");
        if (begin < 0 || !readHeader(begin))
            return false;
        int pos = begin + 5;
        for (;;) {
            while (pos < m_text.size() && isBlank(m_text.at(pos)))
                ++pos;
            const int end = m_text.indexOf(';', pos);
            const QByteArray statement = m_text.mid(pos, (end < 0 ? m_text.size() : end) - pos);
            if (statement.trimmed().toUpper() == "END")
                return true;
            if (end < 0)
                return fail(pos, QStringLiteral("The content is not ended by END: the file may have been cut off."));
            if (!readEntry(statement, pos))
                return false;
            pos = end + 1;
        }
    }

private:
    bool fail(int pos, const QString& text) { return m_image.fail(m_lines.lineAt(pos), text); }

    bool readHeader(int begin)
    {
        int pos = 0;
        for (;;) {
            const int end = m_text.indexOf(';', pos);
            if (end < 0 || end > begin)
                return true;
            const QByteArray statement = m_text.mid(pos, end - pos);
            const int equals = statement.indexOf('=');
            int start = pos;
            while (start < end && isBlank(m_text.at(start)))
                ++start;
            if (equals < 0 ||
                !readSetting(statement.left(equals).trimmed().toUpper(), statement.mid(equals + 1).trimmed().toUpper()))
                return fail(start, QStringLiteral("This is not understood: %1.").arg(shown(statement.trimmed())));
            pos = end + 1;
        }
    }

    bool readSetting(const QByteArray& key, const QByteArray& value)
    {
        bool ok = false;
        if (key == "WIDTH") {
            const int width = value.toInt(&ok);
            return ok && width > 0 && width <= 32;
        }
        if (key == "DEPTH") {
            m_image.image().depth = value.toInt(&ok);
            return ok && m_image.image().depth > 0 && m_image.image().depth <= ProgramImage::maxSize;
        }
        if (key == "ADDRESS_RADIX")
            return readRadix(value, &m_addressRadix);
        return key == "DATA_RADIX" && readRadix(value, &m_dataRadix);
    }

    static bool readRadix(const QByteArray& name, int* radix)
    {
        *radix = name == "BIN" ? 2 : name == "OCT" ? 8 : name == "DEC" || name == "UNS" ? 10 : name == "HEX" ? 16 : 0;
        return *radix != 0;
    }

    /// `addr : word word`, or `[from..to] : word word`, which is repeated over the range.
    bool readEntry(const QByteArray& statement, int pos)
    {
        const int colon = statement.indexOf(':');
        if (colon < 0)
            return fail(pos, QStringLiteral("%1 is no address with a word.").arg(shown(statement.trimmed())));
        quint64 from = 0;
        quint64 to = 0;
        bool isRange = false;
        if (!readAddresses(statement.left(colon).trimmed(), &from, &to, &isRange))
            return fail(pos,
                        QStringLiteral("%1 is no address of the memory.").arg(shown(statement.left(colon).trimmed())));
        std::vector<quint64> words;
        if (!readEntryWords(statement, colon + 1, pos, &words))
            return false;
        const int line = m_lines.lineAt(pos);
        const quint64 count = isRange ? to - from + 1 : quint64(words.size());
        if (from + count > limit())
            return fail(pos, QStringLiteral("The words go beyond the end of the memory."));
        for (quint64 i = 0; i < count; ++i) {
            if (!m_image.add(qint64(from + i), words[size_t(i % words.size())], line))
                return false;
        }
        return true;
    }

    bool readEntryWords(const QByteArray& statement, int at, int pos, std::vector<quint64>* words)
    {
        const auto isBetween = [&statement](int i) { return isBlank(statement.at(i)) || statement.at(i) == ','; };
        while (at < statement.size()) {
            const int start = at;
            while (at < statement.size() && !isBetween(at))
                ++at;
            if (at == start) {
                ++at;
                continue;
            }
            const QByteArray piece = statement.mid(start, at - start);
            quint64 word = 0;
            if (!toNumber(piece, m_dataRadix, &word))
                return fail(pos, QStringLiteral("%1 is no word.").arg(shown(piece)));
            words->push_back(word);
        }
        return !words->empty() || fail(pos, QStringLiteral("There is an address without a word."));
    }

    bool readAddresses(const QByteArray& text, quint64* from, quint64* to, bool* isRange) const
    {
        *isRange = text.startsWith('[') && text.endsWith(']');
        if (!*isRange)
            return toNumber(text, m_addressRadix, from) && *from < limit();
        const int dots = text.indexOf("..");
        return dots > 0 && toNumber(text.mid(1, dots - 1).trimmed(), m_addressRadix, from) &&
               toNumber(text.mid(dots + 2, text.size() - dots - 3).trimmed(), m_addressRadix, to) && *from <= *to &&
               *to < limit();
    }

    quint64 limit() const
    {
        const int depth = m_image.image().depth;
        return quint64(depth > 0 ? depth : ProgramImage::maxSize);
    }

    QByteArray m_text;
    LineIndex m_lines;
    ImageBuilder& m_image;
    int m_addressRadix = 16;
    int m_dataRadix = 16;
};

} // namespace

bool readMif(const QByteArray& content, ImageBuilder* image)
{
    MifReader reader(content, image);
    return reader.read() || image->fail(0, QStringLiteral("The file has no content."));
}

} // namespace nsImport
