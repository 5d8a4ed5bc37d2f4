#include "BatchNumbers.h"

#include "BatchOutput.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>
#include <cctype>

namespace nsBatch {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("nsBatch", text);
}

} // namespace

bool toNumber(const QString& text, qint64 minimum, qint64 maximum, qint64* value)
{
    const bool isHex = text.startsWith("0x", Qt::CaseInsensitive);
    const QString digits = isHex ? text.mid(2) : text;
    const bool isClean = std::all_of(digits.cbegin(), digits.cend(), [isHex](QChar c) {
        const char ascii = c.toLatin1();
        return (ascii >= '0' && ascii <= '9') || (isHex && std::isxdigit(static_cast<unsigned char>(ascii)) != 0);
    });
    bool ok = false;
    const qint64 number = digits.toLongLong(&ok, isHex ? 16 : 10);
    if (!isClean || !ok || number < minimum || number > maximum)
        return false;
    *value = number;
    return true;
}

bool readNumber(const QCommandLineParser& parser, const QString& name, qint64 minimum, qint64 maximum, qint64* value)
{
    if (!parser.isSet(name) || toNumber(parser.value(name), minimum, maximum, value))
        return true;
    return wrongUsage(
        maximum == unbounded
            ? tr("--%1 takes a number from %2 on: %3").arg(name, QString::number(minimum), parser.value(name))
            : tr("--%1 takes a number from %2 to %3: %4")
                  .arg(name, QString::number(minimum), QString::number(maximum), parser.value(name)));
}

bool readInterruptNumbers(const QCommandLineParser& parser, std::vector<qint64>* numbers)
{
    for (const QString& list : parser.values("interrupt-at")) {
        for (const QString& text : list.split(',')) {
            qint64 number = 0;
            if (!toNumber(text, 1, unbounded, &number))
                return wrongUsage(tr("--interrupt-at takes numbers from 1 on, with commas between: %1").arg(list));
            numbers->push_back(number);
        }
    }
    std::sort(numbers->begin(), numbers->end());
    numbers->erase(std::unique(numbers->begin(), numbers->end()), numbers->end());
    return true;
}

bool readInterruptClocks(const QCommandLineParser& parser, std::vector<std::pair<qint64, qint64>>* requests)
{
    for (const QString& text : parser.values("interrupt-at-clock")) {
        const int colon = text.indexOf(':');
        qint64 clock = 0;
        qint64 length = 1;
        if (!toNumber(text.left(colon), 0, unbounded, &clock) ||
            (colon >= 0 && !toNumber(text.mid(colon + 1), 1, unbounded, &length)))
            return wrongUsage(
                tr("--interrupt-at-clock takes a clock from 0 on, and after : a length from 1 on: %1").arg(text));
        requests->push_back({clock, length});
    }
    return true;
}

bool readPortFile(const QString& text, int* port, QString* file)
{
    const int equals = text.indexOf('=');
    qint64 number = 0;
    if (equals < 0 || !toNumber(text.left(equals), 0, 255, &number))
        return wrongUsage(tr("--port takes an address from 0 to 255, = and a file: %1").arg(text));
    if (text.size() == equals + 1)
        return wrongUsage(tr("The name of the file of a port is empty: %1").arg(text));
    *port = int(number);
    *file = text.mid(equals + 1);
    return true;
}

} // namespace nsBatch
