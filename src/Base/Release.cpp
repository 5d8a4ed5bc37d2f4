#include "Release.h"

Release Release::own()
{
    return {NALVO_RELEASE_YEAR, NALVO_RELEASE_MONTH, NALVO_RELEASE_NUMBER, NALVO_RELEASE_STATE};
}

QString Release::text() const
{
    return QStringLiteral("%1-%2.%3").arg(year).arg(month).arg(number);
}

QString Release::textWithState() const
{
    static const char* const suffixes[] = {"_a", "_b"};
    const bool isReleased = state != 0 && state != 1;
    return text() + QLatin1String(isReleased ? "_r" : suffixes[state]);
}
