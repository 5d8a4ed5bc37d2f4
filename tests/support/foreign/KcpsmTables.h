#pragma once

#include <QString>
#include <QtGlobal>

/// The words of the instructions as the documents of the two cores give them, under the names of the two tools.
namespace foreign {

struct TwoOperandWord
{
    const char* word;
    quint32 withNumber;   ///< sX, kk
    quint32 withRegister; ///< sX, sY
};

struct ShiftWord
{
    const char* word;
    quint32 low;
};

struct FlowWord
{
    const char* word;
    quint32 always;
    quint32 ifZ;
    quint32 ifNz;
    quint32 ifC;
    quint32 ifNc;
};

const TwoOperandWord kcpsm3Logic[] = {
    {"LOAD", 0x00000, 0x01000}, {"AND", 0x0A000, 0x0B000},     {"OR", 0x0C000, 0x0D000},  {"XOR", 0x0E000, 0x0F000},
    {"TEST", 0x12000, 0x13000}, {"COMPARE", 0x14000, 0x15000}, {"ADD", 0x18000, 0x19000}, {"ADDCY", 0x1A000, 0x1B000},
    {"SUB", 0x1C000, 0x1D000},  {"SUBCY", 0x1E000, 0x1F000},
};

const TwoOperandWord kcpsm3Memory[] = {
    {"INPUT", 0x04000, 0x05000},
    {"FETCH", 0x06000, 0x07000},
    {"OUTPUT", 0x2C000, 0x2D000},
    {"STORE", 0x2E000, 0x2F000},
};

const FlowWord kcpsm3Flow[] = {
    {"CALL", 0x30000, 0x31000, 0x31400, 0x31800, 0x31C00},
    {"JUMP", 0x34000, 0x35000, 0x35400, 0x35800, 0x35C00},
    {"RETURN", 0x2A000, 0x2B000, 0x2B400, 0x2B800, 0x2BC00},
};

const TwoOperandWord kcpsm6Logic[] = {
    {"LOAD", 0x01000, 0x00000},  {"AND", 0x03000, 0x02000},     {"OR", 0x05000, 0x04000},
    {"XOR", 0x07000, 0x06000},   {"TEST", 0x0D000, 0x0C000},    {"TESTCY", 0x0F000, 0x0E000},
    {"ADD", 0x11000, 0x10000},   {"ADDCY", 0x13000, 0x12000},   {"SUB", 0x19000, 0x18000},
    {"SUBCY", 0x1B000, 0x1A000}, {"COMPARE", 0x1D000, 0x1C000}, {"COMPARECY", 0x1F000, 0x1E000},
};

const TwoOperandWord kcpsm6Memory[] = {
    {"INPUT", 0x09000, 0x08000},
    {"FETCH", 0x0B000, 0x0A000},
    {"OUTPUT", 0x2D000, 0x2C000},
    {"STORE", 0x2F000, 0x2E000},
};

const FlowWord kcpsm6Flow[] = {
    {"CALL", 0x20000, 0x30000, 0x34000, 0x38000, 0x3C000},
    {"JUMP", 0x22000, 0x32000, 0x36000, 0x3A000, 0x3E000},
    {"RETURN", 0x25000, 0x31000, 0x35000, 0x39000, 0x3D000},
};

/// The same on both cores.
const ShiftWord kcpsmShifts[] = {
    {"SLA", 0x00}, {"RL", 0x02},  {"SLX", 0x04}, {"SL0", 0x06}, {"SL1", 0x07},
    {"SRA", 0x08}, {"SRX", 0x0A}, {"RR", 0x0C},  {"SR0", 0x0E}, {"SR1", 0x0F},
};

/// The row of a table for a word in capitals; null if there is none.
template <typename Row, size_t count>
const Row* rowOf(const Row (&table)[count], const QString& word)
{
    for (const Row& row : table) {
        if (word == QLatin1String(row.word))
            return &row;
    }
    return nullptr;
}

/// The word for a condition in capitals ("" for none); false if there is no such condition.
inline bool flowWord(const FlowWord& row, const QString& condition, quint32* word)
{
    if (condition.isEmpty())
        *word = row.always;
    else if (condition == "Z")
        *word = row.ifZ;
    else if (condition == "NZ")
        *word = row.ifNz;
    else if (condition == "C")
        *word = row.ifC;
    else if (condition == "NC")
        *word = row.ifNc;
    else
        return false;
    return true;
}

} // namespace foreign
