#include "Kcpsm.h"

#include "KcpsmTables.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace foreign {

namespace {

bool isHex(const QString& text, int maxDigits)
{
    return text.size() <= maxDigits && digitsToNumber(text, 16) >= 0;
}

/// s0 .. sF in exactly this case for any spelling of such a register; other names stay.
QString registerSpelling(const QString& name)
{
    const bool plain = name.size() == 2 && name[0].toLower() == 's' && isHex(name.mid(1), 1);
    return plain ? "s" + name.mid(1).toUpper() : name;
}

bool isDirective(const QString& word)
{
    return word == "CONSTANT" || word == "NAMEREG" || word == "ADDRESS" || word == "STRING" || word == "TABLE" ||
           word == "DEFAULT_JUMP";
}

} // namespace

Kcpsm::Kcpsm(bool six, const Options& options, QStringList* errors)
    : AssemblerBase(options, errors)
    , m_six(six)
{
    m_lastAddress = six ? 0xFFF : 0x3FF;
    for (int i = 0; i < 16; ++i)
        m_registers.insert("s" + QString::number(i, 16).toUpper(), i);
    if (!six)
        return;
    const Stamp& stamp = options.stamp;
    m_predefined = {{"NUL", 0x00}, {"BEL", 0x07}, {"BS", 0x08},  {"HT", 0x09},  {"LF", 0x0A}, {"VT", 0x0B},
                    {"CR", 0x0D},  {"ESC", 0x1B}, {"DEL", 0x7F}, {"DCS", 0x90}, {"ST", 0x9C}};
    m_predefined.insert("timestamp_hours", stamp.hours);
    m_predefined.insert("timestamp_minutes", stamp.minutes);
    m_predefined.insert("timestamp_seconds", stamp.seconds);
    m_predefined.insert("datestamp_year", stamp.year);
    m_predefined.insert("datestamp_month", stamp.month);
    m_predefined.insert("datestamp_day", stamp.day);
    m_strings.insert("timestamp$", {"\"" + timeText(stamp) + "\""});
    m_strings.insert("datestamp$", {"\"" + dateText(stamp) + "\""});
}

Image Kcpsm::run(const QString& mainFile)
{
    read(mainFile, QFileInfo(mainFile).absolutePath(), 0);
    collect();
    layOut();
    encodeAll();
    fillUnused();
    return m_image;
}

void Kcpsm::read(const QString& file, const QString& mainFolder, int depth)
{
    bool found = false;
    const QVector<Line> lines = readLines(file, &found);
    if (!found || depth > 20) {
        m_errors->append(QString("%1 can not be read").arg(file));
        return;
    }
    for (const Line& line : lines) {
        Statement statement;
        statement.line = line;
        QString rest = withoutSemicolonComment(line.text).trimmed();
        static const QRegularExpression label("^([A-Za-z0-9_]+)\\s*:");
        const QRegularExpressionMatch isLabel = label.match(rest);
        if (isLabel.hasMatch()) {
            statement.label = isLabel.captured(1);
            rest = rest.mid(isLabel.capturedLength()).trimmed();
        }
        static const QRegularExpression word("^[A-Za-z0-9_&]+@?");
        const QRegularExpressionMatch first = word.match(rest);
        statement.word = first.captured().toUpper();
        statement.operands = splitOperands(rest.mid(first.capturedLength()));
        if (statement.word.isEmpty() && !rest.isEmpty())
            fail(line, "no instruction");
        m_statements.append(statement);
        if (m_six && statement.word == "INCLUDE" && hasOperands(statement, 1)) {
            const QString name = QString(statement.operands[0]).remove('"');
            // A path is meant from the folder of the file that has it, or from that of the main file.
            QString included = QFileInfo(line.file).absoluteDir().filePath(name);
            if (!QFileInfo::exists(included))
                included = QDir(mainFolder).filePath(name);
            read(included, mainFolder, depth + 1);
        }
    }
}

void Kcpsm::collectName(const Line& line, const QString& name, const QString& ending)
{
    static const QRegularExpression valid("^[A-Za-z0-9_]+$");
    const QString stem = name.left(name.size() - ending.size());
    if (!name.endsWith(ending) || !valid.match(stem).hasMatch())
        fail(line, "no name: " + name);
    if (ending.isEmpty() && (isHex(name, 3) || registerSpelling(name) != name || m_registers.contains(name)))
        fail(line, "the name reads as a number or register: " + name);
    if (m_constants.contains(name) || m_strings.contains(name) || m_tables.contains(name) || m_labels.contains(name) ||
        m_predefined.contains(name))
        fail(line, "defined twice: " + name);
}

void Kcpsm::collect()
{
    for (const Statement& statement : m_statements) {
        const QStringList& operands = statement.operands;
        if (statement.word == "CONSTANT" && hasOperands(statement, 2)) {
            collectName(statement.line, operands[0], "");
            m_constants.insert(operands[0], operands[1]);
        }
        if (m_six && statement.word == "STRING" && operands.size() >= 2) {
            collectName(statement.line, operands[0], "$");
            m_strings.insert(operands[0], operands.mid(1));
        }
        if (m_six && statement.word == "TABLE" && hasOperands(statement, 2)) {
            collectName(statement.line, operands[0], "#");
            m_tables.insert(operands[0], operands[1]);
        }
    }
}

void Kcpsm::layOut()
{
    int address = 0;
    for (Statement& statement : m_statements) {
        if (statement.word == "ADDRESS" && hasOperands(statement, 1)) {
            if (!isHex(statement.operands[0], 3))
                fail(statement.line, "no address: " + statement.operands[0]);
            address = int(digitsToNumber(statement.operands[0], 16));
        }
        statement.address = address;
        if (!statement.label.isEmpty()) {
            collectName(statement.line, statement.label, "");
            m_labels.insert(statement.label, address);
        }
        statement.size = sizeOf(statement);
        address += statement.size;
    }
}

int Kcpsm::sizeOf(const Statement& statement)
{
    if (statement.word.isEmpty() || isDirective(statement.word) || (m_six && statement.word == "INCLUDE"))
        return 0;
    if (m_six && statement.word == "LOAD&RETURN" && statement.operands.size() == 2)
        return sequenceOf(statement.line, statement.operands[1]).size();
    if (m_six && statement.word == "OUTPUTK" && statement.operands.size() == 2)
        return sequenceOf(statement.line, statement.operands[0]).size();
    return 1;
}

void Kcpsm::encodeAll()
{
    for (const Statement& statement : m_statements) {
        if (statement.word == "NAMEREG")
            rename(statement);
        if (m_six && statement.word == "DEFAULT_JUMP" && hasOperands(statement, 1))
            m_defaultJump = targetOf(statement.line, statement.operands[0]);
        place(statement, statement.size > 0 ? encode(statement) : QVector<quint32>());
    }
}

void Kcpsm::rename(const Statement& statement)
{
    if (!hasOperands(statement, 2))
        return;
    const int number = registerOf(statement.line, statement.operands[0]);
    const QString name = registerSpelling(statement.operands[1]);
    if (m_registers.contains(name) || m_constants.contains(name))
        fail(statement.line, "the name is taken: " + name);
    m_registers.remove(registerSpelling(statement.operands[0]));
    m_registers.insert(name, number);
}

QVector<quint32> Kcpsm::encode(const Statement& statement)
{
    const Line& line = statement.line;
    const QString& word = statement.word;
    const QStringList& operands = statement.operands;
    if (word == "JUMP" || word == "CALL" || word == "RETURN")
        return {encodeFlow(statement)};
    if (word == "ENABLE" || word == "DISABLE") {
        if (operands != QStringList("INTERRUPT") && operands.join("").toUpper() != "INTERRUPT")
            fail(line, "only interrupts can be switched");
        return {(m_six ? 0x28000u : 0x3C000u) + (word == "ENABLE" ? 1 : 0)};
    }
    if (word == "RETURNI") {
        const QString how = operands.join("").toUpper();
        if (how != "ENABLE" && how != "DISABLE")
            fail(line, "RETURNI takes ENABLE or DISABLE");
        return {(m_six ? 0x29000u : 0x38000u) + (how == "ENABLE" ? 1 : 0)};
    }
    if (const ShiftWord* row = rowOf(kcpsmShifts, word)) {
        if (!hasOperands(statement, 1))
            return {0};
        const quint32 number = quint32(registerOf(line, operands[0]));
        return {(m_six ? 0x14000u : 0x20000u) + (number << 8) + row->low};
    }
    if (m_six) {
        const QVector<quint32> words = encodeOfSix(statement);
        if (!words.isEmpty())
            return words;
    }
    return encodeOperation(statement);
}

quint32 Kcpsm::encodeFlow(const Statement& statement)
{
    const FlowWord* row = m_six ? rowOf(kcpsm6Flow, statement.word) : rowOf(kcpsm3Flow, statement.word);
    QStringList operands = statement.operands;
    int target = 0;
    if (statement.word != "RETURN") {
        if (operands.isEmpty()) {
            fail(statement.line, "no target");
            return 0;
        }
        target = targetOf(statement.line, operands.takeLast());
    }
    const QString condition = operands.join(",").toUpper();
    quint32 word = 0;
    if (!flowWord(*row, condition, &word))
        fail(statement.line, "no condition: " + condition);
    return word + quint32(target);
}

QVector<quint32> Kcpsm::encodeOperation(const Statement& statement)
{
    const TwoOperandWord* logic = m_six ? rowOf(kcpsm6Logic, statement.word) : rowOf(kcpsm3Logic, statement.word);
    const TwoOperandWord* memory = m_six ? rowOf(kcpsm6Memory, statement.word) : rowOf(kcpsm3Memory, statement.word);
    const TwoOperandWord* row = logic != nullptr ? logic : memory;
    if (row == nullptr) {
        fail(statement.line, "no instruction: " + statement.word);
        return {0};
    }
    if (!hasOperands(statement, 2))
        return {0};
    const quint32 x = quint32(registerOf(statement.line, statement.operands[0]));
    QString second = statement.operands[1];
    // Brackets around the register that holds an address may be left out.
    if (memory != nullptr && second.startsWith('(') && second.endsWith(')'))
        second = second.mid(1, second.size() - 2).trimmed();
    const int y = registerNumber(second);
    if (y >= 0)
        return {row->withRegister + (x << 8) + (quint32(y) << 4)};
    const int number = numberOf(statement.line, second);
    const bool scratchpad = statement.word == "FETCH" || statement.word == "STORE";
    if (scratchpad && !m_six && number > 0x3F)
        fail(statement.line, "beyond the scratchpad: " + second);
    return {row->withNumber + (x << 8) + quint32(number)};
}

QVector<quint32> Kcpsm::encodeOfSix(const Statement& statement)
{
    const Line& line = statement.line;
    const QStringList& operands = statement.operands;
    if (statement.word == "LOAD&RETURN" || statement.word == "OUTPUTK")
        return encodeSequence(statement);
    if (statement.word == "JUMP@" || statement.word == "CALL@") {
        const QString pair = operands.value(0);
        const QStringList registers = splitOperands(pair.mid(1, pair.size() - 2));
        if (!hasOperands(statement, 1) || !pair.startsWith('(') || !pair.endsWith(')') || registers.size() != 2) {
            fail(line, "no pair of registers");
            return {0};
        }
        const quint32 x = quint32(registerOf(line, registers[0]));
        const quint32 y = quint32(registerOf(line, registers[1]));
        return {(statement.word == "JUMP@" ? 0x26000u : 0x24000u) + (x << 8) + (y << 4)};
    }
    if (statement.word == "STAR" && hasOperands(statement, 2)) {
        // The first register is one of the other bank: its own name holds, whatever it was renamed to in this one.
        const QString own = registerSpelling(operands[0]);
        const int plain = own.size() == 2 && own[0] == 's' ? int(digitsToNumber(own.mid(1), 16)) : -1;
        const quint32 x = quint32(registerNumber(own) >= 0 || plain < 0 ? registerOf(line, own) : plain);
        const int y = registerNumber(operands[1]);
        if (y >= 0)
            return {0x16000u + (x << 8) + (quint32(y) << 4)};
        return {0x17000u + (x << 8) + quint32(numberOf(line, operands[1]))};
    }
    if (statement.word == "REGBANK") {
        const QString bank = operands.join("").toUpper();
        if (bank != "A" && bank != "B")
            fail(line, "no bank: " + bank);
        return {bank == "B" ? 0x37001u : 0x37000u};
    }
    if (statement.word == "HWBUILD" && hasOperands(statement, 1))
        return {0x14080u + (quint32(registerOf(line, operands[0])) << 8)};
    if (statement.word == "INST" && hasOperands(statement, 1)) {
        const qint64 word = digitsToNumber(operands[0], 16);
        if (word < 0 || word > 0x3FFFF)
            fail(line, "no word: " + operands[0]);
        return {quint32(word)};
    }
    return {};
}

QVector<quint32> Kcpsm::encodeSequence(const Statement& statement)
{
    if (!hasOperands(statement, 2))
        return {0};
    const bool ret = statement.word == "LOAD&RETURN";
    const QString& sequence = statement.operands[ret ? 1 : 0];
    const QString& other = statement.operands[ret ? 0 : 1];
    // A port of one digit, or a constant up to 15.
    const int place = ret ? registerOf(statement.line, other) : numberOf(statement.line, other);
    if (!ret && place > 0xF)
        fail(statement.line, "no port for constants: " + other);
    QVector<quint32> words;
    for (const int byte : sequenceOf(statement.line, sequence)) {
        if (ret)
            words.append(0x21000u + (quint32(place) << 8) + quint32(byte));
        else
            words.append(0x2B000u + (quint32(byte) << 4) + quint32(place));
    }
    return words;
}

void Kcpsm::fillUnused()
{
    if (m_defaultJump < 0)
        return;
    for (int address = 0; address < m_options.memorySize; ++address) {
        if (!m_image.words.contains(address))
            m_image.words.insert(address, 0x22000u + quint32(m_defaultJump));
    }
}

Image assembleKcpsm3(const QString& mainFile, const Options& options, QStringList* errors)
{
    return Kcpsm(false, options, errors).run(mainFile);
}

Image assembleKcpsm6(const QString& mainFile, const Options& options, QStringList* errors)
{
    return Kcpsm(true, options, errors).run(mainFile);
}

} // namespace foreign
