#include "ImageReaders.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QStringList>

namespace nsImage {

namespace {

quint32 number(const QString& digits, int radix)
{
    bool ok = false;
    const quint32 value = digits.trimmed().toUInt(&ok, radix);
    EXPECT_TRUE(ok) << digits.toStdString() << " in radix " << radix;
    return value;
}

int radixOf(const QString& name)
{
    const QMap<QString, int> radixes = {{"HEX", 16}, {"BIN", 2}, {"OCT", 8}, {"DEC", 10}, {"UNS", 10}};
    EXPECT_TRUE(radixes.contains(name)) << name.toStdString();
    return radixes.value(name, 16);
}

/// One entry between BEGIN and END.
void takeMifEntry(const QString& entry, int addressRadix, int dataRadix, Mif* mif)
{
    const QRegularExpression form(R"(^(?:(\w+)|\[(\w+)\.\.(\w+)\])\s*:\s*(\w+)$)");
    const QRegularExpressionMatch match = form.match(entry);
    ASSERT_TRUE(match.hasMatch()) << entry.toStdString();
    const bool isRange = match.captured(1).isEmpty();
    const quint32 first = number(match.captured(isRange ? 2 : 1), addressRadix);
    const quint32 last = isRange ? number(match.captured(3), addressRadix) : first;
    const quint32 word = number(match.captured(4), dataRadix);
    ASSERT_LT(last, quint32(mif->words.size()));
    ASSERT_EQ(quint64(word) >> mif->width, 0u) << entry.toStdString();
    for (quint32 addr = first; addr <= last; ++addr)
        mif->words[int(addr)] = word;
}

} // namespace

Mif readMif(const QByteArray& text)
{
    QString plain = QString::fromLatin1(text);
    plain.remove(QRegularExpression("--[^\n]*|%[^%]*%"));
    QMap<QString, QString> fields;
    const QRegularExpression begin(R"(\bCONTENT\s+BEGIN\b)");
    const QRegularExpressionMatch match = begin.match(plain);
    Mif mif;
    EXPECT_TRUE(match.hasMatch());
    for (const QString& field : plain.left(match.capturedStart()).split(';', Qt::SkipEmptyParts)) {
        if (!field.trimmed().isEmpty())
            fields.insert(field.section('=', 0, 0).trimmed(), field.section('=', 1).trimmed());
    }
    mif.width = int(number(fields.value("WIDTH"), 10));
    mif.words.fill(0xdeadbeef, int(number(fields.value("DEPTH"), 10)));
    QStringList entries = plain.mid(match.capturedEnd()).split(';');
    EXPECT_EQ(entries.takeLast().trimmed(), QString());
    EXPECT_EQ(entries.isEmpty() ? QString() : entries.takeLast().trimmed(), "END");
    for (const QString& entry : entries)
        takeMifEntry(entry.trimmed(), radixOf(fields.value("ADDRESS_RADIX")), radixOf(fields.value("DATA_RADIX")),
                     &mif);
    return mif;
}

Words readCoe(const QByteArray& text)
{
    const QRegularExpression form(R"(^\s*memory_initialization_radix\s*=\s*(\d+)\s*;)"
                                  R"(\s*memory_initialization_vector\s*=\s*([0-9A-Fa-f,\s]+);\s*$)");
    const QRegularExpressionMatch match = form.match(QString::fromLatin1(text));
    EXPECT_TRUE(match.hasMatch()) << text.left(200).toStdString();
    Words words;
    for (const QString& word : match.captured(2).split(','))
        words.append(number(word, match.captured(1).toInt()));
    return words;
}

Words wordsOf(const QByteArray& bytes, int bytesOfWord, bool highestFirst)
{
    Words words;
    EXPECT_EQ(bytes.size() % bytesOfWord, 0);
    for (int start = 0; start + bytesOfWord <= bytes.size(); start += bytesOfWord) {
        quint32 word = 0;
        for (int i = 0; i < bytesOfWord; ++i)
            word = word << 8 | uchar(bytes[start + (highestFirst ? i : bytesOfWord - 1 - i)]);
        words.append(word);
    }
    return words;
}

QMap<quint32, QByteArray> readIntelHexRecords(const QByteArray& text)
{
    QMap<quint32, QByteArray> result;
    quint32 upper = 0;
    bool ended = false;
    for (const QByteArray& line : text.trimmed().split('\n')) {
        EXPECT_FALSE(ended) << "a record behind the end";
        EXPECT_TRUE(line.startsWith(':')) << line.toStdString();
        const QByteArray bytes = QByteArray::fromHex(line.mid(1));
        EXPECT_EQ(bytes.size() * 2, line.trimmed().size() - 1);
        EXPECT_EQ(bytes.size(), uchar(bytes.at(0)) + 5) << line.toStdString();
        int sum = 0;
        for (char byte : bytes)
            sum += uchar(byte);
        EXPECT_EQ(sum & 0xff, 0) << line.toStdString();
        const quint32 address = quint32(uchar(bytes.at(1))) << 8 | uchar(bytes.at(2));
        const QByteArray data = bytes.mid(4, bytes.size() - 5);
        if (bytes.at(3) == 0) {
            EXPECT_LE(address + quint32(data.size()), 0x10000u) << "a record beyond its segment";
            EXPECT_FALSE(result.contains(upper + address)) << line.toStdString();
            result.insert(upper + address, data);
        } else if (bytes.at(3) == 4) {
            upper = quint32(uchar(data.at(0))) << 24 | quint32(uchar(data.at(1))) << 16;
        } else {
            EXPECT_EQ(bytes.at(3), 1) << line.toStdString();
            ended = true;
        }
    }
    EXPECT_TRUE(ended);
    return result;
}

QByteArray readIntelHex(const QByteArray& text)
{
    QByteArray result;
    const QMap<quint32, QByteArray> records = readIntelHexRecords(text);
    for (auto record = records.cbegin(); record != records.cend(); ++record) {
        EXPECT_EQ(record.key(), quint32(result.size()));
        result += record.value();
    }
    return result;
}

QMap<quint32, quint32> readRamMem(const QByteArray& text, int bytesOfValue)
{
    QMap<quint32, quint32> result;
    bool hasAddress = false;
    quint32 address = 0;
    for (const QString& item : QString::fromLatin1(text).split(QRegularExpression("\\s+"), Qt::SkipEmptyParts)) {
        if (item.startsWith('@')) {
            address = number(item.mid(1), 16);
            hasAddress = true;
            continue;
        }
        EXPECT_TRUE(hasAddress);
        EXPECT_FALSE(result.contains(address)) << item.toStdString();
        result.insert(address, number(item, 16));
        address += quint32(bytesOfValue);
    }
    return result;
}

Words readHex(const QByteArray& text)
{
    Words words;
    for (const QByteArray& line : text.trimmed().split('\n'))
        words.append(number(QString::fromLatin1(line), 16));
    return words;
}

} // namespace nsImage
