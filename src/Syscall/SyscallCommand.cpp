#include "SyscallCommand.h"

#include "SyscallConfig.h"

#include <QStandardPaths>

namespace nsModSyscall {

namespace {

QString programPath(const SyscallRecord& record, const QDir& prjDir)
{
    if (record.exe.isEmpty())
        return QString();
    if (record.storeRelToPrj || record.exe.contains('/'))
        return QDir::cleanPath(prjDir.absoluteFilePath(record.exe));
    const QString found = QStandardPaths::findExecutable(record.exe);
    return found.isEmpty() ? record.exe : found;
}

} // namespace

SyscallCommand SyscallCommand::of(const SyscallRecord& record, const QDir& prjDir)
{
    SyscallCommand command;
    command.program = programPath(record, prjDir);
    command.arguments = splitArguments(record.arg);
    command.folder = prjDir.absolutePath();
    return command;
}

QStringList SyscallCommand::act() const
{
    return texts() + QStringList(QDir(folder).canonicalPath());
}

QStringList SyscallCommand::splitArguments(const QString& line)
{
    return line.split(' ', Qt::KeepEmptyParts);
}

} // namespace nsModSyscall
