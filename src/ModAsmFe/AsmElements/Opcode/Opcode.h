#pragma once

#include "Arg.h"
#include "ArgExt.h"
#include "SrcReference.h"
#include "eOpcode.h"

#include <QString>

namespace nsModAsmFe {

/// One source line with an instruction.
///
/// Its fields fill up within one run and never go back: text after parsing, types after the instruction check, `instWord` after
/// the back end's first stage. Whoever writes `memRange`, `pageAddr` or `memAddr` tells the list by addressesChanged().
class Opcode
{
public:
    Opcode() : arg0(&m_arg0), arg1(&m_arg1), arg0Ext(&m_arg0Ext), arg1Ext(&m_arg1Ext) {}
    Opcode(const Opcode&) = delete;
    Opcode& operator=(const Opcode&) = delete;

    SrcReference srcRef;
    Opcode* prev = nullptr; ///< in source order; not owned
    Opcode* next = nullptr;
    QString nameSpace; ///< namespace at this line
    QString name;      ///< mnemonic in upper case
    eOpcode_t opcode = ocUndefined;
    Arg* const arg0; ///< owned, always there; a missing argument has the type `empty`
    Arg* const arg1;
    ArgExt* const arg0Ext;
    ArgExt* const arg1Ext;
    int memRange = -1; ///< 0 the shared range, n + 1 for page n, -1 until mapped
    int memAddr = -1;  ///< address in the instruction memory, -1 until mapped
    int pageAddr = -1; ///< address within the range, -1 until mapped
    int instWord = 0;  ///< machine word, 18 bits
    bool mappedToIODev = false;
    /// Simulator breakpoint; only the simulators write it.
    char breakpoint = 0;

private:
    // The arguments lie inside the opcode: one allocation an instruction, and neighbours in memory.
    Arg m_arg0;
    Arg m_arg1;
    ArgExt m_arg0Ext;
    ArgExt m_arg1Ext;
};

} // namespace nsModAsmFe
