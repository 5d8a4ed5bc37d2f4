#pragma once

#include "InstructionWords.h"

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

namespace nsModAsmFe {

class AsmBackend;

/// The words with a meaning: those of the language and those of the processor. The name rule, the typing of arguments,
/// the highlighter and the insertion menu read them here.
class AsmWords
{
public:
    AsmWords();

    /// Takes over the names of the processor. @param backend null for none; not kept
    void setProcessor(AsmBackend* backend);

    /// The words of all instructions, those of other processors too.
    const QStringList& instructionWords() const { return nsModAsmFe::instructionWords(); }
    /// Words for arguments, such as flags.
    const QStringList& argumentWords() const { return m_argumentWords; }
    /// Does an instruction have this name? @param upper in upper case
    bool isInstruction(const QString& upper) const { return m_instructionWordSet.contains(upper); }
    /// Is it a word for an argument, such as a flag? @param upper in upper case
    bool isArgument(const QString& upper) const { return m_argumentWordSet.contains(upper); }
    /// Registers of the processor with their numbers; names are compared with case.
    const QHash<QString, int>& regs() const { return m_regTable; }
    /// Register banks of the processor with their numbers; names are compared with case.
    const QHash<QString, int>& banks() const { return m_bankTable; }

private:
    QStringList m_argumentWords;
    QSet<QString> m_instructionWordSet;
    QSet<QString> m_argumentWordSet;
    QHash<QString, int> m_regTable;
    QHash<QString, int> m_bankTable;
};

} // namespace nsModAsmFe
