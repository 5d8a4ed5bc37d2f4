#pragma once

namespace nsModAsmFe {

class AsmCharsets;
class AsmFeMsgHndlr;
class AsmFeParseArg;
class AsmRunListener;
class RunWatch;
class Set;
class SetList;

/// The check of the `#SET`s: their types, and the parameters that belong to neither memory, device nor processor.
class SetChecker
{
public:
    /// @param sets their types are written
    /// @param charsets written: the default character set
    /// @param listener gets the tabulator width
    SetChecker(SetList& sets, AsmCharsets& charsets, const AsmFeParseArg& numbers, AsmFeMsgHndlr& messages,
               AsmRunListener& listener, RunWatch& watch);

    /// @return false after a reported error
    bool syntacticsCheckSet();

private:
    void classifySet(Set* set);
    bool syntacticsCheckSetAsm(Set* set);
    bool syntacticsCheckSetEditor(Set* set);

    SetList& m_sets;
    AsmCharsets& m_charsets;
    const AsmFeParseArg& m_numbers;
    AsmFeMsgHndlr& m_messages;
    AsmRunListener& m_listener;
    RunWatch& m_watch;
};

} // namespace nsModAsmFe
