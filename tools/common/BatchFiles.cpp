#include "BatchFiles.h"

#include "FilePath.h"
#include "IODev.h"
#include "IODevList.h"

#include <QFileInfo>

#include <algorithm>

#include <unistd.h>

namespace nsBatch {

namespace {

/// A regular file is written to a temporary file and renamed. A device or a pipe must be written directly: renaming
/// would replace it.
bool isReplaceable(const QString& file)
{
    const QFileInfo info(file);
    const QString path = info.absoluteFilePath();
    return (!info.exists() || info.isFile()) && !path.startsWith("/dev/") && !path.startsWith("/proc/");
}

} // namespace

bool isSameTarget(const QString& name, const QString& other)
{
    const QString target = pathWithoutLinks(name);
    return (target == pathWithoutLinks(other) || isSameFile(name, other)) && !target.startsWith("/dev/");
}

ProjectFiles::ProjectFiles(const QString& project, const QStringList& sources, const nsModAsmFe::IODevList& devices)
{
    m_files << project << sources;
    for (const nsModAsmFe::IODev* dev : devices.devices()) {
        for (const nsModAsmFe::TargetFile& target : dev->targets)
            m_files << target.templateFile << target.outputFile;
    }
}

bool ProjectFiles::contains(const QString& file) const
{
    return std::any_of(m_files.cbegin(), m_files.cend(), [&](const QString& taken) { return isSameFile(taken, file); });
}

QString OutputFile::open(const QString& name)
{
    m_name = name;
    m_saveFile = nullptr;
    std::unique_ptr<QIODevice> device;
    bool opened = false;
    if (name == "-") {
        auto file = std::make_unique<QFile>();
        opened = file->open(STDOUT_FILENO, QIODevice::WriteOnly | QIODevice::Unbuffered);
        device = std::move(file);
    } else if (!isReplaceable(name)) {
        device = std::make_unique<QFile>(name);
        opened = device->open(QIODevice::WriteOnly | QIODevice::Unbuffered);
    } else {
        auto file = std::make_unique<SafeFile>(name);
        opened = file->open();
        m_saveFile = file.get();
        device = std::move(file);
    }
    if (!opened)
        return device->errorString();
    m_device = std::move(device);
    return QString();
}

bool OutputFile::write(const char* text, qint64 size)
{
    // A device that accepts only a part reports no reason. It reports one when the rest is written.
    while (size > 0) {
        const qint64 taken = m_device->write(text, size);
        if (taken <= 0)
            return false;
        text += taken;
        size -= taken;
    }
    return true;
}

QString OutputFile::commit()
{
    const bool committed = m_saveFile == nullptr || m_saveFile->commit();
    return committed ? QString() : m_device->errorString();
}

} // namespace nsBatch
