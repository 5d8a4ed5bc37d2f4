#pragma once

#include "TargetFile.h"

#include <QCoreApplication>
#include <QString>

namespace nsNalvoAsm {

/// An output file that the command line asks for, whatever the project writes: `KIND[:OPTION...]=FILE`.
class AsmOutputRequest
{
    Q_DECLARE_TR_FUNCTIONS(AsmOutputRequest)

public:
    /// @return what is wrong with the text; empty if nothing is
    QString parse(const QString& text);

    /// The names of all kinds, for the help: "hex, mem, mif".
    static QString kindNames();

    nsModAsmFe::eTargetKind_t kind = nsModAsmFe::kindHex;
    /// File, width and layout. The file is as it was given; "{DEVICE}" in it is the name of a memory.
    nsModAsmFe::TargetFile target;

    bool isForEachMemory() const;
    /// @param device name of the memory, as the sources call it
    QString fileOf(const QString& device) const;

private:
    QString parseOption(const QString& option);
};

} // namespace nsNalvoAsm
