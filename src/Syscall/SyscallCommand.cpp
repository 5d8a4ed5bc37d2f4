#include "SyscallCommand.h"

#include "SyscallConfig.h"

#include <QStandardPaths>

namespace nsModSyscall {

namespace {

QString programPath(const QString& exe, const QDir& prjDir)
{
    if (exe.contains('/'))
        return QDir::cleanPath(prjDir.absoluteFilePath(exe));
    const QString found = exe.isEmpty() ? QString() : QStandardPaths::findExecutable(exe);
    return found.isEmpty() ? exe : found;
}

} // namespace

SyscallCommand SyscallCommand::of(const SyscallRecord& record, const QDir& prjDir)
{
    SyscallCommand command;
    command.program = programPath(record.exe, prjDir);
    command.arguments = splitArguments(record.arg);
    command.folder = prjDir.absolutePath();
    return command;
}

QStringList SyscallCommand::splitArguments(const QString& line)
{
    return line.split(' ', Qt::KeepEmptyParts);
}

} // namespace nsModSyscall
