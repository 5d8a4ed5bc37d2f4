#pragma once

#include <QByteArray>
#include <QString>

namespace nsModAsmFe {
class AsmFeFileHndlr;
struct AsmProgram;
} // namespace nsModAsmFe

namespace nsNalvoAsm {

/// One line an instruction, in the order of the memory: memory address, range, address in the range, word, file and
/// line, source.
QByteArray listingText(const nsModAsmFe::AsmProgram& program, const nsModAsmFe::AsmFeFileHndlr& files);
/// All labels and constants as JSON.
QByteArray symbolsText(const nsModAsmFe::AsmProgram& program, const nsModAsmFe::AsmFeFileHndlr& files);
/// Writes a report; "-" is standard output.
/// @return why that failed, or an empty text
QString writeReport(const QString& file, const QByteArray& text);

} // namespace nsNalvoAsm
