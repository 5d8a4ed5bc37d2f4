#pragma once

#include "AsmFeMsgCatalogue.h"

#include <QString>

namespace nsModAsmFe {

class AsmFeMsgHndlr;
class AsmWords;
class RunWatch;
struct AsmProgram;
struct SrcReference;

/// The names of labels and constants, and what the program declares without using it.
class SymbolChecker
{
public:
    /// @param program read: labels, constants, settings and origins
    /// @param words read: the names that are taken
    SymbolChecker(const AsmProgram& program, const AsmWords& words, AsmFeMsgHndlr& messages, RunWatch& watch);

    /// @return false after a reported error
    bool syntacticsCheckLabel();
    /// @return false after a reported error
    bool syntacticsCheckEquNames();
    /// The rule for the name of a label or a constant.
    /// @param fault out: the message that refuses the name
    /// @return the name may be given
    static bool mayBeNamed(const AsmWords& words, const QString& name, eMsgType_t* fault);
    /// Warns of what nothing has used.
    void usageCheck();

private:
    static bool isValidName(const QString& name);
    bool checkName(const SrcReference* srcRef, const QString& name);

    const AsmProgram& m_program;
    const AsmWords& m_words;
    AsmFeMsgHndlr& m_messages;
    RunWatch& m_watch;
};

} // namespace nsModAsmFe
