#pragma once

#include <QByteArray>
#include <QDir>
#include <QString>

namespace nsHelpBuild {

/// A folder that files are written to, until one can not be written.
class OutputFolder
{
public:
    /// @param folder exists
    explicit OutputFolder(const QDir& folder)
        : m_folder(folder)
    {
    }

    /// Writes a file, and makes the folder that its name begins with. @return false: errorText() says why
    bool write(const QString& name, const QByteArray& bytes);
    /// Reads a file that is to be written in another form.
    bool read(const QString& from, QByteArray* bytes);
    /// Writes what another file holds.
    bool copy(const QString& from, const QString& name);
    QString errorText() const { return m_error; }

private:
    QDir m_folder;
    QString m_error;
};

} // namespace nsHelpBuild
