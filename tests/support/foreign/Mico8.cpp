#include "ForeignText.h"

#include <QRegularExpression>

namespace foreign {

namespace {

/// Base of the word, by name. The destination goes to bit 8, a source register to bit 3.
using Words = QMap<QString, quint32>;

const Words& twoRegisters()
{
    static const Words words = {{"SUB", 0x00000}, {"SUBC", 0x04000}, {"ADD", 0x08000}, {"ADDC", 0x0C000},
                                {"MOV", 0x10000}, {"AND", 0x14000},  {"OR", 0x18000},  {"XOR", 0x1C000},
                                {"CMP", 0x20000}, {"TEST", 0x24000}};
    return words;
}

const Words& registerAndNumber()
{
    static const Words words = {{"SUBI", 0x02000}, {"SUBIC", 0x06000}, {"ADDI", 0x0A000}, {"ADDIC", 0x0E000},
                                {"MOVI", 0x12000}, {"ANDI", 0x16000},  {"ORI", 0x1A000},  {"XORI", 0x1E000},
                                {"CMPI", 0x22000}, {"TESTI", 0x26000}};
    return words;
}

const Words& rotates()
{
    static const Words words = {{"ROR", 0x28000}, {"ROL", 0x28001}, {"RORC", 0x28002}, {"ROLC", 0x28003}};
    return words;
}

const Words& direct()
{
    static const Words words = {{"EXPORT", 0x2E000}, {"OUTP", 0x2E000}, {"IMPORT", 0x2E001},
                                {"INP", 0x2E001},    {"SSP", 0x2E004},  {"LSP", 0x2E005}};
    return words;
}

const Words& indirect()
{
    static const Words words = {{"EXPORTI", 0x2E002}, {"OUTPI", 0x2E002}, {"IMPORTI", 0x2E003},
                                {"INPI", 0x2E003},    {"SSPI", 0x2E006},  {"LSPI", 0x2E007}};
    return words;
}

const Words& branches()
{
    static const Words words = {{"B", 0x3B000},     {"BZ", 0x30000},    {"BNZ", 0x31000},   {"BC", 0x32000},
                                {"BNC", 0x33000},   {"CALL", 0x38000},  {"CALLZ", 0x34000}, {"CALLNZ", 0x35000},
                                {"CALLC", 0x36000}, {"CALLNC", 0x37000}};
    return words;
}

const Words& alone()
{
    static const Words words = {{"CLRC", 0x2C000}, {"SETC", 0x2C001}, {"CLRZ", 0x2C002},
                                {"SETZ", 0x2C003}, {"CLRI", 0x2C004}, {"SETI", 0x2C005},
                                {"RET", 0x39000},  {"IRET", 0x3A000}, {"NOP", 0x10000}};
    return words;
}

/// Lines for the linker that make no words.
const QStringList& linkerLines()
{
    static const QStringList words = {".TEXT", ".GLOBAL", ".TYPE", ".SIZE", ".SECTION", ".END"};
    return words;
}

/// A Mico8 assembler in the vendor's style (`name equ 5`, `name reg r1`) or in that of the GNU tools (`.equ name, 5`,
/// local labels with numbers, lines for the linker). Names tell case apart in the GNU style; in the vendor's, names
/// that differ by case alone are refused.
class Mico8 : private AssemblerBase
{
public:
    Mico8(bool gnu, const Options& options, QStringList* errors)
        : AssemblerBase(options, errors)
        , m_gnu(gnu)
    {
        m_lastAddress = 0xFFF;
    }

    Image run(const QString& mainFile)
    {
        read(mainFile);
        layOut();
        for (const Statement& statement : m_statements)
            place(statement, statement.size > 0 ? QVector<quint32>{encode(statement)} : QVector<quint32>());
        return m_image;
    }

private:
    struct LocalLabel
    {
        QString number;
        int statement;
        int address;
    };

    void read(const QString& mainFile);
    QString withoutComments(const QString& text, bool* inBlock) const;
    void readStatement(const Line& line, QString rest);
    bool readDefinition(const Line& line, const QString& rest, Statement* statement);
    void define(const Line& line, const QString& name);
    void layOut();
    quint32 encode(const Statement& statement);
    quint32 encodeBranch(const Statement& statement);
    int targetOf(const Statement& statement, const QString& operand);
    int localTarget(const Statement& statement, const QString& number, bool behind);
    int registerNumber(const QString& operand) const;
    quint32 registerOf(const Line& line, const QString& operand);
    QString valueHere(const QString& name) const;
    int valueOf(const QString& operand, int depth = 0) const;
    quint32 numberOf(const Line& line, const QString& operand, int highest);

    bool m_gnu;
    QVector<Statement> m_statements;
    /// A value as it is written, and the line from which on it holds.
    struct Value
    {
        int line;
        QString text;
    };

    QMap<QString, QVector<Value>> m_names; ///< in the order of the lines; more than one if a name is set again
    int m_line = 0;                        ///< the line that is being looked at
    QMap<QString, int> m_registers;        ///< number by the name that it was given
    QMap<QString, int> m_labels;
    QVector<LocalLabel> m_locals;
};

QString Mico8::withoutComments(const QString& text, bool* inBlock) const
{
    if (!*inBlock && text.trimmed().startsWith('#'))
        return {};
    QString kept;
    for (int i = 0; i < text.size(); ++i) {
        const QString here = text.mid(i);
        static const QRegularExpression character("^'(\\\\.|[^'\\\\])'");
        const QRegularExpressionMatch match = character.match(here);
        if (*inBlock) {
            if (here.startsWith("*/")) {
                *inBlock = false;
                kept += ' ';
                ++i;
            }
        } else if (match.hasMatch()) {
            kept += match.captured();
            i += match.capturedLength() - 1;
        } else if (here.startsWith("/*")) {
            *inBlock = true;
            ++i;
        } else if (here.startsWith(';') || here.startsWith("//")) {
            break;
        } else {
            kept += text[i];
        }
    }
    return kept;
}

void Mico8::read(const QString& mainFile)
{
    bool found = false;
    const QVector<Line> lines = readLines(mainFile, &found);
    if (!found)
        m_errors->append(mainFile + " can not be read");
    bool inBlock = false;
    for (const Line& line : lines) {
        readStatement(line, withoutComments(line.text, &inBlock).trimmed());
        // What follows the end is not looked at.
        if (m_statements.last().word == ".END")
            break;
    }
    if (inBlock)
        m_errors->append(mainFile + ": a comment without end");
}

void Mico8::readStatement(const Line& line, QString rest)
{
    Statement statement;
    statement.line = line;
    static const QRegularExpression label("^([A-Za-z_.][\\w.]*|\\d+)\\s*:");
    const QRegularExpressionMatch match = label.match(rest);
    if (match.hasMatch()) {
        statement.label = match.captured(1);
        rest = rest.mid(match.capturedLength()).trimmed();
    }
    if (!readDefinition(line, rest, &statement)) {
        statement.word = rest.section(QRegularExpression("\\s"), 0, 0).toUpper();
        statement.operands = splitOperands(rest.mid(statement.word.size()), true);
    }
    m_statements.append(statement);
}

bool Mico8::readDefinition(const Line& line, const QString& rest, Statement* statement)
{
    static const QRegularExpression infix("^([A-Za-z_]\\w*)\\s+(equ|reg)\\s+(.*)$",
                                          QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression dotted("^\\.(equ|set)\\s+([A-Za-z_.][\\w.]*)\\s*,(.*)$",
                                           QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch isInfix = infix.match(rest);
    const QRegularExpressionMatch isDotted = dotted.match(rest);
    if (!isInfix.hasMatch() && !isDotted.hasMatch())
        return false;
    if (isInfix.hasMatch() && m_gnu)
        fail(line, "not in this style: " + rest);
    if (isDotted.hasMatch() && !m_gnu && isDotted.captured(1).toLower() == "set")
        fail(line, "not in this style: " + rest);
    const QString name = isInfix.hasMatch() ? isInfix.captured(1) : isDotted.captured(2);
    const QString value = isInfix.hasMatch() ? isInfix.captured(3) : isDotted.captured(3);
    // In the GNU style a name can be set again, and has the new value from there on.
    if (!m_gnu || !m_names.contains(name))
        define(line, name);
    if (isInfix.captured(2).toLower() == "reg")
        m_registers.insert(name, int(registerOf(line, value.trimmed())));
    else
        m_names[name].append({line.number, value.trimmed()});
    statement->word = ".EQU";
    return true;
}

void Mico8::define(const Line& line, const QString& name)
{
    const Qt::CaseSensitivity sensitivity = m_gnu ? Qt::CaseSensitive : Qt::CaseInsensitive;
    for (const QString& other : m_names.keys() + m_registers.keys() + m_labels.keys()) {
        if (other.compare(name, sensitivity) == 0)
            fail(line, "defined twice: " + name);
    }
    if (registerNumber(name) >= 0)
        fail(line, "the name reads as a register: " + name);
}

void Mico8::layOut()
{
    int address = 0;
    for (int i = 0; i < m_statements.size(); ++i) {
        Statement& statement = m_statements[i];
        m_line = statement.line.number;
        if (statement.word == ".ORG" && hasOperands(statement, 1)) {
            address = valueOf(statement.operands[0]);
            if (address < 0)
                fail(statement.line, "no address: " + statement.operands[0]);
        }
        statement.address = address;
        const bool local = !statement.label.isEmpty() && statement.label[0].isDigit();
        if (local) {
            m_locals.append({statement.label, i, address});
        } else if (!statement.label.isEmpty()) {
            define(statement.line, statement.label);
            m_labels.insert(statement.label, address);
        }
        const bool linker = linkerLines().contains(statement.word);
        if (!m_gnu && (local || linker))
            fail(statement.line, "not in this style: " + statement.word);
        const bool silent = statement.word.isEmpty() || statement.word == ".EQU" || statement.word == ".ORG" || linker;
        statement.size = silent ? 0 : 1;
        address += statement.size;
    }
}

quint32 Mico8::encode(const Statement& statement)
{
    const Line& line = statement.line;
    m_line = line.number;
    const QString& word = statement.word;
    const QStringList& operands = statement.operands;
    if (alone().contains(word) && hasOperands(statement, 0))
        return alone()[word];
    if (branches().contains(word) && hasOperands(statement, 1))
        return encodeBranch(statement);
    if (word == "INC" && hasOperands(statement, 1))
        return 0x0A001u + (registerOf(line, operands[0]) << 8);
    if (word == "DEC" && hasOperands(statement, 1))
        return 0x02001u + (registerOf(line, operands[0]) << 8);
    if (rotates().contains(word) && operands.size() == 1)
        return rotates()[word] + (registerOf(line, operands[0]) << 8) + (registerOf(line, operands[0]) << 3);
    const QMap<QString, quint32>* tables[] = {&twoRegisters(), &rotates(), &indirect()};
    for (const Words* table : tables) {
        if (table->contains(word) && hasOperands(statement, 2))
            return table->value(word) + (registerOf(line, operands[0]) << 8) + (registerOf(line, operands[1]) << 3);
    }
    if (registerAndNumber().contains(word) && hasOperands(statement, 2))
        return registerAndNumber()[word] + (registerOf(line, operands[0]) << 8) + numberOf(line, operands[1], 0xFF);
    // The field of a direct address has five bits.
    if (direct().contains(word) && hasOperands(statement, 2))
        return direct()[word] + (registerOf(line, operands[0]) << 8) + (numberOf(line, operands[1], 31) << 3);
    fail(line, "no instruction: " + word);
    return 0;
}

quint32 Mico8::encodeBranch(const Statement& statement)
{
    const int offset = targetOf(statement, statement.operands[0]) - statement.address;
    if (offset < -2048 || offset > 2047)
        fail(statement.line, "too far away: " + statement.operands[0]);
    return branches()[statement.word] + (quint32(offset) & 0xFFF);
}

int Mico8::targetOf(const Statement& statement, const QString& operand)
{
    if (m_labels.contains(operand))
        return m_labels[operand];
    static const QRegularExpression local("^(\\d+)([bf])$");
    static const QRegularExpression relative("^[$.]\\s*(?:([+-])\\s*(\\d+|0x[0-9a-fA-F]+))?$");
    const QRegularExpressionMatch isLocal = local.match(operand);
    if (isLocal.hasMatch())
        return localTarget(statement, isLocal.captured(1), isLocal.captured(2) == "f");
    const QRegularExpressionMatch isRelative = relative.match(operand);
    if (isRelative.hasMatch()) {
        const int distance = isRelative.captured(2).isEmpty() ? 0 : valueOf(isRelative.captured(2));
        return statement.address + (isRelative.captured(1) == "-" ? -distance : distance);
    }
    const int number = operand.isEmpty() || !operand[0].isDigit() ? -1 : valueOf(operand);
    if (number >= 0)
        return number;
    fail(statement.line, "no target: " + operand);
    return statement.address;
}

int Mico8::localTarget(const Statement& statement, const QString& number, bool behind)
{
    int here = 0;
    while (m_statements[here].line.number != statement.line.number)
        ++here;
    int found = -1;
    for (const LocalLabel& label : m_locals) {
        if (label.number != number)
            continue;
        // The last one up to this line, or the first one behind it.
        if (!behind && label.statement <= here)
            found = label.address;
        if (behind && label.statement > here && found < 0)
            found = label.address;
    }
    if (found < 0)
        fail(statement.line, "no local label: " + number);
    return qMax(found, 0);
}

int Mico8::registerNumber(const QString& operand) const
{
    static const QRegularExpression plain("^[rR](\\d{1,2})$");
    const QRegularExpressionMatch match = plain.match(operand);
    if (match.hasMatch() && match.captured(1).toInt() <= 31)
        return match.captured(1).toInt();
    return m_registers.value(operand, -1);
}

quint32 Mico8::registerOf(const Line& line, const QString& operand)
{
    const int number = registerNumber(operand);
    if (number < 0)
        fail(line, "no register: " + operand);
    return quint32(qMax(number, 0));
}

/// What the name stands for at this line; empty if it is set more than once, and the first time further down.
QString Mico8::valueHere(const QString& name) const
{
    const QVector<Value>& values = m_names[name];
    if (values.size() == 1)
        return values[0].text;
    QString text;
    for (const Value& value : values) {
        if (value.line < m_line)
            text = value.text;
    }
    return text;
}

/// @return -1 for what is no number
int Mico8::valueOf(const QString& operand, int depth) const
{
    static const QRegularExpression byteOfValue("^_(lo|hi)\\s*\\((.*)\\)$");
    const QRegularExpressionMatch match = byteOfValue.match(operand);
    if (depth > 20)
        return -1;
    if (match.hasMatch()) {
        const QString inner = match.captured(2).trimmed();
        const int value = m_labels.contains(inner) ? m_labels[inner] : valueOf(inner, depth + 1);
        if (value < 0)
            return -1;
        return match.captured(1) == "hi" ? (value >> 8) & 0xFF : value & 0xFF;
    }
    if (operand.startsWith('#'))
        return valueOf(operand.mid(1).trimmed(), depth + 1);
    if (m_names.contains(operand))
        return valueOf(valueHere(operand), depth + 1);
    if (operand.size() == 3 && operand.startsWith('\'') && operand.endsWith('\'') && operand[1] != '\\')
        return operand[1].unicode();
    if (operand.size() == 4 && operand.startsWith("'\\") && operand.endsWith('\'')) {
        const int escape = QString("ntr0\\'").indexOf(operand[2]);
        return escape < 0 ? -1 : int("\n\t\r\0\\'"[escape]);
    }
    if (operand.startsWith("0x", Qt::CaseInsensitive))
        return int(qMin<qint64>(digitsToNumber(operand.mid(2), 16), 0x10000));
    if (operand.startsWith("0b", Qt::CaseInsensitive))
        return int(qMin<qint64>(digitsToNumber(operand.mid(2), 2), 0x10000));
    if (operand.startsWith('0') && operand.size() > 1)
        return int(qMin<qint64>(digitsToNumber(operand.mid(1), 8), 0x10000));
    return int(qMin<qint64>(digitsToNumber(operand, 10), 0x10000));
}

quint32 Mico8::numberOf(const Line& line, const QString& operand, int highest)
{
    const int number = valueOf(operand);
    if (number < 0 || number > highest)
        fail(line, "no number here: " + operand);
    return quint32(qMax(number, 0));
}

} // namespace

Image assembleMico8Vendor(const QString& mainFile, const Options& options, QStringList* errors)
{
    return Mico8(false, options, errors).run(mainFile);
}

Image assembleMico8Gnu(const QString& mainFile, const Options& options, QStringList* errors)
{
    return Mico8(true, options, errors).run(mainFile);
}

} // namespace foreign
