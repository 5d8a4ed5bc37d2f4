// Output files: which kinds an event writes, and their writers.

#include "ModAsmFe.h"

#include "AsmFeFileHndlr.h"
#include "ModMsgHookIf.h"
#include "ModPrjHookIf.h"
#include "TargetFileWriteVerilog.h"
#include "TargetFileWriteVhdl.h"
#include "TargetWriteFileHex.h"
#include "TargetWriteFileMem.h"

#include <QFileInfo>

#include <algorithm>

namespace nsModAsmFe {

bool ModAsmFe::mapIODevToFile(eAssembleEvent_t event)
{
    const auto wanted = [event](const TargetConfig& config) {
        switch (event) {
        case eEventButton1:
            return config.writeFileEventBut1;
        case eEventButton2:
            return config.writeFileEventBut2;
        case eEventSave:
            return config.writeFileEventSave;
        case eEventNone:
            break;
        }
        return false;
    };
    if (!wanted(targetVhdl) && !wanted(targetVerilog) && !wanted(targetHex) && !wanted(targetMem)) {
        m_msgHndlr->signMsg(infoIODevNothingToDoForWriteEvent);
        return true;
    }
    // A kind that fails does not keep the others from being written.
    bool success = true;
    if (wanted(targetVhdl))
        success = mapIODevToFileVhdl() && success;
    if (wanted(targetVerilog))
        success = mapIODevToFileVerilog() && success;
    if (wanted(targetHex))
        success = mapIODevToFileHex() && success;
    if (wanted(targetMem))
        success = mapIODevToFileMem() && success;
    return success;
}

/// @return false if the run has read or written this file, which would be lost; reported
bool ModAsmFe::checkTargetFile(const QString& file)
{
    const QString canonical = QFileInfo(file).canonicalFilePath();
    if (canonical.isEmpty())
        return true;
    const auto isOneOf = [&](const QStringList& others) {
        return std::any_of(others.begin(), others.end(), [&](const QString& other) {
            return !other.isEmpty() && QFileInfo(other).canonicalFilePath() == canonical;
        });
    };
    QStringList inputs = m_fileHndlr->files();
    inputs.append(modPrjHook->prjDir().absoluteFilePath(modPrjHook->prjFileName()));
    for (const IODev* dev : m_ioDevList.devices()) {
        // An output that is its own template is refused by its writer.
        if (dev->targetVhdlEn && dev->vhdlTargetFile != file)
            inputs.append(dev->vhdlTemplateFile);
        if (dev->targetVerilogEn && dev->verilogTargetFile != file)
            inputs.append(dev->verilogTemplateFile);
    }
    if (isOneOf(inputs)) {
        m_msgHndlr->signMsg(errTargetOverwritesProject, file);
        return false;
    }
    // A device such as /dev/null takes any number of files.
    if (QFileInfo(file).isFile() && isOneOf(m_writtenFiles)) {
        m_msgHndlr->signMsg(errTargetWrittenTwice, file);
        return false;
    }
    return true;
}

template <class Write>
bool ModAsmFe::mapIODevToFiles(TargetMapper* writer, const QString& groupText, bool IODev::*en, QString IODev::*file,
                               Write write)
{
    if (modMsgHook != nullptr)
        modMsgHook->registerPlugin(writer);
    openGroup(groupText);
    bool success = true;
    bool any = false;
    for (IODev* dev : m_ioDevList.devices()) {
        if (!(dev->*en))
            continue;
        any = true;
        goesOn();
        if (!checkTargetFile(dev->*file) || !write(dev)) {
            success = false;
            break;
        }
        m_msgHndlr->signMsg(infoIODevWriteFile, dev->devName, dev->*file);
        m_writtenFiles.append(dev->*file);
    }
    if (!any)
        m_msgHndlr->signMsg(warnIODevNoFileToWrite);
    closeGroup(success);
    if (modMsgHook != nullptr)
        modMsgHook->unregisterPlugin(writer);
    return success;
}

bool ModAsmFe::mapIODevToFileVhdl()
{
    TargetFileWriteVhdl writer;
    return mapIODevToFiles(&writer, tr("Writing vhdl files..."), &IODev::targetVhdlEn, &IODev::vhdlTargetFile,
                           [&](IODev* dev) { return writer.writeFile(dev, &m_metaTags); });
}

bool ModAsmFe::mapIODevToFileVerilog()
{
    TargetFileWriteVerilog writer;
    return mapIODevToFiles(&writer, tr("Writing verilog files..."), &IODev::targetVerilogEn, &IODev::verilogTargetFile,
                           [&](IODev* dev) { return writer.writeFile(dev, &m_metaTags); });
}

bool ModAsmFe::mapIODevToFileHex()
{
    TargetWriteFileHex writer;
    return mapIODevToFiles(&writer, tr("Writing hex files..."), &IODev::targetHexEn, &IODev::hexTargetFile,
                           [&](IODev* dev) { return writer.writeFile(dev); });
}

bool ModAsmFe::mapIODevToFileMem()
{
    TargetWriteFileMem writer;
    return mapIODevToFiles(&writer, tr("Writing mem files..."), &IODev::targetMemEn, &IODev::memTargetFile,
                           [&](IODev* dev) { return writer.writeFile(dev); });
}

} // namespace nsModAsmFe
