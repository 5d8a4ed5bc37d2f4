#include "EquResolver.h"

#include "ArgumentChecker.h"
#include "AsmFeFormula.h"
#include "AsmFeMsgHndlr.h"
#include "AsmFeParseArg.h"
#include "AsmWords.h"
#include "EquList.h"
#include "FormulaResolver.h"
#include "RunWatch.h"
#include "StringEncoder.h"

#include <QStringList>

namespace nsModAsmFe {

/// One `#EQU` of the path that starts at the requested one.
struct EquResolver::sEquStep_t
{
    explicit sEquStep_t(Equ* e)
        : equ(e)
    {
    }

    Equ* equ;
    Equ* target = nullptr; ///< the `#EQU` whose value this one waits for
    bool isFormula = false;
    QStringList terms;       ///< of an expression
    std::vector<int> values; ///< of its terms, as far as they are known
};

EquResolver::EquResolver(EquList& equs, const AsmWords& words, ArgumentChecker& arguments, FormulaResolver& formulas,
                         StringEncoder& strings, const AsmFeParseArg& numbers, AsmFeMsgHndlr& messages, RunWatch& watch)
    : m_equs(equs)
    , m_words(words)
    , m_arguments(arguments)
    , m_formulas(formulas)
    , m_strings(strings)
    , m_numbers(numbers)
    , m_messages(messages)
    , m_watch(watch)
{
}

bool EquResolver::syntacticsCheckEquArguments()
{
    m_equFailed = false;
    for (Equ* equ = m_equs.first(); equ != nullptr; equ = equ->next) {
        syntacticsCheckEquArgument(equ);
        if (!m_watch.goesOn())
            return false;
    }
    return !m_equFailed;
}

/// Finds the value of an `#EQU`.
///
/// Constants can depend on one another over thousands of steps, so the path is kept in a list and not on the machine's
/// stack. An `#EQU` that fails may have a type nevertheless: then it counts as done from now on. One without a type is
/// evaluated again at each request, and reports its error again.
bool EquResolver::syntacticsCheckEquArgument(Equ* root)
{
    if (root->arg->type != Arg::unset)
        return true;
    std::vector<sEquStep_t> path;
    path.emplace_back(root);
    m_equCheckStack.insert(root);
    bool success = true;
    while (!path.empty()) {
        if (!m_watch.goesOn())
            return false;
        const eEquResult_t result = checkEquStep(&path, success);
        if (result == equWaits) {
            Equ* target = path.back().target;
            success = true;
            path.emplace_back(target);
            m_equCheckStack.insert(target);
            continue;
        }
        success = result == equDone;
        m_equFailed = m_equFailed || !success;
        m_equCheckStack.remove(path.back().equ);
        path.pop_back();
    }
    return success;
}

/// Continues the evaluation of the last `#EQU` of the path.
/// @param success the `#EQU` that it has waited for has a value now
EquResolver::eEquResult_t EquResolver::checkEquStep(std::vector<sEquStep_t>* path, bool success)
{
    sEquStep_t& step = path->back();
    const auto result = [](bool done) { return done ? equDone : equFailed; };
    if (step.isFormula)
        return checkEquFormula(&step);
    if (step.target != nullptr)
        return result(takeEquAlias(step, success));

    Arg* arg = step.equ->arg;
    ArgExt* ext = step.equ->argExt;
    const SrcReference* srcRef = &step.equ->srcRef;
    // A value that becomes empty when its parentheses are removed is refused below.
    if (arg->name.isEmpty() && !step.equ->prepared) {
        arg->type = Arg::empty;
        m_messages.signMsg(errExpectArgument, srcRef);
        return equFailed;
    }
    prepareEqu(step.equ);
    if (Equ* target = m_equs.find(arg->nameSpace, arg->name))
        return checkEquAlias(path, target);
    if (AsmFeParseArg::isNumeric(arg->name))
        return result(m_arguments.syntacticsCheckArgNumeric(srcRef, arg, ext));
    const auto reg = m_words.regs().constFind(arg->name);
    if (reg != m_words.regs().cend())
        return result(m_arguments.syntacticsCheckArgReg(srcRef, arg, ext, *reg));
    const auto bank = m_words.banks().constFind(arg->name);
    if (bank != m_words.banks().cend())
        return result(m_arguments.syntacticsCheckArgBankName(srcRef, arg, ext, *bank));
    if (StringEncoder::isString(arg->name))
        return result(m_strings.syntacticsCheckArgString(srcRef, arg, ext, true));
    if (AsmFeFormula::isFormula(arg->name)) {
        arg->type = Arg::numeric;
        step.isFormula = true;
        step.terms = AsmFeFormula().terms(arg->name);
        return checkEquFormula(&step);
    }
    m_messages.signMsg(errUnsupportedArgument, srcRef, arg->name);
    return equFailed;
}

/// Takes parentheses and prefix off the value's text; doing so again changes nothing.
void EquResolver::prepareEqu(Equ* equ)
{
    if (equ->prepared)
        return;
    equ->prepared = true;
    ArgumentChecker::syntacticsSetArgParentheses(equ->arg, equ->argExt);
    ArgumentChecker::syntacticsSetArgNameSpace(equ->arg, equ->nameSpace);
}

/// The last `#EQU` of the path is another name for the target.
EquResolver::eEquResult_t EquResolver::checkEquAlias(std::vector<sEquStep_t>* path, Equ* target)
{
    sEquStep_t& step = path->back();
    // If a chain of names has failed before, its stored end is used: otherwise each of thousands of names would follow
    // the chain again.
    const sEquDeadEnd_t deadEnd = m_equDeadEnds.value(step.equ, {step.equ, target});
    step.target = deadEnd.target;
    if (m_equCheckStack.contains(step.target)) {
        m_messages.signMsg(errEquClosedLoop, &deadEnd.last->srcRef);
        if (deadEnd.last == step.equ)
            noteEquLoop(*path);
        return equFailed;
    }
    if (step.target->arg->type == Arg::unset)
        return equWaits;
    return takeEquAlias(step, true) ? equDone : equFailed;
}

/// Takes over the value of the target as a whole.
/// @param success the target has one
bool EquResolver::takeEquAlias(const sEquStep_t& step, bool success)
{
    if (!success) {
        if (!m_equDeadEnds.contains(step.equ))
            m_equDeadEnds.insert(step.equ, m_equDeadEnds.value(step.target, {step.equ, step.target}));
        return false;
    }
    step.target->used = true;
    step.equ->arg->takeValue(*step.target->arg);
    return true;
}

/// The path ends in a name that it contains already. In a cycle that consists of names only, each member reports the
/// cycle at its predecessor.
void EquResolver::noteEquLoop(const std::vector<sEquStep_t>& path)
{
    const Equ* target = path.back().target;
    size_t first = path.size() - 1;
    while (path[first].equ != target && !path[first].isFormula)
        --first;
    m_equDeadEnds.insert(path.back().equ, {path.back().equ, path.back().target});
    if (path[first].isFormula)
        return;
    m_equDeadEnds.insert(path[first].equ, {path.back().equ, path[first].equ});
    for (size_t i = first + 1; i < path.size(); ++i)
        m_equDeadEnds.insert(path[i].equ, {path[i - 1].equ, path[i].equ});
}

/// Continues with the terms of an expression. The first term that is not a number ends it: later terms are not
/// evaluated.
EquResolver::eEquResult_t EquResolver::checkEquFormula(sEquStep_t* step)
{
    Arg* arg = step->equ->arg;
    const SrcReference* srcRef = &step->equ->srcRef;
    while (int(step->values.size()) < step->terms.size()) {
        const QString& term = step->terms.at(int(step->values.size()));
        int value = 0;
        if (AsmFeParseArg::isNumeric(term)) {
            value = m_numbers.toNumeric(term);
        } else {
            Equ* target = m_formulas.equOfTerm(arg->nameSpace, term);
            if (target != nullptr && m_equCheckStack.contains(target)) {
                m_messages.signMsg(errEquClosedLoop, srcRef);
                return equFailed;
            }
            const bool wasAsked = step->target == target;
            step->target = target;
            if (target != nullptr && target->arg->type == Arg::unset && !wasAsked)
                return equWaits;
            if (!m_formulas.equTermValue(srcRef, term, target, &value))
                return equFailed;
        }
        step->values.push_back(value);
        step->target = nullptr;
    }
    size_t next = 0;
    unsigned int result = 0;
    const auto nextValue = [&](const QString&, int* value) {
        *value = step->values.at(next++);
        return true;
    };
    if (!m_formulas.evaluateFormula(srcRef, arg->name, nextValue, &result))
        return equFailed;
    arg->iValue = static_cast<int>(result);
    return equDone;
}

} // namespace nsModAsmFe
