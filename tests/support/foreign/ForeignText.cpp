#include "ForeignText.h"

#include <QFile>
#include <QFileInfo>

namespace foreign {

QVector<Line> readLines(const QString& file, bool* found)
{
    QFile source(file);
    *found = source.open(QIODevice::ReadOnly);
    if (!*found)
        return {};
    QByteArray bytes = source.readAll();
    if (bytes.endsWith('\x1A'))
        bytes.chop(1);
    bytes.replace("\r\n", "\n");
    bytes.replace('\r', '\n');
    QVector<Line> lines;
    for (const QByteArray& text : bytes.split('\n')) {
        Line line;
        line.file = QFileInfo(file).absoluteFilePath();
        line.number = lines.size() + 1;
        line.text = QString::fromLatin1(text);
        lines.append(line);
    }
    // What follows the last line end is no line unless something stands there.
    if (lines.last().text.isEmpty())
        lines.removeLast();
    return lines;
}

QString withoutSemicolonComment(const QString& text)
{
    bool quoted = false;
    for (int i = 0; i < text.size(); ++i) {
        if (text[i] == '"')
            quoted = !quoted;
        if (text[i] == ';' && !quoted)
            return text.left(i);
    }
    return text;
}

QStringList splitOperands(const QString& text, bool singleQuotes)
{
    if (text.trimmed().isEmpty())
        return {};
    QStringList parts = {QString()};
    QChar quote;
    int depth = 0;
    for (const QChar c : text) {
        if (!quote.isNull()) {
            if (c == quote)
                quote = QChar();
        } else if (c == '"' || (c == '\'' && singleQuotes)) {
            quote = c;
        } else if (c == '(' || c == '[') {
            ++depth;
        } else if (c == ')' || c == ']') {
            --depth;
        } else if (c == ',' && depth == 0) {
            parts.append(QString());
            continue;
        }
        parts.last().append(c);
    }
    for (QString& part : parts)
        part = part.trimmed();
    return parts;
}

void AssemblerBase::fail(const Line& line, const QString& text)
{
    m_errors->append(QString("%1:%2: %3").arg(QFileInfo(line.file).fileName()).arg(line.number).arg(text));
}

void AssemblerBase::place(const Statement& statement, const QVector<quint32>& words)
{
    if (words.size() != statement.size)
        fail(statement.line, "the two passes disagree about the number of words");
    for (int i = 0; i < words.size(); ++i) {
        const int address = statement.address + i;
        if (m_image.words.contains(address))
            fail(statement.line, QString("a second word for address %1").arg(address, 3, 16));
        if (address > m_lastAddress)
            fail(statement.line, "beyond the end of the memory");
        m_image.words.insert(address, words[i]);
    }
    Row row;
    row.line = statement.line;
    row.address = statement.address;
    row.words = words;
    m_image.rows.append(row);
}

bool AssemblerBase::hasOperands(const Statement& statement, int count)
{
    if (statement.operands.size() == count)
        return true;
    fail(statement.line, QString("%1 takes %2 operands").arg(statement.word).arg(count));
    return false;
}

qint64 digitsToNumber(const QString& digits, int base)
{
    if (digits.isEmpty() || digits.size() > 16)
        return -1;
    for (const QChar c : digits) {
        if (!c.isLetterOrNumber() || c.unicode() > 127)
            return -1;
    }
    bool ok = false;
    const qint64 number = digits.toLongLong(&ok, base);
    return ok ? number : -1;
}

Image assemble(Dialect dialect, const QString& mainFile, const Options& options, QStringList* errors)
{
    switch (dialect) {
    case Dialect::Kcpsm3:
        return assembleKcpsm3(mainFile, options, errors);
    case Dialect::Kcpsm6:
        return assembleKcpsm6(mainFile, options, errors);
    case Dialect::PBlazIde:
        return assemblePBlazIde(mainFile, options, errors);
    case Dialect::Mico8Vendor:
        return assembleMico8Vendor(mainFile, options, errors);
    case Dialect::Mico8Gnu:
        return assembleMico8Gnu(mainFile, options, errors);
    }
    return {};
}

QByteArray hexFile(const Image& image, int memorySize)
{
    QByteArray text;
    for (int address = 0; address < memorySize; ++address)
        text += QString("%1\n").arg(image.words.value(address, 0), 5, 16, QChar('0')).toUpper().toLatin1();
    return text;
}

QByteArray logFile(const Image& image, const QString& mainFile, const Stamp& stamp)
{
    QString text = QString("Assembler log file for program '%1'.\n").arg(QFileInfo(mainFile).fileName());
    text += QString("Assembly timestamp: %1\n").arg(timeText(stamp));
    text += QString("Assembly datestamp: %1\n\n").arg(dateText(stamp));
    text += " Addr  Code   Source\n\n";
    for (const Row& row : image.rows) {
        const QString first =
            row.words.isEmpty() ? QString(5, ' ') : QString("%1").arg(row.words[0], 5, 16, QChar('0'));
        text += QString("  %1  %2  ").arg(row.address, 3, 16, QChar('0')).arg(first).toUpper() + row.line.text + "\n";
        for (int i = 1; i < row.words.size(); ++i) {
            text += QString("  %1  %2\n")
                        .arg(row.address + i, 3, 16, QChar('0'))
                        .arg(row.words[i], 5, 16, QChar('0'))
                        .toUpper();
        }
    }
    return text.toLatin1();
}

QString timeText(const Stamp& stamp)
{
    return QString("%1:%2:%3")
        .arg(stamp.hours, 2, 10, QChar('0'))
        .arg(stamp.minutes, 2, 10, QChar('0'))
        .arg(stamp.seconds, 2, 10, QChar('0'));
}

QString dateText(const Stamp& stamp)
{
    const QStringList months = {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    return QString("%1 %2 20%3")
        .arg(stamp.day, 2, 10, QChar('0'))
        .arg(months.value(stamp.month - 1))
        .arg(stamp.year, 2, 10, QChar('0'));
}

} // namespace foreign
