#pragma once

#include "ArgumentSplitter.h"
#include "AsmFeLineHndlr.h"
#include "ConditionalParser.h"
#include "DirectiveParser.h"
#include "NaviTagReader.h"
#include "SrcReference.h"

#include <QString>
#include <QStringList>

namespace nsModAsmFe {

class AsmCharsets;
class AsmFeConfig;
class AsmFeFileHndlr;
class AsmFeMsgHndlr;
class AsmRunListener;
class SourceLineWatch;
struct AsmProgram;

/// Reads the sources line by line into the program: labels, instructions, directives. One object reads one run.
class SourceReader
{
public:
    /// @param program written: labels, instructions and what directives declare
    /// @param files written: the list of sources
    /// @param charsets read: without a default no source is read
    /// @param config read: what a second `#EQU` of a name does
    /// @param listener gets the tags of the navigator
    SourceReader(AsmProgram& program, AsmFeFileHndlr& files, AsmCharsets& charsets, const AsmFeConfig& config,
                 AsmFeMsgHndlr& messages, AsmRunListener& listener);

    /// @param sources absolute paths in project order
    /// @return false after a reported error
    bool parseFiles(const QStringList& sources);
    /// Reads a single source for a watch. @param fileNo its number, for the places of its lines
    void parseForWatch(int fileNo, const QString& file, SourceLineWatch* watch);

private:
    bool parseFile(SrcReference* srcRef, const QString& file);
    bool checkEndOfFile(SrcReference end);
    bool parseLine(SrcReference* srcRef, const QString& line);
    bool parseLineDirectiveLabel(SrcReference* srcRef);
    bool parseLineOpcode(SrcReference* srcRef, const QString& word);

    AsmProgram& m_program;
    AsmFeFileHndlr& m_files;
    AsmCharsets& m_charsets;
    AsmFeMsgHndlr& m_messages;
    AsmRunListener& m_listener;
    AsmFeLineHndlr m_line; ///< before those that read it
    ArgumentSplitter m_splitter;
    ConditionalParser m_conditionals;
    DirectiveParser m_directives;
    NaviTagReader m_naviTags;
    SourceLineWatch* m_watch = nullptr; ///< not owned; null for none
    bool m_lastLineEnded = true;        ///< the last line of the file has a line end
};

} // namespace nsModAsmFe
