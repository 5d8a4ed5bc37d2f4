// The instruction memory, decoded from its words as the core decodes them.

#include "Opcode.h"
#include "OpcodeList.h"
#include "ProcDisassembler.h"
#include "ProcSimProgram.h"

#include <algorithm>

namespace nsProc {

using namespace nsModAsmFe;

/// Decodes the words of a memory. What a word does is found by the pattern of the disassembler that it matches.
class ProcSimProgram::MemoryDecoder
{
public:
    MemoryDecoder(ProcSimProgram* program, int regCount)
        : m_program(*program)
        , m_table(*program->m_table)
        , m_regCount(regCount)
        , m_disassembler(*program->m_table)
    {
    }

    void decode(int position);

private:
    using sPattern_t = ProcDisassembler::sPattern_t;
    using sOperand_t = ProcDisassembler::sOperand_t;

    void takePattern(const sPattern_t& pattern, int word);
    void takeOperand(const sPattern_t& pattern, int index, int value);
    void takeWord(const sPattern_t& pattern, const QString& text);
    int targetOf(int value, int bits) const;
    bool isLeftToStep() const;
    quint8 reg(int number) const { return quint8(m_table.core.takesRegModulo ? number % m_regCount : number); }
    int pageStart() const { return m_position - m_position % m_program.m_pageSize; }

    ProcSimProgram& m_program;
    const ProcTable& m_table;
    int m_regCount;
    ProcDisassembler m_disassembler;
    QHash<int, const sPattern_t*> m_patternOf; ///< by word; null if there is none
    int m_position = 0;
    sSimInstr_t* m_instr = nullptr; ///< of the position
};

void ProcSimProgram::MemoryDecoder::decode(int position)
{
    const int size = m_program.m_pageSize;
    const int word = m_program.word(position);
    m_position = position;
    m_instr = &m_program.m_instrs[size_t(position)];
    m_instr->op = ocUndefined | sSimInstr_t::leftToStep;
    m_instr->mode = sSimInstr_t::byNumber;
    m_instr->next = pageStart() + (position % size + 1) % size;
    m_instr->target = sSimInstr_t::none;
    // Most cells of a large memory hold the same word.
    auto known = m_patternOf.constFind(word);
    if (known == m_patternOf.constEnd()) {
        const QVector<sPattern_t>& patterns = m_disassembler.patterns();
        const auto found = std::find_if(patterns.begin(), patterns.end(), [word](const sPattern_t& pattern) {
            return (word & pattern.mask) == pattern.match;
        });
        known = m_patternOf.insert(word, found != patterns.end() ? &*found : nullptr);
    }
    if (known.value() != nullptr)
        takePattern(*known.value(), word);
}

void ProcSimProgram::MemoryDecoder::takePattern(const sPattern_t& pattern, int word)
{
    m_instr->op = quint8(pattern.opcode);
    switch (pattern.opcode) {
    case ocJump:
    case ocCall:
    case ocRet:
    case ocReti:
        m_instr->mode = sSimInstr_t::always;
        break;
    default:
        break;
    }
    for (int i = 0; i < pattern.operands.size(); ++i) {
        const sOperand_t& operand = pattern.operands.at(i);
        if (operand.kind == sOperand_t::word)
            takeWord(pattern, operand.text);
        else
            takeOperand(pattern, i, (word >> operand.shift) & ((1 << operand.bits) - 1));
    }
    if (isLeftToStep())
        m_instr->op |= sSimInstr_t::leftToStep;
}

void ProcSimProgram::MemoryDecoder::takeOperand(const sPattern_t& pattern, int index, int value)
{
    const sOperand_t& operand = pattern.operands.at(index);
    switch (operand.kind) {
    case sOperand_t::target:
        m_instr->target = targetOf(value, operand.bits);
        break;
    case sOperand_t::number:
        // The constant that is written stands in front of its port.
        if (index == 0) {
            m_instr->mode = sSimInstr_t::constantPort;
            m_instr->target = value;
        } else {
            m_instr->value = value;
        }
        break;
    case sOperand_t::reg:
    case sOperand_t::regRef:
        if (index == 0) {
            m_instr->dst = reg(value);
            break;
        }
        m_instr->src = reg(value);
        if (pattern.opcode == ocJump || pattern.opcode == ocCall)
            m_instr->target = sSimInstr_t::computed;
        else
            m_instr->mode = sSimInstr_t::byRegister;
        break;
    case sOperand_t::word:
        break;
    }
}

/// A condition, a switch, a flag or a bank.
void ProcSimProgram::MemoryDecoder::takeWord(const sPattern_t& pattern, const QString& text)
{
    switch (pattern.opcode) {
    case ocInt:
    case ocReti:
        m_instr->value = text == QLatin1String("ENABLE") ? 1 : 0;
        break;
    case ocRegbank:
        m_instr->value = text == QLatin1String("B") ? 1 : 0;
        break;
    case ocClr:
    case ocSet:
        m_instr->dst = text == QLatin1String("Z") ? 1 : 0;
        break;
    default:
        m_instr->mode = text == QLatin1String("Z")    ? sSimInstr_t::ifZero
                        : text == QLatin1String("NZ") ? sSimInstr_t::ifNotZero
                        : text == QLatin1String("C")  ? sSimInstr_t::ifCarry
                                                      : sSimInstr_t::ifNotCarry;
    }
}

/// The position of a jump's target. A word knows an address alone; its source knows the page, too.
int ProcSimProgram::MemoryDecoder::targetOf(int value, int bits) const
{
    const int size = m_program.m_pageSize;
    int addr = value;
    if (m_table.layout.relativeFlow) {
        const bool isBackwards = value >> (bits - 1) != 0;
        addr = m_position % size + value - (isBackwards ? 1 << bits : 0);
    }
    int start = pageStart();
    if (const Opcode* opcode = m_program.opcode(m_position)) {
        const Opcode* label = opcode->arg0->type == Arg::label   ? opcode->arg0->labelOpcode
                              : opcode->arg1->type == Arg::label ? opcode->arg1->labelOpcode
                                                                 : nullptr;
        if (label != nullptr && label->memRange > 0 && label->memRange <= m_program.count() / size)
            start = (label->memRange - 1) * size;
    }
    return start + ((addr % size) + size) % size;
}

bool ProcSimProgram::MemoryDecoder::isLeftToStep() const
{
    // An empty cell is reported.
    if (m_program.opcode(m_position) == nullptr)
        return true;
    switch (m_instr->op) {
    case ocInt:
    case ocReti:
    case ocRdprt:
    case ocWrprt:
    case ocHwbuild:
        return true;
    default:
        return false;
    }
}

void ProcSimProgram::decodeMemory(const OpcodeList& opcodes, int regCount, int pageSize, int pageCount)
{
    clear();
    m_pageSize = pageSize;
    m_instrs.resize(size_t(pageSize) * size_t(pageCount));
    m_opcodes.assign(m_instrs.size(), nullptr);
    const auto place = [this, pageSize](Opcode* opcode, int page) {
        if (opcode->pageAddr < 0 || opcode->pageAddr >= pageSize)
            return;
        const int position = page * pageSize + opcode->pageAddr;
        // As the look-up by address: the first of an address counts.
        if (m_opcodes[size_t(position)] == nullptr)
            m_opcodes[size_t(position)] = opcode;
        if (!m_positions.contains(opcode))
            m_positions.insert(opcode, position);
    };
    for (Opcode* opcode : opcodes) {
        if (opcode->memRange > 0 && opcode->memRange <= pageCount)
            place(opcode, opcode->memRange - 1);
    }
    // What a page has itself hides what all pages share.
    for (Opcode* opcode : opcodes) {
        for (int page = 0; opcode->memRange == 0 && page < pageCount; ++page)
            place(opcode, page);
    }
    MemoryDecoder decoder(this, regCount);
    for (int position = 0; position < count(); ++position)
        decoder.decode(position);
}

} // namespace nsProc
