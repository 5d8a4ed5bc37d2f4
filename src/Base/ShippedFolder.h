#pragma once

#include <QString>
#include <QStringList>

/// Finds what ships beside the program, such as templates and fonts.
namespace ShippedFolder {

/// Folder of a program; a link to the program leads to the folder that it was shipped in.
/// @param programFile empty: the running program
QString programDir(const QString& programFile = QString());
/// The places where something that belongs to a program may be, the first one first: beside the folder of an installed
/// program, one further up, and in the source tree seen from a build tree.
/// @param name of a folder or file; it may hold slashes
/// @return absolute paths
QStringList candidates(const QString& programDir, const QString& name);
/// The folder with this name that belongs to a program: the first of the candidates that exists.
/// @param programDir folder of the program file
/// @return absolute path; empty if there is none
QString find(const QString& programDir, const QString& name);
/// All files below a folder, hidden ones included, sorted by their paths. Links to folders are not followed, so a
/// circle of them does no harm.
QStringList filesBelow(const QString& dir);

} // namespace ShippedFolder
