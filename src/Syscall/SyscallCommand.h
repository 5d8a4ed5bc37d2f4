#pragma once

#include <QDir>
#include <QString>
#include <QStringList>

namespace nsModSyscall {

struct SyscallRecord;

/// What is executed for an external program, to the letter.
struct SyscallCommand
{
    /// Finds the program of a record.
    /// @param prjDir folder of the project file: the working folder, and the one that a relative path starts from
    static SyscallCommand of(const SyscallRecord& record, const QDir& prjDir);
    /// The arguments of an argument line: set apart by single blanks, with no quoting. Two blanks in a row have an
    /// empty argument between them, and an empty line is one empty argument.
    static QStringList splitArguments(const QString& line);

    /// Program and arguments.
    QStringList texts() const { return QStringList(program) + arguments; }
    /// What is allowed when somebody allows the command: program and arguments, and the folder without links, as the
    /// same arguments name other files in another folder.
    QStringList act() const;
    bool operator==(const SyscallCommand& other) const
    {
        return program == other.program && arguments == other.arguments && folder == other.folder;
    }
    bool operator!=(const SyscallCommand& other) const { return !(*this == other); }

    /// Absolute path of the program; a name without a slash that is not in the search path stays as it is, and so does
    /// an empty one. These two can not be started.
    QString program;
    QStringList arguments;
    QString folder; ///< working folder, absolute
};

} // namespace nsModSyscall
