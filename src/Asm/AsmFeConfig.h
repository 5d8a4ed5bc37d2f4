#pragma once

#include "TargetFile.h"

#include <QString>

class PrjSettings;

namespace nsModAsmFe {

/// The settings of one kind of output file: where it goes, and on which events it is written.
struct TargetConfig : TargetFile
{
    bool writeFileEventBut1 = true;
    bool writeFileEventBut2 = true;
    bool writeFileEventSave = false;
};

// All kinds have one shape: each uses the fields that its row of targetKinds() has.
using TargetVhdlConfig = TargetConfig;
using TargetVerilogConfig = TargetConfig;
using TargetHexConfig = TargetConfig;
using TargetMemConfig = TargetConfig;

/// The assembler's settings of a project, with their defaults.
class AsmFeConfig
{
public:
    /// Why a run was started: which output files and external programs belong to it.
    enum eAssembleEvent_t { eEventNone = 0, eEventButton1 = 1, eEventButton2 = 2, eEventSave = 3 };
    /// What happens to a string without a character set.
    enum eCharsetBehavior_t { charsetError = 0, charsetWarn = 1, charsetSilent = 2 };
    /// What happens to a second `#EQU` of a name.
    enum eEquBehavior_t { equError = 0, equWarn = 1, equSilent = 2 };
    /// What happens when a `#SET` overrides a setting.
    enum eSetBehavior_t { setError = 0, setWarn = 1, setSilent = 2 };
    /// What happens when no instruction stands at the interrupt vector.
    enum eIntVectorBehavior_t { intVectorError = 0, intVectorWarn = 1, intVectorSilent = 2 };

    /// Reads all keys from the project; a missing key leaves the field as it is.
    void rdAsmFeConfig(PrjSettings* prj);
    /// Writes all keys into the project.
    void wrAsmFeConfig(PrjSettings* prj) const;

    QString defaultCharset = QStringLiteral("UTF-8");
    int behaviorCharset = charsetWarn;
    int behaviorEqu = equWarn;
    int behaviorSet = setWarn;
    /// Lives in memory only: no key stores it.
    int behaviorChkIntVector = intVectorWarn;
    TargetConfig targets[targetKindCount]; ///< indexed by eTargetKind_t
};

} // namespace nsModAsmFe
