#include "ProcDisassembler.h"

#include "ProcTable.h"

#include <QStringList>

#include <algorithm>

namespace nsProc {

using namespace nsModAsmFe;

namespace {

const int allBits = (1 << instrWordBits) - 1;

int fieldMask(int bits)
{
    return (1 << bits) - 1;
}

/// Width of a field that holds numbers up to the maximum.
int bitsFor(int maximum)
{
    int bits = 0;
    while (fieldMask(bits) < maximum)
        ++bits;
    return bits;
}

} // namespace

ProcDisassembler::ProcDisassembler(const ProcTable& table)
    : m_table(table)
{
    for (int opcode = ocUndefined + 1; opcode < ocCount; ++opcode) {
        if (const sInstr_t* instr = table.assembled(eOpcode_t(opcode)))
            addPatterns(*instr);
    }
    std::stable_sort(m_patterns.begin(), m_patterns.end(), [](const sPattern_t& a, const sPattern_t& b) {
        return qPopulationCount(uint(a.mask)) < qPopulationCount(uint(b.mask));
    });
}

QString ProcDisassembler::text(int word, int address, const TargetName& targetName) const
{
    const sPattern_t* found = pattern(word);
    if (found == nullptr)
        return QString();
    QStringList operands;
    for (const sOperand_t& operand : found->operands)
        operands.append(operandText(operand, word, address, targetName));
    const QString mnemonic = mnemonicOfOpcode(found->opcode);
    return operands.isEmpty() ? mnemonic : mnemonic + ' ' + operands.join(QLatin1String(", "));
}

const ProcDisassembler::sPattern_t* ProcDisassembler::pattern(int word) const
{
    if ((word & ~allBits) != 0)
        return nullptr;
    for (const sPattern_t& pattern : m_patterns) {
        if ((word & pattern.mask) == pattern.match)
            return &pattern;
    }
    return nullptr;
}

int ProcDisassembler::field(const sOperand_t& operand, int word)
{
    return (word >> operand.shift) & fieldMask(operand.bits);
}

int ProcDisassembler::targetAddress(const sOperand_t& operand, int word, int address) const
{
    const int value = field(operand, word);
    if (!m_table.layout.relativeFlow)
        return value;
    const bool isBackwards = value >> (operand.bits - 1) != 0;
    return address + value - (isBackwards ? 1 << operand.bits : 0);
}

QString ProcDisassembler::operandText(const sOperand_t& operand, int word, int address,
                                      const TargetName& targetName) const
{
    switch (operand.kind) {
    case sOperand_t::word:
        break;
    case sOperand_t::reg:
        return m_table.regName(field(operand, word));
    case sOperand_t::regRef:
        return '(' + m_table.regName(field(operand, word)) + ')';
    case sOperand_t::number:
        return QString::number(field(operand, word));
    case sOperand_t::target:
        return targetName(targetAddress(operand, word, address));
    }
    return operand.text;
}

ProcDisassembler::sOperand_t ProcDisassembler::dst() const
{
    return {sOperand_t::reg, m_table.layout.dstShift, m_table.layout.regBits, QString()};
}

ProcDisassembler::sOperand_t ProcDisassembler::src() const
{
    return {sOperand_t::reg, m_table.layout.srcShift, m_table.layout.regBits, QString()};
}

ProcDisassembler::sOperand_t ProcDisassembler::number(int shift, int maximum) const
{
    return {sOperand_t::number, shift, bitsFor(maximum), QString()};
}

void ProcDisassembler::addPattern(const sInstr_t& instr, int word, const QVector<sOperand_t>& operands)
{
    int fields = 0;
    for (const sOperand_t& operand : operands)
        fields |= fieldMask(operand.bits) << operand.shift;
    m_patterns.append({instr.opcode, allBits & ~fields, word, operands});
}

void ProcDisassembler::addPatterns(const sInstr_t& instr)
{
    const auto word = [](const QString& text) { return sOperand_t{sOperand_t::word, 0, 0, text}; };
    switch (instr.form) {
    case formUnsupported:
    case formSimulated:
        break;
    case formTwoOperand:
    case formPort:
    case formScrpd:
        addOperandForms(instr);
        break;
    case formFlow:
    case formReturn:
        addFlow(instr);
        break;
    case formSwitch:
        addPattern(instr, instr.words[wordDisable], {word(QStringLiteral("DISABLE"))});
        addPattern(instr, instr.words[wordEnable], {word(QStringLiteral("ENABLE"))});
        break;
    case formNone:
        addPattern(instr, instr.words[0], {});
        break;
    case formReg:
        addPattern(instr, instr.words[0], {dst()});
        break;
    case formRegNumber:
        addPattern(instr, instr.words[0], {dst(), number(0, m_table.layout.maxNumber)});
        break;
    case formRotate:
        addPattern(instr, instr.words[0], {dst(), src()});
        break;
    case formFlag:
        addPattern(instr, instr.words[wordFlagC], {word(QStringLiteral("C"))});
        addPattern(instr, instr.words[wordFlagZ], {word(QStringLiteral("Z"))});
        break;
    case formBank:
        // The number of the bank stands in the lowest bits, the others of which hold nothing.
        for (int bank = 0; m_table.banks[bank] != '\0'; ++bank)
            addPattern(instr, instr.words[0] + bank, {word(QString(QLatin1Char(m_table.banks[bank])))});
        break;
    }
}

/// A register, and another one or a number.
void ProcDisassembler::addOperandForms(const sInstr_t& instr)
{
    const sInstrLayout_t& layout = m_table.layout;
    sOperand_t second = number(0, layout.maxNumber);
    sOperand_t other = src();
    if (instr.form != formTwoOperand) {
        second.shift = layout.addrShift;
        second.bits = instr.form == formPort ? layout.portBits : layout.scrpdBits;
        other.kind = sOperand_t::regRef;
    }
    addPattern(instr, instr.words[wordNumber], {dst(), second});
    addPattern(instr, instr.words[wordRegister], {dst(), other});
    if (instr.form == formPort && instr.words[wordConstant] != 0)
        addPattern(instr, instr.words[wordConstant],
                   {number(layout.constantShift, layout.maxNumber), number(0, layout.maxConstantPort)});
}

/// With and without a condition, with and without a target.
void ProcDisassembler::addFlow(const sInstr_t& instr)
{
    static const char* const conditions[] = {"", "Z", "NZ", "C", "NC"};
    for (int condition = wordAlways; condition <= wordNC; ++condition) {
        QVector<sOperand_t> operands;
        if (condition != wordAlways)
            operands.append({sOperand_t::word, 0, 0, QLatin1String(conditions[condition])});
        if (instr.form == formFlow)
            operands.append({sOperand_t::target, 0, m_table.layout.flowBits, QString()});
        addPattern(instr, instr.words[condition], operands);
    }
    if (instr.words[wordComputed] == 0)
        return;
    sOperand_t high = dst();
    sOperand_t low = src();
    high.kind = sOperand_t::regRef;
    low.kind = sOperand_t::regRef;
    addPattern(instr, instr.words[wordComputed], {high, low});
}

} // namespace nsProc
