#include "FuzzyMatch.h"

#include <QVector>

namespace nsModSrcNavi {

namespace {

const int maxLength = 256; ///< characters of a name that count
const int forChar = 16;
const int forRow = 24;     ///< follows the character before it
const int forWord = 20;    ///< begins a word
const int forBegin = 12;   ///< begins the name
const int impossible = -1; ///< score

bool beginsWord(const QString& name, int at)
{
    if (at == 0)
        return true;
    const QChar before = name.at(at - 1);
    const QChar here = name.at(at);
    return (!before.isLetterOrNumber() && here.isLetterOrNumber()) || (before.isLower() && here.isUpper());
}

} // namespace

int fuzzyMatch(const QString& pattern, const QString& name)
{
    QString wanted = pattern.toLower();
    wanted.remove(QLatin1Char(' '));
    if (wanted.isEmpty())
        return 0;
    const QString text = name.left(maxLength);
    const QString lower = text.toLower();
    if (wanted.size() > lower.size() || lower.size() != text.size())
        return impossible;
    // Best score of the pattern so far if its last character stands at this place of the name.
    QVector<int> best(lower.size(), impossible);
    for (int p = 0; p < wanted.size(); ++p) {
        QVector<int> next(lower.size(), impossible);
        int bestBefore = p == 0 ? 0 : impossible; // of all places further left
        for (int at = 0; at < lower.size(); ++at) {
            if (lower.at(at) == wanted.at(p)) {
                int score = bestBefore;
                if (p > 0 && at > 0 && best.at(at - 1) >= 0)
                    score = qMax(score, best.at(at - 1) + forRow);
                if (score >= 0)
                    next[at] = score + forChar + (beginsWord(text, at) ? forWord : 0) + (at == 0 ? forBegin : 0);
            }
            if (p > 0)
                bestBefore = qMax(bestBefore, best.at(at));
        }
        best = next;
    }
    int score = impossible;
    for (int candidate : qAsConst(best))
        score = qMax(score, candidate);
    // Of two names that fit alike the shorter one is meant.
    return score < 0 ? impossible : score * maxLength + maxLength - text.size();
}

} // namespace nsModSrcNavi
