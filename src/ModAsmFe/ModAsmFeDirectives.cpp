// Directives: what each of them records, and the check of the parameters that the front end itself knows.

#include "ModAsmFe.h"

#include "AsmFeParseArg.h"
#include "ModEditorHookIf.h"

#include <QRegExp>

namespace nsModAsmFe {

namespace {

/// One word that begins and ends with a letter, a figure or an underscore.
bool isWord(const QString& text)
{
    static const QRegExp word("^\\b\\S+\\b$");
    return word.exactMatch(text);
}

} // namespace

bool ModAsmFe::parseLineByWord(SrcReference* srcRef, const QString& word, const sDirective_t* directives, int count,
                               bool* isKnown)
{
    for (int i = 0; i < count; ++i) {
        if (word == QLatin1String(directives[i].word)) {
            *isKnown = true;
            return (this->*directives[i].parse)(srcRef);
        }
    }
    *isKnown = false;
    return true;
}

bool ModAsmFe::parseLineConditional(SrcReference* srcRef, const QString& word, bool* isConditional)
{
    static const sDirective_t directives[] = {{"#IFDEF", &ModAsmFe::parseLineDirectiveIf},
                                              {"#ELSEIF", &ModAsmFe::parseLineDirectiveElseIf},
                                              {"#ELSE", &ModAsmFe::parseLineDirectiveElse},
                                              {"#ENDIF", &ModAsmFe::parseLineDirectiveEndIf}};
    return parseLineByWord(srcRef, word, directives, 4, isConditional);
}

bool ModAsmFe::parseLineDirective(SrcReference* srcRef, const QString& word, bool* isDirective)
{
    static const sDirective_t directives[] = {
        {"#DEFINE", &ModAsmFe::parseLineDirectiveDef},   {"#EQU", &ModAsmFe::parseLineDirectiveEqu},
        {"#NAMESPACE", &ModAsmFe::parseLineDirectiveNs}, {"#ENDNAMESPACE", &ModAsmFe::parseLineDirectiveEndNs},
        {"#SET", &ModAsmFe::parseLineDirectiveSet},      {"#ORG", &ModAsmFe::parseLineDirectiveOrg}};
    return parseLineByWord(srcRef, word, directives, 6, isDirective);
}

bool ModAsmFe::parseLineDirectiveIf(SrcReference* srcRef)
{
    const QStringList parts = QString(tag(eTagArg0) + tag(eTagArg1)).split('|', Qt::SkipEmptyParts);
    m_ifActive = 1;
    for (const QString& part : parts) {
        QString name = part.toUpper();
        name.remove(QRegExp("^\\s*"));
        name.remove(QRegExp("\\s$"));
        if (!isWord(name)) {
            m_msgHndlr->signMsg(errSyntax, srcRef);
            return false;
        }
        if (m_defineSet.contains(name)) {
            m_ifMatched = true;
            m_ifSkip = false;
            return true;
        }
    }
    m_ifMatched = false;
    m_ifSkip = true;
    return true;
}

bool ModAsmFe::parseLineDirectiveElseIf(SrcReference* srcRef)
{
    if (m_ifActive == 0) {
        m_msgHndlr->signMsg(errSetExpectIf, srcRef);
        return false;
    }
    if (m_ifMatched) {
        m_ifSkip = true;
        return true;
    }
    return parseLineDirectiveIf(srcRef);
}

bool ModAsmFe::parseLineDirectiveElse(SrcReference* srcRef)
{
    if (m_ifActive == 0) {
        m_msgHndlr->signMsg(errSetExpectIf, srcRef);
        return false;
    }
    if (m_ifMatched) {
        m_ifSkip = true;
        return true;
    }
    m_ifMatched = true;
    m_ifSkip = false;
    return !refuseArguments(srcRef);
}

bool ModAsmFe::parseLineDirectiveEndIf(SrcReference* srcRef)
{
    if (m_ifActive == 0) {
        m_msgHndlr->signMsg(errSetExpectIf, srcRef);
        return false;
    }
    m_ifActive = 0;
    m_ifMatched = false;
    m_ifSkip = false;
    return !refuseArguments(srcRef);
}

/// @return there was an argument, and it was reported
bool ModAsmFe::refuseArguments(SrcReference* srcRef)
{
    if (isEmpty(eTagArg0) && isEmpty(eTagArg1))
        return false;
    m_msgHndlr->signMsg(errUnsupportedArgument, srcRef, tag(isEmpty(eTagArg0) ? eTagArg1 : eTagArg0));
    return true;
}

void ModAsmFe::addDefine(const QString& name)
{
    m_defines.append(name);
    m_defineSet.insert(name);
}

bool ModAsmFe::parseLineDirectiveDef(SrcReference* srcRef)
{
    const QString name = tag(eTagArg0).toUpper();
    if (!isWord(name)) {
        m_msgHndlr->signMsg(errSyntax, srcRef);
        return false;
    }
    if (m_defineSet.contains(name)) {
        m_msgHndlr->signMsg(errDefDuplicate, srcRef, name);
        return false;
    }
    addDefine(name);
    // The define stands, and the run goes on.
    if (!isEmpty(eTagArg1))
        m_msgHndlr->signMsg(errUnsupportedArgument, srcRef, tag(eTagArg1));
    return true;
}

bool ModAsmFe::parseLineDirectiveEqu(SrcReference* srcRef)
{
    QString name = tag(eTagArg0);
    QString value = tag(eTagArg1);
    QString nameAttr;
    QString attr;
    QString range;
    splitFromArgAttr(srcRef, &name, &nameAttr);
    splitFromArgAttr(srcRef, &value, &attr);
    splitFromArgRange(srcRef, &value, &range);

    Equ* equ = m_equList.find(m_nameSpace, name);
    if (equ != nullptr) {
        if (behaviorEqu == equError) {
            m_msgHndlr->signMsg(errEquDuplicate, srcRef, name);
            return false;
        }
        if (behaviorEqu == equWarn)
            m_msgHndlr->signMsg(warnEquDuplicate, srcRef, name);
    } else {
        equ = new Equ;
        equ->nameSpace = m_nameSpace;
        equ->name = m_pool.intern(name);
        m_equList.append(equ);
    }
    equ->srcRef = *srcRef;
    equ->arg->dispName = value;
    equ->arg->name = m_pool.intern(value);
    equ->argExt->attr = attr;
    equ->argExt->attrUpper = attr.toUpper();
    equ->argExt->range = range;
    equ->argExt->parentheses = ArgExt::parenthesesNone;
    equ->prepared = false;
    return true;
}

bool ModAsmFe::parseLineDirectiveNs(SrcReference* srcRef)
{
    const QString name = tag(eTagArg0);
    if (!isWord(name)) {
        m_msgHndlr->signMsg(errSyntax, srcRef);
        return false;
    }
    if (m_nameSpace.size() + name.size() > maxNameSpaceLength) {
        m_msgHndlr->signMsg(errNsTooLong, srcRef, QString::number(maxNameSpaceLength));
        return false;
    }
    m_nameSpace = m_nameSpace.isEmpty() ? name : m_nameSpace + QLatin1String("::") + name;
    return true;
}

bool ModAsmFe::parseLineDirectiveEndNs(SrcReference*)
{
    // The end of a nested namespace leads back to the outermost one.
    const int pos = m_nameSpace.indexOf(QLatin1String("::"));
    if (pos >= 0)
        m_nameSpace.truncate(pos);
    else
        m_nameSpace.clear();
    return true;
}

bool ModAsmFe::parseLineDirectiveSet(SrcReference* srcRef)
{
    const QString text = tag(eTagArg0);
    QRegExp expression("(.*)::(\\S+)$");
    if (!expression.exactMatch(text)) {
        m_msgHndlr->signMsg(errSetExpectNs, srcRef, text);
        return false;
    }
    const QString nameSpace = expression.cap(1);
    const QString name = expression.cap(2);
    const QString nameUpper = name.toUpper();
    if (nameUpper != QLatin1String("VALUE") && m_setList.contains(nameSpace, nameUpper)) {
        m_msgHndlr->signMsg(errSetDuplicate, srcRef, nameSpace + "::" + name);
        return false;
    }
    auto* set = new Set;
    set->srcRef = *srcRef;
    set->nameSpace = nameSpace;
    set->nameSpaceUpper = nameSpace.toUpper();
    set->name = name;
    set->nameUpper = nameUpper;
    set->value = tag(eTagArg1);
    m_setList.append(set);
    return true;
}

bool ModAsmFe::parseLineDirectiveOrg(SrcReference* srcRef)
{
    auto* org = new Org;
    org->srcRef = *srcRef;
    org->name = tag(eTagArg0);
    org->value = tag(eTagArg1);
    m_orgList.append(org);
    return true;
}

bool ModAsmFe::syntacticsCheckSet()
{
    bool success = true;
    for (Set* set = m_setList.first(); set != nullptr; set = set->next) {
        if (set->value.isEmpty()) {
            m_msgHndlr->signMsg(errExpectArgument, &set->srcRef);
            success = false;
            continue;
        }
        classifySet(set);
        if (set->nameSpaceUpper == QLatin1String("ASM"))
            success = syntacticsCheckSetAsm(set) && success;
        else if (set->nameSpaceUpper == QLatin1String("EDITOR"))
            success = syntacticsCheckSetEditor(set) && success;
    }
    return success;
}

void ModAsmFe::classifySet(Set* set)
{
    const QString upper = set->value.toUpper();
    if (AsmFeParseArg::isNumeric(set->value)) {
        set->valueType = Set::valueNumeric;
        set->iValue = m_parseArg->toNumeric(upper);
    } else if (upper == QLatin1String("TRUE")) {
        set->valueType = Set::valueTrue;
    } else if (upper == QLatin1String("FALSE")) {
        set->valueType = Set::valueFalse;
    } else {
        set->valueType = Set::valueText;
    }
}

bool ModAsmFe::syntacticsCheckSetAsm(Set* set)
{
    if (set->nameUpper != QLatin1String("DFLTCHARSET")) {
        m_msgHndlr->signMsg(errSetUnsupportedParameter, &set->srcRef, set->name);
        return false;
    }
    set->used = true;
    if (!isCharset(set->value.toUpper())) {
        m_msgHndlr->signMsg(errStrIvldCharset, &set->srcRef, set->value);
        return false;
    }
    return setupDefaultCodec(set->value);
}

bool ModAsmFe::syntacticsCheckSetEditor(Set* set)
{
    if (set->nameUpper != QLatin1String("TABINDENT")) {
        m_msgHndlr->signMsg(errSetUnsupportedParameter, &set->srcRef, set->name);
        return false;
    }
    set->used = true;
    if (set->valueType != Set::valueNumeric) {
        m_msgHndlr->signMsg(errExpectNumeric, &set->srcRef, set->value);
        return false;
    }
    if (modEditorHook != nullptr)
        modEditorHook->setTabIndent(set->iValue);
    return true;
}

} // namespace nsModAsmFe
