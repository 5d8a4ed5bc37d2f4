#include "SymbolReader.h"

#include "AsmCharsets.h"
#include "AsmFeConfig.h"
#include "AsmFeFileHndlr.h"
#include "AsmFeLineHndlr.h"
#include "AsmFeMsgHndlr.h"
#include "AsmFeParseArg.h"
#include "AsmProgram.h"
#include "AsmProjectInfo.h"
#include "AsmRunListener.h"
#include "AsmWords.h"
#include "Opcode.h"
#include "SourceReader.h"

namespace nsModAsmFe {

namespace {

/// Does the character end a term of an expression?
bool endsTerm(QChar c)
{
    static const QString operators = QStringLiteral("~*/%+-<>&^|()");
    return c.isSpace() || operators.contains(c);
}

/// What stands in front of the attribute of an argument; an apostrophe in a string is none.
QStringView withoutAttribute(QStringView text)
{
    for (int i = text.size() - 1; i >= 0 && text.at(i) != '"'; --i) {
        if (text.at(i) == '\'')
            return text.left(i);
    }
    return text;
}

QStringView withoutRange(QStringView text)
{
    text = text.trimmed();
    if (!text.endsWith(QChar(']')))
        return text;
    for (int i = text.size() - 1; i >= 0; --i) {
        if (text.at(i) == '[')
            return text.left(i);
    }
    return text;
}

} // namespace

SymbolReader::SymbolReader(const AsmWords& words, const AsmFeConfig& config, const AsmProjectInfo& project)
    : m_words(words)
    , m_config(config)
    , m_project(project)
{
}

SymbolTable SymbolReader::read(const QVector<sSymbolSource>& sources, const QString& processorDefine,
                               const AsmProgram* program)
{
    m_table = SymbolTable();
    m_found.clear();
    m_nameSpaces.clear();
    // All that a run writes is written into a program of its own, and nobody hears the messages.
    AsmProgram scratch;
    AsmFeFileHndlr files;
    AsmFeMsgHndlr messages(&files);
    AsmCharsets charsets(messages);
    AsmRunListener nobody;
    for (const sSymbolSource& source : sources) {
        m_table.files.append(source.path);
        // The assembler reads bytes. Names have none beyond ASCII, so a byte a character keeps the columns.
        files.setText(source.path, source.text.toLatin1());
    }
    if (!processorDefine.isEmpty())
        scratch.defines.add(processorDefine);
    charsets.resetDefaultCodec(m_config.defaultCharset);
    files.setFiles(m_table.files);
    // A source with an error has names nevertheless, and so have the sources after it: each begins without a condition
    // and without a namespace.
    for (int i = 0; i < m_table.files.size(); ++i)
        SourceReader(scratch, files, charsets, m_config, messages, nobody).parseForWatch(i, m_table.files.at(i), this);
    for (const sWord& word : m_found)
        resolve(word);
    m_table.sortPlaces();
    if (program != nullptr)
        takeValues(*program);
    return std::move(m_table);
}

void SymbolReader::lineRead(const SrcReference& srcRef, const AsmFeLineHndlr& line, const QString& nameSpace)
{
    m_table.setNameSpace(srcRef.fileNo, srcRef.lineNo, nameSpace);
    if (m_nameSpaces.isEmpty() || m_nameSpaces.last() != nameSpace)
        m_nameSpaces.append(nameSpace);
    readLabel(srcRef, line, nameSpace);
    const QString word = line.tag(AsmFeLineHndlr::eTagInstruction).toUpper();
    const QStringView arg0 = line.tagView(AsmFeLineHndlr::eTagArg0);
    const QStringView arg1 = line.tagView(AsmFeLineHndlr::eTagArg1);
    const int column0 = line.tagStart(AsmFeLineHndlr::eTagArg0);
    const int column1 = line.tagStart(AsmFeLineHndlr::eTagArg1);
    if (word == QLatin1String("#EQU")) {
        const QString name = withoutAttribute(arg0).trimmed().toString();
        if (!name.isEmpty()) {
            addDefinition(symbolConstant, srcRef, column0, name.size(), nameSpace, name);
            m_table.symbol(m_table.find(symbolConstant, nameSpace, name)).text = arg1.toString();
        }
        addWords(srcRef, arg1, column1, true, true);
    } else if (word == QLatin1String("#NAMESPACE")) {
        if (arg0.isEmpty())
            return;
        const QString name = arg0.toString();
        addDefinition(symbolNameSpace, srcRef, column0, name.size(), QString(),
                      nameSpace.isEmpty() ? name : nameSpace + QLatin1String("::") + name);
    } else if (word == QLatin1String("#SET")) {
        readSet(srcRef, line);
    } else if (!word.isEmpty() && !word.startsWith('#')) {
        addWords(srcRef, arg0, column0, false, false);
        addWords(srcRef, arg1, column1, true, false);
    }
}

void SymbolReader::readLabel(const SrcReference& srcRef, const AsmFeLineHndlr& line, const QString& nameSpace)
{
    const QStringView label = line.tagView(AsmFeLineHndlr::eTagLabel);
    if (label.size() < 2)
        return;
    const QString name = label.left(label.size() - 1).toString();
    addDefinition(symbolLabel, srcRef, line.tagStart(AsmFeLineHndlr::eTagLabel), name.size(), nameSpace, name);
}

/// A device is declared by the parameter that enables it; the others name it. A text that is a path is a file.
void SymbolReader::readSet(const SrcReference& srcRef, const AsmFeLineHndlr& line)
{
    const QString target = line.tag(AsmFeLineHndlr::eTagArg0);
    const int end = target.lastIndexOf(QLatin1String("::"));
    if (end <= 0)
        return;
    const QString parameter = target.mid(end + 2).toUpper();
    const QString device = target.left(end);
    if (device.startsWith(QLatin1String("IODEV::"), Qt::CaseInsensitive)) {
        sSymbolPlace place;
        place.file = srcRef.fileNo;
        place.line = srcRef.lineNo;
        place.column = line.tagStart(AsmFeLineHndlr::eTagArg0);
        place.length = end;
        place.symbol = m_table.add(symbolDevice, QString(), device);
        place.isDefinition = parameter == QLatin1String("EN");
        m_table.addPlace(place);
    }
    const QString value = line.tag(AsmFeLineHndlr::eTagArg1);
    if (value.size() > 2 && value.startsWith('"') && value.endsWith('"') &&
        parameter.endsWith(QLatin1String("TMPLFILE"))) {
        sSymbolPlace place;
        place.file = srcRef.fileNo;
        place.line = srcRef.lineNo;
        place.column = line.tagStart(AsmFeLineHndlr::eTagArg1) + 1;
        place.length = value.size() - 2;
        place.symbol = m_table.add(symbolFile, QString(), m_project.absPath(value.mid(1, value.size() - 2)));
        m_table.addPlace(place);
    }
}

void SymbolReader::addDefinition(eSymbolKind_t kind, const SrcReference& srcRef, int column, int length,
                                 const QString& nameSpace, const QString& name)
{
    sSymbolPlace place;
    place.file = srcRef.fileNo;
    place.line = srcRef.lineNo;
    place.column = column;
    place.length = length;
    place.symbol = m_table.add(kind, nameSpace, name);
    place.isDefinition = true;
    m_table.addPlace(place);
}

/// The words of an argument that can name something: of an expression all its terms, of a string none.
void SymbolReader::addWords(const SrcReference& srcRef, QStringView text, int column, bool withRange,
                            bool isConstantOnly)
{
    text = withoutAttribute(text);
    if (withRange)
        text = withoutRange(text);
    int quote = 0;
    while (quote < text.size() && endsTerm(text.at(quote)))
        ++quote;
    if (quote == text.size() || text.at(quote) == '"')
        return;
    for (int start = quote; start < text.size();) {
        int end = start;
        while (end < text.size() && !endsTerm(text.at(end)))
            ++end;
        const QString word = text.mid(start, end - start).toString();
        if (end > start && !AsmFeParseArg::isNumeric(word) && !m_words.regs().contains(word))
            m_found.push_back(
                {srcRef.fileNo, srcRef.lineNo, column + start, word, m_nameSpaces.size() - 1, isConstantOnly});
        start = end + 1;
    }
}

/// Finds what a word names, by the rules of the run: constants before labels, in the namespace of the line or the one
/// that is written.
void SymbolReader::resolve(const sWord& word)
{
    QString name = word.text;
    QString nameSpace = m_nameSpaces.at(word.nameSpace);
    const bool isQualified = AsmFeParseArg::splitNsFromArg(&name, &nameSpace);
    int symbol = m_table.find(symbolConstant, nameSpace, name);
    if (symbol < 0 && !word.isConstantOnly)
        symbol = m_table.find(symbolLabel, nameSpace, name);
    sSymbolPlace place;
    place.file = word.file;
    place.line = word.line;
    if (isQualified) {
        place.column = word.column;
        place.length = nameSpace.size();
        place.symbol = m_table.find(symbolNameSpace, QString(), nameSpace);
        if (place.symbol >= 0)
            m_table.addPlace(place);
    }
    if (symbol < 0)
        return;
    place.column = word.column + word.text.size() - name.size();
    place.length = name.size();
    place.symbol = symbol;
    m_table.addPlace(place);
}

/// What the run has found out. A name that came into the text after it stays without.
void SymbolReader::takeValues(const AsmProgram& program)
{
    for (int i = 0; i < m_table.symbols().size(); ++i) {
        sSymbol& symbol = m_table.symbol(i);
        if (symbol.kind == symbolConstant) {
            const Equ* equ = program.equs.find(symbol.nameSpace, symbol.name);
            symbol.hasValue = equ != nullptr && equ->arg->type == Arg::numeric;
            if (symbol.hasValue)
                symbol.value = equ->arg->iValue;
        } else if (symbol.kind == symbolLabel) {
            const Label* label = program.labels.find(symbol.nameSpace, symbol.name);
            const Opcode* opcode =
                label != nullptr ? program.opcodes.nextOfLineIndex(label->srcRef.absLineNo) : nullptr;
            symbol.hasValue = opcode != nullptr && opcode->pageAddr >= 0 && opcode->nameSpace == symbol.nameSpace;
            if (symbol.hasValue) {
                symbol.value = opcode->pageAddr;
                symbol.page = program.geometry.pageCount > 1 ? opcode->memRange - 1 : 0;
            }
        }
    }
}

} // namespace nsModAsmFe
