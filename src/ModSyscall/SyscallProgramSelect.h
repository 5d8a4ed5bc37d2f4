#pragma once

#include "MyFileSelectOpen.h"

namespace nsModSyscall {

/// The path of a program: an executable file, or the name of one in the search path.
class SyscallProgramSelect : public MyFileSelectOpen
{
    Q_OBJECT

public:
    using MyFileSelectOpen::MyFileSelectOpen;

protected:
    bool isUsable(const QString& path, QString* problem) const override;
};

} // namespace nsModSyscall
