#pragma once

#include "ConstList.h"
#include "ProcAsmMsg.h"

#include <QtGlobal>

#include <limits>

namespace nsProc {

struct ProcCoreConfig;

/// What can be set of a processor. Each processor has some of these.
enum eSetting_t {
    settingClkFreq,
    settingPageSize,
    settingScrpdSize,
    settingScrpdIODev,
    settingIntVectorAddr,
    settingRegCount,
    settingInstrClkCnt,
    settingCount, ///< number of values, not a setting
};

/// What a setting is with every processor that has it.
struct sSettingField_t
{
    eSetting_t setting;
    const char* name;           ///< in messages, and object name of its control
    const char* key;            ///< in the project, below the processor's section; empty if it is not stored
    int ProcCoreConfig::*value; ///< null for the clock frequency and the IO device, which are no integers
    bool isOverride;            ///< the configuration decides whether a source may change it
    eAsmMsg_t invalid;          ///< reports a value that the processor does not accept
};

const sSettingField_t& settingField(eSetting_t setting);

/// One setting of a processor: where a source can set it, what is accepted, how it is shown.
struct sProcSetting_t
{
    enum eControl_t {
        eControlNone,        ///< not on the settings page
        eControlNumber,      ///< an integer; stepped by one
        eControlLargeNumber, ///< an integer beyond what an int holds; settings hold at most an int
        eControlChoice,      ///< one integer of `choices`
        eControlFrequency    ///< Hz, shown in MHz
    };
    enum ePage_t { ePageCore, ePageInstMem };

    eSetting_t setting = settingCount;
    const char* directive = ""; ///< name of its `#SET` parameter in upper case; empty if sources can not set it

    // A number of the project that is out of this range is replaced by the nearest one in it. The range is wide enough
    // for numbers that the assembler itself checks and reports.
    int storedMin = 0;
    int storedMax = std::numeric_limits<int>::max();

    // What the assembler accepts: one of the choices, if there are any.
    ConstList<int, 3> choices;
    int least = 0;

    // The control.
    eControl_t control = eControlNone;
    ePage_t page = ePageCore;
    const char* title = "";   ///< label in front of the control
    const char* unit = "";    ///< text after it; empty if there is none
    bool isAddress = false;   ///< also read and shown in hexadecimal
    const char* toolTip = ""; ///< the texts are translated in the context of ProcConfigWidget
    double shownMin = 0;      ///< in the unit that is shown, as the two below; a choice has none
    double shownMax = 0;
    double shownStart = 0; ///< what the control shows until it is filled

    constexpr bool accepts(int value) const { return choices.count() > 0 ? choices.contains(value) : value >= least; }
};

/// The clock, which every processor has.
constexpr sProcSetting_t clkFreqSetting()
{
    sProcSetting_t s;
    s.setting = settingClkFreq;
    s.directive = "CLKFREQ";
    s.control = sProcSetting_t::eControlFrequency;
    s.title = QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Clock frequency:");
    s.unit = QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "MHz");
    s.toolTip =
        QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Clock of the processor; the simulator counts its time with it");
    s.shownMax = 10000;
    return s;
}

/// The size of a page of the instruction memory, which every processor has.
constexpr sProcSetting_t pageSizeSetting()
{
    sProcSetting_t s;
    s.setting = settingPageSize;
    s.control = sProcSetting_t::eControlNumber;
    s.page = sProcSetting_t::ePageInstMem;
    s.title = QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Instruction memory page size:");
    s.unit = QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "kB");
    s.toolTip = QT_TRANSLATE_NOOP(
        "nsProc::ProcConfigWidget",
        "Size of one page of the instruction memory, counted in instruction words, where the source sets none");
    s.shownMax = 4096;
    s.shownStart = 1024;
    return s;
}

/// The IO device with the initial contents of the scratchpad, which only sources set.
constexpr sProcSetting_t scrpdIODevSetting(const char* directive)
{
    sProcSetting_t s;
    s.setting = settingScrpdIODev;
    s.directive = directive;
    return s;
}

} // namespace nsProc
