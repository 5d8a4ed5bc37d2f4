#include "HexText.h"

namespace nsModAsmFe {

void appendHexWord(QByteArray* text, unsigned int value)
{
    const int maxDigits = 8;
    char word[maxDigits];
    int digits = 0;
    for (; digits < 5 || (digits < maxDigits && value != 0); ++digits, value >>= 4)
        word[maxDigits - 1 - digits] = hexDigit(value);
    text->append(word + maxDigits - digits, digits);
}

} // namespace nsModAsmFe
