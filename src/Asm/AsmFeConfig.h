#pragma once

#include <QString>

class PrjSettings;

namespace nsModAsmFe {

/// What all kinds of output files have: on or off, and on which events they are written.
struct TargetConfig
{
    bool en = false;
    bool writeFileEventBut1 = true;
    bool writeFileEventBut2 = true;
    bool writeFileEventSave = false;
    QString outputFile; ///< absolute
};

struct TargetHexConfig : TargetConfig
{
};

struct TargetMemConfig : TargetConfig
{
    bool gapStuffingEn = true;
};

struct TargetVhdlConfig : TargetConfig
{
    QString entityName;
    QString templateFile; ///< absolute
};

struct TargetVerilogConfig : TargetVhdlConfig
{
};

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
    TargetVhdlConfig targetVhdl;
    TargetVerilogConfig targetVerilog;
    TargetHexConfig targetHex;
    TargetMemConfig targetMem;
};

} // namespace nsModAsmFe
