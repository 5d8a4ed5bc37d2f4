#pragma once

#include "ProcAsmBe.h"
#include "ProcTables.h"

namespace nsXPBlze6 {

/// The assembler back end of the PicoBlaze 6.
class XPBlze6AsmBe : public nsProc::ProcAsmBe
{
    Q_OBJECT

public:
    explicit XPBlze6AsmBe(QObject* parent = nullptr)
        : ProcAsmBe(nsProc::xpBlze6Table(), parent)
    {
    }
};

} // namespace nsXPBlze6
