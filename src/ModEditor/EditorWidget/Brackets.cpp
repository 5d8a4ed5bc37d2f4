#include "Brackets.h"

#include <QByteArray>

namespace nsModEditor {

namespace {

const QLatin1String opening("([{");
const QLatin1String closing(")]}");

/// Which characters are code, string and comment.
QByteArray kindsOf(const QString& line)
{
    QByteArray kinds(line.size(), 'c');
    bool quoted = false;
    for (int i = 0; i < line.size(); ++i) {
        if (line.at(i) == '"')
            quoted = !quoted;
        else if (!quoted && line.at(i) == ';') {
            for (; i < line.size(); ++i)
                kinds[i] = ';';
            break;
        }
        kinds[i] = quoted ? '"' : 'c';
        if (line.at(i) == '\\' && i + 1 < line.size()) {
            ++i;
            // A bracket as the letter of a constant is no bracket.
            kinds[i] = quoted ? '"' : '\\';
        }
    }
    return kinds;
}

int partnerOf(const QString& line, const QByteArray& kinds, int at)
{
    const int open = opening.indexOf(line.at(at));
    const int close = closing.indexOf(line.at(at));
    if ((open < 0 && close < 0) || kinds.at(at) == '\\')
        return -1;
    const QChar same = line.at(at);
    const QChar other = open >= 0 ? closing.at(open) : opening.at(close);
    const int step = open >= 0 ? 1 : -1;
    int depth = 0;
    for (int i = at; i >= 0 && i < line.size(); i += step) {
        if (kinds.at(i) != kinds.at(at))
            continue;
        if (line.at(i) == same)
            ++depth;
        else if (line.at(i) == other && --depth == 0)
            return i;
    }
    return -1;
}

} // namespace

sBracketPair_t bracketPairAt(const QString& line, int position)
{
    const QByteArray kinds = kindsOf(line);
    for (const int at : {position, position - 1}) {
        if (at < 0 || at >= line.size())
            continue;
        const int partner = partnerOf(line, kinds, at);
        if (partner >= 0)
            return {at, partner};
    }
    return {};
}

} // namespace nsModEditor
