#include "ForeignResolver.h"

#include "ForeignNumbers.h"

#include "ProcTable.h"

#include <QFileInfo>

namespace nsImport {

using namespace nsModAsmFe;

namespace {

const int maxTextBytes = 4096; ///< of a string or table

} // namespace

ForeignResolver::ForeignResolver(ForeignProgram& program, const ForeignStamp& stamp, ImportMessages& messages)
    : m_program(program)
    , m_dialect(*program.dialect)
    , m_messages(messages)
    , m_symbols(program, stamp, messages)
    , m_encoder(m_dialect.processor())
    , m_disassembler(m_dialect.processor())
{
}

void ForeignResolver::resolve()
{
    m_symbols.collect();
    place();
    m_symbols.setPlaced();
    encode();
}

/// @return false
bool ForeignResolver::report(eImportMsg_t type, const QStringList& arguments)
{
    ForeignStatement& place = m_program.statements[m_statement];
    // A line that is wrong must not go on as if it were not there.
    place.isBroken = place.isBroken || isImportError(type);
    m_messages.add(type, arguments, m_program.files.at(place.file).path, place.line);
    return false;
}

QString ForeignResolver::labelFor(int address)
{
    const QString known = m_symbols.useLabelAt(address);
    if (!known.isEmpty())
        return known;
    QString& made = m_program.targets[address];
    if (made.isEmpty())
        made = m_symbols.makeLabel(QStringLiteral("addr_") +
                                   QString::number(address, 16).toUpper().rightJustified(3, QLatin1Char('0')));
    return made;
}

void ForeignResolver::place()
{
    int address = 0;
    for (int i = 0; i < m_program.statements.size(); ++i) {
        m_statement = i;
        m_symbols.enter(i);
        placeStatement(i, &address);
    }
}

void ForeignResolver::placeStatement(int index, int* address)
{
    ForeignStatement& statement = m_program.statements[index];
    statement.address = *address;
    if (statement.firstLabel >= 0) {
        for (int i = 0; i < statement.labels.size(); ++i)
            m_symbols.setLabelAddress(statement.firstLabel + i, *address);
    }
    if (!statement.hasWord())
        return;
    if (statement.op() == opAddress) {
        // Data have addresses of their own.
        if (!statement.isData)
            placeAt(statement, address);
        statement.address = *address;
        return;
    }
    statement.size = statement.isData ? 0 : sizeOf(statement);
    if (statement.size > 0 && *address + statement.size - 1 > m_dialect.maxAddress) {
        if (!m_isBeyond)
            report(errImpAddressRange, {hexNumber(*address), hexNumber(m_dialect.maxAddress)});
        m_isBeyond = true;
        statement.isBroken = true;
        statement.size = 0;
        return;
    }
    *address += statement.size;
}

bool ForeignResolver::placeAt(const ForeignStatement& statement, int* address)
{
    if (!countIs(statement, 1, 1))
        return false;
    const ForeignValue value = m_symbols.evaluate(statement.operand(0));
    if (!value.ok())
        return reportValue(value, statement.operand(0));
    if (value.value < 0 || value.value > m_dialect.maxAddress)
        return report(errImpAddressRange, {statement.operand(0), hexNumber(m_dialect.maxAddress)});
    *address = value.value;
    m_isBeyond = false;
    return true;
}

/// Words that a statement makes. A statement that is wrong makes one, so that the addresses of the others are right.
int ForeignResolver::sizeOf(const ForeignStatement& statement)
{
    // An unknown word may be an instruction.
    if (statement.meaning == nullptr || statement.op() == opWord)
        return 1;
    if (statement.op() != opInstruction)
        return 0;
    int text = -1;
    if (statement.meaning->form == frmLoadReturn)
        text = 1;
    else if (statement.meaning->form == frmPortConstant)
        text = 0;
    if (text < 0)
        return 1;
    const Bytes* bytes = bytesOf(statement.operand(text));
    return bytes != nullptr ? bytes->size() : 1;
}

/// The bytes of a string or table; null if there is none of this name, or if it is wrong, which was reported.
const ForeignResolver::Bytes* ForeignResolver::bytesOf(const QString& name)
{
    const auto known = m_bytes.constFind(name);
    if (known != m_bytes.constEnd())
        return &known.value();
    const QString stamp = m_symbols.stampText(name);
    const int symbol = stamp.isNull() ? m_symbols.textOf(name) : -1;
    if (stamp.isNull() && symbol < 0)
        return nullptr;
    Bytes bytes;
    if (!stamp.isNull()) {
        appendText(stamp, true, &bytes);
        return &m_bytes.insert(name, bytes).value();
    }
    if (m_openTexts.contains(name)) {
        report(errImpCircle, {name});
        return nullptr;
    }
    m_openTexts.append(name);
    const int place = m_statement;
    m_statement = m_program.symbols.at(symbol).statement;
    const ForeignStatement statement = m_program.statements.at(m_statement);
    bool ok = countIs(statement, 2, statement.op() == opTable ? 2 : maxTextBytes);
    for (int i = 1; ok && i < statement.operands.size(); ++i) {
        ok = statement.op() == opTable ? appendTable(statement, statement.operand(i), &bytes)
                                       : appendBytes(statement, statement.operand(i), &bytes);
    }
    m_statement = place;
    m_openTexts.removeLast();
    m_program.symbols[symbol].isUsed = true;
    if (!ok) {
        m_program.statements[m_program.symbols.at(symbol).statement].isBroken = true;
        bytes.clear();
    }
    return &m_bytes.insert(name, bytes).value();
}

/// A part of a string: text, another string, or a byte.
bool ForeignResolver::appendBytes(const ForeignStatement& statement, const QString& part, Bytes* bytes)
{
    const bool isUtf8 = m_program.files.at(statement.file).isUtf8;
    if (part.size() >= 2 && part.startsWith('"') && part.endsWith('"')) {
        appendText(part.mid(1, part.size() - 2), isUtf8, bytes);
    } else if (const Bytes* other = bytesOf(part)) {
        bytes->append(*other);
    } else {
        Byte byte;
        if (!valueAt(part, 0xFF, false, &byte.value, &byte.text))
            return false;
        bytes->append(byte);
    }
    return bytes->size() <= maxTextBytes || report(errImpTooManyWords, {QString::number(maxTextBytes)});
}

bool ForeignResolver::appendText(const QString& text, bool isUtf8, Bytes* bytes) const
{
    for (int i = 0; i < text.size(); ++i) {
        // A character outside of the first plane is two code units.
        const bool isPair = text.at(i).isHighSurrogate() && i + 1 < text.size();
        const QString character = text.mid(i, isPair ? 2 : 1);
        i += int(isPair);
        const QByteArray encoded = foreignBytes(character, isUtf8);
        for (const char c : encoded) {
            Byte byte;
            byte.value = uchar(c);
            byte.text = encoded.size() == 1 ? characterNumber(character.at(0), isUtf8).text : hexNumber(byte.value);
            bytes->append(byte);
        }
    }
    return true;
}

/// `[1, 2, FF]`, `[...]'d`, `[...]'b`
bool ForeignResolver::appendTable(const ForeignStatement& statement, QString part, Bytes* bytes)
{
    QString suffix;
    const int end = part.lastIndexOf(']');
    if (!part.startsWith('[') || end < 0)
        return report(errImpSyntax, {part});
    suffix = part.mid(end + 1).trimmed();
    if (!suffix.isEmpty() && suffix.compare(QLatin1String("'d"), Qt::CaseInsensitive) != 0 &&
        suffix.compare(QLatin1String("'b"), Qt::CaseInsensitive) != 0)
        return report(errImpSyntax, {part});
    const QStringList items = part.mid(1, end - 1).split(QLatin1Char(','));
    for (const QString& item : items) {
        const QString text = item.trimmed();
        const bool isPlain = suffix.isEmpty() || !foreignNumber(text + suffix, m_dialect.numbers, true).ok;
        if (isPlain && !suffix.isEmpty())
            return report(errImpNumber, {text + suffix});
        if (!appendBytes(statement, text + suffix, bytes))
            return false;
    }
    return true;
}

void ForeignResolver::encode()
{
    for (int i = 0; i < m_program.statements.size(); ++i) {
        m_statement = i;
        m_symbols.enter(i);
        encodeStatement(i);
    }
}

void ForeignResolver::encodeStatement(int index)
{
    ForeignStatement& statement = m_program.statements[index];
    if (!statement.hasWord() || statement.isBroken)
        return;
    const QString word = statement.part(statement.word);
    bool ok = true;
    if (statement.meaning == nullptr) {
        ok = report(errImpUnknownWord, {word});
    } else if (statement.isData && statement.op() == opInstruction) {
        ok = report(errImpNoCounterpart, {word, tr("an instruction in a section of data")});
    } else {
        switch (statement.op()) {
        case opInstruction:
            ok = encodeForm(&statement);
            break;
        case opWord:
            ok = encodeWord(&statement);
            break;
        case opConstant:
        case opSetConstant:
        case opEquate:
            checkValue(&statement);
            break;
        case opNameReg:
            ok = countIs(statement, 2, 2);
            break;
        case opString:
        case opTable:
            // Also where nothing uses it, what is wrong with it is told.
            bytesOf(statement.operand(0));
            break;
        case opDefaultJump:
            encodeDefaultJump(&statement, index);
            break;
        case opNoCounter:
            ok = report(errImpNoCounterpart, {word, tr("data in the program memory, or a matter of the linker")});
            break;
        default:
            break;
        }
    }
    statement.isBroken = statement.isBroken || !ok;
}

/// The value of a constant, whether it is used or not.
void ForeignResolver::checkValue(ForeignStatement* statement)
{
    const bool isEquate = statement->op() == opEquate;
    const ForeignSymbol& symbol = m_program.symbols.at(statement->symbol);
    // A device of another simulator may name a file.
    if (!countIs(*statement, isEquate ? 1 : 2, isEquate ? 5 : 2)) {
        statement->isBroken = true;
        return;
    }
    if (symbol.kind != ForeignSymbol::eRegister && statement->meaning->form == frmReg)
        report(errImpExpectRegister, {statement->operand(0)});
    if (statement->isBroken || symbol.kind == ForeignSymbol::eRegister || symbol.state == ForeignSymbol::eDone)
        return;
    const QString text = statement->operand(isEquate ? 0 : 1);
    const ForeignValue value = m_symbols.evaluate(symbol.name);
    if (!value.ok())
        statement->isBroken = !reportValue(value, text);
    if (statement->isBroken)
        m_program.symbols[statement->symbol].state = ForeignSymbol::eFailed;
}

void ForeignResolver::encodeDefaultJump(ForeignStatement* statement, int index)
{
    int address = 0;
    QString label;
    if (!countIs(*statement, 1, 1) || !targetAt(statement->operand(0), &address, &label)) {
        statement->isBroken = true;
        return;
    }
    if (m_program.defaultJump >= 0) {
        const ForeignStatement& other = m_program.statements.at(m_program.defaultJump);
        report(errImpDuplicateName, {statement->part(statement->word), QString::number(other.line),
                                     QFileInfo(m_program.files.at(other.file).path).fileName()});
        return;
    }
    m_program.defaultJump = index;
    m_program.defaultTarget = label;
    ImportInstruction instruction;
    instruction.text = mnemonicOfOpcode(ocJump) + ' ' + label;
    instruction.word = m_encoder.flow(ocJump, QString(), address, 0);
    statement->firstInstruction = m_program.instructions.size();
    m_program.instructions.append(instruction);
}

} // namespace nsImport
