#include "RescueFlow.h"

#include "ProcTable.h"

namespace nsImport {

using namespace nsModAsmFe;
using nsProc::ProcDisassembler;

namespace {

using Operand = ProcDisassembler::sOperand_t;

eRescueFlow_t flowOf(const ProcDisassembler::sPattern_t& pattern)
{
    const bool hasCondition = !pattern.operands.isEmpty() && pattern.operands.first().kind == Operand::word;
    const bool isComputed = !pattern.operands.isEmpty() && pattern.operands.first().kind == Operand::regRef;
    switch (pattern.opcode) {
    case ocJump:
        return isComputed ? rescueComputedJump : hasCondition ? rescueJumpIf : rescueJump;
    case ocCall:
        return isComputed ? rescueComputedCall : rescueCall;
    case ocRet:
        return hasCondition ? rescueReturnIf : rescueReturn;
    case ocReti:
    case ocLoadret:
        return rescueReturn;
    default:
        return rescueNext;
    }
}

bool goesOn(eRescueFlow_t flow)
{
    return flow == rescueNext || flow == rescueJumpIf || flow == rescueCall || flow == rescueReturnIf ||
           flow == rescueComputedCall;
}

} // namespace

RescueFlow::RescueFlow(const nsProc::ProcTable& table, const ProcDisassembler& disassembler, const ProgramImage& image)
    : m_table(table)
    , m_disassembler(disassembler)
    , m_image(image)
    , m_words(size_t(image.size()))
{
    for (int address = 0; address < image.size(); ++address) {
        if (!image.contains(address))
            continue;
        RescueWord& word = m_words[size_t(address)];
        word = decode(address);
        m_hasComputedTargets =
            m_hasComputedTargets || word.flow == rescueComputedJump || word.flow == rescueComputedCall;
        if (word.target < 0)
            continue;
        QVector<int>& callers = m_targets[word.target];
        if (word.flow == rescueCall)
            callers.append(address);
    }
}

RescueWord RescueFlow::decode(int address) const
{
    RescueWord result;
    const quint32 value = m_image.word(address);
    const bool isWord = value >> nsProc::instrWordBits == 0;
    result.pattern = isWord ? m_disassembler.pattern(int(value)) : nullptr;
    if (result.pattern == nullptr) {
        result.reason = QStringLiteral("The %1 has no instruction with this word.").arg(QLatin1String(m_table.name));
        return result;
    }
    result.flow = flowOf(*result.pattern);
    for (const Operand& operand : result.pattern->operands) {
        if (operand.kind != Operand::target)
            continue;
        result.target = m_disassembler.targetAddress(operand, int(value), address);
        if (result.target >= 0 && result.target < ProgramImage::maxSize)
            continue;
        result.reason =
            QStringLiteral("It would lead to address %1, which is outside of any memory.").arg(result.target);
        result.target = -1;
        result.pattern = nullptr;
        result.flow = rescueInvalid;
        break;
    }
    return result;
}

void RescueFlow::walk(int vector)
{
    QVector<int> open = {0};
    // An empty vector is a zero in many images: then the program has no interrupts.
    if (vector >= 0 && m_image.word(vector) != 0)
        open.append(vector);
    while (!open.isEmpty()) {
        const int address = open.takeLast();
        if (!m_image.contains(address) || m_words[size_t(address)].reachable)
            continue;
        RescueWord& word = m_words[size_t(address)];
        word.reachable = true;
        if (word.target >= 0)
            open.append(word.target);
        if (goesOn(word.flow))
            open.append(address + 1);
    }
}

} // namespace nsImport
