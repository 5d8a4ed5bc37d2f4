// VHDL and Verilog with the first contents of block RAMs: which words the blocks of 256 bits hold.

#include "HdlText.h"
#include "ImageBuilder.h"

#include <QRegularExpression>

#include <algorithm>
#include <vector>

namespace nsImport {

namespace {

const int hdlWordBits = 18;
const quint32 wholeWord = (1u << hdlWordBits) - 1;
const int blockBits = 256;

/// What a memory holds of the words: 16 data bits and 2 parity bits of each, or half of it.
struct sPlace_t
{
    int width = 0; ///< bits of a word that the memory holds: 18, or 9; 0: not known
    int shift = 0; ///< place of the lowest one
    int base = 0;  ///< address of the first word
};

/// A part of a name that tells which half a memory holds.
struct sHalfName_t
{
    const char* name;
    bool high;
};

const sHalfName_t halfNames[] = {
    {"l", false}, {"lo", false}, {"low", false}, {"lower", false}, {"lsb", false},
    {"h", true},  {"hi", true},  {"high", true}, {"upper", true},  {"msb", true},
};

QRegularExpression pattern(const QString& text)
{
    return QRegularExpression(text, QRegularExpression::CaseInsensitiveOption);
}

/// Number of a memory's own words: its blocks reach up to a power of two.
int capacity(const HdlMemory& memory, int width)
{
    int blocks = 64; // the smallest RAMs have so many
    while (!memory.data.isEmpty() && blocks <= memory.data.lastKey())
        blocks *= 2;
    return blocks * blockBits / (width == 9 ? 8 : 16);
}

/// The ends of a name behind its last underscore, such as "lh"; the whole name if it has none.
QString ending(const QString& label)
{
    return label.mid(label.lastIndexOf('_') + 1).toLower();
}

/// -1: the name tells nothing; 0: the low half; 1: the high half
int halfOf(const QString& name)
{
    for (const sHalfName_t& half : halfNames) {
        if (name == QLatin1String(half.name))
            return half.high ? 1 : 0;
    }
    return -1;
}

/// Two letters: which half of the addresses, and which half of the bits.
bool isQuarter(const QString& name)
{
    return name.size() == 2 && QStringLiteral("lh").contains(name.at(0)) && QStringLiteral("lh").contains(name.at(1));
}

/// -1: the ports do not tell; 0: bits 8 to 0; 1: bits 17 to 9
int halfOfPorts(const QString& text)
{
    static const QRegularExpression low = pattern(QStringLiteral("[(\\[]\\s*8\\s*(?:downto|:)\\s*0\\s*[)\\]]"));
    static const QRegularExpression high = pattern(QStringLiteral("[(\\[]\\s*17\\s*(?:downto|:)\\s*9\\s*[)\\]]"));
    const bool isLow = low.match(text).hasMatch();
    const bool isHigh = high.match(text).hasMatch();
    return isLow == isHigh ? -1 : isHigh ? 1 : 0;
}

/// The width of the memory as its generics, its component or its label say it; 0 if they do not.
int statedWidth(const HdlMemory& memory)
{
    static const QRegularExpression generic =
        pattern(QStringLiteral("\\b(?:READ_WIDTH|DATA_WIDTH|READ_WIDTH_A|DATA_WIDTH_A)\\s*(?:=>|\\()\\s*(\\d+)"));
    static const QRegularExpression component = pattern(QStringLiteral("(?:_S|x_?)(9|18|36)$"));
    int width = generic.match(memory.text).captured(1).toInt();
    for (const QString& name : {memory.component, memory.label}) {
        if (width == 0)
            width = component.match(name).captured(1).toInt();
    }
    return width;
}

/// Reads the words of all memories into the image.
class WordMerger
{
public:
    explicit WordMerger(ImageBuilder* image)
        : m_image(*image)
    {
    }

    bool add(const HdlMemory& memory, const sPlace_t& place)
    {
        const int dataBits = place.width == 9 ? 8 : 16;
        const int parityBits = place.width - dataBits;
        const int wordsPerBlock = blockBits / dataBits;
        const int lastBlock = std::max(memory.data.isEmpty() ? -1 : memory.data.lastKey(),
                                       memory.parity.isEmpty() ? -1 : memory.parity.lastKey() * 8 + 7);
        for (int block = 0; block <= lastBlock; ++block) {
            // What a memory does not name is zero; such words are left out, but where their parity is named.
            const HdlMemory::Block data = memory.data.value(block);
            const HdlMemory::Block parity = memory.parity.value(block / 8);
            for (int i = 0; i < wordsPerBlock; ++i) {
                const int index = block * wordsPerBlock + i;
                const quint32 high = bits(parity.bytes, (index * parityBits) % blockBits, parityBits);
                if (data.bytes.isEmpty() && high == 0)
                    continue;
                const quint32 word = bits(data.bytes, i * dataBits, dataBits) | high << dataBits;
                const int line = data.bytes.isEmpty() ? parity.line : data.line;
                if (!addBits(place.base + index, word << place.shift, ((1u << place.width) - 1) << place.shift, line))
                    return false;
            }
        }
        return true;
    }

    bool finish()
    {
        for (size_t address = 0; address < m_words.size(); ++address) {
            const sWord_t& word = m_words[address];
            if (word.mask == 0)
                continue;
            if (word.mask != wholeWord)
                return m_image.fail(
                    word.line, QStringLiteral("Half of the word at address %1 is missing.").arg(hexText(address, 3)));
            if (!m_image.add(qint64(address), word.value, word.line))
                return false;
        }
        return true;
    }

private:
    struct sWord_t
    {
        quint32 value = 0;
        quint32 mask = 0; ///< bits that are known
        int line = 0;
    };

    static quint32 bits(const QByteArray& bytes, int first, int count)
    {
        quint32 value = 0;
        for (int i = 0; i < count && !bytes.isEmpty(); ++i)
            value |= quint32(uchar(bytes.at((first + i) / 8)) >> ((first + i) % 8) & 1) << i;
        return value;
    }

    bool addBits(int address, quint32 value, quint32 mask, int line)
    {
        if (size_t(address) >= m_words.size())
            m_words.resize(size_t(address) + 1);
        sWord_t& word = m_words[size_t(address)];
        if (((word.value ^ value) & word.mask & mask) != 0)
            return m_image.fail(line, QStringLiteral("The memories hold different words for address %1: see line %2.")
                                          .arg(hexText(quint64(address), 3))
                                          .arg(word.line));
        if (word.mask == 0)
            word.line = line;
        word.value |= value;
        word.mask |= mask;
        return true;
    }

    ImageBuilder& m_image;
    std::vector<sWord_t> m_words;
};

class HdlPlaces
{
public:
    HdlPlaces(const QVector<HdlMemory>& memories, ImageBuilder* image)
        : m_memories(memories)
        , m_image(*image)
    {
    }

    /// @return false after a reported error
    bool find(QVector<sPlace_t>* places) const
    {
        for (const HdlMemory& memory : m_memories) {
            sPlace_t place;
            if (!findWidth(memory, &place) || !findHalf(memory, &place))
                return false;
            places->append(place);
        }
        placeBanks(places);
        return true;
    }

private:
    bool findWidth(const HdlMemory& memory, sPlace_t* place) const
    {
        place->width = statedWidth(memory);
        if (place->width == 0) {
            const bool isHalf =
                halfOfPorts(memory.text) >= 0 ||
                (m_memories.size() > 1 && (halfOf(ending(memory.label)) >= 0 || isQuarter(ending(memory.label))));
            place->width = isHalf ? 9 : m_memories.size() == 1 ? 18 : 0;
        }
        if (place->width == 9 || place->width == 18)
            return true;
        if (place->width != 0)
            return m_image.fail(memory.line, QStringLiteral("%1 has words of %2 bits; only 18 and 9 are understood.")
                                                 .arg(nameOf(memory))
                                                 .arg(place->width));
        return m_image.fail(memory.line, QStringLiteral("It can not be told which bits of the words %1 holds: neither "
                                                        "its kind, its width, its ports nor its name say it.")
                                             .arg(nameOf(memory)));
    }

    bool findHalf(const HdlMemory& memory, sPlace_t* place) const
    {
        if (memory.parity.isEmpty())
            return m_image.fail(memory.line, QStringLiteral("%1 has no INITP strings: the highest bits of its words "
                                                            "are missing.")
                                                 .arg(nameOf(memory)));
        if (place->width == 18)
            return true;
        const QString name = ending(memory.label);
        int half = halfOfPorts(memory.text);
        if (isQuarter(name)) {
            half = name.at(1) == 'h' ? 1 : 0;
            place->base = name.at(0) == 'h' ? capacity(memory, place->width) : 0;
        } else if (half < 0) {
            half = halfOf(name);
        }
        if (half < 0)
            return m_image.fail(memory.line,
                                QStringLiteral("It can not be told which half of the words %1 holds: neither its ports "
                                               "nor its name say it.")
                                    .arg(nameOf(memory)));
        place->shift = half * 9;
        return true;
    }

    /// Memories of whole words with different contents are one behind the other if their names count them.
    void placeBanks(QVector<sPlace_t>* places) const
    {
        static const QRegularExpression number(QStringLiteral("^(.*?)(\\d+)$"));
        for (int i = 0; i < m_memories.size(); ++i) {
            const QRegularExpressionMatch match = number.match(m_memories.at(i).label);
            const QString name = ending(m_memories.at(i).label);
            const int bank = match.hasMatch() ? match.captured(2).toInt() : halfOf(name);
            if (places->at(i).width != 18 || bank != i || m_memories.size() < 2)
                return;
        }
        for (int i = 1; i < m_memories.size(); ++i) {
            (*places)[i].base = places->at(i - 1).base + capacity(m_memories.at(i - 1), 18);
            m_image.note(QStringLiteral("%1 is taken as the memory from address %2 on.")
                             .arg(nameOf(m_memories.at(i)), hexText(quint64(places->at(i).base), 3)));
        }
    }

    static QString nameOf(const HdlMemory& memory)
    {
        return memory.label.isEmpty() ? QStringLiteral("The memory") : '"' + memory.label + '"';
    }

    const QVector<HdlMemory>& m_memories;
    ImageBuilder& m_image;
};

} // namespace

bool readHdl(const QByteArray& content, ImageBuilder* image)
{
    if (image->options().wordBits != hdlWordBits)
        return image->fail(0, QStringLiteral("INIT strings are read for words of 18 bits only."));
    QVector<HdlMemory> memories;
    QVector<sPlace_t> places;
    if (!findHdlMemories(content, &memories, image) || !HdlPlaces(memories, image).find(&places))
        return false;
    WordMerger words(image);
    for (int i = 0; i < memories.size(); ++i) {
        if (!words.add(memories.at(i), places.at(i)))
            return false;
    }
    return words.finish();
}

} // namespace nsImport
