#pragma once

#include <QFileSystemWatcher>
#include <QMultiHash>
#include <QObject>
#include <QSet>
#include <QStringList>
#include <QTimer>

namespace nsModEditor {

/// Reports that something has happened to files, whether they are written, replaced, removed or made again.
///
/// Files are watched together with their folders: a file that replaces another one is not seen by the watch of the file
/// itself. Changes within a short time are reported once; the receiver must find out what has changed.
class DocumentWatcher : public QObject
{
    Q_OBJECT

public:
    explicit DocumentWatcher(QObject* parent = nullptr);

    /// Watches these files and no others. They need not exist. @param paths absolute
    void setPaths(const QStringList& paths);

signals:
    /// @param sure the file itself was touched; otherwise something in its folder
    void touched(QString path, bool sure);

private slots:
    void noteFile(const QString& path);
    void noteFolder(const QString& path);
    void report();

private:
    void watchAll();

    QFileSystemWatcher m_watcher;
    QTimer m_delay; ///< waits until a writer has finished
    QStringList m_paths;
    QMultiHash<QString, QString> m_pathsOfFolder;
    QSet<QString> m_touchedFiles;
    QSet<QString> m_touchedFolders;
};

} // namespace nsModEditor
