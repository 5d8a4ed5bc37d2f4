#include "DocumentWatcher.h"

#include <QFileInfo>

namespace nsModEditor {

namespace {

const int settleTime = 150; ///< milliseconds

} // namespace

DocumentWatcher::DocumentWatcher(QObject* parent)
    : QObject(parent)
{
    m_delay.setSingleShot(true);
    m_delay.setInterval(settleTime);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &DocumentWatcher::noteFile);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &DocumentWatcher::noteFolder);
    connect(&m_delay, &QTimer::timeout, this, &DocumentWatcher::report);
}

void DocumentWatcher::setPaths(const QStringList& paths)
{
    m_paths = paths;
    m_pathsOfFolder.clear();
    for (const QString& path : paths) {
        const QFileInfo info(path);
        m_pathsOfFolder.insert(info.absolutePath(), path);
        // The target of a link is replaced in its own folder, so that is watched, too.
        const QString target = QFileInfo(info.canonicalFilePath()).absolutePath();
        if (info.exists() && target != info.absolutePath())
            m_pathsOfFolder.insert(target, path);
    }
    watchAll();
}

/// Brings the watch up to date. A file that was removed or replaced is no longer watched.
void DocumentWatcher::watchAll()
{
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    QStringList superfluous;
    for (const QString& path : watched) {
        if (!m_paths.contains(path) && !m_pathsOfFolder.contains(path))
            superfluous.append(path);
    }
    QStringList missing;
    for (const QString& path : m_paths + m_pathsOfFolder.uniqueKeys()) {
        if (!watched.contains(path) && !missing.contains(path) && QFileInfo::exists(path))
            missing.append(path);
    }
    if (!superfluous.isEmpty())
        m_watcher.removePaths(superfluous);
    if (!missing.isEmpty())
        m_watcher.addPaths(missing);
}

void DocumentWatcher::noteFile(const QString& path)
{
    m_touchedFiles.insert(path);
    m_delay.start();
}

void DocumentWatcher::noteFolder(const QString& path)
{
    m_touchedFolders.insert(path);
    // Continuous changes in the folder must not delay the report.
    if (!m_delay.isActive())
        m_delay.start();
}

void DocumentWatcher::report()
{
    // Before the files are read, so that later changes are reported again.
    watchAll();
    const QSet<QString> files = m_touchedFiles;
    QSet<QString> neighbours;
    for (const QString& folder : qAsConst(m_touchedFolders)) {
        for (const QString& path : m_pathsOfFolder.values(folder))
            neighbours.insert(path);
    }
    m_touchedFiles.clear();
    m_touchedFolders.clear();
    for (const QString& path : files)
        emit touched(path, true);
    for (const QString& path : neighbours - files)
        emit touched(path, false);
}

} // namespace nsModEditor
