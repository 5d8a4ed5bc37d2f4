#pragma once

#include "SymbolTable.h"

#include <QString>
#include <QStringList>
#include <QStringView>

#include <vector>

namespace nsModAsmFe {

class AsmFeConfig;
class AsmFeLineHndlr;
class AsmWords;
struct AsmProgram;
struct AsmProjectInfo;
struct SrcReference;

/// Sees the lines of a source as the reader of the assembler takes them, without those that a condition skips.
class SourceLineWatch
{
public:
    virtual ~SourceLineWatch() = default;

    /// @param nameSpace of the line; of a `#NAMESPACE` the one around it
    virtual void lineRead(const SrcReference& srcRef, const AsmFeLineHndlr& line, const QString& nameSpace) = 0;
};

/// A source for SymbolReader.
struct sSymbolSource
{
    QString path; ///< absolute
    QString text; ///< lines end with a line feed
};

/// Makes the table of the names of a program.
///
/// The reader of the assembler reads the sources once more, so that conditions, namespaces and what counts as a name
/// are those of a run. A column is that of the text which is given, whatever its encoding on the disk.
class SymbolReader : private SourceLineWatch
{
public:
    /// @param words read: registers are no names of the program
    /// @param config read: the character set and what a second `#EQU` does
    /// @param project read: the folder of relative paths
    SymbolReader(const AsmWords& words, const AsmFeConfig& config, const AsmProjectInfo& project);

    /// @param processorDefine what the sources can test for; empty without a processor
    /// @param program the assembled program, whose values the names get; null for none
    SymbolTable read(const QVector<sSymbolSource>& sources, const QString& processorDefine, const AsmProgram* program);

private:
    /// A word that names a symbol if there is one of that name.
    struct sWord
    {
        int file;
        int line;
        int column;
        QString text;
        int nameSpace; ///< index
        bool isConstantOnly;
    };

    void lineRead(const SrcReference& srcRef, const AsmFeLineHndlr& line, const QString& nameSpace) override;
    void readLabel(const SrcReference& srcRef, const AsmFeLineHndlr& line, const QString& nameSpace);
    void readSet(const SrcReference& srcRef, const AsmFeLineHndlr& line);
    void addDefinition(eSymbolKind_t kind, const SrcReference& srcRef, int column, int length, const QString& nameSpace,
                       const QString& name);
    void addWords(const SrcReference& srcRef, QStringView text, int column, bool withRange, bool isConstantOnly);
    void resolve(const sWord& word);
    void takeValues(const AsmProgram& program);

    const AsmWords& m_words;
    const AsmFeConfig& m_config;
    const AsmProjectInfo& m_project;
    SymbolTable m_table;
    QStringList m_nameSpaces; ///< those that words refer to
    std::vector<sWord> m_found;
};

} // namespace nsModAsmFe
