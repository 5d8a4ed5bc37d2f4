#pragma once

#include <QString>

namespace nsModAsmFe {

class Label;
class LabelList;
class Opcode;
class OpcodeList;

/// A label of the program and the instruction that it stands at.
struct LabelTarget
{
    const Label* label = nullptr; ///< null: there is no such label
    Opcode* opcode = nullptr;     ///< null: no instruction stands at or behind it

    /// @param name as a user types it: with namespace and "::" where it has one; "::" in front of all does no harm
    static LabelTarget find(const LabelList& labels, const OpcodeList& opcodes, const QString& name);
};

} // namespace nsModAsmFe
