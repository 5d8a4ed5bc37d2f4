#include "SyscallConfig.h"

#include "CfgItems.h"
#include "PrjSettings.h"

#include <limits>

namespace nsModSyscall {

namespace {

template <class Items, class Record>
void recordItems(Items& items, int index, Record& program)
{
    const QString key = QStringLiteral("Syscall/syscall%1").arg(index);
    items.item(key + "ExecEventBut1", program.execEventBut1);
    items.item(key + "ExecEventBut2", program.execEventBut2);
    items.item(key + "ExecEventSave", program.execEventSave);
    items.item(key + "En", program.en);
    items.item(key + "BlockingModeEn", program.blockingModeEn);
    items.item(key + "AbortIfNoSuccess", program.abortIfNoSuccess);
    items.item(key + "StoreRelToPrj", program.storeRelToPrj);
    items.item(key + "RetValOfSuccess", program.retValOfSuccess, std::numeric_limits<int>::min(),
               std::numeric_limits<int>::max());
    if (program.storeRelToPrj)
        items.path(key + "Exe", program.exe);
    else
        items.item(key + "Exe", program.exe);
    items.item(key + "Arg", program.arg);
    items.item(key + "Comment", program.comment);
}

template <class Items, class Config>
void allItems(Items items, Config& config)
{
    for (int i = 0; i < programCount; ++i)
        recordItems(items, i, config.programs[i]);
}

} // namespace

void SyscallConfig::rdSyscallConfig(PrjSettings* prj)
{
    allItems(CfgReader<PrjSettings>(prj), *this);
}

void SyscallConfig::wrSyscallConfig(PrjSettings* prj) const
{
    allItems(CfgWriter<PrjSettings>(prj), *this);
}

} // namespace nsModSyscall
