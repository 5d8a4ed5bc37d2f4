#include "ProcSetting.h"

#include "ProcCoreConfig.h"

#include <iterator>

namespace nsProc {

namespace {

using Config = ProcCoreConfig;

constexpr sSettingField_t fields[] = {
    {settingClkFreq, "clkFreq", "clkFreq", nullptr, false, errIvldClkFreq},
    {settingPageSize, "pageSize", "memMap/pageSize", &Config::pageSize, false, eAsmMsgCount},
    {settingScrpdSize, "scrpdSize", "scrpdSize", &Config::scrpdSize, true, errIvldScrpdSize},
    {settingScrpdIODev, "scrpdIODev", "", nullptr, false, errScrpdIODevNotDefined},
    {settingIntVectorAddr, "intVectorAddr", "intVectorAddr", &Config::intVectorAddr, true, errIntVectorOutOfMem},
    {settingRegCount, "regCount", "regCount", &Config::regCount, false, errIvldRegCnt},
    {settingInstrClkCnt, "instrClkCnt", "instrClkCnt", &Config::instrClkCnt, false, errIvldInstClkCycleCnt},
};

constexpr bool isEachAtItsPlace()
{
    for (int i = 0; i < settingCount; ++i) {
        if (fields[i].setting != i)
            return false;
    }
    return true;
}
static_assert(std::size(fields) == settingCount && isEachAtItsPlace(), "the rows are indexed by eSetting_t");

} // namespace

const sSettingField_t& settingField(eSetting_t setting)
{
    return fields[setting];
}

} // namespace nsProc
