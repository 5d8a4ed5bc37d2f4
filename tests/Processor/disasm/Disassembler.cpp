#include "Disassembler.h"

#include "ProcProgram.h"

int sDecoder::bitsOf(QChar letter) const
{
    switch (letter.toLatin1()) {
    case 'r':
        return regBits;
    case 'p':
        return portBits;
    case 's':
        return scrpdBits;
    case 'c':
        return 4;
    case 'a':
    case 'o':
        return flowBits;
    default:
        return 8;
    }
}

const sDecoder& decoderOf(const sInstrSet& set)
{
    if (&set == &picoBlaze3())
        return picoBlaze3Decoder();
    return &set == &picoBlaze6() ? picoBlaze6Decoder() : mico8Decoder();
}

QString Disassembler::text(int word, int address) const
{
    for (const sDecoding& decoding : m_decoder.decodings) {
        if ((word & decoding.mask) == decoding.match)
            return fill(decoding, word, address);
    }
    return QString();
}

int Disassembler::matches(int word) const
{
    int count = 0;
    for (const sDecoding& decoding : m_decoder.decodings)
        count += int((word & decoding.mask) == decoding.match);
    return count;
}

QString Disassembler::fill(const sDecoding& decoding, int word, int address) const
{
    QString text = decoding.text;
    int brace = text.indexOf('{');
    while (brace >= 0) {
        const int end = text.indexOf('}', brace);
        const QChar letter = text.at(brace + 1);
        const int place = text.mid(brace + 2, end - brace - 2).toInt();
        const int bits = m_decoder.bitsOf(letter);
        int value = (word >> place) & ((1 << bits) - 1);
        // Distances have a sign.
        if (letter == 'o' && value >= 1 << (bits - 1))
            value -= 1 << bits;
        text.replace(brace, end - brace + 1, operandText(*m_decoder.set, letter, value, address));
        brace = text.indexOf('{');
    }
    return text;
}
