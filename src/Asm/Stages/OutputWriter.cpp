#include "OutputWriter.h"

#include "AsmFeFileHndlr.h"
#include "AsmFeMsgHndlr.h"
#include "AsmProgram.h"
#include "AsmProjectInfo.h"
#include "AsmRunListener.h"
#include "TargetKinds.h"
#include "TargetMapper.h"

#include <QFileInfo>

#include <algorithm>
#include <iterator>
#include <memory>

namespace nsModAsmFe {

OutputWriter::OutputWriter(AsmProgram& program, const AsmFeConfig& config, const AsmFeFileHndlr& files,
                           const AsmProjectInfo& project, AsmFeMsgHndlr& messages, AsmRunListener& listener)
    : m_program(program)
    , m_config(config)
    , m_files(files)
    , m_project(project)
    , m_messages(messages)
    , m_listener(listener)
{
}

bool OutputWriter::mapIODevToFile(AsmFeConfig::eAssembleEvent_t event)
{
    const auto wanted = [event](const TargetConfig& config) {
        switch (event) {
        case AsmFeConfig::eEventButton1:
            return config.writeFileEventBut1;
        case AsmFeConfig::eEventButton2:
            return config.writeFileEventBut2;
        case AsmFeConfig::eEventSave:
            return config.writeFileEventSave;
        case AsmFeConfig::eEventNone:
            break;
        }
        return false;
    };
    const auto isWanted = [&](const sTargetKind_t& kind) { return wanted(m_config.targets[kind.kind]); };
    if (std::none_of(std::begin(targetKinds()), std::end(targetKinds()), isWanted)) {
        m_messages.signMsg(infoIODevNothingToDoForWriteEvent);
        return true;
    }
    // A kind that fails does not keep the others from being written.
    bool success = true;
    for (const sTargetKind_t& kind : targetKinds()) {
        if (isWanted(kind))
            success = mapIODevToFiles(kind) && success;
    }
    return success;
}

/// @return false if the run has read or written this file, which would be lost; reported
bool OutputWriter::checkTargetFile(const QString& file)
{
    const QString canonical = QFileInfo(file).canonicalFilePath();
    if (canonical.isEmpty())
        return true;
    const auto isOneOf = [&](const QStringList& others) {
        return std::any_of(others.begin(), others.end(), [&](const QString& other) {
            return !other.isEmpty() && QFileInfo(other).canonicalFilePath() == canonical;
        });
    };
    QStringList inputs = m_files.files();
    inputs.append(m_project.absPath(m_project.fileName));
    for (const IODev* dev : m_program.ioDevs.devices()) {
        // An output that is its own template is refused by its writer.
        for (const TargetFile& target : dev->targets) {
            if (target.en && target.outputFile != file)
                inputs.append(target.templateFile);
        }
    }
    if (isOneOf(inputs)) {
        m_messages.signMsg(errTargetOverwritesProject, file);
        return false;
    }
    // A device such as /dev/null takes any number of files.
    if (QFileInfo(file).isFile() && isOneOf(m_program.writtenFiles)) {
        m_messages.signMsg(errTargetWrittenTwice, file);
        return false;
    }
    return true;
}

/// Writes the files of one kind, up to the first that fails.
bool OutputWriter::mapIODevToFiles(const sTargetKind_t& kind)
{
    const std::unique_ptr<TargetMapper> writer = kind.newWriter();
    if (m_messages.modMsgHook != nullptr)
        m_messages.modMsgHook->registerPlugin(writer.get());
    m_messages.openGroup(AsmFeMsgHndlr::tr(kind.group));
    bool success = true;
    bool any = false;
    for (IODev* dev : m_program.ioDevs.devices()) {
        const TargetFile& target = dev->targets[kind.kind];
        if (!target.en)
            continue;
        any = true;
        m_listener.runGoesOn();
        if (!checkTargetFile(target.outputFile) || !writer->writeFile(dev, &m_program.metaTags)) {
            success = false;
            break;
        }
        m_messages.signMsg(infoIODevWriteFile, dev->devName, target.outputFile);
        m_program.writtenFiles.append(target.outputFile);
    }
    if (!any)
        m_messages.signMsg(warnIODevNoFileToWrite);
    m_messages.closeGroup(success);
    if (m_messages.modMsgHook != nullptr)
        m_messages.modMsgHook->unregisterPlugin(writer.get());
    return success;
}

} // namespace nsModAsmFe
