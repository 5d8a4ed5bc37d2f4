#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QVector>

/// Readers of image files, written from the descriptions of their formats alone: they share nothing with the writers. A
/// text that is not of the format fails the test and leaves the result empty.
namespace nsImage {

using Words = QVector<quint32>;

/// A memory initialization file, with its own radix, comments and ranges.
struct Mif
{
    int width = 0;
    Words words;
};
Mif readMif(const QByteArray& text);

/// A list of coefficients of any radix.
Words readCoe(const QByteArray& text);

/// Words of so many bytes.
Words wordsOf(const QByteArray& bytes, int bytesOfWord, bool highestFirst);

/// The data records of an Intel HEX file: data by full address, as it stands in each record. Check sums, the order of
/// types and the end are checked, and that no address is given twice.
QMap<quint32, QByteArray> readIntelHexRecords(const QByteArray& text);
/// The same as one piece of memory from address 0 on, without a hole.
QByteArray readIntelHex(const QByteArray& text);

/// Values by byte address. Each value counts as many bytes as it has, where parity bits do not count.
QMap<quint32, quint32> readRamMem(const QByteArray& text, int bytesOfValue);

/// One word a line.
Words readHex(const QByteArray& text);

} // namespace nsImage
