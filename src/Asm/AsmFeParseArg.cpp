#include "AsmFeParseArg.h"

#include "AsmFeMsgHndlr.h"

#include <algorithm>

namespace nsModAsmFe {

namespace {

bool isDec(QChar c)
{
    return c >= '0' && c <= '9';
}

bool isHex(QChar c)
{
    return isDec(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

bool isOct(QChar c)
{
    return c >= '0' && c <= '7';
}

bool isBin(QChar c)
{
    return c == '0' || c == '1';
}

template <class Test>
bool allOf(const QString& text, int from, Test test)
{
    return std::all_of(text.cbegin() + from, text.cend(), test);
}

template <class Test>
bool someOf(const QString& text, int from, Test test)
{
    return from < text.size() && allOf(text, from, test);
}

const int fewDigits = 7; ///< digits of a number that cannot leave the range, whatever its base

/// The number that the digits from a position on stand for. All of them are digits of the base.
/// @return 0 if the number is out of range
int numberFrom(const QString& text, int from, int base)
{
    if (text.size() - from > fewDigits)
        return text.midRef(from).toInt(nullptr, base);
    int value = 0;
    for (int i = from; i < text.size(); ++i) {
        const int c = text.at(i).unicode();
        value = value * base + (c <= '9' ? c - '0' : (c | ('a' - 'A')) - 'a' + 10);
    }
    return value;
}

int afterSigns(const QString& text)
{
    int pos = 0;
    while (pos < text.size() && (text.at(pos) == '+' || text.at(pos) == '-'))
        ++pos;
    return pos;
}

/// Is there a prefix of zero and one of two letters at the position?
bool hasPrefix(const QString& text, int pos, char lower, char upper)
{
    return pos + 1 < text.size() && text.at(pos) == '0' && (text.at(pos + 1) == lower || text.at(pos + 1) == upper);
}

bool isBinaryMark(const QString& text, int pos)
{
    return pos < text.size() && (text.at(pos) == 'b' || text.at(pos) == 'B');
}

} // namespace

AsmFeParseArg::AsmFeParseArg(AsmFeMsgHndlr* msgHndlr, QObject* parent)
    : QObject(parent)
    , m_msgHndlr(msgHndlr)
{
}

bool AsmFeParseArg::isNumeric(const QString& text)
{
    const int pos = afterSigns(text);
    if (pos == text.size())
        return false;
    if (isDec(text.at(pos))) {
        return (hasPrefix(text, pos, 'x', 'X') && someOf(text, pos + 2, isHex)) || allOf(text, pos, isDec) ||
               (hasPrefix(text, pos, 'd', 'D') && someOf(text, pos + 2, isDec)) ||
               (hasPrefix(text, pos, 'o', 'O') && someOf(text, pos + 2, isDec));
    }
    if (text.at(pos) == '\\')
        return someOf(text, pos + 1, isOct);
    return isBinaryMark(text, pos) && someOf(text, pos + 1, isDec);
}

int AsmFeParseArg::toNumeric(const QString& text) const
{
    const int pos = afterSigns(text);
    if (hasPrefix(text, pos, 'x', 'X') && allOf(text, pos + 2, isHex))
        return pos == 0 && text.size() > 2 ? numberFrom(text, 2, 16) : text.toInt(nullptr, 16);
    if (allOf(text, pos, isDec))
        return pos == 0 ? numberFrom(text, 0, 10) : text.toInt(nullptr, 10);
    // The first character is removed even if it is a sign: then the backslash remains in the text, and the result is 0.
    if (pos < text.size() && text.at(pos) == '\\' && allOf(text, pos + 1, isDec))
        return text.mid(1).toInt(nullptr, 8);
    if (isBinaryMark(text, pos) && allOf(text, pos + 1, isBin))
        return text.mid(1).toInt(nullptr, 2);
    if (m_msgHndlr != nullptr)
        m_msgHndlr->signMsg(errExpectArgument);
    return 0;
}

bool AsmFeParseArg::splitNsFromArg(QString* arg, QString* nameSpace)
{
    // The prefix itself holds no white space, so its "::" begins in front of the first blank.
    int blank = 0;
    while (blank < arg->size() && !arg->at(blank).isSpace())
        ++blank;
    const int pos = blank == 0 ? -1 : arg->lastIndexOf(QLatin1String("::"), blank - 1);
    if (pos < 0)
        return false;
    *nameSpace = arg->left(pos);
    *arg = arg->mid(pos + 2);
    return true;
}

bool AsmFeParseArg::extractRangeFromNumeric(const QString& range, unsigned int* value) const
{
    int high = 0;
    int low = 0;
    if (isNumeric(range)) {
        high = low = toNumeric(range);
    } else {
        // The two parts hold no white space; blanks around the colon do not count.
        const int colon = range.lastIndexOf(':');
        if (colon < 0)
            return false;
        QString highText = range.left(colon);
        while (!highText.isEmpty() && highText.at(highText.size() - 1).isSpace())
            highText.chop(1);
        int after = colon + 1;
        while (after < range.size() && range.at(after).isSpace())
            ++after;
        const QString lowText = range.mid(after);
        if (!isNumeric(highText) || !isNumeric(lowText))
            return false;
        high = toNumeric(highText);
        low = toNumeric(lowText);
    }
    unsigned int mask = 1;
    for (int bit = 0; bit < high && mask != ~0u; ++bit)
        mask = (mask << 1) | 1u;
    *value = static_cast<unsigned int>(static_cast<int>(mask & *value) >> (low & 31));
    return true;
}

} // namespace nsModAsmFe
