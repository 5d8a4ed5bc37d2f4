#pragma once

#include "ProcSimCoreData.h"
#include "ProcSimCoreReg.h"
#include "ProcTables.h"

namespace nsXPBlze3 {

/// The registers of a PicoBlaze 3.
class XPBlze3SimCoreReg : public nsProc::ProcSimCoreReg
{
    Q_OBJECT

public:
    explicit XPBlze3SimCoreReg(std::shared_ptr<nsProc::ProcSimCoreData> data, QWidget* parent = nullptr)
        : ProcSimCoreReg(std::move(data), regName, parent)
    {
    }
    /// With registers of its own.
    explicit XPBlze3SimCoreReg(QWidget* parent = nullptr)
        : XPBlze3SimCoreReg(std::make_shared<nsProc::ProcSimCoreData>(16, 1, 0), parent)
    {
    }

    static QString regName(int index) { return nsProc::xpBlze3Table().regName(index); }
};

} // namespace nsXPBlze3
