#include "ForeignText.h"
#include "KcpsmTables.h"

#include <QRegularExpression>

namespace foreign {

namespace {

const TwoOperandWord logicWords[] = {
    {"LOAD", 0x00000, 0x01000}, {"AND", 0x0A000, 0x0B000},  {"OR", 0x0C000, 0x0D000},  {"XOR", 0x0E000, 0x0F000},
    {"TEST", 0x12000, 0x13000}, {"COMP", 0x14000, 0x15000}, {"ADD", 0x18000, 0x19000}, {"ADDC", 0x1A000, 0x1B000},
    {"SUB", 0x1C000, 0x1D000},  {"SUBC", 0x1E000, 0x1F000},
};

const TwoOperandWord memoryWords[] = {
    {"IN", 0x04000, 0x05000},
    {"FETCH", 0x06000, 0x07000},
    {"OUT", 0x2C000, 0x2D000},
    {"STORE", 0x2E000, 0x2F000},
};

const FlowWord flowWords[] = {
    {"CALL", 0x30000, 0x31000, 0x31400, 0x31800, 0x31C00},
    {"JUMP", 0x34000, 0x35000, 0x35400, 0x35800, 0x35C00},
    {"RET", 0x2A000, 0x2B000, 0x2B400, 0x2B800, 0x2BC00},
};

/// pBlazIDE for a PicoBlaze 3. Names that differ by case alone are refused: the original is not known to tell them
/// apart.
class PBlazIde : private AssemblerBase
{
public:
    PBlazIde(const Options& options, QStringList* errors)
        : AssemblerBase(options, errors)
    {
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
    void read(const QString& mainFile);
    void layOut();
    void define(const Line& line, const QString& name);
    quint32 encode(const Statement& statement);
    quint32 encodeFlow(const FlowWord& row, const Statement& statement);
    quint32 encodePair(const Statement& statement);
    int registerNumber(const QString& operand, int depth = 0) const;
    quint32 registerOf(const Line& line, const QString& operand);
    int numberOf(const QString& operand, int depth = 0) const;
    quint32 byteOf(const Line& line, const QString& operand);

    QVector<Statement> m_statements;
    QMap<QString, QString> m_names; ///< value as written, by name: a number or a register
    QMap<QString, int> m_labels;
};

bool definesName(const QString& word)
{
    return word == "EQU" || word == "DSIN" || word == "DSOUT" || word == "DSIO" || word == "DSRAM" || word == "DSROM";
}

bool tellsTheTool(const QString& word)
{
    return word == "VHDL" || word == "MEM" || word == "HEX" || word == "EXEC";
}

void PBlazIde::read(const QString& mainFile)
{
    bool found = false;
    const QVector<Line> lines = readLines(mainFile, &found);
    if (!found)
        m_errors->append(mainFile + " can not be read");
    for (const Line& line : lines) {
        Statement statement;
        statement.line = line;
        QString rest = withoutSemicolonComment(line.text).trimmed();
        static const QRegularExpression label("^([A-Za-z_]\\w*)\\s*:");
        static const QRegularExpression definition("^([A-Za-z_]\\w*)\\s+(\\w+)\\s+(.*)$");
        const QRegularExpressionMatch isLabel = label.match(rest);
        const QRegularExpressionMatch isDefinition = definition.match(rest);
        if (isDefinition.hasMatch() && definesName(isDefinition.captured(2).toUpper())) {
            statement.word = isDefinition.captured(2).toUpper();
            define(line, isDefinition.captured(1));
            m_names.insert(isDefinition.captured(1), splitOperands(isDefinition.captured(3)).value(0));
        } else {
            if (isLabel.hasMatch()) {
                statement.label = isLabel.captured(1);
                rest = rest.mid(isLabel.capturedLength()).trimmed();
            }
            statement.word = rest.section(QRegularExpression("\\s"), 0, 0).toUpper();
            statement.operands = splitOperands(rest.mid(statement.word.size()));
        }
        m_statements.append(statement);
    }
}

void PBlazIde::define(const Line& line, const QString& name)
{
    for (const QString& other : m_names.keys() + m_labels.keys()) {
        if (other.compare(name, Qt::CaseInsensitive) == 0)
            fail(line, "defined twice, or but for the case: " + name);
    }
}

void PBlazIde::layOut()
{
    int address = 0;
    for (Statement& statement : m_statements) {
        if (statement.word == "ORG" && hasOperands(statement, 1)) {
            address = numberOf(statement.operands[0]);
            if (address < 0)
                fail(statement.line, "no address: " + statement.operands[0]);
        }
        statement.address = address;
        if (!statement.label.isEmpty()) {
            define(statement.line, statement.label);
            m_labels.insert(statement.label, address);
        }
        const bool silent = statement.word.isEmpty() || statement.word == "ORG" || definesName(statement.word) ||
                            tellsTheTool(statement.word);
        statement.size = silent ? 0 : 1;
        address += statement.size;
    }
}

quint32 PBlazIde::encode(const Statement& statement)
{
    const QString how = statement.operands.join("").toUpper();
    if (statement.word == "EINT" && how.isEmpty())
        return 0x3C001;
    if (statement.word == "DINT" && how.isEmpty())
        return 0x3C000;
    if (statement.word == "RETI" && how == "ENABLE")
        return 0x38001;
    if (statement.word == "RETI" && how == "DISABLE")
        return 0x38000;
    if (const FlowWord* row = rowOf(flowWords, statement.word))
        return encodeFlow(*row, statement);
    if (const ShiftWord* row = rowOf(kcpsmShifts, statement.word)) {
        if (!hasOperands(statement, 1))
            return 0;
        return 0x20000u + (registerOf(statement.line, statement.operands[0]) << 8) + row->low;
    }
    return encodePair(statement);
}

quint32 PBlazIde::encodeFlow(const FlowWord& row, const Statement& statement)
{
    QStringList operands = statement.operands;
    int target = 0;
    if (statement.word != "RET") {
        const QString name = operands.isEmpty() ? QString() : operands.takeLast();
        target = m_labels.contains(name) ? m_labels[name] : numberOf(name);
        if (target < 0 || target > 0x3FF) {
            fail(statement.line, "no target: " + name);
            return 0;
        }
    }
    quint32 word = 0;
    if (!flowWord(row, operands.join(",").toUpper(), &word))
        fail(statement.line, "no condition: " + operands.join(","));
    return word + quint32(target);
}

quint32 PBlazIde::encodePair(const Statement& statement)
{
    const TwoOperandWord* memory = rowOf(memoryWords, statement.word);
    const TwoOperandWord* row = memory != nullptr ? memory : rowOf(logicWords, statement.word);
    if (row == nullptr) {
        fail(statement.line, "no instruction: " + statement.word);
        return 0;
    }
    if (!hasOperands(statement, 2))
        return 0;
    const quint32 x = registerOf(statement.line, statement.operands[0]);
    const QString& second = statement.operands[1];
    const int y = registerNumber(second);
    if (y >= 0)
        return row->withRegister + (x << 8) + (quint32(y) << 4);
    const quint32 number = byteOf(statement.line, second);
    if ((statement.word == "FETCH" || statement.word == "STORE") && number > 0x3F)
        fail(statement.line, "beyond the scratchpad: " + second);
    return row->withNumber + (x << 8) + number;
}

int PBlazIde::registerNumber(const QString& operand, int depth) const
{
    if (operand.size() == 2 && operand[0].toLower() == 's' && digitsToNumber(operand.mid(1), 16) >= 0)
        return int(digitsToNumber(operand.mid(1), 16));
    return m_names.contains(operand) && depth < 20 ? registerNumber(m_names[operand], depth + 1) : -1;
}

quint32 PBlazIde::registerOf(const Line& line, const QString& operand)
{
    const int number = registerNumber(operand);
    if (number < 0)
        fail(line, "no register: " + operand);
    return quint32(qMax(number, 0));
}

int PBlazIde::numberOf(const QString& operand, int depth) const
{
    if (m_names.contains(operand) && depth < 20)
        return numberOf(m_names[operand], depth + 1);
    qint64 number = digitsToNumber(operand, 10);
    if (operand.startsWith('$'))
        number = digitsToNumber(operand.mid(1), 16);
    if (operand.startsWith('%'))
        number = digitsToNumber(operand.mid(1), 2);
    return int(qMin<qint64>(number, 0x10000));
}

quint32 PBlazIde::byteOf(const Line& line, const QString& operand)
{
    const int number = numberOf(operand);
    if (number < 0 || number > 0xFF)
        fail(line, "no number of a byte: " + operand);
    return quint32(number) & 0xFF;
}

} // namespace

Image assemblePBlazIde(const QString& mainFile, const Options& options, QStringList* errors)
{
    return PBlazIde(options, errors).run(mainFile);
}

} // namespace foreign
