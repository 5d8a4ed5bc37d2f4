#pragma once

#include <QString>

namespace nsModAsmFe {

class AsmFeMsgHndlr;
struct SrcReference;

/// Takes the parts off the text of an argument: attribute, range and parentheses.
class ArgumentSplitter
{
public:
    /// @param messages takes the warnings
    explicit ArgumentSplitter(AsmFeMsgHndlr& messages)
        : m_messages(messages)
    {
    }

    /// Cuts `text'attr` at its last apostrophe, unless that is inside a string.
    void splitFromArgAttr(SrcReference* srcRef, QString* arg, QString* attr);
    /// Cuts `text[range]`.
    static void splitFromArgRange(SrcReference* srcRef, QString* arg, QString* range);
    /// Removes a leading parenthesis and the blanks after it. @return there was one
    static bool splitFromArgParentheseOpen(QString* arg);
    /// Removes a trailing parenthesis and the blanks before it. @return there was one
    static bool splitFromArgParentheseClose(QString* arg);

private:
    AsmFeMsgHndlr& m_messages;
};

} // namespace nsModAsmFe
