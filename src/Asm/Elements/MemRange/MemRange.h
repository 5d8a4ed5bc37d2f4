#pragma once

#include "SrcReference.h"

#include <QString>

namespace nsModAsmFe {

class Opcode;

/// One range of the instruction memory, or a piece of it if the sources open the range more than once.
class MemRange
{
public:
    MemRange* next = nullptr;      ///< the following range in list order; not owned
    QString name;                  ///< as written, such as `PAGE0`
    int number = 0;                ///< 0 shared, n + 1 for page n
    SrcReference srcRef;           ///< position of the directive that opens it
    int opcodeCount = 0;           ///< instructions that fell into it
    Opcode* firstOpcode = nullptr; ///< the first of them; not owned, the others follow it in source order
};

} // namespace nsModAsmFe
