#pragma once

#include "ModMsgPluginIf.h"

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QStringList>

#include <memory>

class QIODevice;

namespace nsModAsmFe {

/// The source files of a run, and the way between their numbers and their paths.
class AsmFeFileHndlr : public QObject, public ModMsgPluginIf
{
    Q_OBJECT

public:
    explicit AsmFeFileHndlr(QObject* parent = nullptr);

    /// @param dir absolute project folder; empty without a project
    void setPrjDir(QString dir);
    /// @param files absolute paths in project order; the index is the file number
    void setFiles(QStringList files);
    void clear();
    QStringList files() const { return m_files; }
    int fileCount() const { return m_files.size(); }

    /// The path of a file number, empty if there is none.
    QString file(int fileNo) const;
    /// The same.
    QString absSrcFilePath(int fileNo) const;
    /// The path of a file number relative to the project; absolute without a project, empty if there is no such number.
    QString relSrcFilePath(int fileNo) const;
    /// Any path relative to the project; the path itself without a project.
    QString convToRelPath(QString path) const;
    /// Number of the file with exactly this path, -1 if there is none.
    int fileNo(QString path) const;

    /// Gives a source a text that is read instead of the file with its path, in all runs from now on.
    /// @param path absolute; no such file need exist
    void setText(const QString& path, const QByteArray& text) { m_texts.insert(path, text); }
    /// Opens a source for reading: its text, or the file, which must be a regular one.
    /// @return null if there is nothing that can be read
    std::unique_ptr<QIODevice> open(const QString& path) const;

private:
    QString m_prjDir;
    QStringList m_files;
    QHash<QString, QByteArray> m_texts; ///< by path
};

} // namespace nsModAsmFe
