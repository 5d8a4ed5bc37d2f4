#include "ProcConfigField.h"

namespace nsProc {

sProcConfigField procConfigClkFreq()
{
    return {
        "clkFreq",
        sProcConfigField::ePageCore,
        sProcConfigField::eFrequency,
        QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Clock frequency:"),
        QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "MHz"),
        QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Clock of the processor; the simulator counts its time with it"),
        nullptr,
        0,
        10000,
        0};
}

sProcConfigField procConfigPageSize()
{
    return {"pageSize",
            sProcConfigField::ePageInstMem,
            sProcConfigField::eNumber,
            QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "Instruction memory page size:"),
            QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget", "kB"),
            QT_TRANSLATE_NOOP("nsProc::ProcConfigWidget",
                              "Size of one page of the instruction memory, where the source sets none"),
            &ProcCoreConfig::pageSize,
            0,
            4096,
            1024};
}

} // namespace nsProc
