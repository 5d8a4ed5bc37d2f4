#include "ProcTable.h"

namespace nsProc {

QString ProcTable::regName(int number) const
{
    return QLatin1Char(regs.letter) + QString::number(number, regs.base).toUpper();
}

const sProcSetting_t* ProcTable::settingOfDirective(const QString& name) const
{
    for (int i = 0; i < settingRowCount; ++i) {
        const char* directive = settings[i].directive;
        if (*directive != '\0' && name == QLatin1String(directive))
            return &settings[i];
    }
    return nullptr;
}

ProcCoreConfig ProcTable::defaultConfig() const
{
    ProcCoreConfig config;
    config.regCount = regCount;
    config.scrpdSize = scrpdSize;
    config.intVectorAddr = intVectorAddr;
    config.instrClkCnt = instrClkCnt;
    return config;
}

int ProcTable::regCountOf(const ProcCoreConfig& config) const
{
    return setting(settingRegCount) != nullptr ? config.regCount : regCount;
}

int ProcTable::scrpdSizeOf(const ProcCoreConfig& config) const
{
    return setting(settingScrpdSize) != nullptr ? config.scrpdSize : scrpdSize;
}

int ProcTable::instrClkCntOf(const ProcCoreConfig& config) const
{
    return setting(settingInstrClkCnt) != nullptr ? config.instrClkCnt : instrClkCnt;
}

} // namespace nsProc
