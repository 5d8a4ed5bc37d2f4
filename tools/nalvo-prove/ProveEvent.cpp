#include "ProveEvent.h"

namespace nsNalvoProve {

namespace {

QString hexText(qint64 value, int digits)
{
    // A core may show what is no number.
    if (value < 0)
        return QString(digits, QLatin1Char('x'));
    return QString::number(value, 16).toUpper().rightJustified(digits, '0');
}

bool same(qint64 one, qint64 other)
{
    return one == other || one == ProveEvent::unknown || other == ProveEvent::unknown;
}

} // namespace

bool ProveEvent::equals(const ProveEvent& other) const
{
    return kind == other.kind && same(address, other.address) && value == other.value && same(clock, other.clock);
}

QString ProveEvent::text() const
{
    static const char* const names[] = {"I", "R", "W", "K", "INT", "RESET"};
    QString line = names[kind];
    if (kind == eFetch)
        line += ' ' + hexText(address, 3);
    else if (kind == eRead || kind == eWrite || kind == eConstantWrite)
        line += ' ' + hexText(address, 2) + ' ' + hexText(value, 2);
    return clock == unknown ? line : line + " @" + QString::number(clock);
}

} // namespace nsNalvoProve
