#include "DirectiveParser.h"

#include "ArgumentSplitter.h"
#include "AsmFeConfig.h"
#include "AsmFeMsgHndlr.h"
#include "AsmLimits.h"
#include "AsmProgram.h"
#include "DirectiveWord.h"

namespace nsModAsmFe {

DirectiveParser::DirectiveParser(const AsmFeLineHndlr& line, AsmProgram& program, const AsmFeConfig& config,
                                 ArgumentSplitter& splitter, AsmFeMsgHndlr& messages)
    : m_line(line)
    , m_program(program)
    , m_config(config)
    , m_splitter(splitter)
    , m_messages(messages)
{
}

bool DirectiveParser::parseLineDirective(SrcReference* srcRef, const QString& word, bool* isDirective)
{
    static const struct
    {
        const char* word;
        bool (DirectiveParser::*parse)(SrcReference* srcRef);
    } directives[] = {{"#DEFINE", &DirectiveParser::parseLineDirectiveDef},
                      {"#EQU", &DirectiveParser::parseLineDirectiveEqu},
                      {"#NAMESPACE", &DirectiveParser::parseLineDirectiveNs},
                      {"#ENDNAMESPACE", &DirectiveParser::parseLineDirectiveEndNs},
                      {"#SET", &DirectiveParser::parseLineDirectiveSet},
                      {"#ORG", &DirectiveParser::parseLineDirectiveOrg}};
    for (const auto& directive : directives) {
        if (word == QLatin1String(directive.word)) {
            *isDirective = true;
            return (this->*directive.parse)(srcRef);
        }
    }
    *isDirective = false;
    return true;
}

bool DirectiveParser::parseLineDirectiveDef(SrcReference* srcRef)
{
    const QString name = m_line.tag(AsmFeLineHndlr::eTagArg0).toUpper();
    if (!isDirectiveWord(name)) {
        m_messages.signMsg(errSyntax, srcRef);
        return false;
    }
    if (m_program.defines.contains(name)) {
        m_messages.signMsg(errDefDuplicate, srcRef, name);
        return false;
    }
    m_program.defines.add(name);
    // The define stands, and the run goes on.
    if (!m_line.isEmpty(AsmFeLineHndlr::eTagArg1))
        m_messages.signMsg(errUnsupportedArgument, srcRef, m_line.tag(AsmFeLineHndlr::eTagArg1));
    return true;
}

bool DirectiveParser::parseLineDirectiveEqu(SrcReference* srcRef)
{
    QString name = m_line.tag(AsmFeLineHndlr::eTagArg0);
    QString value = m_line.tag(AsmFeLineHndlr::eTagArg1);
    QString nameAttr;
    QString attr;
    QString range;
    m_splitter.splitFromArgAttr(srcRef, &name, &nameAttr);
    m_splitter.splitFromArgAttr(srcRef, &value, &attr);
    m_splitter.splitFromArgRange(srcRef, &value, &range);

    Equ* equ = m_program.equs.find(m_nameSpace, name);
    if (equ != nullptr) {
        if (m_config.behaviorEqu == AsmFeConfig::equError) {
            m_messages.signMsg(errEquDuplicate, srcRef, name);
            return false;
        }
        if (m_config.behaviorEqu == AsmFeConfig::equWarn)
            m_messages.signMsg(warnEquDuplicate, srcRef, name);
    } else {
        equ = new Equ;
        equ->nameSpace = m_nameSpace;
        equ->name = m_program.texts.intern(name);
        m_program.equs.append(equ);
    }
    equ->srcRef = *srcRef;
    equ->arg->dispName = value;
    equ->arg->name = m_program.texts.intern(value);
    equ->argExt->attr = attr;
    equ->argExt->attrUpper = attr.toUpper();
    equ->argExt->range = range;
    equ->argExt->parentheses = ArgExt::parenthesesNone;
    equ->prepared = false;
    return true;
}

bool DirectiveParser::parseLineDirectiveNs(SrcReference* srcRef)
{
    const QString name = m_line.tag(AsmFeLineHndlr::eTagArg0);
    if (!isDirectiveWord(name)) {
        m_messages.signMsg(errSyntax, srcRef);
        return false;
    }
    if (m_nameSpace.size() + name.size() > AsmLimits::maxNameSpaceLength) {
        m_messages.signMsg(errNsTooLong, srcRef, QString::number(AsmLimits::maxNameSpaceLength));
        return false;
    }
    m_nameSpace = m_nameSpace.isEmpty() ? name : m_nameSpace + QLatin1String("::") + name;
    return true;
}

bool DirectiveParser::parseLineDirectiveEndNs(SrcReference*)
{
    // The end of a nested namespace leads back to the outermost one.
    const int pos = m_nameSpace.indexOf(QLatin1String("::"));
    if (pos >= 0)
        m_nameSpace.truncate(pos);
    else
        m_nameSpace.clear();
    return true;
}

bool DirectiveParser::parseLineDirectiveSet(SrcReference* srcRef)
{
    const QString text = m_line.tag(AsmFeLineHndlr::eTagArg0);
    QRegExp expression("(.*)::(\\S+)$");
    if (!expression.exactMatch(text)) {
        m_messages.signMsg(errSetExpectNs, srcRef, text);
        return false;
    }
    const QString nameSpace = expression.cap(1);
    const QString name = expression.cap(2);
    const QString nameUpper = name.toUpper();
    if (nameUpper != QLatin1String("VALUE") && m_program.sets.contains(nameSpace, nameUpper)) {
        m_messages.signMsg(errSetDuplicate, srcRef, nameSpace + "::" + name);
        return false;
    }
    auto* set = new Set;
    set->srcRef = *srcRef;
    set->nameSpace = nameSpace;
    set->nameSpaceUpper = nameSpace.toUpper();
    set->name = name;
    set->nameUpper = nameUpper;
    set->value = m_line.tag(AsmFeLineHndlr::eTagArg1);
    m_program.sets.append(set);
    return true;
}

bool DirectiveParser::parseLineDirectiveOrg(SrcReference* srcRef)
{
    auto* org = new Org;
    org->srcRef = *srcRef;
    org->name = m_line.tag(AsmFeLineHndlr::eTagArg0);
    org->value = m_line.tag(AsmFeLineHndlr::eTagArg1);
    m_program.orgs.append(org);
    return true;
}

} // namespace nsModAsmFe
