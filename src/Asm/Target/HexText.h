#pragma once

#include <QByteArray>

namespace nsModAsmFe {

/// Appends a word as upper-case hexadecimal digits: at least five, with leading zeros, and more where the value needs
/// them.
void appendHexWord(QByteArray* text, unsigned int value);

} // namespace nsModAsmFe
