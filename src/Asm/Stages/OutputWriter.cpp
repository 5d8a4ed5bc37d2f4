#include "OutputWriter.h"

#include "AsmFeFileHndlr.h"
#include "AsmFeMsgHndlr.h"
#include "AsmProgram.h"
#include "AsmProjectInfo.h"
#include "FilePath.h"
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
    const auto wanted = [&](const sTargetKind_t& kind) { return isWanted(kind, event); };
    if (std::none_of(std::begin(targetKinds()), std::end(targetKinds()), wanted)) {
        m_messages.signMsg(infoIODevNothingToDoForWriteEvent);
        return true;
    }
    askForOutsideFiles(event);
    if (!m_listener.runGoesOn(0))
        return false;
    m_listener.outputsBegin();
    // A kind that fails does not keep the others from being written.
    bool success = true;
    for (const sTargetKind_t& kind : targetKinds()) {
        if (wanted(kind))
            success = mapIODevToFiles(kind) && success;
    }
    return success;
}

/// The event writes the files of this kind. Without any, those kinds that every project has still report that.
bool OutputWriter::isWanted(const sTargetKind_t& kind, AsmFeConfig::eAssembleEvent_t event) const
{
    const TargetConfig& config = m_config.targets[kind.kind];
    const QList<IODev*>& devices = m_program.ioDevs.devices();
    if (kind.isImage &&
        std::none_of(devices.begin(), devices.end(), [&](const IODev* dev) { return dev->targets[kind.kind].en; }))
        return false;
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
}

/// Asks once for all files of the event that lie outside of the project's folder.
void OutputWriter::askForOutsideFiles(AsmFeConfig::eAssembleEvent_t event)
{
    QVector<AsmOutsideFile> outside;
    QStringList paths;
    for (const sTargetKind_t& kind : targetKinds()) {
        for (const IODev* dev : m_program.ioDevs.devices()) {
            const TargetFile& target = dev->targets[kind.kind];
            const QString path = target.en && isWanted(kind, event) ? outsidePath(target.outputFile) : QString();
            if (path.isEmpty())
                continue;
            const int known = paths.indexOf(path);
            if (known < 0) {
                paths.append(path);
                outside.append({path, target.outputBySource});
            } else {
                outside[known].bySource = outside[known].bySource || target.outputBySource;
            }
        }
    }
    if (outside.isEmpty())
        return;
    const QStringList refused = m_listener.refusedOutputs(outside);
    for (const QString& path : qAsConst(paths)) {
        if (!refused.contains(path))
            m_allowed.append(path);
    }
}

/// @return where the file is really written, if that is outside of the project's folder; else an empty text
QString OutputWriter::outsidePath(const QString& file) const
{
    // Keeps nothing of what is written to it.
    if (file.isEmpty() || file == QLatin1String("/dev/null"))
        return QString();
    const QString path = pathWithoutLinks(file);
    const QString dir = QFileInfo(m_project.dir).canonicalFilePath();
    return !dir.isEmpty() && path.startsWith(dir.endsWith('/') ? dir : dir + '/') ? QString() : path;
}

/// @return false, reported, if the file lies outside of the project's folder and was refused, or if the run has read or
/// written it, so that it would be lost
bool OutputWriter::checkTargetFile(const QString& file)
{
    // Looked at again, as a link can have changed since.
    const QString outside = outsidePath(file);
    if (!outside.isEmpty() && !m_allowed.contains(outside)) {
        m_messages.signMsg(errTargetOutside, file, m_listener.refusalHint());
        return false;
    }
    if (!QFileInfo::exists(file))
        return true;
    const auto isOneOf = [&](const QStringList& others) {
        return std::any_of(others.begin(), others.end(), [&](const QString& other) { return isSameFile(other, file); });
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
        m_listener.runGoesOn(0);
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
