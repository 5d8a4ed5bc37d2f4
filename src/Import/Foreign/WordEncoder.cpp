#include "WordEncoder.h"

#include "ProcTable.h"

namespace nsImport {

using namespace nsModAsmFe;
using namespace nsProc;

namespace {

int wordOfCondition(const QString& condition)
{
    static const QStringList conditions{QString(), "Z", "NZ", "C", "NC"};
    return qMax(conditions.indexOf(condition), 0);
}

} // namespace

quint32 WordEncoder::operands(eOpcode_t opcode, int first, int second, eSecond_t kind) const
{
    const sInstr_t* row = m_table.assembled(opcode);
    const sInstrLayout_t& layout = m_table.layout;
    if (row == nullptr)
        return 0;
    if (kind == eConstantPort)
        return quint32(row->words[wordConstant] + (first << layout.constantShift) + second);
    const int destination = first << layout.dstShift;
    const bool hasForms = row->form == formTwoOperand || row->form == formPort || row->form == formScrpd;
    if (kind == eRegister)
        return quint32(row->words[hasForms ? wordRegister : 0] + destination + (second << layout.srcShift));
    const int shift = row->form == formPort || row->form == formScrpd ? layout.addrShift : 0;
    return quint32(row->words[0] + destination + (second << shift));
}

quint32 WordEncoder::plain(eOpcode_t opcode, const QString& operand) const
{
    const sInstr_t* row = m_table.assembled(opcode);
    if (row == nullptr)
        return 0;
    switch (row->form) {
    case formReturn:
        return quint32(row->words[wordOfCondition(operand)]);
    case formSwitch:
        return quint32(row->words[operand == QLatin1String("ENABLE") ? wordEnable : wordDisable]);
    case formFlag:
        return quint32(row->words[operand == QLatin1String("C") ? wordFlagC : wordFlagZ]);
    case formBank:
        return quint32(row->words[0] + qMax(QString::fromLatin1(m_table.banks).indexOf(operand), 0));
    default:
        return quint32(row->words[0]);
    }
}

quint32 WordEncoder::flow(eOpcode_t opcode, const QString& condition, int target, int address) const
{
    const sInstr_t* row = m_table.assembled(opcode);
    if (row == nullptr)
        return 0;
    const int field = m_table.layout.relativeFlow ? target - address : target;
    return quint32(row->words[wordOfCondition(condition)] + (field & ((1 << m_table.layout.flowBits) - 1)));
}

quint32 WordEncoder::computedFlow(eOpcode_t opcode, int high, int low) const
{
    const sInstr_t* row = m_table.assembled(opcode);
    const sInstrLayout_t& layout = m_table.layout;
    return row == nullptr ? 0
                          : quint32(row->words[wordComputed] + (high << layout.dstShift) + (low << layout.srcShift));
}

int WordEncoder::maxNumber(eOpcode_t opcode) const
{
    const sInstr_t* row = m_table.assembled(opcode);
    const sInstrLayout_t& layout = m_table.layout;
    if (row != nullptr && row->form == formPort)
        return (1 << layout.portBits) - 1;
    if (row != nullptr && row->form == formScrpd)
        return (1 << layout.scrpdBits) - 1;
    return layout.maxNumber;
}

bool WordEncoder::reaches(int address, int target) const
{
    if (!m_table.layout.relativeFlow)
        return true;
    const int half = 1 << (m_table.layout.flowBits - 1);
    return target - address >= -half && target - address < half;
}

} // namespace nsImport
