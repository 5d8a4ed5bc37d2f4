#pragma once

#include "ProcDisassembler.h"
#include "ProgramImage.h"

#include <QMap>
#include <QString>
#include <QVector>

#include <vector>

namespace nsProc {
struct ProcTable;
}

namespace nsImport {

/// Where a word can lead to.
enum eRescueFlow_t {
    rescueInvalid, ///< it is no instruction
    rescueNext,
    rescueJump,
    rescueJumpIf, ///< to the target or to the next word
    rescueCall,   ///< likewise
    rescueReturn,
    rescueReturnIf,
    rescueComputedJump, ///< to anywhere
    rescueComputedCall, ///< to anywhere, and to the next word
};

/// A word of the image, as far as it can be an instruction.
struct RescueWord
{
    const nsProc::ProcDisassembler::sPattern_t* pattern = nullptr; ///< null unless it is an instruction
    eRescueFlow_t flow = rescueInvalid;
    int target = -1;        ///< of a jump or call; -1 if it has none
    bool reachable = false; ///< from the start or the interrupt vector, computed jumps aside
    QString reason;         ///< for the user: why it is no instruction
};

/// The control flow of an image: which words are instructions, what they lead to, and what can be reached.
class RescueFlow
{
public:
    /// All must live as long as this object.
    RescueFlow(const nsProc::ProcTable& table, const nsProc::ProcDisassembler& disassembler, const ProgramImage& image);

    /// Follows the flow from the start and the interrupt vector.
    /// @param vector -1: there is none
    void walk(int vector);

    const RescueWord& word(int address) const { return m_words[size_t(address)]; }
    /// The addresses that jumps and calls lead to, each with the addresses of its calls.
    const QMap<int, QVector<int>>& targets() const { return m_targets; }
    /// Jumps or calls take their target from registers: what they reach is not known.
    bool hasComputedTargets() const { return m_hasComputedTargets; }

private:
    RescueWord decode(int address) const;

    const nsProc::ProcTable& m_table;
    const nsProc::ProcDisassembler& m_disassembler;
    const ProgramImage& m_image;
    std::vector<RescueWord> m_words;
    QMap<int, QVector<int>> m_targets;
    bool m_hasComputedTargets = false;
};

} // namespace nsImport
