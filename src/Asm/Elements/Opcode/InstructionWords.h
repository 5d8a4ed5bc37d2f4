#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace nsModAsmFe {

/// The words of all instructions, in the order of the highlighter's rules.
const QStringList& instructionWords();

/// One sub menu of the insertion menu's instructions.
struct sInstructionGroup_t
{
    const char* name;
    QStringList words;
};

/// Each instruction is in at least one of them.
const QList<sInstructionGroup_t>& instructionGroups();

} // namespace nsModAsmFe
