#include "BatchProject.h"

#include "AsmProjectInfo.h"

namespace nsBatch {

BatchProject& BatchProject::create(const BatchMsgStyle& style)
{
    // Not used, but keeps the memory reachable for leak checkers.
    static BatchProject* volatile instance = nullptr;
    instance = new BatchProject(style);
    return *instance;
}

BatchProject::BatchProject(const BatchMsgStyle& style)
    : m_msg(style)
    , m_project(&m_settings, &m_info)
    , m_asmMsg(&m_files)
    , m_assembler(m_files, m_asmMsg, m_config)
{
    m_msg.registerPlugin(&m_files);
    m_msg.registerPlugin(&m_asmMsg);
}

bool BatchProject::open(const QString& file)
{
    if (!m_project.open(file, &m_msg))
        return false;
    m_sources.rdSourcesConfig(&m_project, &m_msg);
    m_processor = nsProc::Processor::ofProject(&m_project);
    m_assembler.setBackend(m_processor.get());
    m_config.rdAsmFeConfig(&m_project);
    m_programs.rdSyscallConfig(&m_project);
    m_assembler.charsets().setupDefaultCodec(m_config.defaultCharset);
    m_files.setPrjDir(m_project.path());
    nsModPrj::Project::reportOpened(&m_msg);
    return true;
}

bool BatchProject::assemble(nsModAsmFe::AsmFeConfig::eAssembleEvent_t event)
{
    nsModAsmFe::AsmProjectInfo info;
    info.dir = m_project.dir().absolutePath();
    info.fileName = m_project.fileName();
    info.title = m_info.cfgTitle;
    info.version = m_info.cfgVersion;
    info.comment = m_info.cfgComment;
    return m_assembler.run(m_sources.srcFiles, info, event);
}

} // namespace nsBatch
