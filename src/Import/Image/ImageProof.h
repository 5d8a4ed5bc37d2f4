#pragma once

#include "ImageProofResult.h"

#include "ProcDisassembler.h"

namespace nsProc {
struct ProcTable;
}

namespace nsImport {

/// Compares assembled programs with what another tool has made of their originals.
class ImageProof
{
public:
    /// @param table of the processor, for the texts of instructions; must live as long as the proof
    /// @param maxShown how many differences are described
    explicit ImageProof(const nsProc::ProcTable& table, int maxShown = 10);

    ImageProofResult compare(const ProgramImage& ours, const ProgramImage& reference) const;

private:
    QString instruction(int address, quint32 word) const;

    nsProc::ProcDisassembler m_disassembler;
    int m_maxShown;
};

} // namespace nsImport
