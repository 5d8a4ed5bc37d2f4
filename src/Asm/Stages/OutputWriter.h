#pragma once

#include "AsmFeConfig.h"
#include "AsmRunListener.h"

#include <QString>
#include <QStringList>

namespace nsModAsmFe {

class AsmFeFileHndlr;
class AsmFeMsgHndlr;
struct AsmProgram;
struct AsmProjectInfo;
struct sTargetKind_t;

/// Output files: which kinds an event writes, and their writers.
class OutputWriter
{
public:
    /// @param program read: devices and the texts for templates; written: the list of written files, and which cells a
    /// writer has used
    /// @param config read: the kinds of an event
    /// @param files, project read: the files that no output may replace, the folder of the project
    /// @param listener is asked about files outside of that folder
    OutputWriter(AsmProgram& program, const AsmFeConfig& config, const AsmFeFileHndlr& files,
                 const AsmProjectInfo& project, AsmFeMsgHndlr& messages, AsmRunListener& listener);

    /// Writes all files of an event. @return false after a reported error
    bool mapIODevToFile(AsmFeConfig::eAssembleEvent_t event);

private:
    bool isWanted(const sTargetKind_t& kind, AsmFeConfig::eAssembleEvent_t event) const;
    QString outsidePath(const QString& file) const;
    void askForOutsideFiles(AsmFeConfig::eAssembleEvent_t event);
    bool mapIODevToFiles(const sTargetKind_t& kind);
    bool checkTargetFile(const QString& file);

    AsmProgram& m_program;
    const AsmFeConfig& m_config;
    const AsmFeFileHndlr& m_files;
    const AsmProjectInfo& m_project;
    AsmFeMsgHndlr& m_messages;
    AsmRunListener& m_listener;
    QStringList m_allowed; ///< files outside of the project's folder that may be written, without links
};

} // namespace nsModAsmFe
