#include "ConditionalParser.h"

#include "AsmDefines.h"
#include "AsmFeMsgHndlr.h"
#include "DirectiveWord.h"

#include <QRegExp>
#include <QStringList>

namespace nsModAsmFe {

ConditionalParser::ConditionalParser(const AsmFeLineHndlr& line, const AsmDefines& defines, AsmFeMsgHndlr& messages)
    : m_line(line)
    , m_defines(defines)
    , m_messages(messages)
{
}

void ConditionalParser::close()
{
    m_ifActive = 0;
    m_ifSkip = false;
}

bool ConditionalParser::parseLineConditional(SrcReference* srcRef, const QString& word, bool* isConditional)
{
    static const struct
    {
        const char* word;
        bool (ConditionalParser::*parse)(SrcReference* srcRef);
    } directives[] = {{"#IFDEF", &ConditionalParser::parseLineDirectiveIf},
                      {"#ELSEIF", &ConditionalParser::parseLineDirectiveElseIf},
                      {"#ELSE", &ConditionalParser::parseLineDirectiveElse},
                      {"#ENDIF", &ConditionalParser::parseLineDirectiveEndIf}};
    for (const auto& directive : directives) {
        if (word == QLatin1String(directive.word)) {
            *isConditional = true;
            return (this->*directive.parse)(srcRef);
        }
    }
    *isConditional = false;
    return true;
}

bool ConditionalParser::parseLineDirectiveIf(SrcReference* srcRef)
{
    const QStringList parts = QString(m_line.tag(AsmFeLineHndlr::eTagArg0) + m_line.tag(AsmFeLineHndlr::eTagArg1))
                                  .split('|', Qt::SkipEmptyParts);
    m_ifActive = 1;
    for (const QString& part : parts) {
        QString name = part.toUpper();
        name.remove(QRegExp("^\\s*"));
        name.remove(QRegExp("\\s$"));
        if (!isDirectiveWord(name)) {
            m_messages.signMsg(errSyntax, srcRef);
            return false;
        }
        if (m_defines.contains(name)) {
            m_ifMatched = true;
            m_ifSkip = false;
            return true;
        }
    }
    m_ifMatched = false;
    m_ifSkip = true;
    return true;
}

bool ConditionalParser::parseLineDirectiveElseIf(SrcReference* srcRef)
{
    if (m_ifActive == 0) {
        m_messages.signMsg(errSetExpectIf, srcRef);
        return false;
    }
    if (m_ifMatched) {
        m_ifSkip = true;
        return true;
    }
    return parseLineDirectiveIf(srcRef);
}

bool ConditionalParser::parseLineDirectiveElse(SrcReference* srcRef)
{
    if (m_ifActive == 0) {
        m_messages.signMsg(errSetExpectIf, srcRef);
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

bool ConditionalParser::parseLineDirectiveEndIf(SrcReference* srcRef)
{
    if (m_ifActive == 0) {
        m_messages.signMsg(errSetExpectIf, srcRef);
        return false;
    }
    m_ifActive = 0;
    m_ifMatched = false;
    m_ifSkip = false;
    return !refuseArguments(srcRef);
}

/// @return there was an argument, and it was reported
bool ConditionalParser::refuseArguments(SrcReference* srcRef)
{
    if (m_line.isEmpty(AsmFeLineHndlr::eTagArg0) && m_line.isEmpty(AsmFeLineHndlr::eTagArg1))
        return false;
    m_messages.signMsg(
        errUnsupportedArgument, srcRef,
        m_line.tag(m_line.isEmpty(AsmFeLineHndlr::eTagArg0) ? AsmFeLineHndlr::eTagArg1 : AsmFeLineHndlr::eTagArg0));
    return true;
}

} // namespace nsModAsmFe
