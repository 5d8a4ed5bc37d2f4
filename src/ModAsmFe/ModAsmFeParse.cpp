// Reading: sources, lines, labels, instructions and navigator tags.

#include "ModAsmFe.h"

#include "AsmFeFileHndlr.h"
#include "LineReader.h"
#include "ModSourcesHookIf.h"
#include "ModSrcNaviHookIf.h"
#include "NaviTag.h"
#include "Opcode.h"

#include <QFile>
#include <QFileInfo>
#include <QRegExp>

#include <algorithm>

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

/// Is there text after a carriage return, which then may be meant as a line end?
bool holdsLoneCarriageReturn(const QString& line)
{
    const int pos = line.indexOf('\r');
    return pos >= 0 && std::any_of(line.cbegin() + pos, line.cend(), [](QChar c) { return c != '\r' && c != '\n'; });
}

} // namespace

bool ModAsmFe::parseFiles()
{
    if (!syntacticsCheckDefaultTextCodec())
        return false;
    m_ifActive = 0;
    m_ifMatched = false;
    m_ifSkip = false;
    m_nameSpace.clear();
    SrcReference srcRef;
    const QStringList files = modSourcesHook != nullptr ? modSourcesHook->files() : QStringList();
    m_fileHndlr->setFiles(files);
    for (int i = 0; i < files.size(); ++i) {
        m_msgHndlr->signMsg(infoParsingFile, QString::number(i + 1), m_fileHndlr->file(i));
        srcRef.fileNo = i;
        if (!parseFile(&srcRef, m_fileHndlr->file(i)))
            return false;
        SrcReference end = srcRef;
        // Without a final line break the end of the file is in the last line.
        if (!m_lastLineEnded)
            --end.lineNo;
        if (m_ifActive != 0) {
            m_ifActive = 0;
            m_ifSkip = false;
            m_msgHndlr->signMsg(errSetExpectIfEndBeforeEof, &end);
            return false;
        }
        if (!m_nameSpace.isEmpty()) {
            m_msgHndlr->signMsg(errSetExpectNsEndBeforeEof, &end);
            return false;
        }
    }
    return true;
}

bool ModAsmFe::parseFile(SrcReference* srcRef, const QString& file)
{
    srcRef->lineNo = 0;
    // Reading a folder, a pipe or a device instead of a source might never end.
    QFile source(file);
    if (!QFileInfo(file).isFile() || !source.open(QIODevice::ReadOnly)) {
        m_msgHndlr->signMsg(errFileRead, file);
        return false;
    }
    bool success = true;
    bool hasWarned = false;
    m_lastLineEnded = true;
    LineReader reader(&source, maxLineLength);
    QString line;
    while (reader.readLine(&line)) {
        m_lastLineEnded = reader.wasEnded();
        // Often enough for the cursor to appear in time, and seldom enough not to cost time.
        if ((srcRef->lineNo & 0x3ff) == 0)
            goesOn();
        if (!hasWarned && holdsLoneCarriageReturn(line)) {
            m_msgHndlr->signMsg(warnLoneCarriageReturn, srcRef);
            hasWarned = true;
        }
        if (reader.wasTruncated()) {
            m_msgHndlr->signMsg(errSyntax, srcRef);
            success = false;
        } else if (!parseLine(srcRef, line)) {
            success = false;
        }
        ++srcRef->lineNo;
        ++srcRef->absLineNo;
    }
    if (reader.failed()) {
        m_msgHndlr->signMsg(errFileRead, file);
        success = false;
    }
    return success;
}

bool ModAsmFe::parseLine(SrcReference* srcRef, QString line)
{
    if (!splitLine(line)) {
        m_msgHndlr->signMsg(errSyntax, srcRef);
        return false;
    }
    parseLineNaviTag(srcRef);
    if (isEmpty(eTagInstruction) && isEmpty(eTagLabel))
        return true;

    const QString word = m_pool.internUpper(tagView(eTagInstruction));
    const bool isDirectiveWord = word.startsWith('#');
    bool taken = false;
    if (isDirectiveWord) {
        const bool success = parseLineConditional(srcRef, word, &taken);
        if (taken)
            return success;
    }
    if (m_ifSkip)
        return true;
    if (!parseLineDirectiveLabel(srcRef))
        return false;
    if (isEmpty(eTagInstruction))
        return true;
    if (isDirectiveWord) {
        const bool success = parseLineDirective(srcRef, word, &taken);
        if (taken)
            return success;
    }
    return parseLineOpcode(srcRef, word);
}

bool ModAsmFe::parseLineDirectiveLabel(SrcReference* srcRef)
{
    if (m_ifSkip || isEmpty(eTagLabel))
        return true;
    QString name = tag(eTagLabel);
    name.remove(':');
    if (name.isEmpty()) {
        m_msgHndlr->signMsg(errLblIsEmpty, srcRef);
        return true;
    }
    if (m_labelList.contains(m_nameSpace, name)) {
        m_msgHndlr->signMsg(errLblIsDuplicate, srcRef, name);
        return false;
    }
    auto* label = new Label;
    label->srcRef = *srcRef;
    label->nameSpace = m_nameSpace;
    label->name = m_pool.intern(name);
    label->indented = !isEmpty(eTagSpacer0);
    m_labelList.append(label);
    return true;
}

bool ModAsmFe::parseLineOpcode(SrcReference* srcRef, const QString& word)
{
    auto* opcode = new Opcode;
    opcode->srcRef = *srcRef;
    opcode->nameSpace = m_nameSpace;
    opcode->name = word;

    const auto setupArg = [&](QStringView text, Arg* arg, ArgExt* ext, bool withRange) {
        // Nearly all arguments are plain words, which need no search for an attribute or a range.
        if (!text.contains(QChar('\'')) && !(withRange && text.endsWith(QChar(']')))) {
            arg->name = m_pool.intern(text);
        } else {
            QString rest = text.toString();
            splitFromArgAttr(srcRef, &rest, &ext->attr);
            ext->attrUpper = ext->attr.toUpper();
            if (withRange)
                splitFromArgRange(srcRef, &rest, &ext->range);
            arg->name = m_pool.intern(rest);
        }
        arg->dispName = arg->name;
    };
    setupArg(tagView(eTagArg0), opcode->arg0, opcode->arg0Ext, false);
    setupArg(tagView(eTagArg1), opcode->arg1, opcode->arg1Ext, true);
    m_opcodeList.append(opcode);
    return true;
}

void ModAsmFe::splitFromArgAttr(SrcReference* srcRef, QString* arg, QString* attr)
{
    const int pos = arg->lastIndexOf('\'');
    if (pos < 0)
        return;
    QString after = arg->mid(pos + 1);
    if (after.isEmpty())
        m_msgHndlr->signMsg(warnAttributeEmpty, srcRef);
    // A quote after it means that the apostrophe is inside a string.
    if (after.contains('"'))
        return;
    arg->truncate(pos);
    trimEnd(arg);
    trimStart(&after);
    *attr = after;
}

void ModAsmFe::splitFromArgRange(SrcReference*, QString* arg, QString* range)
{
    const int pos = arg->lastIndexOf('[');
    if (pos < 0 || !arg->endsWith(']'))
        return;
    *range = arg->mid(pos + 1, arg->size() - pos - 2);
    trimStart(range);
    arg->truncate(pos);
    trimEnd(arg);
}

bool ModAsmFe::splitFromArgParentheseOpen(QString* arg)
{
    if (!arg->startsWith('('))
        return false;
    arg->remove(0, 1);
    trimStart(arg);
    return true;
}

bool ModAsmFe::splitFromArgParentheseClose(QString* arg)
{
    if (!arg->endsWith(')'))
        return false;
    arg->chop(1);
    trimEnd(arg);
    return true;
}

void ModAsmFe::addNaviTag(const SrcReference& srcRef, int type, const QString& title, const QString& lineRef)
{
    auto* naviTag = new nsModSrcNavi::NaviTag;
    naviTag->type = type;
    naviTag->filePath = m_fileHndlr->absSrcFilePath(srcRef.fileNo);
    naviTag->line = srcRef.lineNo;
    naviTag->lineRef = lineRef;
    naviTag->title = title;
    naviTag->disabled = m_ifSkip;
    modSrcNaviHook->addTag(naviTag);
}

void ModAsmFe::parseLineNaviTag(SrcReference* srcRef)
{
    using nsModSrcNavi::NaviTag;
    if (modSrcNaviHook == nullptr)
        return;
    if (!isEmpty(eTagLabel) && isEmpty(eTagSpacer0)) {
        const QString label = tag(eTagLabel);
        addNaviTag(*srcRef, NaviTag::typeLabel,
                   m_nameSpace.isEmpty() ? label : QString("%1::%2").arg(m_nameSpace, label), QString());
    }
    // The expressions are slow, and few comments hold a command.
    if (!tagView(eTagComment).contains(QChar('\\')))
        return;

    static const struct
    {
        const char* word;
        int type;
    } commands[] = {{"navConst", NaviTag::typeConstant},
                    {"navHw", NaviTag::typeHardware},
                    {"navSep", NaviTag::typeSeparator},
                    {"navGrpBegin", NaviTag::typeGroupBegin}};
    QString comment = tag(eTagComment);
    for (const auto& command : commands) {
        const QString word = QString::fromLatin1(command.word);
        if (QRegExp("^.*\\\\\\b" + word + "\\b", Qt::CaseInsensitive).indexIn(comment) < 0)
            continue;
        QString title = comment;
        title.remove(QRegExp("^.*\\\\" + word + "\\s*", Qt::CaseInsensitive));
        // The comment includes the line end, which is not part of the title.
        trimEnd(&title);
        title.remove(QRegExp("^\""));
        title.remove(QRegExp("\"$"));
        QString line = this->line();
        addNaviTag(*srcRef, command.type, title, parseLineNaviTagLineRef(&line, word));
        return;
    }
    if (QRegExp("^.*\\\\\\bnavGrpEnd", Qt::CaseInsensitive).indexIn(comment) >= 0)
        addNaviTag(*srcRef, NaviTag::typeGroupEnd, QString(), QString());
}

QString ModAsmFe::parseLineNaviTagLineRef(QString* line, const QString& word)
{
    for (const char* title : {"\\s+\"[\\S\\s]*\"", "\\s+\\S+"}) {
        QRegExp expression("(^.*\\\\" + word + QString::fromLatin1(title) + ')', Qt::CaseInsensitive);
        if (expression.indexIn(*line) >= 0)
            return expression.cap(0);
    }
    // Without the line break, as a search in the document could not find it.
    QString text = *line;
    while (text.endsWith('\n') || text.endsWith('\r'))
        text.chop(1);
    return text;
}

} // namespace nsModAsmFe
