#include "AsmFeFormula.h"

#include <QStringList>

#include <limits>
#include <vector>

namespace nsModAsmFe {

namespace {

int elementTypeOf(QChar c)
{
    switch (c.unicode()) {
    case '~':
        return AsmFeFormula::elementInv;
    case '*':
        return AsmFeFormula::elementMul;
    case '/':
        return AsmFeFormula::elementDiv;
    case '%':
        return AsmFeFormula::elementMod;
    case '+':
        return AsmFeFormula::elementAdd;
    case '-':
        return AsmFeFormula::elementSub;
    case '<':
        return AsmFeFormula::elementLess;
    case '>':
        return AsmFeFormula::elementGreater;
    case '&':
        return AsmFeFormula::elementAnd;
    case '^':
        return AsmFeFormula::elementXor;
    case '|':
        return AsmFeFormula::elementOr;
    case '(':
        return AsmFeFormula::elementOpen;
    case ')':
        return AsmFeFormula::elementClose;
    default:
        return AsmFeFormula::elementNone;
    }
}

/// Arithmetic wraps at 32 bits, as the hardware of the tool's users expects it; unsigned numbers do so without
/// undefined behaviour.
int wrapped(unsigned int value)
{
    return static_cast<int>(value);
}

/// One binary operation. @return false where there is no result
bool operate(int type, int left, int right, int* result)
{
    const unsigned int a = static_cast<unsigned int>(left);
    const unsigned int b = static_cast<unsigned int>(right);
    const bool undefined = right == 0 || (left == std::numeric_limits<int>::min() && right == -1);
    switch (type) {
    case AsmFeFormula::elementMul:
        *result = wrapped(a * b);
        return true;
    case AsmFeFormula::elementDiv:
        *result = undefined ? 0 : left / right;
        return !undefined;
    case AsmFeFormula::elementMod:
        *result = undefined ? 0 : left % right;
        return !undefined;
    case AsmFeFormula::elementAdd:
        *result = wrapped(a + b);
        return true;
    case AsmFeFormula::elementSub:
        *result = wrapped(a - b);
        return true;
    case AsmFeFormula::elementLess:
        *result = wrapped(a << (b & 31));
        return true;
    case AsmFeFormula::elementGreater:
        *result = left >> (b & 31);
        return true;
    case AsmFeFormula::elementAnd:
        *result = wrapped(a & b);
        return true;
    case AsmFeFormula::elementXor:
        *result = wrapped(a ^ b);
        return true;
    case AsmFeFormula::elementOr:
        *result = wrapped(a | b);
        return true;
    default:
        return false;
    }
}

bool isTerm(const AsmFeFormula::sFormularElement_t* element)
{
    return element != nullptr && element->type == AsmFeFormula::elementTerm;
}

} // namespace

bool AsmFeFormula::isFormula(const QString& text)
{
    const QChar* c = text.constData();
    ushort before = 0; // the last character that is not a blank
    bool inQuotes = false;
    for (int i = 0; i < text.size(); ++i) {
        const ushort current = c[i].unicode();
        switch (current) {
        case '+':
        case '-':
        case '*':
        case '/':
        case '~':
        case '&':
        case '^':
        case '|':
        case '%':
            return true;
        case '<':
        case '>':
            // The text ends with a terminating zero, so reading one character further is safe.
            if (c[i + 1] == c[i])
                return true;
            break;
        default:
            break;
        }
        if (current == '"' && before != '\\')
            inQuotes = !inQuotes;
        // A term next to a parenthesis is multiplied with it.
        const bool opensAtTerm = current == '(' && before != 0 && before != '(' && before != ')' && before != ',';
        const bool closesAtTerm =
            before == ')' && current != '(' && current != ')' && current != ',' && !c[i].isSpace();
        if ((opensAtTerm || closesAtTerm) && !inQuotes)
            return true;
        if (!c[i].isSpace())
            before = current;
    }
    return false;
}

AsmFeFormula::eResult_t AsmFeFormula::evaluate(const QString& text, const TermValue& termValue, unsigned int* value)
{
    if (!formulaSplit(text) || !formulaParseElements(termValue)) {
        formulaClear();
        return resultFailed;
    }
    const eResult_t result = formulaChk() ? formulaClc(value) : resultSyntax;
    formulaClear();
    return result;
}

QStringList AsmFeFormula::terms(const QString& text)
{
    QStringList names;
    if (formulaSplit(text)) {
        for (const Element* element = m_first; element != nullptr; element = element->next) {
            if (isTerm(element))
                names.append(element->name);
        }
    }
    formulaClear();
    return names;
}

void AsmFeFormula::formulaClear()
{
    std::deque<Element>().swap(m_elements);
    m_first = nullptr;
    m_last = nullptr;
}

AsmFeFormula::Element* AsmFeFormula::append(int type, const QString& name)
{
    m_elements.emplace_back();
    Element* element = &m_elements.back();
    element->index = int(m_elements.size()) - 1;
    element->type = type;
    element->name = name;
    element->prev = m_last;
    if (m_last == nullptr)
        m_first = element;
    else
        m_last->next = element;
    m_last = element;
    return element;
}

bool AsmFeFormula::formulaSplit(const QString& text)
{
    formulaClear();
    append(elementOpen);
    int start = 0;
    const auto endTerm = [&](int end) {
        if (end > start)
            append(elementTerm, text.mid(start, end - start));
    };
    for (int i = 0; i < text.size(); ++i) {
        const int type = elementTypeOf(text.at(i));
        if (type == elementNone && !text.at(i).isSpace())
            continue;
        // A percent sign needs a blank or an operator in front of it.
        if (type == elementMod && i > start)
            return false;
        endTerm(i);
        start = i + 1;
        if (type != elementNone)
            append(type);
    }
    endTerm(text.size());
    append(elementClose);
    return true;
}

bool AsmFeFormula::formulaParseElements(const TermValue& termValue)
{
    for (Element* element = m_first; element != nullptr; element = element->next) {
        if (isTerm(element) && !termValue(element->name, &element->value))
            return false;
    }
    return true;
}

void AsmFeFormula::remove(Element* element)
{
    element->type = elementNone;
    if (element->prev != nullptr)
        element->prev->next = element->next;
    if (element->next != nullptr)
        element->next->prev = element->prev;
}

void AsmFeFormula::insertAfter(Element* element, int type)
{
    m_elements.emplace_back();
    Element* added = &m_elements.back();
    added->index = int(m_elements.size()) - 1;
    added->type = type;
    added->prev = element;
    added->next = element->next;
    if (added->next != nullptr)
        added->next->prev = added;
    element->next = added;
}

bool AsmFeFormula::formulaChk()
{
    return chkDoubleMinus() && chkSigns() && chkTerms();
}

bool AsmFeFormula::chkDoubleMinus()
{
    for (Element* element = m_first; element != nullptr; element = element->next) {
        if (element->type != elementSub)
            continue;
        if (element->next == nullptr)
            return false;
        if (element->next->type != elementSub)
            break;
        element->type = elementAdd;
        remove(element->next);
    }
    for (Element* element = m_first; element != nullptr; element = element->next) {
        while (element->type == elementAdd && element->next != nullptr && element->next->type == elementAdd)
            remove(element->next);
    }
    return true;
}

bool AsmFeFormula::chkSigns()
{
    for (Element* element = m_first; element != nullptr; element = element->next) {
        if (element->type != elementSub || element->prev == nullptr || isTerm(element->prev))
            continue;
        // A sign at the end of the expression, or before a closing parenthesis, has no operand.
        if (element->next == nullptr || element->next->type == elementClose)
            return false;
        element->next->value = wrapped(0u - static_cast<unsigned int>(element->next->value));
        remove(element);
    }
    return true;
}

bool AsmFeFormula::chkTerms()
{
    for (Element* element = m_first; element != nullptr; element = element->next) {
        Element* next = element->next;
        if (next == nullptr)
            break;
        if (isTerm(element) && isTerm(next))
            return false;
        if ((isTerm(element) && next->type == elementOpen) || (element->type == elementClose && isTerm(next))) {
            insertAfter(element, elementMul);
            element = element->next;
        }
    }
    return true;
}

AsmFeFormula::eResult_t AsmFeFormula::formulaClc(unsigned int* value)
{
    // Each closing parenthesis evaluates the segment since the last open one; the outermost pair is not in the text.
    std::vector<Element*> open;
    int level = 0;
    Element* folded = nullptr;
    for (Element* element = m_first; element != nullptr; element = element->next) {
        if (element->type == elementOpen) {
            open.push_back(element);
            ++level;
        } else if (element->type == elementClose) {
            --level;
            if (open.empty())
                break;
            folded = open.back();
            open.pop_back();
            const bool empty = folded->next == element;
            if (empty)
                return resultFailed;
            if (!formulaClcSegment(folded, element))
                return resultSyntax;
            element = folded;
        }
    }
    if (level < 0)
        return resultMissingOpen;
    if (level > 0)
        return resultMissingClose;
    *value = static_cast<unsigned int>(m_first->value);
    return resultOk;
}

bool AsmFeFormula::formulaClcSegment(Element* open, Element* close)
{
    const bool done =
        formulaClcExprInv(open, close) && formulaClcBinary(open, close, elementMul, elementDiv) &&
        formulaClcBinary(open, close, elementMod, elementMod) &&
        formulaClcBinary(open, close, elementAdd, elementSub) && formulaClcShift(open, close, elementLess) &&
        formulaClcShift(open, close, elementGreater) && formulaClcBinary(open, close, elementAnd, elementAnd) &&
        formulaClcBinary(open, close, elementOr, elementOr) && formulaClcBinary(open, close, elementXor, elementXor);
    // One term must be left over.
    if (!done || !isTerm(open->next) || open->next->next != close)
        return false;
    open->value = open->next->value;
    remove(open->next);
    remove(close);
    open->type = elementTerm;
    return true;
}

bool AsmFeFormula::formulaClcExprInv(Element* open, Element* close)
{
    for (Element* element = open->next; element != close; element = element->next) {
        if (element->type != elementInv)
            continue;
        Element* operand = element->next;
        if (!isTerm(operand))
            return false;
        operand->value = ~operand->value;
        remove(element);
        element = operand;
    }
    return true;
}

bool AsmFeFormula::formulaClcBinary(Element* open, Element* close, int type1, int type2)
{
    for (Element* element = open->next; element != close; element = element->next) {
        if (element->type != type1 && element->type != type2)
            continue;
        Element* left = element->prev;
        Element* right = element->next;
        if (!isTerm(left) || !isTerm(right) || !operate(element->type, left->value, right->value, &left->value))
            return false;
        remove(right);
        remove(element);
        element = left;
    }
    return true;
}

bool AsmFeFormula::formulaClcShift(Element* open, Element* close, int type)
{
    for (Element* element = open->next; element != close; element = element->next) {
        if (element->type != type)
            continue;
        // A shift consists of two equal signs in a row; the first of them is removed, and the second one is the
        // operator.
        if (element->next->type != type)
            return false;
        Element* second = element->next;
        remove(element);
        element = second;
        Element* left = element->prev;
        Element* right = element->next;
        if (!isTerm(left) || !isTerm(right) || !operate(type, left->value, right->value, &left->value))
            return false;
        remove(right);
        remove(element);
        element = left;
    }
    return true;
}

} // namespace nsModAsmFe
