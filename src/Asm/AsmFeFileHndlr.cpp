#include "AsmFeFileHndlr.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace nsModAsmFe {

AsmFeFileHndlr::AsmFeFileHndlr(QObject* parent)
    : QObject(parent)
{
}

void AsmFeFileHndlr::setPrjDir(QString dir)
{
    m_prjDir = dir;
}

void AsmFeFileHndlr::setFiles(QStringList files)
{
    m_files = files;
}

void AsmFeFileHndlr::clear()
{
    m_files.clear();
}

QString AsmFeFileHndlr::file(int fileNo) const
{
    return m_files.value(fileNo);
}

QString AsmFeFileHndlr::absSrcFilePath(int fileNo) const
{
    return m_files.value(fileNo);
}

QString AsmFeFileHndlr::relSrcFilePath(int fileNo) const
{
    return fileNo < 0 || fileNo >= m_files.size() ? QString() : convToRelPath(m_files.at(fileNo));
}

QString AsmFeFileHndlr::convToRelPath(QString path) const
{
    // A path that is relative already, such as one of relSrcFilePath(), must not be resolved against the working
    // folder.
    if (m_prjDir.isEmpty() || !QDir::isAbsolutePath(path))
        return path;
    return QFileInfo(m_prjDir).dir().relativeFilePath(path);
}

int AsmFeFileHndlr::fileNo(QString path) const
{
    return m_files.indexOf(path);
}

std::unique_ptr<QIODevice> AsmFeFileHndlr::open(const QString& path) const
{
    const auto text = m_texts.constFind(path);
    std::unique_ptr<QIODevice> device;
    if (text != m_texts.constEnd()) {
        auto buffer = std::make_unique<QBuffer>();
        buffer->setData(*text);
        device = std::move(buffer);
    } else if (QFileInfo(path).isFile()) {
        // Reading a folder, a pipe or a device instead of a source might never end.
        device = std::make_unique<QFile>(path);
    }
    return device != nullptr && device->open(QIODevice::ReadOnly) ? std::move(device) : nullptr;
}

} // namespace nsModAsmFe
