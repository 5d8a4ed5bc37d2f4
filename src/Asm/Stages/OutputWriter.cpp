#include "OutputWriter.h"

#include "AsmFeFileHndlr.h"
#include "AsmFeMsgHndlr.h"
#include "AsmProgram.h"
#include "AsmProjectInfo.h"
#include "AsmRunListener.h"
#include "TargetFileWriteVerilog.h"
#include "TargetFileWriteVhdl.h"
#include "TargetWriteFileHex.h"
#include "TargetWriteFileMem.h"

#include <QFileInfo>

#include <algorithm>

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
    if (!wanted(m_config.targetVhdl) && !wanted(m_config.targetVerilog) && !wanted(m_config.targetHex) &&
        !wanted(m_config.targetMem)) {
        m_messages.signMsg(infoIODevNothingToDoForWriteEvent);
        return true;
    }
    // A kind that fails does not keep the others from being written.
    bool success = true;
    if (wanted(m_config.targetVhdl))
        success = mapIODevToFileVhdl() && success;
    if (wanted(m_config.targetVerilog))
        success = mapIODevToFileVerilog() && success;
    if (wanted(m_config.targetHex))
        success = mapIODevToFileHex() && success;
    if (wanted(m_config.targetMem))
        success = mapIODevToFileMem() && success;
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
        if (dev->targetVhdlEn && dev->vhdlTargetFile != file)
            inputs.append(dev->vhdlTemplateFile);
        if (dev->targetVerilogEn && dev->verilogTargetFile != file)
            inputs.append(dev->verilogTemplateFile);
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

template <class Write>
bool OutputWriter::mapIODevToFiles(TargetMapper* writer, const QString& groupText, bool IODev::*en,
                                   QString IODev::*file, Write write)
{
    if (m_messages.modMsgHook != nullptr)
        m_messages.modMsgHook->registerPlugin(writer);
    m_messages.openGroup(groupText);
    bool success = true;
    bool any = false;
    for (IODev* dev : m_program.ioDevs.devices()) {
        if (!(dev->*en))
            continue;
        any = true;
        m_listener.runGoesOn();
        if (!checkTargetFile(dev->*file) || !write(dev)) {
            success = false;
            break;
        }
        m_messages.signMsg(infoIODevWriteFile, dev->devName, dev->*file);
        m_program.writtenFiles.append(dev->*file);
    }
    if (!any)
        m_messages.signMsg(warnIODevNoFileToWrite);
    m_messages.closeGroup(success);
    if (m_messages.modMsgHook != nullptr)
        m_messages.modMsgHook->unregisterPlugin(writer);
    return success;
}

bool OutputWriter::mapIODevToFileVhdl()
{
    TargetFileWriteVhdl writer;
    return mapIODevToFiles(&writer, AsmFeMsgHndlr::tr("Writing vhdl files..."), &IODev::targetVhdlEn,
                           &IODev::vhdlTargetFile,
                           [&](IODev* dev) { return writer.writeFile(dev, &m_program.metaTags); });
}

bool OutputWriter::mapIODevToFileVerilog()
{
    TargetFileWriteVerilog writer;
    return mapIODevToFiles(&writer, AsmFeMsgHndlr::tr("Writing verilog files..."), &IODev::targetVerilogEn,
                           &IODev::verilogTargetFile,
                           [&](IODev* dev) { return writer.writeFile(dev, &m_program.metaTags); });
}

bool OutputWriter::mapIODevToFileHex()
{
    TargetWriteFileHex writer;
    return mapIODevToFiles(&writer, AsmFeMsgHndlr::tr("Writing hex files..."), &IODev::targetHexEn,
                           &IODev::hexTargetFile, [&](IODev* dev) { return writer.writeFile(dev); });
}

bool OutputWriter::mapIODevToFileMem()
{
    TargetWriteFileMem writer;
    return mapIODevToFiles(&writer, AsmFeMsgHndlr::tr("Writing mem files..."), &IODev::targetMemEn,
                           &IODev::memTargetFile, [&](IODev* dev) { return writer.writeFile(dev); });
}

} // namespace nsModAsmFe
