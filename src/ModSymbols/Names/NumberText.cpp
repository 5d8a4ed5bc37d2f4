#include "NumberText.h"

#include <QCoreApplication>

namespace nsModSymbols::NumberText {

namespace {

/// Digits of a number of bits that is a multiple of a byte.
QString digits(unsigned int value, int base, int bitsADigit)
{
    int bits = 8;
    while (bits < 32 && (value >> bits) != 0)
        bits += 8;
    return QStringLiteral("%1").arg(value, (bits + bitsADigit - 1) / bitsADigit, base, QLatin1Char('0')).toUpper();
}

} // namespace

QString inBases(int value)
{
    const auto bits = static_cast<unsigned int>(value);
    return QStringLiteral("%1 = 0x%2 = b%3").arg(value).arg(digits(bits, 16, 4), digits(bits, 2, 1));
}

QString address(int addr, int page)
{
    const QString text = QCoreApplication::translate("nsModSymbols::NumberText", "address 0x%1")
                             .arg(QStringLiteral("%1").arg(addr, 3, 16, QLatin1Char('0')).toUpper());
    return page < 0 ? text + QCoreApplication::translate("nsModSymbols::NumberText", ", shared range")
                    : text + QCoreApplication::translate("nsModSymbols::NumberText", ", page %1").arg(page);
}

} // namespace nsModSymbols::NumberText
