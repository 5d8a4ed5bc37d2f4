#pragma once

#include <QString>

class PrjSettings;

namespace nsModSyscall {

const int programCount = 3; ///< external programs that a project can name

/// One external program of a project.
struct SyscallRecord
{
    bool execEventBut1 = false;
    bool execEventBut2 = false;
    bool execEventSave = false;
    bool en = false;
    bool blockingModeEn = true;    ///< the run waits for its end and looks at its result
    bool abortIfNoSuccess = false; ///< a failure stops the run
    bool storeRelToPrj = true;     ///< the project file names it relative to its own folder
    int retValOfSuccess = 0;
    QString exe; ///< path, absolute if `storeRelToPrj`; or a name that is looked up in the search path
    QString arg; ///< arguments, set apart by single blanks
    QString comment;
};

/// The external programs of a project, with their defaults.
class SyscallConfig
{
public:
    SyscallConfig() { programs[0].en = true; }

    /// Reads all keys from the project; a missing key leaves the field as it is.
    void rdSyscallConfig(PrjSettings* prj);
    /// Writes all keys into the project.
    void wrSyscallConfig(PrjSettings* prj) const;

    SyscallRecord programs[programCount];
};

} // namespace nsModSyscall
