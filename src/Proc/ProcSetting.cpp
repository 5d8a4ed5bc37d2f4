#include "ProcSetting.h"

#include "EnumTable.h"
#include "ProcCoreConfig.h"

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

static_assert(isIndexedBy(fields, &sSettingField_t::setting, settingCount), "the rows are indexed by eSetting_t");

} // namespace

const sSettingField_t& settingField(eSetting_t setting)
{
    return fields[setting];
}

} // namespace nsProc
