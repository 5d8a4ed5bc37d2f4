#pragma once

#include <QHash>
#include <QList>
#include <QString>

#include <functional>

namespace nsModAsmFe {
class Arg;
class Opcode;
class OpcodeList;
} // namespace nsModAsmFe

/// The plainest possible machine for assembled programs, to see whether the templates compute what they say.
///
/// It knows what the templates use, and stops at anything else. Flags are those of the hardware that the program is
/// for: on a Mico8 the logic instructions leave the carry alone.
class NaiveCpu
{
public:
    NaiveCpu(nsModAsmFe::OpcodeList* program, bool isMico8);

    /// Runs from the instruction up to the return from there.
    /// @return false if it ran into something that the machine does not know, or for longer than `maxSteps`
    bool call(nsModAsmFe::Opcode* entry);

    int reg[32] = {};
    int scratchpad[256] = {};
    bool carry = false;
    bool zero = false;
    bool interruptEn = false;
    int bank = 0;
    int steps = 0; ///< instructions that call() has run
    int maxSteps = 1000000;
    QString problem;
    std::function<int(int port)> readPort;
    QList<QPair<int, int>> written; ///< port and value of every WRPRT

private:
    bool step();
    bool compute();
    bool shift();
    bool flow();
    bool transfer();
    bool flags();
    int value(const nsModAsmFe::Arg* arg) const;
    bool isTaken(const nsModAsmFe::Arg* arg) const;
    nsModAsmFe::Opcode* target(const nsModAsmFe::Arg* first, const nsModAsmFe::Arg* second) const;
    void setResult(int result);
    void doReturn();

    nsModAsmFe::OpcodeList* m_program;
    bool m_isMico8;
    nsModAsmFe::Opcode* m_at = nullptr;
    QList<nsModAsmFe::Opcode*> m_stack;
    bool m_returned = false;
};
