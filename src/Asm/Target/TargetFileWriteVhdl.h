#pragma once

#include "TargetFileWriteHdl.h"

namespace nsModAsmFe {

/// Fills a VHDL template.
class TargetFileWriteVhdl : public TargetFileWriteHdl
{
    Q_OBJECT

public:
    using TargetFileWriteHdl::TargetFileWriteHdl;

protected:
    QString language() const override { return QStringLiteral("VHDL"); }
    eTargetKind_t kind() const override { return kindVhdl; }
};

} // namespace nsModAsmFe
