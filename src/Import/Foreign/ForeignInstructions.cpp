// The forms of instructions: what the operands of the program are, and how the result writes them.

#include "ForeignNumbers.h"
#include "ForeignResolver.h"

#include "ProcTable.h"

namespace nsImport {

using namespace nsModAsmFe;

namespace {

const QStringList& conditions()
{
    static const QStringList words{"Z", "NZ", "C", "NC"};
    return words;
}

QString withoutParentheses(const QString& text)
{
    const bool has = text.startsWith('(') && text.endsWith(')');
    return has ? text.mid(1, text.size() - 2).trimmed() : text;
}

} // namespace

bool ForeignResolver::countIs(const ForeignStatement& statement, int least, int most)
{
    bool ok = statement.operands.size() >= least && statement.operands.size() <= most;
    for (const ForeignPiece& operand : statement.operands)
        ok = ok && operand.length > 0;
    return ok || report(errImpOperandCount, {statement.part(statement.word)});
}

bool ForeignResolver::registerAt(const QString& text, int* number, QString* ours)
{
    *number = m_symbols.registerOf(text, ours);
    if (*number >= 0)
        return true;
    const bool isAmbiguous = m_symbols.nameValue(text).state == ForeignValue::eAmbiguousName;
    return report(isAmbiguous ? errImpAmbiguousName : errImpExpectRegister, {text});
}

/// A register of the other bank has its own name, whatever the one of this bank is called. @return false: it is none
bool ForeignResolver::otherBankRegister(const QString& text, int* number, QString* ours)
{
    const int own = m_dialect.registerOf(text);
    if (own < 0 || m_symbols.registerOf(text, ours) >= 0)
        return false;
    *number = own;
    *ours = m_dialect.processor().regName(own);
    return true;
}

bool ForeignResolver::wordAt(const QString& text, const QStringList& words, QString* word)
{
    *word = text.toUpper();
    return words.contains(*word) || report(errImpExpectWord, {text, words.join(QStringLiteral(", "))});
}

/// Reports why a value can not be had. @return false
bool ForeignResolver::reportValue(const ForeignValue& value, const QString& text)
{
    switch (value.state) {
    case ForeignValue::eUnknownName:
        return report(errImpUnknownName, {value.error});
    case ForeignValue::eNotANumber:
        return report(errImpExpectValue, {value.error});
    case ForeignValue::eAmbiguousName:
        return report(errImpAmbiguousName, {value.error});
    case ForeignValue::eAmbiguousOrder:
        return report(errImpAmbiguousOrder, {value.error});
    case ForeignValue::eCircle:
        return report(errImpCircle, {value.error});
    case ForeignValue::eReported:
        return false;
    case ForeignValue::eSyntax:
    case ForeignValue::eOk:
        break;
    }
    return report(errImpSyntax, {value.error.isEmpty() ? text : value.error});
}

/// A number up to the maximum. @param isFirst the result has it as a first operand, which holds no blank
bool ForeignResolver::valueAt(const QString& text, int maximum, bool isFirst, int* value, QString* ours)
{
    const ForeignValue found = m_symbols.evaluate(text);
    if (!found.ok())
        return reportValue(found, text);
    // Where values are calculated, a small negative number is a byte.
    const bool isNegative = m_dialect.expressions && maximum == 0xFF && found.value < 0 && found.value >= -0x100;
    if (!isNegative && (found.value < 0 || found.value > maximum))
        return report(errImpTooLargeNumber, {text, QString::number(found.value), QString::number(maximum)});
    if (found.isAddress)
        return report(errImpExpectValue, {text});
    *value = found.value & 0xFF;
    *ours = found.text;
    if (isNegative)
        ours->append(QStringLiteral(" & 0xFF"));
    const bool isShort = !isFirst || found.isCharacter;
    if (!isShort)
        ours->remove(QLatin1Char(' '));
    const bool needsNumber = found.text.isEmpty() || (isFirst && found.isLabelPart);
    if (!needsNumber)
        return true;
    *ours = hexNumber(*value);
    ForeignStatement& statement = m_program.statements[m_statement];
    statement.remark = text;
    if (found.isLabelPart)
        report(infoImpNumberForName, {text, *ours});
    return true;
}

/// The target of a jump. @param label of the result at this address
bool ForeignResolver::targetAt(const QString& text, int* address, QString* label)
{
    ForeignValue value = m_symbols.labelValue(text);
    if (value.ok() && value.label >= 0) {
        *label = value.text;
        if (foreignNumber(text, m_dialect.numbers, true).ok)
            m_symbols.nameIsNumber(text);
    } else {
        value = m_symbols.evaluate(text);
        if (value.state == ForeignValue::eNotANumber || (value.ok() && value.isLabelPart))
            return report(errImpExpectTarget, {text});
        if (!value.ok())
            return reportValue(value, text);
        label->clear();
    }
    *address = value.value;
    if (*address < 0 || *address > m_dialect.maxAddress)
        return report(errImpAddressRange, {text, hexNumber(m_dialect.maxAddress)});
    if (value.label >= 0 && label->isEmpty())
        *label = value.text;
    if (label->isEmpty())
        *label = labelFor(*address);
    m_program.highestTarget = qMax(m_program.highestTarget, *address);
    return true;
}

void ForeignResolver::addText(ForeignStatement* statement, const QString& text, quint32 word)
{
    if (statement->firstInstruction < 0)
        statement->firstInstruction = m_program.instructions.size();
    ImportInstruction instruction;
    instruction.text = text;
    instruction.word = word;
    m_program.instructions.append(instruction);
}

void ForeignResolver::add(ForeignStatement* statement, const QString& operands, quint32 word)
{
    const QString mnemonic = mnemonicOfOpcode(statement->meaning->opcode);
    addText(statement, operands.isEmpty() ? mnemonic : mnemonic + ' ' + operands, word);
}

bool ForeignResolver::encodeForm(ForeignStatement* statement)
{
    switch (statement->meaning->form) {
    case frmRegAny:
    case frmRegReg:
    case frmRegValue:
    case frmRegConst:
    case frmReg:
    case frmRotate:
        return encodeRegisterForms(statement);
    case frmPort:
        return encodePort(statement, true, true);
    case frmPortDirect:
        return encodePort(statement, false, true);
    case frmPortIndirect:
        return encodePort(statement, true, false);
    case frmPortConstant:
    case frmLoadReturn:
        return encodeSequence(statement);
    case frmFlow:
    case frmFlowCondition:
        return encodeFlow(statement);
    case frmFlowComputed:
        return encodeComputedFlow(statement);
    case frmNone:
    case frmReturn:
    case frmSwitch:
    case frmInterrupt:
    case frmBank:
        break;
    }
    return encodeWords(statement);
}

/// Instructions with registers and numbers.
bool ForeignResolver::encodeRegisterForms(ForeignStatement* statement)
{
    const eOpcode_t opcode = statement->meaning->opcode;
    const eForeignForm_t form = statement->meaning->form;
    const bool hasOne = form == frmReg || form == frmRegConst;
    int first = 0;
    int second = 0;
    QString firstText;
    QString secondText;
    if (!countIs(*statement, hasOne || form == frmRotate ? 1 : 2, hasOne ? 1 : 2))
        return false;
    const bool isOther = opcode == ocStar && otherBankRegister(statement->operand(0), &first, &firstText);
    if (!isOther && !registerAt(statement->operand(0), &first, &firstText))
        return false;
    if (form == frmReg) {
        add(statement, firstText, m_encoder.operands(opcode, first, 0, WordEncoder::eNumber));
        return true;
    }
    if (form == frmRotate && statement->operands.size() == 1) {
        add(statement, firstText, m_encoder.operands(opcode, first, first, WordEncoder::eRegister));
        return true;
    }
    const QString text = form == frmRegConst ? QString::fromLatin1(statement->meaning->arg) : statement->operand(1);
    const bool isRegister =
        form == frmRegReg || form == frmRotate || (form == frmRegAny && m_symbols.registerOf(text, &secondText) >= 0);
    if (isRegister ? !registerAt(text, &second, &secondText)
                   : !valueAt(text, m_encoder.maxNumber(opcode), false, &second, &secondText))
        return false;
    add(statement, firstText + QStringLiteral(", ") + secondText,
        m_encoder.operands(opcode, first, second, isRegister ? WordEncoder::eRegister : WordEncoder::eNumber));
    return true;
}

/// Ports and scratchpad.
bool ForeignResolver::encodePort(ForeignStatement* statement, bool mayBeRegister, bool mayBeValue)
{
    const eOpcode_t opcode = statement->meaning->opcode;
    int first = 0;
    int second = 0;
    QString firstText;
    QString secondText;
    if (!countIs(*statement, 2, 2) || !registerAt(statement->operand(0), &first, &firstText))
        return false;
    const QString text = withoutParentheses(statement->operand(1));
    const bool isRegister = mayBeRegister && (!mayBeValue || m_symbols.registerOf(text, &secondText) >= 0);
    if (isRegister) {
        if (!registerAt(text, &second, &secondText))
            return false;
        add(statement, firstText + QStringLiteral(", (") + secondText + ')',
            m_encoder.operands(opcode, first, second, WordEncoder::eRegister));
        return true;
    }
    if (!valueAt(text, m_encoder.maxNumber(opcode), false, &second, &secondText))
        return false;
    if (opcode == ocRdmem || opcode == ocWrmem)
        m_program.scratchpadSize = qMax(m_program.scratchpadSize, second + 1);
    add(statement, firstText + QStringLiteral(", ") + secondText,
        m_encoder.operands(opcode, first, second, WordEncoder::eNumber));
    return true;
}

bool ForeignResolver::encodeFlow(ForeignStatement* statement)
{
    const eOpcode_t opcode = statement->meaning->opcode;
    const bool isFixed = statement->meaning->form == frmFlowCondition;
    QString condition = QString::fromLatin1(statement->meaning->arg);
    if (!countIs(*statement, 1, isFixed ? 1 : 2))
        return false;
    if (statement->operands.size() == 2 && !wordAt(statement->operand(0), conditions(), &condition))
        return false;
    const QString text = statement->operand(statement->operands.size() - 1);
    int address = 0;
    QString label;
    if (!targetAt(text, &address, &label))
        return false;
    if (!m_encoder.reaches(statement->address, address))
        return report(errImpTooFar, {text});
    add(statement, condition.isEmpty() ? label : condition + QStringLiteral(", ") + label,
        m_encoder.flow(opcode, condition, address, statement->address));
    return true;
}

bool ForeignResolver::encodeComputedFlow(ForeignStatement* statement)
{
    const QString all = statement->code.mid(statement->word.pos + statement->word.length).trimmed();
    const QStringList parts = withoutParentheses(all).split(QLatin1Char(','));
    if (parts.size() != 2 || !all.startsWith('('))
        return report(errImpSyntax, {all});
    int high = 0;
    int low = 0;
    QString highText;
    QString lowText;
    if (!registerAt(parts.at(0).trimmed(), &high, &highText) || !registerAt(parts.at(1).trimmed(), &low, &lowText))
        return false;
    add(statement, '(' + highText + QStringLiteral("), (") + lowText + ')',
        m_encoder.computedFlow(statement->meaning->opcode, high, low));
    return true;
}

/// An instruction that becomes one for each byte of a string or table.
bool ForeignResolver::encodeSequence(ForeignStatement* statement)
{
    const eOpcode_t opcode = statement->meaning->opcode;
    const bool isPort = statement->meaning->form == frmPortConstant;
    if (!countIs(*statement, 2, 2))
        return false;
    int other = 0;
    QString otherText;
    const QString text = statement->operand(isPort ? 0 : 1);
    if (isPort
            ? !valueAt(statement->operand(1), m_dialect.processor().layout.maxConstantPort, false, &other, &otherText)
            : !registerAt(statement->operand(0), &other, &otherText))
        return false;
    Bytes bytes;
    const Bytes* found = bytesOf(text);
    if (found != nullptr) {
        bytes = *found;
        // What is wrong with it was reported where it is defined.
        if (bytes.isEmpty())
            return m_messages.errors() == 0 ? report(errImpSyntax, {text}) : false;
    } else {
        Byte byte;
        if (!valueAt(text, 0xFF, isPort, &byte.value, &byte.text))
            return false;
        bytes.append(byte);
    }
    for (const Byte& byte : qAsConst(bytes)) {
        // A value that was written as the second operand of an instruction may hold blanks, or bits of a label.
        const bool isShort = byte.text.startsWith('"') || (!byte.text.contains(' ') && !byte.text.contains('['));
        const QString shown = isPort && !isShort ? hexNumber(byte.value) : byte.text;
        if (isPort)
            add(statement, shown + QStringLiteral(", ") + otherText,
                m_encoder.operands(opcode, byte.value, other, WordEncoder::eConstantPort));
        else
            add(statement, otherText + QStringLiteral(", ") + shown,
                m_encoder.operands(opcode, other, byte.value, WordEncoder::eNumber));
    }
    return true;
}

/// Instructions whose operands are words.
bool ForeignResolver::encodeWords(ForeignStatement* statement)
{
    static const QStringList switches{"ENABLE", "DISABLE"};
    static const QStringList banks{"A", "B"};
    const eForeignForm_t form = statement->meaning->form;
    const int least = form == frmNone || form == frmReturn ? 0 : 1;
    if (!countIs(*statement, least, form == frmNone ? 0 : 1))
        return false;
    QString operand = QString::fromLatin1(statement->meaning->arg);
    QString ignored;
    if (form == frmInterrupt && !wordAt(statement->operand(0), {QStringLiteral("INTERRUPT")}, &ignored))
        return false;
    if (form == frmSwitch && !wordAt(statement->operand(0), switches, &operand))
        return false;
    if (form == frmBank && !wordAt(statement->operand(0), banks, &operand))
        return false;
    if (form == frmReturn && !statement->operands.isEmpty() && !wordAt(statement->operand(0), conditions(), &operand))
        return false;
    add(statement, operand, m_encoder.plain(statement->meaning->opcode, operand));
    return true;
}

/// The instruction that has the word.
bool ForeignResolver::encodeWord(ForeignStatement* statement)
{
    if (!countIs(*statement, 1, 1))
        return false;
    const QString text = statement->operand(0);
    const ForeignNumber number = foreignNumber(text, m_dialect.numbers, true);
    if (!number.ok)
        return report(errImpNumber, {text});
    int target = 0;
    const QString instruction = m_disassembler.text(number.value, statement->address, [&](int address) {
        target = address;
        return address >= 0 && address <= m_dialect.maxAddress ? labelFor(address) : QString();
    });
    if (instruction.isEmpty() || instruction.endsWith(' ') || instruction.endsWith(','))
        return report(errImpNoSuchWord, {text});
    m_program.highestTarget = qMax(m_program.highestTarget, target);
    addText(statement, instruction, quint32(number.value));
    return true;
}

} // namespace nsImport
