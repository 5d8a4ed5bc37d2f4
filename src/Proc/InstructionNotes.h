#pragma once

#include "eOpcode.h"

#include <QString>

namespace nsProc {

struct ProcTable;

/// The arguments that an instruction takes, such as "register, number or register"; empty for none.
/// @param table null for none: then nothing is known of the form
QString instructionForm(const ProcTable* table, nsModAsmFe::eOpcode_t opcode);
/// What the instruction does, in a few words; empty for ocUndefined.
QString instructionEffect(nsModAsmFe::eOpcode_t opcode);
/// What it does with the flags: "Z: 1 if the result is 0, C: 1 with a borrow".
QString instructionFlags(const ProcTable* table, nsModAsmFe::eOpcode_t opcode);
/// All of it in a line.
QString instructionNote(const ProcTable* table, nsModAsmFe::eOpcode_t opcode);

} // namespace nsProc
