#include "TargetWriteFileHex.h"

#include "HexText.h"
#include "IODev.h"

namespace nsModAsmFe {

bool TargetWriteFileHex::writeFile(IODev* dev)
{
    if (!checkType(dev))
        return false;
    if (dev->targets[kindHex].outputFile.isEmpty())
        return fail(errTargetNoOutputFile, QStringLiteral("Hex"), dev->devName);
    if (!checkSize(dev))
        return false;
    QByteArray text;
    text.reserve(dev->memSize * 6);
    for (int addr = 0; addr < dev->memSize; ++addr) {
        unsigned int value = 0;
        if (!dev->value(addr, &value))
            return fail(errInternal, tr("addrIterator exceeds memSize"));
        appendHexWord(&text, value);
        text.append('\n');
    }
    return writeBytes(dev->targets[kindHex].outputFile, text, errTargetOpenOutput);
}

} // namespace nsModAsmFe
