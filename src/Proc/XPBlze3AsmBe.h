#pragma once

#include "ProcAsmBe.h"
#include "ProcTables.h"

namespace nsXPBlze3 {

/// The assembler back end of the PicoBlaze 3.
class XPBlze3AsmBe : public nsProc::ProcAsmBe
{
    Q_OBJECT

public:
    explicit XPBlze3AsmBe(QObject* parent = nullptr)
        : ProcAsmBe(nsProc::xpBlze3Table(), parent)
    {
    }
};

} // namespace nsXPBlze3
