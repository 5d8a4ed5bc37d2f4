#pragma once

#include <QString>

/// Numbers as tips and lists show them.
namespace nsModSymbols::NumberText {

/// Decimal, hexadecimal and binary: "26 = 0x1A = b00011010", as the language writes them.
QString inBases(int value);
/// "address 0x012, page 1". @param page -1 for the shared range
QString address(int addr, int page);

} // namespace nsModSymbols::NumberText
