#include "RecentProjects.h"

#include <QDir>

namespace nsModPrj {

namespace {

const int maxPathLength = 4096; ///< characters

bool canBeFile(const QString& path)
{
    return path.size() <= maxPathLength && QDir::isAbsolutePath(path) && !path.contains(QChar(0)) &&
           !path.endsWith(QLatin1Char('/'));
}

} // namespace

void RecentProjects::setFiles(const QStringList& stored)
{
    m_files.clear();
    for (const QString& file : stored) {
        if (canBeFile(file) && !m_files.contains(file) && m_files.size() < maxCount)
            m_files.append(file);
    }
}

void RecentProjects::add(const QString& file)
{
    if (!canBeFile(file))
        return;
    m_files.removeAll(file);
    m_files.prepend(file);
    while (m_files.size() > maxCount)
        m_files.removeLast();
}

void RecentProjects::remove(const QString& file)
{
    m_files.removeAll(file);
}

} // namespace nsModPrj
