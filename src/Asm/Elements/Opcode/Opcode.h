#pragma once

#include "Arg.h"
#include "ArgExt.h"
#include "SrcReference.h"
#include "eOpcode.h"

#include <QString>

namespace nsModAsmFe {

/// One source line with an instruction.
///
/// The fields are filled in one after the other within one run: text by parsing, types by the instruction check,
/// `instWord` by the back end's first stage. After writing `memRange`, `pageAddr` or `memAddr`, call addressesChanged()
/// of the list.
class alignas(64) Opcode final
{
public:
    Opcode() = default;
    Opcode(const Opcode&) = delete;
    Opcode& operator=(const Opcode&) = delete;

    // There can be millions of instructions, and they are iterated often: they are allocated in blocks, and the fields
    // that every iteration reads come first.
    static void* operator new(size_t size);
    static void operator delete(void* memory);

    SrcReference srcRef;
    eOpcode_t opcode = ocUndefined;
    Opcode* prev = nullptr; ///< in source order; not owned
    Opcode* next = nullptr;
    int memRange = -1; ///< 0 the shared range, n + 1 for page n, -1 until mapped
    int memAddr = -1;  ///< address in the instruction memory, -1 until mapped
    int pageAddr = -1; ///< address within the range, -1 until mapped
    int instWord = 0;  ///< machine word, 18 bits
    bool mappedToIODev = false;
    /// Simulator breakpoint; only the simulators write it.
    char breakpoint = 0;
    QString nameSpace; ///< namespace at this line
    QString name;      ///< mnemonic in upper case
    // Each of these is an array of one element, so that it reads as the pointer to an argument that is always there.
    Arg arg0[1]; ///< a missing argument has the type `empty`
    Arg arg1[1];
    ArgExt arg0Ext[1];
    ArgExt arg1Ext[1];
};

} // namespace nsModAsmFe
