#include "ProcProgram.h"

sOperandRange rangeOf(const sInstrSet& set, QChar letter)
{
    switch (letter.toLatin1()) {
    case 'r':
        return {0, set.regCount};
    case 'c':
        return {0, 16};
    case 's':
        return {0, set.scrpdSize};
    case 'a':
        return {0, set.flowSize};
    case 'o':
        return {-set.flowSize / 2, set.flowSize};
    default:
        return {0, 256};
    }
}

QString operandText(const sInstrSet& set, QChar letter, int value, int address)
{
    switch (letter.toLatin1()) {
    case 'r':
        return set.regName(value);
    case 'a':
        return 'L' + QString::number(value);
    case 'o':
        return 'L' + QString::number(address + value);
    default:
        return QString::number(value);
    }
}

ProcProgram::ProcProgram(const sInstrSet& set)
    : m_set(set)
{
    for (int i = 0; i < margin; ++i)
        add("NOP", 0);
}

void ProcProgram::add(const QString& text, int word)
{
    m_lines.append({text, word});
}

void ProcProgram::addAll(const sEncoding& encoding)
{
    addOperands(encoding, encoding.text, operandsOf(encoding), {});
}

/// Gives the first open operand each of its values, and the others theirs for each of them.
void ProcProgram::addOperands(const sEncoding& encoding, const QString& text, const QStringList& open,
                              QVector<int> values)
{
    if (open.isEmpty()) {
        int word = encoding.word;
        if (!values.isEmpty())
            word += encoding.first * values.first();
        if (values.size() > 1)
            word += encoding.second * values.last();
        add(text, word);
        return;
    }
    const QChar letter = letterOf(open.first());
    values.append(0);
    if (letter.isNull()) {
        addOperands(encoding, text, open.mid(1), values);
        return;
    }
    const int brace = text.indexOf('{');
    const sOperandRange range = rangeOf(m_set, letter);
    for (int value = range.first; value < range.first + range.count; ++value) {
        QString filled = text;
        filled.replace(brace, 3, operandText(m_set, letter, value, nextAddress()));
        values.last() = letter == 'o' ? value & 0xFFF : value;
        addOperands(encoding, filled, open.mid(1), values);
    }
}

QStringList ProcProgram::source() const
{
    QStringList lines;
    lines.reserve(m_lines.size() + margin);
    for (int i = 0; i < m_lines.size() + margin; ++i)
        lines.append('L' + QString::number(i) + ": " + (i < m_lines.size() ? m_lines.at(i).text : QString("NOP")));
    return lines;
}

QHash<QString, int> ProcProgram::settings() const
{
    QHash<QString, int> settings = m_set.settings;
    settings.insert(m_set.section + "/memMap/pageSize", m_lines.size() + margin);
    return settings;
}
