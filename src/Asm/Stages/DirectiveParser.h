#pragma once

#include "AsmFeLineHndlr.h"
#include "SrcReference.h"

#include <QString>

namespace nsModAsmFe {

class AsmFeConfig;
class AsmFeMsgHndlr;
class ArgumentSplitter;
struct AsmProgram;

/// The directives that declare something: `#DEFINE`, `#EQU`, `#SET`, `#ORG` and the namespaces. Only records; what the
/// values mean is checked by later stages.
class DirectiveParser
{
public:
    /// @param line read: the tags of the present line
    /// @param program written: defines, constants, settings and origins
    /// @param config read: what a second `#EQU` of a name does
    DirectiveParser(const AsmFeLineHndlr& line, AsmProgram& program, const AsmFeConfig& config,
                    ArgumentSplitter& splitter, AsmFeMsgHndlr& messages);

    /// @param word in upper case
    /// @param isDirective out: it is one of these
    /// @return false after a reported error
    bool parseLineDirective(SrcReference* srcRef, const QString& word, bool* isDirective);
    /// The namespace of the present line, empty outside of all.
    const QString& nameSpace() const { return m_nameSpace; }

    // Macros are reserved words without a meaning: nobody calls these two.
    static bool parseLineDirectiveMacro(SrcReference*) { return true; }
    static bool parseLineDirectiveEndMacro(SrcReference*) { return true; }

private:
    bool parseLineDirectiveDef(SrcReference* srcRef);
    bool parseLineDirectiveEqu(SrcReference* srcRef);
    bool parseLineDirectiveNs(SrcReference* srcRef);
    bool parseLineDirectiveEndNs(SrcReference* srcRef);
    bool parseLineDirectiveSet(SrcReference* srcRef);
    bool parseLineDirectiveOrg(SrcReference* srcRef);

    const AsmFeLineHndlr& m_line;
    AsmProgram& m_program;
    const AsmFeConfig& m_config;
    ArgumentSplitter& m_splitter;
    AsmFeMsgHndlr& m_messages;
    QString m_nameSpace;
};

} // namespace nsModAsmFe
