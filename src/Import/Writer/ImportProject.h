#pragma once

#include "ForeignProgram.h"
#include "ImportMsg.h"

#include "ProcCoreConfig.h"

#include <QByteArray>
#include <QStringList>

namespace nsImport {

/// The project file of a result.
class ImportProject
{
public:
    QString title;
    QString comment;
    QStringList sources; ///< paths relative to the project, in project order
    const nsProc::ProcTable* table = nullptr;
    nsProc::ProcCoreConfig settings; ///< of the processor
    QString hexFile;                 ///< output, relative to the project; empty: none
    QString memFile;                 ///< likewise
    QString vhdlEntity;              ///< of the VHDL output
    QString vhdlTemplate;            ///< likewise; relative to the project
    QString vhdlFile;                ///< likewise
    bool vhdlEnabled = false;

    QByteArray text() const;
};

/// What the processor of a program must be built with.
/// @param size words of the program
/// @param memorySize of the memory, as far as it is known; else 0
nsProc::ProcCoreConfig importSettings(const ForeignProgram& program, int size, int memorySize);

/// The address of the interrupt routine, where the processor lets it be chosen and the program shows it; -1 if not.
int interruptVectorOf(const ForeignProgram& program);

} // namespace nsImport
