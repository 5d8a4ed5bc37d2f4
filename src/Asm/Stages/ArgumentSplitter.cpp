#include "ArgumentSplitter.h"

#include "AsmFeMsgHndlr.h"

namespace nsModAsmFe {

namespace {

void trimStart(QString* text)
{
    int pos = 0;
    while (pos < text->size() && text->at(pos).isSpace())
        ++pos;
    text->remove(0, pos);
}

void trimEnd(QString* text)
{
    while (!text->isEmpty() && text->at(text->size() - 1).isSpace())
        text->chop(1);
}

} // namespace

void ArgumentSplitter::splitFromArgAttr(SrcReference* srcRef, QString* arg, QString* attr)
{
    const int pos = arg->lastIndexOf('\'');
    if (pos < 0)
        return;
    QString after = arg->mid(pos + 1);
    if (after.isEmpty())
        m_messages.signMsg(warnAttributeEmpty, srcRef);
    // A quote after it means that the apostrophe is inside a string.
    if (after.contains('"'))
        return;
    arg->truncate(pos);
    trimEnd(arg);
    trimStart(&after);
    *attr = after;
}

void ArgumentSplitter::splitFromArgRange(SrcReference*, QString* arg, QString* range)
{
    const int pos = arg->lastIndexOf('[');
    if (pos < 0 || !arg->endsWith(']'))
        return;
    *range = arg->mid(pos + 1, arg->size() - pos - 2);
    trimStart(range);
    arg->truncate(pos);
    trimEnd(arg);
}

bool ArgumentSplitter::splitFromArgParentheseOpen(QString* arg)
{
    if (!arg->startsWith('('))
        return false;
    arg->remove(0, 1);
    trimStart(arg);
    return true;
}

bool ArgumentSplitter::splitFromArgParentheseClose(QString* arg)
{
    if (!arg->endsWith(')'))
        return false;
    arg->chop(1);
    trimEnd(arg);
    return true;
}

} // namespace nsModAsmFe
