#include "LMico8v3xSimCore.h"

#include "LMico8v3xSimCoreReg.h"

#include "ProcSimCoreData.h"

namespace nsLMico8v3x {

LMico8v3xSimCore::LMico8v3xSimCore(const std::shared_ptr<nsProc::ProcSimCoreData>& data, int pcMax, QWidget* parent)
    : ProcSimCore(data, pcMax, new LMico8v3xSimCoreReg(data), parent)
{
}

LMico8v3xSimCore::LMico8v3xSimCore(int regCount, int scrpdSize, int pcMax, QWidget* parent)
    : LMico8v3xSimCore(std::make_shared<nsProc::ProcSimCoreData>(regCount, 1, scrpdSize), pcMax, parent)
{
}

} // namespace nsLMico8v3x
