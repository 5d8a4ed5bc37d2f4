#include "TargetWriteFileImage.h"

#include "HexText.h"
#include "IODev.h"
#include "TargetKinds.h"

#include <algorithm>

namespace nsModAsmFe {

namespace {

using Words = std::vector<unsigned int>;

/// Appends the number in exactly so many digits; higher ones are cut.
void appendHex(QByteArray* text, unsigned int value, int digits)
{
    for (int digit = digits - 1; digit >= 0; --digit)
        text->append(hexDigit(value >> (4 * digit)));
}

int digitsOf(int bits)
{
    return (bits + 3) / 4;
}

int bytesOf(int bits)
{
    return (bits + 7) / 8;
}

/// Bits that are needed for the number, at least 1.
int bitsOf(unsigned int value)
{
    int bits = 1;
    while (bits < 32 && (value >> bits) != 0)
        ++bits;
    return bits;
}

QByteArray asBytes(const Words& words, int bytesOfWord, bool bigEndian)
{
    QByteArray result;
    result.reserve(int(words.size()) * bytesOfWord);
    for (unsigned int word : words) {
        for (int byte = 0; byte < bytesOfWord; ++byte)
            result.append(char(word >> (8 * (bigEndian ? bytesOfWord - 1 - byte : byte))));
    }
    return result;
}

/// The records of an Intel HEX file.
class IntelHexText
{
public:
    /// Appends data at this address, which has 32 bits, in one record. The data must not cross a bound of 64 K.
    void appendData(unsigned int address, const char* data, int size)
    {
        const unsigned int upper = address >> 16;
        if (upper != m_upper) {
            const char bytes[] = {char(upper >> 8), char(upper)};
            appendRecord(typeUpperAddress, 0, bytes, sizeof bytes);
            m_upper = upper;
        }
        appendRecord(typeData, address & 0xffff, data, size);
    }

    QByteArray finished()
    {
        appendRecord(typeEnd, 0, nullptr, 0);
        return m_text;
    }

private:
    enum eType_t { typeData = 0, typeEnd = 1, typeUpperAddress = 4 };

    void appendRecord(eType_t type, unsigned int address, const char* data, int size)
    {
        unsigned int sum = unsigned(size) + (address >> 8) + address + type;
        m_text.append(':');
        appendHex(&m_text, unsigned(size), 2);
        appendHex(&m_text, address, 4);
        appendHex(&m_text, type, 2);
        for (int i = 0; i < size; ++i) {
            appendHex(&m_text, uchar(data[i]), 2);
            sum += uchar(data[i]);
        }
        appendHex(&m_text, 0u - sum, 2);
        m_text.append('\n');
    }

    QByteArray m_text;
    unsigned int m_upper = 0; ///< upper half of the addresses of the records that follow
};

/// Appends a range of a block RAM: its address in bytes, then a word a line.
/// @param shift, bits which part of each word; shift is below 32
void appendRange(QByteArray* text, unsigned int address, const Words& words, int shift, int bits)
{
    text->append('@');
    appendHex(text, address, 8);
    text->append('\n');
    const unsigned int mask = bits < 32 ? (1u << bits) - 1 : ~0u;
    for (unsigned int word : words) {
        appendHex(text, word >> shift & mask, digitsOf(bits));
        text->append('\n');
    }
}

/// Bytes that a word of a block RAM counts in addresses, in which parity bits do not count.
int ramBytesOf(int bits)
{
    return bits % 9 == 0 ? bits / 9 : bytesOf(bits);
}

} // namespace

TargetWriteFileImage::TargetWriteFileImage(eTargetKind_t kind, QObject* parent)
    : TargetMapper(parent)
    , m_kind(kind)
{
}

bool TargetWriteFileImage::writeFile(IODev* dev, const MetaTags*)
{
    if (!checkType(dev))
        return false;
    const TargetFile& file = dev->targets[m_kind];
    if (file.outputFile.isEmpty())
        return fail(errTargetNoOutputFile, QString::fromLatin1(targetKind(m_kind).setName), dev->devName);
    if (!checkSize(dev))
        return false;
    Words words(size_t(dev->memSize), 0);
    for (int addr = 0; addr < dev->memSize; ++addr) {
        unsigned int& word = words[size_t(addr)];
        if (!dev->value(addr, &word))
            return fail(errInternal, tr("addrIterator exceeds memSize"));
        if (file.wordWidth < 32 && word >> file.wordWidth != 0)
            return fail(errTargetWordTooWide, QString::number(addr), QString::number(file.wordWidth), file.outputFile);
    }
    return writeBytes(file.outputFile, bytes(words, file), errTargetOpenOutput);
}

QByteArray TargetWriteFileMif::bytes(const Words& words, const TargetFile& target) const
{
    const int addressDigits = digitsOf(bitsOf(unsigned(words.size() - 1)));
    QByteArray text = "DEPTH = " + QByteArray::number(quint64(words.size())) +
                      ";\n"
                      "WIDTH = " +
                      QByteArray::number(target.wordWidth) +
                      ";\n"
                      "ADDRESS_RADIX = HEX;\n"
                      "DATA_RADIX = HEX;\n"
                      "CONTENT\n"
                      "BEGIN\n";
    for (size_t addr = 0; addr < words.size(); ++addr) {
        appendHex(&text, unsigned(addr), addressDigits);
        text.append(" : ");
        appendHex(&text, words[addr], digitsOf(target.wordWidth));
        text.append(";\n");
    }
    return text + "END;\n";
}

QByteArray TargetWriteFileCoe::bytes(const Words& words, const TargetFile& target) const
{
    QByteArray text = "memory_initialization_radix=16;\n"
                      "memory_initialization_vector=\n";
    for (size_t addr = 0; addr < words.size(); ++addr) {
        appendHex(&text, words[addr], digitsOf(target.wordWidth));
        text.append(addr + 1 < words.size() ? ",\n" : ";\n");
    }
    return text;
}

QByteArray TargetWriteFileBinary::bytes(const Words& words, const TargetFile& target) const
{
    return asBytes(words, bytesOf(target.wordWidth), target.layout == layoutBig);
}

QByteArray TargetWriteFileIntelHex::bytes(const Words& words, const TargetFile& target) const
{
    constexpr int wordsOfRecord = 8;
    constexpr int bound = 0x10000;
    const int bytesOfWord = bytesOf(target.wordWidth);
    const QByteArray data = asBytes(words, bytesOfWord, target.layout != layoutLittle);
    IntelHexText text;
    if (target.layout == layoutWords) {
        for (int addr = 0; addr < int(words.size()); ++addr)
            text.appendData(unsigned(addr), data.constData() + addr * bytesOfWord, bytesOfWord);
        return text.finished();
    }
    for (int addr = 0; addr < data.size();) {
        const int untilBound = bound - addr % bound;
        const int size = std::min({wordsOfRecord * bytesOfWord, untilBound, data.size() - addr});
        text.appendData(unsigned(addr), data.constData() + addr, size);
        addr += size;
    }
    return text.finished();
}

QByteArray TargetWriteFileRamMem::bytes(const Words& words, const TargetFile& target) const
{
    QByteArray text;
    if (target.layout == layoutWhole) {
        appendRange(&text, 0, words, 0, target.wordWidth);
        return text;
    }
    // Of an odd width, the low half has the bit more.
    const int lowBits = (target.wordWidth + 1) / 2;
    // A word of one bit has a high half all the same, of zeros.
    const int highBits = std::max(target.wordWidth - lowBits, 1);
    appendRange(&text, 0, words, 0, lowBits);
    appendRange(&text, unsigned(words.size()) * unsigned(ramBytesOf(lowBits)), words, lowBits, highBits);
    return text;
}

} // namespace nsModAsmFe
