#pragma once

#include <QHash>
#include <QSet>

#include <vector>

namespace nsModAsmFe {

class ArgumentChecker;
class AsmFeMsgHndlr;
class AsmFeParseArg;
class AsmWords;
class Equ;
class EquList;
class FormulaResolver;
class RunWatch;
class StringEncoder;

/// The values of constants: each `#EQU` is evaluated after those that it names, in the order in which it names them.
/// One object resolves the constants of one run.
class EquResolver
{
public:
    /// @param equs their values are written
    /// @param words read: registers and banks
    EquResolver(EquList& equs, const AsmWords& words, ArgumentChecker& arguments, FormulaResolver& formulas,
                StringEncoder& strings, const AsmFeParseArg& numbers, AsmFeMsgHndlr& messages, RunWatch& watch);

    /// Evaluates all of them. @return false after a reported error
    bool syntacticsCheckEquArguments();

private:
    enum eEquResult_t { equDone, equFailed, equWaits };
    struct sEquStep_t;
    /// Why a chain of names has no value.
    struct sEquDeadEnd_t
    {
        Equ* last;   ///< the last name that refers to another one
        Equ* target; ///< what that one refers to: an `#EQU` that fails itself, or one of the chain
    };

    bool syntacticsCheckEquArgument(Equ* root);
    eEquResult_t checkEquStep(std::vector<sEquStep_t>* path, bool success);
    eEquResult_t checkEquAlias(std::vector<sEquStep_t>* path, Equ* target);
    eEquResult_t checkEquFormula(sEquStep_t* step);
    bool takeEquAlias(const sEquStep_t& step, bool success);
    void noteEquLoop(const std::vector<sEquStep_t>& path);
    static void prepareEqu(Equ* equ);

    EquList& m_equs;
    const AsmWords& m_words;
    ArgumentChecker& m_arguments;
    FormulaResolver& m_formulas;
    StringEncoder& m_strings;
    const AsmFeParseArg& m_numbers;
    AsmFeMsgHndlr& m_messages;
    RunWatch& m_watch;
    QHash<const Equ*, sEquDeadEnd_t> m_equDeadEnds;
    QSet<const Equ*> m_equCheckStack; ///< the `#EQU`s on the present path of resolution
    bool m_equFailed = false;         ///< one of them has failed
};

} // namespace nsModAsmFe
