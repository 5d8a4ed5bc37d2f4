#pragma once

#include "ProcSimCoreData.h"
#include "ProcSimCoreReg.h"
#include "ProcTables.h"

namespace nsLMico8v3x {

/// The registers of a Mico8.
class LMico8v3xSimCoreReg : public nsProc::ProcSimCoreReg
{
    Q_OBJECT

public:
    explicit LMico8v3xSimCoreReg(std::shared_ptr<nsProc::ProcSimCoreData> data, QWidget* parent = nullptr)
        : ProcSimCoreReg(std::move(data), regName, parent)
    {
    }
    /// With registers of its own.
    explicit LMico8v3xSimCoreReg(int regCount, QWidget* parent = nullptr)
        : LMico8v3xSimCoreReg(std::make_shared<nsProc::ProcSimCoreData>(regCount, 1, 0), parent)
    {
    }

    static QString regName(int index) { return nsProc::lMico8v3xTable().regName(index); }
};

} // namespace nsLMico8v3x
