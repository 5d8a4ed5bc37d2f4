#pragma once

#include <QByteArray>

namespace nsModAsmFe {

/// The upper-case digit of the four lowest bits.
inline char hexDigit(unsigned int value)
{
    return "0123456789ABCDEF"[value & 0xf];
}

/// Appends a word as upper-case hexadecimal digits: at least five, with leading zeros, and more where the value needs
/// them.
void appendHexWord(QByteArray* text, unsigned int value);

} // namespace nsModAsmFe
