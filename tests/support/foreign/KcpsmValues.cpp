#include "Kcpsm.h"

#include <QRegularExpression>

/// Operands of KCPSM programs: registers, numbers, targets, strings and tables.
namespace foreign {

int Kcpsm::registerNumber(const QString& operand) const
{
    const bool plain = operand.size() == 2 && operand[0].toLower() == 's' && digitsToNumber(operand.mid(1), 16) >= 0;
    return m_registers.value(plain ? "s" + operand.mid(1).toUpper() : operand, -1);
}

int Kcpsm::registerOf(const Line& line, const QString& operand)
{
    const int number = registerNumber(operand);
    if (number < 0)
        fail(line, "no register: " + operand);
    return qMax(number, 0);
}

int Kcpsm::literalOf(const QString& operand) const
{
    if (operand.size() == 3 && operand.startsWith('"') && operand.endsWith('"'))
        return operand[1].unicode();
    if (operand.endsWith("'d", Qt::CaseInsensitive))
        return int(qMin<qint64>(digitsToNumber(operand.left(operand.size() - 2), 10), 256));
    if (operand.endsWith("'b", Qt::CaseInsensitive))
        return int(qMin<qint64>(digitsToNumber(operand.left(operand.size() - 2), 2), 256));
    if (operand.startsWith('$'))
        return int(qMin<qint64>(digitsToNumber(operand.mid(1), 16), 256));
    if (operand.startsWith('%'))
        return int(qMin<qint64>(digitsToNumber(operand.mid(1), 2), 256));
    return operand.size() <= 2 ? int(digitsToNumber(operand, 16)) : -1;
}

int Kcpsm::numberOf(const Line& line, const QString& operand, int depth)
{
    if (depth > 20) {
        fail(line, "a constant that names itself: " + operand);
        return 0;
    }
    if (m_six && operand.startsWith('~') && !operand.startsWith("~~"))
        return 0xFF - numberOf(line, operand.mid(1).trimmed(), depth + 1);
    if (m_six && operand.contains("'upper", Qt::CaseInsensitive)) {
        const QString name = operand.left(operand.indexOf('\''));
        if (m_labels.contains(name) && operand.endsWith("'upper", Qt::CaseInsensitive))
            return m_labels[name] >> 8;
    }
    if (m_six && operand.endsWith("'lower", Qt::CaseInsensitive)) {
        const QString name = operand.left(operand.indexOf('\''));
        if (m_labels.contains(name))
            return m_labels[name] & 0xFF;
    }
    if (m_constants.contains(operand))
        return numberOf(line, m_constants[operand], depth + 1);
    if (m_predefined.contains(operand))
        return m_predefined[operand];
    const int literal = literalOf(operand);
    if (literal >= 0 && literal <= 0xFF)
        return literal;
    fail(line, "no number of a byte: " + operand);
    return 0;
}

int Kcpsm::targetOf(const Line& line, const QString& operand)
{
    if (m_labels.contains(operand))
        return m_labels[operand];
    const qint64 address = operand.size() <= 3 ? digitsToNumber(operand, 16) : -1;
    if (address >= 0 && address <= m_lastAddress)
        return int(address);
    fail(line, "no target: " + operand);
    return 0;
}

QVector<int> Kcpsm::sequenceOf(const Line& line, const QString& operand)
{
    if (operand.endsWith('$'))
        return stringOf(line, operand);
    if (operand.endsWith('#'))
        return tableOf(line, operand);
    // While addresses are given out, labels have no value yet: the number of bytes alone counts then.
    if (operand.contains("'upper", Qt::CaseInsensitive) || operand.contains("'lower", Qt::CaseInsensitive)) {
        if (!m_labels.contains(operand.left(operand.indexOf('\''))))
            return {0};
    }
    return {numberOf(line, operand)};
}

QVector<int> Kcpsm::stringOf(const Line& line, const QString& name, int depth)
{
    if (!m_strings.contains(name) || depth > 20) {
        fail(line, "no string: " + name);
        return {};
    }
    QVector<int> bytes;
    for (const QString& item : m_strings[name]) {
        if (item.size() >= 2 && item.startsWith('"') && item.endsWith('"')) {
            for (const QChar c : item.mid(1, item.size() - 2))
                bytes.append(c.unicode());
        } else if (item.endsWith('$')) {
            bytes += stringOf(line, item, depth + 1);
        } else {
            bytes.append(numberOf(line, item));
        }
    }
    return bytes;
}

QVector<int> Kcpsm::tableOf(const Line& line, const QString& name)
{
    static const QRegularExpression form("^\\[(.*)\\]('[dDbB])?$");
    const QRegularExpressionMatch match = form.match(m_tables.value(name));
    if (!match.hasMatch()) {
        fail(line, "no table: " + name);
        return {};
    }
    const QString radix = match.captured(2).toLower();
    const int base = radix == "'d" ? 10 : radix == "'b" ? 2 : 16;
    QVector<int> bytes;
    for (const QString& item : splitOperands(match.captured(1))) {
        const qint64 byte = digitsToNumber(item, base);
        if (byte < 0 || byte > 0xFF)
            fail(line, "no byte: " + item);
        bytes.append(int(byte));
    }
    return bytes;
}

} // namespace foreign
