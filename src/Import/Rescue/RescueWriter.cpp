#include "RescueWriter.h"

#include "ProcTable.h"

#include <algorithm>

namespace nsImport {

using namespace nsModAsmFe;
using nsProc::ProcDisassembler;

namespace {

using Operand = ProcDisassembler::sOperand_t;

const int shortestGap = 8; ///< so many zeros behind one another are left out, if nothing reaches them
const int statementColumn = 8;
const int operandColumn = 16;
const int commentColumn = 48;
const int maxCallers = 8; ///< so many are named in a comment

QString hex(quint32 value, int digits)
{
    return QString::number(value, 16).toUpper().rightJustified(digits, '0');
}

QString address3(int address)
{
    return hex(quint32(address), 3);
}

} // namespace

RescueWriter::RescueWriter(const nsProc::ProcTable& table, const ProcDisassembler& disassembler,
                           const ProgramImage& image, const RescueFlow& flow, int vector)
    : m_table(table)
    , m_disassembler(disassembler)
    , m_image(image)
    , m_flow(flow)
    , m_vector(vector)
{
    // The disassembler gives the more general instruction, which says less here.
    if (const nsProc::sInstr_t* nop = m_table.assembled(ocNop))
        m_nop = nop->words[0];
    if (m_vector >= 0 && m_image.word(m_vector) == 0)
        m_vector = -1;
    if (m_vector >= 0 && m_flow.word(m_vector).flow == rescueJump)
        m_isr = m_flow.word(m_vector).target;
    chooseLines();
    nameTargets();
    collectNumbers();
}

void RescueWriter::chooseLines()
{
    for (int address = 0; address < m_image.size();) {
        if (!m_image.contains(address)) {
            ++address;
            continue;
        }
        int end = address;
        while (m_image.contains(end) && m_image.word(end) == 0 && !m_flow.word(end).reachable && !isTarget(end) &&
               end != 0)
            ++end;
        if (end - address >= shortestGap) {
            m_filledCount += end - address;
            address = end;
            continue;
        }
        for (end = std::max(end, address + 1); address < end; ++address)
            m_written.insert(address);
    }
    // A program starts at address 0, and a jump leads to an instruction.
    QVector<int> needed = {0};
    for (auto target = m_flow.targets().cbegin(); target != m_flow.targets().cend(); ++target)
        needed.append(target.key());
    for (int address : needed) {
        if (m_written.contains(address))
            continue;
        m_written.insert(address);
        m_added.append(address);
    }
    for (int address : m_written)
        m_end = std::max(m_end, address + 1);
}

void RescueWriter::nameTargets()
{
    for (auto target = m_flow.targets().cbegin(); target != m_flow.targets().cend(); ++target)
        m_names.insert(target.key(), (target->isEmpty() ? QStringLiteral("label_") : QStringLiteral("routine_")) +
                                         address3(target.key()));
    if (m_isr >= 0)
        m_names.insert(m_isr, QStringLiteral("isr"));
    if (m_vector >= 0)
        m_names.insert(m_vector, QStringLiteral("interrupt"));
    m_names.insert(0, QStringLiteral("start"));
}

QString RescueWriter::targetName(int address) const
{
    return m_names.value(address);
}

QString RescueWriter::portName(ePort_t kind, int number) const
{
    switch (kind) {
    case portIn:
        return QStringLiteral("IN_PORT_") + hex(quint32(number), 2);
    case portOut:
        return QStringLiteral("OUT_PORT_") + hex(quint32(number), 2);
    case portConstant:
        break;
    }
    return QStringLiteral("CONST_PORT_") + hex(quint32(number), 1);
}

/// Finds the ports and scratchpad addresses that instructions name.
void RescueWriter::collectNumbers()
{
    for (int address = 0; address < m_image.size(); ++address) {
        const ProcDisassembler::sPattern_t* pattern = m_flow.word(address).pattern;
        if (pattern == nullptr || !isWritten(address) || pattern->operands.isEmpty())
            continue;
        const Operand& last = pattern->operands.last();
        if (last.kind != Operand::number)
            continue;
        const int number = ProcDisassembler::field(last, int(m_image.word(address)));
        const bool isConstant = pattern->operands.first().kind == Operand::number;
        if (pattern->opcode == ocRdprt)
            m_ports.insert(portName(portIn, number), number);
        else if (pattern->opcode == ocWrprt)
            m_ports.insert(portName(isConstant ? portConstant : portOut, number), number);
        else if (pattern->opcode == ocRdmem || pattern->opcode == ocWrmem)
            m_scratchpadMax = std::max(m_scratchpadMax, number);
    }
}

QStringList RescueWriter::operands(int address) const
{
    const ProcDisassembler::sPattern_t& pattern = *m_flow.word(address).pattern;
    const int word = int(m_image.word(address));
    QStringList texts;
    for (int i = 0; i < pattern.operands.size(); ++i) {
        const Operand& operand = pattern.operands.at(i);
        if (operand.kind != Operand::number) {
            texts.append(
                m_disassembler.operandText(operand, word, address, [this](int target) { return targetName(target); }));
            continue;
        }
        const int number = ProcDisassembler::field(operand, word);
        const bool isConstant = pattern.operands.first().kind == Operand::number;
        const bool isLast = i + 1 == pattern.operands.size();
        if (isLast && pattern.opcode == ocRdprt)
            texts.append(portName(portIn, number));
        else if (isLast && pattern.opcode == ocWrprt)
            texts.append(portName(isConstant ? portConstant : portOut, number));
        else
            texts.append(QStringLiteral("0x") + hex(quint32(number), 2));
    }
    return texts;
}

QString RescueWriter::instruction(int address) const
{
    if (int(m_image.word(address)) == m_nop)
        return mnemonicOfOpcode(ocNop);
    const QString mnemonic = mnemonicOfOpcode(m_flow.word(address).pattern->opcode);
    const QString arguments = operands(address).join(QLatin1String(", "));
    return arguments.isEmpty() ? mnemonic : mnemonic.leftJustified(operandColumn - statementColumn) + arguments;
}

/// The instruction with the word 0, which unused memory holds.
QString RescueWriter::zeroInstruction(int address) const
{
    return m_disassembler.text(0, address, [](int) { return QString(); });
}

QByteArray RescueWriter::source(const QString& name, bool marksInvalid)
{
    m_text.clear();
    m_inUnreached = false;
    m_ended = true;
    writeHead(name);
    writeConstants();
    int next = 0;
    for (int address = 0; address < m_end; ++address) {
        if (!isWritten(address))
            continue;
        writeHeading(address, address != next);
        writeAddress(address, marksInvalid);
        next = address + 1;
    }
    return m_text.toUtf8();
}

void RescueWriter::writeHead(const QString& name)
{
    m_text += QStringLiteral("; Made from the image of a program for the %1%2\n")
                  .arg(QLatin1String(m_table.name), name.isEmpty() ? QString() : ": " + name.simplified());
    m_text += QStringLiteral("; %1 words; behind each line: address and word\n").arg(m_image.count());
    if (m_flow.hasComputedTargets())
        m_text += QStringLiteral(
            "; Some jumps or calls take their target from registers. Where they lead to is not known: moving code\n"
            "; breaks them.\n");
}

void RescueWriter::writeConstants()
{
    if (m_ports.isEmpty())
        return;
    m_text += QStringLiteral("\n; Ports\n");
    const int nameWidth = 16;
    for (auto port = m_ports.cbegin(); port != m_ports.cend(); ++port)
        writeLine(QStringLiteral("#EQU    ") + (port.key() + ',').leftJustified(nameWidth) + QStringLiteral("0x") +
                      hex(quint32(port.value()), 2),
                  QString());
}

/// Does the word belong together with the one before, although that never goes on to it? Tables are such words, and
/// memory that is filled up with jumps.
bool RescueWriter::continuesTable(int address) const
{
    if (!m_image.contains(address) || !m_image.contains(address - 1))
        return false;
    const ProcDisassembler::sPattern_t* pattern = m_flow.word(address).pattern;
    const bool isTable =
        pattern != nullptr && pattern->opcode == ocLoadret && pattern == m_flow.word(address - 1).pattern;
    return isTable || m_image.word(address) == m_image.word(address - 1);
}

/// The character that a word of a table or of a text holds, for its comment; else nothing.
QString RescueWriter::character(int address) const
{
    const ProcDisassembler::sPattern_t& pattern = *m_flow.word(address).pattern;
    const bool isText =
        pattern.opcode == ocLoadret || (pattern.opcode == ocWrprt && pattern.operands.first().kind == Operand::number);
    const auto value = [&](const Operand& operand) {
        return ProcDisassembler::field(operand, int(m_image.word(address)));
    };
    const int code =
        isText ? value(pattern.opcode == ocLoadret ? pattern.operands.last() : pattern.operands.first()) : 0;
    // A backslash could begin a command for the navigator.
    return code > ' ' && code <= '~' && code != '\\' ? QStringLiteral(" '%1'").arg(QChar(code)) : QString();
}

/// What stands in front of an address: empty lines, comments, its label.
/// @param isBehindGap the address is not the one behind the last line
void RescueWriter::writeHeading(int address, bool isBehindGap)
{
    const bool isWord = m_image.contains(address);
    const bool isUnreached = isWord && !m_flow.word(address).reachable;
    const QVector<int> callers = m_flow.targets().value(address);
    const bool isIsr = address == m_vector || address == m_isr;
    if (isIsr || isUnreached != m_inUnreached || !callers.isEmpty() || isBehindGap ||
        (m_ended && !continuesTable(address)) || address == m_vector || address == m_isr)
        m_text += '\n';
    if (isUnreached && !m_inUnreached)
        m_text += m_flow.hasComputedTargets()
                      ? QStringLiteral("; Reached by computed jumps alone, or not at all\n")
                      : QStringLiteral("; Not reached from the start or the interrupt vector\n");
    else if (!isUnreached && m_inUnreached)
        m_text += QStringLiteral("; Reached from the start or the interrupt vector\n");
    m_inUnreached = isUnreached;
    if (address == m_vector)
        m_text += QStringLiteral("; Interrupt vector\n");
    if (address == m_isr)
        m_text += QStringLiteral("; Interrupt routine\n");
    if (!callers.isEmpty()) {
        QStringList places;
        for (int caller : callers.mid(0, maxCallers))
            places.append(address3(caller));
        if (callers.size() > maxCallers)
            places.append(QStringLiteral("... (%1 in all)").arg(callers.size()));
        m_text += QStringLiteral("; Routine, called from ") + places.join(QLatin1String(", ")) + '\n';
    }
    if (isBehindGap)
        writeLine(QStringLiteral("#ORG    ADDR, 0x") + address3(address), QString());
    const QString label = m_names.value(address);
    if (!label.isEmpty())
        m_text += label + QStringLiteral(":\n");
}

void RescueWriter::writeAddress(int address, bool marksInvalid)
{
    m_ended = false;
    if (!m_image.contains(address) || (!m_flow.word(address).pattern && !marksInvalid)) {
        const QString why =
            m_image.contains(address)
                ? hex(m_image.word(address), 5) + QStringLiteral(" is no instruction here, this stands in its place")
                : QStringLiteral("00000 not in the image: something leads here");
        writeLine(zeroInstruction(address), address3(address) + ' ' + why);
        return;
    }
    const RescueWord& word = m_flow.word(address);
    const QString value = hex(m_image.word(address), 5);
    if (word.pattern == nullptr) {
        writeLine(QStringLiteral("NO_INSTRUCTION 0x") + value, address3(address) + ' ' + value + ' ' + word.reason);
        return;
    }
    writeLine(instruction(address), address3(address) + ' ' + value + character(address));
    m_ended = word.flow == rescueJump || word.flow == rescueReturn || word.flow == rescueComputedJump;
}

void RescueWriter::writeLine(const QString& statement, const QString& comment)
{
    const QString line = QString(statementColumn, ' ') + statement;
    m_text += comment.isEmpty() ? line + '\n' : (line + ' ').leftJustified(commentColumn) + "; " + comment + '\n';
}

} // namespace nsImport
