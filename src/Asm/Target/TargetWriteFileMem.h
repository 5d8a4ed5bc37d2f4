#pragma once

#include "TargetMapper.h"

#include <QByteArray>

namespace nsModAsmFe {

/// Writes a device's contents as a mem file: blocks of words, each after a line with its address.
///
/// With gap stuffing all words stand in one block. Without it only the cells that something wrote appear. The two forms
/// differ in their line ends, and block addresses are decimal: tool chains that read these files rely on it.
class TargetWriteFileMem : public TargetMapper
{
    Q_OBJECT

public:
    using TargetMapper::TargetMapper;

    /// @return false after a reported error
    bool writeFile(IODev* dev);
    bool writeFile(IODev* dev, const MetaTags*) override { return writeFile(dev); }

private:
    bool stuffedText(const IODev* dev, QByteArray* text);
    bool blockText(const IODev* dev, QByteArray* text);
};

} // namespace nsModAsmFe
