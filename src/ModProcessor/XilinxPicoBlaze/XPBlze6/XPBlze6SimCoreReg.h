#pragma once

#include "ProcSimCoreData.h"
#include "ProcSimCoreReg.h"
#include "ProcTables.h"

namespace nsXPBlze6 {

/// The registers of a PicoBlaze 6.
class XPBlze6SimCoreReg : public nsProc::ProcSimCoreReg
{
    Q_OBJECT

public:
    explicit XPBlze6SimCoreReg(std::shared_ptr<nsProc::ProcSimCoreData> data, QWidget* parent = nullptr)
        : ProcSimCoreReg(std::move(data), regName, parent)
    {
    }
    /// With registers of its own.
    explicit XPBlze6SimCoreReg(QWidget* parent = nullptr)
        : XPBlze6SimCoreReg(std::make_shared<nsProc::ProcSimCoreData>(16, 2, 0), parent)
    {
    }

    static QString regName(int index) { return nsProc::xpBlze6Table().regName(index); }
};

} // namespace nsXPBlze6
