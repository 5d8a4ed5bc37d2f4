#pragma once

#include <QString>

#include <deque>
#include <functional>

namespace nsModAsmFe {

/// The evaluator of expressions: 32-bit integer arithmetic over numbers and `#EQU` names.
///
/// An expression is a chain of elements. It is parsed from the text, a callback gives its terms their values, signs and
/// implicit multiplications are resolved, and then each pair of parentheses is evaluated to one term, one operator
/// family after the other.
class AsmFeFormula
{
public:
    enum eElementType_t {
        elementNone = 0, ///< consumed
        elementTerm = 1,
        elementInv = 2, ///< ~
        elementMul = 3,
        elementDiv = 4,
        elementMod = 5,
        elementAdd = 6,
        elementSub = 7,
        elementLess = 8,    ///< half of <<
        elementGreater = 9, ///< half of >>
        elementAnd = 10,
        elementXor = 11,
        elementOr = 12,
        elementOpen = 13,
        elementClose = 14,
    };

    struct sFormularElement_t
    {
        int index = 0;
        QString name; ///< text of a term
        int type = elementNone;
        int value = 0; ///< value of a term
        sFormularElement_t* prev = nullptr;
        sFormularElement_t* next = nullptr;
    };

    enum eResult_t {
        resultOk,
        resultFailed, ///< without a message: the callback has reported the error, or there is nothing to report
        resultSyntax,
        resultMissingOpen,
        resultMissingClose,
    };

    /// Gives a term its value. @return false ends the evaluation with resultFailed
    using TermValue = std::function<bool(const QString& term, int* value)>;

    /// Does the text contain an operator, written or implied? If so, it is an expression and not a plain argument.
    static bool isFormula(const QString& text);

    /// Evaluates an expression.
    eResult_t evaluate(const QString& text, const TermValue& termValue, unsigned int* value);
    /// The terms of an expression without the operators, in their order; empty if it cannot be parsed.
    QStringList terms(const QString& text);

private:
    using Element = sFormularElement_t;

    void formulaClear();
    Element* append(int type, const QString& name = QString());
    bool formulaSplit(const QString& text);
    bool formulaParseElements(const TermValue& termValue);
    bool formulaChk();
    bool chkDoubleMinus();
    bool chkSigns();
    bool chkTerms();
    eResult_t formulaClc(unsigned int* value);
    bool formulaClcSegment(Element* open, Element* close);
    bool formulaClcExprInv(Element* open, Element* close);
    bool formulaClcBinary(Element* open, Element* close, int type1, int type2);
    bool formulaClcShift(Element* open, Element* close, int type);
    void remove(Element* element);
    void insertAfter(Element* element, int type);

    std::deque<Element> m_elements; ///< storage of the elements; the order is given by the chain
    Element* m_first = nullptr;
    Element* m_last = nullptr;
};

} // namespace nsModAsmFe
