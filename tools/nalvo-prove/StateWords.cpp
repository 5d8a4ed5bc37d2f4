#include "StateWords.h"

namespace nsNalvoProve {

namespace {

const int startUp = 16; ///< clocks to spare

/// The instructions that these programs take.
struct Instructions
{
    int load;     ///< register, constant
    int readCell; ///< register, address
    int writeCell;
    int writePort;
};

const Instructions picoBlaze3 = {0x00000, 0x06000, 0x2E000, 0x2C000};
const Instructions picoBlaze6 = {0x01000, 0x0B000, 0x2F000, 0x2D000};
const int picoBlaze6Banks[] = {0x37000, 0x37001};

// Mico8
const int lm8Load = 0x12000;
const int lm8WritePort = 0x2E000;
const int lm8WriteCell = 0x2E006; ///< the address in a register
const int lm8ReadCell = 0x2E007;  ///< the same
const int lm8Address = 1;         ///< the register of the address
const int lm8UpperAddress = 13;   ///< and that of its upper byte

const Instructions& instructionsOf(const CoreKind& kind)
{
    return kind.core == CoreKind::corePicoBlaze3 ? picoBlaze3 : picoBlaze6;
}

int with(int instruction, int reg, int number)
{
    return instruction | reg << 8 | number;
}

void setLm8Address(Words* words, int cell)
{
    if (cell % 256 == 0)
        words->push_back(with(lm8Load, lm8UpperAddress, cell >> 8 & 0xFF));
    words->push_back(with(lm8Load, lm8Address, cell & 0xFF));
}

Words lm8Fill(const std::vector<int>& cells)
{
    // The core begins at address 1.
    Words words = {0, with(lm8Load, 14, 0), with(lm8Load, 15, 0)};
    for (size_t cell = 0; cell < cells.size(); ++cell) {
        if (cells[cell] == 0 && cell % 256 != 0)
            continue;
        setLm8Address(&words, int(cell));
        words.push_back(with(lm8Load, 0, cells[cell]));
        words.push_back(lm8WriteCell | lm8Address << 3);
    }
    for (const int reg : {0, lm8Address, lm8UpperAddress})
        words.push_back(with(lm8Load, reg, 0));
    return words;
}

Words lm8Show(int registers, int cells)
{
    Words words = {0};
    for (int reg = 0; reg < registers; ++reg)
        words.push_back(lm8WritePort | reg << 8);
    words.push_back(with(lm8Load, 14, 0));
    words.push_back(with(lm8Load, 15, 0));
    for (int cell = 0; cell < cells; ++cell) {
        setLm8Address(&words, cell);
        words.push_back(lm8ReadCell | lm8Address << 3);
        words.push_back(lm8WritePort);
    }
    return words;
}

} // namespace

Words wordsThatFill(const CoreKind& kind, const std::vector<int>& cells)
{
    if (kind.core == CoreKind::coreMico8)
        return lm8Fill(cells);
    const Instructions& instructions = instructionsOf(kind);
    Words words;
    for (size_t cell = 0; cell < cells.size(); ++cell) {
        if (cells[cell] == 0)
            continue;
        words.push_back(with(instructions.load, 0, cells[cell]));
        words.push_back(with(instructions.writeCell, 0, int(cell)));
    }
    words.push_back(with(instructions.load, 0, 0));
    return words;
}

Words wordsThatShow(const CoreKind& kind, int registers, int cells)
{
    if (kind.core == CoreKind::coreMico8)
        return lm8Show(registers, cells);
    const Instructions& instructions = instructionsOf(kind);
    Words words;
    const bool hasBanks = kind.core == CoreKind::corePicoBlaze6;
    for (int bank = 0; bank < (hasBanks ? 2 : 1); ++bank) {
        if (hasBanks)
            words.push_back(picoBlaze6Banks[bank]);
        for (int reg = 0; reg < registers; ++reg)
            words.push_back(with(instructions.writePort, reg, 0));
    }
    for (int cell = 0; cell < cells; ++cell) {
        words.push_back(with(instructions.readCell, 0, cell));
        words.push_back(with(instructions.writePort, 0, 0));
    }
    return words;
}

qint64 clocksOf(const CoreKind& kind, const Words& words, int waitStates)
{
    const int most = kind.core == CoreKind::coreMico8 ? 3 + waitStates : 2;
    return qint64(words.size()) * most + startUp;
}

} // namespace nsNalvoProve
