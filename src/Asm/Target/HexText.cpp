#include "HexText.h"

namespace nsModAsmFe {

void appendHexWord(QByteArray* text, unsigned int value)
{
    int digits = 5;
    while (digits < 8 && (value >> (digits * 4)) != 0)
        ++digits;
    for (int digit = digits - 1; digit >= 0; --digit)
        text->append("0123456789ABCDEF"[(value >> (digit * 4)) & 0xf]);
}

} // namespace nsModAsmFe
