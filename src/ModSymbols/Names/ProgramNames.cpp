#include "ProgramNames.h"

#include "EditorDocument.h"
#include "SourceText.h"
#include "SymbolReader.h"

#include "AsmFeLineHndlr.h"
#include "ModAsmFeHookIf.h"
#include "ModAsmFePluginIf.h"
#include "ModEditorHookIf.h"
#include "ModEditorPluginIf.h"
#include "ModSourcesHookIf.h"
#include "ModSourcesPluginIf.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QTextBlock>

namespace nsModSymbols {

using nsModAsmFe::SymbolTable;
using nsModEditor::EditorDocument;

namespace {

/// Characters of all sources that are read anew for a tip; more would take too long while the pointer moves.
const int quickSize = 1 << 19;

bool isNamePart(QChar c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_' || c == ':';
}

/// The word around the column, with the namespaces in front of it.
QString wordAt(const QString& line, int column)
{
    int start = qMin(column, line.size());
    while (start > 0 && isNamePart(line.at(start - 1)))
        --start;
    int end = qMin(column, line.size());
    while (end < line.size() && isNamePart(line.at(end)))
        ++end;
    QString word = line.mid(start, end - start);
    while (word.endsWith(':'))
        word.chop(1);
    return word;
}

/// Is the column in the comment or in a string?
bool isOutsideOfCode(const QString& line, int column)
{
    bool isQuoted = false;
    for (int i = 0; i < column && i < line.size(); ++i) {
        if (line.at(i) == '\\')
            ++i;
        else if (line.at(i) == '"')
            isQuoted = !isQuoted;
        else if (line.at(i) == ';' && !isQuoted)
            return true;
    }
    return isQuoted;
}

} // namespace

ProgramNames::ProgramNames(const ModAsmFePluginIf* assembler, const ModEditorPluginIf* editor,
                           const ModSourcesPluginIf* sources)
    : m_assembler(assembler)
    , m_editor(editor)
    , m_sources(sources)
{
}

EditorDocument* ProgramNames::documentOf(const QString& path) const
{
    if (m_editor->modEditorHook == nullptr)
        return nullptr;
    for (EditorDocument* document : m_editor->modEditorHook->documents()) {
        if (document->filePath() == path)
            return document;
    }
    return nullptr;
}

QStringList ProgramNames::sources() const
{
    return m_sources->modSourcesHook != nullptr ? m_sources->modSourcesHook->files() : QStringList();
}

ProgramNames::sVersion ProgramNames::versionOnDisk(const QString& path)
{
    const QFileInfo file(path);
    sVersion version;
    version.time = file.lastModified();
    version.size = file.exists() ? file.size() : -1;
    return version;
}

ProgramNames::sVersion ProgramNames::versionOf(const QString& path) const
{
    const EditorDocument* document = documentOf(path);
    if (document == nullptr)
        return versionOnDisk(path);
    sVersion version;
    version.document = document;
    version.revision = document->document()->revision();
    return version;
}

QString ProgramNames::textOf(const QString& path) const
{
    if (const EditorDocument* document = documentOf(path))
        return document->text();
    return SourceText::onDisk(path);
}

const SymbolTable& ProgramNames::table()
{
    const QStringList paths = sources();
    QVector<sVersion> versions;
    versions.reserve(paths.size());
    for (const QString& path : paths)
        versions.append(versionOf(path));
    if (m_hasTable && paths == m_table.files && versions == m_versions)
        return m_table;
    QVector<nsModAsmFe::sSymbolSource> texts;
    m_texts.clear();
    for (const QString& path : paths) {
        texts.append({path, textOf(path)});
        m_texts.append(texts.last().text);
    }
    m_table = m_assembler->modAsmFeHook != nullptr ? m_assembler->modAsmFeHook->symbolTable(texts) : SymbolTable();
    m_table.files = paths;
    m_versions = versions;
    m_lines = QVector<QStringList>(paths.size());
    m_hasTable = true;
    return m_table;
}

const SymbolTable& ProgramNames::lastTable()
{
    return m_hasTable ? m_table : table();
}

int ProgramNames::fileOf(const QString& path)
{
    return path.isEmpty() ? -1 : table().files.indexOf(path);
}

int ProgramNames::fileOf(const QString& path, eCost_t cost)
{
    int size = 0;
    for (const QString& text : qAsConst(m_texts))
        size += text.size();
    const bool isKept = cost == eQuick && m_hasTable && size > quickSize;
    return isKept ? m_table.files.indexOf(path) : fileOf(path);
}

QString ProgramNames::nameSpaceAt(const EditorDocument* document, int line)
{
    const int file = fileOf(document->filePath(), eQuick);
    return file < 0 ? QString() : m_table.nameSpaceAt(file, line);
}

/// Is the name of the symbol, or a namespace, what the place has?
bool ProgramNames::isStill(const nsModAsmFe::sSymbolPlace& place, const QString& line) const
{
    const nsModAsmFe::sSymbol& symbol = m_table.symbol(place.symbol);
    return symbol.kind == nsModAsmFe::symbolFile || symbol.name.endsWith(line.midRef(place.column, place.length));
}

int ProgramNames::symbolAt(const EditorDocument* document, int line, int column, eCost_t cost)
{
    const int file = fileOf(document->filePath(), cost);
    if (file < 0)
        return -1;
    const QString text = document->document()->findBlockByNumber(line).text();
    const nsModAsmFe::sSymbolPlace* place = m_table.placeAt(file, line, column);
    if (place != nullptr && isStill(*place, text))
        return place->symbol;
    if (isOutsideOfCode(text, column))
        return -1;
    QString name = wordAt(text, column);
    QString nameSpace = m_table.nameSpaceAt(file, line);
    const int prefix = name.lastIndexOf(QLatin1String("::"));
    if (prefix >= 0) {
        nameSpace = name.left(prefix);
        name = name.mid(prefix + 2);
    }
    if (name.isEmpty())
        return -1;
    for (const auto kind : {nsModAsmFe::symbolConstant, nsModAsmFe::symbolLabel}) {
        const int symbol = m_table.find(kind, nameSpace, name);
        if (symbol >= 0)
            return symbol;
    }
    const QVector<int> others = m_table.named(name);
    return others.size() == 1 ? others.first() : -1;
}

sTextPlace ProgramNames::placeOf(const nsModAsmFe::sSymbolPlace& place)
{
    return {m_table.files.value(place.file), place.line, place.column, place.length};
}

QString ProgramNames::lineText(int file, int line)
{
    if (file < 0 || file >= m_lines.size())
        return QString();
    if (m_lines.at(file).isEmpty())
        m_lines[file] = m_texts.at(file).split('\n');
    return m_lines.at(file).value(line);
}

void ProgramNames::runEnded()
{
    m_hasTable = false;
    m_assembled.clear();
    m_assembledFiles = sources();
    for (const QString& path : qAsConst(m_assembledFiles))
        m_assembled.insert(path, versionOnDisk(path));
}

QString ProgramNames::staleReason()
{
    const auto tr = [](const char* text) { return QCoreApplication::translate("nsModSymbols::ProgramNames", text); };
    const QStringList paths = sources();
    if (paths.isEmpty())
        return tr("The project has no sources.");
    if (m_assembledFiles != paths)
        return tr("The list of sources has changed since the last run. Assemble the program first.");
    for (const QString& path : paths) {
        const EditorDocument* document = documentOf(path);
        const QString name = QFileInfo(path).fileName();
        if (document != nullptr && document->document()->isModified())
            return tr("\"%1\" has changed since the last run. Save the sources first, which assembles them.").arg(name);
        if (!(m_assembled.value(path) == versionOnDisk(path)))
            return tr("The file \"%1\" has changed since the last run. Assemble the program first.").arg(name);
    }
    return QString();
}

void ProgramNames::clear()
{
    m_table = SymbolTable();
    m_versions.clear();
    m_lines.clear();
    m_texts.clear();
    m_hasTable = false;
    m_assembled.clear();
    m_assembledFiles.clear();
}

} // namespace nsModSymbols
