#include "SyscallProgramSelect.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace nsModSyscall {

bool SyscallProgramSelect::isUsable(const QString& path, QString* problem) const
{
    if (!path.isEmpty() && !path.contains('/')) {
        if (QStandardPaths::findExecutable(path).isEmpty())
            *problem = tr("There is no program of this name in the search path.");
        return problem->isEmpty();
    }
    if (!MyFileSelectOpen::isUsable(path, problem))
        return false;
    if (!QFileInfo(path).isExecutable())
        *problem = tr("The file is not executable.");
    return problem->isEmpty();
}

} // namespace nsModSyscall
