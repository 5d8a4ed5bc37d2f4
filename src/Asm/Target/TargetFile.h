#pragma once

#include <QString>

namespace nsModAsmFe {

/// The kinds of output files, in the order in which they are written.
enum eTargetKind_t { kindVhdl, kindVerilog, kindHex, kindMem, targetKindCount };

/// What an output file of any kind needs beside the contents. A field that a kind does not have is not used.
struct TargetFile
{
    bool en = false;
    QString entityName;          ///< of kinds with a template
    QString templateFile;        ///< absolute; of kinds with a template
    QString outputFile;          ///< absolute
    bool outputBySource = false; ///< a source names the output, not the settings
    bool gapStuffingEn = true;   ///< words that nothing wrote are written too; of kinds that can leave them out
};

} // namespace nsModAsmFe
