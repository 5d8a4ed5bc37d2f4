#pragma once

#include "ProcAsmBe.h"
#include "ProcTables.h"

namespace nsLMico8v3x {

/// The assembler back end of the Mico8 v3.x.
class LMico8v3xAsmBe : public nsProc::ProcAsmBe
{
    Q_OBJECT

public:
    explicit LMico8v3xAsmBe(QObject* parent = nullptr)
        : ProcAsmBe(nsProc::lMico8v3xTable(), parent)
    {
    }
};

} // namespace nsLMico8v3x
