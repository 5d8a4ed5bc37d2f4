#include "TargetWriteFileMem.h"

#include "HexText.h"
#include "IODev.h"

namespace nsModAsmFe {

bool TargetWriteFileMem::writeFile(IODev* dev)
{
    if (!checkType(dev))
        return false;
    if (dev->targets[kindMem].outputFile.isEmpty())
        return fail(errTargetNoOutputFile, QStringLiteral("Mem"), dev->devName);
    if (!checkSize(dev))
        return false;
    QByteArray text;
    text.reserve(dev->memSize * 7 + 8);
    if (!(dev->targets[kindMem].gapStuffingEn ? stuffedText(dev, &text) : blockText(dev, &text)))
        return fail(errInternal, tr("addrIterator exceeds memSize"));
    return writeBytes(dev->targets[kindMem].outputFile, text, errTargetOpenOutput);
}

bool TargetWriteFileMem::stuffedText(const IODev* dev, QByteArray* text)
{
    text->append("@0\r\n");
    for (int addr = 0; addr < dev->memSize; ++addr) {
        unsigned int value = 0;
        if (!dev->value(addr, &value))
            return false;
        appendHexWord(text, value);
        text->append("\r\n");
    }
    return true;
}

bool TargetWriteFileMem::blockText(const IODev* dev, QByteArray* text)
{
    bool startOfBlock = true;
    for (int addr = 0; addr < dev->memSize; ++addr) {
        unsigned int value = 0;
        bool isInitValue = true;
        if (!dev->value(addr, &value, &isInitValue))
            return false;
        if (isInitValue) {
            startOfBlock = true;
            continue;
        }
        if (startOfBlock) {
            text->append('@');
            text->append(QByteArray::number(addr));
            text->append("\r\n");
            startOfBlock = false;
        }
        appendHexWord(text, value);
        text->append('\n');
    }
    return true;
}

} // namespace nsModAsmFe
