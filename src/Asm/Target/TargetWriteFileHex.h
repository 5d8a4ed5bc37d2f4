#pragma once

#include "TargetMapper.h"

namespace nsModAsmFe {

/// Writes a device's contents as a hex file: one word a line, from address 0 to the end.
class TargetWriteFileHex : public TargetMapper
{
    Q_OBJECT

public:
    using TargetMapper::TargetMapper;

    /// @return false after a reported error
    bool writeFile(IODev* dev);
    bool writeFile(IODev* dev, const MetaTags*) override { return writeFile(dev); }
};

} // namespace nsModAsmFe
