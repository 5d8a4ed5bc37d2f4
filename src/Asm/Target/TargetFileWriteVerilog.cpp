#include "TargetFileWriteVerilog.h"

#include "IODev.h"

namespace nsModAsmFe {

TargetFileWriteHdl::sTarget_t TargetFileWriteVerilog::target(const IODev* dev) const
{
    return {QStringLiteral("Verilog"), dev->verilogEntityName, dev->verilogTemplateFile, dev->verilogTargetFile};
}

} // namespace nsModAsmFe
