#pragma once

#include "TargetFileWriteHdl.h"

namespace nsModAsmFe {

/// Fills a Verilog template.
class TargetFileWriteVerilog : public TargetFileWriteHdl
{
    Q_OBJECT

public:
    using TargetFileWriteHdl::TargetFileWriteHdl;

protected:
    sTarget_t target(const IODev* dev) const override;
};

} // namespace nsModAsmFe
