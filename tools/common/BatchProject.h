#pragma once

#include "BatchMsg.h"

#include "AsmFeConfig.h"
#include "AsmFeFileHndlr.h"
#include "AsmFeMsgHndlr.h"
#include "Assembler.h"
#include "CfgStore.h"
#include "PrjConfig.h"
#include "Processor.h"
#include "Project.h"
#include "SourcesConfig.h"
#include "SyscallConfig.h"

#include <memory>

namespace nsBatch {

/// A project in a program without a window: opened, then assembled.
///
/// It lives until the process ends: taking a large program apart piece by piece would only cost time.
class BatchProject
{
public:
    /// Makes the project; to be called once.
    static BatchProject& create(const BatchMsgStyle& style);

    BatchProject(const BatchProject&) = delete;
    BatchProject& operator=(const BatchProject&) = delete;

    /// Reads the project file with the sources, the processor and the assembler's settings that it names.
    /// @return false: it can not be read, which was reported
    bool open(const QString& file);
    /// Assembles the open project.
    /// @param event which output files are written
    /// @return as Assembler::run()
    bool assemble(nsModAsmFe::AsmFeConfig::eAssembleEvent_t event);

    BatchMsg& msg() { return m_msg; }
    nsModAsmFe::Assembler& assembler() { return m_assembler; }
    nsModAsmFe::AsmFeMsgHndlr& asmMsg() { return m_asmMsg; }
    nsModAsmFe::AsmFeFileHndlr& sources() { return m_files; }
    /// The external programs of the open project.
    const nsModSyscall::SyscallConfig& programs() const { return m_programs; }
    /// Folder of the open project.
    QDir dir() const { return m_project.dir(); }
    /// The processor of the open project; null if it names none that is known.
    nsProc::Processor* processor() { return m_processor.get(); }

private:
    explicit BatchProject(const BatchMsgStyle& style);

    BatchMsg m_msg;
    CfgStore m_settings;
    nsModPrj::PrjConfig m_info;
    nsModPrj::Project m_project;
    nsModSources::SourcesConfig m_sources;
    std::unique_ptr<nsProc::Processor> m_processor;
    nsModAsmFe::AsmFeConfig m_config;
    nsModSyscall::SyscallConfig m_programs;
    nsModAsmFe::AsmFeFileHndlr m_files;
    nsModAsmFe::AsmFeMsgHndlr m_asmMsg;
    nsModAsmFe::Assembler m_assembler;
};

} // namespace nsBatch
