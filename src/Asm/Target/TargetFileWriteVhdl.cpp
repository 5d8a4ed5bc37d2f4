#include "TargetFileWriteVhdl.h"

#include "IODev.h"

namespace nsModAsmFe {

TargetFileWriteHdl::sTarget_t TargetFileWriteVhdl::target(const IODev* dev) const
{
    return {QStringLiteral("VHDL"), dev->vhdlEntityName, dev->vhdlTemplateFile, dev->vhdlTargetFile};
}

} // namespace nsModAsmFe
