#include "SourceReader.h"

#include "AsmCharsets.h"
#include "AsmFeFileHndlr.h"
#include "AsmFeMsgHndlr.h"
#include "AsmLimits.h"
#include "AsmProgram.h"
#include "AsmRunListener.h"
#include "LineReader.h"
#include "Opcode.h"
#include "SymbolReader.h"

#include <QIODevice>

#include <algorithm>
#include <memory>

namespace nsModAsmFe {

namespace {

/// Is there text after a carriage return, which then may be meant as a line end?
bool holdsLoneCarriageReturn(const QString& line)
{
    const int pos = line.indexOf('\r');
    return pos >= 0 && std::any_of(line.cbegin() + pos, line.cend(), [](QChar c) { return c != '\r' && c != '\n'; });
}

} // namespace

SourceReader::SourceReader(AsmProgram& program, AsmFeFileHndlr& files, AsmCharsets& charsets, const AsmFeConfig& config,
                           AsmFeMsgHndlr& messages, AsmRunListener& listener)
    : m_program(program)
    , m_files(files)
    , m_charsets(charsets)
    , m_messages(messages)
    , m_listener(listener)
    , m_splitter(messages)
    , m_conditionals(m_line, program.defines, messages)
    , m_directives(m_line, program, config, m_splitter, messages)
    , m_naviTags(m_line, files, listener)
{
}

bool SourceReader::parseFiles(const QStringList& sources)
{
    if (!m_charsets.syntacticsCheckDefaultTextCodec())
        return false;
    SrcReference srcRef;
    m_files.setFiles(sources);
    for (int i = 0; i < sources.size(); ++i) {
        m_messages.signMsg(infoParsingFile, QString::number(i + 1), m_files.file(i));
        srcRef.fileNo = i;
        if (!parseFile(&srcRef, m_files.file(i)))
            return false;
        if (!checkEndOfFile(srcRef))
            return false;
    }
    return true;
}

void SourceReader::parseForWatch(int fileNo, const QString& file, SourceLineWatch* watch)
{
    m_watch = watch;
    SrcReference srcRef;
    srcRef.fileNo = fileNo;
    parseFile(&srcRef, file);
    m_watch = nullptr;
}

/// @return no conditional and no namespace is open; else reported
bool SourceReader::checkEndOfFile(SrcReference end)
{
    // Without a final line break the end of the file is in the last line.
    if (!m_lastLineEnded)
        --end.lineNo;
    if (m_conditionals.isOpen()) {
        m_conditionals.close();
        m_messages.signMsg(errSetExpectIfEndBeforeEof, &end);
        return false;
    }
    if (!m_directives.nameSpace().isEmpty()) {
        m_messages.signMsg(errSetExpectNsEndBeforeEof, &end);
        return false;
    }
    return true;
}

bool SourceReader::parseFile(SrcReference* srcRef, const QString& file)
{
    srcRef->lineNo = 0;
    const std::unique_ptr<QIODevice> source = m_files.open(file);
    if (source == nullptr) {
        m_messages.signMsg(errFileRead, file);
        return false;
    }
    bool success = true;
    bool hasWarned = false;
    m_lastLineEnded = true;
    LineReader reader(source.get(), AsmLimits::maxLineLength);
    QString line;
    while (reader.readLine(&line)) {
        m_lastLineEnded = reader.wasEnded();
        // Often enough for the cursor to appear in time, and seldom enough not to cost time.
        if ((srcRef->lineNo & 0x3ff) == 0 && !m_listener.runGoesOn(srcRef->absLineNo))
            return false;
        if (!hasWarned && holdsLoneCarriageReturn(line)) {
            m_messages.signMsg(warnLoneCarriageReturn, srcRef);
            hasWarned = true;
        }
        if (reader.wasTruncated()) {
            m_messages.signMsg(errSyntax, srcRef);
            success = false;
        } else if (!parseLine(srcRef, line)) {
            success = false;
        }
        ++srcRef->lineNo;
        ++srcRef->absLineNo;
    }
    if (reader.failed()) {
        m_messages.signMsg(errFileRead, file);
        success = false;
    }
    return success;
}

bool SourceReader::parseLine(SrcReference* srcRef, const QString& line)
{
    if (!m_line.splitLine(line)) {
        m_messages.signMsg(errSyntax, srcRef);
        return false;
    }
    m_naviTags.parseLineNaviTag(*srcRef, m_directives.nameSpace(), m_conditionals.isSkipping());
    if (m_line.isEmpty(AsmFeLineHndlr::eTagInstruction) && m_line.isEmpty(AsmFeLineHndlr::eTagLabel))
        return true;

    const QString word = m_program.texts.internUpper(m_line.tagView(AsmFeLineHndlr::eTagInstruction));
    const bool isDirectiveWord = word.startsWith('#');
    bool taken = false;
    if (isDirectiveWord) {
        const bool success = m_conditionals.parseLineConditional(srcRef, word, &taken);
        if (taken)
            return success;
    }
    if (m_conditionals.isSkipping())
        return true;
    if (m_watch != nullptr)
        m_watch->lineRead(*srcRef, m_line, m_directives.nameSpace());
    if (!parseLineDirectiveLabel(srcRef))
        return false;
    if (m_line.isEmpty(AsmFeLineHndlr::eTagInstruction))
        return true;
    if (isDirectiveWord) {
        const bool success = m_directives.parseLineDirective(srcRef, word, &taken);
        if (taken)
            return success;
    }
    return parseLineOpcode(srcRef, word);
}

bool SourceReader::parseLineDirectiveLabel(SrcReference* srcRef)
{
    if (m_conditionals.isSkipping() || m_line.isEmpty(AsmFeLineHndlr::eTagLabel))
        return true;
    QString name = m_line.tag(AsmFeLineHndlr::eTagLabel);
    name.remove(':');
    if (name.isEmpty()) {
        m_messages.signMsg(errLblIsEmpty, srcRef);
        return true;
    }
    if (m_program.labels.contains(m_directives.nameSpace(), name)) {
        m_messages.signMsg(errLblIsDuplicate, srcRef, name);
        return false;
    }
    auto* label = new Label;
    label->srcRef = *srcRef;
    label->nameSpace = m_directives.nameSpace();
    label->name = m_program.texts.intern(name);
    label->indented = !m_line.isEmpty(AsmFeLineHndlr::eTagSpacer0);
    m_program.labels.append(label);
    return true;
}

bool SourceReader::parseLineOpcode(SrcReference* srcRef, const QString& word)
{
    auto* opcode = new Opcode;
    opcode->srcRef = *srcRef;
    opcode->nameSpace = m_directives.nameSpace();
    opcode->name = word;

    const auto setupArg = [&](QStringView text, Arg* arg, ArgExt* ext, bool withRange) {
        // Nearly all arguments are plain words, which need no search for an attribute or a range.
        if (std::find(text.begin(), text.end(), QChar('\'')) == text.end() &&
            !(withRange && text.endsWith(QChar(']')))) {
            arg->name = m_program.texts.intern(text);
        } else {
            QString rest = text.toString();
            m_splitter.splitFromArgAttr(srcRef, &rest, &ext->attr);
            ext->attrUpper = ext->attr.toUpper();
            if (withRange)
                m_splitter.splitFromArgRange(srcRef, &rest, &ext->range);
            arg->name = m_program.texts.intern(rest);
        }
        arg->dispName = arg->name;
    };
    setupArg(m_line.tagView(AsmFeLineHndlr::eTagArg0), opcode->arg0, opcode->arg0Ext, false);
    setupArg(m_line.tagView(AsmFeLineHndlr::eTagArg1), opcode->arg1, opcode->arg1Ext, true);
    m_program.opcodes.append(opcode);
    return true;
}

} // namespace nsModAsmFe
