#pragma once

#include "AsmFeMsgCatalogue.h"
#include "ProcAsmMsg.h"

#include <QString>

namespace nsModAsmFe {
class AsmFeMsgHndlr;
struct SrcReference;
} // namespace nsModAsmFe

namespace nsProc {

/// Reports for the stages of a back end: its own messages with links into the processor's help, and those that the
/// whole assembler has.
class ProcAsmReport
{
public:
    /// @param helpPage host of the help links of the back end's messages
    /// @param msgHndlr of the run; not owned
    ProcAsmReport(const char* helpPage, nsModAsmFe::AsmFeMsgHndlr* msgHndlr);

    /// Shows one of the back end's messages.
    /// @param srcRef may be null: the message then has no link
    void signMsg(eAsmMsg_t type, const nsModAsmFe::SrcReference* srcRef, const QString& arg = QString(),
                 int value = 0) const;
    /// The same without a position, for a number and a page.
    void signMsg(eAsmMsg_t type, int value, int page = 0) const;
    /// Shows one of the messages that the whole assembler has.
    void signMsg(nsModAsmFe::eMsgType_t type, const nsModAsmFe::SrcReference* srcRef,
                 const QString& arg = QString()) const;
    /// A distance that no jump can hold. @param text to be translated
    void signOffset(const char* text) const;

private:
    const char* m_helpPage;
    nsModAsmFe::AsmFeMsgHndlr* m_msgHndlr;
};

} // namespace nsProc
