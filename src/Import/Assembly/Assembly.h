#pragma once

#include "AsmFeConfig.h"
#include "ProcCoreConfig.h"
#include "ProgramImage.h"

#include "ModMsgHookIf.h"

#include <QByteArray>
#include <QString>
#include <QVector>

namespace nsProc {
struct ProcTable;
}

namespace nsImport {

/// A source that need not be on the disk.
struct AssemblySource
{
    QString name; ///< as a path relative to the project; unique
    QByteArray text;
};

/// A message of the assembler.
struct AssemblyMessage
{
    ModMsgHookIf::eMsgType_t type = ModMsgHookIf::eMsgInfo;
    QString key; ///< of the catalogue, such as "errSyntax"; may be empty
    QString text;
    QString file; ///< name of the source; empty if the message has no place
    int line = 0; ///< counted from 1; 0 if the message has no place
};

/// What a run of the assembler has made of the sources.
struct AssemblyResult
{
    bool ok = false;
    ProgramImage image;                ///< with the source line of each word; empty unless ok
    QVector<AssemblyMessage> messages; ///< errors and warnings, in their order

    /// The first error as one line for the user, "name:line: text"; empty if there is none.
    QString firstError() const;
};

/// Assembles sources that are given as texts. No file is read or written.
class Assembly
{
public:
    /// @param table the processor; must live as long as this object
    explicit Assembly(const nsProc::ProcTable& table);

    nsModAsmFe::AsmFeConfig config;  ///< knob: the assembler's settings; at first those of a new project
    nsProc::ProcCoreConfig settings; ///< knob: the processor's settings; at first those of a new project

    /// @param sources in project order
    AssemblyResult run(const QVector<AssemblySource>& sources) const;

private:
    const nsProc::ProcTable& m_table;
};

} // namespace nsImport
