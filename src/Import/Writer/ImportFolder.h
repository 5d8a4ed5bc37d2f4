#pragma once

#include "ImportMsg.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <QVector>

namespace nsImport {

/// A file of a result.
struct ImportFile
{
    QString name; ///< path relative to the folder
    QByteArray content;
};

/// The folder of a result: it gets all files or none.
class ImportFolder
{
    Q_DECLARE_TR_FUNCTIONS(nsImport::ImportFolder)

public:
    /// @param path existing or not
    explicit ImportFolder(const QString& path);

    /// It is there, and not empty.
    bool hasFiles() const;

    /// Writes all files, unless one of them would be lost that must not be. It writes into a folder beside, which then
    /// becomes this one; or, where this one exists, puts them in their places one by one, and back if one of them
    /// fails.
    /// @param originals files that are never overwritten; absolute, without links
    /// @param force other files that are there are overwritten
    /// @return false: why was reported, and the folder is as it was
    bool write(const QVector<ImportFile>& files, const QStringList& originals, bool force, ImportMessages& messages);

private:
    QString conflict(const QVector<ImportFile>& files, const QStringList& originals, bool force,
                     bool* isOriginal) const;
    QString writeAll(const QVector<ImportFile>& files) const;
    QString writeInto(const QString& folder, const QVector<ImportFile>& files) const;
    QString moveIn(const QString& folder, const QVector<ImportFile>& files) const;

    QString m_path;  ///< absolute
    QString m_shown; ///< as the user has named it
};

} // namespace nsImport
