#pragma once

#include <QString>

/// Finds what ships beside the program, such as templates and fonts.
namespace ShippedFolder {

/// Folder of the running program; a link to the program leads to the folder that it was shipped in.
QString programDir();
/// The folder with this name that belongs to a program: the first that exists of the places where one may be, which
/// are beside the folder of an installed program, one further up, and in the source tree seen from a build tree.
/// @param programDir folder of the program file
/// @return absolute path; empty if there is none
QString find(const QString& programDir, const QString& name);

} // namespace ShippedFolder
