#pragma once

#include "Encodings.h"

#include <QString>

#include <vector>

/// One form of an instruction as a decoder sees it: the bits that must have a value, and fields for the rest.
///
/// Fields in the text are a letter of an operand and the place of its lowest bit, such as {r8}; see Encodings.h for the
/// letters. Registers have 4 or 5 bits, numbers and ports 8, constant ports 4, scratchpad addresses and targets as many
/// as given below.
struct sDecoding
{
    int mask;
    int match;
    const char* text;
};

/// What a processor's words look like to a decoder.
struct sDecoder
{
    const sInstrSet* set;
    int regBits;
    int portBits;
    int scrpdBits;
    int flowBits;
    std::vector<sDecoding> decodings;

    /// Number of bits of a field.
    int bitsOf(QChar letter) const;
};

const sDecoder& decoderOf(const sInstrSet& set);
const sDecoder& picoBlaze3Decoder();
const sDecoder& picoBlaze6Decoder();
const sDecoder& mico8Decoder();

/// Turns words back into the text of instructions.
///
/// Only canonical words have a text: words that the assembler can make. Some of their bits hold nothing, such as the
/// lowest four of a register form; a word with any of those bits set has no text, since no text makes it. Where two
/// texts make one word, the more general one is given: a NOP is the load of the first register with itself, a rotate
/// inside one register is one of two registers, and a Mico8 port number beyond 31 is what its sum with the register
/// makes of it.
class Disassembler
{
public:
    explicit Disassembler(const sInstrSet& set)
        : m_decoder(decoderOf(set))
    {
    }

    /// The instruction of a word, with the labels of ProcProgram as targets; empty if there is none.
    /// @param address of the word, to which relative targets are counted
    QString text(int word, int address) const;
    /// Number of forms that match a word; more than one is a defect of the table.
    int matches(int word) const;

private:
    QString fill(const sDecoding& decoding, int word, int address) const;

    const sDecoder& m_decoder;
};
