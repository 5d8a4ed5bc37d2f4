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
    QString language() const override { return QStringLiteral("Verilog"); }
    eTargetKind_t kind() const override { return kindVerilog; }
};

} // namespace nsModAsmFe
