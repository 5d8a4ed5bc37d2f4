#pragma once

#include "SafeFile.h"

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QStringList>

#include <memory>

namespace nsModAsmFe {
class IODevList;
}

namespace nsBatch {

/// Would one of them overwrite the other? Devices can be written any number of times.
bool isSameTarget(const QString& name, const QString& other);

/// The files that a run must not lose: project, sources, and what the project writes.
class ProjectFiles
{
public:
    /// @param project path of its file
    /// @param devices those of the assembled program
    ProjectFiles(const QString& project, const QStringList& sources, const nsModAsmFe::IODevList& devices);

    /// Is this name one of the files, whatever path leads there?
    bool contains(const QString& file) const;

private:
    QStringList m_files;
};

/// A file that a run writes. It ends up complete or not at all, except for devices, pipes and standard output, which
/// get the text as it comes.
class OutputFile
{
public:
    /// @param name "-" is standard output
    /// @return why that failed, or an empty text
    QString open(const QString& name);
    bool isOpen() const { return m_device != nullptr; }
    const QString& name() const { return m_name; }
    /// For writing; null unless open. Owned by this object.
    QIODevice* device() const { return m_device.get(); }
    /// @return false if not all of it was taken
    bool write(const char* text, qint64 size);
    bool write(const QByteArray& text) { return write(text.constData(), text.size()); }
    /// Puts a regular file in its place. Without this call, what was there before stays.
    /// @return why that failed, or an empty text
    QString commit();
    QString failure() const { return m_device != nullptr ? m_device->errorString() : QString(); }

private:
    QString m_name;
    std::unique_ptr<QIODevice> m_device;
    SafeFile* m_saveFile = nullptr; ///< the device, if it is one of these
};

} // namespace nsBatch
