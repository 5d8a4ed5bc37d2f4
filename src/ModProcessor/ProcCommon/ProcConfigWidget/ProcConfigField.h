#pragma once

#include "ProcCoreConfig.h"

#include <QString>
#include <QVector>

namespace nsProc {

/// One setting of a processor, as its settings widget shows it: a row of the widget's table.
struct sProcConfigField
{
    enum eKind_t {
        eNumber,      ///< an integer; stepped by one
        eLargeNumber, ///< an integer beyond what an int holds; settings hold at most an int
        eChoice,      ///< one integer of a few
        eFrequency    ///< Hz, shown in MHz; always the clock frequency
    };
    enum ePage_t { ePageCore, ePageInstMem };

    const char* name; ///< object name of the control
    ePage_t page;
    eKind_t kind;
    const char* title; ///< label in front of the control
    const char* unit;  ///< text after it; empty if there is none
    const char* toolTip;
    int ProcCoreConfig::*value; ///< the setting; null for the clock frequency
    double min;                 ///< in the unit that is shown, as the two below; a choice has none
    double max;
    double start;              ///< what the control shows until setConfig() is called
    QVector<int> choices = {}; ///< of a choice, in the order of the list
};

/// The settings that every processor has.
sProcConfigField procConfigClkFreq();
sProcConfigField procConfigPageSize();

} // namespace nsProc
