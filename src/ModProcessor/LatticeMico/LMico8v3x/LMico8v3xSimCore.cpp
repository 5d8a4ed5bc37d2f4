#include "LMico8v3xSimCore.h"

#include "LMico8v3xSimCoreReg.h"

#include "ProcSimCoreData.h"

namespace nsLMico8v3x {

LMico8v3xSimCore::LMico8v3xSimCore(std::shared_ptr<nsProc::ProcSimCoreData> data, int pcMax, QWidget* parent)
    : ProcSimCore(std::move(data), pcMax, &LMico8v3xSimCoreReg::regName, parent)
{
}

LMico8v3xSimCore::LMico8v3xSimCore(int regCount, int scrpdSize, int pcMax, QWidget* parent)
    : LMico8v3xSimCore(std::make_shared<nsProc::ProcSimCoreData>(regCount, 1, scrpdSize), pcMax, parent)
{
}

} // namespace nsLMico8v3x
