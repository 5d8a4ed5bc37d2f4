#pragma once

#include <QByteArray>
#include <QString>

namespace nsModAsmFe {
class ModAsmFe;
}

namespace nsNalvoAsm {

/// One line an instruction, in the order of the memory: memory address, range, address in the range, word, file and
/// line, source.
QByteArray listingText(nsModAsmFe::ModAsmFe* asmFe);
/// All labels and constants as JSON.
QByteArray symbolsText(nsModAsmFe::ModAsmFe* asmFe);
/// Writes a report; "-" is standard output.
/// @return why that failed, or an empty text
QString writeReport(const QString& file, const QByteArray& text);

} // namespace nsNalvoAsm
