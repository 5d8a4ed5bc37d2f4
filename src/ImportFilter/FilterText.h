#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace nsModImport {

/// Largest file that is read, sources and filters alike, in bytes. The program memories of the processors hold 4096
/// instructions, so a source is far smaller; what is larger is something else.
const qint64 maxImportFileSize = 16 * 1024 * 1024;

/// What came of reading a file.
enum eFileRead_t {
    fileRead = 0,
    fileUnreadable = 1, ///< there is none, it may not be read, or it is no regular file
    fileTooLarge = 2
};

/// Reads a regular file; line ends of all kinds become line feeds. Pipes and devices are not opened: reading
/// them might never end.
eFileRead_t readTextFile(const QString& path, QByteArray* bytes);

/// The text of a file up to the first NUL: UTF-8 where the bytes are that, ISO 8859-1 otherwise. It has no character
/// that a text widget would take for a line end or drop.
QString importText(const QByteArray& bytes);

/// The lines of a filter file, each with its line feed; only the last one may have none. A line that is too long to be
/// a rule is left out. Empty if the file can not be read.
QStringList filterLines(const QString& path);

} // namespace nsModImport
