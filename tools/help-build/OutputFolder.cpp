#include "OutputFolder.h"

#include <QFile>
#include <QFileInfo>

namespace nsHelpBuild {

bool OutputFolder::write(const QString& name, const QByteArray& bytes)
{
    const QString path = m_folder.filePath(name);
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush())
        return true;
    m_error = path + QStringLiteral(": ") + file.errorString();
    return false;
}

bool OutputFolder::read(const QString& from, QByteArray* bytes)
{
    QFile file(from);
    const bool isOpen = file.open(QIODevice::ReadOnly);
    if (isOpen)
        *bytes = file.readAll();
    else
        m_error = from + QStringLiteral(": ") + file.errorString();
    return isOpen;
}

bool OutputFolder::copy(const QString& from, const QString& name)
{
    QByteArray bytes;
    return read(from, &bytes) && write(name, bytes);
}

} // namespace nsHelpBuild
