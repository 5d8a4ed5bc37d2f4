#pragma once

#include "Rescue.h"
#include "RescueFlow.h"

#include <QMap>
#include <QSet>

namespace nsImport {

/// Writes the source of an image, whose flow is known.
class RescueWriter
{
public:
    /// All must live as long as this object.
    /// @param vector address of the interrupt vector; -1: there is none of its own
    RescueWriter(const nsProc::ProcTable& table, const nsProc::ProcDisassembler& disassembler,
                 const ProgramImage& image, const RescueFlow& flow, int vector);

    /// @param name of the image, for the comment at the start
    /// @param marksInvalid a word that is no instruction becomes a line that the assembler refuses; else the
    /// instruction with the word 0
    QByteArray source(const QString& name, bool marksInvalid);

    /// Is there a line for this address? Zeros that nothing reaches are left out, targets without a word are added.
    bool isWritten(int address) const { return m_written.contains(address); }
    const QVector<int>& added() const { return m_added; }
    int filledCount() const { return m_filledCount; }
    /// One more than the highest address that has a line.
    int end() const { return m_end; }
    /// Largest address of the scratchpad that an instruction names; -1 if none does.
    int scratchpadMax() const { return m_scratchpadMax; }

private:
    enum ePort_t { portIn, portOut, portConstant };

    bool isTarget(int address) const { return m_flow.targets().contains(address) || address == m_isr; }
    void chooseLines();
    void nameTargets();
    void collectNumbers();
    QString targetName(int address) const;
    QString portName(ePort_t kind, int number) const;
    QStringList operands(int address) const;
    QString instruction(int address) const;
    QString zeroInstruction(int address) const;
    bool continuesTable(int address) const;
    QString character(int address) const;
    void writeHead(const QString& name);
    void writeConstants();
    void writeAddress(int address, bool marksInvalid);
    void writeHeading(int address, bool isBehindGap);
    void writeLine(const QString& statement, const QString& comment);

    const nsProc::ProcTable& m_table;
    const nsProc::ProcDisassembler& m_disassembler;
    const ProgramImage& m_image;
    const RescueFlow& m_flow;
    int m_vector;
    int m_nop = -1; ///< the word of a NOP
    int m_isr = -1; ///< where the instruction at the vector jumps to

    QMap<int, QString> m_names;
    QMap<QString, int> m_ports; ///< by name, so that they are in order
    QSet<int> m_written;
    QVector<int> m_added;
    int m_filledCount = 0;
    int m_end = 0;
    int m_scratchpadMax = -1;

    QString m_text;
    bool m_inUnreached = false; ///< the lines that were written last are not reached
    bool m_ended = true;        ///< the word that was written last never goes on to the next one
};

} // namespace nsImport
