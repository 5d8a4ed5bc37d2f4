#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QVector>

namespace nsNalvoImport {

/// A file of a result.
struct ImportFile
{
    QString name; ///< path relative to the folder
    QByteArray content;
};

/// The folder of a result: it gets all files or none.
class ImportFolder
{
    Q_DECLARE_TR_FUNCTIONS(nsNalvoImport::ImportFolder)

public:
    /// @param path existing or not
    explicit ImportFolder(const QString& path);

    /// A file of the result that is there already and must not be lost; empty if there is none.
    /// @param originals files that are never overwritten; absolute, without links
    QString conflict(const QVector<ImportFile>& files, const QStringList& originals, bool force, bool* isOriginal) const;
    /// Writes all files: first into a folder beside, which then becomes this one; or, where this one exists, puts them
    /// in their places one by one, and back if one of them fails.
    /// @return why that failed, or an empty text; then the folder is as it was
    QString write(const QVector<ImportFile>& files);

    const QString& path() const { return m_path; }

private:
    QString writeInto(const QString& folder, const QVector<ImportFile>& files) const;
    QString moveIn(const QString& folder, const QVector<ImportFile>& files) const;

    QString m_path; ///< absolute
};

} // namespace nsNalvoImport
