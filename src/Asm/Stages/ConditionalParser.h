#pragma once

#include "AsmFeLineHndlr.h"
#include "SrcReference.h"

#include <QString>

namespace nsModAsmFe {

class AsmDefines;
class AsmFeMsgHndlr;

/// `#IFDEF` to `#ENDIF`: which lines count. Conditionals do not nest.
class ConditionalParser
{
public:
    /// @param line read: the tags of the present line
    /// @param defines read
    ConditionalParser(const AsmFeLineHndlr& line, const AsmDefines& defines, AsmFeMsgHndlr& messages);

    /// Handles a line whose word is one of the four, in skipped text too.
    /// @param word in upper case
    /// @param isConditional out: it is one of the four
    /// @return false after a reported error
    bool parseLineConditional(SrcReference* srcRef, const QString& word, bool* isConditional);
    /// A conditional has not been closed.
    bool isOpen() const { return m_ifActive != 0; }
    /// The present text does not count.
    bool isSkipping() const { return m_ifSkip; }
    /// Forgets an open conditional.
    void close();

private:
    bool parseLineDirectiveIf(SrcReference* srcRef);
    bool parseLineDirectiveElseIf(SrcReference* srcRef);
    bool parseLineDirectiveElse(SrcReference* srcRef);
    bool parseLineDirectiveEndIf(SrcReference* srcRef);
    bool refuseArguments(SrcReference* srcRef);

    const AsmFeLineHndlr& m_line;
    const AsmDefines& m_defines;
    AsmFeMsgHndlr& m_messages;
    int m_ifActive = 0;
    bool m_ifMatched = false;
    bool m_ifSkip = false;
};

} // namespace nsModAsmFe
