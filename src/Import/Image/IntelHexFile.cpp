// Records `:LLAAAATT...CC`. How the bytes make words is not written in the file: what fits is found.

#include "ImageBuilder.h"

#include <QVector>

namespace nsImport {

namespace {

struct sRecord_t
{
    quint32 address = 0; ///< as the file has it
    int line = 0;
    QByteArray bytes;
};

/// A way in which bytes can make words.
struct sLayout_t
{
    int bytesPerWord;
    bool bigEndian;
    bool wordAddresses; ///< addresses count words, not bytes
    const char* name;
};

const sLayout_t layouts[] = {
    {3, true, true, "three bytes a word, the highest first, addresses of words"},
    {4, true, true, "four bytes a word, the highest first, addresses of words"},
    {4, false, false, "four bytes a word, the lowest first"},
    {4, true, false, "four bytes a word, the highest first"},
    {3, false, false, "three bytes a word, the lowest first"},
    {3, true, false, "three bytes a word, the highest first"},
};

/// Reads the records and checks each of them.
class RecordReader
{
public:
    explicit RecordReader(ImageBuilder* image)
        : m_image(*image)
    {
    }

    bool read(const QByteArray& content)
    {
        LineCursor cursor(content);
        while (cursor.next()) {
            const QByteArray line = cursor.line().trimmed();
            if (line.isEmpty())
                continue;
            if (m_ended)
                return m_image.fail(cursor.number(), QStringLiteral("There is text behind the last record."));
            if (!readRecord(line, cursor.number()))
                return false;
        }
        return m_ended || m_image.fail(cursor.number(),
                                       QStringLiteral("The last record is missing: the file may have been cut off."));
    }

    QVector<sRecord_t> records;

private:
    bool readRecord(const QByteArray& line, int number)
    {
        const QByteArray bytes = QByteArray::fromHex(line.mid(1));
        const bool isHex =
            line.startsWith(':') && bytes.size() * 2 == line.size() - 1 && bytes.toHex() == line.mid(1).toLower();
        if (!isHex || bytes.size() < 5 || bytes.size() != uchar(bytes.at(0)) + 5)
            return m_image.fail(number, QStringLiteral("%1 is no record.").arg(shown(line)));
        uchar sum = 0;
        for (char byte : bytes)
            sum = uchar(sum + uchar(byte));
        if (sum != 0)
            return m_image.fail(number, QStringLiteral("The check sum of the record is wrong."));
        const quint32 address = quint32(uchar(bytes.at(1)) << 8 | uchar(bytes.at(2)));
        const QByteArray data = bytes.mid(4, bytes.size() - 5);
        const int value = data.size() == 2 ? uchar(data.at(0)) << 8 | uchar(data.at(1)) : -1;
        switch (bytes.at(3)) {
        case 0:
            records.append({m_base + address, number, data});
            return true;
        case 1:
            m_ended = true;
            return true;
        case 2:
        case 4:
            if (value < 0)
                return m_image.fail(number, QStringLiteral("%1 is no record.").arg(shown(line)));
            m_base = quint32(value) << (bytes.at(3) == 2 ? 4 : 16);
            return true;
        case 3:
        case 5:
            return true; // where a program starts
        default:
            return m_image.fail(number, QStringLiteral("There is no record of this kind: %1.").arg(shown(line)));
        }
    }

    ImageBuilder& m_image;
    quint32 m_base = 0;
    bool m_ended = false;
};

/// @return false, after an error in the builder, if the records can not be meant like this
bool place(const QVector<sRecord_t>& records, const sLayout_t& layout, ImageBuilder* image)
{
    const int size = layout.bytesPerWord;
    for (const sRecord_t& record : records) {
        const quint32 step = layout.wordAddresses ? 1 : quint32(size);
        if (record.bytes.size() % size != 0 || record.address % step != 0)
            return image->fail(record.line, QStringLiteral("The record has no whole words."));
        for (int pos = 0; pos < record.bytes.size(); pos += size) {
            quint64 word = 0;
            for (int i = 0; i < size; ++i)
                word = word << 8 | uchar(record.bytes.at(pos + (layout.bigEndian ? i : size - 1 - i)));
            if (!image->add(record.address / step + pos / size, word, record.line))
                return false;
        }
    }
    return true;
}

bool isSame(const ProgramImage& a, const ProgramImage& b)
{
    if (a.size() != b.size() || a.count() != b.count())
        return false;
    for (int address = 0; address < a.size(); ++address) {
        if (a.contains(address) != b.contains(address) || a.word(address) != b.word(address))
            return false;
    }
    return true;
}

/// Memories are written without gaps between their records. @return there is none
bool isGapless(const ProgramImage& image)
{
    return image.count() == image.size();
}

} // namespace

bool readIntelHex(const QByteArray& content, ImageBuilder* image)
{
    RecordReader reader(image);
    if (!reader.read(content))
        return false;
    ProgramImage found;
    const sLayout_t* layout = nullptr;
    bool foundGapless = false;
    for (const sLayout_t& candidate : layouts) {
        ImageBuilder attempt(image->options(), QString());
        if (!place(reader.records, candidate, &attempt))
            continue;
        const bool gapless = isGapless(attempt.image());
        if (layout != nullptr && isSame(found, attempt.image()))
            continue;
        // What leaves no gap is meant, if the other leaves gaps.
        if (layout != nullptr && gapless == foundGapless)
            return image->fail(0, QStringLiteral("It can not be told how the bytes make words: %1, or %2.")
                                      .arg(QLatin1String(layout->name), QLatin1String(candidate.name)));
        if (layout == nullptr || gapless) {
            found = attempt.image();
            layout = &candidate;
            foundGapless = gapless;
        }
    }
    if (layout == nullptr)
        return image->fail(0, QStringLiteral("The bytes make no words of %1 bits.").arg(image->options().wordBits));
    image->note(QStringLiteral("The bytes are taken as %1.").arg(QLatin1String(layout->name)));
    return place(reader.records, *layout, image);
}

} // namespace nsImport
