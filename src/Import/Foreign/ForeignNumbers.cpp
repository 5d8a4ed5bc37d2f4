#include "ForeignNumbers.h"

namespace nsImport {

namespace {

/// -1: there is no digit, or one that the base does not have, or too many
int digits(const QString& text, int base)
{
    if (text.isEmpty())
        return -1;
    qint64 value = 0;
    for (const QChar c : text) {
        const int digit = c >= '0' && c <= '9'   ? c.unicode() - '0'
                          : c >= 'a' && c <= 'f' ? c.unicode() - 'a' + 10
                          : c >= 'A' && c <= 'F' ? c.unicode() - 'A' + 10
                                                 : 99;
        if (digit >= base)
            return -1;
        value = value * base + digit;
        if (value > 0x7FFFFFFF)
            return -1;
    }
    return int(value);
}

ForeignNumber based(const QString& text, int base, const QString& prefix)
{
    ForeignNumber number;
    number.value = digits(text, base);
    number.ok = number.value >= 0;
    number.text = prefix + text;
    return number;
}

/// What stands between the quotes, with C's escapes.
ForeignNumber cCharacter(const QString& inner, bool isUtf8)
{
    if (inner.size() == 1 && inner != QLatin1String("\\"))
        return characterNumber(inner.at(0), isUtf8);
    ForeignNumber number;
    if (!inner.startsWith('\\') || inner.size() < 2)
        return number;
    static const QString letters = QStringLiteral("abtnvfre0\\'\"");
    static const char values[] = {7, 8, 9, 10, 11, 12, 13, 27, 0, '\\', '\'', '"'};
    const int place = inner.size() == 2 ? letters.indexOf(inner.at(1)) : -1;
    if (place >= 0)
        number.value = values[place];
    else if (inner.at(1) == 'x')
        number.value = digits(inner.mid(2), 16);
    else
        number.value = digits(inner.mid(1), 8);
    number.ok = number.value >= 0 && number.value <= 255;
    number.text = hexNumber(number.value);
    return number;
}

ForeignNumber hexPlain(const QString& text)
{
    if (text.endsWith(QLatin1String("'d"), Qt::CaseInsensitive))
        return based(text.left(text.size() - 2), 10, QString());
    if (text.endsWith(QLatin1String("'b"), Qt::CaseInsensitive))
        return based(text.left(text.size() - 2), 2, QStringLiteral("b"));
    return based(text, 16, QStringLiteral("0x"));
}

ForeignNumber cNumber(const QString& text)
{
    if (text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive))
        return based(text.mid(2), 16, QStringLiteral("0x"));
    if (text.startsWith(QLatin1String("0b"), Qt::CaseInsensitive))
        return based(text.mid(2), 2, QStringLiteral("b"));
    if (text.size() > 1 && text.at(0) == '0')
        return based(text.mid(1), 8, QStringLiteral("\\"));
    return based(text, 10, QString());
}

} // namespace

QString hexNumber(int value)
{
    return QStringLiteral("0x") + QString::number(uint(value), 16).toUpper().rightJustified(2, QLatin1Char('0'));
}

QByteArray foreignBytes(const QString& text, bool isUtf8)
{
    return isUtf8 ? text.toUtf8() : text.toLatin1();
}

ForeignNumber characterNumber(QChar character, bool isUtf8)
{
    ForeignNumber number;
    const QByteArray bytes = foreignBytes(QString(character), isUtf8);
    number.ok = bytes.size() == 1;
    number.value = number.ok ? uchar(bytes.at(0)) : 0;
    // What the assembler of the result does not take as a character is written as its number.
    number.isCharacter = number.value >= 0x20 && number.value < 0x7F && character != '"' && character != '\\';
    number.text = number.isCharacter ? '"' + QString(character) + QStringLiteral("\"'ASCII") : hexNumber(number.value);
    return number;
}

ForeignNumber foreignNumber(const QString& text, eForeignNumbers_t numbers, bool isUtf8)
{
    if (text.size() == 3 && text.startsWith('"') && text.endsWith('"'))
        return characterNumber(text.at(1), isUtf8);
    if (numbers != numHexPlain && text.size() >= 3 && text.startsWith('\'') && text.endsWith('\''))
        return cCharacter(text.mid(1, text.size() - 2), isUtf8);
    if (numbers != numC && text.startsWith('$'))
        return based(text.mid(1), 16, QStringLiteral("0x"));
    if (numbers != numC && text.startsWith('%'))
        return based(text.mid(1), 2, QStringLiteral("b"));
    switch (numbers) {
    case numHexPlain:
        return hexPlain(text);
    case numDollar:
        return text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive) ? cNumber(text) : based(text, 10, QString());
    case numC:
        break;
    }
    return cNumber(text);
}

} // namespace nsImport
