#include "AsmOutputFiles.h"

#include "AsmDepfile.h"
#include "AsmOutputRequest.h"
#include "AsmReport.h"
#include "BatchOutput.h"
#include "BatchProject.h"
#include "TargetKinds.h"
#include "TargetMapper.h"

#include <QFileInfo>

#include <algorithm>

namespace nsNalvoAsm {

using namespace nsBatch;
using namespace nsModAsmFe;

AsmOutputFiles::AsmOutputFiles(BatchProject& project, const QString& file)
    : m_project(project)
    , m_file(file)
    , m_taken(file, project.sources().files(), project.assembler().program().ioDevs)
{
}

void AsmOutputFiles::fail(const QString& text)
{
    m_project.msg().showErrorMessage(text, QUrl(), {});
}

bool AsmOutputFiles::mayWrite(const QString& file)
{
    if (m_taken.contains(file)) {
        fail(tr("File of the project would be overwritten: %1").arg(file));
        return false;
    }
    if (std::any_of(m_written.cbegin(), m_written.cend(),
                    [&](const QString& other) { return isSameTarget(file, other); })) {
        fail(tr("File was already written in this run: %1").arg(file));
        return false;
    }
    return true;
}

void AsmOutputFiles::writeText(const QString& file, const QByteArray& text)
{
    const QString failure = nsNalvoAsm::writeReport(file, text);
    if (!failure.isEmpty())
        fail(tr("Can not write %1: %2").arg(file == "-" ? tr("standard output") : file, failure));
    else if (file != "-")
        m_written.append(QFileInfo(file).absoluteFilePath());
}

void AsmOutputFiles::writeReport(const QString& file, Text text)
{
    if (!file.isEmpty() && (file == "-" || mayWrite(file)))
        writeText(file, text(m_project.assembler().program(), m_project.sources()));
}

void AsmOutputFiles::writeImages(const AsmOutputRequest& request)
{
    const QList<IODev*>& devices = m_project.assembler().program().ioDevs.devices();
    if (request.isForEachMemory()) {
        for (IODev* dev : devices) {
            if (!writeImage(request, dev))
                break;
        }
        return;
    }
    QStringList names;
    IODev* memory = nullptr;
    for (IODev* dev : devices) {
        if (dev->instMem) {
            names.append(dev->devName);
            memory = dev;
        }
    }
    if (names.size() == 1)
        writeImage(request, memory);
    else
        fail(tr("The program lies in several memories: %1. {DEVICE} in the name of the file makes a file of each: %2")
                 .arg(names.join(QStringLiteral(", ")), request.target.outputFile));
}

bool AsmOutputFiles::writeImage(const AsmOutputRequest& request, IODev* dev)
{
    const QString name = request.fileOf(dev->devName);
    if (!mayWrite(name))
        return false;
    const QString file = QFileInfo(name).absoluteFilePath();
    dev->targets[request.kind] = request.target;
    dev->targets[request.kind].outputFile = file;
    const std::unique_ptr<TargetMapper> writer = targetKind(request.kind).newWriter();
    m_project.msg().registerPlugin(writer.get());
    const bool success = writer->writeFile(dev, &m_project.assembler().program().metaTags);
    m_project.msg().unregisterPlugin(writer.get());
    if (success)
        m_written.append(file);
    return success;
}

void AsmOutputFiles::writeDepfile(const QString& file, const QStringList& targets)
{
    if (file.isEmpty() || (file != "-" && !mayWrite(file)))
        return;
    const auto shown = [](const QStringList& paths) {
        QStringList result;
        for (const QString& path : paths) {
            const QString name = shownPath(path);
            // To make, a name that begins with a tilde is that of a home folder, also behind "./".
            result.append(name.startsWith('~') ? path : name);
        }
        return result;
    };
    const AsmProgram& program = m_project.assembler().program();
    const AsmDepfile rule(targets.isEmpty() ? shown(program.writtenFiles + m_written) : targets,
                          shown(inputsOf(m_file, m_project.sources(), program)));
    if (program.writtenFiles.isEmpty() && m_written.isEmpty() && targets.isEmpty())
        fail(tr("No file is written that could depend on the sources: name one by --depfile-target"));
    else if (!rule.impossibleName().isEmpty())
        fail(tr("No rule of make can hold this name: %1").arg(rule.impossibleName()));
    else
        writeText(file, rule.text());
}

} // namespace nsNalvoAsm
